#include "tests/soak/SoakFiles.h"

#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "invest/InvestmentFile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QByteArray MadeDatabase(int picks, int highest, int count)
{
    DrawDatabase database;
    database.columns = static_cast<qint16>(picks + 2);
    database.highest = static_cast<qint16>(highest);
    database.title = u"Soak %1/%2"_s.arg(picks).arg(highest);
    database.CheckDay(4, true);
    database.CheckDay(7, true);
    QDate date(2001, 1, 3);
    for (int row = 1; row <= count; ++row) {
        std::vector<int> numbers;
        for (int pick = 0; pick < picks; ++pick) {
            numbers.push_back(1 + (row * 7 + pick * 5) % highest);
        }
        database.Append(date, numbers);
        date = date.addDays(3);
    }
    QByteArray bytes;
    return WriteLotteryFile(database, QLocale::c(), bytes).ok ? bytes : QByteArray();
}

QByteArray MadeStatement(int count)
{
    InvestmentStatement statement;
    for (int row = 1; row <= count; ++row) {
        InvestmentRow& item = statement.rows.at(static_cast<std::size_t>(row));
        item.description = row % 10 == 0 ? u"Sub Total"_s : u"Row %1"_s.arg(row);
        item.amount = Currency::FromTenThousandths(row * 2500 - 100000);
    }
    statement.rowCount = static_cast<float>(count);
    QByteArray bytes;
    return WriteInvestmentFile(statement, bytes).ok ? bytes : QByteArray();
}

} // namespace

bool SoakFiles::Put(const QString& name, const QByteArray& bytes, QStringList& list)
{
    list << QDir(m_folder).filePath(name);
    return SaveFileBytes(list.back(), bytes).ok;
}

bool SoakFiles::Make(const QString& folder)
{
    m_folder = folder;
    const QByteArray some = MadeDatabase(6, 49, 60);
    const QByteArray wide = QByteArray(some).replace("Soak 6/49", QByteArray(50000, 'W'));
    const QByteArray older = "2,8,49,\"Older\",3,0,7\r\n1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
                             "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";
    const bool databases = Put(u"Some.Lto"_s, some, m_databases) &&
                           Put(u"One.Lto"_s, MadeDatabase(1, 60, 30), m_databases) &&
                           Put(u"Ten.Lto"_s, MadeDatabase(10, 60, 200), m_databases) &&
                           Put(u"Full.Lto"_s, MadeDatabase(6, 49, 2001), m_databases) &&
                           Put(u"Few.Lto"_s, MadeDatabase(5, 36, 9), m_databases) &&
                           Put(u"Older.Lto"_s, older, m_databases) && Put(u"Wide.Lto"_s, wide, m_databases) &&
                           Put(u"Cut.Lto"_s, some.first(some.size() / 2), m_databases) &&
                           Put(u"Odd.Lto"_s,
                               "1,300,-5,\"Odd\"\r\n" + QByteArray("9,\"x\"\r\n").repeated(10) +
                                   "1,\"no date\",1,2,3,4,5,6,7,8,9,10\r\n",
                               m_databases);
    const QByteArray statement = MadeStatement(40);
    const bool statements =
        Put(u"Some.inv"_s, statement, m_statements) && Put(u"Full.inv"_s, MadeStatement(105), m_statements) &&
        Put(u"Cut.inv"_s, statement.first(statement.size() / 3), m_statements) &&
        Put(u"Sum.inv"_s, "2\r\n\"a\",900000000000000\r\n\"b\",900000000000000\r\n", m_statements);
    m_databases << QDir(folder).filePath(u"None.Lto"_s);
    m_statements << QDir(folder).filePath(u"None.inv"_s) << m_databases.front();
    return databases && statements;
}
