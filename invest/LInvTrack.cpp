#include "invest/LInvTrack.h"

#include "app/FileNames.h"
#include "app/Printing.h"
#include "app/ShortDate.h"
#include "app/TextPictures.h"
#include "invest/InInvNum.h"
#include "invest/InvestmentCalculation.h"
#include "invest/InvestmentFileCommands.h"
#include "invest/InvestmentHelp.h"
#include "invest/InvestmentPrintout.h"
#include "invest/LostAmounts.h"
#include "invest/StatementRecovery.h"
#include "ui_LInvTrack.h"

#include <QHeaderView>
#include <QItemSelectionModel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCannotCalculate = 26;
constexpr int kRowLimit = 46;
constexpr int kGoBackAndSave = 5;

} // namespace

LInvTrack::LInvTrack(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_ui(std::make_unique<Ui::LInvTrack>()),
      m_model(shared.InvestmentRows, shared.InvestmentTotal), m_typing(shared.InvestmentRows)
{
    m_ui->setupUi(this);
    m_ui->ITextBox->setPlainText(InvestmentHelpText());
    QSizePolicy keepsItsPlace = m_ui->IChange->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true); // so that nothing jumps with the first key
    m_ui->IChange->setSizePolicy(keepsItsPlace);
    SetUpGrid();
    ConnectCommands();
}

LInvTrack::~LInvTrack() = default;

void LInvTrack::SetUpGrid()
{
    constexpr int kRoomAboveAndBelow = 6;
    m_ui->IGrid->setModel(&m_model);
    QHeaderView* rows = m_ui->IGrid->verticalHeader();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultAlignment(Qt::AlignCenter);
    rows->setDefaultSectionSize(fontMetrics().height() + kRoomAboveAndBelow);
    QHeaderView* columns = m_ui->IGrid->horizontalHeader();
    columns->setSectionsClickable(false);
    columns->setSectionResizeMode(StatementModel::DescriptionColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(StatementModel::AmountColumn, QHeaderView::Fixed);

    connect(m_ui->IGrid, &StatementView::Typed, this,
            [this](const QString& text) { TypedInto(m_typing.Type(Place(), text)); });
    connect(m_ui->IGrid, &StatementView::BackspacePressed, this,
            [this] { TypedInto(m_typing.Backspace(Place())); });
    connect(m_ui->IGrid, &StatementView::EnterPressed, this, &LInvTrack::EnterPressed);
    connect(m_ui->IGrid->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex&, const QModelIndex& left) { m_typing.LeaveRow(left.row() + 1); });
}

void LInvTrack::ConnectCommands()
{
    Events().OnClick(m_ui->ICalc, [this] { Calculate(); });
    Events().OnClick(m_ui->InsertAss, [this] { InsertLine(); });
    Events().OnClick(m_ui->IOpenFile, [this] { OpenFile(); });
    Events().OnClick(m_ui->ISaveFile, [this] { SaveFile(); });
    Events().OnClick(m_ui->IHelp, [this] { ShowHelp(m_ui->ITextBox->isHidden()); });
    Events().OnClick(m_ui->IPrinter, [this] { Print(); });
    Events().OnClick(m_ui->IExit, [this] { Exit(); });
}

void LInvTrack::Load()
{
    Switcher().SetCaption(u" Investment Tracker"_s);
    Take({});
    ShowHelp(false);
    m_model.BuildEmpty(); // the Total comes with the first calculation
    m_changed = false;
    GoTo({.row = 1});
    m_ui->IGrid->scrollToTop();
    m_ui->IGrid->setFocus();
}

StatementPlace LInvTrack::Place() const
{
    const QModelIndex current = m_ui->IGrid->currentIndex();
    return {.row = current.row() + 1, .column = std::max(current.column(), 0)};
}

void LInvTrack::GoTo(const StatementPlace& place)
{
    m_ui->IGrid->setCurrentIndex(m_model.index(place.row - 1, place.column));
}

void LInvTrack::TypedInto(Typed result)
{
    switch (result) {
    case Typed::Changed:
        m_changed = true;
        m_uncounted = true;
        m_ui->IChange->show();
        m_model.RowTyped(Place().row);
        WidenAmounts();
        break;
    case Typed::Refused:
        m_ui->IGrid->Refuse();
        break;
    case Typed::BeyondLimit:
        Events().ShowLater({.number = kRowLimit});
        break;
    case Typed::Nothing:
        break;
    }
}

void LInvTrack::EnterPressed()
{
    const StatementPlace place = Place();
    if (place.row > kMostStatementRows) {
        TypedInto(Typed::BeyondLimit); // as every other key there
        return;
    }
    GoTo({.row = place.row + 1, .column = place.column});
}

void LInvTrack::WidenAmounts()
{
    m_ui->IGrid->WidenColumn(StatementModel::AmountColumn, u"-999,999,999.00"_s);
}

void LInvTrack::Take(const InvestmentStatement& statement)
{
    Shared().InvestmentRows = statement.rows;
    Shared().InvestmentRowCount = statement.rowCount;
    Shared().InvestmentTotal = statement.total;
    m_counted = statement;
    m_uncounted = false;
    Rebuild();
}

