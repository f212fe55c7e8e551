#include "hotcold/HcdAnalysis.h"

#include "tests/QtPrinters.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace {

using Counts = std::map<int, int>;

DrawDatabase Database(int highest, const std::vector<std::vector<int>>& draws)
{
    DrawDatabase database;
    database.columns = static_cast<qint16>((draws.empty() ? 1 : draws.front().size()) + 2);
    database.highest = static_cast<qint16>(highest);
    for (const std::vector<int>& numbers : draws) {
        EXPECT_TRUE(database.Append(QDate(2020, 1, 1), numbers));
    }
    return database;
}

/// @p records draws of @p picks numbers, which may come twice in one draw.
std::vector<std::vector<int>> RandomDraws(std::mt19937& random, int records, int picks, int highest)
{
    std::uniform_int_distribution<int> number(1, highest);
    std::vector<std::vector<int>> draws(static_cast<std::size_t>(records));
    for (std::vector<int>& draw : draws) {
        for (int pick = 0; pick < picks; ++pick) {
            draw.push_back(number(random));
        }
    }
    return draws;
}

Counts ValuesOf(const NumberTable& table, int highest)
{
    Counts values;
    for (int number = 1; number <= highest; ++number) {
        values[number] = table.at(static_cast<std::size_t>(number)).value;
    }
    return values;
}

/// The two counts written down plainly.
Counts TimesInLast(const std::vector<std::vector<int>>& draws, int last, int highest)
{
    Counts values;
    for (int number = 1; number <= highest; ++number) {
        values[number] = 0;
        for (std::size_t draw = draws.size() - static_cast<std::size_t>(last); draw < draws.size(); ++draw) {
            values[number] += static_cast<int>(std::count(draws[draw].begin(), draws[draw].end(), number));
        }
    }
    return values;
}

Counts DrawsSince(const std::vector<std::vector<int>>& draws, int highest)
{
    Counts values;
    const int count = static_cast<int>(draws.size());
    for (int number = 1; number <= highest; ++number) {
        values[number] = 0;
        for (int record = 1; record <= count; ++record) { // oldest first, so the last one that holds it stays
            for (const int drawn : draws[static_cast<std::size_t>(record) - 1]) {
                if (drawn == number) {
                    values[number] = count + 1 - record;
                }
            }
        }
        if (values[number] == 0) {
            values[number] = count + 1;
        }
        --values[number];
    }
    return values;
}

/// The ranking as a list of (number, value), written down step by step from its description.
std::vector<std::pair<int, int>> Ranked(const Counts& values, int highest)
{
    std::vector<std::pair<int, int>> rows(static_cast<std::size_t>(highest) + 1);
    for (const auto& [number, value] : values) {
        rows[static_cast<std::size_t>(number)] = {number, value};
    }
    for (int gap = highest / 2; gap > 0; gap /= 2) {
        for (int place = gap + 1; place <= highest; ++place) {
            const std::pair<int, int> moved = rows[static_cast<std::size_t>(place)];
            int to = place;
            while (to > gap && rows[static_cast<std::size_t>(to - gap)].second < moved.second) {
                rows[static_cast<std::size_t>(to)] = rows[static_cast<std::size_t>(to - gap)];
                to -= gap;
            }
            rows[static_cast<std::size_t>(to)] = moved;
        }
    }
    for (int pass = 0; pass < 5; ++pass) {
        for (std::size_t row = 1; row + 1 <= static_cast<std::size_t>(highest); ++row) {
            if (rows[row].second == rows[row + 1].second && rows[row].first > rows[row + 1].first) {
                std::swap(rows[row], rows[row + 1]);
            }
        }
    }
    return rows;
}

std::vector<std::pair<int, int>> CandidatesOf(const HcdAnalysis& analysis, HcdList list)
{
    std::vector<std::pair<int, int>> candidates;
    for (int i = 1; i <= kHcdListLength; ++i) {
        const NumberCount& count = analysis.HcdCandidates.at(static_cast<std::size_t>(RowBefore(list) + i));
        candidates.emplace_back(count.label, count.value);
    }
    return candidates;
}

/// Numbers 1..12 of which number n was drawn n - 1 times, one number a draw.
DrawDatabase StairsOf12()
{
    std::vector<std::vector<int>> draws;
    for (int number = 2; number <= 12; ++number) {
        draws.insert(draws.end(), static_cast<std::size_t>(number) - 1, {number});
    }
    return Database(12, draws);
}

} // namespace

