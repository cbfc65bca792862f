// SPDX-License-Identifier: MIT
#include "Window/Theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>

#include "Tools/ToolIcons.h"

namespace dabcanvas::dabpainter {

namespace {

TEST(ThemeTest, EveryTextCanBeRead) {
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {{P::WindowText, P::Window},
                                                           {P::Text, P::Base},
                                                           {P::Text, P::AlternateBase},
                                                           {P::ButtonText, P::Button},
                                                           {P::ButtonText, P::Window},
                                                           {P::HighlightedText, P::Highlight},
                                                           {P::ToolTipText, P::ToolTipBase},
                                                           {P::PlaceholderText, P::Base},
                                                           {P::Link, P::Window},
                                                           {P::Link, P::Base},
                                                           {P::LinkVisited, P::Base},
                                                           {P::BrightText, P::Window}};
    for (const QPalette& palette : {lightPalette(), darkPalette()}) {
        for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
            for (const auto& [text, ground] : pairs) {
                EXPECT_GE(contrastOf(palette.color(group, text), palette.color(group, ground)), 4.5)
                    << "group " << group << ", role " << text << " on " << ground << ", "
                    << palette.color(P::Window).name().toStdString();
            }
        }
    }
    EXPECT_NEAR(contrastOf(Qt::black, Qt::white), 21, 1e-9);
}

TEST(ThemeTest, ChoicesHoldAtOnceAndIconsFollow) {
    const QPalette before = QApplication::palette();
    const QIcon icon = toolIcon(ToolSign::fill);
    const auto lightest = [&](QIcon::Mode mode) {
        const QImage image = icon.pixmap(QSize(48, 48), mode).toImage();
        int most = 0;
        for (int i = 0; i < 48 * 48; ++i) {
            const QColor color = image.pixelColor(i % 48, i / 48);
            most = std::max(most, color.alpha() == 255 ? color.lightness() : 0);
        }
        return most;
    };
    {
        Theme theme;
        for (const ThemeChoice choice : {ThemeChoice::dark, ThemeChoice::light, ThemeChoice::dark}) {
            theme.setChoice(choice);
            const QPalette wanted = choice == ThemeChoice::dark ? darkPalette() : lightPalette();
            for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled}) {
                const QColor text = wanted.color(group, QPalette::ButtonText);
                EXPECT_EQ(QApplication::palette().color(group, QPalette::ButtonText), text);
                EXPECT_EQ(lightest(group == QPalette::Active ? QIcon::Normal : QIcon::Disabled),
                          text.lightness());
            }
        }
        theme.setChoice(ThemeChoice::system);
        EXPECT_EQ(theme.isDark(), before.color(QPalette::Window).lightness() < 128);
    }
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
}

}  // namespace

}  // namespace dabcanvas::dabpainter
