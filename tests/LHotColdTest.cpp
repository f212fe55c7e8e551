#include "hotcold/LHotCold.h"

#include "app/BarChartView.h"
#include "app/TextPictures.h"
#include "hotcold/HcdChart.h"
#include "hotcold/HcdHelp.h"
#include "hotcold/ShufflingLabel.h"
#include "tests/FixedSource.h"
#include "tests/FormBench.h"
#include "tests/PrintedPages.h"
#include "tests/ToolTipText.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// The three lists, counted and ranked without the form.
HcdAnalysis Analysed(const DrawDatabase& database, int lastDraws)
{
    HcdAnalysis analysis;
    TallyLastDraws(analysis, database, lastDraws);
    RankNumbers(analysis, database.highest, HcdList::Hot);
    RankNumbers(analysis, database.highest, HcdList::Cold);
    TallyDrawsSince(analysis, database);
    RankNumbers(analysis, database.highest, HcdList::Due);
    return analysis;
}

/// The bars of a list, as (label, value).
std::vector<ChartBar> BarsOf(const HcdAnalysis& analysis, HcdList list)
{
    std::vector<ChartBar> bars;
    for (int i = 1; i <= kHcdListLength; ++i) {
        const NumberCount& count = analysis.HcdCandidates.at(std::size_t(RowBefore(list) + i));
        bars.push_back({.label = QString::number(count.label), .value = count.value});
    }
    return bars;
}

