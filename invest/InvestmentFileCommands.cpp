#include "invest/InvestmentFileCommands.h"

#include "app/FileNames.h"
#include "app/RecentFiles.h"
#include "app/SafeFile.h"
#include "app/WorkFingerprint.h"

#include <QFileInfo>

namespace {

constexpr int kNoRecords = 15;
constexpr int kBadFileName = 25;

/// @return whether a file was chosen.
bool AskForFile(LGLOBAL& shared, Prompts& prompts, FileDialogMode mode)
{
    shared.fileDialogMode = mode;
    prompts.FileDirectory();
    return shared.fileDialogMode != kFileDialogCancelled;
}

void EndFileDialog(LGLOBAL& shared)
{
    shared.fileDialogMode = kFileDialogIdle;
    shared.chosenPath.clear();
}

/// That file holds these rows.
void Remember(LGLOBAL& shared, const QString& path, const InvestmentTable& rows)
{
    const QFileInfo file(path);
    shared.investmentFileName = file.fileName();
    shared.statementOnDisk = {.folder = file.absolutePath(), .fingerprint = Fingerprint(rows)};
    shared.statementPath = file.absoluteFilePath();
    RememberFile(shared.recentFilesList, shared.statementPath);
}

/// Refused without a reason: the message itself says what is wrong with the name.
Outcome CheckName(const QString& path)
{
    return IsStatementFileName(path) ? Outcome() : Outcome::Failure({});
}

Outcome ReadAt(const QString& path, InvestmentReading& reading)
{
    if (Outcome name = CheckName(path); !name.ok) {
        return name;
    }
    QByteArray bytes;
    if (Outcome read = ReadFileBytes(path, bytes); !read.ok) {
        return read;
    }
    reading = ReadInvestmentFile(bytes);
    return reading.statement ? Outcome() : Outcome::Failure(reading.reason);
}

Outcome WriteAt(const QString& path, const InvestmentStatement& statement)
{
    if (Outcome name = CheckName(path); !name.ok) {
        return name;
    }
    QByteArray bytes;
    const Outcome written = WriteInvestmentFile(statement, bytes);
    return written.ok ? SaveFileBytes(path, bytes) : written;
}

} // namespace

InvestmentReading ReadInvestmentFileAt(LGLOBAL& shared, Prompts& prompts, const QString& path,
                                       const std::function<bool()>& mayReplace)
{
    InvestmentReading reading;
    if (const Outcome read = ReadAt(path, reading); !read.ok) {
        Show(shared, prompts, {.number = kBadFileName, .reason = read.reason});
        return {};
    }
    if (!mayReplace()) {
        return {};
    }
    Remember(shared, path, reading.statement->rows);
    shared.dialogFolder = QFileInfo(path).absolutePath();
    return reading;
}

InvestmentReading OpenInvestmentFile(LGLOBAL& shared, Prompts& prompts,
                                     const std::function<bool()>& mayReplace)
{
    const QString folderBefore = shared.dialogFolder;
    InvestmentReading reading;
    if (AskForFile(shared, prompts, kOpenInvestmentFile)) {
        reading = ReadInvestmentFileAt(shared, prompts, shared.chosenPath, mayReplace);
    }
    if (!reading.statement) {
        shared.dialogFolder = folderBefore; // where the statement in memory came from
    }
    EndFileDialog(shared);
    return reading;
}

bool SaveInvestmentFile(LGLOBAL& shared, Prompts& prompts, const InvestmentStatement& statement)
{
    if (statement.rowCount == 0) {
        Show(shared, prompts, {.number = kNoRecords});
        return false;
    }
    bool saved = false;
    if (AskForFile(shared, prompts, kSaveInvestmentFile)) {
        const Outcome written = WriteAt(shared.chosenPath, statement);
        saved = written.ok;
        if (saved) {
            Remember(shared, shared.chosenPath, statement.rows);
        } else {
            Show(shared, prompts, {.number = kBadFileName, .reason = written.reason});
        }
    }
    EndFileDialog(shared);
    return saved;
}
