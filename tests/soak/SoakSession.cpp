#include "tests/soak/SoakSession.h"

#include "app/DatabaseRecovery.h"
#include "app/InputBox.h"
#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "database/NumberStatistics.h"
#include "invest/StatementRecovery.h"
#include "tests/AllForms.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QPlainTextEdit>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 kLongestWork = 600000; // on a machine that is busy with other things

/// No printer is there, so that a printout becomes a PDF file.
class NoPrinters : public PrinterDoor
{
public:
    [[nodiscard]] bool WorksOnAnyThread() const override { return true; }
    [[nodiscard]] DefaultPrinter Default() override
    {
        return {.name = {}, .paper = QPageSize(QPageSize::A4), .reason = u"There is no printer."_s};
    }
    [[nodiscard]] Outcome Print(const PrintedDocument&, const DefaultPrinter&, const PagesDone&) override
    {
        return Outcome::Failure(u"There is no printer."_s);
    }
};

QString NameOf(const QWidget& widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
}

/// The widgets that a user can do something with.
QList<QWidget*> Usable(const QWidget& window)
{
    QList<QWidget*> usable;
    const QList<QWidget*> all = window.findChildren<QWidget*>();
    for (QWidget* widget : all) {
        const bool answers = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<QLineEdit*>(widget) != nullptr ||
                             qobject_cast<QAbstractItemView*>(widget) != nullptr ||
                             qobject_cast<QComboBox*>(widget) != nullptr ||
                             qobject_cast<QAbstractSpinBox*>(widget) != nullptr ||
                             qobject_cast<QPlainTextEdit*>(widget) != nullptr;
        if (answers && widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty()) {
            usable << widget;
        }
    }
    return usable;
}

} // namespace

SoakPrompts::SoakPrompts(LGLOBAL& shared, SoakDice& dice, const SoakFiles& files, SoakLog log)
    : DialogPrompts(shared, std::make_unique<NoPrinters>()), m_state(shared), m_dice(dice), m_files(files),
      m_log(std::move(log))
{}

QString SoakPrompts::RandomFile()
{
    const auto anyOf = [this](const QStringList& list) {
        return list.at(m_dice.Below(static_cast<int>(list.size())));
    };
    const QDir folder(m_files.Folder());
    switch (m_state.fileDialogMode) {
    case kOpenLotteryFile:
        return m_dice.OneIn(4) ? folder.filePath(u"Saved0.Lto"_s) : anyOf(m_files.Databases());
    case kOpenInvestmentFile:
        return m_dice.OneIn(4) ? folder.filePath(u"Saved0.inv"_s) : anyOf(m_files.Statements());
    case kSaveLotteryFile:
        return folder.filePath(m_dice.OneIn(8) ? u"none/Saved.Lto"_s : u"Saved%1.Lto"_s.arg(m_dice.Below(3)));
    case kSaveInvestmentFile:
        return folder.filePath(m_dice.OneIn(8) ? u"Saved.txt"_s : u"Saved%1.inv"_s.arg(m_dice.Below(3)));
    default:
        return folder.filePath(u"Printed.pdf"_s);
    }
}

void SoakPrompts::FileDirectory()
{
    const bool isPrintout = m_state.fileDialogMode == kSavePdfFile;
    if (m_dice.OneIn(isPrintout ? 2 : 5)) {
        m_log(u"cancels the file dialog, mode %1"_s.arg(m_state.fileDialogMode));
        m_state.fileDialogMode = kFileDialogCancelled;
        return;
    }
    m_state.chosenPath = RandomFile();
    m_state.dialogFolder = m_files.Folder();
    m_log(u"chooses %1, mode %2"_s.arg(m_state.chosenPath).arg(m_state.fileDialogMode));
}

SoakSession::SoakSession(const Setting& setting)
    : m_setting(setting), m_dice(setting.dice), m_goal(RandomGoal(setting.dice)),
      m_prompts(m_shared, m_dice, setting.files, setting.log),
      m_window(m_shared, m_prompts, setting.programFolder),
      m_recovery(m_shared, m_prompts, m_window, setting.recoveryFolder,
                 {KeptDatabase(m_shared), KeptStatement(m_shared)})
{
    m_prompts.SetMainWindow(&m_window);
    AddAllForms(m_window, m_shared, m_prompts);
}

SoakSession::~SoakSession() = default;

