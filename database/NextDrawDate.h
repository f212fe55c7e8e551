#pragma once

#include "app/DrawDatabase.h"

#include <QDate>

/// Days from the last draw to the next one on a checked weekday.
///
/// @param weekday   of the last draw, Sunday = 1 .. Saturday = 7
/// @param drawDays  entry d is true when the lottery draws on weekday d
/// @return 1..7; with no day checked, the days to that week's Saturday (0 on a Saturday).
[[nodiscard]] int DaysToNextDraw(int weekday, const DrawDays& drawDays);

/// The weekday of a date, Sunday = 1 .. Saturday = 7.
[[nodiscard]] int WeekdayOf(QDate date);

/// The day of the draw after @p lastDraw. A day beyond the year 9999 is not gone to: the date stays.
[[nodiscard]] QDate NextDrawDate(QDate lastDraw, const DrawDays& drawDays);
