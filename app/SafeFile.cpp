#include "app/SafeFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <cerrno>

#ifdef Q_OS_WIN
#include <io.h>

#include <cstring>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// @param error  as in errno
QString SystemReason(int error)
{
#ifdef Q_OS_WIN
    return QString::fromLocal8Bit(
        std::strerror(error)); // qt_error_string takes the system's own numbers there
#else
    return qt_error_string(error);
#endif
}

/// Forces what was written to an open file onto the disk.
Outcome ForceToDisk(const QSaveFile& file)
{
#if defined(Q_OS_WIN)
    const int result = _commit(file.handle());
#elif defined(Q_OS_MACOS)
    const int result = fcntl(file.handle(), F_FULLFSYNC); // fsync alone leaves the data in the drive's cache
#else
    const int result = fsync(file.handle());
#endif
    return result == 0 ? Outcome{} : Outcome::Failure(SystemReason(errno));
}

/// Forces the folder's new entry onto the disk, without which a power cut brings the old file back.
Outcome ForceFolderToDisk(const QString& folder)
{
#ifdef Q_OS_WIN
    Q_UNUSED(folder) // the file system's journal does it
    return {};
#else
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        // A folder may be written but not listed. The file is in its place; nothing more can be done for it.
        return errno == EACCES ? Outcome{} : Outcome::Failure(SystemReason(errno));
    }
    const int result = fsync(handle);
    const int error = errno;
    close(handle);
    const bool cannotBeForced =
        error == EINVAL || error == ENOTSUP; // some network folders know no such thing
    return result == 0 || cannotBeForced ? Outcome{} : Outcome::Failure(SystemReason(error));
#endif
}

/// True for endings that a temporary name gets and a person does not write: those that change between small
/// and capital letters at four places of five. "backup", "myCopy" or "MyLoto" may be somebody's copy of the
/// file, and a leftover that stays costs less than a copy that is gone.
bool IsNobodysEnding(QStringView ending)
{
    constexpr int kMostOfAPerson = 3;
    int changes = 0;
    for (qsizetype i = 1; i < ending.size(); ++i) {
        changes += ending.at(i).isUpper() != ending.at(i - 1).isUpper() ? 1 : 0;
    }
    return changes > kMostOfAPerson;
}

/// Removes what an interrupted save left beside the file: NAME.XXXXXX, six letters, an hour old.
void TidyLeftovers(const QFileInfo& target)
{
    static const QRegularExpression leftover(u"\\.([A-Za-z]{6})$"_s);
    const QDateTime anHourAgo = QDateTime::currentDateTimeUtc().addSecs(-3600);
    const QFileInfoList beside = target.dir().entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : beside) {
        const QString name = file.fileName();
        const QRegularExpressionMatch match = leftover.match(name);
        if (match.hasMatch() && name.chopped(match.capturedLength()) == target.fileName() &&
            IsNobodysEnding(match.capturedView(1)) && file.lastModified().toUTC() < anHourAgo) {
            QFile::remove(file.filePath());
        }
    }
}

/// True when the links that a path leads through come to no end.
bool LeadsInACircle(QFileInfo link)
{
    constexpr int kMostLinks = 40; // as many as the system follows
    for (int i = 0; i < kMostLinks && link.isSymLink(); ++i) {
        link.setFile(link.symLinkTarget());
    }
    return link.isSymLink();
}

/// Writes everything, however many calls that takes: a disk that fills up first takes a part without
/// complaint, and only the next call says why.
bool WriteAll(QSaveFile& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 more = file.write(bytes.constData() + written, bytes.size() - written);
        if (more <= 0) {
            return false;
        }
        written += more;
    }
    return true;
}

Outcome WriteAndCommit(const QString& path, const QByteArray& bytes, NewFileFor readers)
{
    // setDirectWriteFallback stays off: it would write over the old file in place.
    QSaveFile file(path);
    // Unbuffered, since a flush that gets only a part of the buffer onto the disk has no reason to give.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return Outcome::Failure(file.errorString());
    }
    // The new file has the permissions of the old one, and none at all when those could not be asked for.
    if (!file.permissions().testFlags(QFile::ReadOwner | QFile::WriteOwner)) {
        file.cancelWriting();
        file.commit();
        return Outcome::Failure(u"The permissions of the old file cannot be kept."_s);
    }
    if (readers == NewFileFor::OwnerAlone && !QFile::exists(path) &&
        !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        const QString reason = file.errorString();
        file.cancelWriting();
        file.commit();
        return Outcome::Failure(reason);
    }
    // commit() alone looks only at the write error and forgets what its own flush finds, so that a full disk
    // would put an empty file in the place of the old one. Every step is therefore made and asked here.
    if (!WriteAll(file, bytes) || !file.flush() || file.error() != QFileDevice::NoError) {
        const QString reason = file.errorString(); // before commit, which replaces it
        file.cancelWriting();
        file.commit();
        return Outcome::Failure(reason);
    }
    if (Outcome forced = ForceToDisk(file); !forced.ok) {
        file.cancelWriting();
        file.commit();
        return forced;
    }
    if (!file.commit()) {
        return Outcome::Failure(file.errorString());
    }
    return {};
}

} // namespace

Outcome ReadFileBytes(const QString& path, QByteArray& bytes)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return Outcome::Failure(SystemReason(ENOENT));
    }
    if (!info.isFile()) {
        return Outcome::Failure(u"\"%1\" is not a file."_s.arg(info.fileName()));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Outcome::Failure(file.errorString());
    }
    QByteArray read = file.read(kLargestFile + 1);
    if (file.error() != QFileDevice::NoError) {
        return Outcome::Failure(file.errorString());
    }
    if (read.size() > kLargestFile) {
        return Outcome::Failure(u"The file is far larger than any of this program's."_s);
    }
    bytes = std::move(read);
    return {};
}

Outcome SaveFileBytes(const QString& path, const QByteArray& bytes, NewFileFor readers)
{
    const QFileInfo target(path);
    if (target.fileName().isEmpty()) {
        return Outcome::Failure(u"There is no file name."_s);
    }
    if ((target.exists() && !target.isFile()) || LeadsInACircle(target)) {
        return Outcome::Failure(u"\"%1\" is not a file that can be replaced."_s.arg(target.fileName()));
    }
    if (bytes.size() > kLargestFile) {
        return Outcome::Failure(u"The file would be far larger than any of this program's."_s);
    }
    if (Outcome written = WriteAndCommit(path, bytes, readers); !written.ok) {
        return written;
    }
    // From here on the old file is gone. A fault is told all the same, but not as if nothing had been
    // written.
    const auto inPlaceBut = [](const QString& reason) {
        return Outcome::Failure(
            u"The new file is in its place, but whether the disk keeps it is not sure: "_s + reason);
    };
    // Of a link, the file it leads to was replaced.
    const QFileInfo placed(QFileInfo(path).canonicalFilePath());
    if (const Outcome forced = ForceFolderToDisk(placed.absolutePath()); !forced.ok) {
        return inPlaceBut(forced.reason);
    }
    QByteArray readBack;
    if (const Outcome read = ReadFileBytes(path, readBack); !read.ok) {
        return inPlaceBut(read.reason);
    }
    if (readBack != bytes) {
        return inPlaceBut(u"What was read back from the disk is not what was written."_s);
    }
    TidyLeftovers(placed);
    return {};
}
