#include "database/InRecNum.h"

#include "app/InputBox.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Beside EditMode, where GoogleTest looks for it.
static void PrintTo(EditMode mode, std::ostream* out)
{
    *out << "mode " << static_cast<int>(mode);
}

namespace {

class RecordDialog : public testing::Test
{
protected:
    RecordDialog()
    {
        m_window.setGeometry(0, 0, 641, 458);
        m_window.show();
    }

    void Open()
    {
        m_dialog = std::make_unique<InRecNum>(m_shared, &m_window);
        m_dialog->show();
        ASSERT_TRUE(Activate(*m_dialog));
    }

    template <typename Widget>
    Widget& Find(const QString& name)
    {
        auto* widget = m_dialog->findChild<Widget*>(name);
        if (widget == nullptr) {
            throw std::runtime_error("no widget " + name.toStdString());
        }
        return *widget;
    }
    QRadioButton& Option(int i) { return Find<QRadioButton>(u"CorInsDel%1"_s.arg(i)); }
    void Choose(int i)
    {
        QTest::mouseClick(&Option(i), Qt::LeftButton, {}, QPoint(8, Option(i).height() / 2));
    }
    InputBox& CurVal() { return Find<InputBox>(u"CurVal"_s); }
    QString Label1() { return Find<QLabel>(u"Label1"_s).text(); }
    QString FocusName()
    {
        return m_dialog->focusWidget() == nullptr ? QString() : m_dialog->focusWidget()->objectName();
    }
    void Press(const QString& button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
    void ExpectNothingChosen()
    {
        EXPECT_FALSE(m_dialog->isVisible());
        EXPECT_EQ(m_shared.editMode, EditMode::Normal);
        EXPECT_EQ(m_shared.SelectedRecord, 0);
        EXPECT_EQ(m_shared.ClickedRecord, 0);
    }

    QMainWindow m_window;
    LGLOBAL m_shared;
    std::unique_ptr<InRecNum> m_dialog;
};

TEST_F(RecordDialog, OpensOnCorrectWithItsTexts)
{
    Open();
    EXPECT_EQ(m_dialog->objectName(), u"InRecNum"_s);
    EXPECT_EQ(m_dialog->windowTitle(), u"Input"_s);
    EXPECT_EQ(Find<QGroupBox>(u"Frame1"_s).title(), u"Select Option"_s);
    const QStringList options{u"Correct"_s, u"Insert"_s, u"Delete"_s, u"Sort records"_s};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Option(i).text(), options.at(i));
        EXPECT_EQ(Option(i).isChecked(), i == 0) << i;
    }
    EXPECT_EQ(m_shared.editMode, EditMode::Correct);
    EXPECT_EQ(Label1(), u" Type in the record number        to correct."_s);
    EXPECT_EQ(CurVal().text(), QString());
    EXPECT_EQ(Find<QPushButton>(u"NoAccept"_s).text(), u"&Cancel"_s);
    EXPECT_EQ(Find<QPushButton>(u"Accept"_s).text(), u"&Accept"_s);
    EXPECT_EQ(FocusName(), u"CurVal"_s);
}

struct OptionLook {
    int option;
    EditMode mode;
    QString label;
    QString word; ///< "" where a record number is asked for
};

std::vector<OptionLook> OptionLooks()
{
    return {{0, EditMode::Correct, u" Type in the record number        to correct."_s, {}},
            {1, EditMode::Insert, u" Automatic insertion by date."_s, u"Insert "_s},
            {2, EditMode::Delete, u" Type in the record number        to delete."_s, {}},
            {3, EditMode::Sort, u" Sorts all the records by date."_s, u" Sort  "_s}};
}

TEST_F(RecordDialog, AnOptionSetsTheModeTheLineAndTheBox)
{
    for (const int clicked : {0, 7, 2001}) {
        m_shared.ClickedRecord = static_cast<qint16>(clicked);
        Open();
        const std::vector<OptionLook> looks = OptionLooks();
        for (const int i : {3, 0, 1, 2, 3, 1, 0, 2}) {
            const OptionLook& look = looks.at(static_cast<std::size_t>(i));
            Choose(i);
            EXPECT_EQ(m_shared.editMode, look.mode);
            EXPECT_EQ(Label1(), look.label);
            const QString offered = clicked == 0 ? QString() : QString::number(clicked);
            EXPECT_EQ(CurVal().text(), look.word.isEmpty() ? offered : look.word) << i;
            EXPECT_EQ(CurVal().isEnabled(), look.word.isEmpty()) << i;
        }
    }
}

TEST_F(RecordDialog, TheArrowKeysChooseAnOptionToo)
{
    Open();
    Option(0).setFocus();
    for (int i = 1; i < 4; ++i) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Down);
        const OptionLook look = OptionLooks().at(static_cast<std::size_t>(i));
        EXPECT_EQ(FocusName(), u"CorInsDel%1"_s.arg(i));
        EXPECT_EQ(m_shared.editMode, look.mode);
        EXPECT_EQ(Label1(), look.label);
    }
}

