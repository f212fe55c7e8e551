#pragma once

#include "app/Prompts.h"

#include <QObject>

#include <functional>

class QWidget;

/// Keeps input from a form's main window, under the busy pointer, while the form shows something that the
/// user only watches. The window is painted, and it can be closed; other windows, a question for one, take
/// input.
///
/// A form holds it as a member, so that it is gone before the form's widgets are.
class InputPause : public QObject
{
    Q_OBJECT

public:
    /// @param endNow  has to bring what is shown to its end, and with it End(). It is called when the user
    ///                presses Escape, when the window is about to close and when the form is put out of
    ///                sight.
    InputPause(QWidget& form, Prompts& prompts, std::function<void()> endNow);
    /// Input is taken again, and endNow is not called any more.
    ~InputPause() override;

    void Begin();
    /// Nothing happens when input is taken already.
    void End();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_form;
    Prompts& m_prompts;
    std::function<void()> m_endNow;
    bool m_on = false;
};
