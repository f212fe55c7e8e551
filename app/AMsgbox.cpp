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
    connect(m_ui->AMsgExit, &QPushButton::clicked, this, &QDialog::accept);
}

AMsgbox::AMsgbox(const LGLOBAL& shared, QWidget* mainWindow)
    : AMsgbox(shared, CurrentMessageText(shared), mainWindow)
{}

AMsgbox::~AMsgbox() = default;

void AMsgbox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_ui->AMsgExit->setFocus();
    PlaceDialog(*this, parentWidget(), m_shared.layoutSize, {{3600, 2000}, {4650, 3000}});
}
