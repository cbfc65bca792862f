// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVariant>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <semaphore>
#include <vector>

#include "Brushes/TexturesTool.h"
#include "ESContext/ESContext.h"
#include "LineProcess/LPSharedState.h"
#include "Preset/BrushRecords.h"
#include "QDEAGLView/BrushProperties.h"
#include "QDEAGLView/BrushSettings.h"
#include "QDEAGLView/QDDrawTouch.h"
#include "QDEAGLView/QDDrawViewDelegate.h"
#include "Recognition/ShapeRecord.h"

struct LPLineParams;
class ESImageRender;
class ESLineRender;
class LeafDrawing;
class ESSmudgeRender;
class ImagesUndoManager;

// What strokes have cost so far; the seconds are only measured while profiling is on.
struct StrokeStats {
    std::uint64_t samples = 0;  // points that reached the line process
    std::uint64_t dabs = 0;     // quads drawn
    double geometrySeconds = 0;
    double drawingSeconds = 0;
    double compositingSeconds = 0;
};

// The whole logic of a canvas: strokes, brush properties, layers and pixels, without a widget. It paints headless
// as it stands; QDDrawView shows one in a window, and any other item can by filling the display hooks below.
//
// Units    points come in as view points, origin top left; everything below stroke entry is in buffer pixels,
//          which are view points divided by scale(). The buffer takes the size of the frame at creation and
//          keeps it.
// Owns     its GL context, layers, renderers and line records. Whatever GL context the caller had current is
//          current again when a member function returns, and while a delegate is called.
// Thread   one thread at a time; several canvases of a process may interleave their strokes on one thread.
// Life     to be destroyed before main() returns: OpenGL and Qt may be gone when static objects go.
// Errors   never throws; a failure is a log line and a false or null result.
class QDDrawCanvas {
public:
    // A canvas whose buffer is as large as the frame, cleared to transparent, with the default brush. Null, after
    // one log line, when there is no OpenGL 3.2 or a side is not from 1 to the driver's limit.
    static std::unique_ptr<QDDrawCanvas> initWithFrame(const QRectF& frame);

    virtual ~QDDrawCanvas();
    QDDrawCanvas(const QDDrawCanvas&) = delete;
    QDDrawCanvas& operator=(const QDDrawCanvas&) = delete;

    // ---- Strokes ----

    // One stroke is a begin, any number of moves and an end; nothing is drawn at begin. Pressure and altitude (pen
    // tilt, 0 upright to 1 flat) are 0..1, -1 when not given. online: ask the display to show each segment at
    // once; the pixels are the same without.
    // A sample that is not finite is refused, with one log line a stroke, and the stroke goes on: a refused begin
    // leaves the beginning to the first good move, a refused end ends where the stroke got to. Moves and ends
    // without a begin do nothing; a begin without an end before it ends that stroke as it stands (a preview's
    // leaves nothing).
    // A brush of another kind in mid-stroke leaves what was drawn as it is, beyond the reach of withdrawing.
    void drawingWithBeginPoint(QPointF point, float pressure = -1, float altitude = -1, bool online = true);
    // Does nothing more than two callbacks for a point within 1.0 buffer pixel of the last accepted one.
    void drawingWithMoveToPoint(QPointF point, float pressure = -1, float altitude = -1, bool online = true);
    void drawingWithEndPoint(QPointF point, float pressure = -1, float altitude = -1, bool online = true);

    // The same without altitude, or without pressure and altitude.
    void drawingWithBeginPoint(QPointF point, std::same_as<bool> auto online) {
        drawingWithBeginPoint(point, -1.0f, -1.0f, online);
    }
    void drawingWithBeginPoint(QPointF point, float pressure, std::same_as<bool> auto online) {
        drawingWithBeginPoint(point, pressure, -1.0f, online);
    }
    void drawingWithMoveToPoint(QPointF point, std::same_as<bool> auto online) {
        drawingWithMoveToPoint(point, -1.0f, -1.0f, online);
    }
    void drawingWithMoveToPoint(QPointF point, float pressure, std::same_as<bool> auto online) {
        drawingWithMoveToPoint(point, pressure, -1.0f, online);
    }
    void drawingWithEndPoint(QPointF point, std::same_as<bool> auto online) {
        drawingWithEndPoint(point, -1.0f, -1.0f, online);
    }
    void drawingWithEndPoint(QPointF point, float pressure, std::same_as<bool> auto online) {
        drawingWithEndPoint(point, pressure, -1.0f, online);
    }

    QDDrawViewDelegate* delegate() const { return _delegate; }
    void setDelegate(QDDrawViewDelegate* delegate) { _delegate = delegate; }  // not owned; null for none

    // For the host's own use, kept but never read here: whether the device's pressure is wanted, and which one
    // else.
    bool enableDevicePress() const { return _enableDevicePress; }
    void setEnableDevicePress(bool value) { _enableDevicePress = value; }
    float normalPress() const { return _normalPress; }
    void setNormalPress(float value) { _normalPress = value; }

    // Whether a stroke has begun and not ended yet.
    bool isDrawing() const { return _stroke != Stroke::none; }

