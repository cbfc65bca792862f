// SPDX-License-Identifier: MIT
#include "Processor/DabPainter.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include "Dabs/TipImage.h"
#include "Processor/DabKernel.h"
#include "Processor/DabPlan.h"
#include "Processor/PaperTiles.h"
#include "Processor/TipTables.h"
#include "Processor/Workers.h"

namespace dabcanvas {
namespace {

constexpr std::size_t kMostOfPaper = DabPainter::kMostDerived / 4;  // bytes

// Whether both stand for one and the same object, also after it is gone.
template <typename Object>
bool isSame(const std::weak_ptr<const Object>& one, const std::shared_ptr<const Object>& other) {
    return !one.owner_before(other) && !other.owner_before(one);
}

// As drawDabs(), into a layer of 8 bits. Coverage is no such layer; what has colours of its own has another full scale.
bool drawRounded(std::span<const TileDab> dabs, const DabGround& ground) {
    if (ground.isCoverage || ground.colours != nullptr) {
        return drawDabs(dabs, ground);
    }
    bool any = false;
    for (const TileDab& dab : dabs) {
        any |= drawDabs({&dab, 1}, ground);
        for (int y = dab.firstRow; y < dab.endRow; ++y) {
            roundToBytes(ground.tile + std::size_t{4} * kTileSide * static_cast<std::size_t>(y), kTileSide);
        }
    }
    return any;
}

}  // namespace

struct DabPainter::Inside {
    // The tips of the brushes used last.
    bool (*draw)(std::span<const TileDab> dabs, const DabGround& ground) = drawDabs;
    struct KeptTip {
        std::weak_ptr<const TipSet> set;
        std::size_t index;
        bool multicolour;
        std::unique_ptr<TipTables> tables;
    };
    std::vector<KeptTip> tips;  // the latest last
    std::weak_ptr<const Picture> paperPicture;
    PaperStyle paperStyle;
    std::unique_ptr<PaperTiles> paper;

    // Of the present run; the first `planned` of the dabs. What they took in memory serves the next run.
    std::vector<PlannedDab> dabs;
    std::size_t planned = 0;
    std::vector<Multicolour> multicolours;
    struct Entry {
        std::uint32_t dab;
        std::int32_t next;  // entry of the same tile, -1 for none
    };
    std::vector<Entry> entries;
    struct TileDabs {
        std::size_t tile;
        std::int32_t first, last;  // entries
    };
    std::vector<TileDabs> tiles;
    std::vector<std::int32_t> tileOf;  // index into `tiles`, -1 for none

