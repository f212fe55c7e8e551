#include "app/RecoveryCopies.h"

#include "app/DatabaseRecovery.h"
#include "app/LotteryFile.h"
#include "app/LotteryFileCommands.h"
#include "app/SafeFile.h"
#include "invest/StatementRecovery.h"
#include "tests/CannedPrompts.h"
#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/resource.h>

#include <csignal>
#endif

using namespace Qt::StringLiterals;

namespace {

const QString kHere = u"here"_s;

RecoveryNote ANote()
{
    return {.fileName = u"Sämple.Lto"_s,
            .folder = u"/home/some one"_s,
            .title = u"A \"quoted\" title, \u20AC"_s,
            .records = 57,
            .time = QDateTime({2026, 11, 18}, {12, 30, 5, 250}, Qt::UTC),
            .host = kHere};
}

QByteArray LotteryBytes(const DrawDatabase& database)
{
    QByteArray bytes;
    EXPECT_TRUE(WriteLotteryFile(database, QLocale::c(), bytes).ok);
    return bytes;
}

QDateTime Later(qint64 seconds)
{
    return QDateTime::currentDateTimeUtc().addSecs(seconds);
}

std::vector<LeftCopy> LeftIn(const QTemporaryDir& folder, qint64 later = 0)
{
    return FindLeftCopies(folder.path(), kHere, Later(later));
}

/// Writes a copy as a run does that is then gone without an end.
void LeaveCopy(const QString& folder, WorkKind kind, const QByteArray& copy, const QString& host = kHere)
{
    OwnRecoveryCopies run(folder, host);
    ASSERT_TRUE(run.Keep(kind, copy).ok);
} // destroying it frees the lock, as the system does

TEST(RecoveryNote, ComesBackWithTheBytesAsTheyWere)
{
    for (const QByteArray& bytes :
         {LotteryBytes(MadeUpDatabase(6, 49, 12)), QByteArray("1\r\n"), QByteArray("\r\n"),
          QByteArray("\r\nrecovery abc {}\r\n"), QByteArray(1000, '\r') + "\r\n"}) {
        const RecoveredWork work = WithoutNote(WithNote(bytes, ANote()));
        EXPECT_EQ(work.bytes, bytes);
        ASSERT_TRUE(work.note.has_value());
        EXPECT_TRUE(*work.note == ANote());
    }
}

TEST(RecoveryNote, TheOrdinaryReaderPassesOverIt)
{
    const DrawDatabase database = MadeUpDatabase(6, 49, 12);
    const QByteArray copy = WithNote(LotteryBytes(database), ANote());
    const LotteryReading reading = ReadLotteryFile(copy, LotteryLayout::Current, QLocale::c());
    ASSERT_TRUE(reading.content.has_value()) << reading.reason.toStdString();
    DrawDatabase read;
    ReplaceDatabase(read, LotteryFileContent(*reading.content), {});
    EXPECT_EQ(LotteryBytes(read), LotteryBytes(database));
}

TEST(RecoveryNote, ACopyCutAnywhereHasNoNoteAndKeepsItsBytes)
{
    const QByteArray copy = WithNote(LotteryBytes(MadeUpDatabase(3, 9, 2)), ANote());
    for (qsizetype size = 0; size < copy.size(); ++size) {
        const RecoveredWork work = WithoutNote(copy.first(size));
        EXPECT_FALSE(work.note.has_value()) << size;
        EXPECT_EQ(work.bytes, copy.first(size)) << size;
    }
}

TEST(RecoveryNote, ACopyWithAnyByteChangedHasNoNote)
{
    const QByteArray copy = WithNote(LotteryBytes(MadeUpDatabase(3, 9, 2)), ANote());
    for (qsizetype place = 0; place < copy.size(); ++place) {
        QByteArray damaged = copy;
        damaged[place] = static_cast<char>(damaged.at(place) ^ 1);
        EXPECT_FALSE(WithoutNote(damaged).note.has_value()) << place;
    }
}

TEST(RecoveryNote, ACopyThatEndsWithinTheMarkOrTheSumHasNone)
{
    for (int length = 0; length < 70; ++length) {
        const QByteArray copy = "1\r\nrecovery " + QByteArray(length, '0') + "\r\n";
        const RecoveredWork work = WithoutNote(copy);
        EXPECT_FALSE(work.note.has_value()) << length;
        EXPECT_EQ(work.bytes, copy) << length;
    }
}

TEST(RecoveryNote, NamesAFileOfItsFolderAndNoOther)
{
    const auto nameOf = [](const QString& written) {
        return WithoutNote(WithNote("1\r\n", {.fileName = written})).note.value_or(ANote()).fileName;
    };
    EXPECT_EQ(nameOf(u"../x.Lto"_s), u"x.Lto"_s);
    EXPECT_EQ(nameOf(u"/etc/x.Lto"_s), u"x.Lto"_s);
    EXPECT_EQ(nameOf(u"a b.Lto"_s), u"a b.Lto"_s);
    for (const QString& none : {QString(), u"."_s, u".."_s, u"../"_s, u"x/.."_s, u"x.Lto"_s + QChar::Null}) {
        EXPECT_EQ(nameOf(none), QString()) << none.toStdString();
    }
    const auto folderOf = [](const QString& written) {
        return WithoutNote(WithNote("1\r\n", {.folder = written})).note.value_or(ANote()).folder;
    };
    EXPECT_EQ(folderOf(u"/home/some one"_s), u"/home/some one"_s);
    EXPECT_EQ(folderOf(u"/home/a/../b"_s), u"/home/b"_s);
    for (const QString& none : {QString(), u"."_s, u"home"_s, u"../home"_s, u"/a"_s + QChar::Null}) {
        EXPECT_EQ(folderOf(none), QString()) << none.toStdString();
    }
    EXPECT_EQ(WithoutNote(WithNote("1\r\n", {.records = -5})).note.value_or(ANote()).records, 0);
}

TEST(RecoveryFolder, IsInTheUsersStateFolder)
{
#if !defined(Q_OS_WIN) && !defined(Q_OS_MACOS)
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", "/tmp/some state");
    EXPECT_EQ(UsualRecoveryFolder(), u"/tmp/some state/quillaby/recovery"_s);
    for (const char* notAbsolute : {"", "state", "./state"}) {
        qputenv("XDG_STATE_HOME", notAbsolute);
        EXPECT_EQ(UsualRecoveryFolder(), QDir::homePath() + u"/.local/state/quillaby/recovery"_s);
    }
    qputenv("XDG_STATE_HOME", before);
#endif
}

TEST(OwnRecoveryCopies, TouchNothingBeforeTheFirstCopy)
{
    const QTemporaryDir home;
    OwnRecoveryCopies run(home.filePath(u"state/recovery"_s), kHere);
    EXPECT_TRUE(run.Remove(WorkKind::Database).ok);
    run.Renew();
    EXPECT_EQ(NamesIn(home.path()), QStringList());
}

TEST(OwnRecoveryCopies, AreTheUsersAlone)
{
    const QTemporaryDir home;
    const QString folder = home.filePath(u"state/recovery"_s);
    OwnRecoveryCopies run(folder, kHere);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "1\r\n").ok);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "2\r\n").ok);
    ASSERT_TRUE(run.Keep(WorkKind::Statement, "3\r\n").ok);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(folder) & others);
    EXPECT_EQ(NamesIn(folder),
              QStringList({run.Run() + u".Lto"_s, run.Run() + u".inv"_s, run.Run() + u".lock"_s}));
    for (const QString& name : NamesIn(folder)) {
        EXPECT_FALSE(QFile::permissions(folder + u'/' + name) & others) << name.toStdString();
        EXPECT_FALSE(QFile::permissions(folder + u'/' + name) & QFile::ExeOwner) << name.toStdString();
    }
    EXPECT_EQ(BytesOf(folder + u'/' + run.Run() + u".Lto"_s), "2\r\n");
}

