// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

namespace dabcanvas::dabpainter {

class BrushModel;
class Tools;
class ValueSlider;

// The slim bar above the canvas: undo and redo, what is changed all the time of the tool in hand, and what others add behind
// it. Brush and tools must outlive it.
class BrushBar : public QToolBar {
    Q_OBJECT

public:
    BrushBar(BrushModel& brush, Tools& tools, QAction* undo, QAction* redo, QWidget* parent = nullptr);

    ValueSlider* size() const { return _size; }
    ValueSlider* opacity() const { return _opacity; }
    ValueSlider* tolerance() const { return _tolerance; }

private:
    void showTool();

    Tools& _tools;
    ValueSlider *_size, *_opacity, *_tolerance;
    QAction *_sizePlace, *_opacityPlace, *_tolerancePlace;
};

}  // namespace dabcanvas::dabpainter
