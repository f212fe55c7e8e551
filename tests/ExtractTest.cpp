#include "database/Extract.h"

#include "app/FileDir.h"
#include "database/ExtractHelp.h"
#include "tests/FormBench.h"

#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class ExtractForm : public FormBench
{
protected:
    /// Starts on the menu with so many records in memory.
    void StartWith(int records)
    {
        Start();
        FillDatabase(records);
    }
    /// Opens the form from the menu; the act has to close it.
    void Extracting(const std::function<void(QWidget& form)>& act)
    {
        OnDialog([this, act](QWidget& form) {
            m_form = &form;
            act(form);
            m_form = nullptr;
        });
        Click(u"SelectRec"_s);
        Settle();
        ASSERT_TRUE(Activate(m_window));
    }
    InputBox& Low() { return In<InputBox>(*m_form, u"LowRecNo"_s); }
    InputBox& High() { return In<InputBox>(*m_form, u"HighRecNo"_s); }
    void Press(const QString& button)
    {
        ClickIn(*m_form, button);
        Settle();
    }
    static void TypeInBox(InputBox& box, const QString& text)
    {
        box.setFocus(Qt::TabFocusReason);
        box.clear();
        QTest::keyClicks(&box, text);
    }
    /// Types, leaves the box and lets its message come.
    static void Enter(InputBox& box, const QString& text)
    {
        TypeInBox(box, text);
        QTest::keyClick(&box, Qt::Key_Return);
        Settle();
    }
    QString FormFocus()
    {
        return m_form->focusWidget() == nullptr ? QString() : m_form->focusWidget()->objectName();
    }
    QString FrontForm() const
    {
        return m_window.ActiveForm() == nullptr ? QString() : m_window.ActiveForm()->objectName();
    }

    QWidget* m_form = nullptr;
};

