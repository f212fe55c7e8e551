#include "app/LotteryFile.h"
#include "samples/SampleLottery.h"

#include <QFile>
#include <gtest/gtest.h>

#include <set>

namespace {

QByteArray CommittedBytes()
{
    QFile file(QStringLiteral(QUILLABY_SAMPLE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << QUILLABY_SAMPLE;
    return file.readAll();
}

LotteryFileContent CommittedSample()
{
    const LotteryReading reading = ReadLotteryFile(CommittedBytes(), LotteryLayout::Current, QLocale::c());
    EXPECT_TRUE(reading.content.has_value()) << reading.reason.toStdString();
    return reading.content.value_or(LotteryFileContent{});
}

} // namespace

TEST(Sample, TheFileIsByteForByteWhatTheGeneratorMakes)
{
    QByteArray made;
    const Outcome written = WriteLotteryFile(SampleLottery(), QLocale::c(), made);
    ASSERT_TRUE(written.ok) << written.reason.toStdString();
    EXPECT_EQ(CommittedBytes(), made);
}

TEST(Sample, TheFileHoldsTwelveHundredDrawsOfASixFortyNineWhoseTitleSaysThatItIsMadeUp)
{
    const LotteryFileContent sample = CommittedSample();
    EXPECT_EQ(sample.count, 1200);
    EXPECT_EQ(sample.columns, 8);
    EXPECT_EQ(sample.highest, 49);
    EXPECT_EQ(sample.title, QStringLiteral("Sample Lottery (made up)"));
    EXPECT_EQ(sample.records.size(), 1200U);
}

TEST(Sample, WednesdayAndSaturdayAreItsDrawDays)
{
    const LotteryFileContent sample = CommittedSample();
    for (std::size_t day = 1; day < sample.drawDays.size(); ++day) {
        const int expected = day == 4 || day == 7 ? static_cast<int>(day) : 0;
        EXPECT_EQ(CellNumber(sample.drawDays.at(day).weekday), expected) << "day " << day;
    }
}

TEST(Sample, ItsDrawsFollowOneAnotherWednesdayAndSaturdayWithoutAGap)
{
    const QLocale locale = QLocale::c();
    const LotteryFileContent sample = CommittedSample();
    QDate expected(2015, 1, 7);
    for (const DrawRecord& record : sample.records) {
        EXPECT_EQ(CellDate(record.date, locale), expected);
        expected = expected.addDays(expected.dayOfWeek() == Qt::Wednesday ? 3 : 4);
    }
}

TEST(Sample, EachDrawHasSixDifferentNumbersFromOneToFortyNineAndNothingBehindThem)
{
    const LotteryFileContent sample = CommittedSample();
    for (const DrawRecord& record : sample.records) {
        std::set<int> numbers;
        for (std::size_t i = 0; i < record.drawn.size(); ++i) {
            const double number = CellNumber(record.drawn.at(i));
            if (i >= 6) {
                EXPECT_EQ(number, 0) << CellText(record.number).toStdString();
                continue;
            }
            EXPECT_GE(number, 1) << CellText(record.number).toStdString();
            EXPECT_LE(number, 49) << CellText(record.number).toStdString();
            numbers.insert(static_cast<int>(number));
        }
        EXPECT_EQ(numbers.size(), 6U) << CellText(record.number).toStdString();
    }
}

TEST(Sample, EveryNumberIsDrawnAboutAsOftenAsChanceHasIt)
{
    std::array<int, 50> times{};
    const LotteryFileContent sample = CommittedSample();
    for (const DrawRecord& record : sample.records) {
        for (std::size_t i = 0; i < 6; ++i) {
            ++times.at(static_cast<std::size_t>(CellNumber(record.drawn.at(i))));
        }
    }
    // 147 on average, with a standard deviation of 11.4
    for (std::size_t number = 1; number <= 49; ++number) {
        EXPECT_GE(times.at(number), 147 - 46) << number;
        EXPECT_LE(times.at(number), 147 + 46) << number;
    }
}
