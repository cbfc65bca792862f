// SPDX-License-Identifier: MIT
// Capturing a canvas's brush and applying presets.
#include <QTemporaryDir>
#include <array>
#include <cstdio>
#include <string>

#include "Brushes/BrushProperties.h"
#include "Brushes/ImageData.h"
#include "ESRender/ESImageRender.h"
#include "LineProcess/LPProperties.h"
#include "Preset/BrushParamValues.h"
#include "Preset/PresetImages.h"
#include "Preset/QDBrushManager.h"
#include "support/BrushValues.h"
#include "support/CanvasTest.h"
#include "support/Files.h"
#include "support/LogCapture.h"

using namespace dabcanvas;

using namespace BrushRecords;

namespace {

std::string shown(const QVariant& value) {
    if (value.typeId() == qMetaTypeId<LPControlParams>()) {
        const auto c = value.value<LPControlParams>();
        return std::to_string(c.pressure) + ", " + std::to_string(c.altitude) + ", " +
               std::to_string(c.speed);
    }
    return value.toString().toStdString();
}

bool isSame(const QVariant& a, const QVariant& b) {
    return a == b || (a.typeId() == qMetaTypeId<LPControlParams>() && shown(a) == shown(b));
}

BrushParam record(std::uint32_t id, const QVariant& value) {
    return QDBrushManager::paramWithID(static_cast<int>(id), "set:", value, kXBFFloat);
}

class BrushPresetTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        canvas = makeCanvas(60, 40);
    }
    void expectControl(const LPControlParams& control, float pressure, float altitude, float speed) {
        EXPECT_EQ(shown(QVariant::fromValue(control)),
                  shown(QVariant::fromValue(LPControlParams{pressure, altitude, speed})));
    }
    std::unique_ptr<QDDrawCanvas> canvas;
};

TEST_F(BrushPresetTest, CaptureAndApplyReproduceEveryProperty) {
    for (int seed = 0; seed < 4; ++seed) {
        for (const bool backward :
             {false, true}) {  // setters act on others, so brushes come about in any order
            SCOPED_TRACE("seed " + std::to_string(seed) + (backward ? ", set backward" : ""));
            canvas = makeCanvas(60, 40);
            auto other = makeCanvas(60, 40);
            std::vector<const BrushProperty*> rows;
            for (const BrushProperty& row : brushProperties()) {
                rows.push_back(&row);
            }
            if (backward) {
                std::reverse(rows.begin(), rows.end());
            }
            for (const BrushProperty* row : rows) {
                if (row->presetId != 0) {
                    canvas->setBrushValue(*row, someValue(*row, seed));
                }
            }
            if (canvas->slRadiusRelationType() == 0) {
                canvas->setRepeatedlyRenderEnabled(false);  // a preset could not keep that pair
            }
            const auto params = QDBrushManager::paramsOfDrawView(canvas.get());
            ASSERT_TRUE(params);
            ASSERT_TRUE(other->resetWithParams(params, 200));
            for (const BrushProperty& row : brushProperties()) {
                if (row.presetId != 0 && (row.key != BrushKey::textureImages || canvas->textureType() == 0)) {
                    EXPECT_TRUE(isSame(other->brushValue(row), canvas->brushValue(row)))
                        << row.name << ": " << shown(other->brushValue(row)) << ", not "
                        << shown(canvas->brushValue(row));
                }
            }
            EXPECT_EQ(other->subLineParaObj().radius, canvas->subLineParaObj().radius);
            EXPECT_EQ(QDBrushManager::paramsOfDrawView(other.get()), params);
        }
    }
}

