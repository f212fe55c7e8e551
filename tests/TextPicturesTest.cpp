#include "app/TextPictures.h"

#include "tests/QtPrinters.h"

#include <QList>
#include <QLocale>
#include <QString>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();

const QList<QString>& AllPictures()
{
    static const QList<QString> pictures{u"##"_s,           u"###"_s,         u"####"_s, u"#00"_s,
                                         u"##0"_s,          u"0"_s,           u"#"_s,    u"####,,###.00"_s,
                                         u"####,,##0.00"_s, u"###,,###.00"_s, u"00.0"_s};
    return pictures;
}

struct Written {
    double value;
    QString picture;
    QString text;
};

void ExpectWritten(const std::vector<Written>& rows)
{
    for (const Written& row : rows) {
        EXPECT_EQ(Format(row.value, row.picture), row.text)
            << row.value << " under " << row.picture.toStdString();
    }
}

} // namespace

TEST(TextPictures, ZeroUnderTwoHashesIsEmpty)
{
    EXPECT_EQ(Format(0, u"##"), u""_s);
}

TEST(TextPictures, ZeroShowsOnlyTheDigitsThePictureInsistsOn)
{
    ExpectWritten({{0, u"##"_s, u""_s},
                   {0, u"###"_s, u""_s},
                   {0, u"####"_s, u""_s},
                   {0, u"#00"_s, u"00"_s},
                   {0, u"##0"_s, u"0"_s},
                   {0, u"0"_s, u"0"_s},
                   {0, u"####,,###.00"_s, u".00"_s},
                   {0, u"####,,##0.00"_s, u"0.00"_s},
                   {0, u"###,,###.00"_s, u".00"_s}});
}

TEST(TextPictures, WholeNumbersAreWrittenUnderEveryPicture)
{
    ExpectWritten({{7, u"##"_s, u"7"_s},
                   {49, u"##"_s, u"49"_s},
                   {7, u"###"_s, u"7"_s},
                   {123, u"###"_s, u"123"_s},
                   {2001, u"####"_s, u"2001"_s},
                   {7, u"#00"_s, u"07"_s},
                   {49, u"#00"_s, u"49"_s},
                   {149, u"#00"_s, u"149"_s},
                   {7, u"##0"_s, u"7"_s},
                   {149, u"##0"_s, u"149"_s},
                   {5, u"0"_s, u"5"_s},
                   {5, u"####,,###.00"_s, u"5.00"_s},
                   {5, u"####,,##0.00"_s, u"5.00"_s},
                   {5, u"###,,###.00"_s, u"5.00"_s},
                   {1000, u"####,,###.00"_s, u"1,000.00"_s},
                   {1000, u"####,,##0.00"_s, u"1,000.00"_s},
                   {1000, u"###,,###.00"_s, u"1,000.00"_s}});
}

TEST(TextPictures, AWholeNumberIsWrittenAsTheNumbersThatRoundToIt)
{
    for (int number = 0; number <= 12000; ++number) {
        const QString whole = Format(number, u"####,,##0.00");
        ASSERT_EQ(whole, Format(number + 0.001, u"####,,##0.00")) << number; // these go the longer way
        ASSERT_EQ(Format(number, u"##"), Format(number + 0.25, u"##")) << number;
        ASSERT_EQ(Format(-number, u"####"), Format(-number - 0.25, u"####")) << number;
    }
    EXPECT_EQ(Format(999999999999999.0, u"##"), u"999999999999999"_s);
    EXPECT_EQ(Format(1e15, u"##"), u"1000000000000000"_s);
}

TEST(TextPictures, MoreDigitsThanThePictureHasAreAllWritten)
{
    ExpectWritten({{123, u"##"_s, u"123"_s},
                   {123456, u"###"_s, u"123456"_s},
                   {32767, u"####"_s, u"32767"_s},
                   {54321, u"#00"_s, u"54321"_s},
                   {54321, u"##0"_s, u"54321"_s},
                   {54321, u"0"_s, u"54321"_s},
                   {1234567890.25, u"####,,###.00"_s, u"1,234,567,890.25"_s},
                   {1234567890.25, u"####,,##0.00"_s, u"1,234,567,890.25"_s},
                   {1234567890.25, u"###,,###.00"_s, u"1,234,567,890.25"_s}});
}

