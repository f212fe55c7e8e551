#include "app/KeyFilters.h"

#include "tests/QtPrinters.h"

#include <QString>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLastKey = 0x10FFFF;

/// What stands in a money box after the keys were typed one by one; the number of refused ones in @p beeps.
QString TypeDecimals(const QString& keys, int* beeps)
{
    QString text;
    for (const QChar key : keys) {
        const int kept = FilterDecimalKey(key.unicode(), text);
        if (kept == 0) {
            ++*beeps;
        } else if (kept == kBackspaceKey) {
            text.chop(1);
        } else {
            text += QChar(kept);
        }
    }
    return text;
}

/// The keys that a filter must pass unchanged; it must drop every other one.
template <typename Filter>
void ExpectOnly(Filter filter, const QString& passing)
{
    for (int key = 0; key <= kLastKey; ++key) {
        const bool passes = key == 8 || key == 127 || (key < 128 && passing.contains(QChar(key)));
        ASSERT_EQ(filter(key), passes ? key : 0) << "key " << key;
    }
    for (const int key : {-1, -'5', std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
                          kLastKey + 1 + '5', 0x01000000 + '5'}) {
        EXPECT_EQ(filter(key), 0) << "key " << key;
    }
}

} // namespace

TEST(KeyFilters, TheDigitFilterPassesDigitsBackspaceAndDeleteAlone)
{
    ExpectOnly(FilterDigitKey, u"0123456789"_s);
}

TEST(KeyFilters, TheDateFilterPassesTheThreeSeparatorsToo)
{
    ExpectOnly(FilterDateKey, u"0123456789.-/"_s);
}

TEST(KeyFilters, TheDecimalFilterOfAnEmptyBoxPassesDigitsAndThePoint)
{
    ExpectOnly([](int key) { return FilterDecimalKey(key, u""); }, u"0123456789."_s);
}

TEST(KeyFilters, TheDecimalFilterOfAFullBoxPassesNoDigit)
{
    ExpectOnly([](int key) { return FilterDecimalKey(key, u"12.34"); }, u"."_s);
}

TEST(KeyFilters, EnterIsNoDigit)
{
    EXPECT_EQ(FilterDigitKey(kEnterKey), 0);
    EXPECT_EQ(FilterDecimalKey(kEnterKey, u"1"), 0);
    EXPECT_EQ(FilterDateKey(kEnterKey), 0);
}

TEST(KeyFilters, TheKeysBearTheirCharacterCodes)
{
    EXPECT_EQ(kBackspaceKey, 8);
    EXPECT_EQ(kEnterKey, 13);
    EXPECT_EQ(kDeleteKey, 127);
}

TEST(KeyFilters, ADigitPassesWhileFewerThanTwoStandBehindThePoint)
{
    struct Box {
        QString text;
        int kept;
    };
    const std::vector<Box> rows{
        {u""_s, '5'},     {u"1"_s, '5'},   {u"123456789"_s, '5'}, {u"."_s, '5'},       {u".1"_s, '5'},
        {u".12"_s, 0},    {u"1."_s, '5'},  {u"1.2"_s, '5'},       {u"1.23"_s, 0},      {u"12."_s, '5'},
        {u"12.3"_s, '5'}, {u"12.34"_s, 0}, {u"12.345"_s, 0},      {u".."_s, '5'},      {u"..."_s, 0},
        {u"1.."_s, '5'},  {u"1..2"_s, 0},  {u"1.2."_s, 0},        {u"12345.6"_s, '5'}, {u"12345.67"_s, 0},
        {u"1,50"_s, '5'},
    };
    for (const Box& row : rows) {
        EXPECT_EQ(FilterDecimalKey('5', row.text), row.kept) << row.text.toStdString();
        EXPECT_EQ(FilterDecimalKey('0', row.text), row.kept == 0 ? 0 : '0') << row.text.toStdString();
    }
}

TEST(KeyFilters, ASecondPointIsNotRefused)
{
    for (const QString& text : {u""_s, u"."_s, u"1.2"_s, u"1.23"_s, u"1.2.3."_s}) {
        EXPECT_EQ(FilterDecimalKey('.', text), '.') << text.toStdString();
    }
}

TEST(KeyFilters, ErasingPassesInAFullMoneyBox)
{
    EXPECT_EQ(FilterDecimalKey(kBackspaceKey, u"12.34"), kBackspaceKey);
    EXPECT_EQ(FilterDecimalKey(kDeleteKey, u"12.34"), kDeleteKey);
}

TEST(KeyFilters, TypingAThirdDecimalLeavesTwo)
{
    int beeps = 0;
    EXPECT_EQ(TypeDecimals(u"12.345"_s, &beeps), u"12.34"_s);
    EXPECT_EQ(beeps, 1);
}

TEST(KeyFilters, LettersAndCommasLeaveAMoneyBoxUnchanged)
{
    int beeps = 0;
    EXPECT_EQ(TypeDecimals(u"1a2,.-5$0"_s, &beeps), u"12.50"_s);
    EXPECT_EQ(beeps, 4);
}

TEST(KeyFilters, BackspaceMakesRoomForAnotherDecimal)
{
    int beeps = 0;
    EXPECT_EQ(TypeDecimals(u"1.239\b9"_s, &beeps), u"1.29"_s);
    EXPECT_EQ(beeps, 1);
}

TEST(KeyFilters, TheFileTextFilterPassesWhatISO8859Holds)
{
    for (int key = 0; key < ' '; ++key) { // line breaks and other control characters have no place in a title
        EXPECT_EQ(FilterFileTextKey(key), key == kBackspaceKey ? key : 0);
    }
    for (int key = ' '; key <= 0xFF; ++key) {
        EXPECT_EQ(FilterFileTextKey(key), key);
    }
    for (int key = 0x100; key <= kLastKey; ++key) {
        ASSERT_EQ(FilterFileTextKey(key), 0) << "key " << key;
    }
    for (const int key : {-1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(FilterFileTextKey(key), 0) << "key " << key;
    }
}

TEST(KeyFilters, TheQuotedTextFilterPassesAllOfTheFileTextFilterButTheDoubleQuote)
{
    for (int key = 0; key <= 0x200; ++key) {
        EXPECT_EQ(FilterQuotedTextKey(key), key == '"' ? 0 : FilterFileTextKey(key)) << key;
    }
}
