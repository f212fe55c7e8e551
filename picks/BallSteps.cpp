#include "picks/BallSteps.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStepsInRound = 6;
constexpr int kShufflingSteps = 3; ///< of a round; the others are picking

} // namespace

BallColors RestingBalls()
{
    return {12, 14, 11, 10, 15, 13};
}

BallStep BallStepAt(int step)
{
    const int place = std::clamp(step, 0, kBallSteps - 2) % kStepsInRound; // the last step is shown once more
    BallStep look{RestingBalls(), place < kShufflingSteps ? u"Shuffling"_s : u"Picking"_s};
    std::rotate(look.colors.begin(), look.colors.end() - place, look.colors.end());
    return look;
}

BallColor ConsoleColor(int index)
{
    switch (index) {
    case 10:
        return {0, 255, 0};
    case 11:
        return {0, 255, 255};
    case 12:
        return {255, 0, 0};
    case 13:
        return {255, 0, 255};
    case 14:
        return {255, 255, 0};
    case 15:
        return {255, 255, 255};
    default:
        return {};
    }
}
