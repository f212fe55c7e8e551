#pragma once

#include "app/KeptWork.h"
#include "app/LGLOBAL.h"

/// The open database as work to keep: unsaved as soon as anything in it is not as it was opened or saved,
/// also where the question at the exit does not ask. A database without records holds nothing to keep.
[[nodiscard]] KeptWork KeptDatabase(const LGLOBAL& shared);

/// Whether the open database has records and anything in it is not as it was opened or saved.
[[nodiscard]] bool DiffersFromItsFile(const LGLOBAL& shared);

/// Puts a recovered database in the place of the open one, as work that is not saved. On failure (the bytes
/// are no lottery database) the open one stays and the reason says what is wrong.
[[nodiscard]] Outcome TakeRecoveredDatabase(LGLOBAL& shared, const RecoveredWork& work);
