// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

class QString;

namespace dabcanvas::dabpainter {

class BrushModel;

enum class Tool { brush, eraser, smudge, fill, pick, rectangle, lasso };
// Whether it puts paint onto the canvas or takes it off.
inline bool paints(Tool tool) {
    return tool <= Tool::fill;
}

// Where brushes come from.
struct ToolBrushes {
    // Gives what makes the present brush the brush again.
    std::function<std::function<void()>()> keep;
    // A brush that smudges, and one that paints, for when none has been in hand yet.
    std::function<void()> takeSmudge, takePaint;
};

// The tool in hand, and what it makes of the brush: an eraser is the same brush that erases; smudging has a brush of its own,
// beside which the one for painting stays as it was left.
class Tools : public QObject {
    Q_OBJECT

public:
    // The brush must outlive it.
    Tools(BrushModel& brush, ToolBrushes brushes, QObject* parent = nullptr);

    Tool tool() const { return _tool; }
    void choose(Tool tool);
    // From the eraser back to what was in hand before.
    void toggleEraser();
    // The user takes a brush of the list, and wants to paint with it.
    void brushWillBeChosen();
    void brushWasChosen();
    // One colour is picked, or there is nothing more to select, and the tool before comes back.
    void endPick();
    void endSelecting();

    // How much colours may differ that a fill takes for one: 0 to 255.
    int tolerance() const { return _tolerance; }
    void setTolerance(int tolerance);

signals:
    void changed(dabcanvas::dabpainter::Tool tool);
    void toleranceChanged(int tolerance);

private:
    bool smudges() const;
    void follow();
    void takeBrushFor(Tool tool);
    void become(Tool tool);

    BrushModel& _brush;
    const ToolBrushes _brushes;
    Tool _tool = Tool::brush;
    Tool _beforeEraser = Tool::brush, _beforePick = Tool::brush, _painting = Tool::brush;
    std::function<void()> _paint, _smudge;  // make the brushes again that are not in hand
    bool _exchanging = false;
    int _tolerance = 32;
};

}  // namespace dabcanvas::dabpainter
