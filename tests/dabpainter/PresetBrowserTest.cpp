// SPDX-License-Identifier: MIT
#include "Presets/PresetBrowser.h"

#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>
#include <cmath>
#include <map>

#include "Brush/BrushPanel.h"
#include "Brush/BrushPresentation.h"
#include "Import/GimpFiles.h"
#include "PainterTest.h"
#include "Preset/PresetInfo.h"
#include "Preset/QDBrushManager.h"
#include "Presets/PresetList.h"
#include "support/LogCapture.h"

namespace dabcanvas::dabpainter {

namespace {

class PresetBrowserTest : public PainterTest {
protected:
    PresetBrowser& presets() { return _window->presets(); }
    BrushModel& brush() { return _window->brush(); }
    void set(BrushKey key, const QVariant& value) { EXPECT_TRUE(brush().setValue(key, value)); }
    float radius() { return brush().value(BrushKey::radius).toFloat(); }

    // Saves the present brush with this size.
    PresetId save(const QString& name, float size) {
        set(BrushKey::radius, size);
        _name = name;
        EXPECT_TRUE(presets().saveNew());
        return presets().chosen();
    }
    QString saveElsewhere(const QString& file, const QString& name) {
        EXPECT_TRUE(QDBrushManager::saveParamsWithDrawView(_window->view(), name, path(file)));
        return path(file);
    }
    // As the list shows them, from the first one that is a preset.
    QStringList shownNames() {
        QStringList names;
        const QAbstractItemModel* model = presets().list()->model();
        for (int row = 1; row < model->rowCount(); ++row)
            names << model->index(row, 0).data().toString();
        return names;
    }
    QString status() {
        settle();
        return presets().findChild<QLabel*>("presetStatus")->text();
    }
};

// ---- Saving and applying

TEST_F(PresetBrowserTest, EverySettingComesBackAndTheColoursStay) {
    for (const BrushProperty& property : brushProperties()) {
        if (property.presetId != 0)
            set(property.key, otherValue(property, brush().value(property.key)));
    }
    set(BrushKey::textureType, 0);
    std::map<BrushKey, QVariant> before;
    for (const BrushProperty& property : brushProperties())
        before[property.key] = brush().value(property.key);
    const PresetId id = save("  Rough \n chalk: 1/2 ", radius());
    EXPECT_EQ(presets().chosenName(), "Rough chalk: 1/2");
    EXPECT_EQ(QFileInfo(id.path).fileName(), "Rough chalk_ 1_2.xbf");
    EXPECT_EQ(status(), presets().chosenName());

    ASSERT_TRUE(presets().choose({}));
    EXPECT_FALSE(brush().isModified());
    for (const bool colors : {false, true}) {
        SCOPED_TRACE(colors);
        const ESColor green = ESColor::rgba(0, 1, 0);
        set(BrushKey::renderColor, QVariant::fromValue(green));
        set(BrushKey::backRenderColor, QVariant::fromValue(green));
        brush().setPresetsSetColors(colors);
        std::map<BrushKey, int> reports;
        const auto watch =
            QObject::connect(&brush(), &BrushModel::changed, [&](BrushKey key) { ++reports[key]; });
        ASSERT_TRUE(presets().choose(id));
        QObject::disconnect(watch);
        EXPECT_FALSE(brush().isModified());
        for (const BrushProperty& property : brushProperties()) {
            if (property.presetId == 0)
                continue;
            const bool isColor = property.type() == BrushValueType::color;
            // A file's colours have eight bits.
            if (isColor && colors)
                EXPECT_NEAR(brush().value(property.key).value<ESColor>().green(), 0.5, 0.01);
            else if (isColor)
                EXPECT_EQ(brush().value(property.key).value<ESColor>(), green);
            else
                EXPECT_TRUE(sameBrushValue(brush().value(property.key), before[property.key]))
                    << property.name;
            EXPECT_TRUE(sameBrushValue(_window->view()->brushValue(property), brush().value(property.key)))
                << property.name;
            EXPECT_LE(reports[property.key], 1) << property.name;
        }
    }
}

TEST_F(PresetBrowserTest, ResettingGoesBackToTheChosenPreset) {
    auto* button = _window->panel().findChild<QPushButton*>("resetAll");
    const QString plain = button->text();
    const PresetId id = save("Wide", 90);
    EXPECT_NE(button->text(), plain);
    const auto& rows = _window->panel().rows();
    const auto size =
        *std::find_if(rows.begin(), rows.end(), [](auto* row) { return row->key() == BrushKey::radius; });
    EXPECT_TRUE(size->resetButton()->isHidden()) << "it is the preset's";
    set(BrushKey::radius, 20.0f);
    EXPECT_EQ(status(), "Wide – modified");
    size->resetButton()->click();
    EXPECT_EQ(radius(), 90);
    set(BrushKey::radius, 32.0f);  // the engine's
    EXPECT_FALSE(size->resetButton()->isHidden());
    button->click();
    EXPECT_EQ(radius(), 90);
    EXPECT_EQ(status(), "Wide");
    ASSERT_TRUE(presets().choose({}));
    EXPECT_EQ(button->text(), plain);
    EXPECT_TRUE(brush().isDefault(BrushKey::radius));
    EXPECT_TRUE(size->resetButton()->isHidden());
}

TEST_F(PresetBrowserTest, APresetIsTheSameBrushWhateverWasSetBefore) {
    const auto one = QDBrushManager::paramWithID(0x1006, QString(), 0.5f, kXBFFloat);
    ASSERT_TRUE(QDBrushManager::saveParams(BrushParams{one}, 200, "Bare", path("bare.xbf")));
    ASSERT_TRUE(presets().importFiles({path("bare.xbf")}));
    EXPECT_EQ(brush().value(BrushKey::opacity).toFloat(), 0.5f);
    const BrushParams params = *brush().params();
    set(BrushKey::maxRadius, 0.25f);
    set(BrushKey::moveRadianEnable, true);
    set(BrushKey::textureType, 3);
    ASSERT_TRUE(presets().choose(presets().chosen()));
    EXPECT_EQ(*brush().params(), params);
    EXPECT_NE(brush().value(BrushKey::textureType).toInt(), 0) << "it has no image for a tip";
}

TEST_F(PresetBrowserTest, BrushAndPresetAreThereInTheNextRun) {
    set(BrushKey::repeatedlyRenderEnabled, true);
    set(BrushKey::slRadiusRelationType, 2);
    save("Twins", 40);
    for (const bool modified : {false, true}) {
        SCOPED_TRACE(modified);
        if (modified)
            set(BrushKey::opacity, 0.3f);
        ASSERT_TRUE(_window->close());
        makeWindow();
        EXPECT_EQ(presets().chosenName(), "Twins");
        EXPECT_EQ(brush().isModified(), modified);
        EXPECT_EQ(brush().value(BrushKey::opacity).toFloat(), modified ? 0.3f : 1.0f);
        ASSERT_TRUE(_window->startCanvas({QSize(30, 30), Qt::white}));
        EXPECT_EQ(brush().isModified(), modified);
    }
    brush().resetAll();
    EXPECT_EQ(brush().value(BrushKey::opacity).toFloat(), 1);
    EXPECT_EQ(radius(), 40);
    ASSERT_TRUE(_window->close());
    ASSERT_TRUE(QFile::remove(presets().chosen().path));
    makeWindow();
    EXPECT_EQ(presets().chosenName(), QString());
    EXPECT_EQ(radius(), 40) << "the brush does not go with its preset";
    EXPECT_EQ(_told, QStringList());
}

// ---- Files

TEST_F(PresetBrowserTest, NamesThatCollideLoseNothing) {
    const PresetId first = save("a/b", 10);
    EXPECT_NE(save("a:b", 20), first) << "another name, though the file's would be the same";
    EXPECT_TRUE(_questions.isEmpty());
    _confirmed = false;
    set(BrushKey::radius, 30.0f);
    _name = "A/B";
    EXPECT_FALSE(presets().saveNew());
    EXPECT_FALSE(presets().overwrite(first));
    EXPECT_FALSE(presets().remove(first));
    EXPECT_EQ(_questions.size(), 3);
    ASSERT_TRUE(presets().choose(first));
    EXPECT_EQ(radius(), 10);

    _confirmed = true;
    set(BrushKey::radius, 30.0f);
    EXPECT_TRUE(presets().overwrite(first));
    EXPECT_FALSE(brush().isModified());
    _name = "a*b";
    EXPECT_TRUE(presets().rename(first));
    EXPECT_EQ(presets().chosenName(), "a*b");
    EXPECT_EQ(shownNames(), (QStringList{"a*b", "a:b"}));
    const PresetId renamed = presets().chosen();
    EXPECT_TRUE(presets().remove(renamed));
    EXPECT_EQ(shownNames(), QStringList{"a:b"});
    EXPECT_EQ(radius(), 30) << "the brush stays";
    EXPECT_FALSE(brush().preset());
}

TEST(PresetFileNameTest, EveryNameMakesAFile) {
    const std::map<QString, QString> kNames = {
        {"../../etc", "_._.._etc"},  {" . ", "_"},
        {"Con.brush", "_Con.brush"}, {"lpt1", "_lpt1"},
        {"a\x01<b>?", "a__b__"},     {QString(500, QLatin1Char('x')), QString(80, QLatin1Char('x'))},
        {"Größe 3.", "Größe 3"}};
    for (const auto& [name, file] : kNames)
        EXPECT_EQ(presetFileName(name), file) << qPrintable(name);
}

TEST_F(PresetBrowserTest, ADamagedFileLeavesTheBrushAsItWas) {
    const QByteArray whole = contentOf(saveElsewhere("whole.xbf", "Whole"));
    set(BrushKey::radius, 77.0f);
    QImage paper(8, 8, QImage::Format_ARGB32);
    paper.fill(Qt::black);
    set(BrushKey::maskImage, paper);
    QByteArray noImage = contentOf(saveElsewhere("paper.xbf", "Paper"));
    set(BrushKey::maskImage, QImage());
    const LogCapture quiet;
    const std::map<QString, QByteArray> kBad = {
        {"image.xbf", noImage.replace("PNG", "GNP")},
        {"empty.xbf", ""},
        {"text.xbf", "this is no brush, but a text that is long enough"},
        {"cut.xbf", whole.left(whole.size() / 2)}};
    for (const auto& [name, bytes] : kBad) {
        SCOPED_TRACE(qPrintable(name));
        _told.clear();
        EXPECT_FALSE(presets().importFiles({writtenTo(path(name), bytes)}));
        ASSERT_EQ(_told.size(), 1);
        EXPECT_TRUE(_told[0].contains(name));
        EXPECT_FALSE(QFileInfo::exists(path("brushes/") + name));
        // And when it stands in the folder.
        ASSERT_TRUE(QDir().mkpath(path("brushes")));
        const QString there = writtenTo(path("brushes/" + name), bytes);
        EXPECT_FALSE(presets().choose({there, 0}));
        EXPECT_EQ(_told.size(), 2);
    }
    QFile large(writtenTo(path("large.gbr"), {}));
    ASSERT_TRUE(large.resize((qint64(1) << 30) + 1));  // nothing of which takes room
    EXPECT_FALSE(presets().importFiles({large.fileName()}));
    EXPECT_TRUE(_told.last().contains("too large"));
    EXPECT_FALSE(presets().choose({path("missing.xbf"), 0}));
    EXPECT_EQ(radius(), 77);
    EXPECT_FALSE(brush().preset());
    const QAbstractItemModel* model = presets().list()->model();
    ASSERT_EQ(model->rowCount(), 5);
    for (int row = 1; row < 5; ++row)
        EXPECT_FALSE(model->index(row, 0).data(PresetListModel::problemRole).toString().isEmpty()) << row;
}

TEST_F(PresetBrowserTest, DroppedFilesAreImportedOnceAndTheLastIsChosen) {
    const QString one = saveElsewhere("one.xbf", "One");
    set(BrushKey::radius, 55.0f);
    const QString two = saveElsewhere("two.XBF", "Two");
    ASSERT_TRUE(presets().choose({}));
    const auto drop = [&](const QStringList& files) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls << QUrl::fromLocalFile(file);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(_window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(_window.get(), &event);
        return true;
    };
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(drop({one, two}));
        EXPECT_EQ(presets().chosenName(), "Two");
        EXPECT_EQ(radius(), 55);
        EXPECT_EQ(shownNames(), (QStringList{"One", "Two"}));
    }
    // Another file of this name is another brush.
    EXPECT_TRUE(drop({saveElsewhere("one.xbf", "One")}));
    EXPECT_EQ(shownNames().count("One"), 2);
    EXPECT_EQ(_told, QStringList());

