#include "picks/WinnerReport.h"

#include "app/ShortDate.h"
#include "app/TextPictures.h"

using namespace Qt::StringLiterals;

namespace {

// Where the parts of a result line stand: the record's number ends at column 5, and the date starts apart
// from it. The numbers' places are five columns wide, those of the heading as well.
constexpr int kDateColumn = 8;
constexpr int kNumbersColumn = 25;
constexpr int kPlaceWidth = 5;

QString Rule()
{
    constexpr int kRuleWidth = 70;
    return {kRuleWidth, u'_'};
}

QString InPlace(const Cell& number)
{
    return RightJustify(Format(CellText(number), u"####"), kPlaceWidth);
}

void PrintTitle(Printout& printout, const WinnerSearch& search)
{
    constexpr int kLongestTitle = 600; // a damaged file may hold a title of any length; this is nine lines
    const QString title =
        search.title.size() > kLongestTitle ? search.title.first(kLongestTitle) + u"..."_s : search.title;
    printout.PrintLine(u"Matching Numbers in "_s + title + u" Draw"_s);
    printout.PrintLine(Rule());
}

void PrintQuery(Printout& printout, const WinnerSearch& search)
{
    constexpr int kNumberWidth = 4;
    QString numbers;
    for (const int number : search.query.yourNumbers) {
        if (number > 0) {
            numbers += RightJustify(Format(number, u"####"), kNumberWidth);
        }
    }
    printout.PrintEmptyLines();
    printout.PrintLine(u"Search each record for minimum matches of: "_s +
                       QString::number(search.query.minimum));
    printout.PrintEmptyLines();
    printout.PrintLine(u"Enter numbers to check:"_s + numbers);
    printout.PrintEmptyLines(2);
    printout.PrintLine(Rule());
}

void PrintColumnHeading(Printout& printout, int picks)
{
    QString positions;
    for (int position = 1; position <= picks; ++position) {
        positions += InPlace(position);
    }
    printout.PrintAt(1, u"Record     Date     "_s);
    printout.PrintAt(kNumbersColumn, positions);
    printout.EndLine();
    printout.PrintLine(Rule());
}

/// The date with the blanks behind it; a text that is no date as far as the numbers leave room.
QString PrintedDate(const Cell& date, const QLocale& locale)
{
    const QString blanks(4, u' ');
    const QString text = DrawDateText(date, locale);
    const qsizetype room = kNumbersColumn - kDateColumn - blanks.size();
    return (CellDate(date, locale) ? text : text.left(room)) + blanks;
}

void PrintResult(Printout& printout, const DrawRecord& result, int picks, const QLocale& locale)
{
    QString numbers;
    for (std::size_t pick = 0; pick < static_cast<std::size_t>(picks); ++pick) {
        numbers += InPlace(result.drawn.at(pick));
    }
    printout.PrintAt(1, InPlace(result.number));
    printout.PrintAt(kDateColumn, PrintedDate(result.date, locale));
    printout.PrintAt(kNumbersColumn, numbers);
    printout.EndLine();
}

} // namespace

QString DrawDateText(const Cell& date, const QLocale& locale)
{
    const std::optional<QDate> day = CellDate(date, locale);
    return day ? ShortDate(*day, locale) : CellText(date);
}

QString FoundText(const WinnerSearch& search)
{
    QStringList numbers;
    for (const int number : search.query.yourNumbers) {
        if (number > 0) {
            numbers << QString::number(number);
        }
    }
    const QString draws = search.matchCount == 0   ? u"No draw holds"_s
                          : search.matchCount == 1 ? u"1 draw holds"_s
                                                   : u"%1 draws hold"_s.arg(search.matchCount);
    return u"%1 at least %2 of these numbers: %3."_s.arg(draws)
        .arg(search.query.minimum)
        .arg(numbers.join(u", "_s));
}

void PrintWinners(Printout& printout, const WinnerSearch& search, const std::vector<DrawRecord>& results,
                  const QLocale& locale)
{
    printout.PrintEmptyLines(2);
    PrintTitle(printout, search);
    PrintQuery(printout, search);
    PrintColumnHeading(printout, search.picks);
    for (int row = search.matchCount; row >= 1; --row) {
        PrintResult(printout, results.at(static_cast<std::size_t>(row)), search.picks, locale);
        if (row > 1 && printout.LinesOnPage() >= printout.LinesPerPage()) {
            printout.EndNumberedPage();
            PrintTitle(printout, search);
            PrintColumnHeading(printout, search.picks);
        }
    }
}
