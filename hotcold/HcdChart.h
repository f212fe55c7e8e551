#pragma once

#include "app/BarChart.h"
#include "app/HcdList.h"
#include "database/NumberStatistics.h"

/// The chart of a list as it stands before there is anything to show: its words without bars.
[[nodiscard]] BarChart EmptyHcdChart(HcdList list);

/// The chart of a list: ten bars, the first ten rows of the table in their order. Values of the hot and the
/// cold list are times drawn, those of the due list draws since last drawn.
[[nodiscard]] BarChart HcdChart(HcdList list, const NumberTable& ranked);
