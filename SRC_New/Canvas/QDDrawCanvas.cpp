// SPDX-License-Identifier: MIT
// Making and destroying a canvas, its strokes, brush and history. Each member hands on to the part whose concern it is.
#include "Canvas/QDDrawCanvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Canvas/CanvasLayers.h"
#include "Canvas/CanvasLog.h"
#include "Canvas/QDDrawCanvasParts.h"
#include "Canvas/SurfaceChoice.h"
#include "GLSurface/MakeGLSurface.h"
#include "Preset/QDBrushManager.h"

using namespace dabcanvas;

Q_LOGGING_CATEGORY(lcDabcanvas, "dabcanvas.canvas")

// ---- Making

QDDrawCanvas::QDDrawCanvas(const QRectF& frame)
    : _inside(new Inside{.host = Host(*this, frame), .parts = {}}) {}

QDDrawCanvas::~QDDrawCanvas() {
    _inside->host.mustNotBeNeeded();
}

std::unique_ptr<QDDrawCanvas> QDDrawCanvas::initWithFrame(const QRectF& frame,
                                                          const SurfaceOptions& options) {
    std::unique_ptr<QDDrawCanvas> canvas(new QDDrawCanvas(frame));
    return canvas->initCanvas(options) ? std::move(canvas) : nullptr;
}

bool QDDrawCanvas::initCanvas(const SurfaceOptions& options) {
    const MustStay stays(*this);
    const Host::Call call(_inside->host);
    auto surface = makeSurface(_inside->host.shownFrame().size(), options);
    if (!surface) {
        return false;
    }
    _inside->parts = std::make_unique<Parts>(_inside->host, std::move(surface));
    Parts& parts = *_inside->parts;
    parts.options = options;
    _inside->host.watch(parts);
    parts.placePreview = [this](const QImage& image, QSizeF) {
        // The preview stands for the whole buffer, at whatever size it is shown.
        const Host::Call placing(_inside->host);
        Parts& made = *_inside->parts;
        made.tell([&](CanvasInput& to) { to.previewPlaced(made.limits()); });
        const bool wasUntold = std::exchange(made.isUntold, true);
        const QSizeF buffer = bufferSize();
        const QSizeF& view = made.outScale;
        const QSizeF size(buffer.width() * view.width(), buffer.height() * view.height());
        made.placeInView({.image = image, .ofStroke = true}, size,
                         QPointF(size.width() / 2, size.height() / 2), 0, false);
        made.isUntold = wasUntold;
    };
    return true;
}

QDDrawCanvas::MustStay::MustStay(const QDDrawCanvas& canvas) : _canvas(canvas) {
    ++_canvas._inside->host.neededBy;
}

QDDrawCanvas::MustStay::~MustStay() {
    --_canvas._inside->host.neededBy;
}

QRectF QDDrawCanvas::displayFrame() const {
    return _inside->host.frame;
}

std::unique_ptr<LeafDrawing> QDDrawCanvas::makeLeafDrawView(const QRectF& frame) {
    return std::make_unique<LeafDrawing>(frame.size());
}

QDDrawViewDelegate* QDDrawCanvas::delegate() const {
    return _inside->host.delegate;
}

void QDDrawCanvas::setDelegate(QDDrawViewDelegate* delegate) {
    _inside->host.delegate = delegate;
}

LeafDrawing& QDDrawCanvas::leafDrawView() {
    return *_inside->parts->preview;
}

PaintSurface& QDDrawCanvas::surface() {
    return _inside->parts->layers.surface();
}

SurfaceOptions QDDrawCanvas::surfaceOptions() const {
    return _inside->parts->presentOptions();
}

GLSurface* QDDrawCanvas::glSurface() {
    if (asGLSurface(surface()) == nullptr) {
        Parts& parts = *_inside->parts;
        const Size size = parts.layers.size();
        SurfaceOptions options = parts.options;
        options.kind = SurfaceKind::gpu;
        auto moved = parts.isDrawing() ? nullptr : makeSurface(QSizeF(size.width, size.height), options);
        if (!moved || !parts.layers.moveTo(std::move(moved))) {
            qCWarning(lcDabcanvas, "the canvas cannot move to OpenGL%s",
                      parts.isDrawing() ? " in mid-stroke" : "");
            return nullptr;
        }
    }
    return asGLSurface(surface());
}

