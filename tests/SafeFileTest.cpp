#include "app/SafeFile.h"

#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

class SafeFile : public testing::Test
{
protected:
    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }

    /// Why the file cannot be read; "" when it can.
    static QString WhyNotRead(const QString& path)
    {
        QByteArray bytes = "untouched";
        const Outcome read = ReadFileBytes(path, bytes);
        EXPECT_FALSE(read.ok) << path.toStdString();
        EXPECT_EQ(bytes, "untouched");
        return read.reason;
    }

    static QByteArray MustRead(const QString& path)
    {
        QByteArray bytes;
        const Outcome read = ReadFileBytes(path, bytes);
        EXPECT_TRUE(read.ok) << read.reason.toStdString();
        return bytes;
    }

    static void MustSave(const QString& path, const QByteArray& bytes)
    {
        const Outcome saved = SaveFileBytes(path, bytes);
        EXPECT_TRUE(saved.ok) << saved.reason.toStdString();
        EXPECT_EQ(BytesOf(path), bytes);
    }

    static QString WhyNotSaved(const QString& path, const QByteArray& bytes = "new")
    {
        const Outcome saved = SaveFileBytes(path, bytes);
        EXPECT_FALSE(saved.ok) << path.toStdString();
        return saved.reason;
    }

    /// A file that was last changed two hours ago.
    void PlaceOld(const QString& name) const
    {
        Place(Path(name), "left over");
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(
            file.setFileTime(QDateTime::currentDateTime().addSecs(-7200), QFileDevice::FileModificationTime));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

// Reading

TEST_F(SafeFile, AWholeFileIsReadByteForByte)
{
    QByteArray everyByte(256, '\0');
    for (int i = 0; i < 256; ++i) {
        everyByte[i] = static_cast<char>(i);
    }
    const QByteArray bytes = everyByte.repeated(300);
    Place(Path(u"a.Lto"_s), bytes);
    EXPECT_EQ(MustRead(Path(u"a.Lto"_s)), bytes);
}

TEST_F(SafeFile, AnEmptyFileIsReadAsNothing)
{
    Place(Path(u"a.Lto"_s), "");
    EXPECT_EQ(MustRead(Path(u"a.Lto"_s)), "");
}

TEST_F(SafeFile, AMissingFileIsRefusedInTheSystemsWords)
{
    EXPECT_EQ(WhyNotRead(Path(u"none.Lto"_s)), u"No such file or directory"_s);
    EXPECT_EQ(WhyNotRead(Path(u"none/a.Lto"_s)), u"No such file or directory"_s);
    EXPECT_EQ(WhyNotRead(QString()), u"No such file or directory"_s);
}

TEST_F(SafeFile, AFolderIsRefused)
{
    EXPECT_TRUE(WhyNotRead(Folder()).endsWith(u"is not a file."));
    EXPECT_NE(WhyNotRead(Folder() + u'/'), QString());
}

TEST_F(SafeFile, AFileOfTheLargestSizeIsReadAndOneByteMoreIsRefused)
{
    QFile file(Path(u"large"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(kLargestFile)); // a sparse file: nothing of it is on the disk
    EXPECT_EQ(MustRead(file.fileName()).size(), kLargestFile);
    ASSERT_TRUE(file.resize(kLargestFile + 1));
    EXPECT_EQ(WhyNotRead(file.fileName()), u"The file is far larger than any of this program's."_s);
    ASSERT_TRUE(file.resize(qint64(1) << 40));
    EXPECT_EQ(WhyNotRead(file.fileName()), u"The file is far larger than any of this program's."_s);
}

TEST_F(SafeFile, NamesInAnyScriptAreReadAndSaved)
{
    for (const QString& name :
         {u"L\u00F6tt\u00F6 \u6570.Lto"_s, u"a b  c"_s, u"-rf"_s, u"*?[x].Lto"_s, u".hidden"_s}) {
        MustSave(Path(name), "new");
        EXPECT_EQ(MustRead(Path(name)), "new");
    }
}

// Saving

TEST_F(SafeFile, ANewFileHoldsExactlyTheBytes)
{
    MustSave(Path(u"a.Lto"_s), "one\r\ntwo\0three");
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"a.Lto"_s});
}

TEST_F(SafeFile, AnOldFileIsReplacedWhetherLongerOrShorter)
{
    const QString path = Path(u"a.Lto"_s);
    for (const qsizetype size : {300, 100000, 5, 0, 16384, 16383, 16385, 1}) {
        MustSave(path, QByteArray(size, 'x'));
    }
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"a.Lto"_s});
}

