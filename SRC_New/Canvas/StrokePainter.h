// SPDX-License-Identifier: MIT
// Samples of a stroke into dabs, and dabs into layers: runs the line process by the brush's records, makes dabs of the
// points that it gives and draws them into the layer of the stroke's kind.
//
// Units    buffer pixels.
// State    of one stroke, and the random numbers of all: a canvas's own, so that painting neither moves rand() and
//          drand48() nor is moved by them.
// Thread   one at a time; the line process's state, which each thread has once, is swapped in and out around every call.
#pragma once

#include <QPointF>
#include <optional>
#include <utility>
#include <vector>

#include "Canvas/BrushState.h"
#include "Canvas/PaintLayers.h"
#include "Canvas/StageClock.h"
#include "Dabs/Symmetry.h"
#include "LineProcess/LPSharedState.h"
#include "Recognition/ShapeRecord.h"

namespace dabcanvas {

// One place of a stroke. Pressure and altitude (pen tilt, 0 upright to 1 at 60 degrees) are 0..1, -1 when not given.
struct StrokeSample {
    QPointF place;
    float pressure = -1, altitude = -1;
};

// Samples that are nearer to each other are as good as one; buffer pixels.
inline constexpr float kClosest = 1.0f;

// What runs of points are drawn into; the values are ESRenderType's.
enum class DrawTarget : std::uint8_t { picture, line, subLine, smudge };

class StrokePainter {
public:
    StrokePainter(BrushState& brush, PaintLayers& layers, StageClock& clock);
    StrokePainter(const StrokePainter&) = delete;
    StrokePainter& operator=(const StrokePainter&) = delete;

    // ---- a stroke of dabs, plain or smudging

    void begin(const StrokeSample& sample);
    // Draws what the sample adds to the layers. Returns the touched area, which may be empty; none where there were no
    // new dabs.
    std::optional<Rect> extend(const StrokeSample& sample);
    // `before`: the place of the sample before.
    std::optional<Rect> end(const StrokeSample& sample, QPointF before);
    // The second line begins at this sample, in mid-stroke too.
    void startSubLine(const StrokeSample& sample);
    // The dabs to come are no continuation of those before: no direction leads from one to the next.
    void restartDabs(StrokeKind kind);

    // Of every dab from now on, copies are drawn with it.
    void setSymmetry(const Symmetry& symmetry);
    const Symmetry& symmetry() const { return _symmetry; }
    // Areas that copies have touched since this was asked last, and extend() and its fellows did not tell of.
    std::vector<Rect> takeCopied() { return std::exchange(_copied, {}); }

    // ---- dabs without a stroke

    // Runs of points, or the outline of a shape, a run at a time, in the present brush. None for a shape that cannot be
    // drawn.
    Rect drawPoints(std::span<const LPPoint> points, DrawTarget target);
    std::optional<Rect> drawOutline(const ShapeRecord& shape);

    // ---- random numbers

    // On: every stroke begins its sequences anew and so repeats by itself.
    void setRepeatable(bool repeatable);
    bool repeats() const { return _repeats; }
    void setSeed(std::uint32_t seed);
    // Begins them anew where that is due: before a stroke, and when a seed comes between two.
    void restartRandom();

private:
    class LineScope;
    struct Run;

    DrawTarget mainTarget() const;
    void startLine(LPLineParams& record, const StrokeSample& sample);
    Run appendToLine(LPLineParams& record, const StrokeSample& sample, bool end);
    std::optional<Rect> addSample(const StrokeSample& sample, bool end, bool subLineToo);
    Rect drawRun(std::span<const LPPoint> points, DrawTarget target);
    Rect drawSome(std::span<const LPPoint> points, DrawTarget target);
    Rect smudgeSome(std::span<const LPPoint> points);
    Rect drawMade(DrawTarget target);
    Rect drawRuns(const std::vector<std::vector<LPPoint>>& runs, DrawTarget target);
    DabMaker& makerOf(DrawTarget target);
    void resetMaker(DrawTarget target);

    BrushState& _brush;
    PaintLayers& _layers;
    StageClock& _clock;
    std::vector<Dab> _made;  // of the present run
    std::vector<SmudgeDab> _madeSmudges;
    Symmetry _symmetry;
    std::vector<SymmetryMap> _copies;
    std::vector<Rect> _copied;
    bool _copiesCarry = false;  // bristles of this stroke's copies hold paint

    bool _isRefused = false;  // there is no memory for a layer of it: nothing of the stroke is drawn
    bool _hasMoved = false;   // the first move of the stroke was taken
    LPSharedState _state;     // this canvas's copy of what the line process keeps for a thread
    bool _stateIsIn = false;  // it is in the line process now
    LPGenerator _generator;   // whose address _state holds
    std::uint32_t _seed = 0;
    bool _repeats = false;       // strokes repeat
    bool _restartIsDue = false;  // with the next stroke
};

}  // namespace dabcanvas