    TipTables& tip(const DabStyle& style, std::uint32_t wanted);
    PaperTiles* paperOf(const DabStyle& style);
    void dropTips();
    template <typename Grid>
    Rect plan(const Grid& layer, std::span<const Dab> dabs, const DabStyle& style, std::uint64_t count);
    template <typename Grid>
    void addToTiles(const Grid& layer, const Rect& touched);
    // What dabs are drawn with but their own colours.
    struct With {
        PaperTiles* paper;
        DabColours* colours;
    };
    template <typename Grid>
    void drawTile(Grid& layer, const TileDabs& tile, const With& with) const;
    template <typename Grid>
    void drawTiles(Grid& layer, const With& with) const;
};

TipTables& DabPainter::Inside::tip(const DabStyle& style, std::uint32_t wanted) {
    const TipSet& set = *style.tips;
    const std::size_t index = wanted < set.size() ? wanted : 0;
    const auto found = std::find_if(tips.rbegin(), tips.rend(), [&](const KeptTip& kept) {
        return kept.index == index && kept.multicolour == style.multicolour && isSame(kept.set, style.tips);
    });
    if (found != tips.rend()) {
        std::rotate(tips.begin() + (&*found - tips.data()), tips.begin() + (&*found - tips.data()) + 1,
                    tips.end());
        return *tips.back().tables;
    }
    auto tables =
        std::make_unique<TipTables>(tipImageOf(set[index], mostTipSide(set.size()), style.multicolour));
    tips.push_back({style.tips, index, style.multicolour, std::move(tables)});
    return *tips.back().tables;
}

// The tips used longest ago go; what the present run needs stays, whatever it takes.
void DabPainter::Inside::dropTips() {
    std::size_t bytes = 0;
    auto kept = tips.end();
    while (kept != tips.begin()) {
        bytes += std::prev(kept)->tables->bytes();
        if (bytes > kMostDerived - kMostOfPaper) {
            break;
        }
        --kept;
    }
    tips.erase(tips.begin(), kept);
}

PaperTiles* DabPainter::Inside::paperOf(const DabStyle& style) {
    if (!style.paper) {
        return nullptr;
    }
    if (!paper || paperStyle != style.paperStyle || !isSame(paperPicture, style.paper)) {
        paper = std::make_unique<PaperTiles>(paperImageOf(*style.paper), style.paperStyle, kMostOfPaper);
        paperPicture = style.paper;
        paperStyle = style.paperStyle;
    }
    return paper->isEmpty() ? nullptr : paper.get();
}

// Notes the dab that was planned last in the tiles that it may touch.
template <typename Grid>
void DabPainter::Inside::addToTiles(const Grid& layer, const Rect& touched) {
    layer.forEachIn(touched, [&](std::size_t index, const Rect&) {
        const auto entry = static_cast<std::int32_t>(entries.size());
        entries.push_back({static_cast<std::uint32_t>(planned - 1), -1});
        std::int32_t& place = tileOf[index];
        if (place < 0) {
            place = static_cast<std::int32_t>(tiles.size());
            tiles.push_back({index, entry, entry});
        } else {
            TileDabs& tile = tiles[static_cast<std::size_t>(place)];
            entries[static_cast<std::size_t>(tile.last)].next = entry;
            tile.last = entry;
        }
    });
}

template <typename Grid>
Rect DabPainter::Inside::plan(const Grid& layer, std::span<const Dab> run, const DabStyle& style,
                              std::uint64_t count) {
    planned = 0;
    entries.clear();
    for (const TileDabs& tile : tiles) {
        tileOf[tile.tile] = -1;
    }
    tiles.clear();
    tileOf.resize(layer.count(), -1);
    multicolours.clear();
    multicolours.reserve(style.multicolour ? run.size() : 0);
    Rect touched;
    const Dab* like = nullptr;  // the one that was planned last
    for (const Dab& dab : run) {
        if (planned == dabs.size()) {
            dabs.emplace_back();
        }
        PlannedDab& plan = dabs[planned];
        const std::uint64_t number = count++;
        if (like != nullptr && haveOneShape(dab, *like)) {
            plan = dabs[planned - 1];
        } else if (!shapeDab(dab, tip(style, dab.tip), plan)) {
            continue;
        }
        if (!placeDab(dab, layer.size(), number, plan)) {
            continue;
        }
        like = &dab;
        if (style.multicolour) {
            plan.shape.multicolour = &multicolours.emplace_back(dab, style);
        }
        ++planned;
        touched = touched.united(plan.touched);
        addToTiles(layer, plan.touched);
    }
    return touched;
}

template <typename Grid>
void DabPainter::Inside::drawTile(Grid& layer, const TileDabs& tile, const With& with) const {
    const Rect rect = layer.rectOf(tile.tile);
    thread_local std::vector<TileDab> here;
    here.clear();
    for (std::int32_t i = tile.first; i >= 0; i = entries[static_cast<std::size_t>(i)].next) {
        here.push_back(inTile(dabs[entries[static_cast<std::size_t>(i)].dab], rect));
    }
    std::shared_ptr<const PaperTiles::Through> through;
    if (with.paper != nullptr) {
        through = with.paper->at(rect);
    }
    DabGround ground{nullptr, rect.width, through ? through->data() : nullptr};
    ground.isRelief = !paperStyle.isPlain();
    ground.isCoverage = std::is_same_v<Grid, CoverageGrid>;
    if (with.colours != nullptr) {
        ground.colours = with.colours->of(
            rect.intersected(dabs[entries[static_cast<std::size_t>(tile.first)].dab].touched));
    }
    const bool isNew = layer.tile(tile.tile) == nullptr;
    ground.tile = layer.writable(tile.tile).values.data();
    // What only seemed to be touched stays away.
    if (!draw(here, ground) && isNew) {
        layer.drop(tile.tile);
    }
}

template <typename Grid>
void DabPainter::Inside::drawTiles(Grid& layer, const With& with) const {
    const auto piece = [&](std::size_t i) { drawTile(layer, tiles[i], with); };
    std::int64_t pixels = 0;
    for (std::size_t i = 0; i < planned; ++i) {
        pixels += dabs[i].touched.area();
    }
    // Waking a thread takes as long as some 50,000 pixels; of small dabs, planning them takes a good part.
    constexpr std::int64_t kWorthSharing = 200'000;
    constexpr std::int64_t kLargeDab = 32 * 32;
    if (pixels >= kWorthSharing && pixels >= kLargeDab * static_cast<std::int64_t>(planned)) {
        Workers::share(tiles.size(), piece);
        return;
    }
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        piece(i);
    }
}

DabPainter::DabPainter(int layerDepth) : _inside(std::make_unique<Inside>()) {
    _inside->draw = layerDepth == 8 ? drawRounded : drawDabs;
}
DabPainter::~DabPainter() = default;

void DabPainter::makeReady(const DabStyle& style) {
    _inside->dropTips();
    for (std::uint32_t i = 0; style.tips && i < style.tips->size(); ++i) {
        _inside->tip(style, i).makeAll();
    }
    _inside->paperOf(style);
}

Rect DabPainter::draw(TileGrid<std::uint16_t>& layer, std::span<const Dab> dabs, const DabStyle& style,
                      std::uint64_t count) {
    if (!style.tips || style.tips->empty()) {
        return {};
    }
    _inside->dropTips();
    PaperTiles* const paper = _inside->paperOf(style);
    const Rect touched = _inside->plan(layer, dabs, style, count);
    _inside->drawTiles(layer, {paper, nullptr});
    return touched;
}

Rect DabPainter::draw(TileGrid<std::uint16_t>& layer, const Dab& dab, const DabStyle& style,
                      std::uint64_t count, DabColours& colours) {
    if (!style.tips || style.tips->empty()) {
        return {};
    }
    _inside->dropTips();
    const Rect touched = _inside->plan(layer, std::span(&dab, 1), style, count);
    if (!touched.isEmpty()) {
        colours.begin(touched);
        _inside->drawTiles(layer, {nullptr, &colours});
    }
    return touched;
}

Rect DabPainter::draw(CoverageGrid& layer, std::span<const Dab> dabs, const DabStyle& style,
                      std::uint64_t count) {
    if (!style.tips || style.tips->empty()) {
        return {};
    }
    _inside->dropTips();
    const Rect touched = _inside->plan(layer, dabs, style, count);
    _inside->drawTiles(layer, {nullptr, nullptr});
    return touched;
}

}  // namespace dabcanvas
