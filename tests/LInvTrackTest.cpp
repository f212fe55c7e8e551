#include "invest/LInvTrack.h"

#include "invest/InvestmentFile.h"
#include "invest/StatementView.h"
#include "tests/FormBench.h"
#include "tests/PrintedPages.h"
#include "tests/Statements.h"
#include "tests/TestFiles.h"

#include <QAccessible>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr int kText = 0;
constexpr int kMoney = 1;

class InvestmentTracker : public FormBench
{
protected:
    void Open()
    {
        Start();
        Click(u"InvTrack"_s);
        Settle();
        m_refused = std::make_unique<QSignalSpy>(&Grid(), &StatementView::KeyRefused);
    }
    StatementView& Grid() { return Find<StatementView>(u"IGrid"_s); }
    void GoTo(int row, int column) { Grid().setCurrentIndex(Grid().model()->index(row - 1, column)); }
    void Type(const QString& text)
    {
        QTest::keyClicks(&Grid(), text);
        Settle();
    }
    void TypeAt(int row, int column, const QString& text)
    {
        GoTo(row, column);
        Type(text);
    }
    void Press(Qt::Key key)
    {
        QTest::keyClick(&Grid(), key);
        Settle();
    }
    /// What an input method commits, as after a dead key.
    void Compose(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&Grid(), &event);
        Settle();
    }
    QString At(int row, int column) { return Cell(u"IGrid"_s, row - 1, column); }
    std::pair<int, int> Current()
    {
        const QModelIndex current = Grid().currentIndex();
        return {current.row() + 1, current.column()};
    }
    void ClickCell(int row, int column)
    {
        const QModelIndex cell = Grid().model()->index(row - 1, column);
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Grid().visualRect(cell).center());
    }
    bool ChangeIsShown() { return Find<QLabel>(u"IChange"_s).isVisible(); }
    QString FrontForm() const
    {
        return m_window.ActiveForm() == nullptr ? QString() : m_window.ActiveForm()->objectName();
    }
    /// Tickets -12, Winnings 10, Sub Total, calculated.
    void TypeThreeRows()
    {
        TypeAt(1, kText, u"Tickets"_s);
        TypeAt(1, kMoney, u"-12"_s);
        TypeAt(2, kText, u"Winnings"_s);
        TypeAt(2, kMoney, u"10"_s);
        TypeAt(3, kText, u"sub total"_s);
        Click(u"ICalc"_s);
    }
    void SaveAs(const QString& name)
    {
        m_prompts.files = {m_folder.filePath(name)};
        Click(u"ISaveFile"_s);
    }
    void Load(const QString& name)
    {
        m_prompts.files = {m_folder.filePath(name)};
        Click(u"IOpenFile"_s);
    }
    QByteArray Bytes(const QString& name) { return BytesOf(m_folder.filePath(name)); }
    void PlaceFile(const QString& name, const QByteArray& bytes) { Place(m_folder.filePath(name), bytes); }
    /// A file of so many rows "Row 1" with the amount 1 and so on.
    void PlaceRows(const QString& name, int count)
    {
        QByteArray bytes;
        const InvestmentStatement statement{NumberedRows(count), static_cast<float>(count), {}};
        ASSERT_TRUE(WriteInvestmentFile(statement, bytes).ok);
        PlaceFile(name, bytes);
    }
    void Insert(const QString& row, const QString& button = u"Accept"_s)
    {
        OnDialog([=](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), u"InInvNum"_s);
            QTest::keyClicks(&In<InputBox>(dialog, u"CurVal"_s), row);
            ClickIn(dialog, button);
        });
        Click(u"InsertAss"_s);
        Settle();
        ASSERT_TRUE(Activate(m_window));
    }
    const QString kQuestion =
        u" file in memory will be erased. Do you wish to go back and save it to Disk?."_s;
    std::unique_ptr<QSignalSpy> m_refused;
};

// How it opens

TEST_F(InvestmentTracker, OpensEmptyWithItsTexts)
{
    Open();
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Investment Tracker"_s);
    const QList<QPair<QString, QString>> captions{
        {u"ICalc"_s, u"&Calculate"_s},     {u"InsertAss"_s, u"&Insert blank line"_s},
        {u"IOpenFile"_s, u"&Open File"_s}, {u"ISaveFile"_s, u"&Save File"_s},
        {u"IHelp"_s, u"Quick &Help"_s},    {u"IPrinter"_s, u"To &Printer"_s},
        {u"IExit"_s, u"E&xit to Menu"_s},
    };
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(Find<QPushButton>(name).text(), caption);
        EXPECT_TRUE(Find<QPushButton>(name).isVisible());
    }
    EXPECT_EQ(TextOf(u"IChange"_s), u"Changes made, Calculate"_s);
    EXPECT_FALSE(ChangeIsShown());
    EXPECT_FALSE(Find<QPlainTextEdit>(u"ITextBox"_s).isVisible());
    EXPECT_EQ(Grid().model()->headerData(0, Qt::Horizontal).toString(), u"Description"_s);
    EXPECT_EQ(Grid().model()->headerData(1, Qt::Horizontal).toString(), u"              Amount"_s);
    for (int row = 1; row <= 108; ++row) {
        EXPECT_EQ(At(row, kText) + At(row, kMoney), QString()) << row;
    }
    EXPECT_EQ(m_shared.InvestmentRowCount, 0.0F);
    EXPECT_EQ(m_shared.InvestmentTotal, Currency());
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    EXPECT_EQ(Current(), std::pair(1, kText));
}

TEST_F(InvestmentTracker, CanBeSpokenOfByAScreenReader)
{
    Open();
    EXPECT_FALSE(Grid().accessibleName().isEmpty());
    EXPECT_FALSE(Grid().accessibleDescription().isEmpty());
    EXPECT_EQ(Find<QPlainTextEdit>(u"ITextBox"_s).accessibleName(), u"Quick Help"_s);
    TypeThreeRows();
    const QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(&Grid());
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->text(QAccessible::Name), Grid().accessibleName());
    QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(&Grid())->tableInterface();
    ASSERT_NE(table, nullptr);
    const auto said = [&](int row, int column) {
        const QAccessibleInterface* cell = table->cellAt(row - 1, column);
        return cell == nullptr ? u"no cell"_s : cell->text(QAccessible::Name);
    };
    EXPECT_EQ(said(1, kText), u"Tickets"_s);
    EXPECT_EQ(said(1, kMoney), u"-12.00"_s);
    EXPECT_EQ(said(3, kMoney), u"-2.00"_s);
    EXPECT_EQ(said(6, kText), u"Total"_s);
    EXPECT_EQ(table->columnDescription(kText), u"Description"_s);
}

TEST_F(InvestmentTracker, EveryControlFitsTheOpeningSizeWithTheHelpOpenToo)
{
    Open();
    TypeAt(1, kText, u"x"_s); // the label is there
    for (const bool help : {false, true}) {
        if (help) {
            Click(u"IHelp"_s);
            Settle();
        }
        EXPECT_EQ(m_window.size(), QSize(641, 458));
        for (const QWidget* widget : Find<QWidget>(u"LInvTrack"_s).findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->parentWidget() == &Find<QWidget>(u"LInvTrack"_s)) {
                const QRect place(widget->mapTo(&m_window, QPoint()), widget->size());
                EXPECT_TRUE(m_window.rect().contains(place)) << widget->objectName().toStdString();
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << widget->objectName().toStdString();
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
                    << widget->objectName().toStdString();
            }
        }
    }
    EXPECT_FALSE(Grid().horizontalScrollBar()->isVisible());
}

