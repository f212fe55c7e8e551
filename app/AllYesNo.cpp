#include "app/AllYesNo.h"

#include "app/DialogPlacement.h"
#include "app/MessageTable.h"
#include "app/Prompts.h"
#include "ui_AllYesNo.h"

AllYesNo::AllYesNo(LGLOBAL& shared, QWidget* mainWindow)
    : QDialog(mainWindow), m_shared(shared), m_question(shared.questionNumber),
      m_ui(std::make_unique<Ui::AllYesNo>())
{
    m_ui->setupUi(this);
    m_ui->Label1->setText(CurrentQuestionText(shared));
    m_ui->PreviewButt->hide();
    connect(m_ui->AllYes, &QPushButton::clicked, this, [this] { Answer(kAnsweredYes); });
    connect(m_ui->AllNo, &QPushButton::clicked, this, [this] { Answer(0); });
}

AllYesNo::~AllYesNo() = default;

void AllYesNo::OfferPreview(const std::function<void()>& show)
{
    m_ui->PreviewButt->show();
    connect(m_ui->PreviewButt, &QPushButton::clicked, this, show);
}

void AllYesNo::Answer(qint16 answer)
{
    m_shared.questionNumber = answer;
    done(answer == kAnsweredYes ? Accepted : Rejected);
}

void AllYesNo::reject()
{
    Answer(QuestionIsAnsweredYesWhenClosed(m_question) ? kAnsweredYes : qint16{0});
}

void AllYesNo::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    PlaceDialog(*this, parentWidget(), m_shared.layoutSize, {{3500, 2000}, {4500, 3000}});
}
