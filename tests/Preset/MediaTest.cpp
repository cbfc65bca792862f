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
    // One stroke to and fro, as a hand does it: rows lie as close as they happen to.
    void fill(float pressure) const {
        std::mt19937 random(3);
        std::normal_distribution<double> shake(0, 1.5);
        canvas->setRadius(std::min(canvas->radius(), kSide / 6.0f));  // the patch lies within what is filled
        const double step = std::max(canvas->radius() / 12.0, 2.0);
        std::uniform_real_distribution<double> apart(0, 2 * step);
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
    // Alpha, 0..1, of a part of the canvas, rows from the top.
    std::vector<double> alpha(const QRect& part) const {
        std::vector<double> values;
        const QImage image = canvas->image();
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                values.push_back(image.constScanLine(y)[x * 4 + 3] / 255.0);
            }
        }
        return values;
    }

    std::unique_ptr<QDDrawCanvas> canvas =
        QDDrawCanvas::initWithFrame(QRectF(0, 0, kSide, kSide), {.kind = SurfaceKind::processor});
    bool loaded = false;
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

// The most that a patch is like itself elsewhere, farther than any grain: to the right, down, and both ways aslant.
double strongestPeriod(const std::vector<double>& patch, int side) {
    constexpr int kLeast = 25;
    const double middle = mean(patch);
    double power = 0, strongest = 0;
    for (const double value : patch) {
        power += (value - middle) * (value - middle) / static_cast<double>(patch.size());
    }
    if (power < 1.0 / (255 * 255)) {
        return 0;  // it is flat
    }
    for (const auto& [right, down] : {std::pair(1, 0), std::pair(0, 1), std::pair(1, 1), std::pair(-1, 1)}) {
        for (int lag = kLeast; lag <= side / 2; ++lag) {
            double sum = 0, count = 0;
            for (int y = 0; y + down * lag < side; ++y) {
                for (int x = std::max(-right * lag, 0); x + std::max(right * lag, 0) < side; ++x) {
                    const auto at = [&](int i, int j) {
                        return patch[static_cast<std::size_t>(j * side + i)] - middle;
                    };
                    sum += at(x, y) * at(x + right * lag, y + down * lag);
                    ++count;
                }
            }
            strongest = std::max(strongest, sum / count / power);
        }
    }
    return strongest;
}

TEST(MediaTest, AFilledPatchShowsNoPeriod) {
    constexpr int kPatch = 320;
    const QStringList painting = presets({"stamp", "eraser", "smudge", "blender", "fill"}, false);
    EXPECT_GE(painting.size(), 30);
    for (const QString& preset : painting) {
        const Sheet sheet(preset);
        sheet.fill(0.5f);
        EXPECT_LT(strongestPeriod(sheet.alpha({80, 80, kPatch, kPatch}), kPatch), 0.2)
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
        std::vector<double> rows;
        for (int y = 0; y < kSide; ++y) {
            rows.push_back(mean(sheet.alpha({140, y, kSide - 280, 1})));
        }
        const auto painted = [](double value) { return value > 0.02; };
        const auto top = std::find_if(rows.begin(), rows.end(), painted);
        const auto bottom = std::find_if(rows.rbegin(), rows.rend(), painted).base();
        const std::ptrdiff_t width = bottom - top;
        ASSERT_GT(width, 12) << preset.toStdString();
        const double inside = mean({top + width * 2 / 5, bottom - width * 2 / 5});
        const double rims[] = {*std::max_element(top, top + width / 3),
                               *std::max_element(bottom - width / 3, bottom)};
        EXPECT_GE(std::min(rims[0], rims[1]), 1.1 * inside) << preset.toStdString();
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
