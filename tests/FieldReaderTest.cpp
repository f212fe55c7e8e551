#include "app/FieldReader.h"

#include "app/FieldWriter.h"
#include "tests/StatePrinters.h"

#include <QLocale>
#include <QStringList>
#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QStringList AllTexts(const QByteArray& bytes)
{
    FieldReader reader(bytes);
    QStringList texts;
    while (const std::optional<Field> field = reader.Next()) {
        texts << reader.Text(*field);
    }
    return texts;
}

Cell OnlyCell(const QByteArray& bytes)
{
    FieldReader reader(bytes);
    const std::optional<Field> field = reader.Next();
    EXPECT_TRUE(field.has_value());
    const Cell cell = field ? reader.AsCell(*field) : Cell();
    EXPECT_FALSE(reader.Next().has_value()) << "more than one field";
    return cell;
}

std::optional<double> OnlyNumber(const QByteArray& bytes)
{
    FieldReader reader(bytes);
    const std::optional<Field> field = reader.Next();
    EXPECT_TRUE(field.has_value());
    return field ? FieldNumber(*field) : std::nullopt;
}

std::optional<QDate> OnlyDate(const QByteArray& bytes)
{
    FieldReader reader(bytes);
    const std::optional<Field> field = reader.Next();
    EXPECT_TRUE(field.has_value());
    return field ? FieldDate(*field) : std::nullopt;
}

/// Sets the locale that a program uses by default, and puts the old one back.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~DefaultLocale() { QLocale::setDefault(m_before); }
    Q_DISABLE_COPY_MOVE(DefaultLocale)

private:
    QLocale m_before;
};

} // namespace

TEST(FieldReader, NothingHasNoField)
{
    EXPECT_EQ(AllTexts(""), QStringList());
}

TEST(FieldReader, CommasAndAllLineEndsSeparateFieldsAlike)
{
    const QStringList expected{u"1"_s, u"2"_s, u"3"_s};
    EXPECT_EQ(AllTexts("1,2,3\r\n"), expected);
    EXPECT_EQ(AllTexts("1\r\n2\r\n3\r\n"), expected);
    EXPECT_EQ(AllTexts("1\n2\n3\n"), expected);
    EXPECT_EQ(AllTexts("1\r2\r3\r"), expected);
    EXPECT_EQ(AllTexts("1,2\n3"), expected);
}

TEST(FieldReader, TwoCarriageReturnsEndTwoFields)
{
    EXPECT_EQ(AllTexts("1\r\r\n2"), (QStringList{u"1"_s, u""_s, u"2"_s}));
}

TEST(FieldReader, AFieldOfNothingIsAField)
{
    EXPECT_EQ(AllTexts(",1\r\n"), (QStringList{u""_s, u"1"_s}));
    EXPECT_EQ(AllTexts(",,\r\n"), (QStringList{u""_s, u""_s, u""_s}));
}

TEST(FieldReader, AFieldThatWouldBeginAtTheVeryEndIsNone)
{
    EXPECT_EQ(AllTexts("1,"), QStringList{u"1"_s});
    EXPECT_EQ(AllTexts("1,   "), QStringList{u"1"_s});
}

