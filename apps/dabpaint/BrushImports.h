// SPDX-License-Identifier: MIT
// Brushes of other programs as presets, and what presets take from files of theirs.
#pragma once

#include <functional>
#include <optional>

#include "Import/BrushImport.h"
#include "Recording/Problem.h"

namespace dabcanvas::dabpaint {

struct PresetImportOptions {
    QStringList files;
    QString output;  // a preset, or a folder for one of each file
    std::optional<QString> name;
};

// importTip() or its like, of a file.
using ImportOf = std::function<std::optional<ImportedBrush>(const QByteArray& file, QString* problem)>;
// A brush without a name is called as its file.
Result<ImportedBrush> importedFile(const QString& path, const ImportOf& import);

// Tells on standard output what a file's import has lost, one line each.
void tellLosses(const QString& path, const ImportedBrush& brush);

// Writes a preset, which takes no file's place before it has been read again; the exit status.
int saveBrush(const BrushParams& params, const QString& name, const QString& output);

int runPresetImport(const PresetImportOptions& options);

}  // namespace dabcanvas::dabpaint
