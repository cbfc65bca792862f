// SPDX-License-Identifier: MIT
// Runs the canvas tests under an application object, which widgets need.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#ifdef __SANITIZE_ADDRESS__
#include <dlfcn.h>
#include <link.h>

#include <string_view>
#endif

namespace {

// What Mesa's driver keeps for good looks lost once an X display's end has unloaded it, and can be told from nothing else.
void keepDriversLoaded() {
#ifdef __SANITIZE_ADDRESS__
    const auto keep = [](dl_phdr_info* module, std::size_t, void*) {
        if (std::string_view(module->dlpi_name).ends_with("_dri.so")) {
            dlopen(module->dlpi_name, RTLD_NOW | RTLD_NODELETE);
        }
        return 0;
    };
    dl_iterate_phdr(keep, nullptr);
#endif
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // no display is needed, and none may be there
    }
    const QTemporaryDir caches;  // histories are not to fill the user's
    qputenv("XDG_CACHE_HOME", QFile::encodeName(caches.path()));
    const QApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    keepDriversLoaded();
    return result;
}
