#pragma once

#include "app/Cell.h"
#include "app/Currency.h"

#include <QByteArray>
#include <QDate>
#include <QString>

/// Writes the comma-separated fields that all of the program's files consist of: numbers bare with "." as the
/// point in every locale, texts between double quotes with nothing escaped, dates as #yyyy-mm-dd#, lines
/// ended by CR LF, characters in ISO 8859-1.
class FieldWriter
{
public:
    void Number(double value);
    /// An amount, exact to its last digit.
    void Amount(Currency amount);
    void Text(const QString& text);
    /// @param date  a day of the years 0 to 9999
    void Date(QDate date);
    /// The cell under its own kind; an empty cell is a field of nothing.
    void AsHeld(const Cell& cell);
    /// A field of nothing, as of an empty cell.
    void Nothing() { Begin(); }
    void EndLine();

    [[nodiscard]] const QByteArray& Bytes() const { return m_bytes; }

    /// False once a text with a character outside ISO 8859-1 or a number that is not finite was given: the
    /// bytes are then not what was given.
    [[nodiscard]] bool EverythingHadAPlace() const { return m_everythingHadAPlace; }

private:
    void Begin();

    QByteArray m_bytes;
    bool m_lineBegun = false;
    bool m_everythingHadAPlace = true;
};

/// True when every character of the text has a place in the program's files (ISO 8859-1).
[[nodiscard]] bool FitsFileText(QStringView text);
