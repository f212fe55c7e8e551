#pragma once

#include "app/KeptWork.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <functional>
#include <vector>

/// Keeps recovery copies of work that is not saved: looks every few seconds whether there is any that its
/// copy does not hold yet, and writes the copy then; removes it when all is saved. The disk may be as slow as
/// it likes: the files are written on a thread of their own, and nobody waits for them.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    /// Nothing happens before Start. @param host  the name of this computer
    RecoveryKeeper(const QString& folder, const QString& host, std::vector<KeptWork> works,
                   QObject* parent = nullptr);
    ~RecoveryKeeper() override;

    /// @param pause  between two looks, which is also the most that a crash can cost
    void Start(std::chrono::milliseconds pause);

    /// Copies at once all that is not saved, and waits for it.
    /// @return success when every copy is on the disk, else the first failure; the others are tried too.
    [[nodiscard]] Outcome KeepNow();

    /// Whether there is work that is not saved.
    [[nodiscard]] bool HasUnsaved(WorkKind kind) const;

    /// Brings the copy of work that is about to be replaced up to date and sets it aside: it is then one that
    /// was left. Nothing when all of it is saved, or when that did not work, which is told as Failed.
    [[nodiscard]] std::optional<LeftCopy> SetAside(WorkKind kind);

    /// Whether the last copy of some work could not be kept.
    [[nodiscard]] bool IsFailing() const;

    /// Ends the keeping and removes the copies: the program ends cleanly, and what is not saved now is given
    /// up. Without it the copies stay when the keeper goes.
    void EndCleanly();

Q_SIGNALS:
    /// A copy is on the disk.
    void Kept();
    /// No copy of some work could be kept. It is tried again after a while; told once until that works.
    void Failed(const QString& reason);

private:
    struct Protected {
        KeptWork work;
        std::optional<quint64> kept{}; ///< what the copy on the disk holds; nothing when that is not known
        bool mayHaveCopy = false;
        bool isFailing = false;
        std::chrono::steady_clock::time_point notBefore{}; ///< after a failure
    };

    /// Done on the writer's thread; gives what is to be done on this one when it is over.
    using Job = std::function<std::function<void()>()>;

    void Look();
    void LookAt(std::size_t index, quint64 unsaved);
    void SeeWhetherItIsThere(std::size_t index);
    void Copy(std::size_t index, quint64 unsaved);
    [[nodiscard]] Outcome CopyNow(std::size_t index, quint64 unsaved);
    void Written(std::size_t index, quint64 unsaved, const Outcome& written);
    void Give(Protected& item);
    void Renew();
    void Run(Job job);
    void FinishWriting();
    [[nodiscard]] Outcome MakeCopy(const KeptWork& work, QByteArray& copy) const;
    void TellFailure(Protected& item, const QString& reason);

    OwnRecoveryCopies m_copies;
    std::vector<Protected> m_works;
    QTimer m_timer;
    int m_writing = 0; ///< jobs of the writer that are not over
    std::chrono::steady_clock::time_point m_renewed{};
    QThreadPool m_writer; ///< last, so that it is done before anything else goes
};
