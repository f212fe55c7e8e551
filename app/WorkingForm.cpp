#include "app/WorkingForm.h"

#include <QTimer>

#include <utility>

WorkingForm::WorkingForm(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent)
    : QWidget(parent), m_shared(shared), m_prompts(prompts), m_switcher(switcher)
{
    setBackgroundRole(QPalette::Window); // not that of the stage behind the forms
    setAutoFillBackground(true);
}

QPoint WorkingForm::ResizedPlace(qint32 layoutSize)
{
    return layoutSize < kLargeLayoutFrom ? QPoint(-60, -30) : QPoint(1200, 1000);
}

QPoint WorkingForm::FrontPlace() const
{
    return ResizedPlace(m_shared.layoutSize);
}

void WorkingForm::WatchInputBoxes()
{
    const QList<InputBox*> boxes = findChildren<InputBox*>();
    for (InputBox* box : boxes) {
        connect(box, &InputBox::MessageDue, this, &WorkingForm::ShowLater);
    }
}

void WorkingForm::OnClick(QAbstractButton* button, const std::function<void()>& command)
{
    connect(button, &QAbstractButton::pressed, this, [this, button] {
        button->setFocus(Qt::OtherFocusReason);
        m_pressAbandoned = !m_dueMessages.empty();
    });
    connect(button, &QAbstractButton::clicked, this, [this, command] {
        if (!std::exchange(m_pressAbandoned, false) && !m_showingMessages) {
            command();
        }
    });
}

void WorkingForm::ShowLater(const Message& message)
{
    m_dueMessages.push_back(message);
    if (m_dueMessages.size() == 1 && !m_showingMessages) {
        QTimer::singleShot(0, this, &WorkingForm::ShowDueMessages);
    }
}

void WorkingForm::ShowDueMessages()
{
    m_showingMessages = true;
    while (!m_dueMessages.empty()) {
        const Message message = m_dueMessages.front();
        m_dueMessages.pop_front();
        Show(m_shared, m_prompts, message);
    }
    m_showingMessages = false;
}
