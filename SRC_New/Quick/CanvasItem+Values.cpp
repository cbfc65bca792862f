// SPDX-License-Identifier: MIT
// The item's properties and what QML calls.
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QJSValue>
#include <QQmlContext>
#include <QQmlFile>
#include <QtQml>

#include "Quick/CanvasItem.h"
#include "Quick/ItemDisplay.h"

namespace dabcanvas {
namespace {

// A list of QML's comes as a value of its engine.
QVariant plain(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

QList<double> numbersOf(const LPControlParams& control) {
    return {control.pressure, control.altitude, control.speed};
}

LPControlParams controlOf(const QList<double>& numbers) {
    const auto at = [&](qsizetype i) { return static_cast<float>(numbers.value(i)); };
    return {at(0), at(1), at(2)};
}

}  // namespace

// ---- The brush

void CanvasItem::put(BrushKey key, const QVariant& value, const QString& problem) {
    const QPointer<CanvasItem> self(this);
    const BrushProperty& row = brushProperty(key);
    const bool isTaken = problem.isEmpty() && _display->setBrushValue(row, value);
    if (self) {
        tell(QString::fromLatin1(row.name), isTaken             ? QString()
                                            : problem.isEmpty() ? QStringLiteral("this is no number")
                                                                : problem);
    }
}

#define ITEM_VALUE(type, name, Name, got, written)         \
    type CanvasItem::read##Name() const {                  \
        return got;                                        \
    }                                                      \
    void CanvasItem::write##Name(const type& value) {      \
        put(BrushKey::name, QVariant::fromValue(written)); \
    }
#define ITEM_VALUE_bool(name, Name) ITEM_VALUE(bool, name, Name, _display->name(), value)
#define ITEM_VALUE_int(name, Name) ITEM_VALUE(int, name, Name, _display->name(), value)
#define ITEM_VALUE_float(name, Name) \
    ITEM_VALUE(double, name, Name, static_cast<double>(_display->name()), static_cast<float>(value))
#define ITEM_VALUE_QString(name, Name) ITEM_VALUE(QString, name, Name, _display->name(), value)
#define ITEM_VALUE_ESColor(name, Name) ITEM_VALUE(QColor, name, Name, _display->name##Value(), ESColor(value))
#define ITEM_VALUE_LPControlParams(name, Name) \
    ITEM_VALUE(QList<double>, name, Name, numbersOf(_display->name()), controlOf(value))
#define ITEM_VALUE_QImage(name, Name)                                        \
    QVariant CanvasItem::read##Name() const {                                \
        return _display->name();                                             \
    }                                                                        \
    void CanvasItem::write##Name(const QVariant& value) {                    \
        QString problem;                                                     \
        const std::optional<QImage> image = imageOf(plain(value), &problem); \
        put(BrushKey::name, image ? QVariant(*image) : QVariant(), problem); \
    }
#define BRUSH_PROPERTY(type, name, Name, ...) ITEM_VALUE_##type(name, Name)
#define BRUSH_KIND(Kind, name, Name, ...) \
    ITEM_VALUE(Kind, name, Name, _display->name##Kind(), static_cast<int>(value))
#define BRUSH_IMAGES(name, Name, ...)                                  \
    QVariant CanvasItem::read##Name() const {                          \
        return QVariant::fromValue(_display->name());                  \
    }                                                                  \
    void CanvasItem::write##Name(const QVariant& value) {              \
        QString problem;                                               \
        const QList<QImage> images = imagesOf(plain(value), &problem); \
        put(BrushKey::name, QVariant::fromValue(images), problem);     \
    }
#include "Brushes/BrushPropertyList.h"

// ---- Files

QString CanvasItem::pathOf(const QUrl& file, QString* problem) const {
    const QQmlContext* const context = qmlContext(this);
    QUrl url = file;
    if (file.isRelative() && QFileInfo(file.path()).isAbsolute()) {
        url = QUrl::fromLocalFile(file.path());
    } else if (file.isRelative()) {
        url = context != nullptr ? context->resolvedUrl(file) : QUrl::fromLocalFile(file.path());
    }
    const QString path = QQmlFile::urlToLocalFileOrQrc(url);
    if (path.isEmpty()) {
        *problem = QStringLiteral("\"%1\" is no local file").arg(file.toString());
    }
    return path;
}

std::optional<QImage> CanvasItem::imageOf(const QVariant& value, QString* problem) const {
    if (value.metaType() == QMetaType::fromType<QImage>()) {
        return value.value<QImage>();
    }
    if (!value.isValid() || value.toString().isEmpty()) {
        return QImage();
    }
    const QString path = pathOf(value.toUrl(), problem);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    QImageReader reader(path);
    const QImage image = reader.read();
    if (image.isNull()) {
        *problem = QStringLiteral("\"%1\" cannot be read: %2").arg(path, reader.errorString());
        return std::nullopt;
    }
    return image;
}

