#include "database/DateSort.h"

#include "app/LotteryFile.h"
#include "app/ShortDate.h"
#include "tests/StatePrinters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QLocale kLocale(QLocale::English, QLocale::UnitedStates);
const QDate kMark(2500, 2, 19);

DrawRecord MadeUpRecord(int number, const Cell& date)
{
    DrawRecord record;
    record.number = number;
    record.date = date;
    for (std::size_t k = 0; k < record.drawn.size(); ++k) {
        record.drawn[k] = number * 100 + static_cast<int>(k);
    }
    return record;
}

DrawDatabase WithDates(const std::vector<Cell>& dates)
{
    DrawDatabase database;
    database.columns = 8;
    database.highest = 49;
    for (const Cell& date : dates) {
        ++database.count;
        database.records[static_cast<std::size_t>(database.count)] = MadeUpRecord(database.count, date);
    }
    return database;
}

/// Which of the made-up records stand in rows 1..count, by their first numbers.
std::vector<int> Order(const DrawDatabase& database)
{
    std::vector<int> order;
    for (std::size_t row = 1; row <= static_cast<std::size_t>(database.count); ++row) {
        order.push_back(std::get<int>(database.records[row].drawn[0]) / 100);
    }
    return order;
}

// The second implementation: rows of twelve cells, exchanged cell by cell, their dates read at every look.

using Row = std::array<Cell, 12>;

Row ToRow(const DrawRecord& record)
{
    Row row;
    row[0] = record.number;
    row[1] = record.date;
    std::copy(record.drawn.begin(), record.drawn.end(), row.begin() + 2);
    return row;
}

DrawRecord ToRecord(const Row& row)
{
    DrawRecord record;
    record.number = row[0];
    record.date = row[1];
    std::copy(row.begin() + 2, row.end(), record.drawn.begin());
    return record;
}

std::optional<QDate> ReadDate(const Cell& cell)
{
    if (const auto* date = std::get_if<QDate>(&cell)) {
        return date->isValid() ? std::optional(*date) : std::nullopt;
    }
    const auto* text = std::get_if<QString>(&cell);
    return text == nullptr ? std::nullopt : ParseShortDate(*text, kLocale);
}

bool NotLater(const Cell& first, const Cell& second)
{
    const std::optional<QDate> a = ReadDate(first);
    const std::optional<QDate> b = ReadDate(second);
    if (!a) {
        return true; // unreadable: before any date, and level with one that is unreadable too
    }
    if (!b) {
        return false;
    }
    if (*b == kMark) {
        return true;
    }
    return *a != kMark && *a <= *b;
}

struct Expected {
    std::vector<Row> table;
    int count = 0;
    int unreadable = 0;
};

Expected SortTheLongWay(const DrawDatabase& database)
{
    Expected result;
    for (const DrawRecord& record : database.records) {
        result.table.push_back(ToRow(record));
    }
    result.count = database.count;
    std::vector<Row>& table = result.table;
    int gap = result.count / 2;
    while (gap > 0) {
        for (int i = gap; i <= result.count - 1; i = i + 1) {
            int j = i - gap + 1;
            while (j >= 1) {
                const auto low = static_cast<std::size_t>(j);
                const auto high = static_cast<std::size_t>(j + gap);
                if (NotLater(table[low][1], table[high][1])) {
                    break;
                }
                for (std::size_t cell = 0; cell < 12; ++cell) {
                    const Cell kept = table[low][cell];
                    table[low][cell] = table[high][cell];
                    table[high][cell] = kept;
                }
                for (const std::size_t row : {low, high}) {
                    if (const std::optional<QDate> date = ReadDate(table[row][1])) {
                        table[row][1] = *date;
                    }
                }
                j = j - gap;
            }
        }
        gap = gap / 2;
    }
    for (int i = 1; i <= result.count; ++i) {
        table[static_cast<std::size_t>(i)][0] = i;
        result.unreadable += ReadDate(table[static_cast<std::size_t>(i)][1]) ? 0 : 1;
    }
    const auto last = static_cast<std::size_t>(result.count);
    if (result.count > 0 && ReadDate(table[last][1]) == kMark) {
        table[last] = Row{};
        --result.count;
    }
    return result;
}

