#include "app/DatabaseReport.h"

#include "app/TextPictures.h"
#include "tests/PrintedPages.h"
#include "tests/StatePrinters.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QLocale kAmerican(QLocale::English, QLocale::UnitedStates);

/// Record r is drawn r days after New Year 2020 and holds r, r+1 .. of the lottery's numbers in turn.
DrawDatabase Lottery(int picks, int highest, int records)
{
    DrawDatabase database;
    database.columns = qint16(picks + 2);
    database.highest = qint16(highest);
    database.title = u"Test"_s;
    for (int record = 1; record <= records; ++record) {
        std::vector<int> numbers;
        for (int k = 0; k < picks; ++k) {
            numbers.push_back((record - 1 + k) % highest + 1);
        }
        EXPECT_TRUE(database.Append(QDate(2020, 1, 1).addDays(record), numbers));
    }
    return database;
}

PrintedDocument Report(const DrawDatabase& database, qint16 font = kStandardFont,
                       CountMode counted = CountMode::TimesDrawn)
{
    Printout printout(u"Database"_s, font);
    printout.PreparePrinter();
    PrintDatabaseReport(printout, database, counted, kAmerican);
    printout.FinishPrinting();
    return printout.Document();
}

/// The lines of all pages that begin with a date.
QStringList RecordLines(const PrintedDocument& document, int page)
{
    QStringList lines = PageLines(document, page);
    lines.removeIf([](const QString& line) { return !line.mid(4, 12).contains(u'/'); });
    return lines;
}

/// The lines from the heading of the top numbers on.
QStringList StatisticsLines(const PrintedDocument& document)
{
    QStringList lines = PageLines(document, int(document.pages.size()));
    const auto isTop = [](const QString& line) { return line.contains(u" Top  "_s); };
    lines.erase(lines.begin(), std::find_if(lines.begin(), lines.end(), isTop));
    return lines;
}

} // namespace

TEST(DatabaseReport, TheHeadOfTheFirstPageTakesSixLines)
{
    const QStringList lines = PageLines(Report(Lottery(6, 49, 1)), 1);
    EXPECT_EQ(lines.first(7), (QStringList{{},
                                           {},
                                           {},
                                           u"    Winning numbers in Test Draw"_s,
                                           u"    "_s + QString(45, u'_'),
                                           {},
                                           u"    1/2/2020          1    2    3    4    5    6"_s}));
}

TEST(DatabaseReport, EachRecordHasItsDateAtColumn5AndItsNumbersFiveColumnsApartFrom20)
{
    const PrintedDocument document = Report(Lottery(3, 49, 12));
    const PrintedLine& line = document.pages.at(0).at(6 + 11);
    EXPECT_EQ(line, (PrintedLine{{5, u"1/13/2020"_s}, {20, u"  12"_s}, {25, u"  13"_s}, {30, u"  14"_s}}));
}

TEST(DatabaseReport, TheFirstPageHolds47RecordsAndTheNext48)
{
    const PrintedDocument document = Report(Lottery(6, 49, 48 + 48));
    EXPECT_EQ(RecordLines(document, 1).size(), 47);
    EXPECT_EQ(RecordLines(document, 2).size(), 48);
    EXPECT_EQ(RecordLines(document, 3).size(), 1);
    EXPECT_TRUE(RecordLines(document, 2).first().contains(u"2/18/2020"_s)) << "record 48";
}

TEST(DatabaseReport, CourierNewHas50RecordsOnTheFirstPageAnd51OnTheNext)
{
    const PrintedDocument document = Report(Lottery(6, 49, 50 + 51 + 1), kCourierNewFont);
    EXPECT_EQ(RecordLines(document, 1).size(), 50);
    EXPECT_EQ(RecordLines(document, 2).size(), 51);
    EXPECT_EQ(RecordLines(document, 3).size(), 1);
}

TEST(DatabaseReport, AFullPageEndsWithItsNumberAndTheNextRepeatsTheHead)
{
    const PrintedDocument document = Report(Lottery(6, 49, 48));
    EXPECT_EQ(PageLines(document, 1).last(3), (QStringList{{}, {}, QString(39, u' ') + u"Page 1"_s}));
    EXPECT_EQ(PageLines(document, 1).size(), 56);
    EXPECT_EQ(
        PageLines(document, 2).first(5),
        (QStringList{{}, {}, u"    Winning numbers in Test Draw"_s, u"    "_s + QString(45, u'_'), {}}));
}

TEST(DatabaseReport, ThePageIsEndedAlsoWhenTheLastRecordFillsIt)
{
    const PrintedDocument document = Report(Lottery(6, 49, 47));
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(PageLines(document, 1).last(), QString(39, u' ') + u"Page 1"_s);
    EXPECT_TRUE(RecordLines(document, 2).isEmpty());
}

