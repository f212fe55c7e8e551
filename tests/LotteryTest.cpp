#include "picks/Lottery.h"

#include "app/TextPictures.h"
#include "app/Twips.h"
#include "picks/PickSets.h"
#include "picks/RollingBalls.h"
#include "picks/SelectoriumHelp.h"
#include "tests/FixedSource.h"
#include "tests/FormBench.h"
#include "tests/PrintedPages.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

#include <cmath>
#include <set>

using namespace Qt::StringLiterals;

namespace {

class Selectorium : public FormBench
{
protected:
    /// Opens the form from the menu on the database as it is; the balls do not keep the tests waiting.
    void Open()
    {
        const DrawDatabase database = m_shared.database;
        const AppSettings settings = m_shared.settings;
        Start();
        m_shared.settings = settings;
        if (database.count > 0) {
            m_shared.database = database; // starting begins with an empty one
        }
        Click(u"PickForm"_s);
        Settle();
        Balls().SetStepLength(0);
    }
    RollingBalls& Balls() { return Find<RollingBalls>(u"BallRow"_s); }
    void Draw(const std::vector<int>& indexes, int count)
    {
        m_shared.random = std::make_shared<FixedSource>(ValuesFor(indexes, count));
    }
    bool Checked(const QString& button) { return Find<QAbstractButton>(button).isChecked(); }
    QTableView& Grid() { return Find<QTableView>(u"PGrid"_s); }
    QString Heading(int column) { return Grid().model()->headerData(column, Qt::Horizontal).toString(); }
    QStringList Row(int row)
    {
        QStringList texts;
        for (int column = 0; column < Grid().model()->columnCount(); ++column) {
            texts << Cell(u"PGrid"_s, row, column);
        }
        return texts;
    }
    bool GridIsEmpty()
    {
        for (int row = 0; row < Grid().model()->rowCount(); ++row) {
            if (!Row(row).join(QString()).isEmpty()) {
                return false;
            }
        }
        return true;
    }
    bool IsRed()
    {
        const QModelIndex cell = Grid().model()->index(0, 1);
        const bool red = cell.data(Qt::ForegroundRole) == QVariant(QColor(Qt::red));
        EXPECT_EQ(qvariant_cast<QFont>(cell.data(Qt::FontRole)).bold(), red); // not by colour alone
        return red;
    }
    QString ShownForm() const
    {
        return m_window.ActiveForm() == nullptr ? QString() : m_window.ActiveForm()->objectName();
    }
    /// Leaves a text in a box without its check.
    void Put(const QString& box, const QString& text) { Box(box).setText(text); }
    /// Types into a box, leaves it by Enter and lets its message come.
    void Enter(const QString& box, const QString& text)
    {
        TypeInto(box, text);
        QTest::keyClick(&Box(box), Qt::Key_Return);
        Settle();
    }
    void ChoosePositions(const QString& left, const QString& right)
    {
        Click(u"Option2"_s);
        Enter(u"InStartNo"_s, left);
        Enter(u"InEndNo"_s, right);
    }
    /// Goes into a box and on: then the display is empty, and the sets are not.
    void ExpectLeavingClearsTheDisplay(const QString& box)
    {
        Box(box).setFocus(Qt::TabFocusReason);
        EXPECT_FALSE(GridIsEmpty());
        Find<QPushButton>(u"PHelp"_s).setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(GridIsEmpty()) << box.toStdString();
        EXPECT_EQ(TextOf(u"PickFrom"_s), u" Picked from numbers "_s);
        EXPECT_EQ(TextOf(u"FromNums"_s), QString());
        EXPECT_NE(m_shared.PickTable.at(1).at(1), 0);
    }
    /// A click as the system sends it, by way of the window.
    void ClickInWindow(const QWidget& widget)
    {
        const QPoint place = widget.mapTo(&m_window, widget.rect().center());
        QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, place);
        Settle();
    }
    /// Begins a calculation that takes its time.
    void BeginSlowly()
    {
        Balls().SetStepLength(60000);
        Click(u"PCalc"_s);
        ASSERT_TRUE(Balls().IsRunning());
    }
};

// Opening

TEST_F(Selectorium, HasItsCaptionsFramesAndLabels)
{
    FillDatabase(12);
    Open();
    EXPECT_EQ(m_window.windowTitle(), u" Selectorium"_s);
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
    const QList<QPair<QString, QString>> buttons{
        {u"PCalc"_s, u"&Calculate"_s},
        {u"CalcAllNum"_s, u"&Select All"_s},
        {u"ShowHCD"_s, u"Hot   Cold  Due  &Data"_s},
        {u"PClearAll"_s, u"Clear &All"_s},
        {u"PPrinter"_s, u"To &Printer"_s},
        {u"PHelp"_s, u"Quick &Help"_s},
        {u"PExit"_s, u"E&xit to Menu"_s},
        {u"Option1"_s, u"Full range of numbers in the lottery"_s},
        {u"Option2"_s, u"Sorted position:  Left           to  Right"_s},
        {u"PWhichCnt"_s, u" Database: Times numbers were drawn"_s},
        {u"ChkDBPicks"_s, u"Allow less than normal database picks"_s},
    };
    for (const auto& [name, caption] : buttons) {
        EXPECT_EQ(Find<QAbstractButton>(name).text(), caption);
    }
    EXPECT_EQ(Find<QGroupBox>(u"Frame1"_s).title(), u"Pick random numbers from :"_s);
    EXPECT_EQ(Find<QGroupBox>(u"Frame2"_s).title(), u"Lottery setup"_s);
    EXPECT_EQ(Find<QGroupBox>(u"Frame3"_s).title(), u"Pick from:"_s);
    EXPECT_EQ(TextOf(u"Label5"_s), u"Number of Picks to select in the lottery"_s);
    EXPECT_EQ(TextOf(u"Label6"_s), u"Numbers in the lottery Range from 1 to"_s);
    EXPECT_EQ(TextOf(u"Label7"_s), u"Number of entry forms being played"_s);
    EXPECT_EQ(TextOf(u"Label1"_s), u"Must have database to use this selector."_s);
    EXPECT_EQ(TextOf(u"PickFrom"_s), u"Picked from numbers"_s);
    EXPECT_EQ(TextOf(u"FromNums"_s), QString());
    EXPECT_EQ(TextOf(u"Picture7"_s), QString());
    EXPECT_EQ(FocusName(), u"PCalc"_s);
}

TEST_F(Selectorium, OpensOnRecordsWithTheShapeOfTheDatabase)
{
    m_shared.settings.entryForms = 4;
    FillDatabase(12);
    Open();
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"6"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"49"_s);
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"4"_s);
    EXPECT_EQ(Box(u"InStartNo"_s).text(), u" 1"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u"25"_s); // halves go up
    EXPECT_TRUE(Find<QLabel>(u"InfoLabel1"_s).isVisible());
    EXPECT_EQ(TextOf(u"InfoLabel1"_s), u" File in Memory \r\n  Test 6/49  "_s);
    EXPECT_TRUE(Find<QCheckBox>(u"PWhichCnt"_s).isVisible());
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_TRUE(Checked(u"PWhichCnt"_s));
    EXPECT_FALSE(Checked(u"ChkDBPicks"_s));
    EXPECT_FALSE(Box(u"InStartNo"_s).isEnabled());
    EXPECT_FALSE(Box(u"InEndNo"_s).isEnabled());
}

TEST_F(Selectorium, OpensOnAnEmptyDatabaseWithTheShapeOfTheSettings)
{
    m_shared.settings.defaultPicks = 5;
    m_shared.settings.defaultHighest = 9;
    m_shared.settings.entryForms = 10;
    Open();
    EXPECT_EQ(m_shared.database.columns, 7);
    EXPECT_EQ(m_shared.database.highest, 9);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"5"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"9"_s);
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"10"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u" 5"_s);
    EXPECT_FALSE(Find<QLabel>(u"InfoLabel1"_s).isVisible());
    EXPECT_FALSE(Find<QCheckBox>(u"PWhichCnt"_s).isVisible());
    EXPECT_EQ(Grid().model()->columnCount(), 6);
}

TEST_F(Selectorium, HoldsAShapeFromAFileToItsLimits)
{
    FillDatabase(3);
    m_shared.database.columns = 300;
    m_shared.database.highest = 32767;
    Open();
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"10"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"60"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Row(0).size(), 11);
}

