#include "app/BarChartView.h"
#include "app/DialogPrompts.h"
#include "app/MDIContainer.h"
#include "app/PagePainter.h"
#include "app/Printing.h"
#include "bench/MadeLottery.h"
#include "bench/PaintWatch.h"
#include "database/LDbase.h"
#include "database/LGraph.h"
#include "database/StatisticsChart.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPicks = 10;
constexpr int kHighest = 60;
constexpr int kRecords = 2001;

using Clock = std::chrono::steady_clock;

void AddTime(benchmark::State& state, Clock::time_point start)
{
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
}

/// The program with a full database, in the editor.
struct EditorOnScreen {
    EditorOnScreen() : window(shared, prompts, folder.path())
    {
        shared.locale = QLocale();
        prompts.SetMainWindow(&window);
        prompts.SetUnattended();
        window.AddForm(FormName::LDbase, [this](FormSwitcher& switcher, QWidget* parent) {
            return new LDbase(shared, prompts, switcher, parent);
        });
        window.AddForm(FormName::LGraph, [this](FormSwitcher& switcher, QWidget* parent) {
            return new LGraph(shared, prompts, switcher, parent);
        });
        window.Start();
        window.show();
        shared.database = MadeLottery(kRecords, kPicks, kHighest);
        window.ShowForm(FormName::LDbase);
        PaintWatch(Find<QWidget>(u"DGrid1"_s)).WaitForPaint();
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

    QTemporaryDir folder;
    LGLOBAL shared;
    DialogPrompts prompts{shared};
    MDIContainer window;
};

/// From the press of "Show Graph" in the editor to the painted chart, whose form is made for it.
void OpenGraphsFirst(benchmark::State& state)
{
    while (state.KeepRunning()) {
        EditorOnScreen program;
        auto& show = program.Find<QPushButton>(u"DGraphs"_s);

        const Clock::time_point start = Clock::now();
        show.click();
        PaintWatch(program.Find<QWidget>(u"LotoGraph"_s)).WaitForPaint();
        AddTime(state, start);
    }
}
BENCHMARK(OpenGraphsFirst)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The same with a form that was open before.
void OpenGraphsAgain(benchmark::State& state)
{
    EditorOnScreen program;
    auto& show = program.Find<QPushButton>(u"DGraphs"_s);
    show.click();
    PaintWatch painted(program.Find<QWidget>(u"LotoGraph"_s));
    painted.WaitForPaint();
    auto& exit = program.Find<QPushButton>(u"ExitGrp"_s);
    while (state.KeepRunning()) {
        exit.click();
        PaintWatch(program.Find<QWidget>(u"DGrid1"_s)).WaitForPaint();

        const Clock::time_point start = Clock::now();
        show.click();
        painted.WaitForPaint();
        AddTime(state, start);
    }
}
BENCHMARK(OpenGraphsAgain)->UseManualTime()->Unit(benchmark::kMillisecond);

/// From the press of a button that switches the view to the repainted chart.
void SwitchView(benchmark::State& state, const QString& name)
{
    EditorOnScreen program;
    program.Find<QPushButton>(u"DGraphs"_s).click();
    PaintWatch painted(program.Find<QWidget>(u"LotoGraph"_s));
    painted.WaitForPaint();
    auto& button = program.Find<QPushButton>(name);
    while (state.KeepRunning()) {
        const Clock::time_point start = Clock::now();
        button.click();
        painted.WaitForPaint();
        AddTime(state, start);
    }
}
BENCHMARK_CAPTURE(SwitchView, Order, u"ChngView"_s)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SwitchView, Count, u"GWhichCnt"_s)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SwitchView, Style, u"TwoDBut"_s)->UseManualTime()->Unit(benchmark::kMillisecond);

BarChart Chart(BarStyle style)
{
    const NumberTable counts = CountNumbers(MadeLottery(kRecords, kPicks, kHighest), CountMode::TimesDrawn);
    return StatisticsChart(counts, kHighest, {.records = kRecords, .title = u"Made"_s, .style = style});
}

constexpr std::array kSizes{QSize(623, 405), QSize(1260, 740)};

/// Finding all places anew and painting the chart, in the opening window and in a large one.
void RedrawChart(benchmark::State& state)
{
    const BarChart chart = Chart(state.range(0) == 0 ? BarStyle::Flat : BarStyle::ThreeDimensional);
    QImage picture(kSizes.at(static_cast<std::size_t>(state.range(1))), QImage::Format_ARGB32_Premultiplied);
    BarChartView view;
    view.resize(picture.size());
    for ([[maybe_unused]] auto round : state) {
        view.SetChart(chart);
        view.render(&picture);
    }
}
BENCHMARK(RedrawChart)
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->ArgNames({"blocks", "large"})
    ->Unit(benchmark::kMillisecond);

/// As many filled rectangles and texts in rows, without any thought.
void PaintPlainBoxes(benchmark::State& state)
{
    const BarChart chart = Chart(BarStyle::Flat);
    QImage picture(kSizes.at(static_cast<std::size_t>(state.range(0))), QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] auto round : state) {
        QPainter painter(&picture);
        painter.fillRect(picture.rect(), Qt::white);
        const int slot = picture.width() / kHighest;
        for (int i = 0; i < kHighest; ++i) {
            const ChartBar& bar = chart.bars.at(static_cast<std::size_t>(i));
            painter.fillRect(i * slot, 40, slot / 2, picture.height() - 80, Qt::blue);
            painter.drawText(i * slot, picture.height() - 20, bar.label);
            painter.drawText(i * slot, 30, QString::number(bar.value));
        }
    }
}
BENCHMARK(PaintPlainBoxes)->Arg(0)->Arg(1)->ArgName("large")->Unit(benchmark::kMillisecond);

void PrintChartToPdf(benchmark::State& state)
{
    BarChart chart = Chart(BarStyle::ThreeDimensional);
    chart.ink = state.range(0) == 0 ? ChartInk::BlackAndWhite : ChartInk::Color;
    for ([[maybe_unused]] auto round : state) {
        QByteArray pdf;
        if (!MakePdf(ChartDocument(chart), QPageSize(QPageSize::A4), pdf).ok) {
            state.SkipWithError("no PDF was made");
        }
        state.counters["bytes"] = double(pdf.size());
    }
}
BENCHMARK(PrintChartToPdf)->Arg(0)->Arg(1)->ArgName("color")->Unit(benchmark::kMillisecond);

} // namespace
