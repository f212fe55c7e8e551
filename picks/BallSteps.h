#pragma once

#include <QString>

#include <array>

inline constexpr int kBalls = 6;

/// Colours of the six balls, as indexes of the sixteen console colours.
using BallColors = std::array<int, kBalls>;

/// The balls at rest.
[[nodiscard]] BallColors RestingBalls();

/// One step of the balls' way.
struct BallStep {
    BallColors colors{};
    QString word; ///< what stands beside the balls: "Shuffling" or "Picking"

    bool operator==(const BallStep&) const = default;
};

/// Steps of a whole run: six rounds of six, of which the last step stands twice as long as the others.
inline constexpr int kBallSteps = 37;

/// The look at a step 0..kBallSteps - 1; others are held to that range. Each step moves every colour one ball
/// to the right.
[[nodiscard]] BallStep BallStepAt(int step);

/// A colour's parts, 0..255.
struct BallColor {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const BallColor&) const = default;
};

/// The console colour of an index 10..15: light green, light cyan, light red, light magenta, yellow and
/// bright white; black for any other.
[[nodiscard]] BallColor ConsoleColor(int index);
