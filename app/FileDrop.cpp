#include "app/FileDrop.h"

#include "app/FileNames.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QTimer>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool HasOurEnding(const QString& path)
{
    return path.endsWith(u".lto"_s, Qt::CaseInsensitive) || IsStatementFileName(path);
}

} // namespace

bool IsBusy()
{
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
           QApplication::overrideCursor() != nullptr;
}

DropOffer JudgeDrop(const QMimeData& data, const WorkingForm* form)
{
    const QList<QUrl> dropped = data.urls();
    if (dropped.isEmpty()) {
        return {.path = {}, .reason = u"Only files can be dropped here."_s};
    }
    if (dropped.size() > 1) {
        return {.path = {}, .reason = u"Only one file can be opened at a time."_s};
    }
    const QString path = dropped.first().toLocalFile();
    if (path.isEmpty()) {
        return {.path = {}, .reason = u"Only files on this computer can be opened."_s};
    }
    if (!HasOurEnding(path)) {
        return {.path = {},
                .reason = u"Only lottery databases (.Lto) and statements (.inv) can be opened."_s};
    }
    if (form == nullptr || !form->OpensDropped(path)) {
        return {.path = {}, .reason = u"Go back to the menu first: there the file can be opened."_s};
    }
    return {.path = path, .reason = {}};
}

FileDrop::FileDrop(QWidget& window, std::function<const WorkingForm*()> form,
                   std::function<void(const QString& path)> open)
    : QObject(&window), m_window(window), m_form(std::move(form)), m_open(std::move(open))
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

DropOffer FileDrop::Judge(const QMimeData& data) const
{
    return JudgeDrop(data, m_form());
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        Dragged(*static_cast<QDropEvent*>(event), true);
        return true;
    case QEvent::DragMove:
        Dragged(*static_cast<QDropEvent*>(event), false);
        return true;
    case QEvent::DragLeave:
        SayNothing();
        return true;
    case QEvent::Drop:
        Dropped(*static_cast<QDropEvent*>(event));
        return true;
    case QEvent::WindowBlocked: // a dialog has opened meanwhile
        SayNothing();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FileDrop::Dragged(QDropEvent& event, bool entered)
{
    if (IsBusy()) {
        event.ignore();
        SayNothing();
        return;
    }
    const DropOffer offer = Judge(*event.mimeData());
    Say(offer);
    // The entry is always accepted: only then the window hears when the drag leaves. The pointer goes by the
    // moves.
    if (offer.path.isEmpty()) {
        event.setDropAction(Qt::IgnoreAction);
        event.setAccepted(entered);
    } else {
        event.setDropAction(Qt::CopyAction); // never moved away from where it is
        event.accept();
    }
}

void FileDrop::Dropped(QDropEvent& event)
{
    SayNothing();
    const DropOffer offer = IsBusy() ? DropOffer{} : Judge(*event.mimeData());
    if (offer.path.isEmpty()) {
        event.ignore();
        return;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    // What opening asks must not keep the other program waiting for the end of its drag.
    QTimer::singleShot(0, this, [this, path = offer.path] {
        const WorkingForm* form = m_form();
        if (!IsBusy() && form != nullptr && form->OpensDropped(path)) {
            m_open(path);
        }
    });
}

void FileDrop::Say(const DropOffer& offer)
{
    if (m_line == nullptr) {
        m_line = new QLabel(&m_window);
        m_line->setObjectName(u"DropLine"_s);
        m_line->setTextFormat(Qt::PlainText);
        m_line->setAlignment(Qt::AlignCenter);
        m_line->setWordWrap(true);
        m_line->setMargin(8);
        m_line->setAutoFillBackground(true);
        m_line->setBackgroundRole(QPalette::Highlight);
        m_line->setForegroundRole(QPalette::HighlightedText);
        m_line->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    m_line->setText(offer.path.isEmpty() ? offer.reason
                                         : u"Drop to open \"%1\"."_s.arg(QFileInfo(offer.path).fileName()));
    const int height = m_line->heightForWidth(m_window.width());
    m_line->setGeometry(0, m_window.height() - height, m_window.width(), height);
    m_line->show();
    m_line->raise();
}

void FileDrop::SayNothing()
{
    if (m_line != nullptr) {
        m_line->hide();
    }
}
