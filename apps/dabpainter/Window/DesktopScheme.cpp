// SPDX-License-Identifier: MIT
#include "Window/DesktopScheme.h"

#ifdef DABPAINTER_HAVE_DBUS
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#endif

namespace dabcanvas::dabpainter {

#ifdef DABPAINTER_HAVE_DBUS

namespace {

constexpr char kService[] = "org.freedesktop.portal.Desktop", kPath[] = "/org/freedesktop/portal/desktop",
               kSettings[] = "org.freedesktop.portal.Settings";
constexpr char kGroup[] = "org.freedesktop.appearance", kKey[] = "color-scheme";
constexpr unsigned kDark = 1;  // 0: no preference, 2: light

// Else a bus would be started for the question.
bool hasSession() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

}  // namespace

DesktopScheme::DesktopScheme(QObject* parent) : QObject(parent) {
    if (!hasSession() || !QDBusConnection::sessionBus().isConnected())
        return;
    QDBusConnection::sessionBus().connect(kService, kPath, kSettings, QStringLiteral("SettingChanged"), this,
                                          SLOT(hear(QDBusMessage)));
    ask();
}

void DesktopScheme::ask() {
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kSettings, QStringLiteral("Read"));
    call << QString::fromLatin1(kGroup) << QString::fromLatin1(kKey);
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        const QDBusPendingReply<QDBusVariant> reply = *done;
        done->deleteLater();
        if (!reply.isError())
            take(reply.value().variant());
    });
}

void DesktopScheme::hear(const QDBusMessage& changed) {
    const QList<QVariant> told = changed.arguments();
    if (told.size() == 3 && told[0].toString() == QLatin1String(kGroup) &&
        told[1].toString() == QLatin1String(kKey))
        take(told[2]);
}

// Wrapped, as a variant is on its way.
void DesktopScheme::take(const QVariant& value) {
    const QVariant bare = value.metaType() == QMetaType::fromType<QDBusVariant>()
                              ? value.value<QDBusVariant>().variant()
                              : value;
    const bool isDark = bare.toUInt() == kDark;
    if (isDark == _isDark)
        return;
    _isDark = isDark;
    emit changed();
}

#else

DesktopScheme::DesktopScheme(QObject* parent) : QObject(parent) {}

#endif

}  // namespace dabcanvas::dabpainter
