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

/// The counts as they are typed, whatever that is; each is held to 0..100, so that the total is true.
[[nodiscard]] HcdCounts TypedCounts(double hot, double cold, double due);

/// How many sets are made: as many as typed, or as the personal settings say when that is more than ten.
/// @return 0..10
[[nodiscard]] int GameSets(double typed, int entryForms);

/// What sets were made from.
struct HcdBasis {
    int lastDraws = 0; ///< draws that hot and cold numbers were counted over
    HcdCounts counts;  ///< of each list, for every set
    HcdCandidateTable candidates{};
};

/// Rejected draws of one list that end the making of sets.
inline constexpr int kMostHcdRejections = 5000;

/// Makes sets 1..sets anew, the others are empty: first the hot numbers of every set, then the cold and the
/// due ones. A number that its set holds already, also one of another list, is rejected and drawn anew.
///
/// @param basis  its counts are together at most 10
/// @param sets   0..10
/// @return false when kMostHcdRejections draws of one list were rejected, counted over all sets; the table
///         then holds what was drawn so far.
[[nodiscard]] bool FillHcdSets(RandomSource& random, const HcdBasis& basis, int sets, SetTable& table);

/// Moves the empty places of each set behind its numbers, whose order stays.
///
/// @param picks  1..10
/// @param sets   0..10
void MoveEmptyPlacesToTheEnd(SetTable& table, int picks, int sets);
