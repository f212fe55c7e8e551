#include "picks/LCheckWin.h"

#include "app/Twips.h"
#include "picks/WinnersHelp.h"
#include "tests/FormBench.h"
#include "tests/PrintedPages.h"
#include "tests/TestFiles.h"

#include <QClipboard>
#include <QFrame>
#include <QGroupBox>
#include <QHelpEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

class WinnerCheck : public FormBench
{
protected:
    /// Starts with so many draws of 6/49; record r holds r, r+1 .. r+5. Then opens the form.
    void OpenWith(int records)
    {
        Start();
        FillDatabase(records);
        OpenForm();
    }
    /// Opens the form on the database as it is.
    void OpenForm()
    {
        Click(u"CheckWin"_s);
        Settle();
    }
    /// Gives the database another shape and these draws.
    void SetDraws(int picks, int highest, const std::vector<std::vector<int>>& draws)
    {
        DrawDatabase& database = m_shared.database;
        database.Empty();
        database.columns = static_cast<qint16>(picks + 2);
        database.highest = static_cast<qint16>(highest);
        database.title = u"Other"_s;
        for (const std::vector<int>& draw : draws) {
            database.Append(QDate(2024, 3, 5), draw);
        }
    }
    LCheckWin& Form() { return Find<LCheckWin>(u"LCheckWin"_s); }
    QString FrontForm() const { return m_window.ActiveForm()->objectName(); }
    InputBox& YourNumber(int i) { return Box(u"CInYourNum%1"_s.arg(i)); }
    /// Types the minimum and the numbers as a user does, who goes from box to box.
    void Enter(const QString& minimum, const QStringList& numbers)
    {
        TypeInto(u"MatchNum"_s, minimum);
        for (int i = 0; i < numbers.size(); ++i) {
            if (!numbers.at(i).isEmpty()) {
                TypeInto(u"CInYourNum%1"_s.arg(i), numbers.at(i));
            }
        }
    }
    void Check(const QString& minimum, const QStringList& numbers)
    {
        Enter(minimum, numbers);
        Click(u"CCalc"_s);
        Settle();
    }
    /// One press of a button brings this message.
    void ExpectMessage(int message, const QString& button = u"CCalc"_s)
    {
        m_prompts.expectedMessages = {message};
        Click(button);
        Settle();
        EXPECT_TRUE(m_prompts.expectedMessages.empty()) << "message " << message << " did not come";
        m_prompts.expectedMessages.clear();
    }
    QStringList Row(int row)
    {
        QStringList cells;
        for (int column = 0; column < Grid().columnCount(); ++column) {
            cells << Cell(u"CGrid"_s, row, column);
        }
        return cells;
    }
    const QAbstractItemModel& Grid() { return *Find<QTableView>(u"CGrid"_s).model(); }
    int GridRows() { return Grid().rowCount() + 1; }
    bool GridIsEmpty()
    {
        for (int row = 0; row < Grid().rowCount(); ++row) {
            if (!Row(row).join(QString()).isEmpty()) {
                return false;
            }
        }
        return true;
    }
    /// Opens a file as a user does, from the menu, and leaves the editor. @return the first number of each
    /// record as the editor shows it, oldest first
    QStringList OpenFile(const QString& path)
    {
        m_prompts.files = {path};
        Click(u"LoadFile"_s);
        Settle();
        QStringList shown;
        for (int record = 1; record <= m_shared.database.count; ++record) {
            shown << Cell(u"DGrid1"_s, m_shared.database.count - record, 2).trimmed();
        }
        Click(u"DExit"_s);
        Settle();
        return shown;
    }
    /// For each of the numbers 1..60 the records that the check lists, newest first: "7: 4 3, 8: 5".
    QString RecordsOfEachNumber()
    {
        QStringList found;
        OpenForm();
        for (int number = 1; number <= 60; ++number) {
            Check(u"1"_s, {QString::number(number)});
            QStringList records;
            for (int row = 0; !Row(row).first().isEmpty(); ++row) {
                records << Row(row).first().trimmed();
            }
            if (!records.isEmpty()) {
                found << u"%1: %2"_s.arg(number).arg(records.join(u' '));
            }
        }
        Click(u"CExit"_s);
        Settle();
        return found.join(u", "_s);
    }
    /// Changes a box behind the form's back, so that nothing but the check itself can empty the grid.
    void SetUnheard(int box, const QString& text)
    {
        const QSignalBlocker quiet(&YourNumber(box));
        YourNumber(box).setText(text);
    }
    bool HelpIsOpen() { return Find<QPlainTextEdit>(u"CTextBox"_s).isVisible(); }
};

// Opening

TEST_F(WinnerCheck, OpensWithItsTexts)
{
    OpenWith(3);
    EXPECT_EQ(FrontForm(), u"LCheckWin"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Check numbers"_s);
    EXPECT_EQ(Find<QGroupBox>(u"Frame1"_s).title(), u"Search Database Setup"_s);
    EXPECT_EQ(TextOf(u"Label3"_s), u"Search each record for minimum matches of"_s);
    EXPECT_EQ(TextOf(u"Label2"_s), u"Enter all numbers to check"_s);
    EXPECT_TRUE(Find<QFrame>(u"Frame2"_s).isVisible());
    EXPECT_EQ(TextOf(u"Title"_s), u"Title"_s);
    EXPECT_EQ(TextOf(u"TitleCheck"_s), u"Test 6/49"_s);
    const QList<QPair<QString, QString>> buttons{
        {u"CCalc"_s, u"Check &Numbers"_s}, {u"CClearAll"_s, u"&Clear All"_s},
        {u"CPrinter"_s, u"To &Printer"_s}, {u"CHelp"_s, u"Quick &Help"_s},
        {u"CExit"_s, u"E&xit to Menu"_s},
    };
    for (const auto& [name, caption] : buttons) {
        EXPECT_EQ(Find<QPushButton>(name).text(), caption);
    }
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u" 3"_s);
    EXPECT_EQ(YourNumber(0).text(), QString());
    EXPECT_FALSE(HelpIsOpen());
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(FocusName(), u"CInYourNum0"_s);
}

