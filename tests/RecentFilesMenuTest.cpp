#include "app/RecentFilesMenu.h"

#include "app/RecentFiles.h"
#include "tests/FormBench.h"
#include "tests/TestFiles.h"
#include "tests/ToolTipText.h"

#include <QToolButton>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const QByteArray kTwoDraws =
    "2,8,49,\"Lotto 6/49\"\r\n,0\r\n,0\r\n,0\r\n,4\r\n,0\r\n,0\r\n,7\r\n,0\r\n,0\r\n,0\r\n"
    "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
    "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";

class RecentFilesOfTheMenu : public FormBench
{
protected:
    RecentFilesOfTheMenu() { m_shared.recentFilesList = Path(u"recent-files"_s); }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// The entries as they are when the menu opens.
    QList<QAction*> Entries()
    {
        auto& menu = Find<RecentFilesMenu>(u"RecentFiles"_s);
        Q_EMIT menu.aboutToShow();
        QList<QAction*> entries;
        for (QAction* action : menu.actions()) {
            if (!action->isSeparator()) {
                entries << action;
            }
        }
        return entries;
    }
    QString FrontForm() const { return m_window.ActiveForm()->objectName(); }
};

TEST_F(RecentFilesOfTheMenu, WithoutAnyTheMenuSaysSo)
{
    Start();
    ASSERT_EQ(Entries().size(), 1);
    EXPECT_EQ(Entries().first()->text(), u"No file has been opened yet"_s);
    EXPECT_FALSE(Entries().first()->isEnabled());
}

TEST_F(RecentFilesOfTheMenu, AreOfferedByNameWithTheFolderInTheTip)
{
    Start();
    RememberFile(m_shared.recentFilesList, u"/far away/<b>/a&b.Lto"_s);
    RememberFile(m_shared.recentFilesList, u"/draws/Mine.Lto"_s);
    const QList<QAction*> entries = Entries();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries.at(0)->text(), u"&1 Mine.Lto"_s);
    EXPECT_EQ(TextOfToolTip(entries.at(0)->toolTip()), u"/draws"_s);
    EXPECT_EQ(entries.at(1)->text(), u"&2 a&&b.Lto"_s);
    EXPECT_EQ(TextOfToolTip(entries.at(1)->toolTip()), u"/far away/<b>"_s);
    EXPECT_EQ(entries.at(2)->text(), u"&Clear List"_s);
    EXPECT_TRUE(Find<RecentFilesMenu>(u"RecentFiles"_s).toolTipsVisible());
}

TEST_F(RecentFilesOfTheMenu, TwoOfOneNameAreToldApartByTheirFolders)
{
    Start();
    RememberFile(m_shared.recentFilesList, u"/draws/2025/Mine.Lto"_s);
    RememberFile(m_shared.recentFilesList, u"/draws/2026/Mine.Lto"_s);
    EXPECT_EQ(Entries().at(0)->text(), u"&1 Mine.Lto - 2026"_s);
    EXPECT_EQ(Entries().at(1)->text(), u"&2 Mine.Lto - 2025"_s);
}

TEST_F(RecentFilesOfTheMenu, ADatabaseOpensAsThroughTheDialog)
{
    Place(Path(u"Mine.Lto"_s), kTwoDraws);
    Start();
    RememberFile(m_shared.recentFilesList, u"/draws/Other.Lto"_s);
    RememberFile(m_shared.recentFilesList, Path(u"Mine.Lto"_s));
    Entries().first()->trigger();
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(m_shared.database.fileName, u"Mine.Lto"_s);
    EXPECT_EQ(m_shared.dialogFolder, m_folder.path());
    EXPECT_EQ(m_shared.fileDialogMode, 0);
    EXPECT_EQ(m_shared.chosenPath, QString());
    EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
}

TEST_F(RecentFilesOfTheMenu, AFileInAWrongFormatGivesTheMessagesOfTheDialogsWay)
{
    Place(Path(u"Bad.Lto"_s), "no lottery");
    Start();
    RememberFile(m_shared.recentFilesList, Path(u"Bad.Lto"_s));
    m_prompts.expectedMessages = {16, 13};
    Entries().first()->trigger();
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.count, 0);
}

TEST_F(RecentFilesOfTheMenu, AStatementOpensInTheTracker)
{
    Place(Path(u"Money.inv"_s), "1\r\n\"Tickets\",-12\r\n");
    Start();
    RememberFile(m_shared.recentFilesList, Path(u"Money.inv"_s));
    Entries().first()->trigger();
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Tickets"_s);
    EXPECT_EQ(RecentFiles(m_shared.recentFilesList).size(), 1);
}

