#include "app/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString PlaceOf(const QString& sample, const QDir& folder)
{
    return folder.filePath(QFileInfo(sample).fileName());
}

/// Never over a file that is there.
void CopySample(const QString& sample, const QDir& folder)
{
    const QString copy = PlaceOf(sample, folder);
    if (QFile::copy(sample, copy)) {
        // A copy of a file compiled into the program would be read-only.
        QFile::setPermissions(copy,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
}

} // namespace

QString ChooseProgramFolder(const ProgramFolderChoice& choice, const QStringList& samples)
{
    if (choice.asked.isEmpty() && QFileInfo(choice.executableFolder).isWritable()) {
        return QDir(choice.executableFolder).absolutePath();
    }
    const QDir folder(QDir(choice.asked.isEmpty() ? choice.dataFolder : choice.asked).absolutePath());
    const bool isNew = !folder.exists() && folder.mkpath(u"."_s);
    const bool isOfAnEarlierVersion =
        choice.asked.isEmpty() && !samples.isEmpty() && QFileInfo::exists(PlaceOf(samples.front(), folder));
    if (isNew || isOfAnEarlierVersion) {
        for (const QString& sample : samples) {
            CopySample(sample, folder);
        }
    }
    return folder.path();
}

FoundSamples FindSamples(const QString& executableFolder, const QString& folder, const QStringList& own)
{
    const QDir installed(QDir::cleanPath(QDir(executableFolder).absoluteFilePath(folder)));
    if (!installed.exists()) {
        return {.files = own, .isInstalled = false};
    }
    FoundSamples samples{.files = {}, .isInstalled = true};
    for (const QString& sample : own) {
        const QString there = PlaceOf(sample, installed);
        samples.files << (QFileInfo(there).isFile() ? there : sample);
    }
    return samples;
}
