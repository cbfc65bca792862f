// SPDX-License-Identifier: MIT
#include "Recording/CanvasRecorder.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

#include "Canvas/QDDrawCanvas.h"
#include "Maths/Version.h"
#include "Recording/RecordingWriter.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

namespace {

bool isFinite(const ShapeRecord& shape) {
    const auto finite = [](double number) { return std::isfinite(float(number)); };
    return std::all_of(shape.corners.begin(), shape.corners.end(),
                       [&](const ShapePoint& at) { return finite(at.x) && finite(at.y); }) &&
           finite(shape.centre.x) && finite(shape.centre.y) && finite(shape.a) && finite(shape.b) &&
           finite(shape.rotation) && finite(shape.startAngle) && finite(shape.endAngle);
}

}  // namespace

CanvasRecorder::CanvasRecorder(QDDrawCanvas& canvas, Take take, std::optional<std::uint32_t> seed)
    : _canvas(canvas), _take(std::move(take)) {
    const SurfaceOptions options = canvas.surfaceOptions();
    _header.library = QStringLiteral(DABCANVAS_VERSION_STRING);
    _header.surface = options.kind == SurfaceKind::gpu ? QStringLiteral("gpu") : QStringLiteral("processor");
    _header.seed = seed ? *seed : std::uint32_t(std::random_device()());
    _header.size = canvas.bufferSize().toSize();
    _header.canvasDepth = options.canvasDepth;
    _header.layerDepth = options.layerDepth;
    _clock.start();
}

bool CanvasRecorder::listen() {
    if (!_canvas.isDrawing())
        _canvas.setRandomSeed(_header.seed);
    _isOn = _canvas.setInputListener(this);
    return _isOn;
}

std::unique_ptr<CanvasRecorder> CanvasRecorder::start(QDDrawCanvas& canvas, Take take,
                                                      std::optional<std::uint32_t> seed) {
    std::unique_ptr<CanvasRecorder> recorder(new CanvasRecorder(canvas, std::move(take), seed));
    return recorder->listen() ? std::move(recorder) : nullptr;
}

std::unique_ptr<CanvasRecorder> CanvasRecorder::start(QDDrawCanvas& canvas, RecordingWriter& writer,
                                                      std::optional<std::uint32_t> seed) {
    const auto take = [&writer](const RecordedEvent& event) { writer.write(event); };
    std::unique_ptr<CanvasRecorder> recorder(new CanvasRecorder(canvas, take, seed));
    writer.begin(recorder->_header);
    return recorder->listen() ? std::move(recorder) : nullptr;
}

std::unique_ptr<CanvasRecorder> CanvasRecorder::start(QDDrawCanvas& canvas, Recording& into,
                                                      std::optional<std::uint32_t> seed) {
    const auto take = [&into](RecordedEvent event) { into.events.push_back(std::move(event)); };
    std::unique_ptr<CanvasRecorder> recorder(new CanvasRecorder(canvas, take, seed));
    into.header = recorder->_header;
    return recorder->listen() ? std::move(recorder) : nullptr;
}

CanvasRecorder::~CanvasRecorder() {
    if (_isOn) {
        _canvas.setInputListener(nullptr);
        flush();
    }
}

// To a tenth of a millisecond, which devices do not tell better.
double CanvasRecorder::now() const {
    return std::round(double(_clock.nsecsElapsed()) * 1e-5) / 1e4;
}

void CanvasRecorder::add(RecordedWhat what) {
    flush();
    _take({now(), std::move(what)});
}

// ---- Strokes

void CanvasRecorder::flush() {
    endPart(StrokePart::End::open);
}

void CanvasRecorder::endPart(StrokePart::End end) {
    if (!_stroke && (!_isInStroke || end == StrokePart::End::open))
        return;
    if (!_stroke)
        _stroke =
            RecordedEvent{now(), StrokePart{.begins = false, .device = _device, .samples = {}, .end = end}};
    std::get<StrokePart>(_stroke->what).end = end;
    _isInStroke = end == StrokePart::End::open;
    _take(*std::exchange(_stroke, std::nullopt));
}

