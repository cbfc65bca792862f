// SPDX-License-Identifier: MIT
// A canvas in a window, painted by the program itself: window [--grab FILE.png]
//
// With --grab the window's picture goes into a file and the program ends; QT_QPA_PLATFORM=offscreen does
// without a display.
#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QPixmap>
#include <cmath>
#include <cstdio>

#include "QDEAGLView/QDDrawView.h"

namespace {

constexpr QSize kSize(640, 400);

// Rows of waves, each in a colour of its own.
void paintWaves(QDDrawView& view) {
    view.clearWithColor(QColor(Qt::white), false);
    view.setRadius(14);
    for (int row = 0; row < 4; ++row) {
        view.setRenderColor(QColor::fromHsv(row * 80, 200, 190));
        const auto at = [row](int i) {
            return QPointF(50 + 18 * i, 80 + 80 * row + 25 * std::sin(0.5 * i + row));
        };
        view.drawingWithBeginPoint(at(0), 0.2f);
        for (int i = 1; i < 30; ++i) {
            view.drawingWithMoveToPoint(at(i), 0.2f + 0.025f * static_cast<float>(i));
        }
        view.drawingWithEndPoint(at(30), 0.1f);
    }
}

bool hasPaint(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).saturation() > 100) {
                return true;
            }
        }
    }
    return false;
}

int grabInto(QMainWindow& window, const QString& file) {
    const QImage picture = window.grab().toImage();
    if (!hasPaint(picture)) {
        std::fprintf(stderr, "window: no paint is to be seen\n");
        return 1;
    }
    if (!picture.save(file)) {
        std::fprintf(stderr, "window: %s cannot be written\n", qPrintable(file));
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const bool grabs = arguments.size() == 3 && arguments[1] == QLatin1String("--grab");
    if (arguments.size() != 1 && !grabs) {
        std::fprintf(stderr, "usage: window [--grab FILE.png]\n");
        return 2;
    }
    auto view = QDDrawView::initWithFrame(QRectF(QPointF(), kSize));
    if (!view) {
        return 1;  // what is missing has been logged
    }
    paintWaves(*view);

    QMainWindow window;
    window.setCentralWidget(view.release());  // the window owns it from here
    window.resize(kSize);
    window.show();
    return grabs ? grabInto(window, arguments[2]) : QApplication::exec();
}
