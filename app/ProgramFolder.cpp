#include "app/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

void CopySample(const QString& sample, const QDir& folder)
{
    const QString copy = folder.filePath(QFileInfo(sample).fileName());
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
    if (!folder.exists() && folder.mkpath(u"."_s)) {
        for (const QString& sample : samples) {
            CopySample(sample, folder);
        }
    }
    return folder.path();
}
