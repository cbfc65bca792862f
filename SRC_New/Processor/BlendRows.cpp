// SPDX-License-Identifier: MIT
// Compiled once for each kind of vectors; which is used is decided when the program runs. Each lane rounds by itself, so
// that all give the same bytes.
#include "Processor/BlendRows.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "Surface/BlendType.h"
#include "Surface/TileSet.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Processor/BlendRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace dabcanvas::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Whole pixels in every vector, four channels each, in the picture's own units.
using Floats = hn::CappedTag<float, 16>;
using Ints = hn::RebindToUnsigned<Floats>;
using Value = hn::Vec<Floats>;
constexpr Floats kFloats;
constexpr Ints kInts;

HWY_INLINE Value alphaOf(Value pixel) {
    return hn::Broadcast<3>(pixel);
}
HWY_INLINE Value one() {
    return hn::Set(kFloats, 1);
}
// Full scale of a picture's channels, and what a layer's are divided by to become their units.
template <typename Channel>
constexpr float kFull = std::numeric_limits<Channel>::max();
template <typename Channel, typename OfLayer>
constexpr float kLayerUnits = kFull<OfLayer> / kFull<Channel>;

template <typename Channel>
HWY_INLINE Value full() {
    return hn::Set(kFloats, kFull<Channel>);
}
// 0..1 of what remains beside the pixel.
template <typename Channel>
HWY_INLINE Value restBeside(Value pixel) {
    return hn::Sub(one(), hn::Mul(alphaOf(pixel), hn::Set(kFloats, 1 / kFull<Channel>)));
}
template <typename Channel>
HWY_INLINE Value over(Value below, Value above) {
    return hn::Add(hn::Mul(below, restBeside<Channel>(above)), above);
}
// The colours that `mixed` has on white, on the alpha of one over the other. Never above it.
template <typename Channel>
HWY_INLINE Value onAlphaOf(Value mixed, Value back, Value line) {
    const Value alpha = alphaOf(over<Channel>(back, line));
    return hn::Min(hn::Max(hn::Sub(mixed, hn::Sub(full<Channel>(), alpha)), hn::Zero(kFloats)), alpha);
}
template <typename Channel>
HWY_INLINE Value onWhite(Value pixel) {
    return hn::Add(hn::Sub(full<Channel>(), alphaOf(pixel)), pixel);
}

HWY_INLINE auto alphaLanes() {
    const auto isAlpha = hn::Eq(hn::And(hn::Iota(kInts, 0), hn::Set(kInts, 3)), hn::Set(kInts, 3));
    return hn::RebindMask(kFloats, isAlpha);
}

// What a mode makes of a background and a layer, premultiplied, and whether pixels without paint in the layer stay.
struct Normal {
    static constexpr bool kLeavesBare = false;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        return over<Channel>(back, line);
    }
};
struct Replace {
    static constexpr bool kLeavesBare = false;
    template <typename Channel>
    static HWY_INLINE Value mix(Value, Value line) {
        return line;
    }
};
// The background where the layer is bare.
struct ReplaceInPaint {
    static constexpr bool kLeavesBare = false;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        return hn::IfThenElse(hn::Gt(alphaOf(line), hn::Zero(kFloats)), line, back);
    }
};
struct Behind {
    static constexpr bool kLeavesBare = true;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        return over<Channel>(line, back);
    }
};
struct Erase {
    static constexpr bool kLeavesBare = true;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        return hn::Mul(back, restBeside<Channel>(line));
    }
};
struct Tarnish {
    static constexpr bool kLeavesBare = true;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        return onAlphaOf<Channel>(hn::Min(onWhite<Channel>(back), onWhite<Channel>(line)), back, line);
    }
};
struct Brightness {
    static constexpr bool kLeavesBare = true;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        return hn::IfThenElse(alphaLanes(), over<Channel>(back, line), hn::Max(back, line));
    }
};
struct Multiply {
    static constexpr bool kLeavesBare = true;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        const Value product = hn::Mul(hn::Mul(onWhite<Channel>(back), onWhite<Channel>(line)),
                                      hn::Set(kFloats, 1 / kFull<Channel>));
        return onAlphaOf<Channel>(product, back, line);
    }
};
struct Reset {
    static constexpr bool kLeavesBare = false;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value) {
        return back;
    }
};

