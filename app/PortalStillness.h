#pragma once

#include <QDBusConnection>

/// Asks the desktop's settings, as programs in sandboxes do too, whether animations are switched off: the
/// switch of GNOME and its relatives, and the speed of KDE.
/// @return false when nobody is there to ask, or does not answer within a moment.
[[nodiscard]] bool PortalWantsStillness(const QDBusConnection& bus);
