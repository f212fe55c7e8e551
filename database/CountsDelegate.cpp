#include "database/CountsDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

void CountsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QString text = cell.text;
    cell.text.clear();
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    if (text.isEmpty()) {
        return;
    }

    painter->save();
    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    painter->setPen(cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const qreal room = cell.rect.width() - 2;
    const qreal needed = cell.fontMetrics.horizontalAdvance(text);
    if (needed > room) {
        QFont narrower(cell.font);
        narrower.setPixelSize(std::max(1, static_cast<int>(cell.fontMetrics.ascent() * room / needed)));
        painter->setFont(narrower);
    } else {
        painter->setFont(cell.font);
    }
    painter->drawText(cell.rect, Qt::AlignCenter | Qt::TextDontClip, text);
    painter->restore();
}

QSize CountsDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    constexpr int kWidestValue = 2001;
    size.setWidth(option.fontMetrics.horizontalAdvance(QString::number(kWidestValue)) + 2);
    return size;
}