/// Random tables with many equal dates.
class Tables
{
public:
    explicit Tables(unsigned seed) : m_random(seed) {}

    int UpTo(int highest) { return std::uniform_int_distribution<int>(0, highest)(m_random); }

    Cell Date(int spread, bool hasUnreadable)
    {
        const QDate date = QDate(2004, 3, 10).addDays(UpTo(spread));
        switch (UpTo(hasUnreadable ? 9 : 6)) {
        case 0:
            return ShortDate(date, kLocale);
        case 1:
            return date.toString(Qt::ISODate);
        case 2:
            return date.toString(u"M.d.yy"_s);
        case 7:
            return u"yesterday %1"_s.arg(UpTo(9));
        case 8:
            return Unreadable();
        default:
            return date;
        }
    }

    DrawDatabase Make(int count, int spread, bool hasUnreadable)
    {
        DrawDatabase database;
        database.records.resize(static_cast<std::size_t>(count) + 3); // fewer spare rows to compare
        for (int row = 1; row <= count; ++row) {
            DrawRecord& record = database.records[static_cast<std::size_t>(row)];
            record.number = UpTo(3000);
            record.date = Date(spread, hasUnreadable);
            for (Cell& cell : record.drawn) {
                cell = UpTo(60);
            }
            record.drawn[static_cast<std::size_t>(UpTo(9))] = Unreadable();
        }
        database.count = static_cast<qint16>(count);
        return database;
    }

private:
    Cell Unreadable()
    {
        switch (UpTo(4)) {
        case 0:
            return {};
        case 1:
            return UpTo(40000);
        case 2:
            return 0.5 + UpTo(9);
        case 3:
            return QDate();
        default:
            return u"2004-02-30"_s;
        }
    }

    std::mt19937 m_random;
};

void ExpectSortedAsTheLongWay(DrawDatabase database, const std::string& which)
{
    const Expected expected = SortTheLongWay(database);
    const int unreadable = SortByDate(database, kLocale);
    ASSERT_EQ(unreadable, expected.unreadable) << which;
    ASSERT_EQ(database.count, expected.count) << which;
    ASSERT_EQ(database.records.size(), expected.table.size()) << which;
    for (std::size_t row = 0; row < expected.table.size(); ++row) {
        if (!(database.records[row] == ToRecord(expected.table[row]))) {
            ASSERT_EQ(database.records[row], ToRecord(expected.table[row])) << which << ", row " << row;
        }
    }
}

} // namespace

TEST(DateSort, OrdersThousandsOfRandomTablesAsTheLongWayDoes)
{
    Tables tables(20260301);
    for (int round = 0; round < 2500; ++round) {
        const int count = round % 61;
        const int spread = std::array{0, 1, 3, 10, 200, 4000}[static_cast<std::size_t>(tables.UpTo(5))];
        DrawDatabase database = tables.Make(count, spread, round % 3 == 0);
        if (count > 0 && round % 2 == 0) {
            DrawRecord& marked = database.records[static_cast<std::size_t>(tables.UpTo(count - 1) + 1)];
            marked.date = round % 4 == 0 ? Cell(kMark) : Cell(u"2/19/2500"_s);
        }
        if (count > 0 && round % 5 == 0) {
            database.records[static_cast<std::size_t>(tables.UpTo(count - 1) + 1)].date = QDate(2600, 1, 1);
        }
        ExpectSortedAsTheLongWay(database, "round " + std::to_string(round));
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST(DateSort, OrdersFullTablesAsTheLongWayDoes)
{
    Tables tables(7);
    for (const int count : {2000, 2001, 2002}) {
        for (const int spread : {2, 300, 20000}) {
            DrawDatabase database = tables.Make(count, spread, spread == 300);
            database.records[static_cast<std::size_t>(count / 2)].date = kMark;
            ExpectSortedAsTheLongWay(database,
                                     std::to_string(count) + " records over " + std::to_string(spread));
            if (HasFatalFailure()) {
                return;
            }
        }
    }
}

TEST(DateSort, NoRecordsAndOneRecordStayAsTheyAre)
{
    DrawDatabase none = WithDates({});
    EXPECT_EQ(SortByDate(none, kLocale), 0);
    EXPECT_EQ(none.count, 0);
    EXPECT_EQ(none.records, DrawDatabase().records);

    DrawDatabase one = WithDates({u"3/5/04"_s});
    const DrawRecord before = one.records[1];
    EXPECT_EQ(SortByDate(one, kLocale), 0);
    EXPECT_EQ(one.count, 1);
    EXPECT_EQ(one.records[1], before);
}

TEST(DateSort, PutsTheEarliestFirst)
{
    DrawDatabase database = WithDates(
        {QDate(2004, 3, 5), QDate(2001, 1, 1), QDate(2010, 12, 31), QDate(2004, 3, 4), QDate(1999, 6, 1)});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{5, 2, 4, 1, 3}));
    EXPECT_EQ(std::get<QDate>(database.records[1].date), QDate(1999, 6, 1));
    EXPECT_EQ(std::get<QDate>(database.records[5].date), QDate(2010, 12, 31));
}

