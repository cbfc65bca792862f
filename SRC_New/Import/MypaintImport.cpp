// SPDX-License-Identifier: MIT
#include "Import/MypaintImport.h"

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "Import/ControlFit.h"
#include "Import/EngineCurves.h"
#include "Import/MypaintDabs.h"
#include "Import/MypaintTip.h"
#include "LineProcess/LPProperties.h"

namespace dabcanvas {
namespace {

using In = MypaintInput;
using Settings = std::initializer_list<std::string_view>;

constexpr float kLeastSize = 2, kMostSize = 1280;  // of a brush, across
constexpr float kMostJitter = 0.95f, kMostCopies = 16;
constexpr float kShows = 0.02f;    // a smaller part of something does not
constexpr float kRoughly = 0.25f;  // off by more, a curve is met roughly only
constexpr float kRootOfThree = 1.7320508f, kRootOfTwelve = 3.4641016f;
constexpr float kPi = 3.1415927f;

class Fitting {
public:
    explicit Fitting(const MypaintBrush& brush) : _brush(brush), _dabs(brush), _pens(_dabs.pens()) {
        _made.lost = lossesOf(brush);
    }

    ImportedBrush make() {
        takeTip();
        takeCopies();
        takeSize();
        takeSpacing();
        takeFlow();
        takeScatter();
        takeShape();
        takeColours();
        takeSmudge();
        takeStroke();
        takeSpeed();
        return std::move(_made);
    }

private:
    void takeTip();
    void takeCopies();
    void takeSize();
    void takeSpacing();
    void takeFlow();
    void takeScatter();
    void takeShape();
    void takeAngle();
    void takeColours();
    void takeSmudge();
    void takeStroke();
    void takeSpeed();

    void set(BrushKey key, BrushValue value) { _made.values.emplace_back(key, std::move(value)); }
    void lose(const QString& what);
    void tellIfRough(const char* what, float off);

    MypaintQuantity of(const char* key) const;
    Influences influencesOn(Settings settings) const;
    float growth(float wild);
    std::vector<Target> sizeTargets();
    float sizeAt(const LPControlParams& inputs) const;
    float ownStepAt(const LPControlParams& inputs) const;