class HotCold : public FormBench
{
protected:
    /// Opens the form by way of the Selectorium on the database as it is; nothing keeps the tests waiting.
    void Open()
    {
        const DrawDatabase database = m_shared.database;
        const AppSettings settings = m_shared.settings;
        Start();
        m_shared.settings = settings;
        m_shared.database = database; // starting begins with an empty one
        Click(u"PickForm"_s);
        Settle();
        Click(u"ShowHCD"_s);
        Status().SetStepLength(0);
        Settle();
    }
    /// Leaves the form and comes back to it.
    void Reopen()
    {
        Click(u"ExitHotCold"_s);
        Click(u"ShowHCD"_s);
        Settle();
    }
    /// Draws of one number each, of a lottery with so many numbers: record r draws the r-th of the list.
    void FillWith(const std::vector<int>& numbers, int highest = 12)
    {
        DrawDatabase& database = m_shared.database;
        database.columns = 3;
        database.highest = qint16(highest);
        database.fileName = u"Made.Lto"_s;
        for (const int number : numbers) {
            database.Append(QDate(2020, 1, 1), {number});
        }
    }
    /// Twenty draws of twelve numbers, of which the last ten brought nine.
    void FillWithNineInTheLastTen()
    {
        FillWith({10, 11, 12, 1, 2, 3, 4, 5, 6, 7, 1, 2, 3, 4, 5, 6, 7, 8, 9, 9});
    }
    ShufflingLabel& Status() { return Find<ShufflingLabel>(u"ShuffleStatus"_s); }
    QTableView& Grid() { return Find<QTableView>(u"HCDGrid"_s); }
    const BarChart& Graph(const QString& name) { return Find<BarChartView>(name).Chart(); }
    QStringList Row(int row)
    {
        QStringList texts;
        for (int column = 0; column < Grid().model()->columnCount(); ++column) {
            texts << Cell(u"HCDGrid"_s, row, column);
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
    QString ShownForm() const
    {
        return m_window.ActiveForm() == nullptr ? QString() : m_window.ActiveForm()->objectName();
    }
    void Draw(const std::vector<int>& indexes)
    {
        m_shared.random = std::make_shared<FixedSource>(ValuesFor(indexes, 10));
    }
    /// Leaves a text in a box without its check.
    void Put(const QString& box, const QString& text) { Box(box).setText(text); }
    void PutCounts(int hot, int cold, int due)
    {
        Put(u"InHot"_s, QString::number(hot));
        Put(u"InCold"_s, QString::number(cold));
        Put(u"InDue"_s, QString::number(due));
    }
    /// Types into a box, leaves it by Enter and lets its message come.
    void Enter(const QString& box, const QString& text)
    {
        TypeInto(box, text);
        QTest::keyClick(&Box(box), Qt::Key_Return);
        Settle();
    }
    /// The same with the text taken away first.
    void EnterNothing(const QString& box)
    {
        Box(box).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Box(box), Qt::Key_Backspace);
        QTest::keyClick(&Box(box), Qt::Key_Return);
        Settle();
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
        Status().SetStepLength(60000);
        Click(u"CalcHCD"_s);
        ASSERT_TRUE(Status().IsRunning());
    }
};

// Opening

TEST_F(HotCold, HasItsCaptionsFramesAndLabels)
{
    FillDatabase(60);
    Open();
    EXPECT_EQ(ShownForm(), u"LHotCold"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Hot, Cold and Due data"_s);
    const QList<QPair<QString, QString>> buttons{
        {u"CalcHCD"_s, u"&Calculate"_s},
        {u"PrintHCD"_s, u"To &Printer"_s},
        {u"HelpHCD"_s, u"Quick &Help"_s},
        {u"HCDClrAll"_s, u"Clear &All"_s},
        {u"ExitHotCold"_s, u"E&xit to Selectorium"_s},
    };
    for (const auto& [name, caption] : buttons) {
        EXPECT_EQ(Find<QAbstractButton>(name).text(), caption);
    }
    EXPECT_EQ(Find<QGroupBox>(u"Frame1"_s).title(), u"Drawing Setup"_s);
    EXPECT_EQ(TextOf(u"Label2"_s), u"Hot"_s);
    EXPECT_EQ(TextOf(u"Label3"_s), u"Cold"_s);
    EXPECT_EQ(TextOf(u"Label4"_s), u"Due"_s);
    EXPECT_EQ(TextOf(u"Label5"_s), u"Pick from the last"_s);
    EXPECT_EQ(TextOf(u"Label8"_s), u"draws"_s);
    EXPECT_EQ(TextOf(u"Label7"_s), u"Number of game sets to play"_s);
    EXPECT_EQ(TextOf(u"Label6"_s), u" Select any combination for a total   of not more than  6 numbers."_s);
    EXPECT_EQ(TextOf(u"InfoLabel2"_s), u" File in Memory \n  Test.Lto  "_s);
    EXPECT_EQ(TextOf(u"ShuffleStatus"_s), QString());
    EXPECT_EQ(FocusName(), u"CalcHCD"_s);
}

TEST_F(HotCold, OpensOn649WithTwoOfEachAndFiftyTwoDraws)
{
    m_shared.settings.entryForms = 3;
    FillDatabase(60);
    Open();
    EXPECT_EQ(Box(u"InHot"_s).text(), u"2"_s);
    EXPECT_EQ(Box(u"InCold"_s).text(), u"2"_s);
    EXPECT_EQ(Box(u"InDue"_s).text(), u"2"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u" 52"_s);
    EXPECT_EQ(Box(u"InNumPlays"_s).text(), u" 3"_s);
    EXPECT_EQ(m_shared.gameSets, 0);
    EXPECT_EQ(m_shared.hcdPicksMade, 0);
    EXPECT_TRUE(GridIsEmpty());
}

TEST_F(HotCold, OpensWithAllDrawsWhenThereAreFewerThanFiftyTwo)
{
    FillDatabase(10);
    Open();
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u" 10"_s);
}

TEST_F(HotCold, TheFirstCountsFollowThePicksOfTheLottery)
{
    const std::vector<HcdCounts> table{{1, 0, 0}, {1, 0, 1}, {2, 1, 0}, {2, 1, 1}, {2, 1, 2},
                                       {2, 2, 2}, {3, 2, 2}, {3, 3, 2}, {4, 3, 2}, {4, 2, 4}};
    FillDatabase(60);
    Open();
    for (int picks = 1; picks <= 10; ++picks) {
        m_shared.database.columns = qint16(picks + 2);
        Click(u"ExitHotCold"_s);
        if (picks < 6) { // fewer numbers are counted, and none of them too few
            ASSERT_GE(m_shared.database.count, 10);
        }
        Click(u"ShowHCD"_s);
        Settle();
        const HcdCounts& counts = table.at(std::size_t(picks) - 1);
        EXPECT_EQ(Box(u"InHot"_s).text(), QString::number(counts.hot)) << picks;
        EXPECT_EQ(Box(u"InCold"_s).text(), QString::number(counts.cold)) << picks;
        EXPECT_EQ(Box(u"InDue"_s).text(), QString::number(counts.due)) << picks;
        EXPECT_EQ(TextOf(u"Label6"_s),
                  u" Select any combination for a total   of not more than "_s + Str(picks) + u" numbers."_s);
        EXPECT_EQ(Grid().model()->columnCount(), picks + 1);
    }
}

TEST_F(HotCold, OpensAnewEveryTime)
{
    m_shared.settings.entryForms = 2;
    FillDatabase(60);
    Open();
    PutCounts(1, 1, 1);
    Enter(u"InLastDraw"_s, u"20"_s);
    Enter(u"InNumPlays"_s, u"7"_s);
    Click(u"CalcHCD"_s);
    Click(u"HelpHCD"_s);
    EXPECT_NE(m_shared.PickTable, SetTable{});
    EXPECT_EQ(m_shared.gameSets, 7);
    Reopen();
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(m_shared.gameSets, 0);
    EXPECT_EQ(m_shared.hcdPicksMade, 0);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(Box(u"InHot"_s).text(), u"2"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u" 52"_s);
    EXPECT_EQ(Box(u"InNumPlays"_s).text(), u" 2"_s);
    EXPECT_TRUE(Find<QPlainTextEdit>(u"TextHCD"_s).isHidden());
    EXPECT_EQ(Find<QPushButton>(u"HelpHCD"_s).text(), u"Quick &Help"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Hot, Cold and Due data"_s);
}

TEST_F(HotCold, NothingOfAnotherDatabaseIsLeftWhenItOpensAgain)
{
    FillDatabase(60);
    Open();
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars.size(), 10U);
    Click(u"ExitHotCold"_s);
    m_shared.database = {};
    FillWith({1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3}, 9); // fewer than ten numbers at all
    m_prompts.expectedMessages = {51};
    Click(u"ShowHCD"_s);
    Settle();
    EXPECT_EQ(Graph(u"HotGraph1"_s), EmptyHcdChart(HcdList::Hot));
    EXPECT_EQ(Graph(u"ColdGraph2"_s), EmptyHcdChart(HcdList::Cold));
    EXPECT_EQ(Graph(u"DueGraph3"_s), EmptyHcdChart(HcdList::Due));
    EXPECT_EQ(TextOf(u"InfoLabel2"_s), u" File in Memory \n  Made.Lto  "_s);
    for (int i = 0; i < 4; ++i) { // message by message, and never a set of the numbers seen before
        m_prompts.expectedMessages = {51};
        Click(u"CalcHCD"_s);
        Settle();
        EXPECT_EQ(m_shared.PickTable, SetTable{});
    }
}

TEST_F(HotCold, ALongFileNameWidensNothing)
{
    FillDatabase(60);
    m_shared.database.fileName = QString(200, u'W') + u".Lto"_s;
    Open();
    EXPECT_LE(Find<QWidget>(u"LHotCold"_s).minimumSizeHint().width(), 641);
    EXPECT_EQ(TextOfToolTip(Find<QLabel>(u"InfoLabel2"_s).toolTip()), m_shared.database.fileName);
}

TEST_F(HotCold, EveryBoxGridAndGraphCanBeSpokenOfByAScreenReader)
{
    FillDatabase(60);
    Open();
    auto& form = Find<QWidget>(u"LHotCold"_s);
    EXPECT_EQ(form.findChildren<InputBox*>().size(), 5);
    for (const InputBox* box : form.findChildren<InputBox*>()) {
        bool named = !box->accessibleName().isEmpty();
        for (const QLabel* label : form.findChildren<QLabel*>()) {
            named = named || label->buddy() == box;
        }
        EXPECT_TRUE(named) << box->objectName().toStdString();
    }
    for (const QString& graph : {u"HotGraph1"_s, u"ColdGraph2"_s, u"DueGraph3"_s}) {
        EXPECT_FALSE(Find<QWidget>(graph).accessibleName().isEmpty());
        EXPECT_FALSE(Find<QWidget>(graph).accessibleDescription().isEmpty());
    }
    EXPECT_FALSE(Grid().accessibleName().isEmpty());
    EXPECT_FALSE(Grid().accessibleDescription().isEmpty());
    EXPECT_FALSE(Status().accessibleName().isEmpty());
    EXPECT_FALSE(Find<QPlainTextEdit>(u"TextHCD"_s).accessibleName().isEmpty());
}

TEST_F(HotCold, TheTabKeyGoesThroughTheFormInReadingOrder)
{
    FillDatabase(60);
    Open();
    Find<QWidget>(u"HotGraph1"_s).setFocus();
    const QStringList order{u"HotGraph1"_s, u"ColdGraph2"_s, u"DueGraph3"_s,  u"InHot"_s,      u"InCold"_s,
                            u"InDue"_s,     u"InLastDraw"_s, u"InNumPlays"_s, u"HCDGrid"_s,    u"CalcHCD"_s,
                            u"PrintHCD"_s,  u"HelpHCD"_s,    u"HCDClrAll"_s,  u"ExitHotCold"_s};
    for (const QString& name : order) {
        EXPECT_EQ(FocusName(), name);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(HotCold, TheGridHasAHeadingAndTenRowsInTheWidthOfItsPicks)
{
    FillDatabase(60);
    Open();
    const QAbstractItemModelTester tester(Grid().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const int picks : {1, 6, 10}) {
        m_shared.database.columns = qint16(picks + 2);
        Reopen();
        EXPECT_EQ(Grid().model()->rowCount(), 10);
        ASSERT_EQ(Grid().model()->columnCount(), picks + 1);
        EXPECT_EQ(Grid().model()->headerData(0, Qt::Horizontal).toString(), u"No."_s);
        for (int column = 1; column <= picks; ++column) {
            EXPECT_EQ(Grid().model()->headerData(column, Qt::Horizontal).toString(), Str(column));
        }
        const double inches = ((picks + 1) * 575 + 10) / 1440.0;
        EXPECT_EQ(Grid().width(), qRound(inches * m_window.logicalDpiX()));
        EXPECT_TRUE(GridIsEmpty());
    }
}

TEST_F(HotCold, TenSetsOfTenAndThreeGraphsFitTheOpeningSize)
{
    FillDatabase(60);
    m_shared.settings.entryForms = 10;
    m_shared.database.columns = 12;
    Open();
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(Grid().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Grid().horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(Grid().viewport()->rect().contains(Grid().visualRect(Grid().model()->index(9, 10))));
    auto& form = Find<QWidget>(u"LHotCold"_s);
    Status().setText(u"Shuffling"_s);
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        const int height =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        EXPECT_LE(height, label->height()) << label->objectName().toStdString();
        if (!label->wordWrap()) {
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->objectName().toStdString();
        }
    }
    Status().clear();
    for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
        if (button->isVisible()) {
            EXPECT_LE(button->minimumSizeHint().width(), button->width())
                << button->objectName().toStdString();
        }
    }
    for (const QString& graph : {u"HotGraph1"_s, u"ColdGraph2"_s, u"DueGraph3"_s}) {
        const ChartLayout& places = Find<BarChartView>(graph).Places();
        EXPECT_EQ(places.labels.size(), 10U);
        EXPECT_EQ(places.values.size(), 10U);
        EXPECT_EQ(places.valuePlace, ChartLayout::ValuePlace::Above);
        EXPECT_FALSE(places.titleLines.isEmpty());
    }
    EXPECT_LE(form.minimumSizeHint().height(), 458);
    EXPECT_LE(form.minimumSizeHint().width(), 641);
}

// The graphs

TEST_F(HotCold, TheGraphsShowTheTenNumbersOfEachListInTheirOrder)
{
    FillDatabase(75);
    Open();
    const HcdAnalysis expected = Analysed(m_shared.database, 52);
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars, BarsOf(expected, HcdList::Hot));
    EXPECT_EQ(Graph(u"ColdGraph2"_s).bars, BarsOf(expected, HcdList::Cold));
    EXPECT_EQ(Graph(u"DueGraph3"_s).bars, BarsOf(expected, HcdList::Due));
    EXPECT_EQ(Graph(u"HotGraph1"_s).title, u"Hot numbers"_s);
    EXPECT_EQ(Graph(u"ColdGraph2"_s).title, u"Cold numbers"_s);
    EXPECT_EQ(Graph(u"DueGraph3"_s).title, u"Due numbers"_s);
    for (const QString& graph : {u"HotGraph1"_s, u"ColdGraph2"_s, u"DueGraph3"_s}) {
        EXPECT_EQ(Graph(graph).style, BarStyle::ThreeDimensional);
    }
    EXPECT_EQ(m_shared.graphMode, HcdList::Due) << "the list ranked last";
}

TEST_F(HotCold, AnotherPeriodChangesHotAndColdButNotDueNumbers)
{
    FillDatabase(75);
    Open();
    const BarChart due = Graph(u"DueGraph3"_s);
    Enter(u"InLastDraw"_s, u"20"_s);
    const HcdAnalysis expected = Analysed(m_shared.database, 20);
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars, BarsOf(expected, HcdList::Hot));
    EXPECT_EQ(Graph(u"ColdGraph2"_s).bars, BarsOf(expected, HcdList::Cold));
    EXPECT_EQ(Graph(u"DueGraph3"_s), due);
}

