// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "Window/Commands.h"

class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace dabcanvas::dabpainter {

// Every command and its keys, to be found by either and changed at once. A key that calls another command is said to, and
// taken from it only when that was confirmed.
class ShortcutsDialog : public QDialog {
    Q_OBJECT

public:
    // The commands must outlive it.
    explicit ShortcutsDialog(Commands& commands, QWidget* parent = nullptr);

protected:
    // From the search to the list, on to the key, and by Escape back.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();
    void showKeys();
    void filter(const QString& text);
    void choose(QTreeWidgetItem* item);
    void goToList();
    void consider();
    void assign();
    const Commands::Command* chosen() const;

    Commands& _commands;
    QLineEdit* _search;
    QTreeWidget* _list;
    QKeySequenceEdit* _key;
    QLabel* _conflict;
    QPushButton *_assign, *_none, *_usual;
};

}  // namespace dabcanvas::dabpainter
