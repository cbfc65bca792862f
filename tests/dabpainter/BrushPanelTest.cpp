// SPDX-License-Identifier: MIT
#include "Brush/BrushPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QSlider>
#include <string>

#include "PainterTest.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

class BrushPanelTest : public PainterTest {
protected:
    // Edits as a user would; false when there is nothing to do it with.
    bool editByHand(BrushEditor& editor) {
        if (auto* box = editor.findChild<QCheckBox*>()) {
            box->click();
        } else if (auto* combo = editor.findChild<QComboBox*>()) {
            combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
        } else if (auto* spin = editor.findChild<QDoubleSpinBox*>()) {
            spin->setValue(spin->value() < spin->maximum() ? spin->maximum() : spin->minimum());
        } else if (auto* swatch = editor.findChild<SwatchButton*>()) {
            swatch->click();
        } else if (auto* load = editor.findChild<QPushButton*>("load")) {
            _images = {savedImage("tip.png", Qt::red)};
            load->click();
        } else {
            return false;
        }
        return true;
    }

    QVariant onCanvas(BrushKey key) { return _window->view()->brushValue(brushProperty(key)); }
};

TEST_F(BrushPanelTest, EveryShownPropertyHasAWorkingEditorAndReset) {
    BrushModel& brush = _window->brush();
    std::size_t shown = 0;
    for (const BrushProperty& property : brushProperties())
        shown += brushPresentation(property).place != BrushPlace::hidden;
    const auto& rows = _window->panel().rows();
    EXPECT_EQ(rows.size(), shown);
    for (BrushRow* row : rows) {
        SCOPED_TRACE(brushProperty(row->key()).name);
        const BrushKey key = row->key();
        EXPECT_TRUE(row->resetButton()->isHidden());
        ASSERT_TRUE(editByHand(*row->editor()));
        EXPECT_FALSE(brush.isDefault(key));
        EXPECT_TRUE(sameBrushValue(onCanvas(key), brush.value(key)));
        EXPECT_FALSE(row->resetButton()->isHidden());
        row->resetButton()->click();
        EXPECT_TRUE(brush.isDefault(key));
        EXPECT_TRUE(row->resetButton()->isHidden());
        brush.resetAll();
    }
}

TEST_F(BrushPanelTest, SlidersReachBothEndsAndFollowTheValue) {
    for (BrushRow* row : _window->panel().rows()) {
        SCOPED_TRACE(brushProperty(row->key()).name);
        auto* slider = row->editor()->findChild<QSlider*>();
        if (brushProperty(row->key()).type() != BrushValueType::real)
            continue;
        ASSERT_TRUE(slider);
        const BrushPresentation shown = brushPresentation(brushProperty(row->key()));
        for (const int end : {slider->minimum(), slider->maximum()}) {
            slider->setValue(slider->minimum() + 100);
            slider->setValue(end);
            const double expected = (end == slider->minimum() ? shown.low : shown.high) / shown.scale;
            // Numbers are rounded to what the box can show.
            EXPECT_NEAR(_window->brush().value(row->key()).toDouble(), expected,
                        std::pow(10, -shown.decimals) / shown.scale + 1e-6);
            _window->brush().resetAll();
        }
    }
}

// A point and a comma, whatever the locale makes of them; and after Return the keys are the canvas's again.
TEST_F(BrushPanelTest, ATypedNumberIsTheNumber) {
    const std::tuple<const char*, const char*, float> rows[] = {
        {"de_DE", "12.5", 12.5f}, {"de_DE", "7,5", 7.5f}, {"en_US", "12,5", 12.5f},
        {"en_US", "12.5", 12.5f}, {"de_CH", "3.5", 3.5f}, {"fr_FR", "4.5", 4.5f}};
    const auto& all = _window->panel().rows();
    BrushRow* row =
        *std::find_if(all.begin(), all.end(), [](auto* r) { return r->key() == BrushKey::radius; });
    auto* box = row->editor()->findChild<QDoubleSpinBox*>();
    for (const auto& [locale, typed, radius] : rows) {
        SCOPED_TRACE(std::string(locale) + " " + typed);
        box->setLocale(QLocale(QLatin1String(locale)));
        box->setFocus();
        box->selectAll();
        const auto press = [&](int key, const QString& text) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
            QApplication::sendEvent(QApplication::focusWidget(), &event);
        };
        for (const char c : std::string(typed))
            press(c, QString(QLatin1Char(c)));
        press(Qt::Key_Return, "\r");
        EXPECT_EQ(_window->brush().value(BrushKey::radius).toFloat(), radius);
        EXPECT_TRUE(_window->viewport().hasFocus());
    }
}

TEST_F(BrushPanelTest, SearchShowsTheRowsThatMatch) {
    BrushPanel& panel = _window->panel();
    const auto shown = [&] {
        QStringList names;
        for (BrushRow* row : panel.rows()) {
            if (row->isVisibleTo(&panel) &&
                brushPresentation(brushProperty(row->key())).place == BrushPlace::panel)
                names << QLatin1String(brushProperty(row->key()).name);
        }
        return names;
    };
    panel.filter("Hue jitter");
    EXPECT_TRUE(shown().contains("hueTingle"));
    EXPECT_FALSE(shown().contains("radiusTingle"));
    panel.filter("slRadius");
    EXPECT_TRUE(shown().contains("slRadius"));
    panel.filter("no such thing");
    EXPECT_EQ(shown(), QStringList());
}

TEST(BrushPresentationTest, APropertyThatNobodyDescribedIsPresentable) {
    const BrushProperty jitter{.key = BrushKey::count,
                               .name = "edgeRadiusTingle",
                               .field = &BrushSettings::radiusTingle,
                               .group = BrushGroup::shape,
                               .useful = BrushRange{0, 1}};
    const BrushPresentation shown = brushPresentation(jitter);
    EXPECT_EQ(shown.label, "Edge size jitter");
    EXPECT_EQ(shown.place, BrushPlace::panel);
    EXPECT_EQ(shown.low, 0);
    EXPECT_EQ(shown.high, 100);
}

}  // namespace

}  // namespace dabcanvas::dabpainter
