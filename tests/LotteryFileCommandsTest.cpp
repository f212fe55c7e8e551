#include "app/LotteryFileCommands.h"

#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "tests/CannedPrompts.h"
#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int kNotFoundOrWrongFormat = 13;
constexpr int kBadFileName = 14;
constexpr int kNoRecords = 15;
constexpr int kOldFormat = 16;

const QByteArray kOlderFile = "2,8,49,\"Old lotto\",3,0,7\r\n"
                              "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
                              "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";

QByteArray Written(const DrawDatabase& database)
{
    QByteArray bytes;
    const Outcome written = WriteLotteryFile(database, QLocale::c(), bytes);
    EXPECT_TRUE(written.ok) << written.reason.toStdString();
    return bytes;
}

class LotteryFileCommands : public testing::Test
{
protected:
    void SetUp() override
    {
        shared.locale = QLocale::c();
        shared.database = MadeUpDatabase(5, 35, 4);
        shared.database.fileName = u"Before.Lto"_s;
        shared.database.modified = 1;
        shared.database.drawDays.at(8).carried = u"kept"_s;
    }

    void TearDown() override
    {
        EXPECT_EQ(prompts.expectedMessages.size(), 0U) << "a message did not come";
        EXPECT_EQ(prompts.files.size(), 0U) << "the file dialog did not come";
    }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }

    void ExpectIdle() const
    {
        EXPECT_EQ(shared.fileDialogMode, kFileDialogIdle);
        EXPECT_EQ(shared.chosenPath, QString());
    }

    /// What is left after an attempt to open that failed: nothing but the shape of before.
    void ExpectEmptyDatabaseOfTheShapeBefore() const
    {
        EXPECT_EQ(shared.database.count, 0);
        EXPECT_EQ(shared.database.columns, 7);
        EXPECT_EQ(shared.database.highest, 35);
        EXPECT_EQ(shared.database.title, QString());
        EXPECT_EQ(shared.database.fileName, QString());
        EXPECT_EQ(shared.database.modified, 0);
        EXPECT_EQ(shared.database.drawDays, DrawDayTable{});
        EXPECT_EQ(shared.database.records.size(), static_cast<std::size_t>(kRecordRows));
        EXPECT_EQ(std::count(shared.database.records.begin(), shared.database.records.end(), DrawRecord{}),
                  kRecordRows);
        EXPECT_FALSE(prompts.busy);
    }

    void ExpectDatabaseOfBefore() const
    {
        const DrawDatabase before = MadeUpDatabase(5, 35, 4);
        EXPECT_EQ(shared.database.count, 4);
        EXPECT_EQ(shared.database.title, before.title);
        EXPECT_EQ(shared.database.fileName, u"Before.Lto"_s);
        EXPECT_EQ(shared.database.records, before.records);
        EXPECT_EQ(shared.database.Shape(), (LotteryShape{5, 35}));
        EXPECT_EQ(shared.database.drawDays.at(8).carried, Cell(u"kept"_s));
    }

    /// Opens a file that must be refused after these messages.
    void ExpectRefused(const QString& path, const std::deque<int>& messages)
    {
        SetUp();
        prompts.expectedMessages = messages;
        prompts.files = {path};
        LoadFile(shared, prompts);
        ExpectEmptyDatabaseOfTheShapeBefore();
        ExpectIdle();
        EXPECT_NE(prompts.shownReasons.value(prompts.shownReasons.size() - 1), QString());
    }

    void ExpectBytesRefused(const QByteArray& bytes)
    {
        Place(Path(u"bad.Lto"_s), bytes);
        ExpectRefused(Path(u"bad.Lto"_s), {kOldFormat, kNotFoundOrWrongFormat});
    }

    /// Saves to a place that must be refused.
    void ExpectNotSaved(const QString& path)
    {
        shared.database.modified = 1;
        prompts.expectedMessages = {kBadFileName};
        prompts.files = {path};
        SaveFile(shared, prompts);
        EXPECT_EQ(shared.database.modified, 0);
        EXPECT_EQ(shared.database.fileName, u"Before.Lto"_s);
        EXPECT_NE(prompts.shownReasons.value(prompts.shownReasons.size() - 1), QString());
        ExpectIdle();
    }

    LGLOBAL shared;
    CannedPrompts prompts{shared};

