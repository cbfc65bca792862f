// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QQuickItem>
#include <QUrl>
#include <QVariant>
#include <memory>
#include <optional>

#include "Maths/Export.h"
#ifndef Q_MOC_RUN  // which reads every file once, and is to read the list of properties below
#include "Display/CanvasDisplay.h"
#endif

class QPainter;
class QTabletEvent;

namespace dabcanvas {

class ItemDisplay;

/// A canvas in a scene of Qt Quick, which QML knows as Canvas of the module Dabcanvas:
///
///     import QtQuick
///     import Dabcanvas
///
///     Canvas {
///         anchors.fill: parent
///         renderColor: "steelblue"
///         blendType: Brush.Multiply
///         radiusControl: [0.7, 0, 0]             // pressure, altitude, speed
///         maskImage: "paper.png"                 // by path or URL, as all images
///         onStrokeEnded: save("picture.png") || console.log(problem)
///     }
///
/// Names    of properties are those of QDDrawView, but for brushOpacity, as items have an opacity of their own. Numbers
///          that are not finite, and files that cannot be read, leave a property as it was: QML's warning says so, and
///          problem, which the item shows.
/// Pointer  as for QDDrawView. A pen paints where nothing above the item takes a press. What the item hears it keeps
///          from the Flickables around it.
/// Size     canvasSize, in pixels; as large as the item in pixels of the screen when it is first shown, where none was
///          set. An item of another size shows the canvas stretched, unless fit says otherwise.
/// Render   by OpenGL, Vulkan and their like, and by Qt Quick's software renderer: parts that changed are uploaded.
/// Life     destroy() and deleteLater() are fine in any signal; delete is not while Qt hands the item an event.
/// Thread   the application's main thread.
class DABCANVAS_QUICK_API CanvasItem : public QQuickItem {
    Q_OBJECT
    // A property for each row of BrushPropertyList.h.
#define ITEM_IS_opacity ~, brushOpacity
#define ITEM_SECOND(first, second, ...) second
#define ITEM_PICK(...) ITEM_SECOND(__VA_ARGS__)
#define ITEM_NAME(name) ITEM_PICK(ITEM_IS_##name, name, )
#define ITEM_PROPERTY(type, name, Name) \
    Q_PROPERTY(type ITEM_NAME(name) READ read##Name WRITE write##Name RESET reset##Name NOTIFY brushChanged)
#define ITEM_PROPERTY_bool(name, Name) ITEM_PROPERTY(bool, name, Name)
#define ITEM_PROPERTY_int(name, Name) ITEM_PROPERTY(int, name, Name)
#define ITEM_PROPERTY_float(name, Name) ITEM_PROPERTY(double, name, Name)
#define ITEM_PROPERTY_QString(name, Name) ITEM_PROPERTY(QString, name, Name)
#define ITEM_PROPERTY_QImage(name, Name) ITEM_PROPERTY(QVariant, name, Name)
#define ITEM_PROPERTY_LPControlParams(name, Name) ITEM_PROPERTY(QList<double>, name, Name)
#define ITEM_PROPERTY_ESColor(name, Name) ITEM_PROPERTY(QColor, name, Name)
#define BRUSH_PROPERTY(type, name, Name, ...) ITEM_PROPERTY_##type(name, Name)
#define BRUSH_IMAGES(name, Name, ...) ITEM_PROPERTY(QVariant, name, Name)
#define BRUSH_KIND(Kind, name, Name, ...) ITEM_PROPERTY(dabcanvas::Kind, name, Name)
#include "Brushes/BrushPropertyList.h"
    Q_PROPERTY(QSize canvasSize READ canvasSize WRITE setCanvasSize NOTIFY canvasSizeChanged)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged)
    Q_PROPERTY(bool modified READ isModified WRITE setModified NOTIFY modifiedChanged)
    Q_PROPERTY(bool autoMark READ autoMark WRITE setAutoMark NOTIFY optionsChanged)
    Q_PROPERTY(bool adjustCancelLine READ adjustCancelLine WRITE setAdjustCancelLine NOTIFY optionsChanged)
    Q_PROPERTY(bool usesPenTilt READ usesPenTilt WRITE setUsesPenTilt NOTIFY optionsChanged)
    Q_PROPERTY(bool navigable READ isNavigable WRITE setNavigable NOTIFY optionsChanged)
    Q_PROPERTY(Fit fit READ fit WRITE setFit NOTIFY viewChanged)
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY viewChanged)
    Q_PROPERTY(double viewRotation READ viewRotation WRITE setViewRotation NOTIFY viewChanged)
    Q_PROPERTY(bool viewMirrored READ isViewMirrored WRITE setViewMirrored NOTIFY viewChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    /// ViewFit's.
    enum class Fit { Stretch, Whole, Free };
    Q_ENUM(Fit)

    explicit CanvasItem(QQuickItem* parent = nullptr, const SurfaceOptions& options = {});
    ~CanvasItem() override;

    /// All that a canvas can do, for C++.
    CanvasDisplay& canvas() const;

    QSize canvasSize() const;
    /// The history begins anew. Empty: as large as the item, once it is shown.
    void setCanvasSize(const QSize& size);
    /// What is wrong, in words, which the item shows as well; empty when all is well.
    QString problem() const;

    // ---- For QML. Files by path or URL; relative ones lie beside the QML file, and problem says what is wrong with one.
    // Points as for QDDrawCanvas.
    Q_INVOKABLE bool undo();
    Q_INVOKABLE bool redo();
    Q_INVOKABLE void clear();
    Q_INVOKABLE void clear(const QColor& color);
    /// By the file's suffix.
    Q_INVOKABLE bool save(const QUrl& file);
    Q_INVOKABLE bool loadBrush(const QUrl& file);
    Q_INVOKABLE void resetBrush();
    /// A file or an image, over all of the canvas or in a rectangle of view points.
    Q_INVOKABLE bool placeImage(const QVariant& image, const QRectF& rect = {});
    Q_INVOKABLE void beginStroke(QPointF point, double pressure = -1, double altitude = -1);
    Q_INVOKABLE void moveStroke(QPointF point, double pressure = -1, double altitude = -1);
    Q_INVOKABLE void endStroke(QPointF point, double pressure = -1, double altitude = -1);
    Q_INVOKABLE QImage image() const;
    /// After contextLost(): goes on with the processor, see QDDrawCanvas.
    Q_INVOKABLE bool recoverFromLoss();
    Q_INVOKABLE void zoomAbout(double zoom, QPointF itemPoint);
    Q_INVOKABLE void panBy(QPointF itemPoints);
    /// Between the item's points and the canvas's pixels.
    Q_INVOKABLE QPointF toCanvas(QPointF itemPoint) const;
    Q_INVOKABLE QPointF fromCanvas(QPointF pixel) const;

Q_SIGNALS:
    // ---- Signals: as QDDrawView's, and of what else has a property
    void strokeBegan(QPointF place);
    void strokeMoved(QPointF place);
    void strokeEnded(QPointF place);
    void strokeWithdrawn();
    void canvasSizeChanged();
    void layersChanged();
    void canvasChanged(const QRect& bufferPixels);
    void canUndoChanged(bool canUndo);
    void canRedoChanged(bool canRedo);
    void modifiedChanged(bool modified);
    void brushChanged();
    void viewChanged();
    void contextLost();
    void fingersTapped(int fingers);
    void optionsChanged();
    void problemChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* before, UpdatePaintNodeData*) override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;
    /// The window's, of pens and its going away.
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    friend class ItemDisplay;
    struct Scene;

#define ITEM_ACCESS(type, name, Name)    \
    type read##Name() const;             \
    void write##Name(const type& value); \
    void reset##Name() {                 \
        canvas().reset##Name();          \
    }