CanvasLayers QDDrawCanvas::layers() {
    return CanvasLayers(*this);
}

bool QDDrawCanvas::setCanvasArea(const QRect& area) {
    return _inside->parts->setArea(area);
}

QString QDDrawCanvas::rendererName() {
    const SurfaceScope scope(surface());
    return scope ? QString::fromStdString(surface().name()) : QString();
}

// ---- Strokes

void QDDrawCanvas::drawingWithBeginPoint(QPointF point, float pressure, float altitude, bool) {
    _inside->parts->entry.begin(point, pressure, altitude);
}

void QDDrawCanvas::drawingWithMoveToPoint(QPointF point, float pressure, float altitude, bool online) {
    _inside->parts->entry.move(point, pressure, altitude, online);
}

void QDDrawCanvas::drawingWithEndPoint(QPointF point, float pressure, float altitude, bool online) {
    _inside->parts->entry.end(point, pressure, altitude, online);
}

bool QDDrawCanvas::isDrawing() const {
    return _inside->parts->isDrawing();
}

bool QDDrawCanvas::drawShape(const ShapeRecord& shape) {
    return _inside->parts->drawShape(shape);
}

void QDDrawCanvas::setRepeatableRandom(bool repeatable) {
    _inside->parts->repeatRandom(repeatable);
}

void QDDrawCanvas::setRandomSeed(std::uint32_t seed) {
    _inside->parts->seedRandom(seed);
}

void QDDrawCanvas::setViewTurn(double radians, bool mirrored) {
    if (std::isfinite(radians)) {
        _inside->parts->turnView(static_cast<float>(std::remainder(radians, 2 * std::numbers::pi)), mirrored);
    }
}

const Symmetry& QDDrawCanvas::symmetry() const {
    return _inside->parts->painter.symmetry();
}

void QDDrawCanvas::setSymmetry(const Symmetry& symmetry) {
    _inside->parts->setSymmetry(symmetry);
}

const QPainterPath& QDDrawCanvas::selection() const {
    return _inside->parts->selection;
}

void QDDrawCanvas::setSelection(const QPainterPath& area) {
    _inside->parts->setSelection(area);
}

void QDDrawCanvas::setProfiling(bool profiling) {
    _inside->parts->clock.isOn = profiling;
}

const StrokeStats& QDDrawCanvas::strokeStats() const {
    return _inside->parts->clock.stats;
}

// ---- Brush

BrushValue QDDrawCanvas::storedValue(BrushKey key) const {
    return _inside->parts->brush.value(key);
}

void QDDrawCanvas::store(BrushKey key, const BrushValue& value) {
    const Host::Call call(_inside->host);
    _inside->parts->brush.set(key, value);
}

bool QDDrawCanvas::setBrushValue(const BrushProperty& property, const QVariant& value) {
    const Host::Call call(_inside->host);
    const auto typed = brushValueOf(property, value);
    return typed && _inside->parts->brush.set(property.key, *typed);
}

QVariant QDDrawCanvas::brushValue(const BrushProperty& property) const {
    return variantOf(storedValue(property.key));
}

const BrushSettings& QDDrawCanvas::brush() const {
    return _inside->parts->brush.settings();
}

void QDDrawCanvas::resetParams() {
    const Host::Call call(_inside->host);
    _inside->parts->brush.reset();
}

bool QDDrawCanvas::resetWithParams(const std::optional<BrushParams>& params, int version) {
    return QDBrushManager::resetDrawView(this, params, version);
}

bool QDDrawCanvas::resetWithXBFPath(const QString& path, QString* problem) {
    return QDBrushManager::resetDrawView(this, path, problem);
}

void QDDrawCanvas::restoreSubLine(float slRadius, float relationValue) {
    _inside->parts->setSecondLine(slRadius, relationValue);
}

bool QDDrawCanvas::isSmudgeType() const {
    return _inside->parts->kind() == StrokeKind::smudge;
}

bool QDDrawCanvas::needRepeatedlyRender() const {
    return _inside->parts->brush.isMasked();
}

bool QDDrawCanvas::needColorTendency() const {
    return brushType() != 3;  // which smudges
}

