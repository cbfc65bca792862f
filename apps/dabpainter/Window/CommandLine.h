// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

namespace dabcanvas::dabpainter {

struct CommandLine {
    bool help = false, version = false;
    bool startOnly = false;  // shows the window once, says so and ends: for measuring, and not in the usage
    QString image;           // to open; empty for none
    std::optional<QSize> size;  // of a new canvas, in pixels
    QString language;           // empty: the system's
    QString fault;              // one line on what is wrong; then nothing else counts
};

// Reads the arguments after the program's name. Touches no file.
CommandLine readCommandLine(const QStringList& arguments);

QByteArray usageText();
QByteArray versionText();

}  // namespace dabcanvas::dabpainter