TEST(TextPictures, TwoNeighbouringCommasGroupTheThousandsOnce)
{
    ExpectWritten({{1234567.5, u"###,,###.00"_s, u"1,234,567.50"_s},
                   {1234567.5, u"###,###.00"_s, u"1,234,567.50"_s},
                   {999.99, u"###,,###.00"_s, u"999.99"_s},
                   {1000, u"###,,###.00"_s, u"1,000.00"_s},
                   {99999.5, u"###,,###.00"_s, u"99,999.50"_s},
                   {999999.99, u"###,,###.00"_s, u"999,999.99"_s},
                   {1e6, u"###,,###.00"_s, u"1,000,000.00"_s}});
}

TEST(TextPictures, AnAmountBelowOneStartsWithThePointUnlessThePictureWantsADigit)
{
    ExpectWritten({{0.5, u"####,,###.00"_s, u".50"_s},
                   {0.5, u"###,,###.00"_s, u".50"_s},
                   {0.5, u"####,,##0.00"_s, u"0.50"_s},
                   {0.05, u"####,,###.00"_s, u".05"_s},
                   {-0.5, u"####,,###.00"_s, u"-.50"_s},
                   {-0.5, u"####,,##0.00"_s, u"-0.50"_s}});
}

TEST(TextPictures, ANegativeNumberCarriesItsSignBeforeTheFirstDigit)
{
    ExpectWritten({{-7, u"##"_s, u"-7"_s},
                   {-123, u"##"_s, u"-123"_s},
                   {-7, u"###"_s, u"-7"_s},
                   {-2001, u"####"_s, u"-2001"_s},
                   {-7, u"#00"_s, u"-07"_s},
                   {-7, u"##0"_s, u"-7"_s},
                   {-7, u"0"_s, u"-7"_s},
                   {-123456.75, u"####,,###.00"_s, u"-123,456.75"_s},
                   {-123456.75, u"####,,##0.00"_s, u"-123,456.75"_s},
                   {-123456.75, u"###,,###.00"_s, u"-123,456.75"_s}});
}

TEST(TextPictures, HalvesRoundAwayFromZero)
{
    ExpectWritten({{0.5, u"##"_s, u"1"_s},
                   {1.5, u"##"_s, u"2"_s},
                   {2.5, u"##"_s, u"3"_s},
                   {24.5, u"##"_s, u"25"_s},
                   {-0.5, u"##"_s, u"-1"_s},
                   {-2.5, u"##"_s, u"-3"_s},
                   {2.5, u"###"_s, u"3"_s},
                   {2.5, u"####"_s, u"3"_s},
                   {2.5, u"#00"_s, u"03"_s},
                   {2.5, u"##0"_s, u"3"_s},
                   {2.5, u"0"_s, u"3"_s},
                   {2.4999, u"0"_s, u"2"_s},
                   {-2.4999, u"0"_s, u"-2"_s},
                   {2.5001, u"0"_s, u"3"_s},
                   {0.4999, u"##"_s, u""_s},
                   {0.125, u"##0.00"_s, u"0.13"_s},
                   {-0.125, u"##0.00"_s, u"-0.13"_s}});
}

TEST(TextPictures, HalfACentIsAHalfAlthoughItsBinaryNeighbourLiesBelow)
{
    ExpectWritten({{2.675, u"####,,##0.00"_s, u"2.68"_s},
                   {-2.675, u"####,,##0.00"_s, u"-2.68"_s},
                   {1.005, u"####,,###.00"_s, u"1.01"_s},
                   {0.145, u"###,,###.00"_s, u".15"_s},
                   {0.285, u"###,,###.00"_s, u".29"_s},
                   {0.005, u"###,,###.00"_s, u".01"_s},
                   {1234567.125, u"###,,###.00"_s, u"1,234,567.13"_s}});
}

TEST(TextPictures, EveryHalfOfThousandsOfAmountsRoundsAwayFromZero)
{
    for (int cents = 0; cents < 20000; ++cents) {
        const double half = (cents + 0.5) / 100;
        const QString up = u"%1.%2"_s.arg((cents + 1) / 100).arg((cents + 1) % 100, 2, 10, QChar(u'0'));
        ASSERT_EQ(Format(half, u"####0.00"), up) << half;
        ASSERT_EQ(Format(-half, u"####0.00"), u'-' + up) << half;
        ASSERT_EQ(Format(cents + 0.5, u"##"), QString::number(cents + 1));
    }
}

