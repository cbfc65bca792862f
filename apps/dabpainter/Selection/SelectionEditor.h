// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPainterPath>
#include <QRegion>
#include <memory>

#include "Selection/FloatLook.h"
#include "Selection/LayerFloat.h"
#include "Selection/SelectedArea.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// What of the picture is selected, and what was lifted out of it or comes from elsewhere and is not put down yet. Whatever
// goes on with the canvas calls settle() before.
class SelectionEditor : public QObject {
    Q_OBJECT

public:
    explicit SelectionEditor(QObject* parent = nullptr);
    ~SelectionEditor() override;

    // Without what was selected on the one before; null for none. Not owned.
    void setCanvas(QDDrawCanvas* canvas);
    QDDrawCanvas* canvas() const { return _canvas; }
    // What shows where something is lifted off the active layer; invalid: what lies below it.
    void setPaper(const QColor& paper) { _paper = paper; }

    // ---- The area, in buffer pixels, which strokes keep to; it moves along with what is lifted out of it
    const QPainterPath& area() const { return _area; }
    QPainterPath shownArea() const;
    void select(const QPainterPath& area, AreaMode mode);
    void selectAll();
    void selectNone();
    void invert();  // nothing becomes all

    // ---- The picture that floats
    const FloatingPicture* floating() const { return _float ? &_float->picture() : nullptr; }
    bool lift();
    // Into the middle of a part of the canvas, as large as it is where it fits onto the canvas. False where it cannot.
    bool place(const QImage& picture, const QRectF& part);
    void change(const FloatingPicture& to);
    // By whole pixels; lifts what is selected where nothing floats.
    void nudge(QPoint by);
    void settle();  // puts it down
    void giveUp();  // as if nothing had been lifted or placed

    // ---- Of what floats, or is selected, or all of the layer
    QImage copied() const;
    QImage copiedOfAll() const;  // layers together
    bool remove();               // false where nothing is selected

    // Where something else is seen meanwhile than the picture; and what, while there is such a place.
    QRegion seenRegion() const;
    FloatLook* look() { return _look.get(); }
    // A picture of the canvas, with that in it.
    QImage seenIn(QImage picture);

signals:
    void changed();
    void floats(bool isFloating);
    void refused(const QString& why);

private:
    void tellChanged();
    bool mayChange();
    QRect canvasRect() const;
    std::unique_ptr<LayerFloat> lifted();
    void begin(std::unique_ptr<LayerFloat> made);
    void end();
    QImage cut(const QImage& picture) const;

    QDDrawCanvas* _canvas = nullptr;
    QColor _paper;
    QPainterPath _area;
    std::unique_ptr<LayerFloat> _float;
    std::unique_ptr<FloatLook> _look;  // of it
};

}  // namespace dabcanvas::dabpainter
