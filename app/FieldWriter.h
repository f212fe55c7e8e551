#pragma once

#include "app/Cell.h"
#include "app/Currency.h"

#include <QByteArray>
#include <QDate>
#include <QString>

/// The characters that a file is written in; a reader knows them by the byte-order mark of UTF-8.
enum class FileText { Iso8859, Utf8 };

/// Writes the comma-separated fields that all of the program's files consist of: numbers bare with "." as the
/// point in every locale, texts between double quotes with nothing escaped, dates as #yyyy-mm-dd#, lines
/// ended by CR LF, characters in ISO 8859-1 unless UTF-8 is asked for.
class FieldWriter
{
public:
    explicit FieldWriter(FileText fileText = FileText::Iso8859);

    void Number(double value);
    /// An amount, exact to its last digit.
    void Amount(Currency amount);
    void Text(const QString& text);
    /// @param date  a day of the years 0 to 9999
    void Date(QDate date);
    /// The cell under its own kind; an empty cell is a field of nothing.
    void AsHeld(const Cell& cell);
    /// The same so that FieldReader reads the same cell of it, also when it is a text with a double quote in
    /// it, as a damaged file may hold one.
    void Exactly(const Cell& cell);
    /// A field of nothing, as of an empty cell.
    void Nothing() { Begin(); }
    void EndLine();

    [[nodiscard]] const QByteArray& Bytes() const { return m_bytes; }

    /// False once a text with a character outside ISO 8859-1 (unless written in UTF-8) or a number that is
    /// not finite was given: the bytes are then not what was given.
    [[nodiscard]] bool EverythingHadAPlace() const { return m_everythingHadAPlace; }

private:
    void Begin();
    void Append(const QString& text);

    FileText m_fileText;
    QByteArray m_bytes;
    bool m_lineBegun = false;
    bool m_everythingHadAPlace = true;
};

/// True when every character of the text has a place in the program's files (ISO 8859-1).
[[nodiscard]] bool FitsFileText(QStringView text);
