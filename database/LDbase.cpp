#include "database/LDbase.h"

#include "app/KeyFilters.h"
#include "app/SharedStatistics.h"
#include "app/ShortDate.h"
#include "app/TextPictures.h"
#include "database/CountsDelegate.h"
#include "database/DateSort.h"
#include "database/EditorHelp.h"
#include "database/InRecNum.h"
#include "database/RecordTasks.h"
#include "database/TopNumbers.h"
#include "ui_LDbase.h"

#include <QHeaderView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNoDataToGraph = 2;
constexpr int kNoRecordToCorrect = 18;
constexpr int kCannotSort = 23;
constexpr int kFromOneToTen = 27;
constexpr int kFromOneToSixty = 28;
constexpr int kNotAProperDate = 30;
constexpr int kDeleteAllFirst = 40;
constexpr int kMostRecords = 45;
constexpr int kGoBackAndSave = 3;

QString FirstStatisticsLine()
{
    return u"Showing the number of times drawn"_s;
}

QString ShapeText(double value)
{
    return Format(value, u"##").rightJustified(2); // never cut: a shape from a file may have more digits
}

} // namespace

LDbase::LDbase(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_ui(std::make_unique<Ui::LDbase>()),
      m_records(shared.database, shared.locale), m_counts{CountsModel(shared.NumberStats, 1),
                                                          CountsModel(shared.NumberStats, 21),
                                                          CountsModel(shared.NumberStats, 41)}
{
    m_ui->setupUi(this);
    m_ui->HelpBoxD->setPlainText(EditorHelpText());
    SetUpGrids();
    SetUpLabels();
    SetUpInputs();
    SetUpNumberBoxes();
    ConnectCommands();
    Events().WatchInputBoxes();
}

LDbase::~LDbase() = default;

void LDbase::SetUpGrids()
{
    m_ui->DGrid1->setModel(&m_records);
    m_ui->DGrid1->setItemDelegate(new CountsDelegate(m_ui->DGrid1));
    const int row = fontMetrics().height() + 4;
    m_ui->DGrid1->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_ui->DGrid1->verticalHeader()->setDefaultSectionSize(row);

    const std::array<QTableView*, 3> grids{m_ui->DGrid2, m_ui->DGrid3, m_ui->DGrid4};
    for (std::size_t i = 0; i < grids.size(); ++i) {
        QTableView* grid = grids.at(i);
        grid->setModel(&m_counts.at(i));
        grid->setItemDelegate(new CountsDelegate(grid));
        grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        grid->horizontalHeader()->setFixedHeight(row);
        grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        grid->verticalHeader()->setDefaultSectionSize(row);
        grid->setFixedHeight(2 * row + 2 * grid->frameWidth());
    }
}

void LDbase::SetUpLabels()
{
    // Labels over several lines do not ask for their height by themselves.
    const QFontMetrics metrics(font());
    const int line = std::max(metrics.height(), metrics.lineSpacing()) + 1; // fractions of a pixel add up
    m_ui->NumColLabel->setMinimumHeight(2 * line);
    m_ui->HighNumLabel->setMinimumHeight(2 * line);
    m_ui->DuponoffLabel->setMinimumHeight(3 * line);
    m_ui->DuponoffLabel->setFixedWidth(metrics.horizontalAdvance(u"dupli-"_s) + 4); // one word to a line
}

void LDbase::SetUpInputs()
{
    InputRules title{.keys = InputRules::Keys::FileText, .click = InputRules::Click::SelectsText};
    title.next = [this] { return m_ui->NumCol; };
    m_ui->InFileName->Follow(Shared(), title);

    InputRules picks{.click = InputRules::Click::SelectsText};
    picks.next = [this] { return m_ui->HighNum; };
    picks.leave = [this](InputBox& box, bool edited) {
        return LeaveShapeBox(box, edited, kMostPicks, kFromOneToTen,
                             [this] { return Shared().database.columns - 2; });
    };
    m_ui->NumCol->Follow(Shared(), picks);

    InputRules highest{.click = InputRules::Click::SelectsText};
    highest.next = [this] { return m_ui->InDate; };
    highest.leave = [this](InputBox& box, bool edited) {
        return LeaveShapeBox(box, edited, kMostNumbers, kFromOneToSixty,
                             [this] { return Shared().database.highest; });
    };
    m_ui->HighNum->Follow(Shared(), highest);

    InputRules date{.keys = InputRules::Keys::Date};
    date.next = [this] { return DYourNumIn.front(); };
    date.leave = [this](InputBox& box, bool /*edited*/) { return LeaveDate(box); };
    m_ui->InDate->Follow(Shared(), date);
}

void LDbase::SetUpNumberBoxes()
{
    DYourNumIn = {m_ui->DYourNumIn0, m_ui->DYourNumIn1, m_ui->DYourNumIn2, m_ui->DYourNumIn3,
                  m_ui->DYourNumIn4, m_ui->DYourNumIn5, m_ui->DYourNumIn6, m_ui->DYourNumIn7,
                  m_ui->DYourNumIn8, m_ui->DYourNumIn9};
    for (std::size_t i = 0; i < DYourNumIn.size(); ++i) {
        InputRules number;
        number.next = [this, i]() -> QWidget* {
            const auto picks = static_cast<std::size_t>(Shared().database.Shape().picks);
            return i + 1 >= picks ? static_cast<QWidget*>(m_ui->DCalc) : DYourNumIn.at(i + 1);
        };
        DYourNumIn.at(i)->setAccessibleName(u"Number %1 of the new draw"_s.arg(i + 1));
        DYourNumIn.at(i)->Follow(Shared(), number);
    }
}

void LDbase::ConnectCommands()
{
    Events().OnClick(m_ui->DCalc, [this] { AddRecord(); });
    Events().OnClick(m_ui->DCorrectRec, [this] { CorrectRecord(); });
    Events().OnClick(m_ui->DDeleteAll, [this] { DeleteAll(); });
    Events().OnClick(m_ui->DGraphs, [this] { ShowGraph(); });
    Events().OnClick(m_ui->DHelp, [this] { ShowHelp(m_ui->HelpBoxD->isHidden()); });
    Events().OnClick(m_ui->DExit, [this] { Exit(); });
    Events().OnClick(m_ui->WhichCnt, [this] { SwitchCount(); });
    Events().OnClick(m_ui->Duponoff, [this] { AllowDuplicates = m_ui->Duponoff->isChecked(); });

    DaysofWeek = {m_ui->DaysofWeek0, m_ui->DaysofWeek1, m_ui->DaysofWeek2, m_ui->DaysofWeek3,
                  m_ui->DaysofWeek4, m_ui->DaysofWeek5, m_ui->DaysofWeek6};
    for (std::size_t i = 0; i < DaysofWeek.size(); ++i) {
        QCheckBox* box = DaysofWeek.at(i);
        Events().OnClick(
            box, [this, box, i] { Shared().database.CheckDay(static_cast<int>(i) + 1, box->isChecked()); });
    }
    connect(m_ui->InFileName, &QLineEdit::textEdited, this,
            [this](const QString& title) { Shared().database.title = title; });
    const auto remember = [this](const QModelIndex& cell) {
        Shared().ClickedRecord = static_cast<qint16>(m_records.RecordInRow(cell.row()));
    };
    connect(m_ui->DGrid1, &QTableView::clicked, this, remember);
    // By the keyboard a row is chosen by going to it; reaching the grid by Tab chooses none.
    connect(m_ui->DGrid1->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [remember](const QModelIndex& current, const QModelIndex& previous) {
                if (current.isValid() && previous.isValid()) {
                    remember(current);
                }
            });
    connect(m_ui->DGrid1->horizontalHeader(), &QHeaderView::sectionClicked, this, [this] {
        m_ui->DGrid1->clearSelection(); // the heading is no record
        Shared().ClickedRecord = 0;
    });
}

void LDbase::Load()
{
    LGLOBAL& shared = Shared();
    Switcher().SetCaption(u" View and Edit Database Records"_s);
    AllowDuplicates = false;
    m_ui->Duponoff->setChecked(false);
    shared.topNumbersText = {};
    m_ui->Label4->setText(FirstStatisticsLine());

    ShowHelp(false);
    m_ui->InFileName->setText(shared.database.title);
    ShowShape();
    m_ui->WhichCnt->setChecked(true);
    shared.WhichCnt = CountMode::TimesDrawn;
    shared.ClickedRecord = 0;
    EndTask();
    EmptyNumberBoxes();

    BuildRecordsGrid();
    if (shared.database.count > 0) {
        FillRecordsGrid();
        ComputeNumberStats(shared);
        ShowStatistics();
    } else {
        shared.NumberStats = {};
        shared.sortedNumberStats = {};
    }
    ShowDrawDays();
    // With records the next draw's date; without any, today, whose weekday becomes a draw day.
    AdvanceDate();

    // Opening runs the same limit test as adding, so an over-full database is told at once.
    if (IsFull(shared.database)) {
        Events().ShowLater({.number = kMostRecords});
    }
    m_ui->DGrid1->scrollToTop();
    if (shared.database.count > 0) {
        DYourNumIn.front()->setFocus();
    } else {
        m_ui->InFileName->setFocus();
    }
    Asking().SetBusyPointer(false);
}

void LDbase::ShowShape()
{
    m_ui->NumCol->setText(ShapeText(Shared().database.columns - 2));
    m_ui->HighNum->setText(ShapeText(Shared().database.highest));
}

void LDbase::ShowDrawDays()
{
    const DrawDays days = Shared().database.CheckedDays();
    for (std::size_t i = 0; i < DaysofWeek.size(); ++i) {
        DaysofWeek.at(i)->setChecked(days.at(i + 1));
    }
}

void LDbase::BuildRecordsGrid()
{
    TakeShape(Shared().database, Val(m_ui->NumCol->text()), Val(m_ui->HighNum->text()));
    const LotteryShape shape = Shared().database.Shape();
    ShowShape();

    m_records.Build();
    QHeaderView* header = m_ui->DGrid1->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Stretch);
    const QFontMetrics metrics(font());
    header->setMinimumSectionSize(metrics.horizontalAdvance(u"60"_s) + 4);
    for (const int column : {RecordsModel::NumberColumn, RecordsModel::DateColumn}) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
    }
    constexpr int kCellMargins = 12;
    const QDate wide(2028, 12, 28);
    header->resizeSection(RecordsModel::NumberColumn, metrics.horizontalAdvance(u"Record"_s) + kCellMargins);
    header->resizeSection(RecordsModel::DateColumn,
                          metrics.horizontalAdvance(ShortDate(wide, Shared().locale)) + kCellMargins);

    for (std::size_t i = 0; i < DYourNumIn.size(); ++i) {
        DYourNumIn.at(i)->setVisible(static_cast<int>(i) < shape.picks);
    }
    for (CountsModel& counts : m_counts) {
        counts.SetUp(shape.highest);
    }
}

