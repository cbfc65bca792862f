// SPDX-License-Identifier: MIT
#include "Recording/RecordingSign.h"

#include <QMenu>
#include <QPainter>

namespace dabcanvas::dabpainter {

namespace {

QIcon redDot() {
    QIcon icon;
    for (const int ratio : {1, 2, 3}) {
        QPixmap dot(QSize(12, 12) * ratio);
        dot.setDevicePixelRatio(ratio);
        dot.fill(Qt::transparent);
        QPainter painter(&dot);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(222, 46, 42));  // which shows on light and on dark
        painter.drawEllipse(QRectF(1, 1, 10, 10));
        icon.addPixmap(dot);
    }
    return icon;
}

}  // namespace

RecordingSign::RecordingSign(QMenu& menu, QWidget* parent) : QToolButton(parent) {
    setIcon(redDot());
    setIconSize(QSize(12, 12));
    setText(tr("Recording"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setToolTip(tr("What is painted is recorded: stop it, or export it"));
    setAccessibleName(tr("A recording runs"));
    setAccessibleDescription(toolTip());
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
    setMenu(&menu);
}

}  // namespace dabcanvas::dabpainter
