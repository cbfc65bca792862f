// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QVariant>
#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>

#include "Brushes/BrushProperties.h"
#include "Canvas/CanvasEvents.h"
#include "Canvas/PointerOptions.h"
#include "Canvas/QDDrawTouch.h"
#include "Canvas/QDDrawViewDelegate.h"
#include "Canvas/StageClock.h"
#include "Dabs/Symmetry.h"
#include "History/StepPicture.h"
#include "History/UndoRefusal.h"
#include "Maths/Export.h"
#include "Preset/BrushRecords.h"
#include "Recognition/ShapeRecord.h"
#include "Surface/RenderType.h"
#include "Surface/SurfaceOptions.h"

struct LPLineParams;
class ImagesUndoManager;
class LeafDrawing;

namespace dabcanvas {
class CanvasInput;
class CanvasLayers;
class GLSurface;
class PaintSurface;
}  // namespace dabcanvas

/// A canvas to paint on, without a widget: strokes, brush, pixels, images, history. It paints headless as it stands;
/// QDDrawView shows one in a window, and any other item can by filling the display hooks below.
///
///     auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 800, 500));
///     if (!canvas) return 1;                              // the log says what is missing
///     canvas->setRadius(28);
///     canvas->drawingWithBeginPoint({80, 250}, 0.1f);
///     canvas->drawingWithMoveToPoint({400, 180}, 0.9f);
///     canvas->drawingWithEndPoint({690, 300}, 0.2f);
///     canvas->image().save("stroke.png");
///
/// Units    points come in as view points, origin top left; what names the buffer is in buffer pixels, which are view
///          points divided by scale(). The buffer takes the size of the frame at creation and keeps it.
/// Owns     all that it paints with. The caller's GL context is current again when a member returns, and in a delegate.
/// Thread   one at a time, asserted in debug builds. Canvases are independent, also where they take turns on a thread;
///          those made on one thread share an OpenGL context, wait for each other on several, and lose it together.
/// Life     the caller's from initWithFrame() on, to be destroyed before main() returns, as static objects may outlive
///          OpenGL and Qt. A host may destroy it in any callback, see QDDrawViewDelegate.h.
/// Errors   never throws; a failure is a log line and a false or null result.
/// Loss     of a driver's device: after one log line isContextLost() holds, and nothing is drawn, read or cleared any
///          more, until recoverFromLoss() goes on elsewhere.
class DABCANVAS_CANVAS_API QDDrawCanvas : public dabcanvas::CanvasEvents {
public:
    /// What the setter of a brush property takes.
    template <typename Type>
    using BrushArgument = std::conditional_t<std::is_arithmetic_v<Type>, Type, const Type&>;

    // ---- Make
    /// As large as the frame, transparent, with the default brush. Null, after one log line, when the surface that is
    /// asked for cannot be had, or a side is not from 1 to its limit.
    static std::unique_ptr<QDDrawCanvas> initWithFrame(const QRectF& frame,
                                                       const dabcanvas::SurfaceOptions& options = {});
    virtual ~QDDrawCanvas();
    QDDrawCanvas(const QDDrawCanvas&) = delete;
    QDDrawCanvas& operator=(const QDDrawCanvas&) = delete;

    QDDrawViewDelegate* delegate() const;
    void setDelegate(QDDrawViewDelegate* delegate);  ///< not owned; null for none

    // ---- Paint
    /// One stroke is a begin, any number of moves and an end; nothing is drawn at begin. Pressure and altitude (pen
    /// tilt, 0 upright to 1 at 60 degrees) are 0..1, -1 when not given. online: ask the display to show each segment at
    /// once; the pixels are the same without. A move within 1.0 buffer pixel of the last accepted one draws nothing.
    /// A sample that is not finite is refused, with one log line a stroke: a refused begin leaves the beginning to the
    /// first good move, a refused end ends where the stroke got to. Moves and ends without a begin do nothing; a begin
    /// in mid-stroke first ends that stroke as it stands, as a step of its own (a preview's leaves nothing). What was
    /// drawn before a clear, an image, updateBGImage() or a brush of another kind in mid-stroke cannot be withdrawn.
    void drawingWithBeginPoint(QPointF point, float pressure = -1, float altitude = -1, bool online = true);
    void drawingWithMoveToPoint(QPointF point, float pressure = -1, float altitude = -1, bool online = true);
    void drawingWithEndPoint(QPointF point, float pressure = -1, float altitude = -1, bool online = true);
    bool isDrawing() const;  ///< a stroke has begun and not ended yet

