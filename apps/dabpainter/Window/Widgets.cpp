// SPDX-License-Identifier: MIT
#include "Window/Widgets.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace dabcanvas::dabpainter {

namespace {

constexpr int kSliderSteps = 1000;
constexpr int kThumbnail = 40, kThumbnailGap = 4;

// A point and a comma are both the decimal sign, whatever the locale has: these numbers have no groups of digits, and a
// point that counted as one would make 125 of 12.5.
class DecimalBox : public QDoubleSpinBox {
public:
    using QDoubleSpinBox::QDoubleSpinBox;
    QValidator::State validate(QString& text, int& position) const override {
        text = withOwnSign(text);
        return QDoubleSpinBox::validate(text, position);
    }
    double valueFromText(const QString& text) const override {
        return QDoubleSpinBox::valueFromText(withOwnSign(text));
    }

private:
    QString withOwnSign(QString text) const {
        for (const QChar sign : QStringLiteral(".,"))
            text.replace(sign, locale().decimalPoint());
        return text;
    }
};

class WheelGuard : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* field = qobject_cast<QWidget*>(watched);
        if (event->type() != QEvent::Wheel || !field || field->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

// In a square of 16 x 16.
QPainterPath glyphPath(Glyph glyph) {
    QPainterPath path;
    const auto line = [&path](std::initializer_list<QPointF> way) { path.addPolygon(QPolygonF(way)); };
    const auto arrow = [&line](double from, double to, double back) {
        line({{8, from}, {8, to}});
        line({{4, to + back}, {8, to}, {12, to + back}});
    };
    switch (glyph) {
        case Glyph::reset:
            path.arcMoveTo(QRectF(3.5, 3.5, 9, 9), 150);
            path.arcTo(QRectF(3.5, 3.5, 9, 9), 150, -300);
            line({{3.2, 2.2}, {3.9, 6}, {7.6, 5.2}});
            break;
        case Glyph::swap:
            line({{2, 5.5}, {13.5, 5.5}});
            line({{10.5, 2.5}, {13.5, 5.5}});
            line({{14, 10.5}, {2.5, 10.5}});
            line({{5.5, 13.5}, {2.5, 10.5}});
            break;
        case Glyph::eyedropper:
            line({{2.5, 13.5}, {3.2, 10.9}, {8.6, 5.5}, {10.5, 7.4}, {5.1, 12.8}});
            path.closeSubpath();
            line({{7.3, 4.2}, {11.8, 8.7}});
            line({{9.8, 6.2}, {12.8, 3.2}});
            line({{12, 2.4}, {13.6, 4}});
            break;
        case Glyph::add:
            line({{8, 3}, {8, 13}});
            line({{3, 8}, {13, 8}});
            break;
        case Glyph::copy:
            path.addRect(QRectF(2.5, 2.5, 8, 8));
            line({{13.5, 5.5}, {13.5, 13.5}, {5.5, 13.5}});
            break;
        case Glyph::up:
            arrow(13, 3, 4);
            break;
        case Glyph::down:
            arrow(3, 12, -4);
            break;
        case Glyph::merge:
            arrow(3, 12, -4);
            line({{3, 14.5}, {13, 14.5}});
            break;
        case Glyph::remove:
            line({{4, 4}, {12, 12}});
            line({{12, 4}, {4, 12}});
            break;
        case Glyph::wheel:
            path.addEllipse(QRectF(1.5, 1.5, 13, 13));
            path.addPolygon(QPolygonF({{5.5, 4.5}, {5.5, 11.5}, {12, 8}, {5.5, 4.5}}));
            break;
        case Glyph::sliders:
            for (const auto& [y, knob] : {std::pair(3.5, 10.0), {8.0, 4.0}, {12.5, 8.0}}) {
                line({{2, y}, {knob - 2, y}});
                line({{knob + 2, y}, {14, y}});
                path.addEllipse(QPointF(knob, y), 2, 2);
            }
            break;
        case Glyph::palette:
            for (const QPointF corner : {QPointF(2.5, 2.5), {9, 2.5}, {2.5, 9}, {9, 9}})
                path.addRect(QRectF(corner, QSizeF(4.5, 4.5)));
            break;
        case Glyph::star:
            path.addPolygon(starPolygon());
            path.closeSubpath();
            break;
        case Glyph::menu:
            for (const double y : {4.5, 8.0, 11.5})
                line({{3, y}, {13, y}});
            break;
    }
    return path;
}

}  // namespace

QPolygonF starPolygon() {
    QPolygonF star;
    for (int i = 0; i < 10; ++i) {
        const double radian = (i * 36 - 90) * std::numbers::pi / 180, radius = i % 2 == 0 ? 6.5 : 2.8;
        star << QPointF(8 + radius * std::cos(radian), 8.5 + radius * std::sin(radian));
    }
    return star;
}

QBrush checkerBrush() {
    static const QImage tile = [] {
        QImage image(16, 16, QImage::Format_RGB32);
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x)
                image.setPixel(x, y, (x < 8) == (y < 8) ? qRgb(255, 255, 255) : qRgb(204, 204, 204));
        }
        return image;
    }();
    return QBrush(tile);
}

