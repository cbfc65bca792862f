// SPDX-License-Identifier: MIT
#include "Window/MemoryWatch.h"

#include <gtest/gtest.h>

using dabcanvas::dabpainter::MemoryWatch;

TEST(MemoryWatchTest, MemoryIsShortWhereTheSystemSaysSo) {
    const struct {
        const char* meminfo;
        bool isShort;
    } rows[] = {
        {"MemTotal:       16000000 kB\nMemFree: 1 kB\nMemAvailable:    1000001 kB\n", false},
        {"MemTotal:       16000000 kB\nMemFree: 9000000 kB\nMemAvailable:    999999 kB\n", true},
        {"MemTotal:       16000000 kB\n", false},
        {"MemAvailable:    1 kB\n", false},
        {"", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(MemoryWatch::isShort(row.meminfo), row.isShort) << row.meminfo;
    }
}
