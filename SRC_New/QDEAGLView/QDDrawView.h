// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QWidget>
#include <cstdint>
#include <memory>

#include "QDEAGLView/QDDrawCanvas.h"

class QTouchEvent;

// A canvas in a window: a widget that shows what a QDDrawCanvas holds and has all of its operations and
// properties.
//
//     auto view = QDDrawView::initWithFrame(QRectF(0, 0, 800, 600));
//     view->setRadius(24);
//     view->drawingWithBeginPoint({100, 100}, 0.5f);
//     view->drawingWithMoveToPoint({300, 180}, 0.9f);
//     view->drawingWithEndPoint({400, 120}, 0.2f);
//     view->show();
//
// Pointer  left mouse button, pen tip and one finger paint; a mouse presses with 1, a touch screen that measures no
//          pressure too. What another device began is not disturbed. A second finger takes the first one's mark
//          back; from there until all are up, touch is left to event filters. Other buttons, the wheel and hovering
//          pens go to the parent. A stroke ends where it got to when the window is deactivated or the view hidden.
// Size     the buffer gets the frame's size at creation and keeps it; a widget of another size shows it
//          stretched, and points scale.
// Owner    whoever holds the unique_ptr. With a parent, or once put into a layout, release() it: the parent owns.
// Life     a delegate may destroy it in any callback, but not in one that ends a stroke because the view is hidden or
//          resized: Qt goes on with it. deleteLater() is fine there.
// Thread   the application's main thread, as for every widget.
class QDDrawView : public QWidget, public QDDrawCanvas {
    Q_OBJECT
    Q_PROPERTY(int brushType READ brushType WRITE setBrushType)
    Q_PROPERTY(bool isDebug READ isDebug WRITE setIsDebug)
    Q_PROPERTY(bool enableRecogition READ enableRecogition WRITE setEnableRecogition)
    Q_PROPERTY(float gaussianRadius READ gaussianRadius WRITE setGaussianRadius)
    Q_PROPERTY(int blendType READ blendType WRITE setBlendType)
    Q_PROPERTY(
        QString blendFragmentShaderString READ blendFragmentShaderString WRITE setBlendFragmentShaderString)
    Q_PROPERTY(ESColor renderColor READ renderColor WRITE setRenderColor)
    Q_PROPERTY(float opacity READ opacity WRITE setOpacity)
    Q_PROPERTY(float radius READ radius WRITE setRadius)
    Q_PROPERTY(float flow READ flow WRITE setFlow)
    Q_PROPERTY(int trackNum READ trackNum WRITE setTrackNum)
    Q_PROPERTY(float moistQuantity READ moistQuantity WRITE setMoistQuantity)
    Q_PROPERTY(float loadQuantity READ loadQuantity WRITE setLoadQuantity)
    Q_PROPERTY(float mixQuantity READ mixQuantity WRITE setMixQuantity)
    Q_PROPERTY(bool smudgeControl READ smudgeControl WRITE setSmudgeControl)
    Q_PROPERTY(float smudgeControlValue READ smudgeControlValue WRITE setSmudgeControlValue)
    Q_PROPERTY(int textureType READ textureType WRITE setTextureType)
    Q_PROPERTY(float hardness READ hardness WRITE setHardness)
    Q_PROPERTY(float textureControlValue READ textureControlValue WRITE setTextureControlValue)
    Q_PROPERTY(QList<QImage> textureImages READ textureImages WRITE setTextureImages)
    Q_PROPERTY(bool flipX READ flipX WRITE setFlipX)
    Q_PROPERTY(bool flipY READ flipY WRITE setFlipY)
    Q_PROPERTY(bool needMaskTexture READ needMaskTexture WRITE setNeedMaskTexture)
    Q_PROPERTY(float maskScale READ maskScale WRITE setMaskScale)
    Q_PROPERTY(QImage maskImage READ maskImage WRITE setMaskImage)
    Q_PROPERTY(bool pointsDistanceEnabled READ pointsDistanceEnabled WRITE setPointsDistanceEnabled)
    Q_PROPERTY(float pointsDistance READ pointsDistance WRITE setPointsDistance)
    Q_PROPERTY(bool smoothEnabled READ smoothEnabled WRITE setSmoothEnabled)
    Q_PROPERTY(float speedSencitive READ speedSencitive WRITE setSpeedSencitive)
    Q_PROPERTY(float sensitivity READ sensitivity WRITE setSensitivity)
    Q_PROPERTY(bool colorFul READ colorFul WRITE setColorFul)
    Q_PROPERTY(int lineProcessType READ lineProcessType WRITE setLineProcessType)
    Q_PROPERTY(float minRadius READ minRadius WRITE setMinRadius)
    Q_PROPERTY(float maxRadius READ maxRadius WRITE setMaxRadius)
    Q_PROPERTY(float startRadius READ startRadius WRITE setStartRadius)
    Q_PROPERTY(float strokeControlValue READ strokeControlValue WRITE setStrokeControlValue)
    Q_PROPERTY(float endRadius READ endRadius WRITE setEndRadius)
    Q_PROPERTY(float radiusTingle READ radiusTingle WRITE setRadiusTingle)
    Q_PROPERTY(LPControlParams radiusControl READ radiusControl WRITE setRadiusControl)
    Q_PROPERTY(bool disTwoAxes READ disTwoAxes WRITE setDisTwoAxes)
    Q_PROPERTY(float distribution READ distribution WRITE setDistribution)
    Q_PROPERTY(LPControlParams distributionControl READ distributionControl WRITE setDistributionControl)
    Q_PROPERTY(float distributionCount READ distributionCount WRITE setDistributionCount)
    Q_PROPERTY(float distributionCountTingle READ distributionCountTingle WRITE setDistributionCountTingle)
    Q_PROPERTY(LPControlParams distributionCountControl READ distributionCountControl WRITE
                   setDistributionCountControl)
    Q_PROPERTY(float radian READ radian WRITE setRadian)
    Q_PROPERTY(bool startRadianEnable READ startRadianEnable WRITE setStartRadianEnable)
    Q_PROPERTY(bool moveRadianEnable READ moveRadianEnable WRITE setMoveRadianEnable)
    Q_PROPERTY(bool flipXTingle READ flipXTingle WRITE setFlipXTingle)
    Q_PROPERTY(bool flipYTingle READ flipYTingle WRITE setFlipYTingle)
    Q_PROPERTY(float radianTingle READ radianTingle WRITE setRadianTingle)
    Q_PROPERTY(LPControlParams radianControl READ radianControl WRITE setRadianControl)
    Q_PROPERTY(float roundness READ roundness WRITE setRoundness)
    Q_PROPERTY(float roundnessTingle READ roundnessTingle WRITE setRoundnessTingle)
    Q_PROPERTY(float minRoundness READ minRoundness WRITE setMinRoundness)
    Q_PROPERTY(LPControlParams roundnessControl READ roundnessControl WRITE setRoundnessControl)
    Q_PROPERTY(float minFlow READ minFlow WRITE setMinFlow)
    Q_PROPERTY(float maxFlow READ maxFlow WRITE setMaxFlow)
    Q_PROPERTY(float flowTingle READ flowTingle WRITE setFlowTingle)
    Q_PROPERTY(LPControlParams flowControl READ flowControl WRITE setFlowControl)
    Q_PROPERTY(float decay READ decay WRITE setDecay)
    Q_PROPERTY(bool textureTingleEnabled READ textureTingleEnabled WRITE setTextureTingleEnabled)
    Q_PROPERTY(LPControlParams textureControl READ textureControl WRITE setTextureControl)
    Q_PROPERTY(ESColor backRenderColor READ backRenderColor WRITE setBackRenderColor)
    Q_PROPERTY(float colorTingle READ colorTingle WRITE setColorTingle)
    Q_PROPERTY(LPControlParams colorControl READ colorControl WRITE setColorControl)
    Q_PROPERTY(float hueTingle READ hueTingle WRITE setHueTingle)
    Q_PROPERTY(float saturationTingle READ saturationTingle WRITE setSaturationTingle)
    Q_PROPERTY(float brightnessTingle READ brightnessTingle WRITE setBrightnessTingle)
    Q_PROPERTY(bool repeatedlyRenderEnabled READ repeatedlyRenderEnabled WRITE setRepeatedlyRenderEnabled)
    Q_PROPERTY(QImage slTextureImage READ slTextureImage WRITE setSlTextureImage)
    Q_PROPERTY(float slRadius READ slRadius WRITE setSlRadius)
    Q_PROPERTY(float slPointsDistance READ slPointsDistance WRITE setSlPointsDistance)
    Q_PROPERTY(float slDistribution READ slDistribution WRITE setSlDistribution)
    Q_PROPERTY(bool slDistbTwoAxes READ slDistbTwoAxes WRITE setSlDistbTwoAxes)
    Q_PROPERTY(float slDistbCount READ slDistbCount WRITE setSlDistbCount)
    Q_PROPERTY(int slRadiusRelationType READ slRadiusRelationType WRITE setSlRadiusRelationType)
    Q_PROPERTY(float relationValue READ relationValue WRITE setRelationValue)
    Q_PROPERTY(float recogPointScale READ recogPointScale WRITE setRecogPointScale)

public:
    // Frame: place and size in the parent, in view points, from 1 x 1 on. Null, after one log line, when
    // there is no OpenGL 3.2 or the size cannot be had.
    static std::unique_ptr<QDDrawView> initWithFrame(const QRectF& frame, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    // Where in the view an event at a place in the window is.
    QPointF localPointWithTouch(const QDDrawTouch& touch) const override;

protected:
    explicit QDDrawView(const QRectF& frame, QWidget* parent = nullptr);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;

    // The screen always shows the whole canvas image, never the layers.
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    QRectF displayFrame() const override { return QRectF(rect()); }
    void redisplayRect(const QRectF& viewRect) override;
    std::unique_ptr<LeafDrawing> makeLeafDrawView(const QRectF& frame) override;
    void showLeafDrawView(bool shown) override;

private:
    // Which device the stroke in progress belongs to; only its events go on.
    enum class Pointer : std::uint8_t { none, mouse, pen, finger };

    QDDrawTouch touchAt(QPointF position, double pressure) const;
    bool isOurs(const QMouseEvent& event) const;
    void pressed(Pointer pointer, const QDDrawTouch& touch);
    void dragged(Pointer pointer, const QDDrawTouch& touch);
    void released(Pointer pointer, const QDDrawTouch& touch);
    bool forgetPointer();
    bool touchEvent(QTouchEvent& event);

    Pointer _pointer = Pointer::none;
    std::int64_t _penId = 0;
    bool _fingersIgnored = false;  // until all are up
    ulong _fingerDown = 0;         // timestamp, in milliseconds
    QWidget* _leafWidget = nullptr;
};
