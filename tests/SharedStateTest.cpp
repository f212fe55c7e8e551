#include "app/LGLOBAL.h"
#include "app/SharedStatistics.h"
#include "app/StartUp.h"
#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A state that an earlier use has left full.
LGLOBAL UsedState()
{
    LGLOBAL shared;
    shared.database = MadeUpDatabase(10, 60, 20);
    shared.database.fileName = u"Before.Lto"_s;
    shared.database.modified = 1;
    shared.database.drawDays.at(8).carried = u"before"_s;
    shared.linesPerPage = 56;
    shared.topNumbersText.fill(u"before"_s);
    shared.scratchText.fill(u"before"_s);
    ComputeNumberStats(shared);
    SortNumberStats(shared);
    return shared;
}

void ExpectEmptyTables(const LGLOBAL& shared)
{
    EXPECT_EQ(shared.database.count, 0);
    EXPECT_EQ(shared.database.title, QString());
    EXPECT_EQ(shared.database.fileName, QString());
    EXPECT_EQ(shared.database.modified, 0);
    EXPECT_EQ(shared.database.drawDays, DrawDayTable{});
    EXPECT_EQ(shared.database.records.size(), 2003U);
    EXPECT_EQ(std::count(shared.database.records.begin(), shared.database.records.end(), DrawRecord{}), 2003);
    EXPECT_EQ(shared.NumberStats, NumberTable{});
    EXPECT_EQ(shared.sortedNumberStats, NumberTable{});
    for (std::size_t line = 0; line < 4; ++line) {
        EXPECT_EQ(shared.topNumbersText.at(line), QString());
        EXPECT_EQ(shared.scratchText.at(line), QString());
    }
    EXPECT_EQ(shared.linesPerPage, 53);
}

std::vector<int> Labels(const NumberTable& table, std::size_t count)
{
    std::vector<int> labels;
    for (std::size_t row = 1; row <= count; ++row) {
        labels.push_back(table.at(row).label);
    }
    return labels;
}

/// A state of this shape with one record for each list of numbers.
LGLOBAL StateWith(int picks, int highest, const std::vector<std::vector<int>>& draws)
{
    LGLOBAL shared;
    shared.database.columns = static_cast<qint16>(picks + 2);
    shared.database.highest = static_cast<qint16>(highest);
    QDate date(2004, 3, 10);
    for (const std::vector<int>& numbers : draws) {
        EXPECT_TRUE(shared.database.Append(date, numbers));
        date = date.addDays(3);
    }
    return shared;
}

} // namespace

TEST(SharedState, TheTablesHaveTheirFixedSizes)
{
    const LGLOBAL shared;
    EXPECT_EQ(shared.database.records.size(), 2003U);
    EXPECT_EQ(shared.database.drawDays.size(), 11U);
    EXPECT_EQ(shared.NumberStats.size(), 61U);
    EXPECT_EQ(shared.sortedNumberStats.size(), 61U);
    EXPECT_EQ(shared.scratchText.size(), 4U);
    EXPECT_EQ(shared.topNumbersText.size(), 4U);
    EXPECT_EQ(shared.database.records.at(1).drawn.size(), 10U);
}

