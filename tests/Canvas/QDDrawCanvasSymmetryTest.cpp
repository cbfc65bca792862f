// SPDX-License-Identifier: MIT
// Copies of strokes, mirrored and turned.
#include <QTransform>
#include <array>

#include "History/ImagesUndoManager.h"
#include "support/CanvasTest.h"

namespace {

using namespace dabcanvas;

constexpr int kSide = 200;

// No flip nor turn of it is itself.
QImage unevenTip() {
    QImage tip(32, 32, QImage::Format_RGBA8888_Premultiplied);
    tip.fill(Qt::transparent);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const int alpha = x < 8 || y > 25 ? 255 : std::max(0, 160 - 9 * x + 3 * y);
            tip.setPixelColor(x, y, QColor(0, 0, 0, std::min(alpha, 255)));
        }
    }
    return tip;
}

enum class Kind { dabs, smudge, bristles };

void takeBrush(QDDrawCanvas& canvas, Kind kind) {
    canvas.setTextureType(0);
    canvas.setTextureImages({unevenTip()});
    canvas.setRadius(36);
    canvas.setRadian(0.3f);
    canvas.setRoundness(0.7f);
    canvas.setFlow(0.6f);
    canvas.setRenderColor(ESColor::rgba(0.7f, 0.2f, 0.1f));
    if (kind != Kind::dabs) {
        canvas.setBrushType(3);
        canvas.setMoistQuantity(0.9f);
        canvas.setLoadQuantity(0.3f);
        canvas.setBristles(kind == Kind::bristles ? 0.8f : 0);
    } else {
        canvas.setMoveRadianEnable(true);
    }
}

// Of all channels, the largest difference but for a few.
int farthest(const QImage& a, const QImage& b, int few = 0) {
    std::array<int, 256> counts{};
    for (int y = 0; y < a.height(); ++y) {
        const uchar *one = a.constScanLine(y), *other = b.constScanLine(y);
        for (int i = 0; i < 4 * a.width(); ++i) {
            ++counts[static_cast<std::size_t>(std::abs(one[i] - other[i]))];
        }
    }
    std::size_t most = 255;
    for (int left = few; most > 0 && counts[most] <= left; --most) {
        left -= counts[most];
    }
    return static_cast<int>(most);
}

QImage turned(const QImage& image, double degrees) {
    return image.transformed(QTransform().rotate(degrees));
}

struct Row {
    const char* name;
    Symmetry symmetry;
    std::vector<QImage (*)(const QImage&)> same;  // makes of the picture itself
    Kind kind = Kind::dabs;
};

const auto kLeftRight = [](const QImage& image) { return image.mirrored(true, false); };
const auto kUpDown = [](const QImage& image) { return image.mirrored(false, true); };
const auto kHalfTurn = [](const QImage& image) { return image.mirrored(true, true); };
const auto kQuarter = [](const QImage& image) { return turned(image, 90); };

const Row kRows[] = {
    {"Vertical", {SymmetryKind::vertical, 100, 100}, {kLeftRight}},
    {"Horizontal", {SymmetryKind::horizontal, 100, 100}, {kUpDown}},
    {"Both", {SymmetryKind::both, 100, 100}, {kLeftRight, kUpDown}},
    {"TwoRays", {SymmetryKind::radial, 100, 100, 2}, {kHalfTurn}},
    {"FourRays", {SymmetryKind::radial, 100, 100, 4}, {kQuarter}},
    {"SixRaysMirrored", {SymmetryKind::radial, 100, 100, 6, true}, {kLeftRight, kUpDown}},
    {"EightRaysMirrored", {SymmetryKind::radial, 100, 100, 8, true}, {kLeftRight, kQuarter}},
    {"SmudgedVertical", {SymmetryKind::vertical, 100, 100}, {kLeftRight}, Kind::smudge},
    {"BristlesVertical", {SymmetryKind::vertical, 100, 100}, {kLeftRight}, Kind::bristles},
    {"BristlesBoth", {SymmetryKind::both, 100, 100}, {kLeftRight, kUpDown}, Kind::bristles},
    {"BristlesFourRays", {SymmetryKind::radial, 100, 100, 4}, {kQuarter}, Kind::bristles},
    {"SmudgedFourRays", {SymmetryKind::radial, 100, 100, 4}, {kQuarter}, Kind::smudge},
};

class CanvasSymmetryTest : public CanvasTest,
                           public ::testing::WithParamInterface<std::tuple<SurfaceKind, Row>> {
protected:
    // As symmetric as the strokes are.
    static QImage ground() {
        QImage image(kSide, kSide, QImage::Format_RGBA8888_Premultiplied);
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                const int ring = std::max(std::abs(2 * x + 1 - kSide), std::abs(2 * y + 1 - kSide));
                image.setPixelColor(x, y, QColor(ring, 255 - ring, (ring / 16) % 2 * 200));
            }
        }
        return image;
    }
};

