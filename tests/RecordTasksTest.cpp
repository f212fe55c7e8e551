#include "database/RecordTasks.h"

#include "database/DateSort.h"
#include "tests/QtPrinters.h"
#include "tests/TestFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QLocale& Locale()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

QDate LastDate(const DrawDatabase& database)
{
    return std::get<QDate>(database.records.at(static_cast<std::size_t>(database.count)).date);
}

TypedRow Row(const QStringList& boxes, QDate date = QDate(2004, 3, 13))
{
    return {boxes, date, false};
}

/// The message that a row brings, 0 for none.
int MessageOf(DrawDatabase& database, EditMode task, const TypedRow& row)
{
    const RowCheck check = CheckRow(database, task, row, Locale());
    return check.fault ? check.fault->message : 0;
}

int MessageOf(const std::optional<EntryFault>& fault)
{
    return fault ? fault->message : 0;
}

} // namespace

TEST(RecordTasks, ATaskForARecordThatDoesNotExistCannotBegin)
{
    const DrawDatabase database = MadeUpDatabase(6, 49, 3);
    for (const EditMode task : {EditMode::Correct, EditMode::Delete}) {
        EXPECT_EQ(MessageOf(CheckTask(database, task, 3)), 0);
        EXPECT_EQ(MessageOf(CheckTask(database, task, 4)), 41);
    }
}

TEST(RecordTasks, OnlyAnInsertionNeedsRoom)
{
    const DrawDatabase full = MadeUpDatabase(6, 49, 2001);
    EXPECT_EQ(MessageOf(CheckTask(full, EditMode::Insert, 1)), 45);
    EXPECT_EQ(MessageOf(CheckTask(full, EditMode::Correct, 1)), 0);
    EXPECT_EQ(MessageOf(CheckTask(full, EditMode::Delete, 2001)), 0);
    EXPECT_EQ(MessageOf(CheckTask(full, EditMode::Sort, 1)), 0);
    EXPECT_EQ(MessageOf(CheckTask(MadeUpDatabase(6, 49, 2000), EditMode::Insert, 1)), 0);
}

TEST(RecordTasks, ANewRowIsCheckedInTheOrderInWhichUsersAreTold)
{
    DrawDatabase database = MadeUpDatabase(3, 49, 2);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u""_s, u"7"_s, u"7"_s})), 36);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u"7"_s, u""_s})), 37);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u""_s, u"50"_s})), 29);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u"50"_s, u"0"_s})), 5);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u"0"_s, u"50"_s})), 6);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u"8"_s, u"49"_s})), 0);
    DrawDatabase full = MadeUpDatabase(3, 49, 2001);
    EXPECT_EQ(MessageOf(full, EditMode::Normal, Row({u"7"_s, u"7"_s, u"50"_s})), 37);
    EXPECT_EQ(MessageOf(full, EditMode::Normal, Row({u"7"_s, u"8"_s, u"50"_s})), 45);
}

TEST(RecordTasks, AMendedRowIsCheckedInTheOrderInWhichUsersAreTold)
{
    for (const EditMode task : {EditMode::Correct, EditMode::Insert}) {
        DrawDatabase database = MadeUpDatabase(3, 49, 2);
        const QDate late = LastDate(database).addDays(1);
        EXPECT_EQ(MessageOf(database, task, Row({u"0"_s, u"7"_s, u"7"_s}, late)), 36);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"7"_s, u"50"_s}, late)), 37);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"8"_s, u""_s}, QDate())), 29);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"8"_s, u"50"_s}, QDate())), 5);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"8"_s, u"0"_s}, late)), 38);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"8"_s, u"9"_s}, QDate())), 30);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"8"_s, u"9"_s}, late)), 39);
        EXPECT_EQ(MessageOf(database, task, Row({u"7"_s, u"8"_s, u"9"_s}, LastDate(database))), 0);
        EXPECT_EQ(database.modified, 0);
    }
}

TEST(RecordTasks, OnlyADateThatIsTooLateEndsTheTask)
{
    DrawDatabase database = MadeUpDatabase(3, 49, 2);
    const QStringList good{u"7"_s, u"8"_s, u"9"_s};
    const QDate late = LastDate(database).addDays(1);
    EXPECT_TRUE(CheckRow(database, EditMode::Correct, Row(good, late), Locale()).endsTask);
    EXPECT_FALSE(CheckRow(database, EditMode::Correct, Row(good, QDate()), Locale()).endsTask);
    EXPECT_FALSE(CheckRow(database, EditMode::Correct, Row(good, LastDate(database)), Locale()).endsTask);
    EXPECT_FALSE(CheckRow(database, EditMode::Insert, Row({u"7"_s}, late), Locale()).fault->arg1.isEmpty());
}

TEST(RecordTasks, DuplicatesPassWhereTheyAreAllowed)
{
    DrawDatabase database = MadeUpDatabase(3, 49, 2);
    TypedRow row = Row({u"7"_s, u"7"_s, u"7"_s});
    row.allowDuplicates = true;
    EXPECT_EQ(MessageOf(database, EditMode::Normal, row), 0);
}

TEST(RecordTasks, ANewRecordMarksTheDatabaseAsChangedOnceItsFirstChecksPassed)
{
    DrawDatabase database = MadeUpDatabase(3, 49, 2);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u"7"_s, u"8"_s})), 37);
    EXPECT_EQ(database.modified, 0);
    EXPECT_EQ(MessageOf(database, EditMode::Normal, Row({u"7"_s, u"50"_s, u"8"_s})), 5);
    EXPECT_EQ(database.modified, 1);
}

