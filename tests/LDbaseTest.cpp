#include "app/ShortDate.h"
#include "tests/FormBench.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

class Editor : public FormBench
{
protected:
    bool Checked(const QString& box) { return Find<QCheckBox>(box).isChecked(); }
    int GridRows() { return Find<QTableView>(u"DGrid1"_s).model()->rowCount() + 1; }
    QString Heading(const QString& grid, int column)
    {
        return Find<QTableView>(grid).model()->headerData(column, Qt::Horizontal).toString();
    }
    QStringList NumberTexts()
    {
        QStringList texts;
        for (int i = 0; i < 10; ++i) {
            texts << NumberBox(i).text();
        }
        return texts;
    }
};

// Opening

TEST_F(Editor, OpensOnAnEmptyDatabaseWithTodayAndItsWeekdayAsDrawDay)
{
    OpenEditor();
    EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"11/18/2026"_s);
    EXPECT_TRUE(Checked(u"DaysofWeek3"_s)); // a Wednesday
    EXPECT_EQ(CellNumber(m_shared.database.drawDays[4].weekday), 4);
    EXPECT_EQ(Box(u"NumCol"_s).text(), u" 6"_s);
    EXPECT_EQ(Box(u"HighNum"_s).text(), u"49"_s);
    EXPECT_EQ(Box(u"InFileName"_s).text(), QString());
    EXPECT_EQ(TextOf(u"Label4"_s), u"Showing the number of times drawn"_s);
    EXPECT_EQ(GridRows(), 24);
    EXPECT_EQ(FocusName(), u"InFileName"_s);
}

TEST_F(Editor, OpensOnRecordsWithTheNextDrawDateInTheNewRow)
{
    FillDatabase(2); // a Saturday and the Wednesday after it
    OpenEditor();
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/8/2000"_s);
    EXPECT_EQ(Box(u"InFileName"_s).text(), u"Test 6/49"_s);
    for (int day = 0; day < 7; ++day) {
        EXPECT_EQ(Checked(u"DaysofWeek%1"_s.arg(day)), day == 3 || day == 6) << day;
    }
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"   2"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 1), u"1/5/2000"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 1, 7), u"  6"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 2, 0), QString());
    EXPECT_EQ(GridRows(), 26);
    EXPECT_EQ(FocusName(), u"DYourNumIn0"_s);
}

TEST_F(Editor, HasItsCaptionsFramesAndLabels)
{
    OpenEditor();
    const QList<QPair<QString, QString>> buttons{
        {u"DCalc"_s, u"&Add Record"_s},      {u"DCorrectRec"_s, u"Correct &Record"_s},
        {u"DDeleteAll"_s, u"&Delete All"_s}, {u"DGraphs"_s, u"&Show Graph"_s},
        {u"DHelp"_s, u"Quick &Help"_s},      {u"DExit"_s, u"E&xit to Menu"_s},
    };
    for (const auto& [name, caption] : buttons) {
        EXPECT_EQ(Find<QPushButton>(name).text(), caption);
    }
    const QStringList days{u"Sun"_s, u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s, u"Fri"_s, u"Sat"_s};
    for (int day = 0; day < 7; ++day) {
        EXPECT_EQ(Find<QCheckBox>(u"DaysofWeek%1"_s.arg(day)).text(), days.at(day));
    }
    EXPECT_EQ(Find<QGroupBox>(u"DatabaseSetup"_s).title(), u"Database setup"_s);
    EXPECT_EQ(Find<QGroupBox>(u"AutoDate"_s).title(), u"Auto Date Advanced"_s);
    EXPECT_EQ(TextOf(u"InNew"_s), u"New"_s);
    EXPECT_EQ(TextOf(u"TitleLabel"_s), u"Title"_s);
    EXPECT_EQ(TextOf(u"NumColLabel"_s), u"Total number of Picks allowed in lottery"_s);
    EXPECT_EQ(TextOf(u"HighNumLabel"_s), u"Numbers in the lottery Range from 1 to"_s);
    EXPECT_EQ(TextOf(u"DuponoffLabel"_s), u"Allow      dupli-      cates"_s);
}

TEST_F(Editor, EveryBoxAndGridCanBeSpokenOfByAScreenReader)
{
    OpenEditor();
    for (const InputBox* box : m_window.findChildren<InputBox*>()) {
        bool named = !box->accessibleName().isEmpty();
        for (const QLabel* label : m_window.findChildren<QLabel*>()) {
            named = named || label->buddy() == box;
        }
        EXPECT_TRUE(named) << box->objectName().toStdString();
    }
    for (const QTableView* grid : Find<QWidget>(u"LDbase"_s).findChildren<QTableView*>()) {
        EXPECT_FALSE(grid->accessibleName().isEmpty()) << grid->objectName().toStdString();
        EXPECT_FALSE(grid->accessibleDescription().isEmpty()) << grid->objectName().toStdString();
    }
}

TEST_F(Editor, ShowsAsManyNumberBoxesAsPicks)
{
    FillDatabase(1);
    m_shared.database.columns = 5;
    OpenEditor();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(NumberBox(i).isVisible(), i < 3) << i;
    }
}

