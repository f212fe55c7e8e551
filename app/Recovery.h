#pragma once

#include "app/MDIContainer.h"
#include "app/RecoveryKeeper.h"

#include <QLabel>

#include <deque>

class RecoveryOffer;

/// Recovery of work that was not saved: keeps copies while the program runs, and lets the menu offer what
/// runs that ended uncleanly left behind, and databases that an opened file took the place of.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// What the program does; tests hurry.
    static constexpr std::chrono::milliseconds kPause{3000};

    /// @param folder  of the copies, see UsualRecoveryFolder
    /// @param works   what copies are kept of
    Recovery(LGLOBAL& shared, Prompts& prompts, MDIContainer& window, QString folder,
             std::vector<KeptWork> works);
    ~Recovery() override;

    /// Begins to keep copies, and looks for those that were left once the window is there. From now on a
    /// database that is not saved is set aside, and offered, when a file takes its place.
    void Start(std::chrono::milliseconds pause = kPause);

    /// The program ends cleanly: this run's copies go. Those that were left or set aside and not answered
    /// stay.
    void EndCleanly();

    [[nodiscard]] RecoveryKeeper& Keeper() { return m_keeper; }

private:
    void LookForLeftCopies();
    void SetDatabaseAside();
    void OfferNext();
    void OpenOffered();
    void DiscardOffered();
    void Later();
    [[nodiscard]] Outcome Take(const LeftCopy& copy, const RecoveredWork& work);
    void TellTrouble(const QString& reason);

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    MDIContainer& m_window;
    QString m_folder;
    QString m_host;
    RecoveryKeeper m_keeper;
    std::deque<LeftCopy> m_left;      ///< not answered yet; the first is offered
    RecoveryOffer* m_offer = nullptr; ///< made when there is something to offer
    QLabel* m_trouble = nullptr;      ///< made when no copy can be kept
};
