// SPDX-License-Identifier: MIT
// The parts of a canvas, and the order in which one is asked after another: what has to be finished before a stroke, an
// image, a look or a step. What the parts themselves do stands in their own headers; none of them knows the canvas, but
// for the host.
//
// Thread   the canvas's, for all of them: one at a time.
// Life     after whatever may call the host back, a part asks Alive before it touches a member.
#pragma once

#include <functional>

#include "Canvas/BrushState.h"
#include "Canvas/CanvasHistory.h"
#include "Canvas/ImagePlacing.h"
#include "Canvas/LayerLook.h"
#include "Canvas/PaintLayers.h"
#include "Canvas/PointerGate.h"
#include "Canvas/QDDrawCanvasHost.h"
#include "Canvas/QDDrawCanvasInput.h"
#include "Canvas/RecordedCanvas.h"
#include "Canvas/ShapeSketch.h"
#include "Canvas/StrokeEntry.h"
#include "Canvas/StrokePainter.h"
#include "Preview/LeafDrawing.h"

class QDDrawCanvas::Parts final : public dabcanvas::StrokeEntry::Listener,
                                  public dabcanvas::BrushState::Listener,
                                  public dabcanvas::PointerGate::Canvas,
                                  public Host::Watched {
public:
    Parts(Host& host, std::unique_ptr<dabcanvas::PaintSurface> surface);

    Host& host;
    dabcanvas::SurfaceOptions options;  // as the canvas was made
    dabcanvas::StageClock clock;
    dabcanvas::PaintLayers layers;
    dabcanvas::BrushState brush;
    dabcanvas::StrokePainter painter;
    dabcanvas::ViewScale view;
    dabcanvas::StrokeEntry entry;
    dabcanvas::PointerGate pointer;
    dabcanvas::RecordedCanvas record;
    dabcanvas::LayerLook look;
    dabcanvas::ShapeSketch sketch;
    dabcanvas::ImagePlacing placing;
    dabcanvas::CanvasHistory history;
    std::unique_ptr<LeafDrawing> preview;
    LeafDrawing::Complention placePreview;  // its stroke comes onto the canvas
    QPainterPath selection;                 // of straight lines; empty: all
    Input input;
    dabcanvas::Rect lastTouched;  // by dabs that are yet to be shown, see updateImage()

    // ---- what must be done first

    // A preview's stroke comes onto the canvas before anything else does. False when the canvas is gone: its complention
    // may be the host's.
    [[nodiscard]] bool finishPreview();
    void settleSketch();
    // The background is to be the canvas with all that was drawn so far.
    void settle();
    // Between strokes the layers are empty and the background is the canvas. A sketch stays on neither.
    void finishStroke(bool asStep);

    // ---- what several parts do together

    void updateImage(bool online, bool smudged);
    void updateBackground(bool isRecorded);
    void prepareSmudge();
    bool drawShape(const ShapeRecord& shape);
    dabcanvas::Rect drawPoints(std::span<const LPPoint> points, dabcanvas::DrawTarget target);
    void clear(const ESColor& color);
    void clearPicture(const ESColor& color);
    // isUndo: what was recorded, which is no edit.
    bool place(const dabcanvas::PlacedImage& image, const dabcanvas::Spot& spot, bool isUndo);
    // The same of places in view points, but for what was recorded, which is in buffer pixels already.
    bool placeInView(const dabcanvas::PlacedImage& image, const QSizeF& size, const QPointF& centre,
                     double radian, bool isUndo);
    bool read(const dabcanvas::Rect& part, const dabcanvas::MutablePixelView& rows);
    QImage imageOf(const dabcanvas::Rect& part);
    QImage imageBy(const dabcanvas::Size& size,
                   const std::function<bool(const dabcanvas::MutablePixelView& rows)>& read);
    dabcanvas::StepPicture mark();
    dabcanvas::StepPicture autoMarked();
    dabcanvas::StepPicture resetHistory();
    dabcanvas::StepPicture undo();
    dabcanvas::StepPicture redo();
    bool recover(const QString& id, QString* problem);
    bool setArea(const QRect& area);
    bool recoverFromLoss(dabcanvas::SurfaceKind kind);
    // The canvas becomes what `edit` makes of all of its layers, as a step where steps are recorded; that is told as `told`.
    // False, and nothing changed, after a log line; or where edit gives none.
    using LayerEdit = std::function<std::optional<dabcanvas::TilePicture>(const dabcanvas::TilePicture&)>;
    bool editLayers(const dabcanvas::InputLayerEdit& told, const LayerEdit& edit);
    bool setActiveLayer(std::size_t layer);
    void layersChanged();
    dabcanvas::SurfaceOptions presentOptions();
    dabcanvas::UndoRefusal refusal = dabcanvas::UndoRefusal::none;  // of the last of them
    void updateScale();
    void redisplay(const dabcanvas::Rect& area);

    // ---- what enters the canvas, see CanvasInput.h

    dabcanvas::CanvasInput* listener = nullptr;
    bool isUntold = false;  // what is done follows of something that was told
    bool listen(dabcanvas::CanvasInput* hears);
    // The canvas's picture, all of it, to whoever listens; and what another canvas told. False when it cannot be.
    bool tellPicture(bool isStep);
    bool putPicture(const QImage& picture);
    bool putLayers(const dabcanvas::InputLayers& all);
    // With all the bits that it has; null where it cannot be had.
    QImage pictureOf(std::size_t layer, const dabcanvas::Rect& area);
    std::optional<dabcanvas::InputLayers> allLayers();
    dabcanvas::InputLimits limits() const;
    void setSecondLine(float slRadius, float relationValue);
    void seedRandom(std::uint32_t seed);
    void repeatRandom(bool repeats);
    void turnView(float radian, bool mirrored);
    void setSymmetry(dabcanvas::Symmetry symmetry);
    void setSelection(const QPainterPath& area);
    template <typename Tell>
    void tell(Tell&& tell) {
        if (listener != nullptr && !isUntold) {
            tell(*listener);
        }
    }

    bool isDrawing() const { return entry.isDrawing(); }
    dabcanvas::StrokeKind kind() const { return brush.kind(); }
    QSizeF bufferSize() const { return QSizeF(layers.size().width, layers.size().height); }
    // View size over buffer size, whether they differ or not.
    QSizeF outScale{1, 1};

    // ---- what the parts and the host hear

    bool isUnrecorded() const;
    bool canUndo() const override;
    bool canRedo() const override;
    bool isLost() const override;
    bool isModified() const override;
    void setModified(bool modified);
    dabcanvas::Rect takeChanged() override { return layers.takeChanged(); }
    bool canUndoAgain() override;
    std::pair<int, int> stepsDropped() override;
    bool acceptsPoint(QPointF point) override { return entry.accepts(point, 0, 0); }
    bool canBegin() const override;
    double pointScale() const override { return host.pointScale(); }
    bool recognises() const override { return brush.present().enableRecogition; }

private:
    bool strokeIsDue(bool unended) override;
    void strokeBegan(const dabcanvas::StrokeSample& sample) override;
    bool ignoresNearMoves() const override { return kind() != dabcanvas::StrokeKind::preview; }
    void strokeMoved(const dabcanvas::StrokeSample& sample, bool online) override;
    void strokeEnded(const dabcanvas::StrokeSample& sample, bool online) override;
    void strokeWithdrawn(QPointF place) override;
    void strokeDropped() override;
    void brushIsGiven(dabcanvas::BrushKey key, const dabcanvas::BrushValue& value) override;
    void brushWillChange(dabcanvas::BrushKey key, const dabcanvas::BrushValue& value,
                         dabcanvas::StrokeKind kindAfter) override;
    void brushChanged(dabcanvas::BrushKey key) override;

    void makePreview();
    void updateMask();
    bool cropTo(const dabcanvas::Rect& area);
    // Between strokes, when all that was drawn is part of the canvas. False in mid-stroke, after this line in the log.
    bool comesToRest(const char* complaint);
    void leaveDrawn();
    void showDrawn(const std::optional<dabcanvas::Rect>& area, bool online);
    void endSketch(QPointF place, bool online);
    bool drawOutline(const ShapeRecord& shape, bool online);
    void fill(const ESColor& color);
    double recognitionUnit() const;
    void settleKind(dabcanvas::StrokeKind after);
    void updateStyle();
    void sendPreviewColor();
    bool refuses(bool hasStep);
    dabcanvas::InputDevice device() const;
    void tellPlaced(const dabcanvas::PlacedImage& image, const dabcanvas::Spot& spot, bool isUndo);
    void tellStep(dabcanvas::CanvasHistory::Outcome outcome, bool (dabcanvas::CanvasInput::*step)());
    dabcanvas::StepPicture went(dabcanvas::CanvasHistory::Outcome outcome, const dabcanvas::Rect& changed,
                                bool (dabcanvas::CanvasInput::*step)());
    dabcanvas::StepPicture stepped(dabcanvas::CanvasHistory::Outcome outcome, const dabcanvas::Rect& changed);

    dabcanvas::PictureShape _shape;  // as it was told
    bool _kindChanges = false;       // by the property that is being set
    bool _valueChanges = false;      // so does its value
    bool _recognisesAnew = false;    // so does recognition
    bool _refusedStep = false;       // as a stroke was in progress
};

struct QDDrawCanvas::Inside {
    Host host;
    std::unique_ptr<Parts> parts;
};
