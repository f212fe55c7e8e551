#include "app/LotoMenu.h"

#include "app/DatabaseFacts.h"
#include "app/DatabaseRecovery.h"
#include "app/DatabaseReport.h"
#include "app/LotteryFileCommands.h"
#include "app/Printing.h"
#include "app/RecentFiles.h"
#include "app/RecentFilesMenu.h"
#include "app/StartUp.h"
#include "app/ToolTips.h"
#include "ui_LotoMenu.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNoRecordsToWorkWith = 44;

/// What stands in the place of the database while there is none.
QString HowToBegin()
{
    return u"No lottery is open yet.\n"
           "To look around, open Sample.Lto with 'Open a File from Disk'.\n"
           "To keep your own lottery, start with 'View and Edit Database'."_s;
}

} // namespace

LotoMenu::LotoMenu(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QString programFolder,
                   QWidget* parent)
    : WorkingForm(shared, prompts, switcher, parent), m_programFolder(std::move(programFolder)),
      m_ui(std::make_unique<Ui::LotoMenu>())
{
    m_ui->setupUi(this);
    QFont title = m_ui->Label2->font();
    title.setPointSizeF(title.pointSizeF() * 2);
    title.setBold(true);
    m_ui->Label2->setFont(title);
    m_ui->Label3->SetColors({QColor(0xF0, 0x50, 0x50), QColor(0xF5, 0xD0, 0x30), QColor(0x30, 0xC0, 0xD8)});
    m_ui->Label4->SetColors({QColor(0x58, 0xC8, 0x58), QColor(0xE8, 0xE8, 0xE8), QColor(0xD8, 0x60, 0xC8)});
    ConnectButtons();
    QTimer::singleShot(0, this, &LotoMenu::SetUpRecentFiles); // not in the way of the first picture
}

LotoMenu::~LotoMenu() = default;

void LotoMenu::ConnectButtons()
{
    Events().OnClick(m_ui->DBaseForm, [this] {
        Asking().SetBusyPointer(true);
        Switcher().ShowForm(FormName::LDbase);
    });
    Events().OnClick(m_ui->LoadFile, [this] { OpenFile(); });
    Events().OnClick(m_ui->SaveFile, [this] { SaveFileToDisk(); });
    Events().OnClick(m_ui->PickForm, [this] { Switcher().ShowForm(FormName::Lottery); });
    Events().OnClick(m_ui->CheckWin, [this] { ShowWithRecords(FormName::LCheckWin); });
    Events().OnClick(m_ui->ShowGraph1, [this] { ShowGraphs(); });
    Events().OnClick(m_ui->SelectRec, [this] { ExtractRecords(); });
    Events().OnClick(m_ui->InvTrack, [this] { Switcher().ShowForm(FormName::LInvTrack); });
    Events().OnClick(m_ui->PtrFnt, [this] { Personalize(); });
    Events().OnClick(m_ui->PrintDbase, [this] { PrintDatabase(); });
    Events().OnClick(m_ui->HowtoUse, [this] { Switcher().ShowHelp(); });
    Events().OnClick(m_ui->Exit1Butt, [this] { Exit(); });
}

void LotoMenu::SetUpRecentFiles()
{
    auto* files = new RecentFilesMenu(Shared(), this);
    files->setObjectName(u"RecentFiles"_s);
    connect(files, &RecentFilesMenu::Chosen, this, &LotoMenu::OpenRecentFile);
    m_ui->OpenRecent->setMenu(files);
}

void LotoMenu::OpenRecentFile(const QString& path)
{
    // Here the file is looked at for the first time.
    if (QFileInfo::exists(path)) {
        Q_EMIT RecentFileChosen(path);
        return;
    }
    const QFileInfo file(path);
    const QString text = u"\"%1\" is not there any more.\n\nIt was in %2."_s.arg(
        file.fileName(), QDir::toNativeSeparators(file.absolutePath()));
    if (Asking().Offer(text, u"&Remove from List"_s)) {
        ForgetFile(Shared().recentFilesList, path);
    }
}

bool LotoMenu::OpensDropped(const QString& /*path*/) const
{
    return true;
}

void LotoMenu::resizeEvent(QResizeEvent* event)
{
    WorkingForm::resizeEvent(event);
    // A large window has room for large letters. The opening size keeps the desktop's own, which costs no
    // time.
    constexpr QSizeF kOpening(43, 31); // in heights of a line
    constexpr qreal kLargest = 1.5;
    const QSizeF lines = QSizeF(size()) / fontMetrics().height();
    // In eighths: the room is never exactly the opening size, and each size of letters is a font to be
    // loaded.
    constexpr qreal kSteps = 8;
    const qreal room = std::min(lines.width() / kOpening.width(), lines.height() / kOpening.height());
    const qreal growth = std::clamp(std::floor(room * kSteps) / kSteps, qreal(1), kLargest);
    if (growth > 1 && !m_leastSize.isValid()) {
        m_leastSize = WorkingForm::minimumSizeHint();
    }
    QFont letters = font();
    letters.setPointSizeF(letters.pointSizeF() * growth);
    const QList<QAbstractButton*> buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->font() != letters) {
            button->setFont(letters);
        }
    }
    if (growth == 1) {
        m_leastSize = {};
    }
}

