#pragma once

#include <QStyledItemDelegate>

/// Draws a number over the whole width of its cell, narrower where it would not fit: a value cut to "2..."
/// would be a wrong value.
class CountsDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
