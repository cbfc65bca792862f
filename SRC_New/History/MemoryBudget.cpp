// SPDX-License-Identifier: MIT
#include "History/MemoryBudget.h"

#include <algorithm>

#if defined(_WIN32)
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace dabcanvas {
namespace {

constexpr std::int64_t kMost = std::int64_t{1} << 30;
constexpr int kShare = 8;

// 0 where the system does not tell.
std::int64_t memoryOfMachine() {
#if defined(_WIN32)
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) ? static_cast<std::int64_t>(status.ullTotalPhys) : 0;
#else
    const long pages = sysconf(_SC_PHYS_PAGES), size = sysconf(_SC_PAGESIZE);
    return pages > 0 && size > 0 ? std::int64_t{pages} * size : 0;
#endif
}

}  // namespace

std::int64_t defaultMemoryBudget() {
    const std::int64_t memory = memoryOfMachine();
    return memory > 0 ? (std::min)(memory / kShare, kMost) : kMost;
}

}  // namespace dabcanvas