TEST_F(Editor, CapsAShapeFromAFileWhereTheGridIsBuilt)
{
    const struct {
        qint16 columns;
        qint16 highest;
        qint16 columnsAfter;
        qint16 highestAfter;
        QString picksBox;
        QString highestBox;
    } cases[] = {
        {300, 99, 12, 60, u"10"_s, u"60"_s},
        {-5, 0, 3, 1, u" 1"_s, u" 1"_s},
        {32767, 32767, 12, 60, u"10"_s, u"60"_s},
        {-32768, -32768, 3, 1, u" 1"_s, u" 1"_s},
    };
    FillDatabase(2);
    Start();
    for (const auto& shape : cases) {
        FillDatabase(1);
        m_shared.database.columns = shape.columns;
        m_shared.database.highest = shape.highest;
        Click(u"DBaseForm"_s);
        EXPECT_EQ(m_shared.database.columns, shape.columnsAfter);
        EXPECT_EQ(m_shared.database.highest, shape.highestAfter);
        EXPECT_EQ(Box(u"NumCol"_s).text(), shape.picksBox);
        EXPECT_EQ(Box(u"HighNum"_s).text(), shape.highestBox);
        Click(u"DExit"_s);
    }
}

TEST_F(Editor, TellsAnOverfullDatabaseAtOnce)
{
    FillDatabase(2001);
    m_prompts.expectedMessages = {45};
    OpenEditor();
    Settle();
    EXPECT_TRUE(m_prompts.expectedMessages.empty());
}

TEST_F(Editor, OpensAFullDatabaseWithoutAWord)
{
    FillDatabase(2000);
    OpenEditor();
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"2000"_s);
}

TEST_F(Editor, ARecordWhoseDateIsNoDateLeavesTheDrawDaysAlone)
{
    FillDatabase(3);
    m_shared.database.records[3].date = u"yesterday"_s;
    m_shared.database.CheckDay(4, false);
    OpenEditor();
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 1), u"yesterday"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"11/18/2026"_s);
    EXPECT_FALSE(Checked(u"DaysofWeek3"_s));
}

// Statistics

TEST_F(Editor, ShowsTheCountsInThreeGridsOfTwenty)
{
    FillDatabase(1); // 1..6
    OpenEditor();
    EXPECT_EQ(Heading(u"DGrid2"_s, 0), u"1"_s);
    EXPECT_EQ(Heading(u"DGrid3"_s, 0), u"21"_s);
    EXPECT_EQ(Heading(u"DGrid4"_s, 8), u"49"_s);
    EXPECT_EQ(Heading(u"DGrid4"_s, 9), QString());
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 5), u"1"_s);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 6), u"0"_s);
    EXPECT_EQ(Cell(u"DGrid4"_s, 0, 8), u"0"_s);
    EXPECT_EQ(Cell(u"DGrid4"_s, 0, 9), QString());
}

TEST_F(Editor, NamesTheTopNumbersAndKeepsThemAsTwoLines)
{
    FillDatabase(2); // 1..6 and 2..7
    OpenEditor();
    const QString numbers = u" 2   3   4   5   6   1  "_s;
    const QString heading = u"Showing the count of times numbers drawn. Top  6 =  "_s + numbers;
    EXPECT_EQ(TextOf(u"Label4"_s), heading);
    EXPECT_EQ(m_shared.topNumbersText, (std::array<QString, 4>{QString(), heading, numbers, QString()}));
}

TEST_F(Editor, TheCheckBoxSwitchesToDrawsSinceLastDrawnAndBack)
{
    FillDatabase(2);
    OpenEditor();
    EXPECT_TRUE(Checked(u"WhichCnt"_s));
    ClickBox(u"WhichCnt"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), u"1"_s); // drawn one draw ago
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 1), u"0"_s); // in the last draw
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 7), u"2"_s); // never
    // Of the equal ones 8 to 49 the lowest have not all come to the front: the ties are passed over five
    // times only.
    EXPECT_EQ(TextOf(u"Label4"_s),
              u"Number of draws since last drawn/not drawn. Top  6 =   25   26   8   9   10   11  "_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"   2"_s);
    ClickBox(u"WhichCnt"_s);
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 1), u"2"_s);
}

TEST_F(Editor, CountsThatAreAllZeroNameNoTopNumbersAndKeepTheCaption)
{
    FillDatabase(1);
    m_shared.database.columns = 3;
    m_shared.database.highest = 1;
    OpenEditor();
    const QString caption = TextOf(u"Label4"_s);
    EXPECT_TRUE(caption.startsWith(u"Showing the count of times numbers drawn."_s)) << caption.toStdString();
    EXPECT_EQ(m_shared.topNumbersText.at(1), caption);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), u"1"_s);
    ClickBox(u"WhichCnt"_s); // the one number was drawn in the last draw
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
    EXPECT_EQ(TextOf(u"Label4"_s), caption);
    EXPECT_EQ(m_shared.topNumbersText, (std::array<QString, 4>{}));
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), u"0"_s);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 1), QString());
}

TEST_F(Editor, OpensShowingTimesDrawnWhateverWasShownBefore)
{
    FillDatabase(2);
    OpenEditor();
    ClickBox(u"WhichCnt"_s);
    ClickBox(u"Duponoff"_s);
    Click(u"DExit"_s);
    Click(u"DBaseForm"_s);
    EXPECT_TRUE(Checked(u"WhichCnt"_s));
    EXPECT_FALSE(Checked(u"Duponoff"_s));
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    EXPECT_TRUE(TextOf(u"Label4"_s).startsWith(u"Showing the count"_s));
}

TEST_F(Editor, ADatabaseWhoseNumbersAllLieAboveTheHighestKeepsTheFirstLine)
{
    FillDatabase(1);
    m_shared.database.records[1].drawn.fill(55);
    OpenEditor();
    EXPECT_EQ(TextOf(u"Label4"_s), u"Showing the number of times drawn"_s);
    EXPECT_EQ(m_shared.topNumbersText, (std::array<QString, 4>{}));
}

