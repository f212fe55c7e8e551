#pragma once

#include "app/Cell.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

/// How far a text between double quotes may reach.
enum class QuotedText {
    SpansLines,   ///< to its closing quote, wherever that is
    EndsWithLine, ///< to its closing quote or the end of the line: for texts that hold no line breaks
};

/// One field of a comma-separated file as it was written.
struct Field {
    enum class Kind {
        Bare,   ///< no signs around it: a number, or nothing
        Quoted, ///< between double quotes, which are stripped
        Dated,  ///< between # signs, which are stripped
    };
    Kind kind = Kind::Bare;
    QByteArrayView bytes; ///< lives as long as the reader's bytes
};

/// Reads the comma-separated fields that all of the program's files consist of.
///
/// A comma and a line end (CR LF, LF or CR) end a field alike. Inside double quotes everything up to the next
/// double quote belongs to the field, commas and (QuotedText::SpansLines) line ends included. The text is ISO
/// 8859-1, or UTF-8 when the file begins with the UTF-8 byte-order mark, which is skipped. Any bytes at all
/// may be read: every field is a view into them.
class FieldReader
{
public:
    explicit FieldReader(const QByteArray& bytes, QuotedText quotedText = QuotedText::SpansLines);

    /// The next field; empty when the bytes are used up. A field that would begin at the very end is not one,
    /// so a file cut behind a comma is short of a field.
    [[nodiscard]] std::optional<Field> Next();

    /// True when the last field was ended by the end of the bytes and not by a comma or a line end.
    [[nodiscard]] bool EndedByFileEnd() const { return m_endedByFileEnd; }

    /// True when the last field began with a double quote that was never closed.
    [[nodiscard]] bool QuoteWasLeftOpen() const { return m_quoteWasLeftOpen; }

    /// The field's characters.
    [[nodiscard]] QString Text(const Field& field) const;

    /// The field as a table cell: a number stays a number, a # field that is a day becomes a date, a quoted
    /// field a text, a field of nothing an empty cell. Anything else is kept as the text that stood there.
    [[nodiscard]] Cell AsCell(const Field& field) const;

private:
    void SkipBlanks();
    void SkipToSeparator();
    Field NextQuoted();

    QByteArrayView m_bytes;
    QuotedText m_quotedText;
    qsizetype m_place = 0;
    bool m_endedByFileEnd = false;
    bool m_quoteWasLeftOpen = false;
    bool m_utf8 = false;
};

/// The number that a bare field is; empty when the field is anything else, or beyond the range of a double.
[[nodiscard]] std::optional<double> FieldNumber(const Field& field);

/// The day a # field names as year-month-day, a time of day behind it left aside; empty when there is no such
/// day.
[[nodiscard]] std::optional<QDate> FieldDate(const Field& field);
