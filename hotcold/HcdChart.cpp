#include "hotcold/HcdChart.h"

#include "hotcold/HcdAnalysis.h"

#include <cstddef>

using namespace Qt::StringLiterals;

namespace {

QString Title(HcdList list)
{
    switch (list) {
    case HcdList::Hot:
        return u"Hot numbers"_s;
    case HcdList::Cold:
        return u"Cold numbers"_s;
    case HcdList::Due:
        return u"Due numbers"_s;
    case HcdList::None:
        break;
    }
    return {};
}

} // namespace

BarChart EmptyHcdChart(HcdList list)
{
    return {
        .title = Title(list),
        .labelAxis = u"Number"_s,
        .valueAxis = list == HcdList::Due ? u"Draws since drawn"_s : u"Times drawn"_s,
        .bars = {},
        .style = BarStyle::ThreeDimensional,
    };
}

BarChart HcdChart(HcdList list, const NumberTable& ranked)
{
    BarChart chart = EmptyHcdChart(list);
    for (std::size_t row = 1; row <= std::size_t{kHcdListLength}; ++row) {
        const NumberCount& count = ranked.at(row);
        chart.bars.push_back({.label = QString::number(count.label), .value = count.value});
    }
    return chart;
}
