#pragma once

#include "app/DrawDatabase.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

/// What a player wants to know: which draws share at least so many numbers with these.
struct WinnerQuery {
    std::array<int, kMostPicks> yourNumbers{}; ///< of boxes 0..9 in order; 0 for an empty box
    int minimum = 1;                           ///< matches that a draw must have, 1..picks
};

/// A message that stops a search, by its number in the message table.
struct WinnerFault {
    int message = 0;
    QString arg1;

    bool operator==(const WinnerFault&) const = default;
};

/// What is wrong with the boxes, the first that comes: a number above @p highest (message 5, quoting the text
/// of the box), one below 1 (38), fewer filled boxes than @p minimum (42), the same number twice (37). Empty
/// when the search can begin.
///
/// Boxes are looked at from the left, and 42 comes after the first box and before the others. Boxes may be
/// left empty anywhere between others.
///
/// @param boxes  one text for each pick
[[nodiscard]] std::optional<WinnerFault> CheckYourNumbers(const QStringList& boxes, int minimum, int highest);

/// The query in boxes that CheckYourNumbers found nothing wrong with.
[[nodiscard]] WinnerQuery QueryIn(const QStringList& boxes, int minimum);

/// The rows of all records that share at least the minimum of numbers with the player's, oldest first.
///
/// Every place of a record that holds one of the numbers is a match, so a record that holds a number twice
/// has two. A cell holds the number that the editor shows and saving writes, also when a file brought it as a
/// text; a number with a fraction is none. An empty box is no number: it matches nothing, not even the 0 of a
/// record that was never filled in.
[[nodiscard]] std::vector<int> FindWinners(const DrawDatabase& database, const WinnerQuery& query);

/// Searches, and makes the result list anew: row 0 is not used, rows 1.. are the draws found, oldest first.
/// Each has the record's number and date and, in the places where they were drawn, the numbers that match;
/// its other places are empty. Nothing in the list refers to the database any more.
/// @return how many draws were found, 0..count
int ListWinners(const DrawDatabase& database, const WinnerQuery& query, std::vector<DrawRecord>& results);