void LDbase::FillRecordsGrid()
{
    m_records.Fill();
}

void LDbase::ShowStatistics()
{
    LGLOBAL& shared = Shared();
    for (CountsModel& counts : m_counts) {
        counts.Fill();
    }
    shared.topNumbersText = {};
    SortNumberStats(shared);
    if (shared.sortedNumberStats.at(1).value > 0) {
        const TopNumbers top =
            DescribeTopNumbers(shared.sortedNumberStats, shared.WhichCnt, shared.database.Shape().picks);
        m_ui->Label4->setText(top.heading);
        shared.topNumbersText.at(1) = top.heading;
        shared.topNumbersText.at(2) = top.numbers;
    }
}

void LDbase::ClearAllCels()
{
    m_records.Clear();
    for (CountsModel& counts : m_counts) {
        counts.Clear();
    }
}

void LDbase::MakVisible()
{
    for (QWidget* button : {m_ui->DCorrectRec, m_ui->DDeleteAll, m_ui->DGraphs}) {
        button->show();
    }
}

void LDbase::MakInvisible()
{
    for (QWidget* button : {m_ui->DCorrectRec, m_ui->DDeleteAll, m_ui->DGraphs}) {
        button->hide();
    }
}

void LDbase::AdvanceDate()
{
    NewDate = DateOfNewRow(Shared().database, Shared().today(), Shared().locale);
    ShowDrawDays(); // an empty database draws on today's weekday from now on
    m_ui->InDate->setText(ShortDate(NewDate, Shared().locale));
}

