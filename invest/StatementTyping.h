#pragma once

#include "app/InvestmentStatement.h"

#include <QString>

#include <array>

/// A cell of the statement's grid.
struct StatementPlace {
    static constexpr int kDescription = 0;
    static constexpr int kAmount = 1;

    int row = 0; ///< from 1; 0 for none
    int column = kDescription;

    bool operator==(const StatementPlace&) const = default;
};

/// What became of a key.
enum class Typed {
    Changed,     ///< the cell holds something else now
    Nothing,     ///< the key does nothing here
    Refused,     ///< the key has no place in the cell: a beep is due
    BeyondLimit, ///< the row is beyond 105: message 46 is due
};

/// Typing straight into the cells of a statement, character by character.
///
/// A description takes what a file can hold, at its end. An amount is typed as figures, minus signs and
/// points, whose leading number it is: "5-" is 5, and "-", "." and "--5" are 0. Further figures go behind
/// those that were typed, not behind the two decimals that are shown; once the cell was left, behind those
/// that the amount needs.
class StatementTyping
{
public:
    explicit StatementTyping(InvestmentTable& rows) : m_rows(rows) {}

    /// Types a text, as one key or input method gives it: whole, or not at all.
    Typed Type(const StatementPlace& place, const QString& text);

    /// Takes the last character away. An amount without figures is an empty cell.
    Typed Backspace(const StatementPlace& place);

    /// The row's amount is left: figures that change nothing behind it ("-12-24") are forgotten, so that
    /// later ones, and Backspace, go on from the amount as it is. @param row  any number
    void LeaveRow(int row);

    /// The rows were filled anew: nothing has been typed there.
    void Forget();

private:
    Typed TypeDescription(const StatementPlace& place, const QString& text);
    Typed TypeAmount(const StatementPlace& place, const QString& text);
    Typed SetFigures(const StatementPlace& place, const QString& figures);
    [[nodiscard]] QString Figures(int row) const;
    [[nodiscard]] InvestmentRow& Row(const StatementPlace& place) const;

    InvestmentTable& m_rows;
    std::array<QString, kStatementTableRows> m_figures; ///< as typed into each row's amount
    StatementPlace m_last;                              ///< of the last change
};
