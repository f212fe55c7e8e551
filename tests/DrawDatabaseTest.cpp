#include "app/DrawDatabase.h"

#include "tests/QtPrinters.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <vector>

using namespace Qt::StringLiterals;

// Beside LotteryShape, where GoogleTest looks for it.
static void PrintTo(const LotteryShape& shape, std::ostream* out)
{
    *out << shape.picks << "/" << shape.highest;
}

namespace {

const QDate kDay(2024, 3, 5);

std::vector<DrawRecord> EmptyRecords()
{
    return std::vector<DrawRecord>(2003);
}

DrawDatabase FilledDatabase()
{
    DrawDatabase database;
    database.columns = 8;
    database.highest = 49;
    database.title = u"Lotto 6/49"_s;
    database.fileName = u"Lotto.Lto"_s;
    database.modified = 1;
    database.drawDays.at(0).carried = u"kept"_s;
    database.CheckDay(4, true);
    EXPECT_TRUE(database.Append(kDay, {1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(database.Append(kDay.addDays(7), {7, 8, 9, 10, 11, 12}));
    return database;
}

} // namespace

TEST(DrawDatabase, StartsEmptyWithRoomForItsRecords)
{
    const DrawDatabase database;
    EXPECT_EQ(database.count, 0);
    EXPECT_EQ(database.columns, 0);
    EXPECT_EQ(database.highest, 0);
    EXPECT_EQ(database.title, u""_s);
    EXPECT_EQ(database.fileName, u""_s);
    EXPECT_EQ(database.modified, 0);
    EXPECT_EQ(database.records, EmptyRecords());
    EXPECT_EQ(database.drawDays, DrawDayTable{});
}

TEST(DrawDatabase, ItsBoundsAreThoseItsFilesHold)
{
    EXPECT_EQ(kRecordRows, 2003);
    EXPECT_EQ(kRecordCells, 12);
    EXPECT_EQ(kAnnouncedRecords, 2000);
    EXPECT_EQ(kMostPicks, 10);
    EXPECT_EQ(kMostNumbers, 60);
    EXPECT_EQ(DrawDayTable().size(), 11U);
    EXPECT_EQ(DrawRecord().drawn.size(), 10U);
}

TEST(DrawDatabase, TheShapeIsColumnsLessTwoAndTheHighestNumber)
{
    DrawDatabase database;
    for (int picks = 1; picks <= 10; ++picks) {
        for (int highest = 1; highest <= 60; ++highest) {
            database.columns = static_cast<qint16>(picks + 2);
            database.highest = static_cast<qint16>(highest);
            EXPECT_EQ(database.Shape(), (LotteryShape{picks, highest}));
        }
    }
}

TEST(DrawDatabase, AShapeOutOfRangeIsHeldToTheTables)
{
    struct ShapeRow {
        qint16 columns;
        qint16 highest;
        LotteryShape shape;
    };
    const std::vector<ShapeRow> rows{
        {0, 0, {1, 1}},           {2, 1, {1, 1}},      {-32768, -32768, {1, 1}}, {1, -1, {1, 1}},
        {3, 60, {1, 60}},         {12, 61, {10, 60}},  {13, 62, {10, 60}},       {14, 256, {10, 60}},
        {32767, 32767, {10, 60}}, {8, 32767, {6, 60}}, {-1, 49, {1, 49}},
    };
    for (const ShapeRow& row : rows) {
        DrawDatabase database;
        database.columns = row.columns;
        database.highest = row.highest;
        EXPECT_EQ(database.Shape(), row.shape) << row.columns << ", " << row.highest;
    }
}

TEST(DrawDatabase, EveryShapeAFileCanHoldStaysWithinTheTables)
{
    DrawDatabase database;
    for (int value = -32768; value <= 32767; ++value) {
        database.columns = static_cast<qint16>(value);
        database.highest = static_cast<qint16>(value);
        const int picks = std::max(1, std::min(10, value - 2));
        const int highest = std::max(1, std::min(60, value));
        ASSERT_EQ(database.Shape(), (LotteryShape{picks, highest})) << value;
    }
}

TEST(DrawDatabase, ACheckedDayHoldsItsOwnNumberAndAClearedOneZero)
{
    DrawDatabase database;
    for (int weekday = 1; weekday <= 7; ++weekday) {
        const auto row = static_cast<std::size_t>(weekday);
        database.CheckDay(weekday, true);
        EXPECT_EQ(database.drawDays.at(row).weekday, Cell{weekday});
        database.CheckDay(weekday, false);
        EXPECT_EQ(database.drawDays.at(row).weekday, Cell{0});
        database.CheckDay(weekday, true);
        EXPECT_EQ(database.drawDays.at(row).weekday, Cell{weekday});
    }
    EXPECT_EQ(database.CheckedDays(), (DrawDays{false, true, true, true, true, true, true, true}));
}

TEST(DrawDatabase, CheckingADayLeavesTheCarriedCellsAndOtherRowsAlone)
{
    DrawDatabase database;
    for (std::size_t row = 0; row < database.drawDays.size(); ++row) {
        database.drawDays.at(row) = {Cell{static_cast<int>(row) + 100}, Cell{}};
    }
    DrawDayTable expected = database.drawDays;
    expected.at(4).weekday = 4;
    database.CheckDay(4, true);
    EXPECT_EQ(database.drawDays, expected);
}

TEST(DrawDatabase, OnlySundayToSaturdayCanBeChecked)
{
    DrawDatabase database;
    for (const int weekday :
         {0, 8, 9, 10, 11, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        database.CheckDay(weekday, true);
        EXPECT_EQ(database.drawDays, DrawDayTable{}) << weekday;
        EXPECT_EQ(database.CheckedDays(), DrawDays{}) << weekday;
    }
}

TEST(DrawDatabase, ADrawDayIsAnyEntryWithAValueOtherThanZero)
{
    struct DayRow {
        Cell weekday;
        bool checked;
    };
    const std::vector<DayRow> rows{
        {Cell{}, false},       {Cell{0}, false},        {Cell{0.0}, false}, {Cell{u""_s}, false},
        {Cell{u"0"_s}, false}, {Cell{u"Wed"_s}, false}, {Cell{4}, true},    {Cell{4.0}, true},
        {Cell{u"4"_s}, true},  {Cell{1}, true},         {Cell{-1}, true},   {Cell{0.5}, true},
    };
    for (const DayRow& row : rows) {
        DrawDatabase database;
        database.drawDays.at(4).weekday = row.weekday;
        DrawDays expected{};
        expected.at(4) = row.checked;
        EXPECT_EQ(database.CheckedDays(), expected) << testing::PrintToString(row.weekday);
    }
}

TEST(DrawDatabase, CarriedRowsAndCellsAreNoDrawDays)
{
    DrawDatabase database;
    for (DrawDay& day : database.drawDays) {
        day.carried = 3;
    }
    for (const std::size_t row : {0U, 8U, 9U, 10U}) {
        database.drawDays.at(row).weekday = 3;
    }
    EXPECT_EQ(database.CheckedDays(), DrawDays{});
}

TEST(DrawDatabase, ARecordIsWrittenBehindTheLastAndNumbered)
{
    DrawDatabase database;
    ASSERT_TRUE(database.Append(kDay, {3, 9, 17, 25, 33, 41}));
    ASSERT_TRUE(database.Append(u"some day"_s, {1, 2}));
    EXPECT_EQ(database.count, 2);
    EXPECT_EQ(database.records.at(0), DrawRecord{});
    EXPECT_EQ(database.records.at(1),
              (DrawRecord{1, kDay, {3, 9, 17, 25, 33, 41, Cell{}, Cell{}, Cell{}, Cell{}}}));
    EXPECT_EQ(database.records.at(2), (DrawRecord{2, u"some day"_s, {1, 2}}));
    EXPECT_EQ(database.records.at(3), DrawRecord{});
}

TEST(DrawDatabase, ARecordTakesTenNumbersAtMost)
{
    DrawDatabase database;
    ASSERT_TRUE(database.Append(kDay, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(database.records.at(1), (DrawRecord{1, kDay, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}));
    ASSERT_TRUE(database.Append(kDay, {}));
    EXPECT_EQ(database.records.at(2), (DrawRecord{2, kDay, {}}));
}

TEST(DrawDatabase, ARecordKeepsNothingOfWhatStoodInItsRow)
{
    DrawDatabase database;
    database.records.at(1) = {99, u"old"_s, {51, 52, 53, 54, 55, 56, 57, 58, 59, 60}};
    ASSERT_TRUE(database.Append(kDay, {7}));
    EXPECT_EQ(database.records.at(1), (DrawRecord{1, kDay, {7}}));
}

TEST(DrawDatabase, AppendingLeavesTheUnsavedMarkAndTheShapeAlone)
{
    DrawDatabase database;
    database.columns = 3;
    database.highest = 9;
    ASSERT_TRUE(database.Append(kDay, {7}));
    EXPECT_EQ(database.modified, 0);
    EXPECT_EQ(database.columns, 3);
    EXPECT_EQ(database.highest, 9);
}

TEST(DrawDatabase, TheTableTakes2002RecordsAndRefusesTheNextUnchanged)
{
    DrawDatabase database;
    for (int number = 1; number <= 2002; ++number) {
        ASSERT_TRUE(database.Append(kDay, {number % 60 + 1}));
        ASSERT_EQ(database.records.at(static_cast<std::size_t>(number)).number, Cell{number});
    }
    const std::vector<DrawRecord> full = database.records;
    EXPECT_FALSE(database.Append(kDay, {7}));
    EXPECT_EQ(database.count, 2002);
    EXPECT_EQ(database.records, full);
}

TEST(DrawDatabase, ACountOutsideTheTableTakesNoRecord)
{
    for (const qint16 count : {qint16{-1}, qint16{-32768}, qint16{2003}, qint16{32767}}) {
        DrawDatabase database;
        database.count = count;
        EXPECT_FALSE(database.Append(kDay, {7}));
        EXPECT_EQ(database.count, count);
        EXPECT_EQ(database.records, EmptyRecords());
    }
}

TEST(DrawDatabase, EmptyingKeepsOnlyTheShape)
{
    DrawDatabase database = FilledDatabase();
    database.Empty();
    EXPECT_EQ(database.count, 0);
    EXPECT_EQ(database.title, u""_s);
    EXPECT_EQ(database.fileName, u""_s);
    EXPECT_EQ(database.records, EmptyRecords());
    EXPECT_EQ(database.drawDays, DrawDayTable{});
    EXPECT_EQ(database.Shape(), (LotteryShape{6, 49}));
    EXPECT_EQ(database.columns, 8);
}

TEST(DrawDatabase, ACopyIsAValueOfItsOwn)
{
    const DrawDatabase original = FilledDatabase();
    DrawDatabase copy = original;
    EXPECT_EQ(copy.records, original.records);
    copy.records.at(1).drawn.at(0) = 60;
    copy.CheckDay(1, true);
    EXPECT_EQ(original.records.at(1).drawn.at(0), Cell{1});
    EXPECT_EQ(original.drawDays.at(1).weekday, Cell{});
}

TEST(Cell, ShowsItselfAsText)
{
    struct TextRow {
        Cell cell;
        QString text;
    };
    const std::vector<TextRow> rows{
        {Cell{}, u""_s},
        {Cell{0}, u"0"_s},
        {Cell{57}, u"57"_s},
        {Cell{-3}, u"-3"_s},
        {Cell{std::numeric_limits<int>::max()}, u"2147483647"_s},
        {Cell{7.0}, u"7"_s},
        {Cell{7.5}, u"7.5"_s},
        {Cell{0.1}, u"0.1"_s},
        {Cell{-0.25}, u"-0.25"_s},
        {Cell{u"Lotto 6/49"_s}, u"Lotto 6/49"_s},
        {Cell{u" 7 "_s}, u" 7 "_s},
        {Cell{u""_s}, u""_s},
        {Cell{kDay}, u"2024-03-05"_s},
        {Cell{QDate(1950, 12, 31)}, u"1950-12-31"_s},
        {Cell{QDate()}, u""_s},
    };
    for (const TextRow& row : rows) {
        EXPECT_EQ(CellText(row.cell), row.text);
    }
}

TEST(Cell, HasTheNumericValueOfItsText)
{
    struct NumberRow {
        Cell cell;
        double number;
    };
    const std::vector<NumberRow> rows{
        {Cell{}, 0},        {Cell{57}, 57},          {Cell{-3}, -3},       {Cell{7.5}, 7.5},
        {Cell{u"7"_s}, 7},  {Cell{u" 7.5x"_s}, 7.5}, {Cell{u"x7"_s}, 0},   {Cell{u""_s}, 0},
        {Cell{kDay}, 2024}, {Cell{QDate()}, 0},      {Cell{1e300}, 1e300}, {Cell{0.1}, 0.1},
    };
    for (const NumberRow& row : rows) {
        EXPECT_EQ(CellNumber(row.cell), row.number) << testing::PrintToString(row.cell);
    }
}

TEST(Cell, HoldsANumberOnlyAsANumber)
{
    EXPECT_TRUE(CellHolds(Cell{7}, 7));
    EXPECT_TRUE(CellHolds(Cell{7.0}, 7));
    EXPECT_TRUE(CellHolds(Cell{0}, 0));
    EXPECT_FALSE(CellHolds(Cell{7}, 8));
    EXPECT_FALSE(CellHolds(Cell{7.5}, 7));
    EXPECT_FALSE(CellHolds(Cell{7.5}, 8));
    EXPECT_FALSE(CellHolds(Cell{u"7"_s}, 7));
    EXPECT_FALSE(CellHolds(Cell{}, 0));
    EXPECT_FALSE(CellHolds(Cell{u""_s}, 0));
    EXPECT_FALSE(CellHolds(Cell{kDay}, 2024));
    EXPECT_FALSE(CellHolds(Cell{std::numeric_limits<double>::quiet_NaN()}, 0));
}

TEST(Cell, IsADayWhenItHoldsOneOrATextThatReadsAsOne)
{
    const QLocale american(u"en_US"_s);
    const QLocale german(u"de_DE"_s);
    EXPECT_EQ(CellDate(Cell{kDay}, american), std::optional<QDate>(kDay));
    EXPECT_EQ(CellDate(Cell{u"3/5/2024"_s}, american), std::optional<QDate>(kDay));
    EXPECT_EQ(CellDate(Cell{u"5.3.2024"_s}, german), std::optional<QDate>(kDay));
    EXPECT_EQ(CellDate(Cell{u"2024-03-05"_s}, german), std::optional<QDate>(kDay));
    EXPECT_EQ(CellDate(Cell{QDate()}, american), std::nullopt);
    EXPECT_EQ(CellDate(Cell{}, american), std::nullopt);
    EXPECT_EQ(CellDate(Cell{u""_s}, american), std::nullopt);
    EXPECT_EQ(CellDate(Cell{u"some day"_s}, american), std::nullopt);
    EXPECT_EQ(CellDate(Cell{20240305}, american), std::nullopt);
    EXPECT_EQ(CellDate(Cell{2024.0}, american), std::nullopt);
}
