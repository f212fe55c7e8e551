#include "app/AMsgbox.h"
#include "app/AllYesNo.h"
#include "app/PrintPreview.h"
#include "database/InRecNum.h"
#include "invest/InInvNum.h"
#include "tests/FormBench.h"

#include <QFileDialog>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

class HelpDeskTest : public FormBench
{
protected:
    HelpWindow& Help() { return *m_help->Window(); }
    QString Page() { return m_help->Window() == nullptr ? QString() : Help().PageName(); }

    /// Clicks as the desktop does: a window that waits for another one does not get the click.
    static void ClickThrough(QPushButton& button)
    {
        QWindow* window = button.window()->windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {}, button.mapTo(button.window(), button.rect().center()));
    }

    /// Presses F1 in a dialog while it runs; the help has to show that page, to take a click, and to go.
    void HelpInDialog(QDialog& dialog, const QString& page)
    {
        SCOPED_TRACE(dialog.objectName().toStdString());
        bool reached = false;
        WhenNextModalOpens([&](QWidget* modal) {
            EXPECT_EQ(modal, &dialog);
            QTest::keyClick(modal->focusWidget() == nullptr ? modal : modal->focusWidget(), Qt::Key_F1);
            EXPECT_EQ(Page(), page);
            reached = Help().isVisible();
            TakesAClick();
            Help().close();
            EXPECT_TRUE(modal->isVisible()) << "closing the help closes nothing else";
            modal->close();
        });
        dialog.exec();
        EXPECT_TRUE(reached);
    }

    void TakesAClick()
    {
        Help().ShowPage(u"keys"_s);
        EXPECT_EQ(Page(), u"keys"_s);
        ClickThrough(*Help().findChild<QPushButton*>(u"Home"_s));
        EXPECT_EQ(Page(), u"welcome"_s) << "the window waits for the dialog";
    }
};

} // namespace

TEST_F(HelpDeskTest, TheMenusButtonOpensTheHelpFileAtItsContentsAndTheMenuStays)
{
    Start();
    Click(u"HowtoUse"_s);
    ASSERT_NE(m_help->Window(), nullptr);
    EXPECT_TRUE(Help().isVisible());
    EXPECT_FALSE(Help().isModal());
    EXPECT_EQ(Page(), u"welcome"_s);
    EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LotoMenu"_s);
    EXPECT_TRUE(m_window.ActiveForm()->isVisible());
    EXPECT_TRUE(m_prompts.notices.isEmpty());
    EXPECT_EQ(m_window.Menu().findChild<QObject*>(u"CommonDialog1"_s), m_help);
}

TEST_F(HelpDeskTest, TheWindowIsNotMadeBeforeItIsWanted)
{
    Start();
    Click(u"DBaseForm"_s);
    EXPECT_EQ(m_help->Window(), nullptr);
}

TEST_F(HelpDeskTest, TheContentsComeAgainWhateverWasReadBefore)
{
    Start();
    Click(u"HowtoUse"_s);
    Help().SearchFor(u"odds"_s);
    Click(u"HowtoUse"_s);
    EXPECT_EQ(Page(), u"welcome"_s);
    EXPECT_TRUE(Help().findChild<QWidget*>(u"Contents"_s)->isVisible());
}

TEST_F(HelpDeskTest, F1InAnyControlOfAFormOpensThePageOfTheForm)
{
    const std::vector<std::pair<FormName, QString>> forms{
        {FormName::LotoMenu, u"menu"_s},        {FormName::LDbase, u"editor"_s},
        {FormName::Lottery, u"selectorium"_s},  {FormName::LCheckWin, u"winners"_s},
        {FormName::LGraph, u"graphs"_s},        {FormName::LInvTrack, u"tracker"_s},
        {FormName::LHotCold, u"hot-cold-due"_s}};
    Start();
    FillDatabase(30);
    for (const auto& [form, page] : forms) {
        SCOPED_TRACE(page.toStdString());
        m_window.ShowForm(form);
        QTest::keyClick(m_window.ActiveForm(), Qt::Key_F1);
        EXPECT_EQ(Page(), page);
        for (QWidget* control : m_window.ActiveForm()->findChildren<QWidget*>()) {
            if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
                Help().ShowPage(u"keys"_s);
                QTest::keyClick(control, Qt::Key_F1);
                EXPECT_EQ(Page(), page) << control->objectName().toStdString();
            }
        }
    }
}

TEST_F(HelpDeskTest, F1InTheWindowItselfIsForTheFormInIt)
{
    OpenEditor();
    QTest::keyClick(&m_window, Qt::Key_F1);
    EXPECT_EQ(Page(), u"editor"_s);
    m_window.HideForm();
    QTest::keyClick(&m_window, Qt::Key_F1);
    EXPECT_EQ(Page(), u"welcome"_s);
}

