// SPDX-License-Identifier: MIT
#include "BrushPlan.h"

#include <algorithm>

namespace dabcanvas::dabpaint {

namespace {

// Tip images given without a texture type mean the type that paints with them; under another type the canvas would
// draw a tip of its own again as soon as the radius changes.
bool impliesStoredTips(const std::vector<BrushPlan::Step>& steps) {
    const auto sets = [&](BrushKey key) {
        return std::any_of(steps.begin(), steps.end(), [key](const BrushPlan::Step& step) {
            return step.property->key == key && step.value;
        });
    };
    return sets(BrushKey::textureImages) && !sets(BrushKey::textureType);
}

}  // namespace

void BrushPlan::seen(const Step& step) {
    if (step.property->key == BrushKey::radius && step.value)
        _largestRadius = std::max(_largestRadius, double(step.value->toFloat()));
}

QString BrushPlan::fix(const std::vector<PaintOptions::Assignment>& settings) {
    for (const auto& [name, text] : settings) {
        const BrushProperty* property = brushPropertyNamed(name);
        if (!property)
            return QStringLiteral("--set: ") + unknownProperty(name);
        const auto value = propertyValueFromText(*property, text);
        if (!value)
            return QStringLiteral("--set %1=%2: %3").arg(name, text.left(60), value.problem().what);
        // A radius given here is the only one.
        if (property->key == BrushKey::radius)
            _largestRadius = value->toFloat();
        _fixed.push_back({property, *value});
        _fixedProperties.insert(property);
    }
    if (impliesStoredTips(_fixed)) {
        const BrushProperty* type = &brushProperty(BrushKey::textureType);
        _fixed.insert(_fixed.begin(), {type, QVariant(0)});
        _fixedProperties.insert(type);
    }
    return {};
}

std::optional<Problem> BrushPlan::add(const Recording& recording, const QString& folder) {
    auto& steps = _steps.emplace_back(recording.strokes.size());
    auto& touched = _touchedBy.emplace_back();
    for (std::size_t i = 0; i < recording.strokes.size(); ++i) {
        for (const Setting& setting : recording.strokes[i].settings) {
            const BrushProperty* property = brushPropertyNamed(setting.name);
            if (!property)
                return Problem{setting.line, setting.element, unknownProperty(setting.name)};
            Step step{property, std::nullopt};
            if (!std::holds_alternative<std::monostate>(setting.value)) {
                const auto value = propertyValueFromSetting(*property, setting, folder);
                if (!value)
                    return Problem{setting.line, setting.element, value.problem().what};
                step.value = *value;
            }
            if (_fixedProperties.contains(property))
                continue;
            seen(step);
            touched.insert(property);
            _touched.insert(property);
            steps[i].push_back(std::move(step));
        }
        const BrushProperty* type = &brushProperty(BrushKey::textureType);
        if (impliesStoredTips(steps[i]) && !_fixedProperties.contains(type)) {
            touched.insert(type);
            _touched.insert(type);
            steps[i].insert(steps[i].begin(), {type, QVariant(0)});
        }
    }
    return std::nullopt;
}

std::vector<BrushPlan::Step> BrushPlan::undo(std::size_t recording) const {
    std::set<const BrushProperty*> properties;
    for (std::size_t i = 0; i < recording; ++i)
        properties.insert(_touchedBy[i].begin(), _touchedBy[i].end());
    std::vector<Step> steps;
    for (const BrushProperty* property : properties)
        steps.push_back({property, std::nullopt});
    return steps;
}

}  // namespace dabcanvas::dabpaint
