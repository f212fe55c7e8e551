#include "app/StartUp.h"

#include "app/SafeFile.h"

#include <QDir>

using namespace Qt::StringLiterals;

void ReadPersonalSettings(LGLOBAL& shared)
{
    constexpr qint16 kLinesPerPage = 53;
    QByteArray bytes;
    const Outcome read = ReadFileBytes(u"Personal.Lot"_s, bytes);
    const bool complete = ReadSettings(read.ok ? bytes : QByteArray(), shared.settings);
    if (complete) {
        shared.database.highest = shared.settings.defaultHighest;
    }
    shared.linesPerPage = kLinesPerPage;
}

void InitialiseSharedState(LGLOBAL& shared, const QString& programFolder)
{
    QDir::setCurrent(programFolder);

    shared.NumberStats = {};
    shared.sortedNumberStats = {};
    // Emptied where it is: a second table, made only to be copied from, would show in the time of the start.
    shared.database.Empty();
    shared.database.modified = 0;
    shared.topNumbersText = {};
    shared.scratchText = {};

    ReadPersonalSettings(shared);

    shared.database.columns = static_cast<qint16>(shared.settings.defaultPicks + 2);
    shared.database.highest = shared.settings.defaultHighest;
}
