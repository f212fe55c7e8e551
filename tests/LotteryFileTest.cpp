#include "app/LotteryFile.h"

#include "database/NumberStatistics.h"
#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QLocale kPlain = QLocale::c();

QLocale German()
{
    return QLocale(QLocale::German, QLocale::Germany);
}

const QByteArray kKnownFile = "2,8,49,\"Lotto 6/49\"\r\n"
                              ",0\r\n"
                              ",0\r\n"
                              ",0\r\n"
                              ",4\r\n"
                              ",0\r\n"
                              ",0\r\n"
                              ",7\r\n"
                              ",0\r\n"
                              ",0\r\n"
                              ",0\r\n"
                              "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
                              "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";

const QByteArray kKnownOlderFile = "2,8,49,\"Lotto 6/49\",3,0,7\r\n"
                                   "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
                                   "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";

DrawDatabase KnownDatabase()
{
    DrawDatabase database;
    database.columns = 8;
    database.highest = 49;
    database.title = u"Lotto 6/49"_s;
    database.CheckDay(4, true);
    database.CheckDay(7, true);
    EXPECT_TRUE(database.Append(QDate(2004, 3, 10), {5, 12, 23, 34, 41, 49}));
    EXPECT_TRUE(database.Append(QDate(2004, 3, 13), {3, 8, 19, 27, 30, 44}));
    return database;
}

QByteArray Written(const DrawDatabase& database, const QLocale& locale = kPlain)
{
    QByteArray bytes;
    const Outcome written = WriteLotteryFile(database, locale, bytes);
    EXPECT_TRUE(written.ok) << written.reason.toStdString();
    return bytes;
}

/// The reason why the database cannot be written; "" when it can.
QString WhyNotWritten(const DrawDatabase& database, const QLocale& locale = kPlain)
{
    QByteArray bytes = "untouched";
    const Outcome written = WriteLotteryFile(database, locale, bytes);
    EXPECT_EQ(bytes == "untouched", !written.ok);
    return written.reason;
}

/// What holds for every reading, whatever the bytes.
void CheckReading(const LotteryReading& reading)
{
    if (!reading.content) {
        EXPECT_NE(reading.reason, QString());
        return;
    }
    EXPECT_GE(reading.content->count, 0);
    EXPECT_LE(reading.content->count, kRecordRows - 1);
    EXPECT_EQ(reading.content->records.size(), static_cast<std::size_t>(reading.content->count));
    int row = 0;
    for (const DrawRecord& record : reading.content->records) {
        EXPECT_EQ(record.number, Cell(++row));
    }
}

LotteryReading Read(const QByteArray& bytes, LotteryLayout layout = LotteryLayout::Current,
                    const QLocale& locale = kPlain)
{
    LotteryReading reading = ReadLotteryFile(bytes, layout, locale);
    CheckReading(reading);
    return reading;
}

LotteryFileContent MustRead(const QByteArray& bytes, LotteryLayout layout = LotteryLayout::Current,
                            const QLocale& locale = kPlain)
{
    LotteryReading reading = Read(bytes, layout, locale);
    EXPECT_TRUE(reading.content.has_value()) << reading.reason.toStdString();
    return reading.content ? std::move(*reading.content) : LotteryFileContent{};
}

/// The reason why the bytes are refused; "" when they are not.
QString WhyRefused(const QByteArray& bytes, LotteryLayout layout = LotteryLayout::Current)
{
    const LotteryReading reading = Read(bytes, layout);
    EXPECT_FALSE(reading.content.has_value()) << bytes.left(400).toStdString();
    return reading.reason;
}

QByteArray WithHeader(const QByteArray& header)
{
    return header + kKnownFile.sliced(kKnownFile.indexOf("\r\n"));
}

QByteArray WithFirstRecord(const QByteArray& record)
{
    return QByteArray("1,8,49,\"Lotto 6/49\"\r\n") + QByteArray(",0\r\n").repeated(10) + record + "\r\n";
}

DrawDatabase Loaded(const QByteArray& bytes)
{
    DrawDatabase database;
    ReplaceDatabase(database, MustRead(bytes), u"Any.Lto"_s);
    return database;
}