TEST(OwnRecoveryCopies, AnOlderFolderThatIsOpenToOthersIsClosed)
{
    const QTemporaryDir home;
    const QString folder = home.filePath(u"recovery"_s);
    ASSERT_TRUE(QDir().mkdir(folder));
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                  QFile::ReadOther | QFile::ExeOther));
    OwnRecoveryCopies run(folder, kHere);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "1\r\n").ok);
    EXPECT_FALSE(QFile::permissions(folder) & (QFile::ReadOther | QFile::ExeOther | QFile::ExeGroup));
}

TEST(OwnRecoveryCopies, AFileInTheFoldersPlaceIsLeftAsItIsAndTold)
{
    const QTemporaryDir home;
    const QString path = home.filePath(u"recovery"_s);
    Place(path, "in the way");
    const QFile::Permissions before = QFile::permissions(path);
    OwnRecoveryCopies run(path, kHere);
    const Outcome kept = run.Keep(WorkKind::Database, "1\r\n");
    EXPECT_FALSE(kept.ok);
    EXPECT_TRUE(kept.reason.contains(path)) << kept.reason.toStdString();
    EXPECT_EQ(QFile::permissions(path), before);
    EXPECT_EQ(BytesOf(path), "in the way");
    EXPECT_TRUE(FindLeftCopies(path, kHere, Later(0)).empty());
}

