#include "picks/WinnerReport.h"

#include "picks/WinnersHelp.h"
#include "tests/PrintedPages.h"
#include "tests/QtPrinters.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLinesAboveResults = 14;

/// A search and what it found, printed as the form does.
struct Report {
    explicit Report(int picks) : search{.title = u"Lotto 6/49"_s, .picks = picks, .query = {}}
    {
        database.columns = static_cast<qint16>(picks + 2);
        database.highest = 49;
    }

    /// Draws every four days from 4 January 1995.
    void Draw(const std::vector<int>& numbers)
    {
        database.Append(QDate(1995, 1, 4).addDays(4LL * database.count), numbers);
    }

    void Ask(const std::vector<int>& numbers, int minimum)
    {
        std::copy(numbers.begin(), numbers.end(), search.query.yourNumbers.begin());
        search.query.minimum = minimum;
        search.matchCount = static_cast<qint16>(ListWinners(database, search.query, results));
    }

    PrintedDocument Printed(qint16 font = kStandardFont) const
    {
        Printout printout(u"Matching Numbers"_s, font);
        printout.PreparePrinter();
        PrintWinners(printout, search, results, locale);
        printout.FinishPrinting();
        return printout.Document();
    }

    DrawDatabase database;
    WinnerSearch search;
    std::vector<DrawRecord> results;
    QLocale locale{QLocale::English, QLocale::UnitedStates};
};

/// So many draws of six, each with the 6 somewhere.
Report ManyWinners(int draws)
{
    Report report(6);
    for (int draw = 0; draw < draws; ++draw) {
        std::vector<int> numbers{41, 42, 43, 44, 45, 46};
        numbers.at(static_cast<std::size_t>(draw % 6)) = 6;
        report.Draw(numbers);
    }
    report.Ask({6}, 1);
    return report;
}

TEST(WinnerReport, WhatWasFoundIsSaidInASentence)
{
    Report report(6);
    report.Ask({6, 0, 12}, 2);
    EXPECT_EQ(FoundText(report.search), u"No draw holds at least 2 of these numbers: 6, 12."_s);
    report.Draw({6, 12, 30, 44, 5, 49});
    report.Draw({6, 13, 30, 44, 5, 49});
    report.Ask({6, 0, 12}, 2);
    EXPECT_EQ(FoundText(report.search), u"1 draw holds at least 2 of these numbers: 6, 12."_s);
    report.Ask({6, 0, 0}, 1);
    EXPECT_EQ(FoundText(report.search), u"2 draws hold at least 1 of these numbers: 6."_s);
}

TEST(WinnerReport, SixPicksPrintEachMatchUnderItsPosition)
{
    Report report(6);
    report.Draw({6, 12, 30, 44, 5, 49});
    report.Draw({1, 2, 3, 4, 5, 7});
    report.Draw({49, 44, 8, 12, 6, 30});
    report.Draw({20, 6, 21, 22, 12, 23});
    report.Ask({6, 0, 12, 30, 44, 49}, 2);
    ExpectGolden(report.Printed(), u"winners-6.txt"_s);
}

TEST(WinnerReport, OnePickPrintsOneColumn)
{
    Report report(1);
    report.database.title = report.search.title = u"Bonus"_s;
    report.Draw({7});
    report.Draw({8});
    report.Draw({7});
    report.Ask({7}, 1);
    ExpectGolden(report.Printed(), u"winners-1.txt"_s);
}