    /// While enableRecogition() is on, a stroke is only a sketch: at its end it is taken off the canvas, and where it
    /// was meant as a shape, that is drawn in its place, as one step of the history. A stroke that is none, or of 4
    /// points or fewer, or without an end, leaves the canvas and edited() as they were. Brush types 3 and 4 draw plain
    /// dabs meanwhile. drawShape() draws such an outline without a stroke, at full pressure and without tapers; its
    /// unit is buffer pixels divided by recogPointScale(). False, and nothing drawn, for none; after a log line in
    /// mid-stroke and for a record that lacks corners or is not finite or beyond reason.
    bool drawShape(const ShapeRecord& shape);

    // ---- Brush
    // Getter and setter of every property, such as `float opacity() const; void setOpacity(float value);`: a pair for
    // each row of BrushPropertyList.h, which says type, range, default and meaning. Numbers out of range are clamped,
    // numbers that are not finite refused with a log line. Setting takes effect with the next segment. What is
    // special:
    //   textureImages     none: textureType becomes 0, and dabs are soft discs.
    //                     Deliberate: only a tip's alpha counts, but for colorFul, which shows its own colours.
    //   enableRecogition  on: takes curImageData() from the canvas, unless autoMark() is on.
#define BRUSH_PROPERTY(type, name, Name, ...)                          \
    type name() const {                                                \
        return std::get<type>(storedValue(dabcanvas::BrushKey::name)); \
    }                                                                  \
    void set##Name(BrushArgument<type> value) {                        \
        store(dabcanvas::BrushKey::name, value);                       \
    }