TEST(HcdAnalysis, TheTallyOfTheLastDrawsLooksAtNoOlderDraw)
{
    const DrawDatabase database = Database(5, {{1, 2}, {1, 3}, {1, 4}});
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, 2);
    EXPECT_EQ(ValuesOf(analysis.NumberTally, 5), (Counts{{1, 2}, {2, 0}, {3, 1}, {4, 1}, {5, 0}}));
    EXPECT_EQ(analysis.NumberTally.at(1).label, 1);
    EXPECT_EQ(analysis.NumberTally.at(2).label, 0) << "a number that was not found has no label";
}

TEST(HcdAnalysis, ANumberThatStandsTwiceInADrawCountsTwice)
{
    HcdAnalysis analysis;
    TallyLastDraws(analysis, Database(5, {{3, 3}, {3, 1}}), 2);
    EXPECT_EQ(analysis.NumberTally.at(3).value, 3);
}

TEST(HcdAnalysis, TheLatestDrawIsZeroDrawsAgoAndANumberNeverDrawnAllDraws)
{
    HcdAnalysis analysis;
    TallyDrawsSince(analysis, Database(4, {{1}, {2}, {1}, {3}}));
    EXPECT_EQ(ValuesOf(analysis.NumberTally, 4), (Counts{{1, 1}, {2, 2}, {3, 0}, {4, 4}}));
}

TEST(HcdAnalysis, WhatStandsBeforeTheFirstRecordIsNoDraw)
{
    DrawDatabase database = Database(12, {{1}, {2}, {3}});
    DrawDatabase without = database;
    without.records.front() = {};
    database.records.front().drawn.front() = 9;
    for (const bool since : {true, false}) {
        HcdAnalysis analysis;
        HcdAnalysis expected;
        if (since) {
            TallyDrawsSince(analysis, database);
            TallyDrawsSince(expected, without);
        } else {
            TallyLastDraws(analysis, database, 3);
            TallyLastDraws(expected, without, 3);
        }
        EXPECT_EQ(ValuesOf(analysis.NumberTally, 12), ValuesOf(expected.NumberTally, 12));
    }
}

TEST(HcdAnalysis, ThePeriodIsFirstAYearOfWeeklyDraws)
{
    EXPECT_EQ(FirstPeriod(10), 10);
    EXPECT_EQ(FirstPeriod(51), 51);
    EXPECT_EQ(FirstPeriod(52), 52);
    EXPECT_EQ(FirstPeriod(53), 52);
    EXPECT_EQ(FirstPeriod(2001), 52);
}

TEST(HcdAnalysis, WithoutAListTheNumbersAreRankedAllTheSame)
{
    const DrawDatabase database = StairsOf12();
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, database.count);
    RankNumbers(analysis, 12, HcdList::None);
    EXPECT_EQ(analysis.RankedNumbers.at(1).label, 12);
    EXPECT_EQ(analysis.distinctNumbers, 11);
    EXPECT_EQ(analysis.HcdCandidates, HcdCandidateTable{});
}

TEST(HcdAnalysis, TheHotListHoldsTheTenMostFrequentNumbers)
{
    const DrawDatabase database = StairsOf12();
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, database.count);
    RankNumbers(analysis, 12, HcdList::Hot);
    EXPECT_EQ(analysis.distinctNumbers, 11);
    EXPECT_EQ(CandidatesOf(analysis, HcdList::Hot),
              (std::vector<std::pair<int, int>>{
                  {12, 11}, {11, 10}, {10, 9}, {9, 8}, {8, 7}, {7, 6}, {6, 5}, {5, 4}, {4, 3}, {3, 2}}));
}

TEST(HcdAnalysis, TheColdListHoldsTheTenLeastFrequentOfThoseDrawnMostFrequentFirst)
{
    const DrawDatabase database = StairsOf12();
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, database.count);
    RankNumbers(analysis, 12, HcdList::Cold);
    const std::vector<std::pair<int, int>> expected{{11, 10}, {10, 9}, {9, 8}, {8, 7}, {7, 6},
                                                    {6, 5},   {5, 4},  {4, 3}, {3, 2}, {2, 1}};
    EXPECT_EQ(CandidatesOf(analysis, HcdList::Cold), expected) << "number 1 was never drawn";
    for (std::size_t row = 1; row <= 10; ++row) { // what the graph shows
        EXPECT_EQ(analysis.RankedNumbers.at(row).label, expected.at(row - 1).first);
    }
}

