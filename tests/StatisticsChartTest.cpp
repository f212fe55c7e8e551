#include "database/StatisticsChart.h"

#include "tests/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

NumberTable Counts(const std::vector<std::pair<int, int>>& values)
{
    NumberTable table{};
    for (const auto& [number, value] : values) {
        table.at(size_t(number)) = {qint16(number), qint16(value)};
    }
    return table;
}

QStringList Labels(const BarChart& chart)
{
    QStringList labels;
    for (const ChartBar& bar : chart.bars) {
        labels << bar.label;
    }
    return labels;
}

} // namespace

TEST(StatisticsChart, TheTitleNamesTheCountTheDrawsAndTheDatabase)
{
    EXPECT_EQ(StatisticsChart({}, 49, {.records = 120, .title = u"Test 6/49"_s}).title,
              u"No. times drawn in 120 draws. Test 6/49"_s);
    EXPECT_EQ(
        StatisticsChart({}, 49, {.counted = CountMode::SinceLastDrawn, .records = 1, .title = {}}).title,
        u"No. draws since drawn/not drawn in 1 draws. "_s);
}

TEST(StatisticsChart, TheAxesSayWhatIsShown)
{
    const BarChart times = StatisticsChart({}, 49, {.records = 1, .title = {}});
    EXPECT_EQ(times.labelAxis, u"Number"_s);
    EXPECT_EQ(times.valueAxis, u"Times drawn"_s);
    const BarChart since =
        StatisticsChart({}, 49, {.counted = CountMode::SinceLastDrawn, .records = 1, .title = {}});
    EXPECT_EQ(since.valueAxis, u"Draws since last drawn"_s);
}

TEST(StatisticsChart, HasOneBarForEachNumberAndNoneAboveTheHighest)
{
    NumberTable table{};
    for (size_t number = 0; number < table.size(); ++number) {
        table.at(number) = {qint16(number), qint16(100 + number)};
    }
    for (const int highest : {1, 10, 49, 60}) {
        const BarChart chart = StatisticsChart(table, highest, {});
        ASSERT_EQ(chart.bars.size(), size_t(highest));
        EXPECT_EQ(chart.bars.front(), (ChartBar{u"1"_s, 101}));
        EXPECT_EQ(chart.bars.back(), (ChartBar{QString::number(highest), 100 + highest}));
    }
    EXPECT_EQ(StatisticsChart(table, 0, {}).bars.size(), 1U);
    EXPECT_EQ(StatisticsChart(table, 32767, {}).bars.size(), 60U);
}

TEST(StatisticsChart, InTheSortedViewEqualValuesStandByNumber)
{
    const NumberTable counts = Counts({{3, 9}, {7, 9}, {12, 5}});
    const BarChart sorted = StatisticsChart(SortNumbers(counts, 12, 0), 12, {});
    EXPECT_EQ(Labels(sorted).first(3), (QStringList{u"3"_s, u"7"_s, u"12"_s}));
    EXPECT_EQ(sorted.bars.at(0).value, 9);
    EXPECT_EQ(sorted.bars.at(2).value, 5);
    const BarChart ordered = StatisticsChart(SortNumbers(counts, 12, kNumberOrder), 12, {});
    EXPECT_EQ(Labels(ordered).first(3), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(ordered.bars.at(6).value, 9);
}

TEST(StatisticsChart, TheStyleIsTheOneAskedFor)
{
    EXPECT_EQ(StatisticsChart({}, 5, {}).style, BarStyle::Flat);
    EXPECT_EQ(StatisticsChart({}, 5, {.style = BarStyle::ThreeDimensional}).style,
              BarStyle::ThreeDimensional);
    EXPECT_EQ(StatisticsChart({}, 5, {}).ink, ChartInk::Color);
}
