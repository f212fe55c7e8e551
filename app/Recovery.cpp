#include "app/Recovery.h"

#include "app/DatabaseRecovery.h"
#include "app/RecoveryOffer.h"

#include <QDir>
#include <QSysInfo>

#include <utility>

using namespace Qt::StringLiterals;

Recovery::Recovery(LGLOBAL& shared, Prompts& prompts, MDIContainer& window, QString folder,
                   std::vector<KeptWork> works)
    : m_shared(shared), m_prompts(prompts), m_window(window), m_folder(std::move(folder)),
      m_host(QSysInfo::machineHostName()), m_keeper(m_folder, m_host, std::move(works))
{
    connect(&m_keeper, &RecoveryKeeper::Failed, this, &Recovery::TellTrouble);
    connect(&m_keeper, &RecoveryKeeper::Kept, this, [this] {
        if (m_trouble != nullptr && !m_keeper.IsFailing()) {
            m_trouble->hide();
        }
    });
}

Recovery::~Recovery()
{
    m_shared.beforeDatabaseGoes = {};
}

void Recovery::Start(std::chrono::milliseconds pause)
{
    m_keeper.Start(pause);
    m_shared.beforeDatabaseGoes = [this] { SetDatabaseAside(); };
    QTimer::singleShot(0, this, &Recovery::LookForLeftCopies);
}

void Recovery::EndCleanly()
{
    m_keeper.EndCleanly();
}

void Recovery::LookForLeftCopies()
{
    if (!QFileInfo::exists(m_folder)) {
        return;
    }
    const std::vector<LeftCopy> left = FindLeftCopies(m_folder, m_host, QDateTime::currentDateTimeUtc());
    m_left.assign(left.begin(), left.end());
    OfferNext();
}

/// The latest comes first, as among those that were found.
void Recovery::SetDatabaseAside()
{
    if (std::optional<LeftCopy> aside = m_keeper.SetAside(WorkKind::Database)) {
        m_left.push_front(std::move(*aside));
        OfferNext();
    }
}

void Recovery::OfferNext()
{
    if (m_left.empty()) {
        if (m_offer != nullptr) {
            m_offer->hide();
        }
        return;
    }
    if (m_offer == nullptr) {
        m_offer = new RecoveryOffer;
        m_window.Menu().AddPanel(m_offer);
        connect(m_offer, &RecoveryOffer::OpenPressed, this, &Recovery::OpenOffered);
        connect(m_offer, &RecoveryOffer::DiscardConfirmed, this, &Recovery::DiscardOffered);
        connect(m_offer, &RecoveryOffer::LaterPressed, this, &Recovery::Later);
    }
    m_offer->Offer(DescribeLeftCopy(m_left.front(), m_shared.locale, m_host),
                   static_cast<int>(m_left.size()) - 1);
}

void Recovery::OpenOffered()
{
    if (m_left.empty()) {
        return;
    }
    const LeftCopy copy = m_left.front();
    if (m_keeper.HasUnsaved(copy.kind)) {
        m_prompts.Notice(
            u"What is in memory is not saved yet. Save it first, or give it up, and then open what "
            "was not saved before. It stays where it is."_s);
        return;
    }
    RecoveredWork work;
    Outcome taken = ReadLeftCopy(copy, work);
    if (taken.ok) {
        taken = Take(copy, work);
    }
    if (!taken.ok) {
        m_prompts.Notice(
            u"It cannot be opened: %1\n\nThe file stays where it is until it is discarded: %2"_s.arg(
                taken.reason, QDir::toNativeSeparators(copy.path)));
        return;
    }
    m_left.pop_front();
    // Only when all of it is in this run's own copy, and that is on the disk, the one that was left may go.
    // One that cannot be removed is offered again: better twice than not at all.
    const bool isKept = m_keeper.HasUnsaved(copy.kind) && m_keeper.KeepNow().ok;
    if (work.note && isKept) {
        (void)RemoveLeftCopy(copy);
    }
    OfferNext();
    if (!work.note) {
        m_prompts.Notice(
            u"The copy was damaged. What could be read of it is shown: look through it before you save it."
            "\n\nThe copy itself stays, and is offered again at the next start, until it is discarded: %1"_s
                .arg(QDir::toNativeSeparators(copy.path)));
    }
}

Outcome Recovery::Take(const LeftCopy& copy, const RecoveredWork& work)
{
    if (copy.kind == WorkKind::Database) {
        Outcome taken = TakeRecoveredDatabase(m_shared, work);
        if (taken.ok) {
            m_prompts.SetBusyPointer(true);
            m_window.ShowForm(FormName::LDbase);
        }
        return taken;
    }
    m_window.ShowForm(FormName::LInvTrack);
    Outcome taken = m_window.ActiveForm()->TakeRecovered(work);
    if (!taken.ok) {
        m_window.SetCaption(u" Quillaby Menu"_s);
        m_window.ShowForm(FormName::LotoMenu);
    }
    return taken;
}

void Recovery::DiscardOffered()
{
    if (m_left.empty()) {
        return;
    }
    if (const Outcome removed = RemoveLeftCopy(m_left.front()); !removed.ok) {
        m_prompts.Notice(u"It cannot be discarded: "_s + removed.reason);
        return;
    }
    m_left.pop_front();
    OfferNext();
}

/// Not before the next start: what is left for later is not asked about again and again.
void Recovery::Later()
{
    m_left.pop_front();
    OfferNext();
}

void Recovery::TellTrouble(const QString& reason)
{
    if (m_trouble == nullptr) {
        m_trouble = new QLabel;
        m_trouble->setObjectName(u"RecoveryTrouble"_s);
        m_trouble->setTextFormat(Qt::PlainText);
        m_trouble->setWordWrap(true);
        m_trouble->setAlignment(Qt::AlignCenter);
        m_window.Menu().AddPanel(m_trouble);
    }
    m_trouble->setText(
        u"Should the program be interrupted, what is not saved is lost: no copy of it can be kept. "_s +
        reason);
    m_trouble->show();
}
