#include "app/Animations.h"

#include "app/DesktopStillness.h"

#include <QStyle>
#include <QWidget>

bool AnimationsAreWanted(const QWidget& widget)
{
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0 &&
           !DesktopWantsStillness();
}
