#include "app/LongWork.h"

#include "app/InputEvents.h"

#include <QApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSilence = 500; // milliseconds; what is done by then needs no word
constexpr int kRefresh = 50;

const QString kProgress = u"Progress"_s;

/// Drops whatever the user does as long as it lives: what is clicked while the program waits must not be done
/// when it goes on, and no window is closed under the work.
///
/// A dialog that opens meanwhile is left alone. Something that was on its way already can bring one, as an
/// access key whose button takes a moment; the wait cannot end before it is answered.
class NoInput : public QObject
{
public:
    NoInput() : m_below(QApplication::activeModalWidget()) { qApp->installEventFilter(this); }

    [[nodiscard]] bool DialogHasOpened() const
    {
        const QWidget* modal = QApplication::activeModalWidget();
        return modal != nullptr && modal != m_below && modal->objectName() != kProgress;
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (DialogHasOpened()) {
            return false;
        }
        if (event->type() == QEvent::Close) {
            event->ignore();
            return true;
        }
        return IsInput(event->type());
    }

private:
    const QWidget* m_below; ///< the dialog that the work is done for; compared, never used
};

void SetUp(QProgressDialog& progress)
{
    progress.setObjectName(kProgress);
    progress.setWindowTitle(u"Quillaby System"_s);
    progress.setCancelButton(nullptr);
    progress.setWindowModality(Qt::WindowModal);
    progress.setAutoClose(false);
    progress.setAutoReset(false);
}

} // namespace

Outcome RunLongWork(QWidget* window, const QString& text, int steps,
                    const std::function<Outcome(const StepsDone&)>& work)
{
    Outcome outcome;
    std::atomic<int> done = 0;
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { outcome = work([&done](int stepsDone) { done = stepsDone; }); }));
    QEventLoop waiting;
    QObject::connect(thread.get(), &QThread::finished, &waiting, &QEventLoop::quit);
    thread->start();
    if (!thread->isRunning() && !thread->isFinished()) { // the system has no room for another thread
        return RunWorkHere(window, text, steps, work);
    }

    const NoInput noInput;
    QTimer refresh;
    std::unique_ptr<QProgressDialog> progress; // made only if the work takes long
    const auto showProgress = [&] {
        if (progress == nullptr && !noInput.DialogHasOpened()) { // it would lie over that dialog and block it
            progress = std::make_unique<QProgressDialog>(text, QString(), 0, steps, window);
            SetUp(*progress);
            progress->setMinimumDuration(24 * 60 * 60 * 1000); // it is shown here, not by its own guess
            progress->setValue(done);
            progress->show();
        } else if (progress != nullptr) {
            progress->setValue(done);
        }
    };
    QObject::connect(&refresh, &QTimer::timeout, &waiting, showProgress);
    QTimer::singleShot(kSilence, &waiting, [&] {
        showProgress();
        refresh.start(kRefresh);
    });
    waiting.exec();
    thread->wait(); // the loop also ends when the program is told to
    return outcome;
}

Outcome RunWorkHere(QWidget* window, const QString& text, int steps,
                    const std::function<Outcome(const StepsDone&)>& work)
{
    const NoInput noInput;
    QProgressDialog progress(text, QString(), 0, steps, window);
    SetUp(progress);
    progress.setMinimumDuration(kSilence);
    return work([&progress](int done) { progress.setValue(done); });
}
