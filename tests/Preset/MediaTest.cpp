// SPDX-License-Identifier: MIT
// What makes a medium read as what it is, as numbers, of the presets that are handed out.

#include <QDir>
#include <cmath>
#include <numeric>
#include <random>

#include "Preset/PresetInfo.h"
#include "Preset/QDBrushManager.h"
#include "TestFolders.h"
#include "support/CanvasTest.h"
#include "support/Named.h"

namespace dabcanvas {
namespace {

const QDir kFolder(QStringLiteral(DABCANVAS_SAMPLES "/brushes"));
constexpr int kSide = 480;

struct Point {
    double x, y;
    float pressure = 1, altitude = 0;
};

class Sheet {
public:
    explicit Sheet(const QString& preset, const ESColor& ground = ESColor()) {
        canvas->clearWithColor(ground, true);
        canvas->setRandomSeed(7);
        loaded = canvas->resetWithXBFPath(kFolder.filePath(preset));
    }
    void stroke(const std::vector<Point>& points) const {
        for (std::size_t i = 0; i < points.size(); ++i) {
            const auto& [x, y, pressure, altitude] = points[i];
            i == 0                  ? canvas->drawingWithBeginPoint({x, y}, pressure, altitude)
            : i + 1 < points.size() ? canvas->drawingWithMoveToPoint({x, y}, pressure, altitude)
                                    : canvas->drawingWithEndPoint({x, y}, pressure, altitude);
        }
    }
    void line(double x0, double y0, double x1, double y1, float pressure, float altitude = 0) const {
        std::vector<Point> points;
        for (int i = 0; i <= 40; ++i) {
            points.push_back({x0 + (x1 - x0) * i / 40, y0 + (y1 - y0) * i / 40, pressure, altitude});
        }
        stroke(points);
    }
    // One stroke to and fro, as a hand does it, its rows so close that none is seen.
    void fill(float pressure) const {
        std::mt19937 random(3);
        std::normal_distribution<double> shake(0, 1.5);
        canvas->setRadius(std::min(canvas->radius(), kSide / 6.0f));  // the patch lies within what is filled
        const double step = std::max(canvas->radius() / 12.0, 2.0);
        // Hairs draw lines, which even rows would repeat.
        const double uneven = canvas->moveRadianEnable() ? 0.7 * step : 0;
        std::uniform_real_distribution<double> apart(step - uneven, step + uneven);
        std::vector<Point> points;
        int row = 0;
        for (double down = 40; down < kSide - 40; down += apart(random), ++row) {
            for (int i = 0; i <= 24; ++i) {
                const double along = 20 + (kSide - 40) * (row % 2 == 0 ? i : 24 - i) / 24.0;
                points.push_back({along + shake(random), down + shake(random), pressure, 0});
            }
        }
        stroke(points);
    }
    // Of a part of the canvas, rows from the top, 0..1: alpha, or red, green and blue as one.
    std::vector<double> alpha(const QRect& part) const {
        return values(part, [](const uchar* pixel) { return pixel[3] / 255.0; });
    }
    std::vector<double> brightness(const QRect& part) const {
        return values(part, [](const uchar* pixel) { return (pixel[0] + pixel[1] + pixel[2]) / 765.0; });
    }

    std::unique_ptr<QDDrawCanvas> canvas =
        QDDrawCanvas::initWithFrame(QRectF(0, 0, kSide, kSide), {.kind = SurfaceKind::processor});
    bool loaded = false;

private:
    template <typename Value>
    std::vector<double> values(const QRect& part, Value valueOf) const {
        std::vector<double> found;
        const QImage image = canvas->image();
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                found.push_back(valueOf(image.constScanLine(y) + x * 4));
            }
        }
        return found;
    }
};

// Those that have one of these tags, or those that have none of them.
QStringList presets(const QStringList& tags, bool have = true) {
    QStringList found;
    for (const QString& file : kFolder.entryList({"*.xbf"})) {
        const auto brushes = QDBrushManager::brushesWithXBFPath(kFolder.filePath(file));
        const QStringList own = infoOfParams(BrushRecords::brushParams(brushes->first())).tags;
        if (std::any_of(tags.begin(), tags.end(), [&](const QString& tag) { return own.contains(tag); }) ==
            have) {
            found.append(file);
        }
    }
    return found;
}

