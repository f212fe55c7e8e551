#include "app/FileNames.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

bool IsStatementFileName(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    constexpr QStringView kEnding = u".inv";
    return name.size() > kEnding.size() && name.endsWith(kEnding, Qt::CaseInsensitive);
}