/// The database as it comes back from a file: every drawn number and every day's mark a number.
void ExpectSameAfterAFile(const DrawDatabase& loaded, const DrawDatabase& saved)
{
    EXPECT_EQ(loaded.count, saved.count);
    EXPECT_EQ(loaded.columns, saved.columns);
    EXPECT_EQ(loaded.highest, saved.highest);
    EXPECT_EQ(loaded.title, saved.title);
    for (std::size_t day = 1; day <= 10; ++day) {
        EXPECT_EQ(loaded.drawDays.at(day).carried, saved.drawDays.at(day).carried) << "day " << day;
        EXPECT_EQ(CellNumber(loaded.drawDays.at(day).weekday), CellNumber(saved.drawDays.at(day).weekday));
    }
    for (std::size_t row = 1; row <= static_cast<std::size_t>(saved.count); ++row) {
        EXPECT_EQ(loaded.records.at(row).number, saved.records.at(row).number);
        EXPECT_EQ(loaded.records.at(row).date, saved.records.at(row).date);
        for (std::size_t pick = 0; pick < kMostPicks; ++pick) {
            EXPECT_EQ(CellNumber(loaded.records.at(row).drawn.at(pick)),
                      CellNumber(saved.records.at(row).drawn.at(pick)));
        }
    }
}

} // namespace

// Writing

TEST(LotteryFile, EveryByteOfTheKnownFileIsWritten)
{
    EXPECT_EQ(Written(KnownDatabase()), kKnownFile);
}

TEST(LotteryFile, UnusedCellsAreWrittenAsZeroWhetherEmptyOrZero)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(1).drawn.at(6) = 0;
    database.records.at(2).drawn.at(9) = u""_s;
    EXPECT_EQ(Written(database), kKnownFile);
}

TEST(LotteryFile, ADrawnNumberIsWrittenAsTheNumericValueOfItsText)
{
    DrawDatabase database = KnownDatabase();
    DrawRecord& record = database.records.at(1);
    record.drawn = {Cell(u" 5"_s), Cell(12.0), Cell(u"23 balls"_s), Cell(u"abc"_s), Cell(), Cell(1.5)};
    EXPECT_TRUE(Written(database).contains("1,#2004-03-10#,5,12,23,0,0,1.5,0,0,0,0\r\n"));
}

TEST(LotteryFile, ADrawDayMarkIsWrittenAsTheNumericValueOfItsText)
{
    DrawDatabase database = KnownDatabase();
    database.drawDays.at(1).weekday = u"1"_s;
    database.drawDays.at(2).weekday = u"no"_s;
    database.drawDays.at(3).weekday = Cell();
    database.drawDays.at(4).weekday = 4.0;
    database.drawDays.at(10).weekday = 10;
    EXPECT_TRUE(Written(database).startsWith(
        "2,8,49,\"Lotto 6/49\"\r\n,1\r\n,0\r\n,0\r\n,4\r\n,0\r\n,0\r\n,7\r\n,0\r\n,0\r\n,10\r\n1,"));
}

TEST(LotteryFile, WhatADrawDayCarriesIsWrittenAsItIsHeld)
{
    DrawDatabase database = KnownDatabase();
    database.drawDays.at(1).carried = 12;
    database.drawDays.at(2).carried = 0.25;
    database.drawDays.at(3).carried = u"text"_s;
    database.drawDays.at(4).carried = QDate(2004, 3, 13);
    database.drawDays.at(5).carried = u""_s;
    database.drawDays.at(10).carried = -1;
    EXPECT_TRUE(Written(database).startsWith(
        "2,8,49,\"Lotto 6/49\"\r\n12,0\r\n0.25,0\r\n\"text\",0\r\n#2004-03-13#,4\r\n"
        "\"\",0\r\n,0\r\n,7\r\n,0\r\n,0\r\n-1,0\r\n1,"));
}

TEST(LotteryFile, DrawDayRowZeroIsNotWritten)
{
    DrawDatabase database = KnownDatabase();
    database.drawDays.at(0) = {9, 9};
    EXPECT_EQ(Written(database), kKnownFile);
}

TEST(LotteryFile, TheRecordNumberIsWrittenAsItIsHeld)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(2).number = u"2"_s;
    EXPECT_TRUE(Written(database).contains("\r\n\"2\",#2004-03-13#,"));
}

TEST(LotteryFile, SpareRowsAreNotWritten)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(0) = database.records.at(1);
    database.records.at(3) = database.records.at(1);
    EXPECT_EQ(Written(database), kKnownFile);
}

TEST(LotteryFile, ADateHeldAsTextIsReadInTheLocaleAndWrittenAsYearMonthDay)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(1).date = u"10.03.2004"_s;
    database.records.at(2).date = u"2004-03-13"_s;
    EXPECT_EQ(Written(database, German()), kKnownFile);
    database.records.at(1).date = u"3/10/2004"_s;
    EXPECT_EQ(Written(database, QLocale(QLocale::English, QLocale::UnitedStates)), kKnownFile);
}

