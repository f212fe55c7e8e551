#include "database/NumberStatistics.h"

#include "tests/QtPrinters.h"

#include <QDate>
#include <QString>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

// Beside NumberCount, where GoogleTest looks for it.
static void PrintTo(const NumberCount& entry, std::ostream* out)
{
    *out << entry.label << ":" << entry.value;
}

namespace {

constexpr qint16 kSorted = 0;
constexpr int kRows = 61;

DrawDatabase DatabaseOf(int picks, int highest)
{
    DrawDatabase database;
    database.columns = static_cast<qint16>(picks + 2);
    database.highest = static_cast<qint16>(highest);
    return database;
}

DrawDatabase DatabaseWith(int picks, int highest, const std::vector<std::vector<int>>& draws)
{
    DrawDatabase database = DatabaseOf(picks, highest);
    for (const std::vector<int>& draw : draws) {
        EXPECT_TRUE(database.Append(QDate(2024, 3, 5), draw));
    }
    return database;
}

NumberCount& Row(NumberTable& table, int row)
{
    return table.at(static_cast<std::size_t>(row));
}

const NumberCount& Row(const NumberTable& table, int row)
{
    return table.at(static_cast<std::size_t>(row));
}

/// Values of the numbers 1, 2, ... with labels no reader may rely on.
NumberTable UnsortedOf(const std::vector<int>& values)
{
    NumberTable table{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        table.at(i + 1) = {0, static_cast<qint16>(values.at(i))};
    }
    return table;
}

std::vector<int> Labels(const NumberTable& table, int highest)
{
    std::vector<int> labels;
    for (int row = 1; row <= highest; ++row) {
        labels.push_back(Row(table, row).label);
    }
    return labels;
}

std::vector<int> Values(const NumberTable& table, int highest)
{
    std::vector<int> values;
    for (int row = 1; row <= highest; ++row) {
        values.push_back(Row(table, row).value);
    }
    return values;
}

// The second implementations share nothing with the code under test: plain arrays counted from 1, while
// loops, and no early ways out.

bool HoldsNumber(const Cell& cell, int number)
{
    bool holds = false;
    if (std::holds_alternative<int>(cell)) {
        holds = std::get<int>(cell) == number;
    }
    if (std::holds_alternative<double>(cell)) {
        holds = std::get<double>(cell) == static_cast<double>(number);
    }
    return holds;
}

NumberTable CountOneByOne(const DrawDatabase& database, CountMode mode)
{
    int label[kRows] = {};
    int value[kRows] = {};
    const int picks = std::min(std::max(database.columns - 2, 1), 10);
    const int highest = std::min(std::max(int(database.highest), 1), 60);
    int record = 1;
    while (record <= database.count) {
        int place = 1;
        while (place <= picks) {
            int number = 1;
            while (number <= highest) {
                const DrawRecord& draw = database.records.at(static_cast<std::size_t>(record));
                if (HoldsNumber(draw.drawn.at(static_cast<std::size_t>(place - 1)), number)) {
                    label[number] = number;
                    value[number] =
                        mode == CountMode::TimesDrawn ? value[number] + 1 : database.count + 1 - record;
                }
                number = number + 1;
            }
            place = place + 1;
        }
        record = record + 1;
    }
    if (mode == CountMode::SinceLastDrawn) {
        int number = 1;
        while (number <= highest) {
            if (value[number] == 0) {
                value[number] = database.count + 1;
            }
            value[number] = value[number] - 1;
            number = number + 1;
        }
    }
    NumberTable table{};
    for (int number = 0; number < kRows; ++number) {
        Row(table, number) = {static_cast<qint16>(label[number]), static_cast<qint16>(value[number])};
    }
    return table;
}

struct SecondSort {
    int label[kRows] = {};
    int value[kRows] = {};
    int highest = 0;

