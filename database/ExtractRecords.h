#pragma once

#include "app/DrawDatabase.h"

/// Replaces the records by those numbered from @p low to @p high, numbered anew from 1; the database is then
/// titled "Extracted" and proposes the file name "Extract.lto", so that the whole database on disk is not
/// written over. Shape, draw days and the unsaved-changes flag stay.
void ExtractRecords(DrawDatabase& database, float low, float high);
