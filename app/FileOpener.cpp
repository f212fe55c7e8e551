#include "app/FileOpener.h"

#include <QApplication>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QTimer>

#include <utility>

FileOpener::FileOpener(std::function<void(const QString& path)> open) : m_open(std::move(open))
{
    qApp->installEventFilter(this);
}

bool FileOpener::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::FileOpen || watched != qApp) {
        return QObject::eventFilter(watched, event);
    }
    const QString file = static_cast<QFileOpenEvent*>(event)->file();
    if (file.isEmpty() || QApplication::activeModalWidget() != nullptr) {
        QApplication::beep();
        return true;
    }
    // Opening may ask a question, which must not run inside the event.
    QTimer::singleShot(0, this, [this, path = QFileInfo(file).absoluteFilePath()] { m_open(path); });
    return true;
}