#ifdef Q_OS_UNIX
TEST(OwnRecoveryCopies, ALinkToAFolderIsNotFollowed)
{
    const QTemporaryDir home;
    const QTemporaryDir elsewhere;
    LeaveCopy(elsewhere.path(), WorkKind::Database, WithNote("1\r\n", ANote()));
    const QStringList names = NamesIn(elsewhere.path());
    ASSERT_EQ(chmod(QFile::encodeName(elsewhere.path()).constData(), 0755), 0);
    const QString path = home.filePath(u"recovery"_s);
    ASSERT_TRUE(QFile::link(elsewhere.path(), path));
    for (const QString& folder : {path, path + u'/'}) {
        OwnRecoveryCopies run(folder, kHere);
        EXPECT_FALSE(run.Keep(WorkKind::Database, "1\r\n").ok);
        EXPECT_TRUE(FindLeftCopies(folder, kHere, Later(0)).empty());
    }
    EXPECT_EQ(NamesIn(elsewhere.path()), names);
    EXPECT_TRUE(QFile::permissions(elsewhere.path()) & QFile::ReadOther) << "as it was";
}

TEST(OwnRecoveryCopies, AnotherUsersFolderIsNotUsed)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "nobody else's folder can be made";
    }
    const QTemporaryDir home;
    const QString folder = home.filePath(u"recovery"_s);
    LeaveCopy(folder, WorkKind::Database, WithNote("1\r\n", ANote()));
    const QByteArray name = QFile::encodeName(folder);
    constexpr uid_t kNobody = 65534;
    ASSERT_EQ(chown(name.constData(), kNobody, kNobody), 0);
    ASSERT_EQ(chmod(name.constData(), 0777), 0);
    const QStringList names = NamesIn(folder);
    OwnRecoveryCopies run(folder, kHere);
    const Outcome kept = run.Keep(WorkKind::Database, "1\r\n");
    EXPECT_FALSE(kept.ok);
    EXPECT_TRUE(kept.reason.contains(u"another user"_s)) << kept.reason.toStdString();
    EXPECT_EQ(NamesIn(folder), names);
    EXPECT_TRUE(QFile::permissions(folder) & QFile::WriteOther) << "as it was";
    EXPECT_TRUE(FindLeftCopies(folder, kHere, Later(0)).empty());
}
#endif

TEST(OwnRecoveryCopies, SetAsideTheyAreLeftOnesAndTheRunGoesOnWithoutThem)
{
    const QTemporaryDir folder;
    OwnRecoveryCopies run(folder.path(), kHere);
    LeftCopy aside;
    EXPECT_FALSE(run.SetAside(WorkKind::Database, aside).ok) << "there is none";
    ASSERT_TRUE(run.Keep(WorkKind::Database, WithNote("1\r\n", ANote())).ok);
    ASSERT_TRUE(run.Keep(WorkKind::Statement, WithNote("2\r\n", ANote())).ok);
    ASSERT_TRUE(run.SetAside(WorkKind::Database, aside).ok);
    EXPECT_FALSE(run.AreThere(WorkKind::Database));
    EXPECT_TRUE(run.AreThere(WorkKind::Statement));
    std::vector<LeftCopy> left = LeftIn(folder);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left.at(0).path, aside.path);
    EXPECT_TRUE(left.at(0).note == aside.note);
    EXPECT_TRUE(aside.note == ANote());
    EXPECT_EQ(aside.time, ANote().time);
    ASSERT_TRUE(run.Keep(WorkKind::Database, WithNote("3\r\n", ANote())).ok);
    ASSERT_TRUE(run.SetAside(WorkKind::Database, aside).ok);
    EXPECT_EQ(LeftIn(folder).size(), 2U) << "each has a name of its own";
    ASSERT_TRUE(run.Remove(WorkKind::Statement).ok);
    EXPECT_TRUE(NamesIn(folder.path()).filter(u".lock"_s).isEmpty());
    EXPECT_EQ(LeftIn(folder).size(), 2U);
}

TEST(OwnRecoveryCopies, RemovedTheyLeaveNothing)
{
    const QTemporaryDir folder;
    OwnRecoveryCopies run(folder.path(), kHere);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "1\r\n").ok);
    ASSERT_TRUE(run.Keep(WorkKind::Statement, "2\r\n").ok);
    EXPECT_TRUE(run.Remove(WorkKind::Database).ok);
    EXPECT_EQ(NamesIn(folder.path()), QStringList({run.Run() + u".inv"_s, run.Run() + u".lock"_s}));
    EXPECT_TRUE(run.Remove(WorkKind::Statement).ok);
    EXPECT_EQ(NamesIn(folder.path()), QStringList());
    ASSERT_TRUE(run.Keep(WorkKind::Database, "3\r\n").ok); // and go on
    EXPECT_TRUE(run.Remove(WorkKind::Database).ok);
    EXPECT_EQ(NamesIn(folder.path()), QStringList());
}

TEST(OwnRecoveryCopies, WrittenAgainIntoAFolderThatWasEmptiedTheyAreStillThisRuns)
{
    const QTemporaryDir home;
    const QString folder = home.filePath(u"recovery"_s);
    OwnRecoveryCopies run(folder, kHere);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "1\r\n").ok);
    ASSERT_TRUE(QDir(folder).removeRecursively());
    ASSERT_TRUE(run.Keep(WorkKind::Database, "2\r\n").ok);
    EXPECT_EQ(NamesIn(folder), QStringList({run.Run() + u".Lto"_s, run.Run() + u".lock"_s}));
    EXPECT_TRUE(FindLeftCopies(folder, kHere, Later(0)).empty()) << "another program would offer it";
    EXPECT_TRUE(run.Remove(WorkKind::Database).ok);
    EXPECT_EQ(NamesIn(folder), QStringList());
}

