#pragma once

#include "app/Currency.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <optional>

/// Writes a number under a picture such as "##", "#00" or "####,,###.00".
///
/// In the picture "#" is a digit that is left out when it would be a leading zero, "0" a digit that is always
/// written, "." the decimal point, and commas ask for the thousands to be grouped (two neighbouring commas
/// ask for nothing more). Point and comma are those of the picture in every locale. The value is rounded to
/// the decimals of the picture, halves away from zero, in the fifteen digits a double holds for certain. More
/// digits than the picture has are all written; a value that rounds to zero carries no sign.
///
/// @return "" for a number that is not finite.
[[nodiscard]] QString Format(double value, QStringView picture);

/// Writes an amount under a picture, exact to its last digit; otherwise as a number.
[[nodiscard]] QString Format(Currency amount, QStringView picture);

/// Writes the numeric value of a text under a picture; an empty (or all blank) text stays empty.
[[nodiscard]] QString Format(const QString& text, QStringView picture);

/// The number as decimal text with one character for the sign: a blank, or "-".
[[nodiscard]] QString Str(double value);

/// The characters of the leading number of a text, without blanks: sign, digits, point, exponent. Empty when
/// the text does not begin with a number. See Val.
[[nodiscard]] QByteArray LeadingNumber(QStringView text);

/// The leading number of a text; blanks are skipped wherever they stand, "." is the decimal point in
/// every locale, and an exponent counts. 0 when the text does not begin with a number; a number beyond the
/// range of a double is the largest (or, negative, the lowest) one.
[[nodiscard]] double Val(QStringView text);

/// The text at the right end of a field of @p width blanks. A longer text keeps its leftmost @p width
/// characters.
[[nodiscard]] QString RightJustify(const QString& text, int width);

/// Conversion to a signed 16-bit integer, halves to the even neighbour; empty when it does not fit.
[[nodiscard]] std::optional<qint16> ToInt16(double value);