    _saveName = path("out.xbf");
    EXPECT_TRUE(presets().exportTo(presets().chosen()));
    const auto exported = QDBrushManager::brushesWithXBFPath(_saveName);
    ASSERT_TRUE(exported);
    EXPECT_EQ(*exported, *QDBrushManager::brushesWithXBFPath(presets().chosen().path));
}

TEST_F(PresetBrowserTest, OtherProgramsBrushesAndPicturesAreDroppedOntoTheList) {
    const auto drop = [&](QWidget& onto, const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&onto, &enter);
        if (enter.isAccepted()) {
            QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&onto, &event);
        }
        return enter.isAccepted();
    };
    const QString pen = writtenTo(path("Pen.myb"), R"({"version": 3, "settings": {
        "radius_logarithmic": {"base_value": 3, "inputs": {}}, "lock_alpha": {"base_value": 1, "inputs": {}}}})");
    const QString leaf = writtenTo(path("a.gbr"), gbr({}));
    const QString dots = savedImage("Dots.png", Qt::black);
    EXPECT_TRUE(drop(*_window, dots)) << "a picture, beside the list";
    EXPECT_FALSE(shownNames().contains("Dots"));
    for (int time = 0; time < 2; ++time) {  // the second time each is there already
        _told.clear();
        EXPECT_TRUE(drop(*_window, leaf));
        EXPECT_EQ(presets().chosenName(), "Leaf");
        EXPECT_TRUE(drop(presets(), dots));
        EXPECT_EQ(presets().chosenName(), "Dots");
        EXPECT_EQ(_told, QStringList());
        EXPECT_TRUE(drop(presets(), pen));
        EXPECT_NEAR(radius(), 2 * std::exp(3.0f), 0.1f);
        ASSERT_EQ(_told.size(), 1);
        EXPECT_TRUE(_told[0].contains("Pen.myb") && _told[0].contains("keeping transparency"));
        EXPECT_EQ(shownNames(), (QStringList{"Dots", "Leaf", "Pen"}));
    }
    EXPECT_TRUE(drop(presets(), writtenTo(path("cut.gbr"), gbr({}).chopped(1))));
    EXPECT_TRUE(_told.last().contains("cut.gbr"));
    EXPECT_EQ(shownNames().size(), 3);
}

