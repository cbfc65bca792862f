// SPDX-License-Identifier: MIT
#include "Import/GimpBrush.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace dabcanvas {
namespace {

constexpr std::uint32_t kMagic = 0x47494D50;  // "GIMP"
constexpr std::uint32_t kFirstHeader = 20, kHeader = 28;
constexpr std::uint32_t kHalfFloats = 18;  // what version 3 calls a pixel of one half float
constexpr std::uint32_t kMostHeader = 4096, kMostSpacing = 5000;

struct Header {
    std::uint32_t size = 0, version = 0, width = 0, height = 0, depth = 0, magic = 0, spacing = 0;
};

std::uint32_t fixedPart(std::uint32_t version) {
    return version == 1 ? kFirstHeader : kHeader;
}

Header headerFrom(ByteReader& file) {
    Header header{file.word(), file.word(), file.word(), file.word(), file.word()};
    if (header.version > 1) {
        header.magic = file.word();
        header.spacing = file.word();
    }
    return header;
}

const char* flawOf(const Header& header) {
    constexpr std::uint32_t most = GimpBrush::kMostSide;
    if (header.version < 1 || header.version > 3 || (header.version > 1 && header.magic != kMagic)) {
        return "it is no GIMP brush of version 1 to 3";
    }
    if (header.size < fixedPart(header.version) || header.size > kMostHeader) {
        return "its header has no possible size";
    }
    if (header.width < 1 || header.height < 1 || header.width > most || header.height > most) {
        return "its tip has no possible size";
    }
    const bool isHalf = header.version == 3 && header.depth == kHalfFloats;
    if (header.depth != 1 && header.depth != 4 && !isHalf) {
        return "its pixels are neither grey nor RGBA";
    }
    return nullptr;
}

std::string textOf(Bytes bytes) {
    return {bytes.begin(), std::find(bytes.begin(), bytes.end(), std::uint8_t{0})};
}

std::uint8_t byteOfHalf(unsigned half) {
    const int exponent = static_cast<int>(half >> 10 & 31);
    const float fraction = static_cast<float>(half & 1023) / 1024;
    const float value = exponent == 0 ? std::ldexp(fraction, -14) : std::ldexp(1 + fraction, exponent - 15);
    return (half & 0x8000) != 0 ? 0 : static_cast<std::uint8_t>(std::min(value, 1.0f) * 255 + 0.5f);
}

std::optional<GimpBrush> brushFrom(ByteReader& file, std::string& problem) {
    const Header header = headerFrom(file);
    if (const char* flaw = flawOf(header); flaw != nullptr && !file.isCut()) {
        problem = flaw;
        return std::nullopt;
    }
    GimpBrush brush;
    const Bytes name = file.block(header.size - std::min(header.size, fixedPart(header.version)));
    const std::uint64_t places = std::uint64_t{header.width} * header.height;
    const bool isHalf = header.depth == kHalfFloats;
    const Bytes pixels = file.block(places * (isHalf ? 2 : header.depth));
    if (file.isCut()) {
        problem = "the file ends inside a tip";
        return std::nullopt;
    }
    brush.name = textOf(name);
    brush.width = static_cast<int>(header.width);
    brush.height = static_cast<int>(header.height);
    brush.spacing = static_cast<int>(std::min(header.spacing, kMostSpacing));
    brush.isColoured = header.depth == 4;
    if (!isHalf) {
        brush.pixels.assign(pixels.begin(), pixels.end());
        return brush;
    }
    brush.pixels.reserve(static_cast<std::size_t>(places));
    for (std::size_t i = 0; i < pixels.size(); i += 2) {
        brush.pixels.push_back(byteOfHalf(unsigned{pixels[i]} << 8 | pixels[i + 1]));
    }
    return brush;
}

// The number that a line begins with; 0 for none.
std::size_t leadingNumber(std::string_view line) {
    std::size_t number = 0;
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    std::from_chars(line.data(), line.data() + line.size(), number);
    return number;
}

GimpSelection selectionIn(std::string_view line) {
    constexpr std::string_view key = "sel0:";
    constexpr struct {
        std::string_view word;
        GimpSelection selection;
    } kWords[] = {{"random", GimpSelection::atRandom},     {"pressure", GimpSelection::byPressure},
                  {"velocity", GimpSelection::bySpeed},    {"angular", GimpSelection::byDirection},
                  {"xtilt", GimpSelection::byTilt},        {"ytilt", GimpSelection::byTilt},
                  {"incremental", GimpSelection::inOrder}, {"constant", GimpSelection::inOrder}};
    const std::size_t place = line.find(key);
    if (place != std::string_view::npos) {
        line.remove_prefix(place + key.size());
        for (const auto& [word, selection] : kWords) {
            if (line.starts_with(word)) {
                return selection;
            }
        }
    }
    return GimpSelection::inOrder;
}

}  // namespace

bool looksLikeGimpBrush(Bytes file) {
    ByteReader reader(file);
    const Header header = headerFrom(reader);
    return !reader.isCut() && flawOf(header) == nullptr;
}

bool looksLikeGimpPipe(Bytes file) {
    ByteReader reader(file);
    const bool isNamed = reader.line().size() < kMostHeader;
    const std::string_view second = reader.line();
    return isNamed && second.size() < kMostHeader && leadingNumber(second) > 0 &&
           looksLikeGimpBrush(reader.block(reader.left()));
}

std::optional<GimpBrush> readGimpBrush(Bytes file, std::string& problem) {
    ByteReader reader(file);
    return brushFrom(reader, problem);
}

std::optional<GimpPipe> readGimpPipe(Bytes file, std::string& problem) {
    ByteReader reader(file);
    GimpPipe pipe;
    pipe.name = reader.line().substr(0, kMostHeader);
    const std::string_view second = reader.line();
    pipe.selection = selectionIn(second);
    const std::size_t claimed = leadingNumber(second);
    if (claimed == 0) {
        problem = "its second line names no number of tips";
        return std::nullopt;
    }
    for (; pipe.count < claimed; ++pipe.count) {
        auto tip = brushFrom(reader, problem);
        if (!tip) {
            return std::nullopt;
        }
        if (pipe.tips.size() < GimpPipe::kMostKept) {
            pipe.tips.push_back(std::move(*tip));
        }
    }
    return pipe;
}

}  // namespace dabcanvas
