#include "invest/StatementModel.h"

#include "tests/Statements.h"
#include "tests/ToolTipText.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class StatementModelTest : public testing::Test
{
protected:
    QString Cell(int row, int column) { return m_model.index(row - 1, column).data().toString(); }
    bool IsBold(int row) { return m_model.index(row - 1, 0).data(Qt::FontRole).value<QFont>().bold(); }
    int TotalRow()
    {
        for (int row = 1; row <= m_model.rowCount(); ++row) {
            if (Cell(row, 0) == u"Total"_s) {
                return row;
            }
        }
        return 0;
    }

    InvestmentTable m_rows;
    Currency m_total;
    StatementModel m_model{m_rows, m_total};
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(StatementModelTest, AtFirstThereIsTheHeadingAlone)
{
    EXPECT_EQ(m_model.columnCount(), 2);
    EXPECT_EQ(m_model.rowCount(), 108);
    EXPECT_EQ(m_model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"Description"_s);
    EXPECT_EQ(m_model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"              Amount"_s);
    for (int row = 1; row <= 108; ++row) {
        EXPECT_EQ(Cell(row, 0), QString());
        EXPECT_EQ(Cell(row, 1), QString());
    }
}

TEST_F(StatementModelTest, RowsThatCanBeUsedAreNumbered)
{
    EXPECT_EQ(m_model.headerData(0, Qt::Vertical, Qt::DisplayRole).toInt(), 1);
    EXPECT_EQ(m_model.headerData(104, Qt::Vertical, Qt::DisplayRole).toInt(), 105);
    EXPECT_FALSE(m_model.headerData(105, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(StatementModelTest, TheTotalStandsThreeRowsBelowTheLast)
{
    m_total = Money(u"1234567.5"_s);
    for (const int count : {0, 1, 50, 102, 103, 104, 105}) {
        m_rows = NumberedRows(count);
        m_model.Build(count);
        EXPECT_EQ(TotalRow(), count + 3);
        EXPECT_EQ(Cell(count + 3, 1), u"1,234,567.50"_s);
        EXPECT_EQ(Cell(count + 1, 0), QString());
        EXPECT_EQ(Cell(count + 2, 0), QString());
    }
}

TEST_F(StatementModelTest, AmountsAreWrittenUnderTheirPictures)
{
    m_rows = Rows({Item(u"a"_s, u"0"_s), Item(u"b"_s), Item(u"c"_s, u"-0.5"_s),
                   Item(u"d"_s, u"1234567.891"_s), Item(u"e"_s, u"12"_s)});
    m_model.Build(5);
    EXPECT_EQ(Cell(1, 1), u".00"_s);
    EXPECT_EQ(Cell(2, 1), QString());
    EXPECT_EQ(Cell(3, 1), u"-.50"_s);
    EXPECT_EQ(Cell(4, 1), u"1,234,567.89"_s);
    EXPECT_EQ(Cell(5, 1), u"12.00"_s);
    EXPECT_EQ(Cell(8, 1), u"0.00"_s) << "the Total always has a figure before its point";
}

TEST_F(StatementModelTest, SubTotalsAndTheTotalStandOut)
{
    m_rows = Rows({Item(u"a"_s, u"1"_s), Item(u"sub TOTAL"_s, u"1"_s)});
    m_model.Build(2);
    EXPECT_FALSE(IsBold(1));
    EXPECT_TRUE(IsBold(2));
    EXPECT_TRUE(IsBold(5));
}

TEST_F(StatementModelTest, TypingWhereTheTotalStandsMovesItBelow)
{
    m_rows = NumberedRows(2);
    m_model.Build(2);
    QSignalSpy changes(&m_model, &QAbstractItemModel::dataChanged);
    m_rows.at(3) = Item(u"typed"_s);
    m_model.RowTyped(3);
    EXPECT_EQ(TotalRow(), 5);
    m_rows.at(5) = Item(u"typed"_s);
    m_model.RowTyped(5);
    EXPECT_EQ(Cell(5, 0), u"typed"_s);
    EXPECT_EQ(TotalRow(), 8);
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(StatementModelTest, TypingInTheLastRowsNeverRunsOutOfTheGrid)
{
    m_rows = NumberedRows(102);
    m_model.Build(102);
    m_rows.at(105) = Item(u"typed"_s);
    m_model.RowTyped(105);
    EXPECT_EQ(Cell(105, 0), u"typed"_s);
    EXPECT_EQ(TotalRow(), 108);
}

TEST_F(StatementModelTest, RowsAFileHoldsBeyondItsCountAreSeen)
{
    m_rows = NumberedRows(8);
    m_model.Build(3);
    EXPECT_EQ(Cell(6, 0), u"Row 6"_s);
    EXPECT_EQ(TotalRow(), 11);
    m_rows.at(106) = Item(u"beyond"_s, u"1"_s);
    m_model.Build(3);
    EXPECT_EQ(Cell(106, 0), QString()) << "no row that cannot be used";
    EXPECT_EQ(Cell(106, 1), QString());
}

TEST_F(StatementModelTest, ALongDescriptionIsSeenWholeAboveItsCellWhateverItHolds)
{
    const QString text = u"<b> &amp; > &  2 "_s + QString(300, u'x');
    m_rows = Rows({Item(text, u"5"_s), Item(u" "_s)});
    m_model.Build(2);
    const QString tip = m_model.index(0, 0).data(Qt::ToolTipRole).toString();
    EXPECT_EQ(TextOfToolTip(tip), text);
    EXPECT_EQ(m_model.index(0, 1).data(Qt::ToolTipRole).toString(), QString());
    EXPECT_EQ(m_model.index(2, 0).data(Qt::ToolTipRole).toString(), QString()) << "nothing, so no tip";
}

} // namespace
