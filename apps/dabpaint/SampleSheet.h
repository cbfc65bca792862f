// SPDX-License-Identifier: MIT
// Many brushes on one picture, to be compared.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <vector>

#include "BrushSample.h"

namespace dabcanvas::dabpaint {

// A row of a sheet: each of its columns as a picture of one size.
struct SheetRow {
    QString name;
    std::vector<QImage> samples;
};

// The row of a brush, its samples `size` large.
Result<SheetRow> sheetRow(const Brush& brush, const std::vector<BrushPlan::Step>& settings,
                          const QSize& size);

// What a sheet of so many rows measures, `across` of them side by side.
QSize sheetSize(const QSize& sample, int rows, int across);

// The rows, down and then across, each under its name and all under what their columns show.
QImage sampleSheet(const std::vector<SheetRow>& rows, int across);

}  // namespace dabcanvas::dabpaint
