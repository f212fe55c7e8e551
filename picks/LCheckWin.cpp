#include "picks/LCheckWin.h"

#include "app/DatabaseFacts.h"
#include "app/Printing.h"
#include "app/ShortDate.h"
#include "app/TextPictures.h"
#include "app/Twips.h"
#include "picks/WinnersHelp.h"
#include "ui_LCheckWin.h"

#include <QHeaderView>
#include <QResizeEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMustBeFromTo = 17;
constexpr int kFewestGridRows = 20;

} // namespace

LCheckWin::LCheckWin(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_ui(std::make_unique<Ui::LCheckWin>()),
      m_matches(shared.scratchRecords, shared.locale)
{
    m_ui->setupUi(this);
    m_ui->CTextBox->setPlainText(WinnersHelpText());
    SetUpGrid();
    SetUpTitle();
    SetUpBoxes();
    ConnectCommands();
    Events().WatchInputBoxes();
}

LCheckWin::~LCheckWin() = default;

void LCheckWin::SetUpGrid()
{
    m_ui->CGrid->setModel(&m_matches);
    m_aboutGrid = m_ui->CGrid->accessibleDescription();
    m_ui->CGrid->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_ui->CGrid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_ui->CGrid->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
}

void LCheckWin::SetUpTitle()
{
    constexpr int kMostLines = 4; // a longer title would take the room from the grid
    m_ui->TitleCheck->setMaximumHeight(kMostLines * (fontMetrics().lineSpacing() + 1));
}

void LCheckWin::SetUpBoxes()
{
    CInYourNum = {m_ui->CInYourNum0, m_ui->CInYourNum1, m_ui->CInYourNum2, m_ui->CInYourNum3,
                  m_ui->CInYourNum4, m_ui->CInYourNum5, m_ui->CInYourNum6, m_ui->CInYourNum7,
                  m_ui->CInYourNum8, m_ui->CInYourNum9};
    InputRules minimum;
    minimum.next = [this] { return CInYourNum.front(); };
    minimum.leave = [this](InputBox& box, bool edited) { return LeaveMinimum(box, edited); };
    m_ui->MatchNum->Follow(Shared(), minimum);

    for (std::size_t i = 0; i < CInYourNum.size(); ++i) {
        InputRules number;
        number.click = InputRules::Click::SelectsText; // a stray click takes no number out of a ticket
        number.next = [this, i]() -> QWidget* {
            const auto picks = static_cast<std::size_t>(Shared().database.Shape().picks);
            return i + 1 >= picks ? static_cast<QWidget*>(m_ui->CCalc) : CInYourNum.at(i + 1);
        };
        CInYourNum.at(i)->setAccessibleName(u"Number %1 to check"_s.arg(i + 1));
        CInYourNum.at(i)->Follow(Shared(), number);
        // Else "No Matches" would stand under numbers that it was not said of.
        connect(CInYourNum.at(i), &QLineEdit::textChanged, this, &LCheckWin::ClearCGrid);
    }
}

void LCheckWin::ConnectCommands()
{
    Events().OnClick(m_ui->CCalc, [this] { CheckNumbers(); });
    Events().OnClick(m_ui->CClearAll, [this] { ClearAll(); });
    Events().OnClick(m_ui->CPrinter, [this] { PrintMatches(); });
    Events().OnClick(m_ui->CHelp, [this] { ShowHelp(m_ui->CTextBox->isHidden()); });
    Events().OnClick(m_ui->CExit, [this] { Exit(); });
}

void LCheckWin::Load()
{
    constexpr int kUsualMinimum = 3;
    const DrawDatabase& database = Shared().database;
    Switcher().SetCaption(u" Check numbers"_s);
    m_search = {}; // what was found before, maybe in another database, is not printed any more
    m_ui->TitleCheck->setText(ShownTitle(database));
    m_ui->MatchNum->setText(database.Shape().picks < kUsualMinimum ? u" 1"_s : u" 3"_s);
    EmptyBoxes();
    ShowHelp(false);
    m_gridRows = kFewestGridRows;
    MakeCGrid();
    CInYourNum.front()->setFocus();
}

void LCheckWin::MakeCGrid()
{
    const int picks = Shared().database.Shape().picks;
    m_gridRows = std::max(m_gridRows, kFewestGridRows);
    for (std::size_t i = 0; i < CInYourNum.size() && !m_searching; ++i) {
        CInYourNum.at(i)->setVisible(static_cast<int>(i) < picks);
    }
    m_matches.Build(m_gridRows, picks);
    SayOfGrid({});
    SizeColumns();
    m_ui->CGrid->scrollToTop();
}

void LCheckWin::SizeColumns()
{
    constexpr int kRecordTwips = 1000;
    constexpr int kDateTwips = 1420;
    constexpr int kNumberTwips = 580;
    constexpr int kOpeningTwips = 9735; // of this form; in a wider window its columns are wider as well
    const qreal growth = std::max(qreal(1), qreal(width()) / TwipsToPixels(kOpeningTwips, logicalDpiX()));
    const auto size = [this, growth](int column, int twips, const QString& widest) {
        constexpr int kCellMargins = 12;
        const int stated = qRound(TwipsToPixels(twips, logicalDpiX()) * growth);
        const int needed = fontMetrics().horizontalAdvance(widest) + kCellMargins; // with large letters
        m_ui->CGrid->setColumnWidth(column, std::max(stated, needed));
    };
    size(MatchesModel::NumberColumn, kRecordTwips, u"Record"_s);
    size(MatchesModel::DateColumn, kDateTwips, ShortDate(QDate(2028, 12, 28), Shared().locale));
    for (int column = MatchesModel::FirstPickColumn; column < m_matches.columnCount(); ++column) {
        size(column, kNumberTwips, u"60"_s);
    }
}

void LCheckWin::resizeEvent(QResizeEvent* event)
{
    WorkingForm::resizeEvent(event);
    SizeColumns();
}

void LCheckWin::ClearCGrid()
{
    m_matches.Clear();
    SayOfGrid({});
}

void LCheckWin::SayOfGrid(const QString& found)
{
    m_ui->CGrid->setToolTip(found);
    m_ui->CGrid->setAccessibleDescription(found.isEmpty() ? m_aboutGrid : found + u' ' + m_aboutGrid);
}

void LCheckWin::EmptyBoxes()
{
    for (InputBox* box : CInYourNum) {
        box->setText({}); // not clear(), which Ctrl+Z would take back
    }
}

std::optional<Message> LCheckWin::LeaveMinimum(InputBox& box, bool edited)
{
    ClearCGrid(); // also when nothing was typed
    const int picks = Shared().database.Shape().picks;
    const double value = Val(box.text());
    if (value < 1 || value > picks) {
        box.setText(Format(picks, u"##"));
        return Message{.number = kMustBeFromTo, .arg1 = Str(picks), .arg2 = u" 1"_s};
    }
    if (edited) {
        box.setText(Format(value, u"##"));
    }
    return std::nullopt;
}

QStringList LCheckWin::NumberTexts() const
{
    QStringList texts;
    const auto picks = static_cast<std::size_t>(Shared().database.Shape().picks);
    for (std::size_t i = 0; i < picks; ++i) {
        texts << CInYourNum.at(i)->text();
    }
    return texts;
}

void LCheckWin::CheckNumbers()
{
    const LotteryShape shape = Shared().database.Shape();
    const QStringList numbers = NumberTexts();
    const int minimum = ToInt16(Val(m_ui->MatchNum->text())).value_or(qint16(shape.picks));
    ClearCGrid();
    m_search = {}; // numbers that are refused find nothing
    Shared().scratchRecords.clear();
    if (const std::optional<WinnerFault> fault = CheckYourNumbers(numbers, minimum, shape.highest)) {
        Show(Shared(), Asking(), {.number = fault->message, .arg1 = fault->arg1});
        return;
    }
    Asking().SetBusyPointer(true);
    m_searching = true;
    Search(numbers, minimum);
    m_searching = false;
    Asking().SetBusyPointer(false);
}

void LCheckWin::Search(const QStringList& numbers, int minimum)
{
    constexpr int kSpareRows = 10;
    const DrawDatabase& database = Shared().database;
    m_search = {
        .title = ShownTitle(database), .picks = database.Shape().picks, .query = QueryIn(numbers, minimum)};
    m_search.matchCount = qint16(ListWinners(database, m_search.query, Shared().scratchRecords));

    m_gridRows = m_search.matchCount + kSpareRows;
    MakeCGrid();
    SayOfGrid(FoundText(m_search));
    if (m_search.matchCount == 0) {
        m_matches.FillNoMatches();
        return;
    }
    m_matches.Fill(m_search.matchCount);
    ShowHelp(false);
}

void LCheckWin::ClearAll()
{
    EmptyBoxes(); // the minimum stays
    ClearCGrid();
    CInYourNum.front()->setFocus();
}

void LCheckWin::PrintMatches()
{
    if (m_search.matchCount == 0) {
        Show(Shared(), Asking(), {.number = kNoDataToPrint});
        return;
    }
    PrintOnRequest(Shared(), Asking(), u"Matching Numbers"_s, [this](Printout& printout) {
        PrintWinners(printout, m_search, Shared().scratchRecords, Shared().locale);
    });
}

void LCheckWin::ShowHelp(bool opens)
{
    if (m_ui->CTextBox->hasFocus()) {
        m_ui->CHelp->setFocus(Qt::OtherFocusReason);
    }
    m_ui->CTextBox->setVisible(opens);
    m_ui->CHelp->setText(opens ? u"Close &Help"_s : u"Quick &Help"_s);
    if (opens) {
        m_ui->CTextBox->setFocus(Qt::OtherFocusReason); // so that the keys scroll it
    }
}

void LCheckWin::Exit()
{
    Switcher().SetCaption(u" Quillaby Menu"_s);
    Switcher().ShowForm(FormName::LotoMenu);
}
