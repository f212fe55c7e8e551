#pragma once

#include <QString>

#include <vector>

/// How the bars of a chart stand: as rectangles, or as blocks with a top and a side.
enum class BarStyle { Flat, ThreeDimensional };

/// What a chart is printed with. In black and white the bars are told from the paper by hatch lines.
enum class ChartInk { Color, BlackAndWhite };

/// One bar.
struct ChartBar {
    QString label; ///< stands below the bar
    int value = 0; ///< its height; one below 0 is drawn without height

    bool operator==(const ChartBar&) const = default;
};

/// A bar chart as a plain value: what it says and how it is to look, but not where or how large.
struct BarChart {
    QString title{};
    QString labelAxis{};          ///< what the labels are; "" for no words at that axis
    QString valueAxis{};          ///< what the values are; "" for no words at that axis
    std::vector<ChartBar> bars{}; ///< from left to right
    BarStyle style = BarStyle::Flat;
    ChartInk ink = ChartInk::Color;

    bool operator==(const BarChart&) const = default;
};

/// The values beside an axis: 0, step, 2 * step .. top.
struct ChartScale {
    qint64 step = 1;
    qint64 top = 1;

    bool operator==(const ChartScale&) const = default;
};

/// A scale in steps of 1, 2 or 5 times a power of ten that reaches the highest value.
///
/// @param highest    a value not above 0 gives the scale 0..1
/// @param mostSteps  how many steps there is room for, at least 1
[[nodiscard]] ChartScale AxisScale(int highest, int mostSteps);

/// The bar in words, such as "Number 17: 23".
[[nodiscard]] QString BarInWords(const BarChart& chart, const ChartBar& bar);

/// All bars in words, as a screen reader speaks them.
[[nodiscard]] QString ChartInWords(const BarChart& chart);
