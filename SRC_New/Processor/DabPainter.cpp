// SPDX-License-Identifier: MIT
#include "Processor/DabPainter.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>

#include "Dabs/TipImage.h"
#include "Processor/DabKernel.h"
#include "Processor/DabPlan.h"
#include "Processor/PaperTiles.h"
#include "Processor/TipTables.h"

namespace dabcanvas {
namespace {

constexpr std::size_t kMostOfPaper = DabPainter::kMostDerived / 4;  // bytes

// Whether both stand for one and the same object, also after it is gone.
template <typename Object>
bool isSame(const std::weak_ptr<const Object>& one, const std::shared_ptr<const Object>& other) {
    return !one.owner_before(other) && !other.owner_before(one);
}

}  // namespace

struct DabPainter::Inside {
    // The tips of the brushes used last.
    struct KeptTip {
        std::weak_ptr<const TipSet> set;
        std::size_t index;
        bool multicolour;
        std::unique_ptr<TipTables> tables;
    };
    std::vector<KeptTip> tips;  // the latest last
    std::weak_ptr<const Picture> paperPicture;
    float paperScale = 0;
    std::unique_ptr<PaperTiles> paper;

    // Of the present run
    std::vector<PlannedDab> dabs;
    struct Entry {
        std::size_t dab;
        std::ptrdiff_t next;
    };
    std::vector<Entry> entries;
    struct TileDabs {
        std::size_t tile;
        std::ptrdiff_t first, last;  // entries
    };
    std::vector<TileDabs> tiles;
    std::vector<std::ptrdiff_t> tileOf;  // index into `tiles`; -1 for none

    TipTables& tip(const DabStyle& style, std::uint32_t wanted);
    PaperTiles* paperOf(const DabStyle& style);
    void dropTips();
    Rect plan(const TileGrid<std::uint16_t>& layer, std::span<const Dab> dabs, const DabStyle& style,
              std::uint64_t count);
    void drawTile(TileGrid<std::uint16_t>& layer, const TileDabs& tile, PaperTiles* paperTiles) const;
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
    if (!paper || paperScale != style.paperScale || !isSame(paperPicture, style.paper)) {
        paper = std::make_unique<PaperTiles>(paperImageOf(*style.paper), style.paperScale, kMostOfPaper);
        paperPicture = style.paper;
        paperScale = style.paperScale;
    }
    return paper->isEmpty() ? nullptr : paper.get();
}

Rect DabPainter::Inside::plan(const TileGrid<std::uint16_t>& layer, std::span<const Dab> run,
                              const DabStyle& style, std::uint64_t count) {
    dabs.clear();
    entries.clear();
    tiles.clear();
    tileOf.assign(layer.count(), -1);
    Rect touched;
    for (const Dab& dab : run) {
        const std::optional<PlannedDab> plan =
            planned(dab, style, tip(style, dab.tip), layer.size(), count++);
        if (!plan) {
            continue;
        }
        touched = touched.united(plan->touched);
        layer.forEachIn(plan->touched, [&](std::size_t index, const Rect&) {
            const auto entry = static_cast<std::ptrdiff_t>(entries.size());
            entries.push_back({dabs.size(), -1});
            if (tileOf[index] < 0) {
                tileOf[index] = static_cast<std::ptrdiff_t>(tiles.size());
                tiles.push_back({index, entry, entry});
            } else {
                TileDabs& tile = tiles[static_cast<std::size_t>(tileOf[index])];
                entries[static_cast<std::size_t>(tile.last)].next = entry;
                tile.last = entry;
            }
        });
        dabs.push_back(*plan);
    }
    return touched;
}

void DabPainter::Inside::drawTile(TileGrid<std::uint16_t>& layer, const TileDabs& tile,
                                  PaperTiles* paperTiles) const {
    const Rect rect = layer.rectOf(tile.tile);
    const bool isThere = layer.tile(tile.tile) != nullptr;
    std::unique_ptr<Tile<std::uint16_t>> made;
    if (!isThere) {
        made = std::make_unique<Tile<std::uint16_t>>();
    }
    std::uint16_t* const values = isThere ? layer.writable(tile.tile).values.data() : made->values.data();
    std::shared_ptr<const PaperTiles::Through> through;
    if (paperTiles != nullptr) {
        through = paperTiles->at(rect);
    }
    bool any = false;
    for (std::ptrdiff_t i = tile.first; i >= 0; i = entries[static_cast<std::size_t>(i)].next) {
        const PlannedDab& plan = dabs[entries[static_cast<std::size_t>(i)].dab];
        TileDab dab = inTile(plan, rect.x, rect.y);
        dab.paper = through ? through->data() : nullptr;
        const Rect part = rect.intersected(plan.touched);
        any |= drawRows(dab, part.y - rect.y, part.bottom() - rect.y, rect.width, values);
    }
    if (!isThere && any) {
        layer.writable(tile.tile) = *made;
    }
}

DabPainter::DabPainter() : _inside(std::make_unique<Inside>()) {}
DabPainter::~DabPainter() = default;

Rect DabPainter::draw(TileGrid<std::uint16_t>& layer, std::span<const Dab> dabs, const DabStyle& style,
                      std::uint64_t count) {
    if (!style.tips || style.tips->empty()) {
        return {};
    }
    _inside->dropTips();
    PaperTiles* const paper = _inside->paperOf(style);
    const Rect touched = _inside->plan(layer, dabs, style, count);
    for (const Inside::TileDabs& tile : _inside->tiles) {
        _inside->drawTile(layer, tile, paper);
    }
    return touched;
}

}  // namespace dabcanvas
