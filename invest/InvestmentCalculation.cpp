#include "invest/InvestmentCalculation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr std::size_t kLastRow = kMostStatementRows;

bool IsInUse(const InvestmentRow& row)
{
    return row != InvestmentRow();
}

} // namespace

bool IsSubTotal(const QString& description)
{
    return description.toUpper() == u"SUB TOTAL";
}

std::optional<InvestmentStatement> CalculateStatement(const InvestmentTable& rows)
{
    InvestmentStatement statement;
    std::optional<Currency> total = Currency();
    std::optional<Currency> group = Currency();
    std::size_t count = 0;
    for (std::size_t row = 1; row <= kLastRow; ++row) {
        if (rows.at(row).description.isEmpty()) {
            continue;
        }
        InvestmentRow& kept = statement.rows.at(++count);
        kept = rows.at(row);
        const bool subTotal = IsSubTotal(kept.description);
        if (subTotal) {
            kept.amount.reset(); // a figure typed there never counts
        }
        const Currency amount = kept.amount.value_or(Currency());
        total = Sum(*total, amount);
        group = Sum(*group, amount);
        if (!total || !group) {
            return std::nullopt;
        }
        if (subTotal) {
            kept.amount = std::exchange(group, Currency());
        }
    }
    statement.rowCount = static_cast<float>(count);
    statement.total = *total;
    return statement;
}

std::optional<Currency> TotalOf(const InvestmentTable& rows, int count)
{
    std::optional<Currency> total = Currency();
    for (int row = 1; row <= count && total; ++row) {
        const InvestmentRow& item = rows.at(static_cast<std::size_t>(row));
        if (!item.description.isEmpty() && !IsSubTotal(item.description)) {
            total = Sum(*total, item.amount.value_or(Currency()));
        }
    }
    return total;
}

bool InsertBlankLine(InvestmentTable& rows, double row)
{
    if (row < 1 || row >= kMostStatementRows) {
        return false; // also at row 105 itself, which has no row to move to
    }
    const auto place = rows.begin() + static_cast<std::ptrdiff_t>(row);
    std::move_backward(place, rows.begin() + kMostStatementRows, rows.begin() + kMostStatementRows + 1);
    *place = {kBlankLine.toString(), std::nullopt};
    return true;
}

int RowOnceCalculated(const InvestmentTable& rows, int row)
{
    return static_cast<int>(
        std::count_if(rows.begin() + 1, rows.begin() + row + 1,
                      [](const InvestmentRow& counted) { return !counted.description.isEmpty(); }));
}

int LastRowInUse(const InvestmentTable& rows)
{
    const auto last = rows.begin() + kMostStatementRows + 1;
    const auto found = std::find_if(std::make_reverse_iterator(last), rows.rend() - 1, IsInUse);
    return static_cast<int>(std::distance(found, rows.rend() - 1));
}
