#include "picks/WinnerSearch.h"

#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "app/TextPictures.h"
#include "tests/QtPrinters.h"

#include <QDate>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <ostream>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

// Beside WinnerFault, where GoogleTest looks for it.
static void PrintTo(const WinnerFault& fault, std::ostream* out)
{
    *out << fault.message << " \"" << fault.arg1.toStdString() << "\"";
}

namespace {

using Fault = std::optional<WinnerFault>;

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

WinnerQuery Asking(const std::vector<int>& numbers, int minimum)
{
    WinnerQuery query{.minimum = minimum};
    std::copy(numbers.begin(), numbers.end(), query.yourNumbers.begin());
    return query;
}

// A second implementation, in the words in which players are told what the check does. It shares nothing with
// the one under test: plain arrays with the places of a record, 0 the number and 1 the date, and every place
// of the draw asked for every box.

struct ResultRow {
    Cell slot[12];
};

/// A text is the number that stands at its beginning, blanks aside.
bool IsNumber(QString text, int number)
{
    const QString digits = QString::number(number);
    text.remove(u' ');
    if (!text.startsWith(digits)) {
        return false;
    }
    const QString behind = text.sliced(digits.size());
    return behind.isEmpty() || !(behind.front().isDigit() || behind.front() == u'.');
}

bool IsNumber(const Cell& cell, int number)
{
    bool equal = false;
    if (std::holds_alternative<QString>(cell)) {
        equal = IsNumber(std::get<QString>(cell), number);
    }
    if (std::holds_alternative<int>(cell)) {
        equal = std::get<int>(cell) == number;
    }
    if (std::holds_alternative<double>(cell)) {
        equal = std::get<double>(cell) == static_cast<double>(number);
    }
    return equal;
}

std::vector<ResultRow> SearchOneByOne(const DrawDatabase& database, const WinnerQuery& query)
{
    const int picks = std::min(std::max(database.columns - 2, 1), 10);
    int yours[12] = {};
    for (int p = 0; p < picks; ++p) {
        yours[p + 2] = query.yourNumbers.at(static_cast<std::size_t>(p));
    }
    std::vector<ResultRow> list(1);
    for (int r = 1; r <= database.count; ++r) {
        const DrawRecord& record = database.records.at(static_cast<std::size_t>(r));
        int matches = 0;
        ResultRow row;
        for (int c = 2; c <= picks + 1; ++c) {
            for (int k = 2; k <= picks + 1; ++k) {
                const Cell& cell = record.drawn.at(static_cast<std::size_t>(c - 2));
                if (yours[k] != 0 && IsNumber(cell, yours[k])) { // an empty box is no number
                    matches = matches + 1;
                    row.slot[0] = record.number;
                    row.slot[1] = record.date;
                    row.slot[c] = cell;
                }
            }
        }
        if (matches >= query.minimum) {
            list.push_back(row);
        }
    }
    return list;
}

/// Compares both implementations. @return how many draws they found
std::size_t ExpectTheSame(const DrawDatabase& database, const WinnerQuery& query)
{
    const std::vector<ResultRow> expected = SearchOneByOne(database, query);
    std::vector<DrawRecord> results{{.number = 7, .date = {}, .drawn = {}}}; // of a search before
    const int found = ListWinners(database, query, results);
    EXPECT_EQ(static_cast<std::size_t>(found) + 1, expected.size());
    EXPECT_EQ(results.size(), expected.size());
    bool same = results.size() == expected.size();
    for (std::size_t i = 1; same && i < expected.size(); ++i) {
        same = results[i].number == expected[i].slot[0] && results[i].date == expected[i].slot[1];
        for (std::size_t pick = 0; pick < 10; ++pick) {
            same = same && results[i].drawn[pick] == expected[i].slot[pick + 2];
        }
        EXPECT_TRUE(same) << "result row " << i << " of record " << CellNumber(expected[i].slot[0]);
    }
    return expected.size() - 1;
}

using Random = std::mt19937;

int From(Random& random, int low, int high)
{
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

/// Numbers 1..highest that differ, in any of the boxes, others left empty; at least one.
std::vector<int> RandomBoxes(Random& random, int picks, int highest)
{
    std::vector<int> pool(static_cast<std::size_t>(highest));
    std::iota(pool.begin(), pool.end(), 1);
    std::shuffle(pool.begin(), pool.end(), random);
    std::vector<int> boxes(static_cast<std::size_t>(picks));
    const int filled = From(random, 1, std::min(picks, highest));
    std::copy_n(pool.begin(), filled, boxes.begin());
    std::shuffle(boxes.begin(), boxes.end(), random);
    return boxes;
}

int CountFilled(const std::vector<int>& boxes)
{
    return static_cast<int>(boxes.size() -
                            static_cast<std::size_t>(std::count(boxes.begin(), boxes.end(), 0)));
}

/// Mostly draws as they are; some hold a number twice, some what a damaged file may hold.
Cell RandomCell(Random& random, int highest)
{
    const int number = From(random, 1, highest);
    switch (From(random, 0, 39)) {
    case 0:
        return {};
    case 1:
        return static_cast<double>(number);
    case 2:
        return number + 0.5;
    case 3:
        return u"%1%2"_s.arg(number).arg(number % 3 == 0 ? u";"_s : number % 3 == 1 ? u" "_s : u".5"_s);
    case 4:
        return QDate(2024, 1, 1).addDays(number);
    case 5:
        return -number;
    case 6:
        return number + 60;
    case 7:
        return From(random, 0, 1) == 0 ? std::numeric_limits<int>::max() : std::numeric_limits<int>::min();
    case 8:
        return From(random, 0, 1) == 0 ? std::numeric_limits<double>::quiet_NaN() : 1e300;
    case 9:
        return 0;
    default:
        return number;
    }
}

/// Makes the records anew where they are, @p count of them.
void FillAtRandom(DrawDatabase& database, int count, Random& random)
{
    const LotteryShape shape = database.Shape();
    database.count = static_cast<qint16>(count);
    for (int r = 1; r <= count; ++r) {
        DrawRecord& record = database.records.at(static_cast<std::size_t>(r));
        record = {.number = r, .date = QDate(2024, 1, 1).addDays(r), .drawn = {}};
        for (int pick = 0; pick < kMostPicks; ++pick) { // also beyond the picks, where nothing may count
            record.drawn.at(static_cast<std::size_t>(pick)) = RandomCell(random, shape.highest);
        }
    }
}

std::vector<int> RowsOf(const DrawDatabase& database, const std::vector<int>& numbers, int minimum)
{
    return FindWinners(database, Asking(numbers, minimum));
}

// The search

TEST(CheckWinners, ASixInBoxOneAloneListsEveryDrawThatHoldsIt)
{
    const DrawDatabase database =
        DatabaseWith(6, 49, {{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}, {6, 20, 21, 22, 23, 24}});
    std::vector<DrawRecord> results;
    EXPECT_EQ(ListWinners(database, Asking({6}, 1), results), 2);
    const DrawRecord first{.number = 1, .date = QDate(2024, 3, 5), .drawn = {{{}, {}, {}, {}, {}, 6}}};
    const DrawRecord second{.number = 3, .date = QDate(2024, 3, 5), .drawn = {{6}}};
    EXPECT_TRUE(results == (std::vector<DrawRecord>{{}, first, second}));
}

TEST(CheckWinners, EveryDrawWithAtLeastTheMinimumIsFound)
{
    const DrawDatabase database =
        DatabaseWith(4, 20, {{1, 2, 3, 4}, {1, 2, 3, 9}, {9, 2, 8, 1}, {9, 10, 1, 11}, {9, 10, 11, 12}});
    EXPECT_EQ(RowsOf(database, {1, 2, 3, 4}, 1), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(RowsOf(database, {1, 2, 3, 4}, 2), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(RowsOf(database, {1, 2, 3, 4}, 3), (std::vector<int>{1, 2}));
    EXPECT_EQ(RowsOf(database, {4, 3, 2, 1}, 4), (std::vector<int>{1}));
    EXPECT_EQ(RowsOf(database, {5, 6, 7, 8}, 2), std::vector<int>{});
}

TEST(CheckWinners, EmptyBoxesBetweenOthersChangeNothing)
{
    const DrawDatabase database = DatabaseWith(4, 20, {{1, 2, 3, 4}, {1, 9, 10, 11}});
    EXPECT_EQ(RowsOf(database, {1, 0, 0, 2}, 2), (std::vector<int>{1}));
    EXPECT_EQ(RowsOf(database, {0, 0, 0, 2}, 1), (std::vector<int>{1}));
}

TEST(CheckWinners, ANumberThatARecordHoldsTwiceMatchesTwice)
{
    const DrawDatabase database = DatabaseWith(3, 9, {{5, 5, 1}, {5, 1, 2}});
    EXPECT_EQ(RowsOf(database, {5}, 2), (std::vector<int>{1}));
    std::vector<DrawRecord> results;
    EXPECT_EQ(ListWinners(database, Asking({5}, 2), results), 1);
    EXPECT_TRUE(results.at(1).drawn == (std::array<Cell, kMostPicks>{5, 5}));
}

TEST(CheckWinners, AnEmptyBoxMatchesNoRecordThatWasNeverFilledIn)
{
    DrawDatabase database = DatabaseWith(4, 9, {{1, 0, 0, 0}, {0, 0, 0, 0}});
    database.records.at(2).drawn.fill({});
    EXPECT_EQ(RowsOf(database, {1}, 1), (std::vector<int>{1}));
    EXPECT_EQ(RowsOf(database, {1, 2}, 2), std::vector<int>{});
    EXPECT_EQ(RowsOf(database, {2}, 1), std::vector<int>{});
}

TEST(CheckWinners, AWholeNumberWrittenWithDecimalsIsTheSameNumber)
{
    DrawDatabase database = DatabaseWith(3, 9, {{1, 2, 3}});
    database.records.at(1).drawn = {7.0, 7.5, -8.0};
    EXPECT_EQ(RowsOf(database, {7}, 1), (std::vector<int>{1}));
    EXPECT_EQ(RowsOf(database, {7}, 2), std::vector<int>{});
    EXPECT_EQ(RowsOf(database, {8}, 1), std::vector<int>{});
}

TEST(CheckWinners, ATextInAFileIsTheNumberThatItIsShownAndSavedAs)
{
    const struct {
        QString text;
        int number; ///< 0 for none of the lottery
    } cases[] = {
        {u"7"_s, 7},    {u" 7"_s, 7},  {u"07"_s, 7},   {u"7;"_s, 7},    {u"12*"_s, 12},
        {u"3 0"_s, 30}, {u"7.0"_s, 7}, {u"1e1"_s, 10}, {u"+7"_s, 7},    {u"60"_s, 60},
        {u"61"_s, 0},   {u"607"_s, 0}, {u"7.5"_s, 0},  {u"-7"_s, 0},    {u"0"_s, 0},
        {u"abc"_s, 0},  {u"x7"_s, 0},  {{}, 0},        {u"1e999"_s, 0},
    };
    for (const auto& entry : cases) {
        DrawDatabase database = DatabaseWith(1, 60, {{1}});
        database.records.at(1).drawn.front() = entry.text;
        for (int number = 1; number <= 60; ++number) {
            const bool found = !RowsOf(database, {number}, 1).empty();
            EXPECT_EQ(found, number == entry.number) << entry.text.toStdString() << " as " << number;
        }
    }
}

TEST(CheckWinners, ADateInThePlaceOfANumberIsNoNumber)
{
    DrawDatabase database = DatabaseWith(2, 60, {{1}});
    database.records.at(1).drawn = {QDate(2004, 3, 10), QDate()};
    for (int number = 1; number <= 60; ++number) {
        EXPECT_EQ(RowsOf(database, {number}, 1), std::vector<int>{}) << number;
    }
}

TEST(CheckWinners, PlacesBeyondThePicksDoNotCount)
{
    const DrawDatabase database = DatabaseWith(2, 9, {{1, 2, 3, 4}});
    EXPECT_EQ(RowsOf(database, {3, 4}, 1), std::vector<int>{});
    EXPECT_EQ(RowsOf(database, {5, 6, 1, 2}, 1), std::vector<int>{}) << "nor do boxes";
}

TEST(CheckWinners, AnEmptyDatabaseHasNoWinner)
{
    std::vector<DrawRecord> results(5);
    EXPECT_EQ(ListWinners(DatabaseOf(6, 49), Asking({6}, 1), results), 0);
    EXPECT_EQ(results.size(), 1U);
}

TEST(CheckWinners, ACountBeyondTheTableOrBelowZeroStaysInTheTable)
{
    DrawDatabase database = DatabaseWith(1, 9, {{5}});
    database.count = -3;
    EXPECT_EQ(RowsOf(database, {5}, 1), std::vector<int>{});
    database.count = std::numeric_limits<qint16>::max();
    EXPECT_EQ(RowsOf(database, {5}, 1), (std::vector<int>{1}));
}

TEST(CheckWinners, TheLastRowOfAFullTableIsSearchedToo)
{
    DrawDatabase database = DatabaseOf(1, 9);
    for (int r = 1; r < kRecordRows; ++r) {
        ASSERT_TRUE(database.Append(QDate(2024, 3, 5), {r == kRecordRows - 1 ? 5 : 4}));
    }
    EXPECT_EQ(RowsOf(database, {5}, 1), (std::vector<int>{kRecordRows - 1}));
    EXPECT_EQ(RowsOf(database, {4}, 1).size(), 2001U);
}

TEST(CheckWinners, TheResultsStayWhatTheyWereWhenTheDatabaseIsEmptied)
{
    DrawDatabase database = DatabaseWith(3, 9, {{1, 2, 3}});
    std::vector<DrawRecord> results;
    ListWinners(database, Asking({2}, 1), results);
    database.Empty();
    EXPECT_TRUE(results.at(1).drawn == (std::array<Cell, kMostPicks>{Cell{}, 2}));
    EXPECT_EQ(results.at(1).number, Cell(1));
}

TEST(CheckWinners, EveryQueryToEveryRecordOfASmallLotteryIsAnsweredAsByASecondWay)
{
    // All boxes of three picks out of four, each with 0 for empty, to all records, those with numbers drawn
    // twice and those with 0 included.
    constexpr int kHighest = 4;
    constexpr int kValues = kHighest + 1;
    DrawDatabase database = DatabaseOf(3, kHighest);
    for (int code = 0; code < kValues * kValues * kValues; ++code) {
        database.Append(QDate(2024, 3, 5),
                        {code % kValues, code / kValues % kValues, code / kValues / kValues});
    }
    std::size_t found = 0;
    for (int code = 1; code < kValues * kValues * kValues; ++code) {
        const std::vector<int> boxes{code % kValues, code / kValues % kValues, code / kValues / kValues};
        for (int minimum = 1; minimum <= CountFilled(boxes); ++minimum) {
            found += ExpectTheSame(database, Asking(boxes, minimum));
        }
    }
    EXPECT_EQ(found, 20784U);
}

TEST(CheckWinners, RandomCasesOfEveryShapeAreAnsweredAsByASecondWay)
{
    // One case is one record judged for one query. Another seed goes through other cases.
    constexpr int kDatabases = 2;
    constexpr int kRecords = 60;
    constexpr int kQueries = 5;
    bool isSet = false;
    const int seed = qEnvironmentVariableIntValue("QUILLABY_SEED", &isSet);
    Random random(isSet ? static_cast<unsigned>(seed) : 649U);
    DrawDatabase database;
    long cases = 0;
    std::size_t found = 0;
    for (int picks = 1; picks <= kMostPicks; ++picks) {
        for (int highest = 1; highest <= kMostNumbers; ++highest) {
            database.columns = static_cast<qint16>(picks + 2);
            database.highest = static_cast<qint16>(highest);
            for (int made = 0; made < kDatabases; ++made) {
                FillAtRandom(database, kRecords, random);
                for (int asked = 0; asked < kQueries; ++asked) {
                    const std::vector<int> boxes = RandomBoxes(random, picks, highest);
                    const int minimum = From(random, 1, CountFilled(boxes));
                    found += ExpectTheSame(database, Asking(boxes, minimum));
                    cases += kRecords;
                }
                ASSERT_FALSE(HasFailure()) << picks << "/" << highest;
            }
        }
    }
    EXPECT_EQ(cases, 360'000);
    EXPECT_GT(found, 20'000U) << "too few of the cases are winners";
}

/// A draw that shares exactly so many numbers with a ticket, each in any place. Where the lottery has no more
/// numbers that are not on the ticket, places stay empty.
std::vector<int> DrawSharing(Random& random, int shared, int picks, std::vector<int> ticket,
                             std::vector<int> others)
{
    std::shuffle(ticket.begin(), ticket.end(), random);
    std::shuffle(others.begin(), others.end(), random);
    std::vector<int> draw(ticket.begin(), ticket.begin() + shared);
    const auto more = std::min(others.size(), static_cast<std::size_t>(picks - shared));
    draw.insert(draw.end(), others.begin(), others.begin() + static_cast<std::ptrdiff_t>(more));
    draw.resize(static_cast<std::size_t>(picks));
    std::shuffle(draw.begin(), draw.end(), random);
    return draw;
}

TEST(CheckWinners, DrawsThatShareOneFewerAsManyAndOneMoreThanTheMinimumAreToldApart)
{
    Random random(7);
    DrawDatabase database;
    for (int picks = 1; picks <= kMostPicks; ++picks) {
        for (int highest = 1; highest <= kMostNumbers; ++highest) {
            database.columns = static_cast<qint16>(picks + 2);
            database.highest = static_cast<qint16>(highest);
            std::vector<int> ticket(static_cast<std::size_t>(highest));
            std::iota(ticket.begin(), ticket.end(), 1);
            std::shuffle(ticket.begin(), ticket.end(), random);
            const int most = std::min(picks, highest);
            const std::vector<int> others(ticket.begin() + most, ticket.end());
            ticket.resize(static_cast<std::size_t>(most));
            for (int minimum = 1; minimum <= most; ++minimum) {
                database.count = 0;
                std::vector<int> expected;
                for (int draw = 0; draw < 6; ++draw) {
                    const int shared = std::min(minimum + draw % 3 - 1, most);
                    database.Append(QDate(2024, 3, 5), DrawSharing(random, shared, picks, ticket, others));
                    if (shared >= minimum) {
                        expected.push_back(database.count);
                    }
                }
                const WinnerQuery query = Asking(ticket, minimum);
                ASSERT_EQ(FindWinners(database, query), expected) << picks << "/" << highest;
                ASSERT_EQ(ExpectTheSame(database, query), expected.size());
            }
            ASSERT_FALSE(HasFailure()) << picks << "/" << highest;
        }
    }
}

TEST(CheckWinners, ARealLotteryIsAnsweredAsByASecondWay)
{
    const QString path = qEnvironmentVariable("QUILLABY_DRAWS");
    if (path.isEmpty()) {
        GTEST_SKIP() << "QUILLABY_DRAWS names no lottery database file with real draws";
    }
    QByteArray bytes;
    ASSERT_TRUE(ReadFileBytes(path, bytes).ok) << path.toStdString();
    LotteryReading reading = ReadLotteryFile(bytes, LotteryLayout::Current, QLocale::c());
    ASSERT_TRUE(reading.content) << reading.reason.toStdString();
    DrawDatabase database;
    ReplaceDatabase(database, std::move(*reading.content), u"Real.Lto"_s);
    const LotteryShape shape = database.Shape();

    // Every draw that was made is a ticket, with every minimum: it finds itself at least.
    int compared = 0;
    for (int r = 1; r <= database.count; ++r) {
        std::vector<int> ticket;
        for (int pick = 0; pick < shape.picks; ++pick) {
            ticket.push_back(static_cast<int>(CellNumber(
                database.records.at(static_cast<std::size_t>(r)).drawn.at(static_cast<std::size_t>(pick)))));
        }
        for (int minimum = 1; minimum <= shape.picks; ++minimum) {
            const WinnerQuery query = Asking(ticket, minimum);
            const std::vector<int> winners = FindWinners(database, query);
            EXPECT_TRUE(std::binary_search(winners.begin(), winners.end(), r)) << "record " << r;
            ExpectTheSame(database, query);
            ++compared;
        }
        ASSERT_FALSE(HasFailure()) << "record " << r;
    }
    RecordProperty("tickets_compared", compared);
    EXPECT_EQ(compared, database.count * shape.picks);
    // And tickets nobody played, also half filled.
    Random random(6);
    for (int asked = 0; asked < 500; ++asked) {
        const std::vector<int> boxes = RandomBoxes(random, shape.picks, shape.highest);
        ExpectTheSame(database, Asking(boxes, From(random, 1, CountFilled(boxes))));
    }
}

// The checks of the boxes

struct BoxCase {
    QStringList boxes;
    int minimum;
    Fault fault;
};

TEST(CheckYourNumbers, EachFaultHasItsMessage)
{
    const BoxCase cases[] = {
        {{u"6"_s, {}, {}, {}, {}, {}}, 1, {}},
        {{u"1"_s, u"2"_s, {}, {}, {}, {}}, 3, WinnerFault{42, {}}},
        {{u"1"_s, {}, u"3"_s, {}, {}, {}}, 2, {}},
        {{{}, {}, {}, {}, {}, u"3"_s}, 1, {}},
        {{{}, {}, u"3"_s, {}, {}, {}}, 3, WinnerFault{42, {}}}, // box 3 is filled, but is not three numbers
        {{{}, {}, {}, {}, {}, {}}, 1, WinnerFault{42, {}}},
        {{u"0"_s, {}, {}, {}, {}, {}}, 1, WinnerFault{38, {}}},
        {{u"1"_s, u"00"_s, {}, {}, {}, {}}, 1, WinnerFault{38, {}}},
        {{u"50"_s, {}, {}, {}, {}, {}}, 1, WinnerFault{5, u"50"_s}},
        {{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"050"_s}, 6, WinnerFault{5, u"050"_s}},
        {{u"99999999999999999999"_s, {}, {}, {}, {}, {}}, 1, WinnerFault{5, u"99999999999999999999"_s}},
        {{u"49"_s, u"1"_s, {}, {}, {}, {}}, 2, {}},
        {{u"1"_s, u"2"_s, u"3"_s, u"12"_s, u"5"_s, u"12"_s}, 6, WinnerFault{37, {}}},
        {{{}, {}, {}, u"12"_s, {}, u"12"_s}, 1, WinnerFault{37, {}}},
        {{u"7"_s, u"007"_s, {}, {}, {}, {}}, 1, WinnerFault{37, {}}},
        {{u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"7"_s}, 6, WinnerFault{37, {}}},
        {{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}, 6, {}},
    };
    for (const BoxCase& entry : cases) {
        EXPECT_EQ(CheckYourNumbers(entry.boxes, entry.minimum, 49), entry.fault)
            << entry.boxes.join(u'|').toStdString() << " minimum " << entry.minimum;
    }
}

TEST(CheckYourNumbers, TooFewNumbersComeAfterTheFirstBoxAndBeforeTheOthers)
{
    const BoxCase cases[] = {
        {{u"50"_s, {}, {}}, 3, WinnerFault{5, u"50"_s}},
        {{u"0"_s, u"50"_s, {}}, 3, WinnerFault{38, {}}},
        {{u"1"_s, u"50"_s, {}}, 3, WinnerFault{42, {}}},
        {{u"1"_s, u"0"_s, {}}, 3, WinnerFault{42, {}}},
        {{{}, u"50"_s, u"0"_s}, 3, WinnerFault{42, {}}},
        {{u"1"_s, u"1"_s, {}}, 3, WinnerFault{42, {}}},
        {{u"1"_s, u"50"_s, {}}, 2, WinnerFault{5, u"50"_s}}, // enough boxes are filled: their own turn
        {{u"1"_s, u"0"_s, u"50"_s}, 3, WinnerFault{38, {}}},
        {{u"1"_s, u"1"_s, u"50"_s}, 3, WinnerFault{5, u"50"_s}}, // duplicates come last
    };
    for (const BoxCase& entry : cases) {
        EXPECT_EQ(CheckYourNumbers(entry.boxes, entry.minimum, 49), entry.fault)
            << entry.boxes.join(u'|').toStdString() << " minimum " << entry.minimum;
    }
}

/// The checks one after the other, each in a pass over all boxes, and then the one that comes first.
Fault CheckInPasses(const QStringList& boxes, int minimum, int highest)
{
    const auto empty = [&boxes](qsizetype i) { return boxes.at(i).isEmpty(); };
    const auto faultOf = [&](qsizetype i) -> Fault {
        const double value = Val(boxes.at(i));
        if (!empty(i) && value > highest) {
            return WinnerFault{5, boxes.at(i)};
        }
        return !empty(i) && value < 1 ? Fault(WinnerFault{38, {}}) : Fault();
    };
    if (faultOf(0)) {
        return faultOf(0);
    }
    int filled = 0;
    for (qsizetype i = 0; i < boxes.size(); ++i) {
        filled += empty(i) ? 0 : 1;
    }
    if (filled < minimum) {
        return WinnerFault{42, {}};
    }
    for (qsizetype i = 1; i < boxes.size(); ++i) {
        if (faultOf(i)) {
            return faultOf(i);
        }
    }
    std::vector<double> values;
    for (qsizetype i = 0; i < boxes.size(); ++i) {
        if (!empty(i)) {
            values.push_back(Val(boxes.at(i)));
        }
    }
    std::sort(values.begin(), values.end());
    const bool twice = std::adjacent_find(values.begin(), values.end()) != values.end();
    return twice ? Fault(WinnerFault{37, {}}) : Fault();
}

TEST(CheckYourNumbers, EveryMixtureOfBoxesIsJudgedAsByASecondWay)
{
    const QStringList texts{{}, u"0"_s, u"1"_s, u"01"_s, u"5"_s, u"6"_s};
    const auto kinds = texts.size();
    for (qsizetype code = 0; code < kinds * kinds * kinds * kinds; ++code) {
        const QStringList boxes{texts.at(code % kinds), texts.at(code / kinds % kinds),
                                texts.at(code / kinds / kinds % kinds),
                                texts.at(code / kinds / kinds / kinds)};
        for (int minimum = 1; minimum <= 4; ++minimum) {
            EXPECT_EQ(CheckYourNumbers(boxes, minimum, 5), CheckInPasses(boxes, minimum, 5))
                << boxes.join(u'|').toStdString() << " minimum " << minimum;
        }
    }
}

TEST(CheckYourNumbers, AreTakenFromTheirBoxesWithGapsAndLeadingZeros)
{
    const WinnerQuery query = QueryIn({u"07"_s, {}, u"12"_s}, 2);
    EXPECT_EQ(query.yourNumbers, (std::array<int, kMostPicks>{7, 0, 12}));
    EXPECT_EQ(query.minimum, 2);
}

} // namespace