#include "Brushes/BrushPropertyList.h"

    /// By row, for tools. False for a QVariant of another type than the row's and for numbers that are not finite.
    bool setBrushValue(const dabcanvas::BrushProperty& property, const QVariant& value);
    /// One value, and all of them.
    QVariant brushValue(const dabcanvas::BrushProperty& property) const;
    const dabcanvas::BrushSettings& brush() const;

    /// Every property that a preset may leave out takes its default; colours, tip images and a few more stay.
    void resetParams();
    /// A preset, as records or a file's last brush, takes the whole brush's place. False, and nothing changed, without
    /// records or when the file cannot be read.
    bool resetWithParams(const std::optional<BrushParams>& params, int version);
    bool resetWithXBFPath(const QString& path, QString* problem = nullptr);

    /// Map a brush radius to and from a value of which 1.0 is the middle of the brush's radius range.
    float inRadiusForRadius(float radius) const;
    float radiusForInRadius(float value) const;

    // ---- Clear, fill, look
    /// The canvas as premultiplied RGBA, upright, bufferSize() large; null when it cannot be read.
    QImage image();
    /// The same, valid until the next call: only what changed since the last one is read back. A preview's stroke that
    /// has ended is not in it until it is placed; leafDrawView() shows it so long.
    const QImage& displayImage();

    /// Clears the canvas and all layers, to transparent or a colour; one of no components is transparent.
    void clear();
    void clearOnline(bool online);
    void clearWithColor(const ESColor& color, bool online);

    dabcanvas::CanvasLayers layers();  ///< see there; all else is of the active one, but for displayImage()

    QSizeF bufferSize() const;
    /// The buffer becomes this area of itself, in its pixels; what lies outside of what it was is transparent. False,
    /// after a log line, and nothing changed, in mid-stroke and where no surface of that size can be had. A change like
    /// any other: a step may be of another size, and undo() makes the canvas as large again.
    bool setCanvasArea(const QRect& area);
    /// View points per buffer pixel, per axis; (1, 1) while frame and buffer have one size.
    QSizeF scale() const;
    /// To be called when the frame has changed its size: points and redisplay rectangles scale from then on.
    void updateScaleInfo();
    /// A display shows it mirrored left to right, then turned counter-clockwise: tips keep their angle as seen.
    void setViewTurn(double radians, bool mirrored);
    /// Of strokes and shapes, copies are drawn with them from the next segment on, of the live preview's from the next
    /// stroke on; none at first. A centre that is not finite is refused, with a log line.
    const dabcanvas::Symmetry& symmetry() const;
    void setSymmetry(const dabcanvas::Symmetry& symmetry);
    /// Strokes and shapes, the live preview's included, change only what lies in this area, and pixels at its edge by as
    /// much as it covers of them, from the next segment on; an empty one, as at first, is all of the canvas. Buffer
    /// pixels, whatever setCanvasArea() makes of the buffer. Outlines are closed, and curves taken as straight lines.
    /// Places that are not finite, or beyond a million pixels, are refused, with a log line.
    const QPainterPath& selection() const;
    void setSelection(const QPainterPath& area);
    bool edited() const;  ///< the canvas was drawn on or cleared since the last step
    /// Whether it differs from what it was made as, or from what it was when the host last saved it and said so, by
    /// false; a step that shows that picture again is not modified either.
    bool isModified() const;
    void setModified(bool modified);
    bool isContextLost() const;  ///< see Loss; found by what draws or reads next
    /// After a loss, goes on in another surface: history, layers, depth and brush stay. The picture becomes the last
    /// step, or what a canvas of a single layer showed when displayImage() was last read, where that is newer; a stroke
    /// in progress may be gone. True where nothing is lost; false, after a log line, and lost as before, where that
    /// kind of surface cannot be had, and where no step holds the picture and nobody has looked at it.
    bool recoverFromLoss(dabcanvas::SurfaceKind kind = dabcanvas::SurfaceKind::processor);

    // ---- Images
    /// Reading back: rectangles in view points (readDataBufferRect(): buffer pixels) on the canvas and at least a pixel
    /// large, edges cut to integers as counted from the bottom left; null or false, after a log line, for any other.
    /// Bytes are premultiplied RGBA, 4 a pixel, bottom row first, rows without gaps, in the caller's room.
    QImage imageWithRect(const QRectF& rect);
    bool readData(unsigned char* bytes, const QRectF& rect);
    bool readDataBufferRect(unsigned char* bytes, const QRectF& bufferRect);

    /// Placing: the draw family composites an image over what is there, the set family puts it in its place,
    /// transparent parts included. The image is stretched to the rectangle and turned about its centre,
    /// counter-clockwise, in radians; anchorPoint: about a point of the view instead. A stroke in progress goes on
    /// above the image.
    ///
    /// Units    view points; buffer pixels in forms that name the buffer and with isUndo, which is for putting back
    ///          what was recorded: it leaves edited() as it is. Device pixel ratios play no role.
    /// Data     dataSize pixels of what readData() gives, so that setData() of it is the same picture again.
    /// Pixels   exact where the image keeps its size on whole pixels, also turned by quarters; interpolated when
    ///          enlarged and averaged when reduced, as one beyond the driver's largest texture is first; edges are
    ///          smooth. Bits beyond 8 a channel are kept where a Format_RGBA64_Premultiplied, as deepImage() of layers()
    ///          gives it, is set pixel by pixel on a canvas of 16.
    /// Errors   false, and nothing changed: quietly for what lies outside of the canvas; after a log line for a null
    ///          image, too little data, sides not from a millionth to a million buffer pixels, and without the memory.
    bool drawImage(const QImage& image, const QRectF& inRect, bool isUndo = false);
    bool drawImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter, double radian,
                   bool isUndo = false);
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

    /// Placing touches only what lies in scissorRect(): buffer pixels, rounded to whole ones. An empty one lets nothing
    /// through; one that is not finite is refused with a log line.
    bool globalScissor() const;
    void setGlobalScissor(bool value);
    QRectF scissorRect() const;
    void setScissorRect(const QRectF& rect);

    // ---- Undo
    // Steps are pictures of the canvas, of which only what changed is kept; they become the bytes that readData()
    // gives where a host asks for them. The first is the canvas as it was made; a host that prepares a picture calls
    // resetUndoManager() then. How many there are is undoManager()'s. Nothing of a history is made before it is asked
    // for.
    /// Record a step at the end of every stroke, after every image placed and every clear.
    bool autoMark() const;
    void setAutoMark(bool autoMark);
    /// Recorded by itself, steps are at least this many seconds apart; what is drawn in between goes into the next one.
    float markTimeInterval() const;
    void setMarkTimeInterval(float seconds);
    /// Records the canvas as a step and drops what was undone. Null, and nothing recorded, when nothing was drawn since
    /// the last one, or too shortly after it, or without the memory.
    dabcanvas::StepPicture markAction();
    /// Make the step before, or after, the canvas, whatever globalScissor() and neglectTextureUpdate() hold back
    /// otherwise. undo() first records what was drawn since the last step, at whatever interval; redo() finds nothing
    /// then. Null, and nothing changed, for the reason that undoRefusal() tells of the last call. A step whose picture
    /// a host has removed clears the canvas, with a log line.
    dabcanvas::StepPicture undo();
    dabcanvas::StepPicture redo();
    /// Why the last undo() or redo() did nothing.
    dabcanvas::UndoRefusal undoRefusal() const;
    /// Whether there is a step to go to; in mid-stroke, whether there will be without the stroke.
    bool canUndo() const;
    bool canRedo() const;
    dabcanvas::StepPicture resetUndoManager();  ///< makes the present canvas the only step
    /// Makes the history, if there is none yet, and gives the last step's picture. Sets markTimeInterval() to 0, and
    /// times the next step from now.
    dabcanvas::StepPicture loadUndoManager();
    /// The last step's picture, or the canvas's where there is no step or curImageData() is of another size.
    QImage currentImage();
    /// The history, which is made where there is none yet; the canvas's, for as long as it lives.
    ImagesUndoManager& undoManager();
    /// Whether steps are written down within moments, and a stroke in progress each second, so that the history outlives
    /// a crash; off at first. False, after a log line, where they cannot be.
    bool keepsForRecovery() const;
    bool setKeepsForRecovery(bool keeps);
    /// Canvas and history become what a dead process left, see UndoRecovery, which is kept on. False, after a log line
    /// or with the reason in `problem`.
    bool recoverHistory(const QString& id, QString* problem = nullptr);
    /// A host's own, such as the file that the canvas goes to, up to 64 KiB in UTF-8: whoever finds the history gets
    /// them with it (RecoverableHistory). Written when set; false where they are not, as a history that is not kept has
    /// none on disk.
    QString recoveryWords() const;
    bool setRecoveryWords(const QString& words);

    // ---- Repeat and measure
    /// Random numbers are the canvas's own: painting neither moves rand() and drand48() nor is moved by them. After
    /// either call the same strokes on a cleared canvas paint the same bytes. On: every stroke repeats by itself; its
    /// dabs take fixed values by their number, which ties the attributes of a dab to each other. Off: numbers run on.
    void setRepeatableRandom(bool repeatable);
    /// Begins the generator, which until then was seeded by chance. While strokes repeat, only dab sizes depend on it.
    void setRandomSeed(std::uint32_t seed);
    /// Times each stage, waiting for the surface at each: honest shares, but slower strokes.
    void setProfiling(bool profiling);
    /// What strokes have cost so far.
    const dabcanvas::StrokeStats& strokeStats() const;

    /// Hears what enters the canvas, first what it is; null for none. False, after a log line, in mid-stroke and where
    /// the canvas cannot be read. input() takes what another canvas told. See CanvasInput.h.
    bool setInputListener(dabcanvas::CanvasInput* listener);
    dabcanvas::CanvasInput& input();

    /// What paint lies in. A SurfaceScope of it, held over many strokes, is cheaper than one for every call.
    dabcanvas::PaintSurface& surface();
    dabcanvas::SurfaceOptions surfaceOptions() const;  ///< with the kind that it is, gpu or processor
    /// For hosts that draw with OpenGL themselves: a canvas that does not moves there, byte for byte, to another
    /// surface(). Null, after one log line, in mid-stroke and where there is no OpenGL.
    dabcanvas::GLSurface* glSurface();
    QString rendererName();  ///< what draws, in words

    // ---- Pointer events
    /// What a display tells of its devices. A stroke belongs to the kind of device that began it: while a finger draws,
    /// mouse and pen are refused, and the other way round. A mouse or pen stroke of up to nine moves is withdrawn, as
    /// if never drawn, unless adjustCancelLine is off. A click draws nothing. While the frame is empty no stroke
    /// begins.
    void touchesBeganWithEvent(const QDDrawTouch& event);
    void touchesMovedWithEvent(const QDDrawTouch& event);
    void touchesEndedWithEvent(const QDDrawTouch& event);
    void touchesCancelledWithEvent(const QDDrawTouch& event);
    void mouseDown(const QDDrawTouch& event);
    void mouseDragged(const QDDrawTouch& event);
    void mouseUp(const QDDrawTouch& event);
    virtual QPointF localPointWithTouch(const QDDrawTouch& touch) const;  ///< in view points
    /// A pointer will not be heard of again: its stroke ends where it got to, or is taken back, however long it is.
    void endPointerStroke();
    void withdrawPointerStroke();
    /// Whether a mouse or pen stroke of up to nine moves is withdrawn; on at first.
    bool adjustCancelLine() const;
    void setAdjustCancelLine(bool value);
    bool usesPenTilt() const;  ///< off: events reach the stroke without altitude
    void setUsesPenTilt(bool value);
    /// Who may paint, what pressure counts as, and a stabiliser; a stroke keeps the one that it began with.
    const dabcanvas::PointerOptions& pointerOptions() const;
    void setPointerOptions(const dabcanvas::PointerOptions& options);

    /// Draws brush type 4; a stroke comes onto the canvas by the event loop, or when that is read or drawn on before.
    LeafDrawing& leafDrawView();

    // ---- Kept for callers of old
    /// Without altitude, or without pressure and altitude: the forms above do.
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

    /// The steps of one pointer's stroke: use the events above. A begin is false when refused; of a set the first
    /// counts.
    bool beginWithTouch(const QDDrawTouch& touch);
    void moveWithTouch(const QDDrawTouch& touch);
    void endWithTouch(const QDDrawTouch& touch);
    void cancelWithTouch(const QDDrawTouch& touch);
    void beginWithTouches(const QList<QDDrawTouch>& touches);
    void moveWithTouches(const QList<QDDrawTouch>& touches);
    void endWithTouches(const QList<QDDrawTouch>& touches);
    void cancelWithTouches(const QList<QDDrawTouch>& touches);

    /// Their state; isDrawing() tells what a host needs. Has the pointer's stroke ended, moved, how often (above nine
    /// it is a line); its last view point; are points taken; is a touch stroke, or one of mouse or pen, in progress.
    bool lineFinish() const;
    void setLineFinish(bool value);
    bool lineMove() const;
    void setLineMove(bool value);
    std::uint64_t moveCount() const;
    void setMoveCount(std::uint64_t value);
    bool isLining() const;
    QPointF lastPoint() const;
    void setLastPoint(QPointF value);
    bool canAddPoint() const;
    void setCanAddPoint(bool value);
    bool normalMoing() const;
    void setNormalMoing(bool value);
    bool digitPenMoving() const;
    void setDigitPenMoving(bool value);

    /// For the host's own use, never read here: is the device's pressure wanted, and which one else.
    bool enableDevicePress() const;
    void setEnableDevicePress(bool value);
    float normalPress() const;
    void setNormalPress(float value);
    bool isSmudgeType() const;  ///< what brushType and its fellows come to
    bool needRepeatedlyRender() const;
    bool needColorTendency() const;
    /// The records that line and sub-line are drawn by; the canvas's, to look at. brush() says the same.
    const LPLineParams& lineParaObj() const;
    const LPLineParams& subLineParaObj() const;
    void lock() {}  ///< nothing: see Thread
    void unlock() {}

    /// Strokes do all of this by themselves. Runs of dabs, or a single one, straight into a layer, in buffer pixels;
    /// the touched rectangle comes back, in whole pixels. A number that is not finite refuses the run, with a log line.
    /// Without a layer named they go into the line's, and updateImage() puts the area touched last onto the canvas; the
    /// end of the next stroke clears them from the layer, as clearExtenBuffer() does at once.
    QRectF drawPoints(const LPPoint* points, std::size_t count, ESRenderType layer);
    QRectF drawPoints(const LPPoint* points, std::size_t count);
    QRectF drawPoint(QPointF point, float size);
    void updateImage(bool online);
    void updateImage(bool online, bool smudge);
    /// Repaints every pixel that an area touches, in buffer pixels, as it was before the stroke, and has it shown.
    void resetWithRenderRect(const QRectF& rect);
    /// Makes the smudge layer show the present canvas, for which the layers' strokes are finished.
    void updateSmudgeBGTexture();
    /// Makes the present canvas the background of what is drawn next. mark: the undo step just recorded, or null.
    void updateBGImage(const QByteArray& mark = {});
    /// Clear one layer: the line's, the sub-line's, the smudge layer. One that holds nothing is not touched.
    void clearExtenBuffer();
    void clearSubBuffer();
    void clearSmudgeBuffer();
    /// As clear(), but the canvas and what a stroke in progress has drawn so far; dabs that wait in a layer stay there.
    void clearESBufferOnline(bool online);
    void clearESBufferWithColor(const ESColor& color, bool online);
    QImage newCGImageWithRect(const QRectF& rect);  ///< imageWithRect()
    /// Placing changes the canvas alone, not the background that strokes are blended with, and a stroke in progress is
    /// not finished: for a caller that puts the canvas back as the background has it.
    bool neglectTextureUpdate() const;
    void setNeglectTextureUpdate(bool value);
    /// A recorded canvas: readData() of all of it, or empty. While enableRecogition() is on it is what the present
    /// stroke is taken back to, be it another picture that the host sets, which then becomes the whole canvas.
    dabcanvas::StepPicture curImageData() const;
    void setCurImageData(const QByteArray& data);
    QRectF drawRect() const;  ///< what was composited or placed since the last clear, in buffer pixels

