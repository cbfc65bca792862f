// SPDX-License-Identifier: MIT
#include "Recording/RecordingPlayer.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Canvas/QDDrawCanvas.h"
#include "Canvas/ShapeSketch.h"
#include "History/ImagesUndoManager.h"

namespace dabcanvas {

namespace {

bool isCall(const RecordedEvent& event, RecordedCall call) {
    const auto* made = std::get_if<RecordedCall>(&event.what);
    return made != nullptr && *made == call;
}

// Whether a brush property is so many pixels of the canvas.
bool isLength(const QDDrawCanvas& canvas, BrushKey key) {
    switch (key) {
        case BrushKey::radius:
        case BrushKey::slRadius:
        case BrushKey::sensitivity:
        case BrushKey::strokeControlValue:
        case BrushKey::wetEdgeWidth:
        case BrushKey::gaussianRadius:
        case BrushKey::maskScale:
            return true;
        case BrushKey::relationValue:
            return canvas.slRadiusRelationType() == 1;  // else a ratio
        case BrushKey::textureControlValue:
            return canvas.textureType() == 2;  // else a ratio
        default:
            return false;
    }
}

}  // namespace

// Does one event but a stroke.
class RecordingPlayer::Doing {
public:
    // `sample`: the next one of a stroke.
    Doing(RecordingPlayer& player, std::size_t& sample)
        : _player(player), _canvas(player._canvas), _to(player._canvas.input()), _sample(sample) {}

    bool operator()(const StrokePart& part) {
        _player.playSample(part, _sample);
        return true;
    }
    bool operator()(const BrushChange& change) {
        if (_player._options.fixed.count(change.key) > 0)
            return true;
        BrushValue value = change.value;
        if (auto* number = std::get_if<float>(&value); number && isLength(_canvas, change.key))
            *number = float(*number * scale());
        _to.brushSet(change.key, value);
        return true;
    }
    bool operator()(const SecondLineChange& change) {
        const bool isRatio = _canvas.slRadiusRelationType() == 2;
        if (_player._options.fixed.count(BrushKey::slRadius) == 0)
            _to.secondLineSet(float(change.slRadius * scale()),
                              float(change.relationValue * (isRatio ? 1 : scale())));
        return true;
    }
    bool operator()(const SeedChange& change) {
        _to.randomSeeded(change.seed);
        return true;
    }
    bool operator()(const RepeatChange& change) {
        _to.randomRepeats(change.repeats);
        return true;
    }
    bool operator()(const ClearedCanvas& cleared) {
        _to.cleared(cleared.color, cleared.layersToo);
        return true;
    }
    bool operator()(const InputImage& placed) {
        InputImage scaledImage = placed;
        scaledImage.size *= scale();
        scaledImage.centre *= scale();
        scaledImage.limits = scaledLimits(placed.limits);
        _to.imagePlaced(scaledImage);
        return true;
    }
    bool operator()(const PlacedPreview& placed) {
        _to.previewPlaced(scaledLimits(placed.limits));
        return true;
    }
    bool operator()(const DrawnShape& drawn) {
        _to.shapeDrawn(scaled(drawn.shape, scale()));
        return true;
    }
    bool operator()(const WholePicture& whole) {
        QImage picture;
        return (fit(whole.picture, picture) && _to.pictureSet(picture, true)) || failPicture();
    }
    bool operator()(const WholeLayers& whole) {
        InputLayers layers = whole.layers;
        return (std::all_of(layers.all.begin(), layers.all.end(),
                            [this](InputLayers::One& layer) { return fit(layer.picture, layer.picture); }) &&
                _to.layersSet(layers, true)) ||
               failPicture();
    }
    bool operator()(const LayerChange& change) {
        InputLayerEdit edit = change.edit;
        if (!edit.picture.isNull() && scale() != 1)
            edit.picture = scaledBy(edit.picture, edit.picture.size() * scale());
        return _to.layersEdited(edit) ||
               _player.fail(QStringLiteral("the canvas does not take a recorded change of its layers"));
    }
    bool operator()(const AreaChange& change) {
        const auto scaledSide = [this](int pixels) { return int(std::lround(pixels * scale())); };
        const QRect area(scaledSide(change.area.x()), scaledSide(change.area.y()),
                         std::max(1, scaledSide(change.area.width())),
                         std::max(1, scaledSide(change.area.height())));
        return _to.areaSet(area) || _player.fail(QStringLiteral("the canvas does not change its size"));
    }
    bool operator()(const ViewChange& change) {
        _to.viewTurned(change.radian, change.mirrored);
        return true;
    }
    bool operator()(const Symmetry& symmetry) {
        Symmetry scaledSymmetry = symmetry;
        scaledSymmetry.centreX *= scale();
        scaledSymmetry.centreY *= scale();
        _to.symmetrySet(scaledSymmetry);
        return true;
    }
    bool operator()(const SelectionChange& change) {
        _to.selectionSet(QTransform::fromScale(scale(), scale()).map(change.area));
        return true;
    }
    bool operator()(RecordedCall call) {
        switch (call) {
            case RecordedCall::stepRecorded:
                _to.stepRecorded();
                return true;
            case RecordedCall::historyReset:
                _to.historyReset();
                return true;
            case RecordedCall::undone:
                return _to.undone() || _player.fail(QStringLiteral("there is no step to undo"));
            case RecordedCall::redone:
                break;
        }
        return _to.redone() || _player.fail(QStringLiteral("there is no step to redo"));
    }

private:
    double scale() const { return _player._options.scale; }
    InputLimits scaledLimits(InputLimits limits) const {
        if (const auto box = limits.scissor)
            limits.scissor = QRectF(box->topLeft() * scale(), box->size() * scale());
        return limits;
    }