    const MypaintBrush& _brush;
    const MypaintDabs _dabs;
    const MypaintPens& _pens;
    ImportedBrush _made;
    float _radius = 2, _minRadius = 1;  // as the brush has them
    LPControlParams _radiusControl{};
    float _sizeJitter = 0;
    float _spacing = 0.2f;
    float _copies = 1;  // dabs at each place
};

void Fitting::lose(const QString& what) {
    if (!_made.lost.contains(what)) {
        _made.lost << what;
    }
}

void Fitting::tellIfRough(const char* what, float off) {
    if (off > kRoughly) {
        lose(QStringLiteral("the exact course of %1, which is off by %2 % on average")
                 .arg(QLatin1String(what))
                 .arg(std::lround(off * 100)));
    }
}

MypaintQuantity Fitting::of(const char* key) const {
    return [this, key](const MypaintPen& pen) { return _brush.value(key, pen); };
}

Influences Fitting::influencesOn(Settings settings) const {
    const MypaintInputs inputs = _pens.inputsOf(settings);
    const auto uses = [inputs](In input) { return (inputs & bitOf(input)) != 0; };
    return {uses(In::pressure), uses(In::speed1) || uses(In::speed2), uses(In::declination)};
}

// On average, jitter counted in.
float Fitting::sizeAt(const LPControlParams& inputs) const {
    return _radius * shareOfSize(inputs, _minRadius, _radiusControl) * (1 - _sizeJitter / 2);
}

// Lines place no dabs closer together than their record says.
float Fitting::ownStepAt(const LPControlParams& inputs) const {
    return std::max(_spacing * sizeAt(inputs), _lpDefaultParaObj.minPointsDistance);
}

// A tip of its own rather than a drawn disc, whose edge is another one and which is coarse where it is small.
void Fitting::takeTip() {
    constexpr int kSide = 128, kLargeSide = 256;
    std::vector<float> hardnesses;
    for (const PenState& state : _pens.states({"hardness"})) {
        hardnesses.push_back(std::clamp(_brush.value("hardness", state.pen), 0.01f, 1.0f));
    }
    const float mean =
        std::accumulate(hardnesses.begin(), hardnesses.end(), 0.0f) / static_cast<float>(hardnesses.size());
    const int side = _dabs.baseRadius() > kSide / 2 ? kLargeSide : kSide;
    set(BrushKey::hardness, hardnessLike(mean));  // should a drawn one be chosen instead
    set(BrushKey::textureType, 0);
    set(BrushKey::textureImages, QList<QImage>{tipLike(hardnesses, side)});
}

// Dabs that lie apart are so many at each place that those between, which lines leave no room for, are made up for. Rather
// stronger ones than more: copies are spread evenly, which takes the grain away.
void Fitting::takeCopies() {
    constexpr float kStrongest = 0.75f;
    const MypaintPen middle = _pens.middle();
    if (_dabs.liesApart()) {
        const float places = _lpDefaultParaObj.minPointsDistance / _dabs.stepAt(middle);
        _copies = std::clamp(std::ceil(places * _dabs.opacityAt(middle) / kStrongest), 1.0f, kMostCopies);
    }
    set(BrushKey::distributionCount, _copies);
}

// Chooses the jitter of sizes: evenly between a part of the size and the size. Gives by how much the size must grow for
// dabs to cover as much as MyPaint's on average, of which those that are larger than usual are the fainter for it.
//   wild   the deviation of the size's logarithm
float Fitting::growth(float wild) {
    const Spread spread =
        _pens.spread([this](const MypaintPen& pen) { return _dabs.radiusAt(pen); }, _pens.middle());
    const bool isTwice = _copies > 1;  // scattered copies are jittered once more
    const float byChance = std::hypot(spread.deviation / spread.mean, std::sqrt(std::expm1(wild * wild))) /
                           (isTwice ? std::sqrt(2.0f) : 1.0f);
    _sizeJitter = std::min(byChance / (1 / kRootOfTwelve + byChance / 2), kMostJitter);
    const float wanted = (1 + std::exp(2 * wild * wild) * std::erfc(std::sqrt(2.0f) * wild)) / 2;
    const float covered = 1 - _sizeJitter + _sizeJitter * _sizeJitter / 3;
    return std::sqrt(wanted / (isTwice ? covered * covered : covered));
}

// Of the size's logarithm, the weightier the more shows of it.
std::vector<Target> Fitting::sizeTargets() {
    const float grown = growth(std::clamp(_brush.base("radius_by_random"), 0.0f, 1.5f));
    std::vector<Target> targets;
    for (const PenState& state : _pens.states({"radius_logarithmic"})) {
        const Spread radius =
            _pens.spread([this](const MypaintPen& pen) { return _dabs.radiusAt(pen); }, state.pen);
        const float size = 2 * std::hypot(radius.mean, radius.deviation);
        const float shown = size * std::max(_dabs.opacityAt(state.pen), 0.01f);
        targets.push_back({state.inputs, std::log(size * grown), shown});
    }
    return targets;
}

void Fitting::takeSize() {
    const std::vector<Target> targets = sizeTargets();
    // One size is the brush's own, where it can be as small.
    const bool isOne = targets.size() == 1 && _sizeJitter == 0 && targets[0].value >= std::log(kLeastSize);
    const auto share = [](const LPControlParams& inputs, const ControlFit& fit) {
        return shareOfSize(inputs, fit.second, fit.control);
    };
    const auto cutJitter = [&](const ControlFit& fit) {  // which ends at the smallest size
        double sum = 0;
        for (const Target& target : targets) {
            const float cut = fit.second - share(target.inputs, fit) * (1 - _sizeJitter);
            sum += _sizeJitter > 0 && cut > 0 ? static_cast<double>(cut) : 0.0;
        }
        return sum;
    };
    const ControlFit fit = fitControl(
        targets, {std::log(kLeastSize), std::log(kMostSize), 0.5f}, {isOne ? 1.0f : 0.0f, 1, 0.25f},
        influencesOn({"radius_logarithmic"}),
        [&](const LPControlParams& inputs, const ControlFit& tried) {
            return tried.first + std::log(std::max(share(inputs, tried), 1e-3f));
        },
        cutJitter);
    _radius = std::exp(fit.first);
    _minRadius = fit.second;
    _radiusControl = fit.control;
    tellIfRough("size", fit.off);
    set(BrushKey::radius, _radius);
    set(BrushKey::minRadius, _minRadius);
    set(BrushKey::maxRadius, 1.0f);
    set(BrushKey::radiusControl, _radiusControl);
    set(BrushKey::radiusTingle, _sizeJitter);
}

void Fitting::takeSpacing() {
    float sum = 0;
    const auto states = _pens.states({"radius_logarithmic", "dabs_per_actual_radius"});
    for (const PenState& state : states) {
        sum += std::log(_dabs.stepAt(state.pen) / sizeAt(state.inputs));
    }
    _spacing = std::clamp(std::exp(sum / static_cast<float>(states.size())), 0.01f, 10.0f);
    set(BrushKey::pointsDistance, _spacing);
}

void Fitting::takeFlow() {
    const auto opacity = [this](const MypaintPen& pen) { return _dabs.opacityAt(pen); };
    std::vector<Target> targets;
    float most = 0.001f;
    for (const PenState& state : _pens.states({"opaque", "opaque_multiply", "radius_logarithmic"})) {
        // The same cover, however many dabs there are here to bring it.
        const float dabs = ownStepAt(state.inputs) / _dabs.stepAt(state.pen) / _copies;
        const float one = std::min(_pens.spread(opacity, state.pen).mean, 0.999f);
        const float flow = _dabs.liesApart() ? std::min(one * dabs, 1.0f) : 1 - std::pow(1 - one, dabs);
        targets.push_back({state.inputs, flow});
        most = std::max(most, flow);
    }
    const ControlFit fit = fitControl(targets, {0.001f, 1, 0.25f}, {0.0001f, 1, 0.25f},
                                      influencesOn({"opaque", "opaque_multiply"}),
                                      [](const LPControlParams& inputs, const ControlFit& tried) {
                                          return flowOf(inputs, tried.first, tried.second, tried.control);
                                      });
    tellIfRough("opacity", fit.off / most);
    const Spread spread = _pens.spread(opacity, _pens.middle());
    const float jitter = spread.mean > 0 ? kRootOfThree * spread.deviation / spread.mean : 0;
    set(BrushKey::flow, fit.first);
    set(BrushKey::minFlow, fit.second);
    set(BrushKey::maxFlow, 1.0f);
    set(BrushKey::flowControl, fit.control);
    set(BrushKey::flowTingle, std::min(jitter, 1.0f));
}

void Fitting::takeScatter() {
    std::vector<Target> targets;
    float most = 0;
    for (const PenState& state : _pens.states({"offset_by_random", "radius_logarithmic"})) {
        // The deviation each way of places in a disc is half its radius.
        const float reach = 2 * _dabs.scatterAt(state.pen) * _dabs.baseRadius();
        targets.push_back({state.inputs, reach / sizeAt(state.inputs)});
        most = std::max(most, targets.back().value);
    }
    if (most < kShows) {
        return;
    }
    const ControlFit fit = fitControl(targets, {0, most * 1.5f, most / 4}, {0, 0, 0},
                                      influencesOn({"offset_by_random", "radius_logarithmic"}),
                                      [](const LPControlParams& inputs, const ControlFit& tried) {
                                          return tried.first * shareOfScatter(inputs, tried.control);
                                      });
    tellIfRough("scatter", fit.off / most);
    set(BrushKey::distribution, fit.first);
    set(BrushKey::distributionControl, fit.control);
    set(BrushKey::disTwoAxes, true);
}

void Fitting::takeShape() {
    const auto roundness = [this](const MypaintPen& pen) {
        return 1 / std::max(1.0f, _brush.value("elliptical_dab_ratio", pen));
    };
    std::vector<Target> targets;
    for (const PenState& state : _pens.states({"elliptical_dab_ratio"})) {
        targets.push_back({state.inputs, _pens.spread(roundness, state.pen).mean});
    }
    const bool isVaried = targets.size() > 1;
    const ControlFit fit = fitControl(
        targets, {0.01f, 1, 0.25f}, {0.01f, isVaried ? 1 : 0.01f, 0.25f},
        influencesOn({"elliptical_dab_ratio"}), [](const LPControlParams& inputs, const ControlFit& tried) {
            return roundnessOf(inputs, tried.first, tried.second, tried.control);
        });
    const float jitter =
        kRootOfTwelve * _pens.spread(roundness, _pens.middle()).deviation / std::max(fit.first, 0.01f);
    tellIfRough("roundness", fit.off);
    set(BrushKey::roundness, fit.first);
    set(BrushKey::minRoundness, fit.second);
    set(BrushKey::roundnessControl, fit.control);
    set(BrushKey::roundnessTingle, std::min(jitter, 1.0f));
    if (isVaried || fit.first < 1 - kShows) {
        takeAngle();
    }
}

// MyPaint turns clockwise, by degrees.
void Fitting::takeAngle() {
    const Spread spread = _pens.spread(of("elliptical_dab_angle"), _pens.middle());
    const auto turned = _dabs.turnedAgainstStroke();
    const float jitter = std::min(kRootOfThree * spread.deviation / 180, 1.0f);
    set(BrushKey::radian, -turned.value_or(spread.mean) * kPi / 180);
    set(BrushKey::moveRadianEnable, turned.has_value());
    set(BrushKey::radianTingle, jitter);
    if (turned && jitter > kShows) {
        lose(QStringLiteral("the curve of angle over chance"));
    }
    const MypaintInputs directions = bitOf(In::direction) | bitOf(In::directionAngle);
    if (!turned && (_pens.inputsOf({"elliptical_dab_angle"}) & directions) != 0) {
        lose(QStringLiteral("the curve of angle over direction"));
    }
}

void Fitting::takeColours() {
    const auto part = [this](const char* key) { return std::clamp(_brush.base(key), 0.0f, 1.0f); };
    set(BrushKey::renderColor, ESColor(QColor::fromHsvF(part("color_h"), part("color_s"), part("color_v"))));
    // Evenly, as far either way as deviates as much.
    const auto jitter = [this](std::initializer_list<const char*> keys) {
        float deviation = 0;
        for (const char* key : keys) {
            deviation = std::hypot(deviation, _pens.spread(of(key), _pens.middle()).deviation);
        }
        return std::min(kRootOfThree * deviation, 1.0f);
    };
    set(BrushKey::hueTingle, std::min(2 * jitter({"change_color_h"}), 1.0f));  // of half a turn
    set(BrushKey::saturationTingle, jitter({"change_color_hsl_s", "change_color_hsv_s"}));
    set(BrushKey::brightnessTingle, jitter({"change_color_l", "change_color_v"}));
    const float eraser = _brush.value("eraser", _pens.middle());
    constexpr int kNormal = 1, kErase = 5;
    set(BrushKey::blendType, eraser > 0.5f ? kErase : kNormal);
    if (eraser > kShows && eraser < 1 - kShows) {
        lose(QStringLiteral("erasing in part"));
    }
}

void Fitting::takeSmudge() {
    constexpr int kSmudge = 3;
    const float smudge = _dabs.meanSmudge();
    if (smudge < 0.05f) {
        return;
    }
    set(BrushKey::brushType, kSmudge);
    set(BrushKey::mixQuantity, smudge);
    set(BrushKey::loadQuantity, 1.0f);
    set(BrushKey::moistQuantity, 1 - std::cbrt(1 - _dabs.carriedPart()));
    if (_dabs.smudgesThroughout() && _brush.base("offset_by_random") + _brush.base("tracking_noise") > 0.5f) {
        lose(QStringLiteral("scatter as far as that, as the brush smudges"));
    }
    const MypaintSetting setting = _brush.setting("smudge");
    const MypaintCurve* const rise = setting.curveOver(In::stroke);
    const bool ramps = rise != nullptr && rise->at(1) - rise->at(0) > 0.1f;
    set(BrushKey::smudgeControl, ramps);
    if (ramps) {
        set(BrushKey::smudgeControlValue,
            std::max(1.0f, _dabs.strokeLength() / _dabs.stepAt(_pens.middle())));
    } else if (rise != nullptr && rise->span() > kShows) {
        lose(QStringLiteral("the curve of smudging over the stroke's length"));
    }
}

// Tapers and steadying.
void Fitting::takeStroke() {
    const MypaintSetting size = _brush.setting("radius_logarithmic");
    const MypaintCurve* const course = size.curveOver(In::stroke);
    const bool grows = _dabs.growsAlong();
    set(BrushKey::startRadius, grows ? std::max(std::exp(course->at(0) - course->at(1)), 0.01f) : 0.0f);
    set(BrushKey::endRadius, 0.0f);
    if (grows) {
        set(BrushKey::strokeControlValue, _dabs.strokeLength());
    } else if (course != nullptr && course->span() > kShows) {
        lose(QStringLiteral("the curve of size over the stroke's length"));
    }
    // A curve through every so many samples sways as little as a mean that follows them for as long.
    const float slow = std::clamp(_brush.base("slow_tracking"), 0.0f, 5.0f);
    set(BrushKey::trackNum, std::max(0, static_cast<int>(std::lround(2 * slow - 1))));
}

void Fitting::takeSpeed() {
    const MypaintInputs inputs = _pens.inputsOf(
        {"radius_logarithmic", "opaque", "opaque_multiply", "elliptical_dab_ratio", "offset_by_random"});
    const bool isFast = (inputs & bitOf(In::speed1)) != 0;
    if (!isFast && (inputs & bitOf(In::speed2)) == 0) {
        return;
    }
    const float slowness = std::max(_brush.base(isFast ? "speed1_slowness" : "speed2_slowness"), 1e-3f);
    set(BrushKey::sensitivity, kFastest / kSamplesASecond);
    set(BrushKey::speedSencitive, 1 - std::exp(-1 / (kSamplesASecond * slowness)));
}

}  // namespace

ImportedBrush importedFrom(const MypaintBrush& brush) {
    return Fitting(brush).make();
}

}  // namespace dabcanvas
