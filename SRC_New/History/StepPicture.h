// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <memory>

#include "Maths/Export.h"

namespace dabcanvas {

class TilePicture;

/// What a canvas was at a step: premultiplied RGBA, 4 bytes a pixel, bottom row first, rows without gaps. It becomes
/// these bytes where they are asked for, each time anew, and costs next to nothing where they are not:
///
///     if (canvas.markAction().isNull()) ...          // nothing is read
///     const QByteArray bytes = canvas.undo();        // the whole picture
///
/// Owns     what it is made of, for as long as it lives; the canvas may be gone.
/// Thread   any, one at a time for an object.
/// Errors   never throws: bytes() is null, after one log line, when they cannot be had.
class DABCANVAS_CANVAS_API StepPicture {
public:
    StepPicture() = default;  ///< none
    explicit StepPicture(const QByteArray& bytes) : _bytes(bytes) {}
    explicit StepPicture(std::shared_ptr<const TilePicture> tiles);

    bool isNull() const { return !_tiles && _bytes.isNull(); }
    bool isEmpty() const { return size() == 0; }
    qsizetype size() const;  ///< in bytes
    QByteArray bytes() const;
    operator QByteArray() const { return bytes(); }
    /// Whether it is the very same one, which costs no reading; others may have the same bytes.
    bool isSameAs(const StepPicture& other) const;

    const std::shared_ptr<const TilePicture>& tiles() const { return _tiles; }  ///< for the library

private:
    QByteArray _bytes;  // a host's
    std::shared_ptr<const TilePicture> _tiles;
};

/// Compares bytes, for which the picture becomes them.
inline bool operator==(const StepPicture& picture, const QByteArray& bytes) {
    return picture.bytes() == bytes;
}

}  // namespace dabcanvas
