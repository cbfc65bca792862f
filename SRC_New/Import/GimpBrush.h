// SPDX-License-Identifier: MIT
// GIMP's brushes: .gbr, one tip, and .gih, several in one file. Plain C++ over bytes.
//
// File     .gbr: big-endian words (size of the header, version, width, height, bytes a pixel; from version 2 on "GIMP" and
//          the spacing), the name up to the header's end, then the pixels. Version 1 to 3; grey or RGBA, and in version 3
//          grey as half floats. .gih: a line with the name, one with the number of tips and how they are picked, then so
//          many .gbr.
// Limits   what a file claims is never believed: a size is checked against what the file still holds before memory is
//          taken by it.
// Errors   never throws, but std::bad_alloc: nothing, and in words what is wrong, to follow the file's name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Import/ByteReader.h"

namespace dabcanvas {

struct GimpBrush {
    static constexpr int kMostSide = 10000;  // GIMP's own

    std::string name;  // UTF-8
    int width = 0, height = 0;
    int spacing = 0;  // per cent of the larger side; 0 where the file does not say
    bool isColoured = false;
    std::vector<std::uint8_t> pixels;  // rows from the top: how much each paints, or straight RGBA
};

// Which tip paints a dab.
enum class GimpSelection : std::uint8_t { inOrder, atRandom, byPressure, bySpeed, byDirection, byTilt };

struct GimpPipe {
    static constexpr std::size_t kMostKept = 16;

    std::string name;
    GimpSelection selection = GimpSelection::inOrder;  // of the first dimension
    std::size_t count = 0;                             // tips of the file
    std::vector<GimpBrush> tips;                       // the first ones
};

bool looksLikeGimpBrush(Bytes file);
bool looksLikeGimpPipe(Bytes file);
std::optional<GimpBrush> readGimpBrush(Bytes file, std::string& problem);
std::optional<GimpPipe> readGimpPipe(Bytes file, std::string& problem);

}  // namespace dabcanvas