    SecondSort(const NumberTable& unsorted, int last) : highest(last)
    {
        int number = 1;
        while (number <= highest) {
            label[number] = number;
            value[number] = Row(unsorted, number).value;
            number = number + 1;
        }
    }

    void Exchange(int a, int b)
    {
        const int heldLabel = label[a];
        const int heldValue = value[a];
        label[a] = label[b];
        value[a] = value[b];
        label[b] = heldLabel;
        value[b] = heldValue;
    }

    void GapPasses()
    {
        int gap = (highest - highest % 2) / 2;
        while (gap > 0) {
            int i = gap;
            while (i <= highest - 1) {
                bool going = true;
                int j = i - gap + 1;
                while (going && j >= 1) {
                    if (value[j] < value[j + gap]) {
                        Exchange(j, j + gap);
                        j = j - gap;
                    } else {
                        going = false;
                    }
                }
                i = i + 1;
            }
            gap = (gap - gap % 2) / 2;
        }
    }

    void TiePasses(int passes)
    {
        int pass = 1;
        while (pass <= passes) {
            int i = 1;
            while (i < highest) {
                if (value[i] == value[i + 1] && label[i] > label[i + 1]) {
                    Exchange(i, i + 1);
                }
                i = i + 1;
            }
            pass = pass + 1;
        }
    }

    [[nodiscard]] NumberTable Table() const
    {
        NumberTable table{};
        int row = 1;
        while (row <= highest) {
            Row(table, row) = {static_cast<qint16>(label[row]), static_cast<qint16>(value[row])};
            row = row + 1;
        }
        return table;
    }
};

NumberTable SortASecondWay(const NumberTable& unsorted, int highest, int tiePasses = 5)
{
    SecondSort sort(unsorted, highest);
    sort.GapPasses();
    sort.TiePasses(tiePasses);
    return sort.Table();
}

/// Highest value first and the lower number first among equals, without exception.
NumberTable SortFully(const NumberTable& unsorted, int highest)
{
    std::vector<NumberCount> rows;
    for (int number = 1; number <= highest; ++number) {
        rows.push_back({static_cast<qint16>(number), Row(unsorted, number).value});
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const NumberCount& a, const NumberCount& b) { return a.value > b.value; });
    NumberTable table{};
    std::copy(rows.begin(), rows.end(), table.begin() + 1);
    return table;
}

/// Random values low..high for every number, also those above the highest, and labels of no meaning.
NumberTable RandomTable(std::mt19937& random, int low, int high)
{
    std::uniform_int_distribution<int> value(low, high);
    NumberTable table{};
    for (NumberCount& entry : table) {
        entry = {static_cast<qint16>(value(random)), static_cast<qint16>(value(random))};
    }
    return table;
}

Cell RandomCell(std::mt19937& random, int highest)
{
    const int number = std::uniform_int_distribution<int>(1, std::clamp(highest, 1, 60))(random);
    switch (std::uniform_int_distribution<int>(0, 19)(random)) {
    case 0:
        return {};
    case 1:
        return 0;
    case 2:
        return -number;
    case 3:
        return std::clamp(highest, 1, 60) + number; // above the highest, up to 120
    case 4:
        return number + 0.5;
    case 5:
        return number * 1e9;
    case 6:
        return std::numeric_limits<double>::quiet_NaN();
    case 7:
        return QString::number(number);
    case 8:
        return QDate(2024, 3, 1 + number % 28);
    case 9:
        return std::numeric_limits<int>::max() - number;
    case 10:
    case 11:
    case 12:
        return static_cast<double>(number);
    default:
        return number;
    }
}

DrawDatabase RandomDatabase(std::mt19937& random, qint16 columns, qint16 highest, int count)
{
    DrawDatabase database;
    database.columns = columns;
    database.highest = highest;
    database.count = static_cast<qint16>(count);
    for (DrawRecord& record : database.records) { // rows above the count too: they must not be counted
        for (Cell& cell : record.drawn) {
            cell = RandomCell(random, highest);
        }
        if (std::uniform_int_distribution<int>(0, 3)(random) == 0) {
            record.drawn.at(1) = record.drawn.at(0);
        }
    }
    return database;
}