    bool isSmudgeType() const {
        return _brush.brushType == kSmudgeBrush && !_brush.isDebug && !_brush.enableRecogition;
    }
    bool needRepeatedlyRender() const {
        return _brush.repeatedlyRenderEnabled && _brush.brushType != kSmudgeBrush;
    }
    bool needColorTendency() const { return _brush.brushType != kSmudgeBrush; }

    // Draws brush type 4. Its strokes are put onto the canvas by the event loop after their end, or as soon as the
    // canvas is read or drawn on.
    LeafDrawing& leafDrawView() { return *_leafDrawView; }

    // ---- Shapes ----

    // While enableRecogition() is on, a stroke is only a sketch: at its end it is taken off the canvas, and
    // where it was meant as a shape, that shape is drawn in its place, as one step of the history. A stroke
    // that is none, or of 4 points or fewer, or without an end, leaves the canvas and edited() as they were.
    // Brush types 3 and 4 draw plain dabs meanwhile. Switching in mid-stroke leaves what was drawn of it so
    // far.

    // Draws a shape's outline with the present brush, at full pressure and without the tapers of a stroke,
    // and records a step when autoMark() is on. The record's unit is the one that points are recognised in:
    // buffer pixels divided by recogPointScale(). False, and nothing drawn, for none; after a log line in
    // mid-stroke and for a record that lacks corners or is not finite or beyond reason.
    bool drawShape(const ShapeRecord& shape);

    // Kept for callers; they lock nothing.
    void lock() {}
    void unlock() {}

    // ---- Pointer events ----

    // What a display tells of its devices. A stroke belongs to the kind of device that began it: while a finger
    // draws, mouse and pen are refused, and the other way round. A mouse or pen stroke ends through the cancel
    // path: one of up to nine moves is withdrawn, as if never drawn, unless adjustCancelLine is off; any other is
    // finished. A click draws nothing. While the frame is empty no stroke begins.
    void touchesBeganWithEvent(const QDDrawTouch& event);
    void touchesMovedWithEvent(const QDDrawTouch& event);
    void touchesEndedWithEvent(const QDDrawTouch& event);
    void touchesCancelledWithEvent(const QDDrawTouch& event);
    void mouseDown(const QDDrawTouch& event);
    void mouseDragged(const QDDrawTouch& event);
    void mouseUp(const QDDrawTouch& event);

    // The steps of one pointer's stroke, whatever the device. False when the stroke was refused.
    bool beginWithTouch(const QDDrawTouch& touch);
    void moveWithTouch(const QDDrawTouch& touch);
    void endWithTouch(const QDDrawTouch& touch);
    void cancelWithTouch(const QDDrawTouch& touch);
    // The same for one of a set.
    void beginWithTouches(const QList<QDDrawTouch>& touches);
    void moveWithTouches(const QList<QDDrawTouch>& touches);
    void endWithTouches(const QList<QDDrawTouch>& touches);
    void cancelWithTouches(const QList<QDDrawTouch>& touches);

    // Where a pointer is, in view points.
    virtual QPointF localPointWithTouch(const QDDrawTouch& touch) const;

    // Ends the stroke of a pointer that will not be heard of again, where it got to, as a cancelled one.
    void endPointerStroke();
    // Takes the pointer's stroke back, however long it is.
    void withdrawPointerStroke();

    bool adjustCancelLine() const { return _adjustCancelLine; }
    void setAdjustCancelLine(bool value) { _adjustCancelLine = value; }

    // Of the pointer's stroke: has it ended, has it moved, and how often. More than nine moves make a line of it.
    bool lineFinish() const { return _lineFinish; }
    void setLineFinish(bool value) { _lineFinish = value; }
    bool lineMove() const { return _lineMove; }
    void setLineMove(bool value) { _lineMove = value; }
    std::uint64_t moveCount() const { return _moveCount; }
    void setMoveCount(std::uint64_t value) { _moveCount = value; }
    bool isLining() const { return !_lineFinish && _lineMove && _moveCount > 9; }
    QPointF lastPoint() const { return _lastPoint; }  // view points
    void setLastPoint(QPointF value) { _lastPoint = value; }
    // Points are taken while enableRecogition is on: from a begin to its end.
    bool canAddPoint() const { return _canAddPoint; }
    void setCanAddPoint(bool value) { _canAddPoint = value; }
    bool normalMoing() const { return _normalMoing; }  // a touch stroke is in progress
    void setNormalMoing(bool value) { _normalMoing = value; }
    bool digitPenMoving() const { return _digitPenMoving; }  // a mouse or pen stroke is
    void setDigitPenMoving(bool value) { _digitPenMoving = value; }

    // ---- Pixels ----

    // The canvas as premultiplied RGBA, upright, bufferSize() large; null when it cannot be read.
    QImage image();
    // The same, kept between calls: only what changed since the last call is read back. Valid until the next.
    // A preview's stroke that has ended is not in it until it is placed; leafDrawView() shows it so long.
    const QImage& displayImage();

    QSizeF bufferSize() const;
    // View points per buffer pixel, per axis; (1, 1) while frame and buffer have one size.
    QSizeF scale() const { return _needScale ? _scale : QSizeF(1, 1); }
    // To be called when the frame has changed its size: points and redisplay rectangles scale from then on.
    void updateScaleInfo();