TEST_F(InvestmentTracker, NothingMovesWhenTheChangeIsShown)
{
    Open();
    const QRect before = Grid().geometry();
    Type(u"x"_s);
    Settle();
    EXPECT_TRUE(ChangeIsShown());
    EXPECT_EQ(Grid().geometry(), before);
}

// Typing

TEST_F(InvestmentTracker, KeysGoStraightIntoTheCell)
{
    Open();
    Type(u"Tickets, 4 draws"_s);
    EXPECT_EQ(At(1, kText), u"Tickets, 4 draws"_s);
    EXPECT_TRUE(ChangeIsShown());
    EXPECT_EQ(m_shared.InvestmentRows.at(1), Item(u"Tickets, 4 draws"_s));
    GoTo(1, kMoney);
    Type(u"-1234.5"_s);
    EXPECT_EQ(At(1, kMoney), u"-1,234.50"_s);
    EXPECT_EQ(m_shared.InvestmentRows.at(1).amount, Money(u"-1234.5"_s));
    EXPECT_EQ(m_refused->count(), 0);
    EXPECT_EQ(Current(), std::pair(1, kMoney));
    EXPECT_TRUE(Grid().findChildren<QLineEdit*>().isEmpty()) << "no editor opens";
}

TEST_F(InvestmentTracker, AmountsShowWhatTheirLeadingNumberIsAtEveryKey)
{
    Open();
    GoTo(1, kMoney);
    const QList<QPair<QString, QString>> keys{
        {u"-"_s, u".00"_s},    {u"1"_s, u"-1.00"_s},  {u"2"_s, u"-12.00"_s}, {u"."_s, u"-12.00"_s},
        {u"5"_s, u"-12.50"_s}, {u"."_s, u"-12.50"_s}, {u"7"_s, u"-12.50"_s}, {u"-"_s, u"-12.50"_s}};
    for (const auto& [key, shown] : keys) {
        Type(key);
        EXPECT_EQ(At(1, kMoney), shown) << key.toStdString();
    }
}

TEST_F(InvestmentTracker, AKeyWithNoPlaceInAnAmountBeepsAndIsIgnored)
{
    Open();
    GoTo(1, kMoney);
    Type(u"a,+ $e"_s);
    EXPECT_EQ(m_refused->count(), 6);
    EXPECT_EQ(At(1, kMoney), QString());
    EXPECT_FALSE(ChangeIsShown());
}

TEST_F(InvestmentTracker, ADoubleQuoteIsIgnoredEverywhere)
{
    Open();
    Type(u"a\"b"_s);
    EXPECT_EQ(At(1, kText), u"ab"_s);
    TypeAt(1, kMoney, u"\"5\""_s);
    EXPECT_EQ(At(1, kMoney), u"5.00"_s);
    EXPECT_EQ(m_refused->count(), 0);
    GoTo(9, kText);
    Type(u"\""_s);
    EXPECT_EQ(At(9, kText), QString());
}

TEST_F(InvestmentTracker, ACharacterNoFileCanHoldBeepsAndIsIgnored)
{
    Open();
    QTest::sendKeyEvent(QTest::Click, &Grid(), Qt::Key_unknown, u"€"_s, Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, &Grid(), Qt::Key_unknown, u"\U0001F600"_s, Qt::NoModifier);
    EXPECT_EQ(m_refused->count(), 2);
    EXPECT_EQ(At(1, kText), QString());
    EXPECT_FALSE(ChangeIsShown());
    QTest::sendKeyEvent(QTest::Click, &Grid(), Qt::Key_Udiaeresis, u"ü"_s, Qt::NoModifier);
    EXPECT_EQ(At(1, kText), u"ü"_s);
}

TEST_F(InvestmentTracker, DeadKeysAndInputMethodsType)
{
    Open();
    ASSERT_TRUE(Grid().testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(&Grid(), &query);
    EXPECT_TRUE(query.value(Qt::ImEnabled).toBool());
    Compose(u"é"_s);
    Compose(u"tü"_s);
    EXPECT_EQ(At(1, kText), u"étü"_s);
    Compose(u"日本"_s);
    EXPECT_EQ(m_refused->count(), 1);
    Compose(QString());
    EXPECT_EQ(At(1, kText), u"étü"_s);
    Press(Qt::Key_Right);
    EXPECT_TRUE(Grid().testAttribute(Qt::WA_InputMethodEnabled)) << "in the next cell too";
    Compose(u"12"_s);
    Compose(u"é"_s);
    EXPECT_EQ(At(1, kMoney), u"12.00"_s);
    EXPECT_EQ(m_refused->count(), 2);
    EXPECT_TRUE(Grid().findChildren<QLineEdit*>().isEmpty());
}

TEST_F(InvestmentTracker, AltGrTypesAndCommandsDoNot)
{
    Open();
    QTest::sendKeyEvent(QTest::Click, &Grid(), Qt::Key_At, u"@"_s, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(At(1, kText), u"@"_s);
    QTest::keyClick(&Grid(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&Grid(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Grid(), Qt::Key_Escape);
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    QTest::keyClick(&Grid(), Qt::Key_F2);
    EXPECT_EQ(At(1, kText), u"@"_s);
    EXPECT_EQ(m_refused->count(), 0);
}

TEST_F(InvestmentTracker, BackspaceTakesTheLastCharacterAndIsAChange)
{
    Open();
    TypeThreeRows();
    EXPECT_FALSE(ChangeIsShown());
    GoTo(1, kText);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(At(1, kText), u"Ticket"_s);
    EXPECT_TRUE(ChangeIsShown());
    GoTo(1, kMoney);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(At(1, kMoney), u"-1.00"_s);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(At(1, kMoney), QString());
}

TEST_F(InvestmentTracker, FiguresThatChangeNothingAreForgottenOnceTheCellIsLeft)
{
    Open();
    TypeAt(1, kMoney, u"-12-24"_s);
    EXPECT_EQ(At(1, kMoney), u"-12.00"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Up);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(At(1, kMoney), u"-1.00"_s) << "works on what is seen";
    Type(u"7"_s);
    EXPECT_EQ(At(1, kMoney), u"-17.00"_s);
}

TEST_F(InvestmentTracker, BackspaceWithACommandKeyDoesNothing)
{
    Open();
    Type(u"Tickets"_s);
    for (const Qt::KeyboardModifiers held :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
          Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier}) {
        QTest::keyClick(&Grid(), Qt::Key_Backspace, held);
        EXPECT_EQ(At(1, kText), u"Tickets"_s);
    }
    QTest::keyClick(&Grid(), Qt::Key_Backspace, Qt::ShiftModifier);
    EXPECT_EQ(At(1, kText), u"Ticket"_s);
    EXPECT_EQ(m_refused->count(), 0);
}

TEST_F(InvestmentTracker, BackspaceInAnEmptyCellIsNoChange)
{
    Open();
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Right);
    Press(Qt::Key_Backspace);
    EXPECT_FALSE(ChangeIsShown());
    EXPECT_EQ(m_refused->count(), 0);
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, EnterMovesOneRowDownInTheSameColumn)
{
    Open();
    Type(u"a"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Current(), std::pair(2, kText));
    Press(Qt::Key_Right);
    Press(Qt::Key_Enter);
    EXPECT_EQ(Current(), std::pair(3, kMoney));
    EXPECT_EQ(At(2, kText), QString());
}

TEST_F(InvestmentTracker, ArrowKeysMoveTheCell)
{
    Open();
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), std::pair(3, kMoney));
    Type(u"5"_s);
    Press(Qt::Key_Up);
    Press(Qt::Key_Left);
    EXPECT_EQ(Current(), std::pair(2, kText));
    Type(u"b"_s);
    EXPECT_EQ(At(3, kMoney), u"5.00"_s);
    EXPECT_EQ(At(2, kText), u"b"_s);
    Press(Qt::Key_Left);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(Current(), std::pair(1, kText)) << "not beyond the edge";
}

