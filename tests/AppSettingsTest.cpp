#include "app/AppSettings.h"

#include "app/SafeFile.h"
#include "app/StartUp.h"
#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// What a complete settings line gives.
AppSettings MustRead(const QByteArray& bytes)
{
    AppSettings settings;
    EXPECT_TRUE(ReadSettings(bytes, settings)) << bytes.toStdString();
    return settings;
}

/// What is left when the reading ends before the sixth field.
AppSettings ReadInPart(const QByteArray& bytes)
{
    AppSettings settings;
    EXPECT_FALSE(ReadSettings(bytes, settings)) << bytes.toStdString();
    return settings;
}

AppSettings Defaults()
{
    return {0, 6, 49, 1, u"$"_s, QString()};
}

/// ReadPersonalSettings over a state whose shape is 3/9, in the current folder.
LGLOBAL AfterReadingTheFile()
{
    LGLOBAL shared;
    shared.database.columns = 5;
    shared.database.highest = 9;
    shared.linesPerPage = 56;
    ReadPersonalSettings(shared);
    EXPECT_EQ(shared.linesPerPage, 53);
    EXPECT_EQ(shared.database.columns, 5) << "the open database keeps its picks";
    return shared;
}

} // namespace

TEST(AppSettings, BeginWithTheDefaults)
{
    EXPECT_EQ(AppSettings{}, Defaults());
}

TEST(AppSettings, AllSixFieldsAreReadInOrder)
{
    EXPECT_EQ(MustRead("1,5,35,3,\"kr\",\"Ann\"\r\n"), (AppSettings{1, 5, 35, 3, u"kr"_s, u"Ann"_s}));
}

TEST(AppSettings, TheLineMayEndInAnyWayOrNotAtAll)
{
    const AppSettings expected{1, 5, 35, 3, u"kr"_s, u"Ann"_s};
    for (const char* end : {"", "\r", "\n", "\r\n\r\n", ",extra\r\n"}) {
        EXPECT_EQ(MustRead(QByteArray("1,5,35,3,\"kr\",\"Ann\"") + end), expected) << end;
    }
    EXPECT_EQ(MustRead("1\r\n5\r\n35\r\n3\r\nkr\r\nAnn\r\n"), expected);
}

TEST(AppSettings, TheTextsMayHoldBlanksCommasAndEveryLatinLetter)
{
    const AppSettings settings = MustRead("0,6,49,1,\"  \x80\",\"M\xFCller, Ann\"\r\n");
    EXPECT_EQ(settings.currencySymbol, u"  \u0080"_s);
    EXPECT_EQ(settings.userName, u"M\u00FCller, Ann"_s);
}

TEST(AppSettings, PicksOutsideOneToTenBecomeSix)
{
    for (const char* picks : {"0", "11", "12", "-1", "32767", "-32768", "0.5", "10.51"}) {
        EXPECT_EQ(MustRead(QByteArray("1,") + picks + ",35,3,\"kr\",\"Ann\"\r\n"),
                  (AppSettings{1, 6, 35, 3, u"kr"_s, u"Ann"_s}))
            << picks;
    }
    EXPECT_EQ(MustRead("1,1,35,3,\"kr\",\"Ann\"\r\n").defaultPicks, 1);
    EXPECT_EQ(MustRead("1,10,35,3,\"kr\",\"Ann\"\r\n").defaultPicks, 10);
    EXPECT_EQ(MustRead("1,10.5,35,3,\"kr\",\"Ann\"\r\n").defaultPicks, 10)
        << "a half goes to the even neighbour";
}

TEST(AppSettings, AHighestNumberOutsideOneToSixtyBecomesFortyNine)
{
    for (const char* highest : {"0", "61", "-1", "32767"}) {
        EXPECT_EQ(MustRead(QByteArray("1,5,") + highest + ",3,\"kr\",\"Ann\"\r\n"),
                  (AppSettings{1, 5, 49, 3, u"kr"_s, u"Ann"_s}))
            << highest;
    }
    EXPECT_EQ(MustRead("1,5,1,3,\"kr\",\"Ann\"\r\n").defaultHighest, 1);
    EXPECT_EQ(MustRead("1,5,60,3,\"kr\",\"Ann\"\r\n").defaultHighest, 60);
}

TEST(AppSettings, EntryFormsOutsideOneToTenBecomeOne)
{
    for (const char* forms : {"0", "11", "-1", "32767"}) {
        EXPECT_EQ(MustRead(QByteArray("1,5,35,") + forms + ",\"kr\",\"Ann\"\r\n"),
                  (AppSettings{1, 5, 35, 1, u"kr"_s, u"Ann"_s}))
            << forms;
    }
    EXPECT_EQ(MustRead("1,5,35,10,\"kr\",\"Ann\"\r\n").entryForms, 10);
}

TEST(AppSettings, AnEmptyCurrencySymbolBecomesADollar)
{
    EXPECT_EQ(MustRead("1,5,35,3,\"\",\"Ann\"\r\n").currencySymbol, u"$"_s);
    EXPECT_EQ(MustRead("1,5,35,3,,\"Ann\"\r\n").currencySymbol, u"$"_s);
}

