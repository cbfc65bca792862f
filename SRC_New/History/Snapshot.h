// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <atomic>
#include <mutex>

#include "History/StepPicture.h"

namespace dabcanvas {

/// Shares the data; copies those that do not own their bytes (QByteArray::fromRawData), as somebody else may
/// free them. Null when there is no memory for a copy.
QByteArray ownedData(const QByteArray& data);

/// One remembered image: bytes, held raw at first and perhaps compressed later, or a picture that becomes bytes when
/// they are asked for: those of a PNG file, or the pixels of a canvas's step.
///
/// Units    bytes.
/// Thread   any; data() and pack() of one snapshot may run at once.
/// Errors   never throws: null data, with one log line, when memory cannot be had or the picture is none.
class Snapshot {
public:
    explicit Snapshot(const QByteArray& raw) : _raw(raw), _held(raw.size()) {}
    explicit Snapshot(const QImage& picture) : _picture(picture), _held(picture.sizeInBytes()) {}
    explicit Snapshot(const StepPicture& step) : _step(step), _held(0) {}

    /// The bytes as they were given, never null for data that were not.
    QByteArray data() const;
    /// Null but for what a canvas keeps.
    const StepPicture& step() const { return _step; }
    /// Bytes of memory that this holds, whoever else shares them; none for a canvas's step, which keeps account itself.
    qint64 heldBytes() const { return _held; }
    /// Replaces the raw bytes by compressed ones where that saves enough memory. Takes long; data() goes on
    /// meanwhile. Does nothing in a build without LZ4.
    void pack();

private:
    mutable std::mutex _mutex;
    mutable QByteArray _raw;
    QByteArray _packed;
    qsizetype _rawSize = 0;  // of what is packed
    mutable QImage _picture;
    const StepPicture _step;
    mutable std::atomic<qint64> _held;
};

}  // namespace dabcanvas
