#include "app/ProgramFolder.h"

#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

class ProgramFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"bin"_s));
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"samples"_s));
        for (const QString& sample : Samples()) {
            Place(sample, "the sample");
            ASSERT_TRUE(QFile::setPermissions(sample, QFile::ReadOwner));
        }
    }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }

    [[nodiscard]] QStringList Samples() const
    {
        return {Path(u"samples/Sample.Lto"_s), Path(u"samples/Sample.inv"_s)};
    }

    [[nodiscard]] QString Choose(const ProgramFolderChoice& choice) const
    {
        return ChooseProgramFolder(choice, Samples());
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ProgramFolder, IsTheExecutablesWhenThatCanBeWritten)
{
    EXPECT_EQ(Choose({Path(u"bin"_s), Path(u"data"_s), {}}), Path(u"bin"_s));
    EXPECT_FALSE(QFileInfo::exists(Path(u"data"_s))) << "no folder that is not needed is made";
    EXPECT_EQ(NamesIn(Path(u"bin"_s)), QStringList());
}

TEST_F(ProgramFolder, IsTheUsersDataFolderOtherwise)
{
    EXPECT_EQ(Choose({Path(u"none"_s), Path(u"deep/data"_s), {}}), Path(u"deep/data"_s));
    EXPECT_EQ(Choose({QString(), Path(u"deep/data"_s), {}}), Path(u"deep/data"_s));
    EXPECT_TRUE(QFileInfo(Path(u"deep/data"_s)).isDir());
}

TEST_F(ProgramFolder, AFolderAskedForGoesBeforeBoth)
{
    EXPECT_EQ(Choose({Path(u"bin"_s), Path(u"data"_s), Path(u"asked"_s)}), Path(u"asked"_s));
    EXPECT_TRUE(QFileInfo(Path(u"asked"_s)).isDir());
    EXPECT_FALSE(QFileInfo::exists(Path(u"data"_s)));
}

TEST_F(ProgramFolder, IsAlwaysAnAbsolutePath)
{
    const CurrentTemporaryFolder here;
    const QString current = QDir::currentPath();
    EXPECT_EQ(Choose({QString(), QString(), u"asked"_s}), current + u"/asked"_s);
    EXPECT_EQ(Choose({u"."_s, QString(), QString()}), current);
    EXPECT_EQ(Choose({QString(), QString(), u"a/../b/."_s}), current + u"/b"_s);
}

TEST_F(ProgramFolder, AFolderMadeHereReceivesTheSamplesWhichCanThenBeWritten)
{
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), {}}), Path(u"data"_s));
    for (const QString& sample : {u"data/Sample.Lto"_s, u"data/Sample.inv"_s}) {
        EXPECT_EQ(BytesOf(Path(sample)), "the sample");
        EXPECT_TRUE(QFile::permissions(Path(sample)).testFlag(QFile::WriteOwner));
    }
    EXPECT_EQ(NamesIn(Path(u"data"_s)), QStringList({u"Sample.Lto"_s, u"Sample.inv"_s}));
}

TEST_F(ProgramFolder, AFolderThatWasThereIsLeftAsItIs)
{
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), {}}), Path(u"data"_s));
    ASSERT_TRUE(QFile::remove(Path(u"data/Sample.Lto"_s)));
    ASSERT_TRUE(QFile::remove(Path(u"data/Sample.inv"_s)));
    Place(Path(u"data/Personal.Lot"_s), "mine");
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), {}}), Path(u"data"_s));
    EXPECT_EQ(NamesIn(Path(u"data"_s)), QStringList{u"Personal.Lot"_s})
        << "a sample that was thrown away stays away";
    EXPECT_EQ(BytesOf(Path(u"data/Personal.Lot"_s)), "mine");
}

TEST_F(ProgramFolder, ADataFolderOfAnEarlierVersionReceivesTheSampleThatCameLater)
{
    ASSERT_TRUE(QDir().mkpath(Path(u"data"_s)));
    Place(Path(u"data/Sample.Lto"_s), "worked on");
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), {}}), Path(u"data"_s));
    EXPECT_EQ(BytesOf(Path(u"data/Sample.inv"_s)), "the sample");
    EXPECT_TRUE(QFile::permissions(Path(u"data/Sample.inv"_s)).testFlag(QFile::WriteOwner));
    EXPECT_EQ(BytesOf(Path(u"data/Sample.Lto"_s)), "worked on") << "what is there is never replaced";
    Place(Path(u"data/Sample.inv"_s), "mine");
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), {}}), Path(u"data"_s));
    EXPECT_EQ(BytesOf(Path(u"data/Sample.inv"_s)), "mine");
}

