#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

/// The word of a step, counted from 0: "Shuffling" and "Picking" in turn, five times over; "" before and
/// after.
[[nodiscard]] QString ShufflingWord(qint64 step);

/// The line that says "Shuffling" and "Picking" in turn while sets are made, and nothing at other times.
///
/// A timer changes its word: the window stays painted, and between two words the processor has nothing to do.
class ShufflingLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ShufflingLabel(QWidget* parent = nullptr);

    /// Says the two words five times over; a run that is under way goes on. Where the desktop is set to show
    /// no animations, or a word has no time, the run is finished at once.
    void Run();

    /// Ends a run at once, as if its time were over.
    void Finish();

    [[nodiscard]] bool IsRunning() const { return m_running; }

    /// How long a word stands, in milliseconds; a fifth of a second if not set. Tests take less.
    void SetStepLength(int milliseconds) { m_stepLength = milliseconds; }
    [[nodiscard]] int StepLength() const { return m_stepLength; }

Q_SIGNALS:
    /// The run is over and the line is empty.
    void Finished();

private:
    void ShowWord();

    QTimer m_timer;
    QElapsedTimer m_clock;
    int m_stepLength;
    bool m_running = false;
};
