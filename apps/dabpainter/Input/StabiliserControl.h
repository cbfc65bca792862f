// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "Canvas/PointerOptions.h"

class QComboBox;
class QSlider;
class QToolButton;

namespace dabcanvas::dabpainter {

// What steadies the hand, how much, and whether a line goes on to the pointer at its end; small enough for a tool bar.
class StabiliserControl : public QWidget {
    Q_OBJECT

public:
    explicit StabiliserControl(QWidget* parent = nullptr);

    const StabiliserOptions& options() const { return _options; }
    void setOptions(const StabiliserOptions& options);  // does not report back

signals:
    void edited(const dabcanvas::StabiliserOptions& options);

private:
    void take();
    void showOptions(const StabiliserOptions& options);

    StabiliserOptions _options;
    QComboBox* _kind;
    QSlider* _strength;
    QToolButton* _finishes;
    bool _showing = false;  // what is shown is no edit
};

}  // namespace dabcanvas::dabpainter
