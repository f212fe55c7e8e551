#include "app/Printout.h"

#include "tests/PrintedPages.h"
#include "tests/QtPrinters.h"

using namespace Qt::StringLiterals;

namespace {

Printout Prepared(qint16 font = kStandardFont)
{
    Printout printout(u"Test"_s, font);
    printout.PreparePrinter();
    return printout;
}

} // namespace

TEST(Printout, TheStandardFontHas53LinesAndCourierNew56)
{
    EXPECT_EQ(Prepared(kStandardFont).LinesPerPage(), 53);
    EXPECT_EQ(Prepared(kCourierNewFont).LinesPerPage(), 56);
}

TEST(Printout, AFontThatTheSettingsDoNotOfferPrintsInTheStandardFont)
{
    for (const qint16 font : {qint16(2), qint16(-1), qint16(32767)}) {
        const Printout printout = Prepared(font);
        EXPECT_EQ(printout.Document().printerFont, kStandardFont);
        EXPECT_EQ(printout.LinesPerPage(), 53);
    }
}

TEST(Printout, PreparingOpensThePageWithOneEmptyLine)
{
    const Printout printout = Prepared();
    EXPECT_EQ(printout.LinesOnPage(), 1);
    EXPECT_EQ(printout.PageNumber(), 1);
    ASSERT_EQ(printout.Document().pages.size(), 1U);
    EXPECT_TRUE(printout.Document().pages[0][0].empty());
}

TEST(Printout, PrintsTextsAtTheirColumnsOfOneLine)
{
    Printout printout = Prepared();
    printout.PrintAt(5, u"one"_s);
    printout.PrintAt(20, u"   2"_s);
    printout.EndLine();
    printout.PrintLine(u"three"_s, 40);
    printout.FinishPrinting();
    EXPECT_EQ(PagesText(printout.Document()),
              u"\n    one               2\n"_s + QString(39, u' ') + u"three\n--- page 1 ends ---\n"_s);
    EXPECT_EQ(printout.Document().pages[0][1], (PrintedLine{{5, u"one"_s}, {20, u"   2"_s}}));
}

TEST(Printout, AColumnThatIsPassedAlreadyIsTakenOnANewLine)
{
    Printout printout = Prepared();
    printout.PrintAt(1, u"12345"_s);
    printout.PrintAt(6, u"next"_s); // the first free column
    printout.PrintAt(9, u"below"_s);
    printout.EndLine();
    EXPECT_EQ(PageLines(printout.Document(), 1), (QStringList{{}, u"12345next"_s, u"        below"_s}));
}

TEST(Printout, ATextTooLongForItsLineGoesOnAtTheSameColumn)
{
    Printout printout = Prepared();
    printout.PrintLine(QString(71, u'a') + QString(71, u'b') + u"cc"_s, 5);
    EXPECT_EQ(PageLines(printout.Document(), 1),
              (QStringList{{}, u"    "_s + QString(71, u'a'), u"    "_s + QString(71, u'b'), u"    cc"_s}));
}

TEST(Printout, ATextThatJustFitsStaysOnItsLine)
{
    Printout printout = Prepared();
    printout.PrintLine(QString(75, u'a'));
    printout.PrintLine(QString(76, u'b'));
    EXPECT_EQ(PageLines(printout.Document(), 1),
              (QStringList{{}, QString(75, u'a'), QString(75, u'b'), u"b"_s}));
}

TEST(Printout, ATextIsBrokenAtABlankSoThatNumbersStayWhole)
{
    Printout printout = Prepared();
    printout.PrintLine(QString(73, u'a') + u" 49 50"_s);
    printout.PrintLine(QString(75, u'b') + u" 49"_s);
    EXPECT_EQ(PageLines(printout.Document(), 1),
              (QStringList{{}, QString(73, u'a'), u"49 50"_s, QString(75, u'b'), u" 49"_s}));
}

TEST(Printout, BlanksAtTheEndTakeNoLineOfTheirOwn)
{
    Printout printout = Prepared();
    printout.PrintLine(QString(74, u'a') + u"   "_s);
    printout.PrintLine(QString(80, u' '));
    EXPECT_EQ(PageLines(printout.Document(), 1), (QStringList{{}, QString(74, u'a'), {}}));
}

TEST(Printout, AColumnOffThePaperIsHeldToIt)
{
    Printout printout = Prepared();
    printout.PrintLine(u"left"_s, -3);
    printout.PrintLine(u"xy"_s, 900);
    EXPECT_EQ(PageLines(printout.Document(), 1),
              (QStringList{{}, u"left"_s, QString(74, u' ') + u"x"_s, QString(74, u' ') + u"y"_s}));
}

TEST(Printout, ControlCharactersPrintAsBlanks)
{
    Printout printout = Prepared();
    printout.PrintLine(u"a\tb\r\nc\u0085d"_s);
    EXPECT_EQ(PageLines(printout.Document(), 1), (QStringList{{}, u"a b  c d"_s}));
}

TEST(Printout, EveryPrintedCharacterIsOneColumnWide)
{
    Printout printout = Prepared();
    printout.PrintLine(u"Lotería Łódź Λαχείο Лото €"_s); // a fixed-pitch font has these
    printout.PrintLine(u"宝くじ 6/49"_s);                // these are two columns wide
    printout.PrintLine(u"lucky \U0001F340!"_s);          // a pair of surrogates is one character
    printout.PrintLine(u"Loteri\u0301a \u200Fx"_s);      // a mark, and a sign that only turns the direction
    EXPECT_EQ(
        PageLines(printout.Document(), 1),
        (QStringList{{}, u"Lotería Łódź Λαχείο Лото €"_s, u"??? 6/49"_s, u"lucky ?!"_s, u"Lotería x"_s}));
}

