// SPDX-License-Identifier: MIT
// What each brush property promises a painter, read from the marks that a stroke leaves: more of it is wider, redder,
// rounder, more scattered. Every row of the property table has a row here.
#include <array>
#include <map>
#include <numbers>
#include <set>

#include "Brushes/BrushProperties.h"
#include "ESRender/ESImageRender.h"
#include "support/CanvasTest.h"
#include "support/Marks.h"
#include "support/Named.h"

using dabcanvas::BrushKey;
using dabcanvas::brushProperties;
using dabcanvas::BrushProperty;
using dabcanvas::brushProperty;
using dabcanvas::brushPropertyNamed;

namespace {

constexpr int kWidth = 640, kHeight = 200;
constexpr double kLine = 100;  // y of a straight stroke
constexpr float kRight = std::numbers::pi_v<float> / 2;

struct Span {
    double low, high, mean;
    double width() const { return high - low; }
};
template <typename Measure>
Span span(const Marks& marks, const Measure& measure) {
    Span all{1e9, -1e9, 0};
    for (const Mark& mark : marks) {
        const double value = measure(mark);
        all = {std::min(all.low, value), std::max(all.high, value),
               all.mean + value / static_cast<double>(marks.size())};
    }
    return all;
}

constexpr auto widthOf = [](const Mark& m) { return m.box.width(); };
constexpr auto heightOf = [](const Mark& m) { return m.box.height(); };
constexpr auto ratioOf = [](const Mark& m) { return m.ratio(); };
constexpr auto alphaOf = [](const Mark& m) { return m.color.alphaF(); };
constexpr auto offLine = [](const Mark& m) { return std::abs(m.y() - kLine); };
constexpr auto hueOf = [](const Mark& m) { return m.color.hsvHueF(); };
constexpr auto saturationOf = [](const Mark& m) { return m.color.hsvSaturationF(); };
constexpr auto valueOf = [](const Mark& m) { return m.color.valueF(); };
constexpr auto leanXOf = [](const Mark& m) { return m.leanX; };
constexpr auto leanYOf = [](const Mark& m) { return m.leanY; };
// Distances from each place on the grid of an even stroke.
constexpr auto offGrid = [](const Mark& m) { return std::abs(std::remainder(m.x() - 20, 40)); };

constexpr auto near = [](double a, double b, double tolerance) { return std::abs(a - b) <= tolerance; };
constexpr auto same = [](const Picture& a, const Picture& b) { return a.image == b.image; };
constexpr auto isRed = [](const QColor& c) { return c.alpha() > 40 && c.red() > 2 * c.blue() + 40; };
constexpr auto isBlue = [](const QColor& c) { return c.alpha() > 40 && c.blue() > 2 * c.red() + 40; };
constexpr auto isSoft = [](const QColor& c) { return c.alpha() > 10 && c.alpha() < 245; };
constexpr auto isPainted = [](const QColor& c) { return c.alpha() > 128; };
constexpr auto isHole = [](const QColor& c) { return c.alpha() < 20; };

// How many marks there are at a place of an even stroke.
Span places(const Marks& marks) {
    std::map<long, int> found;
    for (const Mark& mark : marks) {
        ++found[std::lround((mark.x() - 20) / 40)];
    }
    const auto [least, most] =
        std::minmax_element(found.begin(), found.end(), [](auto& a, auto& b) { return a.second < b.second; });
    return {static_cast<double>(least->second), static_cast<double>(most->second), 0};
}

// Strokes

using Stroke = std::vector<std::array<float, 4>>;  // x, y, pressure, altitude

Stroke along(double x0, double y0, double x1, double y1, int moves = 30) {
    Stroke stroke;
    for (int i = 0; i <= moves; ++i) {
        const double t = static_cast<double>(i) / moves;
        stroke.push_back(
            {static_cast<float>(x0 + t * (x1 - x0)), static_cast<float>(y0 + t * (y1 - y0)), 1, 0});
    }
    return stroke;
}
Stroke level() {
    return along(20, kLine, 620, kLine);
}
Stroke downward() {
    return along(320, 10, 320, 190);
}
Stroke weak() {
    Stroke stroke = level();
    for (auto& sample : stroke) {
        sample[2] = 0;
    }
    return stroke;
}
Stroke zigzag() {
    Stroke stroke = level();
    for (std::size_t i = 0; i < stroke.size(); ++i) {
        stroke[i][1] += i % 2 != 0 ? 20.0f : -20.0f;
    }
    return stroke;
}
Stroke shaky() {
    Stroke stroke = level();
    stroke[14][1] -= 40;
    return stroke;
}
Stroke ellipse() {
    Stroke stroke;
    for (int i = 0; i <= 60; ++i) {
        const float turn = static_cast<float>(i) * 4 * kRight / 60;
        stroke.push_back({320 + 150 * std::cos(turn), 100 + 70 * std::sin(turn), 1, 0});
    }
    return stroke;
}
// Slow first, then fast.
Stroke speedUp() {
    Stroke stroke = along(20, kLine, 320, kLine, 100), fast = along(380, kLine, 620, kLine, 4);
    stroke.insert(stroke.end(), fast.begin(), fast.end());
    return stroke;
}

void paint(QDDrawCanvas& canvas, const Stroke& stroke, const std::function<void(std::size_t)>& after = {}) {
    for (std::size_t i = 0; i < stroke.size(); ++i) {
        const auto [x, y, pressure, altitude] = stroke[i];
        if (i == 0) {
            canvas.drawingWithBeginPoint({x, y}, pressure, altitude);
        } else if (i + 1 < stroke.size()) {
            canvas.drawingWithMoveToPoint({x, y}, pressure, altitude);
        } else {
            canvas.drawingWithEndPoint({x, y}, pressure, altitude);
        }
        if (after) {
            after(i);
        }
    }
}

// Brushes

// clang-format off
// A tall bar at the left with a short foot to the right: leans left and down, like no mirror image or turn of it.
QImage letterL(const QColor& color = Qt::black) {
    QImage tip = solidImage({32, 32});
    fillRect(tip, QRect(6, 0, 6, 32), color);
    fillRect(tip, QRect(6, 26, 20, 6), color);
    return tip;
}
QImage block(int side, const QColor& color = Qt::black) { return solidImage({side, side}, color); }
QImage halfDark(const QColor& dark) { QImage paper = block(40, Qt::white); fillRect(paper, QRect(0, 0, 20, 40), dark); return paper; }
QImage halfBlack() { return halfDark(Qt::black); }
QImage ball() {
    QImage tip = solidImage({32, 32});
    for (int y = 0; y < 32; ++y) {
        const int half = static_cast<int>(std::sqrt(256 - (y - 15.5) * (y - 15.5)) + 0.5);
        fillRect(tip, QRect(16 - half, y, 2 * half, 1), Qt::black);
    }
    return tip;
}
QImage stripes() {
    QImage tip = solidImage({64, 64});
    for (int x = 0; x < 64; x += 2) {
        fillRect(tip, QRect(x, 0, 1, 64), Qt::black);
    }
    return tip;
}
QVariant images(const QList<QImage>& tips) { return QVariant::fromValue(tips); }
QVariant colour(float r, float g, float b) { return QVariant::fromValue(ESColor::rgba(r, g, b)); }

using C = QDDrawCanvas;
using Prepare = void (*)(C&);

// Square dabs 16 pixels wide, 40 apart, that nothing jitters or tapers.
void apart(C& c) {
    c.setTextureType(0);
    c.setTextureImages({letterL()});
    c.setRadius(16);
    c.setMinRadius(1);
    c.setMaxRadius(1);
    c.setStartRadius(0);
    c.setEndRadius(0);
    c.setPointsDistance(2.5f);
    c.setSpeedSencitive(1);
}
void whole(C& c) { c.setTextureImages({block(32)}); }
void onPaper(C& c, const QColor& dark) { whole(c); c.setRadius(64); c.setPointsDistance(0.1f); c.setMaskImage(halfDark(dark)); c.setNeedMaskTexture(true); c.setMaskDepthControl({1, 0, 0}); }
void ribbon(C& c) { whole(c); c.setRadius(64); c.setPointsDistance(0.1f); }
void disc(C& c) { c.setTextureType(1); c.setHardness(1); c.setRadius(32); }
void ring(C& c) { disc(c); c.setTextureType(2); c.setTextureControlValue(3); }
void scattered(C& c) { whole(c); c.setRadius(6); c.setPointsDistance(40.0f / 6); c.setDistribution(10); }
void copies(C& c) { scattered(c); c.setDisTwoAxes(true); c.setDistributionCount(4); }
void vivid(C& c) { whole(c); c.setRenderColor(ESColor::rgba(0.7f, 0.3f, 0.2f)); c.setBackRenderColor(ESColor::rgba(0, 0, 1)); }
void vividBlue(C& c) { whole(c); c.setRenderColor(ESColor::rgba(0, 0, 1)); }
void twoTips(C& c) { c.setTextureImages({block(32), letterL()}); }
void pressedFlow(C& c) { whole(c); c.setFlowControl({1, 0, 0}); }
void fastRadius(C& c) { whole(c); c.setMinRadius(0.1f); c.setRadiusControl({0, 0, 1}); }
// Blue over a canvas that is red on its left half.
void smudging(C& c) {
    ribbon(c);
    c.setPointsDistance(0.2f);
    QImage red = solidImage({kWidth, kHeight});
    fillRect(red, QRect(0, 0, kWidth / 2, kHeight), Qt::red);
    c.drawImage(red, QRectF(0, 0, kWidth, kHeight));
    c.setBrushType(3);
    c.setRenderColor(ESColor::rgba(0, 0, 1));
    c.setMoistQuantity(1);
    c.setLoadQuantity(1);
    c.setMixQuantity(0.5f);
    c.setSmudgeControl(false);
}
void opaqueCanvas(C& c) { c.clearWithColor(ESColor::rgba(1, 1, 1), false); }
// The dabs of the second line show alone, within a wide first one.
void second(C& c) {
    ribbon(c);
    c.setRadius(150);
    c.setRepeatedlyRenderEnabled(true);
    c.setSlTextureImage(ball());  // its dabs are turned at random
    c.setSlRadius(16);
    c.setSlPointsDistance(2.5f);
}
void secondScattered(C& c) {
    second(c);
    c.setSlRadius(6);
    c.setSlPointsDistance(40.0f / 6);
    c.setSlDistribution(8);
}
// clang-format on

// Single dabs, without the line process.
void points(C& c) {
    for (int i = 0; i < 14; ++i) {
        c.drawPoint({40.0 + 40 * i, kLine}, 16);
        c.updateImage(false);
    }
}

struct Promise : Named {  // the property's name, and what is told apart after a "_"
    const char* claim;
    QVariant less, more;
    bool (*holds)(const Picture& less, const Picture& more);
    Prepare prepare = whole;
    Stroke (*stroke)() = level;  // none: points()
    Prepare then = [](C&) {};    // after the property is set

