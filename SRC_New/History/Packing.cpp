// SPDX-License-Identifier: MIT
#include "History/Packing.h"

#ifdef DABCANVAS_HAVE_LZ4
#include <lz4.h>

#include <algorithm>
#include <cstdint>
#include <vector>
#endif
#include <cstring>

namespace dabcanvas {

#ifdef DABCANVAS_HAVE_LZ4
namespace {
// Each block stands alone behind its compressed size: snapshots may be larger than LZ4 takes at once.
constexpr qsizetype kBlock = 4 << 20;
using BlockSize = std::int32_t;
}  // namespace

bool canPack() {
    return true;
}

QByteArray packed(const QByteArray& raw) {
    const qsizetype most = raw.size() / 4 * 3;
    QByteArray result;
    const auto largest = static_cast<int>(std::min(kBlock, raw.size()));
    std::vector<char> block(static_cast<std::size_t>(LZ4_compressBound(largest)));
    for (qsizetype at = 0; at < raw.size(); at += kBlock) {
        const int length = static_cast<int>(std::min(kBlock, raw.size() - at));
        const BlockSize size =
            LZ4_compress_default(raw.constData() + at, block.data(), length, static_cast<int>(block.size()));
        if (size <= 0 || result.size() + size > most) {
            return {};
        }
        result.append(reinterpret_cast<const char*>(&size), sizeof size);
        result.append(block.data(), size);
    }
    result.squeeze();
    return result;
}

bool unpackInto(const QByteArray& packed, char* raw, qsizetype rawSize) {
    qsizetype from = 0;
    for (qsizetype to = 0; to < rawSize; to += kBlock) {
        const int length = static_cast<int>(std::min(kBlock, rawSize - to));
        BlockSize size = 0;
        if (packed.size() - from < qsizetype{sizeof size}) {
            return false;
        }
        std::memcpy(&size, packed.constData() + from, sizeof size);
        from += sizeof size;
        if (size <= 0 || size > packed.size() - from ||
            LZ4_decompress_safe(packed.constData() + from, raw + to, size, length) != length) {
            return false;
        }
        from += size;
    }
    return true;
}
#else
bool canPack() {
    return false;
}
QByteArray packed(const QByteArray&) {
    return {};
}
bool unpackInto(const QByteArray&, char*, qsizetype) {
    return false;
}
#endif

bool restoreInto(const QByteArray& stored, char* raw, qsizetype rawSize) {
    if (stored.size() != rawSize) {
        return unpackInto(stored, raw, rawSize);
    }
    std::memcpy(raw, stored.constData(), static_cast<std::size_t>(rawSize));
    return true;
}

QByteArray unpacked(const QByteArray& packed, qsizetype rawSize) {
    QByteArray raw(rawSize, Qt::Uninitialized);
    return unpackInto(packed, raw.data(), rawSize) ? raw : QByteArray();
}

}  // namespace dabcanvas
