#include "invest/InvestmentPrintout.h"

#include "invest/InvestmentCalculation.h"
#include "tests/PrintedPages.h"
#include "tests/Statements.h"

using namespace Qt::StringLiterals;

namespace {

PrintedDocument Printed(const InvestmentTable& rows, qint16 font = kStandardFont)
{
    const InvestmentStatement statement = CalculateStatement(rows).value_or(InvestmentStatement());
    Printout printout(u"Investment statement"_s, font);
    printout.PreparePrinter();
    PrintInvestmentStatement(printout, statement, u"Alex, Mine.inv, 11/18/2026"_s);
    printout.FinishPrinting();
    return printout.Document();
}

/// The line of the only page that holds the text.
PrintedLine LineWith(const PrintedDocument& document, const QString& text)
{
    for (const PrintedPage& page : document.pages) {
        for (const PrintedLine& line : page) {
            if (LineText(line).contains(text)) {
                return line;
            }
        }
    }
    ADD_FAILURE() << "no line with " << text.toStdString();
    return {};
}

} // namespace

TEST(InvestmentPrintout, IsAsItWasLastLookedAt)
{
    ExpectGolden(
        Printed(Rows(
            {Item(u"January"_s), Item(u"Tickets"_s, u"-12"_s), Item(u"Winnings"_s, u"1234.5"_s),
             Item(u"Sub Total"_s), Item(u" "_s),
             Item(u"A description that is longer than the forty-six characters of its column"_s, u"-0.5"_s),
             Item(u"Nothing gained"_s, u"0"_s), Item(u"sub total"_s)})),
        u"investment-statement.txt"_s);
}

TEST(InvestmentPrintout, BeginsWithItsHeadingAndColumnTitles)
{
    const QStringList lines = PageLines(Printed(NumberedRows(1)), 1);
    EXPECT_EQ(
        lines.mid(0, 8),
        QStringList({QString(), // of preparing the printer
                     QString(), u"       Alex, Mine.inv, 11/18/2026"_s,
                     QString(29, u' ') + u"INVESTMENT STATEMENT"_s, QString(),
                     u"       DESCRIPTION                                           AMOUNT"_s,
                     u"       ___________                                           ______"_s, QString()}));
}

TEST(InvestmentPrintout, AnItemStandsAtColumns8And56AndTheTotalOneToTheLeft)
{
    const PrintedDocument document = Printed(Rows({Item(u"Tickets"_s, u"-12.5"_s), Item(u"Note"_s)}));
    EXPECT_EQ(LineWith(document, u"Tickets"_s), (PrintedLine{{8, u"Tickets"_s}, {56, u"      -12.50"_s}}));
    EXPECT_EQ(LineWith(document, u"Note"_s), (PrintedLine{{8, u"Note"_s}}));
    EXPECT_EQ(LineWith(document, u"Total"_s), (PrintedLine{{8, u"Total"_s}, {55, u"      -12.50"_s}}));
    const QStringList lines = PageLines(document, 1);
    EXPECT_EQ(lines.at(lines.size() - 2), QString()) << "an empty line before the Total";
}

TEST(InvestmentPrintout, ADescriptionIsCutTo46Characters)
{
    const QString fits = u"1234567890123456789012345678901234567890123456"_s;
    const PrintedDocument document = Printed(Rows({Item(fits, u"1"_s), Item(u"x"_s + fits, u"2"_s)}));
    EXPECT_EQ(LineWith(document, u"1.00"_s).front().text, fits);
    EXPECT_EQ(LineWith(document, u"2.00"_s).front().text, u"x"_s + fits.chopped(1));
}

TEST(InvestmentPrintout, ATotalOfNoughtHasNoFigureBeforeItsPoint)
{
    EXPECT_EQ(LineWith(Printed(Rows({Item(u"Note"_s)})), u"Total"_s),
              (PrintedLine{{8, u"Total"_s}, {55, u"         .00"_s}}));
}

TEST(InvestmentPrintout, ALongAmountKeepsAllItsFigures)
{
    const PrintedDocument document =
        Printed(Rows({Item(u"Jackpot"_s, u"123456789.25"_s), Item(u"Larger"_s, u"-9999999999999.99"_s)}));
    EXPECT_EQ(LineWith(document, u"Jackpot"_s).back(), (PrintedText{56, u"123,456,789.25"_s}));
    EXPECT_TRUE(PagesText(document).contains(u"-9,999,999,999,999.9"_s));
    PagesText(Printed(Rows({Item(u"Most"_s, u"-922337203685477.5808"_s)}))); // stays on the paper
}

TEST(InvestmentPrintout, AFullStatementGoesOnUnderItsHeadingOnTheNextPages)
{
    for (const qint16 font : {kStandardFont, kCourierNewFont}) {
        const int linesPerPage = font == kCourierNewFont ? 56 : 53;
        constexpr int kHeadingLines = 8;
        const PrintedDocument document = Printed(NumberedRows(105), font);
        ASSERT_EQ(document.pages.size(), 3U);
        int row = 1;
        for (int page = 1; page <= 3; ++page) {
            const QStringList lines = PageLines(document, page);
            EXPECT_EQ(lines.mid(0, kHeadingLines), PageLines(document, 1).mid(0, kHeadingLines));
            const int onPage = std::min(linesPerPage - kHeadingLines, 105 - row + 1);
            for (int line = kHeadingLines; line < kHeadingLines + onPage; ++line) {
                EXPECT_TRUE(lines.at(line).startsWith(u"       Row %1 "_s.arg(row))) << row;
                ++row;
            }
            if (page < 3) {
                EXPECT_EQ(lines.at(linesPerPage + 2), QString(39, u' ') + u"Page %1"_s.arg(page));
            }
        }
        EXPECT_EQ(row, 106);
        EXPECT_EQ(PageLines(document, 3).back(), (u"       Total"_s.leftJustified(54) + u"    5,565.00"_s));
    }
}

TEST(InvestmentPrintout, AStatementThatJustFillsThePageKeepsItsTotalThere)
{
    const struct {
        qint16 font;
        int rows; ///< of the 53 or 56 lines, without the eight of the heading
    } pages[] = {{kStandardFont, 45}, {kCourierNewFont, 48}};
    for (const auto& page : pages) {
        const PrintedDocument document = Printed(NumberedRows(page.rows), page.font);
        ASSERT_EQ(document.pages.size(), 1U);
        const QStringList lines = PageLines(document, 1);
        EXPECT_TRUE(lines.back().startsWith(u"       Total"_s));
        EXPECT_TRUE(lines.at(lines.size() - 3).startsWith(u"       Row %1 "_s.arg(page.rows)));
        const PrintedDocument longer = Printed(NumberedRows(page.rows + 1), page.font);
        ASSERT_EQ(longer.pages.size(), 2U);
        EXPECT_TRUE(PageLines(longer, 2).at(8).startsWith(u"       Row %1 "_s.arg(page.rows + 1)));
    }
}
