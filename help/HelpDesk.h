#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"
#include "help/HelpWindow.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

/// Opens the help: at its contents, or, when F1 is pressed anywhere in the program, at the page of the form
/// or dialog in front. The window is made when it is first wanted; the start of the program does not pay for
/// it.
class HelpDesk : public QObject
{
    Q_OBJECT

public:
    /// @param menu  the form whose button opens the help; it owns the desk
    HelpDesk(LGLOBAL& shared, Prompts& prompts, QWidget* menu);
    ~HelpDesk() override;

    /// Opens the help file at its contents.
    void OpenContents();

    /// Opens the page of a form by the form's object name; a form without a page opens the contents.
    void OpenPageOf(const QString& form);

    /// The window; none before the help was opened first.
    [[nodiscard]] HelpWindow* Window() const { return m_window.get(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    HelpWindow& MakeWindow();
    [[nodiscard]] QString FormAround(const QWidget* widget);
    void BringToFront();
    void BelongTo(QWidget* modal);

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    std::unique_ptr<HelpWindow> m_window;
    QPointer<QWidget> m_modal; ///< the dialog the window is shown over; none when it stands by itself
};
