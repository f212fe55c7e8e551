#include "app/DialogPrompts.h"
#include "app/MDIContainer.h"
#include "app/SafeFile.h"
#include "bench/MadeLottery.h"
#include "bench/PaintWatch.h"
#include "database/LDbase.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
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

/// From what one types in an evening to the limit.
void Grow(benchmark::internal::Benchmark* one)
{
    for (const int records : {10, 100, 500, 1000, 2001}) {
        one->Arg(records);
    }
    one->ArgName("records")->UseManualTime()->Unit(benchmark::kMillisecond);
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
BENCHMARK(ShowPlainGrid)->Apply(Grow);

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
BENCHMARK(OpenFileFirst)->Apply(Grow);

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
BENCHMARK(OpenFileAgain)->Apply(Grow);

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
BENCHMARK(AddRecord)->Apply(Grow);

/// The editor on made-up records, and the record dialog answered as a user answers it.
struct EditorOnRecords {
    explicit EditorOnRecords(const benchmark::State& state)
        : whole(MadeLottery(static_cast<int>(state.range(0)), kPicks, kHighest)), program(folder.path())
    {
        ShowWhole();
    }

    /// All records are there again.
    void ShowWhole()
    {
        program.shared.database = whole;
        program.window.ShowForm(FormName::LDbase);
        if (!painted) {
            painted = std::make_unique<PaintWatch>(*program.Find<QTableView>(u"DGrid1"_s).viewport());
        }
        painted->WaitForPaint();
    }

    /// "Correct Record", the option of that index, that record, and Accept.
    /// @return when Accept was pressed
    Clock::time_point Choose(int option, int record)
    {
        Clock::time_point pressed;
        QTimer::singleShot(0, &program.window, [&] {
            const QWidget* dialog = QApplication::activeModalWidget();
            dialog->findChild<QRadioButton*>(u"CorInsDel%1"_s.arg(option))->click();
            if (auto* box = dialog->findChild<QLineEdit*>(u"CurVal"_s); box->isEnabled()) {
                box->setText(QString::number(record));
            }
            auto* accept = dialog->findChild<QPushButton*>(u"Accept"_s);
            painted->Forget();
            pressed = Clock::now();
            accept->click();
        });
        program.Find<QPushButton>(u"DCorrectRec"_s).click();
        return pressed;
    }

    QTemporaryDir folder;
    DrawDatabase whole;
    RunningProgram program;
    std::unique_ptr<PaintWatch> painted;
};

/// From Accept in the record dialog to the repainted editor without the record, the one in the middle.
void DeleteRecordInEditor(benchmark::State& state)
{
    EditorOnRecords editor(state);
    while (state.KeepRunning()) {
        editor.ShowWhole();
        const Clock::time_point start = editor.Choose(2, editor.whole.count / 2);
        editor.painted->WaitForPaint();
        AddTime(state, start);
        if (editor.program.shared.database.count != editor.whole.count - 1) {
            state.SkipWithError("the record was not deleted");
        }
    }
}
BENCHMARK(DeleteRecordInEditor)->Apply(Grow);

/// From Accept in the record dialog to the repainted editor. The records stand from the last to the first.
void SortRecordsInEditor(benchmark::State& state)
{
    EditorOnRecords editor(state);
    std::reverse(editor.whole.records.begin() + 1, editor.whole.records.begin() + 1 + editor.whole.count);
    while (state.KeepRunning()) {
        editor.ShowWhole();
        const Clock::time_point start = editor.Choose(3, 0);
        editor.painted->WaitForPaint();
        AddTime(state, start);
        if (editor.program.shared.database.records.at(1) == editor.whole.records.at(1)) {
            state.SkipWithError("the records were not sorted");
        }
    }
}
BENCHMARK(SortRecordsInEditor)->Apply(Grow);

/// From the press of "Add Record" under a correction to the repainted editor.
void CorrectRecordInEditor(benchmark::State& state)
{
    EditorOnRecords editor(state);
    auto& number = editor.program.Find<InputBox>(u"DYourNumIn0"_s);
    auto& add = editor.program.Find<QPushButton>(u"DCalc"_s);
    auto& duplicates = editor.program.Find<QCheckBox>(u"Duponoff"_s);
    const int record = editor.whole.count / 2;
    while (state.KeepRunning()) {
        editor.ShowWhole();
        duplicates.click();
        editor.Choose(0, record);
        number.setText(u"49"_s);
        QCoreApplication::processEvents();

        editor.painted->Forget();
        const Clock::time_point start = Clock::now();
        add.click();
        editor.painted->WaitForPaint();
        AddTime(state, start);
        if (!CellHolds(
                editor.program.shared.database.records.at(static_cast<std::size_t>(record)).drawn.front(),
                kHighest)) {
            state.SkipWithError("the record was not corrected");
        }
    }
}
BENCHMARK(CorrectRecordInEditor)->Apply(Grow);

} // namespace
