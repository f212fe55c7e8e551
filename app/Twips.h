#pragma once

#include <QtMath>

/// Distances between windows and forms are given in twips: 1/1440 inch at the screen's logical density.
[[nodiscard]] inline int TwipsToPixels(int twips, int dotsPerInch)
{
    constexpr double kTwipsPerInch = 1440.0;
    return qRound(twips * dotsPerInch / kTwipsPerInch);
}

[[nodiscard]] inline int PixelsToTwips(int pixels, int dotsPerInch)
{
    constexpr double kTwipsPerInch = 1440.0;
    return qRound(pixels * kTwipsPerInch / dotsPerInch);
}
