#pragma once

#include "app/InvestmentStatement.h"

#include <optional>

/// True for the description that adds up the group above it, in any letter case.
[[nodiscard]] bool IsSubTotal(const QString& description);

/// Counts a statement: rows 1..105 without a description are dropped, with their amounts, and the others move
/// together; a "Sub Total" row gets the sum of the amounts since the one before it, whatever stood there; the
/// total is that of all other amounts.
/// @return nothing when a sum on the way is beyond the range of Currency.
[[nodiscard]] std::optional<InvestmentStatement> CalculateStatement(const InvestmentTable& rows);

/// What CalculateStatement counts in rows 1..count: the sum of the amounts but those of "Sub Total" rows and
/// of rows without a description; nothing when it is beyond the range of Currency.
[[nodiscard]] std::optional<Currency> TotalOf(const InvestmentTable& rows, int count);

/// Puts a row with the description "BlankLine" and no amount at @p row; the rows from there on move down by
/// one and row 105 is lost. A row below 1, or of 105 and more, changes nothing.
/// @return whether the row was put in.
[[nodiscard]] bool InsertBlankLine(InvestmentTable& rows, double row);

/// Where a row with a description stands after CalculateStatement. @param row  1..105
[[nodiscard]] int RowOnceCalculated(const InvestmentTable& rows, int row);

/// The last of rows 1..105 that holds a description or an amount; 0 when there is none.
[[nodiscard]] int LastRowInUse(const InvestmentTable& rows);

/// The description of an inserted row, until the user types over it.
inline constexpr QStringView kBlankLine = u"BlankLine";
