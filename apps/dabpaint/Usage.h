// SPDX-License-Identifier: MIT
// The help texts.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace dabcanvas::dabpaint {

QStringList commandNames();

// Help on a command, or on the tool when the topic is empty; empty for a topic there is none on.
QByteArray usageText(const QString& topic);

// "dabpaint 0.1.0" and a line end.
QByteArray versionText();

}  // namespace dabcanvas::dabpaint
