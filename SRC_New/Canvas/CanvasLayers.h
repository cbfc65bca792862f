// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include "History/LayerSettings.h"
#include "Maths/Export.h"

class QDDrawCanvas;

namespace dabcanvas {

struct InputLayerEdit;
struct PictureShape;

/// The layers of a canvas, each a picture as large as the canvas, the lowest one first. A canvas is made with one.
///
///     auto layers = canvas->layers();
///     layers.add(1, {.name = "Ink", .blendType = ESBlendTypeMultiply});
///     layers.setActive(0);                       // strokes, images and clears are of this one now
///
/// Looks    displayImage() is what all of them look like together, and so is a view; image() and all else that reads the
///          canvas reads the active one.
/// Undo     all of them are a step: whatever changes here is recorded as strokes are, when autoMark() is on or
///          markAction() is called. Which one is active is no step; undo leaves it, unless there is no such layer then.
/// Numbers  0 to count() - 1; they change with the order, and with steps.
/// Told     to whoever listens, see setInputListener(): what was done, once it is.
/// Life     a handle, to be made anew for each use: canvas.layers(). Of no use once the canvas is gone.
/// Thread   the canvas's.
/// Errors   false or null, after a log line, and nothing changed: in mid-stroke, for a number that no layer has, without
///          the memory, and where the canvas cannot be read.
class DABCANVAS_CANVAS_API CanvasLayers {
public:
    explicit CanvasLayers(QDDrawCanvas& canvas) : _canvas(canvas) {}

    int count() const;
    int active() const;
    bool setActive(int layer);

    LayerSettings settings(int layer) const;
    /// Opacity is clamped to 0..1; one that is not finite is refused.
    bool setSettings(int layer, const LayerSettings& settings);

    /// A new one gets this number, up to 256 in all, and is the active one then. With a picture, that lies at its top left
    /// corner, pixel by pixel; else it is transparent.
    bool add(int layer, const LayerSettings& settings = {}, const QImage& picture = {});
    /// Above the other, with all that it is.
    bool duplicate(int layer);
    /// The one below is active then. The last one stays.
    bool remove(int layer);
    bool move(int from, int to);
    /// Onto the one below, as it looks there, whose settings stay. Not of one that is hidden.
    bool mergeDown(int layer);

    QImage image(int layer);  ///< premultiplied RGBA
    QImage flattened();       ///< the same of all of them together
    /// What an area, in buffer pixels, would look like, were the active one this picture there, which is as large. Null
    /// where it is not, or not all on the canvas. Changes nothing.
    QImage flattened(const QRect& area, const QImage& active);
    /// With all bits of a canvas of 16 bits a channel, RGBA64; else image(). add() takes them, too.
    QImage deepImage(int layer);
    /// The same of an area in buffer pixels; null where that is not all on the canvas.
    QImage deepImage(int layer, const QRect& area);

    /// What another canvas told.
    bool take(const InputLayerEdit& edit);

private:
    template <typename Change>
    bool edit(const InputLayerEdit& told, const Change& change);
    bool insert(int layer, const LayerSettings& settings, const QImage& rows);
    bool has(int layer) const;
    bool mayAdd(int layer) const;
    auto& parts() const;
    const PictureShape& shape() const;

    QDDrawCanvas& _canvas;
};

}  // namespace dabcanvas
