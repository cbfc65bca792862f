// SPDX-License-Identifier: MIT
#include "ToolCanvas.h"

#include "LogCatcher.h"

namespace dabcanvas::dabpaint {

Result<std::unique_ptr<QDDrawCanvas>> makeCanvas(const QSize& size, const SurfaceOptions& surface) {
    const LogCatcher log;
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(), QSizeF(size)), surface);
    if (canvas)
        return canvas;
    QString wrong = QStringLiteral("cannot make a canvas of %1x%2").arg(size.width()).arg(size.height());
    if (surface.kind == SurfaceKind::gpu)
        wrong += QStringLiteral("; it needs an OpenGL 3.2 driver that takes this size");
    if (!log.lines().isEmpty())
        wrong += QStringLiteral(" (%1)").arg(log.lines().first());
    return Problem{0, {}, wrong};
}

}  // namespace dabcanvas::dabpaint
