// SPDX-License-Identifier: MIT
// What was done to a canvas by chance, recorded, written, read and played again, comes out as it was.
#include "Recording/Recording.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <random>

#include "Canvas/CanvasLayers.h"
#include "Preset/QDBrushManager.h"
#include "Recording/CanvasRecorder.h"
#include "Recording/RecordingPlayer.h"
#include "Recording/RecordingReader.h"
#include "Recording/RecordingWriter.h"
#include "Recording/StrokesRecording.h"
#include "TestFolders.h"
#include "support/CanvasTest.h"

namespace dabcanvas {
namespace {

constexpr int kWidth = 150, kHeight = 110;

QImage stamp(int side, QImage::Format format, unsigned seed) {
    std::mt19937 random(seed);
    QImage image(side, side, format);
    image.fill(Qt::transparent);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.setPixelColor(
                x, y, QColor::fromRgb(random() % 256, random() % 256, random() % 256, random() % 256));
    return image;
}

// Does to a canvas whatever hosts and hands do, by chance.
class Hands {
public:
    // Careful ones leave out what depends on the last bit: blending that replaces wherever there is any paint, and images
    // of nothing but noise.
    Hands(QDDrawCanvas& canvas, unsigned seed, bool careful, bool layers)
        : _canvas(canvas), _random(seed), _careful(careful), _layers(layers) {}

    void act() {
        switch (below(_layers ? 28 : 22)) {
            case 22:
            case 23:
            case 24:
            case 25:
            case 26:
            case 27:
                return layer();
            case 20:
                return turn(unit(), below(2) == 0);
            case 21:
                return area();
            case 0:
                return brush();
            case 1:
                return image();
            case 2:
                return _canvas.clearWithColor(
                    below(2) ? ESColor() : ESColor::rgba(unit(), unit(), unit(), unit()), false);
            case 3:
                _canvas.undo();
                return;
            case 4:
                _canvas.undo();
                _canvas.undo();
                return;
            case 5:
                _canvas.redo();
                return;
            case 6:
                _canvas.markAction();
                return;
            case 7:
                return mouse();
            case 8:
                return preset();
            case 9:
                _canvas.setEnableRecogition(!_canvas.enableRecogition());
                return;
            case 10:
                return ellipse();
            case 11:
                return interrupted();
            case 12:
                below(2) ? _canvas.setRandomSeed(unsigned(below(99)))
                         : _canvas.setRepeatableRandom(below(2) == 0);
                return;
            default:
                if (below(3) == 0)
                    brush();
                return stroke();
        }
    }

private:
    int below(int count) { return int(_random() % unsigned(count)); }
    float unit() { return float(below(1001)) / 1000; }
    QPointF place() { return {unit() * 190.0 - 20, unit() * 150.0 - 20}; }