TEST(TextPictures, ACarryGoesThroughAllTheNines)
{
    ExpectWritten({{9.5, u"##"_s, u"10"_s},
                   {99.5, u"##"_s, u"100"_s},
                   {999.995, u"###,,###.00"_s, u"1,000.00"_s},
                   {0.995, u"###,,###.00"_s, u"1.00"_s},
                   {-999999.995, u"###,,###.00"_s, u"-1,000,000.00"_s},
                   {99.95, u"##.#"_s, u"100."_s}});
}

TEST(TextPictures, AValueThatRoundsToZeroCarriesNoSign)
{
    ExpectWritten({{-0.0, u"0"_s, u"0"_s},
                   {-0.0, u"##"_s, u""_s},
                   {-0.4, u"##"_s, u""_s},
                   {-0.4, u"##0"_s, u"0"_s},
                   {-0.4, u"#00"_s, u"00"_s},
                   {-0.004, u"####,,###.00"_s, u".00"_s},
                   {-0.004, u"####,,##0.00"_s, u"0.00"_s},
                   {-0.005, u"####,,##0.00"_s, u"-0.01"_s},
                   {-1e-300, u"####,,##0.00"_s, u"0.00"_s}});
}

TEST(TextPictures, DecimalHashesLeaveTrailingZerosOut)
{
    ExpectWritten({{1.5, u"0.0#"_s, u"1.5"_s},
                   {1.25, u"0.0#"_s, u"1.25"_s},
                   {1, u"0.0#"_s, u"1.0"_s},
                   {1, u"0.##"_s, u"1."_s},
                   {1.5, u"0.##"_s, u"1.5"_s}});
}

TEST(TextPictures, HugeNumbersAreWrittenOutInFifteenCertainDigits)
{
    ExpectWritten({{1e15, u"##"_s, u"1000000000000000"_s},
                   {123456789012345.0, u"##"_s, u"123456789012345"_s},
                   {1234567890123456789.0, u"##"_s, u"1234567890123460000"_s},
                   {1234567890123456789.0, u"###,,###.00"_s, u"1,234,567,890,123,460,000.00"_s}});
    EXPECT_EQ(Format(1e300, u"##"), u'1' + QString(300, u'0'));
    EXPECT_EQ(Format(-1e300, u"##"), u"-1"_s + QString(300, u'0'));
    EXPECT_EQ(Format(kLargest, u"0"), u"179769313486232"_s + QString(294, u'0'));
    EXPECT_EQ(Format(1e299, u"###,,###.00"), u"100"_s + u",000"_s.repeated(99) + u".00"_s);
}

TEST(TextPictures, TinyNumbersAreWrittenAsZero)
{
    for (const double tiny : {1e-3, 1e-15, 1e-16, 1e-100, 1e-300, 5e-324}) {
        EXPECT_EQ(Format(tiny, u"##"), u""_s) << tiny;
        EXPECT_EQ(Format(tiny, u"#00"), u"00"_s) << tiny;
        EXPECT_EQ(Format(tiny, u"####,,###.00"), u".00"_s) << tiny;
        EXPECT_EQ(Format(-tiny, u"####,,##0.00"), u"0.00"_s) << tiny;
    }
}

TEST(TextPictures, WhatIsNotFiniteIsEmptyUnderEveryPicture)
{
    for (const QString& picture : AllPictures()) {
        EXPECT_EQ(Format(kInfinite, picture), u""_s);
        EXPECT_EQ(Format(-kInfinite, picture), u""_s);
        EXPECT_EQ(Format(kNotANumber, picture), u""_s);
    }
}

TEST(TextPictures, AnEmptyOrBlankTextIsEmptyUnderEveryPicture)
{
    for (const QString& picture : AllPictures()) {
        EXPECT_EQ(Format(u""_s, picture), u""_s);
        EXPECT_EQ(Format(QString(), picture), u""_s);
        EXPECT_EQ(Format(u"   "_s, picture), u""_s);
        EXPECT_EQ(Format(u"\t \u00A0"_s, picture), u""_s);
    }
}

