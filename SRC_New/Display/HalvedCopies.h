// SPDX-License-Identifier: MIT
// A picture at half its size, at a quarter and so on, for views that show it smaller: every pixel of it counts alike, where
// picking one of several would make thin lines fall into dots.
//
// Memory   up to a third of the picture's; none until a copy is asked for. What changed is made anew when one is.
// Thread   one at a time.
#pragma once

#include <QImage>
#include <QRect>
#include <deque>

namespace dabcanvas {

class HalvedCopies {
public:
    // The copy to show the picture at a zoom from: enlarged or as it is, 0 is the picture itself; then the one that is to be
    // shown at two thirds of its size or a little enlarged.
    static int levelFor(double zoom);

    // Premultiplied RGBA, the picture's side / 2^level, rounded up; one that has no memory for it gives the picture itself.
    const QImage& at(int level, const QImage& picture);
    // In the picture's pixels.
    void change(const QRect& area);

private:
    struct Copy {
        QImage image;
        QRect stale;  // of its own pixels
    };
    std::deque<Copy> _copies;  // from the first halved one on
};

}  // namespace dabcanvas
