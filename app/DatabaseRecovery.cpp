#include "app/DatabaseRecovery.h"

#include "app/LotteryFile.h"
#include "app/WorkFingerprint.h"

namespace {

Outcome WriteCopy(const LGLOBAL& shared, QByteArray& bytes, RecoveryNote& note)
{
    const DrawDatabase& database = shared.database;
    note.fileName = database.fileName;
    note.folder = shared.databaseOnDisk.folder;
    note.records = database.count;
    if (!database.title.contains(u'"')) {
        // All of it is in the file; twice a title of any length, and the copy might be too large to be read.
        constexpr qsizetype kShown = 200;
        note.title = database.title.left(kShown);
        return WriteLotteryFile(database, shared.locale, bytes, WrittenFor::ARecoveryCopy);
    }
    note.title = database.title;
    DrawDatabase untitled = database;
    untitled.title.clear();
    return WriteLotteryFile(untitled, shared.locale, bytes, WrittenFor::ARecoveryCopy);
}

} // namespace

KeptWork KeptDatabase(const LGLOBAL& shared)
{
    const auto unsaved = [&shared]() -> std::optional<quint64> {
        if (shared.database.count <= 0) {
            return std::nullopt;
        }
        const quint64 fingerprint = Fingerprint(shared.database);
        return fingerprint == shared.databaseOnDisk.fingerprint ? std::nullopt : std::optional(fingerprint);
    };
    return {.kind = WorkKind::Database, .unsaved = unsaved, .write = [&shared](auto& bytes, auto& note) {
                return WriteCopy(shared, bytes, note);
            }};
}

bool DiffersFromItsFile(const LGLOBAL& shared)
{
    return KeptDatabase(shared).unsaved().has_value();
}

Outcome TakeRecoveredDatabase(LGLOBAL& shared, const RecoveredWork& work)
{
    LotteryReading reading = ReadLotteryFile(work.bytes, LotteryLayout::Current, shared.locale);
    if (!reading.content) {
        return Outcome::Failure(reading.reason);
    }
    const RecoveryNote note = work.note.value_or(RecoveryNote{});
    if (reading.content->title.isEmpty()) {
        reading.content->title = note.title;
    }
    ReplaceDatabase(shared.database, std::move(*reading.content), note.fileName);
    shared.database.modified = 1;
    shared.databasePath = PathOfWork(note);
    shared.databaseOnDisk = {.folder = note.folder, .fingerprint = 0};
    if (!note.folder.isEmpty()) {
        shared.dialogFolder = note.folder; // where the next dialog finds the work's own file
    }
    return {};
}
