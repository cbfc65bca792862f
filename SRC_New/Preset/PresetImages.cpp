// SPDX-License-Identifier: MIT
#include "Preset/PresetImages.h"

#include <QBuffer>
#include <QImageReader>

#include "Brushes/ImageData.h"

namespace dabcanvas {

bool PresetImages::take(const QSize& size) {
    const qint64 pixels = qint64{size.width()} * size.height();
    if (pixels > _left) {
        _problem = QStringLiteral("is too large: the images of a preset have at most %1 million pixels")
                       .arg(kMostPixels / 1'000'000);
        return false;
    }
    _left -= pixels;
    return true;
}

QImage PresetImages::read(const QByteArray& data) {
    _problem.clear();
    if (data.isEmpty()) {
        return {};
    }
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
