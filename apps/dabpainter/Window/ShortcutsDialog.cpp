// SPDX-License-Identifier: MIT
#include "Window/ShortcutsDialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace dabcanvas::dabpainter {

namespace {

QString textOf(const Commands::Command& command) {
    return plain(command.action->text()).remove(QChar(0x2026));
}

QString keysOf(const Commands::Command& command) {
    return QKeySequence::listToString(command.action->shortcuts(), QKeySequence::NativeText);
}

}  // namespace

ShortcutsDialog::ShortcutsDialog(Commands& commands, QWidget* parent)
    : QDialog(parent),
      _commands(commands),
      _search(new QLineEdit),
      _list(new QTreeWidget),
      _key(new QKeySequenceEdit),
      _conflict(new QLabel),
      _assign(new QPushButton(tr("&Assign"))),
      _none(new QPushButton(tr("&No Key"))),
      _usual(new QPushButton(tr("&Usual Key"))) {
    setWindowTitle(tr("Keys"));
    _search->setPlaceholderText(tr("Search commands and keys"));
    _search->setAccessibleName(tr("Search commands and keys"));
    _search->setClearButtonEnabled(true);
    _list->setHeaderLabels({tr("Command"), tr("Keys")});
    _list->setAccessibleName(tr("Commands and their keys"));
    _list->setUniformRowHeights(true);
    _key->setAccessibleName(tr("New key"));
    _conflict->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->addWidget(_key, 1);
    for (QPushButton* button : {_assign, _none, _usual}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* all = buttons->addButton(tr("All &Usual"), QDialogButtonBox::ResetRole);
    all->setAutoDefault(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_search);
    layout->addWidget(_list, 1);
    layout->addLayout(row);
    layout->addWidget(_conflict);
    layout->addWidget(buttons);
    resize(520, 480);

    fill();
    for (QWidget* field : std::initializer_list<QWidget*>{_search, _list, _key})
        field->installEventFilter(this);
    connect(_search, &QLineEdit::textChanged, this, &ShortcutsDialog::filter);
    connect(_list, &QTreeWidget::currentItemChanged, this, &ShortcutsDialog::choose);
    connect(_key, &QKeySequenceEdit::keySequenceChanged, this, &ShortcutsDialog::consider);
    connect(_assign, &QPushButton::clicked, this, &ShortcutsDialog::assign);
    connect(_none, &QPushButton::clicked, this, [this] { _commands.setKeys(*chosen(), {}); });
    connect(_usual, &QPushButton::clicked, this, [this] { _commands.setKeys(*chosen(), chosen()->usual); });
    connect(all, &QPushButton::clicked, &_commands, &Commands::resetKeys);
    connect(&_commands, &Commands::keysChanged, this, &ShortcutsDialog::showKeys);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    choose(nullptr);
}

void ShortcutsDialog::fill() {
    QTreeWidgetItem* group = nullptr;
    for (const Commands::Command& command : _commands.all()) {
        const QList<QTreeWidgetItem*> known = _list->findItems(command.group, Qt::MatchExactly);
        group = known.isEmpty() ? new QTreeWidgetItem(_list, {command.group}) : known.first();
        group->setFlags(Qt::ItemIsEnabled);
        auto* item = new QTreeWidgetItem(group, {textOf(command)});
        item->setData(0, Qt::UserRole, command.name);
    }
    _list->expandAll();
    showKeys();
    _list->resizeColumnToContents(0);
}

void ShortcutsDialog::showKeys() {
    for (QTreeWidgetItemIterator it(_list, QTreeWidgetItemIterator::NoChildren); *it; ++it) {
        const Commands::Command& command = *_commands.find((*it)->data(0, Qt::UserRole).toString());
        (*it)->setText(1, keysOf(command));
        QFont font = _list->font();
        font.setBold(command.action->shortcuts() != command.usual);
        (*it)->setFont(1, font);
    }
    consider();
}

void ShortcutsDialog::filter(const QString& text) {
    for (int g = 0; g < _list->topLevelItemCount(); ++g) {
        QTreeWidgetItem* group = _list->topLevelItem(g);
        bool any = false;
        for (int i = 0; i < group->childCount(); ++i) {
            QTreeWidgetItem* item = group->child(i);
            const bool shown = item->text(0).contains(text, Qt::CaseInsensitive) ||
                               item->text(1).contains(text, Qt::CaseInsensitive);
            item->setHidden(!shown);
            any = any || shown;
        }
        group->setHidden(!any);
    }
}

const Commands::Command* ShortcutsDialog::chosen() const {
    const QTreeWidgetItem* item = _list->currentItem();
    return item ? _commands.find(item->data(0, Qt::UserRole).toString()) : nullptr;
}

void ShortcutsDialog::choose(QTreeWidgetItem*) {
    const Commands::Command* command = chosen();
    for (QWidget* field : std::initializer_list<QWidget*>{_key, _none, _usual})
        field->setEnabled(command);
    _key->setKeySequence(command ? command->action->shortcut() : QKeySequence());
    consider();
}

bool ShortcutsDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int pressed = static_cast<QKeyEvent*>(event)->key();
    if (watched == _search && pressed == Qt::Key_Down) {
        goToList();
    } else if (watched == _list && (pressed == Qt::Key_Return || pressed == Qt::Key_Enter)) {
        _key->setFocus();  // which it does not take without a command
    } else if (watched == _key && pressed == Qt::Key_Escape) {
        choose(nullptr);
        _list->setFocus();
    } else {
        return QDialog::eventFilter(watched, event);
    }
    return true;
}

// To the first command that was found, unless the chosen one is among them.
void ShortcutsDialog::goToList() {
    const QTreeWidgetItem* now = chosen() ? _list->currentItem() : nullptr;
    const auto isShown = [](const QTreeWidgetItem* item) {
        return !item->isHidden() && item->parent() && !item->parent()->isHidden();
    };
    QTreeWidgetItemIterator it(_list, QTreeWidgetItemIterator::NoChildren);
    while (*it && !isShown(*it))
        ++it;
    if (*it && !(now && isShown(now)))
        _list->setCurrentItem(*it);
    _list->setFocus();
}

// What assigning the key would take from another.
void ShortcutsDialog::consider() {
    const Commands::Command* command = chosen();
    const QKeySequence key = _key->keySequence();
    const Commands::Command* other = command ? _commands.holder(key, *command) : nullptr;
    _assign->setEnabled(command && !key.isEmpty() && command->action->shortcut() != key);
    _assign->setText(other ? tr("&Take It") : tr("&Assign"));
    _conflict->setText(other ? tr("%1 is the key of \"%2\", which would have none then.")
                                   .arg(key.toString(QKeySequence::NativeText), textOf(*other))
                             : QString());
}

void ShortcutsDialog::assign() {
    _commands.setKeys(*chosen(), {_key->keySequence()});
}

}  // namespace dabcanvas::dabpainter