#define ITEM_ACCESS_bool(name, Name) ITEM_ACCESS(bool, name, Name)
#define ITEM_ACCESS_int(name, Name) ITEM_ACCESS(int, name, Name)
#define ITEM_ACCESS_float(name, Name) ITEM_ACCESS(double, name, Name)
#define ITEM_ACCESS_QString(name, Name) ITEM_ACCESS(QString, name, Name)
#define ITEM_ACCESS_QImage(name, Name) ITEM_ACCESS(QVariant, name, Name)
#define ITEM_ACCESS_LPControlParams(name, Name) ITEM_ACCESS(QList<double>, name, Name)
#define ITEM_ACCESS_ESColor(name, Name) ITEM_ACCESS(QColor, name, Name)
#define BRUSH_PROPERTY(type, name, Name, ...) ITEM_ACCESS_##type(name, Name)
#define BRUSH_IMAGES(name, Name, ...) ITEM_ACCESS(QVariant, name, Name)
#define BRUSH_KIND(Kind, name, Name, ...) ITEM_ACCESS(dabcanvas::Kind, name, Name)
#ifndef Q_MOC_RUN
#include "Brushes/BrushPropertyList.h"
#endif

    bool canUndo() const;
    bool canRedo() const;
    bool isModified() const;
    void setModified(bool modified);
    bool autoMark() const;
    void setAutoMark(bool marks);
    bool adjustCancelLine() const;
    void setAdjustCancelLine(bool adjusts);
    bool usesPenTilt() const;
    void setUsesPenTilt(bool uses);
    bool isNavigable() const;
    void setNavigable(bool navigable);
    Fit fit() const;
    void setFit(Fit fit);
    double zoom() const;
    void setZoom(double zoom);
    double viewRotation() const;
    void setViewRotation(double radians);
    bool isViewMirrored() const;
    void setViewMirrored(bool mirrored);

    void put(BrushKey key, const QVariant& value, const QString& problem = {});
    std::optional<QImage> imageOf(const QVariant& value, QString* problem) const;
    QList<QImage> imagesOf(const QVariant& value, QString* problem) const;
    QString pathOf(const QUrl& file, QString* problem) const;
    // What is wrong with what, or no more: told once, and shown until then.
    void tell(const QString& what, const QString& problem);
    void takeViewSize();
    bool paintsInView() const;
    void paintView(QPainter& painter);
    void takePreview();
    void showAgain();
    void viewIsStale(const QRectF& viewRect);
    void canvasIsStale(const QRect& pixels);
    void previewIsStale(const QRectF& canvasPixels);
    void watch(QQuickWindow* window);
    bool tablet(QTabletEvent& event);

    std::unique_ptr<ItemDisplay> _display;
    std::unique_ptr<Scene> _scene;
    QPointer<QQuickWindow> _window;
    QMap<QString, QString> _problems;
    bool _takesViewSize = false;  // when it is shown
    quint64 _heardUntil = 0;      // of a finger, in milliseconds
};

}  // namespace dabcanvas
