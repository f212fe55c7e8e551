#pragma once

#include "app/DrawDatabase.h"

#include <QtGlobal>

#include <array>

inline constexpr int kMostSets = 21; ///< all numbers of a lottery spread over sets take 21 at most

/// The generated sets: row r, column c, both from 1, holds the c-th number of set r, 0 where there is none.
/// Row 0 and column 0 are never used.
using SetTable = std::array<std::array<qint16, kMostPicks + 1>, kMostSets + 1>;

/// The numbers that sets are picked from.
struct CandidateList {
    /// Entry i, from 1, is the i-th number that may be picked; entry 0 is never used.
    std::array<qint16, kMostNumbers + 1> numbers{};
    int count = 0; ///< entries picked from; a list of the full range names all sixty whatever the count

    bool operator==(const CandidateList&) const = default;
};
