#include "app/LotteryFileCommands.h"

#include "app/LotteryFile.h"
#include "app/RecentFiles.h"
#include "app/SafeFile.h"
#include "app/WorkFingerprint.h"

#include <QFileInfo>

namespace {

void TellThatItGoes(const LGLOBAL& shared)
{
    if (shared.beforeDatabaseGoes) {
        shared.beforeDatabaseGoes();
    }
}

void RefuseFile(LGLOBAL& shared, Prompts& prompts, const QString& reason)
{
    constexpr int kNotFoundOrWrongFormat = 13;
    prompts.SetBusyPointer(false);
    Show(shared, prompts, {.number = kNotFoundOrWrongFormat, .reason = reason});
    TellThatItGoes(shared);
    shared.database.Empty();
    shared.database.modified = 0;
}

/// What is in memory is what that file holds.
void HoldsFile(LGLOBAL& shared, const QString& path)
{
    const QFileInfo file(path);
    shared.database.fileName = file.fileName();
    shared.databasePath = file.absoluteFilePath();
    shared.databaseOnDisk = {.folder = file.absolutePath(), .fingerprint = Fingerprint(shared.database)};
    RememberFile(shared.recentFilesList, shared.databasePath);
}

Outcome WriteDatabase(const LGLOBAL& shared, const QString& path)
{
    QByteArray bytes;
    const Outcome written = WriteLotteryFile(shared.database, shared.locale, bytes);
    return written.ok ? SaveFileBytes(path, bytes) : written;
}

void SaveUnderChosenName(LGLOBAL& shared, Prompts& prompts)
{
    constexpr int kNoRecords = 15;
    constexpr int kBadFileName = 14;
    if (shared.database.count == 0) {
        Show(shared, prompts, {.number = kNoRecords});
        return;
    }
    shared.fileDialogMode = kSaveLotteryFile;
    prompts.FileDirectory();
    if (shared.fileDialogMode == kFileDialogCancelled) {
        return;
    }
    const Outcome saved = WriteDatabase(shared, shared.chosenPath);
    if (saved.ok) {
        HoldsFile(shared, shared.chosenPath);
    } else {
        Show(shared, prompts, {.number = kBadFileName, .reason = saved.reason});
    }
}

void EndFileDialog(LGLOBAL& shared)
{
    shared.fileDialogMode = kFileDialogIdle;
    shared.chosenPath.clear();
}

} // namespace

bool OpenLotteryFile(LGLOBAL& shared, Prompts& prompts, const QString& path)
{
    constexpr int kOldFormat = 16;
    prompts.SetBusyPointer(true);
    QByteArray bytes;
    if (const Outcome read = ReadFileBytes(path, bytes); !read.ok) {
        RefuseFile(shared, prompts, read.reason);
        return false;
    }
    LotteryReading reading = ReadLotteryFile(bytes, LotteryLayout::Current, shared.locale);
    if (!reading.content) {
        // The older layout has no mark of its own: it shows by failing to be the current one.
        const QString asCurrent = reading.reason;
        prompts.SetBusyPointer(false);
        Show(shared, prompts, {.number = kOldFormat});
        reading = ReadLotteryFile(bytes, LotteryLayout::Older, shared.locale);
        if (!reading.content) {
            RefuseFile(shared, prompts, asCurrent);
            return false;
        }
        prompts.SetBusyPointer(true);
    }
    TellThatItGoes(shared);
    ReplaceDatabase(shared.database, std::move(*reading.content), QFileInfo(path).fileName());
    HoldsFile(shared, path);
    return true;
}

QString DatabaseFilePath(const LGLOBAL& shared)
{
    const QString& name = shared.database.fileName;
    return QFileInfo(shared.databasePath).fileName() == name ? shared.databasePath : name;
}

void LoadFile(LGLOBAL& shared, Prompts& prompts)
{
    const QString folderBefore = shared.dialogFolder;
    shared.fileDialogMode = kOpenLotteryFile;
    prompts.FileDirectory();
    if (shared.fileDialogMode != kFileDialogCancelled &&
        !OpenLotteryFile(shared, prompts, shared.chosenPath)) {
        shared.dialogFolder = folderBefore;
    }
    EndFileDialog(shared);
}

void SaveFile(LGLOBAL& shared, Prompts& prompts)
{
    SaveUnderChosenName(shared, prompts);
    shared.database.modified = 0;
    EndFileDialog(shared);
}
