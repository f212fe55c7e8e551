#include "picks/PickEntries.h"

#include <gtest/gtest.h>

namespace {

PickEntries Entries(double picks, double highest, double sets, double left = 1, double right = 25)
{
    return {.picks = picks, .highest = highest, .sets = sets, .left = left, .right = right};
}

PickLimits FullRangeOf(LotteryShape database)
{
    return {.mode = PickMode::FullRange, .database = database, .entryForms = 3};
}

PickLimits PositionsOf(LotteryShape database, bool allowFewerPicks)
{
    return {.mode = PickMode::SortedPositions,
            .database = database,
            .allowFewerPicks = allowFewerPicks,
            .entryForms = 3};
}

TEST(PickEntries, WhatFitsIsTakenAsItStands)
{
    const CheckedEntries checked = CheckForCalculate(Entries(5, 40, 10), FullRangeOf({6, 49}));
    EXPECT_EQ(checked.entries, Entries(5, 40, 10));
    EXPECT_EQ(checked.fault, 0);
    EXPECT_FALSE(checked.picksCut);
}

TEST(PickEntries, WhatIsTooLargeIsHeldToTheLimits)
{
    const CheckedEntries checked = CheckForCalculate(Entries(99, 99999, 11), FullRangeOf({6, 49}));
    EXPECT_EQ(checked.entries, Entries(10, 60, 3)); // the sets to those of the personal settings
    EXPECT_EQ(checked.fault, 0);
}

TEST(PickEntries, ANumberThatIsMissingOrZeroIsToldFirst)
{
    for (const PickEntries& entries : {Entries(0, 49, 1, 9, 1), Entries(6, 0, 1), Entries(6, 49, 0),
                                       Entries(0, 0, 0), Entries(-2, 49, 1), Entries(0.2, 49, 1)}) {
        EXPECT_EQ(CheckForCalculate(entries, FullRangeOf({6, 49})).fault, 24);
    }
}

TEST(PickEntries, LeftToRightMustHaveRoomForASetInTheFullRangeToo)
{
    const CheckedEntries fits = CheckForCalculate(Entries(6, 49, 1, 1, 6), FullRangeOf({6, 49}));
    EXPECT_EQ(fits.fault, 0);
    EXPECT_EQ(fits.entries.right, 6);
    const CheckedEntries narrow = CheckForCalculate(Entries(6, 40, 1, 1, 5), FullRangeOf({6, 49}));
    EXPECT_EQ(narrow.fault, 19);
    EXPECT_EQ(narrow.entries.right, 40);
    const CheckedEntries missing = CheckForCalculate(Entries(6, 49, 1, 0, 0), FullRangeOf({6, 49}));
    EXPECT_EQ(missing.fault, 19);
}

TEST(PickEntries, SortedPositionsTakePicksAndHighestFromTheDatabase)
{
    const CheckedEntries checked = CheckForCalculate(Entries(3, 60, 2), PositionsOf({6, 49}, false));
    EXPECT_EQ(checked.entries, Entries(6, 49, 2));
    EXPECT_FALSE(checked.picksCut);
    EXPECT_EQ(CheckForCalculate(Entries(9, 60, 2), PositionsOf({6, 49}, false)).picksCut, false);
}

TEST(PickEntries, SortedPositionsMayHaveFewerPicksWhenAllowedButNeverMore)
{
    const CheckedEntries fewer = CheckForCalculate(Entries(3, 60, 2), PositionsOf({6, 49}, true));
    EXPECT_EQ(fewer.entries, Entries(3, 49, 2));
    EXPECT_FALSE(fewer.picksCut);
    EXPECT_FALSE(CheckForCalculate(Entries(6, 60, 2), PositionsOf({6, 49}, true)).picksCut);
    const CheckedEntries more = CheckForCalculate(Entries(8, 60, 2), PositionsOf({6, 49}, true));
    EXPECT_EQ(more.entries, Entries(6, 49, 2));
    EXPECT_TRUE(more.picksCut);
    EXPECT_EQ(more.fault, 0); // the calculation goes on
    EXPECT_EQ(CheckForCalculate(Entries(0, 60, 2), PositionsOf({6, 49}, true)).fault, 24);
}

TEST(PickEntries, SelectAllLooksAtPicksAndHighestAlone)
{
    const CheckedEntries checked = CheckForSelectAll(Entries(99, 99, 0, 9, 1));
    EXPECT_EQ(checked.entries, Entries(10, 60, 0, 9, 1));
    EXPECT_EQ(checked.fault, 0);
    EXPECT_EQ(CheckForSelectAll(Entries(0, 49, 1)).fault, 24);
    EXPECT_EQ(CheckForSelectAll(Entries(6, 0, 1)).fault, 24);
}

TEST(PickEntries, AllNumbersTakeTheQuotientAndOneMoreSetsWithHalvesToTheEvenOne)
{
    const struct {
        int highest;
        int picks;
        int sets;
    } cases[] = {
        {49, 6, 9},  // 8.17: eight full, the last with one
        {48, 6, 9},  // 8: the last stays empty
        {60, 3, 21}, // 20: the most there can be, the last empty
        {50, 4, 14}, // 12.5, and one is 13.5: to 14, one more than is needed
        {54, 4, 14}, // 13.5, and one is 14.5: to 14, as many as are needed
        {45, 10, 6}, // 4.5, and one is 5.5: to 6
        {55, 10, 6}, // 5.5, and one is 6.5: to 6
        {60, 10, 7}, {1, 1, 2},  {1, 10, 1},  {20, 1, 21}, {21, 1, 0}, // 21 would be more than 20
        {60, 2, 0},  {41, 2, 0}, {40, 2, 21}, {60, 1, 0},
    };
    for (const auto& lottery : cases) {
        EXPECT_EQ(SetsForAllNumbers(lottery.highest, lottery.picks), lottery.sets)
            << lottery.highest << " in sets of " << lottery.picks;
    }
}

TEST(PickEntries, AllNumbersFitTheirSetsWhateverTheLottery)
{
    for (int highest = 1; highest <= 60; ++highest) {
        for (int picks = 1; picks <= 10; ++picks) {
            const int sets = SetsForAllNumbers(highest, picks);
            if (sets != 0) {
                EXPECT_GE(sets * picks, highest) << highest << " in sets of " << picks;
                EXPECT_LE(sets, 21);
            }
        }
    }
}

} // namespace
