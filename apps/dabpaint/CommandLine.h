// SPDX-License-Identifier: MIT
// What the user asks for.
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

#include "BrushImports.h"
#include "DabsCommand.h"
#include "PaintCommand.h"
#include "PresetCommand.h"
#include "SessionCommand.h"
#include "ShapesCommand.h"

namespace dabcanvas::dabpaint {

struct PropertiesOptions {
    bool json = false;
    QString reference;  // folder of the page and its pictures; empty for a listing
};

struct HelpOptions {
    QString topic;  // a command's name; empty for the tool itself
};

struct VersionOptions {};

struct UsageFault {
    QString what;
};

using CommandLine =
    std::variant<PaintOptions, SessionOptions, ShapesOptions, DabsOptions, PropertiesOptions,
                 PresetShowOptions, PresetMakeOptions, PresetPreviewOptions, PresetImportOptions,
                 PresetSheetOptions, HelpOptions, VersionOptions, UsageFault>;

// Reads the arguments after the program's name. Touches no file.
CommandLine readCommandLine(const QStringList& arguments);

// Reads them, does what they say and returns the exit status.
int runDabpaint(const QStringList& arguments);

}  // namespace dabcanvas::dabpaint