TEST(OwnRecoveryCopies, AFolderThatCannotBeMadeIsAFailureWithAReason)
{
    const QTemporaryDir home;
    Place(home.filePath(u"file"_s), "in the way");
    OwnRecoveryCopies run(home.filePath(u"file/recovery"_s), kHere);
    const Outcome kept = run.Keep(WorkKind::Database, "1\r\n");
    EXPECT_FALSE(kept.ok);
    EXPECT_TRUE(kept.reason.contains(u"cannot be made"_s)) << kept.reason.toStdString();
}

#ifdef Q_OS_UNIX
TEST(OwnRecoveryCopies, WithoutPermissionTheCopyFailsAndTheOneBeforeStaysWhole)
{
    const QTemporaryDir home;
    if (!IsReachableWithoutPrivileges(home.path(), 0777)) {
        GTEST_SKIP() << "nobody cannot reach the temporary folder";
    }
    const QString folder = home.filePath(u"recovery"_s);
    const int result = WithoutPrivileges([&] {
        OwnRecoveryCopies run(folder, kHere);
        if (!run.Keep(WorkKind::Database, "1\r\n").ok) {
            return 1;
        }
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
        const Outcome refused = run.Keep(WorkKind::Database, "2\r\n");
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (refused.ok || refused.reason.isEmpty()) {
            return 2;
        }
        QFile copy(folder + u'/' + run.Run() + u".Lto"_s);
        return copy.open(QIODevice::ReadOnly) && copy.readAll() == "1\r\n" ? kAsExpected : 3;
    });
    if (result == 77) {
        GTEST_SKIP() << "privileges cannot be dropped";
    }
    EXPECT_EQ(result, kAsExpected);
}

TEST(OwnRecoveryCopies, WithoutRoomTheCopyFailsAndTheOneBeforeStaysWhole)
{
    const QTemporaryDir folder;
    OwnRecoveryCopies run(folder.path(), kHere);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "1\r\n").ok);
    // A limit on the size of files fails a write in the middle, as a full disk does.
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{.rlim_cur = 4096, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const Outcome refused = run.Keep(WorkKind::Database, QByteArray(100000, 'x') + "\r\n");
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(refused.ok);
    EXPECT_FALSE(refused.reason.isEmpty());
    EXPECT_EQ(NamesIn(folder.path()), QStringList({run.Run() + u".Lto"_s, run.Run() + u".lock"_s}));
    EXPECT_EQ(BytesOf(folder.filePath(run.Run() + u".Lto"_s)), "1\r\n");
}
#endif

TEST(LeftCopies, ThereAreNoneWhereThereIsNoFolder)
{
    const QTemporaryDir home;
    EXPECT_TRUE(FindLeftCopies(home.filePath(u"none"_s), kHere, Later(0)).empty());
    EXPECT_EQ(NamesIn(home.path()), QStringList());
}

TEST(LeftCopies, ThoseOfARunThatLivesAreNotAmongThem)
{
    const QTemporaryDir folder;
    {
        OwnRecoveryCopies run(folder.path(), kHere);
        ASSERT_TRUE(run.Keep(WorkKind::Database, WithNote("1\r\n", ANote())).ok);
        EXPECT_TRUE(LeftIn(folder).empty());
        EXPECT_TRUE(LeftIn(folder, 40 * 24 * 3600).empty()) << "however long it lives";
        EXPECT_EQ(NamesIn(folder.path()).size(), 2) << "and it is not disturbed";
    }
    EXPECT_EQ(LeftIn(folder).size(), 1U);
}

