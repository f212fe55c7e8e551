#pragma once

#include "app/RandomSource.h"
#include "app/SetTable.h"
#include "hotcold/HcdAnalysis.h"

/// How many numbers of each list a set gets.
struct HcdCounts {
    int hot = 0;
    int cold = 0;
    int due = 0;

    [[nodiscard]] int Total() const { return hot + cold + due; }
    bool operator==(const HcdCounts&) const = default;
};

/// What a set gets at first: about a third of each list, together as many as the lottery draws.
///
/// @param picks  1..10; others are held to that range
[[nodiscard]] HcdCounts DefaultHcdCounts(int picks);

/// Rejected draws of one list that end the making of sets.
inline constexpr int kMostHcdRejections = 5000;

/// Fills sets 1..sets: first the hot numbers of every set, then the cold and the due ones. A number that its
/// set holds already, also one of another list, is rejected and drawn anew.
///
/// @param counts  together at most 10
/// @param sets    0..10
/// @param table   where the places to be filled are empty
/// @return false when kMostHcdRejections draws of one list were rejected, counted over all sets; the table
/// then
///         holds what was drawn so far.
[[nodiscard]] bool FillHcdSets(RandomSource& random, const HcdCandidateTable& candidates,
                               const HcdCounts& counts, int sets, SetTable& table);

/// Moves the empty places of each set behind its numbers, whose order stays.
///
/// @param picks  1..10
/// @param sets   0..10
void MoveEmptyPlacesToTheEnd(SetTable& table, int picks, int sets);
