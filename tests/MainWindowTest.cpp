#include "tests/FormBench.h"
#include "tests/PrintedPages.h"
#include "tests/ToolTipText.h"

#include <QAction>
#include <QCloseEvent>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class MainWindow : public FormBench
{
protected:
    void WriteFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QPushButton& Button(const QString& name) { return Find<QPushButton>(name); }
    QString FrontForm() const
    {
        return m_window.ActiveForm() == nullptr ? QString() : m_window.ActiveForm()->objectName();
    }
};

const QByteArray kTwoDraws =
    "2,8,49,\"Lotto 6/49\"\r\n,0\r\n,0\r\n,0\r\n,4\r\n,0\r\n,0\r\n,7\r\n,0\r\n,0\r\n,0\r\n"
    "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
    "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";

TEST_F(MainWindow, OpensOnTheMenuAtTheUpperLeftInItsSize)
{
    Start();
    EXPECT_EQ(m_window.objectName(), u"MDIContainer"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    EXPECT_EQ(m_window.pos(), QPoint(0, 0));
    EXPECT_EQ(m_window.size(), QSize(641, 458));
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(TextOf(u"Label2"_s), u"Quillaby System"_s);
    EXPECT_EQ(TextOf(u"InfoLabel"_s), QString());
    EXPECT_EQ(QDir::currentPath(), QDir(m_folder.path()).canonicalPath());
}

TEST_F(MainWindow, TheMenuHasItsTwelveButtons)
{
    const QList<QPair<QString, QString>> expected{
        {u"DBaseForm"_s, u"&View and Edit Database"_s},
        {u"LoadFile"_s, u"&Open a File from Disk"_s},
        {u"SaveFile"_s, u"&Save File to Disk"_s},
        {u"PickForm"_s, u"&Selectorium"_s},
        {u"CheckWin"_s, u"Check &Winners"_s},
        {u"ShowGraph1"_s, u"Show &Graphs"_s},
        {u"SelectRec"_s, u"&Extract between two Dates"_s},
        {u"InvTrack"_s, u"&Investment Tracker"_s},
        {u"PtrFnt"_s, u"Persona&lize Settings"_s},
        {u"PrintDbase"_s, u"Print &Current Database"_s},
        {u"HowtoUse"_s, u"How to &Use the Program"_s},
        {u"Exit1Butt"_s, u"E&xit from Program"_s},
    };
    for (const auto& [name, caption] : expected) {
        EXPECT_EQ(Button(name).text(), caption) << name.toStdString();
    }
    EXPECT_EQ(m_window.findChildren<QPushButton*>().size(), expected.size());
}

TEST_F(MainWindow, AnAccessKeyPressesItsButton)
{
    Start();
    for (const QString& name : {u"DBaseForm"_s, u"LoadFile"_s, u"CheckWin"_s, u"ShowGraph1"_s, u"SelectRec"_s,
                                u"InvTrack"_s, u"PtrFnt"_s, u"PrintDbase"_s, u"HowtoUse"_s, u"Exit1Butt"_s}) {
        QPushButton& button = Button(name);
        QObject::disconnect(&button, &QPushButton::clicked, nullptr, nullptr);
        QSignalSpy clicked(&button, &QPushButton::clicked);
        const QString caption = button.text();
        const QChar key = caption.at(caption.indexOf(u'&') + 1).toUpper();
        QTest::keyClick(&m_window, static_cast<Qt::Key>(key.unicode()), Qt::AltModifier);
        EXPECT_TRUE(clicked.count() == 1 || clicked.wait(1000)) << name.toStdString();
    }
}

TEST_F(MainWindow, TheKeySharedByTwoButtonsWalksBetweenThemAndEnterPresses)
{
    Start();
    QTest::keyClick(&m_window, Qt::Key_S, Qt::AltModifier);
    const QString first = m_window.focusWidget()->objectName();
    QTest::keyClick(&m_window, Qt::Key_S, Qt::AltModifier);
    const QString second = m_window.focusWidget()->objectName();
    EXPECT_EQ(QStringList({first, second}).filter(u"SaveFile"_s).size(), 1);
    EXPECT_EQ(QStringList({first, second}).filter(u"PickForm"_s).size(), 1);
    Button(u"SaveFile"_s).setFocus();
    m_prompts.expectedMessages = {15};
    QTest::keyClick(&Button(u"SaveFile"_s), Qt::Key_Return);
}

TEST_F(MainWindow, WithoutRecordsThreeFormsAndThePrintoutAreRefusedAndTheMenuStays)
{
    Start();
    for (const QString& name : {u"CheckWin"_s, u"ShowGraph1"_s, u"SelectRec"_s, u"PrintDbase"_s}) {
        m_prompts.expectedMessages = {44};
        Click(name);
        EXPECT_TRUE(m_prompts.expectedMessages.empty()) << name.toStdString();
        EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    }
    EXPECT_EQ(m_shared.graphCaller, 0);
    EXPECT_EQ(
        m_prompts.shownTexts.first(),
        u"No records to work with. Either start a new Database in 'View and Edit Database' or 'Open a File "
        "from Disk'. Open the Sample.Lto file to learn and use all the features. Be sure to read 'How to Use "
        "the Program'."_s);
}

TEST_F(MainWindow, AButtonWhoseFormComesLaterSaysSoAndTheMenuStays)
{
    Start();
    FillDatabase(1);
    m_window.SetHelp({}); // a program that is put together without it
    const QStringList later{u"HowtoUse"_s};
    for (const QString& name : later) {
        m_prompts.notices.clear();
        Click(name);
        ASSERT_EQ(m_prompts.notices.size(), 1) << name.toStdString();
        EXPECT_TRUE(m_prompts.notices.first().contains(u"not part of this version yet"_s));
        EXPECT_TRUE(m_prompts.notices.first().contains(Button(name).text().remove(u'&')))
            << m_prompts.notices.first().toStdString();
        EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
        EXPECT_TRUE(Button(name).isVisible());
    }
}

TEST_F(MainWindow, ALongTitleLeavesTheWindowAsLargeAsItWas)
{
    Start();
    const QSize before = m_window.size();
    for (const QString& title : {QString(300, u'W'), u"Wide words "_s.repeated(60)}) {
        FillDatabase(1);
        m_shared.database.title = title;
        Click(u"DBaseForm"_s);
        Click(u"DExit"_s);
        Settle();
        EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
        EXPECT_EQ(m_window.size(), before);
        EXPECT_LE(m_window.minimumSizeHint().width(), before.width());
        EXPECT_EQ(TextOfToolTip(Find<QLabel>(u"InfoLabel"_s).toolTip()), title);
    }
}

TEST_F(MainWindow, ALongNameLeavesTheWindowAsLargeAsItWas)
{
    Start();
    const QSize before = m_window.size();
    m_shared.settings.userName = QString(1'000'000, u'W');
    m_window.Menu().ShowUserName();
    Settle();
    EXPECT_EQ(m_window.size(), before);
    EXPECT_LE(m_window.minimumSizeHint().width(), before.width());
    EXPECT_TRUE(Find<QLabel>(u"MyName"_s).isVisible());
}

TEST_F(MainWindow, TheDatabaseIsPrintedAfterYes)
{
    Start();
    FillDatabase(60);
    m_prompts.answers = {true};
    Click(u"PrintDbase"_s);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.printed.front().name, u"Winning numbers in Test 6/49"_s);
    EXPECT_EQ(m_prompts.printed.front().pages.size(), 2U);
    EXPECT_EQ(m_shared.linesPerPage, 53);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(MainWindow, TheDatabaseIsNotPrintedAfterNoAndStaysAsItIs)
{
    Start();
    FillDatabase(60);
    const DrawDatabase before = m_shared.database;
    m_prompts.answers = {false};
    Click(u"PrintDbase"_s);
    EXPECT_TRUE(m_prompts.printed.empty());
    EXPECT_EQ(m_shared.database.records, before.records);
}

TEST_F(MainWindow, ThePrintoutShowsTheCountThatWasLastChosen)
{
    Start();
    FillDatabase(3);
    m_prompts.answers = {true, true};
    m_shared.settings.printerFont = kCourierNewFont;
    m_shared.WhichCnt = CountMode::SinceLastDrawn;
    Click(u"PrintDbase"_s);
    m_shared.WhichCnt = CountMode::TimesDrawn;
    Click(u"PrintDbase"_s);
    ASSERT_EQ(m_prompts.printed.size(), 2U);
    EXPECT_TRUE(PagesText(m_prompts.printed.at(0)).contains(u"Number of draws since last drawn"_s));
    EXPECT_TRUE(PagesText(m_prompts.printed.at(1)).contains(u"Showing the count of times numbers drawn"_s));
    EXPECT_EQ(m_prompts.printed.at(0).printerFont, kCourierNewFont);
    EXPECT_EQ(m_shared.linesPerPage, 56);
}

TEST_F(MainWindow, TheCountChosenInAFormReachesThePaper)
{
    struct Way {
        QString open;
        QString count;
        QString exit;
    };
    Start();
    FillDatabase(3);
    for (const Way& way : {Way{u"DBaseForm"_s, u"WhichCnt"_s, u"DExit"_s},
                           Way{u"ShowGraph1"_s, u"GWhichCnt"_s, u"ExitGrp"_s}}) {
        m_shared.WhichCnt = CountMode::TimesDrawn;
        m_prompts.printed.clear();
        Click(way.open);
        ClickBox(way.count);
        Click(way.exit);
        m_prompts.answers = {true};
        Click(u"PrintDbase"_s);
        ASSERT_EQ(m_prompts.printed.size(), 1U) << way.open.toStdString();
        const QString text = PagesText(m_prompts.printed.front());
        EXPECT_TRUE(text.contains(u"Number of draws since last drawn"_s)) << way.open.toStdString();
        EXPECT_FALSE(text.contains(u"Showing the count of times numbers drawn"_s)) << way.open.toStdString();
    }
}

TEST_F(MainWindow, TheEditorTakesTheMenusPlaceAndGivesItBack)
{
    Start();
    Click(u"DBaseForm"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_FALSE(Button(u"DBaseForm"_s).isVisible());
    EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
    Click(u"DExit"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_TRUE(Button(u"DBaseForm"_s).isVisible());
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
}

TEST_F(MainWindow, TheEditorIsMadeOnceAndUsedAgain)
{
    Start();
    Click(u"DBaseForm"_s);
    const WorkingForm* editor = m_window.ActiveForm();
    Click(u"DExit"_s);
    Click(u"DBaseForm"_s);
    EXPECT_EQ(m_window.ActiveForm(), editor);
}

TEST_F(MainWindow, OpeningAFileShowsTheEditorAndTheMenuNamesTheFile)
{
    WriteFile(u"Mine.Lto"_s, kTwoDraws);
    Start();
    m_prompts.files = {m_folder.filePath(u"Mine.Lto"_s)};
    Click(u"LoadFile"_s);
    EXPECT_EQ(m_prompts.fileDialogModes, (std::deque<qint16>{1}));
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(m_shared.database.fileName, u"Mine.Lto"_s);
    EXPECT_EQ(m_shared.fileDialogMode, 0);
    EXPECT_EQ(m_shared.chosenPath, QString());
    Click(u"DExit"_s);
    EXPECT_EQ(TextOf(u"InfoLabel"_s), u" File in Memory \r\n  Lotto 6/49  "_s);
}

TEST_F(MainWindow, ATitleWithMarkupIsShownAsItStands)
{
    Start();
    FillDatabase(1);
    m_shared.database.title = u"<b>6</b>&49"_s;
    Click(u"DBaseForm"_s);
    Click(u"DExit"_s);
    EXPECT_EQ(TextOf(u"InfoLabel"_s), u" File in Memory \r\n  <b>6</b>&49  "_s);
    EXPECT_EQ(Find<QLabel>(u"InfoLabel"_s).textFormat(), Qt::PlainText);
    for (const QString& title : {u"a &amp; b"_s, u"6 > 5"_s, u"<b>6</b>"_s, u"Lotto & 49"_s, u"a  b"_s}) {
        m_shared.database.title = title;
        m_window.Menu().ShowFileInMemory();
        const QLabel& label = Find<QLabel>(u"InfoLabel"_s);
        EXPECT_EQ(TextOfToolTip(label.toolTip()), title);
        EXPECT_EQ(label.accessibleDescription(), title);
        Click(u"PickForm"_s);
        EXPECT_EQ(TextOfToolTip(Find<QLabel>(u"InfoLabel1"_s).toolTip()), title);
        Click(u"PExit"_s);
    }
}

TEST_F(MainWindow, ACancelledDialogShowsTheEditorOnTheDatabaseInMemory)
{
    Start();
    FillDatabase(3);
    m_prompts.files = {QString()};
    Click(u"LoadFile"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_EQ(m_shared.fileDialogMode, 0);
}

TEST_F(MainWindow, AMissingFileGivesTheMessageAndTheEditorOnAnEmptyDatabase)
{
    Start();
    FillDatabase(3);
    m_shared.database.modified = 1;
    m_prompts.files = {m_folder.filePath(u"Nowhere.Lto"_s)};
    m_prompts.expectedMessages = {13};
    Click(u"LoadFile"_s);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.count, 0);
    EXPECT_EQ(m_shared.database.modified, 0);
    EXPECT_EQ(Box(u"InFileName"_s).text(), QString());
    EXPECT_EQ(m_shared.database.columns, 8);
}

TEST_F(MainWindow, SavingReturnsToTheMenuAndTheFileReadsBackTheSame)
{
    Start();
    FillDatabase(3);
    m_shared.database.modified = 1;
    m_prompts.files = {m_folder.filePath(u"New.Lto"_s)};
    Click(u"SaveFile"_s);
    EXPECT_EQ(m_prompts.fileDialogModes, (std::deque<qint16>{2}));
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_shared.database.fileName, u"New.Lto"_s);
    EXPECT_EQ(m_shared.database.modified, 0);
    const DrawDatabase saved = m_shared.database;
    m_prompts.files = {m_folder.filePath(u"New.Lto"_s)};
    Click(u"LoadFile"_s);
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_EQ(m_shared.database.title, saved.title);
    EXPECT_EQ(std::get<QDate>(m_shared.database.records[3].date), std::get<QDate>(saved.records[3].date));
    EXPECT_EQ(CellNumber(m_shared.database.records[3].drawn[5]), 8);
}

TEST_F(MainWindow, SavingAnEmptyDatabaseSaysNoRecordsAndShowsTheMenu)
{
    Start();
    m_shared.database.modified = 1;
    m_prompts.expectedMessages = {15};
    Click(u"SaveFile"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_shared.database.modified, 0);
}

TEST_F(MainWindow, TheMenuIsHiddenWhileAFileIsChosen)
{
    Start();
    FillDatabase(3);
    int dialogs = 0;
    m_prompts.onFileDialog = [&] {
        ++dialogs;
        EXPECT_FALSE(m_window.Menu().isVisible());
        EXPECT_EQ(FrontForm(), QString());
    };
    for (const QString& file : {m_folder.filePath(u"New.Lto"_s), QString()}) {
        m_prompts.files = {file};
        Click(u"SaveFile"_s);
        EXPECT_TRUE(m_window.Menu().isVisible());
        EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
        m_prompts.files = {file};
        Click(u"LoadFile"_s);
        EXPECT_FALSE(m_window.Menu().isVisible());
        EXPECT_EQ(FrontForm(), u"LDbase"_s);
        Click(u"DExit"_s);
    }
    EXPECT_EQ(dialogs, 4);
}

TEST_F(MainWindow, TheMenuIsHiddenBehindTheMessagesOfOpeningAndSaving)
{
    Start();
    int messages = 0;
    m_prompts.onMessage = [&] {
        ++messages;
        EXPECT_FALSE(m_window.Menu().isVisible()) << m_shared.messageNumber;
        EXPECT_EQ(FrontForm(), QString()) << m_shared.messageNumber;
    };
    m_prompts.expectedMessages = {15, 13};
    Click(u"SaveFile"_s);
    EXPECT_TRUE(m_window.Menu().isVisible());
    m_prompts.files = {m_folder.filePath(u"Nowhere.Lto"_s)};
    Click(u"LoadFile"_s);
    EXPECT_EQ(messages, 2);
}

TEST_F(MainWindow, AFileNamedAtTheStartOpensWithoutADialog)
{
    WriteFile(u"Named.Lto"_s, kTwoDraws);
    Start();
    m_window.OpenNamedFile(m_folder.filePath(u"Named.Lto"_s));
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.fileName, u"Named.Lto"_s);
    EXPECT_EQ(m_shared.dialogFolder, m_folder.path());
}

TEST_F(MainWindow, AStatementNamedAtTheStartOpensInTheTracker)
{
    for (const QString& name : {u"Named.inv"_s, u"NAMED.INV"_s}) {
        WriteFile(name, "1\r\n\"Tickets\",-12\r\n");
        Start();
        m_window.OpenNamedFile(m_folder.filePath(name));
        EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
        EXPECT_EQ(m_window.windowTitle(), u" Investment Tracker"_s);
        EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Tickets"_s);
        EXPECT_EQ(m_shared.investmentFileName, name);
        EXPECT_EQ(m_shared.dialogFolder, m_folder.path());
        EXPECT_EQ(FocusName(), u"IGrid"_s);
        Click(u"IExit"_s);
    }
}

TEST_F(MainWindow, AStatementNamedAtTheStartThatIsNotThereGivesItsMessageInTheTracker)
{
    Start();
    m_prompts.expectedMessages = {25};
    m_window.OpenNamedFile(m_folder.filePath(u"elsewhere/None.inv"_s));
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(m_shared.investmentFileName, QString());
    EXPECT_EQ(m_shared.dialogFolder, QString());
}

TEST_F(MainWindow, NoTitleOfAFileMakesAFormWider)
{
    Start();
    Settle();
    FillDatabase(30);
    const QSize before = m_window.size();
    constexpr int kMillion = 1 << 20;
    for (const QString& title :
         {QString(100, u'W'), QString(kMillion, u'W'), u"Wide words "_s.repeated(kMillion / 11)}) {
        m_shared.database.title = title;
        for (const QString& button : {u"PickForm"_s, u"CheckWin"_s, u"ShowGraph1"_s, u"DBaseForm"_s}) {
            m_window.ShowForm(FormName::LotoMenu);
            Click(button);
            Settle();
            EXPECT_EQ(m_window.size(), before) << button.toStdString() << ' ' << title.left(10).toStdString();
        }
    }
}

TEST_F(MainWindow, TheMenuSaysWhetherWhatIsOpenIsSavedAndNotWhatTheFlagSays)
{
    WriteFile(u"Named.Lto"_s, kTwoDraws);
    Start();
    m_shared.database.modified = 1; // left by records that were given up for this file
    m_window.OpenNamedFile(m_folder.filePath(u"Named.Lto"_s));
    Click(u"DExit"_s);
    EXPECT_EQ(m_shared.database.modified, 1);
    EXPECT_TRUE(TextOf(u"Facts"_s).startsWith(u"Named.Lto  "_s));
    EXPECT_FALSE(TextOf(u"Facts"_s).contains(u"not saved yet"_s));
    m_shared.database.records.at(1).drawn.at(0) = 1; // as a correction does, which sets no flag
    m_shared.database.modified = 0;
    m_window.ShowForm(FormName::LotoMenu);
    EXPECT_TRUE(TextOf(u"Facts"_s).endsWith(u"not saved yet"_s));
}

TEST_F(MainWindow, AFileThatCannotBeOpenedLeavesNoCountsOfTheOneBefore)
{
    FillDatabase(30);
    OpenEditor();
    ASSERT_NE(Cell(u"DGrid2"_s, 0, 0), QString());
    Click(u"DExit"_s);
    m_prompts.expectedMessages = {13};
    m_window.OpenNamedFile(m_folder.filePath(u"None.Lto"_s));
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    for (const QString& grid : {u"DGrid2"_s, u"DGrid3"_s, u"DGrid4"_s}) {
        EXPECT_EQ(Cell(grid, 0, 0), QString()) << grid.toStdString();
    }
}

TEST_F(MainWindow, AFileHandedOverIsOpenedInTheMenu)
{
    WriteFile(u"Named.Lto"_s, kTwoDraws);
    Start();
    m_window.OpenHandedFile(m_folder.filePath(u"Named.Lto"_s));
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.fileName, u"Named.Lto"_s);
    m_window.OpenHandedFile(m_folder.filePath(u"Named.Lto"_s));
    EXPECT_EQ(m_prompts.notices,
              QStringList{u"\"Named.Lto\" is not opened yet: go back to the menu first."_s});
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
}