TEST_F(SafeFile, TheLargestFileIsSavedAndALargerOneLeavesTheOldOne)
{
    const QString path = Path(u"a.Lto"_s);
    MustSave(path, QByteArray(kLargestFile, 'x'));
    EXPECT_EQ(WhyNotSaved(path, QByteArray(kLargestFile + 1, 'y')),
              u"The file would be far larger than any of this program's."_s);
    EXPECT_EQ(BytesOf(path), QByteArray(kLargestFile, 'x'));
}

TEST_F(SafeFile, ARelativePathIsOfTheCurrentFolder)
{
    const CurrentTemporaryFolder here;
    MustSave(u"a.Lto"_s, "new");
    EXPECT_EQ(BytesOf(here.FilePath(u"a.Lto"_s)), "new");
    ASSERT_TRUE(QDir(here.Path()).mkdir(u"sub"_s));
    MustSave(u"sub/../sub/b.Lto"_s, "new");
    EXPECT_EQ(BytesOf(here.FilePath(u"sub/b.Lto"_s)), "new");
}

TEST_F(SafeFile, AFileInAMissingFolderIsRefused)
{
    EXPECT_NE(WhyNotSaved(Path(u"none/a.Lto"_s)), QString());
    EXPECT_EQ(NamesIn(Folder()), QStringList());
}

TEST_F(SafeFile, AFileBelowAFileIsRefused)
{
    Place(Path(u"a.Lto"_s), "old");
    EXPECT_NE(WhyNotSaved(Path(u"a.Lto/b.Lto"_s)), QString());
    EXPECT_EQ(BytesOf(Path(u"a.Lto"_s)), "old");
}

TEST_F(SafeFile, AFolderIsNeverReplaced)
{
    ASSERT_TRUE(QDir(Folder()).mkdir(u"sub"_s));
    EXPECT_EQ(WhyNotSaved(Path(u"sub"_s)), u"\"sub\" is not a file that can be replaced."_s);
    EXPECT_EQ(WhyNotSaved(Path(u"sub/"_s)), u"There is no file name."_s);
    EXPECT_NE(WhyNotSaved(Path(u"sub/."_s)), QString());
    EXPECT_NE(WhyNotSaved(Path(u"sub/.."_s)), QString());
    EXPECT_TRUE(QFileInfo(Path(u"sub"_s)).isDir());
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"sub"_s});
}

TEST_F(SafeFile, APathOfNothingIsRefused)
{
    EXPECT_EQ(WhyNotSaved(QString()), u"There is no file name."_s);
}

TEST_F(SafeFile, ANameWithANullCharacterIsRefused)
{
    Place(Path(u"a"_s), "old");
    EXPECT_NE(WhyNotSaved(Path(QString::fromLatin1("a\0b", 3))), QString());
    EXPECT_NE(WhyNotRead(Path(QString::fromLatin1("a\0b", 3))), QString());
    EXPECT_EQ(BytesOf(Path(u"a"_s)), "old");
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"a"_s});
}

TEST_F(SafeFile, ANameTooLongForTheSystemIsRefused)
{
    EXPECT_NE(WhyNotSaved(Path(QString(300, u'x'))), QString());
    EXPECT_EQ(NamesIn(Folder()), QStringList());
}

// What an interrupted save left

TEST_F(SafeFile, WhatAnInterruptedSaveLeftIsTidiedAnHourLater)
{
    PlaceOld(u"a.Lto.bAcKuP"_s);
    MustSave(Path(u"a.Lto"_s), "new");
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"a.Lto"_s});
}

TEST_F(SafeFile, WhatAPersonMayHaveNamedStays)
{
    const QStringList names{u"a.Lto.BACKUP"_s, u"a.Lto.Backup"_s, u"a.Lto.MyLoto"_s,
                            u"a.Lto.OldOne"_s, u"a.Lto.backup"_s, u"a.Lto.iPhone"_s,
                            u"a.Lto.myCOPY"_s, u"a.Lto.myCopy"_s, u"a.Lto.oldOne"_s};
    for (const QString& name : names) {
        PlaceOld(name);
    }
    MustSave(Path(u"a.Lto"_s), "new");
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"a.Lto"_s} + names);
}

TEST_F(SafeFile, WhatIsNoLeftoverOfThisFileStays)
{
    for (const QString& name : {u"b.Lto.bAcKuP"_s, u"a.Lto.bAcKu"_s, u"a.Lto.bAcKuPs"_s, u"a.Lto.b4cKuP"_s,
                                u"bAcKuP"_s, u"xa.Lto.bAcKuP"_s, u"a.Lto.x.bAcKuP"_s}) {
        PlaceOld(name);
    }
    Place(Path(u"a.Lto.rEcEnT"_s), "may be another program's, at work now");
    ASSERT_TRUE(QDir(Folder()).mkdir(u"a.Lto.fOlDeR"_s));
    const QStringList before = NamesIn(Folder());
    MustSave(Path(u"a.Lto"_s), "new");
    EXPECT_EQ(NamesIn(Folder()).size(), before.size() + 1);
}

