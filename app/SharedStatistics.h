#pragma once

#include "app/LGLOBAL.h"

/// Rebuilds the unsorted statistics from the open database under the WhichCnt switch.
void ComputeNumberStats(LGLOBAL& shared);

/// Rebuilds the sorted statistics from the unsorted ones under the sort mode. Compute them first.
void SortNumberStats(LGLOBAL& shared);
