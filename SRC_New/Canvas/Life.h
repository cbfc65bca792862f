// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace dabcanvas {

/// A member of an object that its host may destroy in any callback; Alive tells after one whether it is still there.
/// Where it is not, no member may be touched.
class Life {
public:
    Life() : _token(std::make_shared<char>()) {}
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

private:
    friend class Alive;
    std::shared_ptr<void> _token;
};

/// Taken before a callback of a host; false after it once the object has gone.
class Alive {
public:
    explicit Alive(const Life& life) : _token(life._token) {}
    explicit operator bool() const { return !_token.expired(); }

private:
    std::weak_ptr<void> _token;
};

}  // namespace dabcanvas
