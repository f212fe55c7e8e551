#include "picks/PickSets.h"

#include "tests/FixedSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

using Row = std::vector<int>;

/// The filled places of a set and the empty ones before its last number, in order.
Row SetOf(const SetTable& table, int row, int picks)
{
    const auto& set = table.at(std::size_t(row));
    return {set.begin() + 1, set.begin() + 1 + picks};
}

bool IsAscending(const Row& row)
{
    return std::adjacent_find(row.begin(), row.end(), std::greater_equal<>()) == row.end();
}

RandomGenerator Generator(std::uint64_t seed = 1)
{
    std::uint64_t tick = 0;
    return {{seed, 2, 3, 4}, [tick]() mutable { return tick++ / 1000; }};
}

NumberTable Sorted(const std::vector<int>& labels)
{
    NumberTable table{};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        table.at(i + 1) = {static_cast<qint16>(labels.at(i)), 1};
    }
    return table;
}

// The candidates

TEST(PickSets, TheFullRangeNamesAllSixtyAndPicksFromTheFirst)
{
    const CandidateList candidates = FullRange(49);
    EXPECT_EQ(candidates.count, 49);
    for (int i = 1; i <= 60; ++i) {
        EXPECT_EQ(candidates.numbers.at(std::size_t(i)), i);
    }
    EXPECT_EQ(FullRange(99).count, 60);
    EXPECT_EQ(FullRange(-1).count, 0);
}

TEST(PickSets, SortedPositionsAreTheNumbersThatStandThere)
{
    const NumberTable sorted = Sorted({23, 7, 41, 12, 3, 30});
    const CandidateList candidates = SortedPositions(sorted, 2, 4);
    EXPECT_EQ(candidates.count, 3);
    EXPECT_EQ((Row{candidates.numbers.begin() + 1, candidates.numbers.begin() + 5}), (Row{7, 41, 12, 0}));
}

TEST(PickSets, PositionsOutsideTheTableAreNone)
{
    const NumberTable sorted = Sorted({5, 4, 3});
    EXPECT_EQ(SortedPositions(sorted, -3, 99).count, 60);
    EXPECT_EQ(SortedPositions(sorted, 5, 4).count, 0);
    EXPECT_EQ(SortedPositions(sorted, 0, 1).numbers.at(1), 5);
}

// Filling sets

