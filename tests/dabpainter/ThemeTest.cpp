// SPDX-License-Identifier: MIT
#include "Window/Theme.h"

#include <gtest/gtest.h>

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

}  // namespace

}  // namespace dabcanvas::dabpainter
