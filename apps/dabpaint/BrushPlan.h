// SPDX-License-Identifier: MIT
// Which brush properties are set before which stroke, checked before anything is painted.
#pragma once

#include <QVariant>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "PaintCommand.h"
#include "PropertyValue.h"
#include "Recording.h"

namespace dabcanvas::dabpaint {

class BrushPlan {
public:
    struct Step {
        const BrushProperty* property;
        std::optional<QVariant> value;  // none: back to what it was before any recording
    };

    // The command line's settings, which hold for all strokes; the message when one is wrong.
    QString fix(const std::vector<PaintOptions::Assignment>& settings);
    // Plans the next recording; the first faulty setting otherwise. Image paths are relative to `folder`.
    std::optional<Problem> add(const Recording& recording, const QString& folder);

    const std::vector<Step>& fixed() const { return _fixed; }
    // Before the first stroke of a recording: undoes what earlier ones have set.
    std::vector<Step> undo(std::size_t recording) const;
    const std::vector<Step>& before(std::size_t recording, std::size_t stroke) const {
        return _steps[recording][stroke];
    }
    // Every property that a recording sets.
    const std::set<const BrushProperty*>& touched() const { return _touched; }
    double largestRadius() const { return _largestRadius; }

private:
    void seen(const Step& step);

    std::vector<Step> _fixed;
    std::set<const BrushProperty*> _fixedProperties;
    std::set<const BrushProperty*> _touched;
    std::vector<std::set<const BrushProperty*>> _touchedBy;
    std::vector<std::vector<std::vector<Step>>> _steps;  // by recording, by stroke
    double _largestRadius = brushDefault(brushProperty(BrushKey::radius)).toFloat();
};

}  // namespace dabcanvas::dabpaint
