#pragma once

#include <QStyledItemDelegate>

/// A page that a search found: its title in bold letters, below it a piece of its text over several lines.
class HitDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int kSnippetRole = Qt::UserRole + 2;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
