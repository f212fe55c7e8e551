#include "app/ShadedBall.h"

#include <algorithm>
#include <cmath>

namespace {

struct Shade {
    double red = 0;
    double green = 0;
    double blue = 0;
};

Shade ShadeOf(const QColor& color)
{
    return {color.redF(), color.greenF(), color.blueF()};
}

Shade Between(const Shade& from, const Shade& to, double part)
{
    return {std::lerp(from.red, to.red, part), std::lerp(from.green, to.green, part),
            std::lerp(from.blue, to.blue, part)};
}

QRgb Pixel(const Shade& shade, double opacity)
{
    const auto byte = [opacity](double part) { return static_cast<int>(std::lround(part * opacity * 255)); };
    return qRgba(byte(shade.red), byte(shade.green), byte(shade.blue), byte(1));
}

} // namespace

QImage ShadedBall(qreal diameter, qreal rimWidth, const QColor& color, const QColor& rimColor)
{
    // The pixels are computed here: QPainter hands a shape with smooth edges to threads, and to start and
    // wake them takes longer than all the balls, at every start of the program.
    const Shade lit = ShadeOf(color.lighter(165));
    const Shade full = ShadeOf(color);
    const Shade dark = ShadeOf(color.darker(150));
    const Shade rim = ShadeOf(rimColor);
    constexpr double kFullFrom = 0.45;

    const int size = std::max(1, static_cast<int>(std::ceil(diameter)));
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    const double radius = (diameter - rimWidth) / 2; // of the middle of the rim
    const double lightX = -0.3 * radius;             // of the lightest place, from the middle of the ball
    const double lightY = -0.4 * radius;
    const double reach = radius * radius - lightX * lightX - lightY * lightY;
    for (int row = 0; row < size; ++row) {
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(row));
        const double y = row + 0.5 - size / 2.0;
        for (int column = 0; column < size; ++column) {
            const double x = column + 0.5 - size / 2.0;
            // 0 at the lightest place and 1 at the rim; the middles of the circles between lie on a line.
            const double along = lightX * (x - lightX) + lightY * (y - lightY);
            const double away = (x - lightX) * (x - lightX) + (y - lightY) * (y - lightY);
            const double depth =
                std::clamp((std::sqrt(along * along + reach * away) + along) / reach, 0.0, 1.0);
            const Shade inside = depth < kFullFrom
                                     ? Between(lit, full, depth / kFullFrom)
                                     : Between(full, dark, (depth - kFullFrom) / (1 - kFullFrom));
            const double fromMiddle = std::sqrt(x * x + y * y);
            const double onRim = std::clamp(fromMiddle - radius + rimWidth / 2 + 0.5, 0.0, 1.0);
            const double opacity = std::clamp(diameter / 2 - fromMiddle + 0.5, 0.0, 1.0);
            pixels[column] = Pixel(Between(inside, rim, onRim), opacity);
        }
    }
    return picture;
}