// Any mode, on a background of which only the colours change: as if it had no holes.
template <typename Mode>
struct Locked {
    static constexpr bool kLeavesBare = Mode::kLeavesBare;
    template <typename Channel>
    static HWY_INLINE Value mix(Value back, Value line) {
        const Value alpha = alphaOf(back);
        const auto isThere = hn::Gt(alpha, hn::Zero(kFloats));
        const Value mixed = Mode::template mix<Channel>(
            hn::IfThenElseZero(isThere, hn::Mul(back, hn::Div(full<Channel>(), alpha))), line);
        const Value left = alphaOf(mixed);
        const Value colours =
            hn::IfThenElse(hn::Gt(left, hn::Zero(kFloats)), hn::Mul(mixed, hn::Div(alpha, left)), back);
        return hn::IfThenElse(alphaLanes(), back, colours);
    }
};

template <typename From>
HWY_INLINE Value loaded(const From* from) {
    return hn::ConvertTo(kFloats,
                         hn::BitCast(hn::RebindToSigned<Floats>(),
                                     hn::PromoteTo(kInts, hn::LoadU(hn::Rebind<From, Floats>(), from))));
}

// One vector: the last of a row comes from and goes to a copy.
template <typename Mode, typename Channel, typename OfLayer>
HWY_INLINE void blendVector(const BlendRow<Channel, OfLayer>& row, Value scale, hn::Vec<Ints> noise) {
    const Value back = loaded(row.background);
    Value line = hn::Mul(loaded(row.layer), scale);
    Value bareUnless = alphaOf(line);
    constexpr bool replaces = std::is_same_v<Mode, Replace>;
    if (row.mask != nullptr) {
        const Value mask = alphaOf(loaded(row.mask));
        line = hn::Mul(line, hn::Mul(mask, hn::Set(kFloats, 1 / kFull<OfLayer>)));
        bareUnless = replaces ? mask : alphaOf(line);
    }
    Value mixed = Mode::template mix<Channel>(back, line);
    mixed = hn::Min(mixed, alphaOf(mixed));
    Value up = hn::Add(hn::Mul(hn::ConvertTo(kFloats, hn::BitCast(hn::RebindToSigned<Floats>(), noise)),
                               hn::Set(kFloats, 1.0f / 256)),
                       hn::Set(kFloats, 1.0f / 512));
    if (sizeof(Channel) == 2) {  // more would take large whole numbers to the next ones
        up = hn::Min(up, hn::Set(kFloats, 255.0f / 256));
    }
    auto rounded = hn::ConvertTo(hn::RebindToSigned<Floats>(), hn::Add(mixed, up));
    if (Mode::kLeavesBare || (replaces && row.mask != nullptr)) {
        const auto bare = hn::Le(bareUnless, hn::Zero(kFloats));
        rounded = hn::IfThenElse(hn::RebindMask(hn::RebindToSigned<Floats>(), bare),
                                 hn::ConvertTo(hn::RebindToSigned<Floats>(), loaded(row.picture)), rounded);
    }
    const hn::Rebind<Channel, Floats> channels;
    hn::StoreU(hn::DemoteTo(channels, rounded), channels, row.picture);
}

// What is to come of a row, so many pixels further on.
template <typename Channel, typename OfLayer>
HWY_INLINE void move(BlendRow<Channel, OfLayer>& row, int pixels) {
    const std::ptrdiff_t values = std::ptrdiff_t{4} * pixels;
    row.picture += values;
    row.background += values;
    row.layer += values;
    row.mask += row.mask != nullptr ? values : 0;
    row.noise.first += static_cast<std::uint32_t>(pixels) * row.noise.along;
    row.count -= pixels;
}
// Steps back from the last pixels, fewer than a vector has, so that they are one with some that are blended once more.
// False where that cannot be.
template <typename Channel, typename OfLayer>
HWY_INLINE bool moveBack(BlendRow<Channel, OfLayer>& row, const BlendRow<Channel, OfLayer>& whole, int step) {
    if (row.count == 0 || whole.count < step || whole.picture == whole.background) {
        return false;
    }
    move(row, row.count - step);
    return true;
}

