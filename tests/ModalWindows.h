#pragma once

#include <QApplication>
#include <QList>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <functional>

/// Gives a window the keyboard, as a desktop does with a new window and with the one behind a closed dialog,
/// and waits until it has it: only then its widgets get their focus events.
[[nodiscard]] inline bool Activate(QWidget& window)
{
    window.activateWindow();
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

/// Runs @p act on the first modal window that is none of @p before, unless @p owner is gone by then. The act
/// has to close the window: one that stays open fails the test and is closed. The window that shows how far
/// long work is does not count.
inline void WhenModalIsNoneOf(const QList<QPointer<QWidget>>& before,
                              const std::function<void(QWidget*)>& act, QObject* owner)
{
    auto* timer = new QTimer(owner);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act, before] {
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        if (modal == nullptr || before.contains(modal) || modal->objectName() == QStringLiteral("Progress")) {
            return;
        }
        timer->stop();
        timer->deleteLater();
        EXPECT_TRUE(Activate(*modal));
        act(modal);
        if (!QTest::qWaitFor([&] { return modal == nullptr || !modal->isVisible(); }, 3000)) {
            ADD_FAILURE() << "the window stayed open: " << modal->objectName().toStdString();
            modal->close();
        }
    });
    timer->start(5);
}

/// Runs @p act on the modal window that is open, or opens first.
inline void WhenModalOpens(const std::function<void(QWidget*)>& act, QObject* owner = qApp)
{
    WhenModalIsNoneOf({}, act, owner);
}

/// Runs @p act on the modal window that opens next; those that are open now do not count.
inline void WhenNextModalOpens(const std::function<void(QWidget*)>& act, QObject* owner = qApp)
{
    QList<QPointer<QWidget>> open;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isModal() && window->isVisible()) {
            open << window;
        }
    }
    WhenModalIsNoneOf(open, act, owner);
}