TEST_F(ExtractForm, OpensOnAllRecordsWithItsTexts)
{
    StartWith(57);
    Extracting([this](QWidget& form) {
        EXPECT_EQ(form.objectName(), u"Extract"_s);
        EXPECT_TRUE(form.isModal());
        EXPECT_EQ(form.windowTitle(), u"Extract"_s);
        EXPECT_EQ(m_window.windowTitle(), u" Extract"_s);
        EXPECT_EQ(FrontForm(), QString());
        EXPECT_FALSE(Find<QWidget>(u"LotoMenu"_s).isVisible());
        EXPECT_EQ(In<QGroupBox>(form, u"Frame1"_s).title(), u"Extract records from between two dates."_s);
        EXPECT_EQ(In<QLabel>(form, u"Label1"_s).text(), u"Starting record number (Low)"_s);
        EXPECT_EQ(In<QLabel>(form, u"Label2"_s).text(), u"Ending record number (High)"_s);
        EXPECT_EQ(In<QPushButton>(form, u"EExtractRecs"_s).text(), u"&Extract Records"_s);
        EXPECT_EQ(In<QPushButton>(form, u"EExit"_s).text(), u"&Cancel"_s);
        EXPECT_EQ(In<QPushButton>(form, u"EHelp"_s).text(), u"Quick &Help"_s);
        EXPECT_FALSE(In<QPlainTextEdit>(form, u"ETextBox"_s).isVisible());
        EXPECT_EQ(Low().text(), u"1"_s);
        EXPECT_EQ(High().text(), u"57"_s);
        EXPECT_EQ(m_shared.extractLow, 1.0F);
        EXPECT_EQ(m_shared.extractHigh, 57.0F);
        EXPECT_EQ(FormFocus(), u"LowRecNo"_s);
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, EveryBoxCanBeSpokenOfByAScreenReader)
{
    StartWith(3);
    Extracting([this](QWidget& form) {
        EXPECT_EQ(In<QLabel>(form, u"Label1"_s).buddy(), &Low());
        EXPECT_EQ(In<QLabel>(form, u"Label2"_s).buddy(), &High());
        EXPECT_EQ(In<QPlainTextEdit>(form, u"ETextBox"_s).accessibleName(), u"Quick Help"_s);
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, NeedsRecords)
{
    Start();
    m_prompts.expectedMessages = {44};
    Click(u"SelectRec"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
}

TEST_F(ExtractForm, ExtractsTheRangeAndShowsItInTheEditor)
{
    StartWith(20);
    const DrawDatabase before = m_shared.database;
    Extracting([this](QWidget& form) {
        Enter(Low(), u"5"_s);
        EXPECT_EQ(FormFocus(), u"HighRecNo"_s);
        Enter(High(), u"9"_s);
        EXPECT_EQ(FormFocus(), u"EExtractRecs"_s);
        Press(u"EExtractRecs"_s);
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
    EXPECT_EQ(m_shared.database.count, 5);
    EXPECT_EQ(m_shared.database.title, u"Extracted"_s);
    EXPECT_EQ(m_shared.database.fileName, u"Extract.lto"_s);
    EXPECT_EQ(m_shared.database.modified, 0);
    EXPECT_EQ(m_shared.database.drawDays, before.drawDays);
    EXPECT_EQ(m_shared.database.Shape(), before.Shape());
    EXPECT_EQ(Box(u"InFileName"_s).text(), u"Extracted"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 0), u"   5"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 1), u"1/29/2000"_s); // record 9
    EXPECT_EQ(Cell(u"DGrid1"_s, 0, 2), u"  9"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 4, 0), u"   1"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 4, 2), u"  5"_s);
    EXPECT_EQ(Cell(u"DGrid1"_s, 5, 0), QString());
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 0), u"0"_s); // the 1 is in no record that is left
    EXPECT_EQ(Cell(u"DGrid2"_s, 0, 8), u"5"_s);
}

TEST_F(ExtractForm, TheBusyPointerIsShownUntilTheEditorShowsTheRange)
{
    StartWith(20);
    Extracting([this](QWidget&) {
        Press(u"EHelp"_s);
        EXPECT_TRUE(m_prompts.busyChanges.empty());
        Press(u"EExtractRecs"_s);
    });
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
}

TEST_F(ExtractForm, ByTheKeyboardAlone)
{
    StartWith(20);
    QTest::keyClick(&m_window, Qt::Key_E, Qt::AltModifier);
    bool extracted = false;
    OnDialog([&](QWidget& form) {
        m_form = &form;
        for (const QString& bound : {u"3"_s, u"4"_s}) {
            QTest::keyClicks(form.focusWidget(), bound);
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        }
        QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        extracted = true;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return extracted && FrontForm() == u"LDbase"_s; }));
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(CellNumber(m_shared.database.records[1].drawn[0]), 3);
}

TEST_F(ExtractForm, ByTheMouseAlone)
{
    StartWith(20);
    Extracting([this](QWidget& form) {
        QTest::mouseClick(&Low(), Qt::LeftButton);
        EXPECT_EQ(Low().text(), QString());
        QTest::keyClicks(&Low(), u"19"_s);
        QTest::mouseClick(&High(), Qt::LeftButton);
        EXPECT_EQ(Low().text(), u"19"_s);
        EXPECT_EQ(High().text(), QString());
        QTest::keyClicks(&High(), u"20"_s);
        ClickIn(form, u"EExtractRecs"_s);
    });
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(CellNumber(m_shared.database.records[2].drawn[0]), 20);
}