    // Whether the canvas was drawn on or cleared.
    bool edited() const { return _edited; }

    // Clears the canvas and all layers to transparent.
    void clear();
    void clearOnline(bool online);
    void clearWithColor(const ESColor& color, bool online);
    // Clears the canvas image alone; a colour of no components, like none given, is transparent.
    void clearESBufferOnline(bool online);
    void clearESBufferWithColor(const ESColor& color, bool online);

    // Clear one layer: the line's, the sub-line's, the smudge layer. One that holds nothing is not touched.
    void clearExtenBuffer();
    void clearSubBuffer();
    void clearSmudgeBuffer();

    // Runs of dabs, or a single one, straight into a layer, in buffer pixels; the touched rectangle comes back,
    // rounded to whole pixels. Without a layer named they go into the line's, and updateImage() puts them onto the
    // canvas; the end of the next stroke clears them from the layer, as clearExtenBuffer() does at once.
    QRectF drawPoints(const LPPoint* points, std::size_t count, ESRenderType layer);
    QRectF drawPoints(const LPPoint* points, std::size_t count);
    QRectF drawPoint(QPointF point, float size);

    // Puts the area touched last from the stroke's layer onto the canvas.
    void updateImage(bool online);
    void updateImage(bool online, bool smudge);
    // Repaints an area, in buffer pixels, as it was before the stroke, and asks the display to show it.
    void resetWithRenderRect(const QRectF& rect);
    // Makes the smudge layer show the present canvas, for which the layers' strokes are finished. Smudge
    // strokes begin with that by themselves.
    void updateSmudgeBGTexture();
    // Makes the present canvas the background of what is drawn next. mark: the undo step just recorded, or null.
    void updateBGImage(const QByteArray& mark = {});

    // Map a brush radius to and from a value of which 1.0 is the middle of the brush's radius range.
    float inRadiusForRadius(float radius) const { return 2 * radius / (_brush.maxRadius + _brush.minRadius); }
    float radiusForInRadius(float value) const {
        return (_brush.maxRadius + _brush.minRadius) * value * 0.5f;
    }

    // ---- Images ----

    // Reading back: rectangles in view points (readDataBufferRect(): buffer pixels) that lie on the canvas
    // and cover a pixel at least; between pixels, as many whole ones as ESContext::gRectWithVRect() says.
    // Null or false, after a log line, for any other.
    QImage imageWithRect(const QRectF& rect);
    QImage newCGImageWithRect(const QRectF& rect);  // the same
    // Premultiplied RGBA, 4 bytes a pixel, bottom row first, rows without gaps. The caller provides the room.
    bool readData(unsigned char* bytes, const QRectF& rect);
    bool readDataBufferRect(unsigned char* bytes, const QRectF& bufferRect);

