#pragma once

#include "app/Printout.h"
#include "app/SetTable.h"

#include <QString>

/// Prints the generated sets: their heading, the candidates in three lines of twenty, and a line for each set
/// between two rules.
///
/// @param heading  where the sets were picked from
/// @param picks    numbers of a set, 1..10
/// @param sets     1..21; one page holds them all
void PrintSets(Printout& printout, const QString& heading, const CandidateList& candidates,
               const SetTable& table, int picks, int sets);
