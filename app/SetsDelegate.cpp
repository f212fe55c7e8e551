#include "app/SetsDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

void SetsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QString text = cell.text.trimmed();
    cell.text.clear();
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    QRect room(0, 0, cell.fontMetrics.horizontalAdvance(u"60"_s), cell.rect.height());
    room.moveCenter(cell.rect.center());
    painter->save();
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(QPalette::Text)); // the model's colour, where it names one
    painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, text);
    painter->restore();
}