private:
    QTemporaryDir m_folder;
};

} // namespace

// Opening

TEST_F(LotteryFileCommands, AGoodFileReplacesTheDatabaseAndLeavesTheUnsavedChanges)
{
    const DrawDatabase saved = MadeUpDatabase(6, 49, 9);
    Place(Path(u"Mine.Lto"_s), Written(saved));
    for (const qint16 modified : {qint16{1}, qint16{0}}) {
        shared.database.modified = modified;
        prompts.files = {Path(u"Mine.Lto"_s)};
        LoadFile(shared, prompts);
        EXPECT_EQ(shared.database.modified, modified);
        EXPECT_EQ(shared.database.count, 9);
        EXPECT_EQ(shared.database.Shape(), (LotteryShape{6, 49}));
        EXPECT_EQ(shared.database.title, u"Lotto 6/49"_s);
        EXPECT_EQ(shared.database.drawDays.at(8).carried, Cell());
        EXPECT_EQ(shared.database.fileName, u"Mine.Lto"_s);
        EXPECT_EQ(Written(shared.database), Written(saved));
        ExpectIdle();
    }
    EXPECT_EQ(prompts.fileDialogModes, (std::deque<qint16>{kOpenLotteryFile, kOpenLotteryFile}));
}

TEST_F(LotteryFileCommands, WhoWantsToKnowIsToldBeforeAnythingInMemoryChanges)
{
    const DrawDatabase before = shared.database;
    int told = 0;
    shared.beforeDatabaseGoes = [&] {
        ++told;
        EXPECT_EQ(Written(shared.database), Written(before));
        EXPECT_EQ(shared.database.fileName, u"Before.Lto"_s);
        EXPECT_EQ(shared.database.modified, 1);
    };
    prompts.files = {QString()};
    LoadFile(shared, prompts);
    EXPECT_EQ(told, 0) << "a cancel";

    Place(Path(u"Good.Lto"_s), Written(MadeUpDatabase(6, 49, 3)));
    Place(Path(u"Older.Lto"_s), kOlderFile);
    Place(Path(u"Damaged.Lto"_s), "nothing of the kind");
    prompts.expectedMessages = {kOldFormat, kNotFoundOrWrongFormat, kOldFormat, kNotFoundOrWrongFormat};
    for (const QString& name : {u"Good.Lto"_s, u"Older.Lto"_s, u"Nowhere.Lto"_s, u"Damaged.Lto"_s}) {
        told = 0;
        shared.database = before;
        shared.database.fileName = u"Before.Lto"_s;
        shared.database.modified = 1;
        OpenLotteryFile(shared, prompts, Path(name));
        EXPECT_EQ(told, 1) << name.toStdString();
        EXPECT_NE(shared.database.count, before.count);
    }
}

TEST_F(LotteryFileCommands, TheBusyPointerStaysOnUntilTheEditorIsThere)
{
    Place(Path(u"Mine.Lto"_s), Written(MadeUpDatabase(6, 49, 1)));
    prompts.files = {Path(u"Mine.Lto"_s)};
    LoadFile(shared, prompts);
    EXPECT_TRUE(prompts.busy);
}

TEST_F(LotteryFileCommands, ACancelledOpenDialogKeepsTheDatabase)
{
    prompts.files = {QString()};
    LoadFile(shared, prompts);
    ExpectDatabaseOfBefore();
    EXPECT_EQ(shared.database.modified, 1);
    EXPECT_FALSE(prompts.busy);
    ExpectIdle();
}

TEST_F(LotteryFileCommands, AnOlderFileLoadsAfterMessage16WithOnlySundayMarked)
{
    Place(Path(u"Old.Lto"_s), kOlderFile);
    prompts.files = {Path(u"Old.Lto"_s)};
    prompts.expectedMessages = {kOldFormat};
    LoadFile(shared, prompts);
    EXPECT_EQ(shared.database.count, 2);
    EXPECT_EQ(shared.database.title, u"Old lotto"_s);
    EXPECT_EQ(shared.database.fileName, u"Old.Lto"_s);
    EXPECT_EQ(shared.database.CheckedDays(), (DrawDays{false, true}));
    EXPECT_EQ(shared.database.records.at(2).date, Cell(QDate(2004, 3, 13)));
    EXPECT_EQ(shared.database.modified, 1);
    EXPECT_TRUE(prompts.busy);
    ExpectIdle();
    EXPECT_EQ(
        prompts.shownTexts,
        QStringList{u"File in wrong format. If old format will load it. Sun will be checked, uncheck it and "
                    "check right draw days. Then reset 'New' date to date of next draw after date in last "
                    "record. Do not save file until date advance works ok."_s});
}

