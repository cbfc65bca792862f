// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <map>
#include <set>

#include "Brush/BrushModel.h"
#include "Documents/CanvasPlan.h"
#include "Documents/Document.h"
#include "Documents/LeftPictures.h"
#include "History/StepPicture.h"
#include "Presets/PresetLibrary.h"
#include "Recording/SessionRecorder.h"
#include "Window/PainterSettings.h"
#include "Window/PassingMessage.h"
#include "Window/Prompts.h"

class QAction;
class QActionGroup;
class QDDrawCanvas;
class QDDrawView;
class QDockWidget;
class QToolBar;
class QMimeData;

namespace dabcanvas::dabpainter {

class Autosave;
class BrushBar;
class BrushPanel;
class CanvasPointer;
class CanvasStatus;
class CanvasViewport;
class ColorPanel;
class Commands;
class FillPointer;
class LayerPanel;
class PresetBrowser;
class RecentFiles;
class PulledString;
class RecordingSign;
class SelectionEditor;
class SelectionTool;
class StraightLines;
class SymmetryGuide;
class Theme;
class Tools;
enum class Tool;

// The application's window: the document's canvas, the brush, and what the user does to both. Whatever that is, it ends a
// stroke in progress first.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // The settings' file must outlive the window. copies: the folder of the copies of all runs, see LeftPictures.h.
    MainWindow(QSettings& settings, Prompts prompts, PresetFolders folders, const QString& copies);
    ~MainWindow() override;

    // Each makes a canvas in place of the present one. False, after a message, when it cannot be had; then
    // the present one stays. Unsaved changes are not asked for.
    bool startCanvas(const CanvasPlan& plan);
    bool openImage(const QString& path);
    bool recover(const LeftPicture& picture);

    // Floats over the middle of the canvas, made smaller when it does not fit.
    bool placeImage(const QString& path);
    bool saveTo(const QString& path);
    void clearCanvas();

    // What dead runs left may be gone on with. False, and not a word, when there is nothing.
    bool offerLeftPictures();

    bool isUnsaved() const { return _document.isModified(); }
    // Whether the canvas may go: there is nothing unsaved, or the user saved or gave it up.
    bool mayDiscard();

    BrushModel& brush() { return _brush; }
    BrushPanel& panel() { return *_panel; }
    ColorPanel& colours() { return *_colours; }
    PresetBrowser& presets() { return *_presets; }
    CanvasViewport& viewport() { return *_viewport; }
    CanvasPointer& pointer() { return *_pointer; }
    Document& document() { return _document; }
    PainterSettings& settings() { return _settings; }
    Autosave& autosave() { return *_autosave; }
    SelectionEditor& selection() { return *_selection; }
    Commands& commands() { return *_commands; }
    Tools& tools() { return *_tools; }
    BrushBar& brushBar() { return *_brushBar; }
    QDDrawView* view() const;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // Brush files and pictures, from elsewhere; pictures become brushes where the list of brushes is.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QDockWidget* addDock(const QString& title, const QString& name, QWidget* widget);
    void makeColourDock(const PresetFolders& brushes);
    void makeFileMenu();
    void makeEditMenu();
    void makeCanvasMenu();
    void makeToolMenu();
    void makeBrushMenu();
    void makeViewMenu();
    // MainWindow+Recording.cpp
    void makeRecordingMenu();
    void recordCanvas();
    void exportRecording();
    void exportTimelapse();
    // To these menus: see MainWindow+Input.cpp
    void addCanvasSizes(QMenu* menu);
    bool takeCanvasArea(const QRect& area);
    void addTurns(QMenu* menu);
    void addPen(QMenu* menu);
    void addSymmetry(QMenu* canvasMenu);
    void addSymmetryOptions(QMenu* menu);
    void makeHelpMenu();
    void makeToolBars();
    void makeSelection();
    void makeSelectMenu();
    void addClipboard(QMenu* menu);
    void connectParts();
    // name: see Commands.h
    QAction* addTo(QMenu* menu, const char* name, const QString& text, const QList<QKeySequence>& keys,
                   const std::function<void()>& act);
    // Of which one holds.
    template <typename Value>
    void addChoices(QMenu* menu, const QList<std::pair<QString, Value>>& rows, Value now,
                    const std::function<void(Value)>& choose);

    // File
    bool replaceCanvas(QSize size, int depth, const std::function<bool(QDDrawView&)>& paint,
                       const Document::Origin& origin);
    bool openCopy(const LeftPicture& picture);
    bool openPicture(const QImage& image, const Document::Origin& origin);
    void watchView();
    void choosePaper(int layer);
    void replaceLost();
    bool tellFault(const QString& fault);
    void newCanvas();
    void open();
    void place();
    bool save();
    bool saveAs(const QString& suggested = {});
    bool saveAsking(const QString& path);
    void showDocument();

    // A stroke, and what floats: before the canvas is saved, replaced or changed by something else.
    void finishEdits();
    void watchSelection();
    void removeSelected();
    void cutSelected();
    bool copyPicture(const QImage& picture);
    bool placePicture(const QImage& picture);
    bool placePicture(const QMimeData& from);

    void stepHistory(dabcanvas::StepPicture (QDDrawCanvas::*step)());
    void askUndoSteps();
    void recogniseShapes(bool on);
    QAction* addTool(QMenu* menu, const char* name, const QString& text, const char* keys, Tool tool);
    void showTool(Tool tool);
    void tellKeys();
    void fillAt(QPointF viewPoint);
    void zoomBy(double factor);
    void toggleFullScreen();
    void readState();
    void writeState(QSettings& file);

    PainterSettings _settings;
    Prompts _prompts;
    const LeftPictures _left;
    BrushModel _brush;
    Document _document;
    Autosave* _autosave;
    Commands* _commands;
    RecentFiles* _recent;
    Theme* _theme;

    CanvasViewport* _viewport;
    CanvasPointer* _pointer;
    CanvasStatus* _status;
    StraightLines* _lines;
    SymmetryGuide* _symmetry;
    Tools* _tools;
    FillPointer* _fill;
    PulledString* _string;
    BrushPanel* _panel;
    QToolBar* _toolBar;
    BrushBar* _brushBar;
    PresetBrowser* _presets;
    LayerPanel* _layers;
    ColorPanel* _colours;
    SelectionEditor* _selection;
    SelectionTool* _selectionTool;
    QDockWidget *_colourDock, *_presetDock, *_layerDock, *_dock;
    SessionRecorder _session;
    QAction* _record;
    RecordingSign* _recordingSign;
    QAction *_undo, *_redo, *_shapes, *_sizing;
    std::map<Tool, QAction*> _toolActions;
    PassingMessage _floatHint, _refusal;  // how to end what floats; why nothing came of something
    bool _brushRead = false;
    std::set<Document::Loss> _lossesKnown;  // to the user, of this picture
    std::set<BrushKey> _unwritten;          // since the settings were written
    bool _wasMaximized = false;
};

}  // namespace dabcanvas::dabpainter