template <typename Mode, typename Channel, typename OfLayer>
void blendWhole(const BlendRow<Channel, OfLayer>& whole) {
    const int step = static_cast<int>(hn::Lanes(kFloats)) / 4;
    const Value scale = hn::Set(kFloats, whole.opacity / (kLayerUnits<Channel, OfLayer>));
    const auto places = hn::Mul(hn::ShiftRight<2>(hn::Iota(kInts, 0)), hn::Set(kInts, whole.noise.along));
    BlendRow<Channel, OfLayer> row = whole;
    const auto noise = [&] {
        return hn::And(hn::Add(places, hn::Set(kInts, row.noise.first)), hn::Set(kInts, 255));
    };
    for (; row.count >= step; move(row, step)) {
        blendVector<Mode>(row, scale, noise());
    }
    if (moveBack(row, whole, step)) {
        blendVector<Mode>(row, scale, noise());
    } else if (row.count > 0) {
        Channel picture[16] = {}, background[16] = {};
        OfLayer layer[16] = {}, mask[16] = {};
        const auto values = static_cast<std::size_t>(row.count) * 4;
        std::copy_n(row.picture, values, picture);
        std::copy_n(row.background, values, background);
        std::copy_n(row.layer, values, layer);
        if (row.mask != nullptr) {
            std::copy_n(row.mask, values, mask);
        }
        blendVector<Mode, Channel, OfLayer>({picture, background, layer, row.mask != nullptr ? mask : nullptr,
                                             row.count, row.opacity, row.noise},
                                            scale, noise());
        std::copy_n(picture, values, row.picture);
    }
}

// The mode that nearly all strokes take, in words of 16 bits: four times as many pixels at once. Where the layer is bare
// the background comes out as it is.
using Words = hn::CappedTag<std::uint16_t, 32>;
constexpr Words kWords;

HWY_INLINE void blendWords(const BlendRow<std::uint8_t>& row, std::uint16_t opacity, hn::Vec<Words> noise) {
    alignas(16) static constexpr std::uint8_t kAlphas[16] = {6,  7,  6,  7,  6,  7,  6,  7,
                                                             14, 15, 14, 15, 14, 15, 14, 15};
    const hn::Repartition<std::uint8_t, Words> bytes;
    const hn::RebindToSigned<Words> words;
    const auto narrow = hn::PromoteTo(kWords, hn::LoadU(hn::Rebind<std::uint8_t, Words>(), row.background));
    const auto back = hn::Or(narrow, hn::ShiftLeft<8>(narrow));  // full scale 65535
    auto line = hn::LoadU(kWords, row.layer);
    if (opacity != 65535) {
        line = hn::MulHigh(line, hn::Set(kWords, opacity));
    }
    const auto alpha =
        hn::BitCast(kWords, hn::TableLookupBytes(hn::BitCast(bytes, line), hn::LoadDup128(bytes, kAlphas)));
    const auto mixed = hn::SaturatedAdd(line, hn::Sub(back, hn::MulHigh(back, alpha)));
    // To 255 * 256, and up by less than one.
    const auto up = hn::Add(hn::Sub(mixed, hn::ShiftRight<8>(mixed)), noise);
    hn::StoreU(hn::DemoteTo(hn::Rebind<std::uint8_t, Words>(), hn::BitCast(words, hn::ShiftRight<8>(up))),
               hn::Rebind<std::uint8_t, Words>(), row.picture);
}

void blendNormal(const BlendRow<std::uint8_t>& whole) {
    const int step = static_cast<int>(hn::Lanes(kWords)) / 4;
    const auto opacity = static_cast<std::uint16_t>(std::clamp(whole.opacity, 0.0f, 1.0f) * 65535 + 0.5f);
    const auto places = hn::Mul(hn::ShiftRight<2>(hn::Iota(kWords, 0)),
                                hn::Set(kWords, static_cast<std::uint16_t>(whole.noise.along)));
    BlendRow<std::uint8_t> row = whole;
    const auto noise = [&] {
        return hn::And(hn::Add(places, hn::Set(kWords, static_cast<std::uint16_t>(row.noise.first))),
                       hn::Set(kWords, 255));
    };
    for (; row.count >= step; move(row, step)) {
        blendWords(row, opacity, noise());
    }
    if (moveBack(row, whole, step)) {
        blendWords(row, opacity, noise());
    } else if (row.count > 0) {
        std::uint8_t picture[32], background[32] = {};
        std::uint16_t layer[32] = {};
        const auto values = static_cast<std::size_t>(row.count) * 4;
        std::copy_n(row.background, values, background);
        std::copy_n(row.layer, values, layer);
        blendWords({picture, background, layer, nullptr, row.count, row.opacity, row.noise}, opacity,
                   noise());
        std::copy_n(picture, values, row.picture);
    }
}

