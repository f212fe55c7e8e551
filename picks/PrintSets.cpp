#include "picks/PrintSets.h"

#include "app/TextPictures.h"

#include <cstddef>

using namespace Qt::StringLiterals;

namespace {

void PrintCandidates(Printout& printout, const CandidateList& candidates)
{
    constexpr int kLines = 3;
    constexpr int kNumbersInLine = 20;
    constexpr int kColumnStep = 3;
    for (int line = 0; line < kLines; ++line) {
        for (int i = 1; i <= kNumbersInLine; ++i) {
            const int entry = line * kNumbersInLine + i;
            const qint16 number = candidates.numbers.at(static_cast<std::size_t>(entry));
            printout.PrintAt(kColumnStep * i, RightJustify(Format(number, u"##"), 2));
        }
        printout.EndLine();
    }
}

void PrintSet(Printout& printout, const std::array<qint16, kMostPicks + 1>& set, int picks)
{
    constexpr int kColumnStep = 5;
    for (int i = 1; i <= picks; ++i) {
        const qint16 number = set.at(static_cast<std::size_t>(i));
        printout.PrintAt(kColumnStep * i, RightJustify(Format(number, u"###"), 3));
    }
    printout.EndLine();
}

} // namespace

void PrintSets(Printout& printout, const QString& heading, const CandidateList& candidates,
               const SetTable& table, int picks, int sets)
{
    constexpr int kHeadingColumn = 2;
    constexpr int kRuleColumn = 3;
    constexpr int kRuleOfOnePick = 5;
    const QString rule(qsizetype{kRuleOfOnePick} * picks, u'_');
    printout.PrintEmptyLines();
    printout.PrintLine(heading, kHeadingColumn);
    printout.PrintEmptyLines();
    PrintCandidates(printout, candidates);
    printout.PrintLine(rule, kRuleColumn);
    printout.PrintEmptyLines();
    for (int row = 1; row <= sets; ++row) {
        PrintSet(printout, table.at(static_cast<std::size_t>(row)), picks);
    }
    printout.PrintLine(rule, kRuleColumn);
}