TEST_F(InvestmentTracker, TheFirstClickChoosesTheCellThatIsTypedInto)
{
    Open();
    ClickCell(4, kMoney);
    EXPECT_EQ(Current(), std::pair(4, kMoney));
    Type(u"7"_s);
    EXPECT_EQ(At(4, kMoney), u"7.00"_s);
    EXPECT_EQ(At(1, kText), QString());
    ClickCell(2, kText);
    Type(u"two"_s);
    EXPECT_EQ(At(2, kText), u"two"_s);
}

TEST_F(InvestmentTracker, TheCurrentCellIsGreenWithADottedLineAroundIt)
{
    Open();
    GoTo(2, kText);
    Settle();
    const QRect cell = Grid().visualRect(Grid().currentIndex());
    const QImage picture = Grid().viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(cell.center()), QColor(0x80, 0xFF, 0x80));
    int dark = 0;
    for (int x = cell.left(); x <= cell.right(); ++x) {
        dark += picture.pixelColor(x, cell.top()).lightness() < 100 ? 1 : 0;
    }
    EXPECT_GT(dark, cell.width() / 4);
    EXPECT_LT(dark, cell.width() * 3 / 4) << "dots and not a line";
}

TEST_F(InvestmentTracker, ADescriptionOf500CharactersIsTypedSavedAndLoaded)
{
    Open();
    const QString text(500, u'x');
    Type(text);
    EXPECT_EQ(At(1, kText), text);
    SaveAs(u"Long.inv"_s);
    Load(u"Long.inv"_s);
    EXPECT_EQ(At(1, kText), text);
}

TEST_F(InvestmentTracker, Row105TakesKeysAndRow106MeetsTheLimit)
{
    Open();
    TypeAt(105, kText, u"last"_s);
    TypeAt(105, kMoney, u"1"_s);
    EXPECT_EQ(At(105, kText), u"last"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Current(), std::pair(106, kMoney));
    m_prompts.expectedMessages = {46, 46, 46, 46};
    Type(u"1"_s);
    EXPECT_EQ(LastMessage(), u"105 Row limit."_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Current(), std::pair(106, kMoney));
    Press(Qt::Key_Backspace);
    Type(u"\""_s);
    EXPECT_EQ(At(106, kMoney), QString());
    EXPECT_EQ(m_refused->count(), 0);
    Press(Qt::Key_Up);
    EXPECT_EQ(Current(), std::pair(105, kMoney)) << "arrows lead out of there";
    m_prompts.expectedMessages = {46, 46};
    TypeAt(107, kText, u"x"_s);
    TypeAt(108, kText, u"x"_s);
    EXPECT_EQ(At(108, kText), QString());
}

TEST_F(InvestmentTracker, TypingWhereTheTotalStandsTakesItsRow)
{
    Open();
    TypeThreeRows();
    EXPECT_EQ(At(6, kText), u"Total"_s);
    TypeAt(6, kText, u"More"_s);
    EXPECT_EQ(At(6, kText), u"More"_s);
    EXPECT_EQ(At(9, kText), u"Total"_s);
    Click(u"ICalc"_s);
    EXPECT_EQ(At(4, kText), u"More"_s);
    EXPECT_EQ(At(7, kText), u"Total"_s);
    EXPECT_EQ(At(9, kText), QString());
}

// Calculate

TEST_F(InvestmentTracker, CalculateFillsSubTotalsAndShowsTheTotal)
{
    Open();
    TypeThreeRows();
    EXPECT_EQ(At(1, kMoney), u"-12.00"_s);
    EXPECT_EQ(At(3, kText), u"sub total"_s);
    EXPECT_EQ(At(3, kMoney), u"-2.00"_s);
    EXPECT_EQ(At(4, kText), QString());
    EXPECT_EQ(At(5, kText), QString());
    EXPECT_EQ(At(6, kText), u"Total"_s);
    EXPECT_EQ(At(6, kMoney), u"-2.00"_s);
    EXPECT_FALSE(ChangeIsShown());
    EXPECT_EQ(m_shared.InvestmentRowCount, 3.0F);
    EXPECT_EQ(m_shared.InvestmentTotal, Money(u"-2"_s));
}

TEST_F(InvestmentTracker, CalculateDropsEmptyRowsAndClosesTheHelp)
{
    Open();
    TypeAt(2, kText, u"a"_s);
    TypeAt(2, kMoney, u"1"_s);
    TypeAt(4, kMoney, u"1000"_s);
    TypeAt(6, kText, u"b"_s);
    Click(u"IHelp"_s);
    Click(u"ICalc"_s);
    EXPECT_EQ(At(1, kText), u"a"_s);
    EXPECT_EQ(At(2, kText), u"b"_s);
    EXPECT_EQ(At(2, kMoney), QString());
    EXPECT_EQ(At(5, kText), u"Total"_s);
    EXPECT_EQ(At(5, kMoney), u"1.00"_s) << "an amount without a description does not count";
    EXPECT_FALSE(Find<QPlainTextEdit>(u"ITextBox"_s).isVisible());
    EXPECT_EQ(Find<QPushButton>(u"IHelp"_s).text(), u"Quick &Help"_s);
    EXPECT_EQ(Current(), std::pair(6, kText)) << "the cell stays where it was";
}

TEST_F(InvestmentTracker, CalculatingNothingShowsATotalOfNought)
{
    Open();
    Click(u"ICalc"_s);
    EXPECT_EQ(At(3, kText), u"Total"_s);
    EXPECT_EQ(At(3, kMoney), u"0.00"_s);
}

TEST_F(InvestmentTracker, AmountsOfNoughtAndNoneDifferInTheGrid)
{
    Open();
    TypeAt(1, kText, u"a"_s);
    TypeAt(1, kMoney, u"0"_s);
    TypeAt(2, kText, u"b"_s);
    Click(u"ICalc"_s);
    EXPECT_EQ(At(1, kMoney), u".00"_s);
    EXPECT_EQ(At(2, kMoney), QString());
    EXPECT_EQ(At(5, kMoney), u"0.00"_s);
}

