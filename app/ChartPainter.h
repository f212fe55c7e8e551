#pragma once

#include "app/BarChart.h"

#include <QColor>
#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QStringList>

#include <vector>

/// The colours and the letters of a chart.
struct ChartLook {
    QFont font; ///< its size in pixels is in units of the painter; everything else is measured by it
    QColor ground;
    QColor text;
    QColor grid;
    QColor front; ///< of the bars; their only face when they are flat
    QColor top;
    QColor side;
    QColor marked;        ///< the front of the bar that is marked
    bool hatched = false; ///< bars are outlined and hatched instead of filled
};

/// Under the desktop's palette, light or dark.
[[nodiscard]] ChartLook LookOnScreen(const QPalette& palette, const QFont& font);

/// On white paper. @param textSize  in units of the painter
[[nodiscard]] ChartLook LookOnPaper(ChartInk ink, int textSize);

/// Where the parts of a chart stand. All of them lie within the area, and none covers another.
struct ChartLayout {
    enum class ValuePlace {
        Above,   ///< each value stands above its bar
        Upright, ///< the same, turned by a quarter, where the bars are closer than the values are wide
        None,    ///< there is no room for values
    };

    QRectF area;
    QRectF title;
    QStringList titleLines; ///< what fits of it
    QFont titleFont;
    QRectF plot;        ///< the front plane: the bars stand on its lower edge, which is 0
    QSizeF depth{0, 0}; ///< how far the back plane is shifted to the right and up; empty for flat bars
    qreal slot = 0;     ///< from one bar to the next
    ChartScale scale;
    QFont tickFont;
    std::vector<QRectF> ticks; ///< the boxes of the values beside the axis, from 0 up
    QFont labelFont;
    int labelRows = 1; ///< labels of bars that stand close take turns among rows
    std::vector<QRectF> labels;
    ValuePlace valuePlace = ValuePlace::Above;
    QFont valueFont;
    std::vector<QRectF> values; ///< empty for ValuePlace::None
    std::vector<QRectF> bars;   ///< their fronts
    QRectF labelAxis;           ///< empty when the words have no room
    QRectF valueAxis;           ///< the words are turned by a quarter

    /// The bar in whose column a point is, -1 for none. A bar without height has its column, too.
    [[nodiscard]] int BarAt(QPointF point) const;
};

/// Finds a place for everything. @param device  the one that is painted on, whose letters are measured
[[nodiscard]] ChartLayout LayOutChart(const BarChart& chart, const QRectF& area, const QFont& font,
                                      const QPaintDevice* device);

/// Paints a chart: on the screen, in a picture and on paper.
///
/// @param layout  of this chart, in the font of this look
/// @param marked  the bar that is set off from the others, -1 for none
void PaintChart(QPainter& painter, const ChartLayout& layout, const BarChart& chart, const ChartLook& look,
                int marked = -1);
