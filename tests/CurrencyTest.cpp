#include "app/Currency.h"

#include "app/FieldWriter.h"
#include "app/TextPictures.h"
#include "tests/QtPrinters.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMost = std::numeric_limits<qint64>::max();
constexpr qint64 kLeast = std::numeric_limits<qint64>::min();

struct Reading {
    QString text;
    qint64 tenThousandths;
};

void ExpectRead(const std::vector<Reading>& rows)
{
    for (const Reading& row : rows) {
        const std::optional<Currency> amount = Currency::FromText(row.text);
        ASSERT_TRUE(amount.has_value()) << row.text.toStdString();
        EXPECT_EQ(amount->TenThousandths(), row.tenThousandths) << row.text.toStdString();
    }
}

QString Plain(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths).Plain();
}

} // namespace

TEST(Currency, IsNothingAtFirst)
{
    EXPECT_EQ(Currency().TenThousandths(), 0);
}

TEST(Currency, ReadsTheLeadingNumberOfAText)
{
    ExpectRead({{u"12"_s, 120000},
                {u"-12.5"_s, -125000},
                {u"+3"_s, 30000},
                {u" 1 000.25 "_s, 10002500},
                {u".5"_s, 5000},
                {u"5."_s, 50000},
                {u"5-"_s, 50000},
                {u"1.2.3"_s, 12000},
                {u"12 tickets"_s, 120000},
                {u"00012"_s, 120000},
                {u"1e3"_s, 10000000},
                {u"1E-4"_s, 1},
                {u"125e-1"_s, 125000},
                {u"0.0001e4"_s, 10000}});
}

TEST(Currency, ATextWithoutANumberIsNought)
{
    for (const QString& text : {u""_s, u"-"_s, u"."_s, u"-."_s, u"--5"_s, u"abc"_s, u"e5"_s, u"-e"_s}) {
        EXPECT_EQ(Currency::FromText(text), Currency()) << text.toStdString();
    }
}

TEST(Currency, MoreThanFourDecimalsAreRoundedHalvesToTheEvenNeighbour)
{
    ExpectRead({{u"0.12345"_s, 1234},
                {u"0.12355"_s, 1236},
                {u"0.123450000000001"_s, 1235},
                {u"0.1234500000"_s, 1234},
                {u"0.12344999999999999999999"_s, 1234},
                {u"-0.12345"_s, -1234},
                {u"-0.12355"_s, -1236},
                {u"0.00005"_s, 0},
                {u"0.00015"_s, 2},
                {u"0.000050000001"_s, 1},
                {u"0.000049"_s, 0},
                {u"0.0000099"_s, 0},
                {u"0.99995"_s, 10000},
                {u"5e-5"_s, 0},
                {u"6e-5"_s, 1}});
}

TEST(Currency, AmountsNoBinaryFractionHoldsAreExact)
{
    ExpectRead({{u"0.1"_s, 1000}, {u"0.3"_s, 3000}, {u"1234567890123.4567"_s, 12345678901234567}});
    std::optional<Currency> sum = Currency();
    for (int i = 0; i < 105; ++i) {
        sum = Sum(*sum, *Currency::FromText(u"0.1"_s));
        ASSERT_TRUE(sum.has_value());
    }
    EXPECT_EQ(sum->TenThousandths(), 105000);
    EXPECT_EQ(Format(*sum, u"####,,##0.00"), u"10.50"_s);
}

TEST(Currency, TheRangeIsReadToItsEndsAndNotBeyond)
{
    ExpectRead({{u"922337203685477.5807"_s, kMost},
                {u"-922337203685477.5808"_s, kLeast},
                {u"922337203685477.58074"_s, kMost},
                {u"-922337203685477.58085"_s, kLeast},
                {u"0000000000000000000000000001"_s, 10000},
                {u"9223372036854775807e-4"_s, kMost},
                {u"1e14"_s, 1'000'000'000'000'000'000}});
    for (const QString& text :
         {u"922337203685477.5808"_s, u"-922337203685477.5809"_s, u"922337203685477.58075"_s,
          u"-922337203685477.58086"_s, u"1000000000000000"_s, u"9999999999999999"_s, u"1e15"_s, u"1e30"_s,
          u"-1e30"_s, u"1e99999999999999999999"_s, QString(500, u'9')}) {
        EXPECT_EQ(Currency::FromText(text), std::nullopt) << text.toStdString();
    }
    ExpectRead({{u"1e-30"_s, 0}, {u"1e-99999999999999999999"_s, 0}, {u"0e99999999999999999999"_s, 0}});
}