TEST_F(MainWindow, AFileHandedOverToTheTrackerNeverTakesAwayWhatWasTyped)
{
    WriteFile(u"Named.Lto"_s, kTwoDraws);
    WriteFile(u"Named.inv"_s, "1\r\n\"Tickets\",-12\r\n");
    Start();
    Click(u"InvTrack"_s);
    QTest::keyClicks(&Find<QTableView>(u"IGrid"_s), u"Mine"_s);
    m_window.OpenHandedFile(m_folder.filePath(u"Named.Lto"_s));
    EXPECT_EQ(m_prompts.notices.size(), 1);
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    m_prompts.answers = {true}; // go back and save
    m_window.OpenHandedFile(m_folder.filePath(u"Named.inv"_s));
    EXPECT_EQ(m_prompts.askedTexts.size(), 1);
    EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Mine"_s);
    m_prompts.answers = {false};
    m_window.OpenHandedFile(m_folder.filePath(u"Named.inv"_s));
    EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Tickets"_s);
}

TEST_F(MainWindow, AFileNamedAtTheStartThatIsNotThereLeavesTheFolderOfTheFileDialog)
{
    Start();
    m_prompts.expectedMessages = {13};
    m_window.OpenNamedFile(m_folder.filePath(u"elsewhere/None.Lto"_s));
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.dialogFolder, QString());
}

