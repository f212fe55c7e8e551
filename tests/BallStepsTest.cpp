#include "picks/BallSteps.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(BallSteps, EveryRoundShufflesAndPicksWithEachColourGoingToTheRight)
{
    const BallStep round[] = {
        {{12, 14, 11, 10, 15, 13}, u"Shuffling"_s}, {{13, 12, 14, 11, 10, 15}, u"Shuffling"_s},
        {{15, 13, 12, 14, 11, 10}, u"Shuffling"_s}, {{10, 15, 13, 12, 14, 11}, u"Picking"_s},
        {{11, 10, 15, 13, 12, 14}, u"Picking"_s},   {{14, 11, 10, 15, 13, 12}, u"Picking"_s},
    };
    for (int step = 0; step < 36; ++step) {
        EXPECT_EQ(BallStepAt(step), round[step % 6]) << step;
    }
}

TEST(BallSteps, TheLastStepStandsOneStepLonger)
{
    EXPECT_EQ(kBallSteps, 37);
    EXPECT_EQ(BallStepAt(36), BallStepAt(35));
    EXPECT_EQ(BallStepAt(99), BallStepAt(35));
    EXPECT_EQ(BallStepAt(-1), BallStepAt(0));
}

TEST(BallSteps, AtRestTheBallsLookAsAtTheBeginning)
{
    EXPECT_EQ(RestingBalls(), (BallColors{12, 14, 11, 10, 15, 13}));
}

TEST(BallSteps, TheColoursAreThoseOfTheConsole)
{
    EXPECT_EQ(ConsoleColor(10), (BallColor{0, 255, 0}));
    EXPECT_EQ(ConsoleColor(11), (BallColor{0, 255, 255}));
    EXPECT_EQ(ConsoleColor(12), (BallColor{255, 0, 0}));
    EXPECT_EQ(ConsoleColor(13), (BallColor{255, 0, 255}));
    EXPECT_EQ(ConsoleColor(14), (BallColor{255, 255, 0}));
    EXPECT_EQ(ConsoleColor(15), (BallColor{255, 255, 255}));
    EXPECT_EQ(ConsoleColor(16), (BallColor{}));
}

} // namespace