TEST_F(HotCold, NineNumbersInThePeriodBringTheMessageWhenItOpens)
{
    FillWith({1, 2, 3, 4, 5, 6, 7, 8, 9, 9, 9});
    m_prompts.expectedMessages = {51};
    Open();
    EXPECT_EQ(LastMessage(), u"No enough data, see Hot graph. Only  9 different numbers in the database or "
                             "number of draws selected. Must have at least 10."_s);
    EXPECT_TRUE(Graph(u"HotGraph1"_s).bars.empty());
    EXPECT_TRUE(Graph(u"ColdGraph2"_s).bars.empty());
    EXPECT_EQ(Graph(u"DueGraph3"_s).bars.size(), 10U) << "nine were drawn before, and three never";
}

TEST_F(HotCold, TheMessageComesOverTheOpenForm)
{
    FillWith({1, 2, 3, 4, 5, 6, 7, 8, 9, 9, 9});
    m_prompts.expectedMessages = {51};
    const DrawDatabase database = m_shared.database;
    Start();
    m_shared.database = database;
    m_window.ShowForm(FormName::LHotCold);
    EXPECT_FALSE(m_prompts.expectedMessages.empty()) << "it came before the form was shown";
    Settle();
    EXPECT_TRUE(m_prompts.expectedMessages.empty());
}

TEST_F(HotCold, WithTooFewNumbersTheGraphsKeepWhatTheyShowed)
{
    FillWithNineInTheLastTen();
    Open();
    const BarChart hot = Graph(u"HotGraph1"_s);
    const BarChart cold = Graph(u"ColdGraph2"_s);
    const BarChart due = Graph(u"DueGraph3"_s);
    EXPECT_EQ(hot.bars.size(), 10U);
    m_prompts.expectedMessages = {51};
    Enter(u"InLastDraw"_s, u"10"_s);
    EXPECT_TRUE(LastMessage().contains(u"Only  9 different"_s));
    EXPECT_EQ(Graph(u"HotGraph1"_s), hot);
    EXPECT_EQ(Graph(u"ColdGraph2"_s), cold);
    EXPECT_EQ(Graph(u"DueGraph3"_s), due);
}

TEST_F(HotCold, WithTooFewNumbersUndrawnTheDueGraphShowsTheOthersAtNothing)
{
    // Of eleven numbers the last draw brought two, so nine are due.
    DrawDatabase& database = m_shared.database;
    database.columns = 4;
    database.highest = 11;
    for (int record = 1; record <= 12; ++record) {
        database.Append(QDate(2020, 1, 1), {record % 11 + 1, (record + 1) % 11 + 1});
    }
    Open();
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars.size(), 10U);
    const BarChart due = Graph(u"DueGraph3"_s);
    ASSERT_EQ(due.bars.size(), 10U);
    EXPECT_EQ(due.bars.front(), (ChartBar{.label = u"4"_s, .value = 9}));
    EXPECT_EQ(due.bars.at(8).value, 1) << due.bars.at(8).label.toStdString();
    EXPECT_EQ(due.bars.back().value, 0);
    EXPECT_NE(due.bars.back().label, u"0"_s) << "a number that came in the latest draw";
    m_prompts.expectedMessages = {7}; // no due number can be picked
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_EQ(LastMessage(), u"Not enough Data"_s);
    PutCounts(1, 1, 0);
    Click(u"CalcHCD"_s);
    EXPECT_FALSE(GridIsEmpty());
}

// Entry boxes