    // Placing: the draw family composites an image over what is there, the set family puts it in its place,
    // transparent parts included. The image is stretched to the rectangle and turned about its centre,
    // counter-clockwise, by radians.
    //
    // Units    view points; buffer pixels in forms that name the buffer and with isUndo, which is for putting
    //          back what was recorded: it leaves edited() as it is. Device pixel ratios play no role.
    // Data     premultiplied RGBA, 4 bytes a pixel, bottom row first, rows without gaps, dataSize pixels:
    //          what readData() gives, so that setData() of it is the same picture again.
    // Pixels   exact where the image keeps its size on whole pixels, also turned by quarters; interpolated
    //          when enlarged, averaged when reduced; where its edges cut through pixels these are blended
    //          smoothly, in both families. An image larger than the driver's largest texture is scaled down
    //          to it first.
    // Strokes  one in progress goes on above the image: what it drew so far is finished below.
    // Errors   false, and nothing changed: after a log line for a null image, data shorter than dataSize
    //          says, numbers that are not finite and sides not from a millionth to a million buffer pixels;
    //          quietly for what lies outside of the canvas.
    bool drawImage(const QImage& image, const QRectF& inRect, bool isUndo = false);
    bool drawImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter, double radian,
                   bool isUndo = false);
    // Turned about a point of the view instead of the centre.
    bool drawImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter, double radian,
                   const QPointF& anchorPoint);
    bool drawData(const QByteArray& data, const QSize& dataSize, const QRectF& inRect, bool isUndo = false);
    bool drawData(const QByteArray& data, const QSize& dataSize, const QSizeF& inSize,
                  const QPointF& atCenter, double radian, bool isUndo = false);

    bool setImage(const QImage& image, const QRectF& inRect, bool isUndo = false);
    bool setImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter, double radian,
                  bool isUndo = false);
    bool setImageInBufferRect(const QImage& image, const QRectF& rect, bool isUndo = false);
    bool setImageInBufferSize(const QImage& image, const QSizeF& inBufferSize, const QPointF& atBufferCenter,
                              double radian, bool isUndo = false);
    bool setData(const QByteArray& data, const QSize& dataSize, const QRectF& inRect, bool isUndo = false);
    bool setData(const QByteArray& data, const QSize& dataSize, const QSizeF& inSize, const QPointF& atCenter,
                 double radian, bool isUndo = false);

    // Placing changes the canvas alone, not the background that strokes and drawn images are blended with,
    // and a stroke in progress is not finished: for a caller that puts the canvas back as the background has
    // it.
    bool neglectTextureUpdate() const { return _neglectTextureUpdate; }
    void setNeglectTextureUpdate(bool value) { _neglectTextureUpdate = value; }
    // Placing touches only what lies in scissorRect(): buffer pixels, rounded to whole ones. One that is not
    // finite is refused with a log line; an empty one lets nothing through.
    bool globalScissor() const { return _globalScissor; }
    void setGlobalScissor(bool value) { _globalScissor = value; }
    QRectF scissorRect() const { return _scissorRect; }
    void setScissorRect(const QRectF& rect);
    // A recorded canvas: readData() of all of it. Empty for none. While enableRecogition() is on it is the
    // canvas without the present stroke, and what that is taken back to, be it another picture that the host
    // sets.
    QByteArray curImageData() const { return _curImageData; }
    void setCurImageData(const QByteArray& data);
    // Everything that was composited or placed since the last clear, in buffer pixels.
    QRectF drawRect() const { return _drawRect; }

    // ---- History ----

    // Steps are whole pictures of the canvas, as bytes: premultiplied RGBA, bottom row first, bufferSize() large. The
    // first is the canvas as it was made; a host that prepares a picture first calls resetUndoManager() then. How many
    // there are, and where they are kept, is undoManager()'s. Nothing of a history is made before it is asked for.

    // Record a step at the end of every stroke, after every image placed and every clear.
    bool autoMark() const { return _autoMark; }
    void setAutoMark(bool autoMark) { _autoMark = autoMark; }
    // Recorded by itself, steps are at least this many seconds apart; what is drawn in between goes into the next one.
    float markTimeInterval() const { return _markTimeInterval; }
    void setMarkTimeInterval(float seconds) { _markTimeInterval = seconds; }

    // Records the canvas as a step and drops what was undone. Null, and nothing recorded, when nothing was drawn since
    // the last one, or too shortly after it, or without the memory.
    QByteArray markAction();
    // Make the step before, or after, the canvas. Null, and nothing changed, when there is none, a stroke is in progress
    // or a step is still being written to disk; and, with a log line, without the memory. A step that was lost clears
    // the canvas, with a log line.
    QByteArray undo();
    QByteArray redo();
    bool canUndo() const;
    bool canRedo() const;
    // Makes the present canvas the only step.
    QByteArray resetUndoManager();
    // Makes the history, if there is none yet, and gives the last step's picture. Sets markTimeInterval() to 0, and
    // times the next step from now.
    QByteArray loadUndoManager();
    // The last step's picture, or the canvas's where there is no step.
    QImage currentImage();
    ImagesUndoManager& undoManager() { return history(); }

    // ---- Measuring ----

    // Fixed random sequences instead of drand48() for dabs, so that a session on a new canvas repeats. Sizes
    // jitter by rand() and drand48() all the same: call lpRandom() once and seed both for the same bytes.
    void setRepeatableRandom(bool repeatable);
    // Times each stage, waiting for the GL work of each: honest shares, but slower strokes.
    void setProfiling(bool profiling) { _profiling = profiling; }
    const StrokeStats& strokeStats() const { return _stats; }
    // A host that enters many strokes in a row holds an ESCurrentScope of this meanwhile: switching contexts once
    // is cheaper than for every call.
    ESContext& esContext() { return *_esContext; }
    // The driver's renderer string.
    QString rendererName();

    // ---- Brush ----

    // Ranges, defaults and a sentence on each stand in BrushProperties.cpp. Numbers out of range are clamped;
    // numbers that are not finite are refused with a log line. Setting takes effect with the next segment.

    // By row, for tools: the QVariant holds what the row's type names (bool, int, float, LPControlParams,
    // ESColor, QImage, QList<QImage>, QString). False when it holds something else or a number that is not
    // finite.
    bool setBrushValue(const BrushProperty& property, const QVariant& value);
    QVariant brushValue(const BrushProperty& property) const;
    const BrushSettings& brush() const { return _brush; }
    // The records that the line and the sub-line are drawn by; the canvas's, to look at.
    const LPLineParams& lineParaObj() const { return *_lineParaObj; }
    const LPLineParams& subLineParaObj() const { return *_subLineParaObj; }

    // Every property that a preset may leave out takes its default; colours, tip images and a few more stay.
    void resetParams();
    // Make a preset, records or a file's last brush, the brush. It replaces the present one as a whole. False, and
    // nothing changed, without records or when the file cannot be read.
    bool resetWithParams(const std::optional<BrushParams>& params, int version);
    bool resetWithXBFPath(const QString& path);

    std::int32_t brushType() const { return _brush.brushType; }
    void setBrushType(std::int32_t value);
    bool isDebug() const { return _brush.isDebug; }
    void setIsDebug(bool value);
    bool enableRecogition() const { return _brush.enableRecogition; }
    void setEnableRecogition(
        bool value);  // on: takes curImageData() from the canvas, unless autoMark() is on
    float gaussianRadius() const { return _brush.gaussianRadius; }
    void setGaussianRadius(float value);
    std::int32_t blendType() const { return _brush.blendType; }
    void setBlendType(std::int32_t value);
    QString blendFragmentShaderString() const { return _brush.blendFragmentShaderString; }
    void setBlendFragmentShaderString(const QString& value);
    ESColor renderColor() const { return _brush.renderColor; }
    void setRenderColor(const ESColor& value);
    float opacity() const { return _brush.opacity; }
    void setOpacity(float value) { assign(BrushKey::opacity, value); }
    float radius() const { return _brush.radius; }
    void setRadius(float value);
    float flow() const { return _brush.flow; }
    void setFlow(float value);
    std::int32_t trackNum() const { return _brush.trackNum; }
    void setTrackNum(std::int32_t value);

    float moistQuantity() const { return _brush.moistQuantity; }
    void setMoistQuantity(float value) { assign(BrushKey::moistQuantity, value); }
    float loadQuantity() const { return _brush.loadQuantity; }
    void setLoadQuantity(float value) { assign(BrushKey::loadQuantity, value); }
    float mixQuantity() const { return _brush.mixQuantity; }
    void setMixQuantity(float value) { assign(BrushKey::mixQuantity, value); }
    bool smudgeControl() const { return _brush.smudgeControl; }
    void setSmudgeControl(bool value) { assign(BrushKey::smudgeControl, value); }
    float smudgeControlValue() const { return _brush.smudgeControlValue; }
    void setSmudgeControlValue(float value) { assign(BrushKey::smudgeControlValue, value); }

    std::int32_t textureType() const { return _brush.textureType; }
    void setTextureType(std::int32_t value);
    float hardness() const { return _brush.hardness; }
    void setHardness(float value);
    float textureControlValue() const { return _brush.textureControlValue; }
    void setTextureControlValue(float value);
    QList<QImage> textureImages() const { return _brush.textureImages; }
    void setTextureImages(const QList<QImage>& value);
    bool flipX() const { return _brush.flipX; }
    void setFlipX(bool value) { assign(BrushKey::flipX, value); }
    bool flipY() const { return _brush.flipY; }
    void setFlipY(bool value) { assign(BrushKey::flipY, value); }
    bool needMaskTexture() const { return _brush.needMaskTexture; }
    void setNeedMaskTexture(bool value) { assign(BrushKey::needMaskTexture, value); }
    float maskScale() const { return _brush.maskScale; }
    void setMaskScale(float value) { assign(BrushKey::maskScale, value); }
    QImage maskImage() const { return _brush.maskImage; }
    void setMaskImage(const QImage& value);

    bool pointsDistanceEnabled() const { return _brush.pointsDistanceEnabled; }
    void setPointsDistanceEnabled(bool value) { assign(BrushKey::pointsDistanceEnabled, value); }
    float pointsDistance() const { return _brush.pointsDistance; }
    void setPointsDistance(float value) { assign(BrushKey::pointsDistance, value); }
    bool smoothEnabled() const { return _brush.smoothEnabled; }
    void setSmoothEnabled(bool value) { assign(BrushKey::smoothEnabled, value); }
    float speedSencitive() const { return _brush.speedSencitive; }
    void setSpeedSencitive(float value) { assign(BrushKey::speedSencitive, value); }
    float sensitivity() const { return _brush.sensitivity; }
    void setSensitivity(float value) { assign(BrushKey::sensitivity, value); }
    bool colorFul() const { return _brush.colorFul; }
    void setColorFul(bool value) { assign(BrushKey::colorFul, value); }
    std::int32_t lineProcessType() const { return _brush.lineProcessType; }
    void setLineProcessType(std::int32_t value) { assign(BrushKey::lineProcessType, value); }

    float minRadius() const { return _brush.minRadius; }
    void setMinRadius(float value) { assign(BrushKey::minRadius, value); }
    float maxRadius() const { return _brush.maxRadius; }
    void setMaxRadius(float value) { assign(BrushKey::maxRadius, value); }
    float startRadius() const { return _brush.startRadius; }
    void setStartRadius(float value) { assign(BrushKey::startRadius, value); }
    float strokeControlValue() const { return _brush.strokeControlValue; }
    void setStrokeControlValue(float value) { assign(BrushKey::strokeControlValue, value); }
    float endRadius() const { return _brush.endRadius; }
    void setEndRadius(float value) { assign(BrushKey::endRadius, value); }
    float radiusTingle() const { return _brush.radiusTingle; }
    void setRadiusTingle(float value) { assign(BrushKey::radiusTingle, value); }
    LPControlParams radiusControl() const { return _brush.radiusControl; }
    void setRadiusControl(const LPControlParams& value);

    bool disTwoAxes() const { return _brush.disTwoAxes; }
    void setDisTwoAxes(bool value) { assign(BrushKey::disTwoAxes, value); }
    float distribution() const { return _brush.distribution; }
    void setDistribution(float value) { assign(BrushKey::distribution, value); }
    LPControlParams distributionControl() const { return _brush.distributionControl; }
    void setDistributionControl(const LPControlParams& value) {
        assign(BrushKey::distributionControl, value);
    }
    float distributionCount() const { return _brush.distributionCount; }
    void setDistributionCount(float value);
    float distributionCountTingle() const { return _brush.distributionCountTingle; }
    void setDistributionCountTingle(float value) { assign(BrushKey::distributionCountTingle, value); }
    LPControlParams distributionCountControl() const { return _brush.distributionCountControl; }
    void setDistributionCountControl(const LPControlParams& value) {
        assign(BrushKey::distributionCountControl, value);
    }

    float radian() const { return _brush.radian; }
    void setRadian(float value) { assign(BrushKey::radian, value); }
    bool startRadianEnable() const { return _brush.startRadianEnable; }
    void setStartRadianEnable(bool value) { assign(BrushKey::startRadianEnable, value); }
    bool moveRadianEnable() const { return _brush.moveRadianEnable; }
    void setMoveRadianEnable(bool value) { assign(BrushKey::moveRadianEnable, value); }
    bool flipXTingle() const { return _brush.flipXTingle; }
    void setFlipXTingle(bool value) { assign(BrushKey::flipXTingle, value); }
    bool flipYTingle() const { return _brush.flipYTingle; }
    void setFlipYTingle(bool value) { assign(BrushKey::flipYTingle, value); }
    float radianTingle() const { return _brush.radianTingle; }
    void setRadianTingle(float value) { assign(BrushKey::radianTingle, value); }
    LPControlParams radianControl() const { return _brush.radianControl; }
    void setRadianControl(const LPControlParams& value) { assign(BrushKey::radianControl, value); }

    float roundness() const { return _brush.roundness; }
    void setRoundness(float value) { assign(BrushKey::roundness, value); }
    float roundnessTingle() const { return _brush.roundnessTingle; }
    void setRoundnessTingle(float value) { assign(BrushKey::roundnessTingle, value); }
    float minRoundness() const { return _brush.minRoundness; }
    void setMinRoundness(float value);
    LPControlParams roundnessControl() const { return _brush.roundnessControl; }
    void setRoundnessControl(const LPControlParams& value) { assign(BrushKey::roundnessControl, value); }

    float minFlow() const { return _brush.minFlow; }
    void setMinFlow(float value) { assign(BrushKey::minFlow, value); }
    float maxFlow() const { return _brush.maxFlow; }
    void setMaxFlow(float value) { assign(BrushKey::maxFlow, value); }
    float flowTingle() const { return _brush.flowTingle; }
    void setFlowTingle(float value) { assign(BrushKey::flowTingle, value); }
    LPControlParams flowControl() const { return _brush.flowControl; }
    void setFlowControl(const LPControlParams& value) { assign(BrushKey::flowControl, value); }
    float decay() const { return _brush.decay; }
    void setDecay(float value) { assign(BrushKey::decay, value); }

    bool textureTingleEnabled() const { return _brush.textureTingleEnabled; }
    void setTextureTingleEnabled(bool value) { assign(BrushKey::textureTingleEnabled, value); }
    LPControlParams textureControl() const { return _brush.textureControl; }
    void setTextureControl(const LPControlParams& value) { assign(BrushKey::textureControl, value); }

    ESColor backRenderColor() const { return _brush.backRenderColor; }
    void setBackRenderColor(const ESColor& value) { assign(BrushKey::backRenderColor, value); }
    float colorTingle() const { return _brush.colorTingle; }
    void setColorTingle(float value) { assign(BrushKey::colorTingle, value); }
    LPControlParams colorControl() const { return _brush.colorControl; }
    void setColorControl(const LPControlParams& value) { assign(BrushKey::colorControl, value); }
    float hueTingle() const { return _brush.hueTingle; }
    void setHueTingle(float value) { assign(BrushKey::hueTingle, value); }
    float saturationTingle() const { return _brush.saturationTingle; }
    void setSaturationTingle(float value) { assign(BrushKey::saturationTingle, value); }
    float brightnessTingle() const { return _brush.brightnessTingle; }
    void setBrightnessTingle(float value) { assign(BrushKey::brightnessTingle, value); }

    bool repeatedlyRenderEnabled() const { return _brush.repeatedlyRenderEnabled; }
    void setRepeatedlyRenderEnabled(bool value);
    QImage slTextureImage() const { return _brush.slTextureImage; }
    void setSlTextureImage(const QImage& value);
    float slRadius() const { return _brush.slRadius; }
    void setSlRadius(float value);
    float slPointsDistance() const { return _brush.slPointsDistance; }
    void setSlPointsDistance(float value) { assign(BrushKey::slPointsDistance, value); }
    float slDistribution() const { return _brush.slDistribution; }
    void setSlDistribution(float value) { assign(BrushKey::slDistribution, value); }
    bool slDistbTwoAxes() const { return _brush.slDistbTwoAxes; }
    void setSlDistbTwoAxes(bool value) { assign(BrushKey::slDistbTwoAxes, value); }
    float slDistbCount() const { return _brush.slDistbCount; }
    void setSlDistbCount(float value);
    std::int32_t slRadiusRelationType() const { return _brush.slRadiusRelationType; }
    void setSlRadiusRelationType(std::int32_t value);
    float relationValue() const { return _brush.relationValue; }
    void setRelationValue(float value);

    float recogPointScale() const { return _brush.recogPointScale; }
    void setRecogPointScale(float value) { assign(BrushKey::recogPointScale, value); }