void ExpectBothCountsAgree(const DrawDatabase& database)
{
    for (const CountMode mode : {CountMode::TimesDrawn, CountMode::SinceLastDrawn}) {
        ASSERT_EQ(CountNumbers(database, mode), CountOneByOne(database, mode))
            << "columns " << database.columns << ", highest " << database.highest << ", count "
            << database.count;
    }
}

} // namespace

TEST(NumberStatistics, AnEmptyDatabaseCountsZeroForEveryNumber)
{
    const DrawDatabase database = DatabaseOf(6, 49);
    EXPECT_EQ(CountNumbers(database, CountMode::TimesDrawn), NumberTable{});
    EXPECT_EQ(CountNumbers(database, CountMode::SinceLastDrawn), NumberTable{});
}

TEST(NumberStatistics, AnEmptyDatabaseSortsToNumberOrder)
{
    const NumberTable sorted =
        SortNumbers(CountNumbers(DatabaseOf(6, 49), CountMode::SinceLastDrawn), 49, kSorted);
    for (int row = 0; row < kRows; ++row) {
        const qint16 label = row <= 49 ? static_cast<qint16>(row) : qint16{0};
        EXPECT_EQ(Row(sorted, row), (NumberCount{label, 0})) << row;
    }
}

TEST(NumberStatistics, OneRecordCountsItsSixNumbersOnce)
{
    const std::vector<int> drawn{3, 9, 17, 25, 33, 41};
    const DrawDatabase database = DatabaseWith(6, 49, {drawn});
    const NumberTable times = CountNumbers(database, CountMode::TimesDrawn);
    const NumberTable since = CountNumbers(database, CountMode::SinceLastDrawn);
    for (int number = 0; number < kRows; ++number) {
        const bool found = std::find(drawn.begin(), drawn.end(), number) != drawn.end();
        const auto label = static_cast<qint16>(found ? number : 0);
        const bool waiting = !found && number >= 1 && number <= 49;
        EXPECT_EQ(Row(times, number), (NumberCount{label, static_cast<qint16>(found ? 1 : 0)})) << number;
        EXPECT_EQ(Row(since, number), (NumberCount{label, static_cast<qint16>(waiting ? 1 : 0)})) << number;
    }
}

TEST(NumberStatistics, ANumberOfTheFirstOfAHundredRecordsWas99DrawsAgo)
{
    std::vector<std::vector<int>> draws(100, {2, 3});
    draws.front() = {1, 3};
    const NumberTable since = CountNumbers(DatabaseWith(2, 49, draws), CountMode::SinceLastDrawn);
    EXPECT_EQ(Row(since, 1), (NumberCount{1, 99}));
    EXPECT_EQ(Row(since, 2), (NumberCount{2, 0}));
    EXPECT_EQ(Row(since, 3), (NumberCount{3, 0}));
    EXPECT_EQ(Row(since, 4), (NumberCount{0, 100})); // never drawn: no label, all draws
}

TEST(NumberStatistics, TheLastRecordThatHoldsANumberDecidesHowLongItIsSince)
{
    const DrawDatabase database = DatabaseWith(1, 5, {{1}, {2}, {1}, {3}, {2}, {4}});
    const NumberTable since = CountNumbers(database, CountMode::SinceLastDrawn);
    EXPECT_EQ(Values(since, 5), (std::vector<int>{3, 1, 2, 0, 6}));
    EXPECT_EQ(Labels(since, 5), (std::vector<int>{1, 2, 3, 4, 0}));
}

