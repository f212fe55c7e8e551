#include "invest/InvestmentCalculation.h"

#include "tests/Statements.h"

using namespace Qt::StringLiterals;

namespace {

InvestmentStatement Calculated(const InvestmentTable& rows)
{
    const std::optional<InvestmentStatement> statement = CalculateStatement(rows);
    EXPECT_TRUE(statement.has_value());
    return statement.value_or(InvestmentStatement());
}

} // namespace

TEST(InvestmentCalculation, AnEmptyStatementHasNoRowsAndATotalOfNought)
{
    EXPECT_EQ(Calculated({}), InvestmentStatement());
}

TEST(InvestmentCalculation, TheTotalIsThatOfAllAmounts)
{
    const InvestmentStatement statement =
        Calculated(Rows({Item(u"Tickets"_s, u"-12"_s), Item(u"Note"_s), Item(u"Winnings"_s, u"10.25"_s)}));
    EXPECT_EQ(statement.rowCount, 3.0F);
    EXPECT_EQ(statement.total, Money(u"-1.75"_s));
    EXPECT_EQ(statement.rows.at(2), Item(u"Note"_s)) << "an empty amount stays empty";
}

TEST(InvestmentCalculation, RowsWithoutADescriptionAreDroppedWithTheirAmounts)
{
    InvestmentTable rows;
    rows.at(2) = Item(u"First"_s, u"1"_s);
    rows.at(3) = Item(QString(), u"1000"_s);
    rows.at(7) = Item(u"Second"_s, u"2"_s);
    rows.at(105) = Item(u"Third"_s, u"3"_s);
    const InvestmentStatement statement = Calculated(rows);
    EXPECT_EQ(statement.rowCount, 3.0F);
    EXPECT_EQ(statement.total, Money(u"6"_s));
    EXPECT_EQ(statement.rows,
              Rows({Item(u"First"_s, u"1"_s), Item(u"Second"_s, u"2"_s), Item(u"Third"_s, u"3"_s)}));
}

TEST(InvestmentCalculation, ABlankKeepsARow)
{
    const InvestmentStatement statement = Calculated(Rows({Item(u" "_s), Item(u"Tickets"_s, u"-1"_s)}));
    EXPECT_EQ(statement.rowCount, 2.0F);
    EXPECT_EQ(statement.rows.at(1), Item(u" "_s));
}

TEST(InvestmentCalculation, ASubTotalAddsUpTheGroupAboveItAndIsNotCounted)
{
    const InvestmentStatement statement =
        Calculated(Rows({Item(u"a"_s, u"-5"_s), Item(u"b"_s, u"2"_s), Item(u"Sub Total"_s),
                         Item(u"c"_s, u"10"_s), Item(u"Sub Total"_s), Item(u"d"_s, u"1"_s)}));
    EXPECT_EQ(statement.rows.at(3), Item(u"Sub Total"_s, u"-3"_s));
    EXPECT_EQ(statement.rows.at(5), Item(u"Sub Total"_s, u"10"_s));
    EXPECT_EQ(statement.total, Money(u"8"_s));
}

TEST(InvestmentCalculation, ASubTotalIsOneInAnyLetterCaseAndInNoOtherSpelling)
{
    for (const QString& text : {u"Sub Total"_s, u"sub total"_s, u"SUB TOTAL"_s, u"sUB tOTAL"_s}) {
        EXPECT_TRUE(IsSubTotal(text)) << text.toStdString();
    }
    for (const QString& text : {u"Subtotal"_s, u" Sub Total"_s, u"Sub Total "_s, u"Sub  Total"_s,
                                u"Sub Total:"_s, u"Total"_s, u""_s}) {
        EXPECT_FALSE(IsSubTotal(text)) << text.toStdString();
    }
}

TEST(InvestmentCalculation, TheSecondOfTwoSubTotalsInARowIsNought)
{
    const InvestmentStatement statement =
        Calculated(Rows({Item(u"a"_s, u"7"_s), Item(u"Sub Total"_s), Item(u"SUB TOTAL"_s)}));
    EXPECT_EQ(statement.rows.at(2).amount, Money(u"7"_s));
    EXPECT_EQ(statement.rows.at(3).amount, Currency());
    EXPECT_EQ(statement.total, Money(u"7"_s));
}

TEST(InvestmentCalculation, AFigureTypedBesideASubTotalNeverCounts)
{
    const InvestmentStatement statement =
        Calculated(Rows({Item(u"a"_s, u"7"_s), Item(u"sub total"_s, u"500"_s), Item(u"b"_s, u"1"_s)}));
    EXPECT_EQ(statement.rows.at(2), Item(u"sub total"_s, u"7"_s));
    EXPECT_EQ(statement.total, Money(u"8"_s));
}

TEST(InvestmentCalculation, CalculatingTwiceIsCalculatingOnce)
{
    const InvestmentStatement once = Calculated(Rows(
        {Item(u"a"_s, u"-5.1234"_s), Item(QString(), u"9"_s), Item(u"Sub Total"_s, u"3"_s), Item(u"b"_s)}));
    EXPECT_EQ(Calculated(once.rows), once);
}

TEST(InvestmentCalculation, AHundredAndFiveTenthsAreExactlyTenAndAHalf)
{
    InvestmentTable rows;
    for (std::size_t row = 1; row <= 105; ++row) {
        rows.at(row) = Item(u"Ticket"_s, u"0.1"_s);
    }
    const InvestmentStatement statement = Calculated(rows);
    EXPECT_EQ(statement.rowCount, 105.0F);
    EXPECT_EQ(statement.total.TenThousandths(), 105000);
}