TEST_F(RecordDialog, ChoosingTheSameOptionAgainOffersTheClickedRecordAgain)
{
    m_shared.ClickedRecord = 12;
    Open();
    QTest::keyClicks(&CurVal(), u"345"_s);
    EXPECT_EQ(CurVal().text(), u"345"_s);
    Choose(0);
    EXPECT_EQ(CurVal().text(), u"12"_s);
}

TEST_F(RecordDialog, TheBoxTakesDigitsOnly)
{
    Open();
    QSignalSpy refused(&CurVal(), &InputBox::KeyRefused);
    QTest::keyClicks(&CurVal(), u"1a2-3.4 5,6"_s);
    EXPECT_EQ(CurVal().text(), u"123456"_s);
    EXPECT_EQ(refused.count(), 5);
    QTest::keyClick(&CurVal(), Qt::Key_Backspace);
    EXPECT_EQ(CurVal().text(), u"12345"_s);
}

TEST_F(RecordDialog, TheFirstKeyReplacesTheOfferedNumberAndAClickEmptiesIt)
{
    m_shared.ClickedRecord = 12;
    Open();
    QTest::keyClicks(&CurVal(), u"3"_s);
    EXPECT_EQ(CurVal().text(), u"3"_s);
    QTest::mouseClick(&CurVal(), Qt::LeftButton);
    EXPECT_EQ(CurVal().text(), QString());
}

TEST_F(RecordDialog, EnterInTheBoxAccepts)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Open();
        QTest::keyClicks(&CurVal(), u"8"_s);
        QTest::keyClick(&CurVal(), key);
        EXPECT_FALSE(m_dialog->isVisible());
        EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
        EXPECT_EQ(m_shared.SelectedRecord, 8);
        EXPECT_EQ(m_shared.editMode, EditMode::Correct);
    }
}

TEST_F(RecordDialog, EnterOnAnOptionGoesToTheBox)
{
    Open();
    for (const int i : {0, 2}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            Choose(i);
            EXPECT_EQ(FocusName(), u"CorInsDel%1"_s.arg(i));
            QTest::keyClick(&Option(i), key);
            EXPECT_EQ(FocusName(), u"CurVal"_s);
            EXPECT_TRUE(m_dialog->isVisible());
        }
    }
}

TEST_F(RecordDialog, EnterOnAnOptionThatNeedsNoNumberGoesToAccept)
{
    Open();
    for (const int i : {1, 3}) {
        Choose(i);
        QTest::keyClick(&Option(i), Qt::Key_Return);
        EXPECT_EQ(FocusName(), u"Accept"_s);
        EXPECT_TRUE(m_dialog->isVisible());
    }
}

TEST_F(RecordDialog, OtherKeysOnAnOptionGoThroughTheDigitFilter)
{
    Open();
    const auto isSwallowed = [this](int key, const QString& text, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&Option(0), &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(isSwallowed(Qt::Key_X, u"x"_s, Qt::NoModifier));
    EXPECT_TRUE(isSwallowed(Qt::Key_X, u"X"_s, Qt::ShiftModifier));
    EXPECT_TRUE(isSwallowed(Qt::Key_Plus, u"+"_s, Qt::KeypadModifier));
    EXPECT_TRUE(isSwallowed(Qt::Key_Minus, u"-"_s, Qt::NoModifier));
    EXPECT_FALSE(isSwallowed(Qt::Key_7, u"7"_s, Qt::NoModifier));
    EXPECT_FALSE(isSwallowed(Qt::Key_7, u"7"_s, Qt::KeypadModifier));
    EXPECT_TRUE(Option(0).isChecked());
    EXPECT_EQ(CurVal().text(), QString());
}

struct Accepted {
    int option;
    QString typed;
    int selected;
    EditMode mode;
};

TEST_F(RecordDialog, AcceptTakesTheRecordOrTheWord)
{
    const std::vector<Accepted> cases{
        {0, u"3"_s, 3, EditMode::Correct},
        {0, u"2001"_s, 2001, EditMode::Correct},
        {0, u"007"_s, 7, EditMode::Correct},
        {0, u""_s, 0, EditMode::Normal},
        {0, u"0"_s, 0, EditMode::Normal},
        {0, u"000"_s, 0, EditMode::Normal},
        {0, u"32768"_s, 32767, EditMode::Correct}, // beyond any table, and so a record that does not exist
        {0, u"99999999999999999999"_s, 32767, EditMode::Correct},
        {2, u"3"_s, 3, EditMode::Delete},
        {2, u""_s, 0, EditMode::Normal},
        {2, u"0"_s, 0, EditMode::Normal},
        {1, u""_s, 1, EditMode::Insert},
        {3, u""_s, 1, EditMode::Sort},
    };
    for (const Accepted& accepted : cases) {
        m_shared.ClickedRecord = 0;
        Open();
        Choose(accepted.option);
        if (CurVal().isEnabled()) {
            CurVal().setFocus();
            QTest::keyClicks(&CurVal(), accepted.typed);
        }
        m_shared.ClickedRecord = 5;
        Press(u"Accept"_s);
        EXPECT_FALSE(m_dialog->isVisible());
        EXPECT_EQ(m_shared.SelectedRecord, accepted.selected) << accepted.typed.toStdString();
        EXPECT_EQ(m_shared.editMode, accepted.mode) << accepted.typed.toStdString();
        EXPECT_EQ(m_shared.ClickedRecord, 0);
    }
}

TEST_F(RecordDialog, TheClickedRecordIsTakenWithoutTyping)
{
    for (const int option : {0, 2}) {
        m_shared.ClickedRecord = 9;
        Open();
        Choose(option);
        Press(u"Accept"_s);
        EXPECT_EQ(m_shared.SelectedRecord, 9);
        EXPECT_EQ(m_shared.ClickedRecord, 0);
    }
}

TEST_F(RecordDialog, AWordThatIsNoLongerThereIsNoTask)
{
    for (const int option : {1, 3}) {
        Open();
        Choose(option);
        CurVal().setText(u"1"_s);
        Press(u"Accept"_s);
        ExpectNothingChosen();
    }
}

TEST_F(RecordDialog, CancelEscapeAndTheWindowFrameForgetEverything)
{
    const std::vector<std::function<void()>> ways{
        [this] { Press(u"NoAccept"_s); },
        [this] { QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Escape); },
        [this] { m_dialog->close(); },
        [this] {
            QTest::keyClick(m_dialog.get(), Qt::Key_C, Qt::AltModifier);
            ASSERT_TRUE(QTest::qWaitFor([this] { return !m_dialog->isVisible(); }));
        },
    };
    for (const auto& close : ways) {
        for (int option = 0; option < 4; ++option) {
            m_shared.ClickedRecord = 4;
            m_shared.SelectedRecord = 3;
            Open();
            Choose(option);
            close();
            ExpectNothingChosen();
            EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
        }
    }
}

