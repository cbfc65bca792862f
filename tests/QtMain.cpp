// SPDX-License-Identifier: MIT
// Runs the canvas tests under an application object, which widgets need.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // no display is needed, and none may be there
    }
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
