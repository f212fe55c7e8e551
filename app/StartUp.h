#pragma once

#include "app/LGLOBAL.h"

#include <QString>

/// Brings the shared state to its first values: the program folder becomes the current one, all tables are
/// new and empty, the personal settings are read, and the empty database takes their shape.
void InitialiseSharedState(LGLOBAL& shared, const QString& programFolder);

/// Reads "Personal.Lot" of the current folder. Whatever is wrong with the file, defaults stand in silently.
void ReadPersonalSettings(LGLOBAL& shared);
