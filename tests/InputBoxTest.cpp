#include "app/InputBox.h"

#include "tests/QtPrinters.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A window with two boxes: the one under test and one to go to.
class InputBoxes : public testing::Test
{
protected:
    InputBoxes()
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_box);
        layout->addWidget(&m_other);
        m_other.Follow(m_shared, {});
        QObject::connect(&m_box, &InputBox::MessageDue,
                         [this](const Message& message) { m_due.push_back(message.number); });
        QObject::connect(&m_box, &InputBox::KeyRefused, [this] { ++m_refused; });
    }

    void Follow(InputRules rules)
    {
        rules.next = [this] { return &m_other; };
        m_box.Follow(m_shared, rules);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_other.setFocus();
        m_box.clear();
        m_due.clear();
    }

    void FollowOneToTen()
    {
        InputRules rules;
        rules.leave = NumberFromTo(1, 10, {.number = 27}, u"##"_s, [] { return 10; });
        Follow(rules);
    }

    void Enter() { m_box.setFocus(Qt::TabFocusReason); }
    void Leave() { m_other.setFocus(Qt::TabFocusReason); }
    void Type(const QString& keys) { QTest::keyClicks(&m_box, keys); }

    LGLOBAL m_shared;
    QWidget m_window;
    InputBox m_box;
    InputBox m_other;
    std::vector<int> m_due;
    int m_refused = 0;
};

TEST_F(InputBoxes, AClickEmptiesTheBoxAndMarksIt)
{
    FollowOneToTen();
    m_box.setText(u" 6"_s);
    QTest::mouseClick(&m_box, Qt::LeftButton);
    EXPECT_EQ(m_box.text(), QString());
    EXPECT_EQ(m_shared.entryEdited, 1);
}

TEST_F(InputBoxes, TheRightMouseButtonEmptiesNothing)
{
    FollowOneToTen();
    m_box.setText(u" 6"_s);
    QTest::mouseClick(&m_box, Qt::RightButton);
    EXPECT_EQ(m_box.text(), u" 6"_s);
    EXPECT_EQ(m_shared.entryEdited, 0);
}

TEST_F(InputBoxes, TheFirstKeyReplacesTheOldValueAndTheSecondIsAdded)
{
    FollowOneToTen();
    m_box.setText(u" 6"_s);
    Enter();
    m_box.end(false);
    Type(u"1"_s);
    EXPECT_EQ(m_box.text(), u"1"_s);
    EXPECT_EQ(m_shared.entryEdited, 1);
    Type(u"0"_s);
    EXPECT_EQ(m_box.text(), u"10"_s);
}

TEST_F(InputBoxes, BackspaceAsFirstKeyEmptiesTheBox)
{
    FollowOneToTen();
    m_box.setText(u"10"_s);
    Enter();
    m_box.end(false);
    QTest::keyClick(&m_box, Qt::Key_Backspace);
    EXPECT_EQ(m_box.text(), QString());
    EXPECT_EQ(m_refused, 0);
}

