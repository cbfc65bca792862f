// SPDX-License-Identifier: MIT
/// \file
/// What became of one of a history's two stacks, so that nobody need tell all of it again. An item is a name, or
/// whatever stands for one.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace dabcanvas {

/// What became of a stack. Of what it held, the farthest from the current step, `dropped`, went, and all but the next
/// `kept`; then these came, the nearest last. So nothing is dropped, kept or added of a stack that is told anew, but
/// `added`.
template <typename Item>
struct StackChange {
    std::size_t dropped = 0, kept = 0;
    std::vector<Item> added;

    std::size_t sizeAfter() const { return kept + added.size(); }

    /// Becomes both, one after the other.
    void then(StackChange next) {
        const std::size_t fromKept = (std::min)(next.dropped, kept);
        dropped += fromKept;
        kept -= fromKept;
        added.erase(added.begin(), added.begin() + static_cast<std::ptrdiff_t>(
                                                       (std::min)(next.dropped - fromKept, added.size())));
        const std::size_t ofAdded = next.kept > kept ? next.kept - kept : 0;
        kept = (std::min)(kept, next.kept);
        added.resize((std::min)(ofAdded, added.size()));
        added.insert(added.end(), std::make_move_iterator(next.added.begin()),
                     std::make_move_iterator(next.added.end()));
    }

    /// On a queue of the items. Calls gone(Item) for each that goes.
    template <typename Queue, typename Gone>
    void applyTo(Queue& stack, const Gone& gone) const {
        for (std::size_t i = 0; i < dropped && !stack.empty(); ++i) {
            gone(stack.front());
            stack.pop_front();
        }
        while (stack.size() > kept) {
            gone(stack.back());
            stack.pop_back();
        }
        stack.insert(stack.end(), added.begin(), added.end());
    }
};

}  // namespace dabcanvas