TEST_F(LotteryFileCommands, AnOlderFileIsSavedInTheCurrentLayout)
{
    Place(Path(u"Old.Lto"_s), kOlderFile);
    prompts.expectedMessages = {kOldFormat};
    prompts.files = {Path(u"Old.Lto"_s), Path(u"Old.Lto"_s)};
    LoadFile(shared, prompts);
    SaveFile(shared, prompts);
    EXPECT_EQ(BytesOf(Path(u"Old.Lto"_s)),
              "2,8,49,\"Old lotto\"\r\n,1\r\n,0\r\n,0\r\n,0\r\n,0\r\n,0\r\n,0\r\n,0\r\n,0\r\n"
              ",0\r\n"
              "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
              "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n");
}

TEST_F(LotteryFileCommands, AMissingFileGivesMessage13AndTheEmptyDatabase)
{
    ExpectRefused(Path(u"none.Lto"_s), {kNotFoundOrWrongFormat});
    EXPECT_EQ(prompts.shownTexts,
              QStringList{u"File not found or wrong format. Check Filename and/or Directory."_s});
    EXPECT_EQ(prompts.shownReasons, QStringList{u"No such file or directory"_s});
}

TEST_F(LotteryFileCommands, AFailedOpenLeavesTheFolderOfTheFileDialog)
{
    shared.dialogFolder = u"/where it was"_s;
    prompts.expectedMessages = {kNotFoundOrWrongFormat};
    prompts.files = {Path(u"none.Lto"_s), Path(u"good.Lto"_s)};
    LoadFile(shared, prompts);
    EXPECT_EQ(shared.dialogFolder, u"/where it was"_s);
    Place(Path(u"good.Lto"_s), Written(MadeUpDatabase(6, 49, 2)));
    LoadFile(shared, prompts);
    EXPECT_EQ(shared.dialogFolder, Folder());
}

TEST_F(LotteryFileCommands, AFileInNeitherLayoutGivesMessages16And13)
{
    ExpectBytesRefused("Dear Tom,\r\nthe numbers are 3, 8 and 19.\r\n");
    EXPECT_EQ(
        prompts.shownReasons,
        (QStringList{
            QString(),
            u"The number of records in the first line is not a number that a lottery file can hold."_s}));
}

TEST_F(LotteryFileCommands, TheReasonIsWhatIsWrongInTheCurrentLayout)
{
    ExpectBytesRefused(Written(MadeUpDatabase(10, 49, 3)).chopped(2));
    EXPECT_EQ(prompts.shownReasons,
              (QStringList{QString(), u"The last line is not finished, so its last number may be cut."_s}));
}

TEST_F(LotteryFileCommands, FilesOfNonsenseAreRefused)
{
    ExpectBytesRefused("");
    ExpectBytesRefused("\r\n");
    ExpectBytesRefused(QByteArray(4096, '\0'));
    ExpectBytesRefused(QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16).repeated(50));
    ExpectBytesRefused("2003,8,49,\"x\"\r\n" + kOlderFile.repeated(1100));
    ExpectBytesRefused("99999999999,8,49,\"x\"\r\n");
    ExpectBytesRefused("1e400,8,49,\"x\"\r\n");
    ExpectBytesRefused("-1,8,49,\"x\"" + QByteArray("\r\n,0").repeated(10));
    ExpectBytesRefused("2,8,49,\"" + QByteArray(kOlderFile).replace('"', ""));
}

