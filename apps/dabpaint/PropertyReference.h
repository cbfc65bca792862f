// SPDX-License-Identifier: MIT
// The brush properties as a page with pictures.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include "Brushes/BrushProperties.h"
#include "Recording/Problem.h"

namespace dabcanvas::dabpaint {

// In Markdown: a section for each group, and in it one for each property, with its picture where it has one.
QByteArray propertiesPage();

// A stroke at each of the values that its sample has, side by side, labelled. The property must have a sample.
Result<QImage> propertyPicture(const BrushProperty& property);

// Writes properties.md and the pictures, such as properties/radius.png, into a folder, which is made. Gives the exit status.
int writePropertyReference(const QString& folder);

}  // namespace dabcanvas::dabpaint