TEST(FieldReader, BlanksAroundABareFieldDoNotCount)
{
    EXPECT_EQ(AllTexts("  1 ,\t2\t, 3"), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

TEST(FieldReader, BlanksWithinQuotesCount)
{
    EXPECT_EQ(AllTexts(" \" Lotto \" ,1"), (QStringList{u" Lotto "_s, u"1"_s}));
}

TEST(FieldReader, CommasAndLineEndsWithinQuotesBelongToTheField)
{
    EXPECT_EQ(AllTexts("1,\"a, b\r\nc\nd\",2"), (QStringList{u"1"_s, u"a, b\r\nc\nd"_s, u"2"_s}));
}

TEST(FieldReader, WhatFollowsAClosingQuoteIsLeftOutUpToTheSeparator)
{
    EXPECT_EQ(AllTexts("\"a\"b \"c\",2"), (QStringList{u"a"_s, u"2"_s}));
}

TEST(FieldReader, AnUnterminatedQuoteReachesToTheEnd)
{
    EXPECT_EQ(AllTexts("1,\"a,2\r\n3"), (QStringList{u"1"_s, u"a,2\r\n3"_s}));
    EXPECT_EQ(AllTexts("\""), QStringList{u""_s});
}

TEST(FieldReader, AQuoteWithinABareFieldIsACharacter)
{
    EXPECT_EQ(AllTexts("5\" rain,2"), (QStringList{u"5\" rain"_s, u"2"_s}));
}

TEST(FieldReader, SaysWhetherTheLastFieldWasEndedByTheEnd)
{
    for (const auto& [bytes, ended] : std::initializer_list<std::pair<const char*, bool>>{
             {"1", true},
             {"1,", false},
             {"1\r\n", false},
             {"1\r", false},
             {"1\n", false},
             {"\"1\"", true},
             {"\"1", true},
             {"\"1\"\n", false},
             {"#2004-03-13#", true},
         }) {
        const QByteArray held(bytes);
        FieldReader reader(held);
        ASSERT_TRUE(reader.Next().has_value()) << bytes;
        EXPECT_EQ(reader.EndedByFileEnd(), ended) << bytes;
    }
}

TEST(FieldReader, TextIsIso8859OfOneByteEach)
{
    EXPECT_EQ(AllTexts("\"\xC4\xFF\x80\""), QStringList{QString::fromLatin1("\xC4\xFF\x80")});
}

TEST(FieldReader, AByteOrderMarkIsSkippedAndMakesTheTextUtf8)
{
    EXPECT_EQ(AllTexts("\xEF\xBB\xBF\"\xC3\x84\",1"), (QStringList{QString(QChar(0xC4)), u"1"_s}));
    EXPECT_EQ(AllTexts("\xEF\xBB\xBF"), QStringList());
}

TEST(FieldReader, APartOfAByteOrderMarkIsText)
{
    EXPECT_EQ(AllTexts("\xEF\xBB"), QStringList{QString::fromLatin1("\xEF\xBB")});
}

TEST(FieldReader, ANullByteIsACharacterLikeAnyOther)
{
    EXPECT_EQ(AllTexts(QByteArray("\"a\0b\",1", 7)), (QStringList{QString::fromLatin1("a\0b", 3), u"1"_s}));
}

TEST(FieldReader, ACellKeepsTheKindThatWasWritten)
{
    EXPECT_EQ(OnlyCell("57\r\n"), Cell(57));
    EXPECT_EQ(OnlyCell("-3\r\n"), Cell(-3));
    EXPECT_EQ(OnlyCell("2.5\r\n"), Cell(2.5));
    EXPECT_EQ(OnlyCell("\"57\"\r\n"), Cell(u"57"_s));
    EXPECT_EQ(OnlyCell("\"\"\r\n"), Cell(u""_s));
    EXPECT_EQ(OnlyCell("#2004-03-13#\r\n"), Cell(QDate(2004, 3, 13)));
    EXPECT_EQ(OnlyCell("\r\n"), Cell());
}

TEST(FieldReader, WhatIsNoNumberAndNoDayStaysTheTextThatStoodThere)
{
    EXPECT_EQ(OnlyCell("abc\r\n"), Cell(u"abc"_s));
    EXPECT_EQ(OnlyCell("#2004-02-30#\r\n"), Cell(u"2004-02-30"_s));
    EXPECT_EQ(OnlyCell("#TRUE#\r\n"), Cell(u"TRUE"_s));
    EXPECT_EQ(OnlyCell("#2004-03-13\r\n"), Cell(u"#2004-03-13"_s));
    EXPECT_EQ(OnlyCell("#\r\n"), Cell(u"#"_s));
    EXPECT_EQ(OnlyCell("1e400\r\n"), Cell(u"1e400"_s));
}

TEST(FieldReader, ANumberWithoutFractionIsAWholeOneHoweverWritten)
{
    EXPECT_EQ(OnlyCell("7.0\r\n"), Cell(7));
    EXPECT_EQ(OnlyCell("1e2\r\n"), Cell(100));
    EXPECT_EQ(OnlyCell("007\r\n"), Cell(7));
    EXPECT_EQ(OnlyCell("2147483647\r\n"), Cell(2147483647));
    EXPECT_EQ(OnlyCell("2147483648\r\n"), Cell(2147483648.0));
    EXPECT_EQ(OnlyCell("-2147483648\r\n"), Cell(std::numeric_limits<int>::min()));
    EXPECT_EQ(OnlyCell("-0\r\n"), Cell(0));
}

TEST(FieldReader, NumbersHaveAPointInEveryLocale)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(OnlyNumber("2.5"), 2.5);
    EXPECT_EQ(AllTexts("2,5"), (QStringList{u"2"_s, u"5"_s}));
}

TEST(FieldReader, OnlyABareFieldIsANumber)
{
    EXPECT_EQ(OnlyNumber("49"), 49.0);
    EXPECT_EQ(OnlyNumber("+49"), 49.0);
    EXPECT_EQ(OnlyNumber("-49"), -49.0);
    EXPECT_EQ(OnlyNumber(".5"), 0.5);
    EXPECT_EQ(OnlyNumber("99999999999"), 99999999999.0);
    for (const char* text :
         {"\"49\"", "#49#", "",      ",",      "abc", "4x",   "x4",  "4 9",  "+-4", "++4",   "+",
          "-",      ".",    "1e400", "-1e400", "inf", "-inf", "nan", "0x10", "1e",  "1_000", "4\xA0"}) {
        const QByteArray bytes = QByteArray(text) + "\r\n";
        EXPECT_EQ(OnlyNumber(bytes), std::nullopt) << text;
    }
    EXPECT_EQ(OnlyNumber(QByteArray("4\0", 2)), std::nullopt);
}

TEST(FieldReader, ADayIsYearMonthDayBetweenHashes)
{
    EXPECT_EQ(OnlyDate("#2004-03-13#"), QDate(2004, 3, 13));
    EXPECT_EQ(OnlyDate("#2004-3-1#"), QDate(2004, 3, 1));
    EXPECT_EQ(OnlyDate("#2004-02-29#"), QDate(2004, 2, 29));
    EXPECT_EQ(OnlyDate("#0100-01-01#"), QDate(100, 1, 1));
    EXPECT_EQ(OnlyDate("#9999-12-31#"), QDate(9999, 12, 31));
}

TEST(FieldReader, ATimeOfDayBehindTheDayIsLeftAside)
{
    EXPECT_EQ(OnlyDate("#2004-03-13 20:15:00#"), QDate(2004, 3, 13));
}

TEST(FieldReader, WhatIsNoDayIsNone)
{
    for (const char* text : {"2004-03-13",
                             "\"2004-03-13\"",
                             "##",
                             "# #",
                             "#2004-03#",
                             "#2004-03-#",
                             "#2004-03-13-#",
                             "#2004-02-30#",
                             "#2003-02-29#",
                             "#2004-13-01#",
                             "#2004-00-01#",
                             "#2004-01-00#",
                             "#0099-12-31#",
                             "#10000-01-01#",
                             "#-2004-03-13#",
                             "#2004--3-13#",
                             "#2004/03/13#",
                             "#13.03.2004#",
                             "#99999999999-01-01#",
                             "#2004-00003-13#",
                             "#+2004-03-13#",
                             "#abc#"}) {
        EXPECT_EQ(OnlyDate(text), std::nullopt) << text;
    }
}

TEST(FieldWriter, NumbersAreBareWithAPointInEveryLocale)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    FieldWriter writer;
    writer.Number(57);
    writer.Number(0);
    writer.Number(-3);
    writer.Number(2.5);
    writer.Number(1234567);
    writer.Number(-0.0);
    writer.EndLine();
    EXPECT_EQ(writer.Bytes(), "57,0,-3,2.5,1234567,0\r\n");
}

