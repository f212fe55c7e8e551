#include "app/RecoveryCopies.h"

#include "app/SafeFile.h"
#include "app/ShortDate.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <utility>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kNoteMark = "\r\nrecovery ";
constexpr qsizetype kSumLength = 64; // SHA-256 in hexadecimal digits
constexpr qint64 kSilentSeconds = 600;
constexpr qint64 kSweptAfterSeconds = qint64{24} * 3600;
constexpr QFile::Permissions kFolderOfOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// Names nobody else takes.
QString NameOfARun()
{
    return QUuid::createUuid().toString(QUuid::Id128);
}

QString EndingOf(WorkKind kind)
{
    return kind == WorkKind::Database ? u".Lto"_s : u".inv"_s;
}

QByteArray SumOf(const QByteArray& bytes, const QByteArray& note)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes);
    hash.addData(note);
    return hash.result().toHex();
}

QByteArray NoteAsText(const RecoveryNote& note)
{
    return QJsonDocument(QJsonObject{{u"file"_s, note.fileName},
                                     {u"folder"_s, note.folder},
                                     {u"title"_s, note.title},
                                     {u"records"_s, note.records},
                                     {u"time"_s, note.time.toUTC().toString(Qt::ISODateWithMs)},
                                     {u"host"_s, note.host}})
        .toJson(QJsonDocument::Compact);
}

/// A name without a folder, whatever was written there.
QString NameAlone(const QString& written)
{
    const QString name = QFileInfo(written).fileName();
    const bool isOne = name != u"."_s && name != u".."_s && !name.contains(QChar::Null);
    return isOne ? name : QString();
}

QString FolderAlone(const QString& written)
{
    return QDir::isAbsolutePath(written) && !written.contains(QChar::Null) ? QDir::cleanPath(written)
                                                                           : QString();
}

/// The check sum says that the note is whole and not who wrote it, so it names no file but one of its folder.
RecoveryNote NoteFromText(const QByteArray& text)
{
    const QJsonObject values = QJsonDocument::fromJson(text).object();
    return {.fileName = NameAlone(values.value(u"file"_s).toString()),
            .folder = FolderAlone(values.value(u"folder"_s).toString()),
            .title = values.value(u"title"_s).toString(),
            .records = std::max(values.value(u"records"_s).toInt(), 0),
            .time = QDateTime::fromString(values.value(u"time"_s).toString(), Qt::ISODateWithMs),
            .host = values.value(u"host"_s).toString()};
}

/// What lies in a folder of another user is his to read and to change, and a link may lead to anything.
Outcome CheckFolder(const QString& folder)
{
#ifdef Q_OS_WIN
    const QFileInfo info(folder);
    const bool isFolder = info.isDir() && !info.isSymbolicLink() && !info.isJunction();
    const bool isOwn = true; // in the user's own folder for programs' data, which others cannot enter
#else
    struct stat info {};
    if (lstat(QFile::encodeName(QDir::cleanPath(folder)).constData(), &info) != 0) {
        return Outcome::Failure(qt_error_string(errno));
    }
    const bool isFolder = S_ISDIR(info.st_mode);
    const bool isOwn = info.st_uid == geteuid();
#endif
    if (!isFolder) {
        return Outcome::Failure(u"\"%1\" is in the place of the folder."_s.arg(folder));
    }
    return isOwn ? Outcome{} : Outcome::Failure(u"The folder \"%1\" is another user's."_s.arg(folder));
}

/// Makes the folder for the user alone, or makes an older one so.
Outcome MakeFolder(const QString& folder)
{
    const QFileInfo info(folder);
    if (!info.exists()) {
        const bool made =
            QDir().mkpath(info.absolutePath()) && QDir().mkdir(info.absoluteFilePath(), kFolderOfOwner);
        if (!made && !QFileInfo::exists(folder)) { // another run may have made it meanwhile
            return Outcome::Failure(u"The folder \"%1\" cannot be made."_s.arg(folder));
        }
    }
    if (Outcome checked = CheckFolder(folder); !checked.ok) {
        return checked;
    }
    constexpr QFile::Permissions kOfOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                             QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const bool isOpen = (QFile::permissions(folder) & kOfOthers) != QFile::Permissions{};
    if (isOpen && !QFile::setPermissions(folder, kFolderOfOwner)) {
        return Outcome::Failure(u"The folder \"%1\" is open to others."_s.arg(folder));
    }
    return {};
}

