// SPDX-License-Identifier: MIT
#include "Window/Commands.h"

#include <QAction>
#include <QSettings>
#include <QWidget>
#include <algorithm>

namespace dabcanvas::dabpainter {

namespace {

QString settingOf(const Commands::Command& command) {
    return QStringLiteral("keys/") + command.name;
}

QString textOf(const Commands::Keys& keys) {
    return QKeySequence::listToString(keys, QKeySequence::PortableText);
}

}  // namespace

Commands::Commands(QWidget& window) : QObject(&window), _window(window) {}

QAction* Commands::add(const QString& name, const QString& group, const QString& text, const Keys& keys,
                       const std::function<void()>& act) {
    auto* action = new QAction(text, this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, act);
    _window.addAction(action);
    take(name, group, action);
    return action;
}

// No widget has the action, so that nothing but its holder listens to the key.
QAction* Commands::addHeld(const QString& name, const QString& group, const QString& text,
                           const QKeySequence& key) {
    auto* action = new QAction(text, this);
    action->setShortcut(key);
    take(name, group, action);
    return action;
}

void Commands::take(const QString& name, const QString& group, QAction* action) {
    Q_ASSERT(find(name) == nullptr);
    _all.push_back({name, group, action, action->shortcuts()});
}

const Commands::Command* Commands::find(const QString& name) const {
    const auto found = std::ranges::find(_all, name, &Command::name);
    return found == _all.end() ? nullptr : &*found;
}

const Commands::Command* Commands::holder(const QKeySequence& key, const Command& besides) const {
    const auto found = std::ranges::find_if(_all, [&](const Command& one) {
        return one.action != besides.action && one.action->shortcuts().contains(key);
    });
    return found == _all.end() || key.isEmpty() ? nullptr : &*found;
}

void Commands::setKeys(const Command& command, const Keys& keys) {
    for (const QKeySequence& key : keys) {
        while (const Command* other = holder(key, command)) {
            Keys left = other->action->shortcuts();
            left.removeAll(key);
            other->action->setShortcuts(left);
        }
    }
    command.action->setShortcuts(keys);
    emit keysChanged();
}

void Commands::resetKeys() {
    for (const Command& command : _all)
        command.action->setShortcuts(command.usual);
    emit keysChanged();
}

void Commands::read(QSettings& settings) {
    for (const Command& command : _all) {
        const QVariant keys = settings.value(settingOf(command));
        if (keys.isValid())
            command.action->setShortcuts(
                QKeySequence::listFromString(keys.toString(), QKeySequence::PortableText));
    }
}

void Commands::write(QSettings& settings) const {
    for (const Command& command : _all) {
        const QString keys = textOf(command.action->shortcuts());
        if (keys == textOf(command.usual))
            settings.remove(settingOf(command));
        else if (settings.value(settingOf(command)) != keys)
            settings.setValue(settingOf(command), keys);
    }
}

}  // namespace dabcanvas::dabpainter
