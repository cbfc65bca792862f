// SPDX-License-Identifier: MIT
/// \file
/// Images into encoded data and back, for the brush presets and the undo history.
///
/// Images   read images are Format_RGBA8888_Premultiplied at the file's pixel size; images to write may have
///          any format.
/// Thread   any. Needs no QGuiApplication.
/// Errors   never throws: a null image or empty data, with one log line that says why. A `problem`, when given,
///          receives the reason instead of the log, or becomes empty.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include "Maths/Export.h"

/// Reads any image format this Qt has a plugin for, recognised by content.
DABCANVAS_BRUSHES_API QImage imageWithData(const QByteArray& data, QString* problem = nullptr);
DABCANVAS_BRUSHES_API QImage imageWithContentsOfFile(const QString& path);

/// Keeps transparency. Reading the data back gives the same premultiplied pixels.
DABCANVAS_BRUSHES_API QByteArray dataOfPNGFile(const QImage& image);

/// JPEG has no transparency: what is transparent shows white paper.
DABCANVAS_BRUSHES_API QByteArray dataOfJPEGFile(const QImage& image);

/// `type` is the name of an image format that Qt writes, such as "PNG" or "BMP", at its default quality.
DABCANVAS_BRUSHES_API QByteArray dataOfImageType(const QImage& image, const char* type);

/// The same as dataOfPNGFile().
DABCANVAS_BRUSHES_API QByteArray UIImagePNGRepresentation(const QImage& image);