TEST_F(SafeFile, NothingIsTidiedAfterAFailure)
{
    PlaceOld(u"sub.bAcKuP"_s);
    ASSERT_TRUE(QDir(Folder()).mkdir(u"sub"_s));
    EXPECT_NE(WhyNotSaved(Path(u"sub"_s)), QString());
    EXPECT_TRUE(QFileInfo::exists(Path(u"sub.bAcKuP"_s)));
}

#ifdef Q_OS_UNIX

// Links, devices and pipes

TEST_F(SafeFile, APipeIsRefusedAndNotWaitedFor)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(Path(u"pipe"_s)).constData(), 0666), 0);
    EXPECT_EQ(WhyNotRead(Path(u"pipe"_s)), u"\"pipe\" is not a file."_s);
    EXPECT_EQ(WhyNotSaved(Path(u"pipe"_s)), u"\"pipe\" is not a file that can be replaced."_s);
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"pipe"_s});
}

TEST_F(SafeFile, ADeviceIsNeitherReadNorReplaced)
{
    for (const QString& device : {u"/dev/zero"_s, u"/dev/full"_s, u"/dev/null"_s}) {
        EXPECT_NE(WhyNotRead(device), QString());
        EXPECT_NE(WhyNotSaved(device), QString());
        EXPECT_FALSE(QFileInfo(device).isFile()) << device.toStdString();
    }
}

TEST_F(SafeFile, ALinkToADeviceIsNeitherReadNorReplaced)
{
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, Path(u"link"_s)));
    EXPECT_NE(WhyNotRead(Path(u"link"_s)), QString());
    EXPECT_NE(WhyNotSaved(Path(u"link"_s)), QString());
    EXPECT_TRUE(QFileInfo(Path(u"link"_s)).isSymLink());
    EXPECT_FALSE(QFileInfo(u"/dev/null"_s).isFile());
}

