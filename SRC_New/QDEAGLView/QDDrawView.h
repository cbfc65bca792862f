// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QWidget>
#include <memory>

#include "Maths/Export.h"
#ifndef Q_MOC_RUN  // which reads every file once, and is to read the list of properties below
#include "Display/CanvasDisplay.h"
#endif

class LeafDrawView;

/// A canvas in a window: a widget that shows what a QDDrawCanvas holds and has all of its operations and
/// properties.
///
///     auto view = QDDrawView::initWithFrame(QRectF(0, 0, 800, 600));
///     view->setRadius(24);
///     view->drawingWithBeginPoint({100, 100}, 0.5f);
///     view->drawingWithMoveToPoint({300, 180}, 0.9f);
///     view->drawingWithEndPoint({400, 120}, 0.2f);
///     view->show();
///
/// Pointer  left mouse button, pen tip and one finger paint; a mouse presses with 1, a touch screen that measures no
///          pressure too. What another device began is not disturbed. A second finger takes the first one's mark back;
///          from there until all are up, touch is left to event filters, or moves a view that is navigable. Other
///          buttons, the wheel and hovering pens go to the parent. A pen that measures pressure paints from the first
///          that there is. A stroke ends where it got to when the window is deactivated or the view hidden, when its
///          device is gone, and for another one that presses after a second of silence. A stroke of up to nine moves
///          is taken for a slip: setAdjustCancelLine(false) keeps it.
/// Size     the buffer gets the frame's size at creation and keeps it; a widget of another size shows it
///          stretched, and points scale, unless fit() says otherwise.
/// Undo     the first step is the blank canvas: resetUndoManager() makes a picture that was placed the first one.
/// Owner    whoever holds the unique_ptr. With a parent, or once put into a layout, release() it: the parent owns.
/// Life     a delegate may destroy it in any callback, but not in one that comes because the view is shown, hidden or
///          resized: Qt goes on with it. deleteLater() is fine there. So for slots.
/// Thread   the application's main thread, as for every widget.
class DABCANVAS_VIEW_API QDDrawView : public QWidget, public dabcanvas::CanvasDisplay {
    Q_OBJECT
    // A property for each row of BrushPropertyList.h, with the canvas's setter of that name. Designer and QML know doubles
    // and QColors; influences take "0.5, 0, 0", lists and string lists, too.
#define VIEW_PROPERTY(type, name, Name, read) \
    Q_PROPERTY(type name READ read WRITE set##Name RESET reset##Name NOTIFY brushChanged)
#define VIEW_PROPERTY_bool(name, Name) VIEW_PROPERTY(bool, name, Name, name)
#define VIEW_PROPERTY_int(name, Name) VIEW_PROPERTY(int, name, Name, name)
#define VIEW_PROPERTY_float(name, Name) VIEW_PROPERTY(double, name, Name, name)
#define VIEW_PROPERTY_QString(name, Name) VIEW_PROPERTY(QString, name, Name, name)
#define VIEW_PROPERTY_QImage(name, Name) VIEW_PROPERTY(QImage, name, Name, name)
#define VIEW_PROPERTY_LPControlParams(name, Name) VIEW_PROPERTY(LPControlParams, name, Name, name)
#define VIEW_PROPERTY_ESColor(name, Name) VIEW_PROPERTY(QColor, name, Name, name##Value)
#define BRUSH_PROPERTY(type, name, Name, ...) VIEW_PROPERTY_##type(name, Name)
#define BRUSH_IMAGES(name, Name, ...) VIEW_PROPERTY(QList<QImage>, name, Name, name)
#define BRUSH_KIND(Kind, name, Name, ...) VIEW_PROPERTY(dabcanvas::Kind, name, Name, name##Kind)
#include "Brushes/BrushPropertyList.h"
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged)
    Q_PROPERTY(bool modified READ isModified WRITE setModified NOTIFY modifiedChanged)
    Q_PROPERTY(bool autoMark READ autoMark WRITE setAutoMark)
    Q_PROPERTY(bool adjustCancelLine READ adjustCancelLine WRITE setAdjustCancelLine)
    Q_PROPERTY(bool usesPenTilt READ usesPenTilt WRITE setUsesPenTilt)
    Q_PROPERTY(Fit fit READ fitKind WRITE setFit NOTIFY viewChanged)
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY viewChanged STORED false)
    Q_PROPERTY(double viewRotation READ viewRotation WRITE setViewRotation NOTIFY viewChanged)
    Q_PROPERTY(bool viewMirrored READ isViewMirrored WRITE setViewMirrored NOTIFY viewChanged)
    Q_PROPERTY(bool navigable READ isNavigable WRITE setNavigable)
    Q_PROPERTY(QString problem READ problem NOTIFY contextLost STORED false)

