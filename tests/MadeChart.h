#pragma once

#include "app/BarChart.h"

/// A chart of so many numbers whose values go up and down from 0 to the highest, the same at every call.
inline BarChart MadeChart(int bars, int highest, BarStyle style = BarStyle::Flat)
{
    BarChart chart{.title = QStringLiteral("No. times drawn in 1200 draws. Lottery"),
                   .labelAxis = QStringLiteral("Number"),
                   .valueAxis = QStringLiteral("Times drawn"),

                   .style = style};
    for (int bar = 1; bar <= bars; ++bar) {
        constexpr int kStride = 37; // meets every rest of 101
        const int value = bar == bars ? highest : int(qint64(highest) * (bar * kStride % 101) / 101);
        chart.bars.push_back({QString::number(bar), value});
    }
    return chart;
}
