#include "app/FormEvents.h"

#include <QTimer>

#include <utility>

FormEvents::FormEvents(LGLOBAL& shared, Prompts& prompts, QWidget* form)
    : QObject(form), m_shared(shared), m_prompts(prompts), m_form(form)
{}

void FormEvents::WatchInputBoxes()
{
    const QList<InputBox*> boxes = m_form->findChildren<InputBox*>();
    for (InputBox* box : boxes) {
        connect(box, &InputBox::MessageDue, this, &FormEvents::ShowLater);
    }
}

void FormEvents::OnClick(QAbstractButton* button, const std::function<void()>& command)
{
    connect(button, &QAbstractButton::pressed, this, [this, button] {
        button->setFocus(Qt::OtherFocusReason);
        m_pressAbandoned = !m_dueMessages.empty();
    });
    connect(button, &QAbstractButton::clicked, this, [this, button, command] {
        const bool abandoned = std::exchange(m_pressAbandoned, false) || m_showingMessages;
        // A check box has changed already: what it shows and what the program holds must stay the same. And
        // an access key presses its button a moment later, when another form may have taken this one's place.
        if (button->isCheckable() || (!abandoned && m_form->isVisible())) {
            command();
        }
    });
}

void FormEvents::ShowLater(const Message& message)
{
    m_dueMessages.push_back(message);
    if (m_dueMessages.size() == 1 && !m_showingMessages) {
        QTimer::singleShot(0, this, &FormEvents::ShowDueMessages);
    }
}

void FormEvents::ShowDueMessages()
{
    m_showingMessages = true;
    while (!m_dueMessages.empty()) {
        const Message message = m_dueMessages.front();
        m_dueMessages.pop_front();
        Show(m_shared, m_prompts, message);
    }
    m_showingMessages = false;
}
