// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QObject>
#include <functional>
#include <vector>

class QAction;
class QSettings;
class QWidget;

namespace dabcanvas::dabpainter {

// All that the user can have done, and the keys that call it, which are the user's to choose.
class Commands : public QObject {
    Q_OBJECT

public:
    using Keys = QList<QKeySequence>;

    struct Command {
        QString name;   // the settings know it by this: it stays from version to version
        QString group;  // where it is found, as shown
        QAction* action;
        Keys usual;
    };

    // The keys hold in the whole window, whether its menu bar is shown or not.
    explicit Commands(QWidget& window);

    QAction* add(const QString& name, const QString& group, const QString& text, const Keys& keys,
                 const std::function<void()>& act);
    // A key that does something as long as it is held down; whoever watches the keyboard asks the action for it.
    QAction* addHeld(const QString& name, const QString& group, const QString& text, const QKeySequence& key);
    // What another made; the keys that it has are its usual ones.
    void take(const QString& name, const QString& group, QAction* action);

    const std::vector<Command>& all() const { return _all; }
    const Command* find(const QString& name) const;
    // Another one that this key calls already.
    const Command* holder(const QKeySequence& key, const Command& besides) const;
    // Whoever else has one of them loses it.
    void setKeys(const Command& command, const Keys& keys);
    void resetKeys();

    // Keeps what differs from the usual.
    void read(QSettings& settings);
    void write(QSettings& settings) const;

signals:
    void keysChanged();

private:
    QWidget& _window;
    std::vector<Command> _all;
};

inline QKeySequence key(const char* text) {
    return QKeySequence(QString::fromLatin1(text));
}

// Of a menu or a command, without the mark of the letter that chooses it.
inline QString plain(QString title) {
    return title.remove(QLatin1Char('&'));
}

}  // namespace dabcanvas::dabpainter
