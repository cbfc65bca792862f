// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

#include "Window/DesktopScheme.h"

namespace dabcanvas::dabpainter {

enum class ThemeChoice { system, light, dark };

// The application's own colours: of every text 4.5 to 1 or more against what it stands on, by WCAG 2.
QPalette lightPalette();
QPalette darkPalette();

// 1 to 21, by WCAG 2, of opaque colours.
double contrastOf(const QColor& a, const QColor& b);

// Gives the application one of the two palettes, and its own style; where the system decides, the one that is as dark as the
// system's windows, or as its desktop asks for, also when that changes.
class Theme : public QObject {
    Q_OBJECT

public:
    explicit Theme(QObject* parent = nullptr);
    ~Theme() override;  // the system's palette is the application's again

    ThemeChoice choice() const { return _choice; }
    void setChoice(ThemeChoice choice);
    bool isDark() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void changed();

private:
    void apply();

    static bool systemIsDark();

    ThemeChoice _choice = ThemeChoice::system;
    DesktopScheme _desktop;
    bool _systemIsDark, _applying = false;
};

}  // namespace dabcanvas::dabpainter
