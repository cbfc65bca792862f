// SPDX-License-Identifier: MIT
// Every preset that is handed out: whole, kept by a canvas as it is, and one that paints.

#include <QDir>
#include <QPainter>

#include "Brushes/ImageData.h"
#include "Preset/PresetInfo.h"
#include "Preset/QDBrushManager.h"
#include "TestFolders.h"
#include "support/CanvasTest.h"

namespace {

using namespace BrushRecords;

const QDir kFolder(QStringLiteral(DABCANVAS_SAMPLES "/brushes"));

class SampleBrushesTest : public CanvasTest, public ::testing::WithParamInterface<QString> {};

TEST_P(SampleBrushesTest, IsKeptAndPaints) {
    const QString path = kFolder.filePath(GetParam());
    int version = 0;
    QString problem;
    const auto brushes = QDBrushManager::brushesWithXBFPath(path, &version, &problem);
    ASSERT_TRUE(brushes && brushes->size() == 1) << problem.toStdString();
    EXPECT_TRUE(problem.isEmpty()) << problem.toStdString();
    EXPECT_EQ(version, QDBrushManager::kVersion);
    // File managers and the painter show both.
    EXPECT_EQ(brushName(brushes->first()).toLower().replace(QLatin1Char(' '), QLatin1Char('-')),
              GetParam().chopped(4));

    const auto canvas = makeCanvas(400, 150);
    QImage ground(400, 150, QImage::Format_RGBA8888_Premultiplied);
    ground.fill(Qt::white);
    QPainter(&ground).fillRect(120, 0, 60, 150, QColor(220, 90, 60));
    ASSERT_TRUE(canvas->setImageInBufferRect(ground, QRectF(0, 0, 400, 150)));
    ASSERT_TRUE(canvas->resetWithXBFPath(path));

    const BrushParams stored = brushParams(brushes->first());
    const dabcanvas::PresetInfo info = dabcanvas::infoOfParams(stored);
    EXPECT_GE(info.tags.size(), 2);
    EXPECT_TRUE(info.about.endsWith(QLatin1Char('.'))) << info.about.toStdString();
    EXPECT_EQ(info.author, QStringLiteral("Dabcanvas"));
    EXPECT_EQ(info.licence, QStringLiteral("CC0-1.0"));

    auto kept = QDBrushManager::paramsOfDrawView(canvas.get());
    ASSERT_TRUE(kept);
    setInfoOfParams(*kept, info);
    ASSERT_EQ(kept->size(), stored.size());
    for (qsizetype i = 0; i < stored.size(); ++i) {
        SCOPED_TRACE(method(stored[i]).toStdString());
        EXPECT_EQ(key((*kept)[i]), key(stored[i]));
        EXPECT_EQ(method((*kept)[i]), method(stored[i]));
        EXPECT_EQ(type((*kept)[i]), type(stored[i]));
        if (type(stored[i]) == kXBFData && !dabcanvas::isPresetInfo(key(stored[i]))) {
            const QByteArray data = paramValue(stored[i]).toByteArray();
            if (!data.isEmpty()) {
                EXPECT_FALSE(imageWithData(data).isNull());
                EXPECT_EQ(imageWithData(paramValue((*kept)[i]).toByteArray()), imageWithData(data));
            }
        } else {
            EXPECT_EQ(paramValue((*kept)[i]), paramValue(stored[i]));
        }
    }

    const QImage before = canvas->image();
    paintWave(*canvas);
    EXPECT_NE(canvas->image(), before);
}

TEST_P(SampleBrushesTest, PaintsTheSameOnEitherSurface) {
    QImage pictures[2];
    bool smudges = false;
    for (const SurfaceKind kind : {SurfaceKind::gpu, SurfaceKind::processor}) {
        const auto canvas = makeCanvas(400, 150, kind);
        canvas->clearWithColor(ESColor::rgba(0.9f, 0.6f, 0.3f), true);
        ASSERT_TRUE(canvas->resetWithXBFPath(kFolder.filePath(GetParam())));
        smudges = canvas->brushType() == 3;
        paintWave(*canvas, 60);
        paintWave(*canvas, 90);
        pictures[kind == SurfaceKind::gpu ? 0 : 1] = canvas->image();
    }
    EXPECT_TRUE(imagesMatch(pictures[0], pictures[1], smudges ? 6 : 3));  // which carries rounding along
    double sum = 0;
    for (qsizetype i = 0; i < pictures[0].sizeInBytes(); ++i) {
        sum += std::abs(pictures[0].constBits()[i] - pictures[1].constBits()[i]);
    }
    EXPECT_LT(sum / static_cast<double>(pictures[0].sizeInBytes()), 0.6);
}

INSTANTIATE_TEST_SUITE_P(Folder, SampleBrushesTest, ::testing::ValuesIn(kFolder.entryList({"*.xbf"})),
                         [](const auto& name) {
                             QString word = name.param.chopped(4);
                             return word.replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
                         });

}  // namespace
