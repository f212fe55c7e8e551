#include "app/InputPause.h"

#include "app/InputEvents.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

InputPause::InputPause(QWidget& form, Prompts& prompts, std::function<void()> endNow)
    : m_form(form), m_prompts(prompts), m_endNow(std::move(endNow))
{}

InputPause::~InputPause()
{
    End();
}

void InputPause::Begin()
{
    m_on = true;
    m_prompts.SetBusyPointer(true);
    qApp->installEventFilter(this);
}

void InputPause::End()
{
    if (std::exchange(m_on, false)) {
        qApp->removeEventFilter(this);
        m_prompts.SetBusyPointer(false);
    }
}

bool InputPause::eventFilter(QObject* watched, QEvent* event)
{
    // Both the window's own object, which gets a click before it moves the focus, and the widgets, which get
    // their access keys without it.
    const auto* widget = qobject_cast<QWidget*>(watched);
    const QWidget* window = m_form.window();
    if (watched != window->windowHandle() && (widget == nullptr || widget->window() != window)) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Close) {
        m_endNow(); // what is asked before the program ends is asked over what was made
        return false;
    }
    if (watched == &m_form && event->type() == QEvent::Hide && !event->spontaneous()) {
        m_endNow();
        return false;
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        m_endNow();
        return true;
    }
    return IsInput(event->type());
}