protected:
    // A display derives from this and calls initCanvas() before anything else; false leaves an object to be
    // destroyed.
    explicit QDDrawCanvas(const QRectF& frame);
    bool initCanvas();

    // ---- Display hooks ----

    // Where the canvas is shown, in view points; its size against bufferSize() gives scale().
    virtual QRectF displayFrame() const { return _frame; }
    // Show this area, in view points with a top-left origin, again soon. To note it, not to draw at once: the
    // canvas's GL context may be current.
    virtual void redisplayRect(const QRectF&) {}
    // What shows brush type 4 over the canvas; frame is the buffer, in pixels. Called once, by initCanvas(). Never null.
    virtual std::unique_ptr<LeafDrawing> makeLeafDrawView(const QRectF& frame);
    // Brush type 4 was chosen, or another.
    virtual void showLeafDrawView(bool) {}

private:
    friend class QDBrushManager;

    static constexpr std::int32_t kSmudgeBrush = 3, kPreviewBrush = 4;
    struct StrokeScope;                            // this canvas's GL context and stroke state are current
    enum class Stroke { none, awaited, drawing };  // awaited: its begin was refused
    enum class Stage { geometry, drawing, compositing };
    struct StageTimer;

    bool initOpenGLESData();
    bool initData();
    void initLineProporty();
    void warmUp();
    void warmUpSmudging();
    void releaseLineRecords();

    // Stroke stages, in steps
    bool acceptsSample(QPointF point, float pressure, float altitude);
    QPointF filteredPoint(QPointF (QDDrawViewDelegate::*filter)(QDDrawCanvas&, QPointF), QPointF point);
    void tell(void (QDDrawViewDelegate::*callback)(QDDrawCanvas&, QPointF), QPointF point);
    QPointF bufferPoint(QPointF point) const;
    QPointF viewPoint(QPointF point) const;
    bool usesPreview() const { return _brush.brushType == kPreviewBrush && !_brush.enableRecogition; }
    void beginStroke(QPointF point, float pressure, float altitude);
    void startSubLine();
    void takeSample(QPointF point, float pressure, float altitude);
    void finishLayers(bool asStep = false);
    void settleLayers();
    void withdrawStroke(QPointF point);
    void dropStroke();
    void cancelAt(QPointF point, float pressure, bool withdraw);
    void leavePointerStroke(bool withdraw);
    void startProcess();
    QRectF drawRun(const LPPoint* points, std::size_t count, ESRenderType layer);
    void emptyLineLayers();
    ESRenderType mainLayer() const { return isSmudgeType() ? ESRenderTypeSmudge : ESRenderTypeLine; }
    QRectF& mainRect() { return isSmudgeType() ? _smudgeRenderRect : _lineRenderRect; }
    void startLine(LPLineParams& record, QPointF point, float pressure, float altitude);
    struct Run;
    Run appendToLine(LPLineParams& record, QPointF point, float pressure, float altitude, bool end);
    void drawSegment(QPointF point, float pressure, float altitude, bool end, bool dropFirst, bool online);

    // Recognition, in steps
    void beginSketch(QPointF point);
    void settleSketch();
    void takeBackSketch();
    void endSketch(QPointF point, bool online);
    bool drawOutline(const ShapeRecord& shape, bool online);
    QRectF drawRuns(const std::vector<std::vector<LPPoint>>& runs, ESRenderType layer);
    double recognitionScale() const;
    void setEdited(bool edited);

    void settleDrawn();
    bool settleStrokeKind(std::int32_t brushType, bool isDebug, bool enableRecogition);
    void compositePending();
    void compositeRect(const QRectF& rect);
    void compositeSmudge(const QRectF& rect);
    QRectF drawSmudges(const LPPoint* points, std::size_t count);
    void placePreview(const QImage& image);
    void sendPreviewColor();
    void clearLayer(ESRenderType layer, QRectF& rect);
    void noteChanged(const QRectF& rect);
    void redisplayBufferRect(const QRectF& rect);
    void redisplayAll();

    // The history
    // Of the fixed message
    static constexpr int kLoadLine = 57, kResetLine = 92, kMarkLine = 128;
    static constexpr int kRecognitionLine = 699, kBackgroundLine = 2246;
    struct UndoStatus;
    qsizetype snapshotBytes() const;
    QByteArray snapshot(int line);
    void refreshImageData(int line);
    bool refreshImageData(const QRect& part);
    void takeImageData(const QByteArray& data);
    ImagesUndoManager& history();
    QByteArray autoMarked();
    using HistoryStep = bool (ImagesUndoManager::*)();
    QByteArray step(HistoryStep go, HistoryStep back);

    // Placing, in steps
    struct Source;
    bool placeInView(const Source& source, const QSizeF& size, const QPointF& centre, double radian,
                     bool isUndo);
    bool place(const Source& source, const QSizeF& size, const QPointF& centre, double radian, bool isUndo);
    bool putOnCanvas(const Source& source, const QSizeF& size, const QPointF& centre, double radian);
    static QImage rowsOf(const Source& source, const QRect& part);
    void settleBeforePlacing();
    bool copyPlaced(const Source& source, const QRect& placed, const QRect& touched);
    bool drawPlaced(const Source& source, const LPPoint& dab, const QRect& touched);
    QRect scissorBox() const;

    // Setting properties
    template <typename Value>
    void assign(BrushKey key, Value value);
    template <typename Value>
    bool storeClamped(const BrushProperty& row, Value& value);
    template <typename Value>
    void sendToLines(const BrushProperty& row, Value value);
    template <typename Value>
    void sendToRenders(const BrushProperty& row, const Value& value);
    void applyCreatedValues();
    void regenerateTip();
    void holdTip() { _tipIsHeld = true; }
    void releaseTip(bool regenerate);
    void useTips(const QList<QImage>& tips);
    void setSubRadius(float radius);
    void takeRelationValue();
    void restoreSubLine(float slRadius, float relationValue);

    QRectF _frame;
    QDDrawViewDelegate* _delegate = nullptr;
    BrushSettings _brush;

    std::unique_ptr<ESContext> _esContext;
    std::unique_ptr<ESImageRender> _esRender;
    std::unique_ptr<ESLineRender> _extenRender;
    std::unique_ptr<ESLineRender> _subRender;
    std::unique_ptr<ESSmudgeRender> _smudgeRender;
    std::unique_ptr<LeafDrawing> _leafDrawView;
    TexturesTool _textureTool;
    // What the present tip was drawn from; type 0 when it was handed in.
    struct DrawnTip {
        std::int32_t type = 0;
        int size = 0;
        float hardness = 0, controlValue = 0;
        bool operator==(const DrawnTip&) const = default;
    };
    DrawnTip _drawnTip;
    bool _tipIsHeld = false;    // regenerated once, when it is released
    QList<QImage> _storedTips;  // what texture type 0 paints with: the tips last handed in

    LPLineParams* _lineParaObj = nullptr;
    LPLineParams* _subLineParaObj = nullptr;
    LPSharedState _strokeState{};  // this canvas's copy of the line process's globals

    // Of the present stroke, in buffer pixels
    QRectF _lineRenderRect;
    QRectF _subLineRenderRect;
    QRectF _smudgeRenderRect;
    QRectF _strokeRect;  // all that the stroke put onto the canvas
    QRectF _tempRect;
    QPointF _lastRenderObject;
    float _lastPressure = -1, _lastAltitude = -1;
    Stroke _stroke = Stroke::none;
    bool _isAppendLine = false;
    bool _refusedSample = false;  // and said so

    // What the layers hold, in buffer pixels; unlike the rectangles of a stroke it outlives a stroke that never ended
    QRectF _layerContent[kRenderTypeCount];

    // Of the canvas, in buffer pixels
    QRectF _updateRect;            // changed since the background was last refreshed
    std::vector<QRectF> _pending;  // to be composited before the canvas is next looked at
    bool _smudgeIsWarm = false;
    bool _pendingSmudge = false;  // from the smudge layer
    QRectF _smudgeStale;          // where the smudge layer may differ from the canvas
    bool _mayMergePending = true;
    QRect _staleRect;  // changed since displayImage() was last called
    QImage _displayImage;
    bool _edited = false;
    bool _autoMark = false;
    std::unique_ptr<ImagesUndoManager> _undoManager;
    float _markTimeInterval = 0;  // seconds
    double _preTimeInterval = 0;  // when the last step was recorded, by the steady clock, in seconds
    bool _enableDevicePress = true;
    float _normalPress = 0.9f;

    // Of the pointer's stroke
    bool _lineFinish = false;
    bool _lineMove = false;
    std::uint64_t _moveCount = 0;
    QPointF _lastPoint;
    bool _adjustCancelLine = true;
    bool _normalMoing = false;
    bool _digitPenMoving = false;
    bool _pointerEnds = false;  // its end is on the way, in callbacks
    bool _canAddPoint = false;
    bool _isProcess = false;      // a stroke is being recognised
    double _lastProcessTime = 0;  // when one last was, in seconds since 1970

    // Of a stroke that is to be recognised
    bool _isSketch = false;
    bool _editedBefore = false;       // edited() without it
    std::vector<ShapePoint> _points;  // buffer pixels
    std::binary_semaphore _recognizeSemaphore{1};

    bool _needScale = false;
    QSizeF _scale{1, 1};
    QSizeF _outScale{1, 1};  // view size over buffer size, whether they differ or not

    QRectF _drawRect;  // composited since the last clear, in buffer pixels
    bool _neglectTextureUpdate = false;
    bool _globalScissor = false;
    QRectF _scissorRect;
    QByteArray _curImageData;
    QRectF _imageStale;          // where it may differ from the canvas, in buffer pixels
    bool _imageIsGiven = false;  // by the host

    bool _profiling = false;
    StrokeStats _stats;
};