    void brush() {
        _canvas.setBrushType(below(5));
        _canvas.setRadius(4 + unit() * 40);
        _canvas.setRenderColor(ESColor::rgba(unit(), unit(), unit()));
        _canvas.setFlow(0.1f + unit());
        _canvas.setOpacity(unit());
        const int blend = 1 + below(9);
        _canvas.setBlendType(_careful && (blend == 2 || blend == 9) ? 1 : blend);
        _canvas.setTextureType(below(4));
        _canvas.setHardness(unit());
        _canvas.setRadiusTingle(unit());
        _canvas.setHueTingle(below(2) ? unit() : 0);
        _canvas.setDistribution(below(2) ? unit() : 0);
        _canvas.setColorFul(below(4) == 0);
        _canvas.setRepeatedlyRenderEnabled(below(4) == 0);
        _canvas.setBristles(below(2) ? unit() : 0);
        _canvas.setWetEdge(below(4) == 0 ? unit() : 0);
        _canvas.setMinRoundness(unit() * 3 - 1);
        _canvas.setSlRadiusRelationType(below(3));
        _canvas.setMaskImage(below(3) ? QImage() : stamp(9, QImage::Format_ARGB32, 4));
        _canvas.setNeedMaskTexture(below(3) == 0);
        if (below(3) == 0)
            _canvas.setTextureImages(
                below(3) ? QList<QImage>{stamp(7, QImage::Format_ARGB32_Premultiplied, 3)} : QList<QImage>{});
    }
    void preset() {
        auto params = QDBrushManager::paramsOfDrawView(&_canvas);
        _canvas.setSlRadius(1 + unit() * 30);
        _canvas.setRadius(3 + unit() * 60);
        _canvas.resetWithParams(params, QDBrushManager::kVersion);
    }
    void image() {
        const auto format = below(2) ? QImage::Format_ARGB32 : QImage::Format_RGBA8888_Premultiplied;
        const int side = 5 + below(30);
        QImage picture = stamp(side, format, 8);
        if (_careful)
            picture = stamp(2, format, 8).scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        _canvas.setGlobalScissor(below(4) == 0);
        _canvas.setScissorRect(QRectF(20.5, 10, 60, 70));
        if (below(2))
            _canvas.drawImage(picture, QSizeF(20 + below(90), 30), place(), unit() * 6.0);
        else
            _canvas.setImage(picture, QRectF(below(99), below(99), picture.width(), picture.height()),
                             below(4) == 0);
    }
    void turn(float share, bool mirrored) {
        _canvas.setViewTurn(share * 6.0, mirrored);
        _canvas.setSymmetry(
            {SymmetryKind(int(share * 100) % 5), share * kWidth, 50, 2 + int(share * 22), mirrored});
        QPainterPath area;
        if (mirrored || share < 0.3f)
            area.addEllipse(QPointF(share * 100, 50), 70, 20 + share * 30);
        if (share > 0.5f)
            area.addRect(40.5, 20, 90, 70);
        area.setFillRule(mirrored ? Qt::WindingFill : Qt::OddEvenFill);
        _canvas.setSelection(area);
    }
    void ellipse() {
        ShapeRecord shape;
        shape.kind = ShapeKind::ellipse;
        shape.centre = {unit() * 150.0, 50};
        shape.a = 30;
        shape.b = 12;
        shape.endAngle = 6.2;
        _canvas.drawShape(shape);
    }
    void area() {
        if (!_canvas.isDrawing() && below(2) == 0)
            _canvas.setCanvasArea(QRect(below(20) - 10, below(20) - 10, kWidth - 10 + below(20), kHeight));
    }
    void layer() {
        if (_canvas.isDrawing())
            return;
        auto layers = _canvas.layers();
        const int count = layers.count(), one = below(count), other = below(count);
        switch (below(8)) {
            case 0:
                layers.duplicate(one);
                return;
            case 1:
                layers.remove(one);
                return;
            case 2:
                layers.move(one, other);
                return;
            case 3:
                if (one > 0 && layers.settings(one).isVisible && layers.settings(one - 1).isVisible)
                    layers.mergeDown(one);
                return;
            case 4:
                layers.setSettings(one, {.name = QString::number(below(99)),
                                         .opacity = unit(),
                                         .blendType = std::uint32_t(1 + below(9)),
                                         .isVisible = below(4) != 0,
                                         .locksAlpha = below(3) == 0});
                return;
            case 5:
                layers.add(one, {}, stamp(90, QImage::Format_ARGB32_Premultiplied, 6));
                return;
            case 6:
                layers.add(count, {.name = "Ink"});
                return;
            default:
                layers.setActive(one);
        }
    }
    void stroke() {
        const QPointF from = place();
        const int moves = below(12);
        _canvas.drawingWithBeginPoint(from, unit(), unit());
        for (int i = 0; i < moves; ++i) {
            _canvas.drawingWithMoveToPoint(place(), unit(), below(2) ? unit() : -1);
            if (below(30) == 0)
                _canvas.setBrushType(below(5));  // in mid-stroke
            if (below(40) == 0)
                _canvas.clear();
        }
        if (below(12) != 0)  // else the next one begins in mid-stroke
            _canvas.drawingWithEndPoint(place(), unit(), unit());
    }
    // Withdrawn, for one of few moves, or a click.
    void mouse() {
        dragMouse(_canvas, place(), {3.5, unit() * 4.0 - 2}, below(14)), _canvas.mouseUp({place(), 0.5f});
    }
    void interrupted() {
        dragMouse(_canvas, place(), {4, 1}, 5);
        below(2) ? image() : brush();
        _canvas.withdrawPointerStroke();
    }

