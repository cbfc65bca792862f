// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

namespace dabcanvas {

// A number that is looked for between two others; where these are one, it is that.
struct Unknown {
    float low, high;
    float step;  // of the first search
};

using Numbers = std::vector<float>;

// The numbers of the smallest error that a search finds which goes along one axis at a time, by ever smaller steps, from
// each of the starts.
Numbers leastError(const std::vector<Unknown>& unknowns, const std::vector<Numbers>& starts,
                   const std::function<double(const Numbers&)>& error);

}  // namespace dabcanvas
