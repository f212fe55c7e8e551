#include "picks/CaptionOption.h"

#include <QEvent>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSpaceBesideBox = 3;

/// Where the widest gap of a caption begins, and how many blanks it has.
struct Gap {
    qsizetype start = 0;
    qsizetype length = 0;
};

Gap WidestGap(const QString& caption)
{
    Gap widest;
    static const QRegularExpression blanks(u" +"_s);
    for (auto found = blanks.globalMatch(caption); found.hasNext();) {
        const QRegularExpressionMatch gap = found.next();
        if (gap.capturedLength() > widest.length) {
            widest = {gap.capturedStart(), gap.capturedLength()};
        }
    }
    return widest;
}

} // namespace

QWidget* CaptionOption::Box() const
{
    return findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

QSize CaptionOption::sizeHint() const
{
    const QSize size = QRadioButton::sizeHint();
    return Box() == nullptr ? size : size.expandedTo({0, Box()->sizeHint().height()});
}

QSize CaptionOption::minimumSizeHint() const
{
    return sizeHint();
}

bool CaptionOption::event(QEvent* event)
{
    const bool done = QRadioButton::event(event);
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::Polish:
    case QEvent::Show:
        PlaceBox();
        break;
    default:
        break;
    }
    return done;
}

void CaptionOption::PlaceBox()
{
    QWidget* box = Box();
    if (box == nullptr) {
        return;
    }
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect caption = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    const Gap gap = WidestGap(text());
    const int left = fontMetrics().horizontalAdvance(text().left(gap.start));
    const int width = fontMetrics().horizontalAdvance(QString(gap.length, u' ')) - 2 * kSpaceBesideBox;
    const int height = std::min(this->height(), box->sizeHint().height());
    const QRect place(caption.left() + left + kSpaceBesideBox, (this->height() - height) / 2, width, height);
    box->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}