    std::string property() const { return std::string(name).substr(0, std::string(name).find('_')); }
};
using P = const Picture&;

const QRect kRightHalf(kWidth / 2 + 40, 0, kWidth / 2 - 40, kHeight), kStart(20, 70, 60, 60);

// clang-format off
const Promise kPromises[] = {
    {"brushType", "3 smudges: without own colour there is nothing of it", 0, 3,
     [](P l, P m) { return l.pixels(isBlue) > 9000 && m.pixels(isBlue) == 0 && m.pixels(isRed, kRightHalf) > 500; }, [](C& c) { smudging(c); c.setBrushType(0); c.setLoadQuantity(0); c.setMixQuantity(1); }},
    {"isDebug", "type 3 paints plain dabs", false, true,
     [](P l, P m) { return l.pixels(isBlue) == 0 && m.pixels(isBlue) > 9000; }, [](C& c) { smudging(c); c.setLoadQuantity(0); c.setMixQuantity(1); }},
    {"enableRecogition", "a zigzag that means nothing goes", false, true, [](P l, P m) { return !l.marks.empty() && m.marks.empty(); }, whole, zigzag},
    {"recogPointScale", "the shape stands where it was drawn, as large", 1.0f, 3.0f,
     [](P l, P m) { return !l.marks.empty() && near(painted(l.image).width(), painted(m.image).width(), 4) && near(painted(l.image).height(), painted(m.image).height(), 4); }, [](C& c) { c.setEnableRecogition(true); }, ellipse},
    {"gaussianRadius", "the edge of a filled area is softer", 1.0f, 8.0f,
     [](P l, P m) { return m.pixels(isSoft) > 2 * l.pixels(isSoft) && m.pixels(isPainted) > 20000; }, [](C& c) { c.setBrushType(4); }, ellipse},
    {"blendType", "5 makes holes", 1, 5, [](P l, P m) { return l.pixels(isHole) == 0 && m.pixels(isHole) > 500; }, opaqueCanvas},
    {"blendFragmentShaderString", "the eraser's makes holes", ESImageRender::normalFSHString(), ESImageRender::eraseFSHString(),
     [](P l, P m) { return l.pixels(isHole) == 0 && m.pixels(isHole) > 500; }, opaqueCanvas},
    {"renderColor", "redder, at the same places", colour(0, 0, 0), colour(1, 0, 0),
     [](P l, P m) { return m.pixels(isRed) == l.pixels(isPainted) && l.pixels(isRed) == 0; }},
    {"opacity", "more paint, and no more of it where the stroke covers itself", 0.25f, 0.5f,
     [](P l, P m) { return near(l.marks[0].color.alpha(), 64, 1) && near(m.marks[0].color.alpha(), 128, 1); }, ribbon},
    {"flow", "more paint a dab", 0.25f, 0.5f, [](P l, P m) { return near(l.marks[3].color.alpha(), 64, 1) && near(m.marks[3].color.alpha(), 128, 1); }},
    {"flow_overlap", "dabs build up", 0.25f, 0.5f, [](P l, P m) { return l.marks[0].color.alpha() > 160 && m.marks[0].color.alpha() > 240; }, ribbon},
    {"radius", "wider and higher", 16.0f, 32.0f,
     [](P l, P m) { return near(span(l.marks, widthOf).mean, 16, 0.5) && near(span(m.marks, widthOf).mean, 32, 0.5) && near(span(m.marks, heightOf).mean, 32, 0.5); }},
    {"trackNum", "steadier: one shaky sample counts less", 0, 4,
     [](P l, P m) { return painted(m.image).height() < painted(l.image).height() - 8; }, [](C& c) { whole(c); c.setPointsDistance(0.2f); }, shaky},
    {"moistQuantity", "more of the canvas is taken along", 0.0f, 1.0f,
     [](P l, P m) { return l.pixels(isRed, kRightHalf) == 0 && m.pixels(isRed, kRightHalf) > 500; }, [](C& c) { smudging(c); c.setMixQuantity(1); }},
    {"loadQuantity", "more own colour", 0.0f, 1.0f, [](P l, P m) { return l.pixels(isBlue) == 0 && m.pixels(isBlue) > 3000; }, smudging},
    {"mixQuantity", "from the own colour alone to the canvas's alone", 0.0f, 1.0f,
     [](P l, P m) { return l.pixels(isRed, kRightHalf) == 0 && l.pixels(isBlue) > 3000 && m.pixels(isBlue) == 0; }, smudging},
    {"smudgeControl", "own colour at the stroke's start", false, true,
     [](P l, P m) { return l.pixels(isBlue, kStart) == 0 && m.pixels(isBlue, kStart) > 500; }, [](C& c) { smudging(c); c.setMixQuantity(1); c.setSmudgeControlValue(12); }},
    {"smudgeControlValue", "the canvas's colour is moved later", 4.0f, 40.0f,
     [](P l, P m) { return l.pixels(isRed, kRightHalf) > m.pixels(isRed, kRightHalf) + 300; }, [](C& c) { smudging(c); c.setLoadQuantity(0); c.setMixQuantity(1); c.setSmudgeControl(true); }},
    {"bristles", "the own colour lasts for a while and runs out", 0.0f, 1.0f,
     [](P l, P m) { return l.pixels(isBlue) == 0 && m.pixels(isBlue, kStart) > 500 && m.pixels(isBlue, kRightHalf) * 4 < m.pixels(isBlue); }, [](C& c) { smudging(c); c.setMixQuantity(1); c.setMoistQuantity(0.5f); }},
    {"textureType_ring", "a ring is a disc with a hole", 1, 2,
     [](P l, P m) { return isPainted(l.image.pixelColor(l.marks[2].box.center())) && isHole(m.image.pixelColor(m.marks[2].box.center())) && m.marks[2].box.size() == l.marks[2].box.size(); }, ring},
    {"textureType_rectangle", "a rectangle has the corners that a disc lacks", 1, 3,
     [](P l, P m) { return m.marks[2].weight > 1.1 * l.marks[2].weight; }, [](C& c) { disc(c); c.setTextureControlValue(1); }},
    {"textureType_images", "0 takes the tips given", 1, 0,
     [](P l, P m) { return near(l.marks[2].leanX, 0, 0.02) && m.marks[2].leanX < -0.1; }, [](C& c) { c.setTextureImages({letterL()}); c.setRadius(32); }},
    {"hardness", "a harder edge", 0.2f, 1.0f,
     [](P l, P m) { return 2 * m.pixels(isSoft) < l.pixels(isSoft) && m.pixels(isPainted) > l.pixels(isPainted); }, disc},
    {"textureControlValue_ring", "a thicker ring", 2.0f, 6.0f, [](P l, P m) { return m.marks[2].weight > 1.8 * l.marks[2].weight; }, ring},
    {"textureControlValue_rectangle", "a wider rectangle", 1.0f, 2.0f,
     [](P l, P m) { return near(l.marks[2].ratio(), 1, 0.1) && near(m.marks[2].ratio(), 0.5, 0.1); }, [](C& c) { disc(c); c.setTextureType(3); }},
    {"textureImages", "the shape given, upright", images({block(32)}), images({letterL()}),
     [](P l, P m) { return near(l.marks[2].leanX, 0, 0.02) && m.marks[2].leanX < -0.1 && m.marks[2].leanY > 0.05; }},
    {"textureImages_fine", "fine stripes become an even grey", images({block(64)}), images({stripes()}),
     [](P l, P m) { return span(l.marks, alphaOf).low > 0.99 && near(m.marks[2].weight, 128, 4) && span(m.marks, alphaOf).high < 0.6; }},
    {"flipX", "left to right and not top to bottom", false, true,
     [](P l, P m) { return near(m.marks[2].leanX, -l.marks[2].leanX, 0.02) && near(m.marks[2].leanY, l.marks[2].leanY, 0.02); }, apart},
    {"flipY", "top to bottom and not left to right", false, true,
     [](P l, P m) { return near(m.marks[2].leanX, l.marks[2].leanX, 0.02) && near(m.marks[2].leanY, -l.marks[2].leanY, 0.02); }, apart},
    {"needMaskTexture", "half of a half black paper holds paint back", false, true,
     [](P l, P m) { return near(2.0 * m.pixels(isPainted), l.pixels(isPainted), 0.15 * l.pixels(isPainted)) && m.marks.size() > 10; }, [](C& c) { ribbon(c); c.setMaskImage(halfBlack()); }},
    {"maskScale", "larger tiles", 1.0f, 2.0f,
     [](P l, P m) { return near(widthOf(l.marks[4]), 20, 1) && near(widthOf(m.marks[4]), 40, 2); }, [](C& c) { ribbon(c); c.setMaskImage(halfBlack()); c.setNeedMaskTexture(true); }},
    {"maskDepth_Light", "a light stroke catches the tops alone", 0.0f, 0.6f,
     [](P l, P m) { return l.marks.size() == 1 && m.marks.size() > 10; }, [](C& c) { onPaper(c, Qt::darkGray); }, weak},
    {"maskDepth_Firm", "a firm one fills the valleys", 0.0f, 1.0f,
     [](P l, P m) { return l.marks.size() > 10 && m.marks.size() == 1; }, [](C& c) { onPaper(c, Qt::black); }},
    {"maskDepth_Flow", "of a dab that flows less, too", 0.0f, 1.0f,
     [](P l, P m) { return l.marks.size() == 1 && m.marks.size() > 10; }, [](C& c) { onPaper(c, Qt::darkGray); c.setMaskDepthControl({}); c.setFlowControl({1, 0, 0}); c.setMinFlow(0.2f); }, weak},
    {"maskBrightness", "lets valleys through", 0.0f, 0.5f,
     [](P l, P m) { return l.marks.size() > 10 && m.marks.size() == 1; }, [](C& c) { onPaper(c, Qt::black); }},
    {"maskContrast", "valleys hold back all", 1.0f, 6.0f,
     [](P l, P m) { return l.marks.size() == 1 && m.marks.size() > 10; }, [](C& c) { onPaper(c, Qt::gray); c.setMaskImage(halfDark(QColor(100, 100, 100))); }},
    {"maskImage", "black holds back", block(40, Qt::white), halfBlack(),
     [](P l, P m) { return l.marks.size() == 1 && m.marks.size() > 10; }, [](C& c) { ribbon(c); c.setNeedMaskTexture(true); }},
    {"pointsDistanceEnabled", "even gaps, whatever the pointer does", false, true,
     [](P l, P m) { return !near(l.marks[9].x() - l.marks[8].x(), 40, 2) && near(m.marks[9].x() - m.marks[8].x(), 40, 1); }},
    {"pointsDistance", "wider gaps, in sizes", 1.5f, 3.0f,
     [](P l, P m) { return near(l.marks[5].x() - l.marks[4].x(), 24, 1) && near(m.marks[5].x() - m.marks[4].x(), 48, 1) && near(l.marks[0].x(), 44, 1); }},  // the first is left out
    {"smoothEnabled", "corners are cut", false, true,
     [](P l, P m) { return painted(m.image).height() < painted(l.image).height() - 8; }, [](C& c) { whole(c); c.setPointsDistance(0.2f); }, zigzag},
    {"sensitivity", "the same speed counts as slower, and thins less", 20.0f, 200.0f,
     [](P l, P m) { return span(m.marks, widthOf).mean > span(l.marks, widthOf).mean + 2; }, fastRadius},
    {"speedSencitive", "speed thins sooner", 0.05f, 1.0f,
     [](P l, P m) { return m.marks.back().box.width() < l.marks.back().box.width() - 2; }, fastRadius, speedUp},
    {"colorFul", "the tip's colour, not the brush's", false, true,
     [](P l, P m) { return l.pixels(isRed) == 0 && m.pixels(isRed) > 500; }, [](C& c) { c.setTextureImages({block(32, Qt::red)}); c.setRenderColor(ESColor::rgba(0, 0, 1)); }},
    {"colorFul_black", "the brush's where the tip is black", false, true, [](P l, P m) { return same(l, m) && m.pixels(isBlue) > 500; }, vividBlue},
    {"lineProcessType_wide", "2: nothing is thinner than 3 pixels", 0, 2,
     [](P l, P m) { return l.marks[2].weight < 4.5 && near(m.marks[2].weight, 9, 0.5); }, [](C& c) { whole(c); c.setRadius(2); c.setPointsDistance(20); }},
    {"lineProcessType_pale", "4: thinner is paler", 0, 4,
     [](P l, P m) { return near(m.marks[2].weight, l.marks[2].weight * 2 / 3, 0.2); }, [](C& c) { whole(c); c.setRadius(2); c.setPointsDistance(20); }},
    {"lineProcessType_both", "6: as wide, and as pale as a thin one", 2, 6, [](P l, P m) { return near(l.marks[2].weight, 9, 0.5) && near(m.marks[2].weight, 6, 0.5); },
     [](C& c) { whole(c); c.setRadius(2); c.setPointsDistance(20); }},
    {"minRadius", "in the middle of smallest and largest", 0.5f, 1.0f,
     [](P l, P m) { return near(widthOf(l.marks[4]), 12, 1) && near(widthOf(m.marks[4]), 16, 0); }},
    {"maxRadius", "in the middle of smallest and largest", 0.5f, 1.0f,
     [](P l, P m) { return near(widthOf(l.marks[4]), 8, 1) && near(widthOf(m.marks[4]), 12, 1); }, [](C& c) { whole(c); c.setMinRadius(0.5f); }},
    {"startRadius", "wider at the start alone", 0.2f, 0.8f,
     [](P l, P m) { return widthOf(l.marks[0]) < widthOf(m.marks[0]) - 4 && widthOf(m.marks[0]) < 16 && l.marks.back().box.size() == m.marks.back().box.size(); }, [](C& c) { whole(c); c.setStrokeControlValue(200); c.setPointsDistance(2); }},
    {"strokeControlValue", "a longer taper", 100.0f, 400.0f,
     [](P l, P m) { const auto thin = [](const Picture& p) { return std::count_if(p.marks.begin(), p.marks.end(), [](const Mark& k) { return widthOf(k) < 15; }); }; return thin(m) > thin(l) + 3 && thin(l) > 0; }, [](C& c) { whole(c); c.setStartRadius(0.2f); c.setPointsDistance(2); }},
    {"endRadius", "wider at the end alone", 0.1f, 0.9f,
     [](P l, P m) { return l.marks.back().box.width() < m.marks.back().box.width() - 3 && l.marks[1].box == m.marks[1].box; }, [](C& c) { whole(c); c.setPointsDistance(1.25f); }},
    {"radiusTingle", "a line's dabs shrink at random", 0.0f, 0.8f,
     [](P l, P m) { return span(l.marks, widthOf).width() == 0 && span(m.marks, widthOf).width() > 4 && span(m.marks, widthOf).high <= 18; }, [](C& c) { whole(c); c.setMinRadius(0.1f); c.setRadiusControl({1, 0, 0}); }},
    {"radiusTingle_single", "single dabs do not", 0.0f, 0.8f,
     [](P l, P m) { return same(l, m) && m.marks.size() == 14; }, [](C& c) { whole(c); c.setMinRadius(0.1f); c.setDistribution(1); }, nullptr},
    {"radiusTingle_copies", "scattered copies do", 0.0f, 0.8f,
     [](P l, P m) { return span(m.marks, widthOf).low < span(l.marks, widthOf).low - 3; }, [](C& c) { copies(c); c.setMinRadius(0.1f); c.setRadius(16); }, nullptr},
    {"disTwoAxes", "along the stroke as well as across", false, true,
     [](P l, P m) { return span(l.marks, offLine).high > 15 && span(m.marks, offLine).high > 15 && span(m.marks, offGrid).mean > span(l.marks, offGrid).mean + 3; }, scattered},
    {"distribution", "farther across, not along", 2.0f, 12.0f,
     [](P l, P m) { return span(l.marks, offLine).high <= 12.5 && span(m.marks, offLine).high > 30 && near(span(m.marks, offGrid).mean, span(l.marks, offGrid).mean, 1); }, scattered},
    {"distributionCount", "more dabs a place", 1.0f, 3.0f, [](P l, P m) { return m.marks.size() > 2 * l.marks.size(); }, scattered},
    {"distributionCountTingle", "some places have fewer, some more", 0.0f, 1.0f,
     [](P l, P m) { return places(l.marks).width() <= 1 && places(m.marks).width() >= 3; }, [](C& c) { scattered(c); c.setDistributionCount(4); }},
    {"radian", "a right angle to the left", 0.0f, kRight,
     [](P l, P m) { return near(m.marks[2].ratio(), 1 / l.marks[2].ratio(), 0.1) && near(m.marks[2].leanX, l.marks[2].leanY, 0.03) && near(m.marks[2].leanY, -l.marks[2].leanX, 0.03); }, apart},
    {"startRadianEnable", "a whole stroke is turned", false, true,
     [](P l, P m) { return !near(l.marks[2].leanX, m.marks[2].leanX, 0.05) && span(m.marks, leanXOf).width() < 0.02; }, apart},
    {"moveRadianEnable", "downward, a right angle to the right", false, true,
     [](P l, P m) { return near(m.marks[0].ratio(), 1 / l.marks[0].ratio(), 0.1) && near(m.marks[0].leanX, -l.marks[0].leanY, 0.03) && near(m.marks[0].leanY, l.marks[0].leanX, 0.03); }, apart, downward},
    {"moveRadianEnable_level", "to the right, not at all", false, true, [](P l, P m) { return same(l, m); }, apart},
    {"flipXTingle", "some dabs are mirrored left to right, none is upside down", false, true,
     [](P l, P m) { return span(l.marks, leanXOf).high < 0 && span(m.marks, leanXOf).high > 0.1 && span(m.marks, leanXOf).low < -0.1 && span(m.marks, leanYOf).low > 0; }, apart},
    {"flipYTingle", "some dabs are upside down, none is mirrored left to right", false, true,
     [](P l, P m) { return span(l.marks, leanYOf).low > 0 && span(m.marks, leanYOf).high > 0.05 && span(m.marks, leanYOf).low < -0.05 && span(m.marks, leanXOf).high < 0; }, apart},
    {"radianTingle", "each dab is turned by another angle", 0.0f, 1.0f,
     [](P l, P m) { return span(l.marks, ratioOf).width() < 0.05 && span(m.marks, ratioOf).width() > 0.5; }, apart},
    {"radianTingle_little", "a little, by a little", 0.0f, 0.05f,
     [](P l, P m) { return !same(l, m) && span(m.marks, leanXOf).high < 0 && span(m.marks, ratioOf).low > 1.1; }, apart},
    {"roundness", "as high as wide", 0.25f, 1.0f,
     [](P l, P m) { return near(l.marks[2].ratio(), 0.25, 0.03) && near(m.marks[2].ratio(), 1, 0.03) && widthOf(l.marks[2]) == widthOf(m.marks[2]); }},
    {"roundnessTingle", "flatter at random, never narrower", 0.0f, 1.0f,
     [](P l, P m) { return span(l.marks, heightOf).width() == 0 && span(m.marks, heightOf).width() > 6 && span(m.marks, widthOf).width() == 0; }},
    {"minRoundness", "never flatter than that", 0.05f, 0.75f,
     [](P l, P m) { return span(l.marks, ratioOf).low < 0.5 && span(m.marks, ratioOf).low > 0.7; }, [](C& c) { whole(c); c.setRoundnessTingle(1); }},
    {"minRoundness_pressed", "nor without pressure; and as given, though 0.01 is the least that is kept", 0.001f, 0.75f,
     [](P l, P m) { return near(l.marks[2].weight, 4.1, 1) && near(ratioOf(m.marks[2]), 0.75, 0.03); }, [](C& c) { whole(c); c.setRadius(64); c.setPointsDistance(1.5f); c.setRoundnessControl({1, 0, 0}); }, weak},
    {"pixelAligned", "no pixel is painted in part", false, true,
     [](P l, P m) { return l.pixels(isSoft) > 500 && m.pixels(isSoft) == 0 && near(widthOf(m.marks[0]), 16, 0) && m.marks.size() > 10; }, [](C& c) { whole(c); c.setRadius(15.6f); c.setRadian(0.3f); c.setRadianTingle(1); }},
    {"minFlow", "more paint without pressure", 0.1f, 0.6f,
     [](P l, P m) { return near(alphaOf(l.marks[2]), 0.1, 0.02) && near(alphaOf(m.marks[2]), 0.6, 0.02); }, pressedFlow, weak},
    {"maxFlow", "more paint with all of it", 0.3f, 0.9f,
     [](P l, P m) { return near(alphaOf(l.marks[2]), 0.3, 0.02) && near(alphaOf(m.marks[2]), 0.9, 0.02); }, pressedFlow},
    {"flowTingle", "some dabs are paler, some denser", 0.0f, 1.0f,
     [](P l, P m) { return span(l.marks, alphaOf).width() < 0.01 && span(m.marks, alphaOf).low < 0.35 && span(m.marks, alphaOf).high > 0.65; }, [](C& c) { whole(c); c.setFlow(0.5f); }},
    {"decay", "it runs out after that many dabs", 5.0f, 10.0f,
     [](P l, P m) { return l.marks.size() == 4 && m.marks.size() == 9 && alphaOf(m.marks[7]) < alphaOf(m.marks[1]) - 0.3; }},
    {"wetEdge", "the inside is paler by as much, the rim is not", 0.0f, 0.6f,
     [](P l, P m) { return near(m.image.pixelColor(300, 100).alphaF(), 0.4, 0.01) && m.image.pixelColor(300, 68).alphaF() > 0.95 && l.image.pixelColor(300, 100) == l.image.pixelColor(300, 68); }, ribbon},
    {"wetEdgeWidth", "the rim reaches further in", 4.0f, 16.0f,
     [](P l, P m) { return l.pixels(isPainted) > 1000 && m.pixels(isPainted) > 3 * l.pixels(isPainted); }, [](C& c) { ribbon(c); c.setWetEdge(1); }},
    {"textureTingleEnabled", "both tips are seen", false, true,
     [](P l, P m) { return span(l.marks, leanXOf).width() < 0.05 && span(m.marks, leanXOf).width() > 0.1; }, twoTips},
    {"backRenderColor", "mixed towards it", colour(1, 1, 0), colour(0, 0, 1),
     [](P l, P m) { return l.pixels(isBlue) == 0 && m.pixels(isBlue) > 200; }, [](C& c) { vivid(c); c.setColorTingle(1); }},
    {"colorTingle", "each dab another mixture", 0.0f, 1.0f,
     [](P l, P m) { return span(l.marks, hueOf).width() < 0.01 && m.pixels(isBlue) > 200 && m.pixels(isRed) > 200; }, vivid},
    {"hueTingle", "hues vary, and nothing else", 0.0f, 0.8f,
     [](P l, P m) { return span(l.marks, hueOf).width() < 0.01 && span(m.marks, hueOf).width() > 0.3 && span(m.marks, saturationOf).width() < 0.05 && span(m.marks, valueOf).width() < 0.02; }, vivid},
    {"hueTingle_multicolour", "of the tip's own colour as well", 0.0f, 0.8f, [](P l, P m) { return span(l.marks, hueOf).width() < 0.01 && span(m.marks, hueOf).width() > 0.3; },
     [](C& c) { c.setTextureImages({block(32, QColor(180, 60, 40))}); c.setColorFul(true); }},
    {"saturationTingle", "saturations vary, and nothing else", 0.0f, 0.3f,
     [](P l, P m) { return span(l.marks, saturationOf).width() < 0.01 && span(m.marks, saturationOf).width() > 0.2 && span(m.marks, hueOf).width() < 0.05 && span(m.marks, valueOf).width() < 0.02; }, vivid},
    {"brightnessTingle", "brightness varies, and nothing else", 0.0f, 0.3f,
     [](P l, P m) { return span(l.marks, valueOf).width() < 0.01 && span(m.marks, valueOf).width() > 0.2 && span(m.marks, hueOf).width() < 0.05 && span(m.marks, saturationOf).width() < 0.05; }, vivid},
    {"repeatedlyRenderEnabled", "only where both lines are", false, true,
     [](P l, P m) { return l.marks.size() == 1 && m.marks.size() > 10 && near(widthOf(m.marks[4]), 16, 2); }, [](C& c) { second(c); c.setRepeatedlyRenderEnabled(false); }},
    {"slTextureImage", "the second line's shape", ball(), letterL(), [](P l, P m) { return m.marks[4].weight < 0.7 * l.marks[4].weight; }, second},
    {"slRadius", "its size", 16.0f, 32.0f, [](P l, P m) { return near(heightOf(l.marks[3]), 16, 2) && near(heightOf(m.marks[3]), 32, 2); }, second},
    {"slPointsDistance", "its gaps", 1.5f, 3.0f,
     [](P l, P m) { return near(l.marks[5].x() - l.marks[4].x(), 24, 1) && near(m.marks[5].x() - m.marks[4].x(), 48, 1); }, second},
    {"slDistribution", "its scatter", 0.0f, 8.0f,
     [](P l, P m) { return span(l.marks, offLine).high < 3 && span(m.marks, offLine).high > 15; }, secondScattered},
    {"slDistbTwoAxes", "along as well", false, true,
     [](P l, P m) { return span(m.marks, offGrid).mean > span(l.marks, offGrid).mean + 3; }, secondScattered},
    {"slDistbCount", "its copies", 1.0f, 3.0f, [](P l, P m) { return m.marks.size() > 2 * l.marks.size(); }, secondScattered},
    {"slRadiusRelationType", "2 grows with the first line", 0, 2,
     [](P l, P m) { return near(heightOf(l.marks[3]), 16, 2) && near(heightOf(m.marks[3]), 32, 2); }, second, level, [](C& c) { c.setRadius(300); }},
    {"relationValue", "larger by as much", -140.0f, -120.0f,
     [](P l, P m) { return near(heightOf(l.marks[3]), 10, 4) && near(heightOf(m.marks[3]), 30, 4); }, [](C& c) { second(c); c.setSlRadiusRelationType(1); }},
};
// clang-format on

class BrushPromisesTest : public CanvasTest, public ::testing::WithParamInterface<Promise> {
protected:
    static Picture picture(const QVariant& value) {
        const Promise& promise = GetParam();
        auto canvas = makeCanvas(kWidth, kHeight);
        apart(*canvas);
        promise.prepare(*canvas);
        EXPECT_TRUE(
            canvas->setBrushValue(*brushPropertyNamed(QString::fromStdString(promise.property())), value));
        promise.then(*canvas);
        if (promise.stroke) {
            paint(*canvas, promise.stroke());
        } else {
            points(*canvas);
        }
        return Picture(canvas->image());
    }
};

TEST_P(BrushPromisesTest, Hold) {
    const Picture less = picture(GetParam().less), more = picture(GetParam().more);
    ASSERT_TRUE(!less.marks.empty() || !more.marks.empty());
    EXPECT_TRUE(GetParam().holds(less, more)) << GetParam().claim << less << more;
    EXPECT_TRUE(same(more, picture(GetParam().more))) << "and repeats";
}
INSTANTIATE_TEST_SUITE_P(Properties, BrushPromisesTest, ::testing::ValuesIn(kPromises), byName);

// A control follows each of its three inputs by that input's own number, and by no other.
struct Influence : Named {
    std::array<float, 3> strengths;  // of pressure, altitude, speed, where they show
    double (*measure)(const Marks&);
    double differs;  // at least, from no pressure to all of it
    Prepare prepare;
};

// clang-format off
const Influence kInfluences[] = {
    {"radiusControl", {1, -1, 1}, [](const Marks& m) { return span(m, widthOf).mean; }, 2, [](C& c) { whole(c); c.setMinRadius(0.1f); }},
    {"distributionControl", {1, -1, 1}, [](const Marks& m) { return span(m, offLine).mean; }, 5, copies},
    {"distributionCountControl", {1, -1, 1}, [](const Marks& m) { return static_cast<double>(m.size()); }, 5, copies},
    {"radianControl", {0.5f, -0.5f, 0.5f}, [](const Marks& m) { return span(m, leanXOf).mean; }, -0.1, apart},
    {"roundnessControl", {1, -1, 1}, [](const Marks& m) { return span(m, ratioOf).mean; }, 0.2, [](C& c) { whole(c); c.setRoundness(0.5f); }},
    {"flowControl", {1, 1, 1}, [](const Marks& m) { return span(m, alphaOf).mean; }, 0.2, [](C& c) { whole(c); c.setMinFlow(0.1f); }},
    {"maskDepthControl", {1, -1, 1}, [](const Marks& m) { return span(m, alphaOf).mean; }, 0.2, [](C& c) { whole(c); c.setNeedMaskTexture(true); c.setMaskImage(block(40, Qt::gray)); c.setMaskDepth(0.5f); }},
    {"textureControl", {1, -1, 1}, [](const Marks& m) { return span(m, leanXOf).mean; }, 0.1, twoTips},
    {"colorControl", {1, -1, 1}, [](const Marks& m) { return span(m, [](const Mark& k) { return k.color.blueF(); }).mean; }, -0.2, vivid},
};
// clang-format on

class BrushInfluenceTest : public CanvasTest, public ::testing::WithParamInterface<Influence> {};
TEST_P(BrushInfluenceTest, FollowsItsOwnInputAlone) {
    const Influence& row = GetParam();
    for (std::size_t number = 0; number < 3; ++number) {
        for (std::size_t input = 0; input < 3; ++input) {
            LPControlParams control{};
            (number == 0   ? control.pressure
             : number == 1 ? control.altitude
                           : control.speed) = row.strengths[number];
            Stroke stroke = input == 2 ? speedUp() : level();
            for (auto& [x, y, pressure, altitude] : stroke) {
                pressure = input != 0 ? 0.6f : x < kWidth / 2.0f ? 0.0f : 1.0f;
                altitude = input != 1 || x < kWidth / 2.0f ? 0.2f : 1.0f;
            }
            auto canvas = makeCanvas(kWidth, kHeight);
            apart(*canvas);
            row.prepare(*canvas);
            ASSERT_TRUE(canvas->setBrushValue(*brushPropertyNamed(QString::fromLatin1(row.name)),
                                              QVariant::fromValue(control)));
            paint(*canvas, stroke);
            const Picture picture(canvas->image());
            Marks slack, full;
            for (const Mark& mark : picture.marks) {
                if (mark.x() < kWidth * 0.4) {
                    slack.push_back(mark);
                } else if (mark.x() > kWidth * 0.7) {
                    full.push_back(mark);
                }
            }
            // Pressure is given, tilt and speed take away.
            const double share =
                (row.measure(full) - row.measure(slack)) / (input == 0 ? row.differs : -row.differs);
            EXPECT_TRUE(number == input ? share > 1 : std::abs(share) < 1)
                << "number " << number << ", input " << input << ": " << share;
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Controls, BrushInfluenceTest, ::testing::ValuesIn(kInfluences), byName);

// The second line in the middle of a stroke: what lies left of it keeps what it had.
struct Change : Named {
    bool masked;
    Prepare change;
    bool maskedThen;
};

const Change kChanges[] = {
    {"SwitchedOn", false, [](C& c) { c.setRepeatedlyRenderEnabled(true); }, true},
    {"SwitchedOff", true, [](C& c) { c.setRepeatedlyRenderEnabled(false); }, false},
    {"AnotherKindThatPaints", true, [](C& c) { c.setBrushType(1); }, true},
    {"SmudgingAndBack", true, [](C& c) { c.setBrushType(3), c.setBrushType(0); }, true},
    {"ToSmudging", true, [](C& c) { c.setLoadQuantity(1), c.setMixQuantity(0), c.setBrushType(3); }, false},
    {"WhileSmudging", false,
     [](C& c) { c.setBrushType(3), c.setRepeatedlyRenderEnabled(true), c.setBrushType(0); }, true},
    {"RecognitionAndBack", true, [](C& c) { c.setEnableRecogition(true), c.setEnableRecogition(false); },
     true},
    {"BlendTypes", true, [](C& c) { c.setBlendType(4), c.setBlendType(1); }, true},
};

class SecondLineTest : public CanvasTest, public ::testing::WithParamInterface<Change> {};
TEST_P(SecondLineTest, MasksFromWhereItChanges) {
    const Change& row = GetParam();
    auto canvas = makeCanvas(kWidth, kHeight);
    apart(*canvas);
    second(*canvas);
    paint(*canvas, along(20, 20, 600, 20));  // of which the second line must know nothing then
    canvas->setRepeatedlyRenderEnabled(row.masked);
    Stroke stroke = level();
    if (!row.masked) {  // and back over what was not masked
        const Stroke back = along(610, kLine, 30, kLine);
        stroke.insert(stroke.end(), back.begin(), back.end());
    }
    paint(*canvas, stroke, [&](std::size_t i) {
        if (i == 15) {
            row.change(*canvas);
        }
    });
    const Picture picture(canvas->image());
    const auto isMasked = [&](int from, int to) {
        return 3 * picture.pixels(isPainted, QRect(from, 50, to - from, 100)) < (to - from) * 100;
    };
    EXPECT_EQ(isMasked(40, 200), row.masked);
    EXPECT_EQ(isMasked(430, 600), row.maskedThen);
    if (row.maskedThen) {
        EXPECT_EQ(picture.pixels(isPainted, QRect(430, 30, 170, 40)), 0)
            << "the second line came from elsewhere";
    }
    EXPECT_GT(picture.pixels(isPainted, QRect(430, 0, 170, kHeight)), 300) << "the stroke went on";
}
INSTANTIATE_TEST_SUITE_P(Changes, SecondLineTest, ::testing::ValuesIn(kChanges), byName);

TEST(BrushPromisesTableTest, HasEveryProperty) {
    std::set<std::string> promised;
    for (const Promise& row : kPromises) {
        promised.insert(row.property());
    }
    for (const Influence& row : kInfluences) {
        promised.insert(row.name);
    }
    for (const BrushProperty& row : brushProperties()) {
        EXPECT_EQ(promised.erase(row.name), 1u) << row.name;
    }
    EXPECT_TRUE(promised.empty()) << *promised.begin() << " is no property";
}

}  // namespace
