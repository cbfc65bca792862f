// SPDX-License-Identifier: MIT
#include "Window/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>

namespace dabcanvas::dabpainter {

namespace {

struct Shade {
    QPalette::ColorRole role;
    QRgb light, dark;
};

// Grey throughout: a tinted window makes every colour on the canvas look another.
constexpr Shade kShades[] = {
    {QPalette::Window, 0xffececec, 0xff2b2b2b},
    {QPalette::WindowText, 0xff1c1c1c, 0xffe4e4e4},
    {QPalette::Base, 0xfffbfbfb, 0xff202020},
    {QPalette::AlternateBase, 0xffe2e2e2, 0xff323232},
    {QPalette::Text, 0xff1c1c1c, 0xffe4e4e4},
    {QPalette::PlaceholderText, 0xff666666, 0xff9c9c9c},
    {QPalette::Button, 0xffe4e4e4, 0xff363636},
    {QPalette::ButtonText, 0xff1c1c1c, 0xffe4e4e4},
    {QPalette::BrightText, 0xffb00020, 0xffff9c9c},
    {QPalette::ToolTipBase, 0xfffbfbfb, 0xff3c3c3c},
    {QPalette::ToolTipText, 0xff1c1c1c, 0xffececec},
    {QPalette::Highlight, 0xff2563b4, 0xff3569ac},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link, 0xff1d56a3, 0xff8cb8f0},
    {QPalette::LinkVisited, 0xff6b3fa0, 0xffc4a6ec},
    {QPalette::Light, 0xffffffff, 0xff484848},
    {QPalette::Midlight, 0xfff4f4f4, 0xff3e3e3e},
    {QPalette::Mid, 0xffb4b4b4, 0xff545454},
    {QPalette::Dark, 0xff9c9c9c, 0xff181818},
    {QPalette::Shadow, 0xff707070, 0xff0c0c0c},
};
// What cannot be used is greyed, and still to be read.
constexpr QRgb kLightDisabled = 0xff606060, kDarkDisabled = 0xffa4a4a4;

QPalette paletteOf(QRgb Shade::*shade, QRgb disabled) {
    QPalette palette;
    for (const Shade& row : kShades)
        palette.setColor(row.role, QColor(row.*shade));
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, text, QColor(disabled));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, palette.color(QPalette::WindowText));
    return palette;
}

double lightOf(const QColor& color) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

bool isDarkPalette(const QPalette& palette) {
    return lightOf(palette.color(QPalette::Window)) < lightOf(palette.color(QPalette::WindowText));
}

}  // namespace

QPalette lightPalette() {
    return paletteOf(&Shade::light, kLightDisabled);
}

QPalette darkPalette() {
    return paletteOf(&Shade::dark, kDarkDisabled);
}

double contrastOf(const QColor& a, const QColor& b) {
    const double x = lightOf(a) + 0.05, y = lightOf(b) + 0.05;
    return std::max(x / y, y / x);
}

Theme::Theme(QObject* parent) : QObject(parent), _systemIsDark(systemIsDark()) {
    // The same on every desktop: others' styles take some of their colours from elsewhere.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    qApp->installEventFilter(this);
    connect(&_desktop, &DesktopScheme::changed, this, &Theme::apply);
    apply();
}

Theme::~Theme() {
    QApplication::setPalette(QPalette());
}

// Which is known only while the application has no palette of its own.
bool Theme::systemIsDark() {
    QApplication::setPalette(QPalette());
    return isDarkPalette(QGuiApplication::palette());
}

void Theme::setChoice(ThemeChoice choice) {
    if (choice == _choice)
        return;
    _choice = choice;
    apply();
}

bool Theme::isDark() const {
    return _choice == ThemeChoice::dark ||
           (_choice == ThemeChoice::system && (_systemIsDark || _desktop.isDark()));
}

void Theme::apply() {
    const QScopedValueRollback applying(_applying, true);
    QApplication::setPalette(isDark() ? darkPalette() : lightPalette());
    emit changed();
}

// The system's own colours have changed, or any of them.
bool Theme::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ThemeChange && watched->isWindowType() && !_applying) {
        const QScopedValueRollback applying(_applying, true);
        _systemIsDark = systemIsDark();
        apply();
    }
    return false;
}

}  // namespace dabcanvas::dabpainter
