#pragma once

#include "app/Outcome.h"

#include <QByteArray>
#include <QString>

/// The user's personal defaults, kept in the file "Personal.Lot" of the program folder.
struct AppSettings {
    qint16 printerFont = 0;     ///< 0 the printer's standard font, 1 "Courier New" at 11 points
    qint16 defaultPicks = 6;    ///< 1..10
    qint16 defaultHighest = 49; ///< 1..60
    qint16 entryForms = 1;      ///< number of entry forms being played, 1..10
    QString currencySymbol = QStringLiteral("$");
    QString userName;

    bool operator==(const AppSettings&) const = default;
};

/// The one line of the settings file.
/// Fails when a text has a character outside ISO 8859-1.
[[nodiscard]] Outcome WriteSettings(const AppSettings& settings, QByteArray& bytes);

/// Reads the one line of a settings file into @p settings, field by field.
///
/// A field that is missing or not of its kind ends the reading: the three numbers go back to their defaults,
/// what was read before stays. Afterwards every value out of its range gets its default.
/// @return true when all six fields were read.
bool ReadSettings(const QByteArray& bytes, AppSettings& settings);
