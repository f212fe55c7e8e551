#include "invest/InvestmentFile.h"

#include "app/FieldReader.h"
#include "app/FieldWriter.h"
#include "app/TextPictures.h"
#include "invest/InvestmentCalculation.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// The text that stands there; a double quote, which only a damaged file has in it, could not be written.
QString DescriptionOf(const FieldReader& fields, const Field& field)
{
    return fields.Text(field).remove(u'"');
}

std::optional<Currency> AmountOf(const FieldReader& fields, const Field& field)
{
    if (field.kind == Field::Kind::Dated) {
        return std::nullopt;
    }
    const QString text = fields.Text(field);
    return LeadingNumber(text).isEmpty() ? std::nullopt : Currency::FromText(text);
}

void ReadRows(FieldReader& fields, InvestmentTable& rows)
{
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        const std::optional<Field> description = fields.Next();
        if (!description) {
            return;
        }
        row->description = DescriptionOf(fields, *description);
        const std::optional<Field> amount = fields.Next();
        if (!amount) {
            return;
        }
        row->amount = AmountOf(fields, *amount);
    }
}

/// A damaged count hides no row and adds none.
int CountedRows(std::optional<double> announced, int lastInUse)
{
    const bool possible = announced && *announced >= 0 && *announced <= kMostStatementRows &&
                          *announced == std::trunc(*announced);
    return possible ? std::min(static_cast<int>(*announced), lastInUse) : lastInUse;
}

} // namespace

InvestmentReading ReadInvestmentFile(const QByteArray& bytes)
{
    FieldReader fields(bytes);
    const std::optional<Field> first = fields.Next();
    InvestmentStatement statement;
    ReadRows(fields, statement.rows);
    const int count = CountedRows(first ? FieldNumber(*first) : std::nullopt, LastRowInUse(statement.rows));
    statement.rowCount = static_cast<float>(count);
    const std::optional<Currency> total = TotalOf(statement.rows, count);
    if (!total) {
        return {std::nullopt, u"The amounts of the file add up to more than a statement can hold."_s};
    }
    statement.total = *total;
    return {std::move(statement), {}};
}

Outcome WriteInvestmentFile(const InvestmentStatement& statement, QByteArray& bytes)
{
    FieldWriter writer;
    writer.Number(statement.rowCount);
    writer.EndLine();
    for (std::size_t row = 1; row < statement.rows.size(); ++row) {
        const InvestmentRow& item = statement.rows.at(row);
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
