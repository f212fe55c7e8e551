#pragma once

#include "app/DrawDatabase.h"
#include "app/HcdList.h"
#include "database/NumberStatistics.h"

#include <array>

inline constexpr int kHcdListLength = 10; ///< numbers of each of the three lists

/// Rows 1..10 are the hot list, 11..20 the cold list and 21..30 the due list, each in the order of rank. Row
/// 0 is never used.
using HcdCandidateTable = std::array<NumberCount, 3 * kHcdListLength + 1>;

/// The row of the candidates before the first of a list: 0, 10 or 20.
/// @param list  one of the three
[[nodiscard]] constexpr int RowBefore(HcdList list)
{
    return (static_cast<int>(list) - 1) * kHcdListLength;
}

/// What was counted and ranked. A list for which there are too few numbers keeps what it held before.
struct HcdAnalysis {
    NumberTable NumberTally{}; ///< row n is number n: its value; the label is 0 when the number was not found
    NumberTable RankedNumbers{}; ///< the tally as it was last ranked
    HcdCandidateTable HcdCandidates{};
    int distinctNumbers = 0; ///< numbers with a value other than 0 at the last ranking
};

/// The period that hot and cold numbers are counted over at first: a year of weekly draws, or as many as
/// there are.
[[nodiscard]] int FirstPeriod(int records);

/// Tallies how often each number was drawn in the last draws; a number that stands twice in a draw counts
/// twice.
///
/// @param lastDraws  0..number of draws
void TallyLastDraws(HcdAnalysis& analysis, const DrawDatabase& database, int lastDraws);

/// Tallies the draws since each number was last drawn: 0 for a number of the latest draw, the number of all
/// draws for one that never was.
void TallyDrawsSince(HcdAnalysis& analysis, const DrawDatabase& database);

/// Ranks the tally, highest value first, and makes the ten numbers of the list its candidates; with fewer
/// than ten numbers that have a value the candidates stay as they are. For the cold list the last ten numbers
/// with a value are put into the first ten rows.
///
/// @param highest  highest number of the lottery
/// @param list     None ranks and makes no list
void RankNumbers(HcdAnalysis& analysis, int highest, HcdList list);

/// Whether the last ranking found too few numbers to make a list of.
[[nodiscard]] inline bool HasTooFewNumbers(const HcdAnalysis& analysis)
{
    return analysis.distinctNumbers < kHcdListLength;
}
