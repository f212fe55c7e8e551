#include "app/RecoveryKeeper.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {

constexpr auto kPauseAfterFailure = 30s;
constexpr auto kRenewedEvery = 60s;

} // namespace

RecoveryKeeper::RecoveryKeeper(const QString& folder, const QString& host, std::vector<KeptWork> works,
                               QObject* parent)
    : QObject(parent), m_copies(folder, host)
{
    for (KeptWork& work : works) {
        m_works.push_back({.work = std::move(work)});
    }
    m_writer.setMaxThreadCount(1); // one after the other: a later copy must not be overtaken
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::Look);
}

RecoveryKeeper::~RecoveryKeeper()
{
    m_writer.waitForDone();
}

void RecoveryKeeper::Start(std::chrono::milliseconds pause)
{
    m_timer.setTimerType(pause < 1s ? Qt::PreciseTimer : Qt::VeryCoarseTimer);
    m_timer.start(pause);
}

void RecoveryKeeper::Look()
{
    if (m_writing > 0) {
        return;
    }
    for (std::size_t i = 0; i < m_works.size(); ++i) {
        Protected& item = m_works.at(i);
        if (const std::optional<quint64> unsaved = item.work.unsaved(); !unsaved) {
            Give(item);
        } else if (item.kept != unsaved && steady_clock::now() >= m_notBefore) {
            LookAt(i, *unsaved);
        }
    }
    if (m_writing == 0 && steady_clock::now() - m_renewed >= kRenewedEvery) {
        m_renewed = steady_clock::now();
        if (std::any_of(m_works.cbegin(), m_works.cend(), [](const Protected& item) { return item.kept; })) {
            m_copies.Renew();
        }
    }
}

/// All is saved, so the copy is no longer needed. One that cannot be removed is tried again at the next look.
void RecoveryKeeper::Give(Protected& item)
{
    if (item.mayHaveCopy && m_copies.Remove(item.work.kind).ok) {
        item.mayHaveCopy = false;
        item.kept.reset();
    }
}

void RecoveryKeeper::LookAt(std::size_t index, quint64 unsaved)
{
    const KeptWork& work = m_works.at(index).work;
    QByteArray copy;
    if (const Outcome made = MakeCopy(work, copy); !made.ok) {
        TellFailure(made.reason);
        return;
    }
    ++m_writing;
    m_works.at(index).mayHaveCopy = true;
    m_writer.start([this, index, unsaved, kind = work.kind, copy] {
        const Outcome written = m_copies.Keep(kind, copy);
        QMetaObject::invokeMethod(
            this,
            [this, index, unsaved, written] {
                --m_writing;
                Written(index, unsaved, written);
            },
            Qt::QueuedConnection);
    });
}

void RecoveryKeeper::Written(std::size_t index, quint64 unsaved, const Outcome& written)
{
    if (!written.ok) {
        TellFailure(written.reason);
        return;
    }
    m_failing = false;
    m_works.at(index).kept = unsaved;
    Q_EMIT Kept();
}

Outcome RecoveryKeeper::MakeCopy(const KeptWork& work, QByteArray& copy) const
{
    QByteArray bytes;
    RecoveryNote note;
    if (Outcome written = work.write(bytes, note); !written.ok) {
        return written;
    }
    note.time = QDateTime::currentDateTimeUtc();
    note.host = m_copies.Host();
    copy = WithNote(bytes, note);
    return {};
}

void RecoveryKeeper::TellFailure(const QString& reason)
{
    m_notBefore = steady_clock::now() + kPauseAfterFailure;
    if (!std::exchange(m_failing, true)) {
        Q_EMIT Failed(reason);
    }
}

Outcome RecoveryKeeper::KeepNow()
{
    m_writer.waitForDone();
    for (std::size_t i = 0; i < m_works.size(); ++i) {
        const KeptWork& work = m_works.at(i).work;
        const std::optional<quint64> unsaved = work.unsaved();
        if (!unsaved) {
            continue;
        }
        QByteArray copy;
        Outcome kept = MakeCopy(work, copy);
        if (kept.ok) {
            m_works.at(i).mayHaveCopy = true;
            kept = m_copies.Keep(work.kind, copy);
        }
        if (!kept.ok) {
            return kept;
        }
        Written(i, *unsaved, kept);
    }
    return {};
}

bool RecoveryKeeper::HasUnsaved(WorkKind kind) const
{
    return std::any_of(m_works.cbegin(), m_works.cend(), [kind](const Protected& item) {
        return item.work.kind == kind && item.work.unsaved().has_value();
    });
}

void RecoveryKeeper::EndCleanly()
{
    m_timer.stop();
    m_writer.waitForDone();
    QCoreApplication::removePostedEvents(this); // that copies which are about to go were written
    m_writing = 0;
    for (Protected& item : m_works) {
        Give(item);
    }
}
