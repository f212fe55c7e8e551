#include "picks/Lottery.h"

#include "app/DatabaseFacts.h"
#include "app/Printing.h"
#include "app/SharedStatistics.h"
#include "app/TextPictures.h"
#include "app/ToolTips.h"
#include "app/Twips.h"
#include "app/WrappedLabel.h"
#include "picks/PickSets.h"
#include "picks/PickTexts.h"
#include "picks/PrintSets.h"
#include "picks/SelectoriumHelp.h"
#include "ui_Lottery.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTooManyForTwentyRows = 4;
constexpr int kNotEnoughData = 7;
constexpr int kMustBeFrom = 17;
constexpr int kTooManyPicks = 20;
constexpr int kFromOneToTen = 27;
constexpr int kFromOneToSixty = 28;
constexpr int kNoRecords = 31;
constexpr int kNoRecordsToWorkWith = 44;
constexpr int kTenRecordsNeeded = 48;

constexpr qint16 kSortedByValue = 1; ///< the sort mode while positions are picked from
constexpr int kGridRows = 10;

QString NumberText(double value)
{
    return Format(value, u"##");
}

/// The font with blanks as narrow as it takes to make the line fit the width, but not narrower than words can
/// be told apart by; with letters as small as it takes then.
QFont FittedByBlanks(QFont font, const QString& line, int width)
{
    constexpr double kNarrowest = 0.4; // of a blank
    const int needed = QFontMetrics(font).horizontalAdvance(line);
    if (needed <= width) {
        return font;
    }
    const double blank = QFontMetricsF(font).horizontalAdvance(u' ');
    font.setWordSpacing(-1);
    const int gained = needed - QFontMetrics(font).horizontalAdvance(line);
    const double narrower =
        std::min(double(needed - width + 1) / std::max(gained, 1), blank * (1 - kNarrowest));
    font.setWordSpacing(-narrower);
    const int still = QFontMetrics(font).horizontalAdvance(line);
    if (still > width) {
        const double smaller = double(width - 1) / still;
        font.setWordSpacing(-narrower * smaller);
        font.setPointSizeF(std::floor(font.pointSizeF() * smaller * 2) / 2); // sizes in between look uneven
    }
    return font;
}

} // namespace

