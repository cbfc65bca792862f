// SPDX-License-Identifier: MIT
#include "support/Marks.h"

namespace {

constexpr int kNothing = 2;  // alpha of what is left out

// Takes the mark that this pixel belongs to out of the picture.
Mark takeMark(QImage& rest, QPoint start) {
    Mark mark;
    double momentX = 0, momentY = 0;
    std::vector<QPoint> open{start};
    int densest = 0;
    while (!open.empty()) {
        const QPoint at = open.back();
        open.pop_back();
        const QColor color = rest.valid(at) ? rest.pixelColor(at) : QColor(Qt::transparent);
        if (color.alpha() <= kNothing) {
            continue;
        }
        rest.setPixelColor(at, Qt::transparent);
        if (color.alpha() > densest) {
            densest = color.alpha();
            mark.color = color;
        }
        mark.box |= QRect(at, QSize(1, 1));
        mark.weight += color.alphaF();
        momentX += color.alphaF() * (at.x() + 0.5);
        momentY += color.alphaF() * (at.y() + 0.5);
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
            open.push_back(at + step);
        }
    }
    mark.leanX = (momentX / mark.weight - mark.x()) / mark.box.width();
    mark.leanY = (momentY / mark.weight - mark.y()) / mark.box.height();
    return mark;
}

}  // namespace

Picture::Picture(const QImage& painted) : image(painted) {
    QImage rest = painted;
    for (int x = 0; x < rest.width(); ++x) {
        for (int y = 0; y < rest.height(); ++y) {
            if (rest.pixelColor(x, y).alpha() > kNothing) {
                marks.push_back(takeMark(rest, {x, y}));
            }
        }
    }
}

std::ostream& operator<<(std::ostream& out, const Picture& picture) {
    out << "\n" << picture.marks.size() << " marks; x, y, width, height, lean, colour:";
    for (const Mark& m : picture.marks) {
        out << "\n  " << m.x() << " " << m.y() << "  " << m.box.width() << " " << m.box.height() << "  "
            << m.leanX << " " << m.leanY << "  " << m.color.name(QColor::HexArgb).toStdString();
    }
    return out;
}