TEST_F(PresetBrowserTest, EveryBrushOfAFileIsAPresetOfItsOwn) {
    const QByteArray small = contentOf(saveElsewhere("small.xbf", "Small"));
    set(BrushKey::radius, 66.0f);
    const QByteArray large = contentOf(saveElsewhere("large.xbf", "Large"));
    QByteArray both = small + large.mid(int(kXBFHeaderSize));
    both[8] = 2;  // how many brushes the header says there are
    ASSERT_TRUE(presets().importFiles({writtenTo(path("both.xbf"), both)}));
    EXPECT_EQ(shownNames(), (QStringList{"Large", "Small"}));
    EXPECT_EQ(radius(), 66) << "the last one was chosen";
    const PresetId first{presets().chosen().path, 0};
    ASSERT_TRUE(presets().choose(first));
    EXPECT_EQ(radius(), 32);
    EXPECT_FALSE(presets().overwrite(first));
    EXPECT_FALSE(presets().rename(first));
    EXPECT_EQ(contentOf(first.path), both);
    // Only what lies before the damage is usable.
    const LogCapture quiet;
    writtenTo(path("brushes/both.xbf"), both.left(both.size() - 40));
    EXPECT_TRUE(presets().choose(first));
    EXPECT_FALSE(presets().choose({first.path, 1}));
}

