#pragma once

#include "app/FieldWriter.h"
#include "app/InvestmentStatement.h"
#include "app/Outcome.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// What became of reading a statement file.
struct InvestmentReading {
    std::optional<InvestmentStatement> statement; ///< nothing when the file was refused
    QString reason;                               ///< why it was, a sentence for the user
    /// Whether calculating would leave the statement as the file has it. Not so when the file was damaged,
    /// cut in the middle of a row, or made elsewhere: rows below its count, amounts that cannot be what was
    /// saved.
    bool isCalculated = false;
};

/// Reads any bytes at all as a statement, as far as they go; rows that are not there are empty.
///
/// The count of the first line is taken when it is a whole number from 0 to 105, but never for more rows than
/// hold something; any other count becomes the last row that does. A description ends with its line at the
/// latest. An amount is the leading number of its field, and nothing where there is none, where it is beyond
/// the range of Currency, and where the file ends in it, since figures may be missing. The total is that of
/// the counted rows that have a description. Only a file whose total is beyond that range is refused.
[[nodiscard]] InvestmentReading ReadInvestmentFile(const QByteArray& bytes);

/// Writes the count and rows 1..111, the empty ones too: always 112 lines. On failure (a description with a
/// line break, or with a character outside ISO 8859-1) the reason names the row and @p bytes is untouched.
/// @param fileText  UTF-8, which the reader knows, is for recovery copies: it has a place for every character
[[nodiscard]] Outcome WriteInvestmentFile(const InvestmentStatement& statement, QByteArray& bytes,
                                          FileText fileText = FileText::Iso8859);
