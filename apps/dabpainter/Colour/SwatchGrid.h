// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

#include "Colour/GimpPalette.h"

namespace dabcanvas::dabpainter {

// Colours in lines, to be chosen by a click, or by the arrow keys and Return.
class SwatchGrid : public QWidget {
    Q_OBJECT

public:
    // columns: always so many, as wide as they get; 0: as many as there is room for.
    explicit SwatchGrid(const QString& name, int columns = 0, QWidget* parent = nullptr);

    void setColors(std::vector<PaletteColor> colors);
    const std::vector<PaletteColor>& colors() const { return _colors; }
    void setCurrent(int index);
    int current() const { return _current; }
    // Where it is seen; empty for what is not there.
    QRect cell(int index) const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void chosen(int index);
    void removeWanted(int index);
    void menuWanted(int index, const QPoint& globalPoint);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int count() const { return int(_colors.size()); }
    int columns(int width) const;
    int side(int width) const;
    void fitLines();
    int indexAt(QPoint at) const;
    QString nameOf(int index) const;

    const int _columns;
    std::vector<PaletteColor> _colors;
    int _current = 0;
};

}  // namespace dabcanvas::dabpainter
