// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QTimer>
#include <QWidget>

namespace dabcanvas::dabpainter {

class CanvasViewport;
class SelectionEditor;

// What is selected and what floats, above the canvas: a pane that lets every event through. What floats is drawn at the view's
// scale while it is moved, and as the canvas will show it as soon as it rests.
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
    void followFloat();
    QRegion surroundings() const;
    double draftScale() const;
    void paintSeen(QPainter& painter, const QRect& exposed);
    bool paintDraft(QPainter& painter, const QRect& part, double scale);
    void paintLook(QPainter& painter, const QRect& part);
    void paintImage(QPainter& painter, const QImage& image, const QRectF& area);
    void paintFrame(QPainter& painter) const;

    SelectionEditor& _editor;
    CanvasViewport& _viewport;
    QPainterPath _draft;
    QRegion _painted;
    QTimer _rest;  // while it runs, what floats has just been moved, and a draft of it is shown
};

}  // namespace dabcanvas::dabpainter
