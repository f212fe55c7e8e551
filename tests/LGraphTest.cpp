#include "database/LGraph.h"

#include "app/BarChartView.h"
#include "app/SharedStatistics.h"
#include "tests/FormBench.h"

using namespace Qt::StringLiterals;

namespace {

class Graphs : public FormBench
{
protected:
    /// From the menu, with that many records.
    void OpenGraphs(int records)
    {
        Start();
        FillDatabase(records);
        Click(u"ShowGraph1"_s);
        Settle();
        ASSERT_EQ(FrontForm(), u"LGraph"_s);
    }

    void OpenGraphsFromEditor(int records)
    {
        FillDatabase(records);
        OpenEditor();
        Click(u"DGraphs"_s);
        Settle();
        ASSERT_EQ(FrontForm(), u"LGraph"_s);
    }

    [[nodiscard]] QString FrontForm() const { return m_window.ActiveForm()->objectName(); }
    const BarChart& Chart() { return Find<BarChartView>(u"LotoGraph"_s).Chart(); }
    QString Caption(const QString& button) { return Find<QAbstractButton>(button).text(); }

    [[nodiscard]] std::vector<int> Values()
    {
        std::vector<int> values;
        for (const ChartBar& bar : Chart().bars) {
            values.push_back(bar.value);
        }
        return values;
    }

    [[nodiscard]] bool IsInNumberOrder()
    {
        for (size_t i = 0; i < Chart().bars.size(); ++i) {
            if (Chart().bars.at(i).label != QString::number(i + 1)) {
                return false;
            }
        }
        return true;
    }

