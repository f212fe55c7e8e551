#include "help/HitDelegate.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

namespace {

constexpr int kRowMargin = 5;
constexpr int kWrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
constexpr int kAnyHeight = 10000;

QFont TitleFont(QFont font)
{
    font.setBold(true);
    return font;
}

QRect TitleRect(const QFont& font, const QString& title, int width)
{
    return QFontMetrics(TitleFont(font)).boundingRect(QRect(0, 0, width, kAnyHeight), kWrapped, title);
}

} // namespace

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString title = row.text;
    row.text.clear();
    const QWidget* view = row.widget;
    QStyle* style = view == nullptr ? QApplication::style() : view->style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, view);

    const bool selected = row.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        row.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    QRect room = row.rect.adjusted(kRowMargin, kRowMargin, -kRowMargin, -kRowMargin);
    painter->save();
    painter->setPen(row.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(TitleFont(row.font));
    painter->drawText(room, kWrapped, title);
    room.setTop(room.top() + TitleRect(row.font, title, room.width()).height());
    painter->setFont(row.font);
    painter->drawText(room, kWrapped, index.data(kSnippetRole).toString());
    painter->restore();
}

QSize HitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* view = qobject_cast<const QListView*>(option.widget);
    const int width = (view == nullptr ? option.rect.width() : view->viewport()->width()) - 2 * kRowMargin;
    const QRect snippet = option.fontMetrics.boundingRect(QRect(0, 0, width, kAnyHeight), kWrapped,
                                                          index.data(kSnippetRole).toString());
    const int title = TitleRect(option.font, index.data().toString(), width).height();
    return {width, title + snippet.height() + 2 * kRowMargin};
}
