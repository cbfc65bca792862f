// SPDX-License-Identifier: MIT
#include "Preset/PresetImages.h"

#include <QBuffer>
#include <QImageReader>

#include "Brushes/ImageData.h"

namespace dabcanvas {

bool PresetImages::take(const QSize& size) {
    const qint64 pixels = qint64{size.width()} * size.height();
    if (pixels > _most - _taken) {
        _problem = QStringLiteral("is too large: the images of a preset have at most %1 million pixels")
                       .arg(kMostPixels / 1'000'000);
    } else if (pixels > _held - _taken) {
        _problem = QStringLiteral("is too large: it claims more pixels than so few bytes can hold");
    } else {
        _taken += pixels;
        return true;
    }
    return false;
}

QImage PresetImages::read(const QByteArray& data) {
    _problem.clear();
    if (data.isEmpty()) {
        return {};
    }
    _held += data.size() * kPixelsPerByte;
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize claimed = reader.size();  // of the header alone; not all formats tell
    if (claimed.isValid() && !take(claimed)) {
        return {};
    }
    QString wrong;
    const QImage image = imageWithData(data, &wrong);
    if (image.isNull()) {
        _problem = QStringLiteral("is not an image that can be read");
        return {};
    }
    return claimed.isValid() || take(image.size()) ? image : QImage();
}

}  // namespace dabcanvas
