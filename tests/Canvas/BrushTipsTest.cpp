// SPDX-License-Identifier: MIT
#include "Canvas/BrushTips.h"

#include <gtest/gtest.h>

#include <numeric>

#include "support/DabReference.h"
#include "support/Dabs.h"

using namespace dabcanvas;

namespace {

constexpr Size kSize{24, 24};
constexpr int kFine = 512;

// The alpha of one dab of that width.
std::vector<double> dabWith(const Picture& tip, float width) {
    std::vector<double> layer(kSize.width * kSize.height * 4), alpha;
    const Dab dab = dabAt(12.3f, 11.6f, width);
    const std::vector<TipImage> tips{tipImageOf(tip, kFine, false)};
    reference::draw(layer, kSize, {&dab, 1}, tips, nullptr, {});
    for (std::size_t i = 3; i < layer.size(); i += 4) {
        alpha.push_back(layer[i]);
    }
    return alpha;
}

// As one of very many texels does, but for half a texel by which they are smaller.
TEST(BrushTipsTest, ASmallDrawnTipDrawsItsShape) {
    for (const int type : {TexturesTool::kSoftDisc, TexturesTool::kRing, TexturesTool::kRoundedRectangle}) {
        for (const float hardness : {0.0f, 0.5f, 1.0f}) {
            for (const int size : {3, 4, 5, 9, 16, 40}) {
                const float control = 3;  // a third as high, or so thick
                BrushTips tips;
                tips.choose({type, size, hardness, control});
                TexturesTool tool;
                tool.setTextureType(type);
                tool.setHardness(hardness);
                tool.setTextureControlValue(
                    type == TexturesTool::kRing ? control * kFine / static_cast<float>(size) : control);
                const Picture fine = pictureOf(tool.textureImageWithSize(kFine));
                const auto width = static_cast<float>(std::min(size, 16));
                const auto dab = dabWith(tips.pictures(0)->front(), width), wanted = dabWith(fine, width);
                double worst = 0, ink = 0;
                for (std::size_t i = 0; i < dab.size(); ++i) {
                    worst = std::max(worst, std::fabs(dab[i] - wanted[i]));
                    ink += dab[i] - wanted[i];
                }
                EXPECT_LT(worst, 0.15) << "type " << type << ", hardness " << hardness << ", size " << size;
                EXPECT_LT(std::fabs(ink), 0.12 * std::accumulate(wanted.begin(), wanted.end(), 0.0))
                    << "type " << type << ", hardness " << hardness << ", size " << size;
                EXPECT_EQ(tips.images().front().width(), size) << "which hosts see";
            }
        }
    }
}

}  // namespace
