#include "app/PlainGroupBox.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include <algorithm>

void PlainGroupBox::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionGroupBox box;
    initStyleOption(&box);
    const auto place = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_GroupBox, &box, part, this);
    };
    QStylePainter painter(this);
    painter.drawItemText(place(QStyle::SC_GroupBoxLabel), int(Qt::AlignCenter) | Qt::TextShowMnemonic,
                         palette(), isEnabled(), title(), QPalette::WindowText);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = place(QStyle::SC_GroupBoxFrame);
    frame.rect.setTop(
        std::max(frame.rect.top(), place(QStyle::SC_GroupBoxLabel).bottom() + 3)); // below the title
    frame.lineWidth = 1;
    frame.frameShape = QFrame::StyledPanel;
    painter.drawPrimitive(QStyle::PE_Frame, frame);
}
