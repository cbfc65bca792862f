// SPDX-License-Identifier: MIT
// Brush presets: what they hold, new ones from settings, and pictures of them.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "Assignment.h"

namespace dabcanvas::dabpaint {

struct PresetShowOptions {
    QStringList files;
    bool json = false;
};

struct PresetMakeOptions {
    QString output;
    std::optional<QString> name;  // none: as the tip is called
    QString brush;                // the preset to start with; empty for the default brush
    QString tip, paper;           // files to take them from; empty for none
    std::vector<Assignment> settings;
    // Of itself, in place of what the preset to start with says.
    std::optional<QString> tags, about, author, licence;
};

struct PresetPreviewOptions {
    QStringList files;
    QString output;  // a picture, or a folder for one of each file
    QSize size;      // of one preview; invalid: 480 x 180
    std::vector<Assignment> settings;
};

struct PresetSheetOptions {
    QStringList files;
    QString output;
    QSize size;      // of one sample; invalid: 176 x 112
    int across = 0;  // presets side by side; 0: as suits their number
    std::vector<Assignment> settings;
};

int runPresetShow(const PresetShowOptions& options);
int runPresetMake(const PresetMakeOptions& options);
int runPresetPreview(const PresetPreviewOptions& options);
int runPresetSheet(const PresetSheetOptions& options);

}  // namespace dabcanvas::dabpaint
