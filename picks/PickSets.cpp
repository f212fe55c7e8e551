#include "picks/PickSets.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace {

std::size_t Index(int value)
{
    return static_cast<std::size_t>(value);
}

/// Sorts the numbers of a set; places without a number stay at its end.
void SortSet(std::array<qint16, kMostPicks + 1>& set)
{
    std::sort(set.begin() + 1, std::find(set.begin() + 1, set.end(), qint16{0}));
}

} // namespace

CandidateList FullRange(int highest)
{
    CandidateList candidates;
    std::iota(candidates.numbers.begin(), candidates.numbers.end(), qint16{0});
    candidates.count = std::clamp(highest, 0, kMostNumbers);
    return candidates;
}

CandidateList SortedPositions(const NumberTable& sorted, int left, int right)
{
    CandidateList candidates;
    for (int position = std::max(left, 1); position <= std::min(right, kMostNumbers); ++position) {
        ++candidates.count;
        candidates.numbers.at(Index(candidates.count)) = sorted.at(Index(position)).label;
    }
    return candidates;
}

bool FillSets(RandomSource& random, const CandidateList& candidates, int picks, int sets, SetTable& table)
{
    int rejections = 0; // of all sets together
    for (int row = 1; row <= sets; ++row) {
        std::array<qint16, kMostPicks + 1>& set = table.at(Index(row));
        for (int column = 1; column <= picks;) {
            const qint16 number = candidates.numbers.at(Index(RandomIndex(random, candidates.count)));
            // The place to be filled is looked at too: it still holds 0, so an entry without a number never
            // gets into a set.
            const auto* const behind = set.begin() + column + 1;
            if (std::find(set.cbegin() + 1, behind, number) == behind) {
                set.at(Index(column)) = number;
                ++column;
            } else if (++rejections == kMostRejections) {
                return false;
            }
        }
    }
    std::for_each(table.begin() + 1, table.begin() + 1 + sets, &SortSet);
    return true;
}

std::optional<NumberOrder> ShuffleNumbers(RandomSource& random, int highest)
{
    NumberOrder order{};
    std::array<bool, kMostNumbers + 1> drawn{};
    int rejections = 0; // in a row
    for (int place = 1; place <= highest;) {
        const int number = RandomIndex(random, highest);
        if (!drawn.at(Index(number))) {
            drawn.at(Index(number)) = true;
            order.at(Index(place)) = static_cast<qint16>(number);
            ++place;
            rejections = 0;
        } else if (++rejections == kMostRejections) {
            return std::nullopt;
        }
    }
    return order;
}

SetTable SpreadNumbers(const NumberOrder& order, int highest, int picks, int sets)
{
    SetTable table{};
    int place = 0;
    for (int row = 1; row <= sets; ++row) {
        std::array<qint16, kMostPicks + 1>& set = table.at(Index(row));
        for (int column = 1; column <= picks && place < highest; ++column) {
            ++place;
            set.at(Index(column)) = order.at(Index(place));
        }
        SortSet(set);
    }
    return table;
}
