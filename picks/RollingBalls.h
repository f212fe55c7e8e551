#pragma once

#include "picks/Ball.h"
#include "picks/BallSteps.h"

#include <QElapsedTimer>
#include <QTimer>

#include <array>

/// The row of six balls, Balls0 .. Balls5, whose colours roll to the right while a calculation is shown.
///
/// The run is driven by a timer: the window stays painted, and between its steps the processor has nothing to
/// do. How far it has come is read from the clock, so it takes as long as it should on a slow machine too.
class RollingBalls : public QWidget
{
    Q_OBJECT

public:
    explicit RollingBalls(QWidget* parent = nullptr);

    /// Shows the balls in their resting colours.
    void StartColor();

    /// Begins a run; one that is under way goes on. Where the desktop is set to show no animations, or a step
    /// has no length, it is finished at once.
    void Run();

    /// Ends a run at once, as if its time were over.
    void Finish();

    [[nodiscard]] bool IsRunning() const { return m_running; }

    /// How long a step of the run takes if it is not set, in milliseconds.
    static constexpr int kStepLength = 100;

    /// Sets how long a step takes, in milliseconds. Tests take less.
    void SetStepLength(int milliseconds) { m_stepLength = milliseconds; }
    [[nodiscard]] int StepLength() const { return m_stepLength; }

Q_SIGNALS:
    /// The word to show beside the balls has changed.
    void WordChanged(const QString& word);
    /// The run is over and the balls are at rest.
    void Finished();

private:
    void ShowMoment();
    void ShowColors(const BallColors& before, const BallColors& now, double faded);

    std::array<Ball*, kBalls> m_balls{};
    QTimer m_timer;
    QElapsedTimer m_clock;
    QString m_word;
    int m_stepLength = kStepLength;
    bool m_running = false;
};
