// Any bytes at all, read as a lottery database file in both layouts. What is read stays within the tables,
// and what is written of it reads back as the same.

#include "app/LotteryFile.h"
#include "database/NumberStatistics.h"
#include "fuzz/FuzzCheck.h"

#include <QByteArray>

#include <algorithm>

namespace {

const QLocale& FuzzLocale()
{
    static const QLocale locale(QLocale::German, QLocale::Germany);
    return locale;
}

void CheckContent(const LotteryFileContent& content)
{
    FUZZ_CHECK(content.count >= 0 && content.count < kRecordRows);
    FUZZ_CHECK(content.records.size() == static_cast<std::size_t>(content.count));
    int row = 0;
    for (const DrawRecord& record : content.records) {
        FUZZ_CHECK(CellHolds(record.number, ++row));
    }
}

/// Nothing is escaped in a file, so a text with a double quote does not come back as it was.
bool HoldsAQuote(const Cell& cell)
{
    const QString* text = std::get_if<QString>(&cell);
    return text != nullptr && text->contains(u'"');
}

bool HoldsAQuote(const DrawDatabase& database)
{
    return database.title.contains(u'"') ||
           std::any_of(database.drawDays.begin(), database.drawDays.end(),
                       [](const DrawDay& day) { return HoldsAQuote(day.carried); });
}

void CheckSame(const LotteryFileContent& again, const DrawDatabase& database)
{
    FUZZ_CHECK(again.count == database.count);
    FUZZ_CHECK(again.columns == database.columns);
    FUZZ_CHECK(again.highest == database.highest);
    FUZZ_CHECK(again.title == database.title);
    for (std::size_t day = 1; day < database.drawDays.size(); ++day) {
        FUZZ_CHECK(again.drawDays.at(day).carried == database.drawDays.at(day).carried);
        FUZZ_CHECK(CellNumber(again.drawDays.at(day).weekday) ==
                   CellNumber(database.drawDays.at(day).weekday));
    }
    for (std::size_t row = 1; row <= again.records.size(); ++row) {
        const DrawRecord& read = again.records.at(row - 1);
        const DrawRecord& held = database.records.at(row);
        FUZZ_CHECK(read.number == held.number);
        FUZZ_CHECK(CellDate(read.date, FuzzLocale()) == CellDate(held.date, FuzzLocale()));
        for (std::size_t pick = 0; pick < kMostPicks; ++pick) {
            FUZZ_CHECK(CellNumber(read.drawn.at(pick)) == CellNumber(held.drawn.at(pick)));
        }
    }
}

/// The content in an open database whose table is just large enough: to make and empty all 2,003 rows for
/// each input would take most of the time.
const DrawDatabase& Opened(LotteryFileContent&& content)
{
    static DrawDatabase database;
    database.records.resize(static_cast<std::size_t>(content.count) + 1);
    ReplaceDatabase(database, std::move(content), {});
    return database;
}

void CheckReading(const QByteArray& bytes, LotteryLayout layout)
{
    LotteryReading reading = ReadLotteryFile(bytes, layout, FuzzLocale());
    FUZZ_CHECK(reading.content.has_value() == reading.reason.isEmpty());
    if (!reading.content) {
        return;
    }
    CheckContent(*reading.content);
    const DrawDatabase& database = Opened(std::move(*reading.content));
    FUZZ_CHECK(CountNumbers(database, CountMode::TimesDrawn).front() == NumberCount{});
    FUZZ_CHECK(CountNumbers(database, CountMode::SinceLastDrawn).front() == NumberCount{});

    QByteArray written;
    if (!WriteLotteryFile(database, FuzzLocale(), written).ok) {
        FUZZ_CHECK(written.isEmpty());
        return;
    }
    const LotteryReading again = ReadLotteryFile(written, LotteryLayout::Current, FuzzLocale());
    if (HoldsAQuote(database)) {
        return;
    }
    FUZZ_CHECK(again.content.has_value());
    CheckSame(*again.content, database);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CheckReading(bytes, LotteryLayout::Current);
    CheckReading(bytes, LotteryLayout::Older);
    return 0;
}
