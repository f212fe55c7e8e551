#include "app/BarChartView.h"
#include "help/HelpBook.h"
#include "tests/FormBench.h"
#include "tests/TestFiles.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

// The two walks of the help, step by step as a newcomer goes them: every button that a step names is pressed
// in the order of the page, and everything the page says is looked for on the screen.

namespace {

QString Seen(QString caption)
{
    return caption.remove(u'&').simplified();
}

class HelpJourney : public FormBench
{
protected:
    ~HelpJourney() override
    {
        EXPECT_TRUE(m_steps.isEmpty()) << "not pressed: " << m_steps.join(u", "_s).toStdString();
    }

    /// Takes the page whose steps are gone; the buttons its numbered steps name are to be pressed.
    void Follow(const QString& page)
    {
        const QByteArray html = BytesOf(QStringLiteral(QUILLABY_SOURCE "/help/pages/") + page + u".html"_s);
        ASSERT_TRUE(ReadHelpPage(html, m_page).ok);
        QXmlStreamReader reader(html);
        int lists = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.name() == u"ol") {
                lists += reader.isStartElement() ? 1 : -1;
            } else if (lists > 0 && reader.isStartElement() && reader.name() == u"b") {
                m_steps << reader.readElementText().simplified();
            }
        }
    }

    /// The page says this, in one paragraph.
    void Says(const QString& words)
    {
        EXPECT_TRUE(m_page.text.contains(words)) << "the page does not say: " << words.toStdString();
    }

    /// The next button that the page names is this one.
    void NextStepIs(const QString& caption)
    {
        ASSERT_FALSE(m_steps.isEmpty()) << "the page names no button here: " << caption.toStdString();
        EXPECT_EQ(m_steps.takeFirst(), caption);
    }

    /// Clicks the button that bears this caption, which has to be the next the page names.
    void Press(const QString& caption) { PressIn(*m_window.ActiveForm(), caption); }

    void PressIn(const QWidget& form, const QString& caption)
    {
        NextStepIs(caption);
        for (auto* button : form.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && Seen(button->text()) == caption) {
                QTest::mouseClick(button, Qt::LeftButton, {},
                                  button->isCheckable() ? QPoint(8, button->height() / 2) : QPoint());
                Settle();
                EXPECT_TRUE(m_prompts.notices.isEmpty()) << m_prompts.notices.value(0).toStdString();
                return;
            }
        }
        ADD_FAILURE() << "no such button to press: " << caption.toStdString();
    }

    /// Clicks into a green box and types.
    void TypeAfterClick(InputBox& box, const QString& text)
    {
        QTest::mouseClick(&box, Qt::LeftButton);
        QTest::keyClicks(&box, text);
    }

    /// Types a number and presses Enter, from box to box.
    void TypeWithEnter(const QList<int>& numbers)
    {
        for (const int number : numbers) {
            QWidget* box = m_window.focusWidget();
            QTest::keyClicks(box, QString::number(number));
            QTest::keyClick(box, Qt::Key_Return);
        }
    }

    [[nodiscard]] QString FrontForm() { return m_window.ActiveForm()->objectName(); }

    QStringList Row(const QString& grid, int row, int first, int last)
    {
        QStringList cells;
        for (int column = first; column <= last; ++column) {
            cells << Cell(grid, row, column).trimmed();
        }
        return cells;
    }

    /// The count that the editor shows for a number.
    QString CountOf(int number)
    {
        const QString grid = u"DGrid%1"_s.arg(2 + (number - 1) / 20);
        return Cell(grid, 0, (number - 1) % 20).trimmed();
    }

    /// Rows of the grid of sets that hold numbers.
    int Sets(const QString& grid)
    {
        int sets = 0;
        const QAbstractItemModel* model = Find<QTableView>(grid).model();
        for (int row = 0; row < model->rowCount(); ++row) {
            sets += Cell(grid, row, 1).trimmed().isEmpty() ? 0 : 1;
        }
        return sets;
    }

    int PicksInSet(int set) const
    {
        int picks = 0;
        for (std::size_t i = 1; i <= 10; ++i) {
            picks += m_shared.PickTable.at(std::size_t(set)).at(i) == 0 ? 0 : 1;
        }
        return picks;
    }

    void EndTheWait() { QTest::keyClick(&m_window, Qt::Key_Escape); }

    void OpensTheSample();
    void AddsADraw();
    void TakesItOutAgain();
    void LooksAtTheGraphs();
    void MakesSets();
    void MakesHotColdDueSets();
    void ChecksNumbers();
    void ExtractsAYear();
    void SeesItOnPaper();
    void Leaves();

    HelpPage m_page;
    QStringList m_steps;
};

