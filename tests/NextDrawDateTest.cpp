#include "database/NextDrawDate.h"

#include "tests/QtPrinters.h"

#include <QDate>
#include <gtest/gtest.h>

#include <initializer_list>

namespace {

enum Weekday { kSunday = 1, kMonday, kTuesday, kWednesday, kThursday, kFriday, kSaturday };

DrawDays Days(std::initializer_list<int> weekdays)
{
    DrawDays days{};
    for (const int weekday : weekdays) {
        days.at(static_cast<std::size_t>(weekday)) = true;
    }
    return days;
}

/// The set whose bits 0..6 are Sunday..Saturday.
DrawDays DaysOf(int bits)
{
    DrawDays days{};
    for (int weekday = kSunday; weekday <= kSaturday; ++weekday) {
        days.at(static_cast<std::size_t>(weekday)) = (bits >> (weekday - 1)) % 2 == 1;
    }
    return days;
}

constexpr int kDaySets = 128;

/// The first day behind the last draw that the calendar calls by a checked name.
QDate FoundDayByDay(QDate lastDraw, int bits)
{
    for (QDate day = lastDraw.addDays(1); day <= lastDraw.addDays(7); day = day.addDays(1)) {
        const int sundayFromZero = day.dayOfWeek() == Qt::Sunday ? 0 : day.dayOfWeek();
        if ((bits >> sundayFromZero) % 2 == 1) {
            return day;
        }
    }
    QDate saturday = lastDraw;
    while (saturday.dayOfWeek() != Qt::Saturday) {
        saturday = saturday.addDays(1);
    }
    return saturday;
}

} // namespace

TEST(NextDrawDate, WeekdaysAreCountedFromSunday)
{
    const QDate sunday(2024, 3, 3);
    for (int days = 0; days < 700; ++days) {
        EXPECT_EQ(WeekdayOf(sunday.addDays(days)), days % 7 + 1);
    }
    EXPECT_EQ(WeekdayOf(QDate(2024, 3, 9)), kSaturday);
}

TEST(NextDrawDate, AWednesdayAndSaturdayLotteryGoesThreeAndFourDaysOn)
{
    const DrawDays days = Days({kWednesday, kSaturday});
    EXPECT_EQ(DaysToNextDraw(kWednesday, days), 3);
    EXPECT_EQ(DaysToNextDraw(kSaturday, days), 4);
    EXPECT_EQ(NextDrawDate(QDate(2024, 3, 6), days), QDate(2024, 3, 9));
    EXPECT_EQ(NextDrawDate(QDate(2024, 3, 9), days), QDate(2024, 3, 13));
}

TEST(NextDrawDate, WithNoDayCheckedItIsTheSaturdayOfTheWeek)
{
    const DrawDays none{};
    EXPECT_EQ(DaysToNextDraw(kSunday, none), 6);
    EXPECT_EQ(DaysToNextDraw(kTuesday, none), 4);
    EXPECT_EQ(DaysToNextDraw(kFriday, none), 1);
    EXPECT_EQ(NextDrawDate(QDate(2024, 3, 5), none), QDate(2024, 3, 9));
}

TEST(NextDrawDate, WithNoDayCheckedASaturdayStays)
{
    EXPECT_EQ(DaysToNextDraw(kSaturday, {}), 0);
    EXPECT_EQ(NextDrawDate(QDate(2024, 3, 9), {}), QDate(2024, 3, 9));
}

TEST(NextDrawDate, ALotteryOfOneDayDrawsAWeekLater)
{
    for (int weekday = kSunday; weekday <= kSaturday; ++weekday) {
        EXPECT_EQ(DaysToNextDraw(weekday, Days({weekday})), 7);
    }
}

TEST(NextDrawDate, ADailyLotteryDrawsTheDayAfter)
{
    for (int weekday = kSunday; weekday <= kSaturday; ++weekday) {
        EXPECT_EQ(DaysToNextDraw(weekday, DaysOf(kDaySets - 1)), 1);
    }
}

TEST(NextDrawDate, AgreesWithASearchDayByDayForEveryWeekdayAndDaySet)
{
    for (int bits = 0; bits < kDaySets; ++bits) {
        for (int day = 0; day < 7; ++day) {
            const QDate lastDraw = QDate(2024, 2, 25).addDays(day);
            const QDate expected = FoundDayByDay(lastDraw, bits);
            EXPECT_EQ(NextDrawDate(lastDraw, DaysOf(bits)), expected) << "days " << bits;
            EXPECT_EQ(DaysToNextDraw(day + 1, DaysOf(bits)), lastDraw.daysTo(expected)) << "days " << bits;
        }
    }
}

TEST(NextDrawDate, TheEntryBeforeSundayIsNoDay)
{
    for (int bits = 0; bits < kDaySets; ++bits) {
        DrawDays days = DaysOf(bits);
        days.at(0) = true;
        for (int weekday = kSunday; weekday <= kSaturday; ++weekday) {
            EXPECT_EQ(DaysToNextDraw(weekday, days), DaysToNextDraw(weekday, DaysOf(bits)));
        }
    }
}

TEST(NextDrawDate, GoesOverTheEndsOfMonthsAndYears)
{
    const DrawDays fridays = Days({kFriday});
    EXPECT_EQ(NextDrawDate(QDate(2024, 2, 23), fridays), QDate(2024, 3, 1));
    EXPECT_EQ(NextDrawDate(QDate(2023, 2, 24), fridays), QDate(2023, 3, 3));
    EXPECT_EQ(NextDrawDate(QDate(1999, 12, 31), fridays), QDate(2000, 1, 7));
}

TEST(NextDrawDate, DoesNotLeaveTheYear9999)
{
    const QDate lastFriday(9999, 12, 31);
    ASSERT_EQ(lastFriday.dayOfWeek(), Qt::Friday);
    EXPECT_EQ(NextDrawDate(lastFriday, DaysOf(kDaySets - 1)), lastFriday);
    EXPECT_EQ(NextDrawDate(lastFriday, {}), lastFriday); // the week's Saturday is in the year 10000
    EXPECT_EQ(NextDrawDate(QDate(9999, 12, 30), Days({kFriday})), lastFriday);
    EXPECT_EQ(NextDrawDate(QDate(9999, 12, 30), Days({kThursday})), QDate(9999, 12, 30));
    EXPECT_EQ(NextDrawDate(QDate(9999, 12, 24), Days({kFriday})), lastFriday);
}

TEST(NextDrawDate, NoDateHasNoNextOne)
{
    EXPECT_EQ(NextDrawDate(QDate(), DaysOf(kDaySets - 1)), QDate());
    EXPECT_EQ(NextDrawDate(QDate(), {}), QDate());
}
