#pragma once

#include <QStringView>

/// Character codes of keys that filters let pass beside printable ones.
inline constexpr int kBackspaceKey = 8;
inline constexpr int kEnterKey = 13;
inline constexpr int kDeleteKey = 127;

/// Keeps digits, Backspace and character 127.
/// @return the key, or 0 when it is dropped; the caller sounds the beep for a dropped key.
[[nodiscard]] int FilterDigitKey(int key);

/// Keeps digits, one or more points, Backspace and character 127, but no digit once two stand behind the
/// first point of @p currentEntryText: not even before the point.
/// @return the key, or 0 when it is dropped; the caller sounds the beep for a dropped key.
[[nodiscard]] int FilterDecimalKey(int key, QStringView currentEntryText);

/// Keeps what a date is typed with: digits, ".", "-", "/", Backspace and character 127.
/// @return the key, or 0 when it is dropped; the caller sounds the beep for a dropped key.
[[nodiscard]] int FilterDateKey(int key);

/// Keeps what FilterFileTextKey keeps but the double quote, which would end a text in a file.
/// @return the key, or 0 when it is dropped; the caller sounds the beep for a dropped key.
[[nodiscard]] int FilterQuotedTextKey(int key);

/// Keeps every character that the program's files can hold (ISO 8859-1).
/// @return the key, or 0 when it is dropped; the caller sounds the beep for a dropped key.
[[nodiscard]] int FilterFileTextKey(int key);
