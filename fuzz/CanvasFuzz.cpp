// SPDX-License-Identifier: MIT
// Any bytes, read as calls of a canvas: two bytes choose its size, then each chooses a call and those behind it its
// arguments, hostile numbers among them. A delegate makes calls of its own inside the callbacks. At the end the kept
// display image must be the canvas.
#include <QGuiApplication>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "History/ImagesUndoManager.h"
#include "LineProcess/LPTypes.h"
#include "Preset/QDBrushManager.h"
#include "Preview/LeafDrawing.h"

using namespace dabcanvas;

namespace {

constexpr int kMostCalls = 1000;   // of one input, those in callbacks included
constexpr int kMostFarPoints = 2;  // each may cost as many dabs as a segment has at most

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "CanvasFuzz: %s\n", what);
    std::abort();
}

// The input, byte by byte; nothing but zeros behind its end.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : _at(data), _end(data + size) {}

    bool atEnd() const { return _at == _end; }
    int byte() { return atEnd() ? 0 : *_at++; }
    bool flag() { return (byte() & 1) != 0; }
    int below(int count) { return byte() % count; }

    // Small numbers in sixteenths, and now and then one that no code is written for.
    double number() {
        constexpr double kInfinite = std::numeric_limits<double>::infinity();
        static constexpr double kHostile[] = {std::numeric_limits<double>::quiet_NaN(),
                                              kInfinite,
                                              -kInfinite,
                                              -0.0,
                                              1e-45,
                                              -1e-9,
                                              1e-6,
                                              0.999999,
                                              255.5,
                                              1e4,
                                              -1e6,
                                              2147483647.0,
                                              -2147483648.0,
                                              4294967296.0,
                                              1e10,
                                              -1e10,
                                              1e18,
                                              3e38,
                                              -3e38,
                                              1e300};
        const int kind = byte();
        if (kind < 220) {
            return (kind - 20) * 0.5 + byte() / 256.0;
        }
        return kHostile[static_cast<std::size_t>(kind - 220) % std::size(kHostile)];
    }
    float real() { return static_cast<float>(number()); }
    float unit() { return below(8) == 0 ? real() : static_cast<float>(byte()) / 255; }
    std::int32_t integer() {
        static constexpr std::int32_t kHostile[] = {-1,
                                                    64,
                                                    1000,
                                                    99999,
                                                    std::numeric_limits<std::int32_t>::max(),
                                                    std::numeric_limits<std::int32_t>::min()};
        const int kind = byte();
        return kind < 200 ? kind % 12 : kHostile[static_cast<std::size_t>(kind) % std::size(kHostile)];
    }
    QPointF point() {
        const double x = number();
        return {x, number()};
    }
    QSizeF size() {
        const double width = number();
        return {width, number()};
    }
    QRectF rect() {
        const QPointF corner = point();
        return {corner, size()};
    }
    ESColor color() {
        const int kind = below(4);
        const float grey = unit();
        if (kind == 0) {
            return {};
        }
        return kind == 1 ? ESColor::grey(grey, unit()) : ESColor::rgba(grey, unit(), unit(), unit());
    }
    LPControlParams control() {
        const float pressure = real();
        const float altitude = real();
        return {pressure, altitude, real()};
    }
    QImage image() {
        static constexpr QImage::Format kFormats[] = {QImage::Format_RGBA8888_Premultiplied,
                                                      QImage::Format_ARGB32,
                                                      QImage::Format_RGB32,
                                                      QImage::Format_Mono,
                                                      QImage::Format_Indexed8,
                                                      QImage::Format_Grayscale8,
                                                      QImage::Format_Alpha8,
                                                      QImage::Format_RGB16,
                                                      QImage::Format_RGBA64,
                                                      QImage::Format_RGBX8888};
        const int kind = byte();
        if (kind == 0) {
            return {};
        }
        QImage image(1 + below(40), 1 + below(40),
                     kFormats[static_cast<std::size_t>(kind) % std::size(kFormats)]);
        image.fill(static_cast<uint>(byte()) % 2);
        if (flag()) {
            image.setDevicePixelRatio(1 + below(3));
        }
        return image;
    }

private:
    const std::uint8_t* _at;
    const std::uint8_t* _end;
};