// Adding

TEST_F(Editor, AddsTheTypedDrawAndGoesOnToTheNext)
{
    FillDatabase(2);
    OpenEditor();
    TypeDraw({u"10"_s, u"20"_s, u"30"_s, u"40"_s, u"49"_s, u"1"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_EQ(m_shared.database.modified, 1);
    const DrawRecord& added = m_shared.database.records[3];
    EXPECT_EQ(CellNumber(added.number), 3);
    EXPECT_EQ(CellDate(added.date, m_shared.locale), QDate(2000, 1, 8));
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(CellNumber(added.drawn[i]), (std::array{10, 20, 30, 40, 49, 1}[i]));
    }
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"   3"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 6), u" 49"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/12/2000"_s); // Saturday to Wednesday
    EXPECT_EQ(NumberTexts(), QStringList(10, QString()));
    EXPECT_EQ(Cell(u"DGrid4"_s, 0, 8), u"1"_s);
    EXPECT_EQ(FocusName(), u"DYourNumIn0"_s);
}

TEST_F(Editor, ADrawIsEnteredByTheKeyboardAlone)
{
    FillDatabase(1);
    OpenEditor();
    for (const QString& number : {u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s}) {
        QTest::keyClicks(m_window.focusWidget(), number);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(FocusName(), u"DCalc"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(FocusName(), u"DYourNumIn0"_s);
}

TEST_F(Editor, TheFirstDrawOfANewLotteryIsEnteredByTheKeyboardAlone)
{
    OpenEditor();
    QTest::keyClicks(m_window.focusWidget(), u"My own"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"NumCol"_s);
    QTest::keyClicks(m_window.focusWidget(), u"2"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"HighNum"_s);
    QTest::keyClicks(m_window.focusWidget(), u"9"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"InDate"_s);
    QTest::keyClicks(m_window.focusWidget(), u"1/2/26"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"DYourNumIn0"_s);
    QTest::keyClicks(m_window.focusWidget(), u"3"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    QTest::keyClicks(m_window.focusWidget(), u"9"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"DCalc"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_shared.database.title, u"My own"_s);
    EXPECT_EQ(m_shared.database.Shape(), (LotteryShape{2, 9}));
    EXPECT_EQ(m_shared.database.count, 1);
    EXPECT_EQ(CellDate(m_shared.database.records[1].date, m_shared.locale), QDate(2026, 1, 2));
}

TEST_F(Editor, TheAccessKeyChecksTheBoxItLeaves)
{
    FillDatabase(1);
    OpenEditor();
    TypeDraw({u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s});
    TypeInto(u"InDate"_s, u"2/3/2001"_s);
    QTest::keyClick(&m_window, Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_shared.database.count == 2; }));
    EXPECT_EQ(CellDate(m_shared.database.records[2].date, m_shared.locale), QDate(2001, 2, 3));
}

TEST_F(Editor, ACommandIsNotRunWhenTheBoxLeftForItBringsAMessage)
{
    FillDatabase(1);
    OpenEditor();
    TypeDraw({u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s});
    TypeInto(u"InDate"_s, u"2/30/2001"_s);
    m_prompts.expectedMessages = {30};
    QTest::keyClick(&m_window, Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_prompts.expectedMessages.empty(); }));
    QTest::qWait(150); // the time a button stays down after its access key
    EXPECT_EQ(m_shared.database.count, 1);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/5/2000"_s);
}

struct RefusedRow {
    QStringList boxes;
    int message;
    QString text;
};

TEST_F(Editor, RefusesARowWithTheFirstMessageThatFitsAndKeepsItForCorrection)
{
    FillDatabase(1);
    OpenEditor();
    const RefusedRow rows[] = {
        {{u""_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}, 36, u"No record to add to the database."_s},
        {{u"0"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}, 36, u"No record to add to the database."_s},
        {{u"5"_s, u"5"_s, u"3"_s, u"4"_s, u"1"_s, u"6"_s}, 37, u"Correct: duplicate numbers."_s},
        {{u"5"_s, u"3"_s, u""_s, u"99"_s, u"05"_s, u""_s}, 37, u"Correct: duplicate numbers."_s},
        {{u"1"_s, u"2"_s, u"3"_s, u""_s, u"50"_s, u"0"_s}, 29, u"Correct: missing number."_s},
        {{u"1"_s, u"2"_s, u"50"_s, u""_s, u"5"_s, u"6"_s},
         5,
         u"Correct: number 50 is higher than allowed in Draw."_s},
        {{u"1"_s, u"2"_s, u"050"_s, u"4"_s, u"5"_s, u"6"_s},
         5,
         u"Correct: number 050 is higher than allowed in Draw."_s},
        {{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"99999999999"_s},
         5,
         u"Correct: number 99999999999 is higher than allowed in Draw."_s},
        {{u"1"_s, u"2"_s, u"3"_s, u"0"_s, u"0"_s, u"6"_s}, 6, u"Correct: number 0 not allowed in Draw."_s},
    };
    for (const RefusedRow& row : rows) {
        for (int i = 0; i < 6; ++i) {
            NumberBox(i).setText(row.boxes.at(i));
        }
        m_shared.database.modified = 0;
        m_prompts.shownTexts.clear();
        m_prompts.expectedMessages = {row.message};
        Click(u"DCalc"_s);
        EXPECT_EQ(m_prompts.shownTexts, QStringList{row.text});
        EXPECT_EQ(m_shared.database.count, 1);
        EXPECT_EQ(NumberTexts().mid(0, 6), row.boxes);
        // The flag is set before the row's own checks, after the first two.
        EXPECT_EQ(m_shared.database.modified, row.message == 36 || row.message == 37 ? 0 : 1);
    }
}