// Their order and types, and most of their values, are those of the sample files.
TEST_F(BrushPresetTest, RecordsHaveTheirForm) {
    canvas->setTextureType(0);
    canvas->setTextureImages({dotted(8, 0), dotted(8, 1)});
    canvas->setStartRadianEnable(true);
    canvas->setRadiusControl({0.1f, 0.2f, 0.3f});
    const BrushParams params = *QDBrushManager::paramsOfDrawView(canvas.get());
    const std::pair<std::uint32_t, QVariant> values[] = {
        {0x200D, 1.0f},  // a number, though its type is boolean
        {0x3101, 0.3f},  // speed, pressure, altitude
        {0x3102, 0.1f},
        {0x3103, 0.2f},
        {0x2001, UIImagePNGRepresentation(dotted(8, 0))}};
    for (const auto& [id, value] : values) {
        EXPECT_EQ(paramValueForKey(params, id), value) << id;
        EXPECT_EQ(paramValueForKey(params, id).typeId(), value.typeId()) << id;
    }
    EXPECT_EQ(std::count_if(params.begin(), params.end(), [](auto& one) { return key(one) == 0x2001; }), 2);

    canvas->setTextureType(1);
    canvas->setSlTextureImage({});
    const BrushParams drawnTip = *QDBrushManager::paramsOfDrawView(canvas.get());
    EXPECT_FALSE(paramValueForKey(drawnTip, 0x2001).isValid()) << "a drawn tip is drawn again";
    EXPECT_FALSE(paramValueForKey(drawnTip, 0x400B).isValid());
    EXPECT_FALSE(QDBrushManager::paramsOfDrawView(nullptr));
}

TEST_F(BrushPresetTest, APresetReplacesTheWholeBrush) {
    canvas->setRadius(77);
    canvas->setHueTingle(0.5f);
    canvas->setMaxRadius(0.4f);
    canvas->setRenderColor(ESColor::rgba(1, 0, 0));
    EXPECT_FALSE(canvas->resetWithParams(std::nullopt, 200));
    EXPECT_FALSE(QDBrushManager::resetDrawView(nullptr, BrushParams(), 200));
    EXPECT_EQ(canvas->radius(), 77);
    ASSERT_TRUE(canvas->resetWithParams(BrushParams(), 200));
    EXPECT_EQ(canvas->radius(), 32);
    EXPECT_EQ(canvas->hueTingle(), 0);
    EXPECT_EQ(canvas->slTextureImage().size(), QSize(128, 128)) << "the soft round";
    EXPECT_EQ(canvas->textureType(), 0);
    EXPECT_TRUE(canvas->textureImages().isEmpty());
    EXPECT_EQ(canvas->maxRadius(), 0.4f) << "which no reset touches";
    EXPECT_EQ(canvas->renderColor(), ESColor::rgba(1, 0, 0));
}

TEST_F(BrushPresetTest, RecordsApplyInOrderAndUnknownOnesAreSkipped) {
    const BrushParams params{record(0x2002, 50.0f),
                             record(0x7777, 1.0f),
                             record(0x3103, 0.25f),
                             record(0x3101, 0.5f),
                             record(0x2002, 60.0f),          // the last one counts here
                             record(0x200D, 0.5f),           // on, as a boolean
                             record(0x1001, 2.9),            // whole numbers are cut
                             record(0x1007, QString("x")),   // no number: 0
                             record(0x3016, std::nanf("")),  // refused
                             record(0x3001, true),
                             record(0x3003, 11),  // of an older version
                             record(0x9001, QString("void main() {}")),
                             record(0x400A, true)};
    canvas->setMaxRadius(0.5f);
    ASSERT_TRUE(canvas->resetWithParams(params, 200));
    EXPECT_EQ(canvas->radius(), 60);
    expectControl(canvas->radiusControl(), 0, 0.25f, 0.5f);
    EXPECT_TRUE(canvas->startRadianEnable());
    EXPECT_EQ(canvas->brushType(), 2);
    EXPECT_EQ(canvas->flow(), 0);
    EXPECT_EQ(canvas->maxRadius(), 0.5f);
    EXPECT_EQ(canvas->slRadiusRelationType(), 2) << "a second line follows the first";
    EXPECT_EQ(canvas->relationValue(), 32.0f / 60.0f);

    const QString erase = ESImageRender::eraseFSHString();
    ASSERT_TRUE(canvas->resetWithParams(BrushParams{record(0x9006, erase)}, 200));
    EXPECT_TRUE(canvas->blendFragmentShaderString().contains("void main"));
}

