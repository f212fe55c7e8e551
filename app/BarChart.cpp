#include "app/BarChart.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

ChartScale AxisScale(int highest, int mostSteps)
{
    const qint64 most = std::max(1, mostSteps);
    const qint64 reach = std::max(1, highest);
    qint64 power = 1;
    while (true) {
        for (const qint64 digit : {1, 2, 5}) {
            const qint64 step = digit * power;
            const qint64 steps = (reach + step - 1) / step;
            if (steps <= most) {
                return {.step = step, .top = steps * step};
            }
        }
        power *= 10;
    }
}

QString BarInWords(const BarChart& chart, const ChartBar& bar)
{
    const QString words = u"%1: %2"_s.arg(bar.label, QString::number(bar.value));
    return chart.labelAxis.isEmpty() ? words : chart.labelAxis + u' ' + words;
}

QString ChartInWords(const BarChart& chart)
{
    QStringList bars;
    for (const ChartBar& bar : chart.bars) {
        bars << BarInWords(chart, bar);
    }
    const QString kind = u"Bar chart of %1 bars. "_s.arg(chart.bars.size());
    const QString values = chart.valueAxis.isEmpty() ? QString() : chart.valueAxis + u". "_s;
    return kind + values + bars.join(u", "_s);
}
