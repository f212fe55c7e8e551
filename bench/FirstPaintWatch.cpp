// Loaded into a program by start_time.py (LD_PRELOAD), so that the program itself carries no code that
// measures: says on the standard output when the first window was painted, and ends the program there.

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QMetaObject>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

/// The largest part of the program that was in memory at once, in KiB.
long PeakMemory()
{
    long peak = 0;
    if (std::FILE* status = std::fopen("/proc/self/status", "r")) {
        std::array<char, 256> line;
        while (std::fgets(line.data(), static_cast<int>(line.size()), status) != nullptr) {
            if (std::sscanf(line.data(), "VmHWM: %ld", &peak) == 1) {
                break;
            }
        }
        std::fclose(status);
    }
    return peak;
}

void Tell()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("%lld %ld\n",
                static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()),
                PeakMemory());
    std::fflush(stdout);
    std::_Exit(0);
}

/// True for the window's first part, whichever it is; or, when FIRST_PAINT_OF names a grid, for that grid
/// alone.
bool IsWaitedFor(const QObject* painted)
{
    static const QString wanted = qEnvironmentVariable("FIRST_PAINT_OF");
    return wanted.isEmpty() || (painted->parent() != nullptr && painted->parent()->objectName() == wanted);
}

class FirstPaintWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_seen && IsWaitedFor(watched)) {
            m_seen = true;
            // The whole window is painted and handed over within the event that paints its first part.
            QMetaObject::invokeMethod(this, &Tell, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_seen = false;
};

void StartWatching()
{
    static FirstPaintWatch watch;
    QCoreApplication::instance()->installEventFilter(&watch);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(StartWatching)
