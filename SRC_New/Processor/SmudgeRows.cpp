// SPDX-License-Identifier: MIT
#include "Processor/SmudgeRows.h"

#include <limits>

#include "Processor/BlendRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Processor/SmudgeRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace dabcanvas::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// One pixel, four channels.
constexpr hn::FixedTag<float, 4> kPixel;
using Value = hn::Vec<decltype(kPixel)>;

HWY_INLINE Value between(const float* texels, const TexelPlace& place) {
    const Value low = hn::LoadU(kPixel, texels + 4 * place.low);
    return hn::Add(
        low, hn::Mul(hn::Sub(hn::LoadU(kPixel, texels + 4 * place.high), low), hn::Set(kPixel, place.part)));
}

template <typename Channel>
constexpr float kFull = std::numeric_limits<Channel>::max();

// In the picture's units.
template <typename Channel>
HWY_INLINE Value brought(const SmudgeRow& row, const TexelPlace& place, float share) {
    const Value rest = hn::Mul(between(row.then, place), hn::Set(kPixel, 1 - share));
    Value value = hn::Max(hn::Sub(between(row.now, place), rest), hn::Zero(kPixel));
    value = hn::Mul(value, hn::Set(kPixel, kFull<Channel> / 65535));
    // At hard rims the layer does not agree with the coverage; what is too much keeps its colour.
    const Value alpha = hn::Max(hn::Broadcast<3>(value), hn::Set(kPixel, 1e-4f));
    value =
        hn::Mul(value, hn::Min(hn::Set(kPixel, 1), hn::Div(hn::Set(kPixel, kFull<Channel> * share), alpha)));
    return hn::Min(value, hn::Broadcast<3>(value));
}

template <typename Channel>
HWY_INLINE void putIn(const SmudgeRow& row) {
    auto* const picture = reinterpret_cast<Channel*>(row.picture);
    const auto* const background = reinterpret_cast<const Channel*>(row.background);
    const hn::Rebind<Channel, decltype(kPixel)> channels;
    const hn::RebindToSigned<decltype(kPixel)> ints;
    const Value opacity = hn::Set(kPixel, row.opacity);
    for (int i = 0; i < row.count; ++i) {
        const std::uint16_t alpha = row.exchanged[4 * i + 3];
        if (alpha == 0) {
            continue;
        }
        const float share = static_cast<float>(alpha) / 65535;
        const Value canvas =
            hn::ConvertTo(kPixel, hn::PromoteTo(ints, hn::LoadU(channels, background + 4 * i)));
        const Value change =
            hn::Sub(brought<Channel>(row, row.places[i], share), hn::Mul(canvas, hn::Set(kPixel, share)));
        const float up = upBy(row.noise + static_cast<std::uint32_t>(i) * row.along);
        Value mixed = hn::Max(hn::Add(canvas, hn::Mul(change, opacity)), hn::Zero(kPixel));
        mixed = hn::Add(hn::Min(mixed, hn::Broadcast<3>(mixed)), hn::Set(kPixel, up));
        hn::StoreU(hn::DemoteTo(channels, hn::ConvertTo(ints, mixed)), channels, picture + 4 * i);
    }
}

void put(const SmudgeRow& row) {
    row.pixelBytes == 4 ? putIn<std::uint8_t>(row) : putIn<std::uint16_t>(row);
}

}  // namespace dabcanvas::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dabcanvas {

HWY_EXPORT(put);

void putSmudges(const SmudgeRow& row) {
    HWY_DYNAMIC_DISPATCH(put)(row);
}

}  // namespace dabcanvas
#endif