TEST_F(MainWindow, TheUsersNameStandsInTheMenuWhenThereIsOne)
{
    WriteFile(u"Personal.Lot"_s, "0,5,36,2,\"EUR\",\"Zo\xEB\"\r\n");
    Start();
    EXPECT_TRUE(Find<QLabel>(u"MyName"_s).isVisible());
    EXPECT_EQ(TextOf(u"MyName"_s), u"Zoë"_s);
    EXPECT_EQ(m_shared.database.columns, 7);
    EXPECT_EQ(m_shared.database.highest, 36);
}

TEST_F(MainWindow, WithoutANameItsLabelIsHidden)
{
    Start();
    EXPECT_FALSE(Find<QLabel>(u"MyName"_s).isVisible());
}

TEST_F(MainWindow, ExitWithUnsavedRecordsAsksAndYesStays)
{
    Start();
    FillDatabase(1);
    m_shared.database.modified = 1;
    m_prompts.answers = {true};
    Click(u"Exit1Butt"_s);
    EXPECT_EQ(m_prompts.askedTexts,
              QStringList{
                  u"Test.Lto file in memory will be erased. Do you wish to go back and save it to Disk?."_s});
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_EQ(m_shared.database.modified, 1);
}

TEST_F(MainWindow, ExitWithUnsavedRecordsEndsAfterNo)
{
    Start();
    FillDatabase(1);
    m_shared.database.modified = 1;
    m_prompts.answers = {false};
    QTimer::singleShot(0, &m_window, [this] { Click(u"Exit1Butt"_s); });
    QTimer::singleShot(5000, &m_window, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(m_shared.database.modified, 0);
}

TEST_F(MainWindow, ExitWithoutRecordsEndsWithoutAQuestion)
{
    Start();
    m_shared.database.modified = 1;
    QTimer::singleShot(0, &m_window, [this] { Click(u"Exit1Butt"_s); });
    QTimer::singleShot(5000, &m_window, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(m_prompts.askedTexts, QStringList{});
}

TEST_F(MainWindow, ClosingTheWindowAsksAlsoFromTheEditor)
{
    FillDatabase(1);
    OpenEditor();
    m_shared.database.modified = 1;
    m_prompts.answers = {true};
    EXPECT_FALSE(m_window.close());
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    m_prompts.answers = {false};
    EXPECT_TRUE(m_window.close());
    EXPECT_EQ(m_shared.database.modified, 0);
}

TEST_F(MainWindow, ClosingTheWindowWithNothingUnsavedJustCloses)
{
    Start();
    FillDatabase(1);
    EXPECT_TRUE(m_window.close());
}

TEST_F(MainWindow, TheLayoutIsLargeAboveEightThousandFiveHundredTwips)
{
    Start();
    EXPECT_EQ(m_shared.layoutSize, 6810);
    m_window.resize(900, 566); // 8,490 twips
    Settle();
    EXPECT_EQ(m_shared.layoutSize, 6810);
    m_window.resize(900, 567); // 8,505 twips
    Settle();
    EXPECT_EQ(m_shared.layoutSize, 8670);
}

TEST_F(MainWindow, FormsStandAtTheirPlacesInBothLayouts)
{
    Start();
    auto& menu = Find<QWidget>(u"LotoMenu"_s);
    EXPECT_EQ(menu.pos(), QPoint(-2, -1));
    Click(u"DBaseForm"_s);
    auto& editor = Find<QWidget>(u"LDbase"_s);
    EXPECT_EQ(editor.pos(), QPoint(-4, -2));
    m_window.resize(1280, 800);
    Settle();
    EXPECT_EQ(editor.pos(), QPoint(80, 67));
    EXPECT_EQ(editor.size(), QSize(1280 - 160, 800 - 134));
    Click(u"DExit"_s);
    EXPECT_EQ(menu.pos(), QPoint(67, 67));
    m_window.resize(1200, 700); // a resized window moves the menu where it moves every form
    Settle();
    EXPECT_EQ(menu.pos(), QPoint(80, 67));
    m_window.resize(641, 458);
    Settle();
    EXPECT_EQ(menu.pos(), QPoint(-4, -2));
}

TEST_F(MainWindow, TheSelectoriumStandsAtItsPlaceInBothLayouts)
{
    Start();
    Click(u"PickForm"_s);
    EXPECT_EQ(Find<QWidget>(u"Lottery"_s).pos(), QPoint(-4, -2));
    Click(u"PExit"_s);
    m_window.resize(1280, 800);
    Settle();
    Click(u"PickForm"_s);
    EXPECT_EQ(Find<QWidget>(u"Lottery"_s).pos(), QPoint(80, 67));
    EXPECT_EQ(Find<QWidget>(u"Lottery"_s).size(), QSize(1280 - 160, 800 - 134));
}

TEST_F(MainWindow, EveryControlOfTheMenuAndTheEditorFitsTheOpeningSize)
{
    FillDatabase(30);
    m_shared.database.columns = 12;
    OpenEditor();
    EXPECT_EQ(m_window.size(), QSize(641, 458));
    const QRect inside = m_window.rect();
    for (const QWidget* widget : Find<QWidget>(u"LDbase"_s).findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->parentWidget() == &Find<QWidget>(u"LDbase"_s)) {
            const QRect place(widget->mapTo(&m_window, QPoint()), widget->size());
            EXPECT_TRUE(inside.contains(place)) << widget->objectName().toStdString();
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                << widget->objectName().toStdString();
        }
    }
}

TEST_F(MainWindow, ADesktopWithLargeLettersGetsALargerWindow)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 1.6);
    QApplication::setFont(large);
    {
        MDIContainer window(m_shared, m_prompts, m_folder.path());
        window.AddForm(FormName::LDbase, [this](FormSwitcher& switcher, QWidget* parent) {
            return new LDbase(m_shared, m_prompts, switcher, parent);
        });
        window.Start();
        window.show();
        FillDatabase(30);
        window.ShowForm(FormName::LDbase);
        Settle();
        auto* editor = window.findChild<QWidget*>(u"LDbase"_s);
        EXPECT_GT(window.width(), 641);
        EXPECT_GE(editor->width(), editor->minimumSizeHint().width());
        EXPECT_GE(editor->height(), editor->minimumSizeHint().height());
        for (const QWidget* widget : editor->findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            if (label != nullptr && label->isVisible()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->text().toStdString();
                EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
            }
        }
    }
    QApplication::setFont(before);
}

