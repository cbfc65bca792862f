// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#ifdef DABPAINTER_HAVE_DBUS
#include <QDBusMessage>
#endif

namespace dabcanvas::dabpainter {

// Whether the desktop asks for dark windows, as its portal tells where Qt has no theme of that desktop. Without D-Bus, or where
// no portal answers, it does not.
class DesktopScheme : public QObject {
    Q_OBJECT

public:
    // Asks, without waiting for the answer.
    explicit DesktopScheme(QObject* parent = nullptr);

    bool isDark() const { return _isDark; }

signals:
    void changed();

#ifdef DABPAINTER_HAVE_DBUS
private slots:
    void hear(const QDBusMessage& changed);  // of a group, a key and a value

private:
    void ask();
    void take(const QVariant& value);
#endif

private:
    bool _isDark = false;
};

}  // namespace dabcanvas::dabpainter
