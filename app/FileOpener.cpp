#include "app/FileOpener.h"

#include "app/FileDrop.h"

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
    // Opening may ask a question, which must not run inside the event.
    QTimer::singleShot(0, this, [this, path = file.isEmpty() ? file : QFileInfo(file).absoluteFilePath()] {
        if (path.isEmpty() || IsBusy()) {
            QApplication::beep();
        } else {
            m_open(path);
        }
    });
    return true;
}
