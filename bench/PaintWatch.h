#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

/// Notices that a widget was painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    /// Runs events until the widget was painted, and with it all that was due to be painted.
    void WaitForPaint()
    {
        while (!m_painted) {
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
        m_painted = false;
    }

    /// Paintings before this do not count.
    void Forget() { m_painted = false; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_painted = false;
};