TEST(Currency, AThousandFiguresAreRead)
{
    ExpectRead({{QString(1000, u'0') + u"7"_s, 70000}, {u"7."_s + QString(1000, u'0') + u"1"_s, 70000}});
}

TEST(Currency, APlainTextHasNoFigureMoreThanItTakes)
{
    EXPECT_EQ(Plain(0), u"0"_s);
    EXPECT_EQ(Plain(5000), u"0.5"_s);
    EXPECT_EQ(Plain(-5000), u"-0.5"_s);
    EXPECT_EQ(Plain(1), u"0.0001"_s);
    EXPECT_EQ(Plain(125000), u"12.5"_s);
    EXPECT_EQ(Plain(1000000), u"100"_s);
    EXPECT_EQ(Plain(-10020304), u"-1002.0304"_s);
    EXPECT_EQ(Plain(kMost), u"922337203685477.5807"_s);
    EXPECT_EQ(Plain(kLeast), u"-922337203685477.5808"_s);
}

TEST(Currency, APlainTextReadsBackAsTheSame)
{
    for (const qint64 count : {qint64(0), qint64(1), qint64(-1), qint64(9999), qint64(10000), qint64(-10001),
                               qint64(123456789), kMost, kLeast, kMost - 1, kLeast + 1}) {
        const Currency amount = Currency::FromTenThousandths(count);
        EXPECT_EQ(Currency::FromText(amount.Plain()), amount) << count;
    }
}

TEST(Currency, ASumBeyondTheRangeIsNone)
{
    const auto sum = [](qint64 one, qint64 other) {
        return Sum(Currency::FromTenThousandths(one), Currency::FromTenThousandths(other));
    };
    EXPECT_EQ(sum(3, 4), Currency::FromTenThousandths(7));
    EXPECT_EQ(sum(3, -4), Currency::FromTenThousandths(-1));
    EXPECT_EQ(sum(kMost - 1, 1), Currency::FromTenThousandths(kMost));
    EXPECT_EQ(sum(kLeast + 1, -1), Currency::FromTenThousandths(kLeast));
    EXPECT_EQ(sum(kMost, kLeast), Currency::FromTenThousandths(-1));
    EXPECT_EQ(sum(kMost, 1), std::nullopt);
    EXPECT_EQ(sum(1, kMost), std::nullopt);
    EXPECT_EQ(sum(kLeast, -1), std::nullopt);
    EXPECT_EQ(sum(-1, kLeast), std::nullopt);
    EXPECT_EQ(sum(kMost, 0), Currency::FromTenThousandths(kMost));
}

TEST(Currency, IsWrittenUnderPicturesToItsLastFigure)
{
    const auto written = [](qint64 count, QStringView picture) {
        return Format(Currency::FromTenThousandths(count), picture);
    };
    for (const QStringView picture : {QStringView(u"####,,###.00"), QStringView(u"###,,###.00")}) {
        EXPECT_EQ(written(0, picture), u".00"_s);
        EXPECT_EQ(written(5000, picture), u".50"_s);
        EXPECT_EQ(written(-7500, picture), u"-.75"_s);
        EXPECT_EQ(written(-125000, picture), u"-12.50"_s);
        EXPECT_EQ(written(12345675000, picture), u"1,234,567.50"_s);
        EXPECT_EQ(written(kMost, picture), u"922,337,203,685,477.58"_s);
        EXPECT_EQ(written(kLeast, picture), u"-922,337,203,685,477.58"_s);
        EXPECT_EQ(written(-49, picture), u".00"_s) << "what rounds to nought carries no sign";
        EXPECT_EQ(written(50, picture), u".01"_s);
        EXPECT_EQ(written(9999999950, picture), u"1,000,000.00"_s);
    }
    EXPECT_EQ(written(0, u"####,,##0.00"), u"0.00"_s);
    EXPECT_EQ(written(-5000, u"####,,##0.00"), u"-0.50"_s);
    EXPECT_EQ(written(12345670000, u"####,,##0.00"), u"1,234,567.00"_s);
    EXPECT_EQ(written(125000, u"##"), u"13"_s);
}

TEST(Currency, AFileFieldHoldsThePlainText)
{
    FieldWriter writer;
    writer.Amount(Currency::FromTenThousandths(-5000));
    writer.Nothing();
    writer.Amount(Currency::FromTenThousandths(kMost));
    writer.EndLine();
    EXPECT_EQ(writer.Bytes(), "-0.5,,922337203685477.5807\r\n");
    EXPECT_TRUE(writer.EverythingHadAPlace());
}
