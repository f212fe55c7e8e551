#include "hotcold/HcdAnalysis.h"

#include <algorithm>

int FirstPeriod(int records)
{
    constexpr int kWeeksOfAYear = 52;
    return std::min(records, kWeeksOfAYear);
}

void TallyLastDraws(HcdAnalysis& analysis, const DrawDatabase& database, int lastDraws)
{
    analysis.NumberTally = CountTimesDrawn(database, database.count - lastDraws + 1);
}

void TallyDrawsSince(HcdAnalysis& analysis, const DrawDatabase& database)
{
    analysis.NumberTally = CountNumbers(database, CountMode::SinceLastDrawn);
}

void RankNumbers(HcdAnalysis& analysis, int highest, HcdList list)
{
    constexpr qint16 kHighestFirst = 0;
    NumberTable& ranked = analysis.RankedNumbers;
    ranked = SortNumbers(analysis.NumberTally, highest, kHighestFirst);
    const auto* const first = ranked.begin() + 1;
    const auto* const end =
        std::find_if(first, ranked.cend(), [](const NumberCount& count) { return count.value == 0; });
    analysis.distinctNumbers = static_cast<int>(end - first);
    if (list == HcdList::None || HasTooFewNumbers(analysis)) {
        return;
    }
    if (list == HcdList::Cold) {
        std::copy(end - kHcdListLength, end, ranked.begin() + 1); // to the left, so overlapping rows are safe
    }
    std::copy(first, first + kHcdListLength, analysis.HcdCandidates.begin() + RowBefore(list) + 1);
}
