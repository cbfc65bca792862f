// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>
#include <optional>

#include "Brush/BrushModel.h"

namespace dabcanvas::dabpainter {

class CanvasViewport;

// The brush's outline around the pointer: a pane above the canvas that lets every event through. Only the
// thin surroundings of the outline are ever repainted, so that a large brush does not slow painting.
class BrushCursor : public QWidget {
    Q_OBJECT

public:
    BrushCursor(const BrushModel& model, CanvasViewport& viewport);

    void showAt(QPointF at);  // in the viewport's points
    void hideOutline();
    // Below this many points across only a cross-hair is shown, the pointer's own.
    static constexpr double kTiny = 6;
    bool isTiny() const { return outlineSize() < kTiny; }
    // Across, in points: of the mark that is seen, at full pressure.
    double outlineSize() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void outlineChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    QRegion surroundings() const;

    const BrushModel& _model;
    CanvasViewport& _viewport;
    QPointF _at;
    bool _shown = false;
    QRegion _painted;
    mutable std::optional<double> _extent;  // of the tip, while that is known
};

}  // namespace dabcanvas::dabpainter
