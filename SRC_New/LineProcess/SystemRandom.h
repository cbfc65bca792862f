// SPDX-License-Identifier: MIT
// The C library's generators, rand() and drand48(), of one range on every system: Windows has no drand48(), and its
// rand() gives 15 bits. Internal; hosts that seed use srand() and, where there is one, srand48().
#pragma once

#include <cstdint>

namespace dabcanvas {

// rand() in 0..2^31 - 1.
std::int32_t systemRandom();
// drand48() in [0, 1), or where there is none the same sequence, kept for the process.
double systemUniform();
// srand48(), likewise.
void seedSystemUniform(std::uint32_t seed);

}  // namespace dabcanvas
