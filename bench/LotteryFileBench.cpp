#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "app/WorkFingerprint.h"
#include "bench/MadeLottery.h"

#include <QFile>
#include <QList>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRecords = 2000;
constexpr int kHighest = 49;

QByteArray FileOf(const benchmark::State& state)
{
    return MadeLotteryFile(kRecords, static_cast<int>(state.range(0)), kHighest);
}

void CountBytes(benchmark::State& state, qsizetype bytes)
{
    state.SetBytesProcessed(static_cast<qint64>(state.iterations()) * bytes);
    state.counters["file_bytes"] = static_cast<double>(bytes);
}

// Reading

void CopyBytes(benchmark::State& state)
{
    const QByteArray bytes = FileOf(state);
    QByteArray copy(bytes.size(), Qt::Uninitialized);
    while (state.KeepRunning()) {
        std::memcpy(copy.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
        benchmark::ClobberMemory();
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(CopyBytes)->Arg(6)->Arg(10)->ArgName("picks");

/// What one would write in a minute: lines, fields, whole numbers. Nothing is checked, dates stay text.
void SplitAndConvert(benchmark::State& state)
{
    const QByteArray bytes = FileOf(state);
    while (state.KeepRunning()) {
        qint64 sum = 0;
        const QList<QByteArray> lines = bytes.split('\n');
        for (const QByteArray& line : lines) {
            const QList<QByteArray> fields = line.trimmed().split(',');
            for (const QByteArray& field : fields) {
                sum += field.toInt();
            }
        }
        benchmark::DoNotOptimize(sum);
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(SplitAndConvert)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

void ReadLottery(benchmark::State& state)
{
    const QByteArray bytes = FileOf(state);
    const QLocale locale = QLocale::c();
    while (state.KeepRunning()) {
        const LotteryReading reading = ReadLotteryFile(bytes, LotteryLayout::Current, locale);
        if (!reading.content || reading.content->count != kRecords) {
            state.SkipWithError("the file was not read");
        }
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(ReadLottery)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

/// From the name of a file to its records in the place of the open database.
void OpenLotteryFromDisk(benchmark::State& state)
{
    const QByteArray bytes = FileOf(state);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Made.Lto"_s);
    const QLocale locale = QLocale::c();
    if (!SaveFileBytes(path, bytes).ok) {
        state.SkipWithError("the file was not made");
        return;
    }
    DrawDatabase database;
    while (state.KeepRunning()) {
        QByteArray found;
        if (!ReadFileBytes(path, found).ok) {
            state.SkipWithError("the file was not found");
            break;
        }
        LotteryReading reading = ReadLotteryFile(found, LotteryLayout::Current, locale);
        if (!reading.content) {
            state.SkipWithError("the file was not read");
            break;
        }
        ReplaceDatabase(database, std::move(*reading.content), u"Made.Lto"_s);
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(OpenLotteryFromDisk)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

// Writing

/// Ready numbers and dates put one behind the other.
void JoinPlainNumbers(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, static_cast<int>(state.range(0)), kHighest);
    QByteArray line;
    while (state.KeepRunning()) {
        QByteArray bytes;
        for (int row = 1; row <= database.count; ++row) {
            const DrawRecord& record = database.records[static_cast<std::size_t>(row)];
            bytes += QByteArray::number(row);
            bytes += ',';
            bytes += std::get<QDate>(record.date).toString(Qt::ISODate).toLatin1();
            for (const Cell& drawn : record.drawn) {
                bytes += ',';
                bytes += QByteArray::number(std::get<int>(drawn));
            }
            bytes += "\r\n";
        }
        benchmark::DoNotOptimize(bytes);
        line = bytes;
    }
    CountBytes(state, line.size());
}
BENCHMARK(JoinPlainNumbers)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

void WriteLottery(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, static_cast<int>(state.range(0)), kHighest);
    const QLocale locale = QLocale::c();
    QByteArray bytes;
    while (state.KeepRunning()) {
        if (!WriteLotteryFile(database, locale, bytes).ok) {
            state.SkipWithError("the database was not written");
        }
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(WriteLottery)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

// Looking whether all is saved, every few seconds

/// Against a second database that would have to be kept for it.
void CompareWithCopy(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, static_cast<int>(state.range(0)), kHighest);
    const DrawDatabase copy = database;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(database.records == copy.records);
    }
}
BENCHMARK(CompareWithCopy)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

void FingerprintOfLottery(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(kRecords, static_cast<int>(state.range(0)), kHighest);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(Fingerprint(database));
    }
}
BENCHMARK(FingerprintOfLottery)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond);

// Saving

/// Written over the old file and left to the system: what a power cut or a full disk would spoil.
void SaveInPlace(benchmark::State& state)
{
    const QByteArray bytes = FileOf(state);
    const QTemporaryDir folder;
    while (state.KeepRunning()) {
        QFile file(folder.filePath(u"Made.Lto"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            state.SkipWithError("the file was not written");
        }
        file.close();
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(SaveInPlace)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond)->UseRealTime();

void SaveDurably(benchmark::State& state)
{
    const QByteArray bytes = FileOf(state);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Made.Lto"_s);
    while (state.KeepRunning()) {
        if (!SaveFileBytes(path, bytes).ok) {
            state.SkipWithError("the file was not saved");
        }
    }
    CountBytes(state, bytes.size());
}
BENCHMARK(SaveDurably)->Arg(6)->Arg(10)->ArgName("picks")->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
