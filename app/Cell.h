#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

#include <optional>
#include <variant>

/// One field of a table that is kept as it was written: nothing, a whole number, another number, a text
/// or a calendar day.
using Cell = std::variant<std::monostate, int, double, QString, QDate>;

/// The cell as text: numbers with "." as the point, dates as yyyy-mm-dd, an empty cell as "".
[[nodiscard]] QString CellText(const Cell& cell);

/// The numeric value of the cell's text, 0 when it has none.
[[nodiscard]] double CellNumber(const Cell& cell);

/// True only for a cell that is a number equal to @p number; a text "7" is not the number 7.
[[nodiscard]] inline bool CellHolds(const Cell& cell, int number)
{
    if (const int* whole = std::get_if<int>(&cell)) {
        return *whole == number;
    }
    const double* real = std::get_if<double>(&cell);
    return real != nullptr && *real == number;
}

/// The cell as a calendar day: a date, or a text that ParseShortDate reads in @p locale.
[[nodiscard]] std::optional<QDate> CellDate(const Cell& cell, const QLocale& locale);
