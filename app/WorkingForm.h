#pragma once

#include "app/FormEvents.h"
#include "app/FormSwitcher.h"
#include "app/LGLOBAL.h"
#include "app/Prompts.h"
#include "app/RecoveryCopies.h"

#include <QWidget>

/// A panel that takes the main window's place while the user works in it. There is one of each, made when it
/// is first needed and used again.
class WorkingForm : public QWidget
{
    Q_OBJECT

public:
    WorkingForm(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent);

    /// Brings the form to its first state. Called each time it is opened, before it is shown.
    virtual void Load() = 0;

    /// Opens a file that was named outside, as on the command line. A form without files does nothing.
    virtual void OpenNamedFile(const QString& path) { Q_UNUSED(path) }

    /// Takes work that was recovered after an unclean end, as work that is not saved. A form that holds none
    /// refuses. On failure the form is as before and the reason says what is wrong.
    [[nodiscard]] virtual Outcome TakeRecovered(const RecoveredWork& work);

    /// Whether a file dropped on the form can be opened now, without harm to what the user is doing.
    [[nodiscard]] virtual bool OpensDropped(const QString& path) const
    {
        Q_UNUSED(path)
        return false;
    }

    /// The file that the form works on, with its folder as far as it is known; "" for none.
    [[nodiscard]] virtual QString FilePath() const;

    /// Asked before the program ends while the form is shown: a form that holds what is not saved asks the
    /// user.
    /// @return false when the user wants to go back.
    [[nodiscard]] virtual bool MayClose() { return true; }

    /// Where the form stands in the main window's left upper corner, in twips, when it comes to the front.
    [[nodiscard]] virtual QPoint FrontPlace() const;

    /// Where a working form is moved when the main window is resized, in twips. The small layout's negative
    /// place hides the form's border behind the window's edge.
    [[nodiscard]] static QPoint ResizedPlace(qint32 layoutSize);

protected:
    [[nodiscard]] LGLOBAL& Shared() const { return m_shared; }
    [[nodiscard]] Prompts& Asking() const { return m_prompts; }
    [[nodiscard]] FormSwitcher& Switcher() const { return m_switcher; }
    [[nodiscard]] FormEvents& Events() const { return *m_events; }

private:
    LGLOBAL& m_shared;
    Prompts& m_prompts;
    FormSwitcher& m_switcher;
    FormEvents* m_events;
};