TEST(DatabaseReport, TheUnderlineHasFiveCharactersForEachColumnAndOneMore)
{
    for (int picks = 1; picks <= 10; ++picks) {
        EXPECT_EQ(PageLines(Report(Lottery(picks, 49, 1)), 1).at(4).trimmed(),
                  QString(5 * (picks + 3), u'_'));
    }
}

TEST(DatabaseReport, TheStatisticsShowEachNumberAboveItsValue)
{
    const DrawDatabase database = Lottery(6, 49, 3); // 1 once, 2 twice, 3..6 three times, 7 twice, 8 once
    EXPECT_EQ(StatisticsLines(Report(database)),
              (QStringList{u"Showing the count of times numbers drawn. Top  6 =   3   4   5   6   2   7"_s,
                           {},
                           u" 3   4   5   6   2   7"_s,
                           u"  ______________________________________________________________________"_s,
                           {},
                           u"   1   2   3   4   5   6   7   8   9  10  11  12  13  14  15  16  17  18"_s,
                           u"   1   2   3   3   3   3   2   1"_s, // never drawn prints as a blank
                           {},
                           u"  19  20  21  22  23  24  25  26  27  28  29  30  31  32  33  34  35  36"_s,
                           {},
                           {},
                           u"  37  38  39  40  41  42  43  44  45  46  47  48  49"_s,
                           {},
                           {},
                           {},
                           {}}));
}

TEST(DatabaseReport, TheTopNumbersAreFollowedByTwoBlanks)
{
    const PrintedDocument document = Report(Lottery(2, 9, 1));
    const PrintedPage& page = document.pages.at(0);
    EXPECT_EQ(page.at(7).at(0).text, u"Showing the count of times numbers drawn. Top  2 =   1   2    "_s);
    EXPECT_EQ(page.at(9).at(0).text, u" 1   2    "_s);
}

TEST(DatabaseReport, TheStatisticsShowTheCountThatIsAskedFor)
{
    const QStringList lines =
        StatisticsLines(Report(Lottery(2, 5, 3), kStandardFont, CountMode::SinceLastDrawn));
    EXPECT_EQ(lines.at(0), u"Number of draws since last drawn/not drawn. Top  2 =   5   1"_s);
    EXPECT_EQ(lines.at(2), u" 5   1"_s);
    EXPECT_EQ(lines.at(5), u"   1   2   3   4   5"_s);
    EXPECT_EQ(lines.at(6), u"   2   1           3"_s);
}

TEST(DatabaseReport, BlocksEndWithTheHighestNumberAndEmptyOnesPrintEmptyLines)
{
    struct Shape {
        int highest;
        QList<int> inBlock;
    };
    for (const Shape& shape :
         {Shape{1, {1, 0, 0, 0}}, Shape{18, {18, 0, 0, 0}}, Shape{19, {18, 1, 0, 0}},
          Shape{36, {18, 18, 0, 0}}, Shape{37, {18, 18, 1, 0}}, Shape{49, {18, 18, 13, 0}},
          Shape{54, {18, 18, 18, 0}}, Shape{55, {18, 18, 18, 1}}, Shape{60, {18, 18, 18, 6}}}) {
        SCOPED_TRACE(shape.highest);
        const QStringList lines = StatisticsLines(Report(Lottery(1, shape.highest, 60)));
        ASSERT_EQ(lines.size(), 16);
        int number = 0;
        for (int block = 0; block < 4; ++block) {
            QString numbers;
            for (int i = 0; i < shape.inBlock.at(block); ++i) {
                numbers += RightJustify(QString::number(++number), 4);
            }
            EXPECT_EQ(lines.at(5 + 3 * block), numbers);
            EXPECT_EQ(lines.at(6 + 3 * block).size(), numbers.size());
            EXPECT_EQ(lines.at(4 + 3 * block), QString());
        }
        EXPECT_EQ(number, shape.highest);
    }
}

TEST(DatabaseReport, NoTopIsNamedWhenEveryValueIsZero)
{
    DrawDatabase database = Lottery(2, 5, 1);
    database.records[1].drawn = {};
    const QStringList lines = PageLines(Report(database), 1);
    EXPECT_EQ(lines.at(7), QString());
    EXPECT_EQ(lines.at(9), QString());
    EXPECT_EQ(lines.at(10), u"  "_s + QString(70, u'_'));
}

