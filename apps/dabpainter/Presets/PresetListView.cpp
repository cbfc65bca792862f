// SPDX-License-Identifier: MIT
#include "Presets/PresetListView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "Presets/PresetList.h"

namespace dabcanvas::dabpainter {

PresetListView::PresetListView(QWidget* parent) : QListView(parent) {
    setObjectName(QStringLiteral("presets"));
    setAccessibleName(tr("Brushes"));
    setItemDelegate(new PresetDelegate(this));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setDragDropMode(QAbstractItemView::DragOnly);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    // A click leaves the keyboard to the canvas.
    setFocusPolicy(Qt::TabFocus);
    setMinimumHeight(72);
}

bool PresetListView::event(QEvent* event) {
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    return (isKey && isForPreset(*static_cast<QKeyEvent*>(event))) || QListView::event(event);
}

bool PresetListView::isForPreset(QKeyEvent& event) {
    const int pressed = event.key();
    if (pressed != Qt::Key_Delete && pressed != Qt::Key_Return && pressed != Qt::Key_Enter &&
        pressed != Qt::Key_Asterisk)
        return false;
    event.accept();
    const QModelIndex current = currentIndex();
    if (event.type() != QEvent::KeyPress || !current.isValid())
        return true;
    if (pressed == Qt::Key_Asterisk)
        emit starPressed(current);
    else
        pressed == Qt::Key_Delete ? emit removedByKey(current) : emit chosenByKey(current);
    return true;
}

bool PresetListView::viewportEvent(QEvent* event) {
    return isForStar(*event) || QListView::viewportEvent(event);
}

bool PresetListView::isForStar(const QEvent& event) {
    const bool isPress =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (event.type() == QEvent::MouseButtonRelease)
        return std::exchange(_starPressed, false);
    if (!isPress)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const QPoint at = mouse.position().toPoint();
    const QModelIndex index = indexAt(at);
    _starPressed = mouse.button() == Qt::LeftButton && index.isValid() &&
                   !index.data(PresetListModel::plainRole).toBool() &&
                   PresetDelegate::starRect(visualRect(index)).contains(at);
    if (_starPressed)
        emit starPressed(index);
    return _starPressed;
}

}  // namespace dabcanvas::dabpainter