TEST(RecordTasks, ACorrectionBeginsWithTheRecordInTheBoxes)
{
    DrawDatabase database = MadeUpDatabase(3, 49, 2);
    database.records.at(2).drawn = {5, Cell(), 49};
    const TypedRow row = RowOfRecord(database, 2, Locale());
    EXPECT_EQ(row.boxes, (QStringList{u"5"_s, u""_s, u"49"_s}));
    EXPECT_EQ(row.date, LastDate(database));
    database.records.at(2).date = u"no date"_s;
    EXPECT_FALSE(RowOfRecord(database, 2, Locale()).date.isValid());
}

TEST(RecordTasks, ACorrectionIsWrittenOverItsRecordAndOtherRowsGoBehindTheLast)
{
    DrawDatabase database = MadeUpDatabase(3, 49, 4);
    const DrawRecord third = database.records.at(3);
    EnterRow(database, EditMode::Correct, 2, Row({u"7"_s, u"8"_s, u"9"_s}));
    EXPECT_EQ(database.count, 4);
    EXPECT_TRUE(CellHolds(database.records.at(2).drawn.at(2), 9));
    EXPECT_TRUE(CellHolds(database.records.at(2).number, 2));
    EXPECT_EQ(database.records.at(3), third);
    EnterRow(database, EditMode::Insert, 2, Row({u"1"_s, u"2"_s, u"3"_s}));
    EnterRow(database, EditMode::Normal, 0, Row({u"4"_s, u"5"_s, u"6"_s}));
    EXPECT_EQ(database.count, 6);
    EXPECT_TRUE(CellHolds(database.records.at(5).drawn.at(0), 1));
    EXPECT_TRUE(CellHolds(database.records.at(6).drawn.at(0), 4));
}

TEST(RecordTasks, DeletingAllLeavesTheShapeAndTheDrawDays)
{
    DrawDatabase database = MadeUpDatabase(3, 20, 4);
    const DrawDays days = database.CheckedDays();
    DeleteAllRecords(database);
    EXPECT_EQ(database.count, 0);
    EXPECT_EQ(database.title, QString());
    EXPECT_EQ(database.records.at(1), DrawRecord());
    EXPECT_EQ(database.CheckedDays(), days);
    EXPECT_EQ(database.Shape(), (LotteryShape{3, 20}));
}

TEST(RecordTasks, OnlyADatabaseWithoutRecordsTakesAShape)
{
    DrawDatabase database = MadeUpDatabase(3, 20, 1);
    TakeShape(database, 5, 45);
    EXPECT_EQ(database.Shape(), (LotteryShape{3, 20}));
    DeleteAllRecords(database);
    TakeShape(database, 5, 45);
    EXPECT_EQ(database.Shape(), (LotteryShape{5, 45}));
}

TEST(RecordTasks, AShapeIsHeldToItsLimitsWhoeverBringsIt)
{
    DrawDatabase database = MadeUpDatabase(3, 20, 1);
    database.columns = 300;
    database.highest = -4;
    TakeShape(database, 5, 45);
    EXPECT_EQ(database.columns, 12);
    EXPECT_EQ(database.highest, 1);
    DeleteAllRecords(database);
    TakeShape(database, 99999, 0);
    EXPECT_EQ(database.columns, 12);
    EXPECT_EQ(database.highest, 1);
}

TEST(RecordTasks, TheNextDrawFollowsTheLastRecord)
{
    DrawDatabase database = MadeUpDatabase(3, 20, 1); // draws on Wednesday and Saturday
    database.records.at(1).date = QDate(2004, 3, 13); // a Saturday
    EXPECT_EQ(DateOfNewRow(database, QDate(2020, 1, 1), Locale()), QDate(2004, 3, 17));
}

TEST(RecordTasks, WithoutRecordsTodayIsProposedAndBecomesADrawDay)
{
    DrawDatabase database;
    const QDate monday(2004, 3, 15);
    EXPECT_EQ(DateOfNewRow(database, monday, Locale()), monday);
    EXPECT_TRUE(database.CheckedDays().at(2));
}

TEST(RecordTasks, BehindADateThatCannotBeReadTodayIsProposedAndNoDayIsMarked)
{
    DrawDatabase database = MadeUpDatabase(3, 20, 1);
    database.records.at(1).date = u"no date"_s;
    const DrawDays days = database.CheckedDays();
    EXPECT_EQ(DateOfNewRow(database, QDate(2004, 3, 15), Locale()), QDate(2004, 3, 15));
    EXPECT_EQ(database.CheckedDays(), days);
}

TEST(RecordTasks, TheDeletionMarkIsNeitherProposedNorTaken)
{
    DrawDatabase database = MadeUpDatabase(3, 20, 1);
    database.CheckDay(6, true); // Friday, as the mark is
    for (int before = 1; before <= 7; ++before) {
        database.records.at(1).date = DeletionMark().addDays(-before);
        EXPECT_NE(DateOfNewRow(database, QDate(2020, 1, 1), Locale()), DeletionMark()) << before;
    }
    database.records.at(1).date = DeletionMark().addDays(-1);
    EXPECT_EQ(DateOfNewRow(database, QDate(2020, 1, 1), Locale()), DeletionMark().addDays(1));
    EXPECT_EQ(ParseDrawDate(u"2/19/2500"_s, Locale()), std::nullopt);
    EXPECT_EQ(ParseDrawDate(u"2/18/2500"_s, Locale()), QDate(2500, 2, 18));
}