TEST_F(WinnerCheck, WithoutRecordsTheMenuSaysSoAndStays)
{
    Start();
    ExpectMessage(44, u"CheckWin"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(WinnerCheck, TheMinimumIsOneWhereFewerThanThreeNumbersAreDrawn)
{
    Start();
    const struct {
        int picks;
        QString minimum;
    } cases[] = {{1, u" 1"_s}, {2, u" 1"_s}, {3, u" 3"_s}, {10, u" 3"_s}};
    for (const auto& entry : cases) {
        SetDraws(entry.picks, 49, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
        OpenForm();
        EXPECT_EQ(Box(u"MatchNum"_s).text(), entry.minimum) << entry.picks;
        Click(u"CExit"_s);
    }
}

TEST_F(WinnerCheck, ShowsAsManyBoxesAndColumnsAsPicks)
{
    Start();
    for (const int picks : {1, 6, 10, 3}) {
        SetDraws(picks, 49, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
        OpenForm();
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(YourNumber(i).isVisible(), i < picks) << i;
        }
        EXPECT_EQ(Grid().columnCount(), picks + 2);
        EXPECT_EQ(GridRows(), 20);
        Click(u"CExit"_s);
    }
}

TEST_F(WinnerCheck, TheGridHasItsHeadingsAndWidths)
{
    OpenWith(1);
    const auto& grid = Find<QTableView>(u"CGrid"_s);
    const QStringList headings{u"Record"_s, u"Date"_s, u" 1"_s, u" 2"_s, u" 3"_s, u" 4"_s, u" 5"_s, u" 6"_s};
    for (int column = 0; column < 8; ++column) {
        const int twips = column == 0 ? 1000 : column == 1 ? 1420 : 580;
        EXPECT_EQ(Grid().headerData(column, Qt::Horizontal).toString(), headings.at(column));
        EXPECT_EQ(grid.columnWidth(column), TwipsToPixels(twips, m_window.logicalDpiX())) << column;
    }
}

TEST_F(WinnerCheck, TheColumnsGrowWithTheWindowAndStayInSight)
{
    Start();
    SetDraws(10, 60, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
    OpenForm();
    const auto& grid = Find<QTableView>(u"CGrid"_s);
    const int before = grid.columnWidth(2);
    m_window.resize(1280, 800);
    Settle();
    EXPECT_GT(grid.columnWidth(2), before);
    EXPECT_FALSE(grid.horizontalScrollBar()->isVisible());
    m_window.resize(641, 458);
    Settle();
    EXPECT_EQ(grid.columnWidth(2), before);
}

TEST_F(WinnerCheck, ALongTitleNeedsNoLargerWindowAndLeavesTheGridItsRoom)
{
    Start();
    for (const QString& title :
         {u"Lotto"_s, QString(300, u'W') + u"<b>&a"_s, u"many words "_s.repeated(300)}) {
        FillDatabase(1);
        m_shared.database.title = title;
        m_window.ShowForm(FormName::LCheckWin);
        Settle();
        EXPECT_EQ(m_window.size(), QSize(641, 458));
        EXPECT_EQ(Find<QTableView>(u"CGrid"_s).height(), 303);
        EXPECT_EQ(TextOf(u"TitleCheck"_s), title);
        EXPECT_EQ(Find<QLabel>(u"TitleCheck"_s).textFormat(), Qt::PlainText);
    }
}

TEST_F(WinnerCheck, FitsTheOpeningWindowWithTenBoxesAndTheHelpOpen)
{
    Start();
    SetDraws(10, 60, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
    OpenForm();
    Click(u"CHelp"_s);
    Settle();
    EXPECT_EQ(m_window.size(), QSize(641, 458));
    EXPECT_TRUE(Find<QTableView>(u"CGrid"_s).isVisible());
    EXPECT_FALSE(Find<QTableView>(u"CGrid"_s).horizontalScrollBar()->isVisible());
    for (const QWidget* widget : Form().findChildren<QWidget*>()) {
        if (!widget->isVisible() ||
            qobject_cast<const QAbstractScrollArea*>(widget->parentWidget()) != nullptr) {
            continue; // the parts of a grid are as large as the grid has room
        }
        const QRect place(widget->mapTo(&Form(), QPoint(0, 0)), widget->size());
        EXPECT_TRUE(Form().rect().contains(place)) << widget->objectName().toStdString();
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->objectName().toStdString();
    }
}

TEST_F(WinnerCheck, StandsInItsPlaceInTheSmallAndTheLargeWindow)
{
    OpenWith(1);
    EXPECT_EQ(Form().pos(), QPoint(-4, -2));
    m_window.resize(1280, 800);
    Settle();
    EXPECT_EQ(Form().pos(), QPoint(80, 67));
}

TEST_F(WinnerCheck, EveryBoxAndGridCanBeSpokenOfByAScreenReader)
{
    OpenWith(1);
    const auto boxes = Form().findChildren<InputBox*>();
    EXPECT_EQ(boxes.size(), 11);
    for (const InputBox* box : boxes) {
        bool named = !box->accessibleName().isEmpty();
        for (const QLabel* label : Form().findChildren<QLabel*>()) {
            named = named || label->buddy() == box;
        }
        EXPECT_TRUE(named) << box->objectName().toStdString();
        EXPECT_EQ(box->palette().color(QPalette::Base), QColor(0x80, 0xFF, 0x80));
    }
    EXPECT_FALSE(Find<QTableView>(u"CGrid"_s).accessibleName().isEmpty());
    EXPECT_FALSE(Find<QTableView>(u"CGrid"_s).accessibleDescription().isEmpty());
}

TEST_F(WinnerCheck, TheTabKeyWalksInReadingOrder)
{
    OpenWith(1);
    Box(u"MatchNum"_s).setFocus(Qt::TabFocusReason);
    QStringList walked;
    for (int step = 0; step < 13; ++step) {
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
        walked << FocusName();
    }
    const QStringList expected{u"CInYourNum0"_s, u"CInYourNum1"_s, u"CInYourNum2"_s, u"CInYourNum3"_s,
                               u"CInYourNum4"_s, u"CInYourNum5"_s, u"CGrid"_s,       u"CCalc"_s,
                               u"CClearAll"_s,   u"CPrinter"_s,    u"CHelp"_s,       u"CExit"_s,
                               u"MatchNum"_s};
    EXPECT_EQ(walked, expected);
}

// The boxes

TEST_F(WinnerCheck, EnterGoesFromBoxToBoxAndFromTheLastToTheButtonThatChecks)
{
    OpenWith(1);
    Box(u"MatchNum"_s).setFocus(Qt::TabFocusReason);
    QStringList walked;
    for (int step = 0; step < 7; ++step) {
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
        walked << FocusName();
    }
    EXPECT_EQ(walked, (QStringList{u"CInYourNum0"_s, u"CInYourNum1"_s, u"CInYourNum2"_s, u"CInYourNum3"_s,
                                   u"CInYourNum4"_s, u"CInYourNum5"_s, u"CCalc"_s}));
}

TEST_F(WinnerCheck, EnterInTheLastBoxLeadsToTheButtonWhateverThePicks)
{
    Start();
    for (const int picks : {1, 2, 10}) {
        SetDraws(picks, 60, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
        OpenForm();
        for (int i = 0; i < picks; ++i) {
            EXPECT_EQ(FocusName(), u"CInYourNum%1"_s.arg(i));
            QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
        }
        EXPECT_EQ(FocusName(), u"CCalc"_s) << picks;
        Click(u"CExit"_s);
    }
}

TEST_F(WinnerCheck, EnterOnTheButtonChecks)
{
    OpenWith(3);
    Enter(u"1"_s, {u"3"_s});
    Find<QPushButton>(u"CCalc"_s).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Row(0).first(), u"   3"_s);
}

TEST_F(WinnerCheck, OnlyDigitsAndBackspaceAreTaken)
{
    OpenWith(1);
    QSignalSpy refused(&YourNumber(0), &InputBox::KeyRefused);
    TypeInto(u"CInYourNum0"_s, u"a1-.2 "_s);
    EXPECT_EQ(YourNumber(0).text(), u"12"_s);
    EXPECT_EQ(refused.count(), 4);
    QTest::keyClick(&YourNumber(0), Qt::Key_Backspace);
    EXPECT_EQ(YourNumber(0).text(), u"1"_s);
}

TEST_F(WinnerCheck, AClickOnANumberKeepsItAndTypingReplacesIt)
{
    OpenWith(10);
    Enter(u"1"_s, {u"12"_s, u"34"_s});
    QTest::mouseClick(&YourNumber(0), Qt::LeftButton);
    EXPECT_EQ(YourNumber(0).text(), u"12"_s);
    YourNumber(1).setFocus();
    EXPECT_EQ(YourNumber(0).text(), u"12"_s);
    QTest::mouseClick(&YourNumber(0), Qt::LeftButton);
    QTest::mouseClick(&YourNumber(0), Qt::LeftButton); // also once more
    EXPECT_EQ(YourNumber(0).text(), u"12"_s);
    QTest::mouseClick(&YourNumber(1), Qt::LeftButton);
    QTest::keyClicks(&YourNumber(1), u"5"_s);
    EXPECT_EQ(YourNumber(1).text(), u"5"_s);
}

TEST_F(WinnerCheck, ANumberReachedByTabIsReplacedByTyping)
{
    OpenWith(10);
    Enter(u"1"_s, {u"12"_s, u"34"_s});
    YourNumber(0).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"CInYourNum1"_s);
    EXPECT_EQ(YourNumber(1).text(), u"34"_s);
    QTest::keyClicks(&YourNumber(1), u"49"_s);
    EXPECT_EQ(YourNumber(1).text(), u"49"_s);
    EXPECT_EQ(YourNumber(0).text(), u"12"_s);
}

TEST_F(WinnerCheck, AClickEmptiesTheMinimumAndTypingReplacesIt)
{
    OpenWith(1);
    QGuiApplication::clipboard()->setText(u"4"_s);
    TypeInto(u"MatchNum"_s, u"2"_s);
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u"2"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
    YourNumber(0).setFocus();
    QTest::mouseClick(&Box(u"MatchNum"_s), Qt::LeftButton);
    EXPECT_EQ(Box(u"MatchNum"_s).text(), QString());
    TypeInto(u"MatchNum"_s, u"1"_s);
    YourNumber(0).setFocus();
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u"1"_s);
}

TEST_F(WinnerCheck, TheMinimumIsRewrittenWithoutBlanksAndLeadingZeros)
{
    OpenWith(1);
    TypeInto(u"MatchNum"_s, u"004"_s);
    QTest::keyClick(&Box(u"MatchNum"_s), Qt::Key_Return);
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u"4"_s);
}

TEST_F(WinnerCheck, AMinimumThatWasNotEditedStaysAsItStands)
{
    OpenWith(1);
    Box(u"MatchNum"_s).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Box(u"MatchNum"_s), Qt::Key_Return);
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u" 3"_s);
}

