#include "hotcold/HcdSets.h"

#include "tests/FixedSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

namespace {

using Set = std::vector<int>;

Set SetOf(const SetTable& table, int row)
{
    const auto& set = table.at(static_cast<std::size_t>(row));
    return {set.begin() + 1, set.end()};
}

/// Hot 1..10, cold 11..20, due 21..30.
HcdCandidateTable ThirtyCandidates()
{
    HcdCandidateTable candidates{};
    for (qint16 row = 1; row <= 30; ++row) {
        candidates.at(static_cast<std::size_t>(row)) = {row, 1};
    }
    return candidates;
}

HcdBasis Basis(const HcdCandidateTable& candidates, const HcdCounts& counts)
{
    return {.lastDraws = 52, .counts = counts, .candidates = candidates};
}

RandomGenerator Generator()
{
    return {{1, 2, 3, 4}, [ticks = std::uint64_t{0}]() mutable { return ++ticks; }};
}

} // namespace

TEST(HcdSets, TheFirstCountsAreThoseOfTheTable)
{
    const std::vector<HcdCounts> table{{1, 0, 0}, {1, 0, 1}, {2, 1, 0}, {2, 1, 1}, {2, 1, 2},
                                       {2, 2, 2}, {3, 2, 2}, {3, 3, 2}, {4, 3, 2}, {4, 2, 4}};
    for (int picks = 1; picks <= 10; ++picks) {
        const HcdCounts counts = DefaultHcdCounts(picks);
        EXPECT_EQ(counts, table.at(static_cast<std::size_t>(picks) - 1)) << picks;
        EXPECT_EQ(counts.Total(), picks);
    }
    EXPECT_EQ(DefaultHcdCounts(0), table.front());
    EXPECT_EQ(DefaultHcdCounts(99), table.back());
}

