#pragma once

#include "app/KeptWork.h"
#include "app/LGLOBAL.h"
#include "invest/InvestmentFile.h"

/// The statement as work to keep, as it was typed so far: unsaved as soon as a cell is not as it was opened
/// or saved. A statement without a cell in use holds nothing to keep.
[[nodiscard]] KeptWork KeptStatement(const LGLOBAL& shared);

/// Reads a recovered statement; its name and folder become those remembered. On failure the reason says what
/// is wrong and nothing is changed.
[[nodiscard]] InvestmentReading ReadRecoveredStatement(LGLOBAL& shared, const RecoveredWork& work);
