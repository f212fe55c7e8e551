#pragma once

#include "database/NumberStatistics.h"

#include <QString>

/// The first numbers of the sorted statistics in words.
struct TopNumbers {
    QString heading; ///< what was counted, "Top N = " and the numbers
    QString numbers; ///< the numbers alone, each with a leading blank and two blanks behind it
};

/// The top numbers as the editor shows them and the printouts repeat them.
///
/// @param sorted  as SortNumbers returns it
/// @param picks   how many numbers to name, 1..10
[[nodiscard]] TopNumbers DescribeTopNumbers(const NumberTable& sorted, CountMode mode, int picks);
