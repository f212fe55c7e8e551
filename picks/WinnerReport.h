#pragma once

#include "app/DrawDatabase.h"
#include "app/Printout.h"
#include "picks/WinnerSearch.h"

#include <QLocale>
#include <QString>

#include <vector>

/// A search that was made: what was asked of which lottery, and how many draws it found. Together with its
/// result list it says all that is printed, whatever the database is by then.
struct WinnerSearch {
    QString title; ///< of the lottery
    int picks = 0; ///< numbers to a draw, 1..10
    WinnerQuery query;
    qint16 matchCount = 0; ///< result rows; 0 when nothing was found or no search was made
};

/// The day of a draw as Short Date; a text that is no date as it stands.
[[nodiscard]] QString DrawDateText(const Cell& date, const QLocale& locale);

/// What a search found, in a sentence: how many draws, with which minimum, of which numbers.
[[nodiscard]] QString FoundText(const WinnerSearch& search);

/// Prints the draws that a search found, newest first, each matching number under the position in which it
/// was drawn. A page that is full ends with its number, and the next one repeats the headings.
///
/// @param results  as ListWinners made it
void PrintWinners(Printout& printout, const WinnerSearch& search, const std::vector<DrawRecord>& results,
                  const QLocale& locale);
