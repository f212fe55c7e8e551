#include "app/DatabaseReport.h"

#include "app/ShortDate.h"
#include "app/TextPictures.h"
#include "database/TopNumbers.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 5; ///< column of headings and dates
constexpr int kColumnWidth = 5;
constexpr int kFirstNumberColumn = 4 * kColumnWidth;
constexpr int kNumberWidth = 4;
constexpr int kBlocks = 4;
constexpr int kNumbersInBlock = 18;
const QString kStatisticsRule = u"  "_s + QString(70, u'_');

/// What stands at the top of every page.
struct PageHead {
    QString heading;
    QString underline;

    void Print(Printout& printout) const
    {
        printout.PrintLine(heading, kMargin);
        printout.PrintLine(underline, kMargin);
        printout.PrintEmptyLines();
    }
};

PageHead HeadOf(const DrawDatabase& database)
{
    constexpr int kLongestTitle = 600; // a damaged file may hold a title of any length; this is nine lines
    QString title = database.title;
    if (title.size() > kLongestTitle) {
        title = title.first(kLongestTitle) + u"..."_s;
    }
    const qsizetype columns = database.Shape().picks + 2;
    return {.heading = u"Winning numbers in "_s + title + u" Draw"_s,
            .underline = QString(kColumnWidth * (columns + 1), u'_')};
}

/// The record's date; a text that is no date as far as the numbers leave room.
QString DateText(const Cell& date, const QLocale& locale)
{
    const std::optional<QDate> day = CellDate(date, locale);
    return day ? ShortDate(*day, locale) : CellText(date).left(kFirstNumberColumn - kMargin - 1);
}

void PrintRecord(Printout& printout, const DrawRecord& record, int picks, const QLocale& locale)
{
    printout.PrintAt(kMargin, DateText(record.date, locale));
    for (int k = 0; k < picks; ++k) {
        const double number = CellNumber(record.drawn.at(size_t(k)));
        printout.PrintAt(kFirstNumberColumn + k * kColumnWidth,
                         RightJustify(Format(number, u"####"), kNumberWidth));
    }
    printout.EndLine();
}

void EndPage(Printout& printout, const PageHead& head)
{
    printout.EndNumberedPage();
    printout.PrintEmptyLines();
    head.Print(printout);
}

/// Lines 2b - 1 and 2b (from 1) are the numbers of block b and their values; line 0 is not used.
std::array<QString, 1 + 2 * kBlocks> BlockLines(const NumberTable& counts, int highest)
{
    std::array<QString, 1 + 2 * kBlocks> lines;
    for (int number = 1; number <= highest; ++number) {
        const auto block = size_t((number - 1) / kNumbersInBlock);
        lines.at(2 * block + 1) += RightJustify(Format(number, u"###"), kNumberWidth);
        lines.at(2 * block + 2) +=
            RightJustify(Format(counts.at(size_t(number)).value, u"###"), kNumberWidth);
    }
    return lines;
}

void PrintStatistics(Printout& printout, const DrawDatabase& database, CountMode counted)
{
    const LotteryShape shape = database.Shape();
    const NumberTable counts = CountNumbers(database, counted);
    constexpr qint16 kHighestFirst = 0;
    const NumberTable sorted = SortNumbers(counts, shape.highest, kHighestFirst);
    TopNumbers top;
    if (sorted.at(1).value > 0) { // otherwise there is no top, and the editor names none either
        top = DescribeTopNumbers(sorted, counted, shape.picks);
    }
    printout.PrintLine(top.heading + u"  "_s);
    printout.PrintEmptyLines();
    printout.PrintLine(top.numbers + u"  "_s);
    printout.PrintLine(kStatisticsRule);
    const auto lines = BlockLines(counts, shape.highest);
    for (size_t block = 0; block < kBlocks; ++block) {
        printout.PrintEmptyLines();
        printout.PrintLine(lines.at(2 * block + 1));
        printout.PrintLine(lines.at(2 * block + 2));
    }
}

int LinesOfStatistics(const DrawDatabase& database, CountMode counted)
{
    Printout trial({}, kStandardFont);
    PrintStatistics(trial, database, counted);
    return trial.LinesOnPage();
}

} // namespace

void PrintDatabaseReport(Printout& printout, const DrawDatabase& database, CountMode counted,
                         const QLocale& locale)
{
    const PageHead head = HeadOf(database);
    printout.PrintEmptyLines(2);
    head.Print(printout);
    // The line of PreparePrinter, two empty ones and the head are six lines: the first page takes 47 records
    // in the standard font. A later page begins with five.
    for (int record = 1; record <= database.count; ++record) {
        PrintRecord(printout, database.records.at(size_t(record)), database.Shape().picks, locale);
        if (printout.LinesOnPage() >= printout.LinesPerPage()) {
            EndPage(printout, head);
        }
    }
    if (!printout.HasRoomFor(LinesOfStatistics(database, counted))) {
        EndPage(printout, head);
    }
    PrintStatistics(printout, database, counted);
}
