// SPDX-License-Identifier: MIT
/// \file
/// Brushes of other painting programs: GIMP's .gbr and .gih, MyPaint's .myb, and pictures as tips and papers.
///
/// Kinds    told by their content. Tips: of a picture that is grey or opaque, what is dark paints; else its alpha does,
///          and its colours, where it has any. A tip is made a square around its middle, and at most 16 are kept.
/// Thread   any; nothing is kept between calls.
/// Errors   never throws: nothing, and `problem`, when given, says what is wrong, to follow the file's name.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "Brushes/BrushProperties.h"
#include "Maths/Export.h"
#include "Preset/BrushRecords.h"

class QDDrawCanvas;

namespace dabcanvas {

/// A brush, a tip or a paper as it was read from another program's file.
struct ImportedBrush {
    QString name;                                         ///< as the file says; may be empty
    std::vector<std::pair<BrushKey, BrushValue>> values;  ///< in the order of setting
    QStringList lost;                                     ///< in words, what could not be carried over

    /// Sets the values; all else of the canvas's brush stays.
    DABCANVAS_CANVAS_API void applyTo(QDDrawCanvas& canvas) const;
    /// The whole preset, with defaults for the rest. None when there is no memory for it.
    DABCANVAS_CANVAS_API std::optional<BrushParams> params() const;
};

/// Suffixes of brush files that are read, without their dots; pictures are Qt's.
DABCANVAS_CANVAS_API QStringList importedBrushSuffixes();

/// No brush is larger; who reads files for the functions below does not read more.
inline constexpr std::int64_t kMostImportedBytes = std::int64_t{1} << 30;

/// Any of these kinds, a picture as a tip.
DABCANVAS_CANVAS_API std::optional<ImportedBrush> importBrush(const QByteArray& file,
                                                              QString* problem = nullptr);
/// A GIMP brush or a picture; of a MyPaint brush there is neither.
DABCANVAS_CANVAS_API std::optional<ImportedBrush> importTip(const QByteArray& file,
                                                            QString* problem = nullptr);
DABCANVAS_CANVAS_API std::optional<ImportedBrush> importPaper(const QByteArray& file,
                                                              QString* problem = nullptr);

}  // namespace dabcanvas
