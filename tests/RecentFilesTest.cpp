#include "app/RecentFiles.h"

#include "app/DatabaseFacts.h"
#include "app/LotteryFileCommands.h"
#include "tests/CannedPrompts.h"
#include "tests/TestFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RecentFilesList : public testing::Test
{
protected:
    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QStringList Kept() const { return RecentFiles(list); }

    QTemporaryDir m_folder;
    QString list = m_folder.filePath(u"settings/recent-files"_s);
};

TEST_F(RecentFilesList, IsEmptyBeforeAnythingWasOpenedAndMakesNoFile)
{
    EXPECT_EQ(Kept(), QStringList());
    ForgetAllFiles(list);
    ForgetFile(list, u"/a.Lto"_s);
    EXPECT_FALSE(QFileInfo::exists(list));
}

TEST_F(RecentFilesList, HoldsTheLastFirst)
{
    RememberFile(list, u"/draws/One.Lto"_s);
    RememberFile(list, u"/money/Two.inv"_s);
    EXPECT_EQ(Kept(), QStringList({u"/money/Two.inv"_s, u"/draws/One.Lto"_s}));
}

TEST_F(RecentFilesList, AFileThatIsOpenedAgainMovesToTheFront)
{
    for (const QString& path : {u"/a.Lto"_s, u"/b.Lto"_s, u"/x/../a.Lto"_s}) {
        RememberFile(list, path);
    }
    EXPECT_EQ(Kept(), QStringList({u"/a.Lto"_s, u"/b.Lto"_s}));
}

TEST_F(RecentFilesList, HoldsTenAndDropsTheOldest)
{
    for (int i = 1; i <= 12; ++i) {
        RememberFile(list, u"/%1.Lto"_s.arg(i));
    }
    ASSERT_EQ(Kept().size(), 10);
    EXPECT_EQ(Kept().first(), u"/12.Lto"_s);
    EXPECT_EQ(Kept().last(), u"/3.Lto"_s);
}

TEST_F(RecentFilesList, APathWithAnyCharacterComesBackAsItWas)
{
    const QStringList odd{u"/a b/50%/c#d?.Lto"_s,    u"/line\nbreak.Lto"_s, u"/Zoë/宝くじ.Lto"_s,
                          u"/ends in blank .inv "_s, u"/a%20b.Lto"_s,       u"/back\\slash\t.Lto"_s};
    for (const QString& path : odd) {
        RememberFile(list, path);
        EXPECT_EQ(Kept().value(0), path) << path.toStdString();
    }
    EXPECT_EQ(Kept().size(), odd.size());
}

TEST_F(RecentFilesList, OneFileIsForgottenOrAllAre)
{
    for (const QString& path : {u"/a.Lto"_s, u"/b.Lto"_s, u"/c.Lto"_s}) {
        RememberFile(list, path);
    }
    ForgetFile(list, u"/b.Lto"_s);
    EXPECT_EQ(Kept(), QStringList({u"/c.Lto"_s, u"/a.Lto"_s}));
    ForgetAllFiles(list);
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(RecentFilesList, WhatIsCompiledInAndWhatIsNoFullPathIsNotRemembered)
{
    for (const QString& path : {u":/samples/Sample.Lto"_s, u"Mine.Lto"_s, QString()}) {
        RememberFile(list, path);
    }
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(RecentFilesList, WithoutAPlaceForItNothingIsKept)
{
    RememberFile({}, u"/a.Lto"_s);
    EXPECT_EQ(RecentFiles({}), QStringList());
}

TEST_F(RecentFilesList, WhatIsNoPathInItIsPassedOver)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(list).path()));
    Place(list,
          "\xFF\xFE\n\nhttp://example.org/a.Lto\n/plain/path.Lto\nfile:relative.Lto\nfile:///good.Lto\r\n"
          "file:///qrc%00.Lto\nfile:///good.Lto\n@Variant(\\0\\0\\0\\x7f)\nfile:///" +
              QByteArray(70'000, 'x') + "\nfile:///also%20good.inv");
    EXPECT_EQ(Kept(), QStringList({u"/good.Lto"_s, u"/also good.inv"_s}));
    RememberFile(list, u"/new.Lto"_s);
    EXPECT_EQ(BytesOf(list), "file:///new.Lto\nfile:///good.Lto\nfile:///also%20good.inv\n");
}

TEST_F(RecentFilesList, OfAFileThatIsNoListTheBeginningAloneIsLookedAt)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(u"settings"_s));
    Place(list, QByteArray(999, '\n') + "file:///last.Lto\nfile:///later.Lto\n");
    EXPECT_EQ(Kept(), QStringList{u"/last.Lto"_s}) << "a thousand lines";
    Place(list, "file:///" + QByteArray(1 << 20, 'x') + "\nfile:///next.Lto");
    EXPECT_EQ(Kept(), QStringList{u"/next.Lto"_s});
}