// A drawn tip may be 1280 pixels wide, and a few kilobytes can change its size a thousand times.
TEST_F(BrushPresetTest, TheTipIsDrawnOnceWhateverAPresetSays) {
    const auto imagesMade = [] { return QImage(1, 1, QImage::Format_RGB32).cacheKey() >> 32; };
    BrushParams params{record(0x200A, 3)};
    for (int i = 0; i < 100; ++i) {
        params << record(0x2002, 20.0f + static_cast<float>(i % 2)) << record(0x200A, 1 + i % 3);
    }
    const qint64 before = imagesMade();
    ASSERT_TRUE(canvas->resetWithParams(params, 200));
    EXPECT_LT(imagesMade() - before, 50);
    ASSERT_EQ(canvas->textureImages().size(), 1);
    EXPECT_EQ(canvas->textureImages()[0].width(), 21);
    const QImage drawn = canvas->textureImages()[0];
    canvas->setTextureType(2);
    canvas->setTextureType(1);
    EXPECT_EQ(canvas->textureImages()[0], drawn);
    const qint64 beforeSlider = imagesMade();
    for (int i = 0; i < 200; ++i) {
        canvas->setRadius(20.0f + static_cast<float>(i % 100));
    }
    canvas->setRadius(21);
    EXPECT_LT(imagesMade() - beforeSlider, 5) << "nobody looked";
    canvas->setTextureImages({});
    canvas->setTextureType(1);
    EXPECT_EQ(canvas->textureImages(), QList<QImage>{drawn}) << "after a brush without images";
}

TEST_F(BrushPresetTest, WhatACanvasDoesNotTakeIsLeftOutAndToldOnce) {
    const QVariant nan = std::nanf("");
    const QByteArray tip = UIImagePNGRepresentation(dotted(8, 0));
    const struct {
        const char* name;
        BrushParams params;
        const char* flaw;
    } rows[] = {
        {"numbers", {record(0x3103, nan), record(0x2002, nan)}, "radiusControl is not a finite number"},
        {"images", {record(0x800F, "x"), record(0x2001, "x")}, "maskImage is not an image that can be"},
        {"huge",
         {record(0x2001, QByteArray("P6 20000 20000 255\n")), record(0x2002, nan)},
         "textureImages is too large: the images"},
        {"hollow",
         {record(0x2001, QByteArray("P6 9000 9000 255\n"))},
         "textureImages is too large: it claims"},
        {"no image", {record(0x800F, QByteArray()), record(0x2001, tip)}, ""},
        {"no colour", {record(0x1003, 5)}, ""}};
    canvas->setRenderColor(ESColor::rgba(1, 0, 0));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const QString flaw = QDBrushManager::flawOfParams(row.params);
        EXPECT_EQ(flaw.left(qstrlen(row.flaw)), QLatin1String(row.flaw)) << flaw.toStdString();
        EXPECT_EQ(flaw.isEmpty(), *row.flaw == 0);
        const LogCapture log;
        ASSERT_TRUE(canvas->resetWithParams(row.params, 200));
        EXPECT_EQ(log.lines().size(), *row.flaw == 0 ? 0 : 1);
        EXPECT_TRUE(*row.flaw == 0 || log.has(QLatin1String(row.flaw)));
        EXPECT_EQ(canvas->radius(), 32);
        EXPECT_TRUE(canvas->maskImage().isNull());
    }
    EXPECT_EQ(canvas->renderColor(), ESColor::rgba(1, 0, 0));
    ASSERT_TRUE(canvas->resetWithParams(BrushParams{record(0x1003, QColor(Qt::green))}, 200));
    EXPECT_EQ(canvas->renderColor(), ESColor::rgba(0, 1, 0));
    auto other = makeCanvas(60, 40);
    other->setRenderColor(ESColor());  // which is kept like any other
    ASSERT_TRUE(canvas->resetWithParams(QDBrushManager::paramsOfDrawView(other.get()), 200));
    EXPECT_EQ(canvas->renderColor(), ESColor());

    dabcanvas::PresetImages images(100);
    EXPECT_FALSE(images.read(tip).isNull());
    EXPECT_TRUE(images.read(tip).isNull()) << "128 pixels in all";
    EXPECT_TRUE(images.problem().startsWith("is too large"));
    QImage flat(3000, 3000, QImage::Format_Mono);  // as small as a picture of its size can be
    flat.fill(0);
    EXPECT_FALSE(dabcanvas::PresetImages().read(UIImagePNGRepresentation(flat)).isNull());
}