void LInvTrack::Rebuild()
{
    const StatementPlace place = Place();
    m_typing.Forget();
    m_model.Build(static_cast<int>(Shared().InvestmentRowCount));
    WidenAmounts();
    m_ui->IChange->hide();
    GoTo({.row = std::max(place.row, 1), .column = place.column});
}

std::optional<InvestmentStatement> LInvTrack::CountTyped() const
{
    return m_uncounted ? CalculateStatement(Shared().InvestmentRows) : m_counted;
}

void LInvTrack::Calculate()
{
    if (const std::optional<InvestmentStatement> statement = CalculateStatement(Shared().InvestmentRows)) {
        Take(*statement);
        ShowHelp(false);
    } else {
        TellCannotCalculate();
    }
    m_ui->IGrid->setFocus();
}

void LInvTrack::TellCannotCalculate()
{
    Show(Shared(), Asking(),
         {.number = kCannotCalculate, .reason = u"The amounts add up to more than a statement can hold."_s});
}

/// Calculating drops an amount without a description. Where the user did not ask for that, he is told
/// instead, and brought to the place.
bool LInvTrack::KeepsAllAmounts()
{
    const std::vector<int> lost = RowsThatLoseTheirAmount(Shared().InvestmentRows);
    if (lost.empty()) {
        return true;
    }
    Asking().Notice(LostAmountsText(lost));
    GoTo({.row = lost.front()});
    return false;
}

void LInvTrack::InsertLine()
{
    m_ui->IGrid->setFocus();
    if (!KeepsAllAmounts()) {
        return;
    }
    InInvNum(Shared(), Place().row, window()).exec();
    InvestmentTable rows = Shared().InvestmentRows;
    const double row = Val(Shared().insertRowText);
    if (!InsertBlankLine(rows, row)) {
        return;
    }
    const std::optional<InvestmentStatement> statement = CalculateStatement(rows);
    if (!statement) {
        TellCannotCalculate();
        return;
    }
    Take(*statement);
    ShowHelp(false);
    m_changed = true;
    GoTo({.row = RowOnceCalculated(rows, static_cast<int>(row))});
}

void LInvTrack::OpenNamedFile(const QString& path)
{
    TakeLoaded(ReadInvestmentFileAt(Shared(), Asking(), path, [this] { return MayBeReplaced(); }));
}

Outcome LInvTrack::TakeRecovered(const RecoveredWork& work)
{
    const InvestmentReading reading = ReadRecoveredStatement(Shared(), work);
    if (!reading.statement) {
        return Outcome::Failure(reading.reason);
    }
    TakeLoaded(reading);
    m_changed = true;
    return {};
}

bool LInvTrack::OpensDropped(const QString& path) const
{
    return IsStatementFileName(path);
}

QString LInvTrack::FilePath() const
{
    return Shared().investmentFileName.isEmpty() ? QString() : Shared().statementPath;
}

void LInvTrack::OpenFile()
{
    TakeLoaded(OpenInvestmentFile(Shared(), Asking(), [this] { return MayBeReplaced(); }));
}

void LInvTrack::TakeLoaded(const InvestmentReading& loaded)
{
    m_ui->IGrid->setFocus();
    if (!loaded.statement) {
        return;
    }
    Take(*loaded.statement);
    Switcher().FileChanged();
    m_changed = false;
    if (!loaded.isCalculated) {
        m_uncounted = true;
        m_ui->IChange->show();
    }
    GoTo({.row = 1});
}

void LInvTrack::SaveFile()
{
    m_ui->IGrid->setFocus();
    if (!KeepsAllAmounts()) {
        return;
    }
    const std::optional<InvestmentStatement> statement = CountTyped();
    if (!statement) {
        TellCannotCalculate();
    } else if (SaveInvestmentFile(Shared(), Asking(), *statement)) {
        Take(*statement);
        Switcher().FileChanged();
        m_changed = false;
    }
}

void LInvTrack::Print()
{
    if (m_counted.rowCount == 0) {
        Show(Shared(), Asking(), {.number = kNoDataToPrint});
        return;
    }
    PrintOnRequest(Shared(), Asking(), u"Investment statement"_s, [this](Printout& printout) {
        PrintInvestmentStatement(printout, m_counted, PrintHeading());
    });
}

QString LInvTrack::PrintHeading() const
{
    constexpr qsizetype kLongestName = 200; // the settings file may hold a name that fills pages
    QStringList parts{Shared().settings.userName.left(kLongestName), Shared().investmentFileName,
                      ShortDate(Shared().today(), Shared().locale)};
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

void LInvTrack::ShowHelp(bool opens)
{
    m_ui->ITextBox->setVisible(opens);
    m_ui->IHelp->setText(opens ? u"Close &Help"_s : u"Quick &Help"_s);
}

bool LInvTrack::MayBeReplaced()
{
    const bool somethingToLose =
        Shared().InvestmentRowCount != 0 || LastRowInUse(Shared().InvestmentRows) != 0;
    return !m_changed || !somethingToLose || !Ask(Shared(), Asking(), kGoBackAndSave);
}

bool LInvTrack::MayClose()
{
    return MayBeReplaced();
}

void LInvTrack::Exit()
{
    if (!MayClose()) {
        return;
    }
    Take({});
    m_changed = false;
    Shared().investmentFileName.clear();
    Switcher().SetCaption(u" Quillaby Menu"_s);
    Switcher().ShowForm(FormName::LotoMenu);
}