TEST_F(WinnerCheck, AMinimumOutOfRangeBringsItsMessageAndThePicks)
{
    OpenWith(1);
    for (const QString& typed : {u"0"_s, u"00"_s, u"7"_s, u"99999"_s, u"999999999999999999999"_s}) {
        m_prompts.expectedMessages = {17};
        TypeInto(u"MatchNum"_s, typed);
        QTest::keyClick(&Box(u"MatchNum"_s), Qt::Key_Return);
        Settle();
        EXPECT_TRUE(m_prompts.expectedMessages.empty()) << typed.toStdString();
        EXPECT_EQ(LastMessage(), u"Must be from  1  to  6"_s);
        EXPECT_EQ(Box(u"MatchNum"_s).text(), u"6"_s);
    }
}

TEST_F(WinnerCheck, TheMessageOfTheMinimumNamesThePicks)
{
    Start();
    const struct {
        int picks;
        QString text;
    } cases[] = {{1, u"Must be from  1  to  1"_s},
                 {2, u"Must be from  1  to  2"_s},
                 {10, u"Must be from  1  to  10"_s}};
    for (const auto& entry : cases) {
        SetDraws(entry.picks, 60, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
        OpenForm();
        for (const int typed : {0, entry.picks + 1}) {
            m_prompts.expectedMessages = {17};
            TypeInto(u"MatchNum"_s, QString::number(typed));
            QTest::keyClick(&Box(u"MatchNum"_s), Qt::Key_Return);
            Settle();
            EXPECT_TRUE(m_prompts.expectedMessages.empty()) << typed;
            EXPECT_EQ(LastMessage(), entry.text);
            EXPECT_EQ(Box(u"MatchNum"_s).text(), QString::number(entry.picks));
        }
        Click(u"CExit"_s);
    }
}

TEST_F(WinnerCheck, AMinimumThatIsNoShortNumberAsksForAllPicks)
{
    OpenWith(3);
    Enter(u"1"_s, {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Box(u"MatchNum"_s).setText(u"99999"_s); // not typed, so nothing has put it right
    Click(u"CCalc"_s);
    EXPECT_EQ(Row(0).first(), u"   1"_s);
    EXPECT_EQ(Row(1).join(QString()), QString());
}

TEST_F(WinnerCheck, AnEmptiedMinimumKeepsTheSearchFromRunning)
{
    OpenWith(3);
    Enter(u"1"_s, {u"3"_s});
    QTest::mouseClick(&Box(u"MatchNum"_s), Qt::LeftButton);
    ExpectMessage(17);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u"6"_s);
}

TEST_F(WinnerCheck, LeavingTheMinimumEmptiesTheGridAndKeepsTheResultsForThePrinter)
{
    OpenWith(3);
    Check(u"1"_s, {u"3"_s});
    EXPECT_FALSE(GridIsEmpty());
    Box(u"MatchNum"_s).setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(GridIsEmpty());
    YourNumber(0).setFocus();
    EXPECT_TRUE(GridIsEmpty());
    m_prompts.answers = {true};
    Click(u"CPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_TRUE(PagesText(m_prompts.printed.front()).contains(u"minimum matches of: 1\n"_s));
}

// The checks

TEST_F(WinnerCheck, EveryMistakeBringsItsMessageAndLeavesTheGridEmpty)
{
    const struct {
        QString minimum;
        QStringList numbers;
        int message;
        QString text;
    } cases[] = {
        {u"1"_s, {u"0"_s}, 38, u"Correct: number 0 not allowed in Draw."_s},
        {u"1"_s, {u"50"_s}, 5, u"Correct: number 50 is higher than allowed in Draw."_s},
        {u"3"_s, {u"1"_s, u"2"_s}, 42, u"Minimum matches greater than numbers to check."_s},
        {u"1"_s, {}, 42, u"Minimum matches greater than numbers to check."_s},
        {u"2"_s, {{}, {}, {}, u"12"_s, {}, u"12"_s}, 37, u"Correct: duplicate numbers."_s},
        {u"6"_s, {u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"07"_s}, 37, u"Correct: duplicate numbers."_s},
        {u"3"_s, {u"1"_s, u"50"_s}, 42, u"Minimum matches greater than numbers to check."_s},
        {u"3"_s, {u"50"_s, u"1"_s}, 5, u"Correct: number 50 is higher than allowed in Draw."_s},
    };
    OpenWith(49);
    for (const auto& entry : cases) {
        Check(u"1"_s, {u"6"_s}); // something in the grid
        EXPECT_FALSE(GridIsEmpty());
        Click(u"CClearAll"_s);
        Enter(entry.minimum, entry.numbers);
        ExpectMessage(entry.message);
        EXPECT_EQ(LastMessage(), entry.text);
        EXPECT_TRUE(GridIsEmpty()) << entry.message;
        ExpectMessage(1, u"CPrinter"_s); // the results before are gone
        Click(u"CClearAll"_s);
    }
}

TEST_F(WinnerCheck, ACheckThatFailsEmptiesTheGridItself)
{
    const struct {
        QString changed; ///< the second number; the first is 6
        int message;
    } cases[] = {{u"0"_s, 38}, {u"50"_s, 5}, {u"6"_s, 37}, {{}, 42}};
    OpenWith(49);
    for (const auto& entry : cases) {
        Check(u"2"_s, {u"6"_s, u"7"_s});
        EXPECT_FALSE(GridIsEmpty());
        SetUnheard(1, entry.changed);
        EXPECT_FALSE(GridIsEmpty());
        ExpectMessage(entry.message);
        EXPECT_TRUE(GridIsEmpty()) << entry.message;
        EXPECT_EQ(GridRows(), 20);
        EXPECT_EQ(Find<QTableView>(u"CGrid"_s).toolTip(), QString());
        ExpectMessage(1, u"CPrinter"_s);
    }
}

TEST_F(WinnerCheck, ACheckThatFailsTakesNoMatchesAway)
{
    OpenWith(10);
    Check(u"1"_s, {u"49"_s});
    EXPECT_EQ(Row(0).at(1), u"No Matches"_s);
    m_shared.database.highest = 48; // the numbers and the minimum stay
    ExpectMessage(5);
    EXPECT_TRUE(GridIsEmpty());
}

TEST_F(WinnerCheck, TenNumbersUpToSixtyAreTakenAndSixtyOneIsNot)
{
    Start();
    SetDraws(10, 60, {{60, 9, 8, 7, 6, 5, 4, 3, 2, 1}});
    OpenForm();
    QStringList numbers{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"60"_s};
    Check(u"10"_s, numbers);
    EXPECT_EQ(Row(0).join(QString()), u"   13/5/2024 60  9  8  7  6  5  4  3  2  1"_s);
    numbers.last() = u"61"_s;
    Enter(u"10"_s, numbers);
    ExpectMessage(5);
    EXPECT_EQ(LastMessage(), u"Correct: number 61 is higher than allowed in Draw."_s);
    EXPECT_TRUE(GridIsEmpty());
}

TEST_F(WinnerCheck, EveryNumberFromOneToTheHighestIsTaken)
{
    OpenWith(49); // record 44 is the first to hold the 49, record 1 holds the 1
    Check(u"1"_s, {u"49"_s});
    EXPECT_EQ(Row(0), (QStringList{u"  49"_s, Cell(u"CGrid"_s, 0, 1), u" 49"_s, {}, {}, {}, {}, {}}));
    Click(u"CClearAll"_s);
    Check(u"1"_s, {u"01"_s});
    EXPECT_EQ(Row(0).first(), u"  49"_s); // 49, 1, 2, 3, 4, 5
    EXPECT_EQ(Row(0).at(3), u"  1"_s);
}

// The search

TEST_F(WinnerCheck, AllDrawsWithASixAreListedNewestFirstWithTheSixInItsPosition)
{
    OpenWith(10);
    Check(u"1"_s, {u"6"_s});
    EXPECT_EQ(Row(0), (QStringList{u"   6"_s, u"1/19/2000"_s, u"  6"_s, {}, {}, {}, {}, {}}));
    EXPECT_EQ(Row(1), (QStringList{u"   5"_s, u"1/15/2000"_s, {}, u"  6"_s, {}, {}, {}, {}}));
    EXPECT_EQ(Row(5), (QStringList{u"   1"_s, u"1/1/2000"_s, {}, {}, {}, {}, {}, u"  6"_s}));
    EXPECT_EQ(Row(6).join(QString()), QString());
    EXPECT_EQ(m_shared.scratchRecords.size(), 7U);
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
}

TEST_F(WinnerCheck, AGapBetweenTheBoxesDoesNotStopTheSearch)
{
    OpenWith(10);
    Check(u"2"_s, {u"3"_s, {}, u"8"_s});
    EXPECT_EQ(Row(0), (QStringList{u"   3"_s, u"1/8/2000"_s, u"  3"_s, {}, {}, {}, {}, u"  8"_s}));
    EXPECT_EQ(Row(1).join(QString()), QString());
}

TEST_F(WinnerCheck, NothingFoundIsSaidInRowOneColumnOne)
{
    OpenWith(10);
    Check(u"2"_s, {u"1"_s, u"49"_s});
    EXPECT_EQ(Row(0), (QStringList{{}, u"No Matches"_s, {}, {}, {}, {}, {}, {}}));
    EXPECT_EQ(GridRows(), 20);
    ExpectMessage(1, u"CPrinter"_s);
    EXPECT_EQ(LastMessage(), u"No data to print."_s);
}

TEST_F(WinnerCheck, ChangingANumberEmptiesTheGridAndKeepsTheResultsForThePrinter)
{
    OpenWith(10);
    Check(u"1"_s, {u"6"_s, u"7"_s});
    YourNumber(1).setFocus(Qt::TabFocusReason); // looking at a number changes nothing
    QTest::mouseClick(&YourNumber(0), Qt::LeftButton);
    EXPECT_FALSE(GridIsEmpty());
    QTest::keyClicks(&YourNumber(0), u"x"_s); // refused
    EXPECT_FALSE(GridIsEmpty());
    QTest::keyClicks(&YourNumber(0), u"4"_s);
    EXPECT_TRUE(GridIsEmpty());
    m_prompts.answers = {true};
    Click(u"CPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(PageLines(m_prompts.printed.front(), 1).at(8), u"Enter numbers to check:   6   7"_s);
}

TEST_F(WinnerCheck, NoMatchesNeverStandsUnderOtherNumbers)
{
    OpenWith(10);
    for (int box = 0; box < 6; ++box) {
        Click(u"CClearAll"_s);
        Check(u"1"_s, {u"49"_s});
        EXPECT_EQ(Row(0).at(1), u"No Matches"_s);
        TypeInto(u"CInYourNum%1"_s.arg(box), u"3"_s);
        EXPECT_TRUE(GridIsEmpty()) << box;
        Click(u"CCalc"_s);
        EXPECT_EQ(Row(0).first(), u"   3"_s);
        QTest::keyClick(&YourNumber(box), Qt::Key_Backspace);
        EXPECT_TRUE(GridIsEmpty()) << box;
    }
}

TEST_F(WinnerCheck, TheGridSaysForWhichMinimumNothingWasFound)
{
    OpenWith(10);
    auto& grid = Find<QTableView>(u"CGrid"_s);
    const QString before = grid.accessibleDescription();
    EXPECT_EQ(grid.toolTip(), QString());
    Check(u"2"_s, {u"1"_s, u"49"_s});
    const QString found = u"No draw holds at least 2 of these numbers: 1, 49."_s;
    EXPECT_EQ(grid.toolTip(), found);
    EXPECT_EQ(grid.accessibleDescription(), found + u' ' + before);
    const QPoint cell = grid.visualRect(Grid().index(0, 1)).center();
    QHelpEvent pointing(QEvent::ToolTip, cell, grid.viewport()->mapToGlobal(cell));
    QApplication::sendEvent(grid.viewport(), &pointing);
    EXPECT_EQ(QToolTip::text(), found);
    QToolTip::hideText();

    Check(u"1"_s, {u"10"_s, u"11"_s});
    EXPECT_EQ(grid.toolTip(), u"6 draws hold at least 1 of these numbers: 10, 11."_s);
    TypeInto(u"MatchNum"_s, u"2"_s);
    YourNumber(0).setFocus();
    EXPECT_EQ(grid.toolTip(), QString());
    EXPECT_EQ(grid.accessibleDescription(), before);
    Click(u"CCalc"_s);
    EXPECT_EQ(grid.toolTip(), u"5 draws hold at least 2 of these numbers: 10, 11."_s);
    Click(u"CExit"_s);
    OpenForm();
    EXPECT_EQ(grid.toolTip(), QString());
    EXPECT_EQ(grid.accessibleDescription(), before);
}

TEST_F(WinnerCheck, ASearchLeavesTheBoxesThatWereChecked)
{
    OpenWith(10);
    Enter(u"1"_s, {u"3"_s});
    SetDraws(3, 49, {{3, 4, 5}}); // another shape since the form was opened
    Click(u"CCalc"_s);
    EXPECT_EQ(Row(0), (QStringList{u"   1"_s, u"3/5/2024"_s, u"  3"_s, {}, {}}));
    EXPECT_TRUE(YourNumber(5).isVisible());
    Form().MakeCGrid(); // outside of a search they follow the shape
    EXPECT_FALSE(YourNumber(3).isVisible());
    EXPECT_TRUE(YourNumber(2).isVisible());
}

TEST_F(WinnerCheck, ADatabaseEmptiedUnderTheFormHasNoMatches)
{
    OpenWith(3);
    m_shared.database.Empty();
    Check(u"1"_s, {u"3"_s});
    EXPECT_EQ(Row(0).at(1), u"No Matches"_s);
}

TEST_F(WinnerCheck, TheGridHasTenRowsMoreThanResultsAndTwentyAtLeast)
{
    Start();
    const struct {
        int records;
        int rows;
    } cases[] = {{1, 20}, {10, 20}, {11, 21}, {500, 510}, {2001, 2011}};
    for (const auto& entry : cases) {
        SetDraws(1, 9, std::vector<std::vector<int>>(static_cast<std::size_t>(entry.records), {5}));
        OpenForm();
        Check(u"1"_s, {u"5"_s});
        EXPECT_EQ(GridRows(), entry.rows) << entry.records;
        EXPECT_EQ(Row(entry.records - 1).first(), u"   1"_s);
        Check(u"1"_s, {u"6"_s});
        EXPECT_EQ(GridRows(), 20) << entry.records;
        Click(u"CExit"_s);
    }
}

TEST_F(WinnerCheck, ANewSearchStartsAtTheTopOfTheGrid)
{
    Start();
    SetDraws(1, 9, std::vector<std::vector<int>>(500, {5}));
    OpenForm();
    Check(u"1"_s, {u"5"_s});
    auto& grid = Find<QTableView>(u"CGrid"_s);
    EXPECT_EQ(grid.verticalScrollBar()->value(), 0);
    grid.scrollToBottom();
    EXPECT_NE(grid.verticalScrollBar()->value(), 0);
    Click(u"CCalc"_s);
    EXPECT_EQ(grid.verticalScrollBar()->value(), 0);
}

TEST_F(WinnerCheck, ADateThatIsNoDateShowsItsText)
{
    OpenWith(2);
    m_shared.database.records[2].date = u"some day"_s;
    Check(u"1"_s, {u"3"_s});
    EXPECT_EQ(Row(0).at(1), u"some day"_s);
}

TEST_F(WinnerCheck, TheAccessKeyChecksWhatHasJustBeenTyped)
{
    OpenWith(10);
    Enter(u"1"_s, {u"6"_s});
    TypeInto(u"MatchNum"_s, u"2"_s);
    m_prompts.expectedMessages = {42};
    QTest::keyClick(&m_window, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_prompts.expectedMessages.empty(); }));
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u"2"_s);
}

TEST_F(WinnerCheck, AShapeBeyondTheBoundsIsHeldToThem)
{
    Start();
    SetDraws(10, 60, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 60}});
    m_shared.database.columns = 32767;
    m_shared.database.highest = -5;
    OpenForm();
    EXPECT_TRUE(YourNumber(9).isVisible());
    Enter(u"1"_s, {u"2"_s});
    ExpectMessage(5); // the highest is held to 1
    Check(u"1"_s, {u"1"_s});
    EXPECT_EQ(Row(0).at(2), u"  1"_s);
}

