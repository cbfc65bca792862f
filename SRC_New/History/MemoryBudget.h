// SPDX-License-Identifier: MIT
// How much a history takes where nobody says.
#pragma once

#include <cstdint>

namespace dabcanvas {

// An eighth of the machine's memory, at most 1 GiB; bytes.
std::int64_t defaultMemoryBudget();
inline constexpr std::int64_t kDefaultDiskBudget = std::int64_t{4} << 30;

}  // namespace dabcanvas
