#pragma once

#include "app/Currency.h"

#include <QString>

#include <array>
#include <optional>

/// One row of the statement of money spent and won.
struct InvestmentRow {
    QString description;            ///< "" leaves the row out of the statement
    std::optional<Currency> amount; ///< spent when negative; nothing is an empty cell, which is not 0

    bool operator==(const InvestmentRow&) const = default;
};

inline constexpr int kStatementTableRows = 112; ///< rows 0..111; a file holds rows 1..111
inline constexpr int kMostStatementRows = 105;  ///< rows 1..105 can be used

/// The rows of a statement. Row 0 holds nothing.
using InvestmentTable = std::array<InvestmentRow, kStatementTableRows>;

/// A statement as it was last calculated or loaded.
struct InvestmentStatement {
    InvestmentTable rows;
    float rowCount = 0; ///< rows in use: 1..rowCount; a whole number from 0 to kMostStatementRows
    Currency total;     ///< of all amounts but those of the "Sub Total" rows

    bool operator==(const InvestmentStatement&) const = default;
};
