// SPDX-License-Identifier: MIT
// A stroke painted with the libraries that need no Qt. EXPECTED_VERSION is what the package says of itself.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "LineProcess/LPLineProcess.h"
#include "Maths/Version.h"
#include "Processor/MakeProcessorSurface.h"

using namespace dabcanvas;

namespace {

int failed(const char* what) {
    std::fprintf(stderr, "plain: %s\n", what);
    return 1;
}

std::vector<Dab> dabsOfAStroke() {
    LPLineParams line = _lpDefaultParaObj;
    lpSetParaObj(&line);
    line.radius = 20;
    line.maxRadius = line.startRadius = line.endRadius = 1;
    line.pointsDistance = 0.1f;
    lpStartLine({10, 30});
    const std::int32_t count = lpAppendingLine({90, 30}, true);
    LPPoint* handedOut = nullptr;
    lpGetLastLineSegmentPoints1V(&handedOut);
    const std::unique_ptr<LPPoint[], decltype(&std::free)> points(handedOut, &std::free);
    DabMaker maker;
    maker.settings.color = {1, 0, 0};
    maker.settings.maxFlow = 1;
    maker.updateFlags();
    std::vector<Dab> dabs;
    maker.make(points.get(), static_cast<std::size_t>(count), [&](const Dab& dab) { dabs.push_back(dab); });
    return dabs;
}

}  // namespace

int main() {
    if (std::strcmp(DABCANVAS_VERSION_STRING, EXPECTED_VERSION) != 0 ||
        DABCANVAS_VERSION < DABCANVAS_VERSION_CHECK(0, 1, 0)) {
        return failed("headers of " DABCANVAS_VERSION_STRING ", a package of " EXPECTED_VERSION);
    }
    constexpr Size size{100, 60};
    const std::unique_ptr<PaintSurface> surface = makeProcessorSurface(size);
    if (!surface) {
        return failed("no surface");
    }
    const std::vector<std::uint8_t> opaque(8 * 8 * 4, 255);
    DabStyle style;
    style.tips =
        std::make_shared<TipSet>(TipSet{{PixelView::topRowFirst(opaque.data(), {8, 8}), 1, nullptr}});
    const std::vector<Dab> dabs = dabsOfAStroke();
    const Rect painted = surface->draw(PaintLayer::line, dabs, style);
    surface->composite(PictureId::first, {&painted, 1}, {});
    std::vector<std::uint8_t> bytes(std::size_t{100} * 60 * 4);
    const auto rows = MutablePixelView::topRowFirst(bytes.data(), size);
    if (!surface->read(PictureId::first, Rect::of(size), rows)) {
        return failed("the picture cannot be read");
    }
    const auto at = [&](int x, int y) { return rows.at(x, y); };
    const bool red = at(50, 30)[0] == 255 && at(50, 30)[1] == 0 && at(50, 30)[3] == 255;
    return red && at(50, 5)[3] == 0 ? 0 : failed("the stroke is not where it was drawn");
}
