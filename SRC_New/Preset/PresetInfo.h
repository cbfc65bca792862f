// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include "Maths/Export.h"
#include "Preset/BrushRecords.h"

namespace dabcanvas {

/// What a preset tells people of itself, beside its name: records of their own, which say nothing to a canvas and are
/// skipped by readers that do not know them.
///
/// Values   any text; in a file UTF-8. Tags are single lines without commas.
/// Thread   plain values; any thread.
struct PresetInfo {
    QStringList tags;  ///< such as its medium, and wet or dry
    QString about;     ///< a sentence
    QString author;
    QString licence;

    friend bool operator==(const PresetInfo&, const PresetInfo&) = default;
};

/// Whether a record of this id is of this.
DABCANVAS_CANVAS_API bool isPresetInfo(std::uint32_t id);
/// Empty where the records say nothing.
DABCANVAS_CANVAS_API PresetInfo infoOfParams(const BrushParams& params);
/// In place of what the records said; what is empty has no record.
DABCANVAS_CANVAS_API void setInfoOfParams(BrushParams& params, const PresetInfo& info);

}  // namespace dabcanvas
