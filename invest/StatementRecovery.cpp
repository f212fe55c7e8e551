#include "invest/StatementRecovery.h"

#include "app/WorkFingerprint.h"
#include "invest/InvestmentCalculation.h"

KeptWork KeptStatement(const LGLOBAL& shared)
{
    const auto unsaved = [&shared]() -> std::optional<quint64> {
        if (LastRowInUse(shared.InvestmentRows) == 0) {
            return std::nullopt;
        }
        const quint64 fingerprint = Fingerprint(shared.InvestmentRows);
        return fingerprint == shared.statementOnDisk.fingerprint ? std::nullopt : std::optional(fingerprint);
    };
    const auto write = [&shared](QByteArray& bytes, RecoveryNote& note) {
        note.fileName = shared.investmentFileName;
        note.folder = shared.statementOnDisk.folder;
        note.records = LastRowInUse(shared.InvestmentRows);
        // Typed over since they were counted, the rows may add up to more than a file may say it counted.
        const bool canBeCounted =
            TotalOf(shared.InvestmentRows, static_cast<int>(shared.InvestmentRowCount)).has_value();
        const InvestmentStatement statement{.rows = shared.InvestmentRows,
                                            .rowCount = canBeCounted ? shared.InvestmentRowCount : 0,
                                            .total = {}};
        const Outcome written = WriteInvestmentFile(statement, bytes);
        return written.ok ? written : WriteInvestmentFile(statement, bytes, FileText::Utf8);
    };
    return {.kind = WorkKind::Statement, .unsaved = unsaved, .write = write};
}

InvestmentReading ReadRecoveredStatement(LGLOBAL& shared, const RecoveredWork& work)
{
    InvestmentReading reading = ReadInvestmentFile(work.bytes);
    if (!reading.statement) {
        return reading;
    }
    const RecoveryNote note = work.note.value_or(RecoveryNote{});
    shared.investmentFileName = note.fileName;
    shared.statementPath = PathOfWork(note);
    shared.statementOnDisk = {.folder = note.folder, .fingerprint = 0};
    if (!note.folder.isEmpty()) {
        shared.dialogFolder = note.folder;
    }
    return reading;
}
