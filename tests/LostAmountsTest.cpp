#include "invest/LostAmounts.h"

#include "tests/Statements.h"

using namespace Qt::StringLiterals;

TEST(LostAmounts, AreThoseOfRowsWithoutADescription)
{
    InvestmentTable rows = Rows({Item(u"a"_s, u"1"_s), Item(u"b"_s), Item(QString(), u"0"_s), Item(QString()),
                                 Item(u" "_s, u"2"_s), Item(u"Sub Total"_s, u"3"_s)});
    rows.at(105) = Item(QString(), u"5"_s);
    rows.at(106) = Item(QString(), u"6"_s);
    EXPECT_EQ(RowsThatLoseTheirAmount(rows), (std::vector<int>{3, 105}));
    EXPECT_EQ(RowsThatLoseTheirAmount(NumberedRows(105)), std::vector<int>());
}

TEST(LostAmounts, AreNamedByTheirRows)
{
    EXPECT_EQ(LostAmountsText({7}),
              u"Row 7 has an amount but no description, so the amount would be lost. Type "
              "a description, or erase the amount."_s);
    EXPECT_EQ(LostAmountsText({3, 7, 105}),
              u"Rows 3, 7 and 105 have amounts but no descriptions, so the amounts would be lost. Type "
              "descriptions, or erase the amounts."_s);
}
