#pragma once

#include <QFrame>

#include <memory>

namespace Ui {
class RecoveryOffer;
}

/// A panel of the menu that offers work that was not saved, whether a program that ended uncleanly left it or
/// another file took its place: to open it, to discard it, or to
/// leave it for later. Discarding takes two presses of its button.
class RecoveryOffer : public QFrame
{
    Q_OBJECT

public:
    explicit RecoveryOffer(QWidget* parent = nullptr);
    ~RecoveryOffer() override;

    /// Shows one copy. @param description  what it is of @param more  how many others wait behind it
    void Offer(const QString& description, int more);

Q_SIGNALS:
    void OpenPressed();
    void DiscardConfirmed();
    void LaterPressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void DiscardPressed();
    void AskForDiscard(bool asks);

    std::unique_ptr<Ui::RecoveryOffer> m_ui;
    QString m_description;
    bool m_discardAsked = false; ///< the button was pressed once
};