#ifdef Q_OS_UNIX
TEST(LeftCopies, AProcessThatWasKilledLeavesItsCopyWhoeverHasItsNumberNow)
{
    const QTemporaryDir folder;
    const pid_t child = fork();
    if (child == 0) {
        OwnRecoveryCopies run(folder.path(), kHere);
        if (!run.Keep(WorkKind::Database, WithNote("1\r\n", ANote())).ok) {
            _exit(1);
        }
        raise(SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    // Written into the lock is now the number and the name of a process that lives: this one.
    const QStringList locks = NamesIn(folder.path()).filter(u".lock"_s);
    ASSERT_EQ(locks.size(), 1);
    const QString path = folder.filePath(locks.front());
    QByteArray lock = BytesOf(path);
    lock.replace(QByteArray::number(child), QByteArray::number(getpid()));
    Place(path, lock);
    EXPECT_EQ(LeftIn(folder).size(), 1U);
}
#endif

TEST(LeftCopies, TheLatestComesFirstWithWhatItsNoteSays)
{
    const QTemporaryDir folder;
    RecoveryNote older = ANote();
    older.time = older.time.addDays(-1);
    older.fileName = u"Older.inv"_s;
    LeaveCopy(folder.path(), WorkKind::Statement, WithNote("1\r\n", older));
    LeaveCopy(folder.path(), WorkKind::Database, WithNote("1\r\n", ANote()));
    const std::vector<LeftCopy> left = LeftIn(folder);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_EQ(left.at(0).kind, WorkKind::Database);
    EXPECT_TRUE(left.at(0).note == ANote());
    EXPECT_EQ(left.at(0).time, ANote().time);
    EXPECT_EQ(left.at(1).kind, WorkKind::Statement);
    EXPECT_EQ(left.at(1).note.value_or(RecoveryNote()).fileName, u"Older.inv"_s);
}

TEST(LeftCopies, ADamagedOneIsOfferedWithoutANote)
{
    const QTemporaryDir folder;
    LeaveCopy(folder.path(), WorkKind::Database, WithNote("1\r\n", ANote()).chopped(5));
    LeaveCopy(folder.path(), WorkKind::Database, {});
    const std::vector<LeftCopy> left = LeftIn(folder);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_FALSE(left.at(0).note.has_value());
    EXPECT_FALSE(left.at(1).note.has_value());
}

TEST(LeftCopies, AnotherComputersCountsAsLivingForTenMinutes)
{
    const QTemporaryDir folder;
    RecoveryNote elsewhere = ANote();
    elsewhere.host = u"elsewhere"_s;
    LeaveCopy(folder.path(), WorkKind::Database, WithNote("1\r\n", elsewhere), elsewhere.host);
    EXPECT_TRUE(LeftIn(folder).empty());
    EXPECT_TRUE(LeftIn(folder, 590).empty());
    EXPECT_EQ(LeftIn(folder, 610).size(), 1U);
    EXPECT_EQ(FindLeftCopies(folder.path(), u"elsewhere"_s, Later(0)).size(), 1U)
        << "there it is known at once";
}

TEST(LeftCopies, ARunSaysThatItLivesByTouchingItsCopies)
{
    const QTemporaryDir folder;
    OwnRecoveryCopies run(folder.path(), kHere);
    ASSERT_TRUE(run.Keep(WorkKind::Database, "1\r\n").ok);
    const QString path = folder.filePath(run.Run() + u".Lto"_s);
    {
        QFile copy(path);
        ASSERT_TRUE(copy.open(QIODevice::ReadWrite));
        ASSERT_TRUE(copy.setFileTime(Later(-5000), QFileDevice::FileModificationTime));
    }
    run.Renew();
    EXPECT_GT(QFileInfo(path).lastModified().toUTC(), Later(-60));
    EXPECT_EQ(BytesOf(path), "1\r\n");
}

TEST(LeftCopies, FilesOfOthersAreLeftAlone)
{
    const QTemporaryDir folder;
    for (const QString& name : {u"Sample.Lto"_s, u"0123.Lto"_s, u"note.txt"_s}) {
        Place(folder.filePath(name), "x");
    }
    EXPECT_TRUE(LeftIn(folder, 90 * 24 * 3600).empty());
    EXPECT_EQ(NamesIn(folder.path()).size(), 3);
}

TEST(LeftCopies, WhatAnInterruptedWriteLeftIsSweptAfterADay)
{
    const QTemporaryDir folder;
    const QString run(32, u'a');
    Place(folder.filePath(run + u".lock"_s), "1\nquillaby\nhere\n");
    Place(folder.filePath(run + u".Lto.AbCdEf"_s), "half");
    EXPECT_TRUE(LeftIn(folder, 23 * 3600).empty());
    EXPECT_EQ(NamesIn(folder.path()).size(), 2);
    EXPECT_TRUE(LeftIn(folder, 25 * 3600).empty());
    EXPECT_EQ(NamesIn(folder.path()), QStringList());
}

TEST(LeftCopies, ALinkIsNoCopy)
{
    const QTemporaryDir folder;
    const QTemporaryDir elsewhere;
    Place(elsewhere.filePath(u"Secret.Lto"_s), WithNote("1\r\n", ANote()));
    ASSERT_TRUE(
        QFile::link(elsewhere.filePath(u"Secret.Lto"_s), folder.filePath(QString(32, u'b') + u".Lto"_s)));
    EXPECT_TRUE(LeftIn(folder).empty());
}

TEST(LeftCopies, RemovedOneTakesItsLockAndItsLeftoversAlong)
{
    const QTemporaryDir folder;
    LeaveCopy(folder.path(), WorkKind::Database, WithNote("1\r\n", ANote()));
    const LeftCopy copy = LeftIn(folder).at(0);
    const QString run = QFileInfo(copy.path).completeBaseName();
    Place(folder.filePath(run + u".lock"_s), "1\nquillaby\nhere\n");
    Place(folder.filePath(run + u".Lto.AbCdEf"_s), "half");
    Place(folder.filePath(run + u".inv"_s), "the other");
    EXPECT_TRUE(RemoveLeftCopy(copy).ok);
    EXPECT_EQ(NamesIn(folder.path()).size(), 3) << "the statement of that run is still to be offered";
    EXPECT_TRUE(RemoveLeftCopy(LeftIn(folder).at(0)).ok);
    EXPECT_EQ(NamesIn(folder.path()), QStringList());
    EXPECT_TRUE(RemoveLeftCopy(copy).ok) << "another run was faster";
}

TEST(LeftCopies, OneThatIsGoneCannotBeReadAndSaysWhy)
{
    RecoveredWork work;
    const Outcome read = ReadLeftCopy({.path = u"/nowhere/at/all.Lto"_s}, work);
    EXPECT_FALSE(read.ok);
    EXPECT_FALSE(read.reason.isEmpty());
}

TEST(LeftCopies, AreDescribedInASentence)
{
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    LeftCopy copy{.path = u"x"_s,
                  .kind = WorkKind::Database,
                  .note = ANote(),
                  .time = QDateTime({2026, 11, 18}, {12, 30})};
    const QString when = u", 11/18/2026 12:30 PM"_s;
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere),
              u"Sämple.Lto, 57 records"_s + when + u", \"A \"quoted\" title, \u20AC\""_s);
    copy.note->fileName = QString(300, u'f');
    copy.note->title = QString(41, u't');
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere),
              QString(37, u'f') + u"..., 57 records"_s + when + u", \""_s + QString(37, u't') + u"...\""_s);
    copy.note->fileName = u"Sämple.Lto"_s;
    copy.note->title.clear();
    copy.note->records = 1;
    EXPECT_EQ(DescribeLeftCopy(copy, american, u"there"_s),
              u"Sämple.Lto, 1 record"_s + when + u", made on here"_s);
    copy.note->fileName.clear();
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere), u"A new lottery database, 1 record"_s + when);
    copy.kind = WorkKind::Statement;
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere), u"A new investment statement, 1 row"_s + when);
    copy.note->records = 1200;
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere), u"A new investment statement, 1,200 rows"_s + when);
    copy.note.reset();
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere), u"A damaged copy of a statement"_s + when);
    copy.kind = WorkKind::Database;
    EXPECT_EQ(DescribeLeftCopy(copy, american, kHere), u"A damaged copy of a lottery database"_s + when);
}