TEST_F(Selectorium, OpensAnewEveryTime)
{
    FillDatabase(12);
    Open();
    ClickBox(u"PWhichCnt"_s);
    ClickBox(u"ChkDBPicks"_s);
    ChoosePositions(u"3"_s, u"30"_s);
    Click(u"PCalc"_s);
    Click(u"PHelp"_s);
    EXPECT_NE(m_shared.PickTable, SetTable{});
    Click(u"PExit"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    EXPECT_EQ(ShownForm(), u"LotoMenu"_s);
    m_shared.NumberStats = {};
    Click(u"PickForm"_s);
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(m_shared.CandidateNumbers, CandidateList{});
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(TextOf(u"PickFrom"_s), u"Picked from numbers"_s);
    EXPECT_EQ(TextOf(u"FromNums"_s), QString());
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_TRUE(Checked(u"PWhichCnt"_s));
    EXPECT_EQ(Find<QAbstractButton>(u"PWhichCnt"_s).text(), u" Database: Times numbers were drawn"_s);
    EXPECT_FALSE(Checked(u"ChkDBPicks"_s));
    EXPECT_EQ(Box(u"InStartNo"_s).text(), u" 1"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u"25"_s);
    EXPECT_TRUE(Find<QPlainTextEdit>(u"PTextBox"_s).isHidden());
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(m_shared.NumberStats, CountNumbers(m_shared.database, CountMode::TimesDrawn)); // counted anew
}

TEST_F(Selectorium, EveryBoxAndGridCanBeSpokenOfByAScreenReader)
{
    Open();
    auto& form = Find<QWidget>(u"Lottery"_s);
    for (const InputBox* box : form.findChildren<InputBox*>()) {
        bool named = !box->accessibleName().isEmpty();
        for (const QLabel* label : form.findChildren<QLabel*>()) {
            named = named || label->buddy() == box;
        }
        EXPECT_TRUE(named) << box->objectName().toStdString();
    }
    EXPECT_FALSE(Grid().accessibleName().isEmpty());
    EXPECT_FALSE(Grid().accessibleDescription().isEmpty());
    EXPECT_FALSE(Balls().accessibleName().isEmpty());
    EXPECT_FALSE(Find<QPlainTextEdit>(u"PTextBox"_s).accessibleName().isEmpty());
}

TEST_F(Selectorium, AScreenReaderReadsWhatTheLabelsShow)
{
    FillDatabase(12);
    Open();
    const auto spoken = [this](const QString& label) {
        return QAccessible::queryAccessibleInterface(&Find<QLabel>(label))->text(QAccessible::Name);
    };
    EXPECT_TRUE(spoken(u"InfoLabel1"_s).contains(u"Test 6/49"_s));
    Click(u"PCalc"_s);
    EXPECT_EQ(spoken(u"FromNums"_s).trimmed(), u"1 to 49"_s);
    EXPECT_EQ(spoken(u"PickFrom"_s).trimmed(), u"Picked from numbers"_s);
    BeginSlowly();
    EXPECT_EQ(spoken(u"Picture7"_s), u"Shuffling"_s);
    Balls().Finish();
    for (const QString& label : {u"InfoLabel1"_s, u"FromNums"_s, u"Picture7"_s}) {
        auto* interface = QAccessible::queryAccessibleInterface(&Find<QLabel>(label));
        EXPECT_FALSE(interface->text(QAccessible::Description).isEmpty()) << label.toStdString();
    }
}

TEST_F(Selectorium, TheNumbersPickedFromStandAtTheirPlaceInTheFrame)
{
    Open();
    const auto& label = Find<QLabel>(u"FromNums"_s);
    const int dots = m_window.logicalDpiX();
    EXPECT_EQ(label.mapTo(&Find<QGroupBox>(u"Frame3"_s), QPoint()).x(), TwipsToPixels(855, dots));
    EXPECT_EQ(label.minimumWidth(), TwipsToPixels(7755, dots));
    EXPECT_GE(label.width(), TwipsToPixels(7755, dots));
}

TEST_F(Selectorium, TheTabKeyGoesThroughTheBoxesInReadingOrder)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    Box(u"InColNum"_s).setFocus();
    const QStringList order{u"InColNum"_s,  u"InHighNum"_s, u"InNumRows"_s, u"Option2"_s,
                            u"InStartNo"_s, u"InEndNo"_s,   u"PWhichCnt"_s, u"ChkDBPicks"_s,
                            u"PGrid"_s,     u"PCalc"_s,     u"CalcAllNum"_s};
    for (const QString& name : order) {
        EXPECT_EQ(FocusName(), name);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    }
}

// The grid

TEST_F(Selectorium, TheGridHasAHeadingAndTenRowsInTheWidthOfItsPicks)
{
    Open();
    const QAbstractItemModelTester tester(Grid().model());
    for (const int picks : {1, 6, 10}) {
        Enter(u"InColNum"_s, QString::number(picks));
        EXPECT_EQ(Grid().model()->rowCount(), 10);
        EXPECT_EQ(Grid().model()->columnCount(), picks + 1);
        EXPECT_EQ(Heading(0), u"No."_s);
        for (int column = 1; column <= picks; ++column) {
            EXPECT_EQ(Heading(column), Str(column));
        }
        const double inches = ((picks + 1) * 575 + 10) / 1440.0;
        EXPECT_EQ(Grid().width(), qRound(inches * m_window.logicalDpiX()));
        EXPECT_EQ(Grid().verticalScrollBar()->maximum(), 0);
        Click(u"PCalc"_s);
        EXPECT_EQ(Row(0).size(), picks + 1);
    }
}

TEST_F(Selectorium, TenPicksInTenRowsFromSixtyPositionsFitTheOpeningSize)
{
    FillDatabase(60);
    m_shared.database.highest = 60;
    m_shared.database.columns = 12;
    m_shared.settings.entryForms = 10;
    Open();
    ChoosePositions(u"1"_s, u"60"_s);
    Click(u"PCalc"_s);
    Settle();
    EXPECT_EQ(Grid().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Grid().horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(Grid().viewport()->rect().contains(Grid().visualRect(Grid().model()->index(9, 10))));
    for (const QLabel* label : Find<QWidget>(u"Lottery"_s).findChildren<QLabel*>()) {
        const int height =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        EXPECT_LE(height, label->height()) << label->objectName().toStdString();
        if (!label->wordWrap()) {
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->objectName().toStdString();
        }
    }
    for (const QAbstractButton* button : Find<QWidget>(u"Lottery"_s).findChildren<QAbstractButton*>()) {
        if (button->isVisible()) {
            EXPECT_LE(button->minimumSizeHint().width(), button->width())
                << button->objectName().toStdString();
        }
    }
    EXPECT_LE(Find<QWidget>(u"Lottery"_s).minimumSizeHint().height(), 458);
    EXPECT_LE(Find<QWidget>(u"Lottery"_s).minimumSizeHint().width(), 641);
}

TEST_F(Selectorium, TheLeftBoxStandsInTheGapOfItsCaption)
{
    Open();
    const auto& option = Find<QRadioButton>(u"Option2"_s);
    const QRect box = Box(u"InStartNo"_s).geometry();
    const QFontMetrics metrics(option.font());
    const int text = option.width() - metrics.horizontalAdvance(option.text()); // about where the text begins
    const int before = metrics.horizontalAdvance(u"Sorted position:  Left"_s);
    const int after = metrics.horizontalAdvance(u"Sorted position:  Left           "_s);
    EXPECT_GE(box.left(), before);
    EXPECT_LE(box.right(), text + after);
    EXPECT_GE(box.width(), metrics.horizontalAdvance(u"60"_s) + 8);
}

// Entry boxes

TEST_F(Selectorium, AClickEmptiesABoxAndEnterGoesOn)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    const QList<QPair<QString, QString>> ways{{u"InColNum"_s, u"InHighNum"_s},
                                              {u"InHighNum"_s, u"InNumRows"_s},
                                              {u"InNumRows"_s, u"PCalc"_s},
                                              {u"InStartNo"_s, u"InEndNo"_s},
                                              {u"InEndNo"_s, u"PCalc"_s}};
    for (const auto& [box, next] : ways) {
        QTest::mouseClick(&Box(box), Qt::LeftButton);
        EXPECT_EQ(Box(box).text(), QString());
        EXPECT_EQ(m_shared.entryEdited, 1);
        QTest::keyClicks(&Box(box), u"7"_s);
        QTest::keyClick(&Box(box), Qt::Key_Return);
        EXPECT_EQ(FocusName(), next);
        EXPECT_EQ(m_shared.entryEdited, 0);
        EXPECT_EQ(Val(Box(box).text()), 7);
    }
}

