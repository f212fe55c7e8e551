#include "database/NewRow.h"

#include "tests/QtPrinters.h"

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <ostream>
#include <vector>

using namespace Qt::StringLiterals;

// Beside EntryFault, where GoogleTest looks for them.
static bool operator==(const EntryFault& a, const EntryFault& b)
{
    return a.message == b.message && a.arg1 == b.arg1;
}

static void PrintTo(const EntryFault& fault, std::ostream* out)
{
    *out << "message " << fault.message << " ";
    PrintTo(fault.arg1, out);
}

namespace {

using Fault = std::optional<EntryFault>;

constexpr int kZeroInNewRow = 6;
constexpr int kZeroInCorrection = 38;

Fault NoFault()
{
    return std::nullopt;
}

Fault Missing()
{
    return EntryFault{29, {}};
}

Fault TooHigh(const QString& text)
{
    return EntryFault{5, text};
}

Fault Zero()
{
    return EntryFault{kZeroInNewRow, {}};
}

Fault Check(const QStringList& boxes, int highest = 49)
{
    return CheckNumbers(boxes, highest, kZeroInNewRow);
}

} // namespace

TEST(NewRow, IsEmptyWhenItsFirstBoxIsEmptyOrZero)
{
    EXPECT_TRUE(RowIsEmpty({}));
    EXPECT_TRUE(RowIsEmpty({u""_s}));
    EXPECT_TRUE(RowIsEmpty({QString()}));
    EXPECT_TRUE(RowIsEmpty({u"  "_s}));
    EXPECT_TRUE(RowIsEmpty({u"0"_s}));
    EXPECT_TRUE(RowIsEmpty({u"00"_s}));
    EXPECT_TRUE(RowIsEmpty({u""_s, u"7"_s, u"8"_s}));
    EXPECT_TRUE(RowIsEmpty({u"0"_s, u"7"_s}));
}

TEST(NewRow, IsNotEmptyWhenOnlyLaterBoxesAre)
{
    EXPECT_FALSE(RowIsEmpty({u"1"_s}));
    EXPECT_FALSE(RowIsEmpty({u"7"_s, u""_s, u"0"_s}));
    EXPECT_FALSE(RowIsEmpty({u"99"_s}));
    EXPECT_FALSE(RowIsEmpty({u" 7"_s}));
    EXPECT_FALSE(RowIsEmpty({QString(400, u'9')}));
}

TEST(NewRow, EqualBoxesAreCountedInPairs)
{
    struct PairsRow {
        QStringList boxes;
        int pairs;
    };
    const std::vector<PairsRow> rows{
        {{}, 0},
        {{u"5"_s}, 0},
        {{u"5"_s, u"6"_s}, 0},
        {{u"5"_s, u"5"_s}, 1},
        {{u"5"_s, u"6"_s, u"5"_s}, 1},
        {{u"5"_s, u"5"_s, u"5"_s}, 3},
        {{u"5"_s, u"5"_s, u"6"_s, u"6"_s}, 2},
        {{u"5"_s, u"5"_s, u"5"_s, u"5"_s}, 6},
        {QStringList(10, u"7"_s), 45},
        {{u"5"_s, u"05"_s}, 1},
        {{u"5"_s, u" 5"_s, u"5 "_s}, 3},
        {{u"1"_s, u"10"_s, u"11"_s}, 0},
    };
    for (const PairsRow& row : rows) {
        EXPECT_EQ(CountDuplicatePairs(row.boxes), row.pairs) << testing::PrintToString(row.boxes);
    }
}

TEST(NewRow, EmptyAndZeroBoxesAreNoDuplicates)
{
    EXPECT_EQ(CountDuplicatePairs({u""_s, u""_s}), 0);
    EXPECT_EQ(CountDuplicatePairs({u"0"_s, u"0"_s}), 0);
    EXPECT_EQ(CountDuplicatePairs({u""_s, u"0"_s, u"00"_s, u" "_s}), 0);
    EXPECT_EQ(CountDuplicatePairs({u"5"_s, u""_s, u"0"_s, u""_s}), 0);
    EXPECT_EQ(CountDuplicatePairs(QStringList(10, u""_s)), 0);
}

TEST(NewRow, NumbersFromOneToTheHighestAreAccepted)
{
    EXPECT_EQ(Check({u"1"_s, u"2"_s, u"3"_s, u"25"_s, u"48"_s, u"49"_s}), NoFault());
    for (int highest = 1; highest <= 60; ++highest) {
        for (int number = 1; number <= highest; ++number) {
            EXPECT_EQ(Check({QString::number(number)}, highest), NoFault()) << number << " of " << highest;
        }
    }
}

TEST(NewRow, TheNumberAfterTheHighestIsRefusedAndQuoted)
{
    EXPECT_EQ(Check({u"50"_s}), TooHigh(u"50"_s));
    for (int highest = 1; highest <= 60; ++highest) {
        const QString text = QString::number(highest + 1);
        EXPECT_EQ(Check({text}, highest), TooHigh(text));
    }
}