void LDbase::EmptyNumberBoxes()
{
    for (InputBox* box : DYourNumIn) {
        box->clear();
    }
}

QStringList LDbase::NumberTexts() const
{
    QStringList texts;
    const auto picks = static_cast<std::size_t>(Shared().database.Shape().picks);
    for (std::size_t i = 0; i < picks; ++i) {
        texts << DYourNumIn.at(i)->text();
    }
    return texts;
}

std::optional<Message> LDbase::LeaveDate(InputBox& box)
{
    const QString typed = box.text();
    const std::optional<QDate> date = ParseDrawDate(typed, Shared().locale);
    NewDate = date.value_or(NewDate);
    box.setText(ShortDate(NewDate, Shared().locale));
    // A click empties the box: leaving it so is no mistake.
    return date || typed.trimmed().isEmpty() ? std::nullopt
                                             : std::optional<Message>(Message{.number = kNotAProperDate});
}

std::optional<Message> LDbase::LeaveShapeBox(InputBox& box, bool edited, int highest, int message,
                                             const std::function<int()>& current)
{
    const QString before = ShapeText(current());
    const double value = Val(box.text());
    if (value < 1 || value > highest) {
        box.setText(before);
        return Message{.number = message};
    }
    if (!edited) {
        return std::nullopt;
    }
    if (Shared().database.count != 0) {
        box.setText(before);
        return Message{.number = kDeleteAllFirst};
    }
    box.setText(ShapeText(value));
    BuildRecordsGrid();
    return std::nullopt;
}

