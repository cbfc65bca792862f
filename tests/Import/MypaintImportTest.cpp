// SPDX-License-Identifier: MIT
// MyPaint's brushes: that they come to the same, what is told of the rest, and that all of a package open.
#include <gmock/gmock.h>

#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>
#include <cmath>

#include "Import/BrushImport.h"
#include "Import/EngineCurves.h"
#include "Preset/QDBrushManager.h"

namespace dabcanvas {
namespace {

using ::testing::HasSubstr;

// Settings as "name": base or "name": [base, {"input": curve}], which is shorter than the file's own form.
QByteArray myb(const QByteArray& settings) {
    QByteArray file = R"({"version": 3, "settings": {)";
    for (const QByteArray& setting : settings.split(';')) {
        const qsizetype colon = setting.indexOf(':'), bar = setting.indexOf('|');
        const QByteArray base = setting.mid(colon + 1, (bar < 0 ? setting.size() : bar) - colon - 1);
        file += '"' + setting.left(colon).trimmed() + R"(": {"base_value": )" + base + R"(, "inputs": {)" +
                (bar < 0 ? QByteArray() : setting.mid(bar + 1)) + "}},";
    }
    return file.chopped(1) + "}}";
}

// A steady brush of 16 pixels across, whose dabs do not add up to anything else than each is.
const QByteArray kPlain =
    "radius_logarithmic: 2.0794; opaque: 0.5; opaque_multiply: 1; opaque_linearize: 0; "
    "dabs_per_actual_radius: 2; ";

class Imported {
public:
    explicit Imported(const QByteArray& settings) : _brush(importBrush(myb(kPlain + settings))) {}
    explicit operator bool() const { return _brush.has_value(); }

    QString lost() const { return _brush->lost.join('\n'); }
    template <typename Value = float>
    Value of(BrushKey key) const {
        Value found{};
        for (const auto& [set, value] : _brush->values) {
            found = set == key ? std::get<Value>(value) : found;
        }
        return found;
    }
    float size(const LPControlParams& inputs) const {
        return of(BrushKey::radius) *
               shareOfSize(inputs, of(BrushKey::minRadius), of<LPControlParams>(BrushKey::radiusControl));
    }
    float flow(const LPControlParams& inputs) const {
        return flowOf(inputs, of(BrushKey::flow), of(BrushKey::minFlow),
                      of<LPControlParams>(BrushKey::flowControl));
    }

private:
    std::optional<ImportedBrush> _brush;
};

constexpr LPControlParams kLight{0.25f, 0, 0.6f}, kFirm{0.85f, 0, 0.6f}, kFlat{0.5f, 1, 0.6f},
    kSlow{0.5f, 0, 1}, kFast{0.5f, 0, 0.03f};

TEST(MypaintImportTest, SizeAndOpacityComeToWhatMyPaintsCurvesDo) {
    const struct {
        const char* settings;
        LPControlParams pen;
        float size, flow;
    } kRows[] = {
        {"smudge: 0", kLight, 16, 0.5f},
        {R"(radius_logarithmic: 2.0794| "pressure": [[0, -1], [1, 1]])", kLight, 16 * std::exp(-0.5f), 0.5f},
        {R"(radius_logarithmic: 2.0794| "pressure": [[0, -1], [1, 1]])", kFirm, 16 * std::exp(0.7f), 0.5f},
        {R"(radius_logarithmic: 2.0794| "speed1": [[0, 0.5], [4, -0.5]])", kSlow, 16 * std::exp(0.35f), 0.5f},
        {R"(radius_logarithmic: 2.0794| "speed1": [[0, 0.5], [4, -0.5]])", kFast, 16 * std::exp(-0.45f),
         0.5f},
        {R"(radius_logarithmic: 2.0794| "tilt_declination": [[30, 0.5], [90, 0]])", kLight, 16, 0.5f},
        {R"(radius_logarithmic: 2.0794| "tilt_declination": [[30, 0.5], [90, 0]])", kFlat,
         16 * std::exp(0.5f), 0.5f},
        {R"(opaque_multiply: 0| "pressure": [[0, 0], [1, 1]])", kLight, 16, 0.125f},
        {R"(opaque_multiply: 0| "pressure": [[0, 0], [1, 1]])", kFirm, 16, 0.425f},
        {R"(radius_logarithmic: 1| "custom": [[-1, -1], [1, 1]]; custom_input: 1.0794)", kLight, 16, 0.5f},
        {"opaque: 0.9375; opaque_linearize: 1", kLight, 16, 0.5f},  // of four dabs over a place
        {"dabs_per_actual_radius: 32", kLight, 16, 0.75f},          // lines leave room for every second only
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.settings);
        const Imported brush(row.settings);
        ASSERT_TRUE(brush);
        EXPECT_NEAR(std::log(brush.size(row.pen) / row.size), 0, 0.2f);
        EXPECT_NEAR(brush.flow(row.pen), row.flow, 0.06f);
    }
}

TEST(MypaintImportTest, TheRestFollowsItsSetting) {
    const struct {
        const char* settings;
        BrushKey key;
        float value;
    } kRows[] = {
        {"dabs_per_actual_radius: 5", BrushKey::pointsDistance, 0.1f},
        {"dabs_per_basic_radius: 3", BrushKey::pointsDistance, 0.1f},
        {"offset_by_random: 2", BrushKey::distribution, 2},
        {"elliptical_dab_ratio: 4", BrushKey::roundness, 0.25f},
        {"elliptical_dab_ratio: 4; elliptical_dab_angle: 45", BrushKey::radian, -0.785f},
        {R"(elliptical_dab_ratio: 4; elliptical_dab_angle: 90| "random": [[0, -180], [1, 180]])",
         BrushKey::radianTingle, 1},
        {R"(elliptical_dab_ratio: 4; elliptical_dab_angle: 30| "direction": [[0, 0], [180, 180]])",
         BrushKey::radian, -0.524f},
        {R"(change_color_h: 0| "random": [[0, -0.1], [1, 0.1]])", BrushKey::hueTingle, 0.2f},
        {R"(change_color_v: 0| "random": [[0, -0.1], [1, 0.1]])", BrushKey::brightnessTingle, 0.1f},
        {R"(radius_logarithmic: 2| "stroke": [[0, -1], [1, 0]])", BrushKey::startRadius, 0.368f},
        {"smudge: 0.8", BrushKey::mixQuantity, 0.8f},
        {R"(radius_logarithmic: 2| "speed1": [[0, 1], [4, 0]])", BrushKey::sensitivity, 10},
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.settings);
        const Imported brush(row.settings);
        ASSERT_TRUE(brush);
        EXPECT_NEAR(brush.of(row.key), row.value, 0.02f + 0.03f * std::fabs(row.value));
    }
    EXPECT_EQ(Imported("eraser: 1").of<int>(BrushKey::blendType), 5);
    EXPECT_EQ(Imported("smudge: 0.8").of<int>(BrushKey::brushType), 3);
    EXPECT_EQ(Imported("slow_tracking: 2").of<int>(BrushKey::trackNum), 3);
    EXPECT_NEAR(Imported("radius_by_random: 0.3").of(BrushKey::radiusTingle), 0.7f, 0.1f);
    EXPECT_TRUE(
        Imported(R"(elliptical_dab_ratio: 4; elliptical_dab_angle: 0| "direction": [[0, 0], [180, 180]])")
            .of<bool>(BrushKey::moveRadianEnable));
}

TEST(MypaintImportTest, WhatIsNotCarriedOverIsTold) {
    EXPECT_EQ(Imported("smudge: 0").lost(), "") << "of a plain brush there is nothing to tell";
    const struct {
        const char *settings, *told;
    } kRows[] = {
        {R"(opaque: 1| "direction": [[0, 0], [180, -1]])", "the curve of opacity over direction"},
        {R"(hardness: 0.5| "pressure": [[0, 0], [1, 0.3]])", "the curve of hardness over pressure"},
        {"lock_alpha: 1", "keeping transparency"},
        {"eraser: 0.4", "erasing in part"},
        {R"(smudge: 0| "pressure": [[0, 0], [1, 1]])", "the curve of smudging over pressure"},
        {R"(opaque: 0.5| "pressure": [[0, 0.5], [0.4, -0.5], [0.6, -0.5], [1, 0.5]])",
         "the exact course of opacity"},
        {"wetness: 1", "the unknown setting wetness"},
        {R"(opaque: 1| "moon": [[0, 0], [1, 1]])", "over the unknown input moon"},
    };
    for (const auto& row : kRows) {
        EXPECT_THAT(Imported(row.settings).lost().toStdString(), HasSubstr(row.told)) << row.settings;
    }
}

TEST(MypaintImportTest, DamagedFilesAreRefusedInWords) {
    const struct {
        QByteArray file;
        const char* told;
    } kRows[] = {
        {"{\"version\": 3, \"settings\": {", "it is no JSON"},
        {"version 2\nopaque 1.0 | pressure 0 0\n", "older ones are not read"},
        {R"({"version": 2, "settings": {}})", "of version 3"},
        {R"({"version": 3})", "of version 3"},
        {myb("opaque: \"1\""), "opaque has no base_value"},
        {myb("opaque: 1e30"), "opaque has no base_value"},
        {myb(R"(opaque: 1| "pressure": [[0, 0]])"), "opaque's curve over pressure is none"},
        {myb(R"(opaque: 1| "pressure": [[1, 0], [0, 1]])"), "opaque's curve over pressure is none"},
        {myb(R"(opaque: 1| "pressure": [)" + QByteArray("[0, 0],").repeated(65).chopped(1) + "]"), "is none"},
        {"{" + QByteArray(2 << 20, ' '), "too large"},
    };
    for (const auto& row : kRows) {
        QString problem;
        EXPECT_FALSE(importBrush(row.file, &problem)) << row.file.left(80).toStdString();
        EXPECT_THAT(problem.toStdString(), HasSubstr(row.told));
    }
}

// The brushes of MyPaint's package, where it is installed.
TEST(MypaintImportTest, EveryBrushOfAPackageBecomesAPresetThatCanBeApplied) {
    const QString package = QStandardPaths::locate(QStandardPaths::GenericDataLocation, "mypaint-data",
                                                   QStandardPaths::LocateDirectory);
    if (package.isEmpty()) {
        GTEST_SKIP() << "no brushes of MyPaint's are installed";
    }
    int opened = 0;
    for (QDirIterator files(package, {"*.myb"}, QDir::Files, QDirIterator::Subdirectories);
         files.hasNext();) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QString problem;
        const auto brush = importBrush(file.readAll(), &problem);
        ASSERT_TRUE(brush) << file.fileName().toStdString() << ": " << problem.toStdString();
        if (opened++ % 20 == 0) {  // to capture them takes longest
            const auto params = brush->params();
            ASSERT_TRUE(params);
            EXPECT_EQ(QDBrushManager::flawOfParams(*params), "") << file.fileName().toStdString();
        }
    }
    EXPECT_GT(opened, 0);
}

}  // namespace
}  // namespace dabcanvas