TEST_F(RecentFilesList, AFolderInItsPlaceIsLeftAloneAndGoesUnsaid)
{
    ASSERT_TRUE(QDir().mkpath(list));
    RememberFile(list, u"/a.Lto"_s);
    EXPECT_EQ(Kept(), QStringList());
    EXPECT_TRUE(QFileInfo(list).isDir());
}

TEST_F(RecentFilesList, TwoProgramsKeepEachOthersEntries)
{
    RememberFile(list, u"/before.Lto"_s);
    const QStringList seenByTheFirst = Kept();
    RememberFile(list, u"/second.Lto"_s); // by another program, which the first does not know of
    RememberFile(list, u"/first.Lto"_s);
    EXPECT_EQ(seenByTheFirst.size(), 1);
    EXPECT_EQ(Kept(), QStringList({u"/first.Lto"_s, u"/second.Lto"_s, u"/before.Lto"_s}));
}

TEST_F(RecentFilesList, TheFilesInItAreNotTouched)
{
    const QString path = Path(u"Nowhere/Mine.Lto"_s);
    RememberFile(list, path);
    EXPECT_EQ(Kept(), QStringList(path)); // neither looked for nor made
    EXPECT_FALSE(QFileInfo::exists(Path(u"Nowhere"_s)));
}

TEST_F(RecentFilesList, TakesADatabaseThatWasOpenedOrSavedAndNoneThatFailed)
{
    LGLOBAL shared;
    CannedPrompts prompts(shared);
    shared.locale = QLocale::c();
    shared.recentFilesList = list;
    shared.database = MadeUpDatabase(5, 35, 4);
    prompts.files = {Path(u"Saved.Lto"_s)};
    SaveFile(shared, prompts);
    EXPECT_EQ(Kept(), QStringList(Path(u"Saved.Lto"_s)));
    EXPECT_EQ(DatabaseFilePath(shared), Path(u"Saved.Lto"_s));
    ASSERT_TRUE(QFile::copy(Path(u"Saved.Lto"_s), Path(u"Other.Lto"_s)));
    ASSERT_TRUE(OpenLotteryFile(shared, prompts, Path(u"Other.Lto"_s)));
    prompts.SetBusyPointer(false);
    EXPECT_EQ(Kept(), QStringList({Path(u"Other.Lto"_s), Path(u"Saved.Lto"_s)}));
    EXPECT_EQ(DatabaseFilePath(shared), Path(u"Other.Lto"_s));

    prompts.expectedMessages = {13};
    EXPECT_FALSE(OpenLotteryFile(shared, prompts, Path(u"Nowhere.Lto"_s)));
    EXPECT_EQ(Kept().size(), 2);
    EXPECT_EQ(DatabaseFilePath(shared), QString());
    shared.database.fileName = u"Extract.lto"_s; // made by the program, in no folder yet
    EXPECT_EQ(DatabaseFilePath(shared), u"Extract.lto"_s);
}

TEST(DatabaseFacts, SayFileShapeDrawsAndTheLastDay)
{
    DrawDatabase database = MadeUpDatabase(6, 49, 1200);
    database.fileName = u"Mine.Lto"_s;
    database.records.at(1200).date = QDate(2026, 11, 18);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(DatabaseFacts(database, english, true),
              u"Mine.Lto  ·  6 of 49  ·  1,200 draws, the last on 11/18/2026"_s);
    EXPECT_TRUE(DatabaseFacts(database, english, false).endsWith(u"  ·  not saved yet"_s));
}

TEST(DatabaseFacts, LeaveOutWhatIsNotKnown)
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    DrawDatabase database = MadeUpDatabase(1, 10, 1);
    database.records.at(1).date = u"some day"_s;
    EXPECT_EQ(DatabaseFacts(database, english, true), u"1 of 10  ·  1 draw"_s);
    database.count = 0;
    EXPECT_EQ(DatabaseFacts(database, english, true), QString());
}

} // namespace
