#include "picks/MatchesModel.h"

#include "tests/QtPrinters.h"

#include <QAbstractItemModelTester>
#include <QDate>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Matches : public testing::Test
{
protected:
    Matches()
    {
        m_results.resize(3);
        m_results[1] = {.number = 8, .date = QDate(2004, 3, 10), .drawn = {{6, {}, 12}}};
        m_results[2] = {.number = 1042, .date = QDate(2004, 3, 13), .drawn = {{{}, 6.0, {}}}};
    }

    QString Shown(int row, int column) const { return m_model.index(row, column).data().toString(); }

    std::vector<DrawRecord> m_results;
    QLocale m_locale{QLocale::English, QLocale::UnitedStates};
    MatchesModel m_model{m_results, m_locale};
};

TEST_F(Matches, TheHeadingNamesRecordDateAndThePositions)
{
    m_model.Build(20, 3);
    EXPECT_EQ(m_model.GridRows(), 20);
    EXPECT_EQ(m_model.rowCount(), 19);
    const QStringList expected{u"Record"_s, u"Date"_s, u" 1"_s, u" 2"_s, u" 3"_s};
    ASSERT_EQ(m_model.columnCount(), expected.size());
    for (int column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                  expected.at(column));
    }
}

TEST_F(Matches, TheLastFoundStandsOnTopWithItsMatchesInTheirPositions)
{
    m_model.Build(20, 3);
    m_model.Fill(2);
    const QStringList first{u"1042"_s, u"3/13/2004"_s, {}, u"  6"_s, {}};
    const QStringList second{u"   8"_s, u"3/10/2004"_s, u"  6"_s, {}, u" 12"_s};
    for (int column = 0; column < first.size(); ++column) {
        EXPECT_EQ(Shown(0, column), first.at(column)) << column;
        EXPECT_EQ(Shown(1, column), second.at(column)) << column;
        EXPECT_EQ(Shown(2, column), QString()) << column;
    }
}

TEST_F(Matches, NothingFoundIsSaidInTheSecondColumnOfTheFirstRow)
{
    m_model.Build(20, 3);
    m_model.FillNoMatches();
    for (int row = 0; row < 19; ++row) {
        for (int column = 0; column < 5; ++column) {
            EXPECT_EQ(Shown(row, column), row == 0 && column == 1 ? u"No Matches"_s : QString());
        }
    }
    m_model.Clear();
    EXPECT_EQ(Shown(0, 1), QString());
}

TEST_F(Matches, ADateThatIsNoDateShowsItsText)
{
    m_results[2].date = u"some day"_s;
    m_results[1].date = u"2004-03-10"_s;
    m_model.Build(20, 3);
    m_model.Fill(2);
    EXPECT_EQ(Shown(0, 1), u"some day"_s);
    EXPECT_EQ(Shown(1, 1), u"3/10/2004"_s);
}

TEST_F(Matches, ClearingOrBuildingEmptiesTheCells)
{
    m_model.Build(20, 3);
    m_model.Fill(2);
    m_model.Clear();
    EXPECT_EQ(Shown(0, 0), QString());
    m_model.Fill(2);
    m_model.Build(20, 3);
    EXPECT_EQ(Shown(0, 0), QString());
}

TEST_F(Matches, MoreRowsThanTheListHasAreNotShown)
{
    m_model.Build(20, 3);
    m_model.Fill(2000);
    EXPECT_EQ(Shown(0, 0), u"1042"_s);
    EXPECT_EQ(Shown(2, 0), QString());
    m_model.Clear();
    m_results.clear();
    m_model.Fill(1);
    EXPECT_EQ(Shown(0, 0), QString());
}

TEST_F(Matches, TheModelKeepsTheRulesOfModels)
{
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_model.Build(20, 3);
    m_model.Fill(2);
    m_model.FillNoMatches();
    m_model.Clear();
    m_model.Build(2012, 10);
    EXPECT_EQ(m_model.columnCount(), 12);
    EXPECT_FALSE(m_model.data({}).isValid());
}

} // namespace
