#include "app/PagePainter.h"

#include "app/HtmlPages.h"
#include "app/Printing.h"
#include "tests/MadeChart.h"
#include "tests/PrintedPages.h"
#include "tests/QtPrinters.h"

#include <QImage>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// A page of given lines in a given font.
PrintedDocument Document(qint16 font, const std::function<void(Printout&)>& write)
{
    Printout printout(u"Test"_s, font);
    printout.PreparePrinter();
    write(printout);
    printout.FinishPrinting();
    return printout.Document();
}

/// A picture of a page, 144 dots to an inch.
constexpr qreal kDots = 144;

QImage Picture(const PrintedDocument& document, const QPageSize& paper)
{
    constexpr qreal kScale = kDots / kPageUnitsPerInch;
    const QSizeF size = SizeOfPage(document, 0, paper) * kScale;
    QImage image(int(size.width()), int(size.height()), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    PaintPage(painter, document, 0, paper);
    return image;
}

/// The smallest rectangle that holds all that is not white.
QRect Ink(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// A page that is full in every direction.
PrintedDocument FullPage(qint16 font)
{
    return Document(font, [](Printout& printout) {
        while (printout.HasRoomFor(1)) {
            printout.PrintLine(QString(kPrintColumns, u'M'));
        }
    });
}

} // namespace

TEST(PagePainter, AFullPageKeepsAQuarterInchFreeOnEveryPaper)
{
    for (const qint16 font : {kStandardFont, kCourierNewFont}) {
        for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::Letter, QPageSize::Legal,
                                               QPageSize::A3, QPageSize::A5, QPageSize::A6, QPageSize::B5}) {
            const QPageSize paper(id);
            SCOPED_TRACE(paper.name().toStdString());
            const QImage image = Picture(FullPage(font), paper);
            const QRect ink = Ink(image);
            const int quarter = id == QPageSize::A5 || id == QPageSize::A6 || id == QPageSize::B5 ? 16 : 35;
            EXPECT_GE(ink.left(), quarter);
            EXPECT_GE(ink.top(), quarter);
            EXPECT_LE(ink.right(), image.width() - quarter);
            EXPECT_LE(ink.bottom(), image.height() - quarter);
        }
    }
}

TEST(PagePainter, ColumnsOfTheStandardFontAreATenthOfAnInchApart)
{
    for (int column : {1, 2, 5, 20, 74, 75}) {
        const auto text = [column](Printout& printout) { printout.PrintLine(u"H"_s, column); };
        const QRect ink = Ink(Picture(Document(kStandardFont, text), QPageSize(QPageSize::Letter)));
        EXPECT_NEAR(QRectF(ink).center().x(), (0.4 + (column - 0.5) / 10) * kDots, 1.0) << column;
    }
}

TEST(PagePainter, ColumnsOfCourierNewAreSixTenthsOfElevenPointsApart)
{
    for (int column : {1, 2, 5, 20, 74, 75}) {
        const auto text = [column](Printout& printout) { printout.PrintLine(u"H"_s, column); };
        const QRect ink = Ink(Picture(Document(kCourierNewFont, text), QPageSize(QPageSize::Letter)));
        EXPECT_NEAR(QRectF(ink).center().x(), (0.4 + (column - 0.5) / (72 / 6.6)) * kDots, 1.0) << column;
    }
}

TEST(PagePainter, ACharacterStandsAtItsColumnWhateverStandsBeforeIt)
{
    for (const qint16 font : {kStandardFont, kCourierNewFont}) {
        const PrintedDocument alone =
            Document(font, [](Printout& printout) { printout.PrintLine(u"8"_s, 70); });
        const PrintedDocument inText =
            Document(font, [](Printout& printout) { printout.PrintLine(QString(69, u' ') + u"8"_s); });
        EXPECT_EQ(Picture(alone, QPageSize(QPageSize::A4)), Picture(inText, QPageSize(QPageSize::A4)));
    }
}