TEST_F(Selectorium, TheFirstKeyReplacesAndOnlyDigitsAreTaken)
{
    Open();
    TypeInto(u"InHighNum"_s, u"3"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"3"_s);
    const QSignalSpy refused(&Box(u"InHighNum"_s), &InputBox::KeyRefused);
    QTest::keyClicks(&Box(u"InHighNum"_s), u"a.-5"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"35"_s);
    EXPECT_EQ(refused.size(), 3);
    QApplication::clipboard()->setText(u"44"_s);
    QTest::keySequence(&Box(u"InHighNum"_s), QKeySequence::Paste);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"35"_s);
    Box(u"InNumRows"_s).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
}

TEST_F(Selectorium, AnEditedBoxIsWrittenAnewAndAnUntouchedOneIsNot)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    Enter(u"InColNum"_s, u"07"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"7"_s);
    Enter(u"InStartNo"_s, u"02"_s);
    EXPECT_EQ(Box(u"InStartNo"_s).text(), u" 2"_s); // these two are right-justified
    Enter(u"InEndNo"_s, u"9"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u" 9"_s);
    Put(u"InHighNum"_s, u"07"_s);
    Box(u"InHighNum"_s).setFocus(Qt::TabFocusReason);
    Box(u"InNumRows"_s).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"07"_s);
}

TEST_F(Selectorium, ANumberOutOfItsRangeBringsTheMessageOfItsBox)
{
    m_shared.settings.entryForms = 3;
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    const struct {
        QString box;
        QStringList refused;
        int message;
        QString text;
        QString reset;
    } rows[] = {
        {u"InColNum"_s, {u"0"_s, u"11"_s, u"99"_s, QString()}, 27, u"Must be from 1 to 10"_s, u"10"_s},
        {u"InHighNum"_s, {u"0"_s, u"61"_s, u"99999"_s, QString()}, 28, u"Must be from 1 to 60"_s, u"60"_s},
        {u"InNumRows"_s, {u"0"_s, u"11"_s, u"99"_s, QString()}, 27, u"Must be from 1 to 10"_s, u"3"_s},
        {u"InStartNo"_s, {u"0"_s, u"50"_s, u"99"_s}, 17, u"Must be from  1  to  43"_s, u" 1"_s},
        {u"InEndNo"_s, {u"50"_s, u"99"_s}, 17, u"Must be from  7  to  49"_s, u"49"_s},
    };
    for (const auto& row : rows) {
        for (const QString& typed : row.refused) {
            m_prompts.expectedMessages = {row.message};
            QTest::mouseClick(&Box(row.box), Qt::LeftButton);
            QTest::keyClicks(&Box(row.box), typed);
            QTest::keyClick(&Box(row.box), Qt::Key_Return);
            Settle();
            EXPECT_TRUE(m_prompts.expectedMessages.empty());
            EXPECT_EQ(LastMessage(), row.text) << row.box.toStdString();
            EXPECT_EQ(Box(row.box).text(), row.reset);
        }
    }
}

TEST_F(Selectorium, TheBoundsOfTheBoxesAreTaken)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    for (const QString& box : {u"InColNum"_s, u"InHighNum"_s, u"InNumRows"_s, u"InStartNo"_s, u"InEndNo"_s}) {
        Enter(box, u"1"_s);
        EXPECT_EQ(Val(Box(box).text()), 1);
    }
    Enter(u"InColNum"_s, u"10"_s);
    Enter(u"InHighNum"_s, u"60"_s);
    Enter(u"InNumRows"_s, u"10"_s);
    Enter(u"InStartNo"_s, u"49"_s);
    Enter(u"InEndNo"_s, u"49"_s);
    EXPECT_TRUE(m_prompts.shownTexts.isEmpty());
}

TEST_F(Selectorium, TheQuotedBoundsFollowTheSettingsTheLeftBoxAndTheDatabase)
{
    FillDatabase(12);
    m_shared.settings.defaultPicks = 10;
    m_shared.database.columns = 5;
    m_shared.database.highest = 5;
    Open();
    Click(u"Option2"_s);
    m_prompts.expectedMessages = {17, 17};
    Enter(u"InStartNo"_s, u"6"_s);
    EXPECT_EQ(LastMessage(), u"Must be from  1  to -5"_s); // 5 less 10
    Enter(u"InStartNo"_s, u"4"_s);
    Enter(u"InEndNo"_s, u"6"_s);
    EXPECT_EQ(LastMessage(), u"Must be from  7  to  5"_s); // 4 and 3
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u" 5"_s);
}

TEST_F(Selectorium, EmptyPositionsAreFilledWithoutAWord)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    QTest::mouseClick(&Box(u"InStartNo"_s), Qt::LeftButton); // empties it
    QTest::keyClick(&Box(u"InStartNo"_s), Qt::Key_Return);
    EXPECT_EQ(Box(u"InStartNo"_s).text(), u" 1"_s);
    for (const QString& typed : {QString(), u"0"_s}) {
        Put(u"InStartNo"_s, typed);
        QTest::mouseClick(&Box(u"InEndNo"_s), Qt::LeftButton);
        QTest::keyClicks(&Box(u"InEndNo"_s), typed);
        QTest::keyClick(&Box(u"InEndNo"_s), Qt::Key_Return);
        EXPECT_EQ(Box(u"InEndNo"_s).text(), u"49"_s);
        EXPECT_EQ(Box(u"InStartNo"_s).text(), u" 1"_s);
    }
    EXPECT_TRUE(m_prompts.shownTexts.isEmpty());
}

TEST_F(Selectorium, LeavingABoxClearsTheDisplayButNotTheSets)
{
    FillDatabase(12);
    Open();
    for (const QString& box : {u"InColNum"_s, u"InHighNum"_s, u"InNumRows"_s}) {
        Click(u"PCalc"_s);
        EXPECT_FALSE(GridIsEmpty());
        ExpectLeavingClearsTheDisplay(box);
    }
}

TEST_F(Selectorium, LeavingAPositionClearsTheDisplayButNotTheSets)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    for (const QString& box : {u"InStartNo"_s, u"InEndNo"_s}) {
        Click(u"PCalc"_s);
        EXPECT_FALSE(GridIsEmpty());
        EXPECT_NE(TextOf(u"FromNums"_s), QString());
        ExpectLeavingClearsTheDisplay(box);
    }
}

TEST_F(Selectorium, ACommandIsNotRunWhenTheBoxLeftForItBringsAMessage)
{
    Open();
    TypeInto(u"InColNum"_s, u"15"_s);
    m_prompts.expectedMessages = {27};
    Click(u"PCalc"_s);
    Settle();
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"10"_s);
}

// Options

TEST_F(Selectorium, SortedPositionsNeedADatabase)
{
    Open();
    m_prompts.expectedMessages = {44};
    Click(u"Option2"_s);
    Settle();
    EXPECT_TRUE(m_prompts.expectedMessages.empty());
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_FALSE(Box(u"InStartNo"_s).isEnabled());
    Draw({6, 5, 4, 3, 2, 1}, 49);
    Click(u"PCalc"_s);
    EXPECT_EQ(TextOf(u"PickFrom"_s), u" Picked from numbers "_s);
    EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 1"_s, u" 2"_s, u" 3"_s, u" 4"_s, u" 5"_s, u" 6"_s}));
}

TEST_F(Selectorium, TheOptionsEnableThePositionsAndDisableThem)
{
    FillDatabase(1);
    Open();
    Click(u"PCalc"_s);
    Click(u"Option2"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_TRUE(Box(u"InStartNo"_s).isEnabled());
    EXPECT_TRUE(Box(u"InEndNo"_s).isEnabled());
    Click(u"Option1"_s);
    EXPECT_FALSE(Box(u"InStartNo"_s).isEnabled());
    EXPECT_FALSE(Box(u"InEndNo"_s).isEnabled());
}

TEST_F(Selectorium, TheFullRangeAndFewerPicksLeaveTheSetsOnDisplay)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    Click(u"PCalc"_s);
    const QStringList set = Row(0);
    const QString heading = TextOf(u"PickFrom"_s);
    const QString numbers = TextOf(u"FromNums"_s);
    ASSERT_FALSE(GridIsEmpty());
    ASSERT_NE(heading, u" Picked from numbers "_s);
    ASSERT_NE(numbers, QString());
    const std::vector<std::function<void()>> clicks{[this] { Click(u"Option1"_s); },
                                                    [this] { ClickBox(u"ChkDBPicks"_s); },
                                                    [this] { ClickBox(u"ChkDBPicks"_s); }};
    for (const auto& click : clicks) {
        click();
        EXPECT_EQ(Row(0), set);
        EXPECT_EQ(TextOf(u"PickFrom"_s), heading);
        EXPECT_EQ(TextOf(u"FromNums"_s), numbers);
    }
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_FALSE(Checked(u"ChkDBPicks"_s)); // clicked twice
}

