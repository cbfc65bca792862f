// SPDX-License-Identifier: MIT
// Runs the canvas tests under an application object, which widgets need.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // no display is needed, and none may be there
    }
    const QTemporaryDir caches;  // histories are not to fill the user's
    qputenv("XDG_CACHE_HOME", QFile::encodeName(caches.path()));
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
