// SPDX-License-Identifier: MIT
/// \file
/// What one dab is, apart from what draws it: the points of a stroke go in, jittered dabs come out. Plain C++.
#pragma once

#include <cstddef>
#include <cstdint>

#include "LineProcess/ColorTypes.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

namespace dabcanvas {

/// One quad to draw. Buffer pixels with a top-left origin; angles counter-clockwise in radians.
struct Dab {
    float x, y;      ///< centre
    float halfSize;  ///< half the width; the height is roundness times the width
    float radian;
    float roundness;
    float flipX, flipY;   ///< 1, or -1 for mirrored
    float flow;           ///< 0..1, multiplies the tip
    RgbType color;        ///< straight, 0..1
    float random;         ///< 0..1, drawn only in multicolour mode
    std::uint32_t tip;    ///< index of the tip image
    float paperLift = 0;  ///< added to what the paper lets through, -1..1
};

/// Brush settings that shape dabs; the canvas's properties of the same names tell what each does. A control is
/// active when any of its three influences is not 0.
struct DabSettings {
    RgbType color{0, 0, 0};
    RgbType backColor{0, 0, 0};
    float flow = 1;
    float radius = 0, minRadius = 0, radiusTingle = 0;
    float distribution = 0;
    LPControlParams distributionControl{};
    bool disTwoAxes = false;
    std::uint32_t distributionCount = 0;
    float distributionCountTingle = 0;
    LPControlParams distributionCountControl{};
    float radian = 0, radianTingle = 0;
    LPControlParams radianControl{};
    bool startRadianEnable = false, moveRadianEnable = false;
    float roundness = 1, minRoundness = 0, roundnessTingle = 0;
    LPControlParams roundnessControl{};
    bool pixelAligned = false;
    bool flipX = false, flipY = false, flipXTingle = false, flipYTingle = false;
    float minFlow = 0, maxFlow = 0, flowTingle = 0, decay = 0;
    LPControlParams flowControl{};
    float maskDepth = 0;
    LPControlParams maskDepthControl{};
    bool textureTingleEnabled = false;
    LPControlParams textureControl{};
    float colorTingle = 0;
    LPControlParams colorControl{};
    float hueTingle = 0, saturationTingle = 0, brightnessTingle = 0;
    bool colorFul = false;
    /// How the canvas is shown: mirrored left to right, then turned. Tips keep the angle that they are seen at.
    float viewRadian = 0;
    bool viewMirrored = false;
    bool isDebug = false;  ///< repeatable random sequences instead of a generator's
    int lineProcessType = 0;
    std::uint32_t numberOfTips = 0;  ///< tip images handed in; an atlas may hold fewer
    std::uint32_t tipCells = 1;      ///< cells of the tip's atlas
};

/// Bits of lineProcessType, which count from 0.
inline constexpr int kNoThinDabs = 1 << 1;  ///< a point smaller than 3 pixels is drawn 3 pixels large
inline constexpr int kThinFlow = 1 << 2;    ///< a point smaller than 3 pixels flows a third per pixel instead

/// Which jitters can change anything, so that a dab skips the others.
struct DabFlags {
    bool colorTingle = false, hsvTingle = false, colorTendency = false;
    bool flowTingle = false;
    bool multipleTips = false;
    bool radianTingle = false;
    bool roundnessTingle = false;
    bool distribution = false, radiusTingle = false;
    bool countTingle = false;
    bool moveRadian = false;  ///< the stroke's direction is needed
    bool paperLift = false;
};

/// Turns the points of one stroke into dabs: set `settings`, call updateFlags(), then make() for each run of points.
/// Keeps the stroke's dab counter and direction from call to call; reset() begins the next stroke. On one thread at a
/// time: the jitters use that thread's state, and the generator that its LPSharedState brings, or the C library's.
class DABCANVAS_DABS_API DabMaker {
public:
    static constexpr std::size_t kMostDabsAPoint = 64;

    DabSettings settings;

    /// To be called after settings changed: derives which jitters are active.
    void updateFlags();
    /// What updateFlags() found.
    const DabFlags& flags() const { return _flags; }

    /// Begins the next stroke.
    void reset();
    /// The stroke led here before its first point, so that this one knows its direction.
    void comeFrom(const LPPosition& place);

    /// Of the point that the present dab belongs to, inside a sink.
    const LPPoint& point() const { return _point; }
    float halfSizeOfPoint() const { return _halfSize; }
    std::int64_t pointIndex() const { return _pointIndex; }  ///< counted from 1 since the stroke began

    /// Calls sink(const Dab&) for every dab of the points, in drawing order.
    template <typename Sink>
    void make(const LPPoint* points, std::size_t count, Sink&& sink) {
        beginRun();
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t dabs = beginPoint(points, count, i);
            for (std::size_t copy = 0; copy < dabs; ++copy) {
                sink(makeDab());
            }
            _lastPosition = points[i].position;
        }
    }

private:
    void beginRun();
    std::size_t beginPoint(const LPPoint* points, std::size_t count, std::size_t i);
    std::size_t dabCount() const;
    const Dab& makeDab();
    float paperLift(float flow) const;
    RgbType jitteredColor() const;
    std::uint32_t jitteredTip() const;
    float seenDirection() const;
    float onCanvas(float seenRadian) const;

    DabFlags _flags;
    // Of the stroke
    std::int64_t _pointIndex = 0;
    LPPosition _lastPosition{0, 0};
    bool _cameFrom = false;  // _lastPosition is of before the first point
    float _startRadian = 0;
    float _direction = 0;
    // Of the run
    float _baseRadian = 0;
    // Of the point
    LPPoint _point{};
    std::size_t _dabsHere = 1;
    float _halfSize = 0;
    float _thinFlow = 1;
    float _reach = 0;  // into the paper, at full flow
    Dab _dab{};
};

}  // namespace dabcanvas