Lottery::Lottery(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_ui(std::make_unique<Ui::Lottery>()),
      m_pause(*this, prompts, [this] { m_ui->BallRow->Finish(); })
{
    m_ui->setupUi(this);
    m_ui->PTextBox->setPlainText(SelectoriumHelpText());
    SetUpGrid();
    SetUpLabels();
    SetUpInputs();
    ConnectCommands();
    Events().WatchInputBoxes();
}

Lottery::~Lottery() = default;

void Lottery::SetUpGrid()
{
    // The room beside the grid is kept for ten picks, so that nothing jumps when their number changes.
    for (QWidget* area : {m_ui->GridArea, static_cast<QWidget*>(m_ui->PTextBox)}) {
        area->setMinimumWidth(m_ui->PGrid->WidthFor(kMostPicks));
    }
}

void Lottery::SetUpLabels()
{
    // Labels over several lines do not ask for their height by themselves.
    const QFontMetrics metrics(font());
    const int line = std::max(metrics.height(), metrics.lineSpacing()) + 1; // fractions of a pixel add up
    for (QLabel* label : {m_ui->Label5, m_ui->Label6, m_ui->Label7, m_ui->InfoLabel1}) {
        label->setMinimumHeight(2 * line);
    }
    for (QLabel* label : {m_ui->Label5, m_ui->Label6, m_ui->Label7}) {
        KeepWholeTextInSight(*label);
    }
    m_ui->InfoLabel1->setMaximumHeight(3 * line); // a longer title is read in the tool tip
    m_ui->Picture7->setMinimumHeight(line);

    constexpr int kLeft = 855;
    constexpr int kWidth = 7755;
    constexpr int kLines = 3;
    const int width = TwipsToPixels(kWidth, logicalDpiX());
    m_ui->FromNums->setMinimumSize(width, kLines * line);
    const int margin = m_ui->Frame3->contentsMargins().left() + m_ui->from->contentsMargins().left();
    const int indent = TwipsToPixels(kLeft, logicalDpiX()) - margin;
    m_ui->FromNumsIndent->changeSize(indent, 0, QSizePolicy::Fixed);
}

void Lottery::SetUpInputs()
{
    const auto follow = [this](InputBox* box, QWidget* next, auto range) {
        InputRules rules;
        rules.next = [next] { return next; };
        rules.leave = [this, range](InputBox& left, bool edited) -> std::optional<Message> {
            if (m_ui->BallRow->IsRunning()) { // a screen reader moves the focus without any event
                return std::nullopt;          // a calculation checks the boxes anyway
            }
            return LeaveEntry(left, edited, range());
        };
        box->Follow(Shared(), rules);
    };
    const auto oneToTen = [](double fallback) {
        return EntryRange{kMostPicks, {.number = kFromOneToTen}, fallback};
    };
    follow(m_ui->InColNum, m_ui->InHighNum, [oneToTen] { return oneToTen(kMostPicks); });
    follow(m_ui->InHighNum, m_ui->InNumRows, [] {
        return EntryRange{kMostNumbers, {.number = kFromOneToSixty}, kMostNumbers};
    });
    follow(m_ui->InNumRows, m_ui->PCalc, [this, oneToTen] { return oneToTen(Shared().settings.entryForms); });
    follow(m_ui->InStartNo, m_ui->InEndNo, [this] { return LeftRange(); });
    follow(m_ui->InEndNo, m_ui->PCalc, [this] { return RightRange(); });
}

Lottery::EntryRange Lottery::LeftRange()
{
    if (m_ui->InStartNo->text().trimmed().isEmpty()) {
        WriteEntry(m_ui->InStartNo, 1);
    }
    // The bounds that these two messages name are advice and not those tested: there should be room for a
    // set.
    const int highest = Shared().database.Shape().highest;
    return {highest,
            {.number = kMustBeFrom, .arg1 = Str(highest - Shared().settings.defaultPicks), .arg2 = u" 1"_s},
            1};
}

Lottery::EntryRange Lottery::RightRange()
{
    const LotteryShape shape = Shared().database.Shape();
    if (Val(m_ui->InEndNo->text()) == 0) {
        WriteEntry(m_ui->InEndNo, shape.highest);
    }
    if (Val(m_ui->InStartNo->text()) == 0) {
        WriteEntry(m_ui->InStartNo, 1);
    }
    const double left = Val(m_ui->InStartNo->text());
    return {shape.highest,
            {.number = kMustBeFrom, .arg1 = Str(shape.highest), .arg2 = Str(left + shape.picks)},
            double(shape.highest)};
}

std::optional<Message> Lottery::LeaveEntry(InputBox& box, bool edited, const EntryRange& range)
{
    const double value = Val(box.text());
    const bool inRange = value >= 1 && value <= range.highest;
    if (!inRange) {
        WriteEntry(&box, range.fallback);
    } else if (edited) {
        WriteEntry(&box, value);
    }
    ClearDisplay();
    if (&box == m_ui->InColNum) {
        m_picks = std::min(int(Val(box.text())), kMostPicks);
        if (!HoldsOnePick()) {
            m_ui->PGrid->Sets().SetRed(false);
        }
        ShapeGrid(kGridRows);
    }
    return inRange ? std::nullopt : std::optional<Message>(range.message);
}

void Lottery::WriteEntry(InputBox* box, double value)
{
    const bool justified = box == m_ui->InStartNo || box == m_ui->InEndNo;
    box->setText(justified ? RightJustify(NumberText(value), 2) : NumberText(value));
}

PickEntries Lottery::Entries() const
{
    return {.picks = Val(m_ui->InColNum->text()),
            .highest = Val(m_ui->InHighNum->text()),
            .sets = Val(m_ui->InNumRows->text()),
            .left = Val(m_ui->InStartNo->text()),
            .right = Val(m_ui->InEndNo->text())};
}

void Lottery::ShowEntries(const PickEntries& entries)
{
    const PickEntries shown = Entries();
    const auto show = [this](InputBox* box, double before, double now) {
        if (before != now) { // what is right stays as it was typed
            WriteEntry(box, now);
        }
    };
    show(m_ui->InColNum, shown.picks, entries.picks);
    show(m_ui->InHighNum, shown.highest, entries.highest);
    show(m_ui->InNumRows, shown.sets, entries.sets);
    show(m_ui->InEndNo, shown.right, entries.right);
}

bool Lottery::HoldsOnePick() const
{
    return Val(m_ui->InColNum->text()) == 1;
}

void Lottery::ConnectCommands()
{
    OnCommand(m_ui->PCalc, &Lottery::Calculate);
    OnCommand(m_ui->CalcAllNum, &Lottery::SelectAll);
    OnCommand(m_ui->PClearAll, &Lottery::ClearAll);
    OnCommand(m_ui->PPrinter, &Lottery::Print);
    OnCommand(m_ui->ShowHCD, &Lottery::ShowHotColdDue);
    OnCommand(m_ui->PExit, &Lottery::Exit);
    OnCommand(m_ui->PHelp, &Lottery::SwitchHelp);
    OnCommand(m_ui->Option1, &Lottery::ChooseFullRange);
    OnCommand(m_ui->Option2, &Lottery::ChooseSortedPositions);
    OnCommand(m_ui->PWhichCnt, &Lottery::ChooseCount);
    OnCommand(m_ui->ChkDBPicks, &Lottery::ChooseFewerPicks);
    connect(m_ui->BallRow, &RollingBalls::WordChanged, m_ui->Picture7, &QLabel::setText);
    connect(m_ui->BallRow, &RollingBalls::Finished, this, &Lottery::ShowSets);
}

void Lottery::OnCommand(QAbstractButton* button, void (Lottery::*command)())
{
    Events().OnClick(button, [this, command] {
        if (m_ui->BallRow->IsRunning()) { // a screen reader presses buttons without any event
            ShowChoices();
        } else {
            (this->*command)();
        }
    });
}

void Lottery::Load()
{
    LGLOBAL& shared = Shared();
    Switcher().SetCaption(u" Selectorium"_s);
    shared.PickTable = {};
    shared.CandidateNumbers = {};
    m_pickMode = PickMode::None;
    ChooseFullRange();
    m_ui->ChkDBPicks->setChecked(false);
    m_allowFewerPicks = false;
    m_ui->PWhichCnt->setChecked(true);
    shared.WhichCnt = CountMode::TimesDrawn;
    ShowCount();
    ShowDatabase();
    // Counted anew, so that the positions are sorted by what the check box says.
    ComputeNumberStats(shared);

    m_pickedFrom.clear();
    m_fromNumbers.clear();
    m_ui->PGrid->Sets().SetRed(false);
    ShapeGrid(kGridRows);
    ClearDisplay();
    m_ui->PickFrom->setText(u"Picked from numbers"_s);
    ShowHelp(false);
    StartColor();
    m_ui->PCalc->setFocus();
}

void Lottery::ShowDatabase()
{
    DrawDatabase& database = Shared().database;
    const AppSettings& settings = Shared().settings;
    const bool hasRecords = database.count > 0;
    m_ui->InfoLabel1->setVisible(hasRecords);
    m_ui->PWhichCnt->setVisible(hasRecords);
    if (hasRecords) {
        m_ui->InfoLabel1->setText(u" File in Memory \r\n  "_s + ShownTitle(database) + u"  "_s);
        SetLiteralToolTip(*m_ui->InfoLabel1, ShownTitle(database));
    } else { // an empty database has the shape of the personal settings
        database.highest = settings.defaultHighest;
        database.columns = qint16(settings.defaultPicks + 2);
    }
    const LotteryShape shape = database.Shape();
    m_picks = shape.picks;
    WriteEntry(m_ui->InColNum, shape.picks);
    WriteEntry(m_ui->InHighNum, shape.highest);
    WriteEntry(m_ui->InNumRows, settings.entryForms);
    WriteEntry(m_ui->InStartNo, 1);
    WriteEntry(m_ui->InEndNo, shape.highest / 2.0);
}

void Lottery::ShapeGrid(int rows)
{
    m_ui->PGrid->SetUp(m_picks, rows);
}

void Lottery::MakeGrid2()
{
    ShapeGrid(kMostSets);
}

void Lottery::ClearDisplay()
{
    m_ui->PGrid->Sets().Clear();
    m_ui->PickFrom->setText(PickedFromNumbers());
    m_ui->FromNums->clear();
}

void Lottery::ChooseFullRange()
{
    m_ui->Option1->setChecked(true);
    m_ui->InStartNo->setEnabled(false);
    m_ui->InEndNo->setEnabled(false);
    m_pickMode = PickMode::FullRange;
}

void Lottery::ChooseSortedPositions()
{
    if (Shared().database.count < 1) {
        ChooseFullRange();
        Events().ShowLater({.number = kNoRecordsToWorkWith});
        return;
    }
    m_ui->InStartNo->setEnabled(true);
    m_ui->InEndNo->setEnabled(true);
    m_pickMode = PickMode::SortedPositions;
    ClearDisplay();
}

void Lottery::ChooseCount()
{
    Shared().WhichCnt = m_ui->PWhichCnt->isChecked() ? CountMode::TimesDrawn : CountMode::SinceLastDrawn;
    ShowCount();
    ClearDisplay();
    ComputeNumberStats(Shared());
}

void Lottery::ChooseFewerPicks()
{
    m_allowFewerPicks = m_ui->ChkDBPicks->isChecked();
}

void Lottery::ShowChoices()
{
    QAbstractButton* option = m_pickMode == PickMode::SortedPositions ? m_ui->Option2 : m_ui->Option1;
    option->setChecked(true);
    m_ui->PWhichCnt->setChecked(Shared().WhichCnt == CountMode::TimesDrawn);
    m_ui->ChkDBPicks->setChecked(m_allowFewerPicks);
}

void Lottery::ShowCount()
{
    m_ui->PWhichCnt->setText(Shared().WhichCnt == CountMode::TimesDrawn
                                 ? u" Database: Times numbers were drawn"_s
                                 : u" Database: No. draws since last drawn"_s);
}

void Lottery::SwitchHelp()
{
    ShowHelp(m_ui->PTextBox->isHidden());
}

void Lottery::ShowHelp(bool opens)
{
    if (m_ui->PTextBox->hasFocus()) {
        m_ui->PHelp->setFocus(Qt::OtherFocusReason);
    }
    m_ui->PTextBox->setVisible(opens);
    m_ui->GridArea->setVisible(!opens);
    m_ui->PHelp->setText(opens ? u"Close &Help"_s : u"Quick &Help"_s);
    if (opens) {
        m_ui->PTextBox->setFocus(Qt::OtherFocusReason); // so that the keys scroll it
    }
}

void Lottery::Calculate()
{
    Shared().PickTable = {};
    Shared().entryEdited = 0;
    m_pickedFrom.clear();
    m_fromNumbers.clear();
    ClearDisplay();
    m_ui->PGrid->Sets().SetRed(HoldsOnePick()); // as for a bonus ball

    const PickLimits limits{.mode = m_pickMode,
                            .database = Shared().database.Shape(),
                            .allowFewerPicks = m_allowFewerPicks,
                            .entryForms = Shared().settings.entryForms};
    const CheckedEntries checked = CheckForCalculate(Entries(), limits);
    if (checked.picksCut) {
        Show(Shared(), Asking(), {.number = kTooManyPicks});
    }
    ShowEntries(checked.entries);
    if (checked.fault != 0) {
        Show(Shared(), Asking(), {.number = checked.fault, .arg1 = m_ui->InColNum->text()});
        return;
    }
    PickSets(checked.entries);
}

void Lottery::PickSets(const PickEntries& entries)
{
    m_picks = int(entries.picks);
    m_calculatedPicks = m_picks;
    m_setCount = int(entries.sets);
    m_ui->PGrid->Sets().SetRed(HoldsOnePick()); // the database may have changed the picks
    ShapeGrid(kGridRows);
    if (!ListCandidates(entries)) {
        ChooseFullRange();
        Show(Shared(), Asking(), {.number = kNoRecords});
        return;
    }
    if (FillSets(*Shared().random, Shared().CandidateNumbers, m_picks, m_setCount, Shared().PickTable)) {
        Shared().sortMode = 0;
        ShowTexts();
    } else {
        Show(Shared(), Asking(), {.number = kNotEnoughData}); // what was drawn so far is shown all the same
    }
    BallsDisplay();
}

bool Lottery::ListCandidates(const PickEntries& entries)
{
    LGLOBAL& shared = Shared();
    shared.random->ReseedFromClock();
    m_pickedFrom = PickedFromNumbers();
    if (m_pickMode == PickMode::FullRange) {
        shared.CandidateNumbers = FullRange(int(entries.highest));
        m_fromNumbers = NumbersOfFullRange(int(entries.highest));
        return true;
    }
    shared.CandidateNumbers = {};
    if (shared.database.count == 0) {
        return false;
    }
    shared.sortMode = kSortedByValue;
    SortNumberStats(shared);
    const int left = int(std::min(entries.left, kMostNumbers + 1.0)); // beyond the last: no position at all
    const int right = int(std::min(entries.right, double{kMostNumbers}));
    shared.CandidateNumbers = SortedPositions(shared.sortedNumberStats, left, right);
    m_fromNumbers = NumbersOfPositions(shared.CandidateNumbers);
    m_pickedFrom = PickedFromPositions(left, right, shared.WhichCnt);
    return true;
}

void Lottery::SelectAll()
{
    m_ui->PGrid->Sets().SetRed(false);
    m_fromNumbers.clear();
    m_pickedFrom = PickedBySelectAll();
    ChooseFullRange();
    Shared().CandidateNumbers = {};
    Shared().PickTable = {};
    const CheckedEntries checked = CheckForSelectAll(Entries());
    ShowEntries(checked.entries);
    if (checked.fault != 0) {
        Show(Shared(), Asking(), {.number = checked.fault});
        return;
    }
    const int highest = int(checked.entries.highest);
    m_picks = int(checked.entries.picks);
    m_calculatedPicks = m_picks;
    Shared().CandidateNumbers = FullRange(highest);
    ClearDisplay();
    m_setCount = SetsForAllNumbers(highest, m_picks);
    if (m_setCount == 0) {
        Show(Shared(), Asking(), {.number = kTooManyForTwentyRows});
        return;
    }
    MakeGrid2();
    const std::optional<NumberOrder> order = ShuffleNumbers(*Shared().random, highest);
    if (!order) {
        Show(Shared(), Asking(), {.number = kNotEnoughData});
        EndCalculation();
        return;
    }
    Shared().PickTable = SpreadNumbers(*order, highest, m_picks, m_setCount);
    m_ui->InNumRows->setText(RightJustify(NumberText(m_setCount), 2));
    m_fromNumbers = NumbersOfSelectAll(highest, m_setCount);
    ShowTexts();
    BallsDisplay();
}

void Lottery::ShowTexts()
{
    m_ui->PickFrom->setText(m_pickedFrom);
    // Where the desktop's letters are wide, narrower blanks let twenty numbers fit a line.
    const QString line = m_fromNumbers.section(u"\r\n"_s, 0, 0);
    m_ui->FromNums->setFont(FittedByBlanks(font(), line, m_ui->FromNums->minimumWidth()));
    m_ui->FromNums->setText(m_fromNumbers);
}

void Lottery::StartColor()
{
    m_ui->BallRow->StartColor();
}

void Lottery::BallsDisplay()
{
    m_pause.Begin();
    m_ui->BallRow->Run();
}

void Lottery::ShowSets()
{
    m_ui->PGrid->Sets().Fill(Shared().PickTable, m_setCount);
    EndCalculation();
}

void Lottery::EndCalculation()
{
    m_pause.End();
    m_ui->Picture7->clear();
    ShowHelp(false);
}

void Lottery::ClearAll()
{
    ClearDisplay();
    Shared().PickTable = {};
}

void Lottery::Print()
{
    if (Shared().PickTable.at(1).at(1) == 0) {
        Show(Shared(), Asking(), {.number = kNoDataToPrint});
        return;
    }
    PrintOnRequest(Shared(), Asking(), u"Selectorium"_s, [this](Printout& printout) {
        PrintSets(printout, m_pickedFrom, Shared().CandidateNumbers, Shared().PickTable, m_calculatedPicks,
                  m_setCount);
    });
}

void Lottery::ShowHotColdDue()
{
    constexpr int kFewestRecords = 10;
    const int count = Shared().database.count;
    if (count == 0) {
        Show(Shared(), Asking(), {.number = kNoRecordsToWorkWith});
    } else if (count < kFewestRecords) {
        Show(Shared(), Asking(), {.number = kTenRecordsNeeded});
    } else {
        Switcher().ShowForm(FormName::LHotCold);
    }
}

void Lottery::Exit()
{
    Switcher().SetCaption(u" Quillaby Menu"_s);
    Switcher().ShowForm(FormName::LotoMenu);
}
