#pragma once

#include "app/RandomSource.h"
#include "app/SetTable.h"
#include "database/NumberStatistics.h"

#include <array>
#include <optional>

/// Rejected draws that end a generation.
inline constexpr int kMostRejections = 5000;

/// Every number 1..60, of which the first @p highest are picked from.
[[nodiscard]] CandidateList FullRange(int highest);

/// The numbers at rows left..right of the sorted statistics. Rows outside 1..60 are none; a row above the
/// highest number of the lottery has no number, and its entry is 0.
[[nodiscard]] CandidateList SortedPositions(const NumberTable& sorted, int left, int right);

/// Fills sets 1..sets with picks different candidates each, ascending. Every number of a set is as likely as
/// any other.
///
/// @param picks  1..10
/// @param sets   1..21
/// @return false when kMostRejections draws brought a number that its set had already, counted over all sets:
///         the table then holds what was drawn so far, in the order drawn.
[[nodiscard]] bool FillSets(RandomSource& random, const CandidateList& candidates, int picks, int sets,
                            SetTable& table);

/// Numbers in an order, entries 1..highest; the others are 0.
using NumberOrder = std::array<qint16, kMostNumbers + 1>;

/// Every number 1..highest, up to 60, in an order that is as likely as any other.
/// @return nothing when kMostRejections draws in a row brought numbers that had been drawn already.
[[nodiscard]] std::optional<NumberOrder> ShuffleNumbers(RandomSource& random, int highest);

/// Deals the first @p highest numbers of the order out to the sets, one set after the other, and sorts each
/// set. The last sets are short or empty.
///
/// @param picks  1..10
/// @param sets   1..21
[[nodiscard]] SetTable SpreadNumbers(const NumberOrder& order, int highest, int picks, int sets);
