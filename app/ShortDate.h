#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

/// The locale's short date format with the year always in four digits, e.g. "M/d/yyyy" or "dd.MM.yyyy"; where
/// the locale spells the month out (the C locale does), "yyyy-MM-dd".
[[nodiscard]] QString ShortDateFormat(const QLocale& locale);

/// A calendar day in that format; "" for an invalid date.
[[nodiscard]] QString ShortDate(QDate date, const QLocale& locale);

/// Reads a calendar day: the locale's format, its order of day, month and year with ".", "-" or "/", or an
/// ISO date (four digits first). A year of one or two digits means 1950 to 2049.
///
/// @return empty when the text is no day of the years 100 to 9999.
[[nodiscard]] std::optional<QDate> ParseShortDate(QStringView text, const QLocale& locale);

/// The day, if it exists and its year is one of 100 to 9999, which four digits can write and read back.
[[nodiscard]] std::optional<QDate> DateWithinRange(int year, int month, int day);