TEST(DateSort, RecordsOfEqualDateAreLeftAsTheWideStepsLeaveThem)
{
    // The step of two exchanges the first and the third, so the first two change their order.
    DrawDatabase database =
        WithDates({QDate(2004, 3, 5), QDate(2004, 3, 5), QDate(2004, 3, 4), QDate(2004, 3, 6)});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{3, 2, 1, 4}));
}

TEST(DateSort, RecordsInOrderAreNotExchanged)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 5), QDate(2004, 3, 5), QDate(2004, 3, 5)});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{1, 2, 3}));
}

TEST(DateSort, ARecordMovesWithAllItsCells)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 6), QDate(2004, 3, 5)});
    DrawRecord first = database.records[1];
    DrawRecord second = database.records[2];
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    first.number = 2;
    second.number = 1;
    EXPECT_EQ(database.records[1], second);
    EXPECT_EQ(database.records[2], first);
}

TEST(DateSort, NumbersTheRecordsByTheirRows)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 7), QDate(2004, 3, 6), QDate(2004, 3, 8)});
    database.records[1].number = 17;
    database.records[2].number = Cell();
    database.records[3].number = u"3"_s;
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    for (int row = 1; row <= 3; ++row) {
        EXPECT_EQ(database.records[static_cast<std::size_t>(row)].number, Cell(row)) << row;
    }
}

TEST(DateSort, ATextIsStoredAsADateOnlyWhenItsRecordIsExchanged)
{
    DrawDatabase database = WithDates({u"3/1/04"_s, u"2004-03-09"_s, u"3-5-2004"_s, u"12/31/49"_s});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{1, 3, 2, 4}));
    EXPECT_EQ(database.records[1].date, Cell(u"3/1/04"_s));
    EXPECT_EQ(database.records[2].date, Cell(QDate(2004, 3, 5)));
    EXPECT_EQ(database.records[3].date, Cell(QDate(2004, 3, 9)));
    EXPECT_EQ(database.records[4].date, Cell(u"12/31/49"_s));
}

TEST(DateSort, ARecordExchangedForthAndBackHoldsADate)
{
    // Exchanged with the first by the step of two, then back with its neighbour.
    DrawDatabase database = WithDates({u"3/6/04"_s, u"3/4/04"_s, u"3/5/04"_s, u"3/7/04"_s});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{2, 3, 1, 4}));
    EXPECT_EQ(database.records[2].date, Cell(QDate(2004, 3, 5)));
    EXPECT_EQ(database.records[4].date, Cell(u"3/7/04"_s));
}

TEST(DateSort, DatesThatCannotBeReadStandFirstAndAreCounted)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 6), u"yesterday"_s, QDate(1900, 1, 1), u""_s});
    EXPECT_EQ(SortByDate(database, kLocale), 2);
    EXPECT_EQ(database.count, 4);
    std::vector<int> unreadable = Order(database);
    EXPECT_EQ(std::vector(unreadable.begin() + 2, unreadable.end()), (std::vector{3, 1}));
    std::sort(unreadable.begin(), unreadable.begin() + 2);
    EXPECT_EQ(std::vector(unreadable.begin(), unreadable.begin() + 2), (std::vector{2, 4}));
}

