#include "app/DialogPrompts.h"
#include "app/MDIContainer.h"
#include "invest/InvestmentFile.h"
#include "invest/LInvTrack.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"
#include "tests/TestFiles.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// The tracker with the program's own dialogs.
class TrackerWithDialogs : public testing::Test
{
protected:
    TrackerWithDialogs()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_prompts.SetMainWindow(&m_window);
        m_window.AddForm(FormName::LInvTrack, [this](FormSwitcher& switcher, QWidget* parent) {
            return new LInvTrack(m_shared, m_prompts, switcher, parent);
        });
        m_window.Start();
        m_window.show();
        EXPECT_TRUE(Activate(m_window));
        m_window.ShowForm(FormName::LInvTrack);
    }
    ~TrackerWithDialogs() override { QDir::setCurrent(m_oldFolder); }

    template <typename Widget>
    Widget& Find(const QString& name)
    {
        auto* widget = m_window.ActiveForm()->findChild<Widget*>(name);
        if (widget == nullptr) {
            throw std::runtime_error("no widget " + name.toStdString());
        }
        return *widget;
    }
    void Click(const QString& button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
    void Type(const QString& text) { QTest::keyClicks(&Find<QTableView>(u"IGrid"_s), text); }
    void Press(Qt::Key key) { QTest::keyClick(&Find<QTableView>(u"IGrid"_s), key); }
    QString At(int row, int column)
    {
        return Find<QTableView>(u"IGrid"_s).model()->index(row - 1, column).data().toString();
    }
    QString FrontForm() { return m_window.ActiveForm()->objectName(); }
    /// Presses the button and does something with the dialog that opens, which has to close it.
    void ClickAnd(const QString& button, const std::function<void(QWidget* dialog)>& act)
    {
        bool opened = false;
        WhenModalOpens(
            [&](QWidget* dialog) {
                opened = true;
                act(dialog);
            },
            &m_watch);
        Click(button);
        EXPECT_TRUE(opened) << "no dialog after " << button.toStdString();
    }
    /// Accepts the file dialog with a name typed into it.
    static void AcceptName(QWidget* window, const QString& name)
    {
        auto* dialog = qobject_cast<QFileDialog*>(window);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(name);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    QTemporaryDir m_folder;
    QString m_oldFolder = QDir::currentPath();
    LGLOBAL m_shared;
    DialogPrompts m_prompts{m_shared};
    MDIContainer m_window{m_shared, m_prompts, m_folder.path()};
    QObject m_watch;
};

TEST_F(TrackerWithDialogs, EscapeAtTheQuestionKeepsTheStatement)
{
    Type(u"Tickets"_s);
    const auto escape = [](QWidget* dialog) {
        EXPECT_EQ(dialog->objectName(), u"AllYesNo"_s);
        EXPECT_EQ(dialog->findChild<QLabel*>(u"Label1"_s)->text(),
                  u" file in memory will be erased. Do you wish to go back and save it to Disk?."_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
    ClickAnd(u"IExit"_s, escape);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(At(1, 0), u"Tickets"_s);
    WhenModalOpens(escape, &m_watch);
    EXPECT_FALSE(m_window.close());
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_EQ(At(1, 0), u"Tickets"_s);
    ClickAnd(u"IExit"_s, [](QWidget* dialog) {
        QTest::mouseClick(dialog->findChild<QPushButton*>(u"AllNo"_s), Qt::LeftButton);
    });
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(TrackerWithDialogs, AFileIsSavedUnderTheNameTypedIntoTheDialogAndOpenedAgain)
{
    Type(u"Tickets"_s);
    Press(Qt::Key_Right);
    Type(u"-12"_s);
    ClickAnd(u"ISaveFile"_s, [&](QWidget* dialog) {
        EXPECT_EQ(qobject_cast<QFileDialog*>(dialog)->nameFilters(),
                  QStringList{u"Investment Database Database (*.inv)"_s});
        AcceptName(dialog, u"Mine.inv"_s);
    });
    EXPECT_TRUE(BytesOf(m_folder.filePath(u"Mine.inv"_s)).startsWith("1\r\n\"Tickets\",-12\r\n,\r\n"));
    EXPECT_EQ(m_shared.investmentFileName, u"Mine.inv"_s);
    EXPECT_FALSE(Find<QLabel>(u"IChange"_s).isVisible());
    ASSERT_TRUE(Activate(m_window));
    Type(u"5"_s);
    ClickAnd(u"IOpenFile"_s, [&](QWidget* dialog) {
        EXPECT_EQ(qobject_cast<QFileDialog*>(dialog)->nameFilters(),
                  QStringList{u"Investment Database (*.inv)"_s});
        WhenNextModalOpens(
            [](QWidget* question) {
                QTest::mouseClick(question->findChild<QPushButton*>(u"AllNo"_s), Qt::LeftButton);
            },
            &m_watch);
        QMetaObject::invokeMethod(dialog, "accept"); // on the file in memory
    });
    EXPECT_EQ(At(1, 1), u"-12.00"_s);
}

TEST_F(TrackerWithDialogs, ANameWithoutItsEndingIsRefused)
{
    Type(u"Tickets"_s);
    ClickAnd(u"ISaveFile"_s, [&](QWidget* dialog) {
        WhenNextModalOpens(
            [](QWidget* message) {
                EXPECT_EQ(message->findChild<QPlainTextEdit*>(u"TextMsg"_s)->toPlainText(),
                          u"Bad filename, must be in the form MYFILE.INV"_s);
                QTest::keyClick(message, Qt::Key_Escape);
            },
            &m_watch);
        AcceptName(dialog, u"Mine"_s);
    });
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList());
    EXPECT_TRUE(Find<QLabel>(u"IChange"_s).isVisible());
}

TEST_F(TrackerWithDialogs, AnAmountWithoutADescriptionIsSpokenOfBeforeTheFileDialog)
{
    Press(Qt::Key_Right);
    Type(u"5"_s);
    ClickAnd(u"ISaveFile"_s, [](QWidget* dialog) {
        EXPECT_EQ(dialog->objectName(), u"AMsgbox"_s);
        EXPECT_TRUE(
            dialog->findChild<QPlainTextEdit*>(u"TextMsg"_s)->toPlainText().startsWith(u"Row 1 has"_s));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    ASSERT_TRUE(Activate(m_window));
    EXPECT_EQ(m_window.focusWidget()->objectName(), u"IGrid"_s);
    QTest::keyClicks(m_window.focusWidget(), u"Gift"_s);
    EXPECT_EQ(At(1, 0), u"Gift"_s);
    EXPECT_EQ(At(1, 1), u"5.00"_s);
}

} // namespace