enum class LockState { Free, Held, Unknown };

/// Whether a run lives. The number and the age of the process that are written into its lock are not asked:
/// the system itself frees a lock when the process ends, and another process may have the number by now.
LockState StateOfLock(const QString& path)
{
#ifdef Q_OS_WIN
    // There a lock that is held cannot be removed, and a lock is nothing else.
    return !QFile::exists(path) || QFile::remove(path) ? LockState::Free : LockState::Held;
#else
    const QByteArray name = QFile::encodeName(path);
    int file =
        open(name.constData(), O_RDWR | O_CLOEXEC); // some network folders lock only what may be written
    if (file < 0) {
        file = open(name.constData(), O_RDONLY | O_CLOEXEC);
    }
    if (file < 0) {
        return errno == ENOENT ? LockState::Free : LockState::Unknown;
    }
    const bool taken = flock(file, LOCK_EX | LOCK_NB) == 0;
    const int error = errno;
    close(file); // gives it free again
    if (taken) {
        return LockState::Free;
    }
    return error == EWOULDBLOCK ? LockState::Held : LockState::Unknown;
#endif
}

QString LockOf(const QString& folder, const QString& run)
{
    return QDir(folder).filePath(run + u".lock"_s);
}

/// The files of each run, by the run's name.
QHash<QString, QFileInfoList> FilesOfRuns(const QString& folder)
{
    static const QRegularExpression ofARun(u"^([0-9a-f]{32})\\."_s);
    QHash<QString, QFileInfoList> runs;
    const QFileInfoList files =
        QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks);
    for (const QFileInfo& file : files) {
        if (const QRegularExpressionMatch match = ofARun.match(file.fileName()); match.hasMatch()) {
            runs[match.captured(1)] << file;
        }
    }
    return runs;
}

std::optional<WorkKind> KindOf(const QFileInfo& file, const QString& run)
{
    for (const WorkKind kind : {WorkKind::Database, WorkKind::Statement}) {
        if (file.fileName() == run + EndingOf(kind)) {
            return kind;
        }
    }
    return std::nullopt;
}

/// A copy, if that file is one. What cannot be read is one that is damaged.
std::optional<LeftCopy> CopyIn(const QFileInfo& file, const QString& run)
{
    const std::optional<WorkKind> kind = KindOf(file, run);
    if (!kind) {
        return std::nullopt;
    }
    QByteArray bytes;
    RecoveredWork work;
    if (ReadFileBytes(file.filePath(), bytes).ok) {
        work = WithoutNote(bytes);
    }
    LeftCopy copy{.path = file.filePath(), .kind = *kind, .note = work.note, .time = file.lastModified()};
    if (copy.note && copy.note->time.isValid()) {
        copy.time = copy.note->time;
    }
    return copy;
}

std::vector<LeftCopy> CopiesOf(const QString& run, const QFileInfoList& files)
{
    std::vector<LeftCopy> copies;
    for (const QFileInfo& file : files) {
        if (std::optional<LeftCopy> copy = CopyIn(file, run)) {
            copies.push_back(std::move(*copy));
        }
    }
    return copies;
}

bool WasTouchedSince(const QFileInfoList& files, const QDateTime& time)
{
    return std::any_of(files.cbegin(), files.cend(),
                       [&](const QFileInfo& file) { return file.lastModified().toUTC() > time; });
}

struct HereAndNow {
    QString host;
    QDateTime now;
};

/// A lock that is free counts only on the computer that made it, for others may not see it. There, and where
/// locks cannot be asked, a run lives as long as it goes on touching its copies.
bool RunLives(const QString& folder, const QString& run, const QFileInfoList& files, const HereAndNow& here)
{
    const LockState state = StateOfLock(LockOf(folder, run));
    if (state == LockState::Held) {
        return true;
    }
    const std::vector<LeftCopy> copies = CopiesOf(run, files);
    const bool isElsewhere = std::any_of(copies.cbegin(), copies.cend(), [&](const LeftCopy& copy) {
        return copy.note && copy.note->host != here.host;
    });
    return (isElsewhere || state == LockState::Unknown) &&
           WasTouchedSince(files, here.now.addSecs(-kSilentSeconds));
}

