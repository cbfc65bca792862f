// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDDrawCanvas;
class QSettings;
class QWidget;

namespace dabcanvas::dabpainter {

// What whoever mends a fault asks for first: versions, what paints, screens, devices, where things are kept. A line each, in
// English, and without the user's name. The canvas may be null.
QString aboutReport(QDDrawCanvas* canvas, const QSettings& settings);

// The path with the user's own folder as "~".
QString withoutHome(const QString& path);

// Shows what the program is, and the report with a button that copies it.
void showAbout(QWidget* parent, const QString& report);

// The installed guide for painters; empty where there is none.
QString paintersGuide();
// Shows it in a window of its own, beside which one goes on painting.
void showPaintersGuide(QWidget* parent);

}  // namespace dabcanvas::dabpainter
