#include "bench/MadeLottery.h"
#include "picks/WinnerSearch.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace {

constexpr int kRecords = 2000;
constexpr int kPicks = 10;
constexpr int kHighest = 60;

WinnerQuery TenNumbers(const benchmark::State& state)
{
    WinnerQuery query{.minimum = static_cast<int>(state.range(0))};
    std::iota(query.yourNumbers.begin(), query.yourNumbers.end(), 1);
    return query;
}

void CountFound(benchmark::State& state, std::size_t found)
{
    state.counters["found"] = static_cast<double>(found);
}

/// The search by its definition: every number of every draw is compared with every number of the player, on
/// plain whole numbers laid out for it beforehand.
void NaiveWinners(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, kPicks, kHighest);
    const WinnerQuery query = TenNumbers(state);
    std::vector<std::array<int, kPicks>> draws;
    for (int row = 1; row <= database.count; ++row) {
        std::array<int, kPicks>& draw = draws.emplace_back();
        std::transform(database.records.at(static_cast<std::size_t>(row)).drawn.cbegin(),
                       database.records.at(static_cast<std::size_t>(row)).drawn.cend(), draw.begin(),
                       [](const Cell& cell) { return std::get<int>(cell); });
    }
    std::vector<int> winners;
    while (state.KeepRunning()) {
        winners.clear();
        for (std::size_t row = 0; row < draws.size(); ++row) {
            int matches = 0;
            for (const int drawn : draws[row]) {
                for (const int yours : query.yourNumbers) {
                    matches += drawn == yours ? 1 : 0;
                }
            }
            if (matches >= query.minimum) {
                winners.push_back(static_cast<int>(row) + 1);
            }
        }
        benchmark::DoNotOptimize(winners.data());
    }
    CountFound(state, winners.size());
}
BENCHMARK(NaiveWinners)->Arg(1)->Arg(3)->Arg(10)->ArgName("minimum")->Unit(benchmark::kMicrosecond);

/// The same on the cells of the records as they are, asked one by one.
void NaiveWinnersInCells(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, kPicks, kHighest);
    const WinnerQuery query = TenNumbers(state);
    std::vector<int> winners;
    while (state.KeepRunning()) {
        winners.clear();
        for (int row = 1; row <= database.count; ++row) {
            int matches = 0;
            for (const Cell& drawn : database.records[static_cast<std::size_t>(row)].drawn) {
                for (const int yours : query.yourNumbers) {
                    matches += CellHolds(drawn, yours) ? 1 : 0;
                }
            }
            if (matches >= query.minimum) {
                winners.push_back(row);
            }
        }
        benchmark::DoNotOptimize(winners.data());
    }
    CountFound(state, winners.size());
}
BENCHMARK(NaiveWinnersInCells)->Arg(1)->Arg(3)->Arg(10)->ArgName("minimum")->Unit(benchmark::kMicrosecond);

void Winners(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, kPicks, kHighest);
    const WinnerQuery query = TenNumbers(state);
    std::size_t found = 0;
    while (state.KeepRunning()) {
        std::vector<int> winners = FindWinners(database, query);
        benchmark::DoNotOptimize(winners.data());
        found = winners.size();
    }
    CountFound(state, found);
}
BENCHMARK(Winners)->Arg(1)->Arg(3)->Arg(10)->ArgName("minimum")->Unit(benchmark::kMicrosecond);

/// With the result list made anew, as a press of "Check Numbers" does.
void WinnersListed(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, kPicks, kHighest);
    const WinnerQuery query = TenNumbers(state);
    std::vector<DrawRecord> results;
    int found = 0;
    while (state.KeepRunning()) {
        found = ListWinners(database, query, results);
        benchmark::DoNotOptimize(results.data());
    }
    CountFound(state, static_cast<std::size_t>(found));
}
BENCHMARK(WinnersListed)->Arg(1)->Arg(3)->Arg(10)->ArgName("minimum")->Unit(benchmark::kMicrosecond);

} // namespace
