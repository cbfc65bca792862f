// SPDX-License-Identifier: MIT
#include "Processor/TileMemory.h"

#include <algorithm>
#include <array>
#include <mutex>

namespace dabcanvas {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kMost = 0;  // or what is used after it was let go of would go unseen
#else
constexpr std::size_t kMost = TileMemory::kMostKept;
#endif

// A block that waits holds the next one in its own memory.
struct Waiting {
    Waiting* next;
};

// Those of one size.
struct Shelf {
    std::size_t bytes = 0;
    Waiting* first = nullptr;
};

// Never destroyed: the last tile may go when the process ends. Not every system's mutex is ready without a constructor.
std::mutex& lock() {
    static auto* const made = new std::mutex;
    return *made;
}
constinit std::array<Shelf, 4> shelves{};
constinit std::size_t kept = 0;

// The one of this size, or one that is free for it; null where there is none.
Shelf* shelfOf(std::size_t bytes) {
    const auto find = [](auto&& is) {
        const auto found = std::find_if(shelves.begin(), shelves.end(), is);
        return found != shelves.end() ? &*found : nullptr;
    };
    Shelf* const own = find([bytes](const Shelf& shelf) { return shelf.bytes == bytes; });
    return own != nullptr ? own : find([](const Shelf& shelf) { return shelf.first == nullptr; });
}

}  // namespace

void* TileMemory::take(std::size_t bytes, std::align_val_t alignment) {
    {
        const std::lock_guard guard(lock());
        Shelf* const shelf = shelfOf(bytes);
        if (shelf != nullptr && shelf->first != nullptr) {
            Waiting* const block = shelf->first;
            shelf->first = block->next;
            kept -= bytes;
            return block;
        }
    }
    return ::operator new(bytes, alignment);
}

void TileMemory::leave(void* block, std::size_t bytes, std::align_val_t alignment) noexcept {
    {
        const std::lock_guard guard(lock());
        Shelf* const shelf = kept + bytes <= kMost ? shelfOf(bytes) : nullptr;
        if (shelf != nullptr) {
            *shelf = {bytes, ::new (block) Waiting{shelf->first}};
            kept += bytes;
            return;
        }
    }
    ::operator delete(block, alignment);
}

}  // namespace dabcanvas
