#pragma once

#include "app/FormSwitcher.h"
#include "app/InputBox.h"
#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QAbstractButton>
#include <QWidget>

#include <deque>
#include <functional>

/// A panel that takes the main window's place while the user works in it. There is one of each, made when it
/// is first needed and used again.
class WorkingForm : public QWidget
{
    Q_OBJECT

public:
    WorkingForm(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent);

    /// Brings the form to its first state. Called each time it is opened, before it is shown.
    virtual void Load() = 0;

    /// Where the form stands in the main window's left upper corner, in twips, when it comes to the front.
    [[nodiscard]] virtual QPoint FrontPlace() const;

    /// Where a working form is moved when the main window is resized, in twips. The small layout's negative
    /// place hides the form's border behind the window's edge.
    [[nodiscard]] static QPoint ResizedPlace(qint32 layoutSize);

protected:
    [[nodiscard]] LGLOBAL& Shared() const { return m_shared; }
    [[nodiscard]] Prompts& Asking() const { return m_prompts; }
    [[nodiscard]] FormSwitcher& Switcher() const { return m_switcher; }

    /// Connects all input boxes of the form, once their widgets exist, so that their messages come after the
    /// event that made them due: a message in the middle of a mouse click would swallow its end.
    void WatchInputBoxes();

    /// Lets a button run a command. The button takes the focus first, so that the box the user typed in is
    /// checked also when the button is reached by its access key; when that check brings a message, the
    /// command is not run.
    void OnClick(QAbstractButton* button, const std::function<void()>& command);

    /// Shows a message as soon as the events that are under way are done.
    void ShowLater(const Message& message);

private:
    void ShowDueMessages();

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    FormSwitcher& m_switcher;
    std::deque<Message> m_dueMessages;
    bool m_showingMessages = false;
    bool m_pressAbandoned = false; ///< the button that is down was reached past a box whose message is due
};
