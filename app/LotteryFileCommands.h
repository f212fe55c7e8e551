#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QString>

/// Asks for a lottery database file and opens it. A cancelled dialog leaves the open database as it is. After
/// a failure the next dialog opens in the folder it would have opened in before.
void LoadFile(LGLOBAL& shared, Prompts& prompts);

/// Opens a lottery database file in the place of the open database.
///
/// A file of the older layout is opened after message 16. A file that cannot be read in either gives
/// message 13 and leaves the empty database, with the shape that was there before, and nothing to save.
/// The busy pointer stays on after a success until the editor is there.
/// @return whether it was opened.
bool OpenLotteryFile(LGLOBAL& shared, Prompts& prompts, const QString& path);

/// The file of the open database: with its folder, unless the database came about otherwise since, as an
/// extract does; "" when it has no name.
[[nodiscard]] QString DatabaseFilePath(const LGLOBAL& shared);

/// Asks where to save the open database and saves it. Without records message 15, after a failure message 14;
/// an old file is whole then.
///
/// Every attempt clears the unsaved-changes flag, also one that was cancelled or failed: all of them leave by
/// the same way out, and users rely on being asked only about what they did since.
void SaveFile(LGLOBAL& shared, Prompts& prompts);