void CanvasRecorder::addSample(const InputSample& sample) {
    const double time = now();
    if (!_stroke)
        _stroke = RecordedEvent{time, StrokePart{.begins = false, .device = _device, .samples = {}}};
    const auto near = [](double at) { return std::clamp(at, -kFarthest, kFarthest); };
    std::get<StrokePart>(_stroke->what)
        .samples.push_back(
            {near(sample.place.x()), near(sample.place.y()), sample.pressure, sample.altitude, time});
}

void CanvasRecorder::strokeBegan(InputDevice device, const InputSample& sample) {
    flush();
    _device = device;
    _isInStroke = true;
    _stroke = RecordedEvent{now(), StrokePart{.begins = true, .device = device, .samples = {}}};
    addSample(sample);
}

void CanvasRecorder::strokeMoved(const InputSample& sample) {
    addSample(sample);
}

void CanvasRecorder::strokeEnded(const InputSample& sample) {
    addSample(sample);
    endPart(StrokePart::End::ended);
}

void CanvasRecorder::strokeWithdrawn() {
    endPart(StrokePart::End::withdrawn);
}

void CanvasRecorder::strokeDropped() {
    endPart(StrokePart::End::dropped);
}

// ---- What else enters

void CanvasRecorder::previewPlaced(const InputLimits& limits) {
    add(PlacedPreview{limits});
}

void CanvasRecorder::shapeDrawn(const ShapeRecord& shape) {
    if (isFinite(shape))  // any other is refused
        add(DrawnShape{shape});
}

void CanvasRecorder::brushSet(BrushKey key, const BrushValue& value) {
    add(BrushChange{key, value});
}

void CanvasRecorder::secondLineSet(float slRadius, float relationValue) {
    add(SecondLineChange{slRadius, relationValue});
}

void CanvasRecorder::randomSeeded(std::uint32_t seed) {
    add(SeedChange{seed});
}

void CanvasRecorder::randomRepeats(bool repeats) {
    add(RepeatChange{repeats});
}

void CanvasRecorder::cleared(const ESColor& color, bool layersToo) {
    add(ClearedCanvas{color, layersToo});
}

void CanvasRecorder::imagePlaced(const InputImage& placed) {
    add(placed);
}

// ---- The picture and its history

bool CanvasRecorder::addPicture(RecordedWhat what, bool isStep) {
    add(std::move(what));
    _undoSteps = isStep ? 0 : -1;
    _redoSteps = 0;
    return true;
}

bool CanvasRecorder::pictureSet(const QImage& picture, bool isStep) {
    return addPicture(WholePicture{picture}, isStep);
}

bool CanvasRecorder::layersSet(const InputLayers& layers, bool isStep) {
    return addPicture(WholeLayers{layers}, isStep);
}

bool CanvasRecorder::layersEdited(const InputLayerEdit& edit) {
    add(LayerChange{edit});
    return true;
}

bool CanvasRecorder::areaSet(const QRect& area) {
    add(AreaChange{area});
    return true;
}

void CanvasRecorder::viewTurned(float radian, bool mirrored) {
    add(ViewChange{radian, mirrored});
}

void CanvasRecorder::symmetrySet(const Symmetry& symmetry) {
    add(symmetry);
}

void CanvasRecorder::selectionSet(const QPainterPath& area) {
    add(SelectionChange{area});
}

void CanvasRecorder::stepRecorded() {
    add(RecordedCall::stepRecorded);
    ++_undoSteps;
    _redoSteps = 0;
}

void CanvasRecorder::historyReset() {
    add(RecordedCall::historyReset);
    _undoSteps = _redoSteps = 0;
}

bool CanvasRecorder::undone() {
    if (_undoSteps <= 0)
        return false;
    add(RecordedCall::undone);
    --_undoSteps;
    ++_redoSteps;
    return true;
}

bool CanvasRecorder::redone() {
    if (_redoSteps <= 0)
        return false;
    add(RecordedCall::redone);
    ++_undoSteps;
    --_redoSteps;
    return true;
}

}  // namespace dabcanvas