TEST(HcdAnalysis, NumbersNeverDrawnHeadTheDueListWithTheNumberOfAllDraws)
{
    std::vector<std::vector<int>> draws;
    for (int number = 1; number <= 10; ++number) {
        draws.push_back({number});
    }
    HcdAnalysis analysis;
    TallyDrawsSince(analysis, Database(12, draws));
    RankNumbers(analysis, 12, HcdList::Due);
    const auto due = CandidatesOf(analysis, HcdList::Due);
    EXPECT_EQ(due.at(0), (std::pair{11, 10}));
    EXPECT_EQ(due.at(1), (std::pair{12, 10}));
    EXPECT_EQ(due.at(2), (std::pair{1, 9}));
}

TEST(HcdAnalysis, EachListHasItsOwnTenRows)
{
    const DrawDatabase database = StairsOf12();
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, database.count);
    RankNumbers(analysis, 12, HcdList::Hot);
    const HcdAnalysis hot = analysis;
    RankNumbers(analysis, 12, HcdList::Cold);
    EXPECT_EQ(CandidatesOf(analysis, HcdList::Hot), CandidatesOf(hot, HcdList::Hot));
    EXPECT_EQ(CandidatesOf(analysis, HcdList::Due), CandidatesOf(HcdAnalysis{}, HcdList::Due));
    EXPECT_EQ(RowBefore(HcdList::Hot), 0);
    EXPECT_EQ(RowBefore(HcdList::Cold), 10);
    EXPECT_EQ(RowBefore(HcdList::Due), 20);
}

TEST(HcdAnalysis, WithNineNumbersTheListKeepsWhatItHeld)
{
    const DrawDatabase many = StairsOf12();
    HcdAnalysis analysis;
    TallyLastDraws(analysis, many, many.count);
    RankNumbers(analysis, 12, HcdList::Cold);
    const auto before = CandidatesOf(analysis, HcdList::Cold);
    std::vector<std::vector<int>> draws;
    for (int number = 1; number <= 9; ++number) {
        draws.push_back({number});
    }
    const DrawDatabase few = Database(12, draws);
    TallyLastDraws(analysis, few, few.count);
    RankNumbers(analysis, 12, HcdList::Cold);
    EXPECT_TRUE(HasTooFewNumbers(analysis));
    EXPECT_EQ(analysis.distinctNumbers, 9);
    EXPECT_EQ(CandidatesOf(analysis, HcdList::Cold), before);
    EXPECT_EQ(analysis.RankedNumbers.at(1).value, 1) << "the ranking itself is the new one";
}

TEST(HcdAnalysis, TenNumbersAreEnough)
{
    std::vector<std::vector<int>> draws;
    for (int number = 1; number <= 10; ++number) {
        draws.push_back({number});
    }
    const DrawDatabase database = Database(12, draws);
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, 10);
    RankNumbers(analysis, 12, HcdList::Hot);
    EXPECT_FALSE(HasTooFewNumbers(analysis));
    EXPECT_EQ(CandidatesOf(analysis, HcdList::Hot).front(), (std::pair{1, 1}));
}

TEST(HcdAnalysis, SixtyNumbersDrawnEquallyOftenAreRankedAsByASecondImplementation)
{
    std::vector<std::vector<int>> draws;
    for (int number = 60; number >= 1; --number) {
        draws.push_back({number});
    }
    const DrawDatabase database = Database(60, draws);
    for (const HcdList list : {HcdList::Hot, HcdList::Cold}) {
        HcdAnalysis analysis;
        TallyLastDraws(analysis, database, database.count);
        RankNumbers(analysis, 60, list);
        EXPECT_EQ(analysis.distinctNumbers, 60);
        const auto rows = Ranked(TimesInLast(draws, 60, 60), 60);
        const int first = list == HcdList::Cold ? 51 : 1;
        EXPECT_EQ(CandidatesOf(analysis, list),
                  (std::vector<std::pair<int, int>>(rows.begin() + first, rows.begin() + first + 10)));
    }
}

