#include "app/RandomSource.h"

#include "tests/FixedSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

constexpr RandomGenerator::Seed kSeed{0x1234567890ABCDEF, 0x0F1E2D3C4B5A6978, 0x1122334455667788,
                                      0x99AABBCCDDEEFF00};

RandomGenerator WithStandingClock(std::uint64_t time = 7)
{
    return {kSeed, [time] { return time; }};
}

std::vector<float> DrawReseeding(RandomSource& source, int draws)
{
    std::vector<float> values;
    for (int i = 0; i < draws; ++i) {
        source.ReseedFromClock();
        values.push_back(source.Next());
    }
    return values;
}

TEST(RandomSource, AnIndexIsThePartOfTheRangeThatTheValueLiesIn)
{
    for (int count = 1; count <= 60; ++count) {
        for (int index = 1; index <= count; ++index) {
            FixedSource source({ValueFor(index, count)});
            EXPECT_EQ(RandomIndex(source, count), index) << "of " << count;
        }
    }
}

TEST(RandomSource, TheLowestAndTheHighestValueStayInTheRange)
{
    const float justBelowOne = std::nextafterf(1.0F, 0.0F);
    for (int count = 1; count <= 60; ++count) {
        FixedSource source({0.0F, justBelowOne});
        EXPECT_EQ(RandomIndex(source, count), 1);
        EXPECT_EQ(RandomIndex(source, count), count);
    }
}

TEST(RandomSource, EveryDrawIsPrecededByAReseed)
{
    FixedSource source({0.5F});
    for (int i = 0; i < 5; ++i) {
        static_cast<void>(RandomIndex(source, 49));
    }
    EXPECT_EQ(source.reseeds, 5U);
    EXPECT_EQ(source.draws, 5U);
}

TEST(RandomSource, NoIndexHasMoreValuesThanAnotherButForOne)
{
    constexpr int kValues = 1 << 24; // all that the generator brings
    for (const int count : {1, 7, 49, 60}) {
        std::vector<int> values(std::size_t(count) + 1);
        for (int i = 0; i < kValues; ++i) {
            const float value = static_cast<float>(i) / static_cast<float>(kValues);
            ++values.at(std::size_t(double{value} * count + 1));
        }
        const auto [fewest, most] = std::minmax_element(values.begin() + 1, values.end());
        EXPECT_LE(*most - *fewest, 1) << "out of " << count;
    }
}

TEST(RandomSource, ValuesReachFromZeroToJustBelowOneInTwentyFourBits)
{
    RandomGenerator generator = WithStandingClock();
    float lowest = 1;
    float highest = 0;
    for (const float value : DrawReseeding(generator, 200000)) {
        ASSERT_GE(value, 0.0F);
        ASSERT_LT(value, 1.0F);
        ASSERT_EQ(value * 0x1p24F, std::floor(value * 0x1p24F));
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    EXPECT_LT(lowest, 0.0001F);
    EXPECT_GT(highest, 0.9999F);
}

TEST(RandomSource, DrawsWithinOneTickOfTheClockDiffer)
{
    RandomGenerator generator = WithStandingClock();
    const std::vector<float> values = DrawReseeding(generator, 1000);
    EXPECT_GT((std::set<float>(values.begin(), values.end()).size()), 990U);
}

TEST(RandomSource, AReseedTwiceWithinATickIsNotUndone)
{
    RandomGenerator twice = WithStandingClock();
    RandomGenerator never = WithStandingClock();
    twice.ReseedFromClock();
    static_cast<void>(twice.Next());
    twice.ReseedFromClock();
    static_cast<void>(never.Next());
    EXPECT_NE(twice.Next(), never.Next());
}

TEST(RandomSource, TheClockIsMixedIn)
{
    RandomGenerator early = WithStandingClock(1000);
    RandomGenerator late = WithStandingClock(1001); // one tick later
    RandomGenerator same = WithStandingClock(1000);
    const std::vector<float> values = DrawReseeding(early, 100);
    EXPECT_NE(values, DrawReseeding(late, 100));
    EXPECT_EQ(values, DrawReseeding(same, 100));
}

TEST(RandomSource, AStateOfAllZerosIsLeft)
{
    RandomGenerator generator({0, 0, 0, 0}, [] { return std::uint64_t{0}; });
    std::set<float> values;
    for (int i = 0; i < 100; ++i) {
        values.insert(generator.Next());
    }
    EXPECT_GT(values.size(), 50U);
}

TEST(RandomSource, EachProgramRunHasItsOwnSeed)
{
    RandomGenerator first;
    RandomGenerator second;
    std::vector<float> ofFirst;
    std::vector<float> ofSecond;
    for (int i = 0; i < 10; ++i) { // not reseeded: it is the entropy that differs
        ofFirst.push_back(first.Next());
        ofSecond.push_back(second.Next());
    }
    EXPECT_NE(ofFirst, ofSecond);
}

} // namespace