TEST_F(ProgramFolder, OtherFoldersReceiveNoSampleThatCameLater)
{
    ASSERT_TRUE(QDir().mkpath(Path(u"asked"_s)));
    ASSERT_TRUE(QDir().mkpath(Path(u"data"_s)));
    for (const QString& lottery : {u"asked/Sample.Lto"_s, u"bin/Sample.Lto"_s}) {
        Place(Path(lottery), "worked on");
    }
    Place(Path(u"data/Other.Lto"_s), "no folder of samples");
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), Path(u"asked"_s)}), Path(u"asked"_s));
    EXPECT_EQ(Choose({Path(u"bin"_s), Path(u"data"_s), {}}), Path(u"bin"_s));
    EXPECT_EQ(Choose({QString(), Path(u"data"_s), {}}), Path(u"data"_s));
    for (const QString& folder : {u"asked"_s, u"bin"_s}) {
        EXPECT_EQ(NamesIn(Path(folder)), QStringList{u"Sample.Lto"_s});
    }
    EXPECT_EQ(NamesIn(Path(u"data"_s)), QStringList{u"Other.Lto"_s});
}

TEST_F(ProgramFolder, WithoutASampleTheFolderIsMadeAllTheSame)
{
    EXPECT_EQ(ChooseProgramFolder({QString(), Path(u"data"_s), {}}, {Path(u"none"_s)}), Path(u"data"_s));
    EXPECT_EQ(NamesIn(Path(u"data"_s)), QStringList());
}

TEST_F(ProgramFolder, AFolderThatCannotBeMadeIsStillTheAnswer)
{
    EXPECT_EQ(Choose({QString(), QString(), Path(u"samples/Sample.inv/below"_s)}),
              Path(u"samples/Sample.inv/below"_s));
    EXPECT_FALSE(QFileInfo::exists(Path(u"samples/Sample.inv/below"_s)));
    EXPECT_EQ(BytesOf(Path(u"samples/Sample.inv"_s)), "the sample");
}

TEST_F(ProgramFolder, AnInstalledProgramTakesTheUsersDataFolderEvenWhenItCouldWriteBesideItself)
{
    const FoundSamples found = FindSamples(Path(u"bin"_s), u"../samples"_s, {u":/samples/Sample.Lto"_s});
    EXPECT_TRUE(found.isInstalled);
    EXPECT_EQ(found.files, QStringList{Path(u"samples/Sample.Lto"_s)});
    EXPECT_EQ(ChooseProgramFolder({found.isInstalled ? QString() : Path(u"bin"_s), Path(u"data"_s), {}},
                                  found.files),
              Path(u"data"_s));
    EXPECT_EQ(BytesOf(Path(u"data/Sample.Lto"_s)), "the sample");
    EXPECT_EQ(NamesIn(Path(u"bin"_s)), QStringList());
}

TEST_F(ProgramFolder, ASampleThatIsNotInstalledIsTheProgramsOwn)
{
    ASSERT_TRUE(QFile::remove(Path(u"samples/Sample.inv"_s)));
    ASSERT_TRUE(QDir(Path(u"samples"_s)).mkdir(u"Other.inv"_s));
    const QStringList own{u":/own/Sample.Lto"_s, u":/own/Sample.inv"_s, u":/own/Other.inv"_s};
    const FoundSamples found = FindSamples(Path(u"bin"_s), u"../samples"_s, own);
    EXPECT_TRUE(found.isInstalled);
    EXPECT_EQ(found.files, QStringList({Path(u"samples/Sample.Lto"_s), own[1], own[2]}));
}

TEST_F(ProgramFolder, WithoutTheFolderOfAnInstallationTheProgramIsNotInstalled)
{
    const QStringList own{u":/own/Sample.Lto"_s, u":/own/Sample.inv"_s};
    const FoundSamples found = FindSamples(Path(u"bin"_s), u"../share/quillaby-system/samples"_s, own);
    EXPECT_FALSE(found.isInstalled);
    EXPECT_EQ(found.files, own);
}

#ifdef Q_OS_UNIX

TEST_F(ProgramFolder, AnExecutablesFolderThatCannotBeWrittenIsNotTaken)
{
    if (!IsReachableWithoutPrivileges(QFileInfo(Path(u"bin"_s)).path(), 0777)) {
        GTEST_SKIP() << "an ordinary user cannot reach the temporary folder";
    }
    const auto chosen = [&] {
        return WithoutPrivileges([&] {
            const QString folder = Choose({Path(u"bin"_s), Path(u"data"_s), {}});
            return folder == Path(u"bin"_s) ? 1 : folder == Path(u"data"_s) && QDir(folder).exists() ? 2 : 3;
        });
    };
    ASSERT_EQ(chmod(QFile::encodeName(Path(u"bin"_s)).constData(), 0777), 0);
    EXPECT_EQ(chosen(), 1);
    ASSERT_EQ(chmod(QFile::encodeName(Path(u"bin"_s)).constData(), 0555), 0);
    EXPECT_EQ(chosen(), 2);
}

#endif
