// SPDX-License-Identifier: MIT
#include "Colour/ColorPanel.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>

#include "Colour/ColorSliders.h"
#include "Colour/ColorWheel.h"
#include "Colour/PalettePage.h"
#include "Colour/SwatchGrid.h"
#include "PainterTest.h"
#include "support/Files.h"

namespace dabcanvas::dabpainter {

namespace {

class ColorPanelTest : public PainterTest {
protected:
    ColorPanel& panel() { return _window->colours(); }
    QRgb color(BrushKey key = BrushKey::renderColor) {
        return _window->brush().value(key).value<ESColor>().toQColor().rgb();
    }
    void set(const QColor& color) {
        _window->brush().setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(color)));
    }
    void press(QWidget& widget, int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    template <typename Widget>
    Widget& part() {
        return *panel().findChild<Widget*>();
    }
};

TEST_F(ColorPanelTest, EveryPartShowsTheBrushAndSetsIt) {
    set(QColor("#663399"));
    const auto& sliders = part<ColorSliders>().parts();
    EXPECT_EQ(sliders[0].box->value(), 44);
    EXPECT_EQ(sliders[1].box->value(), 160);
    EXPECT_EQ(sliders[2].box->value(), 303);
    auto* hex = panel().findChild<QLineEdit*>("hexColour");
    EXPECT_EQ(hex->text(), "#663399");
    EXPECT_EQ(color(), qRgb(0x66, 0x33, 0x99)) << "to show it is not to round it";

    press(part<ShadeTriangle>(), Qt::Key_Up);
    EXPECT_NEAR(okLchOf(QColor(color())).lightness, 0.45, 3e-3);
    press(part<ColorWheel>(), Qt::Key_Left);
    EXPECT_NEAR(okLchOf(QColor(color())).hue, 302.4, 0.6);
    sliders[1].box->setValue(0);
    EXPECT_LT(okLchOf(QColor(color())).chroma, 1e-3);
    for (const char* text : {"f80", "nonsense"}) {
        hex->setText(text);
        hex->setModified(true);
        emit hex->editingFinished();
        EXPECT_EQ(color(), qRgb(255, 136, 0));
        EXPECT_EQ(hex->text(), "#ff8800");
    }
    const QRgb back = color(BrushKey::backRenderColor);
    panel().setEdited(BrushKey::backRenderColor);
    EXPECT_EQ(hex->text(), QColor(back).name());
    panel().choice().setColor(Qt::red);
    EXPECT_EQ(color(), qRgb(255, 136, 0));
    EXPECT_EQ(color(BrushKey::backRenderColor), qRgb(255, 0, 0));
}

TEST_F(ColorPanelTest, WhatWasPaintedWithIsRemembered) {
    set(Qt::red);
    set(Qt::blue);
    paint();
    set(Qt::green);
    _window->brush().setValue(BrushKey::blendType, int(ESBlendTypeErase));
    paint();
    EXPECT_EQ(panel().recent().toTexts(), QStringList("#0000ff"))
        << "neither what was only chosen nor erasing";
    panel().setPickSide(5);
    _window->settings().write();
    makeWindow();
    EXPECT_EQ(panel().recent().toTexts(), QStringList("#0000ff"));
    EXPECT_EQ(panel().pickSide(), 5);
}

TEST_F(ColorPanelTest, APaletteIsMadeChangedAndDeleted) {
    PalettePage& page = panel().palettes();
    _name = "Garden";
    set(QColor("#3a7f42"));
    ASSERT_TRUE(page.addColor()) << "without one, a new one is made";
    set(QColor("#e8c030"));
    ASSERT_TRUE(page.addColor());
    _name = "Sun";
    ASSERT_TRUE(page.renameColor(1));
    EXPECT_TRUE(page.removeColor(0));
    EXPECT_FALSE(page.removeColor(7));
    ASSERT_TRUE(page.renamePalette());
    const Palette expected{"Sun", 0, {{qRgb(0xe8, 0xc0, 0x30), "Sun"}}};
    EXPECT_EQ(page.library().find(page.shown())->palette, expected);

    set(Qt::black);
    page.grid()->setFocus();
    press(*page.grid(), Qt::Key_Return);
    EXPECT_EQ(color(), qRgb(0xe8, 0xc0, 0x30));
    _saveName = path("out.gpl");
    ASSERT_TRUE(page.exportPalette());
    ASSERT_TRUE(page.removePalette());
    EXPECT_TRUE(page.shown().isEmpty());
    const QString bad = savedImage("no.gpl.png", Qt::red);
    EXPECT_TRUE(page.importFiles({bad, _saveName}));
    EXPECT_EQ(_told.size(), 1);
    EXPECT_EQ(page.library().find(page.shown())->palette, expected);
}

TEST_F(ColorPanelTest, AllColoursOfAPaletteCanBeScrolledTo) {
    PalettePage& page = panel().palettes();
    Palette palette{"Many", 0, {}};
    for (int i = 0; i < 240; ++i)
        palette.colors.push_back({qRgb(i, 0, 0), QString()});
    ASSERT_EQ(PaletteLibrary::exportTo(palette, path("many.gpl")), "");
    ASSERT_TRUE(page.importFiles({path("many.gpl")}));
    for (QAbstractButton* button : panel().findChildren<QAbstractButton*>())
        if (button->accessibleName() == "Palettes")
            button->click();
    settle();
    const SwatchGrid& grid = *page.grid();
    EXPECT_TRUE(grid.rect().contains(grid.cell(239))) << grid.height();
    EXPECT_LT(panel().minimumSizeHint().width(), 240);
}

}  // namespace

}  // namespace dabcanvas::dabpainter