TEST(LotteryFile, ALocaleWithADecimalCommaChangesNoByte)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(1).drawn.at(9) = 2.5;
    database.drawDays.at(8).carried = 1234567.5;
    const QByteArray plain = Written(database);
    EXPECT_TRUE(plain.contains(",2.5\r\n"));
    EXPECT_TRUE(plain.contains("\r\n1234567.5,0\r\n"));

    const QLocale before;
    QLocale::setDefault(German());
    EXPECT_EQ(Written(database, German()), plain);
    const LotteryFileContent content = MustRead(plain, LotteryLayout::Current, German());
    QLocale::setDefault(before);
    EXPECT_EQ(content.records.at(0).drawn.at(9), Cell(2.5));
    EXPECT_EQ(content.drawDays.at(8).carried, Cell(1234567.5));
}

TEST(LotteryFile, ATitleIsWrittenInOneByteACharacter)
{
    DrawDatabase database = KnownDatabase();
    database.title = u"Gl\u00FCck \u00FF"_s;
    EXPECT_TRUE(Written(database).startsWith("2,8,49,\"Gl\xFC"
                                             "ck \xFF\"\r\n"));
}

TEST(LotteryFile, ATitleWithACharacterThatHasNoPlaceIsNotWritten)
{
    for (const QString& title : {u"5 \u20AC"_s, u"\u0141otto"_s, u"Lotto \U0001F3B1"_s}) {
        DrawDatabase database = KnownDatabase();
        database.title = title;
        EXPECT_EQ(WhyNotWritten(database), u"The title has a character that a lottery file cannot hold."_s);
    }
}

TEST(LotteryFile, ACarriedTextThatHasNoPlaceIsNotWritten)
{
    DrawDatabase database = KnownDatabase();
    database.drawDays.at(3).carried = u"\u20AC"_s;
    EXPECT_EQ(WhyNotWritten(database), u"A field has a value that a lottery file cannot hold."_s);
}

TEST(LotteryFile, ANumberBeyondTheRangeIsNotWritten)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(2).drawn.at(0) = std::numeric_limits<double>::infinity();
    EXPECT_EQ(WhyNotWritten(database), u"A field has a value that a lottery file cannot hold."_s);
}

TEST(LotteryFile, ARecordWhoseDateIsNoDateIsNotWritten)
{
    for (const Cell& date :
         {Cell(), Cell(u""_s), Cell(u"abc"_s), Cell(u"2004-02-30"_s), Cell(20040313), Cell(QDate())}) {
        DrawDatabase database = KnownDatabase();
        database.records.at(2).date = date;
        EXPECT_EQ(WhyNotWritten(database),
                  u"Record 2 has no date that could be written: \"%1\"."_s.arg(CellText(date)));
    }
}

TEST(LotteryFile, ADateOfAnUnusedRowDoesNotMatter)
{
    DrawDatabase database = KnownDatabase();
    database.records.at(3).date = u"abc"_s;
    EXPECT_EQ(WhyNotWritten(database), QString());
}

// Reading the current layout

TEST(LotteryFile, TheKnownFileIsReadAsItWasWritten)
{
    const LotteryFileContent content = MustRead(kKnownFile);
    EXPECT_EQ(content.count, 2);
    EXPECT_EQ(content.columns, 8);
    EXPECT_EQ(content.highest, 49);
    EXPECT_EQ(content.title, u"Lotto 6/49"_s);
    for (std::size_t day = 1; day <= 10; ++day) {
        EXPECT_EQ(content.drawDays.at(day),
                  (DrawDay{Cell(), day == 4 || day == 7 ? static_cast<int>(day) : 0}))
            << day;
    }
    EXPECT_EQ(content.drawDays.at(0), DrawDay{});
    EXPECT_EQ(content.records.at(0),
              (DrawRecord{1, QDate(2004, 3, 10), {5, 12, 23, 34, 41, 49, 0, 0, 0, 0}}));
    EXPECT_EQ(content.records.at(1), (DrawRecord{2, QDate(2004, 3, 13), {3, 8, 19, 27, 30, 44, 0, 0, 0, 0}}));
}

TEST(LotteryFile, EveryShapeAndCountComesBackFromAFile)
{
    for (int picks = 1; picks <= kMostPicks; ++picks) {
        for (const int count : {1, 2, 7}) {
            const DrawDatabase saved = MadeUpDatabase(picks, 50 + picks, count);
            ExpectSameAfterAFile(Loaded(Written(saved)), saved);
        }
    }
}