TEST_F(InvestmentTracker, AmountsBeyondAllSumsGiveAMessageAndStayAsTheyAre)
{
    Open();
    for (const int row : {1, 2}) {
        TypeAt(row, kText, u"a"_s);
        TypeAt(row, kMoney, u"922337203685477.58"_s);
    }
    EXPECT_EQ(At(1, kMoney), u"922,337,203,685,477.58"_s);
    for (const QString& button : {u"ICalc"_s, u"ISaveFile"_s}) {
        m_prompts.expectedMessages = {26};
        Click(button);
        EXPECT_EQ(LastMessage(), u"Cannot calculate."_s);
        EXPECT_FALSE(LastReason().isEmpty());
        EXPECT_TRUE(ChangeIsShown());
        EXPECT_EQ(At(2, kMoney), u"922,337,203,685,477.58"_s);
    }
    m_prompts.expectedMessages = {26};
    const InvestmentTable before = m_shared.InvestmentRows;
    GoTo(2, kMoney);
    Insert(u"1"_s);
    EXPECT_EQ(m_shared.InvestmentRows, before);
    EXPECT_EQ(Current(), std::pair(2, kMoney));
    m_prompts.answers = {true, false};
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, AFailedInsertIsNoChange)
{
    Open();
    const InvestmentTable rows =
        Rows({Item(u"a"_s, u"-922337203685477"_s), Item(u"Sub Total"_s), Item(u"b"_s, u"922337203685477"_s),
              Item(u"c"_s, u"922337203685477"_s)});
    QByteArray bytes;
    ASSERT_TRUE(WriteInvestmentFile({rows, 4, {}}, bytes).ok);
    PlaceFile(u"Mine.inv"_s, bytes);
    Load(u"Mine.inv"_s);
    GoTo(3, kMoney);
    m_prompts.expectedMessages = {26};
    Insert(u"1"_s);
    EXPECT_EQ(m_shared.InvestmentRows, rows);
    EXPECT_EQ(Current(), std::pair(3, kMoney));
    Click(u"IExit"_s); // no change, so no question
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, ALongAmountIsSeenWhole)
{
    Open();
    TypeAt(1, kText, u"a"_s);
    TypeAt(1, kMoney, u"-922337203685477.58"_s);
    Settle();
    const int needed = Grid().fontMetrics().horizontalAdvance(u"-922,337,203,685,477.58"_s);
    EXPECT_GT(Grid().horizontalHeader()->sectionSize(kMoney), needed);
}

// Inserting

TEST_F(InvestmentTracker, ABlankLineIsInsertedAndTypedOver)
{
    Open();
    TypeThreeRows();
    Insert(u"2"_s);
    EXPECT_EQ(At(1, kText), u"Tickets"_s);
    EXPECT_EQ(At(2, kText), u"BlankLine"_s);
    EXPECT_EQ(At(2, kMoney), QString());
    EXPECT_EQ(At(3, kText), u"Winnings"_s);
    EXPECT_EQ(At(4, kMoney), u"-2.00"_s);
    EXPECT_EQ(At(7, kText), u"Total"_s);
    EXPECT_EQ(m_shared.InvestmentRowCount, 4.0F);
    EXPECT_FALSE(ChangeIsShown());
    EXPECT_EQ(Current(), std::pair(2, kText));
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    Type(u"Gift"_s);
    EXPECT_EQ(At(2, kText), u"Gift"_s);
}

TEST_F(InvestmentTracker, TheRowDialogOpensOnTheCurrentRow)
{
    Open();
    TypeThreeRows();
    GoTo(3, kMoney);
    OnDialog([](QWidget& dialog) {
        EXPECT_EQ(In<InputBox>(dialog, u"CurVal"_s).text(), u"3"_s);
        ClickIn(dialog, u"Accept"_s);
    });
    Click(u"InsertAss"_s);
    Settle();
    EXPECT_EQ(At(3, kText), u"BlankLine"_s);
    EXPECT_EQ(At(4, kText), u"sub total"_s);
}

TEST_F(InvestmentTracker, NothingIsInsertedAtNoughtAt105AndBeyondOrAfterACancel)
{
    Open();
    PlaceRows(u"Full.inv"_s, 105);
    Load(u"Full.inv"_s);
    const InvestmentTable before = m_shared.InvestmentRows;
    for (const QString& row : {u"0"_s, u"105"_s, u"106"_s, u"99999999999999999999"_s}) {
        Insert(row);
        EXPECT_EQ(m_shared.InvestmentRows, before) << row.toStdString();
    }
    Insert(u"5"_s, u"NoAccept"_s);
    EXPECT_EQ(m_shared.InvestmentRows, before);
    Click(u"IExit"_s); // no change, so no question
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, InsertingAtOneAndAt104OfAFullStatementLosesItsLastRow)
{
    Open();
    PlaceRows(u"Full.inv"_s, 105);
    for (const int row : {1, 3, 104}) {
        if (m_shared.InvestmentRowCount != 0) {
            m_prompts.answers = {false}; // of the row before
        }
        Load(u"Full.inv"_s);
        Insert(QString::number(row));
        EXPECT_EQ(At(row, kText), u"BlankLine"_s);
        EXPECT_EQ(At(row + 1, kText), u"Row %1"_s.arg(row));
        EXPECT_EQ(At(105, kText), u"Row 104"_s);
        EXPECT_EQ(At(106, kText), QString());
        EXPECT_EQ(At(108, kText), u"Total"_s);
        EXPECT_EQ(At(108, kMoney), u"5,460.00"_s);
        EXPECT_EQ(m_shared.InvestmentRowCount, 105.0F);
    }
    m_prompts.answers = {false};
    Click(u"IExit"_s);
}

TEST_F(InvestmentTracker, ALineInsertedBelowTheStatementBecomesItsLastRow)
{
    Open();
    TypeThreeRows();
    Insert(u"50"_s);
    EXPECT_EQ(At(4, kText), u"BlankLine"_s);
    EXPECT_EQ(Current(), std::pair(4, kText));
}

// Files

TEST_F(InvestmentTracker, SavesWhatIsShownAndLoadsItBack)
{
    Open();
    TypeThreeRows();
    SaveAs(u"Mine.inv"_s);
    EXPECT_EQ(m_prompts.fileDialogModes, (std::deque<qint16>{4}));
    EXPECT_EQ(m_shared.investmentFileName, u"Mine.inv"_s);
    EXPECT_EQ(m_shared.chosenPath, QString());
    EXPECT_EQ(m_shared.fileDialogMode, 0);
    const QByteArray bytes = Bytes(u"Mine.inv"_s);
    EXPECT_TRUE(bytes.startsWith("3\r\n\"Tickets\",-12\r\n\"Winnings\",10\r\n\"sub total\",-2\r\n,\r\n"));
    EXPECT_EQ(bytes.count("\r\n"), 112);
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"Mine.inv"_s}) << "nothing else is left in the folder";
    Click(u"IExit"_s);
    Click(u"InvTrack"_s);
    EXPECT_EQ(At(1, kText), QString());
    Load(u"Mine.inv"_s);
    EXPECT_EQ(m_prompts.fileDialogModes, (std::deque<qint16>{4, 3}));
    EXPECT_EQ(m_shared.investmentFileName, u"Mine.inv"_s);
    EXPECT_EQ(m_shared.chosenPath, QString());
    EXPECT_EQ(m_shared.fileDialogMode, 0);
    EXPECT_EQ(At(2, kMoney), u"10.00"_s);
    EXPECT_EQ(At(6, kText), u"Total"_s);
    EXPECT_EQ(At(6, kMoney), u"-2.00"_s);
    EXPECT_FALSE(ChangeIsShown());
    EXPECT_EQ(Current(), std::pair(1, kText));
    SaveAs(u"Again.inv"_s);
    EXPECT_EQ(Bytes(u"Again.inv"_s), bytes);
}

TEST_F(InvestmentTracker, SavingCountsWhatWasTypedFirst)
{
    Open();
    TypeAt(2, kText, u"Half"_s);
    TypeAt(2, kMoney, u".5"_s);
    SaveAs(u"Mine.inv"_s);
    EXPECT_TRUE(Bytes(u"Mine.inv"_s).startsWith("1\r\n\"Half\",0.5\r\n,\r\n"));
    EXPECT_EQ(At(1, kText), u"Half"_s);
    EXPECT_EQ(At(4, kText), u"Total"_s);
    EXPECT_FALSE(ChangeIsShown());
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s) << "what is saved is not asked about";
}

