#include "database/NextDrawDate.h"

#include "app/ShortDate.h"

int DaysToNextDraw(int weekday, const DrawDays& drawDays)
{
    constexpr int kSaturday = 7;
    for (int day = weekday + 1; day <= kSaturday; ++day) {
        if (drawDays.at(static_cast<std::size_t>(day))) {
            return day - weekday;
        }
    }
    for (int day = 1; day <= kSaturday; ++day) {
        if (drawDays.at(static_cast<std::size_t>(day))) {
            return kSaturday - weekday + day;
        }
    }
    return kSaturday - weekday;
}

int WeekdayOf(QDate date)
{
    return date.dayOfWeek() % 7 + 1; // the calendar counts Monday = 1 .. Sunday = 7
}

QDate NextDrawDate(QDate lastDraw, const DrawDays& drawDays)
{
    const QDate next = lastDraw.addDays(DaysToNextDraw(WeekdayOf(lastDraw), drawDays));
    return DateWithinRange(next.year(), next.month(), next.day()) ? next : lastDraw;
}
