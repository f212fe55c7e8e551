#include "app/AMsgbox.h"
#include "app/AllYesNo.h"
#include "app/DialogPrompts.h"
#include "app/FileDir.h"
#include "app/Prompts.h"
#include "app/Twips.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class Dialogs : public testing::Test
{
protected:
    Dialogs()
    {
        m_window.setGeometry(0, 0, 641, 458);
        m_window.show();
        m_prompts.SetMainWindow(&m_window);
    }

    QMainWindow m_window;
    LGLOBAL m_shared;
    DialogPrompts m_prompts{m_shared};
};

TEST_F(Dialogs, AMessageStandsInAReadOnlyTextUnderTheCaptionHelp)
{
    WhenModalOpens([](QWidget* box) {
        EXPECT_EQ(box->objectName(), u"AMsgbox"_s);
        EXPECT_EQ(box->windowTitle(), u"Help"_s);
        auto* text = box->findChild<QPlainTextEdit*>(u"TextMsg"_s);
        EXPECT_EQ(text->toPlainText(), u"Must be from 1  to 2000"_s);
        EXPECT_TRUE(text->isReadOnly());
        EXPECT_TRUE(box->findChild<QLabel*>(u"Reason"_s)->isHidden());
        auto* exit = box->findChild<QPushButton*>(u"AMsgExit"_s);
        EXPECT_EQ(exit->text(), u"E&xit"_s);
        QTest::mouseClick(exit, Qt::LeftButton);
    });
    Show(m_shared, m_prompts, {.number = 17, .arg1 = u"2000"_s, .arg2 = u"1"_s});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Dialogs, ANumberWithoutATextShowsAnEmptyBox)
{
    for (const int number : {0, 34, 53, 1000}) {
        bool seen = false;
        WhenModalOpens([&](QWidget* box) {
            seen = true;
            EXPECT_EQ(box->findChild<QPlainTextEdit*>(u"TextMsg"_s)->toPlainText(), QString());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        Show(m_shared, m_prompts, {.number = number});
        EXPECT_TRUE(seen);
    }
}

TEST_F(Dialogs, AReasonStandsBelowTheMessageAndNotInTheNext)
{
    WhenModalOpens([](QWidget* box) {
        auto* reason = box->findChild<QLabel*>(u"Reason"_s);
        EXPECT_TRUE(reason->isVisible());
        EXPECT_EQ(reason->text(), u"No space left on device"_s);
        EXPECT_EQ(reason->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->findChild<QPlainTextEdit*>(u"TextMsg"_s)->toPlainText(),
                  u"Bad Filename. Must be in the form MYFILE.Lto"_s);
        QTest::keyClick(box, Qt::Key_Return);
    });
    Show(m_shared, m_prompts, {.number = 14, .reason = u"No space left on device"_s});
    EXPECT_EQ(m_shared.messageReason, QString());
}

TEST_F(Dialogs, TheLongestMessageIsSeenWhole)
{
    for (const int number : {16, 44}) {
        WhenModalOpens([](QWidget* box) {
            QCoreApplication::processEvents();
            auto* text = box->findChild<QPlainTextEdit*>(u"TextMsg"_s);
            EXPECT_FALSE(text->verticalScrollBar()->isVisible());
            box->close();
        });
        Show(m_shared, m_prompts, {.number = number});
    }
}

struct Answering {
    int question;
    std::function<void(QWidget*)> act;
    bool yes;
};

TEST_F(Dialogs, AnOfferIsTakenByItsButtonAndExitLeavesIt)
{
    const auto offered = [this](const QString& button) {
        WhenModalOpens([&](QWidget* box) {
            EXPECT_EQ(box->findChild<QPlainTextEdit*>(u"TextMsg"_s)->toPlainText(), u"It is gone."_s);
            EXPECT_EQ(box->findChild<QPushButton*>(u"OfferButt"_s)->text(), u"&Remove"_s);
            EXPECT_EQ(box->focusWidget()->objectName(), u"AMsgExit"_s);
            QTest::mouseClick(box->findChild<QPushButton*>(button), Qt::LeftButton);
        });
        return m_prompts.Offer(u"It is gone."_s, u"&Remove"_s);
    };
    EXPECT_TRUE(offered(u"OfferButt"_s));
    EXPECT_FALSE(offered(u"AMsgExit"_s));
}

TEST_F(Dialogs, AMessageOffersNothing)
{
    WhenModalOpens([](QWidget* box) {
        EXPECT_TRUE(box->findChild<QPushButton*>(u"OfferButt"_s)->isHidden());
        box->close();
    });
    m_prompts.Notice(u"It is gone."_s);
}

TEST_F(Dialogs, AQuestionIsAnsweredByItsButtonsAndAnUnansweredOneLosesNothing)
{
    const auto click = [](const QString& name) {
        return
            [name](QWidget* box) { QTest::mouseClick(box->findChild<QPushButton*>(name), Qt::LeftButton); };
    };
    const auto escape = [](QWidget* box) { QTest::keyClick(box, Qt::Key_Escape); };
    const auto close = [](QWidget* box) { box->close(); };
    std::vector<Answering> cases;
    for (const int question : {1, 2, 3, 4, 5}) {
        const bool goesBack = question == 3 || question == 5;
        cases.push_back({question, click(u"AllYes"_s), true});
        cases.push_back({question, click(u"AllNo"_s), false});
        cases.push_back({question, escape, goesBack});
        cases.push_back({question, close, goesBack});
    }
    for (const Answering& answering : cases) {
        WhenModalOpens(answering.act);
        EXPECT_EQ(Ask(m_shared, m_prompts, answering.question), answering.yes) << answering.question;
        EXPECT_EQ(m_shared.questionNumber, answering.yes ? 6 : 0);
    }
}

TEST_F(Dialogs, AQuestionShowsItsTextAndItsAccessKeysAnswerIt)
{
    m_shared.database.fileName = u"A&B <b>.Lto"_s;
    WhenModalOpens([](QWidget* box) {
        EXPECT_EQ(box->objectName(), u"AllYesNo"_s);
        EXPECT_EQ(box->windowTitle(), u"Help"_s);
        auto* text = box->findChild<QLabel*>(u"Label1"_s);
        EXPECT_EQ(
            text->text(),
            u"A&B <b>.Lto file in memory will be erased. Do you wish to go back and save it to Disk?."_s);
        EXPECT_EQ(text->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->findChild<QPushButton*>(u"AllYes"_s)->text(), u"&Yes"_s);
        EXPECT_EQ(box->findChild<QPushButton*>(u"AllNo"_s)->text(), u"&No"_s);
        ASSERT_TRUE(QTest::qWaitForWindowActive(box));
        QTest::keyClick(box, Qt::Key_N, Qt::AltModifier);
    });
    EXPECT_FALSE(Ask(m_shared, m_prompts, 3));
}

TEST_F(Dialogs, DialogsStandAtTheirDistanceFromTheMainWindow)
{
    // twips at 96 dots an inch: 15 to a pixel
    const QPoint corner = m_window.frameGeometry().topLeft();
    const struct {
        bool question;
        qint32 layout;
        QPoint offset;
    } cases[] = {{false, 6810, {240, 133}},
                 {false, 8670, {310, 200}},
                 {true, 6810, {233, 133}},
                 {true, 8670, {300, 200}}};
    for (const auto& expected : cases) {
        m_shared.layoutSize = expected.layout;
        WhenModalOpens([&](QWidget* box) {
            EXPECT_EQ(box->pos() - corner, expected.offset);
            box->close();
        });
        if (expected.question) {
            EXPECT_FALSE(Ask(m_shared, m_prompts, 1));
        } else {
            Show(m_shared, m_prompts, {.number = 1});
        }
    }
}

TEST_F(Dialogs, ADialogIsNeverLeftOutsideTheScreen)
{
    m_window.move(m_window.screen()->availableGeometry().bottomRight() - QPoint(50, 50));
    WhenModalOpens([&](QWidget* box) {
        EXPECT_TRUE(box->screen()->availableGeometry().contains(box->frameGeometry()));
        box->close();
    });
    Show(m_shared, m_prompts, {.number = 1});
}

TEST(Twips, AreFifteenToAPixelAtNinetySixDotsAnInch)
{
    EXPECT_EQ(TwipsToPixels(9615, 96), 641);
    EXPECT_EQ(TwipsToPixels(6870, 96), 458);
    EXPECT_EQ(TwipsToPixels(-60, 96), -4);
    EXPECT_EQ(TwipsToPixels(1440, 300), 300);
    EXPECT_EQ(PixelsToTwips(567, 96), 8505);
}

TEST_F(Dialogs, OverADialogAMessageStandsAsFarFromTheMainWindowAsElsewhere)
{
    m_window.move(100, 50);
    QDialog settings(&m_window);
    settings.setModal(true);
    settings.move(300, 120);
    settings.show();
    const QPoint corner = m_window.frameGeometry().topLeft();
    const auto offset = [&](const std::function<void()>& open) {
        QPoint place;
        WhenNextModalOpens([&](QWidget* box) {
            place = box->pos() - corner;
            QTest::keyClick(box, Qt::Key_Escape);
        });
        open();
        return place;
    };
    EXPECT_EQ(offset([&] { Show(m_shared, m_prompts, {.number = 27}); }), QPoint(240, 133));
    EXPECT_EQ(offset([&] { (void)Ask(m_shared, m_prompts, 1); }), QPoint(233, 133));
}

TEST_F(Dialogs, TheBusyPointerIsShownOnceAndTakenAwayOnce)
{
    m_prompts.SetBusyPointer(true);
    m_prompts.SetBusyPointer(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    m_prompts.SetBusyPointer(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    m_prompts.SetBusyPointer(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(FileDir, EachModeHasItsFilter)
{
    EXPECT_EQ(FileDir::Filter(1), u"Lottery Database (*.Lto)"_s);
    EXPECT_EQ(FileDir::Filter(2), u"Lottery Database (*.Lto)"_s);
    EXPECT_EQ(FileDir::Filter(3), u"Investment Database (*.inv)"_s);
    EXPECT_EQ(FileDir::Filter(4), u"Investment Database Database (*.inv)"_s);
}

TEST(FileDir, ProposesTheNameOfTheFileThatIsInMemory)
{
    LGLOBAL shared;
    shared.database.fileName = u"Mine.Lto"_s;
    shared.investmentFileName = u"Mine.inv"_s;
    for (const int mode : {1, 2, 3, 4}) {
        shared.fileDialogMode = static_cast<qint16>(mode);
        EXPECT_EQ(FileDir::ProposedName(shared), mode <= 2 ? u"Mine.Lto"_s : u"Mine.inv"_s) << mode;
    }
}

class FileDialogs : public Dialogs
{
protected:
    FileDialogs()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_shared.dialogFolder = m_folder.path();
        QFile file(m_folder.filePath(u"Mine.Lto"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        m_shared.chosenPath = u"as it was"_s;
    }

    QTemporaryDir m_folder;
};

TEST_F(FileDialogs, OpeningStartsOnTheFileInMemoryAndReturnsTheFullPath)
{
    m_shared.fileDialogMode = 1;
    m_shared.database.fileName = u"Mine.Lto"_s;
    WhenModalOpens([&](QWidget* window) {
        auto* dialog = qobject_cast<QFileDialog*>(window);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), u"CMDialog1"_s);
        EXPECT_EQ(dialog->windowTitle(), u"Folders"_s);
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog->nameFilters(), QStringList{u"Lottery Database (*.Lto)"_s});
        EXPECT_EQ(dialog->directory().absolutePath(), m_folder.path());
        EXPECT_EQ(dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"Mine.Lto"_s);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    m_prompts.FileDirectory();
    EXPECT_EQ(m_shared.chosenPath, m_folder.filePath(u"Mine.Lto"_s));
    EXPECT_EQ(m_shared.fileDialogMode, 1);
}

TEST_F(FileDialogs, EachModeOpensOrSavesUnderItsFilterAndProposesItsName)
{
    QFile statement(m_folder.filePath(u"Mine.inv"_s));
    ASSERT_TRUE(statement.open(QIODevice::WriteOnly));
    m_shared.database.fileName = u"Mine.Lto"_s;
    m_shared.investmentFileName = u"Mine.inv"_s;
    for (const int mode : {1, 2, 3, 4}) {
        SCOPED_TRACE(mode);
        m_shared.fileDialogMode = static_cast<qint16>(mode);
        const QString name = FileDir::ProposedName(m_shared);
        WhenModalOpens([&](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->acceptMode(),
                      mode % 2 == 1 ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
            EXPECT_EQ(dialog->nameFilters(), QStringList{FileDir::Filter(qint16(mode))});
            EXPECT_EQ(dialog->selectedNameFilter(), FileDir::Filter(qint16(mode)));
            EXPECT_EQ(dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), name);
            dialog->close();
        });
        m_prompts.FileDirectory();
    }
}

TEST_F(FileDialogs, SavingTakesTheNameAsItIsTyped)
{
    m_shared.fileDialogMode = 2;
    WhenModalOpens([&](QWidget* window) {
        auto* dialog = qobject_cast<QFileDialog*>(window);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(u"no ending"_s);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    m_prompts.FileDirectory();
    EXPECT_EQ(m_shared.chosenPath, m_folder.filePath(u"no ending"_s));
}

TEST_F(FileDialogs, ACancelIsModeNineAndLeavesThePathAlone)
{
    for (const int mode : {1, 2, 3, 4}) {
        m_shared.fileDialogMode = static_cast<qint16>(mode);
        WhenModalOpens([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); });
        m_prompts.FileDirectory();
        EXPECT_EQ(m_shared.fileDialogMode, 9);
        EXPECT_EQ(m_shared.chosenPath, u"as it was"_s);
    }
}

TEST_F(FileDialogs, TheNextDialogOpensInTheFolderOfTheLastFile)
{
    QTemporaryDir other;
    m_shared.fileDialogMode = 2;
    WhenModalOpens([&](QWidget* window) {
        auto* dialog = qobject_cast<QFileDialog*>(window);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(other.filePath(u"Elsewhere.Lto"_s));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    m_prompts.FileDirectory();
    EXPECT_EQ(m_shared.dialogFolder, other.path());
}

TEST_F(FileDialogs, AFileWhoseEndingIsInSmallLettersIsListedToo)
{
    QFile file(m_folder.filePath(u"Extract.lto"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    m_shared.fileDialogMode = 1;
    WhenModalOpens([&](QWidget* window) {
        auto* model = window->findChild<QFileSystemModel*>();
        const auto listed = [&] {
            const QModelIndex folder = model->index(m_folder.path());
            return model->rowCount(folder);
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return listed() == 2; })) << listed();
        window->close();
    });
    m_prompts.FileDirectory();
}

} // namespace