TEST(FieldWriter, TextsStandBetweenQuotesWithNothingEscaped)
{
    FieldWriter writer;
    writer.Text(u"Lotto 6/49"_s);
    writer.Text(u"a\"b, c"_s);
    writer.Text({});
    writer.EndLine();
    EXPECT_EQ(writer.Bytes(), "\"Lotto 6/49\",\"a\"b, c\",\"\"\r\n");
    EXPECT_TRUE(writer.EverythingHadAPlace());
}

TEST(FieldWriter, DatesStandBetweenHashesAsYearMonthDay)
{
    FieldWriter writer;
    writer.Date(QDate(2004, 3, 1));
    writer.Date(QDate(987, 12, 31));
    writer.EndLine();
    EXPECT_EQ(writer.Bytes(), "#2004-03-01#,#0987-12-31#\r\n");
}

TEST(FieldWriter, EveryLineBeginsWithoutAComma)
{
    FieldWriter writer;
    writer.Number(1);
    writer.EndLine();
    writer.EndLine();
    writer.Number(2);
    writer.Number(3);
    writer.EndLine();
    EXPECT_EQ(writer.Bytes(), "1\r\n\r\n2,3\r\n");
}

TEST(FieldWriter, ACellIsWrittenUnderItsOwnKind)
{
    FieldWriter writer;
    writer.AsHeld({});
    writer.AsHeld(7);
    writer.AsHeld(0.25);
    writer.AsHeld(u"7"_s);
    writer.AsHeld(QDate(2004, 3, 13));
    writer.AsHeld({});
    writer.EndLine();
    EXPECT_EQ(writer.Bytes(), ",7,0.25,\"7\",#2004-03-13#,\r\n");
}

