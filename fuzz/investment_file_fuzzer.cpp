// Any bytes at all, read as a statement file. What is read stays within the table, what is written of it
// reads back as the same, and calculating it twice is calculating it once.

#include "app/FieldWriter.h"
#include "fuzz/FuzzCheck.h"
#include "invest/InvestmentCalculation.h"
#include "invest/InvestmentFile.h"

#include <QByteArray>

#include <algorithm>

namespace {

void CheckSound(const InvestmentStatement& statement)
{
    const int count = static_cast<int>(statement.rowCount);
    FUZZ_CHECK(statement.rowCount == static_cast<float>(count));
    FUZZ_CHECK(count >= 0 && count <= LastRowInUse(statement.rows));
    FUZZ_CHECK(LastRowInUse(statement.rows) <= kMostStatementRows);
    FUZZ_CHECK(statement.rows.front() == InvestmentRow());
    FUZZ_CHECK(TotalOf(statement.rows, count) == statement.total);
}

void CheckWriting(const InvestmentStatement& statement)
{
    QByteArray bytes;
    const bool fits = std::all_of(statement.rows.begin(), statement.rows.end(),
                                  [](const InvestmentRow& row) { return FitsFileText(row.description); });
    FUZZ_CHECK(WriteInvestmentFile(statement, bytes).ok == fits);
    if (fits) {
        const InvestmentReading again = ReadInvestmentFile(bytes);
        FUZZ_CHECK(again.statement == statement);
    }
}

void CheckCalculating(const InvestmentStatement& statement)
{
    const std::optional<InvestmentStatement> once = CalculateStatement(statement.rows);
    if (once) {
        FUZZ_CHECK(CalculateStatement(once->rows) == once);
        CheckSound(*once);
    }
}

/// What says of itself that it is calculated has the total that calculating gives.
void CheckCalculated(const InvestmentReading& reading)
{
    if (reading.isCalculated) {
        const std::optional<InvestmentStatement> calculated = CalculateStatement(reading.statement->rows);
        FUZZ_CHECK(calculated && calculated->total == reading.statement->total);
        FUZZ_CHECK(calculated->rowCount == reading.statement->rowCount);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const InvestmentReading reading = ReadInvestmentFile(bytes);
    FUZZ_CHECK(reading.statement.has_value() == reading.reason.isEmpty());
    if (reading.statement) {
        CheckSound(*reading.statement);
        CheckWriting(*reading.statement);
        CheckCalculating(*reading.statement);
        CheckCalculated(reading);
    }
    return 0;
}
