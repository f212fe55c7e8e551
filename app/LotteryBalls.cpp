#include "app/LotteryBalls.h"

#include "app/ShadedBall.h"

#include <QPainter>

#include <algorithm>

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
    constexpr qreal kRimWidth = 1;
    const qreal step = std::min(qreal(width()) / qreal(m_colors.size()), qreal(height()));
    const qreal diameter = step * 0.84 + kRimWidth;
    QPainter painter(this);
    const qreal density = painter.deviceTransform().m11(); // pixels of the screen or picture painted on
    QPointF middle((width() - step * qreal(m_colors.size() - 1)) / 2, height() / 2.0);
    for (const QColor& color : m_colors) {
        QImage ball = ShadedBall(diameter * density, kRimWidth * density, color, color.darker(190));
        ball.setDevicePixelRatio(density);
        const QPointF corner = middle * density - QPointF(ball.width(), ball.height()) / 2;
        painter.drawImage(QPointF(corner.toPoint()) / density, ball);
        middle.rx() += step;
    }
}