TEST(DatabaseReport, AStatisticsSectionThatNoLongerFitsStartsANewPage)
{
    for (int records = 1; records <= 47; ++records) {
        SCOPED_TRACE(records);
        const PrintedDocument document = Report(Lottery(6, 49, records));
        const qsizetype section = records <= 10 ? 16 : 17; // a top of six two-digit numbers takes two lines
        const bool fits = 6 + records + section <= kSheetLines;
        ASSERT_EQ(document.pages.size(), fits ? 1U : 2U);
        EXPECT_EQ(PageLines(document, 1).last().trimmed(), fits ? QString() : u"Page 1"_s);
        EXPECT_EQ(StatisticsLines(document).size(), section);
    }
}

TEST(DatabaseReport, ATitleOf300CharactersGoesOnBelowAndLeavesRoomForTheFooter)
{
    DrawDatabase database = Lottery(6, 49, 120);
    database.title = QString(300, u't');
    const PrintedDocument document = Report(database, kCourierNewFont);
    EXPECT_EQ(PageLines(document, 1).mid(3, 7),
              (QStringList{u"    Winning numbers in"_s, u"    "_s + QString(71, u't'),
                           u"    "_s + QString(71, u't'), u"    "_s + QString(71, u't'),
                           u"    "_s + QString(71, u't'), u"    "_s + QString(16, u't') + u" Draw"_s,
                           u"    "_s + QString(45, u'_')}));
    for (int page = 1; page < int(document.pages.size()); ++page) {
        EXPECT_EQ(PageLines(document, page).last().trimmed(), u"Page %1"_s.arg(page));
        EXPECT_EQ(PageLines(document, page).size(), 59);
    }
}

TEST(DatabaseReport, AMonstrousTitleIsCutAndEveryRecordIsPrinted)
{
    DrawDatabase database = Lottery(6, 49, 200);
    database.title = QString(100'000, u'w');
    const PrintedDocument document = Report(database);
    EXPECT_LE(document.pages.size(), 10U);
    qsizetype records = 0;
    for (int page = 1; page <= int(document.pages.size()); ++page) {
        records += RecordLines(document, page).size();
    }
    EXPECT_EQ(records, 200);
}

TEST(DatabaseReport, ADateThatIsNoneIsCutWhereTheNumbersBegin)
{
    DrawDatabase database = Lottery(2, 9, 1);
    database.records[1].date = u"sometime in the spring"_s;
    EXPECT_EQ(PageLines(Report(database), 1).at(6), u"    sometime in th    1    2"_s);
}

TEST(DatabaseReport, ANumberBeyondFourDigitsKeepsItsFirstFour)
{
    DrawDatabase database = Lottery(2, 9, 1);
    database.records[1].drawn[0] = 12345;
    database.records[1].drawn[1] = u"none"_s;
    EXPECT_EQ(PageLines(Report(database), 1).at(6), u"    1/2/2020       1234"_s);
}

TEST(DatabaseReport, EveryShapeIsPrintedWithinThePaper)
{
    for (int picks : {0, 1, 6, 10, 11, 300}) {
        for (int highest : {-1, 0, 1, 60, 61, 9999}) {
            DrawDatabase database = Lottery(1, 1, 70);
            database.columns = qint16(picks + 2);
            database.highest = qint16(highest);
            const PrintedDocument document = Report(database);
            for (int page = 1; page <= int(document.pages.size()); ++page) {
                EXPECT_FALSE(PageLines(document, page).isEmpty()); // PageLines looks at the edges
            }
        }
    }
}

TEST(DatabaseReport, AllOf2001RecordsArePrintedInOrder)
{
    const DrawDatabase database = Lottery(10, 60, 2001);
    const PrintedDocument document = Report(database, kStandardFont, CountMode::SinceLastDrawn);
    QStringList lines;
    for (int page = 1; page <= int(document.pages.size()); ++page) {
        lines << RecordLines(document, page);
    }
    ASSERT_EQ(lines.size(), 2001);
    for (int record = 1; record <= 2001; ++record) {
        QString expected =
            kAmerican.toString(QDate(2020, 1, 1).addDays(record), u"M/d/yyyy"_s).leftJustified(14);
        for (int k = 0; k < 10; ++k) {
            expected += u' ' + RightJustify(QString::number((record - 1 + k) % 60 + 1), 4);
        }
        ASSERT_EQ(lines.at(record - 1).mid(4), expected) << record;
    }
}

TEST(DatabaseReport, PrintsAsInItsGoldenFiles)
{
    DrawDatabase database = Lottery(6, 49, 100);
    database.title = u"Lotería 6/49"_s;
    ExpectGolden(Report(database), u"database-6-of-49.txt"_s);
    ExpectGolden(Report(database, kCourierNewFont, CountMode::SinceLastDrawn),
                 u"database-courier-since.txt"_s);
    ExpectGolden(Report(Lottery(10, 60, 12)), u"database-10-of-60.txt"_s);
    ExpectGolden(Report(Lottery(1, 1, 2)), u"database-1-of-1.txt"_s);
}
