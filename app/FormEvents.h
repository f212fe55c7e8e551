#pragma once

#include "app/InputBox.h"
#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QAbstractButton>
#include <QObject>
#include <QWidget>

#include <deque>
#include <functional>

/// The order in which the events of one form take effect: its input boxes are checked, their messages are
/// shown, and only then commands run.
class FormEvents : public QObject
{
    Q_OBJECT

public:
    FormEvents(LGLOBAL& shared, Prompts& prompts, QWidget* form);

    /// Connects all input boxes of the form, once its widgets exist, so that their messages come after the
    /// event that made them due: a message in the middle of a mouse click would swallow its end.
    void WatchInputBoxes();

    /// Lets a button run a command. The button takes the focus first, so that the box the user typed in is
    /// checked also when the button is reached by its access key; when that check brings a message, the
    /// command is not run. What a check box or option button stands for is always done, since it shows it.
    void OnClick(QAbstractButton* button, const std::function<void()>& command);

    /// Shows a message as soon as the events that are under way are done.
    void ShowLater(const Message& message);

private:
    void ShowDueMessages();

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    QWidget* m_form;
    std::deque<Message> m_dueMessages;
    bool m_showingMessages = false;
    bool m_pressAbandoned = false; ///< the button that is down was reached past a box whose message is due
};
