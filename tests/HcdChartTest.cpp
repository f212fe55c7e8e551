#include "hotcold/HcdChart.h"

#include "tests/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

NumberTable TwelveRanked()
{
    NumberTable ranked{};
    for (qint16 row = 1; row <= 12; ++row) {
        ranked.at(std::size_t(row)) = {.label = qint16(40 - row), .value = qint16(30 - row)};
    }
    return ranked;
}

} // namespace

TEST(HcdChart, HasTheFirstTenNumbersInTheirOrder)
{
    const BarChart chart = HcdChart(HcdList::Hot, TwelveRanked());
    ASSERT_EQ(chart.bars.size(), 10U);
    for (int i = 1; i <= 10; ++i) {
        const ChartBar& bar = chart.bars.at(std::size_t(i) - 1);
        EXPECT_EQ(bar.label, QString::number(40 - i));
        EXPECT_EQ(bar.value, 30 - i);
    }
}

TEST(HcdChart, StandsInThreeDimensions)
{
    for (const HcdList list : {HcdList::Hot, HcdList::Cold, HcdList::Due}) {
        EXPECT_EQ(HcdChart(list, TwelveRanked()).style, BarStyle::ThreeDimensional);
        EXPECT_EQ(EmptyHcdChart(list).style, BarStyle::ThreeDimensional);
    }
}

TEST(HcdChart, SaysWhatItsNumbersAndValuesAre)
{
    const BarChart hot = HcdChart(HcdList::Hot, TwelveRanked());
    EXPECT_EQ(hot.title, u"Hot numbers"_s);
    EXPECT_EQ(hot.labelAxis, u"Number"_s);
    EXPECT_EQ(hot.valueAxis, u"Times drawn"_s);
    const BarChart cold = HcdChart(HcdList::Cold, TwelveRanked());
    EXPECT_EQ(cold.title, u"Cold numbers"_s);
    EXPECT_EQ(cold.valueAxis, u"Times drawn"_s);
    const BarChart due = HcdChart(HcdList::Due, TwelveRanked());
    EXPECT_EQ(due.title, u"Due numbers"_s);
    EXPECT_EQ(due.valueAxis, u"Draws since drawn"_s);
}

TEST(HcdChart, HasItsWordsAlsoWithoutBars)
{
    for (const HcdList list : {HcdList::Hot, HcdList::Cold, HcdList::Due}) {
        BarChart chart = HcdChart(list, TwelveRanked());
        chart.bars.clear();
        EXPECT_EQ(EmptyHcdChart(list), chart);
    }
}