int SoakSession::Run(int actions)
{
    m_toDo = actions;
    m_window.Start();
    m_window.show();
    m_window.activateWindow();
    m_recovery.Start(20ms);
    QTimer::singleShot(0, this, &SoakSession::Act);
    QApplication::exec();
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor(); // the program may end while it is busy
    }
    if (m_dice.OneIn(3)) {
        m_setting.log(u"ends uncleanly"_s);
    } else {
        m_recovery.EndCleanly();
    }
    return m_done;
}

void SoakSession::Act()
{
    if (m_done >= m_toDo && m_depth == 0) {
        m_setting.log(u"--- the session is over"_s);
        QCoreApplication::exit(0);
        return;
    }
    QTimer::singleShot(0, this, &SoakSession::Act); // in a dialog that this action opens, the next one acts
    ++m_depth;
    ++m_done;
    if (QWidget* dialog = QApplication::activeModalWidget()) {
        ActInDialog(*dialog);
    } else {
        ActInWindow();
    }
    --m_depth;
    if (m_depth > 0 || QThread::currentThread()->loopLevel() > 1) {
        return; // in the middle of something: a command that an access key started shows a dialog
    }
    if (QApplication::overrideCursor() == nullptr) {
        m_busy.invalidate();
        Check();
    } else if (!m_busy.isValid()) {
        m_busy.start();
    }
    Expect(!m_busy.isValid() || m_busy.elapsed() < kLongestWork, u"the busy pointer goes away"_s);
}

void SoakSession::ActInDialog(QWidget& dialog)
{
    constexpr int kPatience = 30;
    if (m_dialog != &dialog) {
        m_dialog = &dialog;
        m_inDialog = 0;
    }
    ++m_inDialog;
    if (QApplication::activeWindow() != &dialog) {
        dialog.activateWindow();
    }
    ++m_visits[QString::fromLatin1(dialog.metaObject()->className())];
    if (m_inDialog > kPatience || m_done > m_toDo) {
        Close(dialog);
        return;
    }
    ActIn(dialog);
}

/// A dialog may be busy, writing a file for one, and not be closed meanwhile.
void SoakSession::Close(QWidget& dialog)
{
    if (m_closing != &dialog) {
        m_closing = &dialog;
        m_closingSince.start();
        m_setting.log(u"closes "_s + NameOf(dialog));
    }
    Expect(m_closingSince.elapsed() < kLongestWork, u"a dialog closes: "_s + NameOf(dialog));
    if (m_inDialog % 2 == 0) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        dialog.close();
    }
    QThread::msleep(1);
}

void SoakSession::ActInWindow()
{
    WorkingForm* form = m_window.ActiveForm();
    if (form == nullptr) {
        return;
    }
    ++m_visits[form->objectName()];
    if (QApplication::activeWindow() != &m_window) {
        m_window.activateWindow(); // as a desktop does when a dialog is closed
    }
    if (m_dice.OneIn(60)) {
        // A few sizes, so that the end of a long run can be compared with its beginning: the toolkit keeps
        // the name of every picture of a button that it ever made, and makes one for each size of a button.
        const QSize size(640 + 140 * m_dice.Below(6), 458 + 130 * m_dice.Below(4));
        m_setting.log(u"resizes to %1 x %2"_s.arg(size.width()).arg(size.height()));
        m_window.resize(size);
    } else if (m_dice.OneIn(300)) {
        m_setting.log(u"closes the window"_s);
        m_window.close();
    } else if (m_dice.OneIn(4) && HeadForGoal(*form)) {
        return;
    } else if (!m_dice.OneIn(6) || !ActWhole(*form)) {
        ActIn(*form);
    }
}

SoakSession::Goal SoakSession::RandomGoal(SoakDice& dice)
{
    static const std::array goals{Goal{u"Lottery"_s, u"PickForm"_s},   Goal{u"LHotCold"_s, u"PickForm"_s},
                                  Goal{u"LCheckWin"_s, u"CheckWin"_s}, Goal{u"LGraph"_s, u"ShowGraph1"_s},
                                  Goal{u"Extract"_s, u"SelectRec"_s},  Goal{u"ChangeFnt"_s, u"PtrFnt"_s},
                                  Goal{u"LInvTrack"_s, u"InvTrack"_s}, Goal{u"LDbase"_s, u"DBaseForm"_s}};
    return goals.at(static_cast<std::size_t>(dice.Below(static_cast<int>(goals.size()))));
}

