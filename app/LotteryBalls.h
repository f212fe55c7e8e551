#pragma once

#include <QColor>
#include <QLabel>

#include <vector>

/// A row of shaded balls, as large as the label allows: decoration.
class LotteryBalls : public QLabel
{
    Q_OBJECT

public:
    explicit LotteryBalls(QWidget* parent = nullptr) : QLabel(parent) {}

    void SetColors(const std::vector<QColor>& colors);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<QColor> m_colors;
};
