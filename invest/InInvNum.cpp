#include "invest/InInvNum.h"

#include "app/DialogPlacement.h"
#include "ui_InInvNum.h"

#include <algorithm>

InInvNum::InInvNum(LGLOBAL& shared, int row, QWidget* mainWindow)
    : QDialog(mainWindow), m_shared(shared), m_ui(std::make_unique<Ui::InInvNum>())
{
    m_ui->setupUi(this);
    // The line breaks at its blanks in the middle.
    const QFontMetrics metrics(font());
    m_ui->Label1->setFixedWidth(
        metrics.horizontalAdvance(QStringLiteral(" Insert a blank line at line    ")));
    m_ui->Label1->setMinimumHeight(2 * (std::max(metrics.height(), metrics.lineSpacing()) + 1));

    InputRules number;
    number.enter = [this] { m_ui->Accept->click(); };
    m_ui->CurVal->Follow(m_shared, number);
    m_ui->CurVal->setText(QString::number(row));
    connect(m_ui->Accept, &QPushButton::clicked, this, &InInvNum::AcceptRow);
    connect(m_ui->NoAccept, &QPushButton::clicked, this, &InInvNum::reject);
}

InInvNum::~InInvNum() = default;

void InInvNum::AcceptRow()
{
    m_shared.insertRowText = m_ui->CurVal->text();
    accept();
}

void InInvNum::reject()
{
    m_shared.insertRowText.clear();
    QDialog::reject();
}

void InInvNum::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    PlaceDialog(*this, parentWidget(), m_shared.layoutSize, {{3600, 2000}, {4650, 3000}});
    m_ui->CurVal->setFocus(Qt::TabFocusReason);
}
