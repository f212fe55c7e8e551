#pragma once

#include "app/InvestmentStatement.h"
#include "tests/QtPrinters.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

// Made-up statements, and how GoogleTest writes them into a failure.

inline void PrintTo(const Currency& amount, std::ostream* out)
{
    *out << amount.Plain().toStdString();
}

inline void PrintTo(const InvestmentRow& row, std::ostream* out)
{
    PrintTo(row.description, out);
    *out << ' ' << (row.amount ? row.amount->Plain().toStdString() : "nothing");
}

/// An amount written as a file holds it.
inline Currency Money(const QString& text)
{
    const std::optional<Currency> amount = Currency::FromText(text);
    EXPECT_TRUE(amount.has_value()) << text.toStdString();
    return amount.value_or(Currency());
}

/// A row; an empty amount is an empty cell.
inline InvestmentRow Item(const QString& description, const QString& amount = {})
{
    return {description, amount.isEmpty() ? std::nullopt : std::optional<Currency>(Money(amount))};
}

/// A table with these rows from row 1 on.
inline InvestmentTable Rows(const std::vector<InvestmentRow>& items)
{
    InvestmentTable rows;
    for (std::size_t i = 0; i < items.size(); ++i) {
        rows.at(i + 1) = items.at(i);
    }
    return rows;
}

/// So many rows "Row 1", "Row 2" and so on with the amounts 1, 2 and so on.
inline InvestmentTable NumberedRows(int count)
{
    InvestmentTable rows;
    for (int row = 1; row <= count; ++row) {
        rows.at(static_cast<std::size_t>(row)) =
            Item(QStringLiteral("Row %1").arg(row), QString::number(row));
    }
    return rows;
}
