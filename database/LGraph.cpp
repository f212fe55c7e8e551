#include "database/LGraph.h"

#include "app/DatabaseFacts.h"
#include "app/Printing.h"
#include "app/SharedStatistics.h"
#include "database/StatisticsChart.h"
#include "ui_LGraph.h"

#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 kHighestFirst = 0;

const QString kToSorted = u"&Show Sorted"_s;
const QString kToUnsorted = u"&Show Unsorted"_s;
const QString kToSinceLastDrawn = u"Since &Last Drawn"_s;
const QString kToTimesDrawn = u"Times &Drawn"_s;
const QString kToThreeD = u"&ThreeD Graph"_s;
const QString kToTwoD = u"&TwoD Graph"_s;

/// The button is wide enough for each of its captions, whatever the letters.
void KeepRoomFor(QPushButton& button, const QStringList& captions)
{
    for (const QString& caption : captions) {
        button.setText(caption);
        button.setMinimumWidth(std::max(button.minimumWidth(), button.minimumSizeHint().width()));
    }
}

} // namespace

LGraph::LGraph(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_ui(std::make_unique<Ui::LGraph>())
{
    m_ui->setupUi(this);
    KeepRoomFor(*m_ui->GWhichCnt, {kToSinceLastDrawn, kToTimesDrawn});
    KeepRoomFor(*m_ui->ChngView, {kToSorted, kToUnsorted});
    KeepRoomFor(*m_ui->TwoDBut, {kToThreeD, kToTwoD});
    Events().OnClick(m_ui->GWhichCnt, [this] { SwitchCount(); });
    Events().OnClick(m_ui->ChngView, [this] { SwitchOrder(); });
    Events().OnClick(m_ui->TwoDBut, [this] { SwitchStyle(); });
    Events().OnClick(m_ui->Printer3, [this] { Print(); });
    Events().OnClick(m_ui->ExitGrp, [this] { Exit(); });
}

LGraph::~LGraph() = default;

void LGraph::Load()
{
    LGLOBAL& shared = Shared();
    Switcher().SetCaption(windowTitle());
    m_ui->GWhichCnt->setText(kToSinceLastDrawn);
    m_ui->ChngView->setText(kToSorted);
    m_ui->TwoDBut->setText(kToThreeD);
    shared.WhichCnt = CountMode::TimesDrawn;
    ComputeNumberStats(shared);
    // In number order without sorting; the sort mode is set by the buttons alone.
    shared.sortedNumberStats = SortNumbers(shared.NumberStats, shared.database.Shape().highest, kNumberOrder);
    Redraw();
    m_ui->GWhichCnt->setFocus();
}

bool LGraph::ShowsNumberOrder() const
{
    return m_ui->ChngView->text() == kToSorted;
}

bool LGraph::ShowsFlatBars() const
{
    return m_ui->TwoDBut->text() == kToThreeD;
}

void LGraph::SwitchOrder()
{
    const bool toNumberOrder = !ShowsNumberOrder();
    m_ui->ChngView->setText(toNumberOrder ? kToSorted : kToUnsorted);
    Shared().sortMode = toNumberOrder ? kNumberOrder : kHighestFirst;
    SortNumberStats(Shared());
    Redraw();
}

void LGraph::SwitchCount()
{
    LGLOBAL& shared = Shared();
    const bool toSinceLastDrawn = m_ui->GWhichCnt->text() == kToSinceLastDrawn;
    m_ui->GWhichCnt->setText(toSinceLastDrawn ? kToTimesDrawn : kToSinceLastDrawn);
    shared.WhichCnt = toSinceLastDrawn ? CountMode::SinceLastDrawn : CountMode::TimesDrawn;
    ComputeNumberStats(shared);
    shared.sortMode = ShowsNumberOrder() ? kNumberOrder : kHighestFirst;
    SortNumberStats(shared);
    Redraw();
}

void LGraph::SwitchStyle()
{
    m_ui->TwoDBut->setText(ShowsFlatBars() ? kToTwoD : kToThreeD);
    Redraw();
}

BarChart LGraph::Chart() const
{
    const LGLOBAL& shared = Shared();
    return StatisticsChart(shared.sortedNumberStats, shared.database.Shape().highest,
                           {.counted = shared.WhichCnt,
                            .records = shared.database.count,
                            .title = ShownTitle(shared.database),
                            .style = ShowsFlatBars() ? BarStyle::Flat : BarStyle::ThreeDimensional});
}

void LGraph::Redraw()
{
    m_ui->LotoGraph->SetChart(Chart());
}

void LGraph::Print()
{
    PrintChartOnRequest(Shared(), Asking(), m_ui->LotoGraph->Chart());
}

void LGraph::Exit()
{
    Shared().sortMode = kHighestFirst; // the editor and others expect the highest value first
    if (Shared().graphCaller == kGraphFromEditor) {
        Switcher().SetCaption(u" View and Edit Database Records"_s);
        Switcher().ShowForm(FormName::LDbase);
    } else {
        Switcher().SetCaption(u" Quillaby Menu"_s);
        Switcher().ShowForm(FormName::LotoMenu);
    }
}
