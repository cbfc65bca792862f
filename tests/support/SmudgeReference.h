// SPDX-License-Identifier: MIT
// What smudging is, slowly and in double precision: a layer of half the picture's resolution in which dabs move colour about,
// and what of it comes onto the picture. For pictures of even sides.
#pragma once

#include <span>

#include "Dabs/SmudgeDabs.h"
#include "support/DabReference.h"

namespace dabcanvas::reference {

class Smudging {
public:
    // Of a premultiplied picture, rows from the top, 0..1.
    Smudging(const Size& size, std::vector<Colour> picture)
        : _size(size),
          _half{size.width / 2, size.height / 2},
          _picture(std::move(picture)),
          _exchanged(_picture.size()) {
        for (int y = 0; y < _half.height; ++y) {
            for (int x = 0; x < _half.width; ++x) {
                _layer.push_back(between(_picture, _size, 2 * x + 1, 2 * y + 1));
            }
        }
        _before = _layer;
    }

    void smudge(const SmudgeDab& smudge, double load, const TipImage& tip) {
        Dab dab = smudge.dab;
        dab.x /= 2;
        dab.y /= 2;
        dab.halfSize /= 2;
        takeUp(smudge.bristles, dab);
        const double pickUp = smudge.mix * (1 - std::pow(1 - smudge.moist, 3)), own = load * (1 - smudge.mix);
        const std::vector<Colour> old = _layer;
        forEachCovered(dab, _half, tip, [&](std::size_t i, int x, int y, double coverage) {
            const double stretch = smudge.pickUpHalf / smudge.dab.halfSize;
            const Colour picked = between(old, _half, smudge.pickUp.x / 2 + (x + 0.5 - dab.x) * stretch,
                                          smudge.pickUp.y / 2 + (y + 0.5 - dab.y) * stretch);
            const Colour held = heldAt(smudge.bristles, dab, x + 0.5 - dab.x, y + 0.5 - dab.y);
            for (std::size_t k = 0; k < 4; ++k) {
                const double taken = picked[k] + (held[k] - picked[k]) * smudge.bristles.part;
                _layer[i][k] +=
                    coverage * (own * (straightColour(dab)[k] - old[i][k]) + pickUp * (taken - old[i][k]));
            }
        });
        forEachCovered(smudge.dab, _size, tip, [&](std::size_t i, int, int, double coverage) {
            _exchanged[i][0] += coverage * smudge.exchange * (1 - _exchanged[i][0]);
        });
    }

    Colour at(int x, int y) const {
        const std::size_t i =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(_size.width) + static_cast<std::size_t>(x);
        const double share = _exchanged[i][0];
        const Colour now = between(_layer, _half, (x + 0.5) / 2, (y + 0.5) / 2);
        const Colour then = between(_before, _half, (x + 0.5) / 2, (y + 0.5) / 2);
        Colour brought;
        for (std::size_t k = 0; k < 4; ++k) {
            brought[k] = std::max(now[k] - then[k] * (1 - share), 0.0);
        }
        // At hard rims the coarser layer does not agree with what was exchanged; what is too much is left out.
        const double most = brought[3] > share ? share / brought[3] : 1, alpha = brought[3] * most;
        for (std::size_t k = 0; k < 4; ++k) {
            brought[k] = _picture[i][k] * (1 - share) + std::min(brought[k] * most, alpha);
        }
        return share > 0 ? brought : _picture[i];
    }

private:
    static Colour between(const std::vector<Colour>& pixels, const Size& size, double x, double y) {
        const auto cell = [](double place, int most) {
            return std::clamp(static_cast<int>(std::floor(place - 0.5)), 0, most - 1);
        };
        const auto pixel = [&](int right, int down) {
            const int column = std::min(cell(x, size.width) + (x > 0.5 ? right : 0), size.width - 1);
            const int row = std::min(cell(y, size.height) + (y > 0.5 ? down : 0), size.height - 1);
            return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(size.width) +
                          static_cast<std::size_t>(column)];
        };
        Colour sum{};
        for (std::size_t k = 0; k < 4; ++k) {
            const double right = fraction(x - 0.5), down = fraction(y - 0.5);
            sum[k] = (pixel(0, 0)[k] * (1 - right) + pixel(1, 0)[k] * right) * (1 - down) +
                     (pixel(0, 1)[k] * (1 - right) + pixel(1, 1)[k] * right) * down;
        }
        return sum;
    }

    template <typename Each>
    static void forEachCovered(const Dab& dab, const Size& size, const TipImage& tip, Each&& each) {
        const Box box(dab);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const Place place = box.at(x, y);
                if (place.coverage > 0) {
                    each(static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                             static_cast<std::size_t>(x),
                         x, y,
                         place.coverage * dab.flow *
                             sampledAt(tip.alpha, box.detail(tip.size()), place.x, place.y, false)[0]);
                }
            }
        }
    }

    void takeUp(const BristleDab& bristles, const Dab& dab) {
        if (!(bristles.part > 0)) {
            return;
        }
        const BristleSpan span(dab, bristles);
        _held.resize(static_cast<std::size_t>(bristles.count));
        for (int i = 0; i < bristles.count; ++i) {
            const LPPosition place = bristlePlace(bristles, span, bristleAcross(i, bristles.count));
            const Colour below = between(_before, _half, dab.x + place.x, dab.y + place.y);
            Colour& held = _held[static_cast<std::size_t>(i)];
            for (std::size_t k = 0; k < 4; ++k) {
                const double load = bristleLoad(i, bristles.load);
                held[k] = bristles.isFirst ? below[k] + load * (straightColour(dab)[k] - below[k])
                                           : below[k] + std::exp(-bristles.uptake * bristleThirst(i)) *
                                                            (held[k] - below[k]);
            }
        }
    }

    Colour heldAt(const BristleDab& bristles, const Dab& dab, double x, double y) const {
        if (!(bristles.part > 0)) {
            return {};
        }
        const double across =
            (x * bristles.acrossX + y * bristles.acrossY) / BristleSpan(dab, bristles).across;
        return between(_held, {bristles.count, 1}, (across + 1) / 2 * bristles.count, 0.5);
    }

    Size _size, _half;
    std::vector<Colour> _picture, _layer, _before, _exchanged, _held;
};

}  // namespace dabcanvas::reference