TEST_F(Selectorium, AnArrowKeyChoosesAnOptionAsAClickDoes)
{
    FillDatabase(1);
    Open();
    Find<QRadioButton>(u"Option1"_s).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Checked(u"Option2"_s));
    EXPECT_TRUE(Box(u"InStartNo"_s).isEnabled());
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_FALSE(Box(u"InStartNo"_s).isEnabled());
}

TEST_F(Selectorium, TheCheckBoxSwitchesTheCountAndBack)
{
    FillDatabase(12);
    Open();
    Click(u"PCalc"_s);
    ClickBox(u"PWhichCnt"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
    EXPECT_EQ(Find<QCheckBox>(u"PWhichCnt"_s).text(), u" Database: No. draws since last drawn"_s);
    EXPECT_EQ(m_shared.NumberStats, CountNumbers(m_shared.database, CountMode::SinceLastDrawn));
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(TextOf(u"PickFrom"_s), u" Picked from numbers "_s);
    ClickBox(u"PWhichCnt"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(Find<QCheckBox>(u"PWhichCnt"_s).text(), u" Database: Times numbers were drawn"_s);
    EXPECT_EQ(m_shared.NumberStats, CountNumbers(m_shared.database, CountMode::TimesDrawn));
}

// Calculate

TEST_F(Selectorium, CalculatesSetsFromTheFullRange)
{
    Open();
    Put(u"InColNum"_s, u"3"_s);
    Put(u"InHighNum"_s, u"10"_s);
    Put(u"InNumRows"_s, u"2"_s);
    Draw({9, 9, 4, 10, 1, 2, 3}, 10);
    Click(u"PCalc"_s);
    EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 4"_s, u" 9"_s, u"10"_s}));
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u" 1"_s, u" 2"_s, u" 3"_s}));
    EXPECT_EQ(Row(2), QStringList(4, QString()));
    EXPECT_EQ(TextOf(u"PickFrom"_s), u" Picked from numbers "_s);
    EXPECT_EQ(TextOf(u"FromNums"_s), u"  1 to 10  "_s);
    EXPECT_EQ(m_shared.CandidateNumbers, FullRange(10));
    EXPECT_EQ(m_shared.PickTable.at(2).at(3), 3);
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
    EXPECT_EQ(TextOf(u"Picture7"_s), QString());
    const auto& source = static_cast<FixedSource&>(*m_shared.random);
    EXPECT_EQ(source.draws, 7U);
    EXPECT_EQ(source.reseeds, 8U); // once before all, then before every draw
}

TEST_F(Selectorium, ACalculationNeverShowsEarlierSets)
{
    Open();
    Put(u"InNumRows"_s, u"10"_s);
    Click(u"PCalc"_s);
    EXPECT_FALSE(Row(9).join(QString()).isEmpty());
    Put(u"InNumRows"_s, u"1"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Row(1), QStringList(7, QString()));
    EXPECT_EQ(m_shared.PickTable.at(2), SetTable{}.at(2));
}

TEST_F(Selectorium, AsManyPicksAsNumbersMakeEverySetTheSame)
{
    Open();
    Put(u"InHighNum"_s, u"6"_s);
    Put(u"InNumRows"_s, u"10"_s);
    Click(u"PCalc"_s);
    for (int row = 0; row < 10; ++row) {
        EXPECT_EQ(Row(row), (QStringList{QString::number(row + 1), u" 1"_s, u" 2"_s, u" 3"_s, u" 4"_s,
                                         u" 5"_s, u" 6"_s}));
    }
}

TEST_F(Selectorium, ALotteryOfOneNumberIsCalculated)
{
    Open();
    Put(u"InColNum"_s, u"1"_s);
    Put(u"InHighNum"_s, u"1"_s);
    Put(u"InNumRows"_s, u"2"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u" 1"_s}));
}

TEST_F(Selectorium, ADatabaseOfOneNumberAndOnePickIsCalculated)
{
    m_shared.database.columns = 3;
    m_shared.database.highest = 1;
    m_shared.database.Append(QDate(2000, 1, 1), {1});
    Open();
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u" 1"_s); // a half goes up
    for (const QString& option : {u"Option1"_s, u"Option2"_s}) {
        Click(option);
        Click(u"PCalc"_s);
        EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 1"_s})) << option.toStdString();
        EXPECT_TRUE(IsRed());
    }
    Click(u"CalcAllNum"_s);
    EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 1"_s}));
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u" 2"_s);
}

TEST_F(Selectorium, PicksForcedToOneByTheDatabaseAreRedAtOnce)
{
    m_shared.database.columns = 3;
    m_shared.database.highest = 49;
    for (int number = 1; number <= 12; ++number) {
        m_shared.database.Append(QDate(2000, 1, number), {number});
    }
    Open();
    ChoosePositions(u"1"_s, u"25"_s);
    Put(u"InColNum"_s, u"3"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"1"_s);
    EXPECT_EQ(Row(0).size(), 2);
    EXPECT_TRUE(IsRed());
}

TEST_F(Selectorium, PicksForcedFromOneToSixByTheDatabaseHaveTheColourOfTheWindow)
{
    FillDatabase(12);
    Open();
    ChoosePositions(u"1"_s, u"25"_s);
    Put(u"InColNum"_s, u"1"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"6"_s);
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_FALSE(Grid().model()->index(0, 1).data(Qt::ForegroundRole).isValid());
}

TEST_F(Selectorium, OnePickIsRedInBothPalettes)
{
    Open();
    const QPalette light = QApplication::palette();
    Put(u"InColNum"_s, u"1"_s);
    Click(u"PCalc"_s);
    EXPECT_TRUE(IsRed());
    QPalette dark(QColor(0x4A, 0x4D, 0x52), QColor(0x35, 0x37, 0x3B));
    dark.setColor(QPalette::Base, QColor(0x26, 0x28, 0x2B));
    for (const QPalette& palette : {light, dark}) {
        QApplication::setPalette(palette);
        Settle();
        const QRect cell = Grid().visualRect(Grid().model()->index(0, 1));
        const QImage picture = Grid().viewport()->grab(cell).toImage();
        bool red = false;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                red = red || (pixel.red() > 200 && pixel.green() < 100 && pixel.blue() < 100);
            }
        }
        EXPECT_TRUE(red);
    }
    QApplication::setPalette(light);
    EXPECT_FALSE(Grid().model()->index(0, 0).data(Qt::ForegroundRole).isValid()); // the set's number is not
    Put(u"InColNum"_s, u"2"_s);
    Click(u"PCalc"_s);
    EXPECT_FALSE(IsRed());
}

TEST_F(Selectorium, TheColourFollowsThePicksBox)
{
    Open();
    Enter(u"InColNum"_s, u"1"_s);
    EXPECT_FALSE(IsRed()); // left as it was until the next calculation
    Click(u"PCalc"_s);
    EXPECT_TRUE(IsRed());
    Enter(u"InColNum"_s, u"1"_s);
    EXPECT_TRUE(IsRed());
    Enter(u"InColNum"_s, u"4"_s);
    EXPECT_FALSE(IsRed());
    Put(u"InColNum"_s, u"1"_s);
    Put(u"InHighNum"_s, u"20"_s);
    Click(u"PCalc"_s);
    EXPECT_TRUE(IsRed());
    Click(u"CalcAllNum"_s);
    EXPECT_FALSE(IsRed());
}

TEST_F(Selectorium, OversizedNumbersAreHeldToTheirLimitsWithoutAWord)
{
    m_shared.settings.entryForms = 3;
    Open();
    Put(u"InColNum"_s, u"99"_s);
    Put(u"InHighNum"_s, u"99999"_s);
    Put(u"InNumRows"_s, u"11"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"10"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"60"_s);
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"3"_s);
    EXPECT_EQ(Row(2).size(), 11);
    EXPECT_EQ(Row(2).at(0), u"3"_s);
    EXPECT_EQ(Row(3), QStringList(11, QString()));
    EXPECT_EQ(TextOf(u"FromNums"_s), u"  1 to 60  "_s);
}

TEST_F(Selectorium, AMissingNumberEndsACalculation)
{
    Open();
    for (const QString& box : {u"InColNum"_s, u"InHighNum"_s, u"InNumRows"_s}) {
        for (const QString& text : {QString(), u"0"_s}) {
            Click(u"PCalc"_s);
            const QString before = Box(box).text();
            Put(box, text);
            m_prompts.expectedMessages = {24};
            Click(u"PCalc"_s);
            EXPECT_EQ(LastMessage(), u"Cannot work with missing number"_s);
            EXPECT_EQ(m_shared.PickTable, SetTable{});
            EXPECT_TRUE(GridIsEmpty());
            Put(box, before);
        }
    }
}

