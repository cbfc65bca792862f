// SPDX-License-Identifier: MIT
// Memory of tiles that were let go of, kept for the next ones: every stroke takes and leaves some, and memory that comes
// fresh from the system costs a fault a page.
//
// Owns     up to kMostKept bytes for the whole process.
// Thread   any number at a time.
// Errors   take() throws std::bad_alloc.
#pragma once

#include <cstddef>
#include <new>

namespace dabcanvas {

class TileMemory {
public:
    static constexpr std::size_t kMostKept = std::size_t{8} << 20;

    static void* take(std::size_t bytes, std::align_val_t alignment);
    static void leave(void* block, std::size_t bytes, std::align_val_t alignment) noexcept;
};

// For std::allocate_shared().
template <typename Kind>
struct TileAllocator {
    using value_type = Kind;

    TileAllocator() = default;
    template <typename Other>
    explicit TileAllocator(const TileAllocator<Other>&) {}

    Kind* allocate(std::size_t count) {
        return static_cast<Kind*>(TileMemory::take(count * sizeof(Kind), std::align_val_t{alignof(Kind)}));
    }
    void deallocate(Kind* block, std::size_t count) noexcept {
        TileMemory::leave(block, count * sizeof(Kind), std::align_val_t{alignof(Kind)});
    }
    friend bool operator==(const TileAllocator&, const TileAllocator&) { return true; }
};

}  // namespace dabcanvas