void HelpJourney::OpensTheSample()
{
    m_prompts.files = {QStringLiteral(QUILLABY_SOURCE "/samples/Sample.Lto")};
    Press(u"Open a File from Disk"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(Row(u"DGrid1"_s, 0, 0, 7),
              QStringList({u"1200"_s, u"7/4/2026"_s, u"26"_s, u"23"_s, u"22"_s, u"34"_s, u"10"_s, u"45"_s}));
    Says(u"record 1200, drawn on 4 July 2026, with the numbers 26, 23, 22, 34, 10 and 45 in the order"_s);
    EXPECT_EQ(TextOf(u"Label4"_s).simplified(),
              u"Showing the count of times numbers drawn. Top 6 = 43 39 12 21 26 30"_s);
    Says(u"Top 6 = 43 39 12 21 26 30. Number 43 came 175 times."_s);
    EXPECT_EQ(CountOf(43), u"175"_s);
    EXPECT_EQ(CountOf(17), u"122"_s); // said on the page about chance
    Says(u"Number 26 shows 0, because it was in the last draw."_s);
    Says(u"Number 27 has been away longest, for 29 draws."_s);
    Press(u"Times drawn"_s);
    EXPECT_EQ(CountOf(26), u"0"_s);
    EXPECT_EQ(CountOf(27), u"29"_s);
    EXPECT_TRUE(TextOf(u"Label4"_s).simplified().contains(u"Top 6 = 27 "_s)) << "the longest";
    Press(u"Times drawn"_s);
    EXPECT_EQ(CountOf(43), u"175"_s);
}

void HelpJourney::AddsADraw()
{
    Says(u"the date of the next draw, Wednesday, 8 July 2026"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"7/8/2026"_s);
    EXPECT_EQ(QDate(2026, 7, 8).dayOfWeek(), Qt::Wednesday);
    Says(u"Click into the first green box behind the date and type 4."_s);
    Says(u"11, 19, 23, 38 and 46"_s);
    QTest::mouseClick(&NumberBox(0), Qt::LeftButton);
    TypeWithEnter({4, 11, 19, 23, 38, 46});
    EXPECT_EQ(FocusName(), u"DCalc"_s) << "Enter brings one to the button that adds the draw";
    Press(u"Add Record"_s);
    EXPECT_EQ(Row(u"DGrid1"_s, 0, 0, 3), QStringList({u"1201"_s, u"7/8/2026"_s, u"4"_s, u"11"_s}));
    Says(u"as record 1201"_s);
    Says(u"has moved on to Saturday, 11 July 2026"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"7/11/2026"_s);
    EXPECT_EQ(QDate(2026, 7, 11).dayOfWeek(), Qt::Saturday);
}

void HelpJourney::TakesItOutAgain()
{
    auto& grid = Find<QTableView>(u"DGrid1"_s);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      grid.visualRect(grid.model()->index(0, 1)).center());
    OnDialog([this](QWidget& dialog) {
        PressIn(dialog, u"Delete"_s);
        Says(u"The box below shows 1201"_s);
        EXPECT_EQ(In<InputBox>(dialog, u"CurVal"_s).text(), u"1201"_s);
        PressIn(dialog, u"Accept"_s);
    });
    Press(u"Correct Record"_s);
    Says(u"There are 1,200 draws again."_s);
    EXPECT_EQ(m_shared.database.count, 1200);
    EXPECT_EQ(Row(u"DGrid1"_s, 0, 0, 2), QStringList({u"1200"_s, u"7/4/2026"_s, u"26"_s}));
}

