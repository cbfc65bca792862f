// SPDX-License-Identifier: MIT
// Brush presets from XBF files.
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>
#include <memory>
#include <vector>

#include "Brushes/BrushProperties.h"
#include "Preset/BrushRecords.h"
#include "Recording/Problem.h"

class QDDrawCanvas;

namespace dabcanvas::dabpaint {

// What a file holds, as far as it can be read.
struct BrushFileContents {
    int version = 0;
    QList<QVariantMap> brushes;  // see BrushRecords.h
    QString problem;             // what is wrong with the rest; empty when it is whole
};

// The problem when nothing of it can be read: it cannot be opened or is no XBF file.
Result<BrushFileContents> readBrushFile(const QString& path);

// The brush to paint with: a file's last one.
struct Brush {
    QString name;
    int version = 0;
    BrushParams params;

    double number(const BrushProperty& property) const;  // as a canvas takes it
    // Makes it the canvas's brush, colour and all. A few properties that it does not name stay as they are.
    void applyTo(QDDrawCanvas& canvas) const;
};

// Only from a file that is whole and can be applied as a whole: no image is damaged and every number is finite.
Result<std::shared_ptr<const Brush>> readBrush(const QString& path);

}  // namespace dabcanvas::dabpaint
