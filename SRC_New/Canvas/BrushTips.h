// SPDX-License-Identifier: MIT
// The tips that dabs are stamped with: images handed in, or one that is drawn when it is first needed, as what it looks
// like may change thousands of times, by a slider or a preset, and a large one takes long to draw.
#pragma once

#include <QImage>
#include <QList>
#include <memory>

#include "Brushes/PictureOf.h"
#include "Brushes/TexturesTool.h"
#include "Dabs/Picture.h"

namespace dabcanvas {

class BrushTips {
public:
    // How a tip is drawn, see TexturesTool; type 0 draws none.
    struct Drawing {
        int type = 0, size = 0;
        float hardness = 0, controlValue = 0;
        bool operator==(const Drawing&) const = default;
    };

    // Images to stamp with; not empty. They are kept for when a drawn tip has been in their place.
    void give(const QList<QImage>& images);
    // Stamps with none of its own: with a soft disc.
    void drop();
    // Stamps with a drawn tip, or, of type 0, with the images last given.
    void choose(const Drawing& drawing);

    const QList<QImage>& given() const { return _given; }  // last
    bool isDrawn() const { return _wanted.type != 0; }
    // The present ones, drawn by now. Empty after drop().
    const QList<QImage>& images() const;
    // For a surface, never empty: the same, but small drawn tips with more texels. `radius` is that of the disc in place of
    // none. The same object for as long as they are the same.
    std::shared_ptr<const TipSet> pictures(float radius) const;

private:
    QImage drawn(const Drawing& drawing) const;

    QList<QImage> _given;
    Drawing _wanted;  // type 0: nothing is to be drawn
    mutable Drawing _made;
    mutable QList<QImage> _images;
    mutable Drawing _pictured;                        // what _pictures shows, or, of type 0, the images
    mutable std::shared_ptr<const TipSet> _pictures;  // null: to be made
};

}  // namespace dabcanvas