TEST_F(Selectorium, LeftToRightMustHaveRoomForASet)
{
    FillDatabase(12);
    Open();
    ChoosePositions(u"1"_s, u"5"_s);
    m_prompts.expectedMessages = {19};
    Click(u"PCalc"_s);
    EXPECT_EQ(LastMessage(), u"Left to Right difference must be at least 6"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u"49"_s);
    EXPECT_EQ(m_shared.entryEdited, 0);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    ChoosePositions(u"1"_s, u"6"_s);
    Click(u"PCalc"_s);
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(Selectorium, TheRoomIsAskedForInTheFullRangeToo)
{
    FillDatabase(12);
    m_shared.database.highest = 8;
    Open();
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u" 4"_s);
    m_prompts.expectedMessages = {19};
    Click(u"PCalc"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text(), u" 8"_s);
    Click(u"PCalc"_s);
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(Selectorium, MorePicksThanNumbersShowWhatWasDrawn)
{
    Open();
    Put(u"InHighNum"_s, u"3"_s);
    Put(u"InColNum"_s, u"4"_s);
    Put(u"InNumRows"_s, u"2"_s);
    Draw({3, 1, 2}, 3);
    m_prompts.expectedMessages = {7};
    Click(u"PCalc"_s);
    EXPECT_EQ(LastMessage(), u"Not enough Data"_s);
    EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 3"_s, u" 1"_s, u" 2"_s, QString()})); // as drawn, not sorted
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, QString(), QString(), QString(), QString()}));
    EXPECT_EQ(TextOf(u"FromNums"_s), QString());
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false})); // it is animated all the same
}

TEST_F(Selectorium, PicksFromTheNumbersAtSortedPositions)
{
    FillDatabase(30);
    Open();
    Put(u"InNumRows"_s, u"10"_s);
    ChoosePositions(u"1"_s, u"25"_s);
    Click(u"PCalc"_s);
    NumberTable sorted = SortNumbers(CountNumbers(m_shared.database, CountMode::TimesDrawn), 49, 0);
    std::set<int> allowed;
    QString first;
    for (std::size_t position = 1; position <= 25; ++position) {
        const int number = sorted.at(position).label;
        allowed.insert(number);
        first += position <= 20
                     ? u"%1"_s.arg(number, 2, 10, QChar(u'0')).rightJustified(position == 1 ? 5 : 6)
                     : QString();
    }
    for (std::size_t row = 1; row <= 10; ++row) {
        for (std::size_t column = 1; column <= 6; ++column) {
            EXPECT_EQ(allowed.count(m_shared.PickTable.at(row).at(column)), 1U);
        }
    }
    EXPECT_EQ(TextOf(u"PickFrom"_s),
              u" Picked from sorted positions in database  1 to  25: Times numbers were drawn "_s);
    const QStringList lines = TextOf(u"FromNums"_s).split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.at(0), first);
    EXPECT_EQ(lines.at(1).size(), 30);
    EXPECT_EQ(m_shared.sortMode, 0);
    EXPECT_EQ(m_shared.sortedNumberStats, sorted);
}

TEST_F(Selectorium, WhateverTheTableWasSortedByBeforeTheHighestCountComesFirst)
{
    FillDatabase(30);
    Open();
    const NumberTable counts = CountNumbers(m_shared.database, CountMode::TimesDrawn);
    ASSERT_NE(SortNumbers(counts, 49, kNumberOrder), SortNumbers(counts, 49, 0));
    m_shared.sortMode = kNumberOrder;
    Click(u"PCalc"_s); // from the full range
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(m_shared.sortMode, 0);
    ChoosePositions(u"1"_s, u"25"_s);
    m_shared.sortMode = kNumberOrder;
    Click(u"PCalc"_s);
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(m_shared.sortMode, 0);
    EXPECT_EQ(m_shared.sortedNumberStats, SortNumbers(counts, 49, 0));
}

TEST_F(Selectorium, TheHeadingSaysWhatThePositionsWereSortedBy)
{
    FillDatabase(30);
    Open();
    ClickBox(u"PWhichCnt"_s);
    ChoosePositions(u"2"_s, u"9"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(TextOf(u"PickFrom"_s),
              u" Picked from sorted positions in database  2 to  9: No. draws since last drawn "_s);
    EXPECT_EQ(m_shared.sortedNumberStats,
              SortNumbers(CountNumbers(m_shared.database, CountMode::SinceLastDrawn), 49, 0));
}

TEST_F(Selectorium, SortedPositionsTakeTheShapeOfTheDatabase)
{
    FillDatabase(30);
    Open();
    Put(u"InColNum"_s, u"3"_s);
    Put(u"InHighNum"_s, u"20"_s);
    ChoosePositions(u"1"_s, u"25"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"6"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"49"_s);
    EXPECT_EQ(Row(0).size(), 7);
}

TEST_F(Selectorium, FewerPicksThanTheDatabaseHasAreAllowedOnDemandButNeverMore)
{
    FillDatabase(30);
    Open();
    ClickBox(u"ChkDBPicks"_s);
    ChoosePositions(u"1"_s, u"25"_s);
    Put(u"InColNum"_s, u"3"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Row(0).size(), 4);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"3"_s);
    Put(u"InColNum"_s, u"8"_s);
    m_prompts.expectedMessages = {20};
    Click(u"PCalc"_s);
    EXPECT_EQ(LastMessage(), u"Number of picks greater than allowed for database."_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"6"_s);
    EXPECT_EQ(Row(0).size(), 7);
    EXPECT_FALSE(GridIsEmpty());
    ClickBox(u"ChkDBPicks"_s);
    Put(u"InColNum"_s, u"8"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"6"_s);
}

TEST_F(Selectorium, ADatabaseThatLostItsRecordsIsToldAndTheFullRangeChosen)
{
    FillDatabase(30);
    Open();
    ChoosePositions(u"1"_s, u"25"_s);
    m_shared.database.count = 0;
    m_prompts.expectedMessages = {31};
    Click(u"PCalc"_s);
    EXPECT_EQ(LastMessage(), u"No records in the database"_s);
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_FALSE(Box(u"InStartNo"_s).isEnabled());
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_TRUE(m_prompts.busyChanges.empty()); // nothing to animate
}

TEST_F(Selectorium, ADatabaseOfOneRecordIsEnoughForSortedPositions)
{
    FillDatabase(1);
    Open();
    ChoosePositions(u"1"_s, u"6"_s);
    Click(u"PCalc"_s);
    EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 1"_s, u" 2"_s, u" 3"_s, u" 4"_s, u" 5"_s, u" 6"_s}));
}

TEST_F(Selectorium, ASetIsMadeByTheKeyboardAlone)
{
    Open();
    Box(u"InColNum"_s).setFocus(Qt::TabFocusReason);
    for (const QString& text : {u"2"_s, u"2"_s, u"1"_s}) {
        QTest::keyClicks(m_window.focusWidget(), text);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(FocusName(), u"PCalc"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Row(0), (QStringList{u"1"_s, u" 1"_s, u" 2"_s}));
}

TEST_F(Selectorium, TheAccessKeyChecksTheBoxItLeaves)
{
    Open();
    TypeInto(u"InColNum"_s, u"02"_s);
    QTest::keyClick(&m_window, Qt::Key_C, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_shared.PickTable.at(1).at(2) != 0; }));
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"2"_s);
    EXPECT_EQ(m_shared.PickTable.at(1).at(3), 0);
}

// Select All

TEST_F(Selectorium, SelectAllSpreadsEveryNumberOverTheSets)
{
    FillDatabase(12);
    Open();
    Click(u"Option2"_s);
    Click(u"CalcAllNum"_s);
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u" 9"_s);
    EXPECT_EQ(Grid().model()->rowCount(), 21);
    EXPECT_EQ(TextOf(u"PickFrom"_s), u" 'Select All' "_s);
    EXPECT_EQ(TextOf(u"FromNums"_s), u" Has randomly put the lottery numbers 1 to 49 into 9 entry forms. "_s);
    std::set<int> numbers;
    for (int row = 0; row < 9; ++row) {
        EXPECT_EQ(Row(row).at(0), QString::number(row + 1));
        for (int column = 1; column <= 6; ++column) {
            const QString text = Row(row).at(column);
            EXPECT_EQ(text.isEmpty(), row == 8 && column > 1); // eight are full, the last has one
            if (!text.isEmpty()) {
                numbers.insert(text.toInt());
                EXPECT_GT(text.toInt(), column == 1 ? 0 : Row(row).at(column - 1).toInt());
            }
        }
    }
    EXPECT_EQ(numbers.size(), 49U);
    EXPECT_EQ(*numbers.rbegin(), 49);
    EXPECT_EQ(Row(9), QStringList(7, QString()));
    EXPECT_EQ(m_shared.CandidateNumbers, FullRange(49));
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
}