TEST_F(InvestmentTracker, SavingWithoutRowsSaysSoAndWritesNothing)
{
    Open();
    m_prompts.expectedMessages = {15};
    Click(u"ISaveFile"_s);
    EXPECT_EQ(LastMessage(), u"No Records."_s);
    TypeAt(3, kText, u"x"_s);
    Press(Qt::Key_Backspace);
    m_prompts.expectedMessages = {15};
    Click(u"ISaveFile"_s);
    EXPECT_TRUE(m_prompts.fileDialogModes.empty());
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList());
}

TEST_F(InvestmentTracker, SavingNeverDropsAnAmountThatHasNoDescriptionYet)
{
    Open();
    TypeThreeRows();
    TypeAt(5, kMoney, u"9"_s);
    TypeAt(8, kMoney, u"7"_s);
    const InvestmentTable before = m_shared.InvestmentRows;
    Click(u"ISaveFile"_s);
    EXPECT_EQ(
        m_prompts.notices,
        QStringList{u"Rows 5 and 8 have amounts but no descriptions, so the amounts would be lost. Type "
                    "descriptions, or erase the amounts."_s});
    EXPECT_EQ(m_shared.InvestmentRows, before);
    EXPECT_TRUE(m_prompts.fileDialogModes.empty()) << "no file is asked for";
    EXPECT_TRUE(ChangeIsShown());
    EXPECT_EQ(Current(), std::pair(5, kText));
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    QTest::keyClicks(m_window.focusWidget(), u"Gift"_s);
    Click(u"ISaveFile"_s);
    EXPECT_EQ(m_prompts.notices.last(),
              u"Row 8 has an amount but no description, so the amount would be lost. Type a description, or "
              "erase the amount."_s);
    EXPECT_EQ(Current(), std::pair(8, kText));
    Press(Qt::Key_Right);
    Press(Qt::Key_Backspace);
    SaveAs(u"Mine.inv"_s);
    EXPECT_EQ(m_prompts.notices.size(), 2);
    EXPECT_TRUE(Bytes(u"Mine.inv"_s).contains("\"sub total\",-2\r\n\"Gift\",9\r\n,\r\n"));
}

TEST_F(InvestmentTracker, InsertingNeverDropsAnAmountThatHasNoDescriptionYet)
{
    Open();
    TypeThreeRows();
    TypeAt(5, kMoney, u"9"_s);
    const InvestmentTable before = m_shared.InvestmentRows;
    GoTo(1, kText);
    Click(u"InsertAss"_s); // no dialog opens
    EXPECT_EQ(m_prompts.notices.size(), 1);
    EXPECT_EQ(m_shared.InvestmentRows, before);
    EXPECT_EQ(Current(), std::pair(5, kText));
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    m_prompts.answers = {false};
    Click(u"IExit"_s);
}

TEST_F(InvestmentTracker, ACancelledDialogLeavesEverythingAsItIs)
{
    Open();
    TypeThreeRows();
    TypeAt(5, kText, u"typed"_s);
    for (const QString& button : {u"ISaveFile"_s, u"IOpenFile"_s}) {
        m_prompts.files = {QString()};
        Click(button);
        EXPECT_EQ(At(5, kText), u"typed"_s) << "not moved up either";
        EXPECT_TRUE(ChangeIsShown());
        EXPECT_EQ(m_shared.investmentFileName, QString());
        EXPECT_EQ(m_shared.fileDialogMode, 0);
        EXPECT_EQ(m_shared.chosenPath, QString());
    }
    m_prompts.answers = {true};
    Click(u"IExit"_s); // it still counts as changed
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
}

TEST_F(InvestmentTracker, AFailedSaveGivesTheMessageAndLeavesStatementAndFileAsTheyWere)
{
    Open();
    TypeThreeRows();
    TypeAt(5, kText, u"typed"_s);
    const InvestmentTable before = m_shared.InvestmentRows;
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"folder.inv"_s));
    for (const QString& name : {u"folder.inv"_s, u"nowhere/Mine.inv"_s}) {
        m_prompts.expectedMessages = {25};
        SaveAs(name);
        EXPECT_EQ(LastMessage(), u"Bad filename, must be in the form MYFILE.INV"_s);
        EXPECT_FALSE(LastReason().isEmpty());
        EXPECT_EQ(m_shared.InvestmentRows, before);
        EXPECT_EQ(m_shared.investmentFileName, QString());
        EXPECT_EQ(m_shared.chosenPath, QString());
        EXPECT_TRUE(ChangeIsShown());
    }
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"folder.inv"_s});
    m_prompts.answers = {true};
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
}

TEST_F(InvestmentTracker, AStatementNoFileCanHoldIsNotSavedByHalves)
{
    Open();
    PlaceFile(u"Euro.inv"_s, "\xEF\xBB\xBF"
                             "1\r\n\"5 \xE2\x82\xAC\",5\r\n");
    Load(u"Euro.inv"_s);
    EXPECT_EQ(At(1, kText), u"5 €"_s);
    const QByteArray before = Bytes(u"Euro.inv"_s);
    m_prompts.expectedMessages = {25};
    SaveAs(u"Euro.inv"_s);
    EXPECT_TRUE(LastReason().contains(u"row 1"_s));
    EXPECT_EQ(Bytes(u"Euro.inv"_s), before);
}

TEST_F(InvestmentTracker, AFailedOpenGivesTheMessageAndLeavesTheStatementAsItWas)
{
    Open();
    TypeThreeRows();
    SaveAs(u"Mine.inv"_s);
    TypeAt(5, kText, u"typed"_s);
    const InvestmentTable before = m_shared.InvestmentRows;
    PlaceFile(u"TooMuch.inv"_s, "2\r\n\"a\",922337203685477.5807\r\n\"b\",1\r\n");
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"folder.inv"_s));
    for (const QString& name : {u"missing.inv"_s, u"folder.inv"_s, u"TooMuch.inv"_s}) {
        m_prompts.expectedMessages = {25};
        Load(name);
        EXPECT_EQ(LastMessage(), u"Bad filename, must be in the form MYFILE.INV"_s);
        EXPECT_FALSE(LastReason().isEmpty());
        EXPECT_EQ(m_shared.InvestmentRows, before);
        EXPECT_EQ(m_shared.InvestmentRowCount, 3.0F);
        EXPECT_EQ(m_shared.InvestmentTotal, Money(u"-2"_s));
        EXPECT_EQ(m_shared.investmentFileName, u"Mine.inv"_s);
        EXPECT_TRUE(ChangeIsShown());
    }
    m_prompts.answers = {true};
    Click(u"IExit"_s);
    EXPECT_EQ(m_prompts.askedTexts.last(), u"Mine.inv"_s + kQuestion);
}

TEST_F(InvestmentTracker, DamagedFilesAreReadAsFarAsTheyGo)
{
    Open();
    const QByteArray rows = "\r\n\"a\",1\r\n\"b\",2\r\n";
    for (const QByteArray count : {"-1", "106", "99999", "1e30", "nonsense", "2"}) {
        PlaceFile(u"Damaged.inv"_s, count + rows);
        Load(u"Damaged.inv"_s);
        EXPECT_EQ(At(2, kText), u"b"_s) << count.toStdString();
        EXPECT_EQ(At(5, kText), u"Total"_s) << count.toStdString();
        EXPECT_EQ(At(5, kMoney), u"3.00"_s) << count.toStdString();
    }
    PlaceFile(u"Empty.inv"_s, {});
    Load(u"Empty.inv"_s);
    EXPECT_EQ(At(3, kText), u"Total"_s);
    QByteArray binary;
    for (int i = 0; i < 20000; ++i) {
        binary += static_cast<char>(i * 7919 % 251);
    }
    PlaceFile(u"Binary.inv"_s, binary);
    Load(u"Binary.inv"_s);
    Click(u"ICalc"_s);
    EXPECT_LE(m_shared.InvestmentRowCount, 105.0F);
    m_window.grab();
}

