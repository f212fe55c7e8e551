#include "app/HtmlPages.h"

#include <QAbstractTextDocumentLayout>
#include <QPalette>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The text is laid out as for a screen of 96 dots an inch, which is what margins in HTML are meant for, and
// painted larger.
constexpr qreal kDotsPerInch = 96;
constexpr qreal kScale = 720 / kDotsPerInch;
constexpr QSizeF kArea(6.7 * kDotsPerInch, 9.4 * kDotsPerInch);
constexpr qreal kTopSpace = 0.7 * kDotsPerInch;
constexpr qreal kFooterGap = 0.2 * kDotsPerInch;
constexpr qreal kFooterHeight = 0.25 * kDotsPerInch;
constexpr qreal kBottomSpace = 0.4 * kDotsPerInch;
/// What all of it needs, margins included.
constexpr QSizeF kSheet(kArea.width() + 2 * kTopSpace,
                        kTopSpace + kArea.height() + kFooterGap + kFooterHeight + kBottomSpace);

QFont TextFont(int pixels)
{
    QFont font(u"sans-serif"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting); // letters stand where they would at any size
    return font;
}

void LayOut(QTextDocument& text, const QString& html)
{
    constexpr int kTextSize = 15; // 11 points
    text.setUseDesignMetrics(true);
    text.setDefaultFont(TextFont(kTextSize));
    text.setDocumentMargin(0);
    text.setHtml(html);
    text.setPageSize(kArea);
}

/// Black on white whatever the desktop's palette is.
QPalette PaperPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Link, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    return palette;
}

} // namespace

int CountHtmlPages(const QString& html)
{
    QTextDocument text;
    LayOut(text, html);
    return std::max(1, text.pageCount());
}

void PaintHtmlPage(QPainter& painter, const QString& html, int page, const QString& name, const QSizeF& size)
{
    constexpr int kFooterSize = 12;
    QTextDocument text;
    LayOut(text, html);
    const QSizeF paper = size / kScale;
    const qreal fit = std::min({qreal(1), paper.width() / kSheet.width(), paper.height() / kSheet.height()});
    painter.save();
    painter.scale(kScale * fit, kScale * fit);
    painter.translate((paper.width() / fit - kArea.width()) / 2, kTopSpace);

    const QRectF footer(0, kArea.height() + kFooterGap, kArea.width(), kFooterHeight);
    painter.setFont(TextFont(kFooterSize));
    painter.setPen(Qt::black);
    painter.drawText(footer, Qt::AlignLeft, name);
    painter.drawText(footer, Qt::AlignRight, u"Page %1 of %2"_s.arg(page + 1).arg(text.pageCount()));

    const QRectF part(QPointF(0, page * kArea.height()), kArea);
    painter.translate(0, -part.top());
    painter.setClipRect(part);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette = PaperPalette();
    text.documentLayout()->draw(&painter, context);
    painter.restore();
}