TEST_F(Editor, DuplicatesAreTakenAndCountedTwiceWhenAllowed)
{
    FillDatabase(1);
    OpenEditor();
    ClickBox(u"Duponoff"_s);
    TypeDraw({u"15"_s, u"15"_s, u"16"_s, u"17"_s, u"18"_s, u"19"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 14), u"2"_s);
    ClickBox(u"Duponoff"_s);
    TypeDraw({u"15"_s, u"15"_s, u"16"_s, u"17"_s, u"18"_s, u"19"_s});
    m_prompts.expectedMessages = {37};
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 2);
}

TEST_F(Editor, TheTwoThousandAndFirstRecordIsAddedAndTheNextRefused)
{
    FillDatabase(2000);
    OpenEditor();
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 2001);
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"7"_s});
    m_prompts.expectedMessages = {45};
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 2001);
    EXPECT_EQ(NumberBox(5).text(), u"7"_s);
}

TEST_F(Editor, TheGridIsBuiltAnewWhenOnlyFourRowsAreSpare)
{
    FillDatabase(1);
    OpenEditor();
    ASSERT_EQ(GridRows(), 25);
    for (int added = 1; added <= 20; ++added) {
        TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
        Click(u"DCalc"_s);
        EXPECT_EQ(GridRows(), 25) << added;
    }
    ASSERT_EQ(m_shared.database.count, 21); // 21 + 4 = 25
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(GridRows(), 45);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"  22"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 21, 0), u"   1"_s);
}

// The date

TEST_F(Editor, TheNextDateFollowsTheCheckedDays)
{
    FillDatabase(1); // Saturday 1 January 2000
    OpenEditor();
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/5/2000"_s);
    ClickBox(u"DaysofWeek0"_s); // Sunday
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s); // the draw of Wednesday the 5th
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/8/2000"_s);
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/9/2000"_s);
}

TEST_F(Editor, ADayBoxChangesItsDrawDay)
{
    FillDatabase(1);
    OpenEditor();
    for (int day = 0; day < 7; ++day) {
        const bool before = Checked(u"DaysofWeek%1"_s.arg(day));
        ClickBox(u"DaysofWeek%1"_s.arg(day));
        EXPECT_EQ(CellNumber(m_shared.database.drawDays.at(static_cast<std::size_t>(day) + 1).weekday),
                  before ? 0 : day + 1);
    }
    EXPECT_EQ(m_shared.database.modified, 0);
}

TEST_F(Editor, ATypedDateIsShownAsShortDate)
{
    OpenEditor();
    const struct {
        QString typed;
        QString shown;
    } cases[] = {
        {u"2-29-24"_s, u"2/29/2024"_s}, {u"2026-01-05"_s, u"1/5/2026"_s}, {u"12.31.50"_s, u"12/31/1950"_s}};
    for (const auto& date : cases) {
        TypeInto(u"InDate"_s, date.typed);
        QTest::keyClick(&Box(u"InDate"_s), Qt::Key_Return);
        EXPECT_EQ(Box(u"InDate"_s).text(), date.shown);
    }
}

TEST_F(Editor, ATextThatIsNoDateBringsTheMessageAndTheDateBack)
{
    OpenEditor();
    for (const QString& typed : {u"2/30/2026"_s, u"13/1/2026"_s, u"1"_s, u"..//--"_s, u"99999999999999"_s}) {
        m_prompts.expectedMessages = {30};
        TypeInto(u"InDate"_s, typed);
        QTest::keyClick(&Box(u"InDate"_s), Qt::Key_Return);
        Settle();
        EXPECT_EQ(Box(u"InDate"_s).text(), u"11/18/2026"_s) << typed.toStdString();
        EXPECT_EQ(m_prompts.shownTexts.last(), u"Not a proper date, Correct format: 11/18/2026"_s);
    }
}

TEST_F(Editor, AnEmptiedDateBoxJustGetsItsDateBack)
{
    OpenEditor();
    QTest::mouseClick(&Box(u"InDate"_s), Qt::LeftButton);
    EXPECT_EQ(Box(u"InDate"_s).text(), QString());
    QTest::keyClick(&Box(u"InDate"_s), Qt::Key_Return);
    Settle();
    EXPECT_EQ(Box(u"InDate"_s).text(), u"11/18/2026"_s);
}

// Title and shape

TEST_F(Editor, TheTitleIsTakenAsItIsTyped)
{
    OpenEditor();
    TypeInto(u"InFileName"_s, u"Lotto \"six\""_s);
    EXPECT_EQ(m_shared.database.title, u"Lotto \"six\""_s);
    EXPECT_EQ(m_shared.database.modified, 0);
}

TEST_F(Editor, PicksOfAnEmptyDatabaseChangeTheBoxesAndTheGrid)
{
    OpenEditor();
    TypeInto(u"NumCol"_s, u"3"_s);
    QTest::keyClick(&Box(u"NumCol"_s), Qt::Key_Return);
    Settle();
    EXPECT_EQ(m_shared.database.columns, 5);
    EXPECT_EQ(Box(u"NumCol"_s).text(), u" 3"_s);
    EXPECT_EQ(Find<QTableView>(u"DGrid1"_s).model()->columnCount(), 5);
    EXPECT_TRUE(NumberBox(2).isVisible());
    EXPECT_FALSE(NumberBox(3).isVisible());
}

