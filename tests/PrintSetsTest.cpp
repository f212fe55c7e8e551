#include "picks/PrintSets.h"

#include "picks/PickSets.h"
#include "picks/PickTexts.h"
#include "tests/FixedSource.h"
#include "tests/PrintedPages.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

PrintedDocument Printed(const QString& heading, const CandidateList& candidates, const SetTable& table,
                        int picks, int sets)
{
    Printout printout(u"Selectorium"_s, kStandardFont);
    printout.PreparePrinter();
    PrintSets(printout, heading, candidates, table, picks, sets);
    printout.FinishPrinting();
    return printout.Document();
}

SetTable Sets(const CandidateList& candidates, int picks, int sets)
{
    std::vector<float> values;
    for (int i = 0; i < 97; ++i) {
        values.push_back(static_cast<float>(i * 37 % 97) / 97.0F);
    }
    FixedSource source(values);
    SetTable table{};
    EXPECT_TRUE(FillSets(source, candidates, picks, sets, table));
    return table;
}

TEST(PrintSets, TheFullRangeIsListedUpToSixtyWhateverTheHighestNumber)
{
    const CandidateList candidates = FullRange(49);
    ExpectGolden(Printed(PickedFromNumbers(), candidates, Sets(candidates, 6, 5), 6, 5),
                 u"sets-full-range.txt"_s);
}

TEST(PrintSets, SortedPositionsAreListedInTheirOrder)
{
    NumberTable sorted{};
    for (int i = 1; i <= 49; ++i) {
        sorted.at(std::size_t(i)) = {qint16(50 - i), 1};
    }
    const CandidateList candidates = SortedPositions(sorted, 1, 25);
    ExpectGolden(Printed(PickedFromPositions(1, 25, CountMode::TimesDrawn), candidates,
                         Sets(candidates, 10, 10), 10, 10),
                 u"sets-sorted-positions.txt"_s);
}

TEST(PrintSets, AllNumbersSpreadFitOnePageTheLastSetEmpty)
{
    NumberOrder order{};
    std::iota(order.begin(), order.end(), qint16{0});
    const PrintedDocument document =
        Printed(PickedBySelectAll(), FullRange(60), SpreadNumbers(order, 60, 3, 21), 3, 21);
    EXPECT_EQ(document.pages.size(), 1U);
    ExpectGolden(document, u"sets-select-all.txt"_s);
}

TEST(PrintSets, EachTextStandsAtItsColumn)
{
    SetTable table{};
    table.at(1) = {0, 7, 49};
    const PrintedDocument document = Printed(PickedFromNumbers(), FullRange(49), table, 2, 1);
    const PrintedPage& page = document.pages.at(0);
    EXPECT_EQ(page.at(2), (PrintedLine{{2, u" Picked from numbers "_s}}));
    EXPECT_EQ(page.at(3), PrintedLine{});
    ASSERT_EQ(page.at(4).size(), 20U);
    EXPECT_EQ(page.at(4).front(), (PrintedText{3, u" 1"_s}));
    EXPECT_EQ(page.at(6).back(), (PrintedText{60, u"60"_s}));
    EXPECT_EQ(page.at(7), (PrintedLine{{3, u"__________"_s}}));
    EXPECT_EQ(page.at(8), PrintedLine{});
    EXPECT_EQ(page.at(9), (PrintedLine{{5, u"  7"_s}, {10, u" 49"_s}}));
    EXPECT_EQ(page.at(10), (PrintedLine{{3, u"__________"_s}}));
    EXPECT_EQ(page.size(), 11U);
}

} // namespace
