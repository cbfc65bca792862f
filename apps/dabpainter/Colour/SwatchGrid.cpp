// SPDX-License-Identifier: MIT
#include "Colour/SwatchGrid.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace dabcanvas::dabpainter {

namespace {

constexpr int kSide = 20, kLeastSide = 10;  // points, with the gap

}  // namespace

SwatchGrid::SwatchGrid(const QString& name, int columns, QWidget* parent)
    : QWidget(parent), _columns(columns) {
    setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard to the canvas
    setAccessibleName(name);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SwatchGrid::setColors(std::vector<PaletteColor> colors) {
    _colors = std::move(colors);
    setCurrent(std::min(_current, count() - 1));
    fitLines();
    update();
}

void SwatchGrid::setCurrent(int index) {
    _current = std::clamp(index, 0, std::max(count() - 1, 0));
    setAccessibleDescription(nameOf(_current));
    update();
}

QString SwatchGrid::nameOf(int index) const {
    if (index < 0 || index >= count())
        return {};
    const PaletteColor& color = _colors[std::size_t(index)];
    const QString hex = QColor(color.rgb).name();
    return color.name.isEmpty() ? hex : tr("%1 (%2)").arg(color.name, hex);
}

// ---- Places

int SwatchGrid::side(int width) const {
    return _columns > 0 ? std::clamp(width / _columns, kLeastSide, kSide) : kSide;
}

int SwatchGrid::columns(int width) const {
    return _columns > 0 ? _columns : std::max(1, width / kSide);
}

QRect SwatchGrid::cell(int index) const {
    if (index < 0 || index >= count())
        return {};
    const int across = columns(width()), size = side(width());
    return QRect(index % across * size, index / across * size, size, size);
}

int SwatchGrid::indexAt(QPoint at) const {
    for (int i = 0; i < count(); ++i) {
        if (cell(i).contains(at))
            return i;
    }
    return -1;
}

int SwatchGrid::heightForWidth(int width) const {
    const int lines = std::max(1, (count() + columns(width) - 1) / columns(width));
    return lines * side(width);
}

// In a scroll area nobody asks for the height that goes with a width.
void SwatchGrid::fitLines() {
    if (_columns == 0)
        setMinimumHeight(heightForWidth(width()));
    updateGeometry();
}

void SwatchGrid::resizeEvent(QResizeEvent*) {
    fitLines();
}

QSize SwatchGrid::sizeHint() const {
    return QSize(std::max(_columns, 8) * kSide, heightForWidth(width()));
}

QSize SwatchGrid::minimumSizeHint() const {
    return QSize(_columns > 0 ? _columns * kLeastSide : kSide, kLeastSide);
}

// ---- Events

void SwatchGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int i = 0; i < count(); ++i) {
        const QRect inside = cell(i).adjusted(1, 1, -1, -1);
        painter.fillRect(inside, palette().color(QPalette::Mid));
        painter.fillRect(inside.adjusted(1, 1, -1, -1), QColor(_colors[std::size_t(i)].rgb));
    }
    if (hasFocus() && count() > 0) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(cell(_current).adjusted(1, 1, -1, -1));
    }
}

bool SwatchGrid::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const int index = indexAt(help->pos());
    QToolTip::showText(help->globalPos(), nameOf(index), this, cell(index));
    return true;
}

void SwatchGrid::mousePressEvent(QMouseEvent* event) {
    const int index = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || index < 0)
        return event->ignore();
    setCurrent(index);
    emit chosen(index);
}

void SwatchGrid::keyPressEvent(QKeyEvent* event) {
    const int across = columns(width());
    switch (event->key()) {
        case Qt::Key_Left:
            return setCurrent(_current - 1);
        case Qt::Key_Right:
            return setCurrent(_current + 1);
        case Qt::Key_Up:
            return setCurrent(_current >= across ? _current - across : _current);
        case Qt::Key_Down:
            return setCurrent(_current + across < count() ? _current + across : _current);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (count() > 0)
                emit chosen(_current);
            return;
        case Qt::Key_Backspace:
            if (count() > 0)
                emit removeWanted(_current);
            return;
        default:
            return QWidget::keyPressEvent(event);
    }
}

void SwatchGrid::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int index = byKey ? _current : indexAt(event->pos());
    if (index < 0 || index >= count())
        return;
    setCurrent(index);
    emit menuWanted(index, byKey ? mapToGlobal(cell(index).center()) : event->globalPos());
}

void SwatchGrid::focusInEvent(QFocusEvent*) {
    update();
}

void SwatchGrid::focusOutEvent(QFocusEvent*) {
    update();
}

}  // namespace dabcanvas::dabpainter
