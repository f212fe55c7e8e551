#include "hotcold/PrintHcdSets.h"

#include "app/TextPictures.h"

#include <cstddef>

using namespace Qt::StringLiterals;

namespace {

/// A list's count and its ten numbers, each in four columns so that those of the three lists stand below each
/// other.
void PrintList(Printout& printout, const QString& name, int count, HcdList list,
               const HcdCandidateTable& candidates)
{
    constexpr int kNumbersColumn = 12;
    constexpr int kNumberWidth = 4;
    printout.PrintAt(1, name + u" = "_s + Format(count, u"##0"));
    for (int i = 1; i <= kHcdListLength; ++i) {
        const int row = RowBefore(list) + i;
        const qint16 number = candidates.at(static_cast<std::size_t>(row)).label;
        printout.PrintAt(kNumbersColumn + (i - 1) * kNumberWidth,
                         RightJustify(Format(number, u"##"), kNumberWidth));
    }
    printout.EndLine();
}

} // namespace

void PrintHcdSets(Printout& printout, const HcdBasis& basis, const SetTable& table, int picks, int sets)
{
    constexpr int kColumnStep = 5;
    const QString underline(qsizetype{kColumnStep} * picks, u'_');
    printout.PrintEmptyLines(2);
    printout.PrintLine(u"Picked from: Last "_s + Format(basis.lastDraws, u"####") + u" Draws"_s);
    printout.PrintEmptyLines();
    PrintList(printout, u"Hot"_s, basis.counts.hot, HcdList::Hot, basis.candidates);
    PrintList(printout, u"Cold"_s, basis.counts.cold, HcdList::Cold, basis.candidates);
    PrintList(printout, u"Due"_s, basis.counts.due, HcdList::Due, basis.candidates);
    printout.PrintEmptyLines();
    printout.PrintLine(underline);
    for (int row = 1; row <= sets; ++row) {
        for (int place = 1; place <= picks; ++place) {
            const qint16 number = table.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(place));
            printout.PrintAt(place * kColumnStep, RightJustify(Format(number, u"###"), 3));
        }
        printout.EndLine();
    }
    printout.PrintLine(underline);
    printout.PrintEmptyLines(2);
}
