#pragma once

#include "app/InvestmentStatement.h"
#include "app/Printout.h"

#include <QString>

/// Prints a statement: descriptions, amounts, and the total behind the last row. A statement longer than a
/// page goes on under the same heading on the next.
///
/// @param heading  the line above the title, which says whose statement it is and of when; it must not be
///                 empty
void PrintInvestmentStatement(Printout& printout, const InvestmentStatement& statement,
                              const QString& heading);
