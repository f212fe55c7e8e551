#include "app/DialogPrompts.h"
#include "app/MDIContainer.h"
#include "app/SafeFile.h"
#include "bench/MadeLottery.h"
#include "bench/PaintWatch.h"
#include "database/LDbase.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <chrono>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPicks = 6;
constexpr int kHighest = 49;

/// The program as main.cpp puts it together, with the menu on the screen.
struct RunningProgram {
    explicit RunningProgram(const QString& folder) : window(shared, prompts, folder)
    {
        shared.locale = QLocale();
        prompts.SetMainWindow(&window);
        prompts.SetUnattended();
        window.AddForm(FormName::LDbase, [this](FormSwitcher& switcher, QWidget* parent) {
            return new LDbase(shared, prompts, switcher, parent);
        });
        window.Start();
        PaintWatch menu(window.Menu());
        window.show();
        menu.WaitForPaint();
    }

    template <typename Widget>
    Widget& Find(const QString& name)
    {
        auto* widget = window.findChild<Widget*>(name);
        if (widget == nullptr) {
            throw std::runtime_error("no widget " + name.toStdString());
        }
        return *widget;
    }

    LGLOBAL shared;
    DialogPrompts prompts{shared};
    MDIContainer window;
};

/// A folder with the lottery file of as many records as the benchmark asks for.
struct LotteryFolder {
    explicit LotteryFolder(const benchmark::State& state)
    {
        const QByteArray bytes = MadeLotteryFile(static_cast<int>(state.range(0)), kPicks, kHighest);
        if (!SaveFileBytes(path, bytes).ok) {
            throw std::runtime_error("the lottery file was not made");
        }
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Made.Lto"_s);
};

using Clock = std::chrono::steady_clock;

void AddTime(benchmark::State& state, Clock::time_point start)
{
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
}

/// A grid alone in a window of the same size, each number copied into an item of its own.
void ShowPlainGrid(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(static_cast<int>(state.range(0)), kPicks, kHighest);
    while (state.KeepRunning()) {
        QMainWindow window;
        window.resize(641, 458);
        window.show();
        QCoreApplication::processEvents();

        const Clock::time_point start = Clock::now();
        QStandardItemModel model(database.count, kPicks + 2);
        for (int row = 0; row < database.count; ++row) {
            const DrawRecord& record = database.records.at(static_cast<std::size_t>(database.count - row));
            model.setItem(row, 0, new QStandardItem(CellText(record.number)));
            model.setItem(row, 1, new QStandardItem(CellText(record.date)));
            for (int pick = 0; pick < kPicks; ++pick) {
                model.setItem(row, pick + 2,
                              new QStandardItem(CellText(record.drawn.at(static_cast<std::size_t>(pick)))));
            }
        }
        auto* grid = new QTableView;
        grid->setModel(&model);
        PaintWatch painted(*grid->viewport());
        window.setCentralWidget(grid);
        painted.WaitForPaint();
        AddTime(state, start);
    }
}
BENCHMARK(ShowPlainGrid)
    ->Arg(200)
    ->Arg(2000)
    ->ArgName("records")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// From the name of the file to the painted editor, which is made for it.
void OpenFileFirst(benchmark::State& state)
{
    const LotteryFolder lottery(state);
    while (state.KeepRunning()) {
        RunningProgram program(lottery.folder.path());

        const Clock::time_point start = Clock::now();
        program.window.Menu().OpenNamedFile(lottery.path);
        PaintWatch painted(*program.Find<QTableView>(u"DGrid1"_s).viewport());
        painted.WaitForPaint();
        AddTime(state, start);
        if (program.shared.database.count != state.range(0)) {
            state.SkipWithError("the file was not read");
        }
    }
}
BENCHMARK(OpenFileFirst)
    ->Arg(200)
    ->Arg(2000)
    ->ArgName("records")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// The same with an editor that was open before.
void OpenFileAgain(benchmark::State& state)
{
    const LotteryFolder lottery(state);
    RunningProgram program(lottery.folder.path());
    program.window.Menu().OpenNamedFile(lottery.path);
    PaintWatch painted(*program.Find<QTableView>(u"DGrid1"_s).viewport());
    painted.WaitForPaint();
    PaintWatch menuPainted(program.window.Menu());
    while (state.KeepRunning()) {
        program.window.ShowForm(FormName::LotoMenu);
        menuPainted.WaitForPaint();

        const Clock::time_point start = Clock::now();
        program.window.Menu().OpenNamedFile(lottery.path);
        painted.WaitForPaint();
        AddTime(state, start);
    }
}
BENCHMARK(OpenFileAgain)
    ->Arg(200)
    ->Arg(2000)
    ->ArgName("records")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// From the press of "Add Record", with a draw typed in, to the repainted editor. The records are one fewer
/// than named before it.
void AddRecord(benchmark::State& state)
{
    const LotteryFolder lottery(state);
    RunningProgram program(lottery.folder.path());
    program.window.Menu().OpenNamedFile(lottery.path);
    PaintWatch painted(*program.Find<QTableView>(u"DGrid1"_s).viewport());
    painted.WaitForPaint();
    auto& add = program.Find<QPushButton>(u"DCalc"_s);
    while (state.KeepRunning()) {
        --program.shared.database.count;
        program.window.ShowForm(FormName::LDbase);
        for (int pick = 0; pick < kPicks; ++pick) {
            program.Find<InputBox>(u"DYourNumIn%1"_s.arg(pick)).setText(QString::number(pick * 8 + 1));
        }
        painted.WaitForPaint();

        const Clock::time_point start = Clock::now();
        add.click();
        painted.WaitForPaint();
        AddTime(state, start);
        if (program.shared.database.count != state.range(0)) {
            state.SkipWithError("the record was not added");
        }
    }
}
BENCHMARK(AddRecord)->Arg(200)->Arg(2000)->ArgName("records")->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
