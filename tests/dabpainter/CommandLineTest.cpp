// SPDX-License-Identifier: MIT
#include "Window/CommandLine.h"

#include <gtest/gtest.h>

namespace dabcanvas::dabpainter {

namespace {

TEST(PainterCommandLineTest, WrongOnesAreRefused) {
    for (const char* words : {"--size", "--size|10", "--size|0x5", "--size=5x-5", "--size|99999x2",
                              "--size|16384x16384", "--size=5x5 ", "-x", "a.png|b.png", "--help=1", "",
                              "a.png|--size|5x5", "--size=+5x5", "--size=5X5"}) {
        const QString fault = readCommandLine(QString(words).split('|')).fault;
        EXPECT_FALSE(fault.isEmpty()) << words;
        EXPECT_FALSE(fault.contains('\n'));
    }
}

TEST(PainterCommandLineTest, RightOnesAreRead) {
    EXPECT_EQ(readCommandLine({"--size", "320x16384"}).size, QSize(320, 16384));
    EXPECT_EQ(readCommandLine({"--", "-odd.png"}).image, QString("-odd.png"));
    EXPECT_TRUE(readCommandLine({"a.png", "--help"}).help);
    EXPECT_TRUE(readCommandLine({}).fault.isEmpty());
}

}  // namespace

}  // namespace dabcanvas::dabpainter
