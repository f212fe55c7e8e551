#pragma once

#include <QColor>
#include <QImage>

/// A ball lit from the upper left with a rim, in pixels, in the middle of a picture it just fits in.
[[nodiscard]] QImage ShadedBall(qreal diameter, qreal rimWidth, const QColor& color, const QColor& rimColor);