TEST_F(HotCold, AClickAndTheFocusSelectTheWholeText)
{
    FillDatabase(60);
    Open();
    for (const QString& name : {u"InHot"_s, u"InCold"_s, u"InDue"_s, u"InLastDraw"_s, u"InNumPlays"_s}) {
        InputBox& box = Box(name);
        const QString text = box.text();
        box.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(box.selectedText(), text) << name.toStdString();
        box.deselect();
        QTest::mouseClick(&box, Qt::LeftButton); // also in a box that has the focus already
        EXPECT_EQ(box.selectedText(), text) << name.toStdString();
        EXPECT_EQ(m_shared.entryEdited, 0);
        QTest::keyClicks(&box, u"1"_s); // what is typed takes its place
        EXPECT_EQ(box.text(), u"1"_s);
        EXPECT_EQ(m_shared.entryEdited, 1);
        box.setText(text);
    }
    m_shared.entryEdited = 0;
}

TEST_F(HotCold, OnlyDigitsAndEditingKeysAreTaken)
{
    FillDatabase(60);
    Open();
    for (const QString& name : {u"InHot"_s, u"InCold"_s, u"InDue"_s, u"InLastDraw"_s, u"InNumPlays"_s}) {
        InputBox& box = Box(name);
        box.setFocus(Qt::TabFocusReason);
        const QString text = box.text();
        const QSignalSpy refused(&box, &InputBox::KeyRefused);
        QTest::keyClicks(&box, u"a.-"_s);
        QApplication::clipboard()->setText(u"44"_s);
        QTest::keySequence(&box, QKeySequence::Paste);
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(refused.size(), 4);
    }
}

TEST_F(HotCold, EnterGoesThroughTheBoxesToCalculate)
{
    FillDatabase(60);
    Open();
    Box(u"InHot"_s).setFocus(Qt::TabFocusReason);
    for (const QString& next : {u"InCold"_s, u"InDue"_s, u"InLastDraw"_s, u"InNumPlays"_s, u"CalcHCD"_s}) {
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(FocusName(), next);
    }
}

TEST_F(HotCold, LeavingABoxClearsTheClipboard)
{
    FillDatabase(60);
    Open();
    for (const QString& name : {u"InHot"_s, u"InCold"_s, u"InDue"_s, u"InLastDraw"_s, u"InNumPlays"_s}) {
        Box(name).setFocus(Qt::TabFocusReason);
        QApplication::clipboard()->setText(u"44"_s);
        Find<QPushButton>(u"CalcHCD"_s).setFocus(Qt::TabFocusReason);
        EXPECT_EQ(QApplication::clipboard()->text(), QString()) << name.toStdString();
    }
}

TEST_F(HotCold, ACountAboveSixIsRefusedAndBecomesOne)
{
    FillDatabase(60);
    m_shared.database.columns = 12; // the limit is six whatever the lottery draws
    Open();
    for (const QString& name : {u"InHot"_s, u"InCold"_s, u"InDue"_s}) {
        for (const QString& typed : {u"7"_s, u"10"_s, u"99999999999"_s}) {
            m_prompts.expectedMessages = {50};
            Enter(name, typed);
            EXPECT_TRUE(m_prompts.expectedMessages.empty());
            EXPECT_EQ(LastMessage(),
                      u"Hot + Cold + Due numbers must be greater than 0 and not more than picks "
                      "allowed in this draw, which is  10"_s);
            EXPECT_EQ(Box(name).text(), u"1"_s);
        }
        for (const QString& typed : {u"6"_s, u"1"_s, u"0"_s}) {
            Enter(name, typed);
            EXPECT_EQ(Box(name).text(), typed);
        }
    }
}

TEST_F(HotCold, ATypedCountIsWrittenAnewAndAnEmptyOneBecomesZero)
{
    FillDatabase(60);
    Open();
    for (const QString& name : {u"InHot"_s, u"InCold"_s, u"InDue"_s}) {
        Enter(name, u"03"_s);
        EXPECT_EQ(Box(name).text(), u"3"_s);
        Enter(name, u"00"_s);
        EXPECT_EQ(Box(name).text(), u"0"_s);
        EnterNothing(name);
        EXPECT_EQ(Box(name).text(), u"0"_s);
        Put(name, QString()); // emptied without a key
        Box(name).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Box(name), Qt::Key_Return);
        EXPECT_EQ(Box(name).text(), u"0"_s);
        Put(name, u"02"_s);
        Box(name).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Box(name), Qt::Key_Return);
        EXPECT_EQ(Box(name).text(), u"02"_s) << "not typed";
    }
}

TEST_F(HotCold, LeavingACountEmptiesTheGridButNotTheSets)
{
    FillDatabase(60);
    Open();
    for (const QString& name : {u"InHot"_s, u"InCold"_s, u"InDue"_s}) {
        Click(u"CalcHCD"_s);
        EXPECT_FALSE(GridIsEmpty());
        const SetTable sets = m_shared.PickTable;
        Box(name).setFocus(Qt::TabFocusReason);
        EXPECT_FALSE(GridIsEmpty());
        QTest::keyClick(&Box(name), Qt::Key_Return);
        EXPECT_TRUE(GridIsEmpty()) << name.toStdString();
        EXPECT_EQ(m_shared.PickTable, sets);
    }
}

TEST_F(HotCold, ThePeriodReachesFromTenToAllDraws)
{
    FillDatabase(57);
    Open();
    for (const QString& typed : {u"9"_s, u"0"_s, u"58"_s, u"99999999999"_s}) {
        m_prompts.expectedMessages = {49};
        Enter(u"InLastDraw"_s, typed);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_EQ(LastMessage(), u"Must be between 10 and  57"_s);
        EXPECT_EQ(Box(u"InLastDraw"_s).text(), u"  52"_s);
    }
    m_prompts.expectedMessages = {49};
    EnterNothing(u"InLastDraw"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u"  52"_s);
    Enter(u"InLastDraw"_s, u"010"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u"  10"_s);
    Enter(u"InLastDraw"_s, u"57"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u"  57"_s);
    m_prompts.expectedMessages = {49};
    Enter(u"InLastDraw"_s, u"5"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u"  57"_s) << "the last one that was right";
}

TEST_F(HotCold, ATypedPeriodIsCountedAtOnceAndEmptiesTheGrid)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s);
    Box(u"InLastDraw"_s).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Box(u"InLastDraw"_s), Qt::Key_Return); // only passed through
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u" 52"_s);
    const BarChart hot = Graph(u"HotGraph1"_s);
    Enter(u"InLastDraw"_s, u"11"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_NE(Graph(u"HotGraph1"_s), hot);
}

TEST_F(HotCold, APeriodSetByAnotherProgramCountsToo)
{
    FillDatabase(60);
    Open();
    Put(u"InLastDraw"_s, u"11"_s);
    Box(u"InLastDraw"_s).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Box(u"InLastDraw"_s), Qt::Key_Return);
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars, BarsOf(Analysed(m_shared.database, 11), HcdList::Hot));
}