    /// The bars that the sorted table asks for, counted by hand from the records.
    void ExpectSortedBy(CountMode counted)
    {
        const NumberTable table = SortNumbers(CountNumbers(m_shared.database, counted), 49, 0);
        ASSERT_EQ(Chart().bars.size(), 49U);
        for (size_t i = 0; i < 49; ++i) {
            EXPECT_EQ(Chart().bars.at(i).label, QString::number(table.at(i + 1).label));
            EXPECT_EQ(Chart().bars.at(i).value, table.at(i + 1).value);
        }
    }
};

TEST_F(Graphs, OpenWithTheTimesDrawnInNumberOrderAndFlat)
{
    OpenGraphs(3); // 1..6, 2..7, 3..8
    EXPECT_EQ(m_window.windowTitle(), u" Graphs"_s);
    EXPECT_EQ(Caption(u"GWhichCnt"_s), u"Since &Last Drawn"_s);
    EXPECT_EQ(Caption(u"ChngView"_s), u"&Show Sorted"_s);
    EXPECT_EQ(Caption(u"TwoDBut"_s), u"&ThreeD Graph"_s);
    EXPECT_EQ(Caption(u"Printer3"_s), u"To &Printer"_s);
    EXPECT_EQ(Caption(u"ExitGrp"_s), u"E&xit to Menu"_s);
    EXPECT_EQ(Chart().title, u"No. times drawn in 3 draws. Test 6/49"_s);
    EXPECT_EQ(Chart().style, BarStyle::Flat);
    ASSERT_EQ(Chart().bars.size(), 49U);
    EXPECT_TRUE(IsInNumberOrder());
    const std::vector<int> values = Values();
    EXPECT_EQ(std::vector<int>(values.begin(), values.begin() + 9),
              (std::vector<int>{1, 2, 3, 3, 3, 3, 2, 1, 0}));
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(m_shared.sortMode, 0) << "opening fills the table without the sort mode";
}

TEST_F(Graphs, TheMenuAndTheEditorSayWhoOpenedThem)
{
    OpenGraphs(1);
    EXPECT_EQ(m_shared.graphCaller, 1);
    Click(u"ExitGrp"_s);
    Click(u"DBaseForm"_s);
    Click(u"DGraphs"_s);
    EXPECT_EQ(m_shared.graphCaller, 2);
    EXPECT_EQ(FrontForm(), u"LGraph"_s);
}

TEST_F(Graphs, LeadBackToTheMenuThatOpenedThem)
{
    OpenGraphs(2);
    Click(u"ExitGrp"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
}

TEST_F(Graphs, LeadBackToTheEditorThatOpenedThem)
{
    OpenGraphsFromEditor(2);
    EXPECT_EQ(m_window.windowTitle(), u" Graphs"_s);
    Click(u"ExitGrp"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
}

TEST_F(Graphs, TheOrderIsSwitchedThereAndBack)
{
    OpenGraphs(60);
    Click(u"ChngView"_s);
    EXPECT_EQ(Caption(u"ChngView"_s), u"&Show Unsorted"_s);
    EXPECT_EQ(m_shared.sortMode, 0);
    ExpectSortedBy(CountMode::TimesDrawn);
    Click(u"ChngView"_s);
    EXPECT_EQ(Caption(u"ChngView"_s), u"&Show Sorted"_s);
    EXPECT_EQ(m_shared.sortMode, 10);
    EXPECT_TRUE(IsInNumberOrder());
}

TEST_F(Graphs, TheCountIsSwitchedThereAndBack)
{
    OpenGraphs(3);
    Click(u"GWhichCnt"_s);
    EXPECT_EQ(Caption(u"GWhichCnt"_s), u"Times &Drawn"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
    EXPECT_EQ(Chart().title, u"No. draws since drawn/not drawn in 3 draws. Test 6/49"_s);
    std::vector<int> values = Values();
    EXPECT_EQ(std::vector<int>(values.begin(), values.begin() + 9),
              (std::vector<int>{2, 1, 0, 0, 0, 0, 0, 0, 3}));
    EXPECT_TRUE(IsInNumberOrder());
    EXPECT_EQ(m_shared.sortMode, 10);
    Click(u"GWhichCnt"_s);
    EXPECT_EQ(Caption(u"GWhichCnt"_s), u"Since &Last Drawn"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(Chart().title, u"No. times drawn in 3 draws. Test 6/49"_s);
    values = Values();
    EXPECT_EQ(std::vector<int>(values.begin(), values.begin() + 9),
              (std::vector<int>{1, 2, 3, 3, 3, 3, 2, 1, 0}));
}

TEST_F(Graphs, TheChartStaysSortedByTheNewValuesWhenTheCountIsSwitched)
{
    OpenGraphs(60);
    Click(u"ChngView"_s);
    Click(u"GWhichCnt"_s);
    EXPECT_EQ(Caption(u"ChngView"_s), u"&Show Unsorted"_s);
    EXPECT_EQ(m_shared.sortMode, 0);
    ExpectSortedBy(CountMode::SinceLastDrawn);
    Click(u"GWhichCnt"_s);
    ExpectSortedBy(CountMode::TimesDrawn);
}

TEST_F(Graphs, TheStyleIsSwitchedThereAndBackAndChangesNothingElse)
{
    OpenGraphs(20);
    Click(u"ChngView"_s);
    const BarChart flat = Chart();
    Click(u"TwoDBut"_s);
    EXPECT_EQ(Caption(u"TwoDBut"_s), u"&TwoD Graph"_s);
    BarChart expected = flat;
    expected.style = BarStyle::ThreeDimensional;
    EXPECT_EQ(Chart(), expected);
    Click(u"TwoDBut"_s);
    EXPECT_EQ(Caption(u"TwoDBut"_s), u"&ThreeD Graph"_s);
    EXPECT_EQ(Chart(), flat);
}

TEST_F(Graphs, TheStyleIsKeptWhenOrderAndCountAreSwitched)
{
    OpenGraphs(20);
    Click(u"TwoDBut"_s);
    Click(u"ChngView"_s);
    EXPECT_EQ(Chart().style, BarStyle::ThreeDimensional);
    Click(u"GWhichCnt"_s);
    EXPECT_EQ(Chart().style, BarStyle::ThreeDimensional);
    EXPECT_EQ(Caption(u"TwoDBut"_s), u"&TwoD Graph"_s);
}

TEST_F(Graphs, EveryOpeningStartsInTheDefaultView)
{
    OpenGraphs(20);
    const BarChart first = Chart();
    Click(u"TwoDBut"_s);
    Click(u"ChngView"_s);
    Click(u"GWhichCnt"_s);
    Click(u"ExitGrp"_s);
    Click(u"ShowGraph1"_s);
    EXPECT_EQ(Chart(), first);
    EXPECT_EQ(Caption(u"GWhichCnt"_s), u"Since &Last Drawn"_s);
    EXPECT_EQ(Caption(u"ChngView"_s), u"&Show Sorted"_s);
    EXPECT_EQ(Caption(u"TwoDBut"_s), u"&ThreeD Graph"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
}

TEST_F(Graphs, LeavingPutsTheSortModeBackSoThatTheEditorsTopNumbersAreRight)
{
    OpenGraphsFromEditor(60);
    Click(u"ChngView"_s);
    Click(u"ChngView"_s);
    EXPECT_EQ(m_shared.sortMode, 10);
    Click(u"ExitGrp"_s);
    EXPECT_EQ(m_shared.sortMode, 0);
    // 60 draws of 49 numbers: the first eleven draws came twice, in them 6 to 11 six times each.
    EXPECT_EQ(TextOf(u"Label4"_s),
              u"Showing the count of times numbers drawn. Top  6 =   6   7   8   9   10   11  "_s);
}

TEST_F(Graphs, TheCountChosenStaysInForceInTheMenu)
{
    OpenGraphs(5);
    Click(u"GWhichCnt"_s);
    Click(u"ExitGrp"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
}

TEST_F(Graphs, ALotteryOfOneNumberAndOneOfSixtyHaveTheirBars)
{
    Start();
    for (const int highest : {1, 10, 60}) {
        m_shared.database.Empty();
        m_shared.database.columns = 3;
        m_shared.database.highest = qint16(highest);
        ASSERT_TRUE(m_shared.database.Append(QDate(2020, 1, 1), {1}));
        Click(u"ShowGraph1"_s);
        ASSERT_EQ(Chart().bars.size(), size_t(highest));
        EXPECT_EQ(Chart().bars.front(), (ChartBar{u"1"_s, 1}));
        Click(u"ChngView"_s);
        ASSERT_EQ(Chart().bars.size(), size_t(highest));
        Click(u"ExitGrp"_s);
    }
}

TEST_F(Graphs, TheViewsAreReachedByTheirAccessKeys)
{
    OpenGraphs(5);
    ASSERT_TRUE(Activate(m_window));
    const auto press = [this](Qt::Key key, const std::function<bool()>& done) {
        QTest::keyClick(&m_window, key, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor(done)) << char(key);
    };
    press(Qt::Key_T, [this] { return Chart().style == BarStyle::ThreeDimensional; });
    press(Qt::Key_T, [this] { return Chart().style == BarStyle::Flat; });
    press(Qt::Key_S, [this] { return Caption(u"ChngView"_s) == u"&Show Unsorted"_s; });
    press(Qt::Key_S, [this] { return Caption(u"ChngView"_s) == u"&Show Sorted"_s; });
    press(Qt::Key_L, [this] { return m_shared.WhichCnt == CountMode::SinceLastDrawn; });
    press(Qt::Key_D, [this] { return m_shared.WhichCnt == CountMode::TimesDrawn; });
    m_prompts.answers = {false};
    press(Qt::Key_P, [this] { return m_prompts.answers.empty(); });
    press(Qt::Key_X, [this] { return FrontForm() == u"LotoMenu"_s; });
}

TEST_F(Graphs, TabLeadsFromTheChartThroughTheButtons)
{
    OpenGraphs(5);
    ASSERT_TRUE(Activate(m_window));
    EXPECT_EQ(FocusName(), u"GWhichCnt"_s);
    QStringList order;
    for (int i = 0; i < 6; ++i) {
        order << FocusName();
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{u"GWhichCnt"_s, u"ChngView"_s, u"TwoDBut"_s, u"Printer3"_s, u"ExitGrp"_s,
                                  u"LotoGraph"_s}));
    EXPECT_EQ(FocusName(), u"GWhichCnt"_s);
}

TEST_F(Graphs, SixtyBarsAreLegibleAtTheOpeningSize)
{
    Start();
    const QSize opening = m_window.size();
    m_shared.database.columns = 12;
    m_shared.database.highest = 60;
    for (int record = 1; record <= 2001; ++record) {
        std::vector<int> numbers;
        for (int k = 0; k < 10; ++k) {
            numbers.push_back((record * 7 + k * 11) % 60 + 1);
        }
        ASSERT_TRUE(m_shared.database.Append(QDate(2000, 1, 1).addDays(record), numbers));
    }
    Click(u"ShowGraph1"_s);
    for (const QString& button : {u"TwoDBut"_s, u"GWhichCnt"_s, u"ChngView"_s}) {
        Click(button);
        const ChartLayout& places = Find<BarChartView>(u"LotoGraph"_s).Places();
        EXPECT_EQ(places.labels.size(), 60U);
        EXPECT_EQ(places.values.size(), 60U) << "every value is readable without the mouse";
        EXPECT_GE(places.labelFont.pixelSize(), 9);
        EXPECT_GE(places.valueFont.pixelSize(), 9);
    }
    EXPECT_EQ(m_window.size(), opening) << "the window did not have to grow";
}

TEST_F(Graphs, NoAtTheFirstQuestionPrintsNothing)
{
    OpenGraphs(5);
    m_prompts.answers = {false};
    Click(u"Printer3"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    EXPECT_TRUE(m_prompts.printed.empty());
    EXPECT_EQ(FrontForm(), u"LGraph"_s);
}

TEST_F(Graphs, TheChartIsPrintedAsItIsShownInColor)
{
    OpenGraphs(30);
    Click(u"ChngView"_s);
    Click(u"GWhichCnt"_s);
    Click(u"TwoDBut"_s);
    const BarChart shown = Chart();
    m_prompts.answers = {true, true};
    Click(u"Printer3"_s);
    EXPECT_EQ(m_prompts.askedTexts, (QStringList{u" Continue with Printout."_s, u" Print in Color."_s}));
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.printed[0].name, shown.title);
    EXPECT_TRUE(m_prompts.printed[0].pages.empty());
    EXPECT_EQ(m_prompts.printed[0].charts, std::vector<BarChart>{shown});
    EXPECT_EQ(Chart(), shown);
}

TEST_F(Graphs, NoAtTheSecondQuestionPrintsInBlackAndWhite)
{
    OpenGraphs(30);
    BarChart expected = Chart();
    m_prompts.answers = {true, false};
    Click(u"Printer3"_s);
    expected.ink = ChartInk::BlackAndWhite;
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.printed[0].charts, std::vector<BarChart>{expected});
    EXPECT_EQ(Chart().ink, ChartInk::Color) << "the chart on the screen stays as it is";
}

} // namespace