TEST_F(MainWindow, TheMenusLettersAreTheDesktopsAtFirstAndGrowWithTheWindow)
{
    Start();
    Settle();
    const QList<QPushButton*> buttons = m_window.Menu().findChildren<QPushButton*>();
    ASSERT_FALSE(buttons.isEmpty());
    for (const QPushButton* button : buttons) {
        EXPECT_EQ(button->font(), m_window.Menu().font()) << button->objectName().toStdString();
    }
    m_window.resize(1280, 960);
    Settle();
    for (const QPushButton* button : buttons) {
        EXPECT_GT(button->font().pointSizeF(), m_window.Menu().font().pointSizeF() * 1.3)
            << button->objectName().toStdString();
    }
}

TEST_F(MainWindow, ASecondAccessKeyDoesNothingOnceTheMenuHasGivenWayToAForm)
{
    Start();
    QTest::keyClick(&m_window, Qt::Key_V, Qt::AltModifier);
    QTest::keyClick(&m_window, Qt::Key_O, Qt::AltModifier); // would ask for a file
    ASSERT_TRUE(QTest::qWaitFor([this] { return FrontForm() == u"LDbase"_s; }));
    QTest::qWait(200); // longer than a button stays down after its access key
    EXPECT_EQ(m_prompts.fileDialogModes.size(), 0U);
}

} // namespace
