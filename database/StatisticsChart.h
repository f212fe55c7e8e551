#pragma once

#include "app/BarChart.h"
#include "database/NumberStatistics.h"

#include <QString>

/// What the chart of the statistics is about.
struct StatisticsOnShow {
    CountMode counted = CountMode::TimesDrawn;
    int records = 0; ///< of the database that was counted
    QString title{}; ///< of the database
    BarStyle style = BarStyle::Flat;
};

/// The chart of the statistics: one bar for each number 1..highest, in the order of the table, so highest
/// value first or in number order.
///
/// @param sorted   as SortNumbers returns it
/// @param highest  1..60; other values are held to that range
[[nodiscard]] BarChart StatisticsChart(const NumberTable& sorted, int highest, const StatisticsOnShow& show);