// Clear All, help, leaving

TEST_F(WinnerCheck, ClearAllEmptiesTheNumbersAndTheGridAndLeavesTheMinimum)
{
    OpenWith(10);
    Check(u"2"_s, {u"3"_s, {}, u"8"_s});
    Click(u"CClearAll"_s);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(YourNumber(i).text(), QString());
    }
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u"2"_s);
    EXPECT_EQ(FocusName(), u"CInYourNum0"_s);
}

TEST_F(WinnerCheck, ClearAllTakesNoMatchesAway)
{
    OpenWith(10);
    Check(u"1"_s, {u"49"_s});
    EXPECT_EQ(Row(0).at(1), u"No Matches"_s);
    Click(u"CClearAll"_s);
    EXPECT_TRUE(GridIsEmpty());
}

TEST_F(WinnerCheck, TheHelpOpensAndCloses)
{
    OpenWith(1);
    Click(u"CHelp"_s);
    EXPECT_TRUE(HelpIsOpen());
    EXPECT_EQ(Find<QPushButton>(u"CHelp"_s).text(), u"Close &Help"_s);
    EXPECT_EQ(Find<QPlainTextEdit>(u"CTextBox"_s).toPlainText(), WinnersHelpText());
    EXPECT_TRUE(Find<QPlainTextEdit>(u"CTextBox"_s).isReadOnly());
    Click(u"CHelp"_s);
    EXPECT_FALSE(HelpIsOpen());
    EXPECT_EQ(Find<QPushButton>(u"CHelp"_s).text(), u"Quick &Help"_s);
}

