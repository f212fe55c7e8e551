#pragma once

#include "app/Printout.h"
#include "hotcold/HcdSets.h"

/// Prints the sets made of hot, cold and due numbers, with what they were made from.
///
/// @param picks  1..10
/// @param sets   0..10; one page holds them all
void PrintHcdSets(Printout& printout, const HcdBasis& basis, const SetTable& table, int picks, int sets);
