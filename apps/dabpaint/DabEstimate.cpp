// SPDX-License-Identifier: MIT
#include "DabEstimate.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "Dabs/Dab.h"
#include "LineProcess/LPLineProcess.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr double kMostPlaces = 131072;  // in one segment, whatever its length: the line process's own limit

// The values of a brush as far as they are known without a canvas.
class BrushNumbers {
public:
    explicit BrushNumbers(const BrushPlan& plan) : _plan(plan) { use(plan.brush()); }

    void change(const BrushPlan::Change& change) {
        if (change.brush)
            use(change.brush);
        take(change.steps);
    }

    double places(double length, BrushKey spacing, BrushKey radius) const {
        const double size = of(radius) * (of(BrushKey::minRadius) + of(BrushKey::maxRadius)) / 2;
        const double step = std::max(double(_lpDefaultParaObj.minPointsDistance), of(spacing) * size);
        return std::min(length / step, kMostPlaces);
    }
    double of(BrushKey key) const {
        const auto found = _values.find(key);
        return found == _values.end() ? brushDefault(brushProperty(key)).toDouble() : found->second;
    }
    double copies(BrushKey key) const { return std::clamp(of(key), 1.0, double(DabMaker::kMostDabsAPoint)); }

private:
    void use(const std::shared_ptr<const Brush>& brush) {
        _values.clear();
        for (const BrushProperty& row : brushProperties()) {
            if (brush && row.type() != BrushValueType::images)
                _values[row.key] = brush->number(row);
        }
        take(_plan.fixed());
        _base = _values;
    }
    void take(const std::vector<BrushPlan::Step>& steps) {
        for (const auto& [property, value] : steps) {
            if (value)
                _values[property->key] = value->toDouble();
            else if (const auto before = _base.find(property->key); before != _base.end())
                _values[property->key] = before->second;
            else
                _values.erase(property->key);
        }
    }

    const BrushPlan& _plan;
    std::map<BrushKey, double> _values, _base;
};

double strokeDabs(const RecordedStroke& stroke, const BrushNumbers& brush) {
    const auto& samples = stroke.samples;
    const auto count = double(samples.size());
    if (brush.of(BrushKey::pointsDistanceEnabled) == 0)
        return count * brush.copies(BrushKey::distributionCount);
    const bool second = brush.of(BrushKey::repeatedlyRenderEnabled) != 0;
    double dabs = count;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const double length = std::hypot(samples[i].x - samples[i - 1].x, samples[i].y - samples[i - 1].y);
        dabs += brush.places(length, BrushKey::pointsDistance, BrushKey::radius) *
                brush.copies(BrushKey::distributionCount);
        if (second)
            dabs += brush.places(length, BrushKey::slPointsDistance, BrushKey::slRadius) *
                    brush.copies(BrushKey::slDistbCount);
    }
    return dabs;
}

}  // namespace

std::vector<double> estimatedDabs(const RecordedStrokes& recording, const BrushPlan& plan,
                                  std::size_t index) {
    BrushNumbers brush(plan);
    std::vector<double> dabs;
    for (std::size_t i = 0; i < recording.strokes.size(); ++i) {
        brush.change(plan.before(index, i));
        dabs.push_back(strokeDabs(recording.strokes[i], brush));
    }
    return dabs;
}

}  // namespace dabcanvas::dabpaint