TEST(NumberStatistics, ANumberTwiceInOneRecordCountsTwice)
{
    const DrawDatabase database = DatabaseWith(3, 9, {{5, 5, 1}, {5, 2, 2}});
    const NumberTable times = CountNumbers(database, CountMode::TimesDrawn);
    EXPECT_EQ(Row(times, 5).value, 3);
    EXPECT_EQ(Row(times, 2).value, 2);
    EXPECT_EQ(Row(times, 1).value, 1);
    EXPECT_EQ(Row(CountNumbers(database, CountMode::SinceLastDrawn), 5).value, 0);
}

TEST(NumberStatistics, OnlyANumericCellMatchesANumber)
{
    DrawDatabase database = DatabaseOf(10, 49);
    ASSERT_TRUE(database.Append({}, {}));
    database.records.at(1).drawn = {Cell{7}, Cell{8.0},  Cell{u"9"_s},
                                    Cell{},  Cell{10.5}, Cell{50},
                                    Cell{0}, Cell{-3},   Cell{QDate(2024, 3, 11)},
                                    Cell{}};
    const NumberTable times = CountNumbers(database, CountMode::TimesDrawn);
    NumberTable expected{};
    Row(expected, 7) = {7, 1};
    Row(expected, 8) = {8, 1};
    EXPECT_EQ(times, expected);
}

