#include "invest/InvestmentFile.h"

#include "invest/InvestmentCalculation.h"
#include "tests/Statements.h"

#include <QFile>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// A file of these lines, and empty ones up to 112.
QByteArray FileOf(const QByteArray& lines)
{
    QByteArray bytes = lines;
    while (bytes.count('\n') < 112) {
        bytes += ",\r\n";
    }
    return bytes;
}

/// Whether calculating leaves the statement as its file has it.
bool IsCalculated(const QByteArray& bytes)
{
    return ReadInvestmentFile(bytes).isCalculated;
}

InvestmentStatement Read(const QByteArray& bytes)
{
    const InvestmentReading reading = ReadInvestmentFile(bytes);
    EXPECT_TRUE(reading.statement.has_value()) << reading.reason.toStdString();
    return reading.statement.value_or(InvestmentStatement());
}

QByteArray Written(const InvestmentStatement& statement)
{
    QByteArray bytes;
    const Outcome written = WriteInvestmentFile(statement, bytes);
    EXPECT_TRUE(written.ok) << written.reason.toStdString();
    return bytes;
}

InvestmentStatement Calculated(const InvestmentTable& rows)
{
    return CalculateStatement(rows).value_or(InvestmentStatement());
}

const QByteArray kThreeRows =
    FileOf("3\r\n\"Tickets\",-12.5\r\n\"Winnings, \xE9t\xE9\",10\r\n\"Sub Total\",-2.5\r\n");

QByteArray SampleBytes()
{
    QFile file(QStringLiteral(QUILLABY_SAMPLE_STATEMENT));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// What holds for whatever was read: the count is a whole number of usable rows, row 0 holds nothing, and the
/// statement can be written and read back as the same.
void ExpectSound(const InvestmentStatement& statement)
{
    const int count = static_cast<int>(statement.rowCount);
    EXPECT_EQ(statement.rowCount, static_cast<float>(count));
    EXPECT_GE(count, 0);
    EXPECT_LE(count, LastRowInUse(statement.rows));
    EXPECT_EQ(statement.rows.at(0), InvestmentRow());
    EXPECT_EQ(TotalOf(statement.rows, count), statement.total);
    EXPECT_EQ(Read(Written(statement)), statement);
}

} // namespace

TEST(InvestmentFile, AStatementIsWrittenFieldByField)
{
    const InvestmentStatement statement =
        Calculated(Rows({Item(u"Tickets"_s, u"-12.5"_s), Item(u"Winnings, été"_s, u"10"_s),
                         Item(u"sub total"_s), Item(u" "_s), Item(u"Half"_s, u"0.5"_s)}));
    EXPECT_EQ(Written(statement), FileOf("5\r\n\"Tickets\",-12.5\r\n\"Winnings, \xE9t\xE9\",10\r\n"
                                         "\"sub total\",-2.5\r\n\" \",\r\n\"Half\",0.5\r\n"));
}

TEST(InvestmentFile, ASavedFileAlwaysHas112Lines)
{
    for (const int rows : {1, 2, 50, 104, 105}) {
        const QByteArray bytes = Written(Calculated(NumberedRows(rows)));
        EXPECT_EQ(bytes.count('\n'), 112) << rows;
        EXPECT_EQ(bytes.count("\r\n"), 112) << rows;
        EXPECT_TRUE(bytes.endsWith("\r\n,\r\n,\r\n")) << rows;
        EXPECT_TRUE(bytes.startsWith(QByteArray::number(rows) + "\r\n"));
    }
}

TEST(InvestmentFile, ReadsBackWhatWasWrittenByteForByte)
{
    InvestmentTable full = NumberedRows(105);
    full.at(7) = Item(u"Sub Total"_s);
    full.at(8) = Item(QString(500, u'\u00E9'), u"-922337203.6854"_s);
    full.at(9) = Item(u"a, b #4#, d"_s, u"0.0001"_s);
    for (const InvestmentTable& rows : {Rows({Item(u"one"_s)}), NumberedRows(3), full}) {
        const InvestmentStatement statement = Calculated(rows);
        const QByteArray bytes = Written(statement);
        EXPECT_EQ(Read(bytes), statement);
        EXPECT_EQ(Written(Read(bytes)), bytes);
        EXPECT_TRUE(IsCalculated(bytes));
    }
}

TEST(InvestmentFile, TheTotalOfALoadedStatementIsComputedAtOnce)
{
    const InvestmentStatement statement = Read(kThreeRows);
    EXPECT_EQ(statement.rowCount, 3.0F);
    EXPECT_EQ(statement.rows, Rows({Item(u"Tickets"_s, u"-12.5"_s), Item(u"Winnings, été"_s, u"10"_s),
                                    Item(u"Sub Total"_s, u"-2.5"_s)}));
    EXPECT_EQ(statement.total, Money(u"-2.5"_s));
}

