#include "app/PagePainter.h"

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
    const QSizeF size = PaperSize(paper) * kScale;
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
