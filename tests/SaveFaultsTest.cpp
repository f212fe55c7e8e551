// What can go wrong while a file is saved, for all three files and through the commands that save them. After
// each fault: the user is told and why, the old file is whole, nothing is left beside it, and the memory
// holds what it held. Disks that are full or read-only and system calls that fail: faults/save_faults.sh.

#include "app/SafeFile.h"
#include "tests/TestFiles.h"
#include "tests/faults/SavedFiles.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSmall = 300;
constexpr int kLarge = 40000;
constexpr int kOld = 1;
constexpr int kNew = 2;

class SaveFaults : public testing::TestWithParam<SavedFile>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"files"_s));
        PlaceOld();
    }

    [[nodiscard]] QString Folder() const { return m_folder.filePath(u"files"_s); }
    [[nodiscard]] QString Path() const { return Folder() + u'/' + FileNameOf(GetParam()); }
    /// A place outside the folder that is looked at.
    [[nodiscard]] QString Elsewhere(const QString& name) const { return m_folder.filePath(name); }

    void PlaceOld() const { Place(Path(), SaveTrial(GetParam(), kOld, kSmall).Bytes()); }

    [[nodiscard]] std::optional<int> Seed(const QString& path) const
    {
        return SeedOf(GetParam(), BytesOf(path), kSmall);
    }

    /// Saves the new content. @return why it was not saved, in words for the user; empty when it was
    QString Save() const
    {
        SaveTrial trial(GetParam(), kNew, kSmall);
        return Save(trial);
    }

    QString Save(SaveTrial& trial) const
    {
        const QStringList told = trial.Save(Path());
        if (told.isEmpty()) {
            return {};
        }
        EXPECT_EQ(told.size(), 1) << told.join(u'\n').toStdString();
        EXPECT_TRUE(told.first().startsWith(RefusalOf(GetParam()))) << told.first().toStdString();
        EXPECT_TRUE(trial.IsAsMade());
        return told.first().mid(RefusalOf(GetParam()).size()).section(u'\n', 0, 0);
    }

    /// The old file is whole and alone.
    void ExpectOldAlone() const
    {
        EXPECT_EQ(NamesIn(Folder()), QStringList{FileNameOf(GetParam())});
        EXPECT_EQ(Seed(Path()), kOld);
    }

    /// The same in the words of a process that cannot report failures: 0 when it was refused as it should be.
    [[nodiscard]] int RefusalWithoutPrivileges() const
    {
        return WithoutPrivileges([this] {
            SaveTrial trial(GetParam(), kNew, kSmall);
            const QStringList told = trial.Save(Path());
            const bool isProper = told.size() == 1 && told.first().startsWith(RefusalOf(GetParam())) &&
                                  told.first().size() > RefusalOf(GetParam()).size();
            return isProper && trial.IsAsMade() ? 0 : told.isEmpty() ? 1 : 2;
        });
    }

    void ReplaceByFolder() const
    {
        ASSERT_TRUE(QFile::remove(Path()));
        ASSERT_TRUE(QDir().mkdir(Path()));
    }

private:
    QTemporaryDir m_folder;
};

/// A limit of the system for this process as long as this lives.
class Limit
{
public:
    Limit(decltype(RLIMIT_FSIZE) what, rlim_t value) : m_what(what)
    {
        EXPECT_EQ(getrlimit(m_what, &m_before), 0);
        const rlimit limit{value, m_before.rlim_max};
        EXPECT_EQ(setrlimit(m_what, &limit), 0);
    }
    ~Limit() { setrlimit(m_what, &m_before); }
    Q_DISABLE_COPY_MOVE(Limit)

private:
    decltype(RLIMIT_FSIZE) m_what;
    rlimit m_before{};
};

/// A file that grows beyond the limit is an error then and not the end of the process.
class NoSignalForLargeFiles
{
public:
    NoSignalForLargeFiles() : m_before(std::signal(SIGXFSZ, SIG_IGN)) {}
    ~NoSignalForLargeFiles() { std::signal(SIGXFSZ, m_before); }
    Q_DISABLE_COPY_MOVE(NoSignalForLargeFiles)

private:
    void (*m_before)(int);
};

