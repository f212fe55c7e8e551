#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QString>

/// Brings the shared state to its first values: the program folder becomes the current one, all tables are
/// new and empty, the personal settings are read, and the empty database takes their shape.
void InitialiseSharedState(LGLOBAL& shared, const QString& programFolder);

/// Writes the personal settings to "Personal.Lot" of the program folder, in the place of the old file.
[[nodiscard]] Outcome WritePersonalSettings(const LGLOBAL& shared);

/// The same, and tells the user when it could not be done, and why.
void SavePersonalSettings(const LGLOBAL& shared, Prompts& prompts);

/// Reads "Personal.Lot" of the program folder. Whatever is wrong with the file, defaults stand in silently.
void ReadPersonalSettings(LGLOBAL& shared);
