#include "app/WorkFingerprint.h"

#include "tests/Statements.h"
#include "tests/TestFiles.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

TEST(WorkFingerprint, IsTheSameForTheSameValues)
{
    EXPECT_EQ(Fingerprint(MadeUpDatabase(6, 49, 30)), Fingerprint(MadeUpDatabase(6, 49, 30)));
    EXPECT_EQ(Fingerprint(NumberedRows(20)), Fingerprint(NumberedRows(20)));
}

TEST(WorkFingerprint, TheFileNameTheQuestionsFlagAndSpareRowsDoNotCount)
{
    const DrawDatabase before = MadeUpDatabase(6, 49, 30);
    DrawDatabase after = before;
    after.fileName = u"Other.Lto"_s;
    after.modified = 1;
    after.records.at(31).date = u"left over"_s;
    EXPECT_EQ(Fingerprint(after), Fingerprint(before));
}

TEST(WorkFingerprint, EverySingleChangeToADatabaseShows)
{
    const std::vector<std::function<void(DrawDatabase&)>> changes{
        [](DrawDatabase& database) { --database.count; },
        [](DrawDatabase& database) { ++database.columns; },
        [](DrawDatabase& database) { ++database.highest; },
        [](DrawDatabase& database) { database.title += u' '; },
        [](DrawDatabase& database) { database.title.clear(); },
        [](DrawDatabase& database) { database.CheckDay(1, true); },
        [](DrawDatabase& database) { database.CheckDay(4, false); },
        [](DrawDatabase& database) { database.drawDays.at(9).carried = 1; },
        [](DrawDatabase& database) { database.records.at(1).number = 2; },
        [](DrawDatabase& database) { database.records.at(30).date = QDate(2000, 1, 1); },
        [](DrawDatabase& database) { database.records.at(30).date = u"2000-01-01"_s; },
        [](DrawDatabase& database) { database.records.at(7).drawn.at(0) = 50; },
        [](DrawDatabase& database) { database.records.at(7).drawn.at(0) = 50.0; },
        [](DrawDatabase& database) { database.records.at(7).drawn.at(0) = u"50"_s; },
        [](DrawDatabase& database) { database.records.at(7).drawn.at(9) = 0; },
        [](DrawDatabase& database) { std::swap(database.records.at(3), database.records.at(4)); },
        [](DrawDatabase& database) {
            std::swap(database.records.at(3).drawn.at(0), database.records.at(3).drawn.at(1));
        },
    };
    const DrawDatabase before = MadeUpDatabase(6, 49, 30);
    std::set<quint64> seen{Fingerprint(before)};
    for (const auto& change : changes) {
        DrawDatabase after = before;
        change(after);
        EXPECT_TRUE(seen.insert(Fingerprint(after)).second) << "change number " << seen.size();
    }
}

TEST(WorkFingerprint, EveryDrawnNumberOfAFullDatabaseCounts)
{
    DrawDatabase database = MadeUpDatabase(10, 60, 2001);
    std::set<quint64> seen{Fingerprint(database)};
    for (std::size_t row = 1; row <= 2001; row += 50) {
        for (Cell& drawn : database.records.at(row).drawn) {
            drawn = static_cast<int>(CellNumber(drawn)) % 60 + 1;
            EXPECT_TRUE(seen.insert(Fingerprint(database)).second) << "row " << row;
        }
    }
}

TEST(WorkFingerprint, EverySingleChangeToAStatementShows)
{
    const std::vector<std::function<void(InvestmentTable&)>> changes{
        [](InvestmentTable& rows) { rows.at(1).description += u'x'; },
        [](InvestmentTable& rows) { rows.at(20).amount.reset(); },
        [](InvestmentTable& rows) { rows.at(20).amount = Currency(); },
        [](InvestmentTable& rows) { rows.at(21).amount = Currency(); },
        [](InvestmentTable& rows) { rows.at(105).description = u" "_s; },
        [](InvestmentTable& rows) { rows.at(111).description = u" "_s; },
        [](InvestmentTable& rows) { rows.at(3).amount = Currency::FromTenThousandths(1); },
        [](InvestmentTable& rows) { std::swap(rows.at(3), rows.at(4)); },
    };
    const InvestmentTable before = NumberedRows(20);
    std::set<quint64> seen{Fingerprint(before)};
    for (const auto& change : changes) {
        InvestmentTable after = before;
        change(after);
        EXPECT_TRUE(seen.insert(Fingerprint(after)).second) << "change number " << seen.size();
    }
}

} // namespace