TEST_F(Editor, TheHighestNumberOfAnEmptyDatabaseChangesTheHeadings)
{
    OpenEditor();
    TypeInto(u"HighNum"_s, u"25"_s);
    QTest::keyClick(&Box(u"HighNum"_s), Qt::Key_Return);
    EXPECT_EQ(m_shared.database.highest, 25);
    EXPECT_EQ(Heading(u"DGrid3"_s, 4), u"25"_s);
    EXPECT_EQ(Heading(u"DGrid3"_s, 5), QString());
    EXPECT_EQ(Heading(u"DGrid4"_s, 0), QString());
}

TEST_F(Editor, TheBoundsOfTheShapeAreTakenWithoutAMessage)
{
    OpenEditor();
    const struct {
        QString picks;
        QString picksAfter;
        QString highest;
        QString highestAfter;
        LotteryShape shape;
    } cases[] = {{u"10"_s, u"10"_s, u"60"_s, u"60"_s, {10, 60}}, {u"1"_s, u" 1"_s, u"1"_s, u" 1"_s, {1, 1}}};
    for (const auto& bounds : cases) {
        TypeInto(u"NumCol"_s, bounds.picks);
        QTest::keyClick(&Box(u"NumCol"_s), Qt::Key_Return);
        Settle();
        TypeInto(u"HighNum"_s, bounds.highest);
        QTest::keyClick(&Box(u"HighNum"_s), Qt::Key_Return);
        Settle();
        EXPECT_EQ(Box(u"NumCol"_s).text(), bounds.picksAfter);
        EXPECT_EQ(Box(u"HighNum"_s).text(), bounds.highestAfter);
        EXPECT_EQ(m_shared.database.Shape(), bounds.shape);
        EXPECT_EQ(m_shared.database.columns, bounds.shape.picks + 2);
        EXPECT_EQ(Find<QTableView>(u"DGrid1"_s).model()->columnCount(), bounds.shape.picks + 2);
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(NumberBox(i).isVisible(), i < bounds.shape.picks) << i;
        }
        EXPECT_EQ(Heading(u"DGrid4"_s, 19), bounds.shape.highest == 60 ? u"60"_s : QString());
        EXPECT_EQ(Heading(u"DGrid2"_s, 1), bounds.shape.highest == 60 ? u"2"_s : QString());
    }
}

TEST_F(Editor, AShapeOutOfBoundsBringsItsMessageAndTheOldValue)
{
    OpenEditor();
    const struct {
        QString box;
        QString typed;
        int message;
        QString after;
    } cases[] = {
        {u"NumCol"_s, u"11"_s, 27, u" 6"_s},     {u"NumCol"_s, u"0"_s, 27, u" 6"_s},
        {u"NumCol"_s, u"999999"_s, 27, u" 6"_s}, {u"HighNum"_s, u"61"_s, 28, u"49"_s},
        {u"HighNum"_s, u"0"_s, 28, u"49"_s},
    };
    for (const auto& shape : cases) {
        m_prompts.expectedMessages = {shape.message};
        TypeInto(shape.box, shape.typed);
        QTest::keyClick(&Box(shape.box), Qt::Key_Return);
        Settle();
        EXPECT_EQ(Box(shape.box).text(), shape.after);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
    }
    EXPECT_EQ(m_shared.database.Shape(), (LotteryShape{6, 49}));
}

TEST_F(Editor, TheShapeOfADatabaseWithRecordsStays)
{
    FillDatabase(1);
    OpenEditor();
    for (const QString& name : {u"NumCol"_s, u"HighNum"_s}) {
        m_prompts.expectedMessages = {40};
        const QString before = Box(name).text();
        TypeInto(name, u"5"_s);
        QTest::keyClick(&Box(name), Qt::Key_Return);
        Settle();
        EXPECT_EQ(Box(name).text(), before);
        EXPECT_EQ(m_prompts.shownTexts.last(),
                  u"Cannot change while records exist in a database. 'Delete All' first."_s);
    }
    EXPECT_EQ(m_shared.database.Shape(), (LotteryShape{6, 49}));
}

TEST_F(Editor, ABoxOutOfBoundsSaysSoBeforeItSaysThatRecordsExist)
{
    FillDatabase(1);
    OpenEditor();
    m_prompts.expectedMessages = {27};
    TypeInto(u"NumCol"_s, u"11"_s);
    QTest::keyClick(&Box(u"NumCol"_s), Qt::Key_Return);
    Settle();
    EXPECT_EQ(Box(u"NumCol"_s).text(), u" 6"_s);
}

TEST_F(Editor, PassingThroughTheShapeBoxesWithoutTypingSaysNothing)
{
    FillDatabase(1);
    OpenEditor();
    for (const QString& name : {u"InFileName"_s, u"NumCol"_s, u"HighNum"_s}) {
        QTest::mouseClick(&Box(name), Qt::LeftButton);
        QTest::keyClick(&Box(name), Qt::Key_Return);
    }
    Settle();
    EXPECT_EQ(FocusName(), u"InDate"_s);
    EXPECT_EQ(m_shared.database.title, u"Test 6/49"_s);
}

// Deleting all, help, leaving

