// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class QMenu;

namespace dabcanvas::dabpainter {

// A red dot for the status bar, to be seen while a recording runs; a click opens this menu, which must outlive it.
class RecordingSign : public QToolButton {
    Q_OBJECT

public:
    explicit RecordingSign(QMenu& menu, QWidget* parent = nullptr);
};

}  // namespace dabcanvas::dabpainter
