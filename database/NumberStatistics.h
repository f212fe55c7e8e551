#pragma once

#include "app/DrawDatabase.h"

#include <QtGlobal>

#include <array>

/// What the statistics count for each number.
enum class CountMode {
    TimesDrawn,     ///< in how many places of all records the number stands
    SinceLastDrawn, ///< draws made since the number last came; all draws when it never came
};

/// The number and its value. In the unsorted table the label of a number that was never found stays 0.
struct NumberCount {
    qint16 label = 0;
    qint16 value = 0;

    bool operator==(const NumberCount&) const = default;
};

/// Rows 0..60; row 0 is never used, rows above the highest number stay 0.
using NumberTable = std::array<NumberCount, kMostNumbers + 1>;

/// The sort mode that leaves the ordered copy in number order. Other values are other forms' own.
inline constexpr qint16 kNumberOrder = 10;

/// Counts every number 1..highest over all records of the database; row n is number n.
[[nodiscard]] NumberTable CountNumbers(const DrawDatabase& database, CountMode mode);

/// Counts in how many places of the records from @p firstRecord on each number 1..highest stands.
///
/// @param firstRecord  1 for all records; higher than the number of records for none
[[nodiscard]] NumberTable CountTimesDrawn(const DrawDatabase& database, int firstRecord);

/// The values of @p unsorted, rows 1..highest, highest value first; among equal values the lower number
/// normally comes first (see the five passes inside). With sortMode kNumberOrder the rows stay in number
/// order.
///
/// @param highest  1..60; other values are held to that range
[[nodiscard]] NumberTable SortNumbers(const NumberTable& unsorted, int highest, qint16 sortMode);
