#include "tests/FormBench.h"
#include "tests/StatePrinters.h"

#include <QHeaderView>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

// Beside EditMode, where GoogleTest looks for it.
static void PrintTo(EditMode mode, std::ostream* out)
{
    *out << "mode " << static_cast<int>(mode);
}

namespace {

enum Option { Correct, Insert, Delete, Sort };

class Correcting : public FormBench
{
protected:
    void OpenWith(int records)
    {
        FillDatabase(records);
        OpenEditor();
    }
    /// Opens the record dialog, chooses, types the number as far as one is asked for, and accepts.
    void Choose(Option option, const QString& number = QString())
    {
        OnDialog([option, number](QWidget& dialog) {
            QTest::mouseClick(&In<QAbstractButton>(dialog, u"CorInsDel%1"_s.arg(option)), Qt::LeftButton, {},
                              QPoint(8, 8));
            if (!number.isEmpty()) {
                auto& box = In<InputBox>(dialog, u"CurVal"_s);
                box.setFocus(Qt::TabFocusReason);
                QTest::keyClicks(&box, number);
            }
            ClickIn(dialog, u"Accept"_s);
        });
        Click(u"DCorrectRec"_s);
        Settle();
        ASSERT_TRUE(Activate(m_window));
    }
    void ClickGridRow(int row)
    {
        auto& grid = Find<QTableView>(u"DGrid1"_s);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                          grid.visualRect(grid.model()->index(row, 2)).center());
    }
    void ClickGridHeading()
    {
        const QHeaderView* heading = Find<QTableView>(u"DGrid1"_s).horizontalHeader();
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, {},
                          QPoint(heading->sectionViewportPosition(1) + 20, heading->height() / 2));
    }
    void SetDate(const QString& text)
    {
        TypeInto(u"InDate"_s, text);
        NumberBox(0).setFocus(Qt::TabFocusReason);
        Settle();
    }
    void SetNumbers(const QStringList& numbers)
    {
        for (int i = 0; i < 6; ++i) {
            NumberBox(i).setText(numbers.at(i));
        }
    }
    QStringList NumberTexts()
    {
        QStringList texts;
        for (int i = 0; i < 10; ++i) {
            texts << NumberBox(i).text();
        }
        return texts;
    }
    DrawRecord& Record(int row) { return m_shared.database.records.at(static_cast<std::size_t>(row)); }
    QDate DateOf(int row) { return CellDate(Record(row).date, m_shared.locale).value_or(QDate()); }
    std::vector<int> DrawnIn(int row)
    {
        std::vector<int> drawn;
        for (std::size_t k = 0; k < 6; ++k) {
            drawn.push_back(static_cast<int>(CellNumber(Record(row).drawn[k])));
        }
        return drawn;
    }
    void ExpectPending(EditMode mode)
    {
        EXPECT_EQ(m_shared.editMode, mode);
        for (const QString& name : {u"DCorrectRec"_s, u"DDeleteAll"_s, u"DGraphs"_s}) {
            EXPECT_FALSE(Find<QPushButton>(name).isVisible()) << name.toStdString();
        }
        for (const QString& name : {u"DCalc"_s, u"DHelp"_s, u"DExit"_s}) {
            EXPECT_TRUE(Find<QPushButton>(name).isVisible()) << name.toStdString();
        }
    }
    /// At rest, with an empty 'New' row for the next draw and every record in its grid row.
    void ExpectAtRest(const QString& nextDate)
    {
        EXPECT_EQ(m_shared.editMode, EditMode::Normal);
        EXPECT_EQ(m_shared.SelectedRecord, 0);
        EXPECT_EQ(m_shared.ClickedRecord, 0);
        EXPECT_EQ(TextOf(u"InNew"_s), u"New"_s);
        EXPECT_EQ(Box(u"InDate"_s).text(), nextDate);
        EXPECT_EQ(NumberTexts(), QStringList(10, QString()));
        for (const QString& name :
             {u"DCorrectRec"_s, u"DDeleteAll"_s, u"DGraphs"_s, u"DCalc"_s, u"DHelp"_s, u"DExit"_s}) {
            EXPECT_TRUE(Find<QPushButton>(name).isVisible()) << name.toStdString();
        }
        const int count = m_shared.database.count;
        for (int row = 1; row <= count; ++row) {
            EXPECT_EQ(Record(row).number, ::Cell(row));
            EXPECT_EQ(Cell(u"DGrid1"_s, count - row, 0).trimmed(), QString::number(row));
            EXPECT_EQ(Cell(u"DGrid1"_s, count - row, 2).trimmed(), CellText(Record(row).drawn[0]));
        }
        EXPECT_EQ(Cell(u"DGrid1"_s, count, 0), QString());
    }
};

// The record dialog and what it may come back with

TEST_F(Correcting, NeedsARecord)
{
    OpenEditor();
    m_prompts.expectedMessages = {18};
    Click(u"DCorrectRec"_s);
    EXPECT_EQ(m_prompts.shownTexts, QStringList{u"No Record to Correct."_s});
    EXPECT_EQ(m_shared.editMode, EditMode::Normal);
}

