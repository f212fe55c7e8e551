#include "app/PagePainter.h"

#include "app/ChartPainter.h"
#include "app/HtmlPages.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPdfWriter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal kPointsPerInch = 72;
constexpr qreal kUnitsPerPoint = kPageUnitsPerInch / kPointsPerInch;
constexpr qreal kLineHeight = kPageUnitsPerInch / 6.0; // six lines an inch
constexpr qreal kStandardColumn = kPageUnitsPerInch / 10.0;
constexpr qreal kLeastMargin = 0.25 * kPageUnitsPerInch; // what a printer cannot reach
constexpr qreal kLeftMargin = 0.4 * kPageUnitsPerInch;
constexpr qreal kTopMargin = 0.45 * kPageUnitsPerInch;

struct PageFont {
    QFont font;
    qreal column = 0; ///< width of a print column
};

/// The font whose character is exactly one column wide on the device: what a family is off by is made up for
/// by its size, so that columns never drift.
QFont FittedFont(const QString& family, qreal points, qreal column, QPaintDevice* device)
{
    QFont font(family);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setBold(false);
    font.setKerning(false);
    font.setStyleStrategy(QFont::PreferQuality);
    const qreal deviceUnit =
        kPointsPerInch / device->logicalDpiY(); // points that make one unit of the painter
    font.setPointSizeF(points * kUnitsPerPoint * deviceUnit);
    const qreal advance = QFontMetricsF(font, device).horizontalAdvance(u'0');
    if (advance > 0) {
        font.setPointSizeF(font.pointSizeF() * column / advance);
    }
    return font;
}

PageFont FontOf(qint16 printerFont, QPaintDevice* device)
{
    if (printerFont == kCourierNewFont) {
        constexpr qreal kPoints = 11;
        constexpr qreal kAdvance = 0.6; // of a character of this face, in its size
        const qreal column = kAdvance * kPoints * kUnitsPerPoint;
        // Where the face itself is missing, the system puts one of the same widths in its place.
        QString family = u"Courier New"_s;
        if (!QFontInfo(QFont(family)).fixedPitch()) {
            family = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
        }
        return {FittedFont(family, kPoints, column, device), column};
    }
    constexpr qreal kPoints = 12;
    const QString family = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    return {FittedFont(family, kPoints, kStandardColumn, device), kStandardColumn};
}

/// Calls @p act with each word of a text and the place of its first character.
template <typename Act>
void ForEachWord(const QString& text, const Act& act)
{
    qsizetype begin = 0;
    while (begin < text.size()) {
        if (text.at(begin) == u' ') {
            ++begin;
            continue;
        }
        const qsizetype blank = text.indexOf(u' ', begin);
        const qsizetype end = blank < 0 ? text.size() : blank;
        act(begin, text.sliced(begin, end - begin));
        begin = end;
    }
}

/// Every word stands at its own column: a padded line would drift by what a character's width is rounded.
void PaintLines(QPainter& painter, const PrintedPage& page, const PageFont& pageFont)
{
    painter.setFont(pageFont.font);
    painter.setPen(Qt::black);
    const QFontMetricsF metrics(pageFont.font, painter.device());
    const qreal baseline = (kLineHeight + metrics.ascent() - metrics.descent()) / 2;
    for (size_t line = 0; line < page.size(); ++line) {
        for (const PrintedText& part : page.at(line)) {
            ForEachWord(part.text, [&](qsizetype place, const QString& word) {
                const qreal column = qreal(part.column - 1) + qreal(place);
                painter.drawText(QPointF(column * pageFont.column, qreal(line) * kLineHeight + baseline),
                                 word);
            });
        }
    }
}

/// How much of its own size a page has on the paper: all of it on A4, Letter and everything larger.
qreal ScaleFor(const QSizeF& paper)
{
    const qreal width = kLeftMargin + kPrintColumns * kStandardColumn + kLeastMargin;
    const qreal height = kTopMargin + kSheetLines * kLineHeight + kLeastMargin;
    return std::min({qreal(1), paper.width() / width, paper.height() / height});
}

/// The chart takes the whole page but for its margins.
void PaintChartPage(QPainter& painter, const BarChart& chart, const QSizeF& size)
{
    constexpr qreal kMargin = 0.5 * kPageUnitsPerInch;
    constexpr int kTextSize = int(9.5 * kUnitsPerPoint);
    const QRectF area = QRectF(QPointF(), size).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const ChartLook look = LookOnPaper(chart.ink, kTextSize);
    PaintChart(painter, LayOutChart(chart, area, look.font, painter.device()), chart, look);
}

} // namespace

QPageLayout::Orientation OrientationOf(const PrintedDocument& document, int page, const QPageSize& paper)
{
    const QSizeF size = paper.size(QPageSize::Point);
    const bool turned = ChartOnPage(document, page) != nullptr && size.width() < size.height();
    return turned ? QPageLayout::Landscape : QPageLayout::Portrait;
}

QSizeF SizeOfPage(const PrintedDocument& document, int page, const QPageSize& paper)
{
    const QPageLayout sheet(paper, OrientationOf(document, page, paper), QMarginsF());
    return sheet.fullRect(QPageLayout::Inch).size() * kPageUnitsPerInch;
}

void PaintPage(QPainter& painter, const PrintedDocument& document, int page, const QPageSize& paper)
{
    const QSizeF size = SizeOfPage(document, page, paper);
    if (const BarChart* chart = ChartOnPage(document, page)) {
        PaintChartPage(painter, *chart, size);
        return;
    }
    if (const int htmlPage = HtmlPageOnPage(document, page); htmlPage >= 0) {
        PaintHtmlPage(painter, document.html, htmlPage, document.name, size);
        return;
    }
    painter.save();
    const qreal scale = ScaleFor(size);
    painter.scale(scale, scale);
    painter.translate(kLeftMargin, kTopMargin);
    PaintLines(painter, document.pages.at(size_t(page)), FontOf(document.printerFont, painter.device()));
    painter.restore();
}

Outcome MakePdf(const PrintedDocument& document, const QPageSize& paper, QByteArray& pdf,
                const PagesDone& pagesDone)
{
    pdf.clear();
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(document.name);
    writer.setCreator(u"Quillaby System"_s);
    writer.setResolution(kPageUnitsPerInch);
    const auto lay = [&](int page) { // it counts from the next page on
        writer.setPageLayout(QPageLayout(paper, OrientationOf(document, page, paper), QMarginsF()));
    };
    lay(0);
    QPainter painter;
    bool painted = painter.begin(&writer);
    for (int page = 0; painted && page < PageCount(document); ++page) {
        lay(page);
        painted = page == 0 || writer.newPage();
        if (painted) {
            PaintPage(painter, document, page, paper);
        }
        if (pagesDone) {
            pagesDone(page + 1);
        }
    }
    painted = painter.end() && painted;
    buffer.close();
    if (!painted || !pdf.trimmed().endsWith("%%EOF")) {
        return Outcome::Failure(u"The pages could not be painted."_s);
    }
    return {};
}
