#include "database/NumberStatistics.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// The number 1..highest that a cell holds, 0 when it holds none of them.
int NumberIn(const Cell& cell, int highest)
{
    if (const int* whole = std::get_if<int>(&cell)) {
        return *whole >= 1 && *whole <= highest ? *whole : 0;
    }
    const double* real = std::get_if<double>(&cell);
    if (real == nullptr || !(*real >= 1 && *real <= highest) || *real != std::floor(*real)) {
        return 0;
    }
    return static_cast<int>(*real);
}

NumberCount& At(NumberTable& table, int row)
{
    return table[static_cast<std::size_t>(row)];
}

/// Calls @p act with the row and the number for each place of the records that holds a number 1..highest.
template <typename Act>
void ForEachNumber(const DrawDatabase& database, int firstRecord, const Act& act)
{
    const LotteryShape shape = database.Shape();
    const auto picks = static_cast<std::size_t>(shape.picks);
    for (int row = std::max(firstRecord, 1); row <= database.count; ++row) {
        const DrawRecord& record = database.records[static_cast<std::size_t>(row)];
        for (std::size_t pick = 0; pick < picks; ++pick) {
            if (const int number = NumberIn(record.drawn[pick], shape.highest); number != 0) {
                act(row, number);
            }
        }
    }
}

} // namespace

NumberTable CountTimesDrawn(const DrawDatabase& database, int firstRecord)
{
    NumberTable table{};
    ForEachNumber(database, firstRecord, [&](int /*row*/, int number) {
        // A number that stands twice in one record counts twice.
        NumberCount& entry = At(table, number);
        entry.label = static_cast<qint16>(number);
        entry.value = static_cast<qint16>(entry.value + 1);
    });
    return table;
}

NumberTable CountNumbers(const DrawDatabase& database, CountMode mode)
{
    if (mode == CountMode::TimesDrawn) {
        return CountTimesDrawn(database, 1);
    }
    NumberTable table{};
    ForEachNumber(database, 1, [&](int row, int number) {
        // Of the draws, the last one counts.
        At(table, number) = {static_cast<qint16>(number), static_cast<qint16>(database.count + 1 - row)};
    });
    for (int number = 1; number <= database.Shape().highest; ++number) {
        NumberCount& entry = At(table, number);
        entry.value = static_cast<qint16>(entry.value == 0 ? database.count : entry.value - 1);
    }
    return table;
}

NumberTable SortNumbers(const NumberTable& unsorted, int highest, qint16 sortMode)
{
    const int last = std::clamp(highest, 1, kMostNumbers);
    NumberTable table{};
    for (int number = 1; number <= last; ++number) {
        At(table, number) = {static_cast<qint16>(number), unsorted[static_cast<std::size_t>(number)].value};
    }
    if (sortMode == kNumberOrder) {
        return table;
    }

    for (int gap = last / 2; gap > 0; gap /= 2) {
        for (int i = gap; i <= last - 1; ++i) {
            for (int j = i - gap + 1; j >= 1; j -= gap) {
                if (At(table, j).value >= At(table, j + gap).value) {
                    break;
                }
                std::swap(At(table, j), At(table, j + gap));
            }
        }
    }

    // Exactly five passes, each moving a number one place at most: a number further out of order in a long
    // run of equal values stays so. Users compare these lists with those they printed years ago, so no full
    // sort.
    constexpr int kTiePasses = 5;
    for (int pass = 1; pass <= kTiePasses; ++pass) {
        for (int i = 1; i <= last - 1; ++i) {
            if (At(table, i).value == At(table, i + 1).value && At(table, i).label > At(table, i + 1).label) {
                std::swap(At(table, i), At(table, i + 1));
            }
        }
    }
    return table;
}