/// Hands that move at random are mostly in the editor, which every opened file leads to, and where there is
/// most to do.
bool SoakSession::HeadForGoal(WorkingForm& form)
{
    const QString here = form.objectName();
    QString button;
    if (here == u"LotoMenu") {
        button = m_shared.database.count == 0 ? u"LoadFile"_s : m_goal.menuButton;
    } else if (here == u"Lottery" && m_goal.form == u"LHotCold") {
        button = u"ShowHCD"_s;
    } else if (here == u"LDbase" && m_goal.form != here && m_dice.OneIn(4)) {
        button = u"DExit"_s;
    }
    auto* leads = form.findChild<QAbstractButton*>(button);
    if (button.isEmpty() || leads == nullptr || !leads->isEnabled()) {
        return false;
    }
    m_setting.log(u"heads for "_s + m_goal.form);
    QTest::mouseClick(leads, Qt::LeftButton, {}, QPoint(8, leads->height() / 2));
    return true;
}

/// What a user does in one go, and hands that move at random would hardly ever do.
bool SoakSession::ActWhole(WorkingForm& form)
{
    if (form.objectName() == u"LDbase") {
        TypeDraw(form);
        return true;
    }
    if (form.objectName() == u"LInvTrack") {
        TypeRow(form);
        return true;
    }
    return false;
}

void SoakSession::TypeDraw(WorkingForm& form)
{
    const LotteryShape shape = m_shared.database.Shape();
    QStringList numbers;
    const int first = m_dice.Below(shape.highest);
    for (int pick = 0; pick < shape.picks; ++pick) {
        numbers << QString::number((first + pick * 3) % shape.highest + 1);
    }
    m_setting.log(u"adds the draw "_s + numbers.join(u' '));
    for (int pick = 0; pick < shape.picks; ++pick) {
        auto* box = form.findChild<InputBox*>(u"DYourNumIn%1"_s.arg(pick));
        box->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(box, numbers.at(pick));
    }
    QTest::mouseClick(form.findChild<QAbstractButton*>(u"DCalc"_s), Qt::LeftButton);
}

void SoakSession::TypeRow(WorkingForm& form)
{
    auto* grid = form.findChild<QAbstractItemView*>(u"IGrid"_s);
    const int row = m_dice.Below(m_dice.OneIn(4) ? 108 : 12);
    m_setting.log(u"types a row at %1"_s.arg(row + 1));
    grid->setFocus();
    grid->setCurrentIndex(grid->model()->index(row, 0));
    QTest::keyClicks(grid, m_dice.OneIn(5) ? u"Sub Total"_s : u"Tickets"_s);
    grid->setCurrentIndex(grid->model()->index(row, 1));
    QTest::keyClicks(grid, QString::number(m_dice.Below(2000) - 1000));
}

void SoakSession::ActIn(QWidget& window)
{
    const QList<QWidget*> usable = Usable(window);
    if (usable.isEmpty() || m_dice.OneIn(10)) {
        QWidget* focused = window.focusWidget();
        PressKey(focused == nullptr ? window : *focused);
        return;
    }
    Use(*usable.at(m_dice.Below(static_cast<int>(usable.size()))));
}

void SoakSession::Use(QWidget& widget)
{
    if (qobject_cast<QAbstractButton*>(&widget) != nullptr) {
        const bool leads = widget.objectName().contains(u"Exit"_s);
        if (leads && m_dice.Below(4) != 0) {
            return; // a user stays for a while
        }
        m_setting.log(u"clicks "_s + NameOf(widget));
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
    } else if (auto* grid = qobject_cast<QAbstractItemView*>(&widget)) {
        UseGrid(*grid);
    } else {
        if (m_dice.OneIn(2)) {
            m_setting.log(u"clicks into "_s + NameOf(widget));
            QTest::mouseClick(&widget, Qt::LeftButton);
        } else {
            widget.setFocus(Qt::TabFocusReason);
        }
        TypeSomething(widget);
    }
}

void SoakSession::UseGrid(QAbstractItemView& view)
{
    const QPoint place(m_dice.Below(std::max(view.viewport()->width(), 1)),
                       m_dice.Below(std::max(view.viewport()->height(), 1)));
    m_setting.log(u"clicks into %1 at %2, %3"_s.arg(NameOf(view)).arg(place.x()).arg(place.y()));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    PressKey(view);
}

void SoakSession::TypeSomething(QWidget& widget)
{
    static const QStringList texts{u"1"_s,      u"7"_s,      u"49"_s,         u"60"_s,    u"0"_s,
                                   u"99"_s,     u"5"_s,      u"12"_s,         u"x"_s,     u"1.5"_s,
                                   u"-3"_s,     u"2001"_s,   u"32767"_s,      u"Lotto"_s, u"\"q\""_s,
                                   u"\u20AC"_s, u"\u00FC"_s, u"11/18/2026"_s, u"1/2"_s};
    const QString text = texts.at(m_dice.Below(static_cast<int>(texts.size())));
    m_setting.log(u"types %1 into %2"_s.arg(text, NameOf(widget)));
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    if (m_dice.OneIn(3)) {
        QTest::keyClick(&widget, Qt::Key_Return);
    }
}

