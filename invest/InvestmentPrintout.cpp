#include "invest/InvestmentPrintout.h"

#include "app/TextPictures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTitleColumn = 30;
constexpr int kDescriptionColumn = 8;
constexpr int kAmountColumn = 56;
constexpr int kTotalColumn = 55; // one to the left of the amounts, so that it is not taken for one of them
constexpr int kDescriptionWidth = 46;

/// Right-justified in 12 columns; a longer amount keeps all its figures.
QString AmountText(Currency amount)
{
    constexpr int kWidth = 12;
    const QString text = Format(amount, u"####,,###.00");
    return RightJustify(text, std::max(kWidth, static_cast<int>(text.size())));
}

void PrintHeading(Printout& printout, const QString& heading)
{
    printout.PrintEmptyLines();
    printout.PrintLine(heading, kDescriptionColumn);
    printout.PrintLine(u"INVESTMENT STATEMENT"_s, kTitleColumn);
    printout.PrintEmptyLines();
    printout.PrintLine(u"DESCRIPTION                                           AMOUNT"_s, kDescriptionColumn);
    printout.PrintLine(u"___________                                           ______"_s, kDescriptionColumn);
    printout.PrintEmptyLines();
}

} // namespace

void PrintInvestmentStatement(Printout& printout, const InvestmentStatement& statement,
                              const QString& heading)
{
    PrintHeading(printout, heading);
    const int count = std::clamp(static_cast<int>(statement.rowCount), 0, kMostStatementRows);
    for (int row = 1; row <= count; ++row) {
        if (printout.LinesOnPage() >= printout.LinesPerPage()) {
            printout.EndNumberedPage();
            PrintHeading(printout, heading);
        }
        const InvestmentRow& item = statement.rows.at(static_cast<std::size_t>(row));
        printout.PrintAt(kDescriptionColumn, item.description.left(kDescriptionWidth));
        if (item.amount) {
            printout.PrintAt(kAmountColumn, AmountText(*item.amount));
        }
        printout.EndLine();
    }
    printout.PrintEmptyLines();
    printout.PrintAt(kDescriptionColumn, u"Total"_s);
    printout.PrintAt(kTotalColumn, AmountText(statement.total));
    printout.EndLine();
}
