#include "hotcold/ShufflingLabel.h"

#include "app/Animations.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStepLength = 200; ///< milliseconds
constexpr int kRounds = 5;
constexpr int kSteps = 2 * kRounds;

} // namespace

QString ShufflingWord(qint64 step)
{
    if (step < 0 || step >= kSteps) {
        return {};
    }
    return step % 2 == 0 ? u"Shuffling"_s : u"Picking"_s;
}

ShufflingLabel::ShufflingLabel(QWidget* parent) : QLabel(parent), m_stepLength(kStepLength)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ShufflingLabel::ShowWord);
}

void ShufflingLabel::Run()
{
    if (m_running) {
        return;
    }
    m_running = true;
    m_clock.start();
    if (m_stepLength > 0 && AnimationsAreWanted(*this)) {
        ShowWord();
    } else {
        Finish();
    }
}

void ShufflingLabel::Finish()
{
    if (!std::exchange(m_running, false)) {
        return;
    }
    m_timer.stop();
    clear();
    Q_EMIT Finished();
}

void ShufflingLabel::ShowWord()
{
    // How far the run has come is read from the clock, so it takes no longer on a slow machine.
    const qint64 passed = m_clock.elapsed();
    const qint64 step = passed / m_stepLength;
    const QString word = ShufflingWord(step);
    if (word.isEmpty()) {
        Finish();
        return;
    }
    setText(word);
    m_timer.start(int((step + 1) * m_stepLength - passed));
}
