#include "help/HelpDesk.h"

#include "app/WorkingForm.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// Whether a window is the other or stands over it.
bool StandsOver(const QWindow* window, const QWindow* other)
{
    while (window != nullptr && window != other) {
        window = window->transientParent();
    }
    return window == other;
}

} // namespace

HelpDesk::HelpDesk(LGLOBAL& shared, Prompts& prompts, QWidget* menu)
    : QObject(menu), m_shared(shared), m_prompts(prompts)
{
    setObjectName(u"CommonDialog1"_s);
    qApp->installEventFilter(this);
}

HelpDesk::~HelpDesk() = default;

HelpWindow& HelpDesk::MakeWindow()
{
    if (m_window == nullptr) {
        m_window = std::make_unique<HelpWindow>(m_shared, m_prompts);
    }
    return *m_window;
}

void HelpDesk::OpenContents()
{
    MakeWindow().ShowContents();
    BringToFront();
}

void HelpDesk::OpenPageOf(const QString& form)
{
    HelpWindow& window = MakeWindow();
    const QString page = window.Book().PageOfForm(form);
    if (page.isEmpty()) {
        window.ShowContents();
    } else {
        window.ShowPage(page);
    }
    BringToFront();
}

/// The form a widget belongs to: the nearest one around it that has a page, and for the main window itself
/// the form that is shown in it.
QString HelpDesk::FormAround(const QWidget* widget)
{
    const HelpBook& book = MakeWindow().Book();
    for (const QWidget* around = widget; around != nullptr; around = around->parentWidget()) {
        if (around->isWindow()) {
            const QList<WorkingForm*> forms = around->findChildren<WorkingForm*>();
            for (const WorkingForm* form : forms) {
                if (form->isVisible() && !book.PageOfForm(form->objectName()).isEmpty()) {
                    return form->objectName();
                }
            }
        }
        if (!book.PageOfForm(around->objectName()).isEmpty()) {
            return around->objectName();
        }
    }
    return {};
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier) {
            OpenPageOf(FormAround(static_cast<const QWidget*>(watched)));
            return true;
        }
    }
    if (event->type() == QEvent::Hide && watched == m_modal) {
        // The window stays to be read, over the dialog below if there is one.
        BelongTo(nullptr);
        QTimer::singleShot(0, this, [this] {
            if (m_window->isVisible()) {
                BelongTo(QApplication::activeModalWidget());
            }
        });
    }
    return QObject::eventFilter(watched, event);
}

void HelpDesk::BringToFront()
{
    BelongTo(QApplication::activeModalWidget());
    if (m_window->isMinimized()) {
        m_window->showNormal();
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

/// A modal dialog keeps the user from all windows but those that stand over it. So the help stands over the
/// dialog in front, and by itself when there is none.
void HelpDesk::BelongTo(QWidget* modal)
{
    m_window->winId(); // makes the window of the system that the widget is
    QWindow* window = m_window->windowHandle();
    QWindow* below = modal == nullptr ? nullptr : modal->windowHandle();
    if (window->transientParent() == below || StandsOver(below, window)) {
        return;
    }
    const bool visible = m_window->isVisible();
    m_window->hide(); // a window changes its place among others only while it is out of sight
    window->setTransientParent(below);
    m_modal = modal;
    m_window->setVisible(visible);
}