std::string NameOfParam(const testing::TestParamInfo<SavedFile>& info)
{
    QString name = NameOf(info.param);
    name[0] = name[0].toUpper();
    return name.toStdString();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, SaveFaults, testing::ValuesIn(kSavedFiles), NameOfParam);

TEST_P(SaveFaults, WithoutAnyTheNewFileIsWhole)
{
    EXPECT_EQ(Save(), QString());
    EXPECT_EQ(Seed(Path()), kNew);
    EXPECT_EQ(NamesIn(Folder()), QStringList{FileNameOf(GetParam())});
}

TEST_P(SaveFaults, AWriteThatFailsAtAnyByteLeavesTheOldFile)
{
    const NoSignalForLargeFiles quiet;
    SaveTrial trial(GetParam(), kNew, kSmall);
    const auto size = static_cast<rlim_t>(trial.Bytes().size());
    ASSERT_GE(size, 100U);
    for (rlim_t room = 0; room < size && !HasFailure(); ++room) {
        QString why;
        {
            const Limit limit(RLIMIT_FSIZE, room);
            why = Save(trial);
        }
        EXPECT_EQ(why, u"File too large"_s) << "room for " << room << " bytes";
        ExpectOldAlone();
    }
    const Limit enough(RLIMIT_FSIZE, size);
    EXPECT_EQ(Save(trial), QString());
    EXPECT_EQ(Seed(Path()), kNew);
}

TEST_P(SaveFaults, AWriteOfALargeFileThatFailsAfterAnyBlockLeavesTheOldFile)
{
    const NoSignalForLargeFiles quiet;
    SaveTrial trial(GetParam(), kNew, kLarge);
    for (rlim_t room = 0; room < static_cast<rlim_t>(trial.Bytes().size()); room += 4096) {
        const Limit limit(RLIMIT_FSIZE, room);
        EXPECT_EQ(Save(trial), u"File too large"_s) << "room for " << room << " bytes";
        ExpectOldAlone();
    }
}

TEST_P(SaveFaults, TooManyOpenFilesNeverLeaveHalfAFile)
{
#ifdef QUILLABY_SANITIZED
    GTEST_SKIP() << "a sanitizer opens files for its own checks, and takes a refusal for a fault of ours";
#endif
    const int free = dup(0); // the lowest that is free
    ASSERT_GE(free, 0);
    close(free);
    QStringList reasons;
    for (int more = 0; more <= 4; ++more) {
        PlaceOld();
        SaveTrial trial(GetParam(), kNew, kSmall);
        QStringList told;
        {
            const Limit limit(RLIMIT_NOFILE, static_cast<rlim_t>(free + more));
            told = trial.Save(Path());
        }
        reasons += told;
        EXPECT_EQ(NamesIn(Folder()), QStringList{FileNameOf(GetParam())}) << more;
        if (told.isEmpty()) {
            EXPECT_EQ(Seed(Path()), kNew) << more;
        } else {
            EXPECT_TRUE(Seed(Path()).has_value()) << more;
            EXPECT_TRUE(trial.IsAsMade()) << more;
        }
    }
    ASSERT_FALSE(reasons.isEmpty());
    EXPECT_TRUE(reasons.first().startsWith(RefusalOf(GetParam())));
    EXPECT_TRUE(reasons.first().contains(u"Too many open files")) << reasons.first().toStdString();
    EXPECT_LT(reasons.size(), 5) << "some attempt had enough of them";
}

TEST_P(SaveFaults, AFolderThatIsGoneIsTold)
{
    ASSERT_TRUE(QDir(Folder()).removeRecursively());
    EXPECT_NE(Save(), QString());
    EXPECT_FALSE(QDir(Folder()).exists());
}

TEST_P(SaveFaults, AFileInTheFoldersPlaceIsTold)
{
    ASSERT_TRUE(QDir(Folder()).removeRecursively());
    Place(Folder(), "no folder");
    EXPECT_NE(Save(), QString());
    EXPECT_EQ(BytesOf(Folder()), "no folder");
}

TEST_P(SaveFaults, AFolderIsNeverReplaced)
{
    ReplaceByFolder();
    Place(Path() + u"/inside"_s, "kept");
    EXPECT_TRUE(Save().contains(FileNameOf(GetParam())));
    EXPECT_EQ(BytesOf(Path() + u"/inside"_s), "kept");
    EXPECT_EQ(NamesIn(Folder()), QStringList{FileNameOf(GetParam())});
}

