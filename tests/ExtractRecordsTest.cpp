#include "database/ExtractRecords.h"

#include "database/ExtractHelp.h"
#include "tests/StatePrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A 3/60 database; record r holds 60 - r % 7, r % 50 + 1 and 5 in this order, and more behind the picks.
DrawDatabase MadeUp(int count)
{
    DrawDatabase database;
    database.columns = 5;
    database.highest = 60;
    database.title = u"Mine"_s;
    database.fileName = u"Mine.Lto"_s;
    database.CheckDay(2, true);
    database.drawDays[9].carried = 4;
    for (int row = 1; row <= count; ++row) {
        database.Append(QDate(2004, 3, 1).addDays(row), {60 - row % 7, row % 50 + 1, 5, 9, 9, 9, 9, 9, 9, 9});
    }
    return database;
}

DrawRecord WithoutUnusedNumbers(DrawRecord record, int number)
{
    record.number = number;
    for (std::size_t k = 3; k < record.drawn.size(); ++k) {
        record.drawn[k] = Cell();
    }
    return record;
}

void ExpectRange(const DrawDatabase& database, const DrawDatabase& before, int low, int high)
{
    ASSERT_EQ(database.count, high - low + 1);
    ASSERT_EQ(database.records.size(), before.records.size());
    for (int row = 1; row <= database.count; ++row) {
        const auto source = static_cast<std::size_t>(low + row - 1);
        EXPECT_EQ(database.records[static_cast<std::size_t>(row)],
                  WithoutUnusedNumbers(before.records[source], row));
    }
    for (auto row = static_cast<std::size_t>(database.count) + 1; row < database.records.size(); ++row) {
        ASSERT_EQ(database.records[row], DrawRecord{}) << row;
    }
}

} // namespace

TEST(ExtractRecords, KeepsTheRangeWithBothItsEndsAndNumbersItAnew)
{
    const DrawDatabase before = MadeUp(20);
    DrawDatabase database = before;
    ExtractRecords(database, 4, 9);
    ExpectRange(database, before, 4, 9);
    EXPECT_EQ(std::get<QDate>(database.records[1].date), QDate(2004, 3, 5));
}

TEST(ExtractRecords, FromOneToTheCountIsACopyOfAll)
{
    for (const int count : {1, 2, 57, 2000, 2001, 2002}) {
        const DrawDatabase before = MadeUp(count);
        ASSERT_EQ(before.count, count);
        DrawDatabase database = before;
        ExtractRecords(database, 1, static_cast<float>(count));
        ExpectRange(database, before, 1, count);
    }
}

TEST(ExtractRecords, ARangeOfOneIsADatabaseOfOneRecord)
{
    for (const int record : {1, 2, 10, 20}) {
        const DrawDatabase before = MadeUp(20);
        DrawDatabase database = before;
        ExtractRecords(database, static_cast<float>(record), static_cast<float>(record));
        ExpectRange(database, before, record, record);
        EXPECT_EQ(database.records[1].number, Cell(1));
    }
}

TEST(ExtractRecords, TitlesTheResultAndProposesAFileOfItsOwn)
{
    DrawDatabase database = MadeUp(3);
    ExtractRecords(database, 1, 3);
    EXPECT_EQ(database.title, u"Extracted"_s);
    EXPECT_EQ(database.fileName, u"Extract.lto"_s);
}

TEST(ExtractRecords, KeepsShapeDrawDaysAndTheUnsavedMark)
{
    for (const qint16 modified : {qint16{0}, qint16{1}}) {
        const DrawDatabase before = MadeUp(3);
        DrawDatabase database = before;
        database.modified = modified;
        ExtractRecords(database, 2, 2);
        EXPECT_EQ(database.columns, 5);
        EXPECT_EQ(database.highest, 60);
        EXPECT_EQ(database.drawDays, before.drawDays);
        EXPECT_EQ(database.modified, modified);
    }
}

TEST(ExtractRecords, NumbersStayInTheOrderTheyWereDrawn)
{
    DrawDatabase database = MadeUp(1);
    database.records[1].drawn = {41, 3, 17};
    ExtractRecords(database, 1, 1);
    EXPECT_EQ(database.records[1].drawn, (std::array<Cell, 10>{41, 3, 17}));
}

TEST(ExtractRecords, CellsAreCopiedAsTheyAre)
{
    DrawDatabase database = MadeUp(2);
    database.records[2].date = u"yesterday"_s;
    database.records[2].drawn = {Cell(), 0.5, u"7"_s};
    ExtractRecords(database, 2, 2);
    EXPECT_EQ(database.records[1].date, Cell(u"yesterday"_s));
    EXPECT_EQ(database.records[1].drawn, (std::array<Cell, 10>{Cell(), 0.5, u"7"_s}));
}

TEST(ExtractRecords, AllTenNumbersOfATenPickLotteryAreKept)
{
    DrawDatabase database = MadeUp(2);
    database.columns = 12;
    const std::array<Cell, 10> drawn = database.records[2].drawn;
    ExtractRecords(database, 2, 2);
    EXPECT_EQ(database.records[1].drawn, drawn);
}

TEST(ExtractRecords, AShapeThatNoFileShouldHoldLeadsOutOfNoTable)
{
    for (const int columns : {-32768, 0, 2, 13, 32767}) {
        DrawDatabase database = MadeUp(2);
        database.columns = static_cast<qint16>(columns);
        ExtractRecords(database, 1, 2);
        EXPECT_EQ(database.count, 2);
        EXPECT_EQ(database.columns, columns);
        EXPECT_EQ(database.records[2].drawn[0], Cell(58));
    }
}

TEST(ExtractRecords, BoundsBeyondTheRecordsTakeThoseThatAreThere)
{
    const DrawDatabase before = MadeUp(5);
    DrawDatabase database = before;
    ExtractRecords(database, -3, 9999);
    ExpectRange(database, before, 1, 5);
}

TEST(ExtractRecords, AnEmptyRangeIsAnEmptyDatabase)
{
    const DrawDatabase before = MadeUp(5);
    DrawDatabase database = before;
    ExtractRecords(database, 4, 3);
    ExpectRange(database, before, 4, 3);
}

TEST(ExtractRecords, AnExtractOfAnExtractCountsFromItsOwnFirstRecord)
{
    const DrawDatabase before = MadeUp(30);
    DrawDatabase database = before;
    ExtractRecords(database, 11, 20);
    ExtractRecords(database, 2, 4);
    ExpectRange(database, before, 12, 14);
}

TEST(ExtractRecords, TheQuickHelpHasItsParagraphsInOrder)
{
    const QStringList expected{
        u"To view a group of records between any two dates, a new database is created with records from the existing database."_s,
        u"Using the record numbers from beside the dates you want to include. Type these record numbers in the green input boxes."_s,
        u"Click 'Extract Records' and the new file will be created and shown."_s,
        u"The new database will be titled 'Extracted' and if saving to disk is named 'Extract.LTO'. It can be renamed."_s,
        u"This is to prevent you overwriting the original database file on disk if the same name was retained for the new database."_s,
        u"The original database in memory is deleted."_s,
    };
    EXPECT_EQ(ExtractHelpText().split(u'\n'), expected);
}
