#include "invest/StatementView.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

/// Shows the current cell as the place that takes input: green as the input boxes are, with black text, and
/// with a dotted line around it.
class CurrentCellDelegate : public QStyledItemDelegate
{
public:
    explicit CurrentCellDelegate(QTableView* view) : QStyledItemDelegate(view), m_view(view) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (index != m_view->currentIndex()) {
            return;
        }
        painter->save();
        painter->setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
        if (index == m_view->currentIndex()) {
            option->backgroundBrush = QColor(0x80, 0xFF, 0x80);
            option->palette.setColor(QPalette::Text, Qt::black);
            option->textElideMode = Qt::ElideLeft; // the end is where the user types
        }
    }

private:
    QTableView* m_view;
};

bool HasCommandKey(const QKeyEvent& key)
{
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != Qt::NoModifier;
}

bool IsCommand(const QKeyEvent& key)
{
    const Qt::KeyboardModifiers held = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return held == Qt::ControlModifier || held == Qt::AltModifier; // both together type, as AltGr
}

} // namespace

StatementView::StatementView(QWidget* parent) : QTableView(parent)
{
    setItemDelegate(new CurrentCellDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection); // the current cell is all there is
    setTabKeyNavigation(false);                       // Tab leads on to the buttons
    setProperty("needsFocusLine", true);              // the current cell shows without the focus too
}

void StatementView::Refuse()
{
    QApplication::beep();
    Q_EMIT KeyRefused();
}

void StatementView::WidenColumn(int column, const QString& usual)
{
    constexpr int kMargins = 12;
    const int width = fontMetrics().horizontalAdvance(usual) + kMargins;
    horizontalHeader()->resizeSection(
        column, std::max({width, horizontalHeader()->sectionSizeHint(column), sizeHintForColumn(column)}));
}

void StatementView::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT EnterPressed();
    } else if (event->key() == Qt::Key_Backspace) {
        if (!HasCommandKey(*event)) { // elsewhere Ctrl takes a word away and Alt takes back: not here
            Q_EMIT BackspacePressed();
        }
    } else if (!IsCommand(*event) && !text.isEmpty() && text.front().category() != QChar::Other_Control) {
        Q_EMIT Typed(text);
    } else {
        QTableView::keyPressEvent(event);
    }
}

void StatementView::inputMethodEvent(QInputMethodEvent* event)
{
    // Dead keys and the like: not to the base class, which would open an editor.
    if (!event->commitString().isEmpty()) {
        Q_EMIT Typed(event->commitString());
    }
    event->accept();
}

void StatementView::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled); // the base class takes a grid without editors for one to read
}

void StatementView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->update(); // the dotted line and the shortened end of a text move
}