// Of 16 bits, words would round what remains of the background.
void blendNormal(const BlendRow<std::uint16_t>& row) {
    blendWhole<Normal>(row);
}
void blendNormal(const BlendRow<std::uint8_t, std::uint8_t>& row) {
    blendWhole<Normal>(row);
}

template <typename Channel, typename OfLayer>
using Kernel = void (*)(const BlendRow<Channel, OfLayer>&);

// The kernel of a mode, or what is normal; Of<Mode> is what it makes of pixels.
template <template <typename> typename Of, typename Channel, typename OfLayer>
Kernel<Channel, OfLayer> kernelOf(std::uint32_t blendType, bool showsBare, Kernel<Channel, OfLayer> normal) {
    switch (blendType) {
        case ESBlendTypeReplace:
            return showsBare ? blendWhole<Of<ReplaceInPaint>, Channel, OfLayer>
                             : blendWhole<Of<Replace>, Channel, OfLayer>;
        case ESBlendTypeBehind:
            return blendWhole<Of<Behind>, Channel, OfLayer>;
        case ESBlendTypeErase:
            return blendWhole<Of<Erase>, Channel, OfLayer>;
        case ESBlendTypeTarnish:
            return blendWhole<Of<Tarnish>, Channel, OfLayer>;
        case ESBlendTypeBrightness:
            return blendWhole<Of<Brightness>, Channel, OfLayer>;
        case ESBlendTypeMultiply:
            return blendWhole<Of<Multiply>, Channel, OfLayer>;
        case ESBlendTypeReset:
            return blendWhole<Of<Reset>, Channel, OfLayer>;
        default:
            return normal;
    }
}
template <typename Mode>
using Plain = Mode;

template <typename Channel, typename OfLayer>
Kernel<Channel, OfLayer> kernelOf(std::uint32_t blendType, const BlendRow<Channel, OfLayer>& row) {
    if (row.locksAlpha) {
        return kernelOf<Locked, Channel, OfLayer>(blendType, row.showsBare,
                                                  blendWhole<Locked<Normal>, Channel, OfLayer>);
    }
    const Kernel<Channel, OfLayer> unmasked = blendNormal;
    return kernelOf<Plain, Channel, OfLayer>(
        blendType, row.showsBare, row.mask == nullptr ? unmasked : blendWhole<Normal, Channel, OfLayer>);
}

template <typename Channel, typename OfLayer>
HWY_INLINE void blend(std::uint32_t blendType, const BlendRow<Channel, OfLayer>& first, int rows) {
    constexpr std::ptrdiff_t kDown = kTileSide * 4;
    const auto kernel = kernelOf(blendType, first);
    BlendRow<Channel, OfLayer> row = first;
    for (int y = 0; y < rows; ++y) {
        kernel(row);
        row.picture += kDown;
        row.background += kDown;
        row.layer += kDown;
        row.mask += row.mask != nullptr ? kDown : 0;
        row.noise.first += row.noise.down;
    }
}

void blend8(std::uint32_t blendType, const BlendRow<std::uint8_t>& first, int rows) {
    blend(blendType, first, rows);
}
void blend16(std::uint32_t blendType, const BlendRow<std::uint16_t>& first, int rows) {
    blend(blendType, first, rows);
}
void blend8of8(std::uint32_t blendType, const BlendRow<std::uint8_t, std::uint8_t>& first, int rows) {
    blend(blendType, first, rows);
}

const char* targetName() {
    return hwy::TargetName(HWY_TARGET);
}

}  // namespace dabcanvas::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(blend8);
HWY_EXPORT(blend16);
HWY_EXPORT(blend8of8);
HWY_EXPORT(targetName);

void blendRows(std::uint32_t blendType, const BlendRow<std::uint8_t>& first, int rows) {
    HWY_DYNAMIC_DISPATCH(blend8)(blendType, first, rows);
}
void blendRows(std::uint32_t blendType, const BlendRow<std::uint16_t>& first, int rows) {
    HWY_DYNAMIC_DISPATCH(blend16)(blendType, first, rows);
}
void blendRows(std::uint32_t blendType, const BlendRow<std::uint8_t, std::uint8_t>& first, int rows) {
    HWY_DYNAMIC_DISPATCH(blend8of8)(blendType, first, rows);
}

const char* vectorsInUse() {
    return HWY_DYNAMIC_DISPATCH(targetName)();
}

}  // namespace dabcanvas
#endif