void guardFromWheel(QWidget* field) {
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(new WheelGuard(field));
}

GlyphButton::GlyphButton(Glyph glyph, const QString& toolTip, QWidget* parent)
    : QToolButton(parent), _glyph(glyph) {
    setAutoRaise(true);
    setToolTip(toolTip);
    setAccessibleName(toolTip);
    setFixedSize(24, 24);
}

void GlyphButton::paintEvent(QPaintEvent*) {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - 16) / 2.0, (height() - 16) / 2.0);
    painter.setPen(
        QPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::ButtonText), 1.3,
             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(glyphPath(_glyph));
}

SwatchButton::SwatchButton(QWidget* parent) : QToolButton(parent) {
    setMinimumSize(56, 26);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SwatchButton::setColor(const QColor& color) {
    _color = color;
    setAccessibleDescription(color.name());
    update();
}

void SwatchButton::paintEvent(QPaintEvent*) {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    const QRect inside = rect().adjusted(4, 4, -4, -4);
    painter.fillRect(inside, palette().color(QPalette::Mid));
    painter.fillRect(inside.adjusted(1, 1, -1, -1), _color.isValid() ? QBrush(_color) : checkerBrush());
}

QDoubleSpinBox* makeNumberBox(const BrushPresentation& shown, QWidget* parent) {
    auto* box = new DecimalBox(parent);
    box->setDecimals(shown.decimals);
    box->setRange(shown.least, shown.most);
    box->setSingleStep(shown.step);
    box->setSuffix(shown.suffix);
    box->setKeyboardTracking(false);
    return box;
}

NumberField::NumberField(const BrushPresentation& shown, QWidget* parent)
    : QWidget(parent), _shown(shown), _slider(new QSlider(Qt::Horizontal)), _box(makeNumberBox(shown)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(_slider, 1);
    layout->addWidget(_box);

    _slider->setRange(0, kSliderSteps);
    _slider->setMinimumWidth(50);
    _box->setFixedWidth(_box->fontMetrics().horizontalAdvance(QStringLiteral("1280.0 px")) + 30);
    guardFromWheel(_slider);
    guardFromWheel(_box);
    setFocusProxy(_box);

    connect(_slider, &QSlider::valueChanged, this, [this](int position) {
        const double number = numberAt(position);
        const QSignalBlocker quiet(_box);
        _box->setValue(number);
        emit edited(_box->value() / _shown.scale);  // as rounded for reading
    });
    connect(_box, &QDoubleSpinBox::valueChanged, this, [this](double number) {
        const QSignalBlocker quiet(_slider);
        _slider->setValue(sliderPosition(number));
        emit edited(number / _shown.scale);
    });
}

void NumberField::setValue(double stored) {
    const QSignalBlocker quietSlider(_slider), quietBox(_box);
    const double number = stored * _shown.scale;
    _box->setValue(number);
    // Not while it is dragged: what is shown is rounded, and the handle would jump under the pointer.
    if (!_slider->isSliderDown())
        _slider->setValue(sliderPosition(number));
}

int NumberField::sliderPosition(double number) const {
    const double share = std::clamp((number - _shown.low) / (_shown.high - _shown.low), 0.0, 1.0);
    return int(std::lround(kSliderSteps * std::pow(share, 1 / _shown.bend)));
}

double NumberField::numberAt(int position) const {
    const double share = std::pow(position / double(kSliderSteps), _shown.bend);
    return _shown.low + share * (_shown.high - _shown.low);
}

ThumbnailStrip::ThumbnailStrip(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ThumbnailStrip::setImages(const QList<QImage>& images) {
    _thumbnails.clear();
    for (const QImage& image : images) {
        const QSize side(kThumbnail * 2, kThumbnail * 2);  // sharp on dense screens, too
        _thumbnails << image.scaled(side.boundedTo(image.size()), Qt::KeepAspectRatio,
                                    Qt::SmoothTransformation);
    }
    setVisible(!_thumbnails.isEmpty());
    updateGeometry();
    update();
}

int ThumbnailStrip::columns(int width) const {
    return std::max(1, (width + kThumbnailGap) / (kThumbnail + kThumbnailGap));
}

int ThumbnailStrip::heightForWidth(int width) const {
    const int lines = (int(_thumbnails.size()) + columns(width) - 1) / columns(width);
    return std::max(0, lines * (kThumbnail + kThumbnailGap) - kThumbnailGap);
}

QSize ThumbnailStrip::sizeHint() const {
    return QSize(kThumbnail, heightForWidth(width()));
}

void ThumbnailStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const int perLine = columns(width());
    for (int i = 0; i < int(_thumbnails.size()); ++i) {
        const QRect cell(i % perLine * (kThumbnail + kThumbnailGap),
                         i / perLine * (kThumbnail + kThumbnailGap), kThumbnail, kThumbnail);
        painter.fillRect(cell, checkerBrush());
        const QSize size = _thumbnails[i].size().scaled(cell.size(), Qt::KeepAspectRatio);
        painter.drawImage(QRect(cell.center() - QPoint(size.width() / 2, size.height() / 2), size),
                          _thumbnails[i]);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
    }
}

}  // namespace dabcanvas::dabpainter