double mean(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

// ---- Edges

struct Edge : Named {
    const char* preset;
    double least, most;  // share of the painted pixels that are covered in part
};
class EdgeTest : public CanvasTest, public ::testing::WithParamInterface<Edge> {};
TEST_P(EdgeTest, IsAsSoftAsTheMediumIs) {
    bool any = false;
    for (const float pressure : {0.1f, 0.3f, 0.5f}) {
        const Sheet sheet(GetParam().preset);
        ASSERT_TRUE(sheet.loaded);
        sheet.line(40, 100, 40 + 380 * std::cos(M_PI / 6), 100 + 380 * std::sin(M_PI / 6), pressure);
        double painted = 0, partly = 0;
        for (const double value : sheet.alpha({0, 0, kSide, kSide})) {
            painted += value > 0.02 ? 1 : 0;
            partly += value > 0.1 && value < 0.9 ? 1 : 0;
        }
        if (painted / 380 >= 3) {
            any = true;
            EXPECT_GE(partly / painted, GetParam().least) << pressure;
        }
        EXPECT_LE(partly / std::max(painted, 1.0), GetParam().most) << pressure;
    }
    EXPECT_TRUE(any) << "no line is wide enough to tell";
}
const Edge kEdges[] = {{{"InkPen"}, "ink-pen.xbf", 0.2, 1},
                       {{"BrushPen"}, "brush-pen.xbf", 0.2, 1},
                       {{"TechnicalPen"}, "technical-pen.xbf", 0.2, 1},
                       {{"Ballpoint"}, "ballpoint.xbf", 0.2, 1},
                       {{"FeltTip"}, "felt-tip.xbf", 0.2, 1},
                       {{"PixelBrush"}, "hard-pixel.xbf", 0, 0}};
INSTANTIATE_TEST_SUITE_P(Media, EdgeTest, ::testing::ValuesIn(kEdges), byName);

// ---- Texture

// How much a patch is like itself so far away, 1 being the same; it is around 0 and has a power.
double likeness(const std::vector<double>& patch, int side, int right, int down) {
    double sum = 0, count = 0;
    for (int y = 0; y + down < side; ++y) {
        for (int x = std::max(-right, 0); x + std::max(right, 0) < side; ++x) {
            sum += patch[static_cast<std::size_t>(y * side + x)] *
                   patch[static_cast<std::size_t>((y + down) * side + x + right)];
            ++count;
        }
    }
    return sum / count;
}

// The most that a patch is like itself elsewhere, farther than any grain and than what is smooth is like itself. To the
// right the rows that filled it do not count.
double strongestPeriod(std::vector<double> patch, int side) {
    constexpr int kLeast = 25;
    double strongest = 0;
    const double middle = mean(patch);
    for (double& value : patch) {
        value -= middle;
    }
    for (const auto& [right, down] : {std::pair(0, 1), std::pair(1, 1), std::pair(-1, 1), std::pair(1, 0)}) {
        for (auto row = patch.begin(); down == 0 && row != patch.end(); row += side) {
            std::for_each(row, row + side,
                          [most = mean({row, row + side})](double& value) { value -= most; });
        }
        const double power = likeness(patch, side, 0, 0);
        double before = power;
        bool falls = true;
        const int last = power < 4.0 / (255 * 255) ? 0 : side / 2;  // it is flat
        for (int lag = 1; lag <= last; ++lag) {
            const double now = likeness(patch, side, right * lag, down * lag);
            falls = falls && now < before;
            before = now;
            if (lag >= kLeast && !falls) {
                strongest = std::max(strongest, now / power);
            }
        }
    }
    return strongest;
}

TEST(MediaTest, AFilledPatchShowsNoPeriod) {
    constexpr int kPatch = 256;
    const QStringList painting = presets({"stamp", "eraser", "smudge", "blender", "fill"}, false);
    EXPECT_GE(painting.size(), 30);
    for (const QString& preset : painting) {
        const Sheet sheet(preset, ESColor::grey(1));
        sheet.fill(0.5f);
        EXPECT_LT(strongestPeriod(sheet.brightness({110, 110, kPatch, kPatch}), kPatch), 0.2)
            << preset.toStdString();
    }
}

// ---- What a medium does

TEST(MediaTest, ABlenderPaintsNothingOfItsOwn) {
    const QStringList blenders = presets({"blender"});
    ASSERT_GE(blenders.size(), 2);
    for (const QString& preset : blenders) {
        const Sheet sheet(preset, ESColor::rgba(0.2f, 0.5f, 0.7f));
        const QImage before = sheet.canvas->image();
        sheet.fill(0.8f);
        EXPECT_TRUE(imagesMatch(before, sheet.canvas->image(), 1)) << preset.toStdString();
    }
}

TEST(MediaTest, WatercolourDriesDarkerAtItsRim) {
    const QStringList washes = presets({"watercolour"});
    ASSERT_GE(washes.size(), 4);
    for (const QString& preset : washes) {
        const Sheet sheet(preset);
        sheet.line(60, kSide / 2.0, kSide - 60, kSide / 2.0, 0.7f);
        // Where the rim begins differs from column to column.
        constexpr int kRim = 6;
        double inside = 0, above = 0, below = 0;
        for (int x = 140; x < kSide - 140; ++x) {
            const std::vector<double> column = sheet.alpha({x, 0, 1, kSide});
            const auto begin = column.begin() + kSide / 2;
            const double middle = mean({begin - 3, begin + 3});
            const auto isPaint = [&](double value) { return value > middle / 2; };
            const auto top = std::find_if(column.begin(), column.end(), isPaint);
            const auto bottom = std::find_if(column.rbegin(), column.rend(), isPaint).base();
            ASSERT_GT(bottom - top, 3 * kRim) << preset.toStdString();
            inside += middle;
            above += mean({top, top + kRim});
            below += mean({bottom - kRim, bottom});
        }
        EXPECT_GE(std::min(above, below), 1.1 * inside) << preset.toStdString();
    }
}

TEST(MediaTest, ATiltedPencilShades) {
    const QStringList pencils = presets({"tilt"});
    ASSERT_FALSE(pencils.isEmpty());
    for (const QString& preset : pencils) {
        double widths[2], inks[2];
        for (const int tilted : {0, 1}) {
            const Sheet sheet(preset);
            sheet.line(60, kSide / 2.0, kSide - 60, kSide / 2.0, 0.5f, tilted != 0 ? 1.0f : 0.0f);
            double painted = 0, ink = 0;
            for (const double value : sheet.alpha({100, 0, kSide - 200, kSide})) {
                painted += value > 0.02 ? 1 : 0;
                ink += value;
            }
            widths[tilted] = painted / (kSide - 200);
            inks[tilted] = ink / painted;
        }
        EXPECT_GE(widths[1], 3 * widths[0]) << preset.toStdString();
        EXPECT_LT(inks[1], 0.8 * inks[0]) << preset.toStdString();
    }
}

}  // namespace
}  // namespace dabcanvas
