// Any bytes at all, taken as a recovery copy and as the note of one. A note never names a file outside its
// folder, and whatever the readers make of the bytes comes back from a copy of its own as it was.

#include "app/DatabaseRecovery.h"
#include "app/LotteryFile.h"
#include "fuzz/FuzzCheck.h"
#include "invest/InvestmentFile.h"
#include "invest/StatementRecovery.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>

namespace {

/// Work that is taken apart again as it was put together.
RecoveredWork ThroughACopy(const QByteArray& bytes, const RecoveryNote& note)
{
    RecoveredWork work = WithoutNote(WithNote(bytes, note));
    FUZZ_CHECK(work.bytes == (bytes.endsWith("\r\n") ? bytes : bytes + "\r\n"));
    FUZZ_CHECK(work.note.has_value());
    return work;
}

void CheckNote(const QByteArray& text)
{
    if (text.contains("\r\n")) {
        return; // a note is one line
    }
    const QByteArray bytes("1\r\n");
    const QByteArray sum = QCryptographicHash::hash(bytes + text, QCryptographicHash::Sha256).toHex();
    const RecoveredWork work = WithoutNote(bytes + "recovery " + sum + ' ' + text + "\r\n");
    FUZZ_CHECK(work.bytes == bytes);
    FUZZ_CHECK(work.note.has_value());
    RecoveryNote note = work.note.value_or(RecoveryNote{});
    FUZZ_CHECK(!note.fileName.contains(u'/') && note.fileName != QStringLiteral(".."));
    FUZZ_CHECK(note.folder.isEmpty() || QDir::isAbsolutePath(note.folder));
    FUZZ_CHECK(note.records >= 0);
    const int year = note.time.toUTC().date().year();
    if (year < 0 || year > 9999) {
        note.time = {}; // times that no program of ours lives in have no text
    }
    FUZZ_CHECK(ThroughACopy(bytes, note).note == note);
}

bool IsSame(const Cell& one, const Cell& other)
{
    const bool isNumber = !std::holds_alternative<QString>(one) && !std::holds_alternative<QDate>(one);
    return isNumber ? CellNumber(one) == CellNumber(other) : one == other;
}

void CheckSame(const DrawDatabase& back, const DrawDatabase& database)
{
    FUZZ_CHECK(back.count == database.count);
    FUZZ_CHECK(back.columns == database.columns);
    FUZZ_CHECK(back.highest == database.highest);
    FUZZ_CHECK(back.title == database.title);
    for (std::size_t day = 1; day < database.drawDays.size(); ++day) {
        FUZZ_CHECK(IsSame(database.drawDays.at(day).carried, back.drawDays.at(day).carried));
        FUZZ_CHECK(IsSame(database.drawDays.at(day).weekday, back.drawDays.at(day).weekday));
    }
    for (std::size_t row = 1; row <= static_cast<std::size_t>(database.count); ++row) {
        const DrawRecord& held = database.records.at(row);
        const DrawRecord& read = back.records.at(row);
        FUZZ_CHECK(IsSame(held.number, read.number));
        FUZZ_CHECK(IsSame(held.date, read.date));
        for (std::size_t pick = 0; pick < kMostPicks; ++pick) {
            FUZZ_CHECK(IsSame(held.drawn.at(pick), read.drawn.at(pick)));
        }
    }
}

/// The table just large enough: to make and empty all of its rows for each input would take most of the time.
void MakeRoom(DrawDatabase& database, std::size_t records)
{
    database.records.resize(records + 1);
}

void CheckDatabase(const QByteArray& bytes)
{
    static LGLOBAL shared;
    static LGLOBAL recovered;
    LotteryReading reading = ReadLotteryFile(bytes, LotteryLayout::Current, shared.locale);
    if (!reading.content) {
        return;
    }
    MakeRoom(shared.database, reading.content->records.size());
    MakeRoom(recovered.database, reading.content->records.size());
    ReplaceDatabase(shared.database, std::move(*reading.content), QStringLiteral("Test.Lto"));
    QByteArray copy;
    RecoveryNote note;
    FUZZ_CHECK(KeptDatabase(shared).write(copy, note).ok);
    FUZZ_CHECK(TakeRecoveredDatabase(recovered, ThroughACopy(copy, note)).ok);
    CheckSame(recovered.database, shared.database);
    FUZZ_CHECK(recovered.database.fileName == shared.database.fileName);
}

void CheckStatement(const QByteArray& bytes)
{
    static LGLOBAL shared;
    static LGLOBAL recovered;
    const InvestmentReading reading = ReadInvestmentFile(bytes);
    if (!reading.statement) {
        return;
    }
    shared.InvestmentRows = reading.statement->rows;
    shared.InvestmentRowCount = reading.statement->rowCount;
    QByteArray copy;
    RecoveryNote note;
    FUZZ_CHECK(KeptStatement(shared).write(copy, note).ok);
    const InvestmentReading back = ReadRecoveredStatement(recovered, ThroughACopy(copy, note));
    FUZZ_CHECK(back.statement.has_value());
    FUZZ_CHECK(back.statement->rows == shared.InvestmentRows);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CheckNote(bytes);
    const RecoveredWork work = WithoutNote(bytes);
    FUZZ_CHECK(bytes.startsWith(work.bytes));
    FUZZ_CHECK(work.note.has_value() || work.bytes == bytes);
    CheckDatabase(work.bytes);
    CheckStatement(work.bytes);
    return 0;
}