TEST_F(HotCold, TheSetsToPlayAreOneToTen)
{
    m_shared.settings.entryForms = 4;
    FillDatabase(60);
    Open();
    for (const QString& typed : {u"0"_s, u"11"_s, u"99999999999"_s}) {
        m_prompts.expectedMessages = {27};
        Enter(u"InNumPlays"_s, typed);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_EQ(LastMessage(), u"Must be from 1 to 10"_s);
        EXPECT_EQ(Box(u"InNumPlays"_s).text(), u" 4"_s);
    }
    m_prompts.expectedMessages = {27};
    EnterNothing(u"InNumPlays"_s);
    EXPECT_EQ(Box(u"InNumPlays"_s).text(), u" 4"_s);
    Enter(u"InNumPlays"_s, u"01"_s);
    EXPECT_EQ(Box(u"InNumPlays"_s).text(), u" 1"_s);
    Enter(u"InNumPlays"_s, u"10"_s);
    EXPECT_EQ(Box(u"InNumPlays"_s).text(), u"10"_s);
}

TEST_F(HotCold, ACommandIsNotRunWhenTheBoxLeftForItBringsAMessage)
{
    FillDatabase(60);
    Open();
    m_prompts.expectedMessages = {50};
    TypeInto(u"InHot"_s, u"7"_s);
    ClickInWindow(Find<QPushButton>(u"CalcHCD"_s));
    EXPECT_TRUE(m_prompts.expectedMessages.empty());
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(Box(u"InHot"_s).text(), u"1"_s);
    ClickInWindow(Find<QPushButton>(u"CalcHCD"_s));
    EXPECT_NE(m_shared.PickTable, SetTable{});
}

TEST_F(HotCold, ThePeriodLeftForCalculateIsCountedBeforeIt)
{
    FillDatabase(60);
    Open();
    TypeInto(u"InLastDraw"_s, u"20"_s);
    ClickInWindow(Find<QPushButton>(u"CalcHCD"_s));
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars, BarsOf(Analysed(m_shared.database, 20), HcdList::Hot));
}

// Calculate

TEST_F(HotCold, CalculatesSetsFromTheThreeLists)
{
    FillDatabase(75);
    Open();
    const HcdAnalysis lists = Analysed(m_shared.database, 52);
    const auto candidate = [&](HcdList list, int i) {
        return lists.HcdCandidates.at(std::size_t(RowBefore(list) + i)).label;
    };
    PutCounts(2, 1, 2);
    Put(u"InNumPlays"_s, u"2"_s);
    // Hot of both sets, cold of both, due of both.
    const std::vector<int> hot{1, 2, 3, 4};
    const std::vector<int> cold{5, 6};
    const std::vector<int> due{7, 8, 9, 10};
    Draw({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    Click(u"CalcHCD"_s);
    const std::vector<std::vector<int>> expected{
        {candidate(HcdList::Hot, 1), candidate(HcdList::Hot, 2), candidate(HcdList::Cold, 5),
         candidate(HcdList::Due, 7), candidate(HcdList::Due, 8)},
        {candidate(HcdList::Hot, 3), candidate(HcdList::Hot, 4), candidate(HcdList::Cold, 6),
         candidate(HcdList::Due, 9), candidate(HcdList::Due, 10)}};
    for (int row = 0; row < 2; ++row) {
        QStringList texts{QString::number(row + 1)};
        for (const int number : expected.at(std::size_t(row))) {
            texts << RightJustify(QString::number(number), 2);
        }
        texts << QString(); // the sixth place has no number
        EXPECT_EQ(Row(row), texts);
    }
    EXPECT_EQ(Row(2).join(QString()), QString());
    EXPECT_EQ(m_shared.gameSets, 2);
    EXPECT_EQ(m_shared.hcdPicksMade, 1);
}

TEST_F(HotCold, ACalculationNeverShowsEarlierSets)
{
    FillDatabase(60);
    Open();
    Put(u"InNumPlays"_s, u"10"_s);
    Click(u"CalcHCD"_s);
    EXPECT_FALSE(Row(9).join(QString()).isEmpty());
    PutCounts(1, 0, 0);
    Put(u"InNumPlays"_s, u"1"_s);
    Click(u"CalcHCD"_s);
    EXPECT_EQ(Row(0).count(QString()), 5);
    EXPECT_EQ(Row(1).join(QString()), QString());
    for (std::size_t row = 2; row < m_shared.PickTable.size(); ++row) {
        EXPECT_EQ(m_shared.PickTable.at(row), (std::array<qint16, kMostPicks + 1>{}));
    }
}

TEST_F(HotCold, ANumberIsNeverTwiceInASetThoughItIsInTwoLists)
{
    FillWith({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 1, 2, 3}, 11); // ten numbers drawn: hot and cold are the same
    m_shared.database.columns = 12;
    Open();
    PutCounts(5, 5, 0);
    Put(u"InNumPlays"_s, u"10"_s);
    Click(u"CalcHCD"_s);
    for (int row = 0; row < 10; ++row) {
        const QStringList numbers = Row(row).mid(1);
        EXPECT_EQ(std::set<QString>(numbers.begin(), numbers.end()).size(), 10U);
        EXPECT_FALSE(numbers.contains(QString()));
    }
}

TEST_F(HotCold, TheTotalMustBeMoreThanNothingAndNotMoreThanThePicks)
{
    FillDatabase(60);
    Open();
    const std::vector<HcdCounts> refused{{0, 0, 0}, {3, 2, 2}, {6, 6, 6}, {0, 1, 6}};
    for (const HcdCounts& counts : refused) {
        PutCounts(counts.hot, counts.cold, counts.due);
        m_prompts.expectedMessages = {50};
        Click(u"CalcHCD"_s);
        Settle();
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_EQ(LastMessage(), u"Hot + Cold + Due numbers must be greater than 0 and not more than picks "
                                 "allowed in this draw, which is  6"_s);
        EXPECT_TRUE(GridIsEmpty());
        EXPECT_EQ(m_shared.PickTable, SetTable{});
        EXPECT_EQ(m_shared.hcdPicksMade, 0);
    }
    const std::vector<HcdCounts> taken{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {6, 0, 0}, {0, 0, 6}, {2, 2, 2}};
    for (const HcdCounts& counts : taken) {
        PutCounts(counts.hot, counts.cold, counts.due);
        Click(u"CalcHCD"_s);
        EXPECT_EQ(Row(0).count(QString()), 6 - counts.Total());
        EXPECT_EQ(m_shared.hcdPicksMade, 1);
    }
}

TEST_F(HotCold, CountsNoBoxWouldTakeAreRefusedToo)
{
    FillDatabase(60);
    Open();
    Put(u"InHot"_s, u"99999999999999"_s);
    Put(u"InCold"_s, u"-99999999999999"_s);
    m_prompts.expectedMessages = {50};
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_EQ(m_shared.PickTable, SetTable{});
}

TEST_F(HotCold, MoreThanTenSetsFallBackToThePersonalSettings)
{
    m_shared.settings.entryForms = 4;
    FillDatabase(60);
    Open();
    for (const QString& typed : {u"11"_s, u"99999"_s}) {
        Put(u"InNumPlays"_s, typed); // without its check
        Click(u"CalcHCD"_s);
        EXPECT_EQ(m_shared.gameSets, 4);
        EXPECT_EQ(Box(u"InNumPlays"_s).text(), u" 4"_s);
        EXPECT_EQ(Row(3).front(), u"4"_s);
        EXPECT_EQ(Row(4).front(), QString());
    }
}

TEST_F(HotCold, NineNumbersBringTheMessageAtEachCalculateAndNoSets)
{
    FillWith({1, 2, 3, 4, 5, 6, 7, 8, 9, 9, 9});
    m_prompts.expectedMessages = {51};
    Open();
    for (int i = 0; i < 4; ++i) {
        m_prompts.expectedMessages = {51};
        Click(u"CalcHCD"_s);
        Settle();
        EXPECT_TRUE(m_prompts.expectedMessages.empty()) << i;
        EXPECT_TRUE(LastMessage().contains(u"Only  9 different"_s));
        EXPECT_TRUE(GridIsEmpty());
        EXPECT_EQ(m_shared.PickTable, SetTable{});
        EXPECT_EQ(m_shared.hcdPicksMade, 0);
    }
}

TEST_F(HotCold, APeriodWithEnoughNumbersTakesTheRefusalBack)
{
    FillWithNineInTheLastTen();
    Open();
    m_prompts.expectedMessages = {51};
    Enter(u"InLastDraw"_s, u"10"_s);
    Enter(u"InLastDraw"_s, u"20"_s);
    Click(u"CalcHCD"_s);
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(HotCold, SetsMadeBeforeAreGoneWhenTheNumbersBecomeTooFew)
{
    FillWithNineInTheLastTen();
    Open();
    Click(u"CalcHCD"_s);
    EXPECT_EQ(m_shared.hcdPicksMade, 1);
    m_prompts.expectedMessages = {51, 51};
    Enter(u"InLastDraw"_s, u"10"_s);
    EXPECT_TRUE(GridIsEmpty());
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_EQ(m_shared.PickTable, SetTable{});
    EXPECT_EQ(m_shared.hcdPicksMade, 0);
}

TEST_F(HotCold, NoDueNumberOfAnotherLotteryIsPickedAfterItOpensAgain)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s); // there were due numbers
    Click(u"ExitHotCold"_s);
    DrawDatabase& database = m_shared.database;
    database = {};
    database.columns = 4;
    database.highest = 11;
    for (int record = 1; record <= 12; ++record) { // nine numbers are due, too few for a list
        database.Append(QDate(2020, 1, 1), {record % 11 + 1, (record + 1) % 11 + 1});
    }
    Click(u"ShowHCD"_s);
    Settle();
    PutCounts(0, 0, 1);
    m_prompts.expectedMessages = {7};
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_EQ(LastMessage(), u"Not enough Data"_s);
    EXPECT_EQ(m_shared.PickTable, SetTable{});
}

TEST_F(HotCold, ARefusedCountEmptiesTheGridToo)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s);
    EXPECT_FALSE(GridIsEmpty());
    m_prompts.expectedMessages = {50};
    Enter(u"InHot"_s, u"7"_s);
    Settle();
    EXPECT_TRUE(GridIsEmpty());
}

