#include "picks/PickEntries.h"

#include "app/SetTable.h"
#include "app/TextPictures.h"

#include <algorithm>

namespace {

constexpr int kPickSpan = 19;
constexpr int kMissingNumber = 24;
constexpr double kMostEntryForms = 10;

double Whole(double value)
{
    return ToInt16(value).value_or(0);
}

void HoldPicksAndHighest(PickEntries& entries)
{
    entries.highest = Whole(std::min(entries.highest, double{kMostNumbers}));
    entries.picks = Whole(std::min(entries.picks, double{kMostPicks}));
}

} // namespace

CheckedEntries CheckForCalculate(PickEntries entries, const PickLimits& limits)
{
    CheckedEntries checked;
    if (limits.mode == PickMode::SortedPositions) {
        checked.picksCut = limits.allowFewerPicks && entries.picks > limits.database.picks;
        if (checked.picksCut || !limits.allowFewerPicks) {
            entries.picks = limits.database.picks;
        }
        entries.highest = limits.database.highest;
    }
    HoldPicksAndHighest(entries);
    entries.sets = Whole(entries.sets > kMostEntryForms ? limits.entryForms : entries.sets);
    if (entries.highest < 1 || entries.picks < 1 || entries.sets < 1) {
        checked.fault = kMissingNumber;
    } else if (entries.left + entries.picks - 1 > entries.right) {
        entries.right = entries.highest;
        checked.fault = kPickSpan;
    }
    checked.entries = entries;
    return checked;
}

CheckedEntries CheckForSelectAll(PickEntries entries)
{
    CheckedEntries checked;
    HoldPicksAndHighest(entries);
    if (entries.highest < 1 || entries.picks < 1) {
        checked.fault = kMissingNumber;
    }
    checked.entries = entries;
    return checked;
}

int SetsForAllNumbers(int highest, int picks)
{
    constexpr double kMostRows = 20;
    const double quotient = double(highest) / picks;
    return quotient > kMostRows ? 0 : ToInt16(quotient + 1).value_or(0);
}
