// SPDX-License-Identifier: MIT
#include "Processor/SmudgeRows.h"

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

// In units of 1/255.
HWY_INLINE Value brought(const SmudgeRow& row, const TexelPlace& place, float share) {
    const Value rest = hn::Mul(between(row.then, place), hn::Set(kPixel, 1 - share));
    Value value = hn::Max(hn::Sub(between(row.now, place), rest), hn::Zero(kPixel));
    value = hn::Mul(value, hn::Set(kPixel, 1.0f / 257));
    // At hard rims the layer does not agree with the coverage; what is too much keeps its colour.
    const Value alpha = hn::Max(hn::Broadcast<3>(value), hn::Set(kPixel, 1e-4f));
    value = hn::Mul(value, hn::Min(hn::Set(kPixel, 1), hn::Div(hn::Set(kPixel, 255 * share), alpha)));
    return hn::Min(value, hn::Broadcast<3>(value));
}

void put(const SmudgeRow& row) {
    const hn::Rebind<std::uint8_t, decltype(kPixel)> bytes;
    const hn::RebindToSigned<decltype(kPixel)> ints;
    const Value opacity = hn::Set(kPixel, row.opacity);
    for (int i = 0; i < row.count; ++i) {
        const std::uint16_t alpha = row.exchanged[4 * i + 3];
        if (alpha == 0) {
            continue;
        }
        const float share = static_cast<float>(alpha) / 65535;
        const Value canvas =
            hn::ConvertTo(kPixel, hn::PromoteTo(ints, hn::LoadU(bytes, row.background + 4 * i)));
        const Value change =
            hn::Sub(brought(row, row.places[i], share), hn::Mul(canvas, hn::Set(kPixel, share)));
        const float up = upBy(row.noise + static_cast<std::uint32_t>(i) * kNoiseAlong);
        Value mixed = hn::Max(hn::Add(canvas, hn::Mul(change, opacity)), hn::Zero(kPixel));
        mixed = hn::Add(hn::Min(mixed, hn::Broadcast<3>(mixed)), hn::Set(kPixel, up));
        hn::StoreU(hn::DemoteTo(bytes, hn::ConvertTo(ints, mixed)), bytes, row.picture + 4 * i);
    }
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