    static QImage scaledBy(const QImage& picture, const QSize& size) {
        return picture.scaled(size.expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    // As large as the canvas; false where it should be and is not.
    bool fit(const QImage& picture, QImage& fitting) const {
        const QSize size = _canvas.bufferSize().toSize();
        const bool fits = picture.isNull() || picture.size() == size;
        fitting = fits ? picture : scaledBy(picture, size);
        return fits || scale() != 1;
    }
    bool failPicture() {
        return _player.fail(
            QStringLiteral("the canvas does not take the recorded picture, or it has another size"));
    }

    RecordingPlayer& _player;
    QDDrawCanvas& _canvas;
    CanvasInput& _to;
    std::size_t& _sample;
};

RecordingPlayer::RecordingPlayer(const Recording& recording, QDDrawCanvas& canvas, PlayOptions options)
    : _recording(recording), _canvas(canvas), _options(std::move(options)) {}

RecordingPlayer::~RecordingPlayer() {
    if (_begun)
        _canvas.setAutoMark(_marks);
}

bool RecordingPlayer::fail(const QString& problem) {
    _problem = problem;
    return false;
}

bool RecordingPlayer::begin() {
    if (_begun)
        return _problem.isEmpty();
    if (_canvas.isDrawing())
        return fail(QStringLiteral("the canvas is being drawn on"));
    const QSize wanted = playedSize(_recording.header, _options.scale), size = _canvas.bufferSize().toSize();
    if (size != wanted)
        return fail(QStringLiteral("the canvas has %1x%2 pixels, the recording is of %3x%4")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(wanted.width())
                        .arg(wanted.height()));
    _begun = true;
    _marks = _canvas.autoMark();
    _canvas.setAutoMark(false);
    const auto& events = _recording.events;
    if (std::any_of(events.begin(), events.end(),
                    [](const RecordedEvent& event) { return isCall(event, RecordedCall::undone); })) {
        const auto steps = std::count_if(events.begin(), events.end(), [](const RecordedEvent& event) {
            return isCall(event, RecordedCall::stepRecorded);
        });
        _canvas.undoManager().setUndoStepCount(unsigned(steps) + 1);
        _canvas.undoManager().setDropsSteps(false);
    }
    _canvas.setRandomSeed(_options.seed.value_or(_recording.header.seed));
    return true;
}

// The samples of a stroke come one by one; how it ends, with the last.
void RecordingPlayer::playSample(const StrokePart& part, std::size_t& sample) {
    CanvasInput& to = _canvas.input();
    if (sample < part.samples.size()) {
        const RecordedSample& from = part.samples[sample];
        const InputSample taken{QPointF(from.x, from.y) * _options.scale, from.pressure, from.altitude};
        const bool isFirst = part.begins && sample == 0;
        const bool isLast = sample + 1 == part.samples.size() && part.end == StrokePart::End::ended;
        if (isFirst)
            to.strokeBegan(part.device, taken);
        if (isLast)
            to.strokeEnded(taken);
        else if (!isFirst)
            to.strokeMoved(taken);
        ++sample;
    }
    if (sample < part.samples.size())
        return;
    if (part.end == StrokePart::End::withdrawn)
        to.strokeWithdrawn();
    else if (part.end == StrokePart::End::dropped)
        to.strokeDropped();
}

bool RecordingPlayer::step() {
    if (!_problem.isEmpty() || !begin() || isAtEnd())
        return false;
    const RecordedWhat& what = _recording.events[_event].what;
    if (!std::visit(Doing(*this, _sample), what))
        return false;
    const auto* part = std::get_if<StrokePart>(&what);
    if (part == nullptr || _sample >= part->samples.size()) {
        ++_event;
        _sample = 0;
    }
    return true;
}

bool RecordingPlayer::play(const RecordedEvent& event) {
    _problem.clear();
    if (!begin())
        return false;
    const auto* part = std::get_if<StrokePart>(&event.what);
    std::size_t sample = 0;
    do {
        if (!std::visit(Doing(*this, sample), event.what))
            return false;
    } while (part != nullptr && sample < part->samples.size());
    return true;
}

bool RecordingPlayer::followsStroke() const {
    return !isAtEnd() && (isCall(_recording.events[_event], RecordedCall::stepRecorded) ||
                          std::holds_alternative<PlacedPreview>(_recording.events[_event].what));
}

bool RecordingPlayer::playStroke() {
    bool isOver = false;
    while (!isOver && !isAtEnd()) {
        const auto* part = std::get_if<StrokePart>(&_recording.events[_event].what);
        const std::size_t before = _event;
        if (!step())
            return false;
        isOver = part != nullptr && _event > before && part->end == StrokePart::End::ended;
    }
    while (isOver && followsStroke() && step()) {
    }
    return isOver && _problem.isEmpty();
}

bool RecordingPlayer::playUntil(double seconds) {
    while (!isAtEnd() && time() <= seconds && step()) {
    }
    return !isAtEnd() && _problem.isEmpty();
}

bool RecordingPlayer::playAll() {
    while (step()) {
    }
    return _problem.isEmpty();
}

double RecordingPlayer::time() const {
    if (isAtEnd())
        return durationOf(_recording);
    const RecordedEvent& event = _recording.events[_event];
    const auto* part = std::get_if<StrokePart>(&event.what);
    return part != nullptr && _sample < part->samples.size()
               ? std::max(event.time, part->samples[_sample].time)
               : event.time;
}

QSize playedSize(const RecordingHeader& header, double scale) {
    const auto side = [scale](int pixels) { return std::max(1, int(std::lround(pixels * scale))); };
    return {side(header.size.width()), side(header.size.height())};
}

double durationOf(const Recording& recording) {
    if (recording.events.empty())
        return 0;
    const RecordedEvent& last = recording.events.back();
    const auto* part = std::get_if<StrokePart>(&last.what);
    return part != nullptr && !part->samples.empty() ? std::max(last.time, part->samples.back().time)
                                                     : last.time;
}

}  // namespace dabcanvas