TEST(SharedState, TheSingleValuesBeginIdle)
{
    const LGLOBAL shared;
    EXPECT_EQ(shared.fileDialogMode, 0);
    EXPECT_EQ(shared.chosenPath, QString());
    EXPECT_EQ(shared.messageNumber, 0);
    EXPECT_EQ(shared.questionNumber, 0);
    EXPECT_EQ(shared.entryEdited, 0);
    EXPECT_EQ(shared.layoutSize, 6810);
    EXPECT_EQ(shared.linesPerPage, 53);
    EXPECT_EQ(shared.graphCaller, 0);
    EXPECT_EQ(shared.gameSets, 0);
    EXPECT_EQ(shared.graphMode, HcdList::None);
    EXPECT_EQ(shared.hcdPicksMade, 0);
    EXPECT_EQ(shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(shared.investmentFileName, QString());
}

TEST(StartUp, WithoutASettingsFileTheShapeIsSixOfFortyNine)
{
    const CurrentTemporaryFolder here;
    LGLOBAL shared;
    InitialiseSharedState(shared, here.Path());
    EXPECT_EQ(shared.database.columns, 8);
    EXPECT_EQ(shared.database.highest, 49);
    EXPECT_EQ(shared.settings, AppSettings{});
    ExpectEmptyTables(shared);
}

TEST(StartUp, TheProgramFolderBecomesTheCurrentOneBeforeTheSettingsAreRead)
{
    const CurrentTemporaryFolder here;
    Place(here.FilePath(u"Personal.Lot"_s), "0,2,20,2,\"wrong\",\"Wrong folder\"\r\n");
    const QTemporaryDir program;
    Place(program.filePath(u"Personal.Lot"_s), "1,5,35,3,\"kr\",\"Ann\"\r\n");
    LGLOBAL shared;
    InitialiseSharedState(shared, program.path());
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(program.path()).canonicalPath());
    EXPECT_EQ(shared.settings, (AppSettings{1, 5, 35, 3, u"kr"_s, u"Ann"_s}));
    EXPECT_EQ(shared.database.columns, 7);
    EXPECT_EQ(shared.database.highest, 35);
    ExpectEmptyTables(shared);
}

TEST(StartUp, EverythingAnEarlierUseLeftIsGone)
{
    const CurrentTemporaryFolder here;
    LGLOBAL shared = UsedState();
    ASSERT_NE(shared.NumberStats, NumberTable{});
    InitialiseSharedState(shared, here.Path());
    EXPECT_EQ(shared.database.Shape(), (LotteryShape{6, 49}));
    ExpectEmptyTables(shared);
}

TEST(StartUp, ValuesOutOfRangeAreReplacedBeforeTheyBecomeTheShape)
{
    const CurrentTemporaryFolder here;
    Place(here.FilePath(u"Personal.Lot"_s), "0,12,75,0,\"\",\"Ann\"\r\n");
    LGLOBAL shared;
    InitialiseSharedState(shared, here.Path());
    EXPECT_EQ(shared.settings, (AppSettings{0, 6, 49, 1, u"$"_s, u"Ann"_s}));
    EXPECT_EQ(shared.database.columns, 8);
    EXPECT_EQ(shared.database.highest, 49);
}

TEST(StartUp, ADamagedSettingsFileGivesTheShapeOfTheDefaults)
{
    const CurrentTemporaryFolder here;
    Place(here.FilePath(u"Personal.Lot"_s), "0,5,35,3,\"kr\"");
    LGLOBAL shared = UsedState();
    InitialiseSharedState(shared, here.Path());
    EXPECT_EQ(shared.database.columns, 8);
    EXPECT_EQ(shared.database.highest, 49);
}

TEST(StartUp, AProgramFolderThatIsNotThereLeavesTheCurrentFolderAndTheDefaults)
{
    const CurrentTemporaryFolder here;
    LGLOBAL shared;
    InitialiseSharedState(shared, here.FilePath(u"none"_s));
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(here.Path()).canonicalPath());
    EXPECT_EQ(shared.database.Shape(), (LotteryShape{6, 49}));
    ExpectEmptyTables(shared);
}

TEST(SharedStatistics, AnEmptyDatabaseCountsNothingUnderEitherSwitch)
{
    LGLOBAL shared = StateWith(6, 49, {});
    for (const CountMode mode : {CountMode::TimesDrawn, CountMode::SinceLastDrawn}) {
        shared.WhichCnt = mode;
        ComputeNumberStats(shared);
        SortNumberStats(shared);
        EXPECT_EQ(shared.NumberStats, NumberTable{});
        for (int number = 1; number <= 49; ++number) {
            EXPECT_EQ(shared.sortedNumberStats.at(static_cast<std::size_t>(number)),
                      (NumberCount{static_cast<qint16>(number), 0}));
        }
        EXPECT_EQ(shared.sortedNumberStats.at(50), NumberCount{});
    }
}