class KeptDatabaseTest : public testing::Test
{
protected:
    [[nodiscard]] bool IsUnsaved() const { return m_work.unsaved().has_value(); }

    /// What a crash now would bring back.
    LGLOBAL Recovered()
    {
        QByteArray bytes;
        RecoveryNote note;
        EXPECT_TRUE(m_work.write(bytes, note).ok);
        LGLOBAL shared;
        shared.locale = m_shared.locale;
        const Outcome taken = TakeRecoveredDatabase(shared, WithoutNote(WithNote(bytes, note)));
        EXPECT_TRUE(taken.ok) << taken.reason.toStdString();
        return shared;
    }

    void Save()
    {
        m_prompts.files = {m_folder.filePath(u"Saved.Lto"_s)};
        SaveFile(m_shared, m_prompts);
    }

    QTemporaryDir m_folder;
    LGLOBAL m_shared;
    CannedPrompts m_prompts{m_shared};
    KeptWork m_work = KeptDatabase(m_shared);
};

TEST_F(KeptDatabaseTest, WithoutRecordsThereIsNothingToKeep)
{
    EXPECT_FALSE(IsUnsaved());
    m_shared.database.title = u"New"_s;
    EXPECT_FALSE(IsUnsaved());
}

TEST_F(KeptDatabaseTest, IsUnsavedUntilItIsSaved)
{
    m_shared.database = MadeUpDatabase(6, 49, 3);
    EXPECT_TRUE(IsUnsaved());
    Save();
    EXPECT_FALSE(IsUnsaved());
    EXPECT_EQ(m_shared.databaseOnDisk.folder, QFileInfo(m_folder.path()).absoluteFilePath());
    m_shared.database.records.at(2).drawn.at(0) = 49;
    EXPECT_TRUE(IsUnsaved()) << "a correction, which the exit does not ask about";
}

TEST_F(KeptDatabaseTest, ASaveThatFailedOrWasCancelledLeavesItUnsaved)
{
    m_shared.database = MadeUpDatabase(6, 49, 3);
    m_shared.database.modified = 1;
    m_prompts.files = {QString()};
    SaveFile(m_shared, m_prompts);
    EXPECT_EQ(m_shared.database.modified, 0);
    EXPECT_TRUE(IsUnsaved());
    m_prompts.files = {m_folder.filePath(u"none/Saved.Lto"_s)};
    m_prompts.expectedMessages = {14};
    SaveFile(m_shared, m_prompts);
    EXPECT_TRUE(IsUnsaved());
}

