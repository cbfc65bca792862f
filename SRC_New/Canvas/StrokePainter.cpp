// SPDX-License-Identifier: MIT
#include "Canvas/StrokePainter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <random>
#include <utility>

#include "Dabs/DabBounds.h"
#include "LineProcess/LPProperties.h"
#include "LineProcess/LPStroke.h"
#include "Recognition/ShapeDabs.h"

namespace dabcanvas {
namespace {

// The dabs of so many points, up to 64 each, are made before they are drawn.
constexpr std::size_t kMostPoints = 1024;

// The line process takes 0 where the device gives no tilt; -1 stands for that within a rounding error.
float lineAltitude(float altitude) {
    return std::fabs(altitude + 1) < 0.0001f ? 0.0f : altitude;
}

LPPosition linePosition(QPointF point) {
    return {static_cast<float>(point.x()), static_cast<float>(point.y())};
}

bool isNear(QPointF a, QPointF b) {
    return std::fabs(a.x() - b.x()) < kClosest && std::fabs(a.y() - b.y()) < kClosest;
}

}  // namespace

// One run of line-process calls: this canvas's copy of what the line process keeps for a thread is in it, its random
// numbers included, so that strokes of several canvases may interleave. May nest.
class StrokePainter::LineScope {
public:
    explicit LineScope(StrokePainter& painter) : _painter(painter) {
        if (!std::exchange(painter._stateIsIn, true)) {
            _outer = Outer{lpSharedState(), _lpParaObj};
            lpSetSharedState(painter._state);
        }
    }
    ~LineScope() {
        if (_outer) {
            _painter._state = lpSharedState();
            lpSetSharedState(_outer->state);
            lpSetParaObj(_outer->record);
            _painter._stateIsIn = false;
        }
    }
    LineScope(const LineScope&) = delete;
    LineScope& operator=(const LineScope&) = delete;

private:
    struct Outer {
        LPSharedState state;
        LPLineParams* record;
    };
    StrokePainter& _painter;
    std::optional<Outer> _outer;  // none in a nested one
};

// The points of one append call, owned.
struct StrokePainter::Run {
    std::unique_ptr<LPPoint, decltype(&std::free)> points{nullptr, &std::free};
    std::size_t count = 0;

