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
    shared.database = DrawDatabase{};
    shared.topNumbersText = {};
    shared.scratchText = {};

    ReadPersonalSettings(shared);

    shared.database.columns = static_cast<qint16>(shared.settings.defaultPicks + 2);
    shared.database.highest = shared.settings.defaultHighest;
}
