#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the two fixed tables that the jitter functions read in debug mode.

    tools/make_debug_tables.py > SRC_New/LineProcess/TingleTables.cpp

The output is committed and must stay as it is: recorded strokes are replayed with it. A generator of our
own, rather than Python's, keeps it the same under every version.
"""

COUNT = 1024
FLOAT_START = [3965, 8405, 3533, 4466]  # ten-thousandths
INT_START = [423, 753, 217, 42]
FLOAT_LOW, FLOAT_HIGH = 11, 9995
INT_LOW, INT_HIGH = 2, 1023

HEAD = """// SPDX-License-Identifier: MIT
// Made by tools/make_debug_tables.py; do not edit.
#include "LineProcess/TingleTables.h"

// clang-format off
"""


def uniform_integers(seed):
    """Yields integers over 32 bits: the upper half of a 64-bit linear congruential generator."""
    state = seed
    while True:
        state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
        yield state >> 32


def table(start, low, high, seed):
    source = uniform_integers(seed)
    span = high - low + 1
    return start + [low + (next(source) * span >> 32) for _ in range(COUNT - len(start))]


def rows(values, per_row):
    lines = [values[i:i + per_row] for i in range(0, len(values), per_row)]
    return "".join("    " + ", ".join(line) + ",\n" for line in lines)


def main():
    floats = table(FLOAT_START, FLOAT_LOW, FLOAT_HIGH, 0x5EED0001)
    ints = table(INT_START, INT_LOW, INT_HIGH, 0x5EED0002)
    print(HEAD, end="")
    print("const float FloatValue[kTingleTableSize] = {")
    print(rows([f"0.{value:04d}f" for value in floats], 12), end="")
    print("};\n")
    print("const std::int32_t IntValue[kTingleTableSize] = {")
    print(rows([str(value) for value in ints], 16), end="")
    print("};")
    print("// clang-format on")


if __name__ == "__main__":
    main()
