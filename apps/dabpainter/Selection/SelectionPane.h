// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QWidget>

namespace dabcanvas::dabpainter {

class CanvasViewport;
class SelectionEditor;

// What is selected and what floats, above the canvas: a pane that lets every event through.
class SelectionPane : public QWidget {
    Q_OBJECT

public:
    SelectionPane(SelectionEditor& editor, CanvasViewport& viewport);
    // An outline that is being drawn, in buffer pixels.
    void setDraft(const QPainterPath& draft);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    QRegion surroundings() const;
    void paintSeen(QPainter& painter);
    void paintFrame(QPainter& painter) const;

    SelectionEditor& _editor;
    CanvasViewport& _viewport;
    QPainterPath _draft;
    QRegion _painted;
};

}  // namespace dabcanvas::dabpainter
