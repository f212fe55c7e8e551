#include "app/AMsgbox.h"

#include "app/DialogPlacement.h"
#include "app/Prompts.h"
#include "ui_AMsgbox.h"

AMsgbox::AMsgbox(const LGLOBAL& shared, const QString& text, QWidget* mainWindow)
    : QDialog(mainWindow), m_shared(shared), m_ui(std::make_unique<Ui::AMsgbox>())
{
    m_ui->setupUi(this);
    m_ui->TextMsg->setPlainText(text);
    m_ui->Reason->setText(shared.messageReason);
    m_ui->Reason->setVisible(!shared.messageReason.isEmpty());
    m_ui->OfferButt->hide();
    // The longest message of the table shows whole, in letters of any size.
    constexpr QSize kLetters(48, 12);
    resize(size().expandedTo({kLetters.width() * fontMetrics().averageCharWidth(),
                              kLetters.height() * fontMetrics().lineSpacing()}));
    connect(m_ui->AMsgExit, &QPushButton::clicked, this, &QDialog::accept);
}

AMsgbox::AMsgbox(const LGLOBAL& shared, QWidget* mainWindow)
    : AMsgbox(shared, CurrentMessageText(shared), mainWindow)
{}

AMsgbox::~AMsgbox() = default;

void AMsgbox::Offer(const QString& caption, const std::function<void()>& deed)
{
    m_ui->OfferButt->setText(caption);
    m_ui->OfferButt->show();
    connect(m_ui->OfferButt, &QPushButton::clicked, this, [this, deed] {
        deed();
        accept();
    });
}

void AMsgbox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_ui->AMsgExit->setFocus();
    PlaceDialog(*this, parentWidget(), m_shared.layoutSize, {{3600, 2000}, {4650, 3000}});
}
