// SPDX-License-Identifier: MIT
// What another canvas told, taken by this one.
#pragma once

#include "Canvas/CanvasInput.h"
#include "Canvas/QDDrawCanvas.h"

class QDDrawCanvas::Input final : public dabcanvas::CanvasInput {
public:
    explicit Input(Parts& parts) : _parts(parts) {}

    void strokeBegan(dabcanvas::InputDevice device, const dabcanvas::InputSample& sample) override;
    void strokeMoved(const dabcanvas::InputSample& sample) override;
    void strokeEnded(const dabcanvas::InputSample& sample) override;
    void strokeWithdrawn() override;
    void strokeDropped() override;
    void previewPlaced(const dabcanvas::InputLimits& limits) override;
    void shapeDrawn(const ShapeRecord& shape) override;
    void brushSet(dabcanvas::BrushKey key, const dabcanvas::BrushValue& value) override;
    void secondLineSet(float slRadius, float relationValue) override;
    void randomSeeded(std::uint32_t seed) override;
    void randomRepeats(bool repeats) override;
    void cleared(const ESColor& color, bool layersToo) override;
    void imagePlaced(const dabcanvas::InputImage& placed) override;
    bool pictureSet(const QImage& picture, bool isStep) override;
    bool layersSet(const dabcanvas::InputLayers& layers, bool isStep) override;
    bool layersEdited(const dabcanvas::InputLayerEdit& edit) override;
    bool areaSet(const QRect& area) override;
    void viewTurned(float radian, bool mirrored) override;
    void symmetrySet(const dabcanvas::Symmetry& symmetry) override;
    void selectionSet(const QPainterPath& area) override;
    void stepRecorded() override;
    void historyReset() override;
    bool undone() override;
    bool redone() override;

private:
    class Limited;

    bool mayTake();

    Parts& _parts;
};
