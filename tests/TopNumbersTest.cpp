#include "database/TopNumbers.h"

#include "tests/QtPrinters.h"

#include <QString>
#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

NumberTable SortedOf(const std::vector<int>& numbers)
{
    NumberTable sorted{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        sorted.at(i + 1) = {static_cast<qint16>(numbers.at(i)), static_cast<qint16>(100 - i)};
    }
    return sorted;
}

} // namespace

TEST(TopNumbers, SixPicksNameSixNumbersByTimesDrawn)
{
    const TopNumbers top = DescribeTopNumbers(SortedOf({23, 7, 41, 12, 3, 30, 9}), CountMode::TimesDrawn, 6);
    EXPECT_EQ(top.heading,
              u"Showing the count of times numbers drawn. Top  6 =   23   7   41   12   3   30  "_s);
    EXPECT_EQ(top.numbers, u" 23   7   41   12   3   30  "_s);
}

TEST(TopNumbers, SixPicksNameSixNumbersByDrawsSince)
{
    const TopNumbers top =
        DescribeTopNumbers(SortedOf({23, 7, 41, 12, 3, 30, 9}), CountMode::SinceLastDrawn, 6);
    EXPECT_EQ(top.heading,
              u"Number of draws since last drawn/not drawn. Top  6 =   23   7   41   12   3   30  "_s);
    EXPECT_EQ(top.numbers, u" 23   7   41   12   3   30  "_s);
}

TEST(TopNumbers, OnePickNamesOneNumber)
{
    const TopNumbers top = DescribeTopNumbers(SortedOf({49, 1}), CountMode::TimesDrawn, 1);
    EXPECT_EQ(top.heading, u"Showing the count of times numbers drawn. Top  1 =   49  "_s);
    EXPECT_EQ(top.numbers, u" 49  "_s);
}

TEST(TopNumbers, TenPicksNameTenNumbers)
{
    const TopNumbers top =
        DescribeTopNumbers(SortedOf({60, 9, 8, 7, 6, 5, 4, 3, 2, 10, 11}), CountMode::TimesDrawn, 10);
    EXPECT_EQ(top.heading, u"Showing the count of times numbers drawn. Top  10 =   60   9   8   7   6   5   4"
                           u"   3   2   10  "_s);
    EXPECT_EQ(top.numbers, u" 60   9   8   7   6   5   4   3   2   10  "_s);
}

TEST(TopNumbers, TheHeadingEndsInTheNumbers)
{
    for (int picks = 1; picks <= 10; ++picks) {
        const TopNumbers top = DescribeTopNumbers(SortedOf({10, 20, 30, 40, 50, 60, 1, 2, 3, 4}),
                                                  CountMode::SinceLastDrawn, picks);
        EXPECT_EQ(top.heading, u"Number of draws since last drawn/not drawn. Top  "_s +
                                   QString::number(picks) + u" =  "_s + top.numbers);
        EXPECT_EQ(top.numbers.split(u' ', Qt::SkipEmptyParts).size(), picks);
    }
}

TEST(TopNumbers, MorePicksThanTheLotteryHasNumbersNameRowsWithoutOne)
{
    const TopNumbers top = DescribeTopNumbers(SortedOf({2, 1}), CountMode::TimesDrawn, 3);
    EXPECT_EQ(top.numbers, u" 2   1   0  "_s);
}

TEST(TopNumbers, TheTopOfACountedDatabaseIsNamed)
{
    DrawDatabase database;
    database.columns = 5;
    database.highest = 9;
    for (const std::vector<int>& draw : {std::vector<int>{7, 2, 3}, {7, 2, 4}, {7, 5, 4}}) {
        ASSERT_TRUE(database.Append(QDate(2024, 3, 5), draw));
    }
    const NumberTable times = SortNumbers(CountNumbers(database, CountMode::TimesDrawn), 9, 0);
    EXPECT_EQ(DescribeTopNumbers(times, CountMode::TimesDrawn, 3).numbers, u" 7   2   4  "_s);
    const NumberTable since = SortNumbers(CountNumbers(database, CountMode::SinceLastDrawn), 9, 0);
    EXPECT_EQ(DescribeTopNumbers(since, CountMode::SinceLastDrawn, 3).numbers, u" 1   6   8  "_s);
}