TEST_P(CanvasSymmetryTest, ThePictureIsItsOwnImage) {
    const auto& [surface, row] = GetParam();
    auto canvas = makeCanvas(kSide, kSide, surface);
    canvas->setImage(ground(), QRectF(0, 0, kSide, kSide));
    canvas->resetUndoManager();
    canvas->setAutoMark(true);
    const QImage before = canvas->image();
    takeBrush(*canvas, row.kind);
    canvas->setSymmetry(row.symmetry);
    // Apart from its copies, and over one of them where dabs may lie in any order.
    paintThrough(*canvas,
                 {{30, 20}, {50, 34}, {70, 62}, row.kind != Kind::dabs ? QPointF(75, 68) : QPointF(112, 90)});
    const QImage after = canvas->image();
    EXPECT_GT(farthest(before, after), 60);
    for (const auto& imageOf : row.same) {
        // Rounding goes by the place: what lies at a whole number may come out beside it on both sides.
        const QImage image = imageOf(after);
        EXPECT_LE(farthest(after, image, 16), 1);
        EXPECT_LE(farthest(after, image), 2);
    }
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_EQ(canvas->image(), before);
    EXPECT_FALSE(canvas->canUndo());
}

std::string nameOf(const ::testing::TestParamInfo<std::tuple<SurfaceKind, Row>>& test) {
    return std::string(std::get<Row>(test.param).name) +
           (std::get<SurfaceKind>(test.param) == SurfaceKind::gpu ? "OnGL" : "OnTheProcessor");
}

INSTANTIATE_TEST_SUITE_P(All, CanvasSymmetryTest,
                         ::testing::Combine(::testing::Values(SurfaceKind::processor, SurfaceKind::gpu),
                                            ::testing::ValuesIn(kRows)),
                         nameOf);

using CanvasSymmetryOffTest = CanvasTest;

TEST_F(CanvasSymmetryOffTest, TheStrokeItselfIsWhatItIsWithout) {
    for (const SurfaceKind surface : {SurfaceKind::processor, SurfaceKind::gpu}) {
        for (const Kind kind : {Kind::dabs, Kind::smudge, Kind::bristles}) {
            auto plain = makeCanvas(kSide, kSide, surface), mirrored = makeCanvas(kSide, kSide, surface);
            mirrored->setSymmetry({SymmetryKind::vertical, 100, 100});
            for (QDDrawCanvas* canvas : {plain.get(), mirrored.get()}) {
                canvas->setImage(unevenTip(), QRectF(0, 0, kSide, kSide));
                takeBrush(*canvas, kind);
                beginThrough(*canvas, {{30, 20}, {50, 60}});
                canvas->displayImage();
                canvas->drawingWithEndPoint({60, 150});
            }
            const QRect half(0, 0, 90, kSide);
            EXPECT_LE(farthest(plain->image().copy(half), mirrored->image().copy(half)), 1) << int(kind);
        }
    }
}

TEST_F(CanvasSymmetryOffTest, CopiesReachTheCanvasFromBesideIt) {
    for (const SurfaceKind surface : {SurfaceKind::processor, SurfaceKind::gpu}) {
        auto plain = makeCanvas(kSide, kSide, surface), mirrored = makeCanvas(kSide, kSide, surface);
        takeBrush(*plain, Kind::dabs);
        takeBrush(*mirrored, Kind::dabs);
        mirrored->setSymmetry({SymmetryKind::vertical, 100, 100});
        mirrored->displayImage();
        paintThrough(*mirrored, {{230, 20}, {250, 60}, {260, 150}});
        EXPECT_EQ(farthest(mirrored->image(), solidImage({kSide, kSide})), 0);
        mirrored->setSymmetry({SymmetryKind::vertical, 140, 100});
        paintThrough(*mirrored, {{230, 20}, {250, 60}, {240, 150}});
        EXPECT_GT(farthest(mirrored->displayImage(), solidImage({kSide, kSide})), 100);
        EXPECT_EQ(mirrored->displayImage(), mirrored->image());

        mirrored->setSymmetry({.centreX = 3});
        for (QDDrawCanvas* canvas : {plain.get(), mirrored.get()}) {
            canvas->clear();
            canvas->setRandomSeed(5);
            paintThrough(*canvas, {{30, 20}, {50, 60}, {60, 150}});
        }
        EXPECT_EQ(bitsOf(*plain), bitsOf(*mirrored));
    }
}

}  // namespace
