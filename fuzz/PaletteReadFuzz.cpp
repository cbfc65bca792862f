// SPDX-License-Identifier: MIT
// Any bytes, read as a palette. What is refused has a reason; what is read is written, and reads back the same.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Colour/GimpPalette.h"

using namespace dabcanvas::dabpainter;

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "PaletteReadFuzz: %s\n", what);
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QString problem;
    const auto palette = readGimpPalette(bytes, problem);
    if (palette.has_value() != problem.isEmpty()) {
        fail("refused without a reason, or read with one");
    }
    if (palette && palette->colors.size() > static_cast<std::size_t>(kMostPaletteColors)) {
        fail("more colours than there may be");
    }
    if (palette && readGimpPalette(writeGimpPalette(*palette), problem) != palette) {
        fail("what was written reads back otherwise");
    }
    return 0;
}
