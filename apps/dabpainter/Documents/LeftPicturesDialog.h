// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QList>
#include <optional>

#include "Documents/LeftPictures.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace dabcanvas::dabpainter {

// Which of the pictures that dead runs left is gone on with. What is not chosen, and not deleted here, stays for another time.
class LeftPicturesDialog : public QDialog {
    Q_OBJECT

public:
    LeftPicturesDialog(const LeftPictures& left, QList<LeftPicture> now, QWidget* parent = nullptr);
    // None before one was accepted.
    std::optional<LeftPicture> chosen() const;

private:
    void fill();
    void refresh();
    void discard();

    const LeftPictures& _left;
    QList<LeftPicture> _pictures;
    QListWidget* _list;
    QLabel* _facts;
    QPushButton *_open, *_delete;
};

}  // namespace dabcanvas::dabpainter