protected:
    /// A display derives from this and calls initCanvas() before anything else; false leaves an object to be destroyed.
    explicit QDDrawCanvas(const QRectF& frame);
    bool initCanvas(const dabcanvas::SurfaceOptions& options = {});

    /// Held by a display while the canvas must not be destroyed: that ends the process then, with a log line.
    class MustStay {
    public:
        explicit MustStay(const QDDrawCanvas& canvas);
        ~MustStay();
        Q_DISABLE_COPY_MOVE(MustStay)

    private:
        const QDDrawCanvas& _canvas;
    };

    // ---- Display hooks
    // displayFrame(), localPointWithTouch() and makeLeafDrawView() are questions: they may not destroy the canvas. The
    // others may: they come at the end of the call that caused them, with the host's own GL context current.
    /// Where the canvas is shown, in view points; its size against bufferSize() gives scale().
    virtual QRectF displayFrame() const;
    /// Of those points, how many lie on one as seen, where the display shows the canvas smaller or larger.
    virtual double pointScale() const {
        return 1;
    }
    /// Show this area, in view points with a top-left origin, again soon. To note it, not to draw at once.
    virtual void redisplayRect(const QRectF&) {}
    /// What shows brush type 4 over the canvas; frame is the buffer, in pixels. By initCanvas(), and anew
    /// when the canvas changes its size: the one before is gone then. Never null.
    virtual std::unique_ptr<LeafDrawing> makeLeafDrawView(const QRectF& frame);
    virtual void showLeafDrawView(bool) {}  ///< brush type 4 was chosen, or another

private:
    friend class QDBrushManager;
    friend class dabcanvas::CanvasLayers;
    dabcanvas::BrushValue storedValue(dabcanvas::BrushKey key) const;
    void store(dabcanvas::BrushKey key, const dabcanvas::BrushValue& value);
    void restoreSubLine(float slRadius, float relationValue);

    class Host;
    class Input;
    class Parts;
    struct Inside;
    std::unique_ptr<Inside> _inside;
};