TEST_F(HotCold, TheFocusMovedByAssistiveTechnologyWhileItPicksChecksNothing)
{
    FillDatabase(60);
    Open();
    BeginSlowly();
    Put(u"InNumPlays"_s, u"0"_s);
    Put(u"InLastDraw"_s, u"1"_s);
    for (const QString& box : {u"InNumPlays"_s, u"InLastDraw"_s, u"InHot"_s}) {
        Box(box).setFocus();
    }
    Find<QPushButton>(u"CalcHCD"_s).setFocus();
    Settle();
    EXPECT_EQ(m_prompts.shownTexts, QStringList());
    EXPECT_TRUE(Status().IsRunning());
    Status().Finish();
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(HotCold, NumbersStandInTheMiddleOfTheirCells)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s);
    EXPECT_TRUE(Grid().horizontalHeader()->defaultAlignment().testFlag(Qt::AlignHCenter));
    const QModelIndex number = Grid().model()->index(0, 1);
    const QRect cell = Grid().visualRect(number).adjusted(2, 2, -2, -2); // without the grid's lines
    const QImage picture = Grid().viewport()->grab(cell).toImage();
    int first = picture.width();
    int last = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) != picture.pixelColor(0, 0)) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    ASSERT_LE(first, last);
    // Two digits differ in their own margins by some pixels; at the right edge they would be a quarter off.
    EXPECT_NEAR((first + last) / 2.0, picture.width() / 2.0, picture.width() / 8.0);
}

TEST_F(HotCold, FiveThousandRejectionsBringTheMessageAndLeaveTheGridEmpty)
{
    FillDatabase(60);
    Open();
    Draw({3});
    m_prompts.expectedMessages = {7};
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_EQ(LastMessage(), u"Not enough Data"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(m_shared.PickTable, SetTable{}) << "what was drawn so far is no set";
    EXPECT_EQ(m_shared.hcdPicksMade, 0);
    EXPECT_FALSE(Status().IsRunning());
}

TEST_F(HotCold, WithoutRecordsNoSetsAreMade)
{
    Start();
    m_prompts.expectedMessages = {51};
    m_window.ShowForm(FormName::LHotCold);
    Settle();
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u" 0"_s);
    m_prompts.expectedMessages = {31};
    EXPECT_FALSE(Find<LHotCold>(u"LHotCold"_s).HCDSortRange());
    EXPECT_EQ(LastMessage(), u"No records in the database"_s);
    EXPECT_EQ(m_shared.PickTable, SetTable{});
}

TEST_F(HotCold, HoldsAShapeFromAFileToItsLimits)
{
    FillDatabase(60);
    m_shared.database.columns = 300;
    m_shared.database.highest = 32767;
    Open();
    EXPECT_EQ(Box(u"InHot"_s).text(), u"4"_s);
    Click(u"CalcHCD"_s);
    EXPECT_EQ(Row(0).size(), 11);
    PutCounts(6, 6, 6);
    m_prompts.expectedMessages = {50};
    Click(u"CalcHCD"_s);
    Settle();
    EXPECT_TRUE(LastMessage().contains(u"which is  10"_s)) << LastMessage().toStdString();
}

