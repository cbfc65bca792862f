// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <cstdint>
#include <optional>
#include <vector>

#include "Brushes/BrushProperties.h"
#include "Dabs/Symmetry.h"
#include "History/LayerSettings.h"
#include "Recognition/ShapeRecord.h"

namespace dabcanvas {

/// What a stroke came from: the host's own calls, a finger, a mouse or a pen.
enum class InputDevice : std::uint8_t { program, touch, pen };

/// A place of a stroke; pressure and altitude are -1 where none were given.
struct InputSample {
    QPointF place;
    float pressure = -1, altitude = -1;
};

/// What placing was restricted by, see QDDrawCanvas.h.
struct InputLimits {
    bool neglects = false;            ///< as neglectTextureUpdate()
    std::optional<QRectF> scissor{};  ///< nothing outside of it was touched
};

/// A picture and where it was put, see QDDrawCanvas.h; top row first.
struct InputImage {
    QImage image;
    QSizeF size;
    QPointF centre;
    double radian = 0;
    bool replaces = false;
    bool isUndo = false;
    InputLimits limits;
};

/// What was done to the layers of a canvas, by the call of CanvasLayers that it names.
struct InputLayerEdit {
    /// The calls of CanvasLayers.
    enum class Kind : std::uint8_t { add, duplicate, remove, move, merge, set, activate };
    Kind kind = Kind::activate;
    int layer = 0;             ///< the call's first number
    int to = 0;                ///< move
    LayerSettings settings{};  ///< add, set
    QImage picture{};          ///< add; null: transparent
};

/// All layers of a canvas, the lowest one first.
struct InputLayers {
    /// One of them.
    struct One {
        LayerSettings settings;
        QImage picture;  ///< as pictureSet() has it
    };
    std::vector<One> all;
    int active = 0;
};

/// What enters a canvas, call by call: what a recording is made of. A canvas tells a listener of it,
/// QDDrawCanvas::setInputListener(), and takes the same calls, QDDrawCanvas::input(): given to another canvas of that
/// size, without automatic steps and shown as large as it is, they paint the same bytes on the same surface.
///
/// Units    buffer pixels, top-left origin; pressure and altitude 0..1, -1 where none was given.
/// Order    a call is told before what follows of it. What follows is not told, but for undo steps, however they came
///          about.
/// Untold   runs of dabs and other calls that QDDrawCanvas.h keeps for callers of old, what a host does to
///          undoManager(), and that the canvas moves to another surface.
/// Life     a listener is the host's, and taken off by setInputListener(nullptr) before it goes; input() is the
///          canvas's.
/// Thread   the canvas's. A listener must not call the canvas.
class CanvasInput {
public:
    // ---- Strokes: a begin, any number of moves, one of the three ends

    virtual void strokeBegan(InputDevice device, const InputSample& sample) = 0;
    virtual void strokeMoved(const InputSample& sample) = 0;
    virtual void strokeEnded(const InputSample& sample) = 0;
    virtual void strokeWithdrawn() = 0;  ///< nothing of it stays
    virtual void strokeDropped() = 0;    ///< what it drew stays, without an end
    /// A stroke of the live preview came onto the canvas, some time after its end.
    virtual void previewPlaced(const InputLimits& limits) = 0;
    /// As by QDDrawCanvas::drawShape().
    virtual void shapeDrawn(const ShapeRecord& shape) = 0;

    // ---- The brush

    /// As it was given, before it was clamped.
    virtual void brushSet(BrushKey key, const BrushValue& value) = 0;
    /// Size and relation of the second line, as they were, whatever one makes of the other.
    virtual void secondLineSet(float slRadius, float relationValue) = 0;

    // ---- Random numbers

    virtual void randomSeeded(std::uint32_t seed) = 0;
    virtual void randomRepeats(bool repeats) = 0;

    // ---- The picture

    /// layersToo: what a stroke in progress has in its layers goes as well.
    virtual void cleared(const ESColor& color, bool layersToo) = 0;
    /// As by the draw and set families of QDDrawCanvas.
    virtual void imagePlaced(const InputImage& placed) = 0;
    /// The picture with all its bits, between strokes, premultiplied; null: transparent. isStep: the history shows it,
    /// too, so that steps to come lead back to it; else no step that can be told of does. False when it could not be
    /// taken.
    virtual bool pictureSet(const QImage& picture, bool isStep) = 0;

    /// The same of a canvas of several layers, or of one of which there is more to say.
    [[nodiscard]] virtual bool layersSet(const InputLayers& layers, bool isStep) = 0;
    /// False when it could not be done.
    [[nodiscard]] virtual bool layersEdited(const InputLayerEdit& edit) = 0;

    /// The buffer became this area of itself. False when it could not be.
    [[nodiscard]] virtual bool areaSet(const QRect& area) = 0;
    /// The canvas is shown turned, see QDDrawCanvas::setViewTurn().
    virtual void viewTurned(float radian, bool mirrored) = 0;
    virtual void symmetrySet(const Symmetry& symmetry) = 0;
    /// Outlines of straight lines, each closed; an empty path: all of the canvas.
    virtual void selectionSet(const QPainterPath& area) = 0;

    // ---- The history

    virtual void stepRecorded() = 0;
    virtual void historyReset() = 0;
    /// Whether the step is one that the listener was told of; else it is told the picture. Told to a canvas: whether it
    /// went there.
    [[nodiscard]] virtual bool undone() = 0;
    [[nodiscard]] virtual bool redone() = 0;

protected:
    ~CanvasInput() = default;
};

}  // namespace dabcanvas
