#pragma once

#include "app/Outcome.h"

#include <QByteArray>
#include <QDateTime>
#include <QLocale>
#include <QLockFile>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

// Recovery copies: what a program that ended uncleanly leaves of the work that was not saved. Each is a file
// of the ordinary format with one line more behind it, the note, which the ordinary readers pass over. It
// bears the name of the run that wrote it, RUN.Lto or RUN.inv; while that run lives it holds RUN.lock.

/// What a recovery copy is of.
enum class WorkKind { Database, Statement };

/// What a recovery copy says about itself.
struct RecoveryNote {
    QString fileName{}; ///< the work's own file, without folder; "" for none
    QString folder{};   ///< of that file, an absolute path; "" for none
    QString title{};    ///< of the lottery: its beginning; all of it where the copy's file cannot hold it
    int records = 0;    ///< records of the database, or rows of the statement
    QDateTime time{};   ///< when the copy was made
    QString host{};     ///< the computer it was made on

    bool operator==(const RecoveryNote&) const = default;
};

/// The full path of the work's own file; "" when that is not known.
[[nodiscard]] QString PathOfWork(const RecoveryNote& note);

/// A recovery copy, taken apart.
struct RecoveredWork {
    QByteArray bytes;                   ///< the file of the ordinary format
    std::optional<RecoveryNote> note{}; ///< nothing when the copy is not whole
};

/// Puts the note behind the bytes of a file, with a check sum over both.
[[nodiscard]] QByteArray WithNote(const QByteArray& bytes, const RecoveryNote& note);

/// Takes a copy apart. One that is not as it was written has no note and keeps all its bytes: what the
/// ordinary reader makes of them is not lost. A note never names a file outside the folder that it names.
[[nodiscard]] RecoveredWork WithoutNote(const QByteArray& copy);

/// Where copies are kept: "quillaby/recovery" of $XDG_STATE_HOME, or of ~/.local/state when that is not an
/// absolute path; on other systems in the user's own folder for programs' data.
[[nodiscard]] QString UsualRecoveryFolder();

/// A copy that was left behind.
struct LeftCopy {
    QString path;
    WorkKind kind = WorkKind::Database;
    std::optional<RecoveryNote> note{}; ///< nothing when the copy is not whole
    QDateTime time{};                   ///< when it was made; of a damaged one, when its file was written
};

/// The copies of this run, one of each kind at most. They go with Remove; a run that ends without it leaves
/// them. One object may be used from any thread, one call at a time.
class OwnRecoveryCopies
{
public:
    /// Touches nothing yet. @param host  the name of this computer
    OwnRecoveryCopies(QString folder, QString host);
    ~OwnRecoveryCopies();
    Q_DISABLE_COPY_MOVE(OwnRecoveryCopies)

    /// Writes the copy of that kind, in the place of the one before, which is whole until then. Makes the
    /// folder when it is not there; folder and files are the user's alone. Fails where the folder is not a
    /// folder of this user, but a link or another's.
    [[nodiscard]] Outcome Keep(WorkKind kind, const QByteArray& copy);

    /// Removes the copy of that kind. Nothing to remove is a success.
    [[nodiscard]] Outcome Remove(WorkKind kind);

    /// Whether the copy of that kind and the lock, which says that it is this run's, are in the folder.
    [[nodiscard]] bool AreThere(WorkKind kind) const;

    /// Gives the copy of that kind a name of its own and no lock: from now on it is one that was left, and
    /// this run has none of that kind. @param aside  the copy under its new name
    [[nodiscard]] Outcome SetAside(WorkKind kind, LeftCopy& aside);

    /// Shows computers that share the folder and not its locks that this run lives: to be called now and then
    /// while there is a copy.
    void Renew() const;

    /// The name of this run.
    [[nodiscard]] const QString& Run() const { return m_run; }
    [[nodiscard]] const QString& Host() const { return m_host; }

private:
    [[nodiscard]] QString PathOf(WorkKind kind) const;
    [[nodiscard]] Outcome MakeFolderAndLock();
    void FreeLockWithout(WorkKind kind);

    QString m_folder;
    QString m_host;
    QString m_run;
    std::unique_ptr<QLockFile> m_lock;
};

/// What runs that ended uncleanly left in the folder, the latest first. Copies of runs that still live are
/// not among them, whatever process has which number: a lock is free once its process is gone. Where another
/// computer's locks cannot be seen, its run counts as living for ten minutes after its last sign.
/// Sweeps out what interrupted writes left there a day ago.
/// A folder that Keep would refuse is not looked into.
/// @param now  in UTC
[[nodiscard]] std::vector<LeftCopy> FindLeftCopies(const QString& folder, const QString& host,
                                                   const QDateTime& now);

/// Reads a copy that was left. On failure, as when another run has removed it, the reason is the system's
/// own.
[[nodiscard]] Outcome ReadLeftCopy(const LeftCopy& copy, RecoveredWork& work);

/// Removes a copy that was left, and what belongs to it.
[[nodiscard]] Outcome RemoveLeftCopy(const LeftCopy& copy);

/// Says in a line what a copy is of: the file's name, how much it holds, when it was made, and the title;
/// long names are shortened.
[[nodiscard]] QString DescribeLeftCopy(const LeftCopy& copy, const QLocale& locale, const QString& host);