TEST_F(RecordDialog, ItsAccessKeyAccepts)
{
    Open();
    QTest::keyClicks(&CurVal(), u"6"_s);
    QTest::keyClick(m_dialog.get(), Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_dialog->isVisible(); }));
    EXPECT_EQ(m_shared.SelectedRecord, 6);
}

TEST_F(RecordDialog, EnterOnCancelCancels)
{
    Open();
    Find<QPushButton>(u"NoAccept"_s).setFocus();
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Return);
    ExpectNothingChosen();
}

TEST_F(RecordDialog, TheWayBackFromTheBoxLeadsToTheChosenOption)
{
    Open();
    for (const int option : {0, 2}) {
        Option(option).setChecked(true);
        CurVal().setFocus();
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(FocusName(), u"CorInsDel%1"_s.arg(option));
    }
}

TEST_F(RecordDialog, TheTabKeyWalksInReadingOrder)
{
    Open();
    EXPECT_EQ(FocusName(), u"CurVal"_s);
    for (const QString& next : {u"Accept"_s, u"NoAccept"_s, u"CorInsDel0"_s, u"CurVal"_s}) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(FocusName(), next);
    }
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), u"CorInsDel0"_s);
}

TEST_F(RecordDialog, StandsByTheWidthOfTheMainWindow)
{
    const struct {
        int width;
        int height;
        QPoint offset;
    } cases[] = {
        {560, 700, {453, 102}}, // 6,800 and 1,530 twips, however high the window is
        {566, 458, {453, 102}}, // 8,490 twips wide
        {567, 458, {540, 173}}, // 8,505 twips: 8,100 and 2,600
        {641, 400, {540, 173}},
    };
    for (const auto& place : cases) {
        m_window.resize(place.width, place.height);
        m_shared.layoutSize = place.height > 566 ? 8670 : 6810;
        QCoreApplication::processEvents();
        Open();
        EXPECT_EQ(m_dialog->pos() - m_window.frameGeometry().topLeft(), place.offset) << place.width;
        m_dialog->close();
    }
}

TEST_F(RecordDialog, IsNeverLeftOutsideTheScreen)
{
    m_window.move(m_window.screen()->availableGeometry().bottomRight() - QPoint(60, 60));
    Open();
    EXPECT_TRUE(m_dialog->screen()->availableGeometry().contains(m_dialog->frameGeometry()));
}

TEST_F(RecordDialog, NothingIsClippedUnderAnyOption)
{
    Open();
    for (int i = 0; i < 4; ++i) {
        Choose(i);
        QCoreApplication::processEvents();
        auto& label = Find<QLabel>(u"Label1"_s);
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << i;
        const QRect inside = m_dialog->rect();
        for (const QWidget* widget : m_dialog->findChildren<QWidget*>()) {
            const QRect place(widget->mapTo(m_dialog.get(), QPoint()), widget->size());
            EXPECT_TRUE(inside.contains(place)) << widget->objectName().toStdString();
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                << widget->objectName().toStdString();
        }
    }
}

TEST_F(RecordDialog, ItsBoxHasABuddy)
{
    Open();
    EXPECT_EQ(Find<QLabel>(u"Label1"_s).buddy(), &CurVal());
    EXPECT_EQ(Find<QLabel>(u"Label1"_s).textFormat(), Qt::PlainText);
}

} // namespace
