// SPDX-License-Identifier: MIT
#include "Tools/Tools.h"

#include <gtest/gtest.h>

#include "Brush/BrushModel.h"
#include "Brush/BrushPresentation.h"
#include "Canvas/QDDrawCanvas.h"
#include "ESRender/ESImageRender.h"

namespace dabcanvas::dabpainter {

namespace {

class ToolsTest : public ::testing::Test {
protected:
    void SetUp() override { _brush.attach(_canvas.get()); }
    void TearDown() override { _brush.attach(nullptr); }

    float size() const { return _brush.value(BrushKey::radius).toFloat(); }
    void setSize(float size) { _brush.setValue(BrushKey::radius, size); }
    bool smudges() const { return _canvas->isSmudgeType(); }
    bool erases() const { return _canvas->blendType() == int(ESBlendTypeErase); }

    const std::unique_ptr<QDDrawCanvas> _canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 64, 64));
    BrushModel _brush;
    Tools _tools{_brush,
                 {.keep = [this] { return [this, held = _brush.hold()] { _brush.takeUp(held); }; },
                  .takeSmudge =
                      [this] {
                          _brush.setValue(BrushKey::brushType, kSmudgeBrush);
                          setSize(80);
                      },
                  .takePaint = [this] { _brush.setValue(BrushKey::brushType, 0); }}};
};

TEST_F(ToolsTest, SmudgingHasABrushOfItsOwnAndPaintingKeepsTheOneItHad) {
    setSize(11);
    _tools.choose(Tool::smudge);
    EXPECT_TRUE(smudges());
    EXPECT_EQ(size(), 80);
    setSize(90);
    _tools.choose(Tool::brush);
    EXPECT_FALSE(smudges());
    EXPECT_EQ(size(), 11);
    _tools.choose(Tool::smudge);
    EXPECT_EQ(size(), 90) << "as it was left";
    _tools.choose(Tool::fill);
    EXPECT_EQ(size(), 90) << "which needs no brush";
    _tools.toggleEraser();
    EXPECT_EQ(size(), 11);
    EXPECT_TRUE(erases());
    EXPECT_FALSE(smudges());
}

TEST_F(ToolsTest, TheEraserIsTheBrushThatErasesAndGoesBackToTheToolBefore) {
    const QVariant blend = _brush.value(BrushKey::blendType);
    for (const Tool before : {Tool::brush, Tool::smudge, Tool::fill, Tool::pick}) {
        SCOPED_TRACE(int(before));
        _tools.choose(before);
        _tools.toggleEraser();
        EXPECT_EQ(_tools.tool(), Tool::eraser);
        EXPECT_TRUE(erases());
        EXPECT_EQ(_brush.value(BrushKey::blendType), blend) << "the brush itself is as it was";
        _tools.toggleEraser();
        EXPECT_EQ(_tools.tool(), before);
        EXPECT_FALSE(erases());
    }
    // One that the pen's own end began ends without ending this one.
    _tools.choose(Tool::eraser);
    _brush.beginOverride(BrushKey::blendType, int(ESBlendTypeErase));
    _brush.endOverride();
    EXPECT_TRUE(erases());
}

TEST_F(ToolsTest, AChosenBrushDecidesTheTool) {
    struct Row {
        Tool before;
        int kind;
        Tool after;
    };
    for (const Row& row : {Row{Tool::fill, 0, Tool::brush}, Row{Tool::brush, kSmudgeBrush, Tool::smudge},
                           Row{Tool::eraser, 0, Tool::eraser}, Row{Tool::eraser, kSmudgeBrush, Tool::smudge},
                           Row{Tool::smudge, kLiveFillBrush, Tool::brush}, Row{Tool::pick, 0, Tool::brush}}) {
        SCOPED_TRACE(int(row.before));
        _tools.choose(row.before);
        _tools.brushWillBeChosen();
        _brush.setValue(BrushKey::brushType, row.kind);
        _tools.brushWasChosen();
        EXPECT_EQ(_tools.tool(), row.after);
        EXPECT_EQ(erases(), row.after == Tool::eraser);
    }
}

TEST_F(ToolsTest, APickedColourGivesTheToolBack) {
    _tools.choose(Tool::smudge);
    _tools.choose(Tool::pick);
    _tools.endPick();
    EXPECT_EQ(_tools.tool(), Tool::smudge);
    _tools.endPick();
    EXPECT_EQ(_tools.tool(), Tool::smudge);
}

}  // namespace

}  // namespace dabcanvas::dabpainter