TEST_F(PresetBrowserTest, InstalledPresetsAreOnlyRead) {
    ASSERT_TRUE(QDir().mkpath(path("installed")));
    const QString file = saveElsewhere("installed/i.xbf", "Installed");
    makeWindow();
    EXPECT_EQ(shownNames(), QStringList{"Installed"});
    const PresetId id{file, 0};
    ASSERT_TRUE(presets().choose(id));
    EXPECT_FALSE(presets().overwrite(id));
    EXPECT_FALSE(presets().rename(id));
    EXPECT_FALSE(presets().remove(id));
    save("Installed", 12);  // the user's own of this name
    EXPECT_EQ(shownNames().size(), 2);
    EXPECT_TRUE(_questions.isEmpty());
    const QListView& list = *presets().list();
    const auto drawn = [&](int row) {
        QImage image(list.visualRect(list.model()->index(row, 0)).size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        list.itemDelegate()->paint(&painter, option, list.model()->index(row, 0));
        return image;
    };
    drawn(1);
    while (!presets().previews().isIdle())
        settle();
    const QImage before = drawn(1), plain = drawn(0);
    presets().search()->setText("inST");
    EXPECT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(drawn(0), before) << "a hit looks the same wherever it stands";
    EXPECT_NE(drawn(0), plain);
    presets().search()->setText("no such");
    EXPECT_EQ(presets().list()->model()->rowCount(), 0);
}

TEST_F(PresetBrowserTest, TheListIsWorkedByMouseAndKeyboard) {
    const PresetId one = save("One", 11), two = save("Two", 22);
    QListView& list = *presets().list();
    const auto click = [&](int row) {
        const QPointF at = list.visualRect(list.model()->index(row, 0)).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(list.viewport(), &event);
        }
    };
    const auto press = [&](int key) {
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            event.ignore();
            QApplication::sendEvent(&list, &event);
            EXPECT_TRUE(event.isAccepted());
        }
    };
    settle();
    presets().search()->setFocus();
    click(1);
    EXPECT_TRUE(_window->viewport().hasFocus()) << "the keys go to the canvas again";
    EXPECT_EQ(presets().chosen(), one);
    EXPECT_EQ(radius(), 11);
    list.setCurrentIndex(list.model()->index(2, 0));
    press(Qt::Key_Return);
    EXPECT_EQ(radius(), 22);
    press(Qt::Key_Delete);
    EXPECT_FALSE(QFileInfo::exists(two.path));
    EXPECT_EQ(shownNames(), QStringList{"One"});
}