TEST_F(Selectorium, SelectAllShowsTwentyOneRowsOfWhichTheLastIsEmptyAndScrolls)
{
    Open();
    Put(u"InHighNum"_s, u"60"_s);
    Put(u"InColNum"_s, u"3"_s);
    Click(u"CalcAllNum"_s);
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"21"_s);
    EXPECT_FALSE(Row(19).contains(QString()));
    EXPECT_EQ(Row(20), (QStringList{u"21"_s, QString(), QString(), QString()}));
    EXPECT_GT(Grid().verticalScrollBar()->maximum(), 0);
    Grid().scrollToBottom();
    EXPECT_TRUE(Grid().viewport()->rect().contains(Grid().visualRect(Grid().model()->index(20, 3))));
    Click(u"PCalc"_s); // 21 entry forms are more than can be played
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"1"_s);
    EXPECT_EQ(Grid().model()->rowCount(), 10);
    EXPECT_EQ(Grid().verticalScrollBar()->value(), 0);
}

TEST_F(Selectorium, SelectAllShowsItsFirstRowsWhereverTheGridWasScrolledTo)
{
    Open();
    Put(u"InHighNum"_s, u"60"_s);
    Put(u"InColNum"_s, u"3"_s);
    Click(u"CalcAllNum"_s);
    QScrollBar& bar = *Grid().verticalScrollBar();
    Grid().scrollToBottom();
    ASSERT_GT(bar.value(), 0);
    Click(u"CalcAllNum"_s);
    Settle();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(Selectorium, SelectAllRefusesMoreThanTwentyRows)
{
    Open();
    Put(u"InHighNum"_s, u"60"_s);
    Put(u"InColNum"_s, u"2"_s);
    Click(u"PCalc"_s);
    m_prompts.expectedMessages = {4};
    Click(u"CalcAllNum"_s);
    EXPECT_EQ(LastMessage(), u"Too many numbers to fit in the maximium of 20 rows."_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"1"_s);
    m_prompts.expectedMessages = {1};
    Click(u"PPrinter"_s);
}

TEST_F(Selectorium, SelectAllHoldsThePicksAndTheHighestNumberToTheirLimits)
{
    Open();
    Put(u"InHighNum"_s, u"99"_s);
    Put(u"InColNum"_s, u"99"_s);
    Click(u"CalcAllNum"_s);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"60"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"10"_s);
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u" 7"_s);
}

TEST_F(Selectorium, SelectAllNeedsPicksAndAHighestNumberAndLeavesTheDisplayWithoutThem)
{
    Open();
    Click(u"PCalc"_s);
    for (const QString& box : {u"InColNum"_s, u"InHighNum"_s}) {
        const QString before = Box(box).text();
        Put(box, u"0"_s);
        m_prompts.expectedMessages = {24};
        Click(u"CalcAllNum"_s);
        EXPECT_FALSE(GridIsEmpty());
        EXPECT_EQ(m_shared.PickTable, SetTable{});
        Put(box, before);
    }
    Put(u"InNumRows"_s, QString()); // is not asked
    Click(u"CalcAllNum"_s);
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u" 9"_s);
}

TEST_F(Selectorium, AShuffleWithoutLuckEndsWithTheMessageAndAnEmptyGrid)
{
    Open();
    Click(u"PHelp"_s);
    Draw({1}, 49); // never another number
    m_prompts.expectedMessages = {7};
    Click(u"CalcAllNum"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(Grid().model()->rowCount(), 21);
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(Box(u"InNumRows"_s).text(), u"1"_s);
    EXPECT_FALSE(m_prompts.busy);
    EXPECT_TRUE(Find<QPlainTextEdit>(u"PTextBox"_s).isHidden());
}

// Other commands

TEST_F(Selectorium, ClearAllEmptiesTheDisplayAndTheSets)
{
    Open();
    Click(u"CalcAllNum"_s);
    Click(u"PClearAll"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(TextOf(u"PickFrom"_s), u" Picked from numbers "_s);
    EXPECT_EQ(TextOf(u"FromNums"_s), QString());
    m_prompts.expectedMessages = {1};
    Click(u"PPrinter"_s);
}

TEST_F(Selectorium, WithoutSetsThereIsNothingToPrint)
{
    Open();
    m_prompts.expectedMessages = {1};
    Click(u"PPrinter"_s);
    EXPECT_EQ(LastMessage(), u"No data to print."_s);
    EXPECT_TRUE(m_prompts.askedTexts.isEmpty());
    EXPECT_TRUE(m_prompts.printed.empty());
}

TEST_F(Selectorium, PrintsTheSetsAfterYes)
{
    m_shared.settings.printerFont = kCourierNewFont;
    Open();
    Put(u"InNumRows"_s, u"2"_s);
    Draw({1, 2, 3, 4, 5, 6, 49, 48, 47, 46, 45, 44}, 49);
    Click(u"PCalc"_s);
    m_prompts.answers = {false};
    Click(u"PPrinter"_s);
    EXPECT_TRUE(m_prompts.printed.empty());
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    m_prompts.answers = {true};
    Click(u"PPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.printed.front(), m_prompts.offered.back());
    EXPECT_EQ(m_prompts.printed.front().name, u"Selectorium"_s);
    EXPECT_EQ(m_prompts.printed.front().printerFont, kCourierNewFont);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    EXPECT_EQ(lines.at(2), u"  Picked from numbers"_s);
    EXPECT_EQ(lines.at(9), u"      1    2    3    4    5    6"_s);
    EXPECT_EQ(lines.at(10), u"     44   45   46   47   48   49"_s);
    EXPECT_EQ(lines.size(), 12);
}

TEST_F(Selectorium, WhatWasCalculatedIsPrintedAlsoWhenTheDisplayIsCleared)
{
    Open();
    Click(u"CalcAllNum"_s);
    Enter(u"InHighNum"_s, u"20"_s);
    EXPECT_TRUE(GridIsEmpty());
    m_prompts.answers = {true};
    Click(u"PPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    EXPECT_EQ(lines.at(2), u"  'Select All'"_s);
    EXPECT_EQ(lines.size(), 9 + 9 + 1);
}

TEST_F(Selectorium, WhatIsTypedAfterACalculationDoesNotChangeWhatIsPrinted)
{
    Open();
    Draw({1, 2, 3, 4, 5, 6}, 49);
    Click(u"PCalc"_s);
    for (const QString& picks : {u"3"_s, u"9"_s}) {
        Enter(u"InColNum"_s, picks);
        Enter(u"InHighNum"_s, u"20"_s);
        Enter(u"InNumRows"_s, u"7"_s);
        m_prompts.printed.clear();
        m_prompts.answers = {true};
        Click(u"PPrinter"_s);
        ASSERT_EQ(m_prompts.printed.size(), 1U);
        const QStringList lines = PageLines(m_prompts.printed.front(), 1);
        ASSERT_EQ(lines.size(), 11);
        EXPECT_EQ(lines.at(9), u"      1    2    3    4    5    6"_s);
        EXPECT_EQ(lines.at(10).trimmed(), QString(30, u'_'));
        EXPECT_EQ(lines.at(7).trimmed(), QString(30, u'_'));
    }
}

TEST_F(Selectorium, HotColdAndDueDataNeedTenRecords)
{
    Open();
    m_prompts.expectedMessages = {44};
    Click(u"ShowHCD"_s);
    for (const int records : {1, 9}) {
        m_shared.database.Empty();
        FillDatabase(records);
        m_prompts.expectedMessages = {48};
        Click(u"ShowHCD"_s);
        EXPECT_EQ(LastMessage(), u"Must have at least 10 records in database to use."_s);
    }
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
}

TEST_F(Selectorium, HotColdAndDueDataTakeTheFormsPlace)
{
    FillDatabase(10);
    Open();
    Click(u"ShowHCD"_s);
    EXPECT_EQ(ShownForm(), u"LHotCold"_s);
    EXPECT_FALSE(Find<QWidget>(u"Lottery"_s).isVisible());
}

TEST_F(Selectorium, QuickHelpOpensAndClosesAndACalculationClosesIt)
{
    Open();
    auto& help = Find<QPlainTextEdit>(u"PTextBox"_s);
    EXPECT_TRUE(help.isHidden());
    for (const QString& close : {u"PHelp"_s, u"PCalc"_s, u"CalcAllNum"_s}) {
        Click(u"PHelp"_s);
        EXPECT_TRUE(help.isVisible());
        EXPECT_EQ(Find<QPushButton>(u"PHelp"_s).text(), u"Close &Help"_s);
        const QString before = help.toPlainText();
        QTest::keyClicks(&help, u"abc 123"_s);
        QTest::keyClick(&help, Qt::Key_Delete);
        EXPECT_EQ(help.toPlainText(), before);
        Click(close);
        EXPECT_TRUE(help.isHidden()) << close.toStdString();
        EXPECT_EQ(Find<QPushButton>(u"PHelp"_s).text(), u"Quick &Help"_s);
        EXPECT_TRUE(Grid().isVisible());
    }
}

TEST_F(Selectorium, QuickHelpIsScrolledByTheKeysAsItSays)
{
    Open();
    auto& help = Find<QPlainTextEdit>(u"PTextBox"_s);
    Find<QPushButton>(u"PHelp"_s).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(FocusName(), u"PTextBox"_s);
    Settle();
    EXPECT_EQ(help.verticalScrollBar()->value(), 0);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_PageDown);
    EXPECT_GT(help.verticalScrollBar()->value(), 0);
    QTest::keyClick(&m_window, Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return help.isHidden(); }));
    EXPECT_EQ(FocusName(), u"PHelp"_s);
}

TEST_F(Selectorium, QuickHelpHandsTheFocusBackHoweverItIsClosed)
{
    Open();
    Balls().SetStepLength(60000);
    Click(u"PCalc"_s);
    Balls().Finish();
    Click(u"PHelp"_s);
    EXPECT_EQ(FocusName(), u"PTextBox"_s);
    Find<QPushButton>(u"PCalc"_s).click();
    Find<QPlainTextEdit>(u"PTextBox"_s).setFocus(); // as assistive technology can
    Balls().Finish();
    EXPECT_TRUE(Find<QPlainTextEdit>(u"PTextBox"_s).isHidden());
    EXPECT_EQ(FocusName(), u"PHelp"_s);
}

TEST_F(Selectorium, QuickHelpSaysWhatPlayersAsk)
{
    const QString text = SelectoriumHelpText();
    EXPECT_TRUE(text.startsWith(u"How to use Selectorium"_s));
    for (const QString& sentence :
         {u"The difference between Left to Right must be greater than the number of picks."_s,
          u"Numbers are counted and sorted from highest count (Left) to lowest (Right)."_s,
          u"Any numbers that have not been drawn yet = lowest number of times drawn."_s,
          u"Any numbers that have not been drawn yet = total number of draws in database."_s,
          u"The 'Select All' button will pick each of the numbers in the lottery range and randomly put them "
          u"in "
          u"the number of entry forms necessary to hold them. This means that all winning numbers will be "
          u"covered. Limit is 20 Rows. Scroll to see all rows."_s,
          u"This is checked for the full range too. If the message comes again, choose sorted positions and "
          u"lower Left."_s,
          u"For draws ranging from 0 to ?, set the range from 1 to ? + 1 and use this last number as "
          u"substitute "
          u"for number 0."_s}) {
        EXPECT_TRUE(text.contains(sentence)) << sentence.toStdString();
    }
}

// The balls

TEST_F(Selectorium, TheBallsRestInTheirColours)
{
    Open();
    const QColor colors[] = {Qt::red, Qt::yellow, Qt::cyan, Qt::green, Qt::white, Qt::magenta};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Find<Ball>(u"Balls%1"_s.arg(i)).Color(), colors[i]) << i;
    }
}

