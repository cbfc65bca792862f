// SPDX-License-Identifier: MIT
// Random layers beside a model of them: what each holds, what all look like, and that every step comes back.
#include <QDirIterator>
#include <QTemporaryDir>
#include <QThread>
#include <random>

#include "Canvas/CanvasLayers.h"
#include "History/ImagesUndoManager.h"
#include "History/UndoRecovery.h"
#include "support/BlendReference.h"
#include "support/CanvasTest.h"
#include "support/LogCapture.h"

using dabcanvas::CanvasLayers;
using dabcanvas::LayerSettings;
using dabcanvas::UndoRecovery;

namespace {

constexpr int kModes[] = {1, 2, 4, 5, 6, 7, 8, 9};

struct ModelLayer {
    int id;
    LayerSettings settings;
    QImage image;
};
using Model = std::vector<ModelLayer>;

// One on the other, rounded to the nearest.
QImage blendedOn(const QImage& below, const QImage& above, const LayerSettings& settings) {
    QImage result = below;
    for (int y = 0; y < below.height(); ++y) {
        for (int x = 0; x < below.width(); ++x) {
            dabcanvas::reference::Colour back, line;
            for (std::size_t i = 0; i < 4; ++i) {
                const auto at = static_cast<std::size_t>(x) * 4 + i;
                back[i] = below.constScanLine(y)[at] / 255.0;
                line[i] = above.constScanLine(y)[at] / 255.0 * double(settings.opacity);
            }
            const auto mixed = dabcanvas::reference::blended(settings.blendType, back, line);
            for (std::size_t i = 0; i < 4; ++i) {
                result.scanLine(y)[static_cast<std::size_t>(x) * 4 + i] =
                    static_cast<uchar>(std::lround(mixed[i] * 255));
            }
        }
    }
    return result;
}

QImage flattened(const Model& model, const QSize& size) {
    QImage result = solidImage(size);
    for (const ModelLayer& layer : model) {
        result = layer.settings.isVisible ? blendedOn(result, layer.image, layer.settings) : result;
    }
    return result;
}

// As a process leaves it that dies: once nothing more is written, what is kept is copied while its owner lives.
void copyOfKept(const QString& from, const QString& to) {
    const auto bytes = [&] {
        qint64 sum = 0;
        for (QDirIterator file(from, QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
            sum += QFileInfo(file.next()).size();
        }
        return sum;
    };
    for (qint64 before = -1, now = bytes(); before != now; before = std::exchange(now, bytes())) {
        QThread::msleep(150);
    }
    for (QDirIterator file(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); file.hasNext();) {
        const QString path = file.next(), there = to + path.mid(from.size());
        QDir().mkpath(QFileInfo(there).path());
        ASSERT_TRUE(QFile::copy(path, there));
    }
}

class LayerStackTest : public CanvasTest, public ::testing::WithParamInterface<int> {
protected:
    void start(int seed, const QSize& size = {150, 100}) {
        random.seed(static_cast<unsigned>(seed));
        canvas = makeCanvas(size.width(), size.height(), SurfaceKind::automatic, GetParam());
        canvas->setAutoMark(true);
        model = {{0, {}, canvas->image()}};
        steps = {model};
        present = 0;
        active = 0;
        canvas->undoManager();
    }
    int below(int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); }
    static int rounded() { return GetParam() == 8 ? 1 : 2; }  // of 16 bits, the model has 8
    int count() const { return static_cast<int>(model.size()); }
    ModelLayer& at(int layer) { return model[static_cast<std::size_t>(layer)]; }
    int activeAt() const {
        const auto found = std::find_if(model.begin(), model.end(),
                                        [&](const ModelLayer& layer) { return layer.id == active; });
        return static_cast<int>(found - model.begin());
    }
    void step() {
        steps.resize(present + 1);
        steps.push_back(model);
        ++present;
    }
    LayerSettings anySettings() {
        return {QString::number(below(1000)), static_cast<float>(below(5)) / 4,
                static_cast<std::uint32_t>(kModes[below(8)]), below(4) > 0, below(4) == 0};
    }
    QImage anyPicture() {
        QImage picture = patternImage({20 + below(200), 20 + below(120)}, below(255));
        fillRect(picture, QRect(below(60), below(60), 50, 40), Qt::transparent);
        return picture;
    }
    void paint() {
        canvas->setRenderColor(QColor::fromHsv(below(360), 255, 255));
        canvas->setBlendType(below(5) == 0 ? 5 : 1);
        paintWave(*canvas, 20 + below(70), 4 + below(30));
        at(activeAt()).image = canvas->image();
        step();
    }
    void goTo(std::size_t there) {
        present = there;
        model = steps[present];
        if (activeAt() == count()) {
            active = at(canvas->layers().active()).id;  // which one is not said
        }
    }
    void act() {
        CanvasLayers layers = canvas->layers();
        const int layer = below(count()), to = below(count());
        switch (below(12)) {
            case 0: {
                const LayerSettings settings = anySettings();
                const QImage picture = below(2) == 0 ? QImage() : anyPicture();
                ASSERT_TRUE(layers.add(layer, settings, picture));
                const QImage whole = picture.isNull() ? solidImage(canvas->image().size())
                                                      : picture.copy(canvas->image().rect());
                model.insert(model.begin() + layer, {active = ++lastId, settings, whole});
                return step();
            }
            case 1:
                ASSERT_EQ(layers.remove(layer), count() > 1);
                if (count() > 1) {
                    const bool wasActive = at(layer).id == active;
                    model.erase(model.begin() + layer);
                    active = wasActive ? at(std::max(layer - 1, 0)).id : active;
                    step();
                }
                return;
            case 2:
                ASSERT_TRUE(layers.move(layer, to));
                if (layer != to) {
                    const ModelLayer moved = at(layer);
                    model.erase(model.begin() + layer);
                    model.insert(model.begin() + to, moved);
                    step();
                }
                return;
            case 3: {
                ASSERT_TRUE(layers.duplicate(layer));
                ModelLayer copy = at(layer);
                copy.id = active = ++lastId;
                model.insert(model.begin() + layer + 1, copy);
                return step();
            }
            case 4:
                if (layer > 0 && at(layer).settings.isVisible && at(layer - 1).settings.isVisible) {
                    ASSERT_TRUE(layers.mergeDown(layer));
                    const QImage merged = blendedOn(at(layer - 1).image, at(layer).image, at(layer).settings);
                    EXPECT_TRUE(imagesMatch(layers.image(layer - 1), merged, rounded()));
                    at(layer - 1).image = layers.image(layer - 1);
                    active = at(layer).id == active ? at(layer - 1).id : active;
                    model.erase(model.begin() + layer);
                    step();
                }
                return;
            case 5: {
                const LayerSettings settings = anySettings();
                ASSERT_TRUE(layers.setSettings(layer, settings));
                if (settings != std::exchange(at(layer).settings, settings)) {
                    step();
                }
                return;
            }
            case 6:
                ASSERT_TRUE(layers.setActive(layer));
                active = at(layer).id;
                return;
            case 7:
                ASSERT_EQ(!canvas->undo().isNull(), present > 0);
                return present > 0 ? goTo(present - 1) : void();
            case 8:
                ASSERT_EQ(!canvas->redo().isNull(), present + 1 < steps.size());
                return present + 1 < steps.size() ? goTo(present + 1) : void();
            case 9: {
                const QRect area(below(60) - 30, below(60) - 30, 100 + below(100), 60 + below(100));
                ASSERT_TRUE(canvas->setCanvasArea(area));
                for (int i = 0; i < count(); ++i) {
                    const QImage now = layers.image(i);  // of 16 bits, rounded by the place
                    EXPECT_TRUE(imagesMatch(now, at(i).image.copy(area), rounded() - 1));
                    at(i).image = now;
                }
                return step();
            }
            default:
                paint();
        }
    }
    void check() {
        CanvasLayers layers = canvas->layers();
        ASSERT_EQ(layers.count(), count());
        EXPECT_EQ(layers.active(), activeAt());
        for (int i = 0; i < count(); ++i) {
            EXPECT_EQ(layers.settings(i), at(i).settings);
            ASSERT_TRUE(imagesMatch(layers.image(i), at(i).image)) << "layer " << i << " of " << count();
        }
        EXPECT_TRUE(imagesMatch(canvas->image(), at(activeAt()).image));
        const QImage looks = flattened(model, canvas->image().size());
        ASSERT_TRUE(imagesMatch(layers.flattened(), looks, rounded() * count()));
        ASSERT_TRUE(imagesMatch(canvas->displayImage(), layers.flattened())) << "only what changed is drawn";
    }

    std::mt19937 random;
    std::unique_ptr<QDDrawCanvas> canvas;
    Model model;
    std::vector<Model> steps;
    std::size_t present = 0;
    int active = 0, lastId = 0;
};

TEST_P(LayerStackTest, LayersAreWhatAModelOfThemIs) {
    for (int seed = 0; seed < 12; ++seed) {
        start(seed);
        for (int i = 0; i < 40; ++i) {
            SCOPED_TRACE(::testing::Message() << "seed " << seed << " act " << i);
            act();
            check();
            if (HasFatalFailure()) {
                return;
            }
        }
    }
}

TEST_P(LayerStackTest, TheyComeBackAfterACrash) {
    const QTemporaryDir folder;
    UndoRecovery::setFolder(folder.path());
    for (int seed = 20; seed < 24; ++seed) {
        start(seed);
        ASSERT_TRUE(canvas->setKeepsForRecovery(true));
        for (int i = 0; i < 25; ++i) {
            act();
        }
        const QTemporaryDir copied;
        copyOfKept(folder.path(), copied.path());
        const auto lived = std::exchange(canvas, makeCanvas(model[0].image.width(), model[0].image.height(),
                                                            SurfaceKind::automatic, GetParam()));
        UndoRecovery::setFolder(copied.path());
        const auto left = UndoRecovery::list();
        ASSERT_EQ(left.size(), 1);
        QString problem;
        ASSERT_TRUE(canvas->recoverHistory(left[0].id, &problem)) << qPrintable(problem);
        canvas->layers().setActive(lived->layers().active());
        check();
        const QImage seen = canvas->layers().flattened().scaled(
            left[0].thumbnail.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_TRUE(imagesMatch(left[0].thumbnail, seen, 60)) << "reduced before it was composed";
        while (!canvas->undo().isNull()) {
            goTo(present - 1);
            check();
        }
        canvas.reset();
        UndoRecovery::setFolder(folder.path());
    }
    UndoRecovery::setFolder({});
}

INSTANTIATE_TEST_SUITE_P(Depths, LayerStackTest, ::testing::Values(8, 16));

}  // namespace
