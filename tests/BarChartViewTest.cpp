#include "app/BarChartView.h"

#include "tests/MadeChart.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

class ChartView : public testing::Test
{
protected:
    ChartView()
    {
        m_view.resize(623, 405);
        m_view.SetChart(MadeChart(49, 175));
        m_view.show();
    }
    ~ChartView() override { QToolTip::hideText(); }

    void Focus()
    {
        ASSERT_TRUE(Activate(m_view));
        m_view.setFocus(Qt::TabFocusReason);
    }

    [[nodiscard]] QPoint MiddleOf(int bar) const
    {
        return m_view.Places().bars.at(size_t(bar)).center().toPoint();
    }

    /// What is shown while the pointer rests there.
    QString TipAt(QPoint point)
    {
        QHelpEvent rest(QEvent::ToolTip, point, m_view.mapToGlobal(point));
        QCoreApplication::sendEvent(&m_view, &rest);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    [[nodiscard]] QString Spoken(QAccessible::Text kind)
    {
        return QAccessible::queryAccessibleInterface(&m_view)->text(kind);
    }

    BarChartView m_view;
};

} // namespace

TEST_F(ChartView, MarksTheBarUnderThePointerUntilItLeaves)
{
    QTest::mouseMove(&m_view, MiddleOf(48));
    EXPECT_EQ(m_view.MarkedBar(), 48);
    EXPECT_EQ(m_view.MarkedInWords(), u"Number 49: 175"_s);
    QTest::mouseMove(&m_view, MiddleOf(0));
    EXPECT_EQ(m_view.MarkedBar(), 0);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&m_view, &leave);
    EXPECT_EQ(m_view.MarkedBar(), -1);
    EXPECT_EQ(m_view.MarkedInWords(), QString());
}

TEST_F(ChartView, TellsTheBarOnHover)
{
    EXPECT_EQ(TipAt(MiddleOf(48)), u"Number 49: 175"_s);
    EXPECT_EQ(TipAt(m_view.Places().labels.at(6).center().toPoint()),
              u"Number 7: %1"_s.arg(m_view.Chart().bars.at(6).value));
}

TEST_F(ChartView, TellsTheBarAtAPress)
{
    QTest::mouseClick(&m_view, Qt::LeftButton, {}, MiddleOf(48));
    EXPECT_EQ(QToolTip::text(), u"Number 49: 175"_s);
    EXPECT_EQ(m_view.MarkedBar(), 48);
}

TEST_F(ChartView, GoesFromBarToBarWithTheKeyboard)
{
    Focus();
    EXPECT_EQ(m_view.MarkedBar(), -1);
    QTest::keyClick(&m_view, Qt::Key_Right);
    EXPECT_EQ(m_view.MarkedBar(), 0);
    QTest::keyClick(&m_view, Qt::Key_Right);
    EXPECT_EQ(m_view.MarkedBar(), 1);
    EXPECT_EQ(QToolTip::text(), m_view.MarkedInWords());
    QTest::keyClick(&m_view, Qt::Key_Left);
    QTest::keyClick(&m_view, Qt::Key_Left);
    EXPECT_EQ(m_view.MarkedBar(), 0) << "no further than the first";
    QTest::keyClick(&m_view, Qt::Key_End);
    EXPECT_EQ(m_view.MarkedBar(), 48);
    QTest::keyClick(&m_view, Qt::Key_Right);
    EXPECT_EQ(m_view.MarkedBar(), 48) << "no further than the last";
    QTest::keyClick(&m_view, Qt::Key_Home);
    EXPECT_EQ(m_view.MarkedBar(), 0);
}

TEST_F(ChartView, BeginsAtTheRightWithTheLeftKey)
{
    Focus();
    QTest::keyClick(&m_view, Qt::Key_Left);
    EXPECT_EQ(m_view.MarkedBar(), 48);
}

TEST_F(ChartView, AChartWithoutBarsHasNothingToGoTo)
{
    m_view.Clear();
    Focus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Home, Qt::Key_End}) {
        QTest::keyClick(&m_view, key);
        EXPECT_EQ(m_view.MarkedBar(), -1);
    }
    QTest::mouseClick(&m_view, Qt::LeftButton, {}, m_view.rect().center());
    EXPECT_EQ(m_view.MarkedBar(), -1);
    EXPECT_EQ(TipAt(m_view.rect().center()), QString());
}

TEST_F(ChartView, ANewChartHasNoMarkedBar)
{
    Focus();
    QTest::keyClick(&m_view, Qt::Key_End);
    m_view.SetChart(MadeChart(3, 5));
    EXPECT_EQ(m_view.MarkedBar(), -1);
    EXPECT_EQ(m_view.Places().bars.size(), 3U);
}

TEST_F(ChartView, SpeaksItsTitleAndAllItsValues)
{
    m_view.SetChart({.title = u"Hot"_s,
                     .labelAxis = u"Number"_s,
                     .valueAxis = u"Times drawn"_s,
                     .bars = {{u"7"_s, 23}, {u"12"_s, 9}}});
    EXPECT_EQ(Spoken(QAccessible::Name), u"Hot"_s);
    EXPECT_EQ(Spoken(QAccessible::Description),
              u"Bar chart of 2 bars. Times drawn. Number 7: 23, Number 12: 9"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&m_view)->role(), QAccessible::Chart);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&m_view)->state().focusable);
}

TEST_F(ChartView, SpeaksTheBarTheKeyboardIsOn)
{
    Focus();
    QTest::keyClick(&m_view, Qt::Key_End);
    EXPECT_EQ(Spoken(QAccessible::Description), u"Number 49: 175"_s);
    m_view.clearFocus();
    EXPECT_TRUE(Spoken(QAccessible::Description).startsWith(u"Bar chart of 49 bars."_s));
}

TEST_F(ChartView, PaintsTheChartWithTheMarkedBarSetOff)
{
    const QImage plain = m_view.grab().toImage();
    const ChartLook look = LookOnScreen(m_view.palette(), m_view.font());
    const QPoint middle = MiddleOf(48);
    EXPECT_EQ(plain.pixelColor(middle), look.front);
    QTest::mouseMove(&m_view, middle);
    EXPECT_EQ(m_view.grab().toImage().pixelColor(middle), look.marked);
}

TEST_F(ChartView, ShowsThatItHasTheFocus)
{
    const QImage without = m_view.grab().toImage();
    Focus();
    EXPECT_NE(m_view.grab().toImage(), without);
}

TEST_F(ChartView, FollowsSizePaletteAndFont)
{
    const QRectF before = m_view.Places().plot;
    m_view.resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_GT(m_view.Places().plot.width(), before.width());
    const QImage light = m_view.grab().toImage();
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    m_view.setPalette(dark);
    EXPECT_EQ(m_view.grab().toImage().pixelColor(2, 2), QColor(Qt::black));
    EXPECT_NE(m_view.grab().toImage(), light);
    QFont large = m_view.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    const int small = m_view.Places().tickFont.pixelSize();
    m_view.setFont(large);
    EXPECT_GT(m_view.Places().tickFont.pixelSize(), small);
}

TEST_F(ChartView, IsSmallEnoughForThreeBesideEachOtherInTheOpeningWindow)
{
    const QSize least = m_view.minimumSizeHint();
    EXPECT_LE(3 * least.width(), 600);
    m_view.SetChart(MadeChart(10, 52, BarStyle::ThreeDimensional));
    m_view.resize(least);
    EXPECT_EQ(m_view.Places().values.size(), 10U) << "each value stands above its bar";
}
