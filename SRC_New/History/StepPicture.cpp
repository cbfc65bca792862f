// SPDX-License-Identifier: MIT
#include "History/StepPicture.h"

#include <utility>

#include "History/HistoryLog.h"
#include "History/TilePicture.h"

namespace dabcanvas {

StepPicture::StepPicture(std::shared_ptr<const TilePicture> tiles) : _tiles(std::move(tiles)) {}

qsizetype StepPicture::size() const {
    return _tiles ? static_cast<qsizetype>(_tiles->bytesOfRows()) : _bytes.size();
}

QByteArray StepPicture::bytes() const {
    if (!_tiles) {
        return _bytes;
    }
    QString problem;
    QByteArray bytes = bytesOf(*_tiles, &problem);
    if (bytes.isNull()) {
        qCWarning(lcHistory, "The picture of an undo step cannot be had: %ls", qUtf16Printable(problem));
    }
    return bytes;
}

bool StepPicture::isSameAs(const StepPicture& other) const {
    if (!_tiles || !other._tiles) {
        return !_tiles && !other._tiles && _bytes.constData() == other._bytes.constData() &&
               _bytes.size() == other._bytes.size();
    }
    return *_tiles == *other._tiles;
}

}  // namespace dabcanvas
