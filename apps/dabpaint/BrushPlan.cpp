// SPDX-License-Identifier: MIT
#include "BrushPlan.h"

#include <QDir>
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

void BrushPlan::seen(const Brush& brush) {
    if (!isFixed(BrushKey::radius))
        _largestRadius = std::max(_largestRadius, brush.number(brushProperty(BrushKey::radius)));
}

void BrushPlan::seen(const Step& step) {
    if (step.property->key == BrushKey::radius && step.value)
        _largestRadius = std::max(_largestRadius, double(step.value->toFloat()));
}

void BrushPlan::begin(std::shared_ptr<const Brush> brush) {
    _brush = std::move(brush);
    if (!isFixed(BrushKey::radius))
        _largestRadius = _brush->number(brushProperty(BrushKey::radius));
}

std::optional<Problem> BrushPlan::addBrush(const BrushReference& reference, const QString& folder,
                                           Change& change) {
    const QString path = QDir(folder).filePath(reference.path);
    auto& known = _brushFiles[path];
    if (!known) {
        const auto brush = readBrush(path);
        if (!brush)
            return Problem{reference.line, reference.element, brush.problem().text(path)};
        known = *brush;
        _files << path;
    }
    seen(*known);
    change.brush = known;
    return std::nullopt;
}

QString BrushPlan::fix(const std::vector<Assignment>& settings) {
    for (const auto& [name, text] : settings) {
        const BrushProperty* property = brushPropertyNamed(name);
        if (!property)
            return QStringLiteral("--set: ") + unknownProperty(name);
        const auto value = propertyValueFromText(*property, text);
        if (!value)
            return QStringLiteral("--set %1=%2: %3").arg(name, text.left(60), value.problem().what);
        _files += imageFilesOfText(*property, text);
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

std::optional<Problem> BrushPlan::add(const RecordedStrokes& recording, const QString& folder) {
    auto& changes = _changes.emplace_back(recording.strokes.size());
    if (recording.brush && !changes.empty()) {
        if (const auto problem = addBrush(*recording.brush, folder, changes[0]))
            return problem;
    }
    for (std::size_t i = 0; i < recording.strokes.size(); ++i) {
        auto& steps = changes[i].steps;
        if (const auto& brush = recording.strokes[i].brush) {
            if (const auto problem = addBrush(*brush, folder, changes[i]))
                return problem;
        }
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
                _pixels += pixelsOf(*value);
                if (const QString refusal = pixelsRefusal(_pixels); !refusal.isEmpty())
                    return Problem{setting.line, setting.element, refusal};
                _files += imageFiles(*property, setting, folder);
            }
            if (_fixedProperties.contains(property))
                continue;
            seen(step);
            _touched.insert(property);
            steps.push_back(std::move(step));
        }
        const BrushProperty* type = &brushProperty(BrushKey::textureType);
        if (impliesStoredTips(steps) && !isFixed(BrushKey::textureType)) {
            _touched.insert(type);
            steps.insert(steps.begin(), {type, QVariant(0)});
        }
    }
    return std::nullopt;
}

}  // namespace dabcanvas::dabpaint