// A canvas whose frame the input may change, as a window's size changes.
class Canvas : public QDDrawCanvas {
public:
    explicit Canvas(const QRectF& frame) : QDDrawCanvas(frame), shown(frame) {
        if (!initCanvas()) {
            fail("no canvas can be made");
        }
    }
    QRectF displayFrame() const override { return shown; }

    QRectF shown;
};

class Player : public QDDrawViewDelegate {
public:
    Player(Bytes& bytes, Canvas& canvas) : _bytes(bytes), _canvas(canvas) { canvas.setDelegate(this); }
    ~Player() override { _canvas.setDelegate(nullptr); }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    void play() {
        while (!_bytes.atEnd() && _calls < kMostCalls) {
            if (_bytes.byte() % 3 == 0) {
                call(kAlways);
            } else {
                call(kStrokes);
            }
        }
    }

    QPointF drawViewShouldDrawBegin(QDDrawCanvas&, QPointF point) override { return filtered(point); }
    QPointF drawViewShouldDrawMove(QDDrawCanvas&, QPointF point) override { return filtered(point); }
    QPointF drawViewShouldDrawEnd(QDDrawCanvas&, QPointF point) override { return filtered(point); }
    void drawViewWillDrawBegin(QDDrawCanvas&, QPointF) override { intrude(); }
    void drawViewDidDrawBegin(QDDrawCanvas&, QPointF) override { intrude(); }
    void drawViewWillDrawMove(QDDrawCanvas&, QPointF) override { intrude(); }
    void drawViewDidDrawMove(QDDrawCanvas&, QPointF) override { intrude(); }
    void drawViewWillDrawEnd(QDDrawCanvas&, QPointF) override { intrude(); }
    void drawViewDidDrawEnd(QDDrawCanvas&, QPointF) override { intrude(); }
    void drawViewDidUpdateUndoStatus(QDDrawCanvas&, bool) override { intrude(); }
    void drawViewDidUpdateRedoStatus(QDDrawCanvas&, bool) override { intrude(); }

private:
    using Call = void (Player::*)();

    template <std::size_t count>
    void call(const Call (&calls)[count]) {
        ++_calls;
        (this->*calls[static_cast<std::size_t>(_bytes.below(static_cast<int>(count)))])();
    }

    // What a host may do inside a callback: anything but to enter a stroke.
    void intrude() {
        if (_depth == 0 && _calls < kMostCalls && _bytes.below(6) == 1) {
            ++_depth;
            call(kAlways);
            --_depth;
        }
    }
    QPointF filtered(QPointF point) { return _bytes.below(16) == 1 ? place() : point; }

    // ---- Arguments ----

    // Mostly on the canvas or near it.
    QPointF place() {
        const int kind = _bytes.byte();
        if (kind == 255 && _farPoints++ < kMostFarPoints) {
            return _bytes.point();
        }
        return {kind * 0.25 - 8, _bytes.byte() * 0.25 - 8};
    }
    float pressure() { return _bytes.below(4) == 0 ? -1.0f : _bytes.unit(); }
    QDDrawTouch touch() {
        const QPointF at = place();
        return {at, pressure()};
    }
    QList<QDDrawTouch> touches() {
        QList<QDDrawTouch> all;
        for (int count = _bytes.below(3); count > 0; --count) {
            all.append(touch());
        }
        return all;
    }
    std::vector<LPPoint> points() {
        std::vector<LPPoint> all(static_cast<std::size_t>(_bytes.below(6)));
        for (LPPoint& point : all) {
            const QPointF at = _bytes.below(8) == 1 ? _bytes.point() : place();
            point.position = {static_cast<float>(at.x()), static_cast<float>(at.y())};
            point.radius = _bytes.real();
            point.params = {_bytes.unit(), _bytes.unit(), _bytes.unit()};
        }
        return all;
    }
    // As much as a picture of that size has, or not quite.
    QByteArray data(const QSize& size) {
        const qsizetype whole = qsizetype(4) * std::max(size.width(), 0) * std::max(size.height(), 0);
        const int kind = _bytes.below(8);
        return QByteArray(kind == 0 ? whole / 2 : kind == 1 ? 0 : whole, static_cast<char>(_bytes.byte()));
    }
    QSize smallSize() {
        const int width = _bytes.below(24) - 1;
        return {width, _bytes.below(24) - 1};
    }
    QVariant value(BrushValueType type) {
        switch (type) {
            case BrushValueType::boolean:
                return _bytes.flag();
            case BrushValueType::integer:
                return _bytes.integer();
            case BrushValueType::real:
                return _bytes.real();
            case BrushValueType::control:
                return QVariant::fromValue(_bytes.control());
            case BrushValueType::color:
                return QVariant::fromValue(_bytes.color());
            case BrushValueType::image:
                return _bytes.image();
            case BrushValueType::images: {
                QList<QImage> images;
                for (int count = _bytes.below(20) - 4; count > 0; --count) {
                    images.append(_bytes.image());
                }
                return QVariant::fromValue(images);
            }
            case BrushValueType::text:
                return _bytes.flag() ? _canvas.blendFragmentShaderString() : QStringLiteral("void main() {}");
        }
        return {};
    }