TEST_F(LotteryFileCommands, EveryTruncationIsRefusedAndLeavesAnEmptyDatabase)
{
    for (const int picks : {1, 6, 10}) {
        const QByteArray whole = Written(MadeUpDatabase(picks, 49, 2));
        // Behind the last field: nothing is lost when a part of the line end is missing, and, where the last
        // field is the 0 of an unused place, when all of it is.
        const qsizetype complete = whole.size() - (picks < 10 ? 2 : 1);
        for (qsizetype length = 0; length < complete; ++length) {
            SCOPED_TRACE(std::to_string(picks) + " picks, " + std::to_string(length) + " bytes");
            ExpectBytesRefused(whole.first(length));
        }
        for (qsizetype length = complete; length <= whole.size(); ++length) {
            Place(Path(u"good.Lto"_s), whole.first(length));
            OpenLotteryFile(shared, prompts, Path(u"good.Lto"_s));
            EXPECT_EQ(Written(shared.database), whole);
        }
    }
}

TEST_F(LotteryFileCommands, EveryTruncationOfAnOlderFileIsRefusedAndLeavesAnEmptyDatabase)
{
    for (qsizetype length = 0; length < kOlderFile.size() - 2; ++length) {
        SCOPED_TRACE(length);
        ExpectBytesRefused(kOlderFile.first(length));
    }
}

TEST_F(LotteryFileCommands, AFolderIsRefused)
{
    ExpectRefused(Folder(), {kNotFoundOrWrongFormat});
}

TEST_F(LotteryFileCommands, AFileFarTooLargeIsRefused)
{
    QFile file(Path(u"huge.Lto"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(kLargestFile + 1));
    ExpectRefused(file.fileName(), {kNotFoundOrWrongFormat});
    ASSERT_TRUE(file.resize(qint64(1) << 40));
    ExpectRefused(file.fileName(), {kNotFoundOrWrongFormat});
}

TEST_F(LotteryFileCommands, ASparseFileOfAnAllowedSizeIsRefused)
{
    QFile file(Path(u"sparse.Lto"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(kLargestFile));
    ExpectRefused(file.fileName(), {kOldFormat, kNotFoundOrWrongFormat});
}

TEST_F(LotteryFileCommands, AFailedOpenAfterAGoodOneKeepsTheShapeOfTheGoodOne)
{
    Place(Path(u"Mine.Lto"_s), Written(MadeUpDatabase(6, 49, 1)));
    prompts.files = {Path(u"Mine.Lto"_s), Path(u"none.Lto"_s)};
    prompts.expectedMessages = {kNotFoundOrWrongFormat};
    LoadFile(shared, prompts);
    LoadFile(shared, prompts);
    EXPECT_EQ(shared.database.count, 0);
    EXPECT_EQ(shared.database.Shape(), (LotteryShape{6, 49}));
}

TEST_F(LotteryFileCommands, AFileWithoutRecordsOpensAsAnEmptyDatabaseOfItsShape)
{
    Place(Path(u"Empty.Lto"_s), Written(MadeUpDatabase(3, 9, 0)));
    OpenLotteryFile(shared, prompts, Path(u"Empty.Lto"_s));
    EXPECT_EQ(shared.database.count, 0);
    EXPECT_EQ(shared.database.Shape(), (LotteryShape{3, 9}));
    EXPECT_EQ(shared.database.title, u"Lotto 3/9"_s);
    EXPECT_EQ(shared.database.fileName, u"Empty.Lto"_s);
    EXPECT_EQ(shared.database.records.at(1), DrawRecord{});
}

TEST_F(LotteryFileCommands, ARelativePathIsOpenedFromTheCurrentFolder)
{
    const CurrentTemporaryFolder here;
    Place(here.FilePath(u"Mine.Lto"_s), Written(MadeUpDatabase(6, 49, 3)));
    OpenLotteryFile(shared, prompts, u"./Mine.Lto"_s);
    EXPECT_EQ(shared.database.count, 3);
    EXPECT_EQ(shared.database.fileName, u"Mine.Lto"_s);
}

#ifdef Q_OS_UNIX

TEST_F(LotteryFileCommands, APipeOrDeviceIsRefusedAndNotWaitedFor)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(Path(u"pipe.Lto"_s)).constData(), 0666), 0);
    ExpectRefused(Path(u"pipe.Lto"_s), {kNotFoundOrWrongFormat});
    ExpectRefused(u"/dev/zero"_s, {kNotFoundOrWrongFormat});
    ExpectRefused(u"/dev/null"_s, {kNotFoundOrWrongFormat});
}