TEST(DateSort, ATextThatCannotBeReadIsKeptAlsoWhenItsRecordMoves)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 6), u"yesterday"_s});
    EXPECT_EQ(SortByDate(database, kLocale), 1);
    EXPECT_EQ(database.records[1].date, Cell(u"yesterday"_s));
}

TEST(DateSort, TextsAreReadInTheLocaleOfTheUser)
{
    const QLocale german(QLocale::German, QLocale::Germany);
    DrawDatabase database = WithDates({u"02.03.2004"_s, u"03.02.2004"_s});
    EXPECT_EQ(SortByDate(database, german), 0);
    EXPECT_EQ(Order(database), (std::vector{2, 1}));
    EXPECT_EQ(database.records[1].date, Cell(QDate(2004, 2, 3)));
}

TEST(DateSort, AMarkedRecordIsDroppedWithoutATrace)
{
    for (const Cell& mark : {Cell(kMark), Cell(u"2/19/2500"_s), Cell(u"2500-02-19"_s)}) {
        for (std::size_t marked = 1; marked <= 5; ++marked) {
            DrawDatabase database = WithDates({QDate(2004, 3, 1), QDate(2004, 3, 2), QDate(2004, 3, 3),
                                               QDate(2004, 3, 4), QDate(2004, 3, 5)});
            database.records[marked].date = mark;
            EXPECT_EQ(SortByDate(database, kLocale), 0);
            EXPECT_EQ(database.count, 4);
            EXPECT_EQ(database.records[5], DrawRecord{});
            const std::vector<int> order = Order(database);
            EXPECT_EQ(std::count(order.begin(), order.end(), static_cast<int>(marked)), 0) << marked;
        }
    }
}

TEST(DateSort, TheMarkIsLaterThanAnyDate)
{
    DrawDatabase database = WithDates({kMark, QDate(2500, 2, 20), QDate(9999, 12, 31), QDate(2004, 3, 1)});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(database.count, 3);
    EXPECT_EQ(Order(database), (std::vector{4, 2, 3}));
    EXPECT_EQ(database.records[4], DrawRecord{});
}

TEST(DateSort, TheDaysBesideTheMarkAreOrdinaryDates)
{
    DrawDatabase database = WithDates({QDate(2500, 2, 20), QDate(2500, 2, 18)});
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(database.count, 2);
    EXPECT_EQ(Order(database), (std::vector{2, 1}));
}

TEST(DateSort, RowsBehindTheRecordsAreLeftAlone)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 6), QDate(2004, 3, 5)});
    database.records[0] = MadeUpRecord(77, QDate(1990, 1, 1));
    database.records[3] = MadeUpRecord(78, QDate(1990, 1, 1));
    const DrawDatabase before = database;
    EXPECT_EQ(SortByDate(database, kLocale), 0);
    EXPECT_EQ(database.records[0], before.records[0]);
    EXPECT_EQ(database.records[3], before.records[3]);
}

TEST(DateSort, OnlyTheRecordsChange)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 6), QDate(2004, 3, 5)});
    database.title = u"Mine"_s;
    database.fileName = u"Mine.Lto"_s;
    database.CheckDay(3, true);
    const DrawDatabase before = database;
    EXPECT_EQ(DeleteRecord(database, 1, kLocale), 0);
    EXPECT_EQ(database.title, before.title);
    EXPECT_EQ(database.fileName, before.fileName);
    EXPECT_EQ(database.drawDays, before.drawDays);
    EXPECT_EQ(database.columns, before.columns);
    EXPECT_EQ(database.highest, before.highest);
    EXPECT_EQ(database.modified, 0);
}

TEST(DateSort, DeletesTheThirdOfTenRecords)
{
    std::vector<Cell> dates;
    for (int day = 1; day <= 10; ++day) {
        dates.emplace_back(QDate(2004, 3, day));
    }
    DrawDatabase database = WithDates(dates);
    EXPECT_EQ(DeleteRecord(database, 3, kLocale), 0);
    EXPECT_EQ(database.count, 9);
    EXPECT_EQ(Order(database), (std::vector{1, 2, 4, 5, 6, 7, 8, 9, 10}));
    for (int row = 1; row <= 9; ++row) {
        EXPECT_EQ(database.records[static_cast<std::size_t>(row)].number, Cell(row));
    }
}