TEST_F(PresetBrowserTest, PicturesShowTheBrushAndFollowItsFile) {
    save("Thin", 3);
    const PresetId id = save("Thick", 30);
    const auto picture = [&](const QString& name) {
        const QAbstractItemModel* model = presets().list()->model();
        const auto found = model->match(model->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
        found.value(0).data(PresetListModel::pictureRole);
        while (!presets().previews().isIdle())
            settle();
        return found.value(0).data(PresetListModel::pictureRole).value<QImage>();
    };
    const auto ink = [](const QImage& image) {
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                dark += 255 - image.pixelColor(x, y).lightness();
        }
        return dark / 255;
    };
    const int thin = ink(picture("Thin")), thick = ink(picture("Thick"));
    EXPECT_GT(thin, 20);
    EXPECT_GT(thick, 2 * thin);
    set(BrushKey::radius, 3.0f);
    set(BrushKey::opacity, 0.75f);
    ASSERT_TRUE(presets().overwrite(id));
    EXPECT_LT(ink(picture("Thick")), 2 * thin);
}

// ---- Favourites and tags

TEST_F(PresetBrowserTest, StarsAndTagsSayWhichAreListed) {
    const auto saveTagged = [&](const QString& name, const PresetInfo& info) {
        BrushParams params = *brush().params();
        setInfoOfParams(params, info);
        ASSERT_TRUE(QDBrushManager::saveParams(params, 200, name, path(name + ".xbf")));
        ASSERT_TRUE(presets().importFiles({path(name + ".xbf")}));
    };
    saveTagged("Soft cloud", {{"wet", "air"}, "For skies.", {}, {}});
    saveTagged("Rough stone", {{"dry"}, {}, {}, {}});
    const PresetId stone = presets().chosen();
    while (!presets().infos().isIdle())
        settle();
    QComboBox& kinds = *presets().kinds();
    const auto choose = [&](const QString& text) {
        kinds.setCurrentIndex(kinds.findText(text));
        emit kinds.activated(kinds.currentIndex());
        QStringList names;
        for (int row = 0; row < presets().list()->model()->rowCount(); ++row)
            names << presets().list()->model()->index(row, 0).data().toString();
        return names;
    };
    EXPECT_EQ(kinds.count(), 5);
    EXPECT_EQ(choose("Wet"), QStringList("Soft cloud"));
    EXPECT_EQ(choose("Dry"), QStringList("Rough stone"));
    EXPECT_EQ(choose("Favourites"), QStringList());
    const auto labels = presets().list()->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 1);
    EXPECT_TRUE(labels[0]->text().contains("star"));

    choose("All");
    presets().search()->setText("SKIES cloud");
    EXPECT_EQ(presets().list()->model()->rowCount(), 1) << "sentences are searched, too";
    presets().search()->setText("nonsense");
    EXPECT_TRUE(labels[0]->isVisible() && labels[0]->text().contains("nonsense"));
    presets().search()->clear();

    QListView& list = *presets().list();
    const auto press = [&](const QModelIndex& index, QPoint at) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(list.viewport(), &event);
        }
        EXPECT_TRUE(index.isValid());
    };
    const QModelIndex cloud = list.model()->index(2, 0);
    press(cloud, PresetDelegate::starRect(list.visualRect(cloud)).center());
    EXPECT_EQ(presets().chosen(), stone) << "a star chooses nothing";
    EXPECT_EQ(choose("Favourites"), QStringList("Soft cloud"));
    presets().setFavourite(stone, true);
    _name = "Gravel";
    ASSERT_TRUE(presets().rename(stone));
    EXPECT_EQ(choose("Dry"), QStringList("Gravel")) << "at once";
    EXPECT_EQ(choose("Favourites"), QStringList({"Gravel", "Soft cloud"}));
    _window->settings().write();
    makeWindow();
    EXPECT_EQ(shownNames().size(), 1) << "both, of which the first is Gravel";
    EXPECT_TRUE(presets().isFavourite(presets().chosen()));
    EXPECT_EQ(presets().kinds()->currentText(), "Favourites");

    // What has gone is forgotten, unless its folder may come back.
    _window->settings().write();
    const QString elsewhere = "0|" + path("away/there.xbf");
    _settings->setValue("preset/favourites", _settings->value("preset/favourites").toStringList()
                                                 << elsewhere);
    ASSERT_TRUE(QFile::remove(path("brushes/Soft cloud.xbf")));
    makeWindow();
    _window->settings().noteChange();
    _window->settings().write();
    EXPECT_EQ(_settings->value("preset/favourites").toStringList(),
              QStringList({elsewhere, "0|" + presets().chosen().path}));
}

}  // namespace

}  // namespace dabcanvas::dabpainter
