#include "picks/RollingBalls.h"

#include "app/Animations.h"

#include <QHBoxLayout>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Pixels of a side; the ball itself is 40 across. Each picture of a ball costs by its area, so in a large
/// window the run would take many times the processor's time that it takes in a small one.
constexpr int kLargestBall = 50;

constexpr double kFadeOfStep = 0.4; ///< the part of a step in which one colour becomes the next
constexpr int kMomentLength = 16;   ///< milliseconds from one picture to the next while colours change

QColor Between(const BallColor& from, const BallColor& to, double part)
{
    const auto mixed = [part](int a, int b) { return static_cast<int>(std::lround(std::lerp(a, b, part))); };
    return {mixed(from.red, to.red), mixed(from.green, to.green), mixed(from.blue, to.blue)};
}

} // namespace

RollingBalls::RollingBalls(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t i = 0; i < m_balls.size(); ++i) {
        m_balls.at(i) = new Ball(this);
        m_balls.at(i)->setObjectName(u"Balls%1"_s.arg(i));
        m_balls.at(i)->setMaximumSize(kLargestBall, kLargestBall);
        row->addWidget(m_balls.at(i));
    }
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &RollingBalls::ShowMoment);
    StartColor();
}

void RollingBalls::StartColor()
{
    ShowColors(RestingBalls(), RestingBalls(), 1);
}

void RollingBalls::Run()
{
    if (m_running) {
        return;
    }
    m_running = true;
    m_clock.start();
    if (m_stepLength > 0 && AnimationsAreWanted(*this)) {
        ShowMoment();
    } else {
        Finish();
    }
}

void RollingBalls::Finish()
{
    if (!std::exchange(m_running, false)) {
        return;
    }
    m_timer.stop();
    m_word.clear();
    StartColor();
    Q_EMIT Finished();
}

void RollingBalls::ShowMoment()
{
    const double passed = double(m_clock.elapsed()) / m_stepLength;
    const int step = static_cast<int>(passed);
    if (step >= kBallSteps) {
        Finish();
        return;
    }
    const BallStep look = BallStepAt(step);
    const BallColors before = step == 0 ? look.colors : BallStepAt(step - 1).colors;
    const double faded = (passed - step) / kFadeOfStep;
    ShowColors(before, look.colors, std::min(faded, 1.0));

    const int toNextStep = std::max(1, static_cast<int>(std::ceil((step + 1 - passed) * m_stepLength)));
    const bool still = faded >= 1 || before == look.colors;
    m_timer.start(still ? toNextStep : std::min(kMomentLength, toNextStep));
    if (std::exchange(m_word, look.word) != look.word) {
        Q_EMIT WordChanged(look.word);
    }
}

void RollingBalls::ShowColors(const BallColors& before, const BallColors& now, double faded)
{
    for (std::size_t i = 0; i < m_balls.size(); ++i) {
        m_balls.at(i)->SetColor(Between(ConsoleColor(before.at(i)), ConsoleColor(now.at(i)), faded));
    }
}
