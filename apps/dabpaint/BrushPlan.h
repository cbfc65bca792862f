// SPDX-License-Identifier: MIT
// Which brush and which of its properties are set before which stroke, checked before anything is painted.
#pragma once

#include <QVariant>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "Assignment.h"
#include "BrushFile.h"
#include "Recording/PropertyValue.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas::dabpaint {

class BrushPlan {
public:
    struct Step {
        const BrushProperty* property;
        std::optional<QVariant> value;  // none: back to what it was before any recording
    };
    struct Change {
        std::shared_ptr<const Brush> brush;  // first; none for the brush as it is. The fixed steps follow it
        std::vector<Step> steps;
    };

    // The command line's preset, before anything else, which recordings' brushes and settings change.
    void begin(std::shared_ptr<const Brush> brush);
    // The command line's settings, which hold for all strokes; the message when one is wrong.
    QString fix(const std::vector<Assignment>& settings);
    // Plans the next recording; the first faulty setting or brush otherwise. Paths are relative to `folder`.
    std::optional<Problem> add(const RecordedStrokes& recording, const QString& folder);

    // What every recording starts with.
    const std::shared_ptr<const Brush>& brush() const { return _brush; }
    const std::vector<Step>& fixed() const { return _fixed; }
    const Change& before(std::size_t recording, std::size_t stroke) const {
        return _changes[recording][stroke];
    }
    // Every property that a recording sets.
    const std::set<const BrushProperty*>& touched() const { return _touched; }
    double largestRadius() const { return _largestRadius; }
    // Every file that a setting or a recording's brush was read from.
    const QStringList& files() const { return _files; }

private:
    void seen(const Step& step);
    void seen(const Brush& brush);
    std::optional<Problem> addBrush(const BrushReference& reference, const QString& folder, Change& change);
    bool isFixed(BrushKey key) const { return _fixedProperties.contains(&brushProperty(key)); }

    std::shared_ptr<const Brush> _brush;
    std::map<QString, std::shared_ptr<const Brush>> _brushFiles;  // by path; many strokes may name one
    QStringList _files;
    qint64 _pixels = 0;  // of recordings' images, all of which are kept
    std::vector<Step> _fixed;
    std::set<const BrushProperty*> _fixedProperties;
    std::set<const BrushProperty*> _touched;
    std::vector<std::vector<Change>> _changes;  // by recording, by stroke
    double _largestRadius = brushDefault(brushProperty(BrushKey::radius)).toFloat();
};

}  // namespace dabcanvas::dabpaint
