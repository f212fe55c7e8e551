// How the work on the records grows with their number: from 10, which one types in an evening, to the limit.

#include "app/LotteryFile.h"
#include "app/WorkFingerprint.h"
#include "bench/MadeLottery.h"
#include "database/DateSort.h"
#include "database/ExtractRecords.h"
#include "database/NumberStatistics.h"
#include "hotcold/HcdAnalysis.h"
#include "picks/WinnerSearch.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>

namespace {

constexpr int kPicks = 6;
constexpr int kHighest = 49;

using Clock = std::chrono::steady_clock;

void AddTime(benchmark::State& state, Clock::time_point start)
{
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
}

int RecordsOf(const benchmark::State& state)
{
    return static_cast<int>(state.range(0));
}

DrawDatabase LotteryOf(const benchmark::State& state)
{
    return MadeLottery(RecordsOf(state), kPicks, kHighest);
}

void Grow(benchmark::internal::Benchmark* one)
{
    for (const int records : {10, 100, 500, 1000, 2001}) {
        one->Arg(records);
    }
    one->ArgName("records")->Unit(benchmark::kMicrosecond);
}

void GrowReading(benchmark::State& state)
{
    const QByteArray bytes = MadeLotteryFile(RecordsOf(state), kPicks, kHighest);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(ReadLotteryFile(bytes, LotteryLayout::Current, QLocale::c()));
    }
}
BENCHMARK(GrowReading)->Apply(Grow);

void GrowWriting(benchmark::State& state)
{
    const DrawDatabase database = LotteryOf(state);
    while (state.KeepRunning()) {
        QByteArray bytes;
        benchmark::DoNotOptimize(WriteLotteryFile(database, QLocale::c(), bytes).ok);
    }
}
BENCHMARK(GrowWriting)->Apply(Grow);

/// What tells, every three seconds, whether a recovery copy is to be written.
void GrowFingerprint(benchmark::State& state)
{
    const DrawDatabase database = LotteryOf(state);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(Fingerprint(database));
    }
}
BENCHMARK(GrowFingerprint)->Apply(Grow);

void GrowCounting(benchmark::State& state)
{
    const DrawDatabase database = LotteryOf(state);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(CountNumbers(database, CountMode::TimesDrawn));
    }
}
BENCHMARK(GrowCounting)->Apply(Grow);

void GrowSinceLastDrawn(benchmark::State& state)
{
    const DrawDatabase database = LotteryOf(state);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(CountNumbers(database, CountMode::SinceLastDrawn));
    }
}
BENCHMARK(GrowSinceLastDrawn)->Apply(Grow);

void GrowHotColdDue(benchmark::State& state)
{
    const DrawDatabase database = LotteryOf(state);
    HcdAnalysis analysis;
    while (state.KeepRunning()) {
        TallyLastDraws(analysis, database, RecordsOf(state));
        RankNumbers(analysis, kHighest, HcdList::Hot);
        RankNumbers(analysis, kHighest, HcdList::Cold);
        TallyDrawsSince(analysis, database);
        RankNumbers(analysis, kHighest, HcdList::Due);
        benchmark::DoNotOptimize(analysis);
    }
}
BENCHMARK(GrowHotColdDue)->Apply(Grow);

void GrowWinnerSearch(benchmark::State& state)
{
    const DrawDatabase database = LotteryOf(state);
    WinnerQuery query;
    query.yourNumbers = {1, 8, 15, 22, 29, 36};
    query.minimum = 3;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(FindWinners(database, query));
    }
}
BENCHMARK(GrowWinnerSearch)->Apply(Grow);

DrawDatabase Shuffled(const benchmark::State& state)
{
    DrawDatabase database = LotteryOf(state);
    std::mt19937 random(649); // NOLINT(bugprone-random-generator-seed): the same disorder every time
    std::shuffle(database.records.begin() + 1, database.records.begin() + 1 + database.count, random);
    return database;
}

void GrowDateSort(benchmark::State& state)
{
    const DrawDatabase shuffled = Shuffled(state);
    while (state.KeepRunning()) {
        DrawDatabase database = shuffled;
        const Clock::time_point start = Clock::now();
        SortByDate(database, QLocale::c());
        AddTime(state, start);
    }
}
BENCHMARK(GrowDateSort)->Apply(Grow)->UseManualTime();

/// What one would write in a minute: the library moves the records themselves and reads dates as it compares.
void GrowLibrarySort(benchmark::State& state)
{
    const DrawDatabase shuffled = Shuffled(state);
    const QLocale locale = QLocale::c();
    while (state.KeepRunning()) {
        DrawDatabase database = shuffled;
        const Clock::time_point start = Clock::now();
        std::stable_sort(database.records.begin() + 1, database.records.begin() + 1 + database.count,
                         [&locale](const DrawRecord& a, const DrawRecord& b) {
                             return CellDate(a.date, locale) < CellDate(b.date, locale);
                         });
        for (int row = 1; row <= database.count; ++row) {
            database.records[static_cast<std::size_t>(row)].number = row;
        }
        AddTime(state, start);
    }
}
BENCHMARK(GrowLibrarySort)->Apply(Grow)->UseManualTime();

/// The first of all records, so that every other one moves.
void GrowDeletion(benchmark::State& state)
{
    const DrawDatabase whole = LotteryOf(state);
    while (state.KeepRunning()) {
        DrawDatabase database = whole;
        const Clock::time_point start = Clock::now();
        DeleteRecord(database, 1, QLocale::c());
        AddTime(state, start);
    }
}
BENCHMARK(GrowDeletion)->Apply(Grow)->UseManualTime();

/// Every record but the first and the last.
void GrowExtract(benchmark::State& state)
{
    const DrawDatabase whole = LotteryOf(state);
    while (state.KeepRunning()) {
        DrawDatabase database = whole;
        const Clock::time_point start = Clock::now();
        ExtractRecords(database, 2, static_cast<float>(whole.count - 1));
        AddTime(state, start);
    }
}
BENCHMARK(GrowExtract)->Apply(Grow)->UseManualTime();

} // namespace
