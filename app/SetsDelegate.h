#pragma once

#include <QStyledItemDelegate>

/// Draws the numbers of a set right-justified in the room of two digits, which stands in the middle of its
/// column under the heading.
class SetsDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
