// SPDX-License-Identifier: MIT
#include "LineProcess/SystemRandom.h"

#include <cstdlib>

#ifdef _WIN32
#include <atomic>
#endif

namespace dabcanvas {

#ifdef _WIN32

namespace {

// What drand48() is made of, by POSIX: 48 bits, stepped by a multiplication and an addition.
constexpr std::uint64_t kBits = (std::uint64_t{1} << 48) - 1;
constexpr std::uint64_t kFactor = 0x5DEECE66D, kSummand = 0xB, kLowOfSeed = 0x330E;
std::atomic<std::uint64_t> state = kLowOfSeed;

std::uint64_t stepped(std::uint64_t from) {
    return (from * kFactor + kSummand) & kBits;
}

}  // namespace

std::int32_t systemRandom() {
    static_assert(RAND_MAX == 0x7fff);
    const int high = std::rand(), low = std::rand();
    return high << 16 | low << 1 | (std::rand() & 1);
}
double systemUniform() {
    std::uint64_t before = state.load();
    while (!state.compare_exchange_weak(before, stepped(before))) {
    }
    return static_cast<double>(stepped(before)) * 0x1p-48;
}
void seedSystemUniform(std::uint32_t seed) {
    state = std::uint64_t{seed} << 16 | kLowOfSeed;
}

#else

static_assert(RAND_MAX == 0x7fffffff);

std::int32_t systemRandom() {
    return std::rand();
}
double systemUniform() {
    return drand48();
}
void seedSystemUniform(std::uint32_t seed) {
    srand48(static_cast<long>(seed));
}

#endif

}  // namespace dabcanvas