    QDDrawCanvas& _canvas;
    std::mt19937 _random;
    bool _careful, _layers;
};

Recording throughText(const Recording& recording) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    EXPECT_TRUE(writeRecording(recording, file));
    const auto read = readRecording(file.data());
    EXPECT_TRUE(read) << read.problem().text("recording").toStdString();
    return read ? *read : Recording();
}

struct Script {
    const char* name;
    unsigned firstSeed;
    int seeds, before, acts;
    bool autoMark;
    int canvasDepth = 8;
    bool layers = false;
};
void PrintTo(const Script& script, std::ostream* out) {
    *out << script.name;
}

class RecordingTest : public CanvasTest, public ::testing::WithParamInterface<Script> {
protected:
    static std::unique_ptr<QDDrawCanvas> blank(SurfaceKind kind, QSize size = {kWidth, kHeight}) {
        auto canvas = makeCanvas(size.width(), size.height(), kind, GetParam().canvasDepth);
        canvas->setRepeatableRandom(false);
        return canvas;
    }
    // All bits of what was painted, and 8 of each channel.
    struct Seen {
        std::vector<std::uint8_t> bits;
        QImage image;
        std::vector<std::pair<QString, QImage>> layers;
        int active;
        bool operator==(const Seen&) const = default;
    };
    static Seen seen(QDDrawCanvas& canvas) {
        auto layers = canvas.layers();
        Seen seen{bitsOf(canvas), canvas.image(), {}, layers.active()};
        for (int i = 0; i < layers.count(); ++i)
            seen.layers.emplace_back(layers.settings(i).name, layers.deepImage(i));
        return seen;
    }
    // What was drawn, and what was recorded of it.
    static std::pair<Seen, Recording> drawn(unsigned seed, SurfaceKind kind, bool careful = false) {
        const Script& script = GetParam();
        auto canvas = blank(kind);
        canvas->setAutoMark(script.autoMark);
        Hands hands(*canvas, seed, careful, script.layers);
        for (int i = 0; i < script.before; ++i)
            hands.act();
        if (canvas->isDrawing())
            canvas->drawingWithEndPoint({9, 9});
        Recording recording;
        auto recorder = CanvasRecorder::start(*canvas, recording);
        EXPECT_TRUE(recorder);
        for (int i = 0; i < script.acts; ++i)
            hands.act();
        const Seen painted = seen(*canvas);
        recorder.reset();
        return {painted, recording};
    }
    static Seen played(const Recording& recording, SurfaceKind kind) {
        auto canvas = blank(kind, recording.header.size);
        RecordingPlayer player(recording, *canvas);
        EXPECT_TRUE(player.playAll()) << player.problem().toStdString();
        return seen(*canvas);
    }
};

TEST_P(RecordingTest, PlaysToTheSameBytesOnTheSameSurface) {
    for (const SurfaceKind kind : {SurfaceKind::processor, SurfaceKind::gpu}) {
        for (unsigned seed = GetParam().firstSeed; seed < GetParam().firstSeed + unsigned(GetParam().seeds);
             ++seed) {
            const auto [painted, recording] = drawn(seed, kind);
            EXPECT_TRUE(painted == played(throughText(recording), kind))
                << "seed " << seed << (kind == SurfaceKind::gpu ? " on OpenGL" : "");
        }
    }
}

class OtherSurfaceTest : public RecordingTest {};

// What rounds differently adds up, stroke by stroke: now and then a channel is a step farther off.
TEST_P(OtherSurfaceTest, PlaysNearlyTheSame) {
    for (unsigned seed = GetParam().firstSeed; seed < GetParam().firstSeed + unsigned(GetParam().seeds);
         ++seed) {
        const auto [painted, recording] = drawn(seed, SurfaceKind::processor, true);
        const QImage other = played(recording, SurfaceKind::gpu).image;
        ASSERT_EQ(other.size(), painted.image.size());
        const auto bytes = std::size_t(other.sizeInBytes());
        std::size_t far = 0;
        for (std::size_t i = 0; i < bytes; ++i) {
            const int off = std::abs(other.constBits()[i] - painted.image.constBits()[i]);
            far += off > 3 ? 1 : 0;
            ASSERT_LE(off, 5) << "seed " << seed;
        }
        EXPECT_LE(far, bytes / 1000) << "seed " << seed;
    }
}

const Script kFlatScripts[] = {{"fresh", 100, 12, 0, 25, false},
                               {"steps", 200, 12, 0, 25, true},
                               {"begun later", 300, 12, 12, 25, true},
                               {"16 bits", 402, 6, 8, 20, true, 16}};
const Script kLayeredScripts[] = {{"layers", 500, 8, 14, 40, true, 8, true},
                                  {"deep layers", 600, 3, 14, 40, true, 16, true}};
const auto nameOf = [](const ::testing::TestParamInfo<Script>& script) {
    return QByteArray(script.param.name).replace(' ', "").toStdString();
};
INSTANTIATE_TEST_SUITE_P(Flat, RecordingTest, ::testing::ValuesIn(kFlatScripts), nameOf);
INSTANTIATE_TEST_SUITE_P(Layered, RecordingTest, ::testing::ValuesIn(kLayeredScripts), nameOf);
INSTANTIATE_TEST_SUITE_P(Flat, OtherSurfaceTest, ::testing::ValuesIn(kFlatScripts), nameOf);

// ---- Playing

class RecordingPlayerTest : public CanvasTest {
protected:
    // Three strokes a second apart, the second one undone.
    static Recording threeStrokes() {
        auto canvas = makeCanvas(200, 150, SurfaceKind::processor);
        canvas->setAutoMark(true);
        canvas->setRadius(24);
        Recording recording;
        const auto recorder = CanvasRecorder::start(*canvas, recording, 7);
        for (const double y : {30.0, 75.0, 120.0}) {
            paintWave(*canvas, y);
            if (y == 75)
                canvas->undo();
        }
        double second = 0;
        for (RecordedEvent& event : recording.events) {
            event.time = second;
            auto* stroke = std::get_if<StrokePart>(&event.what);
            for (std::size_t i = 0; stroke != nullptr && i < stroke->samples.size(); ++i)
                stroke->samples[i].time = second + 0.01 * double(i);
            second += stroke != nullptr ? 1 : 0;
        }
        return recording;
    }
    static bool isPainted(QDDrawCanvas& canvas, double x, double y) {
        const QImage image = canvas.image();
        return qAlpha(image.pixel(int(x * image.width() / 200), int(y * image.height() / 150))) > 128;
    }
};

TEST_F(RecordingPlayerTest, StopsAfterAStrokeAndAtATime) {
    const Recording recording = threeStrokes();
    auto canvas = makeCanvas(200, 150, SurfaceKind::processor);
    RecordingPlayer player(recording, *canvas);
    const auto painted = [&] {
        // Where the waves cross their middle.
        const double x = 20 + 160 * 9 / 30.0;
        return std::vector<bool>{isPainted(*canvas, x, 30), isPainted(*canvas, x, 75),
                                 isPainted(*canvas, x, 120)};
    };
    EXPECT_TRUE(player.playStroke());
    EXPECT_EQ(painted(), (std::vector<bool>{true, false, false}));
    EXPECT_TRUE(player.playUntil(1.9));
    EXPECT_EQ(painted(), (std::vector<bool>{true, true, false}));
    EXPECT_EQ(player.time(), 2);  // of the undo
    EXPECT_TRUE(player.playUntil(2.05));
    EXPECT_EQ(painted(), (std::vector<bool>{true, false, false}));
    EXPECT_TRUE(canvas->isDrawing());
    EXPECT_TRUE(player.playAll());
    EXPECT_EQ(painted(), (std::vector<bool>{true, false, true}));
    EXPECT_FALSE(player.playStroke());
}

TEST_F(RecordingPlayerTest, AnotherSizeIsTheSamePictureScaled) {
    const Recording recording = threeStrokes();
    auto whole = makeCanvas(200, 150, SurfaceKind::processor),
         half = makeCanvas(100, 75, SurfaceKind::processor);
    RecordingPlayer(recording, *whole).playAll();
    ASSERT_TRUE(RecordingPlayer(recording, *half, {.scale = 0.5}).playAll());
    EXPECT_EQ(half->radius(), 12);
    const QImage expected = whole->image().scaled(100, 75, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                 found = half->image();
    double difference = 0;
    for (int y = 0; y < 75; ++y)
        for (int x = 0; x < 100; ++x)
            difference += std::abs(qAlpha(expected.pixel(x, y)) - qAlpha(found.pixel(x, y)));
    EXPECT_LT(difference / 7500, 4);  // edges; one stroke too many makes 30
    EXPECT_FALSE(RecordingPlayer(recording, *half).begin());
}

TEST_F(RecordingPlayerTest, AnotherSeedPaintsSomethingElse) {
    auto canvas = makeCanvas(), same = makeCanvas(), other = makeCanvas();
    for (auto* each : {canvas.get(), same.get(), other.get()})
        each->setRepeatableRandom(false);
    Recording recording;
    jitter(*canvas);
    auto recorder = CanvasRecorder::start(*canvas, recording, 5);
    paintWave(*canvas);
    recorder.reset();
    EXPECT_EQ(recording.header.seed, 5u);
    EXPECT_TRUE(RecordingPlayer(recording, *same, {.seed = 5}).playAll());
    EXPECT_TRUE(RecordingPlayer(recording, *other, {.seed = 6}).playAll());
    EXPECT_EQ(same->image(), canvas->image());
    EXPECT_NE(other->image(), canvas->image());
}

TEST_F(RecordingPlayerTest, StrokesOfAnyFormArePlayedLikeAnyOther) {
    const QByteArray json = R"({"canvas": {"width": 200, "height": 150, "background": "#ffe0c0"}, "strokes": [
        {"set": {"radius": 9, "renderColor": "#203040"}, "samples": [[20, 30, 0.5], [90, 60, 1], [150, 20]]},
        {"brush": "soft-blender.xbf", "samples": [[20, 60], [60, 10], [150, 90]]}]})";
    const auto recording = readAsRecording(json, QStringLiteral(DABCANVAS_SAMPLES "/brushes"));
    ASSERT_TRUE(recording) << recording.problem().text("R").toStdString();
    EXPECT_GT(durationOf(*recording), 1);
    auto played = makeCanvas(200, 150, SurfaceKind::processor),
         painted = makeCanvas(200, 150, SurfaceKind::processor);
    ASSERT_TRUE(RecordingPlayer(*recording, *played).playAll());
    painted->setRepeatableRandom(false);
    painted->setRandomSeed(0);
    painted->clearWithColor(ESColor(QColor("#ffe0c0")), false);
    painted->setRadius(9);
    painted->setRenderColor(ESColor(QColor("#203040")));
    painted->drawingWithBeginPoint({20, 30}, 0.5f);
    painted->drawingWithMoveToPoint({90, 60}, 1.0f);
    painted->drawingWithEndPoint({150, 20});
    ASSERT_TRUE(painted->resetWithXBFPath(QStringLiteral(DABCANVAS_SAMPLES "/brushes/soft-blender.xbf")));
    paintThrough(*painted, {{20, 60}, {60, 10}, {150, 90}});
    EXPECT_EQ(played->image(), painted->image());
    EXPECT_FALSE(readAsRecording(QByteArray(json).replace("soft-blender", "none"), "."));
    EXPECT_FALSE(readAsRecording(QByteArray(json).replace("\"radius\": 9", "\"radius\": 0"), "."));
}

}  // namespace
}  // namespace dabcanvas