TEST_F(Editor, DeleteAllAnsweredWithYesChangesNothing)
{
    FillDatabase(3);
    OpenEditor();
    m_prompts.answers = {true};
    Click(u"DDeleteAll"_s);
    EXPECT_EQ(m_prompts.askedTexts,
              QStringList{
                  u"Test.Lto file in memory will be erased. Do you wish to go back and save it to Disk?."_s});
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"   3"_s);
}

TEST_F(Editor, DeleteAllEmptiesTheDatabaseAndTheForm)
{
    FillDatabase(3);
    OpenEditor();
    NumberBox(0).setText(u"7"_s);
    m_prompts.answers = {false};
    Click(u"DDeleteAll"_s);
    EXPECT_EQ(m_shared.database.count, 0);
    EXPECT_EQ(m_shared.database.title, QString());
    EXPECT_EQ(m_shared.database.fileName, QString());
    EXPECT_EQ(m_shared.database.records[1], DrawRecord{});
    EXPECT_EQ(m_shared.NumberStats, NumberTable{});
    EXPECT_EQ(m_shared.topNumbersText, (std::array<QString, 4>{}));
    EXPECT_EQ(Box(u"InFileName"_s).text(), QString());
    EXPECT_EQ(TextOf(u"Label4"_s), u"Showing the number of times drawn"_s);
    EXPECT_EQ(NumberTexts(), QStringList(10, QString()));
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), QString());
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), QString());
    EXPECT_EQ(GridRows(), 24);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"11/18/2026"_s);
    EXPECT_EQ(m_shared.database.Shape(), (LotteryShape{6, 49}));
    EXPECT_TRUE(Checked(u"DaysofWeek6"_s)); // the draw days stay
    Click(u"DExit"_s);
    EXPECT_EQ(TextOf(u"InfoLabel"_s), QString());
}

TEST_F(Editor, TheQuickHelpOpensAndClosesWithItsLines)
{
    OpenEditor();
    auto& help = Find<QPlainTextEdit>(u"HelpBoxD"_s);
    EXPECT_FALSE(help.isVisible());
    Click(u"DHelp"_s);
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(help.isReadOnly());
    EXPECT_EQ(Find<QPushButton>(u"DHelp"_s).text(), u"Close &Help"_s);
    const QStringList lines = help.toPlainText().split(u'\n');
    const QStringList expected{
        u"Spreadsheet empty - no records."_s,
        u"  Create a new File  (more..PgDn)"_s,
        u"Boxes allowing input are green."_s,
        u"Change to number of picks and range required."_s,
        u"Title box: type the lottery name."_s,
        u"Auto Date Advanced:"_s,
        u"Place a check mark beside each draw day. All other days should be unchecked."_s,
        u"New row: type in start date of your draw data (Must be same as starting checked day), type in draw numbers until all columns are filled."_s,
        u"Click 'Add Record' button, record will be moved to the database."_s,
        u"That's it!. Continue to add records to your database now or later by just typing in the draw numbers. Date set automatically in 'New' for next draw."_s,
        u"[/] Allow duplicates to be entered."_s,
        u"[/] Shows number of times each number drawn."_s,
        u"[ ] Shows number of draws since number last drawn. If not drawn yet, then total number of draws."_s,
        u"Click 'Show Graph' for charts with numbers sorted and normal."_s,
        u"Click 'Delete All' to delete database file from memory."_s,
        u"Click 'Correct Record' to Sort or Insert, first click row for number to Correct or Delete. Record will be shown in 'New' row, change, click Add Record'. Commands not used disappear until task completed."_s,
        u"To save your database file return to main menu and click on 'Save File to Disk'."_s,
        u"Load the Sample.LTO file with 'Open a File from Disk' and try out all the features."_s,
        u"For bonus or powerball numbers, create a separate database using just one column."_s,
        u"For draws ranging from 0 to ?, set the range from 1 to ? + 1 and use this last number as substitute for number 0."_s,
        u"Read  'How to Use the Program' for more detailed information."_s,
        u"                 End"_s,
    };
    EXPECT_EQ(lines, expected);
    Click(u"DHelp"_s);
    EXPECT_FALSE(help.isVisible());
    EXPECT_EQ(Find<QPushButton>(u"DHelp"_s).text(), u"Quick &Help"_s);
    EXPECT_TRUE(Find<QTableView>(u"DGrid1"_s).isVisible());
}

TEST_F(Editor, TheQuickHelpIsScrolledByTheKeysAsItSays)
{
    OpenEditor();
    auto& help = Find<QPlainTextEdit>(u"HelpBoxD"_s);
    Find<QPushButton>(u"DHelp"_s).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(FocusName(), u"HelpBoxD"_s);
    Settle();
    EXPECT_EQ(help.verticalScrollBar()->value(), 0);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_PageDown);
    EXPECT_GT(help.verticalScrollBar()->value(), 0);
    QTest::keyClick(&m_window, Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return help.isHidden(); }));
    EXPECT_EQ(FocusName(), u"DHelp"_s);
}

TEST_F(Editor, OpensWithTheQuickHelpClosed)
{
    OpenEditor();
    Click(u"DHelp"_s);
    Click(u"DExit"_s);
    Click(u"DBaseForm"_s);
    EXPECT_FALSE(Find<QPlainTextEdit>(u"HelpBoxD"_s).isVisible());
    EXPECT_EQ(Find<QPushButton>(u"DHelp"_s).text(), u"Quick &Help"_s);
}