TEST(PagePainter, PdfHoldsEveryPageAndTellsHowFarItIs)
{
    PrintedDocument document = FullPage(kStandardFont);
    document.pages.resize(12, document.pages.front());
    QByteArray pdf;
    QList<int> told;
    const Outcome made = MakePdf(document, QPageSize(QPageSize::A4), pdf, [&](int pages) { told << pages; });
    EXPECT_TRUE(made.ok) << made.reason.toStdString();
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.contains("/Count 12"));
    EXPECT_EQ(told, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST(PagePainter, ThePdfHasTheSizeOfThePaper)
{
    QByteArray pdf;
    ASSERT_TRUE(MakePdf(FullPage(kStandardFont), QPageSize(QPageSize::Letter), pdf).ok);
    const QRegularExpression box(u"/MediaBox \\[0 0 612(\\.0+)? 792(\\.0+)?\\]"_s);
    EXPECT_TRUE(box.match(QString::fromLatin1(pdf)).hasMatch()) << pdf.left(1000).toStdString();
}

TEST(PagePainter, AChartTakesAWholePageInLandscapeOnEveryPaper)
{
    for (const BarStyle style : {BarStyle::Flat, BarStyle::ThreeDimensional}) {
        const PrintedDocument document = ChartDocument(MadeChart(60, 2001, style));
        for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::Letter, QPageSize::Legal,
                                               QPageSize::A3, QPageSize::A5, QPageSize::A6, QPageSize::B5}) {
            const QPageSize paper(id);
            SCOPED_TRACE(paper.name().toStdString());
            EXPECT_EQ(OrientationOf(document, 0, paper), QPageLayout::Landscape);
            const QImage image = Picture(document, paper);
            EXPECT_GT(image.width(), image.height());
            const QRect ink = Ink(image);
            constexpr int kHalfAnInch = int(kDots / 2);
            EXPECT_GE(ink.left(), kHalfAnInch - 1);
            EXPECT_GE(ink.top(), kHalfAnInch - 1);
            EXPECT_LE(ink.right(), image.width() - kHalfAnInch + 1);
            EXPECT_LE(ink.bottom(), image.height() - kHalfAnInch + 1);
            EXPECT_GT(ink.width(), (image.width() - kDots) * 0.9) << "the room is used";
            EXPECT_GT(ink.height(), (image.height() - kDots) * 0.9);
        }
    }
}

TEST(PagePainter, PaperThatIsWiderThanHighIsNotTurnedForAChart)
{
    const QPageSize wide(QSizeF(11, 8), QPageSize::Inch);
    const PrintedDocument document = ChartDocument(MadeChart(10, 9));
    EXPECT_EQ(OrientationOf(document, 0, wide), QPageLayout::Portrait);
    EXPECT_EQ(SizeOfPage(document, 0, wide), QSizeF(11 * 720, 8 * 720));
}

TEST(PagePainter, APdfOfTextAndChartsTurnsThePagesOfTheCharts)
{
    PrintedDocument document = FullPage(kStandardFont);
    document.charts = {MadeChart(10, 9), MadeChart(49, 175)};
    QByteArray pdf;
    QList<int> told;
    ASSERT_TRUE(MakePdf(document, QPageSize(QPageSize::Letter), pdf, [&](int pages) { told << pages; }).ok);
    EXPECT_EQ(told, (QList<int>{1, 2, 3}));
    const QRegularExpression box(u"/MediaBox \\[0 0 ([0-9]+)(\\.0+)? ([0-9]+)(\\.0+)?\\]"_s);
    QStringList sizes;
    for (auto found = box.globalMatch(QString::fromLatin1(pdf)); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        sizes << match.captured(1) + u'x' + match.captured(3);
    }
    EXPECT_EQ(sizes, (QStringList{u"612x792"_s, u"792x612"_s, u"792x612"_s}));
}

TEST(PagePainter, AChartIsDrawnInThePdfAndNotPutThereAsAPicture)
{
    for (const ChartInk ink : {ChartInk::Color, ChartInk::BlackAndWhite}) {
        BarChart chart = MadeChart(60, 2001, BarStyle::ThreeDimensional);
        chart.ink = ink;
        QByteArray pdf;
        ASSERT_TRUE(MakePdf(ChartDocument(chart), QPageSize(QPageSize::A4), pdf).ok);
        EXPECT_FALSE(pdf.contains("/Subtype /Image"));
        EXPECT_FALSE(pdf.contains("/PaintType 2")) << "no hatch brush";
    }
}

TEST(PagePainter, FormattedTextKeepsItsMarginsOnEveryPaperAndComesAfterThePagesOfLines)
{
    PrintedDocument document;
    document.name = u"Text"_s;
    document.html = u"<h1>Heading</h1>"_s + u"<p>Words that fill the lines of a page.</p>"_s.repeated(60);
    document.htmlPages = CountHtmlPages(document.html);
    EXPECT_GE(document.htmlPages, 2);
    for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::Letter, QPageSize::A5}) {
        const QImage image = Picture(document, QPageSize(id));
        const QRect ink = Ink(image);
        EXPECT_GE(ink.left(), 35);
        EXPECT_GE(ink.top(), 35);
        EXPECT_LE(ink.right(), image.width() - 35);
        EXPECT_LE(ink.bottom(), image.height() - 35);
        EXPECT_GE(ink.height(), image.height() * 3 / 4);
    }
    document.pages.resize(1);
    EXPECT_EQ(PageCount(document), 1 + document.htmlPages);
    EXPECT_FALSE(Ink(Picture(document, QPageSize(QPageSize::A4))).isValid())
        << "the first page is one of lines";
}
