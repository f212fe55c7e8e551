#include "app/LongWork.h"

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

void SetUp(QProgressDialog& progress)
{
    progress.setObjectName(u"Progress"_s);
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

    QTimer refresh;
    std::unique_ptr<QProgressDialog> progress; // made only if the work takes long
    QTimer::singleShot(kSilence, &waiting, [&] {
        progress = std::make_unique<QProgressDialog>(text, QString(), 0, steps, window);
        SetUp(*progress);
        progress->setMinimumDuration(24 * 60 * 60 * 1000); // it is shown here, not by its own guess
        progress->setValue(done);
        progress->show();
        QObject::connect(&refresh, &QTimer::timeout, progress.get(), [&] { progress->setValue(done); });
        refresh.start(kRefresh);
    });
    thread->start();
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    thread->wait(); // the loop also ends when the program is told to
    return outcome;
}

Outcome RunWorkHere(QWidget* window, const QString& text, int steps,
                    const std::function<Outcome(const StepsDone&)>& work)
{
    QProgressDialog progress(text, QString(), 0, steps, window);
    SetUp(progress);
    progress.setMinimumDuration(kSilence);
    return work([&progress](int done) { progress.setValue(done); });
}