TEST(AppSettings, AnEmptyNameStaysEmpty)
{
    EXPECT_EQ(MustRead("1,5,35,3,\"kr\",\"\"\r\n").userName, QString());
    EXPECT_EQ(MustRead("1,5,35,3,\"kr\",\r\n").userName, QString());
}

TEST(AppSettings, AnEmptyFileGivesTheDefaults)
{
    EXPECT_EQ(ReadInPart(""), Defaults());
    EXPECT_EQ(ReadInPart("\r\n"), Defaults());
    EXPECT_EQ(ReadInPart(QByteArray(500, '\0')), Defaults());
}

TEST(AppSettings, AFieldThatIsMissingPutsTheThreeNumbersBackAndKeepsTheRest)
{
    EXPECT_EQ(ReadInPart("1,5,35,3,\"kr\"\r\n"), (AppSettings{1, 6, 49, 1, u"kr"_s, QString()}));
    EXPECT_EQ(ReadInPart("1,5,35,3\r\n"), (AppSettings{1, 6, 49, 1, u"$"_s, QString()}));
    EXPECT_EQ(ReadInPart("1,5,35\r\n"), (AppSettings{1, 6, 49, 1, u"$"_s, QString()}));
    EXPECT_EQ(ReadInPart("1,5\r\n"), (AppSettings{1, 6, 49, 1, u"$"_s, QString()}));
    EXPECT_EQ(ReadInPart("1"), (AppSettings{1, 6, 49, 1, u"$"_s, QString()}));
    EXPECT_EQ(ReadInPart("1,5,35,3,\"\"\r\n").currencySymbol, u"$"_s);
}

TEST(AppSettings, AFieldThatIsNoNumberEndsTheReading)
{
    for (const char* picks : {"x", "", "\"5\"", "#2004-03-13#", "32768", "99999999999", "1e400"}) {
        EXPECT_EQ(ReadInPart(QByteArray("1,") + picks + ",35,3,\"kr\",\"Ann\"\r\n"),
                  (AppSettings{1, 6, 49, 1, u"$"_s, QString()}))
            << picks;
    }
    EXPECT_EQ(ReadInPart("x,5,35,3,\"kr\",\"Ann\"\r\n"), Defaults());
    EXPECT_EQ(ReadInPart("1,5,35,x,\"kr\",\"Ann\"\r\n"), (AppSettings{1, 6, 49, 1, u"$"_s, QString()}));
}

TEST(AppSettings, EveryTruncationLeavesSettingsWithinTheirRanges)
{
    const QByteArray whole = "1,10,60,10,\"kr\",\"Ann\"\r\n";
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        AppSettings settings;
        const bool complete = ReadSettings(whole.first(length), settings);
        EXPECT_EQ(complete, length > whole.indexOf("\"Ann")) << length;
        EXPECT_EQ(settings.defaultPicks, complete ? 10 : 6) << length;
        EXPECT_EQ(settings.defaultHighest, complete ? 60 : 49) << length;
        EXPECT_EQ(settings.entryForms, complete ? 10 : 1) << length;
        EXPECT_NE(settings.currencySymbol, QString()) << length;
    }
}

TEST(AppSettings, AnyByteReplacedByANastyOneLeavesSettingsWithinTheirRanges)
{
    const QByteArray whole = "1,5,35,3,\"kr\",\"Ann\"\r\n";
    const QByteArray nasty("\0\x01\t\n\r\x1A !\"#,-+.09eE;\x7F\x80\xA0\xFF", 23);
    for (qsizetype place = 0; place < whole.size(); ++place) {
        for (const char byte : nasty) {
            QByteArray damaged = whole;
            damaged[place] = byte;
            AppSettings settings;
            const bool complete = ReadSettings(damaged, settings);
            if (!complete) {
                EXPECT_EQ(settings.defaultPicks, 6);
                EXPECT_EQ(settings.defaultHighest, 49);
                EXPECT_EQ(settings.entryForms, 1);
            }
            EXPECT_GE(settings.defaultPicks, 1);
            EXPECT_LE(settings.defaultPicks, 10);
            EXPECT_GE(settings.defaultHighest, 1);
            EXPECT_LE(settings.defaultHighest, 60);
            EXPECT_GE(settings.entryForms, 1);
            EXPECT_LE(settings.entryForms, 10);
            EXPECT_NE(settings.currencySymbol, QString());
        }
    }
}

TEST(PersonalSettings, AMissingFileGivesTheDefaultsAndLeavesTheHighestNumber)
{
    const CurrentTemporaryFolder here;
    const LGLOBAL shared = AfterReadingTheFile();
    EXPECT_EQ(shared.settings, Defaults());
    EXPECT_EQ(shared.database.highest, 9);
    EXPECT_EQ(NamesIn(here.Path()), QStringList()) << "reading makes no file";
}

