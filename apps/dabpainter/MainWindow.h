// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <set>

#include "BrushModel.h"
#include "History/StepPicture.h"
#include "NewCanvasDialog.h"
#include "PresetLibrary.h"
#include "Prompts.h"
#include "SessionFolder.h"
#include "Surface/SurfaceKind.h"

class QAction;
class QDDrawCanvas;
class QDDrawView;
class QDockWidget;
class QLabel;
class QSettings;

namespace dabcanvas::dabpainter {

class BrushPanel;
class CanvasPointer;
class CanvasViewport;
class PresetBrowser;

// The application's window: one canvas, the brush and the file the canvas goes to.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // The settings must outlive the window. They are written shortly after something changed, so that a run that is
    // killed loses no more than that. sessions: the folder of the folders of all runs.
    MainWindow(QSettings& settings, Prompts prompts, PresetFolders folders, const QString& sessions);
    ~MainWindow() override;

    // Each makes a canvas in place of the present one. False, after a message, when it cannot be had; then
    // the present one stays. Unsaved changes are not asked for.
    bool startCanvas(const CanvasPlan& plan);
    bool openImage(const QString& path);

    // Onto the middle of the canvas, made smaller when it does not fit.
    bool placeImage(const QString& path);
    bool saveTo(const QString& path);
    void clearCanvas();

    // Whether what dead runs left may go, when it has become much.
    void askAboutOldSessions();

    bool isUnsaved() const { return isWindowModified(); }
    // Whether the canvas may go: there is nothing unsaved, or the user saved or gave it up.
    bool mayDiscard();

    BrushModel& brush() { return _brush; }
    BrushPanel& panel() { return *_panel; }
    PresetBrowser& presets() { return *_presets; }
    CanvasViewport& viewport() { return *_viewport; }
    CanvasPointer& pointer() { return *_pointer; }
    QDDrawView* view() const;
    const CanvasPlan& plan() const { return _plan; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // Brush files, from elsewhere; pictures only where the list of brushes is.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QDockWidget* addDock(const QString& title, const QString& name, QWidget* widget);
    void makeFileMenu();
    void makeEditMenu();
    void makeCanvasMenu();
    void makeBrushMenu();
    void makeViewMenu();
    void makeStatusBar();
    QAction* addTo(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                   const std::function<void()>& act);

    // File
    void addSurfaces(QMenu& menu);
    SurfaceKind surfaceKind() const;
    bool replaceCanvas(QSize size, const std::function<bool(QDDrawView&)>& paint);
    void newCanvas();
    void open();
    void place();
    bool save();
    bool saveAs();
    void setPlan(const CanvasPlan& plan);
    void setPath(const QString& path);
    void markChanged();
    void markSaved();

    // Edit
    void startHistory();
    void stepHistory(dabcanvas::StepPicture (QDDrawCanvas::*step)());
    int undoSteps() const;
    void setUndoSteps(int steps);

    // Brush
    void stepRadius(int direction);
    void stepHardness(int direction);
    void swapColors();
    void defaultColors();
    void recogniseShapes(bool on);

    void toggleFullScreen();
    void showPosition(QPointF bufferPoint);
    void showCanvasFacts();
    void noteChange();
    void readState();
    void writeState();

    QSettings& _settings;
    Prompts _prompts;
    QString _sessions;
    SessionFolder _session;
    BrushModel _brush;
    CanvasPlan _plan;
    QString _path;       // where Save writes; empty until there is one
    QString _savedPath;  // the same while it is the last one written

    CanvasViewport* _viewport;
    CanvasPointer* _pointer;
    BrushPanel* _panel;
    PresetBrowser* _presets;
    QDockWidget *_presetDock, *_dock;
    QAction *_undo, *_redo, *_shapes;
    QLabel* _shapesLabel;
    QLabel *_sizeLabel, *_zoomLabel, *_positionLabel, *_pressureLabel, *_driverLabel;
    bool _brushRead = false;
    std::set<BrushKey> _unwritten;  // since the settings were written
    QTimer _writeTimer;
    bool _wasMaximized = false;
};

}  // namespace dabcanvas::dabpainter