TEST(InvestmentFile, EveryCutOfAFileIsReadAsFarAsItGoes)
{
    const InvestmentStatement whole = Read(kThreeRows);
    for (qsizetype length = 0; length <= kThreeRows.size(); ++length) {
        const InvestmentStatement cut = Read(kThreeRows.first(length));
        ExpectSound(cut);
        for (std::size_t row = 1; row < cut.rows.size(); ++row) {
            EXPECT_TRUE(whole.rows.at(row).description.startsWith(cut.rows.at(row).description)) << length;
        }
    }
    EXPECT_EQ(Read({}), InvestmentStatement());
    EXPECT_EQ(Read("3\r\n\"Tickets\",-12.5\r\n\"Winn").rows,
              Rows({Item(u"Tickets"_s, u"-12.5"_s), Item(u"Winn"_s)}));
    EXPECT_EQ(Read("3\r\n\"Tickets\",-12.5\r\n\"Winn").rowCount, 2.0F) << "no more rows than there are";
}

TEST(InvestmentFile, AnAmountThatTheEndOfTheFileMayHaveCutIsNotTaken)
{
    for (const QByteArray cut : {"-12.5", "-12.", "-1", "-", "0", "-12.5  ", "\"5\"", "\"5"}) {
        const QByteArray bytes = "1\r\n\"Tickets\"," + cut;
        EXPECT_EQ(Read(bytes).rows, Rows({Item(u"Tickets"_s)})) << cut.toStdString();
        EXPECT_EQ(Read(bytes).rowCount, 1.0F);
        EXPECT_FALSE(IsCalculated(bytes)) << cut.toStdString();
    }
    for (const QByteArray end : {"\r\n", "\n", "\r", ","}) {
        const QByteArray bytes = "1\r\n\"Tickets\",-12.5" + end;
        EXPECT_EQ(Read(bytes).rows, Rows({Item(u"Tickets"_s, u"-12.5"_s)}));
        EXPECT_TRUE(IsCalculated(bytes));
    }
    // Between the two cells the amount is missing, and between two rows it is not.
    EXPECT_FALSE(IsCalculated("1\r\n\"Tick"));
    EXPECT_FALSE(IsCalculated("1\r\n\"Tickets\""));
    EXPECT_FALSE(IsCalculated("1\r\n\"Tickets\","));
    EXPECT_TRUE(IsCalculated(kThreeRows));
    EXPECT_TRUE(IsCalculated(kThreeRows.chopped(1)));
    EXPECT_TRUE(IsCalculated(kThreeRows.chopped(2))) << "only the last line end is missing";
}

TEST(InvestmentFile, EveryCutInAnAccountIsNoticed)
{
    const qsizetype rowsEnd = kThreeRows.indexOf("-2.5\r\n") + 4;
    for (qsizetype length = 0; length <= rowsEnd; ++length) {
        EXPECT_FALSE(IsCalculated(kThreeRows.first(length))) << length;
    }
}

TEST(InvestmentFile, ADescriptionEndsWithItsLineSoAMissingQuoteMergesNoRows)
{
    const QByteArray bytes = FileOf("3\r\n\"Tickets,-12.5\r\n\"Winnings\",10\r\n\"Gift\",1\r\n");
    const InvestmentStatement statement = Read(bytes);
    EXPECT_EQ(statement.rows,
              Rows({Item(u"Tickets,-12.5"_s), Item(u"Winnings"_s, u"10"_s), Item(u"Gift"_s, u"1"_s)}));
    EXPECT_EQ(statement.rowCount, 3.0F);
    EXPECT_EQ(statement.total, Money(u"11"_s));
    EXPECT_FALSE(IsCalculated(bytes)) << "an amount is missing";
    ExpectSound(statement);
    for (const QByteArray end : {"\n", "\r"}) {
        QByteArray other = bytes;
        EXPECT_EQ(Read(other.replace("\r\n", end)), statement);
    }
    EXPECT_EQ(Read("1\r\n\"a\",\"5\r\n\"b\",6\r\n").rows, Rows({Item(u"a"_s, u"5"_s), Item(u"b"_s, u"6"_s)}));
}

TEST(InvestmentFile, ADescriptionWithALineBreakIsNotWritten)
{
    for (const QString& text : {u"a\nb"_s, u"a\r"_s, u"\r\n"_s}) {
        InvestmentStatement statement = Calculated(NumberedRows(3));
        statement.rows.at(2).description = text;
        QByteArray bytes = "untouched";
        const Outcome written = WriteInvestmentFile(statement, bytes);
        EXPECT_FALSE(written.ok);
        EXPECT_TRUE(written.reason.contains(u"row 2"_s)) << written.reason.toStdString();
        EXPECT_EQ(bytes, "untouched");
    }
}

