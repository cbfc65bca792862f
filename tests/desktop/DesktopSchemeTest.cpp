// SPDX-License-Identifier: MIT
// What the painter makes of a desktop's answers: run on a session bus of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QDeadlineTimer>

#include "Window/Theme.h"

namespace dabcanvas::dabpainter {

// The settings of a desktop's portal.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QString answered;  // the group and key that were asked for

    explicit Portal(unsigned scheme) : _scheme(scheme) {
        EXPECT_TRUE(_bus.registerObject(kPath, this,
                                        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        EXPECT_TRUE(_bus.registerService(kService));
    }
    ~Portal() override {
        _bus.unregisterService(kService);
        _bus.unregisterObject(kPath);
    }
    void change(const QString& group, unsigned scheme) {
        emit SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(scheme));
    }

public slots:
    QDBusVariant Read(const QString& group, const QString& key) {
        answered = group + QLatin1Char(' ') + key;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(_scheme)));
    }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    static inline const QString kService = QStringLiteral("org.freedesktop.portal.Desktop"),
                                kPath = QStringLiteral("/org/freedesktop/portal/desktop");
    QDBusConnection _bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    unsigned _scheme;
};

namespace {

template <typename Done>
bool waitFor(const Done& done, int milliseconds = 5000) {
    for (const QDeadlineTimer limit(milliseconds); !done() && !limit.hasExpired();)
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
    return done();
}

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");

TEST(DesktopSchemeTest, WindowsAreAsDarkAsTheDesktopAsksFor) {
    for (const unsigned scheme : {0u, 1u, 2u}) {
        SCOPED_TRACE(scheme);
        Portal portal(scheme);
        Theme theme;
        EXPECT_FALSE(theme.isDark());
        ASSERT_TRUE(waitFor([&] { return !portal.answered.isEmpty(); }));
        EXPECT_EQ(portal.answered, kAppearance + " color-scheme");
        EXPECT_EQ(waitFor([&] { return theme.isDark(); }, scheme == 1 ? 5000 : 200), scheme == 1);
        portal.change(QStringLiteral("org.gnome.desktop.interface"), scheme == 1 ? 2 : 1);
        EXPECT_FALSE(waitFor([&] { return theme.isDark() != (scheme == 1); }, 200)) << "another's";
        portal.change(kAppearance, 1);
        ASSERT_TRUE(waitFor([&] { return theme.isDark(); }));
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), darkPalette().color(QPalette::Window));
        theme.setChoice(ThemeChoice::light);
        EXPECT_FALSE(theme.isDark());
        theme.setChoice(ThemeChoice::system);
        portal.change(kAppearance, 2);
        EXPECT_TRUE(waitFor([&] { return !theme.isDark(); }));
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), lightPalette().color(QPalette::Window));
    }
}

TEST(DesktopSchemeTest, WithoutAPortalThePaletteDecides) {
    const Theme theme;
    EXPECT_FALSE(waitFor([&] { return theme.isDark(); }, 300));
}

}  // namespace

}  // namespace dabcanvas::dabpainter

#include "DesktopSchemeTest.moc"
