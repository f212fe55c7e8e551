#include "database/RecordsModel.h"

#include "database/CountsModel.h"
#include "tests/QtPrinters.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Records : public testing::Test
{
protected:
    Records()
    {
        m_database.columns = 8;
        m_database.highest = 49;
        for (int record = 1; record <= 3; ++record) {
            m_database.Append(QDate(2004, 3, 9 + record), {record, 12, 23, 34, 41, 49});
        }
    }

    QString Shown(int row, int column) const { return m_model.index(row, column).data().toString(); }

    DrawDatabase m_database;
    QLocale m_locale{QLocale::English, QLocale::UnitedStates};
    RecordsModel m_model{m_database, m_locale};
};

TEST_F(Records, TheGridHasTwentyFourRowsMoreThanRecordsOneOfThemTheHeading)
{
    m_model.Build();
    EXPECT_EQ(m_model.GridRows(), 27);
    EXPECT_EQ(m_model.rowCount(), 26);
    EXPECT_EQ(m_model.columnCount(), 8);
}

TEST_F(Records, TheHeadingNamesRecordDateAndThePositions)
{
    m_model.Build();
    const QStringList expected{u"Record"_s, u"Date"_s, u" 1"_s, u" 2"_s, u" 3"_s, u" 4"_s, u" 5"_s, u" 6"_s};
    for (int column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                  expected.at(column));
    }
}

TEST_F(Records, TheNewestRecordStandsInTheFirstRow)
{
    m_model.Build();
    m_model.Fill();
    EXPECT_EQ(Shown(0, 0), u"   3"_s);
    EXPECT_EQ(Shown(0, 1), u"3/12/2004"_s);
    EXPECT_EQ(Shown(0, 2), u"  3"_s);
    EXPECT_EQ(Shown(0, 7), u" 49"_s);
    EXPECT_EQ(Shown(2, 0), u"   1"_s);
    EXPECT_EQ(Shown(3, 0), QString());
    EXPECT_EQ(m_model.RecordInRow(0), 3);
    EXPECT_EQ(m_model.RecordInRow(2), 1);
    EXPECT_EQ(m_model.RecordInRow(3), 0);
    EXPECT_EQ(m_model.RecordInRow(-1), 0);
}

TEST_F(Records, BuiltOrClearedCellsAreEmptyUntilTheyAreFilled)
{
    m_model.Build();
    EXPECT_EQ(Shown(0, 0), QString());
    m_model.Fill();
    EXPECT_EQ(Shown(0, 0), u"   3"_s);
    m_model.Clear();
    EXPECT_EQ(Shown(0, 0), QString());
    EXPECT_EQ(m_model.GridRows(), 27);
}

TEST_F(Records, WhatIsNoDateOrNumberIsShownAsItStands)
{
    m_database.records[3].date = u"some day"_s;
    m_database.records[2].date = u"3/1/2004"_s;
    m_database.records[3].drawn[0] = {};
    m_model.Build();
    m_model.Fill();
    EXPECT_EQ(Shown(0, 1), u"some day"_s);
    EXPECT_EQ(Shown(1, 1), u"3/1/2004"_s);
    EXPECT_EQ(Shown(0, 2), u"   "_s);
}

TEST_F(Records, ANumberWiderThanItsColumnKeepsItsLeftCharacters)
{
    m_database.records[3].drawn[0] = 12345;
    m_model.Build();
    m_model.Fill();
    EXPECT_EQ(Shown(0, 2), u"123"_s);
}

TEST_F(Records, TheModelKeepsTheRulesOfModels)
{
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_model.Build();
    m_model.Fill();
    m_database.Append(QDate(2004, 3, 17), {1, 2, 3, 4, 5, 6});
    m_model.Fill();
    m_model.Clear();
    m_database.columns = 300; // held to ten picks
    m_model.Build();
    m_model.Fill();
    EXPECT_EQ(m_model.columnCount(), 12);
    EXPECT_FALSE(m_model.data({}).isValid());
}

TEST(Counts, StandBelowTheirNumbers)
{
    NumberTable counts{};
    for (std::size_t number = 1; number <= 60; ++number) {
        counts.at(number).value = static_cast<qint16>(number * 10);
    }
    CountsModel model(counts, 41);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.SetUp(49);
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.columnCount(), 20);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"41"_s);
    EXPECT_EQ(model.headerData(8, Qt::Horizontal, Qt::DisplayRole).toString(), u"49"_s);
    EXPECT_EQ(model.headerData(9, Qt::Horizontal, Qt::DisplayRole).toString(), QString());
    EXPECT_EQ(model.index(0, 0).data().toString(), QString());
    model.Fill();
    EXPECT_EQ(model.index(0, 0).data().toString(), u"410"_s);
    EXPECT_EQ(model.index(0, 8).data().toString(), u"490"_s);
    EXPECT_EQ(model.index(0, 9).data().toString(), QString());
    model.Clear();
    EXPECT_EQ(model.index(0, 0).data().toString(), QString());
}

} // namespace