void RemoveAll(const QFileInfoList& files)
{
    for (const QFileInfo& file : files) {
        QFile::remove(file.filePath());
    }
}

/// A name of any length must not push the rest out of sight.
QString Shortened(const QString& name)
{
    constexpr qsizetype kMost = 40;
    const QString line = name.left(10 * kMost).simplified(); // a file may hold a title of several lines
    return line.size() <= kMost ? line : line.left(kMost - 3) + u"..."_s;
}

QString Amount(const LeftCopy& copy, const QLocale& locale)
{
    const QString count = locale.toString(copy.note->records);
    const bool isOne = copy.note->records == 1;
    if (copy.kind == WorkKind::Database) {
        return isOne ? u"1 record"_s : count + u" records"_s;
    }
    return isOne ? u"1 row"_s : count + u" rows"_s;
}

} // namespace

QString PathOfWork(const RecoveryNote& note)
{
    return note.folder.isEmpty() || note.fileName.isEmpty() ? QString()
                                                            : QDir(note.folder).filePath(note.fileName);
}

QByteArray WithNote(const QByteArray& bytes, const RecoveryNote& note)
{
    const QByteArray text = NoteAsText(note);
    // The files of both formats end with a line end, which becomes the beginning of the mark.
    const QByteArray body = bytes.endsWith("\r\n") ? bytes.chopped(2) : bytes;
    const QByteArray ended = body + "\r\n";
    QByteArray copy = body;
    copy.append(kNoteMark).append(SumOf(ended, text)).append(' ').append(text).append("\r\n");
    return copy;
}

RecoveredWork WithoutNote(const QByteArray& copy)
{
    const qsizetype mark = copy.lastIndexOf(kNoteMark);
    const qsizetype sumBegin = mark + kNoteMark.size();
    const qsizetype textBegin = sumBegin + kSumLength + 1;
    const qsizetype textEnd = copy.size() - 2;
    if (mark < 0 || textBegin > textEnd || !copy.endsWith("\r\n")) {
        return {copy, std::nullopt};
    }
    const QByteArray bytes = copy.first(mark + 2);
    const QByteArray text = copy.mid(textBegin, textEnd - textBegin);
    if (copy.mid(sumBegin, kSumLength + 1) != SumOf(bytes, text) + ' ') {
        return {copy, std::nullopt};
    }
    return {bytes, NoteFromText(text)};
}

QString UsualRecoveryFolder()
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation))
        .filePath(u"recovery"_s);
#else
    const QString asked = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state = QDir::isAbsolutePath(asked) ? asked : QDir::home().filePath(u".local/state"_s);
    return QDir(state).filePath(u"quillaby/recovery"_s);
#endif
}

OwnRecoveryCopies::OwnRecoveryCopies(QString folder, QString host)
    : m_folder(std::move(folder)), m_host(std::move(host)), m_run(NameOfARun())
{}

OwnRecoveryCopies::~OwnRecoveryCopies() = default;

QString OwnRecoveryCopies::PathOf(WorkKind kind) const
{
    return QDir(m_folder).filePath(m_run + EndingOf(kind));
}

Outcome OwnRecoveryCopies::MakeFolderAndLock()
{
    if (Outcome made = MakeFolder(m_folder); !made.ok) {
        return made;
    }
    if (m_lock != nullptr && QFile::exists(m_lock->fileName())) {
        return {};
    }
    m_lock.reset(); // before there is a new one, because it removes the file of that name
    auto lock = std::make_unique<QLockFile>(LockOf(m_folder, m_run));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return Outcome::Failure(u"The folder \"%1\" cannot be written."_s.arg(m_folder));
    }
    QFile::setPermissions(lock->fileName(), QFile::ReadOwner | QFile::WriteOwner);
    m_lock = std::move(lock);
    return {};
}

Outcome OwnRecoveryCopies::Keep(WorkKind kind, const QByteArray& copy)
{
    if (Outcome ready = MakeFolderAndLock(); !ready.ok) {
        return ready;
    }
    return SaveFileBytes(PathOf(kind), copy, NewFileFor::OwnerAlone);
}

Outcome OwnRecoveryCopies::Remove(WorkKind kind)
{
    QFile copy(PathOf(kind));
    if (copy.exists() && !copy.remove()) {
        return Outcome::Failure(copy.errorString());
    }
    FreeLockWithout(kind);
    return {};
}

