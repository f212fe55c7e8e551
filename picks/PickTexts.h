#pragma once

#include "app/SetTable.h"
#include "database/NumberStatistics.h"

#include <QString>

/// The heading of sets from the full range, and of a display without sets.
[[nodiscard]] QString PickedFromNumbers();

/// The heading of sets from sorted positions.
[[nodiscard]] QString PickedFromPositions(int left, int right, CountMode mode);

/// The heading of all numbers spread.
[[nodiscard]] QString PickedBySelectAll();

/// "1 to" the highest number.
[[nodiscard]] QString NumbersOfFullRange(int highest);

/// The candidates as two digits each, twenty to a line: the first in a field of five characters, each later
/// one in a field of six, and CR LF after the twentieth and the fortieth.
[[nodiscard]] QString NumbersOfPositions(const CandidateList& candidates);

/// What Select All has done with the numbers.
[[nodiscard]] QString NumbersOfSelectAll(int highest, int sets);