TEST(DateSort, DeletesTheFirstTheLastAndTheOnlyRecord)
{
    DrawDatabase database = WithDates({QDate(2004, 3, 1), QDate(2004, 3, 2), QDate(2004, 3, 3)});
    EXPECT_EQ(DeleteRecord(database, 1, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{2, 3}));
    EXPECT_EQ(DeleteRecord(database, 2, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{2}));
    EXPECT_EQ(DeleteRecord(database, 1, kLocale), 0);
    EXPECT_EQ(database.count, 0);
    EXPECT_EQ(database.records, DrawDatabase().records);
}

TEST(DateSort, DeletesExactlyTheChosenOfRecordsWithOneDate)
{
    for (int chosen = 1; chosen <= 7; ++chosen) {
        DrawDatabase database = WithDates(std::vector<Cell>(7, QDate(2004, 3, 1)));
        EXPECT_EQ(DeleteRecord(database, chosen, kLocale), 0);
        std::vector<int> order = Order(database);
        std::sort(order.begin(), order.end());
        std::vector<int> expected{1, 2, 3, 4, 5, 6, 7};
        expected.erase(expected.begin() + chosen - 1);
        EXPECT_EQ(order, expected);
    }
}

TEST(DateSort, DeletesARecordWhoseDateCannotBeRead)
{
    DrawDatabase database = WithDates({u"yesterday"_s, QDate(2004, 3, 1), u"never"_s});
    EXPECT_EQ(DeleteRecord(database, 1, kLocale), 1);
    EXPECT_EQ(Order(database), (std::vector{3, 2}));
    EXPECT_EQ(DeleteRecord(database, 1, kLocale), 0);
    EXPECT_EQ(Order(database), (std::vector{2}));
}

TEST(DateSort, DeletesInAFullTable)
{
    std::vector<Cell> dates;
    for (int day = 0; day < 2001; ++day) {
        dates.emplace_back(QDate(2004, 3, 1).addDays(day));
    }
    DrawDatabase database = WithDates(dates);
    EXPECT_EQ(DeleteRecord(database, 1000, kLocale), 0);
    EXPECT_EQ(database.count, 2000);
    EXPECT_EQ(Order(database).at(998), 999);
    EXPECT_EQ(Order(database).at(999), 1001);
    EXPECT_EQ(database.records[2001], DrawRecord{});
}

TEST(DateSort, ANumberThatIsNoRecordDeletesNothing)
{
    const DrawDatabase before = WithDates({QDate(2004, 3, 2), QDate(2004, 3, 1)});
    for (const int number : {-32768, -1, 0, 3, 2002, 2003, 32767}) {
        DrawDatabase database = before;
        EXPECT_EQ(DeleteRecord(database, number, kLocale), 0);
        EXPECT_EQ(database.count, 2) << number;
        EXPECT_EQ(database.records, before.records) << number;
    }
}

TEST(DateSort, AFileWrittenAfterADeletionHoldsNoMark)
{
    for (const int deleted : {1, 2, 3}) {
        DrawDatabase database = WithDates({QDate(2004, 3, 1), QDate(2600, 3, 2), QDate(2004, 3, 3)});
        EXPECT_EQ(DeleteRecord(database, deleted, kLocale), 0);
        QByteArray bytes;
        ASSERT_TRUE(WriteLotteryFile(database, kLocale, bytes).ok);
        EXPECT_EQ(bytes.count("2500"), 0) << bytes.toStdString();
        EXPECT_EQ(bytes.count("#"), 4) << bytes.toStdString(); // two dates
    }
}

TEST(DateSort, DeletingTakesTheChosenRecordAlsoAmongOthersOfTheMarksDate)
{
    for (int chosen = 1; chosen <= 4; ++chosen) {
        DrawDatabase database;
        database.columns = 3;
        for (int record = 1; record <= 4; ++record) {
            database.Append(record % 2 == 0 ? QDate(2500, 2, 19) : QDate(2000, 1, record), {record * 10});
        }
        DeleteRecord(database, chosen, QLocale::c());
        ASSERT_EQ(database.count, 3);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_NE(CellNumber(database.records[static_cast<std::size_t>(row)].drawn[0]), chosen * 10);
        }
    }
}
