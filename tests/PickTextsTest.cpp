#include "picks/PickTexts.h"

#include "picks/PickSets.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

CandidateList Candidates(int count)
{
    CandidateList candidates;
    for (int i = 1; i <= count; ++i) {
        candidates.numbers.at(std::size_t(i)) = qint16(i);
    }
    candidates.count = count;
    return candidates;
}

TEST(PickTexts, TheFullRangeIsNamedByItsEnds)
{
    EXPECT_EQ(PickedFromNumbers(), u" Picked from numbers "_s);
    EXPECT_EQ(NumbersOfFullRange(49), u"  1 to 49  "_s);
    EXPECT_EQ(NumbersOfFullRange(7), u"  1 to 7  "_s);
}

TEST(PickTexts, SortedPositionsAreNamedWithWhatWasCounted)
{
    EXPECT_EQ(PickedFromPositions(1, 25, CountMode::TimesDrawn),
              u" Picked from sorted positions in database  1 to  25: Times numbers were drawn "_s);
    EXPECT_EQ(PickedFromPositions(40, 60, CountMode::SinceLastDrawn),
              u" Picked from sorted positions in database  40 to  60: No. draws since last drawn "_s);
}

TEST(PickTexts, TheFirstNumberTakesFiveCharactersAndEachLaterOneSix)
{
    EXPECT_EQ(NumbersOfPositions(Candidates(3)), u"   01    02    03"_s);
    EXPECT_EQ(NumbersOfPositions(Candidates(1)), u"   01"_s);
    EXPECT_EQ(NumbersOfPositions(Candidates(0)), QString());
}

TEST(PickTexts, TwentyNumbersMakeALine)
{
    const QStringList lines = NumbersOfPositions(Candidates(25)).split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.at(0), u"   01    02    03    04    05    06    07    08    09    10"
                           "    11    12    13    14    15    16    17    18    19    20"_s);
    EXPECT_EQ(lines.at(1), u"    21    22    23    24    25"_s);
}

TEST(PickTexts, ALineEndFollowsTheTwentiethAndTheFortiethNumberButNotTheSixtieth)
{
    EXPECT_FALSE(NumbersOfPositions(Candidates(19)).contains(u'\n'));
    EXPECT_TRUE(NumbersOfPositions(Candidates(20)).endsWith(u"20\r\n"_s));
    EXPECT_TRUE(NumbersOfPositions(Candidates(40)).endsWith(u"40\r\n"_s));
    EXPECT_TRUE(NumbersOfPositions(Candidates(60)).endsWith(u"60"_s));
    EXPECT_EQ(NumbersOfPositions(Candidates(60)).count(u"\r\n"_s), 2);
}

TEST(PickTexts, SelectAllSaysWhatItHasDone)
{
    EXPECT_EQ(PickedBySelectAll(), u" 'Select All' "_s);
    EXPECT_EQ(NumbersOfSelectAll(49, 9),
              u" Has randomly put the lottery numbers 1 to 49 into 9 entry forms. "_s);
}

} // namespace