public:
    /// dabcanvas::ViewFit's.
    enum class Fit { Stretch, Whole, Free };
    Q_ENUM(Fit)

    /// As Designer makes it: with a canvas of the size, in pixels of the screen, that the view is first shown with,
    /// unless something was painted before; until then it is 640 x 480. Where none can be had, the view says so; see
    /// problem().
    explicit QDDrawView(QWidget* parent = nullptr, const dabcanvas::SurfaceOptions& options = {});
    /// Frame: place and size in the parent, in view points, from 1 x 1 on. Null, after one log line, when
    /// the surface that is asked for cannot be had, or not in this size.
    static std::unique_ptr<QDDrawView> initWithFrame(const QRectF& frame, QWidget* parent = nullptr,
                                                     const dabcanvas::SurfaceOptions& options = {});
    ~QDDrawView() override;

    QSize sizeHint() const override;

    Fit fitKind() const {
        return static_cast<Fit>(fit());
    }
    using CanvasDisplay::setFit;
    void setFit(Fit fit) {
        setFit(static_cast<dabcanvas::ViewFit>(fit));
    }

Q_SIGNALS:
    // ---- Signals of strokes: in buffer pixels, in the course of them; after each begin comes one of the two ends
    void strokeBegan(QPointF place);
    void strokeMoved(QPointF place);
    void strokeEnded(QPointF place);
    void strokeWithdrawn();  ///< nothing of it stays
    // ---- Signals of the canvas: when the call that caused them is done, once
    void canvasSizeChanged();
    void canvasChanged(const QRect& bufferPixels);  ///< these show something else
    void canUndoChanged(bool canUndo);
    void canRedoChanged(bool canRedo);
    void modifiedChanged(bool modified);
    void brushChanged();              ///< a property of it, or many at once
    void viewChanged();               ///< fit, zoom, place, turn or mirroring
    void contextLost();               ///< nothing can be painted any more, see QDDrawCanvas::isContextLost()
    void fingersTapped(int fingers);  ///< two or more, of a view that is navigable

protected:
    /// For one that derives from it, and then calls initCanvas().
    explicit QDDrawView(const QRectF& frame, QWidget* parent = nullptr);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;

    /// The screen always shows the whole canvas image, never the layers.
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    QSizeF viewSize() const override {
        return size();
    }
    double viewPixelRatio() const override {
        return devicePixelRatioF();
    }
    void updateView(const QRectF& viewRect) override;
    QPointF toWindow(QPointF viewPoint) const override {
        return mapTo(window(), viewPoint);
    }
    QPointF fromWindow(QPointF windowPoint) const override {
        return mapFrom(window(), windowPoint);
    }
    QPointF fromGlobal(QPointF globalPoint) const override {
        return mapFromGlobal(globalPoint);
    }
    void viewDidChange() override;
    std::unique_ptr<LeafDrawing> makeLeafDrawView(const QRectF& frame) override;
    void showLeafDrawView(bool shown) override;

    void strokeDidBegin(QPointF place) override {
        Q_EMIT strokeBegan(place);
    }
    void strokeDidMove(QPointF place) override {
        Q_EMIT strokeMoved(place);
    }
    void strokeDidEnd(QPointF place) override {
        Q_EMIT strokeEnded(place);
    }
    void strokeWasWithdrawn() override {
        Q_EMIT strokeWithdrawn();
    }
    void canvasSizeDidChange() override;
    void pictureDidChange(const QRect& bufferPixels) override;
    void canUndoDidChange(bool can) override {
        Q_EMIT canUndoChanged(can);
    }
    void canRedoDidChange(bool can) override {
        Q_EMIT canRedoChanged(can);
    }
    void modifiedDidChange(bool modified) override {
        Q_EMIT modifiedChanged(modified);
    }
    void brushDidChange() override {
        Q_EMIT brushChanged();
    }
    void contextWasLost() override;
    void fingersDidTap(int fingers) override {
        Q_EMIT fingersTapped(fingers);
    }

private:
    LeafDrawView* _leafWidget = nullptr;
    bool _takesViewSize = false;  // when it is shown
};