// Of a file all or nothing: half of its records make another brush.
TEST_F(BrushPresetTest, WhatCannotBeDoneIsSaid) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("brush.xbf");
    canvas->setMaskImage(dotted(8, 0));
    ASSERT_TRUE(QDBrushManager::saveParamsWithDrawView(canvas.get(), {}, path));
    const QByteArray whole = contentOf(path);
    const auto cut = [&](qsizetype by) { return whole.chopped(by); };
    const struct {
        const char* name;
        QByteArray bytes;
        bool applies;
        const char* problem;
    } rows[] = {
        {"no brush", QByteArray("\xC8\0\0\0\1\x10\0\0\0\0\0\0", 12), false, "it holds no brush"},
        {"cut in the header", whole.left(8), false, "this is not an XBF file"},
        {"cut in half", cut(whole.size() / 2), false, "of brush 1 of 1: it claims more bytes"},
        {"without its terminator", cut(28), false, "of brush 1 of 1: the file ends before it"},
        {"a bad image", QByteArray(whole).replace("PNG", "GNP"), true, "maskImage is not an image"},
        {"whole", whole, true, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        writtenTo(path, row.bytes);
        canvas->setRadius(77);
        const LogCapture log;
        QString problem;
        EXPECT_EQ(canvas->resetWithXBFPath(path, &problem), row.applies);
        EXPECT_EQ(canvas->radius(), row.applies ? 32 : 77);
        EXPECT_TRUE(problem.contains(QLatin1String(row.problem))) << problem.toStdString();
        EXPECT_EQ(problem.isEmpty(), *row.problem == 0);
        EXPECT_TRUE(problem.isEmpty() ? log.lines().isEmpty() : log.has(problem));
    }
    const LogCapture log;
    QString problem;
    EXPECT_FALSE(QDBrushManager::saveParamsWithDrawView(nullptr, {}, path, &problem));
    EXPECT_TRUE(!problem.isEmpty() && log.has(problem));
    EXPECT_FALSE(QDBrushManager::resetDrawView(nullptr, path, &problem));
    EXPECT_TRUE(!problem.isEmpty() && log.has(problem));
}

TEST_F(BrushPresetTest, GettersReadWithoutACanvas) {
    const BrushParams records;
    const BrushParamValues none(records);
    EXPECT_TRUE(none.radius() == 0 && !none.flipX() && !none.renderColor().isValid() &&
                none.textureImages().isEmpty() && none.maskImage().isNull());
    const QByteArray tip = UIImagePNGRepresentation(dotted(8, 0));
    const BrushParams params{record(0x2002, 12.0f), record(0x2002, 99.0f), record(0x2001, tip),
                             record(0x2001, QByteArray("no picture")), record(0x2001, tip),
                             // Half is on for plain booleans and off for those read as a number.
                             record(0x2003, 0.5f), record(0x100B, 0.5f), record(0x200D, 0.5f),
                             record(0x3014, 1.0f), record(0x3101, 3.0f), record(0x3102, 1.0f),
                             record(0x3103, 2.0f), record(0x1001, 7.9f)};
    const BrushParamValues values(params);
    EXPECT_EQ(values.radius(), 12) << "the first counts";
    EXPECT_EQ(values.textureImages().size(), 2);
    EXPECT_TRUE(values.flipX());
    EXPECT_FALSE(values.smudgeControl());
    EXPECT_FALSE(values.startRadianEnable());
    EXPECT_TRUE(values.flipXTingle());
    EXPECT_EQ(values.brushType(), 7);
    expectControl(values.radiusControl(), 1, 2, 3);
}