QSize LotoMenu::minimumSizeHint() const
{
    return m_leastSize.isValid() ? m_leastSize : WorkingForm::minimumSizeHint();
}

void LotoMenu::Load()
{
    Switcher().SetCaption(u" Quillaby Menu"_s);
    InitialiseSharedState(Shared(), m_programFolder);
    ShowUserName();
    ShowFileInMemory();
}

QPoint LotoMenu::FrontPlace() const
{
    return Shared().layoutSize < kLargeLayoutFrom ? QPoint(-25, -15) : QPoint(1000, 1000);
}

void LotoMenu::ShowUserName()
{
    constexpr qsizetype kLongest = 200; // the file may hold any name; this is more than the window shows
    m_ui->MyName->setText(Shared().settings.userName.left(kLongest));
    m_ui->MyName->setVisible(!Shared().settings.userName.isEmpty());
}

void LotoMenu::ShowFileInMemory()
{
    const DrawDatabase& database = Shared().database;
    m_ui->InfoLabel->setText(
        database.count == 0 ? QString() : u" File in Memory \r\n  "_s + ShownTitle(database) + u"  "_s);
    if (database.count != 0) { // not at the start, whose picture need not wait for another font
        // A title of any length must not push the window wider or the buttons together; all of it is in the
        // tip.
        constexpr int kMostLines = 3;
        m_ui->InfoLabel->setMaximumHeight(kMostLines * m_ui->InfoLabel->fontMetrics().lineSpacing());
        SetLiteralToolTip(*m_ui->InfoLabel, ShownTitle(database));
    }
    m_ui->InfoLabel->setVisible(database.count != 0);
    const QString facts = DatabaseFacts(database, Shared().locale, !DiffersFromItsFile(Shared()));
    m_ui->Facts->setText(facts.isEmpty() ? HowToBegin() : facts);
    // Short lines stand as they are: to try how they might wrap would take a tenth of the start.
    const bool wraps = !facts.isEmpty();
    m_ui->Facts->setSizePolicy(wraps ? QSizePolicy::Ignored : QSizePolicy::Minimum, QSizePolicy::Preferred);
    m_ui->Facts->setWordWrap(
        wraps); // after it: this marks the policy as one whose height goes with the width
}

void LotoMenu::AddPanel(QWidget* panel)
{
    m_ui->layout->insertWidget(m_ui->layout->indexOf(m_ui->MyName) + 1, panel);
}

void LotoMenu::OpenNamedFile(const QString& path)
{
    Switcher().HideForm();
    if (OpenLotteryFile(Shared(), Asking(), path)) {
        Shared().dialogFolder = QFileInfo(path).absolutePath(); // where the user will look for it when saving
    }
    Switcher().ShowForm(FormName::LDbase);
}

void LotoMenu::OpenFile()
{
    Switcher().HideForm();
    LoadFile(Shared(), Asking());
    // In every case: after a good load, after a cancel and after a failure.
    Switcher().ShowForm(FormName::LDbase);
}

void LotoMenu::SaveFileToDisk()
{
    Switcher().HideForm();
    SaveFile(Shared(), Asking());
    Switcher().ShowForm(FormName::LotoMenu);
}

void LotoMenu::ShowWithRecords(FormName form)
{
    if (Shared().database.count >= 1) {
        Switcher().ShowForm(form);
    } else {
        Show(Shared(), Asking(), {.number = kNoRecordsToWorkWith});
    }
}

void LotoMenu::ShowGraphs()
{
    if (Shared().database.count >= 1) {
        Shared().graphCaller = kGraphFromMenu;
    }
    ShowWithRecords(FormName::LGraph);
}

void LotoMenu::Personalize()
{
    Switcher().RunDialog(FormName::ChangeFnt);
    ShowUserName();
    Switcher().ShowForm(FormName::LotoMenu);
}

void LotoMenu::ExtractRecords()
{
    if (Shared().database.count < 1) {
        Show(Shared(), Asking(), {.number = kNoRecordsToWorkWith});
    } else if (Switcher().RunDialog(FormName::Extract)) {
        Switcher().ShowForm(FormName::LDbase); // also after a cancel
    }
}

void LotoMenu::PrintDatabase()
{
    if (Shared().database.count == 0) {
        Show(Shared(), Asking(), {.number = kNoRecordsToWorkWith});
        return;
    }
    PrintOnRequest(Shared(), Asking(), u"Winning numbers in "_s + Shared().database.title,
                   [this](Printout& printout) {
                       PrintDatabaseReport(printout, Shared().database, Shared().WhichCnt, Shared().locale);
                   });
}

void LotoMenu::Exit()
{
    if (MayEndProgram(Shared(), Asking())) {
        Switcher().EndProgram();
    }
}