TEST(Printout, DigitsOfOtherScriptsArePrintedAsThoseOfEveryFont)
{
    Printout printout = Prepared();
    printout.PrintLine(u"\u0665/\u06F3/\u0968\u09E6\u1042\u0664"_s); // dates in five scripts
    EXPECT_EQ(PageLines(printout.Document(), 1), (QStringList{{}, u"5/3/2024"_s}));
}

TEST(Printout, ADocumentIsNamedInAHundredCharacters)
{
    EXPECT_EQ(Printout(QString(70'000, u'n'), kStandardFont).Document().name, QString(100, u'n'));
    EXPECT_EQ(Printout(u"two\r\nlines"_s, kStandardFont).Document().name, u"two lines"_s);
}

TEST(Printout, ALineThatNoLongerFitsTheSheetStartsANewPage)
{
    Printout printout = Prepared();
    for (int line = 2; line <= kSheetLines + 1; ++line) {
        EXPECT_EQ(printout.HasRoomFor(1), line <= kSheetLines) << line;
        printout.PrintLine(QString::number(line));
    }
    EXPECT_EQ(printout.PageNumber(), 2);
    EXPECT_EQ(PageLines(printout.Document(), 1).size(), kSheetLines);
    EXPECT_EQ(PageLines(printout.Document(), 2), QStringList{u"61"_s});
}

TEST(Printout, ANumberedPageEndsWithItsNumberAtColumn40)
{
    Printout printout = Prepared();
    printout.PrintLine(u"first"_s);
    printout.EndNumberedPage();
    printout.PrintLine(u"second"_s);
    printout.EndNumberedPage();
    printout.FinishPrinting();
    const QString margin(39, u' ');
    EXPECT_EQ(PageLines(printout.Document(), 1), (QStringList{{}, u"first"_s, {}, {}, margin + u"Page 1"_s}));
    EXPECT_EQ(PageLines(printout.Document(), 2),
              (QStringList{{}, u"second"_s, {}, {}, margin + u"Page 2"_s}));
    EXPECT_EQ(PageLines(printout.Document(), 3), QStringList{QString()}); // prepared by the report itself
}

TEST(Printout, TheFooterFitsBelowTheLastLineOfEitherFont)
{
    for (const qint16 font : {kStandardFont, kCourierNewFont}) {
        Printout printout = Prepared(font);
        while (printout.LinesOnPage() < printout.LinesPerPage()) {
            printout.PrintLine(u"x"_s);
        }
        printout.EndNumberedPage();
        printout.FinishPrinting();
        EXPECT_EQ(printout.Document().pages.size(), 2U);
        EXPECT_EQ(PageLines(printout.Document(), 1).last().trimmed(), u"Page 1"_s);
    }
}

TEST(Printout, EndingTheDocumentRightAfterAPageAddsNoBlankPage)
{
    Printout printout = Prepared();
    printout.PrintLine(u"only"_s);
    printout.EndPage();
    printout.FinishPrinting();
    EXPECT_EQ(printout.Document().pages.size(), 1U);
}

TEST(Printout, FinishingPrintsTheLineThatIsStillOpen)
{
    Printout printout = Prepared();
    printout.PrintAt(1, u"open"_s);
    EXPECT_EQ(printout.LinesOnPage(), 2);
    printout.FinishPrinting();
    EXPECT_EQ(PageLines(printout.Document(), 1), (QStringList{{}, u"open"_s}));
}

TEST(Printout, ChartsAreThePagesAfterThoseOfText)
{
    Printout printout = Prepared();
    printout.FinishPrinting();
    PrintedDocument document = printout.Document();
    EXPECT_EQ(PageCount(document), 1);
    document.charts = {{.title = u"one"_s}, {.title = u"two"_s}};
    EXPECT_EQ(PageCount(document), 3);
    EXPECT_EQ(ChartOnPage(document, 0), nullptr);
    ASSERT_NE(ChartOnPage(document, 1), nullptr);
    EXPECT_EQ(ChartOnPage(document, 1)->title, u"one"_s);
    ASSERT_NE(ChartOnPage(document, 2), nullptr);
    EXPECT_EQ(ChartOnPage(document, 2)->title, u"two"_s);
    EXPECT_EQ(ChartOnPage(document, 3), nullptr);
    EXPECT_EQ(ChartOnPage(document, -1), nullptr);
    EXPECT_FALSE(document == printout.Document());
}

TEST(PrintedDocument, FormattedTextTakesThePagesThatComeLast)
{
    PrintedDocument document;
    document.pages.resize(2);
    document.charts.resize(1);
    EXPECT_EQ(HtmlPageOnPage(document, 3), -1);
    document.html = u"<p>text</p>"_s;
    document.htmlPages = 2;
    EXPECT_EQ(PageCount(document), 5);
    EXPECT_EQ(HtmlPageOnPage(document, 2), -1);
    EXPECT_EQ(HtmlPageOnPage(document, 3), 0);
    EXPECT_EQ(HtmlPageOnPage(document, 4), 1);
    EXPECT_EQ(HtmlPageOnPage(document, 5), -1);
    EXPECT_EQ(HtmlPageOnPage(document, -1), -1);
}
