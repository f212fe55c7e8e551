#include "hotcold/LHotCold.h"

#include "app/Printing.h"
#include "app/TextPictures.h"
#include "app/ToolTips.h"
#include "app/WrappedLabel.h"
#include "hotcold/HcdChart.h"
#include "hotcold/HcdHelp.h"
#include "hotcold/PrintHcdSets.h"
#include "ui_LHotCold.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNotEnoughData = 7;
constexpr int kFromOneToTen = 27;
constexpr int kNoRecords = 31;
constexpr int kLastDrawsOutOfRange = 49;
constexpr int kCountsDoNotFit = 50;
constexpr int kTooFewNumbers = 51;

constexpr int kGridRows = 10;

QString SetsText(int sets)
{
    return RightJustify(Format(sets, u"##"), 2);
}

QString DrawsText(double draws)
{
    return RightJustify(Format(draws, u"####"), 4);
}

} // namespace

LHotCold::LHotCold(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_ui(std::make_unique<Ui::LHotCold>()),
      m_pause(*this, prompts, [this] { m_ui->ShuffleStatus->Finish(); })
{
    m_ui->setupUi(this);
    m_ui->TextHCD->setPlainText(HcdHelpText());
    SetUpLabels();
    SetUpInputs();
    ConnectCommands();
    Events().WatchInputBoxes();
}

LHotCold::~LHotCold() = default;

void LHotCold::SetUpLabels()
{
    // The room for ten picks is kept, so that nothing jumps when another database has more of them.
    for (QWidget* area : {m_ui->GridArea, static_cast<QWidget*>(m_ui->TextHCD)}) {
        area->setMinimumWidth(m_ui->HCDGrid->WidthFor(kMostPicks));
    }
    // Labels over several lines do not ask for their height by themselves.
    const int line = std::max(fontMetrics().height(), fontMetrics().lineSpacing()) + 1;
    m_ui->Label5->setMinimumHeight(2 * line);
    m_ui->Label7->setMinimumHeight(2 * line);
    m_ui->Label6->setMinimumHeight(3 * line);
    m_ui->InfoLabel2->setMinimumHeight(2 * line);
    for (QLabel* label : {m_ui->Label5, m_ui->Label6, m_ui->Label7}) {
        KeepWholeTextInSight(*label);
    }
}

void LHotCold::SetUpInputs()
{
    const auto follow = [this](InputBox* box, QWidget* next, LeaveRule leave) {
        InputRules rules;
        rules.click = InputRules::Click::SelectsTextEachTime;
        rules.next = [next] { return next; };
        rules.leave = [this, leave = std::move(leave)](InputBox& left,
                                                       bool edited) -> std::optional<Message> {
            if (m_ui->ShuffleStatus->IsRunning()) { // a screen reader moves the focus without any event
                return std::nullopt;                // a calculation checks the boxes anyway
            }
            return leave(left, edited);
        };
        box->Follow(Shared(), rules);
    };
    const LeaveRule count = [this](InputBox& box, bool edited) { return LeaveCount(box, edited); };
    follow(m_ui->InHot, m_ui->InCold, count);
    follow(m_ui->InCold, m_ui->InDue, count);
    follow(m_ui->InDue, m_ui->InLastDraw, count);
    follow(m_ui->InLastDraw, m_ui->InNumPlays,
           [this](InputBox& box, bool edited) { return LeaveLastDraws(box, edited); });
    follow(m_ui->InNumPlays, m_ui->CalcHCD, NumberFromTo(1, 10, {.number = kFromOneToTen}, u"##"_s, [this] {
               return double(Shared().settings.entryForms);
           }));
}

std::optional<Message> LHotCold::LeaveCount(InputBox& box, bool edited)
{
    constexpr double kMostOfAList = 6; // whatever the lottery draws; the total is checked by Calculate
    const double value = Val(box.text());
    const bool tooMany = value > kMostOfAList;
    if (tooMany) {
        box.setText(u"1"_s);
    } else if (edited || value == 0) {
        box.setText(Format(value, u"0"));
    }
    ClearHCD();
    return tooMany ? std::optional<Message>({.number = kCountsDoNotFit}) : std::nullopt;
}

std::optional<Message> LHotCold::LeaveLastDraws(InputBox& box, bool edited)
{
    constexpr double kFewestDraws = 10;
    const double value = Val(box.text());
    if (value < kFewestDraws || value > Shared().database.count) {
        box.setText(DrawsText(m_lastDraws));
        return Message{.number = kLastDrawsOutOfRange};
    }
    if (edited) {
        box.setText(DrawsText(value));
    }
    if (edited || value != m_lastDraws) { // a box that was only passed through changes nothing
        m_lastDraws = int(value);
        HCDCalc();
    }
    return std::nullopt;
}

void LHotCold::ConnectCommands()
{
    OnCommand(m_ui->CalcHCD, &LHotCold::Calculate);
    OnCommand(m_ui->PrintHCD, &LHotCold::Print);
    OnCommand(m_ui->HCDClrAll, &LHotCold::ClearHCD);
    OnCommand(m_ui->ExitHotCold, &LHotCold::Exit);
    Events().OnClick(m_ui->HelpHCD, [this] { ShowHelp(m_ui->TextHCD->isHidden()); });
    connect(m_ui->ShuffleStatus, &ShufflingLabel::Finished, this, &LHotCold::ShowSets);
}

void LHotCold::OnCommand(QAbstractButton* button, void (LHotCold::*command)())
{
    Events().OnClick(button, [this, command] {
        if (!m_ui->ShuffleStatus->IsRunning()) { // a screen reader presses buttons without any event
            (this->*command)();
        }
    });
}

void LHotCold::Load()
{
    LGLOBAL& shared = Shared();
    Switcher().SetCaption(u" Hot, Cold and Due data"_s);
    // The database may be another one than when the form was last open.
    ForgetSets();
    m_analysis = {};
    m_ui->HotGraph1->SetChart(EmptyHcdChart(HcdList::Hot));
    m_ui->ColdGraph2->SetChart(EmptyHcdChart(HcdList::Cold));
    m_ui->DueGraph3->SetChart(EmptyHcdChart(HcdList::Due));

    shared.gameSets = 0;
    m_maxHcd = shared.database.Shape().picks;
    m_ui->Label6->setText(u" Select any combination for a total   of not more than "_s + Str(m_maxHcd) +
                          u" numbers."_s);
    m_ui->InfoLabel2->setText(u" File in Memory \n  "_s + shared.database.fileName + u"  "_s);
    SetLiteralToolTip(*m_ui->InfoLabel2, shared.database.fileName);
    m_ui->InNumPlays->setText(SetsText(shared.settings.entryForms));
    MakeHCDGrid();

    const HcdCounts counts = DefaultHcdCounts(m_maxHcd);
    m_ui->InHot->setText(Format(counts.hot, u"0"));
    m_ui->InCold->setText(Format(counts.cold, u"0"));
    m_ui->InDue->setText(Format(counts.due, u"0"));
    m_lastDraws = FirstPeriod(shared.database.count);
    m_ui->InLastDraw->setText(Str(m_lastDraws));
    HCDCalc();
    ShowHelp(false);
    m_ui->CalcHCD->setFocus();
}

void LHotCold::ForgetSets()
{
    Shared().PickTable = {};
    Shared().hcdPicksMade = 0;
}

void LHotCold::MakeHCDGrid()
{
    m_ui->HCDGrid->SetUp(m_maxHcd, kGridRows);
}

void LHotCold::ClearHCD()
{
    m_ui->HCDGrid->Sets().Clear();
}

void LHotCold::HCDCount()
{
    if (m_countMode == CountMode::TimesDrawn) {
        TallyLastDraws(m_analysis, Shared().database, m_lastDraws);
    } else {
        TallyDrawsSince(m_analysis, Shared().database);
    }
}

void LHotCold::HCDSortCount()
{
    RankNumbers(m_analysis, Shared().database.Shape().highest, Shared().graphMode);
}

void LHotCold::MakeHGraph()
{
    if (!HasTooFewNumbers(m_analysis)) {
        m_ui->HotGraph1->SetChart(HcdChart(HcdList::Hot, m_analysis.RankedNumbers));
    }
}

void LHotCold::MakeCGraph()
{
    if (HasTooFewNumbers(m_analysis)) {
        m_distinctNumbers = m_analysis.distinctNumbers;
        m_notEnoughData = true;
        Events().ShowLater(TooFewNumbers()); // over the open form, and not in the event that leaves a box
        return;
    }
    m_ui->ColdGraph2->SetChart(HcdChart(HcdList::Cold, m_analysis.RankedNumbers));
}

void LHotCold::MakeDGraph()
{
    // Only the cold graph makes the check. A latest draw that brought nearly all numbers leaves few that are
    // due; these are shown, and the others at 0.
    if (!HasTooFewNumbers(m_analysis) || !m_notEnoughData) {
        m_ui->DueGraph3->SetChart(HcdChart(HcdList::Due, m_analysis.RankedNumbers));
    }
}

Message LHotCold::TooFewNumbers() const
{
    return {.number = kTooFewNumbers, .arg2 = Str(m_distinctNumbers)};
}

void LHotCold::HCDCalc()
{
    HcdList& graphMode = Shared().graphMode;
    ClearHCD();
    m_notEnoughData = false;
    graphMode = HcdList::None;
    m_countMode = CountMode::TimesDrawn;
    HCDCount();
    graphMode = HcdList::Hot;
    HCDSortCount();
    MakeHGraph();
    graphMode = HcdList::Cold;
    HCDSortCount();
    MakeCGraph();
    graphMode = HcdList::Due;
    m_countMode = CountMode::SinceLastDrawn;
    HCDCount();
    HCDSortCount();
    MakeDGraph();
}

HcdCounts LHotCold::Counts() const
{
    return TypedCounts(Val(m_ui->InHot->text()), Val(m_ui->InCold->text()), Val(m_ui->InDue->text()));
}

void LHotCold::ReadGameSets()
{
    const double typed = Val(m_ui->InNumPlays->text());
    const int sets = GameSets(typed, Shared().settings.entryForms);
    Shared().gameSets = qint16(sets);
    if (sets != typed) {
        m_ui->InNumPlays->setText(SetsText(sets));
    }
}

void LHotCold::Calculate()
{
    ForgetSets();
    ClearHCD();
    if (std::exchange(m_notEnoughData, false)) {
        Show(Shared(), Asking(), TooFewNumbers());
        return;
    }
    const int total = Counts().Total();
    if (total > m_maxHcd || total == 0) {
        Show(Shared(), Asking(), {.number = kCountsDoNotFit});
        return;
    }
    ReadGameSets();
    HCDCalc();
    if (m_notEnoughData) { // the lists hold what they held before, and no set comes from that
        return;
    }
    if (!HCDSortRange()) {
        return;
    }
    ReadGameSets();
    MoveEmptyPlacesToTheEnd(Shared().PickTable, m_maxHcd, Shared().gameSets);
    SuffleHCD();
}

bool LHotCold::HCDSortRange()
{
    LGLOBAL& shared = Shared();
    shared.random->ReseedFromClock();
    ReadGameSets();
    ForgetSets();
    if (shared.database.count == 0) {
        Show(shared, Asking(), {.number = kNoRecords});
        return false;
    }
    m_madeFrom = {.lastDraws = m_lastDraws, .counts = Counts(), .candidates = m_analysis.HcdCandidates};
    if (!FillHcdSets(*shared.random, m_madeFrom, shared.gameSets, shared.PickTable)) {
        ForgetSets();
        Show(shared, Asking(), {.number = kNotEnoughData});
        return false;
    }
    shared.hcdPicksMade = 1;
    return true;
}

void LHotCold::SuffleHCD()
{
    m_pause.Begin();
    m_ui->ShuffleStatus->Run();
}

void LHotCold::ShowSets()
{
    m_ui->HCDGrid->Sets().Fill(Shared().PickTable, Shared().gameSets);
    m_pause.End();
    ShowHelp(false);
}

void LHotCold::ShowHelp(bool opens)
{
    if (m_ui->TextHCD->hasFocus()) {
        m_ui->HelpHCD->setFocus(Qt::OtherFocusReason);
    }
    m_ui->TextHCD->setVisible(opens);
    m_ui->GridArea->setVisible(!opens);
    m_ui->HelpHCD->setText(opens ? u"Close &Help"_s : u"Quick &Help"_s);
    if (opens) {
        m_ui->TextHCD->setFocus(Qt::OtherFocusReason); // so that the keys scroll it
    }
}

void LHotCold::Print()
{
    if (Shared().PickTable.at(1).at(1) == 0) {
        Show(Shared(), Asking(), {.number = kNoDataToPrint});
        return;
    }
    PrintOnRequest(Shared(), Asking(), u"Hot, cold and due sets"_s, [this](Printout& printout) {
        PrintHcdSets(printout, m_madeFrom, Shared().PickTable, m_maxHcd, Shared().gameSets);
    });
}

void LHotCold::Exit()
{
    Switcher().SetCaption(u" Quillaby Menu"_s); // as on every way out; the Selectorium puts its own there
    Switcher().ShowForm(FormName::Lottery);
}
