// SPDX-License-Identifier: MIT
// Paints one stroke without a display: headless FILE.png
#include <QImage>
#include <cstdio>

#include "Canvas/QDDrawCanvas.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: headless FILE.png\n");
        return 2;
    }
    const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 320, 200));
    if (!canvas) {
        return 1;  // what is missing has been logged
    }
    canvas->clearWithColor(QColor(Qt::white), false);
    const QImage blank = canvas->image();
    canvas->setRadius(16);
    canvas->setRenderColor(QColor(30, 90, 160));
    canvas->drawingWithBeginPoint({40, 150}, 0.3f);
    canvas->drawingWithMoveToPoint({120, 50}, 0.9f);
    canvas->drawingWithMoveToPoint({200, 140}, 0.7f);
    canvas->drawingWithEndPoint({280, 60}, 0.2f);
    const QImage painted = canvas->image();
    if (painted.isNull() || painted == blank) {
        std::fprintf(stderr, "headless: the stroke left no paint\n");
        return 1;
    }
    if (!painted.save(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "headless: %s cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