TEST_F(ExtractForm, TheAccessKeyChecksTheBoxItLeaves)
{
    StartWith(20);
    Extracting([this](QWidget& form) {
        TypeInBox(Low(), u"18"_s);
        QTest::keyClick(&form, Qt::Key_E, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
    });
    EXPECT_EQ(m_shared.database.count, 3);
}

TEST_F(ExtractForm, UntouchedItCopiesTheWholeDatabase)
{
    StartWith(0);
    for (const int records : {1, 2, 2000}) {
        m_shared.database.Empty();
        FillDatabase(records);
        const DrawDatabase before = m_shared.database;
        Extracting([this](QWidget&) { Press(u"EExtractRecs"_s); });
        EXPECT_EQ(m_shared.database.count, records);
        EXPECT_EQ(m_shared.database.title, u"Extracted"_s);
        EXPECT_TRUE(m_shared.database.records == before.records) << records;
        Click(u"DExit"_s);
    }
}

TEST_F(ExtractForm, AnOverfullDatabaseIsExtractedWholeAndInPart)
{
    StartWith(2001);
    m_prompts.expectedMessages = {45}; // the editor's
    Extracting([this](QWidget&) {
        EXPECT_EQ(High().text(), u"2001"_s);
        Press(u"EExtractRecs"_s);
    });
    EXPECT_EQ(m_shared.database.count, 2001);
    EXPECT_TRUE(m_prompts.expectedMessages.empty());
    Click(u"DExit"_s);
    Extracting([this](QWidget&) {
        Enter(Low(), u"2001"_s);
        Press(u"EExtractRecs"_s);
    });
    EXPECT_EQ(m_shared.database.count, 1);
    EXPECT_EQ(CellNumber(m_shared.database.records[1].number), 1);
}

TEST_F(ExtractForm, LowEqualToHighLeavesOneRecord)
{
    StartWith(20);
    Extracting([this](QWidget&) {
        Enter(Low(), u"7"_s);
        Enter(High(), u"7"_s);
        Press(u"EExtractRecs"_s);
    });
    EXPECT_EQ(m_shared.database.count, 1);
    EXPECT_EQ(CellNumber(m_shared.database.records[1].number), 1);
    EXPECT_EQ(CellNumber(m_shared.database.records[1].drawn[0]), 7);
}

TEST_F(ExtractForm, ALowNumberOutOfBoundsBringsTheMessageAndOne)
{
    StartWith(57);
    Extracting([this](QWidget&) {
        for (const QString& typed : {u"0"_s, u""_s, u"58"_s, u"000"_s, u"99999999999999"_s}) {
            Enter(Low(), u"30"_s);
            EXPECT_EQ(m_shared.extractLow, 30.0F);
            m_prompts.expectedMessages = {43};
            Enter(Low(), typed);
            EXPECT_TRUE(m_prompts.expectedMessages.empty()) << typed.toStdString();
            EXPECT_EQ(LastMessage(), u"Must be between  1 and  57"_s);
            EXPECT_EQ(Low().text(), u"1"_s);
            EXPECT_EQ(m_shared.extractLow, 1.0F);
            EXPECT_EQ(m_shared.entryEdited, 0);
        }
        for (const QString& typed : {u"1"_s, u"57"_s, u"008"_s}) {
            Enter(Low(), typed);
            EXPECT_EQ(Low().text(), QString::number(typed.toInt()));
            EXPECT_EQ(m_shared.extractLow, typed.toFloat());
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, AHighNumberOutOfBoundsBringsTheMessageAndTheCount)
{
    StartWith(57);
    Extracting([this](QWidget&) {
        Enter(Low(), u"10"_s);
        for (const QString& typed : {u"9"_s, u"1"_s, u"58"_s, u"99999999999999"_s}) {
            Enter(High(), u"30"_s);
            EXPECT_EQ(m_shared.extractHigh, 30.0F);
            m_prompts.expectedMessages = {43};
            Enter(High(), typed);
            EXPECT_TRUE(m_prompts.expectedMessages.empty()) << typed.toStdString();
            EXPECT_EQ(LastMessage(), u"Must be between  10 and  57"_s);
            EXPECT_EQ(High().text(), u"57"_s);
            EXPECT_EQ(m_shared.extractHigh, 57.0F);
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, AnEmptyOrZeroHighNumberIsTheCountWithoutAWord)
{
    StartWith(57);
    Extracting([this](QWidget&) {
        for (const QString& typed : {u""_s, u"0"_s, u"000"_s}) {
            Enter(High(), u"30"_s);
            Enter(High(), typed);
            EXPECT_EQ(High().text(), u"57"_s);
            EXPECT_EQ(m_shared.extractHigh, 57.0F);
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, LowAboveHighIsRefusedAndTheFormStays)
{
    StartWith(20);
    const DrawDatabase before = m_shared.database;
    Extracting([this, &before](QWidget& form) {
        Enter(High(), u"5"_s);
        TypeInBox(Low(), u"6"_s);
        m_prompts.expectedMessages = {47};
        Press(u"EExtractRecs"_s);
        EXPECT_EQ(LastMessage(), u"Low number is greater than High."_s);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(m_shared.database.count, 20);
        EXPECT_TRUE(m_shared.database.records == before.records);
        EXPECT_EQ(m_shared.database.title, u"Test 6/49"_s);
        // Leaving the high box brings its own message; then the whole rest is extracted.
        m_prompts.expectedMessages = {43};
        Enter(High(), u"5"_s);
        EXPECT_EQ(LastMessage(), u"Must be between  6 and  20"_s);
        Press(u"EExtractRecs"_s);
    });
    EXPECT_EQ(m_shared.database.count, 15);
}

TEST_F(ExtractForm, ABoxOutOfBoundsHoldsTheExtractBack)
{
    StartWith(20);
    Extracting([this](QWidget& form) {
        TypeInBox(Low(), u"21"_s);
        m_prompts.expectedMessages = {43};
        Press(u"EExtractRecs"_s);
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(m_shared.database.count, 20);
        Press(u"EExtractRecs"_s);
    });
    EXPECT_EQ(m_shared.database.title, u"Extracted"_s);
}

TEST_F(ExtractForm, TheBoxesTakeDigitsOnlyAndTheFirstReplaces)
{
    StartWith(57);
    Extracting([this](QWidget&) {
        for (InputBox* box : {&Low(), &High()}) {
            QSignalSpy refused(box, &InputBox::KeyRefused);
            box->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(box, u"a2b.-5"_s);
            EXPECT_EQ(box->text(), u"25"_s);
            EXPECT_EQ(refused.count(), 4);
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, CancelEscapeAndTheWindowFrameLeaveTheDatabaseAndShowTheEditor)
{
    const std::vector<std::function<void(QWidget&)>> ways{
        [](QWidget& form) { ClickIn(form, u"EExit"_s); },
        [](QWidget& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Escape); },
        [](QWidget& form) { form.close(); },
        [](QWidget& form) { QTest::keyClick(&form, Qt::Key_C, Qt::AltModifier); },
    };
    StartWith(20);
    const DrawDatabase before = m_shared.database;
    for (const auto& close : ways) {
        QString captionAfter;
        Extracting([&](QWidget& form) {
            Enter(Low(), u"5"_s);
            close(form);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
            captionAfter = m_window.windowTitle();
        });
        EXPECT_EQ(captionAfter, u" Quillaby Menu"_s);
        EXPECT_EQ(FrontForm(), u"LDbase"_s);
        EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
        EXPECT_EQ(m_shared.database.count, 20);
        EXPECT_EQ(m_shared.database.title, u"Test 6/49"_s);
        EXPECT_EQ(m_shared.database.fileName, u"Test.Lto"_s);
        EXPECT_TRUE(m_shared.database.records == before.records);
        Click(u"DExit"_s);
        EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    }
}

TEST_F(ExtractForm, OpensAnewEachTime)
{
    StartWith(20);
    Extracting([this](QWidget&) {
        Enter(Low(), u"5"_s);
        Enter(High(), u"9"_s);
        Press(u"EHelp"_s);
        Press(u"EExit"_s);
    });
    Click(u"DExit"_s);
    Extracting([this](QWidget& form) {
        EXPECT_EQ(Low().text(), u"1"_s);
        EXPECT_EQ(High().text(), u"20"_s);
        EXPECT_EQ(m_shared.extractLow, 1.0F);
        EXPECT_EQ(m_shared.extractHigh, 20.0F);
        EXPECT_FALSE(In<QPlainTextEdit>(form, u"ETextBox"_s).isVisible());
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, TheQuickHelpOpensAndCloses)
{
    StartWith(3);
    Extracting([this](QWidget& form) {
        auto& help = In<QPlainTextEdit>(form, u"ETextBox"_s);
        auto& button = In<QPushButton>(form, u"EHelp"_s);
        for (int round = 0; round < 2; ++round) {
            Press(u"EHelp"_s);
            EXPECT_TRUE(help.isVisible());
            EXPECT_TRUE(help.isReadOnly());
            EXPECT_EQ(help.toPlainText(), ExtractHelpText());
            EXPECT_EQ(button.text(), u"Close &Help"_s);
            EXPECT_FALSE(help.verticalScrollBar()->isVisible());
            EXPECT_TRUE(form.rect().contains(QRect(help.mapTo(&form, QPoint()), help.size())));
            Press(u"EHelp"_s);
            EXPECT_FALSE(help.isVisible());
            EXPECT_EQ(button.text(), u"Quick &Help"_s);
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, OpeningTheHelpChecksTheBoxItLeaves)
{
    StartWith(3);
    Extracting([this](QWidget& form) {
        TypeInBox(High(), u"2"_s);
        Press(u"EHelp"_s);
        EXPECT_EQ(m_shared.extractHigh, 2.0F);
        EXPECT_EQ(In<QPushButton>(form, u"EHelp"_s).text(), u"Close &Help"_s);
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, StandsAtItsDistanceFromTheMainWindowInBothLayouts)
{
    StartWith(3);
    const struct {
        int height;
        QPoint offset;
    } cases[] = {{458, {133, 87}}, {566, {133, 87}}, {567, {213, 147}}};
    for (const auto& place : cases) {
        m_window.resize(900, place.height);
        Settle();
        Extracting([&](QWidget& form) {
            EXPECT_EQ(form.pos() - m_window.frameGeometry().topLeft(), place.offset) << place.height;
            Press(u"EExit"_s);
        });
        Click(u"DExit"_s);
    }
}

TEST_F(ExtractForm, NothingIsClippedWithTheHelpOpenOrClosed)
{
    StartWith(2000);
    Extracting([this](QWidget& form) {
        for (int round = 0; round < 2; ++round) {
            const QRect inside = form.rect();
            for (const QWidget* widget : form.findChildren<QWidget*>()) {
                if (!widget->isVisible() || widget->parentWidget()->inherits("QAbstractScrollArea") ||
                    widget->parentWidget()->objectName() == u"qt_scrollarea_viewport"_s) {
                    continue;
                }
                const QRect place(widget->mapTo(&form, QPoint()), widget->size());
                EXPECT_TRUE(inside.contains(place)) << widget->objectName().toStdString();
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << widget->objectName().toStdString();
            }
            EXPECT_TRUE(form.screen()->availableGeometry().contains(form.frameGeometry()));
            Press(u"EHelp"_s);
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, SavingAfterwardsProposesAFileOfItsOwnAndExitAsksNothing)
{
    StartWith(20);
    Extracting([this](QWidget&) {
        Enter(Low(), u"15"_s);
        Press(u"EExtractRecs"_s);
    });
    m_shared.fileDialogMode = kSaveLotteryFile;
    EXPECT_EQ(FileDir::ProposedName(m_shared), u"Extract.lto"_s);
    EXPECT_TRUE(m_window.close());
    EXPECT_EQ(m_prompts.askedTexts, QStringList{});
}

TEST_F(ExtractForm, UnsavedRecordsStayUnsaved)
{
    StartWith(20);
    m_shared.database.modified = 1;
    Extracting([this](QWidget&) { Press(u"EExtractRecs"_s); });
    EXPECT_EQ(m_shared.database.modified, 1);
}

TEST_F(ExtractForm, TheTabKeyWalksInReadingOrder)
{
    StartWith(3);
    Extracting([this](QWidget& form) {
        for (const QString& next :
             {u"HighRecNo"_s, u"EExtractRecs"_s, u"EExit"_s, u"EHelp"_s, u"LowRecNo"_s}) {
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(FormFocus(), next);
        }
        Press(u"EExit"_s);
    });
}

TEST_F(ExtractForm, EnterOnAButtonPressesIt)
{
    StartWith(3);
    Extracting([](QWidget& form) {
        In<QPushButton>(form, u"EHelp"_s).setFocus();
        QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(In<QPushButton>(form, u"EHelp"_s).text(), u"Close &Help"_s);
        In<QPushButton>(form, u"EExit"_s).setFocus();
        QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(m_shared.database.title, u"Test 6/49"_s);
}

} // namespace
