#include "app/RandomSource.h"
#include "picks/PickSets.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <random>

namespace {

constexpr int kPicks = 10;
constexpr int kHighest = 60;
constexpr int kSets = 10;

// One draw

/// The generator of the library alone: neither a clock nor a range.
void LibraryDraw(benchmark::State& state)
{
    std::mt19937_64 generator(std::random_device{}());
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(generator());
    }
}
BENCHMARK(LibraryDraw);

/// Our generator as bare as that.
void DrawWithoutClock(benchmark::State& state)
{
    RandomGenerator generator;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(generator.Next());
    }
}
BENCHMARK(DrawWithoutClock);

/// The reading of the clock that precedes each draw, alone.
void ReadClock(benchmark::State& state)
{
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(std::chrono::system_clock::now());
    }
}
BENCHMARK(ReadClock);

/// A draw as sets are made of: the clock mixed in, and the value turned into an index.
void Draw(benchmark::State& state)
{
    RandomGenerator generator;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(RandomIndex(generator, kHighest));
    }
}
BENCHMARK(Draw);

// Sets

void TenSetsOfTenFromSixty(benchmark::State& state)
{
    RandomGenerator generator;
    while (state.KeepRunning()) {
        SetTable table{};
        if (!FillSets(generator, FullRange(kHighest), kPicks, kSets, table)) {
            state.SkipWithError("no sets were made");
        }
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(TenSetsOfTenFromSixty)->Unit(benchmark::kMicrosecond);

/// The longest a calculation can take: more picks than numbers, given up after all rejections.
void FiveThousandRejections(benchmark::State& state)
{
    RandomGenerator generator;
    while (state.KeepRunning()) {
        SetTable table{};
        if (FillSets(generator, FullRange(kPicks - 1), kPicks, kSets, table)) {
            state.SkipWithError("the sets were not given up");
        }
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(FiveThousandRejections)->Unit(benchmark::kMicrosecond);

void AllNumbersSpread(benchmark::State& state)
{
    RandomGenerator generator;
    while (state.KeepRunning()) {
        const std::optional<NumberOrder> order = ShuffleNumbers(generator, kHighest);
        if (!order) {
            state.SkipWithError("the numbers were not shuffled");
            break;
        }
        benchmark::DoNotOptimize(SpreadNumbers(*order, kHighest, 3, kMostSets));
    }
}
BENCHMARK(AllNumbersSpread)->Unit(benchmark::kMicrosecond);

} // namespace
