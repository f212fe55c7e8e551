#include "invest/InvestmentFileCommands.h"

#include "app/SafeFile.h"
#include "invest/InvestmentFile.h"

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

void Remember(LGLOBAL& shared, const QString& path)
{
    shared.investmentFileName = QFileInfo(path).fileName();
}

Outcome ReadAt(const QString& path, InvestmentReading& reading)
{
    QByteArray bytes;
    if (Outcome read = ReadFileBytes(path, bytes); !read.ok) {
        return read;
    }
    reading = ReadInvestmentFile(bytes);
    return reading.statement ? Outcome() : Outcome::Failure(reading.reason);
}

Outcome WriteAt(const QString& path, const InvestmentStatement& statement)
{
    QByteArray bytes;
    const Outcome written = WriteInvestmentFile(statement, bytes);
    return written.ok ? SaveFileBytes(path, bytes) : written;
}

} // namespace

std::optional<InvestmentStatement> ReadInvestmentFileAt(LGLOBAL& shared, Prompts& prompts,
                                                        const QString& path)
{
    InvestmentReading reading;
    if (const Outcome read = ReadAt(path, reading); !read.ok) {
        Show(shared, prompts, {.number = kBadFileName, .reason = read.reason});
        return std::nullopt;
    }
    Remember(shared, path);
    return reading.statement;
}

std::optional<InvestmentStatement> OpenInvestmentFile(LGLOBAL& shared, Prompts& prompts)
{
    const bool chosen = AskForFile(shared, prompts, kOpenInvestmentFile);
    std::optional<InvestmentStatement> statement =
        chosen ? ReadInvestmentFileAt(shared, prompts, shared.chosenPath) : std::nullopt;
    EndFileDialog(shared);
    return statement;
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
            Remember(shared, shared.chosenPath);
        } else {
            Show(shared, prompts, {.number = kBadFileName, .reason = written.reason});
        }
    }
    EndFileDialog(shared);
    return saved;
}