TEST(HcdAnalysis, AHighestNumberBelowTenNeverMakesAList)
{
    for (int highest = 1; highest < 10; ++highest) {
        std::vector<std::vector<int>> draws;
        for (int draw = 0; draw < 40; ++draw) {
            draws.push_back({draw % highest + 1});
        }
        const DrawDatabase database = Database(highest, draws);
        HcdAnalysis analysis;
        TallyLastDraws(analysis, database, database.count);
        RankNumbers(analysis, highest, HcdList::Cold);
        EXPECT_EQ(analysis.distinctNumbers, highest);
        EXPECT_TRUE(HasTooFewNumbers(analysis));
    }
}

TEST(HcdAnalysis, AnEmptyDatabaseHasNoList)
{
    HcdAnalysis analysis;
    TallyLastDraws(analysis, Database(49, {}), 0);
    RankNumbers(analysis, 49, HcdList::Hot);
    EXPECT_EQ(analysis.distinctNumbers, 0);
    TallyDrawsSince(analysis, Database(49, {}));
    RankNumbers(analysis, 49, HcdList::Due);
    EXPECT_TRUE(HasTooFewNumbers(analysis));
}

TEST(HcdAnalysis, EqualsAPlainSecondImplementationOnRandomHistories)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 600; ++round) {
        SCOPED_TRACE(round);
        const int highest = std::uniform_int_distribution<int>(1, 60)(random);
        const int picks = std::uniform_int_distribution<int>(1, 10)(random);
        // Now and then a full table, and now and then only some of the numbers.
        const int records = round % 50 == 0 ? 2001 : std::uniform_int_distribution<int>(10, 300)(random);
        const int drawable = round % 3 == 0 ? std::min(highest, 12) : highest;
        const auto draws = RandomDraws(random, records, picks, drawable);
        const DrawDatabase database = Database(highest, draws);
        const int last = std::uniform_int_distribution<int>(10, records)(random);

        HcdAnalysis analysis;
        for (const HcdList list : {HcdList::Hot, HcdList::Cold, HcdList::Due}) {
            const bool due = list == HcdList::Due;
            if (due) {
                TallyDrawsSince(analysis, database);
            } else {
                TallyLastDraws(analysis, database, last);
            }
            const Counts values = due ? DrawsSince(draws, highest) : TimesInLast(draws, last, highest);
            ASSERT_EQ(ValuesOf(analysis.NumberTally, highest), values);

            const auto before = CandidatesOf(analysis, list);
            RankNumbers(analysis, highest, list);
            auto rows = Ranked(values, highest);
            int distinct = 0;
            while (distinct < highest && rows[static_cast<std::size_t>(distinct) + 1].second != 0) {
                ++distinct;
            }
            ASSERT_EQ(analysis.distinctNumbers, distinct);
            if (distinct < 10) {
                ASSERT_EQ(CandidatesOf(analysis, list), before) << "they stay as they were";
                continue;
            }
            std::vector<std::pair<int, int>> expected;
            const int first = list == HcdList::Cold ? distinct - 9 : 1;
            for (int row = first; row < first + 10; ++row) {
                expected.push_back(rows[static_cast<std::size_t>(row)]);
            }
            ASSERT_EQ(CandidatesOf(analysis, list), expected);
        }
    }
}

TEST(HcdAnalysis, EqualCountsStayOutOfOrderWhereFivePassesDoNotReach)
{
    // Sixty numbers drawn once each, of which one was drawn again: the passes put most, but not all of the
    // equal ones in order of number.
    std::vector<std::vector<int>> draws;
    for (int number = 1; number <= 60; ++number) {
        draws.push_back({number});
    }
    draws.push_back({60});
    const DrawDatabase database = Database(60, draws);
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, database.count);
    RankNumbers(analysis, 60, HcdList::Hot);
    const auto rows = Ranked(TimesInLast(draws, 61, 60), 60);
    bool ordered = true;
    for (std::size_t row = 1; row <= 60; ++row) {
        EXPECT_EQ(analysis.RankedNumbers.at(row).label, rows.at(row).first);
        ordered = ordered && (row < 3 || rows.at(row).first > rows.at(row - 1).first);
    }
    EXPECT_FALSE(ordered);
}