TEST(TextPictures, ATextIsWrittenByItsLeadingNumber)
{
    struct TextRow {
        QString given;
        QString picture;
        QString text;
    };
    const std::vector<TextRow> rows{
        {u"7"_s, u"##"_s, u"7"_s},
        {u" 07"_s, u"##"_s, u"7"_s},
        {u"0"_s, u"##"_s, u""_s},
        {u"0"_s, u"####,,###.00"_s, u".00"_s},
        {u"0"_s, u"####,,##0.00"_s, u"0.00"_s},
        {u"12.5"_s, u"##"_s, u"13"_s},
        {u"1 2"_s, u"##"_s, u"12"_s},
        {u"-3"_s, u"##"_s, u"-3"_s},
        {u"49 of 49"_s, u"##"_s, u"49"_s},
        {u"abc"_s, u"##"_s, u""_s},
        {u"abc"_s, u"##0"_s, u"0"_s},
        {u"1234567.5"_s, u"###,,###.00"_s, u"1,234,567.50"_s},
        {u"."_s, u"###,,###.00"_s, u".00"_s},
    };
    for (const TextRow& row : rows) {
        EXPECT_EQ(Format(row.given, row.picture), row.text)
            << row.given.toStdString() << " under " << row.picture.toStdString();
    }
}

TEST(TextPictures, PointAndCommaAreThoseOfThePictureInEveryLocale)
{
    const QLocale before;
    for (const QLocale::Language language : {QLocale::German, QLocale::French, QLocale::Arabic}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(Format(1234567.5, u"###,,###.00"), u"1,234,567.50"_s);
        EXPECT_EQ(Str(1.5), u" 1.5"_s);
        EXPECT_EQ(Val(u"1.5"), 1.5);
        EXPECT_EQ(Val(u"1,5"), 1);
    }
    QLocale::setDefault(before);
}

TEST(TextPictures, WhatAMoneyPictureWritesReadsBackOnceTheCommasAreOut)
{
    std::mt19937 random(20240305);
    std::uniform_int_distribution<qint64> cents(-99'999'999'999, 99'999'999'999);
    for (int round = 0; round < 20000; ++round) {
        const qint64 given = cents(random);
        QString text = Format(static_cast<double>(given) / 100, u"####,,##0.00");
        const QString grouped = text;
        text.remove(u',');
        ASSERT_EQ(std::llround(Val(text) * 100), given) << grouped.toStdString();
        ASSERT_EQ(text.size() - text.indexOf(u'.'), 3) << grouped.toStdString();
    }
}

TEST(Str, WritesOneBlankForTheSignOfANonNegativeNumber)
{
    EXPECT_EQ(Str(0), u" 0"_s);
    EXPECT_EQ(Str(-0.0), u" 0"_s);
    EXPECT_EQ(Str(6), u" 6"_s);
    EXPECT_EQ(Str(49), u" 49"_s);
    EXPECT_EQ(Str(2001), u" 2001"_s);
    EXPECT_EQ(Str(32767), u" 32767"_s);
    EXPECT_EQ(Str(1000000), u" 1000000"_s);
}

TEST(Str, WritesTheMinusOfANegativeNumberInPlaceOfTheBlank)
{
    EXPECT_EQ(Str(-1), u"-1"_s);
    EXPECT_EQ(Str(-32768), u"-32768"_s);
    EXPECT_EQ(Str(-0.5), u"-0.5"_s);
}

TEST(Str, WritesDecimalsWithAPointAndNoMoreDigitsThanAreCertain)
{
    EXPECT_EQ(Str(0.5), u" 0.5"_s);
    EXPECT_EQ(Str(12.25), u" 12.25"_s);
    EXPECT_EQ(Str(0.1 + 0.2), u" 0.3"_s);
    EXPECT_EQ(Str(123456789012345.0), u" 123456789012345"_s);
}

TEST(Str, IsReadBackByVal)
{
    for (int number = -40000; number <= 40000; ++number) {
        ASSERT_EQ(Val(Str(number)), number);
    }
    for (const double number : {0.5, -0.5, 12.34, 1e14, 1e15, 1e20, 1e300, -1e300, 1e-5, 1e-300}) {
        EXPECT_EQ(Val(Str(number)), number);
    }
}