TEST_F(Correcting, TheDialogIsModalAndStandsOverTheEditor)
{
    OpenWith(3);
    OnDialog([this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), u"InRecNum"_s);
        EXPECT_TRUE(dialog.isModal());
        EXPECT_TRUE(Find<QWidget>(u"LDbase"_s).isVisible());
        EXPECT_EQ(dialog.pos() - m_window.frameGeometry().topLeft(), QPoint(540, 173));
        ClickIn(dialog, u"NoAccept"_s);
    });
    Click(u"DCorrectRec"_s);
}

TEST_F(Correcting, ACancelledDialogChangesNothing)
{
    OpenWith(3);
    const DrawDatabase before = m_shared.database;
    for (int option = 0; option < 4; ++option) {
        OnDialog([option](QWidget& dialog) {
            In<QAbstractButton>(dialog, u"CorInsDel%1"_s.arg(option)).click();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        Click(u"DCorrectRec"_s);
        EXPECT_TRUE(m_shared.database.records == before.records);
        ExpectAtRest(u"1/12/2000"_s);
    }
}

TEST_F(Correcting, NumberZeroOrNoneDoesNothing)
{
    OpenWith(3);
    const DrawDatabase before = m_shared.database;
    for (const Option option : {Correct, Delete}) {
        for (const QString& number : {QString(), u"0"_s, u"00"_s}) {
            Choose(option, number);
            EXPECT_EQ(m_shared.database.count, 3);
            EXPECT_TRUE(m_shared.database.records == before.records);
            ExpectAtRest(u"1/12/2000"_s);
        }
    }
}

TEST_F(Correcting, ARecordThatDoesNotExistIsSaid)
{
    for (const int records : {1, 2, 2000}) {
        m_shared.database = {};
        OpenWith(records);
        const DrawDatabase before = m_shared.database;
        for (const Option option : {Correct, Delete}) {
            for (const QString& number : {QString::number(records + 1), u"32768"_s, u"99999999999"_s}) {
                m_prompts.expectedMessages = {41};
                Choose(option, number);
                EXPECT_EQ(LastMessage(), u"Record Number does not exist."_s);
                EXPECT_TRUE(m_prompts.expectedMessages.empty());
                EXPECT_TRUE(m_shared.database.records == before.records);
                EXPECT_EQ(m_shared.editMode, EditMode::Normal);
                EXPECT_EQ(m_shared.SelectedRecord, 0);
                EXPECT_TRUE(Find<QPushButton>(u"DCorrectRec"_s).isVisible());
            }
        }
        Click(u"DExit"_s);
    }
}

TEST_F(Correcting, TheClickedRowIsOffered)
{
    OpenWith(5);
    ClickGridRow(1);
    OnDialog([](QWidget& dialog) {
        EXPECT_EQ(In<InputBox>(dialog, u"CurVal"_s).text(), u"4"_s);
        ClickIn(dialog, u"CorInsDel2"_s);
        EXPECT_EQ(In<InputBox>(dialog, u"CurVal"_s).text(), u"4"_s);
        ClickIn(dialog, u"NoAccept"_s);
    });
    Click(u"DCorrectRec"_s);
    OnDialog([](QWidget& dialog) {
        EXPECT_EQ(In<InputBox>(dialog, u"CurVal"_s).text(), QString()); // offered once
        ClickIn(dialog, u"NoAccept"_s);
    });
    Click(u"DCorrectRec"_s);
}

TEST_F(Correcting, ASpareRowOrTheHeadingOffersNoRecord)
{
    OpenWith(5);
    const std::vector<std::function<void()>> clicks{[this] { ClickGridRow(6); },
                                                    [this] { ClickGridHeading(); }};
    for (const auto& click : clicks) {
        ClickGridRow(2);
        EXPECT_EQ(m_shared.ClickedRecord, 3);
        click();
        EXPECT_EQ(m_shared.ClickedRecord, 0);
        OnDialog([](QWidget& dialog) {
            EXPECT_EQ(In<InputBox>(dialog, u"CurVal"_s).text(), QString());
            ClickIn(dialog, u"Accept"_s);
        });
        Click(u"DCorrectRec"_s);
        ExpectAtRest(u"1/19/2000"_s);
    }
    EXPECT_EQ(m_shared.database.count, 5);
}

// Correct

TEST_F(Correcting, ShowsTheRecordInTheNewRowAndHidesWhatCannotBeUsed)
{
    OpenWith(10);
    Choose(Correct, u"3"_s);
    ExpectPending(EditMode::Correct);
    EXPECT_EQ(m_shared.SelectedRecord, 3);
    EXPECT_EQ(TextOf(u"InNew"_s), u"3"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/8/2000"_s);
    EXPECT_EQ(NumberTexts().mid(0, 6), (QStringList{u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s}));
    EXPECT_EQ(FocusName(), u"DYourNumIn0"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"  10"_s);
}

TEST_F(Correcting, OverwritesTheRecordAndNothingElse)
{
    for (const qint16 modified : {qint16{0}, qint16{1}}) {
        m_shared.database = {};
        OpenWith(10);
        m_shared.database.modified = modified;
        DrawDatabase expected = m_shared.database;
        expected.records[3].drawn[1] = 49;
        Choose(Correct, u"3"_s);
        TypeInto(u"DYourNumIn1"_s, u"49"_s);
        Click(u"DCalc"_s);
        EXPECT_EQ(m_shared.database.count, 10);
        for (std::size_t row = 0; row < expected.records.size(); ++row) {
            ASSERT_EQ(m_shared.database.records[row], expected.records[row]) << row;
        }
        EXPECT_EQ(m_shared.database.modified, modified);
        EXPECT_EQ(Cell(u"DGrid1"_s, 7, 3), u" 49"_s);
        EXPECT_EQ(Cell(u"DGrid4"_s, 0, 8), u"1"_s);
        ExpectAtRest(u"2/5/2000"_s);
        EXPECT_EQ(FocusName(), u"DYourNumIn0"_s);
        Click(u"DExit"_s);
    }
}

TEST_F(Correcting, ARecordTakenOverUnchangedIsTheSame)
{
    for (const int records : {1, 2, 2000}) {
        m_shared.database = {};
        OpenWith(records);
        const DrawDatabase before = m_shared.database;
        for (const int record : {1, records}) {
            Choose(Correct, QString::number(record));
            Click(u"DCalc"_s);
            EXPECT_TRUE(m_shared.database.records == before.records) << record << " of " << records;
            EXPECT_EQ(m_shared.editMode, EditMode::Normal);
        }
        Click(u"DExit"_s);
    }
}

TEST_F(Correcting, AnOverfullDatabaseIsCorrectedToo)
{
    m_prompts.expectedMessages = {45};
    OpenWith(2001);
    Choose(Correct, u"2001"_s);
    SetNumbers({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 2001);
    EXPECT_EQ(DrawnIn(2001), (std::vector{44, 45, 46, 47, 48, 49}));
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 2), u" 44"_s);
}

TEST_F(Correcting, ANewDatePutsTheRecordWhereItBelongs)
{
    OpenWith(5); // 1/1, 1/5, 1/8, 1/12, 1/15
    Choose(Correct, u"2"_s);
    SetDate(u"1/13/2000"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 5);
    const std::vector<int> first{1, 3, 4, 2, 5};
    for (int row = 1; row <= 5; ++row) {
        EXPECT_EQ(DrawnIn(row).at(0), first.at(static_cast<std::size_t>(row) - 1));
    }
    EXPECT_EQ(DateOf(4), QDate(2000, 1, 13));
    ExpectAtRest(u"1/19/2000"_s);
}

struct Refused {
    QStringList boxes;
    int message;
    QString text;
};

std::vector<Refused> RefusedRows()
{
    return {
        {{u""_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}, 36, u"No record to add to the database."_s},
        {{u"0"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}, 36, u"No record to add to the database."_s},
        {{u"5"_s, u"2"_s, u"3"_s, u""_s, u"5"_s, u"60"_s}, 37, u"Correct: duplicate numbers."_s},
        {{u"1"_s, u"2"_s, u"3"_s, u""_s, u"50"_s, u"0"_s}, 29, u"Correct: missing number."_s},
        {{u"1"_s, u"2"_s, u"50"_s, u""_s, u"0"_s, u"6"_s},
         5,
         u"Correct: number 50 is higher than allowed in Draw."_s},
        {{u"1"_s, u"2"_s, u"3"_s, u"0"_s, u"50"_s, u""_s}, 38, u"Correct: number 0 not allowed in Draw."_s},
    };
}

TEST_F(Correcting, ARefusedRowKeepsTheCorrectionOpen)
{
    OpenWith(5);
    const DrawDatabase before = m_shared.database;
    Choose(Correct, u"2"_s);
    for (const Refused& row : RefusedRows()) {
        SetNumbers(row.boxes);
        m_prompts.expectedMessages = {row.message};
        Click(u"DCalc"_s);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_EQ(LastMessage(), row.text);
        EXPECT_EQ(NumberTexts().mid(0, 6), row.boxes);
        EXPECT_EQ(TextOf(u"InNew"_s), u"2"_s);
        EXPECT_EQ(m_shared.SelectedRecord, 2);
        EXPECT_TRUE(m_shared.database.records == before.records);
        ExpectPending(EditMode::Correct);
    }
    SetNumbers({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"49"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(DrawnIn(2), (std::vector{1, 2, 3, 4, 5, 49}));
    EXPECT_EQ(m_shared.database.modified, 0);
    ExpectAtRest(u"1/19/2000"_s);
}

TEST_F(Correcting, DuplicatesAreTakenWhenAllowed)
{
    OpenWith(5);
    Choose(Correct, u"2"_s);
    SetNumbers({u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"7"_s});
    ClickBox(u"Duponoff"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(DrawnIn(2), std::vector<int>(6, 7));
}

TEST_F(Correcting, ADateAfterTheLastRecordGivesTheRowUp)
{
    OpenWith(5);
    const DrawDatabase before = m_shared.database;
    Choose(Correct, u"2"_s);
    TypeInto(u"DYourNumIn0"_s, u"49"_s);
    SetDate(u"1/16/2000"_s);
    m_prompts.expectedMessages = {39};
    Click(u"DCalc"_s);
    EXPECT_EQ(LastMessage(), u"Date cannot be greater than last record.1/15/2000"_s);
    EXPECT_TRUE(m_shared.database.records == before.records);
    ExpectAtRest(u"1/19/2000"_s);
}

TEST_F(Correcting, TheLastRecordItselfIsGivenNoLaterDate)
{
    OpenWith(5);
    const DrawDatabase before = m_shared.database;
    Choose(Correct, u"5"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/15/2000"_s);
    SetDate(u"1/16/2000"_s);
    m_prompts.expectedMessages = {39};
    Click(u"DCalc"_s);
    EXPECT_EQ(LastMessage(), u"Date cannot be greater than last record.1/15/2000"_s);
    EXPECT_EQ(m_shared.database.count, 5);
    EXPECT_TRUE(m_shared.database.records == before.records);
    ExpectAtRest(u"1/19/2000"_s);
}

TEST_F(Correcting, TheDayOfTheLastRecordIsNotTooLate)
{
    OpenWith(5);
    Choose(Correct, u"2"_s);
    SetDate(u"1/15/2000"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(DateOf(4), QDate(2000, 1, 15));
    EXPECT_EQ(DateOf(5), QDate(2000, 1, 15));
    EXPECT_EQ(DateOf(2), QDate(2000, 1, 8));
}

TEST_F(Correcting, TheRecordsAreSortedAlsoAfterADateThatWasRefused)
{
    FillDatabase(3);
    std::swap(Record(1).date, Record(2).date); // 1/5, 1/1, 1/8
    OpenEditor();
    Choose(Correct, u"1"_s);
    SetDate(u"1/9/2000"_s);
    m_prompts.expectedMessages = {39};
    Click(u"DCalc"_s);
    EXPECT_EQ(DateOf(1), QDate(2000, 1, 1));
    EXPECT_EQ(DateOf(2), QDate(2000, 1, 5));
    EXPECT_EQ(DrawnIn(1).at(0), 2);
    ExpectAtRest(u"1/12/2000"_s);
}

TEST_F(Correcting, ATypedTextThatIsNoDateBringsTheRecordsOwnBack)
{
    OpenWith(5);
    Choose(Correct, u"2"_s);
    m_prompts.expectedMessages = {30};
    SetDate(u"2/30/2000"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/5/2000"_s);
    ExpectPending(EditMode::Correct);
    Click(u"DCalc"_s);
    EXPECT_EQ(DateOf(2), QDate(2000, 1, 5));
}

TEST_F(Correcting, ALotteryOfOneNumberIsCorrected)
{
    FillDatabase(2);
    m_shared.database.columns = 3;
    OpenEditor();
    const DrawDatabase before = m_shared.database;
    Choose(Correct, u"1"_s);
    EXPECT_FALSE(NumberBox(1).isVisible());
    TypeInto(u"DYourNumIn0"_s, u"33"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(Record(1).drawn[0], ::Cell(33));
    EXPECT_EQ(Record(1).drawn[1], before.records[1].drawn[1]);
}

// Insert

TEST_F(Correcting, InsertsADrawByItsDateAndMovesTheLaterOnesUp)
{
    OpenWith(6); // record 4 on 1/12, record 5 on 1/15
    const DrawDatabase before = m_shared.database;
    Choose(Insert);
    ExpectPending(EditMode::Insert);
    EXPECT_EQ(TextOf(u"InNew"_s), u"Insert"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), QString());
    EXPECT_EQ(FocusName(), u"InDate"_s);
    SetDate(u"1/13/2000"_s);
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 7);
    EXPECT_EQ(DrawnIn(5), (std::vector{44, 45, 46, 47, 48, 49}));
    EXPECT_EQ(DateOf(5), QDate(2000, 1, 13));
    for (int row = 1; row <= 6; ++row) {
        DrawRecord expected = before.records[static_cast<std::size_t>(row)];
        const int now = row < 5 ? row : row + 1;
        expected.number = now;
        EXPECT_EQ(Record(now), expected);
    }
    EXPECT_EQ(m_shared.database.modified, 0);
    EXPECT_EQ(Cell(u"DGrid4"_s, 0, 8), u"1"_s);
    ExpectAtRest(u"1/22/2000"_s);
}

TEST_F(Correcting, InsertsBeforeTheFirstAndOnTheDayOfTheLastRecord)
{
    OpenWith(2);
    for (const QString& date : {u"12/25/1999"_s, u"1/5/2000"_s}) {
        Choose(Insert);
        SetDate(date);
        TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
        Click(u"DCalc"_s);
    }
    EXPECT_EQ(m_shared.database.count, 4);
    EXPECT_EQ(DateOf(1), QDate(1999, 12, 25));
    EXPECT_EQ(DateOf(3), QDate(2000, 1, 5));
    EXPECT_EQ(DateOf(4), QDate(2000, 1, 5));
    ExpectAtRest(u"1/8/2000"_s);
}

TEST_F(Correcting, ALaterDrawIsNotInserted)
{
    OpenWith(5);
    const DrawDatabase before = m_shared.database;
    Choose(Insert);
    SetDate(u"1/16/2000"_s);
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    m_prompts.expectedMessages = {39};
    Click(u"DCalc"_s);
    EXPECT_EQ(LastMessage(), u"Date cannot be greater than last record.1/15/2000"_s);
    EXPECT_EQ(m_shared.database.count, 5);
    EXPECT_TRUE(m_shared.database.records == before.records);
    ExpectAtRest(u"1/19/2000"_s);
}

TEST_F(Correcting, ARefusedRowKeepsTheInsertionOpen)
{
    OpenWith(5);
    Choose(Insert);
    SetDate(u"1/2/2000"_s);
    for (const Refused& row : RefusedRows()) {
        SetNumbers(row.boxes);
        m_prompts.expectedMessages = {row.message};
        Click(u"DCalc"_s);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_EQ(LastMessage(), row.text);
        EXPECT_EQ(Box(u"InDate"_s).text(), u"1/2/2000"_s);
        EXPECT_EQ(TextOf(u"InNew"_s), u"Insert"_s);
        EXPECT_EQ(m_shared.database.count, 5);
        ExpectPending(EditMode::Insert);
    }
    SetNumbers({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"49"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 6);
    EXPECT_EQ(DrawnIn(2), (std::vector{1, 2, 3, 4, 5, 49}));
}

TEST_F(Correcting, AnInsertionWithoutADateAsksForOne)
{
    OpenWith(5);
    Choose(Insert);
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    EXPECT_EQ(Box(u"InDate"_s).text(), QString());
    m_prompts.expectedMessages = {30};
    Click(u"DCalc"_s);
    EXPECT_EQ(LastMessage(), u"Not a proper date, Correct format: 11/18/2026"_s);
    EXPECT_EQ(m_shared.database.count, 5);
    EXPECT_EQ(NumberBox(5).text(), u"49"_s);
    EXPECT_EQ(FocusName(), u"InDate"_s);
    ExpectPending(EditMode::Insert);
    SetDate(u"1/2/2000"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 6);
    EXPECT_EQ(DateOf(2), QDate(2000, 1, 2));
}

TEST_F(Correcting, InsertsTheTwoThousandAndFirstRecordAndNoMore)
{
    OpenWith(2000);
    Choose(Insert);
    SetDate(u"12/1/1999"_s);
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(m_shared.database.count, 2001);
    EXPECT_EQ(DateOf(1), QDate(1999, 12, 1));
    m_prompts.expectedMessages = {45};
    Choose(Insert);
    EXPECT_EQ(LastMessage(), u"Max amount of records = 2000."_s);
    EXPECT_EQ(m_shared.editMode, EditMode::Normal);
    EXPECT_EQ(m_shared.SelectedRecord, 0);
    EXPECT_EQ(TextOf(u"InNew"_s), u"New"_s);
    EXPECT_TRUE(Find<QPushButton>(u"DCorrectRec"_s).isVisible());
    EXPECT_EQ(m_shared.database.count, 2001);
}

TEST_F(Correcting, TheGridGrowsWithInsertions)
{
    OpenWith(1);
    for (int inserted = 1; inserted <= 21; ++inserted) {
        Choose(Insert);
        SetDate(u"1/1/1999"_s);
        TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
        Click(u"DCalc"_s);
    }
    EXPECT_EQ(m_shared.database.count, 22);
    EXPECT_EQ(Find<QTableView>(u"DGrid1"_s).model()->rowCount() + 1, 45);
    ExpectAtRest(u"1/5/2000"_s);
}

// Delete

TEST_F(Correcting, DeletesTheThirdOfTenAtOnce)
{
    OpenWith(10);
    m_shared.database.modified = 0;
    Choose(Delete, u"3"_s);
    EXPECT_EQ(m_shared.database.count, 9);
    for (int row = 1; row <= 9; ++row) {
        EXPECT_EQ(DrawnIn(row).at(0), row < 3 ? row : row + 1);
        EXPECT_TRUE(row == 1 || DateOf(row - 1) < DateOf(row));
    }
    EXPECT_EQ(Record(10), DrawRecord{});
    EXPECT_EQ(m_shared.database.modified, 0);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 2), u"2"_s); // the 3 is in records 1 and 2 only now
    ExpectAtRest(u"2/5/2000"_s);
}

TEST_F(Correcting, DeletesTheLastAndTakesItsDateForTheNextDraw)
{
    OpenWith(2);
    Choose(Delete, u"2"_s);
    EXPECT_EQ(m_shared.database.count, 1);
    ExpectAtRest(u"1/5/2000"_s);
}

TEST_F(Correcting, DeletesTheOnlyRecord)
{
    OpenWith(1);
    ClickGridRow(0);
    Choose(Delete);
    EXPECT_EQ(m_shared.database.count, 0);
    EXPECT_TRUE(m_shared.database.records == DrawDatabase().records);
    EXPECT_EQ(m_shared.database.title, u"Test 6/49"_s);
    ExpectAtRest(u"11/18/2026"_s);
    m_prompts.expectedMessages = {18};
    Click(u"DCorrectRec"_s);
}

TEST_F(Correcting, DeletesInAnOverfullDatabase)
{
    m_prompts.expectedMessages = {45};
    OpenWith(2001);
    Choose(Delete, u"2001"_s);
    EXPECT_EQ(m_shared.database.count, 2000);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"2000"_s);
    Choose(Insert); // there is room again
    ExpectPending(EditMode::Insert);
}

TEST_F(Correcting, ASavedFileHoldsNoTraceOfADeletion)
{
    OpenWith(4);
    m_shared.database.records[3].date = QDate(2600, 1, 1); // later than the mark
    for (const QString& number : {u"2"_s, u"1"_s}) {
        Choose(Delete, number);
    }
    Click(u"DExit"_s);
    const QString path = m_folder.filePath(u"Deleted.Lto"_s);
    m_prompts.files = {path};
    Click(u"SaveFile"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_EQ(bytes.count("2500-"), 0) << bytes.toStdString();
    EXPECT_EQ(bytes.count("2600-01-01"), 1) << bytes.toStdString();
    EXPECT_EQ(bytes.count("-"), 4) << bytes.toStdString(); // two dates
}

TEST_F(Correcting, TheMarkOfADeletionIsNoDateOfADraw)
{
    OpenWith(3);
    const auto typeMark = [this] {
        m_prompts.expectedMessages = {30};
        SetDate(u"2/19/2500"_s);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
    };
    typeMark();
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/12/2000"_s);
    Choose(Correct, u"2"_s);
    typeMark();
    EXPECT_EQ(Box(u"InDate"_s).text(), u"1/5/2000"_s);
    SetDate(u"2/18/2499"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), u"2/18/2499"_s);
}

// Sort

TEST_F(Correcting, SortsAllRecordsByDate)
{
    FillDatabase(5);
    std::swap(Record(1).date, Record(5).date);
    Record(3).number = 99;
    OpenEditor();
    Choose(Sort);
    for (int row = 2; row <= 5; ++row) {
        EXPECT_LT(DateOf(row - 1), DateOf(row));
    }
    EXPECT_EQ(DrawnIn(1).at(0), 5);
    EXPECT_EQ(DrawnIn(5).at(0), 1);
    EXPECT_EQ(m_shared.database.modified, 0);
    ExpectAtRest(u"1/19/2000"_s);
}

TEST_F(Correcting, TheStatisticsFollowTheNewOrder)
{
    FillDatabase(2);
    std::swap(Record(1).date, Record(2).date);
    OpenEditor();
    ClickBox(u"WhichCnt"_s);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), u"1"_s); // the 1 was drawn a draw ago
    Choose(Sort);
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), u"0"_s); // in the last draw
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
}

// The busy pointer

TEST_F(Correcting, TheBusyPointerIsShownDuringEachTask)
{
    OpenWith(5);
    const std::deque<bool> shownAndTakenAway{true, false};
    const auto during = [this](const std::function<void()>& act) {
        m_prompts.busyChanges.clear();
        act();
        return m_prompts.busyChanges;
    };
    const auto add = [this] { Click(u"DCalc"_s); };
    Choose(Correct, u"2"_s);
    SetNumbers({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    EXPECT_EQ(during(add), shownAndTakenAway) << "correct";
    Choose(Insert);
    SetDate(u"1/2/2000"_s);
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    EXPECT_EQ(during(add), shownAndTakenAway) << "insert";
    EXPECT_EQ(during([this] { Choose(Delete, u"2"_s); }), shownAndTakenAway) << "delete";
    EXPECT_EQ(during([this] { Choose(Sort); }), shownAndTakenAway) << "sort";
    Choose(Correct, u"2"_s);
    SetDate(u"1/16/2000"_s);
    m_prompts.expectedMessages = {39};
    EXPECT_EQ(during(add), shownAndTakenAway) << "a date that was refused";
    ExpectAtRest(u"1/19/2000"_s);
}

// Dates that cannot be read

TEST_F(Correcting, ARecordWithoutADateComesFirstAndIsSaid)
{
    FillDatabase(4);
    Record(3).date = u"yesterday"_s;
    OpenEditor();
    const QString reason = u"Records without a date that can be read: 1. They stand before all others."_s;
    m_prompts.expectedMessages = {23};
    Choose(Sort);
    EXPECT_EQ(LastMessage(), u"Cannot sort file."_s);
    EXPECT_EQ(LastReason(), reason);
    EXPECT_EQ(m_shared.database.count, 4);
    EXPECT_EQ(Record(1).date, ::Cell(u"yesterday"_s));
    EXPECT_EQ(DrawnIn(1).at(0), 3);
    ExpectAtRest(u"1/15/2000"_s);

    m_prompts.expectedMessages = {23};
    Choose(Delete, u"4"_s);
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_EQ(LastReason(), reason);
    ExpectAtRest(u"1/8/2000"_s);

    Choose(Delete, u"1"_s); // the record itself goes without a word
    EXPECT_EQ(m_shared.database.count, 2);
    ExpectAtRest(u"1/8/2000"_s);
}

TEST_F(Correcting, ARecordWithoutADateIsGivenOne)
{
    FillDatabase(4);
    Record(3).date = u"yesterday"_s;
    OpenEditor();
    Choose(Correct, u"3"_s);
    EXPECT_EQ(Box(u"InDate"_s).text(), QString());
    EXPECT_EQ(NumberBox(0).text(), u"3"_s);
    // Going through the empty box puts no date into it that nobody typed.
    Box(u"InDate"_s).setFocus(Qt::TabFocusReason);
    NumberBox(0).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Box(u"InDate"_s).text(), QString());
    m_prompts.expectedMessages = {30};
    Click(u"DCalc"_s);
    EXPECT_EQ(Record(3).date, ::Cell(u"yesterday"_s));
    ExpectPending(EditMode::Correct);
    SetDate(u"1/8/2000"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(DateOf(3), QDate(2000, 1, 8));
    EXPECT_EQ(DrawnIn(3).at(0), 3);
    ExpectAtRest(u"1/15/2000"_s);
}

TEST_F(Correcting, TheLastRecordWithoutADateIsGivenAnyDate)
{
    FillDatabase(3);
    Record(3).date = u"yesterday"_s;
    OpenEditor();
    Choose(Correct, u"3"_s);
    SetDate(u"5/6/2030"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(DateOf(3), QDate(2030, 5, 6));
}

// Half a row, leaving, coming back

TEST_F(Correcting, ADrawThatIsHalfTypedKeepsItsDate)
{
    OpenWith(5);
    const std::vector<std::function<void()>> tasks{[this] { Choose(Delete, u"2"_s); },
                                                   [this] { Choose(Sort); }};
    for (const auto& task : tasks) {
        SetDate(u"6/7/2001"_s);
        TypeDraw({u"44"_s, u"45"_s});
        task();
        EXPECT_EQ(Box(u"InDate"_s).text(), u"6/7/2001"_s);
        EXPECT_EQ(NumberTexts().mid(0, 3), (QStringList{u"44"_s, u"45"_s, QString()}));
    }
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    Click(u"DCalc"_s);
    EXPECT_EQ(DateOf(5), QDate(2001, 6, 7));
}

TEST_F(Correcting, LeavingGivesTheCorrectionUp)
{
    OpenWith(5);
    const DrawDatabase before = m_shared.database;
    for (const Option option : {Correct, Insert}) {
        Choose(option, option == Correct ? u"2"_s : QString());
        SetDate(u"1/2/2000"_s);
        SetNumbers({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
        Click(u"DExit"_s);
        EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LotoMenu"_s);
        EXPECT_EQ(m_shared.editMode, EditMode::Normal);
        EXPECT_EQ(m_shared.SelectedRecord, 0);
        Click(u"DBaseForm"_s);
        EXPECT_TRUE(m_shared.database.records == before.records);
        ExpectAtRest(u"1/19/2000"_s);
    }
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    Click(u"DCalc"_s); // an ordinary new record again
    EXPECT_EQ(m_shared.database.count, 6);
    EXPECT_EQ(DateOf(6), QDate(2000, 1, 19));
    EXPECT_EQ(m_shared.database.modified, 1);
}

TEST_F(Correcting, TheAccessKeysOfHiddenButtonsDoNothing)
{
    OpenWith(5);
    Choose(Correct, u"2"_s);
    for (const Qt::Key key : {Qt::Key_R, Qt::Key_D, Qt::Key_S}) {
        QTest::keyClick(&m_window, key, Qt::AltModifier);
        QTest::qWait(150); // the time a button stays down after its access key
    }
    EXPECT_EQ(m_prompts.askedTexts, QStringList{});
    EXPECT_EQ(m_prompts.notices, QStringList{});
    ExpectPending(EditMode::Correct);
}

TEST_F(Correcting, HelpAndCountsCanBeLookedAtMeanwhile)
{
    OpenWith(5);
    Choose(Correct, u"2"_s);
    Click(u"DHelp"_s);
    EXPECT_TRUE(Find<QPlainTextEdit>(u"HelpBoxD"_s).isVisible());
    Click(u"DHelp"_s);
    ClickBox(u"WhichCnt"_s);
    ExpectPending(EditMode::Correct);
    EXPECT_EQ(TextOf(u"InNew"_s), u"2"_s);
    EXPECT_EQ(NumberBox(0).text(), u"2"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(DrawnIn(2).at(0), 2);
}

TEST_F(Correcting, ARowClickedMeanwhileIsNotOfferedOnceTheRecordsHaveMoved)
{
    OpenWith(5);
    Choose(Correct, u"2"_s);
    ClickGridRow(1); // record 4
    SetDate(u"12/1/1999"_s);
    Click(u"DCalc"_s);
    ExpectAtRest(u"1/19/2000"_s);
}

TEST_F(Correcting, AfterEachTaskTheNextDrawIsAdded)
{
    OpenWith(5);
    Choose(Correct, u"1"_s);
    Click(u"DCalc"_s);
    Choose(Insert);
    SetDate(u"1/2/2000"_s);
    TypeDraw({u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s});
    Click(u"DCalc"_s);
    Choose(Delete, u"2"_s);
    Choose(Sort);
    EXPECT_EQ(m_shared.database.modified, 0);
    for (const QString& number : {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}) {
        QTest::keyClicks(m_window.focusWidget(), number);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    }
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_shared.database.count, 6);
    EXPECT_EQ(DateOf(6), QDate(2000, 1, 19));
    EXPECT_EQ(m_shared.database.modified, 1);
}

// The whole way

TEST_F(Correcting, TheWholeWayByTheKeyboardAlone)
{
    OpenWith(5);
    const auto type = [this](const QString& text) {
        QTest::keyClicks(m_window.focusWidget(), text);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    };
    int seen = 0;
    const auto openDialog = [&](const std::function<void(QWidget&)>& act) {
        const int before = seen;
        OnDialog([&, act](QWidget& dialog) {
            act(dialog);
            ++seen;
        });
        QTest::keyClick(&m_window, Qt::Key_R, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return seen > before; }));
        ASSERT_TRUE(Activate(m_window));
        Settle();
    };
    const auto choose = [](QWidget& dialog, int option) { // from the box back to the options
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        for (int i = 0; i < option; ++i) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
        }
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    };

    openDialog([](QWidget& dialog) {
        QTest::keyClicks(dialog.focusWidget(), u"2"_s);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    ExpectPending(EditMode::Correct);
    for (const QString& number : {u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s}) {
        type(number);
    }
    EXPECT_EQ(FocusName(), u"DCalc"_s);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(DrawnIn(2), (std::vector{44, 45, 46, 47, 48, 49}));

    openDialog([&](QWidget& dialog) {
        choose(dialog, Insert);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    ExpectPending(EditMode::Insert);
    type(u"1/2/2000"_s);
    for (const QString& number : {u"14"_s, u"15"_s, u"16"_s, u"17"_s, u"18"_s, u"19"_s}) {
        type(number);
    }
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_shared.database.count, 6);
    EXPECT_EQ(DrawnIn(2), (std::vector{14, 15, 16, 17, 18, 19}));

    openDialog([&](QWidget& dialog) {
        choose(dialog, Delete);
        QTest::keyClicks(dialog.focusWidget(), u"1"_s);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(m_shared.database.count, 5);
    EXPECT_EQ(DrawnIn(1), (std::vector{14, 15, 16, 17, 18, 19}));

    std::swap(Record(1).date, Record(5).date);
    openDialog([&](QWidget& dialog) {
        choose(dialog, Sort);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(DrawnIn(5), (std::vector{14, 15, 16, 17, 18, 19}));
    ExpectAtRest(u"1/19/2000"_s);
    QTest::keyClick(&m_window, Qt::Key_X, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window.ActiveForm()->objectName() == u"LotoMenu"_s; }));
}

TEST_F(Correcting, TheWholeWayByTheMouseAndDigitsAlone)
{
    OpenWith(5);
    ClickGridRow(3); // record 2
    Choose(Correct);
    ExpectPending(EditMode::Correct);
    QTest::mouseClick(&NumberBox(0), Qt::LeftButton);
    EXPECT_EQ(NumberBox(0).text(), QString());
    QTest::keyClicks(&NumberBox(0), u"49"_s);
    Click(u"DCalc"_s);
    EXPECT_EQ(DrawnIn(2).at(0), 49);

    Choose(Insert);
    QTest::mouseClick(&Box(u"InDate"_s), Qt::LeftButton);
    QTest::keyClicks(&Box(u"InDate"_s), u"1/2/2000"_s);
    for (int i = 0; i < 6; ++i) {
        QTest::mouseClick(&NumberBox(i), Qt::LeftButton);
        QTest::keyClicks(&NumberBox(i), QString::number(20 + i));
    }
    Click(u"DCalc"_s);
    EXPECT_EQ(DrawnIn(2), (std::vector{20, 21, 22, 23, 24, 25}));
    EXPECT_EQ(DateOf(2), QDate(2000, 1, 2));

    ClickGridRow(5); // record 1
    Choose(Delete);
    EXPECT_EQ(m_shared.database.count, 5);
    EXPECT_EQ(DateOf(1), QDate(2000, 1, 2));

    std::swap(Record(1).date, Record(5).date);
    Choose(Sort);
    EXPECT_EQ(DrawnIn(5).at(0), 20);
    ExpectAtRest(u"1/19/2000"_s);
    Click(u"DExit"_s);
    EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LotoMenu"_s);
}

} // namespace