TEST_F(HotCold, AFullDatabaseIsAnalysed)
{
    FillDatabase(2001);
    Open();
    Enter(u"InLastDraw"_s, u"2001"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text(), u"2001"_s);
    EXPECT_EQ(Graph(u"ColdGraph2"_s).bars, BarsOf(Analysed(m_shared.database, 2001), HcdList::Cold));
    Click(u"CalcHCD"_s);
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(HotCold, ASetIsMadeByTheKeyboardAlone)
{
    FillDatabase(60);
    Open();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(HotCold, ClearAllEmptiesTheGrid)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s);
    Click(u"HCDClrAll"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(Box(u"InHot"_s).text(), u"2"_s);
    EXPECT_EQ(Graph(u"HotGraph1"_s).bars.size(), 10U);
}

// Printing

TEST_F(HotCold, BeforeAnySetsThereIsNothingToPrint)
{
    FillDatabase(60);
    Open();
    m_prompts.expectedMessages = {1};
    Click(u"PrintHCD"_s);
    Settle();
    EXPECT_EQ(LastMessage(), u"No data to print."_s);
    EXPECT_TRUE(m_prompts.printed.empty());
}

TEST_F(HotCold, PrintsTheSetsAfterYes)
{
    FillDatabase(60);
    Open();
    PutCounts(2, 1, 0);
    Put(u"InNumPlays"_s, u"3"_s);
    Click(u"CalcHCD"_s);
    m_prompts.answers = {false};
    Click(u"PrintHCD"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    EXPECT_TRUE(m_prompts.printed.empty());
    m_prompts.answers = {true};
    Click(u"PrintHCD"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.offered.size(), 2U);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    ASSERT_EQ(lines.size(), 16);
    EXPECT_EQ(lines.at(3), u"Picked from: Last 52 Draws"_s);
    EXPECT_TRUE(lines.at(5).startsWith(u"Hot = 2 "_s));
    EXPECT_TRUE(lines.at(6).startsWith(u"Cold = 1 "_s));
    EXPECT_TRUE(lines.at(7).startsWith(u"Due = 0 "_s));
    EXPECT_EQ(lines.at(9), QString(30, u'_'));
    for (int set = 0; set < 3; ++set) { // as on the screen; the last three places are blank
        EXPECT_EQ(lines.at(10 + set).simplified(), Row(set).mid(1).join(u' ').simplified());
    }
    EXPECT_EQ(lines.at(13), QString(30, u'_'));
}

TEST_F(HotCold, SetsArePrintedWithWhatTheyWereMadeFrom)
{
    FillDatabase(75);
    Open();
    Click(u"CalcHCD"_s);
    m_prompts.answers = {true, true};
    Click(u"PrintHCD"_s);
    Enter(u"InHot"_s, u"1"_s); // asked for, but not made yet
    Enter(u"InLastDraw"_s, u"20"_s);
    EXPECT_TRUE(GridIsEmpty());
    Click(u"PrintHCD"_s);
    ASSERT_EQ(m_prompts.printed.size(), 2U);
    EXPECT_EQ(PagesText(m_prompts.printed.at(1)), PagesText(m_prompts.printed.at(0)));
}

TEST_F(HotCold, AfterACalculationThatMadeNoSetsThereIsNothingToPrint)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s);
    PutCounts(0, 0, 0);
    m_prompts.expectedMessages = {50, 1};
    Click(u"CalcHCD"_s);
    Settle();
    Click(u"PrintHCD"_s);
    Settle();
    EXPECT_TRUE(m_prompts.printed.empty());
}

// Quick help and leaving

TEST_F(HotCold, QuickHelpOpensAndClosesAndACalculationClosesIt)
{
    FillDatabase(60);
    Open();
    auto& help = Find<QPlainTextEdit>(u"TextHCD"_s);
    EXPECT_TRUE(help.isHidden());
    Click(u"HelpHCD"_s);
    EXPECT_TRUE(help.isVisible());
    EXPECT_FALSE(Grid().isVisible());
    EXPECT_EQ(Find<QPushButton>(u"HelpHCD"_s).text(), u"Close &Help"_s);
    Click(u"HelpHCD"_s);
    EXPECT_TRUE(help.isHidden());
    EXPECT_TRUE(Grid().isVisible());
    EXPECT_EQ(Find<QPushButton>(u"HelpHCD"_s).text(), u"Quick &Help"_s);
    Click(u"HelpHCD"_s);
    Click(u"CalcHCD"_s);
    EXPECT_TRUE(help.isHidden());
    EXPECT_TRUE(Grid().isVisible());
    EXPECT_EQ(Find<QPushButton>(u"HelpHCD"_s).text(), u"Quick &Help"_s);
}

TEST_F(HotCold, QuickHelpIsScrolledByTheKeysAndHandsTheFocusBack)
{
    FillDatabase(60);
    Open();
    auto& help = Find<QPlainTextEdit>(u"TextHCD"_s);
    Find<QPushButton>(u"HelpHCD"_s).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(FocusName(), u"TextHCD"_s);
    Settle();
    EXPECT_EQ(help.verticalScrollBar()->value(), 0);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_PageDown);
    EXPECT_GT(help.verticalScrollBar()->value(), 0);
    Click(u"HelpHCD"_s);
    EXPECT_EQ(FocusName(), u"HelpHCD"_s);
    BeginSlowly();
    Click(u"HelpHCD"_s); // takes no click while it picks
    Status().Finish();
    Click(u"HelpHCD"_s);
    Find<QPushButton>(u"CalcHCD"_s).click();
    help.setFocus(); // as assistive technology can
    Status().Finish();
    EXPECT_TRUE(help.isHidden());
    EXPECT_EQ(FocusName(), u"HelpHCD"_s);
}

TEST_F(HotCold, QuickHelpSaysWhatTheGraphsShowAndHowToGoOn)
{
    FillDatabase(60);
    Open();
    Click(u"HelpHCD"_s);
    auto& help = Find<QPlainTextEdit>(u"TextHCD"_s);
    const QStringList lines{
        u"Graphs show results for period selected in 'Pick from last [?] draws'."_s,
        u"Hot graph shows 10 of the most frequent numbers drawn at bottom with number of times drawn on left."_s,
        u"Cold graph shows 10 of the least frequent numbers drawn at bottom with number of times drawn on left."_s,
        u"Due graph shows 10 numbers according to the last time each were drawn at bottom with number of "
        "draws since last drawn on left, not limited to the period selected."_s,
        u"With a 6/49 database starts up set to draw 2 numbers from Hot,  2 from Cold and 2 from Due numbers "
        "when 'Calculate' clicked. Can be set to any combination."_s,
        u"Example: Hot = 0, Cold = 0 and Due = 6.  Or pick less than 6 numbers to combine with favorate "
        "numbers."_s,
        u"Set 'Number of game sets to play' to sets required."_s,
        u"Click 'To Printer' for a printout of the sets."_s,
        u"End"_s,
    };
    EXPECT_EQ(help.toPlainText().split(u'\n'), lines);
    EXPECT_TRUE(help.isReadOnly());
    const QString before = help.toPlainText();
    QTest::keyClicks(&help, u"abc"_s);
    EXPECT_EQ(help.toPlainText(), before);
}

TEST_F(HotCold, ExitLeadsBackToTheSelectorium)
{
    FillDatabase(60);
    Open();
    Click(u"CalcHCD"_s);
    Click(u"ExitHotCold"_s);
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Selectorium"_s);
}

