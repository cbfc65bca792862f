// SPDX-License-Identifier: MIT
#include "Import/ControlFit.h"

#include <cmath>

namespace dabcanvas {
namespace {

ControlFit fitOf(const Numbers& numbers) {
    return {numbers[0], numbers[1], {numbers[2], numbers[3], numbers[4]}, 0};
}

// Every combination of two places for each unknown that is free.
std::vector<Numbers> startsFor(const std::vector<Unknown>& unknowns) {
    std::vector<Numbers> starts{{}};
    for (const Unknown& unknown : unknowns) {
        const float middle = (unknown.low + unknown.high) / 2, quarter = (unknown.high - unknown.low) / 4;
        const Numbers places =
            unknown.high > unknown.low ? Numbers{middle - quarter, middle + quarter} : Numbers{middle};
        std::vector<Numbers> longer;
        for (const Numbers& start : starts) {
            for (const float place : places) {
                longer.push_back(start);
                longer.back().push_back(place);
            }
        }
        starts = std::move(longer);
    }
    return starts;
}

double meanSquare(const std::vector<Target>& targets, const ControlModel& model, const ControlFit& fit) {
    double sum = 0, weights = 0;
    for (const auto& [inputs, value, weight] : targets) {
        const double off = static_cast<double>(model(inputs, fit)) - static_cast<double>(value);
        sum += off * off * static_cast<double>(weight);
        weights += static_cast<double>(weight);
    }
    return sum / weights;
}

}  // namespace

ControlFit fitControl(const std::vector<Target>& targets, const Unknown& first, const Unknown& second,
                      const Influences& influences, const ControlModel& model,
                      const std::function<double(const ControlFit&)>& penalty) {
    const auto influence = [](bool isUsed) { return isUsed ? Unknown{-1, 1, 0.25f} : Unknown{0, 0, 0}; };
    const std::vector<Unknown> unknowns{first, second, influence(influences.pressure),
                                        influence(influences.altitude), influence(influences.speed)};
    const Numbers best = leastError(unknowns, startsFor(unknowns), [&](const Numbers& numbers) {
        const ControlFit fit = fitOf(numbers);
        return meanSquare(targets, model, fit) + (penalty ? penalty(fit) : 0);
    });
    ControlFit fit = fitOf(best);
    fit.off = static_cast<float>(std::sqrt(meanSquare(targets, model, fit)));
    return fit;
}

}  // namespace dabcanvas
