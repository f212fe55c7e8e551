#include "app/DialogPrompts.h"
#include "app/MDIContainer.h"
#include "bench/MadeLottery.h"
#include "bench/PaintWatch.h"
#include "picks/LCheckWin.h"

#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPicks = 10;
constexpr int kHighest = 60;

template <typename Widget>
Widget& Find(QWidget& form, const QString& name)
{
    auto* widget = form.findChild<Widget*>(name);
    if (widget == nullptr) {
        throw std::runtime_error("no widget " + name.toStdString());
    }
    return *widget;
}

/// From the press of "Check Numbers" to the painted grid. Every draw holds the number that is asked for, so
/// all of them are found.
void CheckWinners(benchmark::State& state)
{
    const QTemporaryDir folder;
    LGLOBAL shared;
    shared.locale = QLocale();
    DialogPrompts prompts(shared);
    MDIContainer window(shared, prompts, folder.path());
    prompts.SetMainWindow(&window);
    prompts.SetUnattended();
    window.AddForm(FormName::LCheckWin, [&](FormSwitcher& switcher, QWidget* parent) {
        return new LCheckWin(shared, prompts, switcher, parent);
    });
    window.Start();
    window.show();
    shared.database = MadeLottery(static_cast<int>(state.range(0)), kPicks, kHighest);
    std::for_each(shared.database.records.begin() + 1, shared.database.records.end(),
                  [](DrawRecord& record) { record.drawn.front() = 1; });
    window.ShowForm(FormName::LCheckWin);
    PaintWatch painted(*Find<QTableView>(window, u"CGrid"_s).viewport());
    painted.WaitForPaint();

    Find<InputBox>(window, u"MatchNum"_s).setText(u"1"_s);
    Find<InputBox>(window, u"CInYourNum0"_s).setText(u"1"_s);
    auto& check = Find<QPushButton>(window, u"CCalc"_s);
    auto& clear = Find<QPushButton>(window, u"CClearAll"_s);
    const QAbstractItemModel& found = *Find<QTableView>(window, u"CGrid"_s).model();
    while (state.KeepRunning()) {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point start = Clock::now();
        check.click();
        painted.WaitForPaint();
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        if (found.index(static_cast<int>(state.range(0)) - 1, 0).data().toString().trimmed() != u"1"_s) {
            state.SkipWithError("not all draws were found");
        }
        clear.click();
        painted.WaitForPaint();
        Find<InputBox>(window, u"CInYourNum0"_s).setText(u"1"_s);
    }
}
BENCHMARK(CheckWinners)
    ->Arg(10)
    ->Arg(100)
    ->Arg(500)
    ->Arg(1000)
    ->Arg(2001)
    ->ArgName("records")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
