#include "picks/Ball.h"

#include "app/ShadedBall.h"

#include <QPainter>

#include <algorithm>

Ball::Ball(QWidget* parent) : QWidget(parent) {}

void Ball::SetColor(const QColor& color)
{
    if (m_color != color) {
        m_color = color;
        update();
    }
}

QSize Ball::sizeHint() const
{
    constexpr int kSide = 36;
    return {kSide, kSide};
}

QSize Ball::minimumSizeHint() const
{
    constexpr int kSide = 24;
    return {kSide, kSide};
}

void Ball::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_color.isValid()) {
        return;
    }
    constexpr qreal kPartOfSide = 0.8; // radius 40 on a scale of 100
    constexpr qreal kOutline = 1;
    QPainter painter(this);
    const qreal density = painter.deviceTransform().m11(); // pixels of the screen or picture painted on
    const qreal diameter = kPartOfSide * std::min(width(), height()) + kOutline;
    QImage ball = ShadedBall(diameter * density, kOutline * density, m_color, Qt::black);
    ball.setDevicePixelRatio(density);
    const QPointF corner =
        QPointF(width(), height()) * density / 2 - QPointF(ball.width(), ball.height()) / 2;
    painter.drawImage(QPointF(corner.toPoint()) / density, ball);
}