TEST(InvestmentCalculation, RowsBeyondTheLastThatCanBeUsedAreNotCounted)
{
    InvestmentTable rows = NumberedRows(105);
    rows.at(0) = Item(u"Nobody"_s, u"1000"_s);
    rows.at(106) = Item(u"Beyond"_s, u"1000"_s);
    rows.at(111) = Item(u"Beyond"_s, u"1000"_s);
    const InvestmentStatement statement = Calculated(rows);
    EXPECT_EQ(statement.rowCount, 105.0F);
    EXPECT_EQ(statement.total, Money(u"5565"_s));
    EXPECT_EQ(statement.rows.at(0), InvestmentRow());
    EXPECT_EQ(statement.rows.at(106), InvestmentRow());
    EXPECT_EQ(statement.rows.at(111), InvestmentRow());
}

TEST(InvestmentCalculation, ASumBeyondTheRangeIsNone)
{
    const QString most = u"922337203685477.5807"_s;
    EXPECT_TRUE(CalculateStatement(Rows({Item(u"a"_s, most), Item(u"b"_s, u"-1"_s)})).has_value());
    EXPECT_FALSE(CalculateStatement(Rows({Item(u"a"_s, most), Item(u"b"_s, u"0.0001"_s)})).has_value());
    EXPECT_FALSE(CalculateStatement(Rows({Item(u"a"_s, u"-"_s + most), Item(u"b"_s, u"-1"_s)})).has_value());
    EXPECT_TRUE(CalculateStatement(Rows({Item(u"a"_s, most), Item(QString(), most)})).has_value())
        << "a row that is dropped adds nothing";
    EXPECT_FALSE(
        CalculateStatement(Rows({Item(u"a"_s, most), Item(u"Sub Total"_s), Item(u"b"_s, most)})).has_value());
    EXPECT_EQ(TotalOf(Rows({Item(u"a"_s, most), Item(u"b"_s, most)}), 2), std::nullopt);
}

TEST(InvestmentCalculation, ALoadedTotalLeavesOutWhatCalculatingLeavesOut)
{
    const InvestmentTable rows = Rows({Item(u"a"_s, u"3"_s), Item(u"SUB total"_s, u"3"_s),
                                       Item(QString(), u"4"_s), Item(u"b"_s, u"100"_s)});
    EXPECT_EQ(TotalOf(rows, 3), Money(u"3"_s)) << "neither a sub total nor an amount without a description";
    EXPECT_EQ(TotalOf(rows, 4), CalculateStatement(rows).value().total);
    EXPECT_EQ(TotalOf(rows, 0), Currency());
}

TEST(InvestmentCalculation, ABlankLineMovesTheRowsBelowItDown)
{
    InvestmentTable rows = NumberedRows(5);
    EXPECT_TRUE(InsertBlankLine(rows, 3));
    EXPECT_EQ(rows, Rows({Item(u"Row 1"_s, u"1"_s), Item(u"Row 2"_s, u"2"_s), Item(u"BlankLine"_s),
                          Item(u"Row 3"_s, u"3"_s), Item(u"Row 4"_s, u"4"_s), Item(u"Row 5"_s, u"5"_s)}));
}

TEST(InvestmentCalculation, ABlankLineInAFullStatementLosesRow105)
{
    InvestmentTable rows = NumberedRows(105);
    EXPECT_TRUE(InsertBlankLine(rows, 3));
    EXPECT_EQ(rows.at(3), Item(u"BlankLine"_s));
    EXPECT_EQ(rows.at(4), Item(u"Row 3"_s, u"3"_s));
    EXPECT_EQ(rows.at(105), Item(u"Row 104"_s, u"104"_s));
    EXPECT_EQ(rows.at(106), InvestmentRow());
}

TEST(InvestmentCalculation, ABlankLineGoesInAtOneTo104AndNowhereElse)
{
    const InvestmentTable full = NumberedRows(105);
    for (const double row : {1.0, 104.0}) {
        InvestmentTable rows = full;
        EXPECT_TRUE(InsertBlankLine(rows, row)) << row;
        EXPECT_EQ(rows.at(static_cast<std::size_t>(row)), Item(u"BlankLine"_s));
    }
    for (const double row : {0.0, -1.0, 105.0, 106.0, 111.0, 112.0, 1e300}) {
        InvestmentTable rows = full;
        EXPECT_FALSE(InsertBlankLine(rows, row)) << row;
        EXPECT_EQ(rows, full) << row;
    }
}

TEST(InvestmentCalculation, ARowIsFoundAgainOnceTheGapsAboveItAreGone)
{
    InvestmentTable rows;
    rows.at(1) = Item(u"a"_s);
    rows.at(4) = Item(u"b"_s);
    rows.at(9) = Item(QString(), u"1"_s);
    rows.at(50) = Item(u"c"_s);
    EXPECT_EQ(RowOnceCalculated(rows, 1), 1);
    EXPECT_EQ(RowOnceCalculated(rows, 4), 2);
    EXPECT_EQ(RowOnceCalculated(rows, 50), 3);
}

TEST(InvestmentCalculation, TheLastRowInUseHoldsADescriptionOrAnAmount)
{
    InvestmentTable rows;
    EXPECT_EQ(LastRowInUse(rows), 0);
    rows.at(0) = Item(u"nobody"_s);
    rows.at(106) = Item(u"beyond"_s);
    EXPECT_EQ(LastRowInUse(rows), 0);
    rows.at(1) = Item(u"a"_s);
    EXPECT_EQ(LastRowInUse(rows), 1);
    rows.at(8) = Item(QString(), u"0"_s);
    EXPECT_EQ(LastRowInUse(rows), 8);
    rows.at(105) = Item(u"z"_s);
    EXPECT_EQ(LastRowInUse(rows), 105);
}