TEST(NumberStatistics, CellsBeyondThePicksAreNotCounted)
{
    DrawDatabase database = DatabaseWith(10, 9, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 9}});
    database.columns = 4;
    EXPECT_EQ(Values(CountNumbers(database, CountMode::TimesDrawn), 9),
              (std::vector<int>{1, 1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(NumberStatistics, RecordsAboveTheCountAreNotCounted)
{
    DrawDatabase database = DatabaseWith(1, 9, {{1}, {2}, {3}});
    database.records.at(0).drawn.at(0) = 9;
    database.count = 2;
    EXPECT_EQ(Values(CountNumbers(database, CountMode::TimesDrawn), 9),
              (std::vector<int>{1, 1, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Values(CountNumbers(database, CountMode::SinceLastDrawn), 9),
              (std::vector<int>{1, 0, 2, 2, 2, 2, 2, 2, 2}));
}

TEST(NumberStatistics, AFullTableOfOneNumberCountsEveryCell)
{
    DrawDatabase database = DatabaseOf(10, 60);
    while (database.Append(QDate(2024, 3, 5), std::vector<int>(10, 60))) {
    }
    ASSERT_EQ(database.count, 2002);
    EXPECT_EQ(Row(CountNumbers(database, CountMode::TimesDrawn), 60), (NumberCount{60, 20020}));
    const NumberTable since = CountNumbers(database, CountMode::SinceLastDrawn);
    EXPECT_EQ(Row(since, 60), (NumberCount{60, 0}));
    EXPECT_EQ(Row(since, 59), (NumberCount{0, 2002}));
}

TEST(NumberStatistics, CountsAgreeWithATripleLoopForEveryShapeAFileCanHold)
{
    std::mt19937 random(1);
    for (const int columns : {-32768, -1, 0, 1, 2, 3, 8, 11, 12, 13, 14, 32767}) {
        for (const int highest : {-32768, -1, 0, 1, 2, 49, 59, 60, 61, 62, 256, 32767}) {
            ExpectBothCountsAgree(
                RandomDatabase(random, static_cast<qint16>(columns), static_cast<qint16>(highest), 20));
        }
    }
}

TEST(NumberStatistics, CountsAgreeWithATripleLoopForEveryHighestAndPicks)
{
    std::mt19937 random(2);
    for (int highest = 1; highest <= 60; ++highest) {
        const int picks = 1 + highest % 10;
        const int count = std::uniform_int_distribution<int>(0, 60)(random);
        ExpectBothCountsAgree(
            RandomDatabase(random, static_cast<qint16>(picks + 2), static_cast<qint16>(highest), count));
    }
}

TEST(NumberStatistics, CountsAgreeWithATripleLoopUpToAFullTable)
{
    std::mt19937 random(3);
    for (const int count : {0, 1, 2, 10, 100, 1000, 1999, 2000, 2001, 2002}) {
        ExpectBothCountsAgree(RandomDatabase(random, 8, 49, count));
    }
    ExpectBothCountsAgree(RandomDatabase(random, 12, 60, 2002));
}

TEST(NumberStatistics, ThreeNumbersSortHighestValueFirstAndLowerNumberFirst)
{
    const NumberTable sorted = SortNumbers(UnsortedOf({5, 9, 9, 2}), 4, kSorted);
    EXPECT_EQ(Labels(sorted, 4), (std::vector<int>{2, 3, 1, 4}));
    EXPECT_EQ(Values(sorted, 4), (std::vector<int>{9, 9, 5, 2}));
}

TEST(NumberStatistics, ALotteryOfOneNumberHasNothingToSort)
{
    const NumberTable sorted = SortNumbers(UnsortedOf({5, 9}), 1, kSorted);
    NumberTable expected{};
    Row(expected, 1) = {1, 5};
    EXPECT_EQ(sorted, expected);
}

TEST(NumberStatistics, NumberOrderLeavesTheValuesWhereTheyStand)
{
    std::mt19937 random(4);
    for (int highest = 1; highest <= 60; ++highest) {
        const NumberTable unsorted = RandomTable(random, 0, 20);
        NumberTable expected{};
        for (int number = 1; number <= highest; ++number) {
            Row(expected, number) = {static_cast<qint16>(number), Row(unsorted, number).value};
        }
        EXPECT_EQ(SortNumbers(unsorted, highest, kNumberOrder), expected) << highest;
    }
    EXPECT_EQ(kNumberOrder, 10);
}

TEST(NumberStatistics, EveryOtherSortModeSorts)
{
    std::mt19937 random(5);
    const NumberTable unsorted = RandomTable(random, 0, 20);
    for (int mode = -32768; mode <= 32767; mode += mode > -20 && mode < 20 ? 1 : 97) {
        if (mode != 10) {
            ASSERT_EQ(SortNumbers(unsorted, 49, static_cast<qint16>(mode)), SortASecondWay(unsorted, 49))
                << mode;
        }
    }
}

TEST(NumberStatistics, AHighestOutsideOneToSixtyIsHeldToIt)
{
    std::mt19937 random(6);
    const NumberTable unsorted = RandomTable(random, 0, 20);
    for (const int highest : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(SortNumbers(unsorted, highest, kSorted), SortASecondWay(unsorted, 1)) << highest;
    }
    for (const int highest : {61, 62, 32767, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(SortNumbers(unsorted, highest, kSorted), SortASecondWay(unsorted, 60)) << highest;
    }
}

TEST(NumberStatistics, TheSortAgreesWithASecondImplementation)
{
    struct Spread {
        int low;
        int high;
    };
    std::mt19937 random(7);
    for (int highest = 1; highest <= 60; ++highest) {
        for (const Spread spread : {Spread{0, 0}, Spread{0, 1}, Spread{0, 2}, Spread{0, 5}, Spread{0, 20},
                                    Spread{0, 60}, Spread{0, 2002}, Spread{-32768, 32767}}) {
            for (int round = 0; round < 40; ++round) {
                const NumberTable unsorted = RandomTable(random, spread.low, spread.high);
                ASSERT_EQ(SortNumbers(unsorted, highest, kSorted), SortASecondWay(unsorted, highest))
                    << "highest " << highest << ", values to " << spread.high << ", round " << round;
            }
        }
    }
}

TEST(NumberStatistics, TheSortAgreesWithASecondImplementationOnOrderedTables)
{
    for (int highest = 1; highest <= 60; ++highest) {
        for (int step = 1; step <= 7; ++step) { // step numbers at a time share one value
            NumberTable ascending{};
            NumberTable descending{};
            NumberTable sawtooth{};
            for (int number = 0; number < kRows; ++number) {
                Row(ascending, number).value = static_cast<qint16>(number / step);
                Row(descending, number).value = static_cast<qint16>((kRows - number) / step);
                Row(sawtooth, number).value = static_cast<qint16>(number % step);
            }
            for (const NumberTable& unsorted : {ascending, descending, sawtooth}) {
                ASSERT_EQ(SortNumbers(unsorted, highest, kSorted), SortASecondWay(unsorted, highest))
                    << "highest " << highest << ", step " << step;
            }
        }
    }
}

TEST(NumberStatistics, EqualValuesStayInNumberOrder)
{
    for (int highest = 1; highest <= 60; ++highest) {
        const NumberTable sorted = SortNumbers(UnsortedOf(std::vector<int>(60, 7)), highest, kSorted);
        for (int row = 1; row <= highest; ++row) {
            ASSERT_EQ(Row(sorted, row), (NumberCount{static_cast<qint16>(row), 7})) << highest;
        }
    }
}

TEST(NumberStatistics, DifferentValuesAreSortedFully)
{
    std::mt19937 random(8);
    std::vector<int> values(60);
    for (int i = 0; i < 60; ++i) {
        values.at(static_cast<std::size_t>(i)) = i * 3;
    }
    for (int highest = 1; highest <= 60; ++highest) {
        for (int round = 0; round < 20; ++round) {
            std::shuffle(values.begin(), values.end(), random);
            const NumberTable unsorted = UnsortedOf(values);
            ASSERT_EQ(SortNumbers(unsorted, highest, kSorted), SortFully(unsorted, highest)) << highest;
        }
    }
}

TEST(NumberStatistics, ANumberMoreThanFivePlacesOutOfOrderStaysOutOfOrder)
{
    // The gap passes leave the nine numbers as 5 9 2 4 3 6 7 8 1: number 1 stands six places too far right.
    const NumberTable unsorted = UnsortedOf({0, 0, 0, 0, 1, 0, 0, 0, 1});
    EXPECT_EQ(Labels(SortASecondWay(unsorted, 9, 0), 9), (std::vector<int>{5, 9, 2, 4, 3, 6, 7, 8, 1}));

    const NumberTable sorted = SortNumbers(unsorted, 9, kSorted);
    EXPECT_EQ(Labels(sorted, 9), (std::vector<int>{5, 9, 2, 1, 3, 4, 6, 7, 8}));
    EXPECT_EQ(Values(sorted, 9), (std::vector<int>{1, 1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(NumberStatistics, ExactlyFivePassesAreMade)
{
    // Tables are counted on which four, five and six passes and a full sort all end differently.
    std::mt19937 random(9);
    int telling = 0;
    for (int round = 0; round < 2000; ++round) {
        const NumberTable unsorted = RandomTable(random, 0, 2);
        const NumberTable sorted = SortNumbers(unsorted, 49, kSorted);
        ASSERT_EQ(sorted, SortASecondWay(unsorted, 49, 5));
        const bool differs = sorted != SortASecondWay(unsorted, 49, 4) &&
                             sorted != SortASecondWay(unsorted, 49, 6) && sorted != SortFully(unsorted, 49);
        telling += differs ? 1 : 0;
    }
    EXPECT_GT(telling, 100);
}

TEST(NumberStatistics, TheSortedTableTakesNothingFromLabelsOrRowsOutsideTheLottery)
{
    NumberTable unsorted = UnsortedOf({1, 2, 3});
    const NumberTable plain = SortNumbers(unsorted, 3, kSorted);
    Row(unsorted, 0) = {77, 99};
    Row(unsorted, 1).label = 50;
    Row(unsorted, 4) = {4, 99};
    Row(unsorted, 60) = {60, 99};
    EXPECT_EQ(SortNumbers(unsorted, 3, kSorted), plain);
    EXPECT_EQ(Row(plain, 0), NumberCount{});
    EXPECT_EQ(Row(plain, 1), (NumberCount{3, 3}));
    EXPECT_EQ(Row(plain, 4), NumberCount{});
}