    // ---- Strokes ----

    void begin() { _canvas.drawingWithBeginPoint(place(), pressure(), pressure(), _bytes.flag()); }
    void move() { _canvas.drawingWithMoveToPoint(place(), pressure(), pressure(), _bytes.flag()); }
    void moves() {
        for (int i = 0; i < 4; ++i) {
            move();
        }
    }
    void end() { _canvas.drawingWithEndPoint(place(), pressure(), pressure(), _bytes.flag()); }
    void pointer() {
        static constexpr void (QDDrawCanvas::*kEvents[])(const QDDrawTouch&) = {
            &QDDrawCanvas::touchesBeganWithEvent,
            &QDDrawCanvas::touchesMovedWithEvent,
            &QDDrawCanvas::touchesEndedWithEvent,
            &QDDrawCanvas::touchesCancelledWithEvent,
            &QDDrawCanvas::mouseDown,
            &QDDrawCanvas::mouseDragged,
            &QDDrawCanvas::mouseUp,
            &QDDrawCanvas::moveWithTouch,
            &QDDrawCanvas::endWithTouch,
            &QDDrawCanvas::cancelWithTouch};
        (_canvas.*kEvents[_bytes.below(static_cast<int>(std::size(kEvents)))])(touch());
    }
    void beginPointer() { _canvas.beginWithTouch(touch()); }
    void pointers() {
        static constexpr void (QDDrawCanvas::*kEvents[])(const QList<QDDrawTouch>&) = {
            &QDDrawCanvas::beginWithTouches, &QDDrawCanvas::moveWithTouches, &QDDrawCanvas::endWithTouches,
            &QDDrawCanvas::cancelWithTouches};
        (_canvas.*kEvents[_bytes.below(4)])(touches());
    }
    void shape() {
        ShapeRecord shape;
        shape.kind = static_cast<ShapeKind>(_bytes.below(20));
        for (int count = _bytes.below(6); count > 0; --count) {
            const QPointF at = _bytes.below(8) == 1 ? _bytes.point() : place();
            shape.corners.push_back({at.x(), at.y()});
        }
        shape.centre = {_bytes.number(), _bytes.number()};
        shape.a = _bytes.number();
        shape.b = _bytes.number();
        shape.rotation = _bytes.number();
        shape.startAngle = _bytes.number();
        shape.endAngle = _bytes.number();
        _canvas.drawShape(shape);
    }

    // ---- What is allowed in callbacks, too ----

