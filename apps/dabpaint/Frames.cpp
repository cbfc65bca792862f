// SPDX-License-Identifier: MIT
#include "Frames.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "OutputFile.h"
#include "OutputPattern.h"
#include "PictureKinds.h"

namespace dabcanvas::dabpaint {

QString Frames::begin() {
    return _options.timelapse.isEmpty() ? QString() : makeFrameTaker(_options.timelapse, _timelapse);
}

QImage Frames::onBackground(const QImage& image) const {
    if (!_background)
        return image;
    QImage all(image.size(), QImage::Format_RGBA8888_Premultiplied);
    all.fill(*_background);
    QPainter(&all).drawImage(0, 0, image);
    return all;
}

QString Frames::strokePainted(QDDrawCanvas& canvas) {
    ++_strokes;
    _isNew = true;
    const qint64 every = _options.every > 0 ? _options.every : _timelapse ? 1 : 0;
    return every > 0 && _strokes % every == 0 ? add(onBackground(canvas.layers().flattened())) : QString();
}

QString Frames::add(const QImage& image) {
    _isNew = false;
    if (_timelapse)
        return _timelapse->add(image);
    const QString path = outputAfter(_options.output, _strokes);
    QByteArray bytes;
    const QString wrong = encodePicture(image, path, bytes);
    OutputFile file(path);
    if (wrong.isEmpty() && !file.write(bytes))
        return QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString());
    return wrong;
}

QString Frames::end(const QImage& last) {
    if (!_timelapse)
        return {};
    const QString wrong = _isNew ? _timelapse->add(last) : QString();
    return wrong.isEmpty() ? _timelapse->finish() : wrong;
}

}  // namespace dabcanvas::dabpaint
