// SPDX-License-Identifier: MIT
// The line process alone: samples in, dabs out.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>

#include "Recording/StrokesJson.h"

namespace dabcanvas::dabpaint {

struct DabsOptions {
    QString input;  // a file, or "-" for standard input
    bool header = false;
};

// Runs the strokes through the line process and hands out CSV rows
// "sample,x,y,radius,pressure,altitude,speed" in pieces of many rows. All settings are checked before the
// first stroke starts; the faulty one otherwise. The record that was selected before is selected again
// afterwards.
std::optional<Problem> writeDabs(const DabsInput& input, const std::function<void(std::string_view)>& write);

int runDabs(const DabsOptions& options);

}  // namespace dabcanvas::dabpaint
