#include "app/DatabaseFacts.h"

#include "app/ShortDate.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString ShownTitle(const DrawDatabase& database)
{
    constexpr qsizetype kLongest = 10000;
    return database.title.left(kLongest);
}

QString DatabaseFacts(const DrawDatabase& database, const QLocale& locale, bool isSaved)
{
    if (database.count < 1) {
        return {};
    }
    QStringList facts;
    if (!database.fileName.isEmpty()) {
        facts << database.fileName;
    }
    const LotteryShape shape = database.Shape();
    facts << u"%1 of %2"_s.arg(shape.picks).arg(shape.highest);
    QString draws = database.count == 1 ? u"1 draw"_s : locale.toString(database.count) + u" draws"_s;
    const Cell& lastDate = database.records.at(static_cast<std::size_t>(database.count)).date;
    if (const std::optional<QDate> day = CellDate(lastDate, locale)) {
        draws += u", the last on "_s + ShortDate(*day, locale);
    }
    facts << draws;
    if (!isSaved) {
        facts << u"not saved yet"_s;
    }
    return facts.join(u"  ·  "_s);
}