TEST(LotteryFile, AFullTableComesBackFromAFile)
{
    const DrawDatabase saved = MadeUpDatabase(6, 49, kRecordRows - 1);
    ASSERT_EQ(saved.count, 2002);
    const DrawDatabase loaded = Loaded(Written(saved));
    ExpectSameAfterAFile(loaded, saved);
    EXPECT_EQ(Written(loaded), Written(saved));
}

TEST(LotteryFile, UnusedCellsComeBackAsZero)
{
    const DrawDatabase loaded = Loaded(Written(MadeUpDatabase(6, 49, 1)));
    for (std::size_t pick = 6; pick < kMostPicks; ++pick) {
        EXPECT_EQ(loaded.records.at(1).drawn.at(pick), Cell(0));
    }
}

TEST(LotteryFile, WhatADrawDayCarriesComesBackUnderItsOwnKind)
{
    DrawDatabase saved = KnownDatabase();
    saved.drawDays.at(1).carried = 12;
    saved.drawDays.at(2).carried = 0.25;
    saved.drawDays.at(3).carried = u"12, or \r\nmore"_s;
    saved.drawDays.at(4).carried = QDate(2004, 3, 13);
    saved.drawDays.at(5).carried = u""_s;
    saved.drawDays.at(9).carried = 5e9;
    const DrawDatabase loaded = Loaded(Written(saved));
    ExpectSameAfterAFile(loaded, saved);
    EXPECT_EQ(loaded.drawDays.at(6).carried, Cell());
    EXPECT_EQ(Written(loaded), Written(saved));
}

TEST(LotteryFile, EveryFieldKeepsTheKindThatWasWritten)
{
    const LotteryFileContent content =
        MustRead(WithFirstRecord("1,\"13.3.2004\",5,2.5,\"7\",,#2004-03-10#,abc,0,0,0,0"));
    const DrawRecord& record = content.records.at(0);
    EXPECT_EQ(record.date, Cell(u"13.3.2004"_s));
    EXPECT_EQ(record.drawn.at(0), Cell(5));
    EXPECT_EQ(record.drawn.at(1), Cell(2.5));
    EXPECT_EQ(record.drawn.at(2), Cell(u"7"_s));
    EXPECT_EQ(record.drawn.at(3), Cell());
    EXPECT_EQ(record.drawn.at(4), Cell(QDate(2004, 3, 10)));
    EXPECT_EQ(record.drawn.at(5), Cell(u"abc"_s));
}

TEST(LotteryFile, AllLineEndsAreReadAlike)
{
    for (const char* lineEnd : {"\n", "\r", ","}) {
        QByteArray bytes = kKnownFile;
        bytes.replace("\r\n", lineEnd);
        EXPECT_EQ(Written(Loaded(bytes)), kKnownFile) << lineEnd;
    }
}

TEST(LotteryFile, BlankLinesBehindTheLastRecordDoNotMatter)
{
    EXPECT_EQ(Written(Loaded(kKnownFile + "\r\n\r\n")), kKnownFile);
    EXPECT_EQ(Written(Loaded(kKnownFile + "\x1A")), kKnownFile);
}

TEST(LotteryFile, AByteOrderMarkMakesTheTitleUtf8)
{
    QByteArray bytes = kKnownFile;
    bytes.replace("Lotto", "Gl\xC3\xBC"
                           "ck");
    EXPECT_EQ(MustRead("\xEF\xBB\xBF" + bytes).title, u"Gl\u00FCck 6/49"_s);
    EXPECT_EQ(MustRead(bytes).title, QString::fromLatin1("Gl\xC3\xBC"
                                                         "ck 6/49"));
}

