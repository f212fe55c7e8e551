#include "app/RecentFilesMenu.h"

#include "app/RecentFiles.h"
#include "app/ToolTips.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

RecentFilesMenu::RecentFilesMenu(const LGLOBAL& shared, QWidget* parent) : QMenu(parent), m_shared(shared)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::Build);
}

void RecentFilesMenu::AddFile(const QString& path, int place, bool nameIsTwice)
{
    // The paths are only taken apart: looking at the file could wait for a network.
    constexpr qsizetype kLongestName = 60;
    const QFileInfo file(path);
    QString text = file.fileName();
    if (nameIsTwice) {
        text += u" - "_s + QFileInfo(file.path()).fileName();
    }
    if (text.size() > kLongestName) {
        text = text.left(kLongestName) + u'…';
    }
    text.replace(u'&', u"&&"_s).replace(u'\t', u' ').replace(u'\n', u' '); // what a menu would read as marks
    QAction* entry = addAction(u"&%1 "_s.arg(place % 10) + text);
    entry->setObjectName(u"Recent%1"_s.arg(place));
    entry->setData(path);
    entry->setToolTip(LiteralToolTip(QDir::toNativeSeparators(file.path())));
    connect(entry, &QAction::triggered, this, [this, path] { Q_EMIT Chosen(path); });
}

void RecentFilesMenu::Build()
{
    clear();
    const QStringList paths = RecentFiles(m_shared.recentFilesList);
    QStringList names;
    for (const QString& path : paths) {
        names << QFileInfo(path).fileName();
    }
    for (qsizetype i = 0; i < paths.size(); ++i) {
        AddFile(paths.at(i), static_cast<int>(i) + 1, names.count(names.at(i)) > 1);
    }
    if (paths.isEmpty()) {
        QAction* none = addAction(u"No file has been opened yet"_s);
        none->setObjectName(u"NoRecent"_s);
        none->setEnabled(false);
        return;
    }
    addSeparator();
    QAction* clearList = addAction(u"&Clear List"_s);
    clearList->setObjectName(u"ClearRecent"_s);
    connect(clearList, &QAction::triggered, this, [this] { ForgetAllFiles(m_shared.recentFilesList); });
}