/// Once there is no copy of that kind, and none of the other either, the lock is of no use.
void OwnRecoveryCopies::FreeLockWithout(WorkKind kind)
{
    const WorkKind other = kind == WorkKind::Database ? WorkKind::Statement : WorkKind::Database;
    if (!QFile::exists(PathOf(other))) {
        m_lock.reset();
    }
}

bool OwnRecoveryCopies::AreThere(WorkKind kind) const
{
    return m_lock != nullptr && QFile::exists(m_lock->fileName()) && QFile::exists(PathOf(kind));
}

Outcome OwnRecoveryCopies::SetAside(WorkKind kind, LeftCopy& aside)
{
    const QString name = NameOfARun();
    QFile copy(PathOf(kind));
    const QString path = QDir(m_folder).filePath(name + EndingOf(kind));
    if (!copy.rename(path)) {
        return Outcome::Failure(copy.errorString());
    }
    aside = CopyIn(QFileInfo(path), name).value_or(LeftCopy{.path = path, .kind = kind});
    FreeLockWithout(kind);
    return {};
}

void OwnRecoveryCopies::Renew() const
{
    for (const WorkKind kind : {WorkKind::Database, WorkKind::Statement}) {
        QFile copy(PathOf(kind));
        if (copy.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
            copy.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
        }
    }
}

std::vector<LeftCopy> FindLeftCopies(const QString& folder, const QString& host, const QDateTime& now)
{
    std::vector<LeftCopy> left;
    if (!CheckFolder(folder).ok) {
        return left;
    }
    const QHash<QString, QFileInfoList> runs = FilesOfRuns(folder);
    for (auto run = runs.cbegin(); run != runs.cend(); ++run) {
        if (RunLives(folder, run.key(), run.value(), {host, now})) {
            continue;
        }
        std::vector<LeftCopy> copies = CopiesOf(run.key(), run.value());
        if (copies.empty() && !WasTouchedSince(run.value(), now.addSecs(-kSweptAfterSeconds))) {
            RemoveAll(run.value());
        }
        std::move(copies.begin(), copies.end(), std::back_inserter(left));
    }
    std::sort(left.begin(), left.end(),
              [](const LeftCopy& one, const LeftCopy& other) { return one.time > other.time; });
    return left;
}

Outcome ReadLeftCopy(const LeftCopy& copy, RecoveredWork& work)
{
    QByteArray bytes;
    if (Outcome read = ReadFileBytes(copy.path, bytes); !read.ok) {
        return read;
    }
    work = WithoutNote(bytes);
    return {};
}

Outcome RemoveLeftCopy(const LeftCopy& copy)
{
    QFile file(copy.path);
    if (file.exists() && !file.remove()) {
        return Outcome::Failure(file.errorString());
    }
    const QFileInfo path(copy.path);
    const QString run = path.completeBaseName();
    const QFileInfoList rest = FilesOfRuns(path.absolutePath()).value(run);
    if (CopiesOf(run, rest).empty()) {
        RemoveAll(rest); // its lock, and what an interrupted write left
    }
    return {};
}

QString DescribeLeftCopy(const LeftCopy& copy, const QLocale& locale, const QString& host)
{
    const QDateTime local = copy.time.toLocalTime();
    const QString when =
        ShortDate(local.date(), locale) + u' ' + locale.toString(local.time(), QLocale::ShortFormat);
    const bool isDatabase = copy.kind == WorkKind::Database;
    if (!copy.note) {
        return u"A damaged copy of %1, %2"_s.arg(isDatabase ? u"a lottery database"_s : u"a statement"_s,
                                                 when);
    }
    QStringList parts;
    parts << (!copy.note->fileName.isEmpty() ? Shortened(copy.note->fileName)
              : isDatabase                   ? u"A new lottery database"_s
                                             : u"A new investment statement"_s);
    parts << Amount(copy, locale) << when;
    if (!copy.note->host.isEmpty() && copy.note->host != host) {
        parts << u"made on "_s + Shortened(copy.note->host);
    }
    if (!copy.note->title.isEmpty()) {
        parts << u'"' + Shortened(copy.note->title) + u'"';
    }
    return parts.join(u", "_s);
}
