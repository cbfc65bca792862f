// SPDX-License-Identifier: MIT
#include "Tools/ToolIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>

namespace dabcanvas::dabpainter {

namespace {

constexpr double kSide = 24, kPenWidth = 1.6;

// In a square of 24 x 24: what is drawn with a pen, and what is filled.
struct Sign {
    QPainterPath lines, areas;
};

void line(QPainterPath& path, std::initializer_list<QPointF> way, bool closed = false) {
    path.addPolygon(QPolygonF(way));
    if (closed)
        path.closeSubpath();
}

Sign brush() {
    Sign sign;
    line(sign.lines, {{20.6, 3.4}, {10, 11.6}, {12.4, 14}}, true);
    sign.areas.moveTo(8.6, 12.6);
    sign.areas.cubicTo(5.2, 13, 6.6, 17.2, 3.2, 19.4);
    sign.areas.cubicTo(7.4, 21.4, 12.2, 19.6, 11.4, 15.4);
    sign.areas.closeSubpath();
    return sign;
}

Sign eraser() {
    Sign sign;
    line(sign.lines, {{14, 4}, {20, 10}, {11.6, 18.4}, {8, 18.4}, {4, 14.4}}, true);
    line(sign.lines, {{9, 20.8}, {20, 20.8}});
    line(sign.areas, {{14, 4}, {20, 10}, {14.6, 15.4}, {8.6, 9.4}}, true);
    return sign;
}

// A finger that leaves a smear.
Sign smudge() {
    Sign sign;
    sign.lines.moveTo(15.6, 3.2);
    sign.lines.lineTo(7.4, 10.6);
    sign.lines.cubicTo(4.4, 13.4, 7.8, 17, 10.8, 14.4);
    sign.lines.lineTo(20.8, 9);
    line(sign.areas, {{6.2, 13.6}, {9, 11.2}, {10.6, 13}, {7.6, 15}}, true);
    sign.lines.moveTo(3.4, 20);
    sign.lines.cubicTo(6.6, 17.6, 8.4, 22.2, 11.6, 20);
    sign.lines.cubicTo(14.6, 17.8, 16.6, 22, 20.2, 19.6);
    return sign;
}

// A bucket that tips over, and a drop.
Sign fill() {
    Sign sign;
    line(sign.lines, {{10.4, 4.6}, {17.8, 12}, {10.8, 19}, {3.4, 11.6}}, true);
    line(sign.lines, {{10.4, 4.6}, {8, 2.2}});
    line(sign.areas, {{3.4, 11.6}, {17.8, 12}, {10.8, 19}}, true);
    sign.areas.moveTo(20.4, 14.4);
    sign.areas.cubicTo(23.4, 18.4, 22.4, 20.6, 20.4, 20.6);
    sign.areas.cubicTo(18.4, 20.6, 17.4, 18.4, 20.4, 14.4);
    return sign;
}

Sign shapes() {
    Sign sign;
    sign.lines.addEllipse(QRectF(10, 3.4, 10.6, 10.6));
    line(sign.lines, {{3.6, 20.6}, {9.2, 10.4}, {14.8, 20.6}}, true);
    return sign;
}

Sign pick() {
    Sign sign;
    line(sign.lines, {{3.6, 20.4}, {4.6, 16.4}, {13, 8}, {16, 11}, {7.6, 19.4}}, true);
    line(sign.lines, {{11, 6}, {18, 13}});
    sign.areas.addPolygon(QPolygonF({{14, 7}, {17.4, 3.6}, {20.4, 6.6}, {17, 10}}));
    sign.areas.closeSubpath();
    return sign;
}

Sign undo() {
    Sign sign;
    line(sign.lines, {{8.8, 4.4}, {4.2, 9}, {8.8, 13.6}});
    sign.lines.moveTo(4.2, 9);
    sign.lines.lineTo(14.4, 9);
    sign.lines.arcTo(QRectF(9.4, 9, 10.4, 10.4), 90, -180);
    sign.lines.lineTo(9.6, 19.4);
    return sign;
}

Sign redo() {
    Sign sign = undo();
    sign.lines = QTransform(-1, 0, 0, 1, kSide, 0).map(sign.lines);
    return sign;
}

Sign symmetry() {
    Sign sign;
    for (const double y : {2.6, 7.8, 13.0, 18.2})
        line(sign.lines, {{12, y}, {12, y + 2.6}});
    line(sign.lines, {{15.4, 6}, {21, 18}, {15.4, 18}}, true);
    line(sign.lines, {{8.6, 6}, {3, 18}, {8.6, 18}}, true);
    line(sign.areas, {{8.6, 6}, {3, 18}, {8.6, 18}}, true);
    return sign;
}

Sign select() {
    Sign sign;
    for (const double at : {4.0, 10.2, 16.4}) {
        line(sign.lines, {{at, 4}, {at + 3.6, 4}});
        line(sign.lines, {{at, 20}, {at + 3.6, 20}});
        line(sign.lines, {{4, at}, {4, at + 3.6}});
        line(sign.lines, {{20, at}, {20, at + 3.6}});
    }
    return sign;
}

Sign lasso() {
    Sign sign;
    sign.lines.addEllipse(QRectF(3.4, 4, 17.2, 10.4));
    sign.lines.moveTo(7.6, 13.8);
    sign.lines.cubicTo(4.6, 16.4, 9.8, 18.2, 7, 21);
    return sign;
}

Sign signOf(ToolSign sign) {
    switch (sign) {
        case ToolSign::brush:
            return brush();
        case ToolSign::eraser:
            return eraser();
        case ToolSign::smudge:
            return smudge();
        case ToolSign::fill:
            return fill();
        case ToolSign::shapes:
            return shapes();
        case ToolSign::pick:
            return pick();
        case ToolSign::undo:
            return undo();
        case ToolSign::redo:
            return redo();
        case ToolSign::symmetry:
            return symmetry();
        case ToolSign::select:
            return select();
        case ToolSign::lasso:
            return lasso();
    }
    return {};
}

class SignEngine : public QIconEngine {
public:
    explicit SignEngine(ToolSign sign) : _sign(sign) {}
    QIconEngine* clone() const override { return new SignEngine(_sign); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        const QColor color = palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Normal,
                                           QPalette::ButtonText);
        const double side = std::min(rect.width(), rect.height());
        const Sign sign = signOf(_sign);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
        painter->scale(side / kSide, side / kSide);
        painter->fillPath(sign.areas, color);
        painter->strokePath(sign.lines, QPen(color, kPenWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

private:
    ToolSign _sign;
};

}  // namespace

QIcon toolIcon(ToolSign sign) {
    return QIcon(new SignEngine(sign));
}

}  // namespace dabcanvas::dabpainter
