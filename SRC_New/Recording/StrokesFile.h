// SPDX-License-Identifier: MIT
/// \file
/// Strokes that someone drew, as read from a file, whatever its form.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <variant>
#include <vector>

#include "Maths/Export.h"
#include "Recording/Problem.h"

namespace dabcanvas {

/// One pointer sample. Positions are canvas pixels, top-left origin; pressure and altitude (pen tilt: 0
/// upright, 1 flat on the surface) are 0..1, or -1 when not given.
struct RecordedSample {
    double x = 0;
    double y = 0;
    float pressure = -1;
    float altitude = -1;
    double time = -1;  ///< seconds since the first one, -1 when not given
};

/// A setting's value as written: a lone monostate takes the property back to what it was before any recording.
using SettingValue = std::variant<std::monostate, bool, double, QString, std::vector<double>, QStringList>;

/// A property of the brush, as a file sets it.
struct Setting {
    QString name;
    SettingValue value;
    int line = 0;     ///< where it stands, for messages
    QString element;  ///< the same inside a structured file
};

/// A brush preset that a recording names.
struct BrushReference {
    QString path;  ///< relative to the recording
    int line = 0;  ///< where it is named, for messages
    QString element;
};

/// A stroke, and the brush that it is drawn with.
struct RecordedStroke {
    /// Takes the place of brush and settings before it, from this stroke on.
    std::optional<BrushReference> brush;
    std::vector<Setting> settings;  ///< apply from this stroke on
    std::vector<RecordedSample> samples;
    bool end = true;  ///< the last sample lifts the pen
};

/// All strokes of a file, and what it says of their canvas.
struct RecordedStrokes {
    QSize size;          ///< invalid when not given
    QString background;  ///< a colour as written; empty when not given
    int backgroundLine = 0;
    std::optional<BrushReference> brush;  ///< before the first stroke
    std::vector<RecordedStroke> strokes;
};

/// Pixels of a side and of a picture that a canvas may have.
inline constexpr int kLargestSide = 16384;
inline constexpr qint64 kMostPixels = qint64(1) << 28;
/// Positions must lie within this far of the origin: eight times the largest side, so that lines far off the
/// canvas do not keep the painter busy for hours.
inline constexpr double kFarthest = 131072;

/// Tells rows of numbers, tables, InkML, SVG, Xournal++ and JSON apart by what the bytes say and reads them, unpacked.
/// A recording without any sample is refused. Linear in the size of the bytes, in time and in memory.
DABCANVAS_RECORDING_API Result<RecordedStrokes> readStrokes(const QByteArray& bytes);

/// Reads a whole file ("-" is standard input) of at most 1 GiB.
DABCANVAS_RECORDING_API Result<QByteArray> readFile(const QString& path);

/// Corners of all samples; null when there are none.
DABCANVAS_RECORDING_API QRectF extentOf(const std::vector<RecordedStroke>& strokes);

/// The canvas a recording needs: its own size, else all samples and `margin` pixels beyond them. At least 1
/// x 1.
DABCANVAS_RECORDING_API QSize neededSize(const RecordedStrokes& recording, double margin);

/// Why a canvas cannot be that large, or nothing when it can.
DABCANVAS_RECORDING_API QString sizeRefusal(qint64 width, qint64 height);

}  // namespace dabcanvas
