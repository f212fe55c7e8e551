#include "app/PortalStillness.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

/// The value of one setting of the desktop; invalid when there is none.
QVariant Setting(const QDBusConnection& bus, const QString& group, const QString& key)
{
    constexpr int kMoment = 100; // milliseconds: who waits longer sees a window that hangs
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s,
                                                       u"/org/freedesktop/portal/desktop"_s,
                                                       u"org.freedesktop.portal.Settings"_s, u"Read"_s);
    call.setAutoStartService(false); // a desktop has it running; no other is made to start it
    call << group << key;
    const QDBusMessage answer = bus.call(call, QDBus::Block, kMoment);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) {
        return {};
    }
    QVariant value = answer.arguments().constFirst();
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) { // wrapped twice by most desktops
        value = qvariant_cast<QDBusVariant>(value).variant();
    }
    return value;
}

} // namespace

bool PortalWantsStillness(const QDBusConnection& bus)
{
    if (!bus.isConnected()) {
        return false;
    }
    const QVariant animations = Setting(bus, u"org.gnome.desktop.interface"_s, u"enable-animations"_s);
    if (animations.metaType() == QMetaType::fromType<bool>()) {
        return !animations.toBool();
    }
    bool isNumber = false;
    const double speed =
        Setting(bus, u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s).toDouble(&isNumber);
    return isNumber && speed == 0;
}
