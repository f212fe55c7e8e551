#include "bench/MadeLottery.h"
#include "database/NumberStatistics.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr int kRecords = 2000;
constexpr int kPicks = 10;
constexpr int kHighest = 60;

// Counting

/// The counts by their definition: every place of every record is asked for every number.
void NaiveTimesDrawn(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, kPicks, kHighest);
    std::vector<std::array<int, kPicks>> draws;
    for (int row = 1; row <= database.count; ++row) {
        std::array<int, kPicks>& draw = draws.emplace_back();
        std::transform(database.records.at(static_cast<std::size_t>(row)).drawn.cbegin(),
                       database.records.at(static_cast<std::size_t>(row)).drawn.cend(), draw.begin(),
                       [](const Cell& cell) { return std::get<int>(cell); });
    }
    while (state.KeepRunning()) {
        NumberTable table{};
        for (int number = 1; number <= kHighest; ++number) {
            qint16 count = 0;
            for (const std::array<int, kPicks>& draw : draws) {
                for (const int drawn : draw) {
                    count = static_cast<qint16>(count + (drawn == number ? 1 : 0));
                }
            }
            table[static_cast<std::size_t>(number)] = {static_cast<qint16>(number), count};
        }
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(NaiveTimesDrawn)->Unit(benchmark::kMicrosecond);

void Count(benchmark::State& state, CountMode mode)
{
    const DrawDatabase database = MadeLottery(static_cast<int>(state.range(0)), kPicks, kHighest);
    while (state.KeepRunning()) {
        NumberTable table = CountNumbers(database, mode);
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK_CAPTURE(Count, TimesDrawn, CountMode::TimesDrawn)
    ->Arg(200)
    ->Arg(kRecords)
    ->ArgName("records")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Count, SinceLastDrawn, CountMode::SinceLastDrawn)
    ->Arg(200)
    ->Arg(kRecords)
    ->ArgName("records")
    ->Unit(benchmark::kMicrosecond);

// Sorting

NumberTable Counted()
{
    return CountNumbers(MadeLottery(kRecords, kPicks, kHighest), CountMode::TimesDrawn);
}

NumberTable Filled(int first, int step)
{
    NumberTable table{};
    for (int number = 1; number <= kHighest; ++number) {
        table.at(static_cast<std::size_t>(number)) = {static_cast<qint16>(number),
                                                      static_cast<qint16>(first + step * number)};
    }
    return table;
}

/// The order every number would have if ties were settled to the end.
void SortWithLibrary(benchmark::State& state, const NumberTable& unsorted)
{
    while (state.KeepRunning()) {
        NumberTable table = unsorted;
        std::stable_sort(table.begin() + 1, table.end(),
                         [](const NumberCount& a, const NumberCount& b) { return a.value > b.value; });
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK_CAPTURE(SortWithLibrary, Counts, Counted());
BENCHMARK_CAPTURE(SortWithLibrary, Ascending, Filled(0, 1));
BENCHMARK_CAPTURE(SortWithLibrary, Descending, Filled(100, -1));
BENCHMARK_CAPTURE(SortWithLibrary, AllEqual, Filled(5, 0));

void Sort(benchmark::State& state, const NumberTable& unsorted)
{
    while (state.KeepRunning()) {
        NumberTable table = SortNumbers(unsorted, kHighest, 0);
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK_CAPTURE(Sort, Counts, Counted());
BENCHMARK_CAPTURE(Sort, Ascending, Filled(0, 1));
BENCHMARK_CAPTURE(Sort, Descending, Filled(100, -1));
BENCHMARK_CAPTURE(Sort, AllEqual, Filled(5, 0));

} // namespace
