// SPDX-License-Identifier: MIT
// Fast compression of pixels in memory; nothing that is stored or sent.
//
// Thread   any.
// Errors   throw std::bad_alloc, nothing else.
#pragma once

#include <QByteArray>

namespace dabcanvas {

// Whether this build can compress; without, packed() is always null.
bool canPack();
// Null when less than a quarter would be saved.
QByteArray packed(const QByteArray& raw);
// What packed() was given, whose size this must be told; null, or false, when the bytes are not from there.
QByteArray unpacked(const QByteArray& packed, qsizetype rawSize);
bool unpackInto(const QByteArray& packed, char* raw, qsizetype rawSize);
// The same of bytes that may be the raw ones, which packed ones are never as many as.
bool restoreInto(const QByteArray& stored, char* raw, qsizetype rawSize);

}  // namespace dabcanvas
