#pragma once

#include "app/WorkingForm.h"

#include <QLabel>
#include <QMimeData>
#include <QObject>

#include <functional>

/// What a drag over the window would do.
struct DropOffer {
    QString path;   ///< the file that would be opened; "" when nothing would
    QString reason; ///< why not, for the user
};

/// What dropping this on the form would do: one database or one statement opens, where the form takes it.
/// @param form  the one that is shown; none takes nothing
[[nodiscard]] DropOffer JudgeDrop(const QMimeData& data, const WorkingForm* form);

/// Whether a dialog, a menu or a calculation is under way, so that no file can be opened now.
[[nodiscard]] bool IsBusy();

/// Opens a file that is dropped on the main window. While something is dragged over it, a line at its lower
/// edge says what would happen, and the pointer says whether. Under a modal dialog nothing happens.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// @param form  gives the form that is shown, or none
    /// @param open  opens the file, once the drop is done
    FileDrop(QWidget& window, std::function<const WorkingForm*()> form,
             std::function<void(const QString& path)> open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] DropOffer Judge(const QMimeData& data) const;
    void Dragged(QDropEvent& event, bool entered);
    void Dropped(QDropEvent& event);
    void Say(const DropOffer& offer);
    void SayNothing();

    QWidget& m_window;
    std::function<const WorkingForm*()> m_form;
    std::function<void(const QString& path)> m_open;
    QLabel* m_line = nullptr; ///< made with the first drag
};