TEST(Val, ReadsTheLeadingNumberOfAText)
{
    struct Read {
        QString text;
        double value;
    };
    const std::vector<Read> rows{
        // plain
        {u"0"_s, 0},
        {u"7"_s, 7},
        {u"0007"_s, 7},
        {u"49"_s, 49},
        {u"12.34"_s, 12.34},
        // blanks wherever they stand
        {u"  7"_s, 7},
        {u"7  "_s, 7},
        {u" 1 2 . 3 4 "_s, 12.34},
        {u"- 5"_s, -5},
        {u"\t7\r\n1"_s, 71},
        {u"5\u00A05"_s, 55},
        {u"1 e 2"_s, 100},
        // points
        {u".5"_s, 0.5},
        {u"5."_s, 5},
        {u"."_s, 0},
        {u".."_s, 0},
        {u"1.2.3"_s, 1.2},
        {u"1..2"_s, 1},
        {u"-.5"_s, -0.5},
        // signs
        {u"+5"_s, 5},
        {u"-5"_s, -5},
        {u"--5"_s, 0},
        {u"+-5"_s, 0},
        {u"-"_s, 0},
        {u"+"_s, 0},
        {u"5-3"_s, 5},
        {u"5+3"_s, 5},
        {u"5-"_s, 5},
        // exponents
        {u"1e5"_s, 100000},
        {u"1E5"_s, 100000},
        {u"1e+2"_s, 100},
        {u"25e-1"_s, 2.5},
        {u"-1.5e3"_s, -1500},
        {u"1.e2"_s, 100},
        {u".5e1"_s, 5},
        {u"1e"_s, 1},
        {u"1e+"_s, 1},
        {u"1e-"_s, 1},
        {u"1e+-2"_s, 1},
        {u"1e5.5"_s, 100000},
        {u"1e5e5"_s, 100000},
        {u"1e2-3"_s, 100},
        {u"e5"_s, 0},
        {u".e5"_s, 0},
        // what follows the number, and what is none
        {u"12abc"_s, 12},
        {u"49 of 49"_s, 49},
        {u"1,234"_s, 1},
        {u"7/8"_s, 7},
        {u"abc12"_s, 0},
        {u"$5"_s, 0},
        {u"(5)"_s, 0},
        {u"0x10"_s, 0},
        {u"inf"_s, 0},
        {u"nan"_s, 0},
        {u"-inf"_s, 0},
        {u"\u0667"_s, 0}, // an Arabic-Indic seven
        {u"5\u0667"_s, 5},
        {u"\uFF17"_s, 0},     // a full-width seven
        {u"\u00B2"_s, 0},     // a superscript two
        {u"\U0001D7D7"_s, 0}, // a mathematical bold nine
        {u""_s, 0},
        {u"   "_s, 0},
        {QString(), 0},
        {QString(1, QChar(0)), 0},
        {u'7' + QString(1, QChar(0)) + u'8', 7},
    };
    for (const Read& row : rows) {
        EXPECT_EQ(Val(row.text), row.value) << testing::PrintToString(row.text);
    }
}

TEST(Val, ReadsFiguresAloneAsItReadsThemBeforeAPoint)
{
    for (const QString& text : {u"0"_s, u"7"_s, u"007"_s, u"49"_s, u"2001"_s, u"999999999999999"_s,
                                u"9007199254740993"_s, u"12345678901234567890"_s}) {
        EXPECT_EQ(Val(text), Val(text + u".0")) << text.toStdString();
    }
}

TEST(Val, IsTheLargestDoubleForANumberBeyondIt)
{
    EXPECT_EQ(Val(u"1e308"), 1e308);
    EXPECT_EQ(Val(u"1e309"), kLargest);
    EXPECT_EQ(Val(u"1e400"), kLargest);
    EXPECT_EQ(Val(u"-1e400"), -kLargest);
    EXPECT_EQ(Val(u"1e99999999999999999999"), kLargest);
    EXPECT_EQ(Val(QString(400, u'9')), kLargest);
    EXPECT_EQ(Val(QString(u'-' + QString(100000, u'9'))), -kLargest);
    EXPECT_EQ(Val(QString(QString(400, u'9') + u"abc"_s)), kLargest);
}

TEST(Val, IsZeroForANumberTooNearToIt)
{
    EXPECT_EQ(Val(u"1e-400"), 0);
    EXPECT_EQ(Val(u"-1e-400"), 0);
    EXPECT_EQ(Val(u"1e-99999999999999999999"), 0);
    EXPECT_EQ(Val(u"0e99999999999999999999"), 0);
    EXPECT_EQ(Val(QString(u"0."_s + QString(1000, u'0') + u'1')), 0);
}