TEST_F(KeptDatabaseTest, AnOpenedFileIsSavedAndAFailedOpeningLeavesNothing)
{
    const QString path = m_folder.filePath(u"Two.Lto"_s);
    Place(path, LotteryBytes(MadeUpDatabase(6, 49, 2)));
    ASSERT_TRUE(OpenLotteryFile(m_shared, m_prompts, path));
    EXPECT_FALSE(IsUnsaved());
    m_shared.database.CheckDay(1, true);
    EXPECT_TRUE(IsUnsaved());
    m_shared.database.CheckDay(1, false);
    EXPECT_FALSE(IsUnsaved()) << "as it was";
    m_prompts.expectedMessages = {13};
    EXPECT_FALSE(OpenLotteryFile(m_shared, m_prompts, m_folder.filePath(u"none"_s)));
    EXPECT_FALSE(IsUnsaved());
}

TEST_F(KeptDatabaseTest, ComesBackExactlyAsUnsavedWorkUnderItsOwnName)
{
    const QString path = m_folder.filePath(u"Two.Lto"_s);
    Place(path, LotteryBytes(MadeUpDatabase(6, 49, 2)));
    ASSERT_TRUE(OpenLotteryFile(m_shared, m_prompts, path));
    m_shared.database.Append(QDate(2026, 11, 18), {1, 2, 3, 4, 5, 6});
    const LGLOBAL recovered = Recovered();
    EXPECT_EQ(LotteryBytes(recovered.database), LotteryBytes(m_shared.database));
    EXPECT_EQ(recovered.database.fileName, u"Two.Lto"_s);
    EXPECT_EQ(recovered.database.modified, 1);
    EXPECT_EQ(recovered.dialogFolder, QFileInfo(path).absolutePath());
    EXPECT_TRUE(KeptDatabase(recovered).unsaved().has_value()) << "so that it is protected at once";
}

TEST_F(KeptDatabaseTest, ThePathShownIsThatOfItsOwnFileOrNone)
{
    QByteArray bytes = LotteryBytes(MadeUpDatabase(6, 49, 2));
    m_shared.databasePath = u"/before/Test.Lto"_s;
    m_shared.statementPath = u"/before/Mine.inv"_s;
    ASSERT_TRUE(
        TakeRecoveredDatabase(m_shared, {bytes, RecoveryNote{.fileName = u"Test.Lto"_s, .folder = u"/own"_s}})
            .ok);
    EXPECT_EQ(DatabaseFilePath(m_shared), u"/own/Test.Lto"_s);
    ASSERT_TRUE(TakeRecoveredDatabase(m_shared, {bytes, RecoveryNote{.fileName = u"Test.Lto"_s}}).ok);
    EXPECT_EQ(DatabaseFilePath(m_shared), u"Test.Lto"_s) << "no folder is known";
    m_shared.databasePath = u"/before/Test.Lto"_s;
    ASSERT_TRUE(TakeRecoveredDatabase(m_shared, {bytes, std::nullopt}).ok);
    EXPECT_EQ(m_shared.databasePath, QString());

    bytes = "0\r\n";
    const RecoveryNote note{.fileName = u"Mine.inv"_s, .folder = u"/own"_s};
    ASSERT_TRUE(ReadRecoveredStatement(m_shared, {bytes, note}).statement.has_value());
    EXPECT_EQ(m_shared.statementPath, u"/own/Mine.inv"_s);
    ASSERT_TRUE(ReadRecoveredStatement(m_shared, {bytes, std::nullopt}).statement.has_value());
    EXPECT_EQ(m_shared.statementPath, QString());
}

TEST_F(KeptDatabaseTest, ATitleThatNoFileCanHoldComesBack)
{
    for (const QString& title : {u"The \"big\" one"_s, u"\u20AC 5"_s, u"two\r\nlines"_s}) {
        m_shared.database = MadeUpDatabase(6, 49, 2);
        m_shared.database.title = title;
        const LGLOBAL recovered = Recovered();
        EXPECT_EQ(recovered.database.title, title);
        EXPECT_EQ(recovered.database.count, 2);
        m_shared.database.title.clear();
        LGLOBAL untitled = recovered;
        untitled.database.title.clear();
        EXPECT_EQ(LotteryBytes(untitled.database), LotteryBytes(m_shared.database));
    }
}