TEST(PersonalSettings, TheFileOfTheCurrentFolderIsReadAndSetsTheHighestNumber)
{
    const CurrentTemporaryFolder here;
    Place(here.FilePath(u"Personal.Lot"_s), "1,5,35,3,\"kr\",\"Ann\"\r\n");
    const LGLOBAL shared = AfterReadingTheFile();
    EXPECT_EQ(shared.settings, (AppSettings{1, 5, 35, 3, u"kr"_s, u"Ann"_s}));
    EXPECT_EQ(shared.database.highest, 35);
}

TEST(PersonalSettings, ADamagedFileGivesTheDefaults)
{
    const CurrentTemporaryFolder here;
    for (const char* bytes : {"", "nonsense", "0,5", "\"", ",,,,,", "2,8,49,\"Lotto\"\r\n"}) {
        Place(here.FilePath(u"Personal.Lot"_s), bytes);
        const LGLOBAL shared = AfterReadingTheFile();
        EXPECT_EQ(shared.settings.defaultPicks, 6) << bytes;
        EXPECT_EQ(shared.settings.defaultHighest, 49) << bytes;
        EXPECT_EQ(shared.settings.entryForms, 1) << bytes;
        EXPECT_EQ(shared.settings.currencySymbol, u"$"_s) << bytes;
        EXPECT_EQ(shared.database.highest, 9) << bytes;
    }
}

TEST(PersonalSettings, AFolderOfThatNameGivesTheDefaults)
{
    const CurrentTemporaryFolder here;
    ASSERT_TRUE(QDir(here.Path()).mkdir(u"Personal.Lot"_s));
    EXPECT_EQ(AfterReadingTheFile().settings, Defaults());
}

TEST(PersonalSettings, AFileFarTooLargeGivesTheDefaults)
{
    const CurrentTemporaryFolder here;
    Place(here.FilePath(u"Personal.Lot"_s), "1,5,35,3,\"kr\",\"Ann\"\r\n");
    QFile file(here.FilePath(u"Personal.Lot"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(kLargestFile + 1));
    EXPECT_EQ(AfterReadingTheFile().settings, Defaults());
}

#ifdef Q_OS_UNIX

TEST(PersonalSettings, APipeOfThatNameGivesTheDefaultsAndIsNotWaitedFor)
{
    const CurrentTemporaryFolder here;
    ASSERT_EQ(mkfifo(QFile::encodeName(here.FilePath(u"Personal.Lot"_s)).constData(), 0666), 0);
    EXPECT_EQ(AfterReadingTheFile().settings, Defaults());
}

TEST(PersonalSettings, AFileThatMayNotBeReadGivesTheDefaults)
{
    const CurrentTemporaryFolder here;
    if (!IsReachableWithoutPrivileges(here.Path(), 0755)) {
        GTEST_SKIP() << "an ordinary user cannot reach the temporary folder";
    }
    const QString path = here.FilePath(u"Personal.Lot"_s);
    Place(path, "1,5,35,3,\"kr\",\"Ann\"\r\n");
    const auto picksRead = [] {
        return WithoutPrivileges([] { return int{AfterReadingTheFile().settings.defaultPicks}; });
    };
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0444), 0);
    EXPECT_EQ(picksRead(), 5);
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0200), 0);
    EXPECT_EQ(picksRead(), 6);
}

#endif

TEST(AppSettings, AreWrittenAsOneLineThatReadsBack)
{
    const AppSettings settings{.printerFont = 1,
                               .defaultPicks = 10,
                               .defaultHighest = 60,
                               .entryForms = 3,
                               .currencySymbol = u"\u00A3"_s,
                               .userName = u"Zo\u00EB, of 6/49"_s};
    QByteArray bytes;
    ASSERT_TRUE(WriteSettings(settings, bytes).ok);
    EXPECT_EQ(bytes, QByteArray("1,10,60,3,\"\xA3\",\"Zo\xEB, of 6/49\"\r\n"));
    AppSettings read;
    EXPECT_TRUE(ReadSettings(bytes, read));
    EXPECT_EQ(read, settings);
}

TEST(AppSettings, LineEndsThatADamagedFileBroughtAreWrittenAsBlanks)
{
    AppSettings settings;
    EXPECT_TRUE(ReadSettings("0,6,49,1,\"$\",\"An\r\nn\"\r\n", settings));
    settings.currencySymbol = u"k\tr"_s;
    QByteArray bytes;
    ASSERT_TRUE(WriteSettings(settings, bytes).ok);
    EXPECT_EQ(bytes, QByteArray("0,6,49,1,\"k r\",\"An  n\"\r\n"));
}

TEST(AppSettings, ATextThatNoFileCanHoldIsNotWritten)
{
    AppSettings settings;
    settings.userName = u"\u0141ukasz"_s;
    QByteArray bytes("as it was");
    const Outcome written = WriteSettings(settings, bytes);
    EXPECT_FALSE(written.ok);
    EXPECT_EQ(written.reason,
              u"The name or the currency symbol has a character that the file cannot hold."_s);
    EXPECT_EQ(bytes, QByteArray("as it was"));
}