TEST_F(WinnerCheck, TheHelpIsScrolledByTheKeysAndHandsTheFocusBack)
{
    OpenWith(1);
    Find<QPushButton>(u"CHelp"_s).setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(FocusName(), u"CTextBox"_s);
    Find<QPushButton>(u"CHelp"_s).click();
    EXPECT_FALSE(HelpIsOpen());
    EXPECT_EQ(FocusName(), u"CHelp"_s);
}

TEST_F(WinnerCheck, ASearchThatFindsDrawsClosesTheHelp)
{
    OpenWith(10);
    Click(u"CHelp"_s);
    Check(u"1"_s, {u"6"_s});
    EXPECT_FALSE(HelpIsOpen());
    EXPECT_EQ(Find<QPushButton>(u"CHelp"_s).text(), u"Quick &Help"_s);
}

TEST_F(WinnerCheck, ASearchThatFindsNothingSaysSoBesideTheOpenHelp)
{
    OpenWith(10);
    Click(u"CHelp"_s);
    Check(u"1"_s, {u"49"_s});
    EXPECT_TRUE(HelpIsOpen());
    EXPECT_TRUE(Find<QTableView>(u"CGrid"_s).isVisible());
    EXPECT_EQ(Row(0).at(1), u"No Matches"_s);
}