TEST(WinnerReport, TenPicksFitThePaper)
{
    Report report(10);
    report.Draw({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    report.Draw({40, 41, 42, 43, 44, 45, 46, 47, 48, 49});
    report.Draw({49, 1, 48, 2, 47, 3, 46, 4, 45, 5});
    report.Ask({1, 2, 3, 4, 5, 45, 46, 47, 48, 49}, 5);
    ExpectGolden(report.Printed(), u"winners-10.txt"_s);
}

TEST(WinnerReport, SeveralPagesRepeatTheirHeadingsAndAreNumbered)
{
    ExpectGolden(ManyWinners(130).Printed(), u"winners-pages.txt"_s);
}

TEST(WinnerReport, AFullDatabaseIsPrintedToItsLastDrawInBothFonts)
{
    for (const qint16 font : {qint16(kStandardFont), qint16(kCourierNewFont)}) {
        const PrintedDocument document = ManyWinners(2001).Printed(font);
        int draws = 0;
        for (int page = 1; page <= int(document.pages.size()); ++page) {
            const QStringList lines = PageLines(document, page);
            for (const QString& line : lines) {
                draws += line.contains(u"/19"_s) || line.contains(u"/20"_s) ? 1 : 0;
            }
            if (page < int(document.pages.size())) {
                EXPECT_EQ(lines.size(), (font == kStandardFont ? 53 : 56) + 3) << page;
                EXPECT_EQ(lines.last().trimmed(), u"Page %1"_s.arg(page));
            }
        }
        EXPECT_EQ(draws, 2001);
        EXPECT_EQ(PageLines(document, 1).at(kLinesAboveResults).trimmed().left(4), u"2001"_s);
        EXPECT_EQ(PageLines(document, int(document.pages.size())).last().left(5), u"    1"_s);
    }
}

TEST(WinnerReport, APageThatIsJustFullIsNotFollowedByAnEmptyOne)
{
    constexpr int kResultsOnFirstPage = 53 - kLinesAboveResults;
    EXPECT_EQ(ManyWinners(kResultsOnFirstPage).Printed().pages.size(), 1U);
    EXPECT_EQ(ManyWinners(kResultsOnFirstPage + 1).Printed().pages.size(), 2U);
}

TEST(WinnerReport, ADateThatIsNoDatePrintsItsTextAsFarAsTheNumbersLeaveRoom)
{
    Report report = ManyWinners(2);
    report.results.at(2).date = u"some day"_s;
    report.results.at(1).date = u"the first Saturday of the year"_s;
    const QStringList lines = PageLines(report.Printed(), 1);
    EXPECT_EQ(lines.at(kLinesAboveResults), u"    2  some day"_s.leftJustified(33) + u'6');
    EXPECT_EQ(lines.at(kLinesAboveResults + 1), u"    1  the first Sat"_s.leftJustified(28) + u'6');
}

TEST(WinnerReport, ALongDateOfTheLocaleLeavesTheNumbersInPlace)
{
    Report report = ManyWinners(2);
    report.locale = QLocale(QLocale::Hungarian, QLocale::Hungary);
    report.results.at(2).date = QDate(1995, 12, 28);
    const QStringList lines = PageLines(report.Printed(), 1);
    EXPECT_EQ(lines.at(kLinesAboveResults), u"    2  1995. 12. 28."_s.leftJustified(33) + u'6');
}

TEST(WinnerReport, ATitleOfAnyLengthLeavesRoomForTheResults)
{
    Report report = ManyWinners(130);
    report.search.title = QString(100'000, u'x');
    const PrintedDocument document = report.Printed();
    EXPECT_EQ(document.pages.size(), 4U);
    EXPECT_EQ(PageLines(document, 1).join(QString()).count(u'x'), 600);
}

TEST(WinnerReport, PrintsTheDatesOfTheLocale)
{
    Report report = ManyWinners(1);
    report.locale = QLocale(QLocale::German, QLocale::Germany);
    EXPECT_TRUE(PageLines(report.Printed(), 1).at(kLinesAboveResults).contains(u"04.01.1995"_s));
}

TEST(WinnersHelp, TellsHowToUseTheCheck)
{
    const QStringList expected{
        u"How to use Check Winners"_s,
        u"Pre-programmed on startup to search through each record in the database for all numbers, with a minimum of 3, that match those entered in all the 'Enter all numbers to check'  green input boxes."_s,
        u"Each record in which a match is found will be displayed in the spreadsheet with the Database record number, date and the original position in which the numbers were drawn. 'No matches' message if none found. "_s,
        u"Example:"_s,
        u"Set the 'Search each record for minimum matches of'  to 1 and in the 'Enter all numbers to check'  input box enter 6 - leave other boxes empty. All records where 6 was drawn will be shown."_s,
    };
    EXPECT_EQ(WinnersHelpText().split(u'\n'), expected);
}

} // namespace
