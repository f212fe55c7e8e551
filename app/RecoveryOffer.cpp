#include "app/RecoveryOffer.h"

#include "app/ToolTips.h"
#include "ui_RecoveryOffer.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

RecoveryOffer::RecoveryOffer(QWidget* parent) : QFrame(parent), m_ui(std::make_unique<Ui::RecoveryOffer>())
{
    m_ui->setupUi(this);
    QFont title = m_ui->OfferTitle->font();
    title.setBold(true);
    m_ui->OfferTitle->setFont(title);
    connect(m_ui->OfferOpen, &QPushButton::clicked, this, [this] {
        AskForDiscard(false);
        Q_EMIT OpenPressed();
    });
    connect(m_ui->OfferLater, &QPushButton::clicked, this, [this] {
        AskForDiscard(false);
        Q_EMIT LaterPressed();
    });
    connect(m_ui->OfferDiscard, &QPushButton::clicked, this, &RecoveryOffer::DiscardPressed);
    m_ui->OfferDiscard->installEventFilter(this);
}

RecoveryOffer::~RecoveryOffer() = default;

void RecoveryOffer::Offer(const QString& description, int more)
{
    m_description = description;
    m_ui->OfferTitle->setText(more == 0 ? u"This was not saved:"_s
                                        : u"This was not saved (and %1 more):"_s.arg(more));
    m_ui->OfferText->setText(description);
    SetLiteralToolTip(*m_ui->OfferText, description);
    m_ui->OfferOpen->setAccessibleName(u"Open what was not saved: "_s + description);
    m_ui->OfferLater->setAccessibleName(u"Keep what was not saved for later: "_s + description);
    AskForDiscard(false);
    show();
    QAccessibleEvent told(this, QAccessible::Alert); // so that a screen reader speaks of it
    QAccessible::updateAccessibility(&told);
}

bool RecoveryOffer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->OfferDiscard && event->type() == QEvent::FocusOut) {
        AskForDiscard(false); // turned to something else, so the second press would come as a surprise
    }
    return QFrame::eventFilter(watched, event);
}

void RecoveryOffer::DiscardPressed()
{
    if (!m_discardAsked) {
        AskForDiscard(true);
        return;
    }
    AskForDiscard(false);
    Q_EMIT DiscardConfirmed();
}

void RecoveryOffer::AskForDiscard(bool asks)
{
    m_discardAsked = asks;
    m_ui->OfferDiscard->setText(asks ? u"Really &discard?"_s : u"&Discard"_s);
    m_ui->OfferDiscard->setAccessibleName(
        (asks ? u"Press again to discard for good: "_s : u"Discard what was not saved: "_s) + m_description);
}