TEST_F(KeptDatabaseTest, ATitleThatFillsTheLargestFileComesBackFromTheDisk)
{
    m_shared.database = MadeUpDatabase(6, 49, 2);
    m_shared.database.title = QString(kLargestFile - 10000, u't');
    QByteArray bytes;
    RecoveryNote note;
    ASSERT_TRUE(m_work.write(bytes, note).ok);
    OwnRecoveryCopies run(m_folder.filePath(u"recovery"_s), kHere);
    const Outcome kept = run.Keep(WorkKind::Database, WithNote(bytes, note));
    ASSERT_TRUE(kept.ok) << kept.reason.toStdString();
    LeftCopy aside;
    ASSERT_TRUE(run.SetAside(WorkKind::Database, aside).ok);
    RecoveredWork work;
    ASSERT_TRUE(ReadLeftCopy(aside, work).ok);
    LGLOBAL recovered;
    ASSERT_TRUE(TakeRecoveredDatabase(recovered, work).ok);
    EXPECT_TRUE(recovered.database.title == m_shared.database.title);
    EXPECT_LT(DescribeLeftCopy(aside, QLocale::c(), kHere).size(), 200);
}

TEST_F(KeptDatabaseTest, WhateverItsFieldsHoldComesBackToTheLastCharacter)
{
    m_shared.database = MadeUpDatabase(6, 49, 2);
    for (const QString& text : {u"\u20AC 5"_s, u"some day"_s, u"\U0001F340"_s, u"in \"quotes\""_s,
                                u"\"quoted"_s, u"#1\"#"_s, u"7"_s}) {
        m_shared.database.records.at(1).date = text;
        m_shared.database.records.at(2).drawn.at(0) = text;
        m_shared.database.drawDays.at(3).carried = text;
        m_shared.database.drawDays.at(4).weekday = text;
        const LGLOBAL recovered = Recovered();
        EXPECT_EQ(CellText(recovered.database.records.at(1).date), text);
        EXPECT_TRUE(recovered.database.records.at(2).drawn.at(0) == Cell(text)) << text.toStdString();
        EXPECT_TRUE(recovered.database.drawDays.at(3).carried == Cell(text)) << text.toStdString();
        EXPECT_TRUE(recovered.database.drawDays.at(4).weekday == Cell(text)) << text.toStdString();
    }
}

TEST_F(KeptDatabaseTest, WhatFitsALotteryFileIsWrittenAsOne)
{
    m_shared.database = MadeUpDatabase(6, 49, 2);
    QByteArray bytes;
    RecoveryNote note;
    ASSERT_TRUE(m_work.write(bytes, note).ok);
    EXPECT_EQ(bytes, LotteryBytes(m_shared.database));
}

TEST(KeptStatementTest, ADescriptionThatNoFileCanHoldComesBack)
{
    LGLOBAL shared;
    shared.InvestmentRows.at(1) = {.description = u"Tickets, 5 \u20AC"_s,
                                   .amount = Currency::FromText(u"-12.5"_s)};
    shared.InvestmentRowCount = 1;
    QByteArray bytes;
    RecoveryNote note;
    const Outcome written = KeptStatement(shared).write(bytes, note);
    ASSERT_TRUE(written.ok) << written.reason.toStdString();
    LGLOBAL recovered;
    const InvestmentReading reading = ReadRecoveredStatement(recovered, WithoutNote(WithNote(bytes, note)));
    ASSERT_TRUE(reading.statement.has_value());
    EXPECT_EQ(reading.statement->rows, shared.InvestmentRows);
}

TEST_F(KeptDatabaseTest, ADateThatIsNoneComesBackAsItWas)
{
    m_shared.database = MadeUpDatabase(6, 49, 2);
    m_shared.database.records.at(1).date = u"some day"_s;
    EXPECT_EQ(CellText(Recovered().database.records.at(1).date), u"some day"_s);
}

TEST_F(KeptDatabaseTest, AFullDatabaseOfTheLargestShapeComesBack)
{
    m_shared.database = MadeUpDatabase(10, 60, 2001);
    const LGLOBAL recovered = Recovered();
    EXPECT_EQ(recovered.database.count, 2001);
    EXPECT_EQ(LotteryBytes(recovered.database), LotteryBytes(m_shared.database));
}

TEST_F(KeptDatabaseTest, BytesThatAreNoDatabaseLeaveTheOpenOneAlone)
{
    m_shared.database = MadeUpDatabase(6, 49, 2);
    const Outcome taken = TakeRecoveredDatabase(m_shared, {"nothing of the kind", std::nullopt});
    EXPECT_FALSE(taken.ok);
    EXPECT_FALSE(taken.reason.isEmpty());
    EXPECT_EQ(m_shared.database.count, 2);
    EXPECT_EQ(m_shared.database.modified, 0);
}

TEST_F(KeptDatabaseTest, ADamagedCopyGivesWhatTheReaderCanRead)
{
    const QByteArray copy = WithNote(LotteryBytes(MadeUpDatabase(6, 49, 2)), ANote()).chopped(10);
    LGLOBAL shared;
    ASSERT_TRUE(TakeRecoveredDatabase(shared, WithoutNote(copy)).ok);
    EXPECT_EQ(shared.database.count, 2);
    EXPECT_EQ(shared.database.title, u"Lotto 6/49"_s);
    EXPECT_EQ(shared.database.fileName, QString()) << "nobody knows which file it was of";
    EXPECT_EQ(shared.database.modified, 1);
}

} // namespace