TEST_F(InputBoxes, ALetterIsRefusedAndLeavesTextAndMarkAsTheyAre)
{
    FollowOneToTen();
    m_box.setText(u" 6"_s);
    Enter();
    for (const QChar letter : u"a-.,/ é€"_s) {
        QTest::sendKeyEvent(QTest::Click, &m_box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    EXPECT_EQ(m_box.text(), u" 6"_s);
    EXPECT_EQ(m_refused, 8);
    EXPECT_EQ(m_shared.entryEdited, 0);
}

TEST_F(InputBoxes, ArrowsAndTabAreNotTypedAndMarkNothing)
{
    FollowOneToTen();
    m_box.setText(u" 6"_s);
    Enter();
    QTest::keyClick(&m_box, Qt::Key_Left);
    QTest::keyClick(&m_box, Qt::Key_Home);
    QTest::keyClick(&m_box, Qt::Key_Escape);
    EXPECT_EQ(m_box.text(), u" 6"_s);
    EXPECT_EQ(m_shared.entryEdited, 0);
    EXPECT_EQ(m_refused, 0);
}

TEST_F(InputBoxes, EnterGoesToTheNextBoxAndIsSwallowed)
{
    FollowOneToTen();
    Enter();
    Type(u"5"_s);
    QTest::keyClick(&m_box, Qt::Key_Return);
    EXPECT_TRUE(m_other.hasFocus());
    EXPECT_EQ(m_box.text(), u" 5"_s);
    Enter();
    QTest::keyClick(&m_box, Qt::Key_Enter);
    EXPECT_TRUE(m_other.hasFocus());
}

TEST_F(InputBoxes, AValueInRangeIsRewrittenUnderThePictureOnlyWhenItWasEdited)
{
    FollowOneToTen();
    m_box.setText(u"007"_s);
    Enter();
    Leave();
    EXPECT_EQ(m_box.text(), u"007"_s);
    Enter();
    Type(u"08"_s);
    Leave();
    EXPECT_EQ(m_box.text(), u" 8"_s);
    EXPECT_EQ(m_shared.entryEdited, 0);
    EXPECT_EQ(m_due, std::vector<int>{});
}

TEST_F(InputBoxes, AValueOutOfRangeBringsTheMessageAndTheFallback)
{
    FollowOneToTen();
    for (const QString& typed : {u"25"_s, u"0"_s, u"11"_s, u"99999999999999999999"_s}) {
        m_due.clear();
        Enter();
        Type(typed);
        Leave();
        EXPECT_EQ(m_due, std::vector<int>{27}) << typed.toStdString();
        EXPECT_EQ(m_box.text(), u"10"_s) << typed.toStdString();
        EXPECT_EQ(m_shared.entryEdited, 0);
    }
}

TEST_F(InputBoxes, AnEmptyBoxIsOutOfRangeAlsoWhenItWasNotEdited)
{
    FollowOneToTen();
    Enter();
    Leave();
    EXPECT_EQ(m_due, std::vector<int>{27});
    EXPECT_EQ(m_box.text(), u"10"_s);
}

TEST_F(InputBoxes, BothBoundsAreInRange)
{
    FollowOneToTen();
    for (const QString& typed : {u"1"_s, u"10"_s}) {
        Enter();
        Type(typed);
        Leave();
    }
    EXPECT_EQ(m_due, std::vector<int>{});
    EXPECT_EQ(m_box.text(), u"10"_s);
}

TEST_F(InputBoxes, AWindowThatClosesOverABoxTakesItsMarkAlong)
{
    FollowOneToTen();
    Enter();
    Type(u"5"_s);
    EXPECT_EQ(m_shared.entryEdited, 1);
    m_window.close();
    EXPECT_EQ(m_shared.entryEdited, 0);
}

TEST_F(InputBoxes, ABoxThatIsHiddenBesideTheOneBeingTypedInLeavesTheMark)
{
    FollowOneToTen();
    Enter();
    Type(u"5"_s);
    m_other.hide();
    EXPECT_EQ(m_shared.entryEdited, 1);
}

TEST_F(InputBoxes, TheClipboardIsEmptiedWhenABoxGetsAndLosesTheFocus)
{
    FollowOneToTen();
    QApplication::clipboard()->setText(u"7"_s);
    Enter();
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    QApplication::clipboard()->setText(u"8"_s);
    Type(u"5"_s);
    Leave();
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
}

TEST_F(InputBoxes, TheClipboardIsEmptiedAlsoWhenTheBoxHasTheFocusAsItsWindowOpens)
{
    FollowOneToTen();
    QApplication::clipboard()->setText(u"7"_s);
    QFocusEvent opening(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_box, &opening);
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    QApplication::clipboard()->setText(u"8"_s); // copied in another window meanwhile
    QFocusEvent going(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_box, &going);
    QFocusEvent coming(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_box, &coming);
    EXPECT_EQ(QApplication::clipboard()->text(), u"8"_s);
}

TEST_F(InputBoxes, NothingCanBePasted)
{
    FollowOneToTen();
    m_box.setText(u" 6"_s);
    Enter();
    QApplication::clipboard()->setText(u"9"_s);
    QTest::keySequence(&m_box, QKeySequence::Paste);
    QTest::keyClick(&m_box, Qt::Key_Insert, Qt::ShiftModifier);
    QTest::mouseClick(&m_box, Qt::MiddleButton);
    EXPECT_EQ(m_box.text(), u" 6"_s);
    EXPECT_EQ(m_refused, 2);
    EXPECT_EQ(m_shared.entryEdited, 0);
    EXPECT_EQ(m_box.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(InputBoxes, ATextChangedWithoutACharacterTypedIsEditedToo)
{
    FollowOneToTen();
    m_box.setText(u"10"_s);
    Enter();
    m_box.setSelection(1, 1);
    QTest::keySequence(&m_box, QKeySequence::Cut);
    EXPECT_EQ(m_box.text(), u"1"_s);
    EXPECT_EQ(m_shared.entryEdited, 1);
    Leave();
    EXPECT_EQ(m_box.text(), u" 1"_s);
}

TEST_F(InputBoxes, WhatAnInputMethodComposesFollowsTheSameRule)
{
    FollowOneToTen();
    Enter();
    QInputMethodEvent letters;
    letters.setCommitString(u"six"_s);
    QApplication::sendEvent(&m_box, &letters);
    EXPECT_EQ(m_box.text(), QString());
    QInputMethodEvent digits;
    digits.setCommitString(u"6"_s);
    QApplication::sendEvent(&m_box, &digits);
    EXPECT_EQ(m_box.text(), u"6"_s);
    EXPECT_EQ(m_shared.entryEdited, 1);
    Leave();
    Enter();
    digits.setCommitString(u"7"_s); // the first replaces the old value
    QApplication::sendEvent(&m_box, &digits);
    EXPECT_EQ(m_box.text(), u"7"_s);
}

TEST_F(InputBoxes, AnInputMethodBringsNoBlankIntoABoxOfDigits)
{
    FollowOneToTen();
    m_box.setText(u"10"_s);
    Enter();
    for (const QString& composed : {u" "_s, u" 6"_s, u"6 "_s, u"\t"_s, u"\u3000"_s}) {
        QInputMethodEvent event;
        event.setCommitString(composed);
        QApplication::sendEvent(&m_box, &event);
        EXPECT_EQ(m_box.text(), u"10"_s) << composed.toStdString();
    }
    EXPECT_EQ(m_refused, 5);
    EXPECT_EQ(m_shared.entryEdited, 0);
}

TEST_F(InputBoxes, ARefusedCompositionReplacesNothingAndWhatIsStillComposedGoesOn)
{
    FollowOneToTen();
    m_box.setText(u"10"_s);
    Enter();
    m_box.end(false);
    QInputMethodEvent refused(u"7"_s, {});
    refused.setCommitString(u"x"_s, -1, 1); // would take the 0 away
    QApplication::sendEvent(&m_box, &refused);
    EXPECT_EQ(m_box.text(), u"10"_s);
    EXPECT_EQ(m_refused, 1);
    QInputMethodEvent done(QString(), {});
    done.setCommitString(u"7"_s);
    QApplication::sendEvent(&m_box, &done);
    EXPECT_EQ(m_box.text(), u"7"_s);
}

TEST_F(InputBoxes, LeavingTheWindowForAnotherProgramChecksNothing)
{
    FollowOneToTen();
    Enter();
    Type(u"25"_s);
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&m_box, &away);
    EXPECT_EQ(m_due, std::vector<int>{});
    EXPECT_EQ(m_box.text(), u"25"_s);
    EXPECT_EQ(m_shared.entryEdited, 1);
}

TEST_F(InputBoxes, AMoneyBoxTakesTwoDecimalsAndRefusesTheThird)
{
    Follow({.keys = InputRules::Keys::Decimal});
    Enter();
    Type(u"12.345"_s);
    EXPECT_EQ(m_box.text(), u"12.34"_s);
    EXPECT_EQ(m_refused, 1);
    EXPECT_EQ(m_shared.currentEntryText, u"12.34"_s);
    m_box.home(false);
    Type(u"9"_s); // no digit anywhere any more, also not before the point
    EXPECT_EQ(m_box.text(), u"12.34"_s);
    EXPECT_EQ(m_refused, 2);
    Type(u"."_s); // a second point is not refused
    EXPECT_EQ(m_box.text(), u".12.34"_s);
}

TEST_F(InputBoxes, ADateBoxTakesDigitsAndTheThreeSigns)
{
    Follow({.keys = InputRules::Keys::Date});
    Enter();
    Type(u"1a/2-3.4 "_s);
    EXPECT_EQ(m_box.text(), u"1/2-3.4"_s);
    EXPECT_EQ(m_refused, 2);
}

TEST_F(InputBoxes, AFileTextBoxRefusesACharacterThatHasNoPlaceInAFile)
{
    Follow({.keys = InputRules::Keys::FileText, .click = InputRules::Click::SelectsText});
    Enter();
    Type(u"Lotto "_s);
    for (const QChar ch : u"é\"ÿ€Ā"_s) {
        QTest::sendKeyEvent(QTest::Click, &m_box, Qt::Key_unknown, QString(ch), Qt::NoModifier);
    }
    EXPECT_EQ(m_box.text(), u"Lotto é\"ÿ"_s);
    EXPECT_EQ(m_refused, 2);
}

TEST_F(InputBoxes, ABoxThatSelectsLosesNothingByAClick)
{
    Follow({.keys = InputRules::Keys::FileText, .click = InputRules::Click::SelectsText});
    m_box.setText(u"My lottery"_s);
    QTest::mouseClick(&m_box, Qt::LeftButton);
    EXPECT_EQ(m_box.text(), u"My lottery"_s);
    EXPECT_EQ(m_box.selectedText(), u"My lottery"_s);
    EXPECT_EQ(m_shared.entryEdited, 0);
    Type(u"X"_s);
    EXPECT_EQ(m_box.text(), u"X"_s);
    EXPECT_EQ(m_shared.entryEdited, 1);
}

TEST_F(InputBoxes, ABoxThatSelectsKeepsItsTextWhenTheCursorWasMovedFirst)
{
    Follow({.keys = InputRules::Keys::FileText, .click = InputRules::Click::SelectsText});
    m_box.setText(u"Lotto"_s);
    Enter();
    QTest::keyClick(&m_box, Qt::Key_End);
    Type(u"!"_s);
    EXPECT_EQ(m_box.text(), u"Lotto!"_s);
}

TEST_F(InputBoxes, ABoxMaySelectItsTextAtEveryClick)
{
    Follow({.click = InputRules::Click::SelectsTextEachTime});
    m_box.setText(u"52"_s);
    for (int click = 0; click < 3; ++click) {
        QTest::mouseClick(&m_box, Qt::LeftButton);
        EXPECT_EQ(m_box.selectedText(), u"52"_s);
        EXPECT_EQ(m_shared.entryEdited, 0);
        m_box.deselect();
    }
}

TEST_F(InputBoxes, BoxesAreGreenWithBlackTextInAnyPalette)
{
    EXPECT_EQ(m_box.palette().color(QPalette::Active, QPalette::Base).rgb(), qRgb(0x80, 0xFF, 0x80));
    EXPECT_EQ(m_box.palette().color(QPalette::Inactive, QPalette::Base).rgb(), qRgb(0x80, 0xFF, 0x80));
    EXPECT_EQ(m_box.palette().color(QPalette::Active, QPalette::Text).rgb(), qRgb(0, 0, 0));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    EXPECT_EQ(m_box.palette().color(QPalette::Active, QPalette::Base).rgb(), qRgb(0x80, 0xFF, 0x80));
    EXPECT_EQ(m_box.palette().color(QPalette::Active, QPalette::Text).rgb(), qRgb(0, 0, 0));
    QApplication::setPalette(before);
}

TEST_F(InputBoxes, NothingCanBeDroppedIntoABox)
{
    FollowOneToTen();
    QMimeData data;
    data.setText(u"9"_s);
    QDragEnterEvent drag(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drag.accept();
    QApplication::sendEvent(&m_box, &drag);
    EXPECT_FALSE(drag.isAccepted());
    EXPECT_EQ(m_box.text(), QString());
}

} // namespace