TEST(SharedStatistics, TheSwitchSaysWhatIsCounted)
{
    LGLOBAL shared = StateWith(6, 49, {{3, 9, 17, 25, 33, 41}});
    ComputeNumberStats(shared);
    EXPECT_EQ(shared.NumberStats.at(9), (NumberCount{9, 1}));
    EXPECT_EQ(shared.NumberStats.at(10), (NumberCount{0, 0}));
    shared.WhichCnt = CountMode::SinceLastDrawn;
    ComputeNumberStats(shared);
    EXPECT_EQ(shared.NumberStats.at(9), (NumberCount{9, 0}));
    EXPECT_EQ(shared.NumberStats.at(10), (NumberCount{0, 1}))
        << "the label is written only for a number that was found";
    EXPECT_EQ(shared.NumberStats.at(50), NumberCount{}) << "above the highest number";
}

TEST(SharedStatistics, ANumberFoundOnlyInTheFirstOfAHundredDrawsIsNinetyNineDrawsOld)
{
    std::vector<std::vector<int>> draws(100, {1});
    draws.at(0) = {7};
    LGLOBAL shared = StateWith(1, 9, draws);
    shared.WhichCnt = CountMode::SinceLastDrawn;
    ComputeNumberStats(shared);
    EXPECT_EQ(shared.NumberStats.at(7).value, 99);
    EXPECT_EQ(shared.NumberStats.at(8).value, 100);
    EXPECT_EQ(shared.NumberStats.at(1).value, 0);
}

TEST(SharedStatistics, ComputingReplacesWhatWasThere)
{
    LGLOBAL shared = StateWith(2, 9, {{1, 1}, {1, 2}});
    ComputeNumberStats(shared);
    ComputeNumberStats(shared);
    EXPECT_EQ(shared.NumberStats.at(1).value, 3) << "a number that stands twice in a record counts twice";
    shared.database.count = 1;
    ComputeNumberStats(shared);
    EXPECT_EQ(shared.NumberStats.at(2), NumberCount{});
}

TEST(SharedStatistics, SortingPutsTheHighestValueFirstAndTheLowerNumberBefore)
{
    LGLOBAL shared = StateWith(1, 4, {});
    shared.NumberStats = {NumberCount{}, {1, 5}, {2, 9}, {3, 9}, {4, 2}};
    SortNumberStats(shared);
    EXPECT_EQ(Labels(shared.sortedNumberStats, 4), (std::vector<int>{2, 3, 1, 4}));
    EXPECT_EQ(shared.sortedNumberStats.at(1).value, 9);
    EXPECT_EQ(shared.NumberStats.at(1), (NumberCount{1, 5})) << "the unsorted table stays";
}

TEST(SharedStatistics, SortModeTenLeavesTheNumbersInTheirOrder)
{
    LGLOBAL shared = StateWith(1, 4, {});
    shared.NumberStats = {NumberCount{}, {1, 5}, {0, 9}, {3, 9}, {4, 2}};
    shared.sortMode = 10;
    SortNumberStats(shared);
    EXPECT_EQ(Labels(shared.sortedNumberStats, 5), (std::vector<int>{1, 2, 3, 4, 0}));
    EXPECT_EQ(shared.sortedNumberStats.at(2).value, 9);
    shared.sortMode = 1;
    SortNumberStats(shared);
    EXPECT_EQ(Labels(shared.sortedNumberStats, 4), (std::vector<int>{2, 3, 1, 4})) << "another form's mode";
}

TEST(SharedStatistics, OnlyNumbersUpToTheHighestAreSorted)
{
    LGLOBAL shared = StateWith(1, 1, {});
    shared.NumberStats = {NumberCount{}, {1, 5}, {2, 9}};
    SortNumberStats(shared);
    EXPECT_EQ(shared.sortedNumberStats.at(1), (NumberCount{1, 5}));
    EXPECT_EQ(shared.sortedNumberStats.at(2), NumberCount{});
}

TEST(SharedStatistics, AShapeNoTableHasIsHeldToTheTables)
{
    for (const qint16 shape : {qint16{32767}, qint16{-32768}, qint16{0}}) {
        LGLOBAL shared = StateWith(6, 49, {{1, 2, 3, 4, 5, 60}});
        shared.database.columns = shape;
        shared.database.highest = shape;
        ComputeNumberStats(shared);
        SortNumberStats(shared);
        EXPECT_EQ(shared.NumberStats.at(1).value, 1);
        EXPECT_EQ(shared.NumberStats.at(60).value, shape > 0 ? 1 : 0);
        EXPECT_EQ(shared.sortedNumberStats.at(1), (NumberCount{1, 1}));
    }
}
