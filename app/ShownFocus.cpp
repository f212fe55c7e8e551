#include "app/ShownFocus.h"

#include <QApplication>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

/// The line, over everything else in the widget it belongs to.
class FocusLine : public QWidget
{
public:
    explicit FocusLine(QWidget* of) : QWidget(of)
    {
        setObjectName(u"qt_focusline"_s); // a part of that widget, not of the form
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(of->rect());
        of->installEventFilter(this);
        show();
        raise();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        constexpr int kWidth = 2;
        QPainter painter(this);
        painter.setPen(
            QPen(palette().color(QPalette::Highlight), kWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize) {
            setGeometry(parentWidget()->rect());
        }
        return QWidget::eventFilter(watched, event);
    }
};

bool NeedsLine(const QWidget* widget)
{
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget)) {
        return plain->isReadOnly();
    }
    if (const auto* text = qobject_cast<const QTextEdit*>(widget)) {
        return text->isReadOnly();
    }
    // A table that marks its current cell at all times looks the same without the focus.
    return qobject_cast<const QScrollArea*>(widget) != nullptr ||
           (widget != nullptr && widget->property("needsFocusLine").toBool());
}

} // namespace

void InstallShownFocus()
{
    QObject::connect(qApp, &QApplication::focusChanged, qApp,
                     [line = QPointer<FocusLine>()](QWidget* /*left*/, QWidget* now) mutable {
                         delete line;
                         line = NeedsLine(now) ? new FocusLine(now) : nullptr;
                     });
}
