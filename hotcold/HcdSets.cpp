#include "hotcold/HcdSets.h"

#include <algorithm>
#include <cstddef>

namespace {

std::size_t Index(int value)
{
    return static_cast<std::size_t>(value);
}

/// Fills places first..first + count - 1 of every set from one list.
bool FillFromList(RandomSource& random, const HcdCandidateTable& candidates, HcdList list, int first,
                  int count, int sets, SetTable& table)
{
    int rejections = 0; // of this list, over all sets
    for (int row = 1; row <= sets; ++row) {
        auto& set = table.at(Index(row));
        for (int place = first; place < first + count;) {
            const int candidate = RowBefore(list) + RandomIndex(random, kHcdListLength);
            const qint16 number = candidates.at(Index(candidate)).label;
            // The place itself is looked at too: it is empty, so a candidate without a number is never taken.
            const auto* const behind = set.cbegin() + place + 1;
            if (std::find(set.cbegin() + 1, behind, number) == behind) {
                set.at(Index(place)) = number;
                ++place;
            } else if (++rejections == kMostHcdRejections) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

HcdCounts DefaultHcdCounts(int picks)
{
    // A table and no formula: users know these.
    static constexpr std::array<HcdCounts, kMostPicks> kCounts{{{1, 0, 0},
                                                                {1, 0, 1},
                                                                {2, 1, 0},
                                                                {2, 1, 1},
                                                                {2, 1, 2},
                                                                {2, 2, 2},
                                                                {3, 2, 2},
                                                                {3, 3, 2},
                                                                {4, 3, 2},
                                                                {4, 2, 4}}};
    return kCounts.at(Index(std::clamp(picks, 1, kMostPicks) - 1));
}

HcdCounts TypedCounts(double hot, double cold, double due)
{
    const auto held = [](double typed) {
        constexpr double kMoreThanAnyDraw = 100;
        return static_cast<int>(std::clamp(typed, 0.0, kMoreThanAnyDraw));
    };
    return {.hot = held(hot), .cold = held(cold), .due = held(due)};
}

int GameSets(double typed, int entryForms)
{
    constexpr int kMostGameSets = 10;
    const double sets = typed > kMostGameSets ? entryForms : typed;
    return static_cast<int>(std::clamp(sets, 0.0, double{kMostGameSets}));
}

bool FillHcdSets(RandomSource& random, const HcdBasis& basis, int sets, SetTable& table)
{
    table = {};
    if (basis.counts.Total() > kMostPicks) { // a set has no places for more
        return false;
    }
    const auto& [hot, cold, due] = basis.counts;
    const auto fill = [&](HcdList list, int first, int count) {
        return FillFromList(random, basis.candidates, list, first, count, sets, table);
    };
    return fill(HcdList::Hot, 1, hot) && fill(HcdList::Cold, 1 + hot, cold) &&
           fill(HcdList::Due, 1 + hot + cold, due);
}

void MoveEmptyPlacesToTheEnd(SetTable& table, int picks, int sets)
{
    for (int row = 1; row <= sets; ++row) {
        auto& set = table.at(Index(row));
        std::stable_partition(set.begin() + 1, set.begin() + 1 + picks,
                              [](qint16 number) { return number != 0; });
    }
}