TEST(Val, ReadsLongTextsOfDigitsThatStayInRange)
{
    EXPECT_EQ(Val(QString(QString(10000, u'0') + u'7')), 7);
    EXPECT_EQ(Val(QString(u"7."_s + QString(10000, u'0'))), 7);
    EXPECT_EQ(Val(QString(u"0."_s + QString(1000, u'0') + u"5e1001"_s)), 5);
    EXPECT_EQ(Val(QString(QString(100000, u' ') + u'7')), 7);
}

TEST(RightJustify, PutsAShorterTextAtTheRightEnd)
{
    EXPECT_EQ(RightJustify(u"7"_s, 2), u" 7"_s);
    EXPECT_EQ(RightJustify(u"7"_s, 4), u"   7"_s);
    EXPECT_EQ(RightJustify(u"1,234.50"_s, 12), u"    1,234.50"_s);
    EXPECT_EQ(RightJustify(u""_s, 3), u"   "_s);
    EXPECT_EQ(RightJustify(QString(), 3), u"   "_s);
}

TEST(RightJustify, LeavesATextOfTheWidthAlone)
{
    EXPECT_EQ(RightJustify(u"49"_s, 2), u"49"_s);
    EXPECT_EQ(RightJustify(u" 7"_s, 2), u" 7"_s);
    EXPECT_EQ(RightJustify(u""_s, 0), u""_s);
}

TEST(RightJustify, KeepsTheLeftmostCharactersOfALongerText)
{
    EXPECT_EQ(RightJustify(u"12345"_s, 4), u"1234"_s);
    EXPECT_EQ(RightJustify(u"abcdef"_s, 1), u"a"_s);
    EXPECT_EQ(RightJustify(u"  12"_s, 3), u"  1"_s);
}

TEST(RightJustify, IsEmptyInAFieldWithoutWidth)
{
    EXPECT_EQ(RightJustify(u"7"_s, 0), u""_s);
    EXPECT_EQ(RightJustify(u"7"_s, -1), u""_s);
    EXPECT_EQ(RightJustify(u"7"_s, std::numeric_limits<int>::min()), u""_s);
    EXPECT_EQ(RightJustify(u""_s, -1), u""_s);
}

TEST(ToInt16, RoundsHalvesToTheEvenNeighbour)
{
    struct Rounded {
        double value;
        qint16 whole;
    };
    const std::vector<Rounded> rows{
        {0.5, 0},     {1.5, 2},     {2.5, 2},  {3.5, 4},  {24.5, 24}, {25.5, 26},  {-0.5, 0},   {-1.5, -2},
        {-2.5, -2},   {-3.5, -4},   {0.49, 0}, {0.51, 1}, {-0.49, 0}, {-0.51, -1}, {2.499, 2},  {2.501, 3},
        {-2.499, -2}, {-2.501, -3}, {0, 0},    {-0.0, 0}, {7, 7},     {-7, -7},    {5e-324, 0}, {1e-300, 0},
    };
    for (const Rounded& row : rows) {
        EXPECT_EQ(ToInt16(row.value), std::optional<qint16>(row.whole)) << row.value;
    }
}

TEST(ToInt16, AgreesWithEveryWholeAndHalfNumberInRange)
{
    for (int number = -32768; number <= 32767; ++number) {
        ASSERT_EQ(ToInt16(number), std::optional<qint16>(static_cast<qint16>(number)));
        const int even = number % 2 == 0 ? number : number + 1;
        const std::optional<qint16> expected =
            even > 32767 ? std::nullopt : std::optional<qint16>(static_cast<qint16>(even));
        ASSERT_EQ(ToInt16(number + 0.5), expected) << number;
    }
}

TEST(ToInt16, RefusesWhatDoesNotFit)
{
    EXPECT_EQ(ToInt16(32767.49), std::optional<qint16>(32767));
    EXPECT_EQ(ToInt16(std::nextafter(32767.5, 0)), std::optional<qint16>(32767));
    EXPECT_EQ(ToInt16(-32768.5), std::optional<qint16>(-32768)); // the half goes to the even -32768
    EXPECT_EQ(ToInt16(32767.5), std::nullopt);                   // and here to 32768
    EXPECT_EQ(ToInt16(std::nextafter(-32768.5, -40000)), std::nullopt);
    for (const double outside : {32768.0, 32769.0, -32769.0, -32770.0, 65536.0, 65537.0, 4294967296.0, 1e300,
                                 -1e300, kLargest, kInfinite, -kInfinite, kNotANumber}) {
        EXPECT_EQ(ToInt16(outside), std::nullopt) << outside;
    }
}
