#include "app/LotteryBalls.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>

namespace {

void PaintBall(QPainter& painter, const QRectF& place, const QColor& color)
{
    QRadialGradient shade(place.center(), place.width() / 2,
                          place.topLeft() + QPointF(place.width() * 0.35, place.height() * 0.3));
    shade.setColorAt(0.0, color.lighter(165));
    shade.setColorAt(0.45, color);
    shade.setColorAt(1.0, color.darker(150));
    painter.setBrush(shade);
    painter.setPen(QPen(color.darker(190), 1.0));
    painter.drawEllipse(place);
}

} // namespace

void LotteryBalls::SetColors(const std::vector<QColor>& colors)
{
    m_colors = colors;
    updateGeometry();
    update();
}

QSize LotteryBalls::sizeHint() const
{
    constexpr int kBall = 34;
    return {kBall * static_cast<int>(m_colors.size()), kBall};
}

void LotteryBalls::paintEvent(QPaintEvent* /*event*/)
{
    if (m_colors.empty()) {
        return;
    }
    const qreal step = std::min(qreal(width()) / qreal(m_colors.size()), qreal(height()));
    const qreal gap = step * 0.08;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF place((width() - step * qreal(m_colors.size())) / 2, (height() - step) / 2, step, step);
    for (const QColor& color : m_colors) {
        PaintBall(painter, place.adjusted(gap, gap, -gap, -gap), color);
        place.translate(step, 0);
    }
}