TEST_F(BrushPresetTest, VersionOneHundredIsMigrated) {
    // Per code from 3 on: pressure, altitude, speed. The tables differ on purpose.
    using Table = std::vector<std::array<float, 3>>;
    const Table radius{{1, 0, 1},  {-1, 0, -1}, {0, 1, 1}, {0, 1, -1}, {1, 0, 0},
                       {-1, 0, 0}, {0, 1, 0},   {0, 0, 0}, {1, 1, 1}};
    const Table radian{{1, 0, 1},  {-1, 0, -1}, {0, 0, 0},  {0, 0, 0}, {0, 1, 1},
                       {0, 1, -1}, {1, 0, 0},   {-1, 0, 0}, {0, 1, 0}, {0, 1, 0}};
    const Table common{{1, 0, 1}, {-1, 0, -1}, {0, 1, 1}, {0, 1, -1},
                       {1, 0, 0}, {-1, 0, 0},  {0, 1, 0}, {0, 1, 0}};
    const struct {
        std::uint32_t flag, code;
        LPControlParams (QDDrawCanvas::*control)() const;
        const Table& table;
    } groups[] = {{0x3001, 0x3003, &QDDrawCanvas::radiusControl, radius},
                  {0x3001, 0x300E, &QDDrawCanvas::radianControl, radian},
                  {0x3001, 0x3012, &QDDrawCanvas::roundnessControl, common},
                  {0x4001, 0x4004, &QDDrawCanvas::distributionControl, common},
                  {0x4001, 0x4008, &QDDrawCanvas::distributionCountControl, common},
                  {0x5001, 0x5003, &QDDrawCanvas::colorControl, common},
                  {0x6001, 0x6007, &QDDrawCanvas::flowControl, common},
                  {0x8001, 0x8005, &QDDrawCanvas::textureControl, common}};
    for (const auto& group : groups) {
        for (int code = 1; code <= 14; ++code) {
            SCOPED_TRACE(std::to_string(group.code) + " with code " + std::to_string(code));
            const std::size_t row = static_cast<std::size_t>(code) - 3;
            const bool known = code >= 3 && row < group.table.size();
            const std::array<float, 3> wanted = known ? group.table[row] : std::array<float, 3>{};
            ASSERT_TRUE(canvas->resetWithParams(
                BrushParams{record(group.code, code), record(group.flag, true)}, 100));
            expectControl((canvas.get()->*group.control)(), wanted[0], wanted[1], wanted[2]);
        }
        ASSERT_TRUE(canvas->resetWithParams(
            BrushParams{record(group.code, 3), record(group.flag, false), record(0x3101, 1.0f)}, 100));
        expectControl((canvas.get()->*group.control)(), 0, 0, 0);  // present triples are overridden, too
    }
    canvas->setMaxRadius(0.3f);
    canvas->setMaxFlow(0.3f);
    ASSERT_TRUE(canvas->resetWithParams(BrushParams(), 100));
    EXPECT_EQ(canvas->maxRadius(), 1);
    EXPECT_EQ(canvas->maxFlow(), 1);
    ASSERT_TRUE(canvas->resetWithParams(BrushParams{record(0x3001, true), record(0x3003, 11)}, 200));
    expectControl(canvas->radiusControl(), 0, 0, 0);
}

}  // namespace
