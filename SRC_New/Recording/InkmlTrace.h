// SPDX-License-Identifier: MIT
// The point list inside one InkML <trace>, decoded to plain numbers.
#pragma once

#include <QByteArrayView>
#include <functional>
#include <span>
#include <vector>

#include "Recording/Problem.h"

namespace dabcanvas {

// One channel of a point list, as far as decoding needs it.
struct TraceChannel {
    bool boolean = false;       // written T or F
    bool intermittent = false;  // may be left out at the end of a point; these come after all others
};

// Decodes "10 20, '1-2, ..." and hands each point's values to `point`, one a channel in the order of
// `channels`; NaN for a value that is unknown ("?", or an intermittent channel left out).
//
// Points are parted by commas, values by blanks or by nothing where a sign, a prefix or a wildcard starts the
// next. Each channel remembers its prefix until another is given: ' before a value makes it and those after
// it differences from the point before, " differences of those differences, ! values again. * repeats the
// channel's last number in its way of writing: the value, the difference, or the difference of differences.
//
// On a fault returns false and fills `problem`, whose line counts from 0 at the start of the text.
bool decodeTrace(QByteArrayView text, std::span<const TraceChannel> channels,
                 const std::function<void(std::span<const double>)>& point, Problem& problem);

}  // namespace dabcanvas
