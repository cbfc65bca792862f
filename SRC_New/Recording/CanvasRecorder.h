// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "Canvas/CanvasInput.h"
#include "Maths/Export.h"
#include "Recording/Recording.h"

class QDDrawCanvas;

namespace dabcanvas {

class RecordingWriter;

/// Records what enters a canvas, from its start() to its end.
///
/// Left out  what CanvasInput.h says that no listener is told of. Places beyond 131072 pixels from the origin are
///           brought that near.
/// Costs     a call for each sample; where the canvas is not empty, reading it once at the start and after undo that
///           goes back to before that.
/// Thread    the canvas's. To be destroyed before the canvas is.
class DABCANVAS_RECORDING_API CanvasRecorder final : private CanvasInput {
public:
    /// Takes each event once it is whole: strokes at their end.
    using Take = std::function<void(RecordedEvent event)>;

    /// Begins the canvas's random numbers anew, by a seed that is picked by chance where none is given, and hands over
    /// what the canvas is at present: its brush, and its picture where it is not empty. Null, after a log line, in
    /// mid-stroke and where the canvas cannot be read.
    static std::unique_ptr<CanvasRecorder> start(QDDrawCanvas& canvas, Take take,
                                                 std::optional<std::uint32_t> seed = std::nullopt);
    /// The same through a writer, header and all, and into a value; either must outlive the recorder.
    static std::unique_ptr<CanvasRecorder> start(QDDrawCanvas& canvas, RecordingWriter& writer,
                                                 std::optional<std::uint32_t> seed = std::nullopt);
    static std::unique_ptr<CanvasRecorder> start(QDDrawCanvas& canvas, Recording& into,
                                                 std::optional<std::uint32_t> seed = std::nullopt);
    ~CanvasRecorder();
    CanvasRecorder(const CanvasRecorder&) = delete;
    CanvasRecorder& operator=(const CanvasRecorder&) = delete;

    const RecordingHeader& header() const { return _header; }
    /// Hands over what a stroke in progress has of samples so far.
    void flush();

private:
    CanvasRecorder(QDDrawCanvas& canvas, Take take, std::optional<std::uint32_t> seed);
    bool listen();
    double now() const;
    void add(RecordedWhat what);
    void addSample(const InputSample& sample);
    bool addPicture(RecordedWhat what, bool isStep);
    void endPart(StrokePart::End end);

    void strokeBegan(InputDevice device, const InputSample& sample) override;
    void strokeMoved(const InputSample& sample) override;
    void strokeEnded(const InputSample& sample) override;
    void strokeWithdrawn() override;
    void strokeDropped() override;
    void previewPlaced(const InputLimits& limits) override;
    void shapeDrawn(const ShapeRecord& shape) override;
    void brushSet(BrushKey key, const BrushValue& value) override;
    void secondLineSet(float slRadius, float relationValue) override;
    void randomSeeded(std::uint32_t seed) override;
    void randomRepeats(bool repeats) override;
    void cleared(const ESColor& color, bool layersToo) override;
    void imagePlaced(const InputImage& placed) override;
    bool pictureSet(const QImage& picture, bool isStep) override;
    bool layersSet(const InputLayers& layers, bool isStep) override;
    bool layersEdited(const InputLayerEdit& edit) override;
    bool areaSet(const QRect& area) override;
    void viewTurned(float radian, bool mirrored) override;
    void symmetrySet(const Symmetry& symmetry) override;
    void selectionSet(const QPainterPath& area) override;
    void stepRecorded() override;
    void historyReset() override;
    bool undone() override;
    bool redone() override;

    QDDrawCanvas& _canvas;
    Take _take;
    RecordingHeader _header;
    QElapsedTimer _clock;
    bool _isOn = false;
    std::optional<RecordedEvent> _stroke;  // its part in progress
    bool _isInStroke = false;              // begun and not ended
    InputDevice _device = InputDevice::program;
    // Steps that whoever plays the recording has before and after the present one; -1: the present one is none of its.
    int _undoSteps = 0, _redoSteps = 0;
};

}  // namespace dabcanvas