TEST_F(Editor, LeavingPutsTheModesToRest)
{
    FillDatabase(2);
    OpenEditor();
    m_shared.editMode = EditMode::Correct;
    m_shared.SelectedRecord = 2;
    Click(u"DExit"_s);
    EXPECT_EQ(m_shared.editMode, EditMode::Normal);
    EXPECT_EQ(m_shared.SelectedRecord, 0);
}

TEST_F(Editor, AClickedRowIsRememberedAndASpareRowIsNone)
{
    FillDatabase(5);
    OpenEditor();
    auto& grid = Find<QTableView>(u"DGrid1"_s);
    const auto clickRow = [&](int row) {
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                          grid.visualRect(grid.model()->index(row, 2)).center());
    };
    clickRow(1);
    EXPECT_EQ(m_shared.ClickedRecord, 4);
    clickRow(6);
    EXPECT_EQ(m_shared.ClickedRecord, 0);
    clickRow(4);
    EXPECT_EQ(m_shared.ClickedRecord, 1);
    Click(u"DExit"_s);
    Click(u"DBaseForm"_s);
    EXPECT_EQ(m_shared.ClickedRecord, 0);
}

TEST_F(Editor, CorrectingAndGraphsNeedRecords)
{
    OpenEditor();
    m_prompts.expectedMessages = {18, 2};
    Click(u"DCorrectRec"_s);
    Click(u"DGraphs"_s);
}

TEST_F(Editor, ShowsTheGraphsAndIsLoadedAnewAfterThem)
{
    FillDatabase(1);
    OpenEditor();
    ClickBox(u"WhichCnt"_s);
    Click(u"DGraphs"_s);
    EXPECT_EQ(m_shared.graphCaller, 2);
    EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LGraph"_s);
    Click(u"ExitGrp"_s);
    EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LDbase"_s);
    EXPECT_TRUE(Find<QCheckBox>(u"WhichCnt"_s).isChecked());
}

TEST_F(Editor, CommandsThatCannotBeUsedDisappearAndReturn)
{
    FillDatabase(1);
    OpenEditor();
    auto& editor = Find<LDbase>(u"LDbase"_s);
    editor.MakInvisible();
    for (const QString& name : {u"DCorrectRec"_s, u"DDeleteAll"_s, u"DGraphs"_s}) {
        EXPECT_FALSE(Find<QPushButton>(name).isVisible());
    }
    for (const QString& name : {u"DCalc"_s, u"DHelp"_s, u"DExit"_s}) {
        EXPECT_TRUE(Find<QPushButton>(name).isVisible());
    }
    editor.MakVisible();
    for (const QString& name : {u"DCorrectRec"_s, u"DDeleteAll"_s, u"DGraphs"_s}) {
        EXPECT_TRUE(Find<QPushButton>(name).isVisible());
    }
}

TEST_F(Editor, ClearingTheCellsLeavesTheRecords)
{
    FillDatabase(2);
    OpenEditor();
    Find<LDbase>(u"LDbase"_s).ClearAllCels();
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), QString());
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), QString());
    EXPECT_EQ(m_shared.database.count, 2);
}

// What must not slip

TEST_F(Editor, TheShapeOfRecordsCannotBeChangedPastTheBoxes)
{
    FillDatabase(1);
    OpenEditor();
    InputBox& picks = Box(u"NumCol"_s);
    picks.setFocus(Qt::TabFocusReason);
    QInputMethodEvent composed;
    composed.setCommitString(u"3"_s);
    QApplication::sendEvent(&picks, &composed);
    m_prompts.expectedMessages = {40};
    QTest::keyClick(&picks, Qt::Key_Return);
    Settle();
    EXPECT_EQ(picks.text(), u" 6"_s);
    picks.setText(u"3"_s); // whatever a box says when the grid is built anew
    for (int added = 0; added < 25; ++added) {
        TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
        Click(u"DCalc"_s);
    }
    EXPECT_EQ(m_shared.database.count, 26);
    EXPECT_EQ(m_shared.database.columns, 8);
}