    void endPointer() { _bytes.flag() ? _canvas.endPointerStroke() : _canvas.withdrawPointerStroke(); }
    void pointerState() {
        _canvas.setAdjustCancelLine(_bytes.flag());
        _canvas.setLineFinish(_bytes.flag());
        _canvas.setLineMove(_bytes.flag());
        _canvas.setMoveCount(static_cast<std::uint64_t>(_bytes.below(12)));
        _canvas.setLastPoint(_bytes.point());
        _canvas.setCanAddPoint(_bytes.flag());
    }
    void look() {
        if (_bytes.flag()) {
            _canvas.displayImage();
        } else if (_canvas.image().size() != _canvas.bufferSize().toSize()) {
            fail("the canvas cannot be read");
        }
    }
    void clear() {
        switch (_bytes.below(8)) {
            case 0:
                return _canvas.clear();
            case 1:
                return _canvas.clearOnline(_bytes.flag());
            case 2:
                return _canvas.clearWithColor(_bytes.color(), _bytes.flag());
            case 3:
                return _canvas.clearESBufferOnline(_bytes.flag());
            case 4:
                return _canvas.clearESBufferWithColor(_bytes.color(), _bytes.flag());
            case 5:
                return _canvas.clearExtenBuffer();
            case 6:
                return _canvas.clearSubBuffer();
            default:
                return _canvas.clearSmudgeBuffer();
        }
    }
    void dabs() {
        const std::vector<LPPoint> run = points();
        const auto layer = static_cast<ESRenderType>(_bytes.below(7) - 1);
        switch (_bytes.below(3)) {
            case 0:
                _canvas.drawPoints(run.data(), run.size(), layer);
                break;
            case 1:
                _canvas.drawPoints(run.data(), run.size());
                break;
            default:
                _canvas.drawPoint(place(), _bytes.real());
        }
    }
    void update() {
        switch (_bytes.below(6)) {
            case 0:
                return _canvas.updateImage(_bytes.flag());
            case 1:
                return _canvas.updateImage(_bytes.flag(), _bytes.flag());
            case 2:
                return _canvas.resetWithRenderRect(_bytes.rect());
            case 3:
                return _canvas.updateSmudgeBGTexture();
            case 4:
                return _canvas.updateBGImage(data(_canvas.bufferSize().toSize()));
            default:
                _canvas.shown =
                    _bytes.below(4) == 0 ? _bytes.rect() : QRectF(0, 0, 1 + _bytes.byte(), 1 + _bytes.byte());
                return _canvas.updateScaleInfo();
        }
    }
    void read() {
        const QRectF rect =
            _bytes.flag() ? QRectF(_bytes.below(9), _bytes.below(9), 1 + _bytes.below(9), 1 + _bytes.below(9))
                          : _bytes.rect();
        _canvas.imageWithRect(rect);
        // Room for all of the canvas is room for any part of it.
        const QSize size = _canvas.bufferSize().toSize();
        std::vector<unsigned char> room(std::size_t(4) *
                                        static_cast<std::size_t>(size.width() * size.height()));
        _bytes.flag() ? _canvas.readData(room.data(), rect) : _canvas.readDataBufferRect(room.data(), rect);
    }
    void place1() {
        const QImage image = _bytes.image();
        const bool undo = _bytes.flag();
        switch (_bytes.below(7)) {
            case 0:
                _canvas.drawImage(image, _bytes.rect(), undo);
                break;
            case 1:
                _canvas.drawImage(image, _bytes.size(), _bytes.point(), _bytes.number(), undo);
                break;
            case 2:
                _canvas.drawImage(image, _bytes.size(), _bytes.point(), _bytes.number(), _bytes.point());
                break;
            case 3:
                _canvas.setImage(image, _bytes.rect(), undo);
                break;
            case 4:
                _canvas.setImage(image, _bytes.size(), _bytes.point(), _bytes.number(), undo);
                break;
            case 5:
                _canvas.setImageInBufferRect(image, _bytes.rect(), undo);
                break;
            default:
                _canvas.setImageInBufferSize(image, _bytes.size(), _bytes.point(), _bytes.number(), undo);
        }
    }
    void placeData() {
        const QSize size = smallSize();
        const QByteArray pixels = data(size);
        const bool undo = _bytes.flag();
        switch (_bytes.below(4)) {
            case 0:
                _canvas.drawData(pixels, size, _bytes.rect(), undo);
                break;
            case 1:
                _canvas.drawData(pixels, size, _bytes.size(), _bytes.point(), _bytes.number(), undo);
                break;
            case 2:
                _canvas.setData(pixels, size, _bytes.rect(), undo);
                break;
            default:
                _canvas.setData(pixels, size, _bytes.size(), _bytes.point(), _bytes.number(), undo);
        }
    }
    void placing() {
        _canvas.setNeglectTextureUpdate(_bytes.below(4) == 0);
        _canvas.setGlobalScissor(_bytes.below(3) == 0);
        _canvas.setScissorRect(_bytes.rect());
    }
    void recordedCanvas() {
        const QSize whole = _canvas.bufferSize().toSize();
        _canvas.setCurImageData(data(_bytes.flag() ? whole : smallSize()));
    }
    void history() {
        switch (_bytes.below(8)) {
            case 0:
                _canvas.markAction();
                break;
            case 1:
            case 2:
                _canvas.undo();
                break;
            case 3:
                _canvas.redo();
                break;
            case 4:
                _canvas.resetUndoManager();
                break;
            case 5:
                _canvas.loadUndoManager();
                break;
            case 6:
                _canvas.undoManager().setUndoStepCount(static_cast<unsigned>(_bytes.below(6)));
                break;
            default:
                _canvas.undoManager().setMaxCacheCount(static_cast<unsigned>(_bytes.below(3)));
        }
    }
    void historyState() {
        _canvas.setAutoMark(_bytes.flag());
        _canvas.setMarkTimeInterval(_bytes.flag() ? 0 : _bytes.real());
        _canvas.currentImage();
    }
    void property() {
        const auto rows = brushProperties();
        const BrushProperty& row = rows[static_cast<std::size_t>(_bytes.byte()) % rows.size()];
        const QVariant wanted = value(row.type());
        if (_canvas.setBrushValue(row, wanted) && _canvas.brushValue(row).typeId() != wanted.typeId()) {
            fail("a property changes its type");
        }
    }
    // Those that decide how a stroke goes, so that all kinds come up.
    void kindOfBrush() {
        _canvas.setBrushType(_bytes.below(6));
        _canvas.setBlendType(_bytes.below(12));
        _canvas.setEnableRecogition(_bytes.below(4) == 0);
        _canvas.setRepeatedlyRenderEnabled(_bytes.below(3) == 0);
        _canvas.setRadius(static_cast<float>(_bytes.below(64)));
    }
    void preset() {
        switch (_bytes.below(4)) {
            case 0:
                return _canvas.resetParams();
            case 1:
                _preset = *QDBrushManager::paramsOfDrawView(&_canvas);
                return;
            case 2:
                if (!_preset.isEmpty()) {
                    _preset.removeAt(_bytes.byte() % _preset.size());
                }
                [[fallthrough]];
            default:
                _canvas.resetWithParams(_preset, _bytes.flag() ? QDBrushManager::kVersion : _bytes.integer());
        }
    }
    void preview() {
        _canvas.leafDrawView().finishPending();
        _canvas.leafDrawView().cgImage();
    }
    void switches() {
        _canvas.setRepeatableRandom(_bytes.flag());
        _canvas.setProfiling(_bytes.below(16) == 1);
        _canvas.setDelegate(_bytes.below(8) == 0 ? nullptr : this);
    }