TEST_F(SafeFile, OfALinkTheFileItLeadsToIsReplacedAndTheLinkKept)
{
    ASSERT_TRUE(QDir(Folder()).mkdir(u"sub"_s));
    Place(Path(u"sub/target.Lto"_s), "old");
    ASSERT_TRUE(QFile::link(u"sub/target.Lto"_s, Path(u"relative"_s)));
    ASSERT_TRUE(QFile::link(Path(u"relative"_s), Path(u"chain"_s)));
    MustSave(Path(u"relative"_s), "first");
    EXPECT_EQ(BytesOf(Path(u"sub/target.Lto"_s)), "first");
    MustSave(Path(u"chain"_s), "second");
    EXPECT_EQ(BytesOf(Path(u"sub/target.Lto"_s)), "second");
    EXPECT_TRUE(QFileInfo(Path(u"relative"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(Path(u"chain"_s)).isSymLink());
    EXPECT_EQ(NamesIn(Path(u"sub"_s)), QStringList{u"target.Lto"_s});
}

TEST_F(SafeFile, ALinkToAFolderIsNeverReplaced)
{
    ASSERT_TRUE(QDir(Folder()).mkdir(u"sub"_s));
    ASSERT_TRUE(QFile::link(u"sub"_s, Path(u"link"_s)));
    EXPECT_NE(WhyNotSaved(Path(u"link"_s)), QString());
    EXPECT_TRUE(QFileInfo(Path(u"link"_s)).isSymLink());
}

TEST_F(SafeFile, ALinkThatLeadsToNothingIsNotReadAndASaveMakesTheFileItNames)
{
    ASSERT_TRUE(QFile::link(u"later.Lto"_s, Path(u"link"_s)));
    EXPECT_EQ(WhyNotRead(Path(u"link"_s)), u"No such file or directory"_s);
    MustSave(Path(u"link"_s), "new");
    EXPECT_TRUE(QFileInfo(Path(u"link"_s)).isSymLink());
    EXPECT_EQ(BytesOf(Path(u"later.Lto"_s)), "new");
}

TEST_F(SafeFile, ALinkIntoAMissingFolderIsRefusedAndKept)
{
    ASSERT_TRUE(QFile::link(u"none/later.Lto"_s, Path(u"link"_s)));
    EXPECT_NE(WhyNotSaved(Path(u"link"_s)), QString());
    EXPECT_TRUE(QFileInfo(Path(u"link"_s)).isSymLink());
}

TEST_F(SafeFile, LinksThatLeadToOneAnotherAreRefusedAndKept)
{
    ASSERT_TRUE(QFile::link(u"b"_s, Path(u"a"_s)));
    ASSERT_TRUE(QFile::link(u"a"_s, Path(u"b"_s)));
    EXPECT_NE(WhyNotRead(Path(u"a"_s)), QString());
    EXPECT_NE(WhyNotSaved(Path(u"a"_s)), QString());
    EXPECT_TRUE(QFileInfo(Path(u"a"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(Path(u"b"_s)).isSymLink());
    EXPECT_EQ(NamesIn(Folder()), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(SafeFile, ANameTooLongForATemporaryOneLeavesTheOldFile)
{
    const QString path = Path(QString(250, u'x'));
    Place(path, "old");
    EXPECT_NE(WhyNotSaved(path), QString());
    EXPECT_EQ(BytesOf(path), "old");
}

TEST_F(SafeFile, TheNewFileHasThePermissionsOfTheOldOne)
{
    const QString path = Path(u"a.Lto"_s);
    Place(path, "old");
    const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(path, own));
    const QFile::Permissions before = QFile::permissions(path);
    MustSave(path, "new");
    EXPECT_EQ(QFile::permissions(path), before);
}

// What an ordinary user may not do

class SafeFileWithoutPrivileges : public SafeFile
{
protected:
    void SetUp() override
    {
        if (!IsReachableWithoutPrivileges(Folder(), 0777)) {
            GTEST_SKIP() << "an ordinary user cannot reach the temporary folder";
        }
        Place(Path(u"a.Lto"_s), "old");
        Allow(u"a.Lto"_s, 0666);
    }

    void TearDown() override { Allow({}, 0755); }

    void Allow(const QString& name, mode_t mode) const
    {
        EXPECT_EQ(chmod(QFile::encodeName(name.isEmpty() ? Folder() : Path(name)).constData(), mode), 0);
    }

    /// 0 when an ordinary user can save, 1 when it is refused with a reason, 2 when without one.
    [[nodiscard]] int Save(const QString& name) const
    {
        return WithoutPrivileges([&] {
            const Outcome saved = SaveFileBytes(Path(name), "new");
            return saved.ok ? 0 : saved.reason.isEmpty() ? 2 : 1;
        });
    }

    /// 0 when an ordinary user can read "old", 1 when it is refused with a reason, 2 otherwise.
    [[nodiscard]] int Read(const QString& name) const
    {
        return WithoutPrivileges([&] {
            QByteArray bytes;
            const Outcome read = ReadFileBytes(Path(name), bytes);
            return read.ok && bytes == "old" ? 0 : !read.ok && !read.reason.isEmpty() ? 1 : 2;
        });
    }
};

TEST_F(SafeFileWithoutPrivileges, AnOrdinaryFileIsReadAndSaved)
{
    EXPECT_EQ(Read(u"a.Lto"_s), 0);
    EXPECT_EQ(Save(u"a.Lto"_s), 0);
    EXPECT_EQ(BytesOf(Path(u"a.Lto"_s)), "new");
}

TEST_F(SafeFileWithoutPrivileges, AFileThatMayNotBeReadIsRefused)
{
    Allow(u"a.Lto"_s, 0200);
    EXPECT_EQ(Read(u"a.Lto"_s), 1);
}

TEST_F(SafeFileWithoutPrivileges, AFileInAFolderThatMayNotBeEnteredIsRefused)
{
    Allow({}, 0700);
    if (geteuid() != 0) {
        Allow({}, 0600);
    }
    EXPECT_EQ(Read(u"a.Lto"_s), 1);
    EXPECT_EQ(Save(u"a.Lto"_s), 1);
    Allow({}, 0755);
    EXPECT_EQ(BytesOf(Path(u"a.Lto"_s)), "old");
}

TEST_F(SafeFileWithoutPrivileges, AReadOnlyFileStaysWhole)
{
    Allow(u"a.Lto"_s, 0444);
    EXPECT_EQ(Save(u"a.Lto"_s), 1);
    EXPECT_EQ(BytesOf(Path(u"a.Lto"_s)), "old");
}

TEST_F(SafeFileWithoutPrivileges, AFileInAReadOnlyFolderStaysWholeAlthoughItMayBeWritten)
{
    Allow({}, 0555);
    EXPECT_EQ(Save(u"a.Lto"_s), 1);
    EXPECT_EQ(Save(u"new.Lto"_s), 1);
    EXPECT_EQ(BytesOf(Path(u"a.Lto"_s)), "old");
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"a.Lto"_s});
}

TEST_F(SafeFileWithoutPrivileges, AFolderThatMayBeWrittenButNotListedIsSavedTo)
{
    Allow({}, 0333);
    EXPECT_EQ(Save(u"a.Lto"_s), 0);
    Allow({}, 0755);
    EXPECT_EQ(BytesOf(Path(u"a.Lto"_s)), "new");
}

#endif
