#include "app/StartUp.h"

#include "app/SafeFile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// Not left to the current folder, which a system's file dialog may change.
QString SettingsPath(const LGLOBAL& shared)
{
    return QDir(shared.programFolder).filePath(u"Personal.Lot"_s);
}

} // namespace

Outcome WritePersonalSettings(const LGLOBAL& shared)
{
    QByteArray bytes;
    const Outcome written = WriteSettings(shared.settings, bytes);
    return written.ok ? SaveFileBytes(SettingsPath(shared), bytes) : written;
}

void SavePersonalSettings(const LGLOBAL& shared, Prompts& prompts)
{
    if (const Outcome written = WritePersonalSettings(shared); !written.ok) {
        prompts.Notice(u"The settings could not be saved to disk: "_s + written.reason +
                       u"\nThey stay in effect until the program ends."_s);
    }
}

void ReadPersonalSettings(LGLOBAL& shared)
{
    constexpr qint16 kLinesPerPage = 53;
    QByteArray bytes;
    const Outcome read = ReadFileBytes(SettingsPath(shared), bytes);
    const bool complete = ReadSettings(read.ok ? bytes : QByteArray(), shared.settings);
    if (complete) {
        shared.database.highest = shared.settings.defaultHighest;
    }
    shared.linesPerPage = kLinesPerPage;
}

void InitialiseSharedState(LGLOBAL& shared, const QString& programFolder)
{
    QDir::setCurrent(programFolder);
    shared.programFolder = programFolder;

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
