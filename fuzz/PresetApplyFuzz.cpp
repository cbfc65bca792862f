// SPDX-License-Identifier: MIT
// Any bytes, read as a brush file and made the brush of a canvas that then paints. What is captured from it must make
// the same brush again.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include <QGuiApplication>

#include "Canvas/QDDrawCanvas.h"
#include "Preset/QDBrushManager.h"

namespace {

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "PresetApplyFuzz: %s\n", what);
    std::abort();
}

QDDrawCanvas& canvas() {
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static QGuiApplication application(argc, argv);
    // Never destroyed: OpenGL may be gone when static objects go.
    static QDDrawCanvas* const made = QDDrawCanvas::initWithFrame(QRectF(0, 0, 24, 16)).release();
    if (made == nullptr) {
        fail("no canvas can be made");
    }
    return *made;
}

std::optional<BrushParams> applied(const BrushParams& params, int version) {
    if (!QDBrushManager::resetDrawView(&canvas(), params, version)) {
        fail("records are refused");
    }
    return QDBrushManager::paramsOfDrawView(&canvas());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;  // which fmemopen() does not open
    }
    const Stream stream(::fmemopen(const_cast<std::uint8_t*>(data), size, "rb"), XBFClose);
    int version = 0;
    const auto brushes = QDBrushManager::brushesWithXBFStream(stream.get(), &version);
    if (!brushes || brushes->isEmpty()) {
        return 0;
    }
    const auto captured = applied(BrushRecords::brushParams(brushes->last()), version);
    canvas().drawingWithBeginPoint({8, 8}, 0.4f);
    canvas().drawingWithMoveToPoint({10, 8}, 0.8f);
    canvas().drawingWithEndPoint({11, 9}, 0.2f);
    if (canvas().image().isNull()) {
        fail("the canvas cannot be read");
    }
    if (applied(*captured, QDBrushManager::kVersion) != captured) {
        fail("a captured brush is another one when it is applied");
    }
    return 0;
}
