// SPDX-License-Identifier: MIT
#include <QPainter>
#include <QTransform>
#include <limits>
#include <numbers>
#include <random>

#include "ESRender/ESImageRender.h"
#include "support/CanvasTest.h"
#include "support/FailingDriver.h"
#include "support/LogCapture.h"

namespace {

constexpr double kQuarter = std::numbers::pi / 2;

// Random pixels of every alpha.
QImage noise(const QSize& size, unsigned seed = 1) {
    QImage image(size, QImage::Format_RGBA8888);
    std::generate_n(image.bits(), image.sizeInBytes(), std::mt19937(seed));
    return std::move(image).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

QImage withPart(QImage whole, const QPoint& at, const QImage& part) {
    for (int y = 0; y < part.height(); ++y) {
        std::copy_n(part.constScanLine(y), 4 * part.width(), whole.scanLine(at.y() + y) + 4 * at.x());
    }
    return whole;
}

QByteArray bottomUp(const QImage& image) {
    const QImage rows = image.mirrored();
    return QByteArray(reinterpret_cast<const char*>(rows.constBits()), rows.sizeInBytes());
}

class CanvasImageTest : public CanvasTest {
protected:
    std::unique_ptr<QDDrawCanvas> tintedCanvas(SurfaceKind surface = SurfaceKind::automatic) {
        auto canvas = makeCanvas(200, 150, surface);
        canvas->clearWithColor(ESColor::rgba(0.2f, 0.4f, 0.6f, 0.8f), false);
        return canvas;
    }
    static const QImage& part() {
        static const QImage image = noise({40, 24});
        return image;
    }
    const QRectF _at{50, 60, 40, 24};  // where it is placed
    QImage placedOn(const QImage& canvas) { return withPart(canvas, {50, 60}, part()); }
};

// Exact pixels

TEST_F(CanvasImageTest, EveryKindOfImageIsTakenForItsPixels) {
    auto canvas = makeCanvas();
    const QImage source = noise({43, 31});
    for (const QImage::Format format :
         {QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32, QImage::Format_RGBA8888,
          QImage::Format_RGB32, QImage::Format_RGBX8888, QImage::Format_RGB888, QImage::Format_Grayscale8,
          QImage::Format_Indexed8, QImage::Format_Alpha8, QImage::Format_Mono}) {
        SCOPED_TRACE(format);
        QImage image = source.convertToFormat(format);
        image.setDevicePixelRatio(2);
        ASSERT_TRUE(canvas->setImage(image, QRectF(7, 9, 43, 31)));
        EXPECT_TRUE(imagesMatch(canvas->imageWithRect(QRectF(7, 9, 43, 31)), image));
        // Scaled, too: one axis by more than the other, as by its own pixels.
        const QRectF narrow(7, 9, 5, 31);
        ASSERT_TRUE(canvas->setImage(image, narrow));
        const QImage scaled = canvas->imageWithRect(narrow);
        image.setDevicePixelRatio(1);
        ASSERT_TRUE(canvas->setImage(image.convertToFormat(QImage::Format_RGBA8888), narrow));
        EXPECT_TRUE(imagesMatch(scaled, canvas->imageWithRect(narrow)));
    }
    const QImage window(source.constBits() + 8, 30, 31, source.bytesPerLine(), source.format());
    ASSERT_TRUE(canvas->setImage(window, QRectF(0, 0, 30, 31)));
    EXPECT_TRUE(imagesMatch(canvas->imageWithRect(QRectF(0, 0, 30, 31)), source.copy(2, 0, 30, 31)));
}

TEST_F(CanvasImageTest, TheCanvasAndItsPartsComeBackAsTheyWereSet) {
    for (const QSize size :
         {QSize(211, 133), QSize(641, 487), QSize(2500, 300), QSize(3000, 1100), QSize(1, 1)}) {
        SCOPED_TRACE(size.width());
        ShownCanvas canvas(size, {size.width() * 2, size.height() * 3});
        const QRect whole(QPoint(), size), part(whole.center(), whole.bottomRight());
        const QImage image = noise(size);
        ASSERT_TRUE(canvas.setImageInBufferRect(image, whole));
        EXPECT_TRUE(imagesMatch(canvas.displayImage(), image));
        for (const QRect rect : {whole, part}) {
            const QRectF inView(rect.x() * 2, rect.y() * 3, rect.width() * 2, rect.height() * 3);
            const QImage expected = image.copy(rect);
            EXPECT_TRUE(imagesMatch(canvas.imageWithRect(inView), expected));
            EXPECT_TRUE(imagesMatch(canvas.newCGImageWithRect(inView), expected));
            QByteArray bytes(expected.sizeInBytes(), 0);
            EXPECT_TRUE(canvas.readData(reinterpret_cast<unsigned char*>(bytes.data()), inView));
            EXPECT_EQ(bytes, bottomUp(expected));
            bytes.fill(0);
            EXPECT_TRUE(canvas.readDataBufferRect(reinterpret_cast<unsigned char*>(bytes.data()), rect));
            EXPECT_EQ(bytes, bottomUp(expected));
        }
        canvas.clear();
        ASSERT_TRUE(canvas.setData(bottomUp(image), size, whole, true));
        EXPECT_TRUE(imagesMatch(canvas.image(), image));
    }
}

TEST_F(CanvasImageTest, DrawBlendsAndSetReplaces) {
    auto canvas = tintedCanvas();
    const QImage before = canvas->image();
    ASSERT_TRUE(canvas->setImage(part(), _at));
    EXPECT_TRUE(imagesMatch(canvas->image(), placedOn(before)));
    QImage over = before;
    QPainter(&over).drawImage(50, 60, part());
    for (const bool asData : {false, true}) {
        canvas = tintedCanvas();
        ASSERT_TRUE(asData ? canvas->drawData(bottomUp(part()), {40, 24}, _at)
                           : canvas->drawImage(part(), _at));
        EXPECT_TRUE(imagesMatch(canvas->image(), over, 1));
    }
}

TEST_F(CanvasImageTest, QuarterTurnsAreCounterClockwiseAndExact) {
    for (int quarters = -1; quarters <= 5; ++quarters) {
        SCOPED_TRACE(quarters);
        const QImage turned = part().transformed(QTransform().rotate(-90 * (quarters % 4)));
        const QPoint corner(100 - turned.width() / 2, 70 - turned.height() / 2);
        auto canvas = makeCanvas(200, 150, SurfaceKind::automatic, quarters % 2 != 0 ? 16 : 8);
        const QImage expected = withPart(canvas->image(), corner, turned);
        ASSERT_TRUE(canvas->setImage(part(), QSizeF(40, 24), QPointF(100, 70), quarters * kQuarter));
        EXPECT_TRUE(imagesMatch(canvas->image(), expected));
        canvas->clear();
        ASSERT_TRUE(canvas->drawData(bottomUp(part()), {40, 24}, QSizeF(40, 24), QPointF(100, 70),
                                     quarters * kQuarter));
        EXPECT_TRUE(imagesMatch(canvas->image(), expected));
        // Turned about its top left corner.
        const QRect about =
            QTransform().translate(90, 60).rotate(-90 * (quarters % 4)).mapRect(QRect(0, 0, 40, 24));
        canvas->clear();
        ASSERT_TRUE(canvas->drawImage(part(), {40, 24}, {110, 72}, quarters * kQuarter, QPointF(90, 60)));
        EXPECT_TRUE(imagesMatch(canvas->imageWithRect(about), turned));
    }
}

// Stretched, turned and between pixels

TEST_F(CanvasImageTest, NoSizeAndNoTurnLeavesAFringe) {
    const QColor color(200, 90, 40);
    for (const double radian : {0.0, 0.3, -1.2, 2.5}) {
        for (const QSizeF size : {QSizeF(40, 24), QSizeF(95.5, 60), QSizeF(9, 90), QSizeF(13.2, 7.9)}) {
            SCOPED_TRACE(::testing::Message() << radian << ", " << size.width());
            auto canvas = makeCanvas();
            const QImage image = solidImage({31, 27}, color);
            ASSERT_TRUE(canvas->drawImage(image, size, QPointF(100, 75), radian));
            double covered = 0;
            const QImage result = canvas->image();
            for (int i = 0; i < 200 * 150; ++i) {
                covered += result.constBits()[4 * i + 3] / 255.0;
            }
            EXPECT_NEAR(covered, size.width() * size.height(), size.width() * 0.02 + 1);
            canvas->clearWithColor(ESColor(color), false);
            const QImage plain = canvas->image();
            EXPECT_TRUE(canvas->drawImage(image, size, QPointF(100, 75), radian));
            EXPECT_TRUE(canvas->setImage(image, size, QPointF(100, 75), radian));
            EXPECT_TRUE(imagesMatch(canvas->image(), plain, 1));
            EXPECT_TRUE(canvas->setImage(solidImage({31, 27}), size, QPointF(100, 75), radian));
            EXPECT_EQ(canvas->image().pixelColor(100, 75).alpha(), 0) << "replaced by nothing";
        }
    }
}

TEST_F(CanvasImageTest, EnlargedAndReducedImagesKeepTheirColours) {
    auto canvas = makeCanvas();
    // Each pixel is the mean of what lies under it.
    QImage fine = noise({1600, 1200}).convertToFormat(QImage::Format_Grayscale8);
    QPainter(&fine).fillRect(QRect(300, 200, 900, 700), QColor(200, 60, 90));
    fine = fine.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (const QSize size : {QSize(200, 150), QSize(100, 75), QSize(200, 75), QSize(50, 150)}) {
        SCOPED_TRACE(size.width());
        const QImage expected = fine.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ASSERT_TRUE(canvas->setImage(fine, QRectF(QPointF(), size)));
        EXPECT_TRUE(imagesMatch(canvas->imageWithRect(QRectF(QPointF(), size)), expected, 12));
    }
    QImage stripes = solidImage({1600, 150}, Qt::black);
    for (int y = 0; y < 150; y += 2) {
        fillRect(stripes, QRect(0, y, 1600, 1), Qt::white);
    }
    ASSERT_TRUE(canvas->setImage(stripes, QRectF(0, 0, 200, 150)));
    EXPECT_TRUE(imagesMatch(canvas->image(), stripes.copy(0, 0, 200, 150)));

    // Larger than a texture can be.
    QImage band = solidImage({40000, 2}, Qt::red);
    fillRect(band, QRect(20000, 0, 20000, 2), Qt::blue);
    ASSERT_TRUE(canvas->drawImage(band, QRectF(0, 0, 200, 2)));
    EXPECT_EQ(canvas->image().pixelColor(98, 0), QColor(Qt::red));
    EXPECT_EQ(canvas->image().pixelColor(101, 1), QColor(Qt::blue));
}

// Units and settings

TEST_F(CanvasImageTest, ViewPointsAreScaledBufferPixelsAreNotAndWhatReachesBeyondIsCutOff) {
    ShownCanvas canvas({200, 150}, {400, 300});
    const QImage large = noise({230, 171}, 2);
    const struct {
        QImage image;
        QRectF at;  // of the buffer
        QImage expected;
    } rows[] = {{part(), _at, placedOn(solidImage({200, 150}))},
                {large, QRectF(-19, -8, 230, 171), large.copy(19, 8, 200, 150)}};
    for (const auto& [image, at, expected] : rows) {
        const QSize size = image.size();
        const QRectF inView(at.topLeft() * 2, at.size() * 2);
        const QByteArray data = bottomUp(image);
        const std::function<bool()> kForms[] = {
            [&, &image = image] { return canvas.drawImage(image, inView); },
            [&, &at = at] { return canvas.setData(data, size, size * 2, at.center() * 2, 0); },
            [&, &at = at] { return canvas.drawData(data, size, at, true); },
            [&, &image = image, &at = at] { return canvas.setImage(image, size, at.center(), 0, true); },
            [&, &image = image, &at = at] { return canvas.setImageInBufferRect(image, at); },
        };
        for (const auto& form : kForms) {
            canvas.clear();
            EXPECT_EQ(canvas.drawRect(), QRectF());
            canvas.redisplayed.clear();
            EXPECT_TRUE(form());
            EXPECT_EQ(canvas.redisplayedArea(), QRectF(0, 0, 400, 300));
            EXPECT_EQ(canvas.drawRect(), at.intersected(QRectF(0, 0, 200, 150)));
            EXPECT_TRUE(imagesMatch(canvas.displayImage(), expected));
        }
    }
}

TEST_F(CanvasImageTest, OnlyWhatTheScissorLetsThroughIsTouched) {
    auto canvas = tintedCanvas();
    const QImage before = canvas->image();
    canvas->setScissorRect(
        QRectF(60.3, 69.5, 20, 9));  // rows count from the bottom, where halves go the other way
    canvas->setGlobalScissor(true);
    ASSERT_TRUE(canvas->setImage(part(), _at));
    EXPECT_TRUE(imagesMatch(canvas->displayImage(), withPart(before, {60, 69}, part().copy(10, 9, 20, 9))));
    const QImage after = canvas->image();
    const auto clear = [&] { canvas->clearWithColor(ESColor::rgba(0.2f, 0.4f, 0.6f, 0.8f), false); };
    for (const QRectF all : {QRectF(0, 0, 2e9, 2e9), QRectF(-1e10, -1e10, 2e10, 2e10)}) {
        clear();
        canvas->setScissorRect(all);
        canvas->setNeglectTextureUpdate(all.x() < 0);  // drawn, not copied
        EXPECT_TRUE(canvas->setImage(part(), _at));
        EXPECT_TRUE(imagesMatch(canvas->image(), placedOn(before)));
    }
    canvas->setNeglectTextureUpdate(false);
    clear();
    canvas->setScissorRect(QRectF(60.3, 69.5, 20, 9));
    ASSERT_TRUE(canvas->setData(bottomUp(part()), {40, 24}, _at));
    EXPECT_TRUE(imagesMatch(canvas->image(), after));
    canvas->setNeglectTextureUpdate(true);  // drawn, not copied
    ASSERT_TRUE(canvas->setData(bottomUp(part()), {40, 24}, _at));
    EXPECT_TRUE(imagesMatch(canvas->image(), after));
    for (const QRectF none : {QRectF(), QRectF(60, 70, -5, 5), QRectF(500, 0, 5, 5)}) {
        canvas->setScissorRect(none);
        EXPECT_FALSE(canvas->drawImage(part(), _at));
    }
    EXPECT_TRUE(imagesMatch(canvas->image(), after));
}

TEST_F(CanvasImageTest, ANeglectedBackgroundStaysWhatItWas) {
    auto canvas = tintedCanvas();
    const QImage before = canvas->image();
    canvas->setNeglectTextureUpdate(true);
    ASSERT_TRUE(canvas->setImage(part(), _at));
    EXPECT_TRUE(imagesMatch(canvas->image(), placedOn(before)));
    for (const QPointF dab : {QPointF(70, 80), QPointF(78, 88)}) {
        canvas->drawPoint(dab, 30);
        canvas->updateImage(false);
    }
    EXPECT_EQ(canvas->image().copy(86, 64, 4, 8), part().copy(36, 4, 4, 8)) << "beside the dabs' rectangles";
    canvas->resetWithRenderRect(QRectF(0, 0, 200, 150));
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    canvas->setNeglectTextureUpdate(false);
    ASSERT_TRUE(canvas->setImage(part(), _at));
    canvas->resetWithRenderRect(QRectF(0, 0, 200, 150));
    EXPECT_TRUE(imagesMatch(canvas->image(), placedOn(before)));
}

// Strokes

TEST_F(CanvasImageTest, AStrokeGoesOnAboveTheImage) {
    auto canvas = tintedCanvas();
    const QImage cover = patternImage({150, 120}, 99);
    const QImage turned = cover.transformed(QTransform().rotate(-90));
    QImage placed;
    paintWave(*canvas, 75, 30, [&](int i) {
        if (i == 15) {  // half of the stroke lies to the left
            const QImage drawn = canvas->image();
            ASSERT_TRUE(canvas->drawImage(cover, QSizeF(150, 120), QPointF(60, 75), kQuarter));
            placed = canvas->image();
            EXPECT_TRUE(imagesMatch(placed, withPart(drawn, {0, 0}, turned)));
        }
    });
    const QImage after = canvas->image();
    EXPECT_TRUE(imagesMatch(after.copy(0, 0, 70, 150), placed.copy(0, 0, 70, 150))) << "not painted over";
    EXPECT_NE(after.copy(125, 0, 75, 150), placed.copy(125, 0, 75, 150)) << "the stroke went on";
    EXPECT_TRUE(imagesMatch(canvas->displayImage(), after));
}

// Bad input

TEST_F(CanvasImageTest, BadInputIsRefusedWithOneLine) {
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    auto canvas = tintedCanvas();
    canvas->drawPoint({20, 20}, 30);  // not composited yet
    const QImage before = canvas->image();
    const QRectF good(10, 10, 40, 24);
    const QSizeF five(5, 5);
    const QPointF at(5, 5);
    const QByteArray data = bottomUp(part());
    const QSize size = part().size();
    unsigned char bytes[16];
    const LPPoint dabs[] = {{{20, 20}, 9, {1, 1, 1}}, {{static_cast<float>(kInfinity), 9}, 9, {1, 1, 1}}};
    const std::pair<const char*, std::function<bool()>> kRows[] = {
        {"null image", [&] { return canvas->drawImage(QImage(), good); }},
        {"no size", [&] { return canvas->drawImage(part(), QRectF(10, 10, 0, 0)); }},
        {"no height", [&] { return canvas->setImage(part(), QRectF(10, 10, 5, 0)); }},
        {"negative", [&] { return canvas->setImageInBufferRect(part(), QRectF(50, 50, -5, 5)); }},
        {"NaN size", [&] { return canvas->drawImage(part(), QSizeF(kNaN, 5), at, 0); }},
        {"endless", [&] { return canvas->drawImage(part(), QSizeF(5, kInfinity), at, 0); }},
        {"huge", [&] { return canvas->drawImage(part(), QSizeF(5, 1e30), at, 0); }},
        {"NaN centre", [&] { return canvas->setImage(part(), five, QPointF(5, kNaN), 0); }},
        {"NaN turn", [&] { return canvas->setImageInBufferSize(part(), five, at, kNaN); }},
        {"NaN anchor", [&] { return canvas->drawImage(part(), five, at, 1, QPointF(kNaN, 1)); }},
        {"no data", [&] { return canvas->setData(QByteArray(), size, good); }},
        {"short data", [&] { return canvas->drawData(data.chopped(1), size, good); }},
        {"data of no size", [&] { return canvas->drawData(data, QSize(), good); }},
        {"data of a negative size", [&] { return canvas->setData(data, size * -1, good); }},
        {"data of a huge size", [&] { return canvas->setData(data, size * 20000000, good); }},
        {"reading outside", [&] { return !canvas->imageWithRect(QRectF(190, 0, 11, 5)).isNull(); }},
        {"reading no pixel", [&] { return canvas->readData(bytes, QRectF(3, 3, 0.5, 5)); }},
        {"reading NaN", [&] { return canvas->readDataBufferRect(bytes, QRectF(kNaN, 3, 2, 2)); }},
        {"reading to nowhere", [&] { return canvas->readData(nullptr, good); }},
        {"endless dab", [&] { return !canvas->drawPoints(dabs, 2, ESRenderTypeSmudge).isEmpty(); }},
        {"NaN dab",
         [&] {
             return !canvas->drawPoint({30, 30}, static_cast<float>(kNaN)).isEmpty();
         }},
        {"NaN scissor", [&] { return canvas->setScissorRect(QRectF(0, 0, kNaN, 1)), false; }},
    };
    for (const auto& [name, call] : kRows) {
        SCOPED_TRACE(name);
        const LogCapture log;
        EXPECT_FALSE(call());
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
        EXPECT_TRUE(imagesMatch(canvas->image(), before));
    }
    const LogCapture quiet;
    for (const QPointF outside : {QPointF(-30, 20), QPointF(230, 20), QPointF(1e300, 0), QPointF(0, -1e9)}) {
        EXPECT_FALSE(canvas->drawImage(part(), five, outside, 0.1));
    }
    EXPECT_TRUE(quiet.lines().isEmpty());
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
}

TEST_F(CanvasImageTest, BothSurfacesPlaceAlike) {
    for (const QSizeF size : {QSizeF(90, 70), QSizeF(130, 100), QSizeF(47.5, 35), QSizeF(20, 80)}) {
        for (const double radian : {0.0, 0.3}) {
            QImage placed[2];
            for (const SurfaceKind kind : {SurfaceKind::processor, SurfaceKind::gpu}) {
                auto canvas = tintedCanvas(kind);
                EXPECT_TRUE(canvas->drawImage(noise({90, 70}), size, {80.4, 70}, radian));
                placed[kind == SurfaceKind::gpu] = canvas->image();
            }
            EXPECT_TRUE(imagesMatch(placed[1], placed[0], 2)) << size.width() << " turned by " << radian;
        }
    }
}

TEST_F(CanvasImageTest, WithoutTheDriversMemoryNothingIsPlacedOrUndone) {
    using Fault = FailingDriver::Fault;
    const QImage image = noise({300, 260});
    for (const auto& [fault, rect] : {std::pair{Fault::noTextureMemory, QRectF(10.5, 10, 400, 300)},
                                      {Fault::noUploadMemory, {10.5, 10, 400, 300}},
                                      {Fault::noLevelMemory, {20, 20, 299.7, 259.7}},
                                      {Fault::noUploadMemory, {0, 0, 300, 260}}}) {  // copied
        SCOPED_TRACE(static_cast<int>(fault));
        auto canvas = tintedCanvas(SurfaceKind::gpu);
        canvas->resetUndoManager();
        canvas->setAutoMark(true);
        const QImage before = canvas->image();
        {
            const FailingDriver driver(fault);
            const LogCapture log;
            EXPECT_FALSE(canvas->setImage(image, rect));
            EXPECT_EQ(log.lines(), QStringList("there is no memory to place an image of 300 x 260 pixels"));
        }
        EXPECT_TRUE(imagesMatch(canvas->image(), before));
        EXPECT_FALSE(canvas->edited() || canvas->canUndo());
        EXPECT_TRUE(canvas->setImage(image, rect));
        const QImage after = canvas->image();
        {
            const FailingDriver driver(Fault::noUploadMemory);
            const LogCapture log;
            EXPECT_TRUE(canvas->undo().isNull());
            EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
        }
        EXPECT_TRUE(imagesMatch(canvas->image(), after));
        EXPECT_FALSE(canvas->undo().isNull());
        EXPECT_TRUE(imagesMatch(canvas->image(), before));
    }
}

}  // namespace
