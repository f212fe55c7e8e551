#include "app/DesktopStillness.h"

#if defined(QUILLABY_PORTAL)
#include "app/PortalStillness.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

bool DesktopWantsStillness()
{
    // Without a bus the library would start one, and leave it behind.
    const bool hasBus = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
                        QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
    return hasBus && PortalWantsStillness(QDBusConnection::sessionBus());
}
#elif defined(Q_OS_WIN) || defined(_WIN32)
#include <windows.h>

bool DesktopWantsStillness()
{
    BOOL moves = TRUE;
    return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &moves, 0) != FALSE && moves == FALSE;
}
#else
bool DesktopWantsStillness()
{
    return false;
}
#endif
