// SPDX-License-Identifier: MIT
// A picture as the marks on it, so that tests can say what a brush does.
#pragma once

#include <ostream>
#include <vector>

#include "support/Images.h"

// What lies together on a picture: one dab, where dabs lie apart.
struct Mark {
    QRect box;
    double weight = 0;  // of alpha, in whole pixels
    double leanX = 0,
           leanY = 0;  // of its weight from the middle of its box, in boxes: right and down are positive
    QColor color;      // where it is densest
    double x() const { return box.x() + box.width() / 2.0; }
    double y() const { return box.y() + box.height() / 2.0; }
    double ratio() const { return static_cast<double>(box.height()) / box.width(); }
};
using Marks = std::vector<Mark>;

struct Picture {
    QImage image;
    Marks marks;  // from left to right

    explicit Picture(const QImage& painted);
    // The number of pixels of which this holds.
    template <typename Holds>
    int pixels(const Holds& holds, QRect within = {}) const {
        within = within.isNull() ? image.rect() : within;
        int found = 0;
        for (int y = within.top(); y <= within.bottom(); ++y) {
            for (int x = within.left(); x <= within.right(); ++x) {
                found += holds(image.pixelColor(x, y)) ? 1 : 0;
            }
        }
        return found;
    }
    friend std::ostream& operator<<(std::ostream& out, const Picture& picture);
};