TEST_F(Editor, ANumberBoxTakesDigitsAlone)
{
    OpenEditor();
    for (const QString& name : {u"DYourNumIn0"_s, u"DYourNumIn5"_s, u"NumCol"_s, u"HighNum"_s}) {
        Box(name).clear();
        TypeInto(name, u"1.-/a 2"_s);
        EXPECT_EQ(Box(name).text(), u"12"_s) << name.toStdString();
        Box(name).setText(u"6"_s);
    }
    TypeInto(u"InDate"_s, u"1a/ 2"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/2"_s);
    Box(u"InDate"_s).clear();
}

TEST_F(Editor, TheTitleAndShapeBoxesLoseNothingByAClick)
{
    FillDatabase(1);
    OpenEditor();
    QTest::mouseClick(&Box(u"InFileName"_s), Qt::LeftButton);
    EXPECT_EQ(Box(u"InFileName"_s).selectedText(), u"Test 6/49"_s);
    QTest::mouseClick(&Box(u"NumCol"_s), Qt::LeftButton);
    EXPECT_EQ(Box(u"NumCol"_s).selectedText(), u" 6"_s);
}

TEST_F(Editor, AnEmptyRowIsSaidBeforeItsDuplicates)
{
    FillDatabase(1);
    OpenEditor();
    for (const QString& first : {u""_s, u"0"_s}) {
        TypeDraw({first, u"5"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s});
        m_prompts.expectedMessages = {36};
        Click(u"DCalc"_s);
    }
}

TEST_F(Editor, AFullDatabaseIsSaidBeforeAFaultOfTheRow)
{
    FillDatabase(2001);
    m_prompts.expectedMessages = {45, 45};
    OpenEditor();
    Settle();
    TypeDraw({u"1"_s, u"99"_s, u""_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s);
}

TEST_F(Editor, TheBusyPointerIsShownWhileOpeningAndAdding)
{
    FillDatabase(1);
    OpenEditor();
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
    m_prompts.busyChanges.clear();
    TypeDraw({u"11"_s, u"12"_s, u"13"_s, u"14"_s, u"15"_s, u"16"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
}

TEST_F(Editor, OpensAnewWithNothingLeftOfTheLastTime)
{
    FillDatabase(30);
    OpenEditor();
    TypeDraw({u"1"_s, u"2"_s});
    Find<QTableView>(u"DGrid1"_s).scrollToBottom();
    Click(u"DExit"_s);
    Click(u"DBaseForm"_s);
    EXPECT_EQ(NumberTexts(), QStringList(10, QString()));
    EXPECT_EQ(Find<QTableView>(u"DGrid1"_s).indexAt(QPoint(2, 2)).row(), 0);
    Click(u"DExit"_s);
    m_shared.database.Empty();
    Click(u"DBaseForm"_s);
    EXPECT_EQ(TextOf(u"Label4"_s), u"Showing the number of times drawn"_s);
    EXPECT_EQ(m_shared.topNumbersText, (std::array<QString, 4>{}));
    for (const QString& grid : {u"DGrid2"_s, u"DGrid3"_s, u"DGrid4"_s}) {
        EXPECT_EQ(Cell(grid, 0, 0), QString()) << grid.toStdString();
    }
    EXPECT_EQ(m_shared.NumberStats, NumberTable{});
    EXPECT_EQ(m_shared.sortedNumberStats, NumberTable{});
}

TEST_F(Editor, TheHelpGivesWayToTheRecordsWhenTheyChange)
{
    FillDatabase(5);
    OpenEditor();
    const auto& records = Find<QTableView>(u"DGrid1"_s);
    Click(u"DHelp"_s);
    ASSERT_FALSE(records.isVisible());
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 6);
    EXPECT_TRUE(records.isVisible());
    EXPECT_EQ(Find<QPushButton>(u"DHelp"_s).text(), u"Quick &Help"_s);
    Click(u"DHelp"_s);
    OnDialog([](QWidget& dialog) {
        In<QAbstractButton>(dialog, u"CorInsDel3"_s).click();
        ClickIn(dialog, u"Accept"_s);
    });
    Click(u"DCorrectRec"_s);
    EXPECT_TRUE(records.isVisible()) << "after a sort";
}

TEST_F(Editor, LinesOfTopNumbersDoNotOutliveTheirCounts)
{
    FillDatabase(1);
    OpenEditor();
    ASSERT_NE(m_shared.topNumbersText.at(1), QString());
    m_shared.database.records[1].drawn.fill({});
    ClickBox(u"WhichCnt"_s);
    ClickBox(u"WhichCnt"_s);
    EXPECT_EQ(m_shared.topNumbersText, (std::array<QString, 4>{}));
}

TEST_F(Editor, DeleteAllLeavesTheUnsavedMarkAndForgetsTheClickedRow)
{
    FillDatabase(3);
    OpenEditor();
    m_shared.database.modified = 1;
    m_shared.ClickedRecord = 2;
    m_prompts.answers = {false};
    Click(u"DDeleteAll"_s);
    EXPECT_EQ(m_shared.database.modified, 1);
    EXPECT_EQ(m_shared.ClickedRecord, 0);
    EXPECT_EQ(m_shared.sortedNumberStats, NumberTable{});
}

TEST_F(Editor, ARowIsChosenByTheArrowKeysToo)
{
    FillDatabase(5);
    OpenEditor();
    auto& grid = Find<QTableView>(u"DGrid1"_s);
    grid.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(m_shared.ClickedRecord, 0);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(m_shared.ClickedRecord, 3);
}

TEST_F(Editor, EveryAccessKeyPressesItsButton)
{
    FillDatabase(1);
    OpenEditor();
    for (const QString& name :
         {u"DCalc"_s, u"DCorrectRec"_s, u"DDeleteAll"_s, u"DGraphs"_s, u"DHelp"_s, u"DExit"_s}) {
        auto& button = Find<QPushButton>(name);
        QObject::disconnect(&button, &QPushButton::clicked, nullptr, nullptr);
        int clicks = 0;
        QObject::connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
        const QString caption = button.text();
        const QChar key = caption.at(caption.indexOf(u'&') + 1).toUpper();
        QTest::keyClick(&m_window, static_cast<Qt::Key>(key.unicode()), Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&clicks] { return clicks == 1; }, 1000)) << name.toStdString();
        QObject::disconnect(&button, &QPushButton::clicked, nullptr, nullptr);
    }
}

TEST_F(Editor, ACheckBoxShowsWhatIsHeldAlsoWhenItWasReachedPastAMessage)
{
    FillDatabase(1);
    OpenEditor();
    TypeInto(u"InDate"_s, u"1/1"_s);
    m_prompts.expectedMessages = {30};
    ClickBox(u"DaysofWeek1"_s); // pressed and let go before the message can come
    Settle();
    EXPECT_TRUE(Checked(u"DaysofWeek1"_s));
    EXPECT_EQ(CellNumber(m_shared.database.drawDays[2].weekday), 2);
}

} // namespace
