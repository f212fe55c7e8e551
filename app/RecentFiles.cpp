#include "app/RecentFiles.h"

#include "app/SafeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QUrl>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestPath = 4096;
constexpr qsizetype kLongestLine = 10 * kLongestPath; // in an address most characters take several

/// The path on a line, "" when it is none. Lines are file addresses: so a path with any character in it takes
/// one line.
QString PathOnLine(const QByteArray& line)
{
    const QUrl address = QUrl::fromEncoded(line.trimmed(), QUrl::StrictMode);
    const QString path = address.isLocalFile() ? address.toLocalFile() : QString();
    const bool isPath = path.size() <= kLongestPath && QDir::isAbsolutePath(path) && !path.startsWith(u':') &&
                        !path.contains(QChar::Null);
    return isPath ? QDir::cleanPath(path) : QString();
}

void Write(const QString& list, const QStringList& paths)
{
    QByteArray bytes;
    for (const QString& path : paths) {
        bytes += QUrl::fromLocalFile(path).toEncoded() + '\n';
    }
    [[maybe_unused]] const Outcome unsaid = SaveFileBytes(list, bytes);
}

/// Changes the list as it is now, not as it was when this program last saw it.
void Change(const QString& list, const std::function<void(QStringList& paths)>& change)
{
    constexpr int kWaitsForOthers = 200; // milliseconds; then the change is made all the same
    if (list.isEmpty() || !QDir().mkpath(QFileInfo(list).absolutePath())) {
        return;
    }
    QLockFile lock(list + u".lock"_s);
    lock.tryLock(kWaitsForOthers);
    const QStringList before = RecentFiles(list);
    QStringList paths = before;
    change(paths);
    if (paths != before) {
        Write(list, paths);
    }
}

} // namespace

QStringList RecentFiles(const QString& list)
{
    QByteArray bytes;
    if (list.isEmpty() || !ReadFileBytes(list, bytes).ok) {
        return {};
    }
    QStringList paths;
    constexpr int kMostLines = 1000; // somebody else's file in the list's place may be of any length
    qsizetype begin = 0;
    for (int i = 0; i < kMostLines && begin < bytes.size() && paths.size() < kMostRecentFiles; ++i) {
        const qsizetype end = bytes.indexOf('\n', begin);
        const QByteArray line = bytes.mid(begin, end < 0 ? -1 : end - begin);
        const QString path = line.size() <= kLongestLine ? PathOnLine(line) : QString();
        if (!path.isEmpty() && !paths.contains(path)) {
            paths << path;
        }
        begin = end < 0 ? bytes.size() : end + 1;
    }
    return paths;
}

void RememberFile(const QString& list, const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    if (clean.startsWith(u':') || !QDir::isAbsolutePath(clean)) {
        return;
    }
    Change(list, [&](QStringList& paths) {
        paths.removeAll(clean);
        paths.prepend(clean);
        paths = paths.mid(0, kMostRecentFiles);
    });
}

void ForgetFile(const QString& list, const QString& path)
{
    Change(list, [&](QStringList& paths) { paths.removeAll(QDir::cleanPath(path)); });
}

void ForgetAllFiles(const QString& list)
{
    Change(list, [](QStringList& paths) { paths.clear(); });
}
