#pragma once

#include "app/Printout.h"
#include "hotcold/HcdSets.h"

/// Prints the sets made of hot, cold and due numbers, with what they were made from.
///
/// @param lastDraws  how many draws hot and cold were counted over
/// @param counts     how many of each list a set was given
/// @param picks      1..10
/// @param sets       0..10; one page holds them all
void PrintHcdSets(Printout& printout, int lastDraws, const HcdCounts& counts,
                  const HcdCandidateTable& candidates, const SetTable& table, int picks, int sets);