TEST_F(RecentFilesOfTheMenu, AFileThatIsGoneIsToldAndNothingElseChanges)
{
    Start();
    FillDatabase(3);
    RememberFile(m_shared.recentFilesList, Path(u"Gone.Lto"_s));
    m_prompts.answers = {false};
    Entries().first()->trigger();
    ASSERT_EQ(m_prompts.offers.size(), 2);
    EXPECT_EQ(m_prompts.offers.at(0),
              u"\"Gone.Lto\" is not there any more.\n\nIt was in %1."_s.arg(m_folder.path()));
    EXPECT_EQ(m_prompts.offers.at(1), u"&Remove from List"_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_EQ(RecentFiles(m_shared.recentFilesList).size(), 1); // it may come back, with its stick
}

TEST_F(RecentFilesOfTheMenu, AFileThatIsGoneLeavesTheListOnWish)
{
    Start();
    RememberFile(m_shared.recentFilesList, Path(u"Gone.Lto"_s));
    m_prompts.answers = {true};
    Entries().first()->trigger();
    EXPECT_EQ(RecentFiles(m_shared.recentFilesList), QStringList());
}

TEST_F(RecentFilesOfTheMenu, TheListIsCleared)
{
    Start();
    RememberFile(m_shared.recentFilesList, u"/a.Lto"_s);
    Entries().last()->trigger();
    EXPECT_EQ(Entries().first()->objectName(), u"NoRecent"_s);
}

TEST_F(RecentFilesOfTheMenu, OpenByTheKeyboard)
{
    Start();
    RememberFile(m_shared.recentFilesList, u"/draws/Mine.Lto"_s);
    auto& button = Find<QToolButton>(u"OpenRecent"_s);
    auto& menu = Find<RecentFilesMenu>(u"RecentFiles"_s);
    bool opened = false;
    QTimer::singleShot(0, &menu, [&] {
        opened = menu.isVisible() && menu.actions().first()->text() == u"&1 Mine.Lto"_s;
        menu.close();
    });
    button.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_TRUE(opened);
}

TEST_F(RecentFilesOfTheMenu, AreNotLookedAtWhenTheProgramStarts)
{
    Place(Path(u"recent-files"_s), "file:///draws/Mine.Lto\n");
    Start();
    EXPECT_TRUE(Find<RecentFilesMenu>(u"RecentFiles"_s).actions().isEmpty());
}

TEST_F(RecentFilesOfTheMenu, TheTrackersFilesJoinTheList)
{
    Place(Path(u"Money.inv"_s), "1\r\n\"Tickets\",-12\r\n");
    Start();
    Click(u"InvTrack"_s);
    m_prompts.files = {Path(u"Money.inv"_s), Path(u"Copy.inv"_s)};
    Click(u"IOpenFile"_s);
    Click(u"ISaveFile"_s);
    EXPECT_EQ(RecentFiles(m_shared.recentFilesList),
              QStringList({Path(u"Copy.inv"_s), Path(u"Money.inv"_s)}));
}

TEST_F(RecentFilesOfTheMenu, TheWindowNamesTheFileAndKeepsItsTitle)
{
    Place(Path(u"Mine.Lto"_s), kTwoDraws);
    Place(Path(u"Money.inv"_s), "1\r\n\"Tickets\",-12\r\n");
    Start();
    EXPECT_EQ(m_window.windowFilePath(), QString());
    m_window.OpenNamedFile(Path(u"Mine.Lto"_s));
    EXPECT_EQ(m_window.windowFilePath(), Path(u"Mine.Lto"_s));
    EXPECT_EQ(m_window.windowTitle(), u" View and Edit Database Records"_s);
    EXPECT_EQ(m_window.windowHandle()->title(), u" View and Edit Database Records"_s);
    Click(u"DExit"_s);
    EXPECT_EQ(m_window.windowFilePath(), Path(u"Mine.Lto"_s));
    EXPECT_EQ(m_window.windowHandle()->title(), u" Quillaby Menu"_s);
    Click(u"InvTrack"_s);
    EXPECT_EQ(m_window.windowFilePath(), QString());
    m_prompts.files = {Path(u"Money.inv"_s)};
    Click(u"IOpenFile"_s);
    EXPECT_EQ(m_window.windowFilePath(), Path(u"Money.inv"_s));
    EXPECT_EQ(m_window.windowHandle()->title(), u" Investment Tracker"_s);
    Click(u"IExit"_s);
    EXPECT_EQ(m_window.windowFilePath(), Path(u"Mine.Lto"_s));
}

} // namespace