const LPLineParams& QDDrawCanvas::lineParaObj() const {
    return std::as_const(_inside->parts->brush).line();
}

const LPLineParams& QDDrawCanvas::subLineParaObj() const {
    return std::as_const(_inside->parts->brush).subLine();
}

bool QDDrawCanvas::enableDevicePress() const {
    return _inside->host.wantsDevicePress;
}

void QDDrawCanvas::setEnableDevicePress(bool value) {
    _inside->host.wantsDevicePress = value;
}

float QDDrawCanvas::normalPress() const {
    return _inside->host.normalPress;
}

void QDDrawCanvas::setNormalPress(float value) {
    _inside->host.normalPress = value;
}

float QDDrawCanvas::inRadiusForRadius(float radius) const {
    return 2 * radius / (maxRadius() + minRadius());
}

float QDDrawCanvas::radiusForInRadius(float value) const {
    return (maxRadius() + minRadius()) * value * 0.5f;
}

// ---- History

bool QDDrawCanvas::edited() const {
    return _inside->parts->layers.edits.unrecorded.now;
}

bool QDDrawCanvas::isModified() const {
    return _inside->parts->isModified();
}

void QDDrawCanvas::setModified(bool modified) {
    _inside->parts->setModified(modified);
}

bool QDDrawCanvas::isContextLost() const {
    return _inside->parts->isLost();
}

bool QDDrawCanvas::recoverFromLoss(SurfaceKind kind) {
    return _inside->parts->recoverFromLoss(kind);
}

bool QDDrawCanvas::autoMark() const {
    return _inside->parts->history.autoMark;
}

void QDDrawCanvas::setAutoMark(bool autoMark) {
    _inside->parts->history.autoMark = autoMark;
}

float QDDrawCanvas::markTimeInterval() const {
    return _inside->parts->history.markTimeInterval;
}

void QDDrawCanvas::setMarkTimeInterval(float seconds) {
    _inside->parts->history.markTimeInterval = seconds;
}

StepPicture QDDrawCanvas::markAction() {
    return _inside->parts->mark();
}

StepPicture QDDrawCanvas::undo() {
    return _inside->parts->undo();
}

StepPicture QDDrawCanvas::redo() {
    return _inside->parts->redo();
}

UndoRefusal QDDrawCanvas::undoRefusal() const {
    return _inside->parts->refusal;
}

bool QDDrawCanvas::canUndo() const {
    return _inside->parts->canUndo();
}

bool QDDrawCanvas::canRedo() const {
    return _inside->parts->canRedo();
}

StepPicture QDDrawCanvas::resetUndoManager() {
    return _inside->parts->resetHistory();
}

StepPicture QDDrawCanvas::loadUndoManager() {
    Parts& parts = *_inside->parts;
    return parts.history.load(parts.sketch.isOn());
}

ImagesUndoManager& QDDrawCanvas::undoManager() {
    Parts& parts = *_inside->parts;
    return parts.history.images(parts.sketch.isOn());
}

bool QDDrawCanvas::keepsForRecovery() const {
    return _inside->parts->history.isKept();
}

bool QDDrawCanvas::setKeepsForRecovery(bool keeps) {
    const Host::Call call(_inside->host);
    QString problem = QStringLiteral("a stroke is in progress");
    if (!_inside->parts->finishPreview() || _inside->parts->isDrawing() ||
        !_inside->parts->history.keep(keeps, &problem)) {
        qCWarning(lcDabcanvas, "The history cannot be kept: %ls", qUtf16Printable(problem));
        return false;
    }
    return true;
}

bool QDDrawCanvas::recoverHistory(const QString& id, QString* problem) {
    QString unheard;
    return _inside->parts->recover(id, problem != nullptr ? problem : &unheard);
}

QString QDDrawCanvas::recoveryWords() const {
    return _inside->parts->history.words();
}

bool QDDrawCanvas::setRecoveryWords(const QString& words) {
    return _inside->parts->history.setWords(words);
}

StepPicture QDDrawCanvas::curImageData() const {
    return _inside->parts->record.data();
}

void QDDrawCanvas::setCurImageData(const QByteArray& data) {
    _inside->parts->record.give(data);
}