void SoakSession::PressKey(QWidget& widget)
{
    static const QList<Qt::Key> keys{Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Escape,
                                     Qt::Key_Up,    Qt::Key_Down,    Qt::Key_PageDown,  Qt::Key_PageUp,
                                     Qt::Key_Home,  Qt::Key_End,     Qt::Key_Backspace, Qt::Key_Delete,
                                     Qt::Key_Space, Qt::Key_Left,    Qt::Key_Right,     Qt::Key_5};
    const bool isAccessKey = m_dice.OneIn(8);
    const Qt::Key key = isAccessKey ? static_cast<Qt::Key>(Qt::Key_A + m_dice.Below(26))
                                    : keys.at(m_dice.Below(static_cast<int>(keys.size())));
    m_setting.log(u"presses key %1%2 in %3"_s.arg(isAccessKey ? u"Alt+"_s : QString(),
                                                  QString::number(key, 16), NameOf(widget)));
    QTest::keyClick(&widget, key, isAccessKey ? Qt::AltModifier : Qt::NoModifier);
}

void SoakSession::Expect(bool holds, const QString& what)
{
    if (!holds) {
        m_setting.fail(what);
    }
}

void SoakSession::Check()
{
    CheckDatabase();
    CheckWindow();
}

void SoakSession::CheckDatabase()
{
    const DrawDatabase& database = m_shared.database;
    Expect(database.count >= 0 && database.count < kRecordRows, u"the count is within its bounds"_s);
    Expect(database.records.size() == kRecordRows, u"the table keeps its size"_s);
    for (int row = 1; row <= database.count; ++row) {
        Expect(CellHolds(database.records.at(static_cast<std::size_t>(row)).number, row),
               u"record %1 carries its number"_s.arg(row));
    }
    const bool editorIsOpen =
        m_window.ActiveForm() != nullptr && m_window.ActiveForm()->objectName() == u"LDbase";
    if (editorIsOpen && database.count > 0) {
        Expect(m_shared.NumberStats == CountNumbers(database, m_shared.WhichCnt),
               u"the counts equal a recount"_s);
    }
    Expect(m_shared.InvestmentRowCount >= 0 && m_shared.InvestmentRowCount <= kMostStatementRows,
           u"the statement's count is within its bounds"_s);
    const bool isSaved = database.count > 0 && database.fileName.startsWith(u"Saved"_s) &&
                         !KeptDatabase(m_shared).unsaved().has_value();
    if (isSaved && m_dice.OneIn(10)) {
        QByteArray onDisk;
        QByteArray inMemory;
        const QString path = QDir(m_setting.files.Folder()).filePath(database.fileName);
        Expect(ReadFileBytes(path, onDisk).ok && WriteLotteryFile(database, m_shared.locale, inMemory).ok,
               u"a saved database can be read and written"_s);
        // A title with a quote in it is written as it stands, and reads back as another.
        const bool holdsItsTitle = onDisk.first(onDisk.indexOf('\n') + 1).count('"') == 2;
        Expect(onDisk == inMemory || !holdsItsTitle, u"a saved database is what its file holds"_s);
    }
}

void SoakSession::CheckWindow()
{
    if (!m_window.isVisible()) {
        return; // closed: the program is about to end
    }
    int shown = 0;
    const QList<WorkingForm*> forms = m_window.findChildren<WorkingForm*>();
    for (const WorkingForm* form : forms) {
        shown += form->isVisible() ? 1 : 0;
    }
    Expect(shown == 1 && m_window.ActiveForm() != nullptr && m_window.ActiveForm()->isVisible(),
           u"the window shows one form, not %1"_s.arg(shown));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        Expect(window == &m_window || !window->isVisible() || !window->isModal(),
               u"no dialog is left open: "_s + NameOf(*window));
    }
    Expect(m_shared.fileDialogMode == kFileDialogIdle, u"the file dialog's mode is back to idle"_s);
    Expect(m_shared.layoutSize == 8670 || m_shared.layoutSize == 6810, u"the layout is one of two"_s);
    Expect(!m_window.windowTitle().isEmpty(), u"the window has a caption"_s);
}
