#include "app/PortalStillness.h"

#include <QDBusVariant>
#include <QMap>
#include <QProcess>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Answers as a desktop's settings do.
class Desktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QMap<QString, QVariant> settings; ///< by group and key with a blank between

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key)
    {
        const QVariant value = settings.value(group + u' ' + key);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value.isValid() ? value : u"unknown"_s)));
    }
};

/// A bus of its own with such a desktop on it.
class PortalStillness : public testing::Test
{
protected:
    void SetUp() override
    {
        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        if (!m_daemon.waitForStarted() || !m_daemon.waitForReadyRead()) {
            GTEST_SKIP() << "dbus-daemon does not start; it comes with the package dbus";
        }
        const QString address = QString::fromLocal8Bit(m_daemon.readLine()).trimmed();
        m_bus = QDBusConnection::connectToBus(address, u"portal test"_s);
        ASSERT_TRUE(m_bus.isConnected());
        ASSERT_TRUE(m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &m_desktop,
                                         QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(m_bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }

    void TearDown() override
    {
        QDBusConnection::disconnectFromBus(u"portal test"_s);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QProcess m_daemon;
    QDBusConnection m_bus{u"none"_s};
    Desktop m_desktop;
};

TEST_F(PortalStillness, IsWantedWhereTheSwitchForAnimationsIsOff)
{
    m_desktop.settings[u"org.gnome.desktop.interface enable-animations"_s] = false;
    EXPECT_TRUE(PortalWantsStillness(m_bus));
    m_desktop.settings[u"org.gnome.desktop.interface enable-animations"_s] = true;
    EXPECT_FALSE(PortalWantsStillness(m_bus));
}

TEST_F(PortalStillness, IsWantedWhereAnimationsTakeNoTime)
{
    m_desktop.settings[u"org.kde.kdeglobals.KDE AnimationDurationFactor"_s] = u"0"_s;
    EXPECT_TRUE(PortalWantsStillness(m_bus));
    m_desktop.settings[u"org.kde.kdeglobals.KDE AnimationDurationFactor"_s] = u"0.5"_s;
    EXPECT_FALSE(PortalWantsStillness(m_bus));
}

TEST_F(PortalStillness, IsNotWantedWhereTheDesktopKnowsNeither)
{
    EXPECT_FALSE(PortalWantsStillness(m_bus));
    m_bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
    EXPECT_FALSE(PortalWantsStillness(m_bus));
    EXPECT_FALSE(PortalWantsStillness(QDBusConnection(u"none"_s)));
}

} // namespace

#include "PortalStillnessTest.moc"