TEST(LotteryFile, Utf16IsRefused)
{
    const QString text = QString::fromLatin1(kKnownFile);
    const QByteArray units(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    EXPECT_NE(WhyRefused(units), QString());
    EXPECT_NE(WhyRefused("\xFF\xFE" + units), QString());
    EXPECT_NE(WhyRefused(units, LotteryLayout::Older), QString());
}

TEST(LotteryFile, AnEmptyFileIsRefusedInBothLayouts)
{
    EXPECT_EQ(WhyRefused(""), u"The file ends before everything it announces."_s);
    EXPECT_EQ(WhyRefused("", LotteryLayout::Older), u"The file ends before everything it announces."_s);
    EXPECT_NE(WhyRefused("\r\n"), QString());
    EXPECT_NE(WhyRefused(QByteArray(1000, '\0')), QString());
}

TEST(LotteryFile, AHeaderOfNonsenseIsRefused)
{
    EXPECT_EQ(WhyRefused(WithHeader("two,8,49,\"x\"")),
              u"The number of records in the first line is not a number that a lottery file can hold."_s);
    EXPECT_EQ(WhyRefused(WithHeader("2,\"8\",49,\"x\"")),
              u"The number of columns in the first line is not a number that a lottery file can hold."_s);
    EXPECT_EQ(WhyRefused(WithHeader("2,8,,\"x\"")),
              u"The highest number in the first line is not a number that a lottery file can hold."_s);
    EXPECT_NE(WhyRefused(WithHeader("#2004-03-13#,8,49,\"x\"")), QString());
    EXPECT_NE(WhyRefused(WithHeader("2 records,8,49,\"x\"")), QString());
}

TEST(LotteryFile, ACountBeyondTheTableIsRefused)
{
    for (const char* count : {"-1", "2003", "32767", "-32768"}) {
        EXPECT_EQ(
            WhyRefused(WithHeader(QByteArray(count) + ",8,49,\"x\"")),
            u"The file announces %1 records; a database holds 0 to 2000."_s.arg(QString::fromLatin1(count)));
    }
}

TEST(LotteryFile, ACountBeyondSixteenBitsIsRefused)
{
    for (const char* count : {"32768", "-32769", "99999999999", "1e400", "-1e400", "1e5", "32767.5"}) {
        EXPECT_EQ(WhyRefused(WithHeader(QByteArray(count) + ",8,49,\"x\"")),
                  u"The number of records in the first line is not a number that a lottery file can hold."_s)
            << count;
    }
}

TEST(LotteryFile, ACountTheTableHoldsIsReadWhenTheRecordsAreThere)
{
    for (const int count : {2000, 2001, 2002}) {
        EXPECT_EQ(MustRead(Written(MadeUpDatabase(2, 9, count))).count, count);
        EXPECT_NE(WhyRefused(WithHeader(QByteArray::number(count) + ",8,49,\"x\"")), QString());
    }
}

TEST(LotteryFile, ACountBelowTheRecordsLeavesTheOthersOut)
{
    EXPECT_EQ(MustRead(WithHeader("1,8,49,\"x\"")).count, 1);
    EXPECT_EQ(MustRead(WithHeader("0,8,49,\"x\"")).count, 0);
}

TEST(LotteryFile, HeaderNumbersAreRoundedHalfToEven)
{
    const LotteryFileContent content = MustRead(WithHeader("1.5,8.5,48.5,\"x\""));
    EXPECT_EQ(content.count, 2);
    EXPECT_EQ(content.columns, 8);
    EXPECT_EQ(content.highest, 48);
    EXPECT_EQ(MustRead(WithHeader("0.5,8,49.51,\"x\"")).count, 0);
    EXPECT_EQ(MustRead(WithHeader("2,8,49.51,\"x\"")).highest, 50);
    EXPECT_EQ(MustRead(WithHeader("-0.5,8,49,\"x\"")).count, 0);
    EXPECT_EQ(MustRead(WithHeader("2,32767.4,49,\"x\"")).columns, 32767);
}

TEST(LotteryFile, AShapeOutsideTheBoundsIsTakenAsItStands)
{
    for (const auto& [columns, highest] : std::initializer_list<std::pair<int, int>>{
             {0, 0}, {2, 49}, {13, 61}, {-5, -5}, {32767, 32767}, {-32768, -32768}}) {
        const QByteArray header =
            QByteArray("2,") + QByteArray::number(columns) + ',' + QByteArray::number(highest);
        const DrawDatabase database = Loaded(WithHeader(header + ",\"x\""));
        EXPECT_EQ(database.columns, columns);
        EXPECT_EQ(database.highest, highest);
        EXPECT_GE(database.Shape().picks, 1);
        EXPECT_LE(database.Shape().picks, kMostPicks);
        EXPECT_GE(database.Shape().highest, 1);
        EXPECT_LE(database.Shape().highest, kMostNumbers);
        EXPECT_TRUE(Written(database).startsWith(header + ",\"x\"\r\n"));
        const NumberTable table = CountNumbers(database, CountMode::SinceLastDrawn);
        EXPECT_EQ(table.at(0), NumberCount{});
    }
}

TEST(LotteryFile, ATitleMayHoldCommasAndLineEnds)
{
    DrawDatabase saved = KnownDatabase();
    saved.title = u"Lotto, \r\nsix of\n49, "_s;
    ExpectSameAfterAFile(Loaded(Written(saved)), saved);
}

TEST(LotteryFile, ATitleWithoutQuotesIsRead)
{
    EXPECT_EQ(MustRead(WithHeader("2,8,49,Lotto 6/49")).title, u"Lotto 6/49"_s);
    EXPECT_EQ(MustRead(WithHeader("2,8,49,")).title, QString());
    EXPECT_EQ(MustRead(WithHeader("2,8,49,17")).title, u"17"_s);
}

TEST(LotteryFile, ATitleWithADoubleQuoteIsWrittenUnescapedAndComesBackCut)
{
    DrawDatabase saved = KnownDatabase();
    saved.title = u"The \"big\" one"_s;
    const QByteArray bytes = Written(saved);
    EXPECT_TRUE(bytes.startsWith("2,8,49,\"The \"big\" one\"\r\n"));
    const DrawDatabase loaded = Loaded(bytes);
    EXPECT_EQ(loaded.title, u"The "_s);
    EXPECT_EQ(loaded.records.at(2), Loaded(kKnownFile).records.at(2));
}

TEST(LotteryFile, AnUnterminatedQuoteIsRefused)
{
    EXPECT_EQ(WhyRefused(WithHeader("2,8,49,\"Lotto")), u"The file ends before everything it announces."_s);
    EXPECT_NE(WhyRefused(WithHeader("2,8,49,\"Lotto"), LotteryLayout::Older), QString());
}

TEST(LotteryFile, RecordsAreNumberedByTheirRowWhateverTheFileSays)
{
    QByteArray bytes = kKnownFile;
    bytes.replace("\r\n2,#", "\r\n1,#");
    EXPECT_EQ(MustRead(bytes).records.at(1).number, Cell(2));
    for (const char* number : {"0", "2002", "7", "", "\"x\"", "\"5\"", "1.5", "#2001-01-01#"}) {
        const QByteArray record = QByteArray(number) + ",#2004-03-10#,5,12,23,34,41,49,0,0,0,0";
        EXPECT_EQ(MustRead(WithFirstRecord(record)).records.at(0).number, Cell(1)) << number;
    }
}

TEST(LotteryFile, ARecordNumberBeyondTheTableIsRefused)
{
    for (const char* number :
         {"-1", "2003", "32768", "99999999999", "1e400", "-1e400", "\"2003\"", "-0.5", "2002.5"}) {
        const QByteArray record = QByteArray(number) + ",#2004-03-10#,5,12,23,34,41,49,0,0,0,0";
        EXPECT_EQ(WhyRefused(WithFirstRecord(record)), u"Record 1 carries a number that no database has."_s)
            << number;
    }
}

TEST(LotteryFile, ADateThatDoesNotExistStaysTextAndIsNotWritten)
{
    const DrawDatabase database = Loaded(WithFirstRecord("1,#2004-02-30#,5,12,23,34,41,49,0,0,0,0"));
    EXPECT_EQ(database.records.at(1).date, Cell(u"2004-02-30"_s));
    EXPECT_NE(WhyNotWritten(database), QString());
}

TEST(LotteryFile, ATimeOfDayBehindADateIsLeftAside)
{
    const DrawDatabase database = Loaded(WithFirstRecord("1,#2004-03-10 20:15:00#,5,12,23,34,41,49,0,0,0,0"));
    EXPECT_EQ(database.records.at(1).date, Cell(QDate(2004, 3, 10)));
}

TEST(LotteryFile, AQuotedDateIsWrittenAsTheLocaleReadsIt)
{
    DrawDatabase database = Loaded(WithFirstRecord("1,\"05.03.2004\",5,12,23,34,41,49,0,0,0,0"));
    EXPECT_TRUE(Written(database, German()).contains("1,#2004-03-05#,"));
    database.records.at(1).date = u"05-03-2004"_s;
    EXPECT_TRUE(
        Written(database, QLocale(QLocale::English, QLocale::UnitedStates)).contains("1,#2004-05-03#,"));
}

TEST(LotteryFile, DrawnNumbersOutsideTheLotteryAreReadAndCountedNowhere)
{
    const DrawDatabase database =
        Loaded(WithFirstRecord("1,#2004-03-10#,0,-1,50,61,32768,99999999999,0,0,0,0"));
    EXPECT_EQ(CountNumbers(database, CountMode::TimesDrawn), NumberTable{});
}

// The older layout

TEST(LotteryFile, TheOlderLayoutIsNotTheCurrentOne)
{
    EXPECT_EQ(WhyRefused(kKnownOlderFile), u"The file ends before everything it announces."_s);
}

TEST(LotteryFile, OldLayoutLoadsWithOnlySundayMarked)
{
    const LotteryFileContent content = MustRead(kKnownOlderFile, LotteryLayout::Older);
    EXPECT_EQ(content.count, 2);
    EXPECT_EQ(content.columns, 8);
    EXPECT_EQ(content.highest, 49);
    EXPECT_EQ(content.title, u"Lotto 6/49"_s);
    EXPECT_EQ(content.drawDays.at(0), DrawDay{});
    EXPECT_EQ(content.drawDays.at(1), (DrawDay{Cell(), 1}));
    for (std::size_t day = 2; day <= 10; ++day) {
        EXPECT_EQ(content.drawDays.at(day), (DrawDay{Cell(), 0})) << day;
    }
    EXPECT_EQ(content.records.at(0),
              (DrawRecord{1, QDate(2004, 3, 10), {5, 12, 23, 34, 41, 49, 0, 0, 0, 0}}));
    EXPECT_EQ(content.records.at(1), (DrawRecord{2, QDate(2004, 3, 13), {3, 8, 19, 27, 30, 44, 0, 0, 0, 0}}));
}

TEST(LotteryFile, TheLastThreeValuesOfAnOlderHeaderMayBeAnything)
{
    for (const char* values : {",,", "\"a,b\",#2004-03-13#,1e400", "x,y,z"}) {
        QByteArray bytes = kKnownOlderFile;
        bytes.replace("3,0,7\r\n", QByteArray(values) + "\r\n");
        EXPECT_EQ(MustRead(bytes, LotteryLayout::Older).records.at(1).date, Cell(QDate(2004, 3, 13)))
            << values;
    }
}

TEST(LotteryFile, AnOlderRecordWithoutADateIsRefused)
{
    QByteArray bytes = kKnownOlderFile;
    bytes.replace("#2004-03-13#", "");
    EXPECT_EQ(WhyRefused(bytes, LotteryLayout::Older), u"Record 2 has no date."_s);
    bytes = kKnownOlderFile;
    bytes.replace("#2004-03-10#", "#2004-02-30#");
    EXPECT_EQ(WhyRefused(bytes, LotteryLayout::Older), u"Record 1 has no date."_s);
}

TEST(LotteryFile, AnOlderDateWrittenAsTextIsReadInTheLocale)
{
    QByteArray bytes = kKnownOlderFile;
    bytes.replace("#2004-03-13#", "\"13.03.2004\"");
    EXPECT_EQ(MustRead(bytes, LotteryLayout::Older, German()).records.at(1).date, Cell(u"13.03.2004"_s));
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(Read(bytes, LotteryLayout::Older, american).reason, u"Record 2 has no date."_s)
        << "no month 13";
}

TEST(LotteryFile, AnOlderFileIsHeldToTheSameTable)
{
    for (const char* count : {"-1", "2003", "32768", "x"}) {
        QByteArray bytes = kKnownOlderFile;
        bytes.replace(0, 1, count);
        EXPECT_NE(WhyRefused(bytes, LotteryLayout::Older), QString()) << count;
    }
    QByteArray bytes = kKnownOlderFile;
    bytes.replace("\r\n2,#", "\r\n2003,#");
    EXPECT_EQ(WhyRefused(bytes, LotteryLayout::Older), u"Record 2 carries a number that no database has."_s);
}

// Files that were cut short

TEST(LotteryFile, EveryTruncationIsRefusedInBothLayoutsUnlessOnlyTheLineEndBehindAZeroIsCut)
{
    for (const int picks : {1, 6, 10}) {
        const QByteArray whole = Written(MadeUpDatabase(picks, 49, 3));
        for (qsizetype length = 0; length < whole.size(); ++length) {
            const QByteArray cut = whole.first(length);
            // The last field of 1 and 6 picks is an unused 0 that cannot have been longer; a carriage return
            // alone ends a line.
            const bool nothingLost = length == whole.size() - 1 || (picks < 10 && length == whole.size() - 2);
            if (nothingLost) {
                EXPECT_EQ(Written(Loaded(cut)), whole) << picks << " picks, " << length << " bytes";
            } else {
                EXPECT_NE(WhyRefused(cut), QString()) << picks << " picks, " << length << " bytes";
                EXPECT_NE(WhyRefused(cut, LotteryLayout::Older), QString())
                    << picks << " picks, " << length << " bytes";
            }
        }
    }
}

TEST(LotteryFile, EveryTruncationOfAnOlderFileIsRefusedInBothLayouts)
{
    for (qsizetype length = 0; length < kKnownOlderFile.size(); ++length) {
        const QByteArray cut = kKnownOlderFile.first(length);
        EXPECT_NE(WhyRefused(cut), QString()) << length;
        if (length < kKnownOlderFile.size() - 2) {
            EXPECT_NE(WhyRefused(cut, LotteryLayout::Older), QString()) << length;
        } else {
            EXPECT_EQ(MustRead(cut, LotteryLayout::Older).count, 2) << length;
        }
    }
}

TEST(LotteryFile, ALastNumberThatMayBeCutIsRefused)
{
    const QByteArray begin = WithFirstRecord("1,#2004-03-10#,5,12,23,34,41,49,7,8,9,").chopped(2);
    for (const char* last :
         {"4", "42", "2.5", "\"4", "\"42\"", "#2004-03-1", "-", "-4", "\"", "\"\"", "4e", "abc", "0.", "."}) {
        EXPECT_EQ(WhyRefused(begin + last),
                  u"The last line is not finished, so its last number may be cut."_s)
            << last;
        EXPECT_EQ(MustRead(begin + "42\r").count, 1);
    }
    EXPECT_EQ(MustRead(begin + "0").count, 1) << "an unused place";
}

TEST(LotteryFile, AFileCutBehindAFieldOfNothingIsRefused)
{
    const QByteArray begin = WithFirstRecord("1,#2004-03-10#,5,12,23,34,41,49,7,8,9,").chopped(2);
    EXPECT_EQ(WhyRefused(begin), u"The file ends before everything it announces."_s);
    EXPECT_EQ(MustRead(begin + "\r\n").records.at(0).drawn.at(9), Cell());
}

// Files damaged on purpose

TEST(LotteryFile, AnyByteReplacedByANastyOneIsReadOrRefusedWithinTheTables)
{
    const QByteArray nasty("\0\x01\t\n\r\x1A !\"#,-+.09eE;\x7F\x80\xA0\xFF", 23);
    DrawDatabase database;
    int readings = 0;
    for (const QByteArray& whole : {kKnownFile, kKnownOlderFile}) {
        for (qsizetype place = 0; place < whole.size(); ++place) {
            for (const char byte : nasty) {
                QByteArray damaged = whole;
                damaged[place] = byte;
                for (const LotteryLayout layout : {LotteryLayout::Current, LotteryLayout::Older}) {
                    LotteryReading reading = Read(damaged, layout);
                    // Emptying the whole table takes the longest; every fifth reading goes through it.
                    if (reading.content && ++readings % 5 == 0) {
                        ReplaceDatabase(database, std::move(*reading.content), {});
                        QByteArray again;
                        if (WriteLotteryFile(database, kPlain, again).ok) {
                            EXPECT_EQ(MustRead(again).count, database.count);
                        }
                        EXPECT_EQ(CountNumbers(database, CountMode::TimesDrawn).at(0), NumberCount{});
                    }
                }
            }
        }
    }
    EXPECT_GT(readings, 1000);
}

TEST(LotteryFile, RandomBytesAreReadOrRefusedWithinTheTables)
{
    std::mt19937 random(20040313); // the same bytes in every run
    std::uniform_int_distribution<int> anyByte(0, 255);
    std::uniform_int_distribution<std::size_t> anyOf(0, 15);
    const QByteArray likely("0123456789,,\r\n\"#");
    for (int file = 0; file < 2000; ++file) {
        QByteArray bytes(1 + file % 700, '\0');
        for (char& byte : bytes) {
            byte = file % 2 == 0 ? static_cast<char>(anyByte(random))
                                 : likely.at(static_cast<qsizetype>(anyOf(random)));
        }
        const LotteryReading current = Read(bytes);
        const LotteryReading older = Read(bytes, LotteryLayout::Older);
        EXPECT_FALSE(current.content.has_value() && older.content.has_value() && current.content->count > 0);
    }
}

TEST(LotteryFile, AFileOfNothingButSeparatorsIsRefused)
{
    for (const char* byte : {",", "\r", "\n", "\"", "#", " "}) {
        EXPECT_NE(WhyRefused(QByteArray(byte).repeated(5000)), QString()) << byte;
    }
}

// Replacing the open database

TEST(LotteryFile, WhatWasReadReplacesEverythingButTheUnsavedChanges)
{
    DrawDatabase database = MadeUpDatabase(10, 60, 500);
    database.modified = 1;
    database.fileName = u"Before.Lto"_s;
    database.drawDays.at(8).carried = u"before"_s;
    ReplaceDatabase(database, MustRead(kKnownFile), u"After.Lto"_s);
    EXPECT_EQ(database.modified, 1);
    EXPECT_EQ(database.fileName, u"After.Lto"_s);
    EXPECT_EQ(database.drawDays.at(8).carried, Cell());
    ExpectSameAfterAFile(database, Loaded(kKnownFile));
    EXPECT_EQ(database.records.size(), static_cast<std::size_t>(kRecordRows));
    for (std::size_t row = 3; row < database.records.size(); ++row) {
        EXPECT_EQ(database.records.at(row), DrawRecord{}) << row;
    }
}