void LDbase::AddRecord()
{
    if (Shared().editMode == EditMode::Insert) {
        InsertRec();
    } else {
        TakeRow(Shared().editMode);
    }
}

void LDbase::InsertRec()
{
    TakeRow(EditMode::Insert);
}

void LDbase::TakeRow(EditMode task)
{
    const TypedRow row{NumberTexts(), NewDate, AllowDuplicates};
    const RowCheck check = CheckRow(Shared().database, task, row, Shared().locale);
    if (check.fault) {
        ShowFault(*check.fault);
        if (check.fault->message == kNotAProperDate) {
            m_ui->InDate->setFocus();
        }
        if (check.endsTask) {
            FinishTask();
        }
        return; // a correction or insertion stays open otherwise
    }
    Asking().SetBusyPointer(true);
    if (task != EditMode::Correct) {
        RebuildWhenFewRowsAreSpare();
    }
    EnterRow(Shared().database, task, Shared().SelectedRecord, row);
    if (task == EditMode::Normal) {
        ShowNewRecord();
    } else {
        FinishTask();
    }
}

void LDbase::ShowFault(const EntryFault& fault)
{
    Show(Shared(), Asking(), {.number = fault.message, .arg1 = fault.arg1});
}

void LDbase::ShowNewRecord()
{
    ShowHelp(false); // it stands in the place of the records
    FillRecordsGrid();
    AdvanceDate();
    EmptyNumberBoxes();
    ComputeNumberStats(Shared());
    ShowStatistics();
    DYourNumIn.front()->setFocus();
    Asking().SetBusyPointer(false);
}

void LDbase::RebuildWhenFewRowsAreSpare()
{
    constexpr int kTooFewSpareRows = 4;
    if (Shared().database.count + kTooFewSpareRows == m_records.GridRows()) {
        BuildRecordsGrid();
    }
}

void LDbase::DeleteAll()
{
    if (Ask(Shared(), Asking(), kGoBackAndSave)) {
        return;
    }
    DeleteAllRecords(Shared().database);
    Shared().NumberStats = {};
    Shared().sortedNumberStats = {};
    Shared().topNumbersText = {};
    Shared().ClickedRecord = 0;
    m_ui->InFileName->clear();
    m_ui->Label4->setText(FirstStatisticsLine());
    EmptyNumberBoxes();
    BuildRecordsGrid();
    ClearAllCels();
    AdvanceDate();
}

void LDbase::SwitchCount()
{
    Shared().WhichCnt = m_ui->WhichCnt->isChecked() ? CountMode::TimesDrawn : CountMode::SinceLastDrawn;
    ClearAllCels();
    FillRecordsGrid();
    ComputeNumberStats(Shared());
    ShowStatistics();
}

