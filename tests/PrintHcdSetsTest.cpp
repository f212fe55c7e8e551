#include "hotcold/PrintHcdSets.h"

#include "tests/PrintedPages.h"
#include "tests/QtPrinters.h"

using namespace Qt::StringLiterals;

namespace {

HcdCandidateTable Candidates()
{
    HcdCandidateTable candidates{};
    for (qint16 row = 1; row <= 30; ++row) {
        candidates.at(size_t(row)) = {qint16(row * 2 - 1), row};
    }
    return candidates;
}

PrintedDocument Report(int lastDraws, const HcdCounts& counts, const SetTable& table, int picks, int sets)
{
    Printout printout(u"Sets"_s, kStandardFont);
    printout.PreparePrinter();
    PrintHcdSets(printout, {.lastDraws = lastDraws, .counts = counts, .candidates = Candidates()}, table,
                 picks, sets);
    printout.FinishPrinting();
    return printout.Document();
}

} // namespace

TEST(PrintHcdSets, NamesThePeriodTheListsAndTheSets)
{
    SetTable table{};
    table.at(1) = {0, 1, 5, 21, 37, 41, 59};
    table.at(2) = {0, 3, 7, 23, 39, 0, 0};
    EXPECT_EQ(PageLines(Report(52, {2, 2, 2}, table, 6, 2), 1),
              (QStringList{{},
                           {},
                           {},
                           u"Picked from: Last 52 Draws"_s,
                           {},
                           u"Hot = 2       1   3   5   7   9  11  13  15  17  19"_s,
                           u"Cold = 2     21  23  25  27  29  31  33  35  37  39"_s,
                           u"Due = 2      41  43  45  47  49  51  53  55  57  59"_s,
                           {},
                           QString(30, u'_'),
                           u"      1    5   21   37   41   59"_s,
                           u"      3    7   23   39"_s,
                           QString(30, u'_'),
                           {},
                           {}}));
}

TEST(PrintHcdSets, ACountOfZeroIsPrintedAsZero)
{
    const QStringList lines = PageLines(Report(10, {0, 0, 3}, {}, 3, 0), 1);
    EXPECT_TRUE(lines.at(5).startsWith(u"Hot = 0 "_s));
    EXPECT_TRUE(lines.at(7).startsWith(u"Due = 3 "_s));
}

TEST(PrintHcdSets, ANumberStandsAtFiveTimesItsPlace)
{
    SetTable table{};
    table.at(1) = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    const PrintedDocument document = Report(2001, {4, 2, 4}, table, 10, 1);
    const PrintedLine& line = document.pages.at(0).at(10);
    ASSERT_EQ(line.size(), 10U);
    for (int place = 1; place <= 10; ++place) {
        EXPECT_EQ(line.at(size_t(place) - 1).column, place * 5);
    }
    EXPECT_EQ(PageLines(document, 1).at(3), u"Picked from: Last 2001 Draws"_s);
    EXPECT_EQ(PageLines(document, 1).at(9), QString(50, u'_')) << "as long as the sets are wide";
    EXPECT_EQ(PageLines(Report(52, {1, 0, 0}, table, 1, 1), 1).at(9), QString(5, u'_'));
}

TEST(PrintHcdSets, TenSetsOfTenFitOnePage)
{
    SetTable table{};
    for (auto& set : table) {
        set.fill(60);
    }
    EXPECT_EQ(Report(52, {4, 2, 4}, table, 10, 10).pages.size(), 1U);
}

TEST(PrintHcdSets, PrintsAsInItsGoldenFile)
{
    SetTable table{};
    for (qint16 row = 1; row <= 10; ++row) {
        for (qint16 place = 1; place <= 6; ++place) {
            table.at(size_t(row)).at(size_t(place)) = qint16((row * 7 + place * 11) % 49 + 1);
        }
    }
    ExpectGolden(Report(52, {2, 2, 2}, table, 6, 10), u"hot-cold-due-6.txt"_s);
}