TEST_P(SaveFaults, AnEmptyFolderIsNeverReplacedEither)
{
    ReplaceByFolder();
    EXPECT_NE(Save(), QString());
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_P(SaveFaults, OfALinkTheFileItLeadsToIsReplacedAndTheLinkKept)
{
    const QString real = Elsewhere(u"real"_s);
    ASSERT_TRUE(QFile::rename(Path(), real));
    ASSERT_TRUE(QFile::link(real, Path()));
    EXPECT_EQ(Save(), QString());
    EXPECT_EQ(QFileInfo(Path()).symLinkTarget(), real);
    EXPECT_EQ(Seed(real), kNew);
    EXPECT_EQ(NamesIn(Folder()), QStringList{FileNameOf(GetParam())});
}

TEST_P(SaveFaults, ALinkIntoAFolderThatIsGoneIsToldAndKept)
{
    ASSERT_TRUE(QFile::remove(Path()));
    ASSERT_TRUE(QFile::link(Elsewhere(u"gone/real"_s), Path()));
    EXPECT_NE(Save(), QString());
    EXPECT_TRUE(QFileInfo(Path()).isSymLink());
}

TEST_P(SaveFaults, ALinkToAFullDeviceIsToldAndTheDeviceKept)
{
    ASSERT_TRUE(QFile::remove(Path()));
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, Path()));
    EXPECT_NE(Save(), QString());
    EXPECT_EQ(QFileInfo(Path()).symLinkTarget(), u"/dev/full"_s);
    struct stat status {};
    ASSERT_EQ(stat("/dev/full", &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
}

TEST_P(SaveFaults, ADeviceOfItsOwnIsNeverReplaced)
{
    ASSERT_TRUE(QFile::remove(Path()));
    constexpr dev_t kNullDevice = 0x103; // as /dev/null
    if (mknod(QFile::encodeName(Path()).constData(), S_IFCHR | 0666, kNullDevice) != 0) {
        GTEST_SKIP() << "only the administrator can make a device";
    }
    EXPECT_NE(Save(), QString());
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(Path()).constData(), &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
}

TEST_P(SaveFaults, APipeIsNeitherReplacedNorWaitedFor)
{
    ASSERT_TRUE(QFile::remove(Path()));
    ASSERT_EQ(mkfifo(QFile::encodeName(Path()).constData(), 0666), 0);
    EXPECT_NE(Save(), QString());
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(Path()).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

// What an ordinary user may not do

class SaveFaultsWithoutPrivileges : public SaveFaults
{
protected:
    void SetUp() override
    {
        SaveFaults::SetUp();
        ASSERT_EQ(chmod(QFile::encodeName(Elsewhere({})).constData(), 0755), 0);
        if (!IsReachableWithoutPrivileges(Folder(), 0777)) {
            GTEST_SKIP() << "an ordinary user cannot reach the temporary folder";
        }
    }

    void TearDown() override { Allow(Folder(), 0755); }

    static void Allow(const QString& path, mode_t mode)
    {
        EXPECT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
    }
};

INSTANTIATE_TEST_SUITE_P(Of, SaveFaultsWithoutPrivileges, testing::ValuesIn(kSavedFiles), NameOfParam);

TEST_P(SaveFaultsWithoutPrivileges, AFileOfAnotherUserStaysAsItIs)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "there is no other user";
    }
    Allow(Path(), 0644);
    EXPECT_EQ(RefusalWithoutPrivileges(), 0);
    ExpectOldAlone();
}

TEST_P(SaveFaultsWithoutPrivileges, AFileOfAnotherUserInAFolderForEverybodyStaysAsItIs)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "there is no other user";
    }
    Allow(Path(), 0666); // it may be written, but nobody else may put another file in its place
    Allow(Folder(), 01777);
    EXPECT_EQ(RefusalWithoutPrivileges(), 0);
    ExpectOldAlone();
}

