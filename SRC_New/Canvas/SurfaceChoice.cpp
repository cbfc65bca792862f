// SPDX-License-Identifier: MIT
#include "Canvas/SurfaceChoice.h"

#include <QDir>
#include <QString>
#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "Canvas/CanvasLog.h"
#include "GLSurface/MakeGLSurface.h"
#include "Processor/MakeProcessorSurface.h"
#include "Surface/SurfaceLog.h"

namespace dabcanvas {
namespace {

void toCanvasLog(const char* line) {
    qCWarning(lcDabcanvas, "%s", line);
}

// Where the system lists its devices, a driver need not be started to learn that it would draw on the processor.
bool mayHaveGpu() {
#ifdef Q_OS_LINUX
    return !QDir("/dev/dri").entryList({"renderD*"}, QDir::System).isEmpty() ||
           !QDir("/dev").entryList({"nvidia[0-9]*", "dxg", "mali*", "kgsl*"}, QDir::System).isEmpty();
#else
    return true;
#endif
}

bool drawsOnProcessor(const std::string& driver) {
    const auto names = {"llvmpipe",    "softpipe",    "SwiftShader", "Software Rasterizer",
                        "GDI Generic", "Basic Render"};
    return std::any_of(names.begin(), names.end(),
                       [&](const char* name) { return driver.find(name) != std::string::npos; });
}

bool hasGpu() {
    if (!mayHaveGpu()) {
        return false;
    }
    const auto surface = makeGLSurface(QSizeF(1, 1));
    if (!surface) {
        return false;
    }
    const SurfaceScope scope(*surface);
    return scope && !drawsOnProcessor(surface->name());
}

// Asked once a process.
SurfaceKind automaticKind() {
    const QByteArray wanted = qgetenv("DABCANVAS_SURFACE");
    const std::optional<SurfaceKind> kind =
        wanted.isEmpty() ? SurfaceKind::automatic : surfaceKindOf(wanted.constData());
    if (!kind) {
        qCWarning(lcDabcanvas, "DABCANVAS_SURFACE is auto, gpu or processor, not \"%s\"", wanted.constData());
    }
    if (kind.value_or(SurfaceKind::automatic) != SurfaceKind::automatic) {
        return *kind;
    }
    return hasGpu() ? SurfaceKind::gpu : SurfaceKind::processor;
}

}  // namespace

std::unique_ptr<PaintSurface> makeSurface(const QSizeF& size, const SurfaceOptions& options) {
    SurfaceKind kind = options.kind;
    if (kind == SurfaceKind::automatic) {
        static const SurfaceKind automatic = automaticKind();
        kind = automatic;
    }
    if (kind == SurfaceKind::gpu) {
        return makeGLSurface(size, options);
    }
    setSurfaceLog(&toCanvasLog);
    const auto side = [](double length) {
        return std::isnan(length) ? 0 : static_cast<int>(std::clamp(length, -1.0, 1e6));
    };
    return makeProcessorSurface({side(size.width()), side(size.height())}, options);
}

}  // namespace dabcanvas
