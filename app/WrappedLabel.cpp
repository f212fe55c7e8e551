#include "app/WrappedLabel.h"

#include <QEvent>

#include <algorithm>

namespace {

/// Follows a label: its size, and its text, which shows by its being painted.
class WholeText : public QObject
{
public:
    explicit WholeText(QLabel& label) : QObject(&label), m_label(label), m_least(label.minimumHeight())
    {
        label.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (m_label.isVisible() &&
            (type == QEvent::Show || type == QEvent::Resize || type == QEvent::Paint)) {
            const int needed = std::max(m_least, Needed());
            if (needed != m_label.minimumHeight()) {
                m_label.setMinimumHeight(needed);
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    // Not heightForWidth(), which never becomes less than the height set here.
    [[nodiscard]] int Needed() const
    {
        constexpr int kMoreThanAnyText = 10000;
        const int frame = 2 * (m_label.margin() + m_label.frameWidth());
        const QRect room(0, 0, m_label.width() - frame, kMoreThanAnyText);
        const int flags = int(m_label.alignment()) | Qt::TextWordWrap | Qt::TextShowMnemonic;
        return m_label.fontMetrics().boundingRect(room, flags, m_label.text()).height() + frame;
    }

    QLabel& m_label;
    int m_least;
};

} // namespace

void KeepWholeTextInSight(QLabel& label)
{
    new WholeText(label); // belongs to the label
}