TEST(InvestmentFile, WhatFollowsTheLastRowIsNotLookedAt)
{
    EXPECT_EQ(Read(kThreeRows + "\"more\",5\r\n" + QByteArray(100000, 'x')), Read(kThreeRows));
}

TEST(InvestmentFile, ADamagedCountHidesNoRowAndAddsNone)
{
    const QByteArray rows = kThreeRows.sliced(1);
    for (const QByteArray count : {"-1", "106", "111", "112", "99999", "1e30", "-1e30", "1e999", "nan", "inf",
                                   "2.5", "nonsense", "", "\"3\"", "#2004-03-13#", "3x", "\xFF\xFE", "\0"}) {
        const InvestmentStatement statement = Read(count + rows);
        EXPECT_EQ(statement.rowCount, 3.0F) << count.toStdString();
        EXPECT_EQ(statement.rows, Read(kThreeRows).rows) << count.toStdString();
        EXPECT_EQ(statement.total, Money(u"-2.5"_s)) << count.toStdString();
        EXPECT_FALSE(IsCalculated(count + rows)) << count.toStdString();
    }
    for (const QByteArray count : {"3", "+3", "3e0", " 3 "}) {
        EXPECT_EQ(Read(count + rows).rowCount, 3.0F) << count.toStdString();
        EXPECT_TRUE(IsCalculated(count + rows)) << count.toStdString();
    }
    EXPECT_EQ(Read("105" + rows).rowCount, 3.0F);
    EXPECT_FALSE(IsCalculated("105" + rows)) << "102 rows are missing";
}

TEST(InvestmentFile, ACountBelowTheRowsIsTakenAndTheOtherRowsAreKept)
{
    const QByteArray bytes = "1" + kThreeRows.sliced(1);
    const InvestmentStatement statement = Read(bytes);
    EXPECT_EQ(statement.rowCount, 1.0F);
    EXPECT_EQ(statement.total, Money(u"-12.5"_s));
    EXPECT_EQ(statement.rows.at(3), Item(u"Sub Total"_s, u"-2.5"_s));
    EXPECT_EQ(Written(statement), bytes);
    EXPECT_FALSE(IsCalculated(bytes));
    const QByteArray none = "0" + kThreeRows.sliced(1);
    EXPECT_EQ(Read(none).rowCount, 0.0F);
    EXPECT_EQ(Read(none).total, Currency());
    EXPECT_FALSE(IsCalculated(none));
    EXPECT_TRUE(IsCalculated(FileOf("0\r\n")));
}

TEST(InvestmentFile, AnAmountWithoutADescriptionIsKeptAndNotCounted)
{
    const QByteArray bytes = FileOf("3\r\n\"a\",1\r\n,100\r\n\"b\",2\r\n");
    const InvestmentStatement statement = Read(bytes);
    EXPECT_EQ(statement.rowCount, 3.0F);
    EXPECT_EQ(statement.rows.at(2), Item(QString(), u"100"_s));
    EXPECT_EQ(statement.total, Money(u"3"_s)) << "as it will be once calculated";
    EXPECT_FALSE(IsCalculated(bytes));
    EXPECT_EQ(Written(statement), bytes);
}

TEST(InvestmentFile, WhatCalculatingWouldChangeIsNotCalculated)
{
    EXPECT_FALSE(IsCalculated(FileOf("3\r\n\"a\",1\r\n,\r\n\"b\",2\r\n"))) << "an empty row";
    EXPECT_FALSE(IsCalculated(FileOf("2\r\n\"a\",1\r\n\"Sub Total\",2\r\n"))) << "another sum";
    EXPECT_TRUE(IsCalculated(FileOf("2\r\n\"a\",1\r\n\"Sub Total\",1\r\n")));
    EXPECT_FALSE(IsCalculated(FileOf("1\r\n\"a\",12 apples\r\n"))) << "no number that was saved";
    EXPECT_FALSE(IsCalculated(FileOf("1\r\n\"a\",1e30\r\n")));
    EXPECT_FALSE(IsCalculated(FileOf("1\r\n\"a\",#2004-03-13#\r\n")));
    EXPECT_TRUE(IsCalculated(FileOf("1\r\n\"a\",\"\"\r\n"))) << "an empty cell";
}