TEST_F(InvestmentTracker, OpeningAndSavingClearTheChangeAndCalculateDoesNot)
{
    Open();
    TypeThreeRows();
    m_prompts.answers = {true};
    Click(u"IExit"_s); // calculated but not saved
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    SaveAs(u"Mine.inv"_s);
    EXPECT_TRUE(m_window.close());
    m_window.show();
    Type(u"x"_s);
    m_prompts.answers = {false};
    Load(u"Mine.inv"_s);
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, OpeningOverAChangedStatementAsksAndYesGoesBack)
{
    Open();
    PlaceRows(u"Other.inv"_s, 2);
    TypeThreeRows();
    SaveAs(u"Mine.inv"_s);
    TypeAt(4, kText, u"more"_s);
    const QString folder = m_shared.dialogFolder;
    m_prompts.answers = {true};
    Load(u"Other.inv"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u"Mine.inv"_s + kQuestion});
    EXPECT_EQ(At(4, kText), u"more"_s);
    EXPECT_EQ(At(1, kText), u"Tickets"_s);
    EXPECT_TRUE(ChangeIsShown());
    EXPECT_EQ(m_shared.investmentFileName, u"Mine.inv"_s);
    EXPECT_EQ(m_shared.dialogFolder, folder);
    EXPECT_EQ(m_shared.fileDialogMode, 0);
    EXPECT_EQ(m_shared.chosenPath, QString());
    m_prompts.answers = {false};
    Load(u"Other.inv"_s);
    EXPECT_EQ(At(1, kText), u"Row 1"_s);
    EXPECT_EQ(m_shared.investmentFileName, u"Other.inv"_s);
    Load(u"Mine.inv"_s); // nothing was changed since
    EXPECT_EQ(m_prompts.askedTexts.size(), 2);
    EXPECT_EQ(At(1, kText), u"Tickets"_s);
}

TEST_F(InvestmentTracker, AnotherNameThanMyfileDotInvIsNeitherReadNorWritten)
{
    Open();
    PlaceFile(u"Lottery.Lto"_s, "2,8,49,\"Lotto 6/49\"\r\n");
    PlaceFile(u"Notes"_s, "1\r\n\"a\",1\r\n");
    TypeThreeRows();
    const InvestmentTable before = m_shared.InvestmentRows;
    const QByteArray lottery = Bytes(u"Lottery.Lto"_s);
    for (const QString& name : {u"Lottery.Lto"_s, u"Notes"_s, u"Mine"_s, u"Mine.inv.bak"_s, u".inv"_s}) {
        for (const bool opens : {true, false}) {
            m_prompts.expectedMessages = {25};
            opens ? Load(name) : SaveAs(name);
            EXPECT_EQ(LastMessage(), u"Bad filename, must be in the form MYFILE.INV"_s);
            EXPECT_EQ(m_shared.InvestmentRows, before) << name.toStdString();
            EXPECT_EQ(m_shared.investmentFileName, QString());
            EXPECT_EQ(m_shared.fileDialogMode, 0);
            EXPECT_EQ(m_shared.chosenPath, QString());
        }
    }
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList({u"Lottery.Lto"_s, u"Notes"_s}));
    EXPECT_EQ(Bytes(u"Lottery.Lto"_s), lottery);
    for (const QString& name : {u"MINE.INV"_s, u"mine.Inv"_s}) {
        SaveAs(name);
        Load(name);
        EXPECT_EQ(m_shared.investmentFileName, name);
    }
}

TEST_F(InvestmentTracker, AFileThatIsNotAsItWasCalculatedSaysSoPrintsWhatItCountsAndIsCountedBeforeSaving)
{
    Open();
    for (const QByteArray count : {"1", "0"}) {
        PlaceFile(u"Short.inv"_s, count + "\r\n\"a\",1\r\n\"b\",2\r\n\"c\",3\r\n");
        Load(u"Short.inv"_s);
        EXPECT_TRUE(ChangeIsShown());
        EXPECT_EQ(m_shared.InvestmentRowCount, count.toFloat());
        EXPECT_EQ(At(3, kText), u"c"_s) << "what the count leaves out is seen";
        if (count == "0") {
            m_prompts.expectedMessages = {1};
            Click(u"IPrinter"_s);
            EXPECT_EQ(LastMessage(), u"No data to print."_s);
        } else {
            m_prompts.answers = {true};
            Click(u"IPrinter"_s);
            const QString paper = PagesText(m_prompts.printed.back());
            EXPECT_FALSE(paper.contains(u" 2.00"_s)) << "as on the screen: its one row and the Total of that";
            EXPECT_EQ(paper.count(u" 1.00"_s), 2);
        }
        EXPECT_TRUE(ChangeIsShown()) << "printing changes nothing in the form";
        SaveAs(u"Saved.inv"_s);
        EXPECT_TRUE(Bytes(u"Saved.inv"_s).startsWith("3\r\n\"a\",1\r\n\"b\",2\r\n\"c\",3\r\n,\r\n"));
        EXPECT_FALSE(ChangeIsShown());
        EXPECT_EQ(At(6, kMoney), u"6.00"_s);
        Click(u"IExit"_s); // it was not changed by the user, and is saved
        Click(u"InvTrack"_s);
    }
}

TEST_F(InvestmentTracker, ADescriptionOfAnyLengthIsKeptWholeAndShownInPart)
{
    Open();
    const QByteArray description(1 << 20, 'W');
    PlaceFile(u"Long.inv"_s, "1\r\n\"" + description + "\",1\r\n");
    Load(u"Long.inv"_s);
    EXPECT_EQ(At(1, kText), QString(1000, u'W'));
    EXPECT_EQ(m_shared.InvestmentRows.at(1).description.size(), 1 << 20);
    SaveAs(u"Saved.inv"_s);
    EXPECT_TRUE(Bytes(u"Saved.inv"_s).startsWith("1\r\n\"" + description + "\",1\r\n"));
    m_shared.settings.userName = QString(1 << 20, u'@');
    m_prompts.answers = {true};
    Click(u"IPrinter"_s);
    EXPECT_EQ(PagesText(m_prompts.printed.back()).count(u'@'), 200);
}

TEST_F(InvestmentTracker, LeavingWhatWasLoadedAndNotTouchedDoesNotAsk)
{
    Open();
    PlaceFile(u"Short.inv"_s, "1\r\n\"a\",1\r\n\"b\",2\r\n");
    Load(u"Short.inv"_s);
    EXPECT_TRUE(ChangeIsShown());
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, AnAmountThatAFileHoldsWithoutADescriptionIsNotLostBySaving)
{
    Open();
    PlaceFile(u"Odd.inv"_s, "3\r\n\"a\",1\r\n,100\r\n\"b\",2\r\n");
    Load(u"Odd.inv"_s);
    EXPECT_TRUE(ChangeIsShown());
    EXPECT_EQ(m_shared.InvestmentTotal, Money(u"3"_s));
    Click(u"ISaveFile"_s);
    EXPECT_EQ(m_prompts.notices.size(), 1);
    EXPECT_EQ(Current(), std::pair(2, kText));
    Type(u"found"_s);
    SaveAs(u"Odd.inv"_s);
    EXPECT_EQ(m_shared.InvestmentTotal, Money(u"103"_s));
}