TEST(HcdSets, HotColdAndDueNumbersStandBesideEachOther)
{
    // All hot numbers of both sets first, then the cold, then the due ones.
    FixedSource source(ValuesFor({1, 2, 3, 4, 5, 6, 7}, 10));
    SetTable table{};
    EXPECT_TRUE(FillHcdSets(source, Basis(ThirtyCandidates(), {.hot = 2, .cold = 1, .due = 0}), 2, table));
    EXPECT_EQ(SetOf(table, 1), (Set{1, 2, 15, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 2), (Set{3, 4, 16, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 3), Set(10, 0));
}

TEST(HcdSets, AListThatGivesNoNumberIsSkipped)
{
    FixedSource source(ValuesFor({1, 2}, 10));
    SetTable table{};
    EXPECT_TRUE(FillHcdSets(source, Basis(ThirtyCandidates(), {.hot = 0, .cold = 0, .due = 2}), 1, table));
    EXPECT_EQ(SetOf(table, 1), (Set{21, 22, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(source.draws, 2U);
}

TEST(HcdSets, ANumberThatTheSetHoldsIsDrawnAnewForTheSamePlace)
{
    FixedSource source(ValuesFor({4, 4, 4, 7}, 10));
    SetTable table{};
    EXPECT_TRUE(FillHcdSets(source, Basis(ThirtyCandidates(), {.hot = 2, .cold = 0, .due = 0}), 1, table));
    EXPECT_EQ(SetOf(table, 1), (Set{4, 7, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(source.draws, 4U);
}

TEST(HcdSets, ANumberInTwoListsNeverStandsTwiceInASet)
{
    HcdCandidateTable candidates = ThirtyCandidates();
    for (std::size_t i = 1; i <= 10; ++i) {
        candidates.at(20 + i) = candidates.at(i); // due are the hot numbers
    }
    RandomGenerator random = Generator();
    for (int round = 0; round < 200; ++round) {
        SetTable table{};
        ASSERT_TRUE(FillHcdSets(random, Basis(candidates, {.hot = 5, .cold = 0, .due = 5}), 10, table));
        for (int row = 1; row <= 10; ++row) {
            const Set numbers = SetOf(table, row);
            EXPECT_EQ(std::set<int>(numbers.begin(), numbers.end()).size(), 10U);
        }
    }
}

TEST(HcdSets, TheSourceIsReseededBeforeEveryDraw)
{
    FixedSource source(ValuesFor({1, 1, 2, 3}, 10));
    SetTable table{};
    EXPECT_TRUE(FillHcdSets(source, Basis(ThirtyCandidates(), {.hot = 3, .cold = 0, .due = 0}), 1, table));
    EXPECT_EQ(source.reseeds, source.draws);
}

TEST(HcdSets, FiveThousandRejectionsOfOneListEndTheRun)
{
    FixedSource always(ValuesFor({3}, 10));
    SetTable table{};
    EXPECT_FALSE(FillHcdSets(always, Basis(ThirtyCandidates(), {.hot = 2, .cold = 1, .due = 0}), 1, table));
    EXPECT_EQ(SetOf(table, 1), (Set{3, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(always.draws, 5001U);
}

TEST(HcdSets, RejectionsAreCountedForEachListOverAllSets)
{
    // Each set's second hot number takes 2,499 rejections, and so does each second cold one: 4,998 for each
    // list, below the limit, though 9,996 together.
    std::vector<int> indexes;
    for (int list = 0; list < 2; ++list) {
        for (int set = 0; set < 2; ++set) {
            indexes.insert(indexes.end(), 2500, 1);
            indexes.push_back(2);
        }
    }
    FixedSource source(ValuesFor(indexes, 10));
    SetTable table{};
    EXPECT_TRUE(FillHcdSets(source, Basis(ThirtyCandidates(), {.hot = 2, .cold = 2, .due = 0}), 2, table));
    // One more in the first set is the five-thousandth but one, two more end it.
    indexes.insert(indexes.begin(), 2, 1);
    FixedSource more(ValuesFor(indexes, 10));
    SetTable stopped{};
    EXPECT_FALSE(FillHcdSets(more, Basis(ThirtyCandidates(), {.hot = 2, .cold = 2, .due = 0}), 2, stopped));
}

TEST(HcdSets, SetsAreMadeAnew)
{
    FixedSource source(ValuesFor({1, 2}, 10));
    SetTable table{};
    for (auto& set : table) {
        set.fill(1);
    }
    EXPECT_TRUE(FillHcdSets(source, Basis(ThirtyCandidates(), {.hot = 1, .cold = 0, .due = 0}), 2, table));
    EXPECT_EQ(SetOf(table, 1), (Set{1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 2), (Set{2, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 3), Set(10, 0));
}

TEST(HcdSets, EqualsAPlainSecondImplementation)
{
    // Positions filled one after the other by the description, list by list and set by set.
    std::mt19937 dice(20261121);
    const auto throwDie = [&dice](int faces) { return std::uniform_int_distribution<int>(1, faces)(dice); };
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        HcdCandidateTable candidates{};
        for (std::size_t row = 1; row <= 30; ++row) { // few numbers, so that many are in two lists
            candidates.at(row).label = static_cast<qint16>((throwDie(18) + static_cast<int>(row)) % 18);
        }
        const HcdCounts counts{.hot = throwDie(4) - 1, .cold = throwDie(4) - 1, .due = throwDie(5) - 1};
        const int sets = throwDie(10);
        std::vector<int> indexes(997);
        std::generate(indexes.begin(), indexes.end(), [&] { return throwDie(10); });

        std::size_t next = 0;
        std::vector<std::vector<int>> plain(static_cast<std::size_t>(sets), std::vector<int>(10, 0));
        bool made = true;
        const int ofList[] = {counts.hot, counts.cold, counts.due};
        int before = 0;
        for (int list = 0; list < 3 && made; before += ofList[list], ++list) {
            int retries = 0;
            for (std::vector<int>& set : plain) {
                for (int j = before + 1; j <= before + ofList[list] && made;) {
                    const int k = 10 * list + indexes[next++ % indexes.size()];
                    const int number = candidates.at(static_cast<std::size_t>(k)).label;
                    bool held = false;
                    for (int i = 1; i <= j; ++i) {
                        held = held || set.at(static_cast<std::size_t>(i) - 1) == number;
                    }
                    if (!held) {
                        set.at(static_cast<std::size_t>(j) - 1) = number;
                        ++j;
                    } else {
                        made = ++retries < 5000;
                    }
                }
            }
        }

        FixedSource source(ValuesFor(indexes, 10));
        SetTable table{};
        ASSERT_EQ(FillHcdSets(source, Basis(candidates, counts), sets, table), made);
        ASSERT_EQ(source.draws, next);
        for (int row = 1; row <= sets; ++row) {
            ASSERT_EQ(SetOf(table, row), plain.at(static_cast<std::size_t>(row) - 1));
        }
    }
}

TEST(HcdSets, TypedCountsAreHeldToWhatCanBeAddedUp)
{
    EXPECT_EQ(TypedCounts(2, 0, 6), (HcdCounts{.hot = 2, .cold = 0, .due = 6}));
    EXPECT_EQ(TypedCounts(-3, 1e300, 4), (HcdCounts{.hot = 0, .cold = 100, .due = 4}));
    EXPECT_GT(TypedCounts(1e9, 1e9, 1e9).Total(), kMostPicks);
}

TEST(HcdSets, MoreThanTenSetsFallBackToThePersonalSettings)
{
    EXPECT_EQ(GameSets(1, 3), 1);
    EXPECT_EQ(GameSets(10, 3), 10);
    EXPECT_EQ(GameSets(11, 3), 3);
    EXPECT_EQ(GameSets(1e300, 3), 3);
    EXPECT_EQ(GameSets(0, 3), 0);
    EXPECT_EQ(GameSets(-1, 3), 0);
    EXPECT_EQ(GameSets(11, 99), 10) << "settings out of their range do not lead out of a table";
}

TEST(HcdSets, AnEmptyListFillsNothing)
{
    RandomGenerator random = Generator();
    SetTable table{};
    EXPECT_FALSE(FillHcdSets(random, Basis(HcdCandidateTable{}, {.hot = 1, .cold = 0, .due = 0}), 1, table));
    EXPECT_EQ(SetOf(table, 1), Set(10, 0));
}

TEST(HcdSets, EveryCandidateIsAsLikelyAsAnyOther)
{
    RandomGenerator random = Generator();
    std::array<int, 31> seen{};
    constexpr int kRounds = 4000;
    for (int round = 0; round < kRounds; ++round) {
        SetTable table{};
        ASSERT_TRUE(
            FillHcdSets(random, Basis(ThirtyCandidates(), {.hot = 2, .cold = 2, .due = 2}), 10, table));
        for (int row = 1; row <= 10; ++row) {
            for (const int number : SetOf(table, row)) {
                ++seen.at(static_cast<std::size_t>(number));
            }
        }
    }
    // Two of ten in each of 40,000 sets: 8,000 each. Chi-square with 27 degrees of freedom, drawing without
    // putting back: the variance is smaller by (10 - 2) / (10 - 1).
    double chiSquare = 0;
    for (std::size_t number = 1; number <= 30; ++number) {
        const double off = seen.at(number) - 8000.0;
        chiSquare += off * off / 8000.0;
    }
    chiSquare *= 9.0 / 8.0;
    EXPECT_LT(chiSquare, 55.5); // one in a thousand goes beyond
    EXPECT_GT(chiSquare, 9.0);
}

TEST(HcdSets, EmptyPlacesMoveBehindTheNumbersWhoseOrderStays)
{
    SetTable table{};
    table.at(1) = {0, 0, 9, 0, 3, 5, 0, 0, 0, 0, 0};
    table.at(2) = {0, 0, 7, 0, 0, 0, 0, 0, 0, 0, 0};
    MoveEmptyPlacesToTheEnd(table, 6, 1);
    EXPECT_EQ(SetOf(table, 1), (Set{9, 3, 5, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(SetOf(table, 2), (Set{0, 7, 0, 0, 0, 0, 0, 0, 0, 0})) << "not one of the sets";
}