void HelpJourney::LooksAtTheGraphs()
{
    Press(u"Show Graph"_s);
    EXPECT_EQ(FrontForm(), u"LGraph"_s);
    const auto chart = [this] { return Find<BarChartView>(u"LotoGraph"_s).Chart(); };
    Says(u"Each of the 49 numbers has a bar."_s);
    EXPECT_EQ(chart().bars.size(), 49U);
    Press(u"Show Sorted"_s);
    Says(u"The highest bar, that of number 43, now stands at the left."_s);
    EXPECT_EQ(chart().bars.front().label, u"43"_s);
    Press(u"ThreeD Graph"_s);
    Press(u"Exit to Menu"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    Press(u"Exit to Menu"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

void HelpJourney::MakesSets()
{
    Press(u"Selectorium"_s);
    Says(u"Click into the box Number of entry forms being played and type 3."_s);
    TypeAfterClick(Box(u"InNumRows"_s), u"3"_s);
    Press(u"Calculate"_s);
    EndTheWait();
    Says(u"three sets of six numbers"_s);
    EXPECT_EQ(Sets(u"PGrid"_s), 3);
    EXPECT_EQ(PicksInSet(1), 6);
    Press(u"Sorted position: Left to Right"_s);
    Says(u"The two boxes in it hold 1 and 25."_s);
    EXPECT_EQ(Box(u"InStartNo"_s).text().trimmed(), u"1"_s);
    EXPECT_EQ(Box(u"InEndNo"_s).text().trimmed(), u"25"_s);
    Press(u"Calculate"_s);
    EndTheWait();
    Says(u"only the 25 numbers that were drawn most often were used"_s);
    EXPECT_EQ(TextOf(u"FromNums"_s).simplified().split(u' ').size(), 25);
    EXPECT_TRUE(TextOf(u"FromNums"_s).simplified().startsWith(u"43 39 12 21 26 30 "_s));
    EXPECT_EQ(Sets(u"PGrid"_s), 3);
    Press(u"Select All"_s);
    EndTheWait();
    Says(u"All 49 numbers are spread over 9 rows, each number once. The last row holds one number."_s);
    EXPECT_EQ(Sets(u"PGrid"_s), 9);
    EXPECT_EQ(PicksInSet(9), 1);
}

void HelpJourney::MakesHotColdDueSets()
{
    Press(u"Hot Cold Due Data"_s);
    EXPECT_EQ(FrontForm(), u"LHotCold"_s);
    Says(u"in the last 52 draws"_s);
    EXPECT_EQ(Box(u"InLastDraw"_s).text().trimmed(), u"52"_s);
    Says(u"Number 23 leads the first graph: it came 11 times."_s);
    const BarChart& hot = Find<BarChartView>(u"HotGraph1"_s).Chart();
    EXPECT_EQ(hot.bars.size(), 10U);
    EXPECT_EQ(hot.bars.front().label, u"23"_s);
    EXPECT_EQ(hot.bars.front().value, 11);
    Says(u"a set of two hot, two cold and two due numbers"_s);
    for (const QString& box : {u"InHot"_s, u"InCold"_s, u"InDue"_s}) {
        EXPECT_EQ(Box(box).text().trimmed(), u"2"_s);
    }
    Press(u"Calculate"_s);
    EndTheWait();
    EXPECT_EQ(Sets(u"HCDGrid"_s), 1);
    EXPECT_EQ(PicksInSet(1), 6);
    Press(u"Exit to Selectorium"_s);
    EXPECT_EQ(FrontForm(), u"Lottery"_s);
    Press(u"Exit to Menu"_s);
}

void HelpJourney::ChecksNumbers()
{
    Press(u"Check Winners"_s);
    Says(u"Type 1, 3, 4, 8, 19 and 32, with Enter after each."_s);
    QTest::mouseClick(&Box(u"CInYourNum0"_s), Qt::LeftButton);
    TypeWithEnter({1, 3, 4, 8, 19, 32});
    Press(u"Check Numbers"_s);
    const auto found = [this] {
        int rows = 0;
        const QAbstractItemModel* model = Find<QTableView>(u"CGrid"_s).model();
        while (rows < model->rowCount() && !Cell(u"CGrid"_s, rows, 0).trimmed().isEmpty()) {
            ++rows;
        }
        return rows;
    };
    Says(u"In 22 of the 1,200 draws at least three of these six numbers came."_s);
    EXPECT_EQ(found(), 22);
    Says(u"The first is record 966."_s);
    EXPECT_EQ(Cell(u"CGrid"_s, 0, 0).trimmed(), u"966"_s);
    TypeAfterClick(Box(u"MatchNum"_s), u"4"_s);
    Press(u"Check Numbers"_s);
    Says(u"Two draws are left: record 865 with four of the numbers, and record 3 with all six."_s);
    EXPECT_EQ(found(), 2);
    EXPECT_EQ(Cell(u"CGrid"_s, 0, 0).trimmed(), u"865"_s);
    const auto matched = [this](int row) {
        QStringList numbers = Row(u"CGrid"_s, row, 2, 7);
        numbers.removeAll(QString());
        return numbers.size();
    };
    EXPECT_EQ(matched(0), 4);
    EXPECT_EQ(Cell(u"CGrid"_s, 1, 0).trimmed(), u"3"_s);
    EXPECT_EQ(matched(1), 6);
    Press(u"Exit to Menu"_s);
}

void HelpJourney::ExtractsAYear()
{
    const auto yearOf = [this](int record) { return m_shared.database.records.at(std::size_t(record)).date; };
    Says(u"Type 1043 into Starting record number (Low). It is the first draw of the year 2025."_s);
    Says(u"Type 1147 into Ending record number (High), the last draw of that year."_s);
    EXPECT_EQ(CellDate(yearOf(1042), m_shared.locale)->year(), 2024);
    EXPECT_EQ(CellDate(yearOf(1043), m_shared.locale)->year(), 2025);
    EXPECT_EQ(CellDate(yearOf(1147), m_shared.locale)->year(), 2025);
    EXPECT_EQ(CellDate(yearOf(1148), m_shared.locale)->year(), 2026);
    OnDialog([this](QWidget& dialog) {
        TypeAfterClick(In<InputBox>(dialog, u"LowRecNo"_s), u"1043"_s);
        TypeAfterClick(In<InputBox>(dialog, u"HighRecNo"_s), u"1147"_s);
        PressIn(dialog, u"Extract Records"_s);
    });
    Press(u"Extract between two Dates"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    Says(u"a new database named Extracted, with 105 draws"_s);
    EXPECT_EQ(Box(u"InFileName"_s).text(), u"Extracted"_s);
    EXPECT_EQ(m_shared.database.count, 105);
    Press(u"Exit to Menu"_s);
}

void HelpJourney::SeesItOnPaper()
{
    m_prompts.answers = {false};
    Press(u"Print Current Database"_s);
    NextStepIs(u"Print Preview"_s); // the question and the preview are other tests' matter
    NextStepIs(u"Close"_s);
    NextStepIs(u"No"_s);
    EXPECT_EQ(m_prompts.offered.size(), 1U);
    EXPECT_TRUE(m_prompts.printed.empty());
}

void HelpJourney::Leaves()
{
    m_prompts.answers = {false};
    QTimer::singleShot(0, &m_window, [this] { Press(u"Exit from Program"_s); });
    QTimer::singleShot(5000, &m_window, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(QApplication::exec(), 0) << "the program ends";
    NextStepIs(u"No"_s);
    EXPECT_TRUE(m_prompts.askedTexts.last().contains(u"Do you wish to go back and save"_s));
}

} // namespace

TEST_F(HelpJourney, TheFirstStepsLeadThroughTheWholeProgramAsThePageSays)
{
    const QByteArray sample = BytesOf(QStringLiteral(QUILLABY_SOURCE "/samples/Sample.Lto"));
    Follow(u"first-steps"_s);
    Start();
    OpensTheSample();
    AddsADraw();
    TakesItOutAgain();
    LooksAtTheGraphs();
    MakesSets();
    MakesHotColdDueSets();
    ChecksNumbers();
    ExtractsAYear();
    SeesItOnPaper();
    Leaves();
    EXPECT_EQ(BytesOf(QStringLiteral(QUILLABY_SOURCE "/samples/Sample.Lto")), sample);
}

TEST_F(HelpJourney, TheFirstStatementIsAsThePageSays)
{
    Follow(u"first-statement"_s);
    Start();
    Press(u"Investment Tracker"_s);
    m_prompts.files = {QStringLiteral(QUILLABY_SOURCE "/samples/Sample.inv")};
    Press(u"Open File"_s);
    auto& grid = Find<QTableView>(u"IGrid"_s);
    const auto at = [this](int row, int column) { return Cell(u"IGrid"_s, row - 1, column).trimmed(); };
    const auto click = [&grid](int row) {
        const QModelIndex cell = grid.model()->index(row - 1, 0);
        grid.scrollTo(cell);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
    };
    Says(u"the sum of that month: -2.00, -31.50 and 62.50. At the bottom stands the Total of all, 29.00."_s);
    EXPECT_EQ(QStringList({at(4, 1), at(9, 1), at(15, 1)}),
              QStringList({u"-2.00"_s, u"-31.50"_s, u"62.50"_s}));
    EXPECT_EQ(at(18, 0), u"Total"_s);
    EXPECT_EQ(at(18, 1), u"29.00"_s);

    Says(u"row 16, the first empty row. Type: Tickets, 2 draws\n"_s);
    EXPECT_EQ(at(16, 0), QString());
    click(16);
    QTest::keyClicks(&grid, u"Tickets, 2 draws"_s);
    Says(u"Press the right arrow key to go to the second column. Type -6\n"_s);
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClicks(&grid, u"-6"_s);
    Says(u"Click on the first column of row 17 and type: Sub Total\n"_s);
    click(17);
    QTest::keyClicks(&grid, u"Sub Total"_s);
    EXPECT_TRUE(Find<QLabel>(u"IChange"_s).isVisible());
    Press(u"Calculate"_s);
    Says(u"The new Sub Total is -6.00, and the Total is 23.00 now."_s);
    EXPECT_EQ(at(16, 1), u"-6.00"_s);
    EXPECT_EQ(at(17, 1), u"-6.00"_s);
    EXPECT_EQ(at(20, 1), u"23.00"_s);

    Says(u"Click into its box, type 16 and press OK. Row 16 says BlankLine"_s);
    OnDialog([this](QWidget& dialog) {
        TypeAfterClick(In<InputBox>(dialog, u"CurVal"_s), u"16"_s);
        PressIn(dialog, u"OK"_s);
    });
    Press(u"Insert blank line"_s);
    EXPECT_EQ(at(16, 0), u"BlankLine"_s);
    EXPECT_EQ(at(17, 0), u"Tickets, 2 draws"_s);
    click(16);
    while (!at(16, 0).isEmpty()) {
        QTest::keyClick(&grid, Qt::Key_Backspace);
    }
    QTest::keyClick(&grid, Qt::Key_Space);
    Press(u"Calculate"_s);
    Says(u"The Total is still 23.00."_s);
    EXPECT_EQ(at(16, 0), QString());
    EXPECT_EQ(at(17, 0), u"Tickets, 2 draws"_s) << "the row with a blank stays";
    EXPECT_EQ(at(21, 1), u"23.00"_s);

    m_prompts.answers = {false};
    Press(u"Exit to Menu"_s);
    NextStepIs(u"No"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}
