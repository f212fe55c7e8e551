#include "app/BarChart.h"

#include "tests/QtPrinters.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct ScaleCase {
    int highest;
    int mostSteps;
    ChartScale expected;
};

const ScaleCase kScales[] = {
    {0, 5, {1, 1}},         {-3, 5, {1, 1}},         {1, 5, {1, 1}},
    {5, 5, {1, 5}},         {6, 5, {2, 6}},          {10, 5, {2, 10}},
    {11, 5, {5, 15}},       {26, 5, {10, 30}},       {50, 5, {10, 50}},
    {51, 5, {20, 60}},      {101, 5, {50, 150}},     {175, 10, {20, 180}},
    {2001, 5, {500, 2500}}, {2001, 1, {5000, 5000}}, {20010, 8, {5000, 25000}},
    {7, 0, {10, 10}},       {9, 100, {1, 9}},
};

} // namespace

TEST(BarChart, TheScaleGoesInRoundStepsToTheHighestValue)
{
    for (const ScaleCase& scale : kScales) {
        const ChartScale found = AxisScale(scale.highest, scale.mostSteps);
        EXPECT_EQ(found.step, scale.expected.step) << scale.highest << " in " << scale.mostSteps;
        EXPECT_EQ(found.top, scale.expected.top) << scale.highest << " in " << scale.mostSteps;
    }
}

TEST(BarChart, NoScaleIsShorterThanItsValueOrHasMoreStepsThanFit)
{
    for (int highest = 1; highest < 3000; ++highest) {
        for (int mostSteps = 1; mostSteps <= 12; ++mostSteps) {
            const ChartScale scale = AxisScale(highest, mostSteps);
            ASSERT_GE(scale.top, highest);
            ASSERT_LT(scale.top - scale.step, highest) << "a step too many";
            ASSERT_EQ(scale.top % scale.step, 0);
            ASSERT_LE(scale.top / scale.step, mostSteps);
        }
    }
}

TEST(BarChart, TheLargestValueHasAScale)
{
    const int largest = std::numeric_limits<int>::max();
    EXPECT_EQ(AxisScale(largest, 5).step, 500'000'000);
    EXPECT_EQ(AxisScale(largest, 5).top, 2'500'000'000);
}

TEST(BarChart, IsSaidInWordsBarByBar)
{
    BarChart chart{.title = u"T"_s,
                   .labelAxis = u"Number"_s,
                   .valueAxis = u"Times drawn"_s,
                   .bars = {{u"7"_s, 23}, {u"%1"_s, 0}}};
    EXPECT_EQ(BarInWords(chart, chart.bars[0]), u"Number 7: 23"_s);
    EXPECT_EQ(ChartInWords(chart), u"Bar chart of 2 bars. Times drawn. Number 7: 23, Number %1: 0"_s);
    chart.labelAxis.clear();
    chart.valueAxis.clear();
    EXPECT_EQ(ChartInWords(chart), u"Bar chart of 2 bars. 7: 23, %1: 0"_s);
}

TEST(BarChart, IsComparedByEverythingItSays)
{
    const BarChart chart{.title = u"T"_s, .bars = {{u"1"_s, 2}}};
    BarChart other = chart;
    EXPECT_EQ(other, chart);
    other.bars[0].value = 3;
    EXPECT_NE(other, chart);
    other = chart;
    other.style = BarStyle::ThreeDimensional;
    EXPECT_NE(other, chart);
    other = chart;
    other.ink = ChartInk::BlackAndWhite;
    EXPECT_NE(other, chart);
}
