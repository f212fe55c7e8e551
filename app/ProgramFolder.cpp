#include "app/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString ChooseProgramFolder(const ProgramFolderChoice& choice, const QString& samplePath)
{
    if (choice.asked.isEmpty() && QFileInfo(choice.executableFolder).isWritable()) {
        return QDir(choice.executableFolder).absolutePath();
    }
    const QDir folder(QDir(choice.asked.isEmpty() ? choice.dataFolder : choice.asked).absolutePath());
    if (!folder.exists() && folder.mkpath(u"."_s)) {
        const QString sample = folder.filePath(u"Sample.Lto"_s);
        if (QFile::copy(samplePath, sample)) {
            // A copy of a file compiled into the program would be read-only.
            QFile::setPermissions(sample,
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        }
    }
    return folder.path();
}
