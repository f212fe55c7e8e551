#include "invest/InInvNum.h"

#include "app/InputBox.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class RowDialog : public testing::Test
{
protected:
    RowDialog()
    {
        m_window.setGeometry(0, 0, 641, 458);
        m_window.show();
    }

    void Open(int row)
    {
        m_shared.insertRowText = u"of before"_s;
        m_dialog = std::make_unique<InInvNum>(m_shared, row, &m_window);
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
    InputBox& CurVal() { return Find<InputBox>(u"CurVal"_s); }
    void Press(const QString& button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }

    QMainWindow m_window;
    LGLOBAL m_shared;
    std::unique_ptr<InInvNum> m_dialog;
};

TEST_F(RowDialog, OpensOnTheCurrentRowWithItsTexts)
{
    Open(7);
    EXPECT_EQ(m_dialog->objectName(), u"InInvNum"_s);
    EXPECT_EQ(m_dialog->windowTitle(), u"Input"_s);
    EXPECT_EQ(Find<QLabel>(u"Label1"_s).text(), u" Insert a blank line at line     number "_s);
    EXPECT_EQ(Find<QLabel>(u"Label1"_s).buddy(), &CurVal());
    EXPECT_GE(Find<QLabel>(u"Label1"_s).height(),
              Find<QLabel>(u"Label1"_s).heightForWidth(Find<QLabel>(u"Label1"_s).width()));
    EXPECT_EQ(Find<QPushButton>(u"Accept"_s).text(), u"&OK"_s);
    EXPECT_EQ(Find<QPushButton>(u"NoAccept"_s).text(), u"&Cancel"_s);
    EXPECT_EQ(CurVal().text(), u"7"_s);
    EXPECT_EQ(m_dialog->focusWidget(), &CurVal());
    EXPECT_EQ(m_dialog->pos(), QPoint(240, 133)) << "3,600 and 2,000 twips";
}

TEST_F(RowDialog, OkHandsBackTheTextAsItWasTyped)
{
    Open(7);
    Press(u"Accept"_s);
    EXPECT_EQ(m_shared.insertRowText, u"7"_s);
    EXPECT_FALSE(m_dialog->isVisible());
    Open(7);
    QTest::keyClicks(&CurVal(), u"012"_s);
    Press(u"Accept"_s);
    EXPECT_EQ(m_shared.insertRowText, u"012"_s) << "the first key replaced the 7";
}

TEST_F(RowDialog, EnterInTheBoxIsOk)
{
    Open(1);
    QTest::keyClicks(&CurVal(), u"23"_s);
    QTest::keyClick(&CurVal(), Qt::Key_Return);
    EXPECT_EQ(m_shared.insertRowText, u"23"_s);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(RowDialog, CancelAndEscapeHandBackNothing)
{
    Open(7);
    Press(u"NoAccept"_s);
    EXPECT_EQ(m_shared.insertRowText, QString());
    EXPECT_FALSE(m_dialog->isVisible());
    Open(7);
    QTest::keyClicks(&CurVal(), u"5"_s);
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(m_shared.insertRowText, QString());
    Open(7);
    m_dialog->close();
    EXPECT_EQ(m_shared.insertRowText, QString());
}

TEST_F(RowDialog, TheBoxTakesDigitsAlone)
{
    Open(7);
    QSignalSpy refused(&CurVal(), &InputBox::KeyRefused);
    QTest::keyClicks(&CurVal(), u"-1.a5"_s);
    EXPECT_EQ(CurVal().text(), u"15"_s);
    EXPECT_EQ(refused.count(), 3);
}

TEST_F(RowDialog, StandsFartherOffInTheLargeLayout)
{
    m_shared.layoutSize = 8670;
    Open(7);
    EXPECT_EQ(m_dialog->pos(), QPoint(310, 200)) << "4,650 and 3,000 twips";
}

TEST_F(RowDialog, AClickEmptiesTheBox)
{
    Open(7);
    QTest::mouseClick(&CurVal(), Qt::LeftButton);
    EXPECT_EQ(CurVal().text(), QString());
    QTest::keyClicks(&CurVal(), u"12"_s);
    Press(u"Accept"_s);
    EXPECT_EQ(m_shared.insertRowText, u"12"_s);
    Open(7);
    QTest::mouseClick(&CurVal(), Qt::LeftButton);
    Press(u"Accept"_s);
    EXPECT_EQ(m_shared.insertRowText, QString()) << "no row, so nothing is inserted";
}

} // namespace