TEST_F(HelpDeskTest, F1WithAnotherKeyHeldIsNotForTheHelp)
{
    Start();
    QTest::keyClick(m_window.ActiveForm(), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(m_help->Window(), nullptr);
}

TEST_F(HelpDeskTest, F1LeavesTheFormAndWhatIsTypedInItAlone)
{
    OpenEditor();
    TypeInto(u"DYourNumIn0"_s, u"17"_s);
    QTest::keyClick(&NumberBox(0), Qt::Key_F1);
    EXPECT_EQ(Page(), u"editor"_s);
    EXPECT_EQ(NumberBox(0).text(), u"17"_s);
    EXPECT_TRUE(Find<QWidget>(u"HelpBoxD"_s).isHidden()) << "the quick help is another thing";
}

TEST_F(HelpDeskTest, F1InADialogOpensItsPageWhichCanBeReadAndClosed)
{
    Start();
    FillDatabase(30);
    AMsgbox message(m_shared, u"text"_s, &m_window);
    HelpInDialog(message, u"messages"_s);
    AllYesNo question(m_shared, &m_window);
    HelpInDialog(question, u"messages"_s);
    PrintPreview preview({.name = u"Pages"_s, .pages = {{}}, .charts = {}}, QPageSize(QPageSize::A4),
                         &m_window);
    HelpInDialog(preview, u"printing"_s);
    InRecNum records(m_shared, &m_window);
    HelpInDialog(records, u"records"_s);
    InInvNum line(m_shared, 1, &m_window);
    HelpInDialog(line, u"tracker"_s);
    ChangeFnt settings(m_shared, m_prompts, m_window, &m_window);
    HelpInDialog(settings, u"settings"_s);
    Extract extract(m_shared, m_prompts, m_window, &m_window);
    HelpInDialog(extract, u"extract"_s);
    QFileDialog files(&m_window);
    files.setObjectName(u"CMDialog1"_s); // as the program's own is called
    files.setOption(QFileDialog::DontUseNativeDialog);
    HelpInDialog(files, u"file-dialogs"_s);
}

TEST_F(HelpDeskTest, TheHelpStaysToBeReadWhenTheDialogIsGone)
{
    Start();
    Click(u"HowtoUse"_s); // it stands by itself before
    AMsgbox message(m_shared, u"text"_s, &m_window);
    WhenNextModalOpens([&](QWidget* modal) {
        QTest::keyClick(modal, Qt::Key_F1);
        EXPECT_EQ(Help().windowHandle()->transientParent(), modal->windowHandle());
        modal->close();
    });
    message.exec();
    Settle();
    EXPECT_TRUE(Help().isVisible());
    EXPECT_EQ(Page(), u"messages"_s);
    EXPECT_EQ(Help().windowHandle()->transientParent(), nullptr);
    TakesAClick();
    ClickThrough(Find<QPushButton>(u"HowtoUse"_s));
    EXPECT_EQ(Page(), u"welcome"_s) << "and the program takes clicks as well";
}

TEST_F(HelpDeskTest, OverADialogInADialogTheHelpGoesBackToTheOneBelow)
{
    Start();
    FillDatabase(30);
    Extract below(m_shared, m_prompts, m_window, &m_window);
    WhenNextModalOpens([&](QWidget* outer) {
        AMsgbox above(m_shared, u"text"_s, outer);
        WhenNextModalOpens([&](QWidget* inner) {
            QTest::keyClick(inner, Qt::Key_F1);
            TakesAClick();
            inner->close();
        });
        above.exec();
        Settle();
        EXPECT_TRUE(Help().isVisible());
        EXPECT_EQ(Help().windowHandle()->transientParent(), outer->windowHandle());
        TakesAClick();
        outer->close();
    });
    below.exec();
    Settle();
    EXPECT_TRUE(Help().isVisible());
    TakesAClick();
}

TEST_F(HelpDeskTest, ADialogThatOpensWhileTheHelpIsReadGetsTheHelpByF1)
{
    Start();
    Click(u"HowtoUse"_s);
    AllYesNo question(m_shared, &m_window);
    HelpInDialog(question, u"messages"_s);
}

TEST_F(HelpDeskTest, F1InTheHelpTellsAboutTheHelp)
{
    Start();
    Click(u"HowtoUse"_s);
    QTest::keyClick(&Help(), Qt::Key_F1);
    EXPECT_EQ(Page(), u"about-help"_s);
    EXPECT_TRUE(Help().isVisible());
}

TEST_F(HelpDeskTest, TheProgramEndsWithItsMainWindowThoughTheHelpIsOpen)
{
    Start();
    Click(u"HowtoUse"_s);
    QTimer::singleShot(0, &m_window, [this] { m_window.close(); });
    QTimer::singleShot(5000, &m_window, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(HelpDeskTest, ClosingTheHelpDoesNotEndTheProgram)
{
    Start();
    Click(u"HowtoUse"_s);
    constexpr int kStillRunning = 7;
    QTimer::singleShot(0, &m_window, [this] {
        QTest::keyClick(&Help(), Qt::Key_Escape);
        EXPECT_FALSE(Help().isVisible());
        QTimer::singleShot(0, &m_window, [] { QCoreApplication::exit(kStillRunning); });
    });
    EXPECT_EQ(QApplication::exec(), kStillRunning);
    EXPECT_TRUE(m_window.isVisible());
}
