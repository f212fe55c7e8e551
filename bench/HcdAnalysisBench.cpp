#include "bench/MadeLottery.h"
#include "hotcold/HcdAnalysis.h"
#include "hotcold/HcdSets.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <variant>
#include <vector>

namespace {

constexpr int kRecords = 2001;
constexpr int kHighest = 60;

// The three lists

/// The lists by their definition: every place of every draw is asked for every number, three times over, and
/// the library sorts.
void NaiveLists(benchmark::State& state)
{
    const auto picks = static_cast<std::size_t>(state.range(0));
    const DrawDatabase database = MadeLottery(kRecords, static_cast<int>(picks), kHighest);
    std::vector<std::vector<int>> draws;
    for (int row = 1; row <= database.count; ++row) {
        std::vector<int>& draw = draws.emplace_back();
        for (std::size_t pick = 0; pick < picks; ++pick) {
            draw.push_back(std::get<int>(database.records.at(static_cast<std::size_t>(row)).drawn.at(pick)));
        }
    }
    while (state.KeepRunning()) {
        std::array<std::vector<NumberCount>, 3> lists;
        for (std::size_t list = 0; list < lists.size(); ++list) {
            std::vector<NumberCount> counts;
            for (int number = 1; number <= kHighest; ++number) {
                int times = 0;
                int last = 0;
                for (std::size_t draw = 0; draw < draws.size(); ++draw) {
                    for (const int drawn : draws[draw]) {
                        if (drawn == number) {
                            ++times;
                            last = static_cast<int>(draw) + 1;
                        }
                    }
                }
                const int value = list == 2 ? kRecords - last : times;
                counts.push_back({static_cast<qint16>(number), static_cast<qint16>(value)});
            }
            std::stable_sort(counts.begin(), counts.end(),
                             [list](const NumberCount& a, const NumberCount& b) {
                                 return list == 1 ? a.value < b.value : a.value > b.value;
                             });
            counts.resize(kHcdListLength);
            lists.at(list) = counts;
        }
        benchmark::DoNotOptimize(lists);
    }
}
BENCHMARK(NaiveLists)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

/// What Calculate, opening the form and another period count and rank.
void Lists(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, static_cast<int>(state.range(0)), kHighest);
    HcdAnalysis analysis;
    while (state.KeepRunning()) {
        TallyLastDraws(analysis, database, kRecords);
        RankNumbers(analysis, kHighest, HcdList::Hot);
        RankNumbers(analysis, kHighest, HcdList::Cold);
        TallyDrawsSince(analysis, database);
        RankNumbers(analysis, kHighest, HcdList::Due);
        benchmark::DoNotOptimize(analysis);
    }
}
BENCHMARK(Lists)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

// Sets

void TenSetsOfThreeLists(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, kMostPicks, kHighest);
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, kRecords);
    RankNumbers(analysis, kHighest, HcdList::Hot);
    RankNumbers(analysis, kHighest, HcdList::Cold);
    TallyDrawsSince(analysis, database);
    RankNumbers(analysis, kHighest, HcdList::Due);
    const HcdBasis basis{
        .lastDraws = kRecords, .counts = DefaultHcdCounts(kMostPicks), .candidates = analysis.HcdCandidates};
    RandomGenerator generator;
    constexpr int kSets = 10;
    while (state.KeepRunning()) {
        SetTable table{};
        if (!FillHcdSets(generator, basis, kSets, table)) {
            state.SkipWithError("the sets were given up");
        }
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(TenSetsOfThreeLists)->Unit(benchmark::kMicrosecond);

} // namespace