TEST(InvestmentFile, RowsUpTo111AreReadAndWrittenBack)
{
    QByteArray bytes = "105\r\n";
    for (int row = 1; row <= 111; ++row) {
        bytes += "\"Row " + QByteArray::number(row) + "\"," + QByteArray::number(row) + "\r\n";
    }
    const InvestmentStatement statement = Read(bytes);
    EXPECT_EQ(statement.rowCount, 105.0F);
    EXPECT_EQ(statement.total, Money(u"5565"_s)) << "of the 105 rows that are counted";
    EXPECT_EQ(statement.rows.at(111), Item(u"Row 111"_s, u"111"_s));
    EXPECT_TRUE(IsCalculated(bytes)) << "they are beyond what can be used";
    EXPECT_EQ(Written(statement), bytes);
}

TEST(InvestmentFile, FieldsOfOtherKindsAreTakenForWhatTheyCanBe)
{
    const InvestmentStatement statement = Read(
        "8\r\nbare text,5\r\n57,\"6\"\r\n#2004-03-13#,#2004-03-13#\r\n\"a\",abc\r\n\"b\",1e30\r\n\"c\",12 "
        "apples\r\n"
        "\"d\",0.00005\r\n  \"e\"  ,  7  \r\n");
    EXPECT_EQ(statement.rows,
              Rows({Item(u"bare text"_s, u"5"_s), Item(u"57"_s, u"6"_s), Item(u"2004-03-13"_s), Item(u"a"_s),
                    Item(u"b"_s), Item(u"c"_s, u"12"_s), Item(u"d"_s, u"0"_s), Item(u"e"_s, u"7"_s)}));
    EXPECT_EQ(statement.rowCount, 8.0F);
    ExpectSound(statement);
}

TEST(InvestmentFile, ADoubleQuoteInABareTextIsLeftOut)
{
    const InvestmentStatement statement = Read("1\r\na\"b\"c,5\r\n");
    EXPECT_EQ(statement.rows.at(1), Item(u"abc"_s, u"5"_s));
    ExpectSound(statement);
}

TEST(InvestmentFile, AFileWithoutLineFeedsOrWithPlainOnesIsTheSame)
{
    QByteArray unix = kThreeRows;
    unix.replace("\r\n", "\n");
    QByteArray old = kThreeRows;
    old.replace("\r\n", "\r");
    EXPECT_EQ(Read(unix), Read(kThreeRows));
    EXPECT_EQ(Read(old), Read(kThreeRows));
}

TEST(InvestmentFile, ATextOfUtf8WithItsMarkIsRead)
{
    const InvestmentStatement statement = Read("\xEF\xBB\xBF"
                                               "2\r\n\"\xC3\xA9t\xC3\xA9\",1\r\n\"5 \xE2\x82\xAC\",5\r\n");
    EXPECT_EQ(statement.rows, Rows({Item(u"été"_s, u"1"_s), Item(u"5 €"_s, u"5"_s)}));
    QByteArray bytes = "untouched";
    const Outcome written = WriteInvestmentFile(statement, bytes);
    EXPECT_FALSE(written.ok);
    EXPECT_TRUE(written.reason.contains(u"row 2"_s)) << written.reason.toStdString();
    EXPECT_EQ(bytes, "untouched");
}

TEST(InvestmentFile, BinaryBytesAreReadWithoutHarm)
{
    std::mt19937 random(20261121);
    for (int i = 0; i < 300; ++i) {
        QByteArray bytes(static_cast<qsizetype>(random() % 3000), '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random() % 256);
        }
        ExpectSound(Read(bytes));
    }
    ExpectSound(Read(QByteArray(5000, '\0')));
    ExpectSound(Read(QByteArray(5000, '"')));
    ExpectSound(Read(QByteArray(5000, ',')));
    ExpectSound(Read("3,\"never closed\r\n" + QByteArray(5000, '\n')));
}

TEST(InvestmentFile, AmountsThatAddUpBeyondTheRangeAreRefused)
{
    const InvestmentReading reading =
        ReadInvestmentFile("2\r\n\"a\",922337203685477.5807\r\n\"b\",0.0001\r\n");
    EXPECT_FALSE(reading.statement.has_value());
    EXPECT_FALSE(reading.reason.isEmpty());
    EXPECT_EQ(Read("1\r\n\"a\",922337203685477.5807\r\n\"b\",0.0001\r\n").total,
              Money(u"922337203685477.5807"_s));
}

TEST(InvestmentFile, TheSampleIsACalculatedStatement)
{
    const QByteArray bytes = SampleBytes();
    const InvestmentStatement sample = Read(bytes);
    EXPECT_EQ(sample.rowCount, 15.0F);
    EXPECT_EQ(sample.total, Money(u"29"_s));
    EXPECT_EQ(Calculated(sample.rows), sample);
    EXPECT_TRUE(IsCalculated(bytes));
    EXPECT_EQ(Written(sample), bytes);
}
