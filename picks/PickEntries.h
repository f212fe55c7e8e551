#pragma once

#include "app/DrawDatabase.h"

#include <QtGlobal>

/// Where the numbers of the sets come from.
enum class PickMode : qint16 {
    None = 0,            ///< while the form is loaded
    FullRange = 1,       ///< 1 .. highest
    SortedPositions = 2, ///< what stands at Left .. Right of the sorted counts
};

/// The numbers in the entry boxes of the Selectorium; whatever is typed may come.
struct PickEntries {
    double picks = 0;   ///< numbers of a set
    double highest = 0; ///< highest number of the lottery
    double sets = 0;    ///< entry forms being played
    double left = 0;    ///< sorted positions to pick from
    double right = 0;

    bool operator==(const PickEntries&) const = default;
};

/// What the entries are held to.
struct PickLimits {
    PickMode mode = PickMode::FullRange;
    LotteryShape database;        ///< of the open database
    bool allowFewerPicks = false; ///< sets from sorted positions may have fewer picks than the database
    int entryForms = 1;           ///< of the personal settings
};

/// The entries as they are worked with.
struct CheckedEntries {
    PickEntries entries;   ///< held to the limits; the boxes show them afterwards
    bool picksCut = false; ///< message 20: more picks than the database has were asked for
    int fault = 0;         ///< the message that ends the calculation, 0 for none
};

/// Checks the entries for Calculate.
///
/// The span from Left to Right is checked in the full range too, on whatever the disabled boxes hold: so
/// that positions which leave too little room for a set are noticed whatever the mode. When moving
/// Right to the highest number does not help, Left has to be lowered, for which sorted positions are chosen.
[[nodiscard]] CheckedEntries CheckForCalculate(PickEntries entries, const PickLimits& limits);

/// Checks the entries for Select All, which looks at picks and highest alone.
[[nodiscard]] CheckedEntries CheckForSelectAll(PickEntries entries);

/// How many sets Select All spreads the numbers over: the quotient and one more, halves to the even
/// neighbour. The last may stay empty, and the limit of 20 binds the quotient, so there can be 21.
///
/// @param highest  1..60
/// @param picks    1..10
/// @return 0 when the quotient is above 20, which is message 4.
[[nodiscard]] int SetsForAllNumbers(int highest, int picks);
