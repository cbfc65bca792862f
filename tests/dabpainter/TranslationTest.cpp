// SPDX-License-Identifier: MIT
// Every language in a small window: nothing that is to be read is cut off.
#include "Window/Translations.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QTranslator>
#include <set>

#include "PainterTest.h"

namespace dabcanvas::dabpainter {

namespace {

class TranslationTest : public PainterTest {
protected:
    void TearDown() override {
        _window.reset();
        for (QTranslator* translator : qApp->findChildren<QTranslator*>())
            delete translator;
    }
    // The widest line of what a label or a button says, and the room it has for that.
    static std::pair<int, int> widths(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget))
            return {label->wordWrap() || label->textFormat() == Qt::RichText ? 0 : label->sizeHint().width(),
                    label->width()};
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        return {button && !button->text().isEmpty() ? button->minimumSizeHint().width() : 0, widget.width()};
    }
};

TEST_F(TranslationTest, NothingIsCutOffInASmallWindow) {
    const QStringList catalogues = QDir(QStringLiteral(":/translations")).entryList();
    ASSERT_GE(catalogues.size(), 4);
    std::set<QString> firstMenus;
    for (const QString& catalogue : catalogues) {
        const QString language = catalogue.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('_'), 1);
        SCOPED_TRACE(language.toStdString());
        TearDown();
        installTranslations(*qApp, QLocale(language));
        makeWindow();
        _window->resize(1024, 700);
        settle();
        EXPECT_LE(_window->minimumSizeHint().width(), 1024);
        EXPECT_LE(_window->minimumSizeHint().height(), 700);
        firstMenus.insert(_window->menuBar()->actions().first()->text());
        for (const QWidget* widget : _window->findChildren<QWidget*>()) {
            const auto [needed, has] = widths(*widget);
            if (widget->isVisible()) {
                EXPECT_LE(needed, has) << qPrintable(widget->property("text").toString());
            }
        }
    }
    EXPECT_EQ(qsizetype(firstMenus.size()), catalogues.size()) << "each speaks its own language";
}

}  // namespace
}  // namespace dabcanvas::dabpainter