TEST_F(LotteryFileCommands, AFileThatMayNotBeReadIsRefused)
{
    if (!IsReachableWithoutPrivileges(Folder(), 0755)) {
        GTEST_SKIP() << "an ordinary user cannot reach the temporary folder";
    }
    const QString path = Path(u"secret.Lto"_s);
    Place(path, Written(MadeUpDatabase(6, 49, 1)));
    const auto countAfterOpening = [&] {
        return WithoutPrivileges([&] {
            prompts.expectedMessages = {kNotFoundOrWrongFormat};
            OpenLotteryFile(shared, prompts, path);
            return shared.database.count + 10 * static_cast<int>(prompts.expectedMessages.size());
        });
    };
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0444), 0);
    EXPECT_EQ(countAfterOpening(), 1 + 10) << "one record, no message";
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0200), 0);
    EXPECT_EQ(countAfterOpening(), 0) << "no record, after the message";
}

TEST_F(LotteryFileCommands, ALinkIsOpenedUnderItsOwnName)
{
    Place(Path(u"target.Lto"_s), Written(MadeUpDatabase(6, 49, 3)));
    ASSERT_TRUE(QFile::link(Path(u"target.Lto"_s), Path(u"link.Lto"_s)));
    OpenLotteryFile(shared, prompts, Path(u"link.Lto"_s));
    EXPECT_EQ(shared.database.count, 3);
    EXPECT_EQ(shared.database.fileName, u"link.Lto"_s);
}

#endif

// Saving

TEST_F(LotteryFileCommands, SavingWritesTheFileSetsItsNameAndClearsTheUnsavedChanges)
{
    const QByteArray expected = Written(shared.database);
    prompts.files = {Path(u"Mine.Lto"_s)};
    SaveFile(shared, prompts);
    EXPECT_EQ(BytesOf(Path(u"Mine.Lto"_s)), expected);
    EXPECT_EQ(shared.database.fileName, u"Mine.Lto"_s);
    EXPECT_EQ(shared.database.modified, 0);
    EXPECT_EQ(prompts.fileDialogModes, std::deque<qint16>{kSaveLotteryFile});
    ExpectIdle();
}

TEST_F(LotteryFileCommands, TheNameIsTakenAsTyped)
{
    prompts.files = {Path(u"my numbers"_s), Path(u"odd.TXT"_s)};
    SaveFile(shared, prompts);
    EXPECT_EQ(shared.database.fileName, u"my numbers"_s);
    SaveFile(shared, prompts);
    EXPECT_EQ(shared.database.fileName, u"odd.TXT"_s);
    EXPECT_EQ(NamesIn(Folder()), (QStringList{u"my numbers"_s, u"odd.TXT"_s}));
}

TEST_F(LotteryFileCommands, WhatWasSavedOpensAgain)
{
    prompts.files = {Path(u"Mine.Lto"_s), Path(u"Mine.Lto"_s)};
    const QByteArray expected = Written(shared.database);
    SaveFile(shared, prompts);
    shared.database = DrawDatabase{};
    LoadFile(shared, prompts);
    EXPECT_EQ(shared.database.count, 4);
    EXPECT_EQ(shared.database.title, u"Lotto 5/35"_s);
    EXPECT_EQ(Written(shared.database), expected);
    EXPECT_EQ(shared.database.records.at(4).drawn.at(9), Cell(0));
}

TEST_F(LotteryFileCommands, SavingReplacesAnOldFile)
{
    Place(Path(u"Mine.Lto"_s), QByteArray(100000, 'x'));
    prompts.files = {Path(u"Mine.Lto"_s)};
    SaveFile(shared, prompts);
    EXPECT_EQ(BytesOf(Path(u"Mine.Lto"_s)), Written(shared.database));
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"Mine.Lto"_s});
}

TEST_F(LotteryFileCommands, SavingAnEmptyDatabaseShowsMessage15AndWritesNothing)
{
    shared.database.Empty();
    shared.database.modified = 1;
    prompts.expectedMessages = {kNoRecords};
    SaveFile(shared, prompts);
    EXPECT_EQ(prompts.shownTexts, QStringList{u"No Records."_s});
    EXPECT_EQ(prompts.fileDialogModes.size(), 0U);
    EXPECT_EQ(shared.database.modified, 0);
    EXPECT_EQ(NamesIn(Folder()), QStringList());
    ExpectIdle();
}

