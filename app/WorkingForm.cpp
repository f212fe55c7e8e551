#include "app/WorkingForm.h"

#include "app/LotteryFileCommands.h"

WorkingForm::WorkingForm(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : QWidget(parent), m_shared(shared), m_prompts(prompts), m_switcher(switcher),
      m_events(new FormEvents(shared, prompts, this))
{
    setBackgroundRole(QPalette::Window); // not that of the stage behind the forms
    setAutoFillBackground(true);
}

Outcome WorkingForm::TakeRecovered(const RecoveredWork& work)
{
    Q_UNUSED(work)
    return Outcome::Failure(QStringLiteral("This form holds nothing of that kind."));
}

QPoint WorkingForm::ResizedPlace(qint32 layoutSize)
{
    return layoutSize < kLargeLayoutFrom ? QPoint(-60, -30) : QPoint(1200, 1000);
}

QString WorkingForm::FilePath() const
{
    return DatabaseFilePath(m_shared);
}

QPoint WorkingForm::FrontPlace() const
{
    return ResizedPlace(m_shared.layoutSize);
}