TEST_P(SaveFaultsWithoutPrivileges, AReadOnlyFileStaysAsItIs)
{
    Allow(Path(), 0444);
    EXPECT_EQ(RefusalWithoutPrivileges(), 0);
    ExpectOldAlone();
}

TEST_P(SaveFaultsWithoutPrivileges, AReadOnlyFolderStaysAsItIs)
{
    Allow(Path(), 0666);
    Allow(Folder(), 0555);
    EXPECT_EQ(RefusalWithoutPrivileges(), 0);
    ExpectOldAlone();
}

TEST_P(SaveFaultsWithoutPrivileges, AFolderThatMayNotBeEnteredStaysAsItIs)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "there is no other user";
    }
    Allow(Folder(), 0700);
    EXPECT_EQ(RefusalWithoutPrivileges(), 0);
    ExpectOldAlone();
}

// Programs that are killed

namespace {

/// What a program tells of its saves until it is killed.
struct Progress {
    std::atomic<int> begun;
    std::atomic<int> done;
};

/// Saves the seeds after @p seed one after the other, each from memory that was made up before.
[[noreturn]] void SaveUntilKilled(SavedFile file, const QString& path, int seed, Progress& progress)
{
    for (;;) {
        SaveTrial trial(file, ++seed, kLarge);
        progress.begun = seed;
        if (!trial.Save(path).isEmpty()) {
            _exit(1);
        }
        progress.done = seed;
    }
}

/// How long a save takes here and now, in microseconds.
int TimeOfASave(SavedFile file, const QString& path)
{
    SaveTrial trial(file, 0, kLarge);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(trial.Save(path), QStringList());
    return static_cast<int>(timer.nsecsElapsed() / 1000) + 1;
}

/// How many programs are killed for each file: QUILLABY_KILLS in the environment, else a few.
int Kills()
{
    constexpr int kFew = 30;
    const int asked = qEnvironmentVariableIntValue("QUILLABY_KILLS");
    return asked > 0 ? asked : kFew;
}

} // namespace

TEST_P(SaveFaults, AProgramKilledAtAnyMomentLeavesTheOldFileOrTheNewOne)
{
    void* memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    auto* progress = new (memory) Progress{};
    std::srand(static_cast<unsigned>(QDateTime::currentMSecsSinceEpoch())); // NOLINT: any moments will do
    const int save = TimeOfASave(GetParam(), Path());
    int held = 0;
    int saves = 0;
    int inTheMiddle = 0;
    int withTheNew = 0;
    int leftBeside = 0;
    for (int round = 0; round < Kills() && !HasFailure(); ++round) {
        progress->begun = held;
        progress->done = held;
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            SaveUntilKilled(GetParam(), Path(), held, *progress);
        }
        while (progress->begun == held && waitpid(child, nullptr, WNOHANG) == 0) {
            usleep(100); // until it has begun
        }
        usleep(static_cast<useconds_t>(std::rand() % (save + save / 2))); // NOLINT
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        const std::optional<int> found = SeedOf(GetParam(), BytesOf(Path()), kLarge);
        ASSERT_TRUE(found.has_value()) << "after kill " << round << " the file is not whole";
        EXPECT_GE(*found, progress->done) << "what was said to be saved is not there";
        EXPECT_LE(*found, progress->begun);
        saves += progress->begun - held;
        inTheMiddle += progress->begun != progress->done ? 1 : 0;
        withTheNew += progress->begun != progress->done && *found == progress->begun ? 1 : 0;
        for (const QString& name : NamesIn(Folder())) {
            if (name != FileNameOf(GetParam())) {
                EXPECT_EQ(name.section(u'.', 0, -2), FileNameOf(GetParam())) << name.toStdString();
                EXPECT_TRUE(QFile::remove(Folder() + u'/' + name));
                ++leftBeside;
            }
        }
        held = *found;
    }
    munmap(memory, sizeof(Progress));
    std::printf(
        "%s: %d kills in %d saves, %d of them in the middle of one: %d left the old file, %d the new one; "
        "%d temporary files\n",
        qPrintable(NameOf(GetParam())), Kills(), saves, inTheMiddle, inTheMiddle - withTheNew, withTheNew,
        leftBeside);
    EXPECT_GT(inTheMiddle, Kills() / 20) << "hardly any program was killed while it saved";
}

#endif