    std::span<const LPPoint> from(std::size_t first) const { return {points.get() + first, count - first}; }
};

StrokePainter::StrokePainter(BrushState& brush, PaintLayers& layers, StageClock& clock)
    : _brush(brush), _layers(layers), _clock(clock), _generator(std::random_device()()) {
    _state.generator = &_generator;
}

// ---- Strokes

DrawTarget StrokePainter::mainTarget() const {
    return _brush.kind() == StrokeKind::smudge ? DrawTarget::smudge : DrawTarget::line;
}

void StrokePainter::begin(const StrokeSample& sample) {
    _hasMoved = false;
    _isRefused = !_layers.prepare(mainTarget() == DrawTarget::smudge ? PaintLayer::smudge : PaintLayer::line);
    if (_brush.isMasked()) {
        startSubLine(sample);
    }
    const LineScope scope(*this);
    resetMaker(mainTarget());
    startLine(_brush.line(), sample);
}

// What the line process keeps for all lines stays the main line's.
void StrokePainter::startSubLine(const StrokeSample& sample) {
    _isRefused = _isRefused || !_layers.prepare(PaintLayer::subLine);
    const LPSharedState mainLine = _state;
    {
        const LineScope scope(*this);
        resetMaker(DrawTarget::subLine);
        startLine(_brush.subLine(), sample);
    }
    _state = mainLine;
}

void StrokePainter::startLine(LPLineParams& record, const StrokeSample& sample) {
    const StageClock::Stage stage(_clock, &StrokeStats::geometrySeconds);
    lpSetParaObj(&record);
    lpStartLineWithParams(linePosition(sample.place), sample.pressure, lineAltitude(sample.altitude));
}

StrokePainter::Run StrokePainter::appendToLine(LPLineParams& record, const StrokeSample& sample, bool end) {
    const StageClock::Stage stage(_clock, &StrokeStats::geometrySeconds);
    lpSetParaObj(&record);
    const std::int32_t appended = lpAppendingLineWithParams(linePosition(sample.place), sample.pressure,
                                                            lineAltitude(sample.altitude), end);
    Run run;
    // Without new points the handed-out pointer still is an earlier, freed array.
    if (appended > 0) {
        LPPoint* points = nullptr;
        const std::int32_t count = lpGetLastLineSegmentPoints1V(&points);
        run.points.reset(points);
        run.count = points != nullptr && count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return run;
}

std::optional<Rect> StrokePainter::extend(const StrokeSample& sample) {
    return addSample(sample, false, true);
}

std::optional<Rect> StrokePainter::end(const StrokeSample& sample, QPointF before) {
    // Deliberate: a final sub-line run too close to the last point is left out; the main line's never is.
    return addSample(sample, true, !isNear(sample.place, before));
}

std::optional<Rect> StrokePainter::addSample(const StrokeSample& sample, bool end, bool subLineToo) {
    if (_isRefused) {
        return std::nullopt;
    }
    const LineScope scope(*this);
    ++_clock.stats.samples;
    const bool isFirst = !std::exchange(_hasMoved, true);
    std::optional<Rect> touched;
    if (_brush.isMasked()) {
        const Run run = appendToLine(_brush.subLine(), sample, end);
        if (run.count > 0 && subLineToo) {
            touched = drawRun(run.from(0), DrawTarget::subLine);
        }
    }
    const Run run = appendToLine(_brush.line(), sample, end);
    // Deliberate: the first accepted move leaves out the main line's first dab; the sub-line never drops one.
    const std::size_t first = isFirst && !end && run.count > 0 ? 1 : 0;
    if (first == 1) {
        makerOf(mainTarget()).comeFrom(run.points.get()->position);
    }
    if (run.count > first) {
        touched = touched.value_or(Rect()).united(drawRun(run.from(first), mainTarget()));
    }
    return touched;
}

void StrokePainter::restartDabs(StrokeKind kind) {
    const LineScope scope(*this);
    resetMaker(kind == StrokeKind::smudge ? DrawTarget::smudge : DrawTarget::line);
}

// ---- Dabs

DabMaker& StrokePainter::makerOf(DrawTarget target) {
    return target == DrawTarget::line     ? _brush.dabs()
           : target == DrawTarget::smudge ? _brush.smudgeDabs()
                                          : _brush.subDabs();
}

void StrokePainter::resetMaker(DrawTarget target) {
    makerOf(target).reset();
    if (target == DrawTarget::smudge) {
        _brush.smudges().reset();
        _copiesCarry = false;
    }
}

Rect StrokePainter::drawRun(std::span<const LPPoint> points, DrawTarget target) {
    const SurfaceScope surface(_layers.surface());
    const std::size_t most = std::max<std::size_t>(kMostPoints / (1 + _copies.size()), 1);
    Rect touched;
    for (std::size_t first = 0; surface && first < points.size(); first += most) {
        const StageClock::Stage stage(_clock, &StrokeStats::drawingSeconds, &_layers.surface());
        touched =
            touched.united(drawSome(points.subspan(first, std::min(most, points.size() - first)), target));
    }
    return touched;
}

Rect StrokePainter::drawSome(std::span<const LPPoint> points, DrawTarget target) {
    if (target == DrawTarget::smudge) {
        return smudgeSome(points);
    }
    _made.clear();
    DabBounds bounds{static_cast<double>(_layers.size().width), static_cast<double>(_layers.size().height)};
    std::vector<DabBounds> ofCopies(_copies.size(), bounds);
    const auto take = [this](const Dab& dab, DabBounds& touched) {
        ++_clock.stats.dabs;
        // A stroke may leave the picture and be far off for a million dabs.
        if (touched.grow(dab)) {
            _made.push_back(dab);
        }
    };
    makerOf(target).make(points.data(), points.size(), [&](const Dab& dab) {
        take(dab, bounds);
        for (std::size_t i = 0; i < _copies.size(); ++i) {
            take(_copies[i].of(dab), ofCopies[i]);
        }
    });
    if (drawMade(target).isEmpty()) {
        return {};
    }
    for (const DabBounds& copied : ofCopies) {
        _copied.push_back(copied.pixelsOnBuffer());
    }
    // Of all dabs: what lies between two of them counts as touched.
    return bounds.pixelsOnBuffer();
}

Rect StrokePainter::drawMade(DrawTarget target) {
    return target == DrawTarget::line      ? _layers.draw(PaintLayer::line, _made, _brush.style())
           : target == DrawTarget::subLine ? _layers.draw(PaintLayer::subLine, _made, _brush.subStyle())
                                           : _layers.drawOnPicture(_made, _brush.subStyle());
}

Rect StrokePainter::smudgeSome(std::span<const LPPoint> points) {
    SmudgeMaker& smudges = _brush.smudges();
    _madeSmudges.clear();
    DabBounds bounds{static_cast<double>(_layers.size().width), static_cast<double>(_layers.size().height)};
    std::vector<DabBounds> ofCopies(_copies.size(), bounds);
    bool isSeen = false;
    const auto take = [&](const SmudgeDab& dab, DabBounds& touched) {
        isSeen = touched.grow(dab.dab) || isSeen;
        _madeSmudges.push_back(dab);
    };
    smudges.make(_brush.smudgeDabs(), points.data(), points.size(), [&](const SmudgeDab& dab) {
        take(dab, bounds);
        for (std::size_t i = 0; i < _copies.size(); ++i) {
            SmudgeDab copy = _copies[i].of(dab);
            copy.bristles.set = static_cast<int>(i) + 1;
            copy.bristles.isFirst |= !_copiesCarry && dab.bristles.part > 0;
            take(copy, ofCopies[i]);
        }
        _copiesCarry = _copiesCarry || dab.bristles.part > 0;
    });
    _clock.stats.dabs += _madeSmudges.size();
    const Rect touched = _layers.smudge(_madeSmudges, _brush.style(), smudges.settings.load);
    if (_copies.empty() || !isSeen) {
        return isSeen ? touched : Rect();
    }
    // What no dab covered is not exchanged; the layer itself is as coarse as this.
    constexpr int kReach = 4;
    for (const DabBounds& copied : ofCopies) {
        _copied.push_back(copied.pixelsOnBuffer().grownBy(kReach).intersected(touched));
    }
    return bounds.pixelsOnBuffer().grownBy(kReach).intersected(touched);
}

void StrokePainter::setSymmetry(const Symmetry& symmetry) {
    _symmetry = symmetry;
    _copies = copiesOf(symmetry);
    _copiesCarry = false;
}

Rect StrokePainter::drawPoints(std::span<const LPPoint> points, DrawTarget target) {
    const LineScope scope(*this);
    Rect touched = drawRun(points, target);
    for (const Rect& copied : takeCopied()) {
        touched = touched.united(copied);
    }
    return touched;
}

Rect StrokePainter::drawRuns(const std::vector<std::vector<LPPoint>>& runs, DrawTarget target) {
    Rect touched;
    for (const std::vector<LPPoint>& run : runs) {
        resetMaker(target);  // each is a stroke of its own
        touched = touched.united(drawRun(run, target));
    }
    return touched;
}

std::optional<Rect> StrokePainter::drawOutline(const ShapeRecord& shape) {
    restartRandom();
    const LineScope scope(*this);
    const auto mainRuns = dabsOnShape(shape, _brush.line());
    if (mainRuns.empty()) {
        return std::nullopt;
    }
    Rect touched;
    if (_brush.isMasked()) {
        touched = drawRuns(dabsOnShape(shape, _brush.subLine()), DrawTarget::subLine);
    }
    return touched.united(drawRuns(mainRuns, mainTarget()));
}

// ---- Random numbers

void StrokePainter::setRepeatable(bool repeatable) {
    _brush.setRepeatable(repeatable);
    _repeats = repeatable;
    _restartIsDue = repeatable;
}

void StrokePainter::setSeed(std::uint32_t seed) {
    _seed = seed;
    _restartIsDue = true;
}

void StrokePainter::restartRandom() {
    if (!std::exchange(_restartIsDue, false) && !_repeats) {
        return;
    }
    _generator.seed(_seed);
    _state = LPSharedState();
    _state.generator = &_generator;
    const LineScope scope(*this);
    for (const DrawTarget target : {DrawTarget::line, DrawTarget::subLine, DrawTarget::smudge}) {
        resetMaker(target);
    }
}

}  // namespace dabcanvas
