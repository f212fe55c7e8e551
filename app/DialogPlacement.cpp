#include "app/DialogPlacement.h"

#include "app/LGLOBAL.h"
#include "app/Twips.h"

#include <QScreen>

#include <algorithm>

void PlaceDialog(QWidget& dialog, const QWidget* mainWindow, qint32 layoutSize, const DialogOffsets& offsets)
{
    if (mainWindow == nullptr) {
        return;
    }
    while (const QWidget* above =
               mainWindow->parentWidget()) { // a message over a dialog: not from the dialog
        mainWindow = above->window();
    }
    const QPoint twips = layoutSize < kLargeLayoutFrom ? offsets.smallLayout : offsets.largeLayout;
    const int density = mainWindow->logicalDpiX();
    QPoint place = mainWindow->frameGeometry().topLeft() +
                   QPoint(TwipsToPixels(twips.x(), density), TwipsToPixels(twips.y(), density));
    if (const QScreen* screen = mainWindow->screen()) {
        const QRect room = screen->availableGeometry();
        const QSize size = dialog.frameSize();
        place.setX(
            std::clamp(place.x(), room.left(), std::max(room.left(), room.right() + 1 - size.width())));
        place.setY(
            std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() + 1 - size.height())));
    }
    dialog.move(place);
}