TEST(PickSets, TakesTheDrawnCandidatesAndSortsEachSet)
{
    FixedSource source(ValuesFor({30, 2, 17, 49, 1, 48}, 49));
    SetTable table{};
    EXPECT_TRUE(FillSets(source, FullRange(49), 3, 2, table));
    EXPECT_EQ(SetOf(table, 1, 10), (Row{2, 17, 30, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 2, 10), (Row{1, 48, 49, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 3, 10), Row(10, 0));
    EXPECT_EQ(source.draws, 6U);
    EXPECT_EQ(source.reseeds, 6U);
}

TEST(PickSets, ANumberThatTheSetHasIsDrawnAgainAndAnotherSetMayHaveIt)
{
    FixedSource source(ValuesFor({5, 5, 6, 5, 6, 5, 6, 7}, 49));
    SetTable table{};
    EXPECT_TRUE(FillSets(source, FullRange(49), 2, 2, table));
    EXPECT_EQ(SetOf(table, 1, 2), (Row{5, 6}));
    EXPECT_EQ(SetOf(table, 2, 2), (Row{5, 6}));
    EXPECT_EQ(source.draws, 5U);
}

TEST(PickSets, AsManyPicksAsNumbersFillEverySetWithAllOfThem)
{
    RandomGenerator generator = Generator();
    SetTable table{};
    EXPECT_TRUE(FillSets(generator, FullRange(6), 6, 10, table));
    for (int row = 1; row <= 10; ++row) {
        EXPECT_EQ(SetOf(table, row, 6), (Row{1, 2, 3, 4, 5, 6}));
    }
}

TEST(PickSets, TheLargestLotteryFillsTenSetsOfTen)
{
    RandomGenerator generator = Generator();
    SetTable table{};
    EXPECT_TRUE(FillSets(generator, FullRange(60), 10, 10, table));
    for (int row = 1; row <= 10; ++row) {
        EXPECT_TRUE(IsAscending(SetOf(table, row, 10))) << row;
        EXPECT_GE(table.at(std::size_t(row)).at(1), 1);
        EXPECT_LE(table.at(std::size_t(row)).at(10), 60);
    }
}

TEST(PickSets, ALotteryOfOneNumberHasOneSet)
{
    RandomGenerator generator = Generator();
    SetTable table{};
    EXPECT_TRUE(FillSets(generator, FullRange(1), 1, 10, table));
    EXPECT_EQ(SetOf(table, 10, 2), (Row{1, 0}));
}

TEST(PickSets, MorePicksThanNumbersEndAtFiveThousandRejectionsUnsorted)
{
    FixedSource source(ValuesFor({3, 1, 2}, 3));
    SetTable table{};
    EXPECT_FALSE(FillSets(source, FullRange(3), 4, 2, table));
    EXPECT_EQ(SetOf(table, 1, 4), (Row{3, 1, 2, 0}));
    EXPECT_EQ(SetOf(table, 2, 4), Row(4, 0));
    EXPECT_EQ(source.draws, 5003U);
}

TEST(PickSets, RejectionsAreCountedOverAllSets)
{
    // Two draws a set, of which the first is taken at once and the second after some rejections.
    const auto values = [](int rejections) {
        std::vector<float> set(std::size_t(rejections) + 1, ValueFor(1, 2));
        set.push_back(ValueFor(2, 2));
        return set;
    };
    SetTable table{};
    FixedSource lucky(values(499)); // ten sets: 4,990
    EXPECT_TRUE(FillSets(lucky, FullRange(2), 2, 10, table));
    table = {};
    FixedSource unlucky(values(500)); // ten sets: 5,000
    EXPECT_FALSE(FillSets(unlucky, FullRange(2), 2, 10, table));
    EXPECT_EQ(SetOf(table, 10, 2), (Row{1, 0}));
}

TEST(PickSets, AnEntryWithoutANumberIsNeverPicked)
{
    CandidateList candidates = SortedPositions(Sorted({9, 8}), 1, 4); // two of four have no number
    FixedSource source(ValuesFor({3, 1, 4, 2}, 4));
    SetTable table{};
    EXPECT_TRUE(FillSets(source, candidates, 2, 1, table));
    EXPECT_EQ(SetOf(table, 1, 2), (Row{8, 9}));
    table = {};
    EXPECT_FALSE(FillSets(source, candidates, 3, 1, table));
    candidates = {};
    table = {};
    EXPECT_FALSE(FillSets(source, candidates, 1, 1, table));
    EXPECT_EQ(table, SetTable{});
}

// All numbers spread

TEST(PickSets, AShuffleHoldsEveryNumberOnce)
{
    RandomGenerator generator = Generator();
    for (int highest = 1; highest <= 60; ++highest) {
        const std::optional<NumberOrder> order = ShuffleNumbers(generator, highest);
        ASSERT_TRUE(order.has_value());
        Row numbers(order->begin() + 1, order->begin() + 1 + highest);
        std::sort(numbers.begin(), numbers.end());
        Row all(std::size_t(highest), 0);
        std::iota(all.begin(), all.end(), 1);
        EXPECT_EQ(numbers, all);
        EXPECT_TRUE(std::all_of(order->begin() + 1 + highest, order->end(), [](int n) { return n == 0; }));
    }
}

TEST(PickSets, AShuffleTakesTheNumbersInTheOrderDrawn)
{
    FixedSource source(ValuesFor({3, 3, 1, 3, 4, 2}, 4));
    const std::optional<NumberOrder> order = ShuffleNumbers(source, 4);
    ASSERT_TRUE(order.has_value());
    EXPECT_EQ((Row{order->begin() + 1, order->begin() + 5}), (Row{3, 1, 4, 2}));
    EXPECT_EQ(source.reseeds, 6U);
}

TEST(PickSets, OnlyFiveThousandRejectionsInARowEndAShuffle)
{
    const auto drawing = [](int rejections) {
        std::vector<float> values(std::size_t(rejections) + 1, ValueFor(1, 3));
        values.push_back(ValueFor(2, 3));
        values.insert(values.end(), std::size_t(rejections), ValueFor(2, 3));
        values.push_back(ValueFor(3, 3));
        return FixedSource(values);
    };
    FixedSource lucky = drawing(4999); // 9,998 in all
    EXPECT_TRUE(ShuffleNumbers(lucky, 3).has_value());
    FixedSource unlucky = drawing(5000);
    EXPECT_FALSE(ShuffleNumbers(unlucky, 3).has_value());
    EXPECT_EQ(unlucky.draws, 5001U);
}

TEST(PickSets, NumbersAreDealtOutInOrderAndEachSetIsSorted)
{
    NumberOrder order{};
    const Row drawn{5, 2, 7, 1, 6, 3, 4};
    std::copy(drawn.begin(), drawn.end(), order.begin() + 1);
    const SetTable table = SpreadNumbers(order, 7, 3, 4);
    EXPECT_EQ(SetOf(table, 1, 4), (Row{2, 5, 7, 0}));
    EXPECT_EQ(SetOf(table, 2, 4), (Row{1, 3, 6, 0}));
    EXPECT_EQ(SetOf(table, 3, 4), (Row{4, 0, 0, 0})); // empty places stay at the end
    EXPECT_EQ(SetOf(table, 4, 4), Row(4, 0));
}

// Chance. The seeds are fixed, so these cannot fail by chance; each bound is one that a fair source passes in
// all but one of some ten thousand runs, and the unfair sources below do not.

constexpr int kNumbers = 49;
constexpr int kPicks = 6;
constexpr int kSets = 200000;
constexpr double kBound = 4; // standard deviations

/// How often numbers and pairs of numbers came in many sets, and how many numbers neighbouring sets had in
/// common.
struct Tally {
    std::array<int, kNumbers + 1> numbers{};
    std::array<std::array<int, kNumbers + 1>, kNumbers + 1> pairs{};
    double common = 0;
};

Tally TallySets(RandomSource& source, int sets = kSets)
{
    Tally tally;
    SetTable before{};
    for (int i = 0; i < sets; ++i) {
        SetTable table{};
        EXPECT_TRUE(FillSets(source, FullRange(kNumbers), kPicks, 1, table));
        const auto& set = table.at(1);
        for (std::size_t a = 1; a <= kPicks; ++a) {
            ++tally.numbers.at(std::size_t(set.at(a)));
            for (std::size_t b = a + 1; b <= kPicks; ++b) {
                ++tally.pairs.at(std::size_t(set.at(a))).at(std::size_t(set.at(b)));
            }
            const auto& last = before.at(1);
            tally.common += std::count(last.begin() + 1, last.begin() + 1 + kPicks, set.at(a)) > 0 ? 1 : 0;
        }
        before = table;
    }
    return tally;
}

double Deviations(double chiSquare, double freedom)
{
    return (chiSquare - freedom) / std::sqrt(2 * freedom);
}

/// Chi-square of the single numbers. Within a set they exclude each other, which makes the counts lie closer
/// together than those of separate draws: hence the factor.
double DeviationsOfNumbers(const Tally& tally, int sets = kSets)
{
    const double expected = double(sets) * kPicks / kNumbers;
    double sum = 0;
    for (int n = 1; n <= kNumbers; ++n) {
        const double off = tally.numbers.at(std::size_t(n)) - expected;
        sum += off * off / expected;
    }
    return Deviations(sum * (kNumbers - 1) / (kNumbers - kPicks), kNumbers - 1);
}

/// Chi-square of the pairs, without what their single numbers account for.
///
/// The counts of the pairs lie in two spaces, each with one variance: that of the single numbers, and the
/// rest, with N(N-3)/2 degrees of freedom, in which the variance of one set is a - 2b + c for the covariances
/// of a pair with itself, with one that shares a number, and with one that shares none.
double DeviationsOfPairs(const Tally& tally, int sets = kSets)
{
    const double two = double(kPicks) * (kPicks - 1) / (double(kNumbers) * (kNumbers - 1));
    const double three = two * (kPicks - 2) / (kNumbers - 2);
    const double four = three * (kPicks - 3) / (kNumbers - 3);
    const double variance = (two - two * two) - 2 * (three - two * two) + (four - two * two);

    double sum = 0;
    for (std::size_t a = 1; a <= kNumbers; ++a) {
        for (std::size_t b = a + 1; b <= kNumbers; ++b) {
            const double off = tally.pairs.at(a).at(b) - sets * two;
            sum += off * off;
        }
    }
    double ofNumbers = 0;
    for (std::size_t n = 1; n <= kNumbers; ++n) {
        const double off = (tally.numbers.at(n) - double(sets) * kPicks / kNumbers) * (kPicks - 1);
        ofNumbers += off * off / (kNumbers - 2);
    }
    return Deviations((sum - ofNumbers) / (sets * variance), kNumbers * (kNumbers - 3) / 2.0);
}

/// How far the numbers that neighbouring sets have in common are from those of sets that know nothing of each
/// other.
double DeviationsOfNeighbours(const Tally& tally, int sets = kSets)
{
    const double share = double(kPicks) / kNumbers;
    const double variance = kPicks * share * (1 - share) * (kNumbers - kPicks) / (kNumbers - 1);
    return (tally.common - (sets - 1) * kPicks * share) / std::sqrt((sets - 1) * variance);
}

TEST(PickSetsChance, NumbersPairsAndNeighbouringSetsAreThoseOfAFairDraw)
{
    for (const std::uint64_t seed : {1U, 2U, 3U}) {
        RandomGenerator generator = Generator(seed);
        const Tally tally = TallySets(generator);
        EXPECT_LT(std::abs(DeviationsOfNumbers(tally)), kBound) << seed;
        EXPECT_LT(std::abs(DeviationsOfPairs(tally)), kBound) << seed;
        EXPECT_LT(std::abs(DeviationsOfNeighbours(tally)), kBound) << seed;
    }
}

/// Passes the values of a fair generator through a fault.
class FaultySource : public RandomSource
{
public:
    explicit FaultySource(std::function<float(float)> fault) : m_fault(std::move(fault)) {}
    void ReseedFromClock() override { m_generator.ReseedFromClock(); }
    float Next() override { return m_fault(m_generator.Next()); }

private:
    RandomGenerator m_generator = Generator();
    std::function<float(float)> m_fault;
};

TEST(PickSetsChance, ASourceThatLeansTwoPercentIsFoundOut)
{
    FaultySource leaning([](float value) { return value * (0.98F + 0.02F * value); });
    EXPECT_GT(DeviationsOfNumbers(TallySets(leaning)), kBound);
}

TEST(PickSetsChance, AByteTakenModuloTheRangeIsFoundOut)
{
    FaultySource modulo([](float value) {
        const int byte = static_cast<int>(value * 256);
        return ValueFor(byte % kNumbers + 1, kNumbers);
    });
    EXPECT_GT(DeviationsOfNumbers(TallySets(modulo)), kBound);
}

TEST(PickSetsChance, NumbersThatDrawTheirNeighboursAreFoundOutByTheirPairs)
{
    // Every number comes as often as any other, but one time in fifty the next one is taken with it.
    float last = 0;
    bool follows = false;
    FaultySource pairing([&](float value) {
        const float next = follows ? std::fmod(last + 1.0F / kNumbers, 1.0F) : value;
        follows = value < 0.02F && !follows;
        last = next;
        return next;
    });
    EXPECT_GT(DeviationsOfPairs(TallySets(pairing)), kBound);
}

TEST(PickSetsChance, ASourceThatStartsAnewAtEveryTickIsFoundOut)
{
    /// As if the clock were the whole state: sets within a tick are the same.
    class Restarting : public RandomSource
    {
    public:
        void ReseedFromClock() override
        {
            if (++m_draws % 120 == 0) {
                m_generator = Generator(++m_tick);
            }
        }
        float Next() override
        {
            if (m_draws % 12 == 0) {
                m_generator = Generator(m_tick);
            }
            return m_generator.Next();
        }

    private:
        std::uint64_t m_draws = 0;
        std::uint64_t m_tick = 1;
        RandomGenerator m_generator = Generator();
    };
    Restarting source;
    constexpr int kFewer = 20000;
    EXPECT_GT(DeviationsOfNeighbours(TallySets(source, kFewer), kFewer), kBound);
}

TEST(PickSetsChance, EveryNumberComesToEveryPlaceOfAShuffleEquallyOften)
{
    constexpr int kHighest = 10;
    constexpr int kShuffles = 100000;
    RandomGenerator generator = Generator();
    std::array<std::array<int, kHighest + 1>, kHighest + 1> counts{};
    for (int i = 0; i < kShuffles; ++i) {
        const std::optional<NumberOrder> order = ShuffleNumbers(generator, kHighest);
        ASSERT_TRUE(order.has_value());
        for (std::size_t place = 1; place <= kHighest; ++place) {
            ++counts.at(place).at(std::size_t(order->at(place)));
        }
    }
    // A permutation's places exclude each other both ways: (N-1) squared degrees of freedom.
    constexpr double kExpected = double(kShuffles) / kHighest;
    double sum = 0;
    for (std::size_t place = 1; place <= kHighest; ++place) {
        for (std::size_t number = 1; number <= kHighest; ++number) {
            const double off = counts.at(place).at(number) - kExpected;
            sum += off * off / kExpected;
        }
    }
    const double scaled = sum * (kHighest - 1) / kHighest;
    EXPECT_LT(std::abs(Deviations(scaled, (kHighest - 1.0) * (kHighest - 1))), kBound);
}

} // namespace