TEST_F(InvestmentTracker, AnAmountCutByTheEndOfItsFileIsNotTakenAndSaysSo)
{
    Open();
    PlaceFile(u"Cut.inv"_s, "2\r\n\"a\",1\r\n\"b\",-1");
    Load(u"Cut.inv"_s);
    EXPECT_EQ(At(2, kText), u"b"_s);
    EXPECT_EQ(At(2, kMoney), QString());
    EXPECT_EQ(At(5, kMoney), u"1.00"_s);
    EXPECT_TRUE(ChangeIsShown());
    Click(u"ICalc"_s);
    EXPECT_FALSE(ChangeIsShown());
}

// Leaving

TEST_F(InvestmentTracker, LeavingAChangedStatementAsksAndYesGoesBack)
{
    Open();
    TypeThreeRows();
    SaveAs(u"Mine.inv"_s);
    TypeAt(4, kText, u"more"_s);
    m_prompts.answers = {true};
    Click(u"IExit"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u"Mine.inv"_s + kQuestion});
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Investment Tracker"_s);
    EXPECT_EQ(At(4, kText), u"more"_s);
    m_prompts.answers = {false};
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    EXPECT_EQ(m_shared.investmentFileName, QString());
    EXPECT_EQ(m_shared.InvestmentRows, InvestmentTable());
    EXPECT_EQ(m_shared.InvestmentRowCount, 0.0F);
    EXPECT_EQ(m_shared.InvestmentTotal, Currency());
}

TEST_F(InvestmentTracker, LeavingCountsWhatWasTypedFirst)
{
    Open();
    Type(u"typed and not calculated"_s);
    m_prompts.answers = {true};
    Click(u"IExit"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{kQuestion});
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
}

TEST_F(InvestmentTracker, LeavingAnAmountWithoutADescriptionAsks)
{
    Open();
    TypeAt(2, kMoney, u"5"_s);
    m_prompts.answers = {true, true, false};
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_FALSE(m_window.close());
    EXPECT_EQ(At(2, kMoney), u"5.00"_s);
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    Click(u"InvTrack"_s);
    EXPECT_EQ(At(2, kMoney), QString()) << "it opens empty";
    EXPECT_FALSE(ChangeIsShown());
}

TEST_F(InvestmentTracker, LeavingAChangedStatementWithNothingInItDoesNotAsk)
{
    Open();
    TypeAt(1, kText, u"x"_s);
    Press(Qt::Key_Backspace);
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, LeavingAsksAlsoWhenAllRowsWereErasedSinceTheLastCalculation)
{
    Open();
    Type(u"a"_s);
    Click(u"ICalc"_s);
    SaveAs(u"Mine.inv"_s);
    Press(Qt::Key_Backspace);
    m_prompts.answers = {true};
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s) << "one row was counted";
    Click(u"ICalc"_s);
    Click(u"IExit"_s); // none is
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(InvestmentTracker, AnInsertedLineIsAChange)
{
    Open();
    TypeThreeRows();
    SaveAs(u"Mine.inv"_s);
    Insert(u"1"_s);
    m_prompts.answers = {true};
    Click(u"IExit"_s);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
}

TEST_F(InvestmentTracker, ClosingTheWindowAsksAboutTheStatementAndThenAboutTheRecords)
{
    Open();
    TypeThreeRows();
    FillDatabase(1);
    m_shared.database.modified = 1;
    m_prompts.answers = {true};
    EXPECT_FALSE(m_window.close());
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(At(1, kText), u"Tickets"_s);
    m_prompts.answers = {false, true};
    EXPECT_FALSE(m_window.close());
    EXPECT_EQ(m_prompts.askedTexts, QStringList({kQuestion, kQuestion, u"Test.Lto"_s + kQuestion}));
    EXPECT_EQ(At(1, kText), u"Tickets"_s) << "gone back, the statement is still there";
    m_prompts.answers = {false, false};
    EXPECT_TRUE(m_window.close());
}

TEST_F(InvestmentTracker, ClosingTheWindowWithAnUnchangedStatementJustCloses)
{
    Open();
    EXPECT_TRUE(m_window.close());
}

// Help

TEST_F(InvestmentTracker, TheHelpOpensBesideTheGridAndCloses)
{
    Open();
    Click(u"IHelp"_s);
    auto& help = Find<QPlainTextEdit>(u"ITextBox"_s);
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(help.isReadOnly());
    EXPECT_TRUE(Grid().isVisible());
    EXPECT_EQ(Find<QPushButton>(u"IHelp"_s).text(), u"Close &Help"_s);
    const QStringList lines = help.toPlainText().split(u'\n');
    const QStringList expected{
        u"Load Sample.INV to try out the various features. Click the Open File button to load it from disk."_s,
        u"To start new file, click on the spreadsheet, choose cell by clicking on it or use arrow keys. Selected Cell will show dotted line around it, type in your data. Delete an entry with the Backspace key."_s,
        u"Type a description in the first column and values in the second column. I use a negative amount for tickets bought and a positive amount for Winnings. If Total shows a positive amount it means I am ahead."_s,
        u"Enter the exact words Sub Total in first column, nothing in second column, at the end of each group where you want it to appear. The Sub Total amount will be the sum of all amounts between the previous Sub Total if one exists."_s,
        u"Empty rows are not allowed, for a blank row enter a space in column one. (It's no longer empty). To remove a row, delete all entries in that row then Calculate."_s,
        u"Column two will only accept figures, the minus sign and the period key as the decimal separator. Description or Values can be changed at any time."_s,
        u"To insert a row, click the row where it is required then the Insert Blank Line button, type in the row number shown in the Dialog box then OK."_s,
        u"You must Calculate after any changes, to reformat the spreadsheet and update the Total."_s,
        u"To save the file to disk, click Save File button and give the file a name."_s,
        u"End"_s,
    };
    EXPECT_EQ(lines, expected);
    Click(u"IHelp"_s);
    EXPECT_FALSE(help.isVisible());
    EXPECT_EQ(Find<QPushButton>(u"IHelp"_s).text(), u"Quick &Help"_s);
}

TEST_F(InvestmentTracker, TheHelpClosesAtCalculateAndNotAtOpeningOrSaving)
{
    Open();
    TypeThreeRows();
    const auto helpIsOpen = [&] { return Find<QPlainTextEdit>(u"ITextBox"_s).isVisible(); };
    Click(u"IHelp"_s);
    SaveAs(u"Mine.inv"_s);
    EXPECT_TRUE(helpIsOpen());
    Load(u"Mine.inv"_s);
    EXPECT_TRUE(helpIsOpen());
    EXPECT_EQ(Find<QPushButton>(u"IHelp"_s).text(), u"Close &Help"_s);
    Click(u"ICalc"_s);
    EXPECT_FALSE(helpIsOpen());
    Click(u"IHelp"_s);
    Insert(u"1"_s); // calculates too
    EXPECT_FALSE(helpIsOpen());
    EXPECT_EQ(Find<QPushButton>(u"IHelp"_s).text(), u"Quick &Help"_s);
    Click(u"IHelp"_s);
    m_prompts.answers = {false};
    Click(u"IExit"_s);
    Click(u"InvTrack"_s);
    EXPECT_FALSE(helpIsOpen()) << "it opens as ever";
}

// Printing