QList<QImage> CanvasItem::imagesOf(const QVariant& value, QString* problem) const {
    if (value.metaType() == QMetaType::fromType<QList<QImage>>()) {
        return value.value<QList<QImage>>();
    }
    const bool isList = value.metaType() == QMetaType::fromType<QVariantList>() ||
                        value.metaType() == QMetaType::fromType<QStringList>();
    QList<QImage> images;
    for (const QVariant& one : isList ? value.toList() : QVariantList{value}) {
        const std::optional<QImage> image = imageOf(plain(one), problem);
        if (image && !image->isNull()) {
            images.append(*image);
        }
    }
    return images;
}

bool CanvasItem::save(const QUrl& file) {
    QString problem;
    const QString path = pathOf(file, &problem);
    if (problem.isEmpty()) {
        QImageWriter writer(path);
        if (!writer.write(_display->image())) {
            problem = QStringLiteral("\"%1\" cannot be written: %2").arg(path, writer.errorString());
        }
    }
    tell(QStringLiteral("save"), problem);
    return problem.isEmpty();
}

bool CanvasItem::loadBrush(const QUrl& file) {
    const QPointer<CanvasItem> self(this);
    QString problem;
    const QString path = pathOf(file, &problem);
    const bool isLoaded = problem.isEmpty() && _display->resetWithXBFPath(path, &problem);
    if (self) {
        tell(QStringLiteral("loadBrush"),
             isLoaded || path.isEmpty() ? problem : QStringLiteral("\"%1\": %2").arg(path, problem));
    }
    return isLoaded;
}

bool CanvasItem::placeImage(const QVariant& image, const QRectF& rect) {
    const QPointer<CanvasItem> self(this);
    takeViewSize();
    QString problem;
    const std::optional<QImage> picture = imageOf(plain(image), &problem);
    const QRectF all(QPointF(), _display->fit() == ViewFit::stretch ? size() : _display->bufferSize());
    bool isPlaced = picture && _display->drawImage(*picture, rect.isEmpty() ? all : rect);
    if (self) {
        tell(QStringLiteral("placeImage"), isPlaced || !problem.isEmpty()
                                               ? problem
                                               : QStringLiteral("there is nothing to place, or no place"));
    }
    return isPlaced;
}

// ---- What QML calls

bool CanvasItem::recoverFromLoss() {
    const bool recovered = _display->recoverFromLoss();
    Q_EMIT problemChanged();
    return recovered;
}

bool CanvasItem::undo() {
    return !_display->undo().isNull();
}

bool CanvasItem::redo() {
    return !_display->redo().isNull();
}

void CanvasItem::clear() {
    takeViewSize();
    _display->clear();
}

void CanvasItem::clear(const QColor& color) {
    takeViewSize();
    _display->clearWithColor(color, true);
}

void CanvasItem::resetBrush() {
    _display->resetParams();
}

void CanvasItem::beginStroke(QPointF point, double pressure, double altitude) {
    takeViewSize();
    _display->drawingWithBeginPoint(point, static_cast<float>(pressure), static_cast<float>(altitude));
}

void CanvasItem::moveStroke(QPointF point, double pressure, double altitude) {
    _display->drawingWithMoveToPoint(point, static_cast<float>(pressure), static_cast<float>(altitude));
}

void CanvasItem::endStroke(QPointF point, double pressure, double altitude) {
    _display->drawingWithEndPoint(point, static_cast<float>(pressure), static_cast<float>(altitude));
}

QImage CanvasItem::image() const {
    return _display->image();
}

void CanvasItem::zoomAbout(double zoom, QPointF itemPoint) {
    _display->zoomAbout(zoom, itemPoint);
}

void CanvasItem::panBy(QPointF itemPoints) {
    _display->panBy(itemPoints);
}

QPointF CanvasItem::toCanvas(QPointF itemPoint) const {
    return _display->viewToBuffer().map(itemPoint);
}

QPointF CanvasItem::fromCanvas(QPointF pixel) const {
    return _display->bufferToView().map(pixel);
}

// ---- Of the canvas and its view

#define ITEM_STATE(type, read, set)    \
    type CanvasItem::read() const {    \
        return _display->read();       \
    }                                  \
    void CanvasItem::set(type value) { \
        _display->set(value);          \
    }
// What no other signal tells of.
#define ITEM_OPTION(read, set)         \
    bool CanvasItem::read() const {    \
        return _display->read();       \
    }                                  \
    void CanvasItem::set(bool value) { \
        if (value != read()) {         \
            _display->set(value);      \
            Q_EMIT optionsChanged();   \
        }                              \
    }
ITEM_OPTION(autoMark, setAutoMark)
ITEM_OPTION(adjustCancelLine, setAdjustCancelLine)
ITEM_OPTION(usesPenTilt, setUsesPenTilt)
ITEM_OPTION(isNavigable, setNavigable)
ITEM_STATE(bool, isModified, setModified)
ITEM_STATE(double, zoom, setZoom)
ITEM_STATE(double, viewRotation, setViewRotation)
ITEM_STATE(bool, isViewMirrored, setViewMirrored)

bool CanvasItem::canUndo() const {
    return _display->canUndo();
}

bool CanvasItem::canRedo() const {
    return _display->canRedo();
}

CanvasItem::Fit CanvasItem::fit() const {
    return static_cast<Fit>(_display->fit());
}

void CanvasItem::setFit(Fit fit) {
    _display->setFit(static_cast<ViewFit>(fit));
}

}  // namespace dabcanvas