TEST_F(HotCold, ExitPutsTheMenusCaptionBackFirst)
{
    /// Leaves the caption as it is.
    class OtherForm : public WorkingForm
    {
    public:
        using WorkingForm::WorkingForm;
        void Load() override {}
    };
    FillDatabase(60);
    const DrawDatabase database = m_shared.database;
    m_window.AddForm(FormName::Lottery, [this](FormSwitcher& switcher, QWidget* parent) {
        return new OtherForm(m_shared, m_prompts, switcher, parent);
    });
    Start();
    m_shared.database = database;
    m_window.ShowForm(FormName::LHotCold);
    EXPECT_EQ(m_window.windowTitle(), u" Hot, Cold and Due data"_s);
    Click(u"ExitHotCold"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
}

// Shuffling and picking

TEST_F(HotCold, ShufflesAndPicksBeforeTheSetsAreShown)
{
    FillDatabase(60);
    Open();
    Status().SetStepLength(20);
    Click(u"CalcHCD"_s);
    EXPECT_TRUE(Status().IsRunning());
    QStringList words;
    const bool ended = QTest::qWaitFor([&] {
        if (!Status().IsRunning()) {
            return true;
        }
        EXPECT_TRUE(m_prompts.busy);
        EXPECT_TRUE(GridIsEmpty());
        const QString word = TextOf(u"ShuffleStatus"_s);
        if (words.isEmpty() || words.back() != word) {
            words << word;
        }
        return false;
    });
    ASSERT_TRUE(ended);
    ASSERT_FALSE(words.isEmpty());
    EXPECT_LE(words.size(), 10);
    for (int i = 0; i < words.size(); ++i) {
        EXPECT_TRUE(words.at(i) == u"Shuffling"_s || words.at(i) == u"Picking"_s);
    }
    EXPECT_EQ(words.front(), u"Shuffling"_s);
    EXPECT_EQ(TextOf(u"ShuffleStatus"_s), QString());
    EXPECT_FALSE(m_prompts.busy);
    EXPECT_FALSE(GridIsEmpty());
}

TEST(Shuffling, SaysItsTwoWordsFiveTimesOverAFifthOfASecondEach)
{
    for (int step = 0; step < 10; step += 2) {
        EXPECT_EQ(ShufflingWord(step), u"Shuffling"_s);
        EXPECT_EQ(ShufflingWord(step + 1), u"Picking"_s);
    }
    EXPECT_EQ(ShufflingWord(10), QString());
    EXPECT_EQ(ShufflingWord(-1), QString());
    EXPECT_EQ(ShufflingLabel().StepLength(), 200);
}

TEST_F(HotCold, EscapeShowsTheSetsAtOnce)
{
    FillDatabase(60);
    Open();
    BeginSlowly();
    EXPECT_EQ(TextOf(u"ShuffleStatus"_s), u"Shuffling"_s);
    EXPECT_TRUE(GridIsEmpty());
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Status().IsRunning());
    EXPECT_EQ(TextOf(u"ShuffleStatus"_s), QString());
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_FALSE(m_prompts.busy);
}

TEST_F(HotCold, TheWindowTakesNoInputWhileItPicks)
{
    FillDatabase(60);
    Open();
    BeginSlowly();
    const SetTable sets = m_shared.PickTable;
    for (const QString& button :
         {u"CalcHCD"_s, u"PrintHCD"_s, u"HelpHCD"_s, u"HCDClrAll"_s, u"ExitHotCold"_s}) {
        Click(button);
    }
    Find<QPushButton>(u"CalcHCD"_s).setFocus();
    ClickInWindow(Box(u"InHot"_s));
    QTest::keyClicks(&Box(u"InHot"_s), u"3"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(&m_window, Qt::Key_X, Qt::AltModifier);
    QTest::qWait(150); // the time a button stays down after its access key
    EXPECT_TRUE(Status().IsRunning());
    EXPECT_EQ(m_shared.PickTable, sets);
    EXPECT_EQ(ShownForm(), u"LHotCold"_s);
    EXPECT_EQ(Box(u"InHot"_s).text(), u"2"_s);
    EXPECT_EQ(FocusName(), u"CalcHCD"_s);
    QTest::keyClick(&m_window, Qt::Key_Escape);
    EXPECT_FALSE(GridIsEmpty());
    ClickInWindow(Find<QPushButton>(u"ExitHotCold"_s)); // input is taken again
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
}

TEST_F(HotCold, ACommandGivenWithoutAnEventIsRefusedTooWhileItPicks)
{
    FillDatabase(60);
    Open();
    BeginSlowly();
    const SetTable sets = m_shared.PickTable;
    for (const QString& button : {u"CalcHCD"_s, u"PrintHCD"_s, u"HCDClrAll"_s, u"ExitHotCold"_s}) {
        Find<QPushButton>(button).click(); // as a screen reader does
    }
    EXPECT_TRUE(Status().IsRunning());
    EXPECT_EQ(m_shared.PickTable, sets);
    EXPECT_EQ(ShownForm(), u"LHotCold"_s);
    Status().Finish();
}

TEST_F(HotCold, LeavingTheFormWhileItPicksEndsTheWait)
{
    FillDatabase(60);
    Open();
    BeginSlowly();
    m_window.ShowForm(FormName::LotoMenu);
    EXPECT_FALSE(Status().IsRunning());
    EXPECT_FALSE(m_prompts.busy);
    Click(u"PickForm"_s); // the menu takes clicks
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
}

TEST_F(HotCold, OpeningTheFormAnewWhileItPicksEndsTheWait)
{
    FillDatabase(60);
    Open();
    BeginSlowly();
    m_window.ShowForm(FormName::LHotCold);
    EXPECT_FALSE(Status().IsRunning());
    EXPECT_FALSE(m_prompts.busy);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(m_shared.PickTable, SetTable{});
}

TEST_F(HotCold, ClosingTheWindowWhileItPicksShowsTheSetsBeforeItAsks)
{
    FillDatabase(60);
    Open();
    m_shared.database.modified = 1;
    BeginSlowly();
    m_prompts.answers = {true}; // go back and save
    m_window.close();
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_FALSE(Status().IsRunning());
    EXPECT_FALSE(GridIsEmpty());
    BeginSlowly();
    m_prompts.answers = {false};
    m_window.close();
    EXPECT_FALSE(m_window.isVisible());
    EXPECT_FALSE(m_prompts.busy);
}

TEST_F(HotCold, AFormThatIsDestroyedWhileItPicksLeavesNothingBehind)
{
    FillDatabase(60);
    const DrawDatabase database = m_shared.database;
    Start();
    m_shared.database = database;
    auto* form = new LHotCold(m_shared, m_prompts, m_window, &m_window);
    form->Load();
    form->show();
    form->findChild<QPushButton*>(u"CalcHCD"_s)->click();
    EXPECT_TRUE(m_prompts.busy);
    delete form;
    EXPECT_FALSE(m_prompts.busy);
    Click(u"PickForm"_s); // input is taken
    EXPECT_EQ(ShownForm(), u"Lottery"_s);
}

TEST_F(HotCold, ADesktopWithoutAnimationsShowsTheSetsAtOnce)
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
    FillDatabase(60);
    Open();
    Status().setStyle(&style);
    Status().SetStepLength(60000);
    Click(u"CalcHCD"_s);
    EXPECT_FALSE(Status().IsRunning());
    EXPECT_FALSE(GridIsEmpty());
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
    Status().setStyle(nullptr);
}

} // namespace