TEST_F(InvestmentTracker, PrintingNothingSaysSo)
{
    Open();
    Type(u"typed and not calculated"_s);
    m_prompts.expectedMessages = {1};
    Click(u"IPrinter"_s);
    EXPECT_EQ(LastMessage(), u"No data to print."_s);
    EXPECT_TRUE(m_prompts.printed.empty());
    m_prompts.answers = {false};
    Click(u"IExit"_s);
}

TEST_F(InvestmentTracker, PrintsAfterYesAndNotAfterNo)
{
    Open();
    m_shared.settings.userName = u"Alex"_s;
    TypeThreeRows();
    SaveAs(u"Mine.inv"_s);
    m_prompts.answers = {false};
    Click(u"IPrinter"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    EXPECT_TRUE(m_prompts.printed.empty());
    m_prompts.answers = {true};
    Click(u"IPrinter"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    const QStringList lines = PageLines(m_prompts.printed.front(), 1);
    EXPECT_EQ(lines.at(2), u"       Alex, Mine.inv, 11/18/2026"_s);
    EXPECT_EQ(lines.at(3), QString(29, u' ') + u"INVESTMENT STATEMENT"_s);
    EXPECT_EQ(lines.at(8), u"       Tickets"_s.leftJustified(55) + u"      -12.00"_s);
    EXPECT_EQ(lines.at(10), u"       sub total"_s.leftJustified(55) + u"       -2.00"_s);
    EXPECT_EQ(lines.at(12), u"       Total"_s.leftJustified(54) + u"       -2.00"_s);
    EXPECT_EQ(m_prompts.offered.size(), 2U);
}

TEST_F(InvestmentTracker, PrintsWhatWasLastCalculatedOrLoaded)
{
    Open();
    TypeThreeRows();
    TypeAt(1, kMoney, u"000"_s);
    TypeAt(5, kText, u"typed since"_s);
    m_prompts.answers = {true};
    Click(u"IPrinter"_s);
    const QString text = PagesText(m_prompts.printed.front());
    EXPECT_TRUE(text.contains(u" -12.00"_s)) << "rows and Total belong together";
    EXPECT_FALSE(text.contains(u"typed since"_s));
    EXPECT_EQ(At(5, kText), u"typed since"_s);
    EXPECT_TRUE(ChangeIsShown());
    EXPECT_EQ(PageLines(m_prompts.printed.front(), 1).at(2), u"       11/18/2026"_s) << "no name, no file";
    m_prompts.answers = {false};
    Click(u"IExit"_s);
}

// Whole journeys

TEST_F(InvestmentTracker, ByTheKeyboardAlone)
{
    Start();
    QTest::keyClick(&m_window, Qt::Key_I, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return FrontForm() == u"LInvTrack"_s; }));
    const auto keys = [this](const QString& text) { QTest::keyClicks(m_window.focusWidget(), text); };
    const auto key = [this](Qt::Key pressed) { QTest::keyClick(m_window.focusWidget(), pressed); };
    keys(u"Tickets"_s);
    key(Qt::Key_Return);
    keys(u"Winnings"_s);
    key(Qt::Key_Return);
    keys(u"Sub Total"_s);
    key(Qt::Key_Right);
    key(Qt::Key_Up);
    keys(u"87.25"_s);
    key(Qt::Key_Up);
    keys(u"-24"_s);
    QTest::keyClick(&m_window, Qt::Key_C, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return At(6, kText) == u"Total"_s; }));
    EXPECT_EQ(At(6, kMoney), u"63.25"_s);
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    keys(u"5"_s); // typing goes on
    EXPECT_EQ(At(1, kMoney), u"-245.00"_s);
    key(Qt::Key_Backspace);

    OnDialog([](QWidget& dialog) {
        QTest::keyClicks(dialog.focusWidget(), u"2"_s);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(&m_window, Qt::Key_I, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return At(2, kText) == u"BlankLine"_s && m_dialogsToCome == 0; }));
    ASSERT_TRUE(Activate(m_window));
    ASSERT_TRUE(QTest::qWaitFor([&] { return FocusName() == u"IGrid"_s; }));
    keys(u"Gift"_s);

    m_prompts.files = {m_folder.filePath(u"Keys.inv"_s)};
    QTest::keyClick(&m_window, Qt::Key_S, Qt::AltModifier);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QFile::exists(m_folder.filePath(u"Keys.inv"_s)) && !ChangeIsShown(); }));
    EXPECT_TRUE(
        Bytes(u"Keys.inv"_s)
            .startsWith(
                "4\r\n\"Tickets\",-24\r\n\"Gift\",\r\n\"Winnings\",87.25\r\n\"Sub Total\",63.25\r\n,\r\n"));
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    keys(u"s"_s); // and after saving
    EXPECT_EQ(At(2, kText), u"Gifts"_s);
    key(Qt::Key_Backspace);

    m_prompts.answers = {true};
    QTest::keyClick(&m_window, Qt::Key_P, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_prompts.printed.size() == 1; }));
    QTest::keyClick(&m_window, Qt::Key_H, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Find<QPlainTextEdit>(u"ITextBox"_s).isVisible(); }));
    m_prompts.answers = {false}; // typed and taken back is changed all the same
    QTest::keyClick(&m_window, Qt::Key_X, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return FrontForm() == u"LotoMenu"_s; }));

    QTest::keyClick(&m_window, Qt::Key_I, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return FrontForm() == u"LInvTrack"_s; }));
    m_prompts.files = {m_folder.filePath(u"Keys.inv"_s)};
    QTest::keyClick(&m_window, Qt::Key_O, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return At(7, kText) == u"Total"_s; }));
    EXPECT_EQ(At(7, kMoney), u"63.25"_s);
    EXPECT_EQ(FocusName(), u"IGrid"_s);
    keys(u"!"_s);
    EXPECT_EQ(At(1, kText), u"Tickets!"_s);
}

TEST_F(InvestmentTracker, AfterACommandThatDidNothingTypingGoesOnToo)
{
    Open();
    m_prompts.files = {QString(), QString()};
    Type(u"a"_s);
    for (const QString& button : {u"IOpenFile"_s, u"ISaveFile"_s}) {
        Click(button);
        EXPECT_EQ(FocusName(), u"IGrid"_s);
    }
    Insert(u"1"_s, u"NoAccept"_s);
    EXPECT_EQ(FocusName(), u"IGrid"_s);
}

TEST_F(InvestmentTracker, TabLeavesTheGridAndGoesRoundTheButtons)
{
    Open();
    QStringList stops;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
        stops << FocusName();
    }
    EXPECT_EQ(stops, QStringList({u"ICalc"_s, u"InsertAss"_s, u"IOpenFile"_s, u"ISaveFile"_s, u"IPrinter"_s,
                                  u"IHelp"_s, u"IExit"_s, u"IGrid"_s}));
    EXPECT_EQ(Current(), std::pair(1, kText));
}

TEST_F(InvestmentTracker, AFullStatementOfTenthsIsTypedCalculatedAndPrinted)
{
    Open();
    for (int row = 1; row <= 105; ++row) {
        TypeAt(row, kText, u"t"_s);
        TypeAt(row, kMoney, u"0.1"_s);
    }
    Click(u"ICalc"_s);
    EXPECT_EQ(At(108, kText), u"Total"_s);
    EXPECT_EQ(At(108, kMoney), u"10.50"_s);
    EXPECT_EQ(m_shared.InvestmentTotal.TenThousandths(), 105000);
    m_prompts.answers = {true, false};
    Click(u"IPrinter"_s);
    EXPECT_EQ(m_prompts.printed.front().pages.size(), 3U);
    Click(u"IExit"_s);
}

} // namespace