TEST_F(Selectorium, ABallIsRoundWithABlackOutlineOnItsOwnScaleOfAHundred)
{
    for (const qreal density : {1.0, 2.0}) {
        Ball ball;
        ball.SetColor(Qt::red);
        ball.resize(100, 100);
        QImage picture(QSize(100, 100) * density, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(density);
        picture.fill(Qt::transparent);
        ball.render(&picture, {}, {}, {});
        const auto at = [&](double x, double y) {
            return picture.pixelColor(int(x * density), int(y * density));
        };
        for (int degrees = 0; degrees < 360; degrees += 15) {
            const double x = std::cos(degrees * M_PI / 180);
            const double y = std::sin(degrees * M_PI / 180);
            EXPECT_EQ(at(50 + 42 * x, 50 + 42 * y).alpha(), 0) << degrees;
            EXPECT_LT(at(50 + 40 * x, 50 + 40 * y).red(), 160) << degrees; // the outline
            const QColor inside = at(50 + 36 * x, 50 + 36 * y);
            EXPECT_GT(inside.red(), 120) << degrees;
            EXPECT_EQ(inside.alpha(), 255) << degrees;
        }
        EXPECT_GT(at(50, 50).red(), 240);
    }
}

TEST_F(Selectorium, TheRunShufflesAndPicksBeforeTheSetsAreShown)
{
    Open();
    QStringList words;
    QObject::connect(&Balls(), &RollingBalls::WordChanged, &Balls(), [&](const QString& word) {
        words << word;
        EXPECT_EQ(TextOf(u"Picture7"_s), word);
        EXPECT_TRUE(m_prompts.busy);
        EXPECT_TRUE(GridIsEmpty());
        EXPECT_NE(m_shared.PickTable.at(1).at(1), 0);
    });
    Balls().SetStepLength(20);
    Click(u"PCalc"_s);
    EXPECT_TRUE(Balls().IsRunning());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Balls().IsRunning(); }));
    EXPECT_GE(words.size(), 2); // both words, at least once
    for (int i = 0; i < words.size(); ++i) {
        EXPECT_EQ(words.at(i), i % 2 == 0 ? u"Shuffling"_s : u"Picking"_s) << i;
    }
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(TextOf(u"Picture7"_s), QString());
    EXPECT_FALSE(m_prompts.busy);
    EXPECT_EQ(Find<Ball>(u"Balls0"_s).Color(), QColor(Qt::red));
}

TEST_F(Selectorium, AStepTakesATenthOfASecondAndTheRunThirtySevenOfThem)
{
    const RollingBalls balls;
    EXPECT_EQ(balls.StepLength(), 100);
    EXPECT_EQ(balls.StepLength() * kBallSteps, 3700);
    Start();
    Click(u"PickForm"_s);
    EXPECT_EQ(Balls().StepLength(), RollingBalls::kStepLength); // the form leaves it so
}

TEST_F(Selectorium, TheBallsDoNotGrowWithoutLimitInALargeWindow)
{
    Open();
    m_window.resize(2400, 1500);
    Settle();
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Find<Ball>(u"Balls%1"_s.arg(i)).size(), QSize(50, 50));
    }
}

TEST_F(Selectorium, TheColoursRollToTheRight)
{
    Open();
    std::vector<std::array<QColor, 6>> looks;
    Balls().SetStepLength(40);
    Click(u"PCalc"_s);
    const auto look = [this] {
        std::array<QColor, 6> colors;
        for (std::size_t i = 0; i < colors.size(); ++i) {
            colors.at(i) = Find<Ball>(u"Balls%1"_s.arg(i)).Color();
        }
        return colors;
    };
    const std::array<QColor, 6> rest = look();
    std::array<QColor, 6> next = rest;
    std::rotate(next.begin(), next.end() - 1, next.end());
    EXPECT_TRUE(QTest::qWaitFor([&] { return look() == next || !Balls().IsRunning(); }));
    EXPECT_TRUE(Balls().IsRunning());
    QTest::keyClick(&m_window, Qt::Key_Escape);
    EXPECT_EQ(look(), rest);
}

TEST_F(Selectorium, EscapeShowsTheSetsAtOnce)
{
    Open();
    BeginSlowly();
    EXPECT_TRUE(GridIsEmpty());
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Balls().IsRunning());
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_FALSE(m_prompts.busy);
}