void LDbase::ShowHelp(bool opens)
{
    if (m_ui->HelpBoxD->hasFocus()) {
        m_ui->DHelp->setFocus(Qt::OtherFocusReason);
    }
    m_ui->HelpBoxD->setVisible(opens);
    m_ui->DGrid1->setVisible(!opens);
    m_ui->DHelp->setText(opens ? u"Close &Help"_s : u"Quick &Help"_s);
    if (opens) {
        m_ui->HelpBoxD->setFocus(Qt::OtherFocusReason); // so that the keys scroll it
    }
}

void LDbase::CorrectRecord()
{
    if (Shared().database.count == 0) {
        Show(Shared(), Asking(), {.number = kNoRecordToCorrect});
        return;
    }
    InRecNum(Shared(), window()).exec();
    const LGLOBAL& shared = Shared();
    if (shared.SelectedRecord == 0) {
        return;
    }
    if (const std::optional<EntryFault> fault =
            CheckTask(shared.database, shared.editMode, shared.SelectedRecord)) {
        EndTask();
        ShowFault(*fault);
        return;
    }
    switch (shared.editMode) {
    case EditMode::Correct:
        BeginCorrection();
        break;
    case EditMode::Insert:
        BeginInsertion();
        break;
    case EditMode::Delete:
        DeleteRec();
        break;
    case EditMode::Sort:
        EndTask();
        SortAndShow();
        break;
    case EditMode::Normal:
        break;
    }
}

void LDbase::BeginCorrection()
{
    const qint16 number = Shared().SelectedRecord;
    const TypedRow row = RowOfRecord(Shared().database, number, Shared().locale);
    MakInvisible();
    m_ui->InNew->setText(QString::number(number));
    // A record whose date cannot be read shows an empty box, which stays so until a date is typed.
    NewDate = row.date;
    m_ui->InDate->setText(ShortDate(NewDate, Shared().locale));
    for (std::size_t i = 0; i < DYourNumIn.size(); ++i) {
        DYourNumIn.at(i)->setText(row.boxes.value(static_cast<qsizetype>(i)));
    }
    DYourNumIn.front()->setFocus();
}

void LDbase::BeginInsertion()
{
    MakInvisible();
    m_ui->InNew->setText(u"Insert"_s);
    NewDate = QDate();
    m_ui->InDate->clear();
    m_ui->InDate->setFocus();
}

void LDbase::DeleteRec()
{
    Asking().SetBusyPointer(true);
    const int unreadable = DeleteRecord(Shared().database, Shared().SelectedRecord, Shared().locale);
    EndTask();
    ShowAgain(unreadable);
}

void LDbase::FinishTask()
{
    // Also after a date that was refused: the row is given up and the editor is back to normal.
    EndTask();
    EmptyNumberBoxes();
    SortAndShow();
}

void LDbase::EndTask()
{
    Shared().editMode = EditMode::Normal;
    Shared().SelectedRecord = 0;
    m_ui->InNew->setText(u"New"_s);
    MakVisible();
}

void LDbase::SortAndShow()
{
    Asking().SetBusyPointer(true);
    ShowAgain(SortByDate(Shared().database, Shared().locale));
}

void LDbase::ShowAgain(int unreadable)
{
    Shared().ClickedRecord = 0; // the records may have moved
    ShowHelp(false);
    ClearAllCels();
    FillRecordsGrid();
    if (NumberTexts().join(QString()).isEmpty()) { // a draw that is half typed keeps its date
        AdvanceDate();
    }
    ComputeNumberStats(Shared());
    ShowStatistics();
    DYourNumIn.front()->setFocus();
    Asking().SetBusyPointer(false);
    if (unreadable > 0) {
        Show(Shared(), Asking(),
             {.number = kCannotSort,
              .reason = u"Records without a date that can be read: %1. They stand before all others."_s.arg(
                  unreadable)});
    }
}

void LDbase::ShowGraph()
{
    if (Shared().database.count == 0) {
        Show(Shared(), Asking(), {.number = kNoDataToGraph});
        return;
    }
    Shared().graphCaller = kGraphFromEditor;
    Switcher().ShowForm(FormName::LGraph);
}

void LDbase::Exit()
{
    EndTask();
    Switcher().SetCaption(u" Quillaby Menu"_s);
    Switcher().ShowForm(FormName::LotoMenu);
}
