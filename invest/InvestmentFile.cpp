#include "invest/InvestmentFile.h"

#include "app/FieldReader.h"
#include "app/TextPictures.h"
#include "invest/InvestmentCalculation.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Reads one file front to back.
class StatementReader
{
public:
    explicit StatementReader(const QByteArray& bytes) : m_fields(bytes, QuotedText::EndsWithLine) {}

    InvestmentTable Rows()
    {
        InvestmentTable rows;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            const std::optional<Field> description = m_fields.Next();
            if (!description) {
                return rows;
            }
            row->description = Description(*description);
            if (m_fields.QuoteWasLeftOpen()) {
                m_hasDoubtfulRows = true; // the line is over, and its amount with it
                continue;
            }
            const std::optional<Field> amount = m_fields.Next();
            if (!amount) {
                m_hasDoubtfulRows = m_hasDoubtfulRows || !row->description.isEmpty();
                return rows;
            }
            row->amount = Amount(*amount);
        }
        return rows;
    }

    std::optional<double> Count()
    {
        const std::optional<Field> first = m_fields.Next();
        return first ? FieldNumber(*first) : std::nullopt;
    }

    /// Whether a row was read that was not saved as it was read.
    [[nodiscard]] bool HasDoubtfulRows() const { return m_hasDoubtfulRows; }

private:
    /// The text that stands there; a double quote, which only a damaged file has in it, could not be written.
    [[nodiscard]] QString Description(const Field& field) const { return m_fields.Text(field).remove(u'"'); }

    std::optional<Currency> Amount(const Field& field)
    {
        if (field.bytes.isEmpty()) {
            return std::nullopt;
        }
        const QString text = m_fields.Text(field);
        const bool isOne = field.kind != Field::Kind::Dated && !LeadingNumber(text).isEmpty();
        // "-12.50" cut to "-1" looks whole, so what the end of the file cut is not taken.
        const std::optional<Currency> amount =
            isOne && !m_fields.EndedByFileEnd() ? Currency::FromText(text) : std::nullopt;
        m_hasDoubtfulRows = m_hasDoubtfulRows || !amount || !FieldNumber(field);
        return amount;
    }

    FieldReader m_fields;
    bool m_hasDoubtfulRows = false;
};

/// A damaged count hides no row and adds none.
int CountedRows(std::optional<double> announced, int lastInUse)
{
    const bool possible = announced && *announced >= 0 && *announced <= kMostStatementRows &&
                          *announced == std::trunc(*announced);
    return possible ? std::min(static_cast<int>(*announced), lastInUse) : lastInUse;
}

bool AreTheRows(const InvestmentTable& rows, const InvestmentTable& others)
{
    return std::equal(rows.begin(), rows.begin() + kMostStatementRows + 1, others.begin());
}

bool HasLineBreak(const QString& text)
{
    return text.contains(u'\r') || text.contains(u'\n');
}

} // namespace

InvestmentReading ReadInvestmentFile(const QByteArray& bytes)
{
    StatementReader reader(bytes);
    InvestmentStatement statement;
    const std::optional<double> announced = reader.Count();
    statement.rows = reader.Rows();
    const int count = CountedRows(announced, LastRowInUse(statement.rows));
    statement.rowCount = static_cast<float>(count);
    const std::optional<Currency> total = TotalOf(statement.rows, count);
    if (!total) {
        return {std::nullopt, u"The amounts of the file add up to more than a statement can hold."_s};
    }
    statement.total = *total;
    const std::optional<InvestmentStatement> calculated = CalculateStatement(statement.rows);
    const bool isCalculated = calculated && announced == calculated->rowCount &&
                              AreTheRows(calculated->rows, statement.rows) && !reader.HasDoubtfulRows();
    return {std::move(statement), {}, isCalculated};
}

Outcome WriteInvestmentFile(const InvestmentStatement& statement, QByteArray& bytes, FileText fileText)
{
    FieldWriter writer(fileText);
    writer.Number(statement.rowCount);
    writer.EndLine();
    for (std::size_t row = 1; row < statement.rows.size(); ++row) {
        const InvestmentRow& item = statement.rows.at(row);
        if (HasLineBreak(item.description)) {
            return Outcome::Failure(u"The description in row %1 has a line break."_s.arg(row));
        }
        if (item.description.isEmpty()) {
            writer.Nothing();
        } else {
            writer.Text(item.description);
        }
        if (item.amount) {
            writer.Amount(*item.amount);
        } else {
            writer.Nothing();
        }
        writer.EndLine();
        if (!writer.EverythingHadAPlace()) {
            return Outcome::Failure(
                u"The description in row %1 has a character that a statement file cannot hold."_s.arg(row));
        }
    }
    bytes = writer.Bytes();
    return {};
}