TEST_F(Selectorium, TheWindowTakesNoInputWhileTheBallsRoll)
{
    Open();
    BeginSlowly();
    const SetTable sets = m_shared.PickTable;
    Click(u"PCalc"_s); // a second click
    Click(u"CalcAllNum"_s);
    Click(u"PClearAll"_s);
    Click(u"PExit"_s);
    Click(u"Option2"_s);
    ClickBox(u"ChkDBPicks"_s);
    Find<QPushButton>(u"PCalc"_s).setFocus();
    ClickInWindow(Box(u"InColNum"_s));
    QTest::keyClicks(&Box(u"InColNum"_s), u"3"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(&m_window, Qt::Key_X, Qt::AltModifier);
    QTest::qWait(150); // the time a button stays down after its access key
    EXPECT_TRUE(Balls().IsRunning());
    EXPECT_EQ(m_shared.PickTable, sets);
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
    EXPECT_EQ(Box(u"InColNum"_s).text(), u"6"_s);
    EXPECT_FALSE(Checked(u"ChkDBPicks"_s));
    EXPECT_EQ(FocusName(), u"PCalc"_s);
    QTest::keyClick(&m_window, Qt::Key_Escape);
    EXPECT_FALSE(GridIsEmpty());
    ClickInWindow(Find<QPushButton>(u"PExit"_s)); // input is taken again
    EXPECT_EQ(ShownForm(), u"LotoMenu"_s);
}

TEST_F(Selectorium, ACommandGivenWithoutAnEventIsRefusedTooWhileTheBallsRoll)
{
    Open();
    BeginSlowly();
    const SetTable sets = m_shared.PickTable;
    for (const QString& button : {u"PCalc"_s, u"CalcAllNum"_s, u"PClearAll"_s, u"PExit"_s}) {
        Find<QPushButton>(button).click(); // as a screen reader does
    }
    EXPECT_TRUE(Balls().IsRunning());
    EXPECT_EQ(m_shared.PickTable, sets);
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
    Balls().Finish();
}

TEST_F(Selectorium, AChoiceGivenWithoutAnEventIsTakenBackWhileTheBallsRoll)
{
    FillDatabase(12);
    Open();
    BeginSlowly();
    const QString heading = TextOf(u"PickFrom"_s);
    const QString numbers = TextOf(u"FromNums"_s);
    const NumberTable counts = m_shared.NumberStats;
    for (const QString& button : {u"PWhichCnt"_s, u"ChkDBPicks"_s, u"Option2"_s, u"PHelp"_s}) {
        Find<QAbstractButton>(button).click(); // as a screen reader does
    }
    EXPECT_TRUE(Balls().IsRunning());
    EXPECT_TRUE(Checked(u"PWhichCnt"_s));
    EXPECT_EQ(Find<QCheckBox>(u"PWhichCnt"_s).text(), u" Database: Times numbers were drawn"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(m_shared.NumberStats, counts);
    EXPECT_FALSE(Checked(u"ChkDBPicks"_s));
    EXPECT_TRUE(Checked(u"Option1"_s));
    EXPECT_FALSE(Box(u"InStartNo"_s).isEnabled());
    EXPECT_TRUE(Find<QPlainTextEdit>(u"PTextBox"_s).isHidden());
    EXPECT_EQ(TextOf(u"PickFrom"_s), heading);
    EXPECT_EQ(TextOf(u"FromNums"_s), numbers);
    Balls().Finish();

    ChoosePositions(u"1"_s, u"25"_s);
    ClickBox(u"ChkDBPicks"_s);
    BeginSlowly();
    Find<QAbstractButton>(u"Option1"_s).click();
    Find<QAbstractButton>(u"ChkDBPicks"_s).click();
    EXPECT_TRUE(Checked(u"Option2"_s));
    EXPECT_TRUE(Checked(u"ChkDBPicks"_s));
    EXPECT_TRUE(Box(u"InStartNo"_s).isEnabled());
    Balls().Finish();
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(Selectorium, ATextPutIntoABoxWhileTheBallsRollChangesNothingOfWhatIsShown)
{
    Open();
    BeginSlowly();
    const QString heading = TextOf(u"PickFrom"_s);
    const QString numbers = TextOf(u"FromNums"_s);
    Box(u"InColNum"_s).setFocus();
    Put(u"InColNum"_s, u"3"_s);
    Box(u"InHighNum"_s).setFocus();
    Put(u"InHighNum"_s, u"77"_s);
    Box(u"InNumRows"_s).setFocus();
    Settle();
    EXPECT_TRUE(Balls().IsRunning());
    EXPECT_EQ(TextOf(u"PickFrom"_s), heading);
    EXPECT_EQ(TextOf(u"FromNums"_s), numbers);
    Balls().Finish();
    ASSERT_EQ(Row(0).size(), 7);
    EXPECT_EQ(Row(0).at(6), RightJustify(QString::number(m_shared.PickTable.at(1).at(6)), 2));
    EXPECT_EQ(TextOf(u"FromNums"_s), numbers);
    Balls().SetStepLength(0);
    Click(u"PCalc"_s); // the next calculation works with what was put there, within its limits
    EXPECT_EQ(Row(0).size(), 4);
    EXPECT_EQ(Box(u"InHighNum"_s).text(), u"60"_s);
}

TEST_F(Selectorium, APositionBeyondAllNumbersGivesNoSet)
{
    FillDatabase(30);
    Open();
    ChoosePositions(u"1"_s, u"25"_s);
    Put(u"InStartNo"_s, u"100000000000"_s); // as an assistive program may, without the check on leaving
    Put(u"InEndNo"_s, u"10000000000000"_s);
    m_prompts.expectedMessages = {7};
    Click(u"PCalc"_s);
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_FALSE(TextOf(u"PickFrom"_s).contains(u'-'));
}

TEST_F(Selectorium, ASecondClickOfADoubleClickOnCalculateIsNotASecondCalculation)
{
    Open();
    Balls().SetStepLength(60000);
    auto& calculate = Find<QPushButton>(u"PCalc"_s);
    const QPoint place = calculate.mapTo(&m_window, calculate.rect().center());
    QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, place);
    const SetTable sets = m_shared.PickTable;
    EXPECT_NE(sets, SetTable{});
    QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, {}, place);
    Settle();
    EXPECT_TRUE(Balls().IsRunning());
    EXPECT_EQ(m_shared.PickTable, sets);
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true}));
    EXPECT_FALSE(calculate.isDown());
    Balls().Finish();
    EXPECT_FALSE(GridIsEmpty());
    Balls().SetStepLength(0);
    ClickInWindow(calculate); // and the next click is taken
    EXPECT_NE(m_shared.PickTable, sets);
}

TEST_F(Selectorium, TheWindowIsPaintedWhileTheBallsRoll)
{
    Open();
    BeginSlowly();
    class Painted : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            times += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(watched, event);
        }
        int times = 0;
    } painted;
    Grid().viewport()->installEventFilter(&painted);
    Grid().viewport()->update();
    EXPECT_TRUE(QTest::qWaitFor([&] { return painted.times > 0; }));
    Balls().Finish();
}

TEST_F(Selectorium, LeavingTheFormWhileTheBallsRollEndsTheRun)
{
    Open();
    BeginSlowly();
    m_window.ShowForm(FormName::LotoMenu);
    EXPECT_FALSE(Balls().IsRunning());
    EXPECT_FALSE(m_prompts.busy);
    Click(u"PickForm"_s); // the menu takes clicks
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
    EXPECT_TRUE(GridIsEmpty());
}

TEST_F(Selectorium, OpeningTheFormAnewWhileTheBallsRollEndsTheRun)
{
    Open();
    BeginSlowly();
    m_window.ShowForm(FormName::Lottery);
    EXPECT_FALSE(Balls().IsRunning());
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(m_shared.PickTable, SetTable{});
}

TEST_F(Selectorium, ClosingTheWindowWhileTheBallsRollShowsTheSetsBeforeItAsks)
{
    FillDatabase(12);
    Open();
    m_shared.database.modified = 1;
    BeginSlowly();
    m_prompts.answers = {true}; // go back and save
    m_window.close();
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_FALSE(Balls().IsRunning());
    EXPECT_FALSE(GridIsEmpty());
    BeginSlowly();
    m_prompts.answers = {false};
    m_window.close();
    EXPECT_FALSE(m_window.isVisible());
    EXPECT_FALSE(m_prompts.busy);
}

TEST_F(Selectorium, AFormThatIsDestroyedWhileTheBallsRollLeavesNothingBehind)
{
    Start();
    auto* form = new Lottery(m_shared, m_prompts, m_window, &m_window);
    form->Load();
    form->show();
    form->findChild<QPushButton*>(u"PCalc"_s)->click();
    EXPECT_TRUE(m_prompts.busy);
    delete form;
    EXPECT_FALSE(m_prompts.busy);
    Click(u"PickForm"_s); // input is taken
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
}

TEST_F(Selectorium, ADesktopWithoutAnimationsShowsTheSetsAtOnce)
{
    class StillStyle : public QProxyStyle
    {
    public:
        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* answer) const override
        {
            return hint == SH_Widget_Animation_Duration
                       ? 0
                       : QProxyStyle::styleHint(hint, option, widget, answer);
        }
    } style;
    Open();
    Balls().setStyle(&style);
    Balls().SetStepLength(60000);
    Click(u"PCalc"_s);
    EXPECT_FALSE(Balls().IsRunning());
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
    Balls().setStyle(nullptr);
}

} // namespace
