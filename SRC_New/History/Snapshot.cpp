// SPDX-License-Identifier: MIT
#include "History/Snapshot.h"

#include <new>

#include "Brushes/ImageData.h"
#include "History/HistoryLog.h"
#include "History/Packing.h"

namespace dabcanvas {

QByteArray ownedData(const QByteArray& data) {
    QByteArray shared = data;
    if (shared.data_ptr().d_ptr() != nullptr || shared.isEmpty()) {
        return shared;
    }
    try {
        return QByteArray(data.constData(), data.size());
    } catch (const std::bad_alloc&) {
        return {};
    }
}

QByteArray Snapshot::data() const {
    if (!_step.isNull()) {
        return _step.bytes();
    }
    QByteArray compressed;
    try {
        {
            const std::lock_guard lock(_mutex);
            if (!_picture.isNull()) {
                _raw = UIImagePNGRepresentation(_picture);
                _picture = QImage();
                _held = _raw.size();
            }
            if (_packed.isNull()) {
                return _raw;
            }
            compressed = _packed;
        }
        return unpacked(compressed, _rawSize);  // the size is settled once there are packed bytes
    } catch (const std::bad_alloc&) {
        qCWarning(lcHistory, "There is no memory for a snapshot of %lld bytes",
                  static_cast<long long>(compressed.isNull() ? heldBytes() : _rawSize));
        return {};
    }
}

void Snapshot::pack() {
    QByteArray raw;
    {
        const std::lock_guard lock(_mutex);
        raw = _raw;
    }
    try {
        const QByteArray compressed = packed(raw);
        if (!compressed.isNull()) {
            const std::lock_guard lock(_mutex);
            _packed = compressed;
            _rawSize = raw.size();
            _raw.clear();
            _held = _packed.size();
        }
    } catch (const std::bad_alloc&) {  // it stays raw
    }
}

}  // namespace dabcanvas