TEST(NewRow, ANumberTooHighIsQuotedAsItStandsInItsBox)
{
    EXPECT_EQ(Check({u" 50"_s}), TooHigh(u" 50"_s));
    EXPECT_EQ(Check({u"050"_s}), TooHigh(u"050"_s));
    EXPECT_EQ(Check({u"99999999999999999999"_s}), TooHigh(u"99999999999999999999"_s));
    EXPECT_EQ(Check({QString(400, u'9')}), TooHigh(QString(400, u'9')));
}

TEST(NewRow, AnEmptyBoxIsAMissingNumber)
{
    EXPECT_EQ(Check({u""_s}), Missing());
    EXPECT_EQ(Check({QString()}), Missing());
    EXPECT_EQ(Check({u"   "_s}), Missing());
    EXPECT_EQ(Check({u"1"_s, u"2"_s, u""_s}), Missing());
}

TEST(NewRow, ANumberBelowOneIsRefusedUnderTheMessageOfItsRow)
{
    EXPECT_EQ(Check({u"0"_s}), Zero());
    EXPECT_EQ(Check({u"00"_s}), Zero());
    EXPECT_EQ(Check({u"-1"_s}), Zero());
    EXPECT_EQ(Check({u"abc"_s}), Zero());
    EXPECT_EQ(CheckNumbers({u"7"_s, u"0"_s}, 49, kZeroInCorrection),
              Fault(EntryFault{kZeroInCorrection, {}}));
}

TEST(NewRow, OtherFaultsKeepTheirMessageInACorrection)
{
    EXPECT_EQ(CheckNumbers({u""_s}, 49, kZeroInCorrection), Missing());
    EXPECT_EQ(CheckNumbers({u"50"_s}, 49, kZeroInCorrection), TooHigh(u"50"_s));
    EXPECT_EQ(CheckNumbers({u"49"_s}, 49, kZeroInCorrection), NoFault());
}

TEST(NewRow, TheFirstFaultyBoxDecidesForEveryMixOfThreeBoxes)
{
    struct Box {
        QString text;
        Fault fault;
    };
    const std::vector<Box> boxes{
        {u"7"_s, NoFault()},         {u"49"_s, NoFault()},        {u""_s, Missing()},
        {u"50"_s, TooHigh(u"50"_s)}, {u"51"_s, TooHigh(u"51"_s)}, {u"0"_s, Zero()},
    };
    for (const Box& first : boxes) {
        for (const Box& second : boxes) {
            for (const Box& third : boxes) {
                const Fault expected = first.fault ? first.fault : second.fault ? second.fault : third.fault;
                EXPECT_EQ(Check({first.text, second.text, third.text}), expected)
                    << first.text.toStdString() << "," << second.text.toStdString() << ","
                    << third.text.toStdString();
            }
        }
    }
}

TEST(NewRow, EveryBoxIsChecked)
{
    for (qsizetype faulty = 0; faulty < 10; ++faulty) {
        QStringList boxes(10, u"7"_s);
        boxes[faulty] = u"61"_s;
        EXPECT_EQ(Check(boxes, 60), TooHigh(u"61"_s)) << faulty;
        boxes[faulty] = u""_s;
        EXPECT_EQ(Check(boxes, 60), Missing()) << faulty;
        boxes[faulty] = u"0"_s;
        EXPECT_EQ(Check(boxes, 60), Zero()) << faulty;
    }
}

TEST(NewRow, NoBoxesHaveNoFault)
{
    EXPECT_EQ(Check({}), NoFault());
}

TEST(NewRow, TheNumbersAreTakenInTheOrderOfTheBoxes)
{
    EXPECT_EQ(NumbersIn({u"49"_s, u" 7"_s, u"07"_s, u"1"_s}), (std::vector<int>{49, 7, 7, 1}));
    EXPECT_EQ(NumbersIn({}), std::vector<int>{});
}

TEST(NewRow, TheDatabaseIsFullOnlyAboveTwoThousandRecords)
{
    DrawDatabase database;
    for (const int count : {0, 1, 1999, 2000}) {
        database.count = static_cast<qint16>(count);
        EXPECT_FALSE(IsFull(database)) << count;
    }
    for (const int count : {2001, 2002}) {
        database.count = static_cast<qint16>(count);
        EXPECT_TRUE(IsFull(database)) << count;
    }
}

TEST(NewRow, RecordsAreAddedUpToThe2001st)
{
    DrawDatabase database;
    database.columns = 3;
    database.highest = 9;
    int added = 0;
    while (!IsFull(database) && database.Append(QDate(2024, 3, 5), {7})) {
        ++added;
    }
    EXPECT_EQ(added, 2001);
    EXPECT_EQ(database.count, 2001);
    EXPECT_EQ(database.records.at(2001).number, Cell{2001});
    EXPECT_EQ(database.records.at(2002), DrawRecord{});
}
