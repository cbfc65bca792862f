// SPDX-License-Identifier: MIT
#include "Import/LeastSquares.h"

#include <algorithm>
#include <limits>

namespace dabcanvas {
namespace {

constexpr int kHalvings = 10, kSweeps = 12;

// One step along an axis, either way, when that is better.
bool stepAlong(std::size_t axis, const Unknown& unknown, float step, Numbers& at, double& least,
               const std::function<double(const Numbers&)>& error) {
    const float before = at[axis];
    for (const float way : {step, -step}) {
        at[axis] = std::clamp(before + way, unknown.low, unknown.high);
        if (const double now = at[axis] != before ? error(at) : least; now < least) {
            least = now;
            return true;
        }
    }
    at[axis] = before;
    return false;
}

double search(const std::vector<Unknown>& unknowns, Numbers& at,
              const std::function<double(const Numbers&)>& error) {
    double least = error(at);
    float share = 1;
    for (int halving = 0; halving < kHalvings; ++halving, share /= 2) {
        bool isBetter = true;
        for (int sweep = 0; sweep < kSweeps && isBetter; ++sweep) {
            isBetter = false;
            for (std::size_t axis = 0; axis < unknowns.size(); ++axis) {
                const Unknown& unknown = unknowns[axis];
                isBetter |=
                    unknown.step > 0 && stepAlong(axis, unknown, unknown.step * share, at, least, error);
            }
        }
    }
    return least;
}

}  // namespace

Numbers leastError(const std::vector<Unknown>& unknowns, const std::vector<Numbers>& starts,
                   const std::function<double(const Numbers&)>& error) {
    double least = std::numeric_limits<double>::infinity();
    Numbers best = starts.front();
    for (Numbers at : starts) {
        if (const double found = search(unknowns, at, error); found < least) {
            least = found;
            best = std::move(at);
        }
    }
    return best;
}

}  // namespace dabcanvas