    static constexpr Call kAlways[] = {&Player::endPointer, &Player::pointerState,   &Player::look,
                                       &Player::clear,      &Player::dabs,           &Player::update,
                                       &Player::read,       &Player::place1,         &Player::placeData,
                                       &Player::placing,    &Player::recordedCanvas, &Player::history,
                                       &Player::history,    &Player::historyState,   &Player::property,
                                       &Player::property,   &Player::property,       &Player::kindOfBrush,
                                       &Player::preset,     &Player::preview,        &Player::switches};
    static constexpr Call kStrokes[] = {&Player::begin,        &Player::begin,    &Player::move,
                                        &Player::move,         &Player::moves,    &Player::end,
                                        &Player::end,          &Player::pointer,  &Player::pointer,
                                        &Player::beginPointer, &Player::pointers, &Player::shape};

    Bytes& _bytes;
    Canvas& _canvas;
    BrushParams _preset;
    int _calls = 0;
    int _depth = 0;
    int _farPoints = 0;
};

void startQt() {
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_LOGGING_RULES", "dabcanvas*=false");  // refusals by the thousand
    static QGuiApplication application(argc, argv);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    startQt();
    Bytes bytes(data, size);
    const int width = 1 + bytes.below(48);
    Canvas canvas(QRectF(0, 0, width, 1 + bytes.below(48)));
    Player(bytes, canvas).play();
    const QImage image = canvas.image();
    if (image.isNull() || canvas.displayImage() != image) {
        fail("the display image is not the canvas");
    }
    return 0;
}
