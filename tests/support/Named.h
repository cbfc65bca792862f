// SPDX-License-Identifier: MIT
// The rows of a TEST_P under names of their own: derive the row from Named, hand byName to INSTANTIATE.
#pragma once

#include <ostream>
#include <string>

struct Named {
    const char* name;
    friend std::ostream& operator<<(std::ostream& out, const Named& row) { return out << row.name; }
};

inline constexpr auto byName = [](const auto& row) { return std::string(row.param.name); };
