#pragma once

#include "app/DrawDatabase.h"
#include "app/Printout.h"
#include "database/NumberStatistics.h"

#include <QLocale>

/// Prints every record of the database, oldest first, and then what was counted of each number. Heading and
/// values of the counts are of the same count.
///
/// @param counted  what the statistics section shows
/// @param locale   of the dates
void PrintDatabaseReport(Printout& printout, const DrawDatabase& database, CountMode counted,
                         const QLocale& locale);
