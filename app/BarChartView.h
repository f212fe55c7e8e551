#pragma once

#include "app/BarChart.h"
#include "app/ChartPainter.h"

#include <QWidget>

#include <optional>

/// Shows a bar chart. Under the mouse pointer, and with the keyboard by the arrow keys, Home and End, one bar
/// is marked and said in words.
class BarChartView : public QWidget
{
    Q_OBJECT

public:
    explicit BarChartView(QWidget* parent = nullptr);

    /// Shows this chart from now on; no bar is marked. The title becomes the accessible name; the accessible
    /// description is the marked bar in words, or all of them while none is marked.
    void SetChart(const BarChart& chart);
    [[nodiscard]] const BarChart& Chart() const { return m_chart; }

    /// Shows no chart.
    void Clear() { SetChart({}); }

    /// The bar that is marked, -1 for none.
    [[nodiscard]] int MarkedBar() const { return m_marked; }

    /// The bar that is marked in words, such as "Number 17: 23"; "" for none.
    [[nodiscard]] QString MarkedInWords() const;

    /// Where the parts of the chart stand in this widget now.
    [[nodiscard]] const ChartLayout& Places() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Mark(int bar);
    void SayMarked();
    [[nodiscard]] QRectF Area() const;
    [[nodiscard]] QFont ChartFont() const;

    BarChart m_chart;
    int m_marked = -1;
    mutable std::optional<ChartLayout> m_layout; ///< made when it is wanted
};