TEST(FieldWriter, EveryCellComesBackEqual)
{
    const std::vector<Cell> cells{
        Cell(),
        Cell(0),
        Cell(-1),
        Cell(std::numeric_limits<int>::max()),
        Cell(0.1),
        Cell(1e15),
        Cell(-1e-300),
        Cell(std::numeric_limits<int>::min()),
        Cell(4.5e9),
        Cell(1.7e308),
        Cell(u""_s),
        Cell(u"a, b\r\nc"_s),
        Cell(u"12"_s),
        Cell(u"#1-2-3#"_s),
        Cell(u" x "_s),
        Cell(QString::fromLatin1("\xA0\xFF\x01")),
        Cell(QDate(100, 1, 1)),
        Cell(QDate(9999, 12, 31)),
        Cell(1.0 / 3.0),
        Cell(999999999999999.0),
    };
    FieldWriter writer;
    for (const Cell& cell : cells) {
        writer.AsHeld(cell);
    }
    writer.EndLine();
    FieldReader reader(writer.Bytes());
    for (const Cell& cell : cells) {
        const std::optional<Field> field = reader.Next();
        ASSERT_TRUE(field.has_value());
        EXPECT_EQ(reader.AsCell(*field), cell);
    }
    EXPECT_FALSE(reader.Next().has_value());
}

TEST(FieldWriter, SaysWhenACharacterHasNoPlaceInAFile)
{
    FieldWriter writer;
    writer.Text(QString(QChar(0xFF)));
    EXPECT_TRUE(writer.EverythingHadAPlace());
    writer.Text(u"5 \u20AC"_s);
    EXPECT_FALSE(writer.EverythingHadAPlace());
    writer.Text(u"plain"_s);
    EXPECT_FALSE(writer.EverythingHadAPlace()) << "a later text does not make it good";
}

TEST(FieldWriter, SaysWhenANumberHasNoPlaceInAFile)
{
    for (const double value :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        FieldWriter writer;
        writer.Number(value);
        EXPECT_FALSE(writer.EverythingHadAPlace()) << value;
    }
}

TEST(FieldWriter, FitsFileTextIsTheRangeOfOneByte)
{
    EXPECT_TRUE(FitsFileText(u""));
    EXPECT_TRUE(FitsFileText(u"Lotto \u00FC\u00FF\u0001"));
    EXPECT_FALSE(FitsFileText(u"\u0100"));
    EXPECT_FALSE(FitsFileText(u"a\U0001F3B1"));
}

TEST(FieldReader, AQuotedTextOfALineEndsWithIt)
{
    const QByteArray bytes = "\"a,b\",\"open, \r\n\"c\"x,\"\r\"d\nbare\"\n\"last";
    FieldReader reader(bytes, QuotedText::EndsWithLine);
    const struct {
        QString text;
        bool leftOpen;
    } fields[] = {{u"a,b"_s, false}, {u"open, "_s, true},  {u"c"_s, false},  {QString(), true},
                  {u"d"_s, true},    {u"bare\""_s, false}, {u"last"_s, true}};
    for (const auto& expected : fields) {
        const std::optional<Field> field = reader.Next();
        ASSERT_TRUE(field.has_value());
        EXPECT_EQ(reader.Text(*field), expected.text);
        EXPECT_EQ(reader.QuoteWasLeftOpen(), expected.leftOpen) << expected.text.toStdString();
    }
    EXPECT_FALSE(reader.Next().has_value());
    EXPECT_TRUE(reader.EndedByFileEnd());
}

TEST(FieldReader, AQuotedTextThatSpansLinesIsLeftOpenByTheEndOfTheFileAlone)
{
    const QByteArray bytes = "\"a\r\nb\",\"c\r\nd";
    FieldReader reader(bytes);
    EXPECT_EQ(reader.Text(reader.Next().value()), u"a\r\nb"_s);
    EXPECT_FALSE(reader.QuoteWasLeftOpen());
    EXPECT_EQ(reader.Text(reader.Next().value()), u"c\r\nd"_s);
    EXPECT_TRUE(reader.QuoteWasLeftOpen());
}
