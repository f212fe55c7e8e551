#include "database/StatisticsChart.h"

#include "app/TextPictures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

BarChart StatisticsChart(const NumberTable& sorted, int highest, const StatisticsOnShow& show)
{
    const bool timesDrawn = show.counted == CountMode::TimesDrawn;
    const QString counted = timesDrawn ? u"No. times drawn in"_s : u"No. draws since drawn/not drawn in"_s;
    BarChart chart{
        .title = counted + Str(show.records) + u" draws. "_s + show.title,
        .labelAxis = u"Number"_s,
        .valueAxis = timesDrawn ? u"Times drawn"_s : u"Draws since last drawn"_s,
        .bars = {},
        .style = show.style,
    };
    const auto rows = static_cast<std::size_t>(std::clamp(highest, 1, kMostNumbers));
    for (std::size_t row = 1; row <= rows; ++row) {
        chart.bars.push_back({.label = QString::number(sorted.at(row).label), .value = sorted.at(row).value});
    }
    return chart;
}
