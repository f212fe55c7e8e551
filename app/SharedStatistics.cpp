#include "app/SharedStatistics.h"

void ComputeNumberStats(LGLOBAL& shared)
{
    shared.NumberStats = CountNumbers(shared.database, shared.WhichCnt);
}

void SortNumberStats(LGLOBAL& shared)
{
    shared.sortedNumberStats =
        SortNumbers(shared.NumberStats, shared.database.Shape().highest, shared.sortMode);
}