TEST_F(LotteryFileCommands, ACancelledSaveDialogWritesNothingAndClearsTheUnsavedChanges)
{
    prompts.files = {QString()};
    SaveFile(shared, prompts);
    EXPECT_EQ(shared.database.modified, 0);
    ExpectDatabaseOfBefore();
    EXPECT_EQ(NamesIn(Folder()), QStringList());
    ExpectIdle();
}

TEST_F(LotteryFileCommands, AFailedSaveShowsMessage14AndClearsTheUnsavedChanges)
{
    ExpectNotSaved(Path(u"none/Mine.Lto"_s));
    EXPECT_EQ(prompts.shownTexts, QStringList{u"Bad Filename. Must be in the form MYFILE.Lto"_s});
    ExpectDatabaseOfBefore();
    EXPECT_EQ(NamesIn(Folder()), QStringList());
}

TEST_F(LotteryFileCommands, SavingToAFolderIsRefused)
{
    ASSERT_TRUE(QDir(Folder()).mkdir(u"sub"_s));
    ExpectNotSaved(Path(u"sub"_s));
    ExpectNotSaved(Path(u"sub/"_s));
    EXPECT_EQ(NamesIn(Path(u"sub"_s)), QStringList());
}

TEST_F(LotteryFileCommands, ATitleThatHasNoPlaceInAFileLeavesTheOldFile)
{
    Place(Path(u"Mine.Lto"_s), "old");
    shared.database.title = u"5 \u20AC"_s;
    ExpectNotSaved(Path(u"Mine.Lto"_s));
    EXPECT_EQ(BytesOf(Path(u"Mine.Lto"_s)), "old");
    EXPECT_EQ(shared.database.title, u"5 \u20AC"_s);
}

TEST_F(LotteryFileCommands, ADateThatCannotBeWrittenLeavesTheOldFile)
{
    Place(Path(u"Mine.Lto"_s), "old");
    shared.database.records.at(3).date = u"31.02.2004"_s;
    ExpectNotSaved(Path(u"Mine.Lto"_s));
    EXPECT_EQ(BytesOf(Path(u"Mine.Lto"_s)), "old");
    EXPECT_EQ(prompts.shownReasons,
              QStringList{u"Record 3 has no date that could be written: \"31.02.2004\"."_s});
}

TEST_F(LotteryFileCommands, DatesHeldAsTextAreWrittenAsTheSharedLocaleReadsThem)
{
    shared.locale = QLocale(QLocale::German, QLocale::Germany);
    shared.database.records.at(1).date = u"05.03.2004"_s;
    prompts.files = {Path(u"Mine.Lto"_s)};
    SaveFile(shared, prompts);
    EXPECT_TRUE(BytesOf(Path(u"Mine.Lto"_s)).contains("\r\n1,#2004-03-05#,"));
}

#ifdef Q_OS_UNIX

TEST_F(LotteryFileCommands, SavingToADeviceOrPipeIsRefused)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(Path(u"pipe"_s)).constData(), 0666), 0);
    ExpectNotSaved(Path(u"pipe"_s));
    ExpectNotSaved(u"/dev/null"_s);
    ExpectNotSaved(u"/dev/full"_s);
    EXPECT_FALSE(QFileInfo(u"/dev/null"_s).isFile());
}

TEST_F(LotteryFileCommands, SavingToALinkReplacesTheFileItLeadsToAndKeepsTheLink)
{
    Place(Path(u"target.Lto"_s), "old");
    ASSERT_TRUE(QFile::link(Path(u"target.Lto"_s), Path(u"link.Lto"_s)));
    prompts.files = {Path(u"link.Lto"_s)};
    SaveFile(shared, prompts);
    EXPECT_EQ(BytesOf(Path(u"target.Lto"_s)), Written(shared.database));
    EXPECT_TRUE(QFileInfo(Path(u"link.Lto"_s)).isSymLink());
    EXPECT_EQ(shared.database.fileName, u"link.Lto"_s);
}

#endif
