#include "app/RecoveryKeeper.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
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
    std::vector<std::optional<quint64>> unsaved;
    std::transform(m_works.cbegin(), m_works.cend(), std::back_inserter(unsaved),
                   [](const Protected& item) { return item.work.unsaved(); });
    // All that goes is gone before the writer begins: the copies take one call at a time.
    for (std::size_t i = 0; i < m_works.size(); ++i) {
        if (!unsaved.at(i)) {
            Give(m_works.at(i));
        }
    }
    Renew();
    for (std::size_t i = 0; i < m_works.size(); ++i) {
        if (unsaved.at(i)) {
            LookAt(i, *unsaved.at(i));
        }
    }
}

/// All is saved, so the copy is no longer needed. One that cannot be removed is tried again at the next look.
void RecoveryKeeper::Give(Protected& item)
{
    item.isFailing = false;
    item.notBefore = {};
    if (item.mayHaveCopy && m_copies.Remove(item.work.kind).ok) {
        item.mayHaveCopy = false;
        item.kept.reset();
    }
}

void RecoveryKeeper::Renew()
{
    if (steady_clock::now() - m_renewed < kRenewedEvery) {
        return;
    }
    m_renewed = steady_clock::now();
    if (std::any_of(m_works.cbegin(), m_works.cend(), [](const Protected& item) { return item.kept; })) {
        m_copies.Renew();
    }
}

void RecoveryKeeper::LookAt(std::size_t index, quint64 unsaved)
{
    if (m_works.at(index).kept == unsaved) {
        SeeWhetherItIsThere(index);
    } else if (steady_clock::now() >= m_works.at(index).notBefore) {
        Copy(index, unsaved);
    }
}

/// A copy that somebody has removed protects nothing; the next look writes it again.
void RecoveryKeeper::SeeWhetherItIsThere(std::size_t index)
{
    Run([this, index, kind = m_works.at(index).work.kind] {
        const bool isThere = m_copies.AreThere(kind);
        return [this, index, isThere] {
            if (!isThere) {
                m_works.at(index).kept.reset();
            }
        };
    });
}

void RecoveryKeeper::Copy(std::size_t index, quint64 unsaved)
{
    Protected& item = m_works.at(index);
    QByteArray copy;
    if (const Outcome made = MakeCopy(item.work, copy); !made.ok) {
        TellFailure(item, made.reason);
        return;
    }
    item.mayHaveCopy = true;
    Run([this, index, unsaved, kind = item.work.kind, copy] {
        const Outcome written = m_copies.Keep(kind, copy);
        return [this, index, unsaved, written] { Written(index, unsaved, written); };
    });
}

void RecoveryKeeper::Run(Job job)
{
    ++m_writing;
    m_writer.start([this, job = std::move(job)] {
        QMetaObject::invokeMethod(
            this,
            [this, finish = job()] {
                --m_writing;
                finish();
            },
            Qt::QueuedConnection);
    });
}

/// Waits for the writer and takes what it has to tell, so that nothing of it comes later as news.
void RecoveryKeeper::FinishWriting()
{
    m_writer.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void RecoveryKeeper::Written(std::size_t index, quint64 unsaved, const Outcome& written)
{
    Protected& item = m_works.at(index);
    if (!written.ok) {
        TellFailure(item, written.reason);
        return;
    }
    item.isFailing = false;
    item.kept = unsaved;
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

void RecoveryKeeper::TellFailure(Protected& item, const QString& reason)
{
    item.notBefore = steady_clock::now() + kPauseAfterFailure;
    if (!std::exchange(item.isFailing, true)) {
        Q_EMIT Failed(reason);
    }
}

Outcome RecoveryKeeper::CopyNow(std::size_t index, quint64 unsaved)
{
    Protected& item = m_works.at(index);
    QByteArray copy;
    Outcome kept = MakeCopy(item.work, copy);
    if (kept.ok) {
        item.mayHaveCopy = true;
        kept = m_copies.Keep(item.work.kind, copy);
    }
    Written(index, unsaved, kept);
    return kept;
}

Outcome RecoveryKeeper::KeepNow()
{
    FinishWriting();
    Outcome first;
    for (std::size_t i = 0; i < m_works.size(); ++i) {
        const std::optional<quint64> unsaved = m_works.at(i).work.unsaved();
        const Outcome kept = unsaved ? CopyNow(i, *unsaved) : Outcome{};
        if (first.ok) {
            first = kept;
        }
    }
    return first;
}

std::optional<LeftCopy> RecoveryKeeper::SetAside(WorkKind kind)
{
    FinishWriting();
    for (std::size_t i = 0; i < m_works.size(); ++i) {
        Protected& item = m_works.at(i);
        const std::optional<quint64> unsaved = item.work.kind == kind ? item.work.unsaved() : std::nullopt;
        if (!unsaved || !CopyNow(i, *unsaved).ok) {
            continue;
        }
        LeftCopy aside;
        if (const Outcome set = m_copies.SetAside(kind, aside); !set.ok) {
            TellFailure(item, set.reason);
            continue;
        }
        item.mayHaveCopy = false;
        item.kept.reset();
        return aside;
    }
    return std::nullopt;
}

bool RecoveryKeeper::IsFailing() const
{
    return std::any_of(m_works.cbegin(), m_works.cend(),
                       [](const Protected& item) { return item.isFailing; });
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
