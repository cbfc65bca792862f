// SPDX-License-Identifier: MIT
/// \file
/// What entered a canvas, in its order: strokes, brush, images, clears, undo. Played again on a canvas of that size it
/// paints the same bytes where the surface is the same, and within 3/255 of them on another one.
///
///     Recording recording;
///     auto recorder = CanvasRecorder::start(canvas, recording);           // CanvasRecorder.h
///     ...
///     recorder.reset();
///     writeRecording(recording, file);                                     // RecordingWriter.h
///     RecordingPlayer player(recording, other);  player.playAll();         // RecordingPlayer.h
///
/// Units    buffer pixels of the recorded canvas, top-left origin; seconds since the recording began.
/// Thread   plain values, implicitly shared where they are large; any thread.
#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRect>
#include <QSize>
#include <QString>
#include <cstdint>
#include <variant>
#include <vector>

#include "Brushes/BrushProperties.h"
#include "Canvas/CanvasInput.h"
#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas {

/// Of the form that is written; a later one is not read. Since 2 there are layers.
inline constexpr int kRecordingVersion = 2;

/// What was recorded, on what.
struct RecordingHeader {
    int version = kRecordingVersion;
    QString library;         ///< the version of the library that recorded it
    QString surface;         ///< what it was painted on, as SurfaceKind.h names it: gpu or processor
    std::uint32_t seed = 0;  ///< of the canvas's random numbers
    QSize size;              ///< of the canvas
    int canvasDepth = 8, layerDepth = 16;  ///< bits a channel
};

/// A stroke, or a part of one in which something else happened.
struct StrokePart {
    /// How it ends.
    enum class End : std::uint8_t {
        ended,      ///< by its last sample
        withdrawn,  ///< nothing of it stays
        dropped,    ///< what it drew stays, without an end
        open,       ///< it goes on in a later part
    };
    bool begins = true;  ///< its first sample begins the stroke
    InputDevice device = InputDevice::program;
    std::vector<RecordedSample> samples;
    End end = End::ended;
};

/// A property of the brush was set.
struct BrushChange {
    BrushKey key = BrushKey::brushType;
    BrushValue value;  ///< of the property's type
};
/// Size and relation of the second line were, together.
struct SecondLineChange {
    float slRadius = 0, relationValue = 0;
};
/// The canvas's random numbers began anew.
struct SeedChange {
    std::uint32_t seed = 0;
};
/// Strokes repeat from here on, or no more.
struct RepeatChange {
    bool repeats = false;
};
/// The canvas was cleared.
struct ClearedCanvas {
    ESColor color;
    bool layersToo = true;
};
/// A shape was drawn without a stroke.
struct DrawnShape {
    ShapeRecord shape;
};
/// All of the canvas was set, from which the history begins anew; null: transparent.
struct WholePicture {
    QImage picture;
};
/// The same of a canvas of several layers.
struct WholeLayers {
    InputLayers layers;
};
/// Something was done to the layers.
struct LayerChange {
    InputLayerEdit edit;
};
/// A stroke of the live preview came onto the canvas.
struct PlacedPreview {
    InputLimits limits;
};
/// The canvas became this area of itself.
struct AreaChange {
    QRect area;
};
/// The canvas was turned or mirrored in its view.
struct ViewChange {
    float radian = 0;
    bool mirrored = false;
};
/// Strokes keep to this area from here on, see CanvasInput.h.
struct SelectionChange {
    QPainterPath area;
};
/// What has nothing to tell besides.
enum class RecordedCall : std::uint8_t { stepRecorded, historyReset, undone, redone };

/// What it was; an InputImage was placed, a Symmetry set.
using RecordedWhat =
    std::variant<StrokePart, BrushChange, SecondLineChange, SeedChange, RepeatChange, ClearedCanvas,
                 InputImage, PlacedPreview, DrawnShape, WholePicture, AreaChange, ViewChange, Symmetry,
                 SelectionChange, RecordedCall, WholeLayers, LayerChange>;

/// One thing that entered the canvas.
struct RecordedEvent {
    double time = 0;  ///< when it began
    RecordedWhat what;
};

/// What entered one canvas, from first to last.
struct Recording {
    RecordingHeader header;
    std::vector<RecordedEvent> events;
};

}  // namespace dabcanvas