TEST_F(WinnerCheck, LeavingShowsTheMenuAndOpeningAgainStartsAnew)
{
    OpenWith(10);
    Check(u"2"_s, {u"3"_s, {}, u"8"_s});
    Click(u"CHelp"_s);
    Click(u"CExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    OpenForm();
    EXPECT_EQ(Box(u"MatchNum"_s).text(), u" 3"_s);
    EXPECT_EQ(YourNumber(0).text() + YourNumber(2).text(), QString());
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_FALSE(HelpIsOpen());
    ExpectMessage(1, u"CPrinter"_s);
}

TEST_F(WinnerCheck, UndoBringsNothingBackThatWasTypedBefore)
{
    OpenWith(10);
    Check(u"2"_s, {u"3"_s, u"4"_s});
    Click(u"CClearAll"_s);
    QTest::keySequence(&YourNumber(0), QKeySequence::Undo);
    EXPECT_EQ(YourNumber(0).text(), QString());
    Enter(u"2"_s, {u"5"_s, u"6"_s});
    Click(u"CExit"_s);
    OpenForm();
    for (const QString& name : {u"CInYourNum0"_s, u"CInYourNum1"_s, u"MatchNum"_s}) {
        const QString before = Box(name).text();
        Box(name).setFocus(Qt::TabFocusReason);
        QTest::keySequence(&Box(name), QKeySequence::Undo);
        EXPECT_EQ(Box(name).text(), before) << name.toStdString();
    }
}

// Files

TEST_F(WinnerCheck, WhatAFileBringsIsSearchedAsItIsShownAndSaved)
{
    const struct {
        QByteArray field;
        QString shown;
        QByteArray saved;
    } cases[] = {
        {"7", u"7"_s, "7"},
        {"\"7\"", u"7"_s, "7"},
        {"\" 07 \"", u"7"_s, "7"},
        {"7;", u"7"_s, "7"},
        {"#7#", u"7"_s, "7"},
        {"7.0", u"7"_s, "7"},
        {"\"7.0\"", u"7"_s, "7"},
        {"12*", u"12"_s, "12"},
        {"\"3 0\"", u"30"_s, "30"},
        {"1e1", u"10"_s, "10"},
        {"60", u"60"_s, "60"},
        {"61", u"61"_s, "61"},
        {"-7", u"-7"_s, "-7"},
        {"8.5", u"9"_s, "8.5"}, // a fraction is no number of a lottery, before and after
        {"\"8.5\"", u"9"_s, "8.5"},
        {"abc", {}, "0"},
        {"\"\"", {}, "0"},
        {"", {}, "0"},
        {"0", {}, "0"},
        {"#2004-03-10#", u"200"_s, "2004"}, // shown three characters wide
    };
    const QString expected = u"7: 7 6 5 4 3 2 1, 10: 10, 12: 8, 30: 9, 60: 11"_s;
    QByteArray before = "20,3,60,\"Cells\"\r\n" + QByteArray(",0\r\n").repeated(10);
    QByteArray after = before;
    QStringList shown;
    int record = 0;
    for (const auto& entry : cases) {
        const QByteArray head = QByteArray::number(++record) + ",#2024-03-05#,";
        before += head + entry.field + ",0,0,0,0,0,0,0,0,0\r\n";
        after += head + entry.saved + ",0,0,0,0,0,0,0,0,0\r\n";
        shown << entry.shown;
    }
    Start();
    const QString path = m_folder.filePath(u"Cells.Lto"_s);
    Place(path, before);
    EXPECT_EQ(OpenFile(path), shown);
    EXPECT_EQ(RecordsOfEachNumber(), expected);
    m_prompts.files = {path};
    Click(u"SaveFile"_s);
    EXPECT_EQ(BytesOf(path), after);
    OpenFile(path);
    EXPECT_EQ(RecordsOfEachNumber(), expected) << "saved and opened again";
}

TEST_F(WinnerCheck, ANumberThatAFileBringsAsTextIsShownAndPrintedInItsPlace)
{
    Start();
    const QString path = m_folder.filePath(u"Texts.Lto"_s);
    Place(path, "1,5,49,\"Texts\"\r\n" + QByteArray(",0\r\n").repeated(10) +
                    "1,#2024-03-05#,5,\"7\",12*,0,0,0,0,0,0,0\r\n");
    OpenFile(path);
    OpenForm();
    Check(u"2"_s, {u"12"_s, u"7"_s});
    EXPECT_EQ(Row(0), (QStringList{u"   1"_s, u"3/5/2024"_s, {}, u"  7"_s, u" 12"_s}));
    m_prompts.answers = {true};
    Click(u"CPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(PageLines(m_prompts.printed.front(), 1).last(), u"    1  3/5/2024                  7   12"_s);
}

TEST_F(WinnerCheck, AFileOpenedAfterASearchIsSearchedAnew)
{
    OpenWith(10);
    const QString path = m_folder.filePath(u"New.Lto"_s);
    Place(path,
          "1,4,9,\"New\"\r\n" + QByteArray(",0\r\n").repeated(10) + "1,#2024-03-05#,8,9,0,0,0,0,0,0,0,0\r\n");
    Check(u"1"_s, {u"6"_s});
    EXPECT_EQ(Row(5).first(), u"   1"_s);
    // Opened while the results are shown.
    m_window.Menu().OpenNamedFile(path);
    Settle();
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.title, u"New"_s);
    Click(u"DExit"_s);
    OpenForm();
    EXPECT_EQ(TextOf(u"TitleCheck"_s), u"New"_s);
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(YourNumber(0).text(), QString());
    EXPECT_FALSE(YourNumber(2).isVisible());
    ExpectMessage(1, u"CPrinter"_s);
    Check(u"1"_s, {u"6"_s});
    EXPECT_EQ(Row(0).at(1), u"No Matches"_s);
    Check(u"1"_s, {u"9"_s});
    EXPECT_EQ(Row(0), (QStringList{u"   1"_s, u"3/5/2024"_s, {}, u"  9"_s}));
    // And from the menu.
    Click(u"CExit"_s);
    Place(path, "1,3,9,\"Newer\"\r\n" + QByteArray(",0\r\n").repeated(10) +
                    "1,#2024-03-05#,4,0,0,0,0,0,0,0,0,0\r\n");
    EXPECT_EQ(OpenFile(path), QStringList{u"4"_s});
    OpenForm();
    EXPECT_TRUE(GridIsEmpty());
    ExpectMessage(1, u"CPrinter"_s);
    Check(u"1"_s, {u"4"_s});
    EXPECT_EQ(Row(0), (QStringList{u"   1"_s, u"3/5/2024"_s, u"  4"_s}));
}

// Printing

TEST_F(WinnerCheck, PrintsWhatWasFoundAfterItsQuestion)
{
    OpenWith(10);
    Check(u"2"_s, {u"3"_s, {}, u"8"_s, u"9"_s});
    m_prompts.answers = {true};
    Click(u"CPrinter"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.printed, m_prompts.offered);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    EXPECT_EQ(lines.at(3), u"Matching Numbers in Test 6/49 Draw"_s);
    EXPECT_EQ(lines.at(6), u"Search each record for minimum matches of: 2"_s);
    EXPECT_EQ(lines.at(8), u"Enter numbers to check:   3   8   9"_s);
    EXPECT_EQ(lines.at(14), u"    8  1/26/2000            8    9"_s);
    EXPECT_EQ(lines.last(), u"    3  1/8/2000             3                        8"_s);
}

TEST_F(WinnerCheck, PrintsNothingWithoutAYes)
{
    OpenWith(10);
    Check(u"1"_s, {u"3"_s});
    m_prompts.answers = {false};
    Click(u"CPrinter"_s);
    EXPECT_TRUE(m_prompts.printed.empty());
    EXPECT_FALSE(GridIsEmpty());
}

TEST_F(WinnerCheck, BeforeAnySearchThereIsNothingToPrint)
{
    OpenWith(10);
    ExpectMessage(1, u"CPrinter"_s);
    EXPECT_TRUE(m_prompts.askedTexts.isEmpty());
}

TEST_F(WinnerCheck, PrintsTheSearchThatWasMadeWhateverIsTypedSince)
{
    OpenWith(10);
    Check(u"2"_s, {u"3"_s, {}, u"8"_s});
    Enter(u"1"_s, {u"40"_s, u"41"_s});
    m_prompts.answers = {true};
    Click(u"CPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    EXPECT_EQ(lines.at(6), u"Search each record for minimum matches of: 2"_s);
    EXPECT_EQ(lines.at(8), u"Enter numbers to check:   3   8"_s);
}

TEST_F(WinnerCheck, ResultsOfADatabaseThatWasReplacedAreNotPrintedAsThoseOfTheNewOne)
{
    OpenWith(10);
    Check(u"1"_s, {u"6"_s});
    // A file opened while the results are shown: they are those of the old database, and say so.
    SetDraws(2, 9, {{1, 2}, {3, 4}});
    m_prompts.answers = {true};
    Click(u"CPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    EXPECT_EQ(lines.at(3), u"Matching Numbers in Test 6/49 Draw"_s);
    EXPECT_EQ(lines.last(), u"    1  1/1/2000                                      6"_s);
    // The next opening knows nothing of them.
    Click(u"CExit"_s);
    OpenForm();
    EXPECT_TRUE(GridIsEmpty());
    EXPECT_EQ(TextOf(u"TitleCheck"_s), u"Other"_s);
    ExpectMessage(1, u"CPrinter"_s);
    Check(u"1"_s, {u"4"_s});
    EXPECT_EQ(Row(0), (QStringList{u"   2"_s, u"3/5/2024"_s, {}, u"  4"_s}));
}

} // namespace
