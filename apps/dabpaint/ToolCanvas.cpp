// SPDX-License-Identifier: MIT
#include "ToolCanvas.h"

#include "LogCatcher.h"

namespace dabcanvas::dabpaint {

Result<std::unique_ptr<QDDrawCanvas>> makeCanvas(const QSize& size) {
    const LogCatcher log;
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(), QSizeF(size)));
    if (canvas)
        return canvas;
    QString wrong = QStringLiteral(
                        "cannot make a canvas of %1x%2; it needs an OpenGL 3.2 driver, such as Mesa's, "
                        "that takes this size")
                        .arg(size.width())
                        .arg(size.height());
    if (!log.lines().isEmpty())
        wrong += QStringLiteral(" (%1)").arg(log.lines().first());
    return Problem{0, {}, wrong};
}

}  // namespace dabcanvas::dabpaint
