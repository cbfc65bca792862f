// SPDX-License-Identifier: MIT
// The document's canvas: new, opened, recovered, placed on and saved.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>

#include "Brush/BrushCommands.h"
#include "Brush/BrushStorage.h"
#include "Canvas/CanvasLayers.h"
#include "Colour/ColorPanel.h"
#include "Documents/Autosave.h"
#include "Documents/ImageFiles.h"
#include "Documents/NewCanvasDialog.h"
#include "Layers/LayerPanel.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Selection/SelectionEditor.h"
#include "Tools/FillPointer.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasStatus.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/PulledString.h"
#include "Viewport/StraightLines.h"
#include "Viewport/SymmetryGuide.h"
#include "Window/MainWindow.h"
#include "Window/RecentFiles.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMessageTime = 5000;  // milliseconds

// Shows that the application is at work.
class BusyCursor {
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

template <typename Read>
auto readBusily(const QString& path, const Read& read) {
    const BusyCursor busy;
    return read(path);
}

// What a picture of a file is erased to, where it does not tell.
QColor paperOf(const LayeredPicture& picture) {
    if (picture.paper.isValid())
        return picture.paper;
    const PictureLayer& lowest = picture.layers.front();
    const bool isWhole = lowest.image.size() == picture.size && isOpaque(lowest.image);
    return isWhole ? Qt::white : Qt::transparent;
}

}  // namespace

// ---- The canvas

bool MainWindow::replaceCanvas(QSize size, int depth, const std::function<bool(QDDrawView&)>& paint,
                               const Document::Origin& origin) {
    const QRectF frame(QPointF(0, 0), QSizeF(size));
    const SurfaceKind kind = _settings.surface();
    std::unique_ptr<QDDrawView> made =
        QDDrawView::initWithFrame(frame, nullptr, {.kind = kind, .canvasDepth = depth});
    if (!made && kind != SurfaceKind::automatic) {  // a setting must not keep anybody from painting
        made = QDDrawView::initWithFrame(frame, nullptr, {.canvasDepth = depth});
        statusBar()->showMessage(tr("The graphics card cannot paint this picture"), kMessageTime);
    }
    if (!made || !paint(*made)) {
        return origin.hasHistory && made  // of which the caller knows more
                   ? false
                   : tellFault(tr("A canvas of %1 × %2 pixels cannot be had from this graphics driver.")
                                   .arg(size.width())
                                   .arg(size.height()));
    }
    _brush.attach(made.get());
    if (!_brushRead) {
        _brushRead = true;
        setDefaultColors(_brush);  // of a first start
        const bool isFirst = !_settings.file().childGroups().contains(QStringLiteral("brush"));
        readBrush(_settings.file(), _brush);
        _presets->readState(_settings.file());
        // What was read need not be written; a first start's colours are in no file yet.
        _unwritten = {BrushKey::renderColor, BrushKey::backRenderColor};
        if (isFirst)
            _presets->chooseShipped(QStringLiteral("pencil.xbf"));
    }
    QDDrawView& next = *made;
    _document.begin(next, origin);
    _selection->setCanvas(nullptr);
    _session.stop();
    _viewport->setView(std::move(made));
    watchView();
    recordCanvas();
    return true;
}

void MainWindow::watchView() {
    QDDrawView* now = view();
    _pointer->watchView();
    watchSelection();
    _lossesKnown.clear();
    _lines->watchView();
    _symmetry->watchView();
    _string->watchView();
    _layers->setView(now);
    _fill->watch(now);
    _colours->setView(now);
    now->setEnableRecogition(_shapes->isChecked());
    connect(now, &QDDrawView::canUndoChanged, _undo, &QAction::setEnabled);
    connect(now, &QDDrawView::canRedoChanged, _redo, &QAction::setEnabled);
    connect(now, &QDDrawView::modifiedChanged, this, &MainWindow::showDocument);
    connect(now, &QDDrawView::canvasChanged, &_document, &Document::noteChange);
    connect(now, &QDDrawView::contextLost, this, &MainWindow::replaceLost, Qt::QueuedConnection);
    connect(now, &QDDrawView::fingersTapped, this, [this](int fingers) {
        if (fingers == 2)
            stepHistory(&QDDrawCanvas::undo);
        else if (fingers == 3)
            stepHistory(&QDDrawCanvas::redo);
    });
    _undo->setEnabled(now->canUndo());
    _redo->setEnabled(now->canRedo());
    _status->showCanvas();
}

// The lowest layer of an opaque picture gets no holes: what is erased or lifted off it shows what it was painted on.
void MainWindow::choosePaper(int layer) {
    const QColor& ground = _document.plan().background;
    const QColor paper = layer == 0 && ground.alpha() == 255 ? ground : QColor();
    _brush.setPaper(paper);
    _selection->setPaper(paper);
}

// A driver has taken its device away. The canvas goes on in another surface, with layers and steps; where it cannot, what was
// seen last goes on in another canvas.
void MainWindow::replaceLost() {
    if (!view() || !view()->isContextLost())
        return;
    if (view()->recoverFromLoss(_settings.surface()) || view()->recoverFromLoss()) {
        _status->showCanvas();
        statusBar()->showMessage(
            tr("The graphics card was lost for a moment; the picture is here as the last step left it"),
            2 * kMessageTime);
        return;
    }
    const QImage seen = _selection->seenIn(view()->displayImage());
    const bool replaced = openPicture(seen, {.path = _document.path(),
                                             .plan = _document.plan(),
                                             .copy = _autosave->takeName(),
                                             .isUnsaved = true});
    if (replaced)
        statusBar()->showMessage(
            tr("The graphics card was lost for a moment; the picture is here, its undo steps are not"),
            2 * kMessageTime);
}

// Always false.
bool MainWindow::tellFault(const QString& fault) {
    _prompts.tell(this, fault);
    return false;
}

bool MainWindow::startCanvas(const CanvasPlan& plan) {
    const QColor& ground = plan.background;
    const auto begin = [&](QDDrawView& view) {
        view.clearWithColor(ground.alpha() == 0 ? ESColor() : ESColor(ground), false);
        return !plan.paintsApart || ground.alpha() < 255 ||
               (view.layers().setSettings(0, {.name = tr("Paper")}) &&
                view.layers().add(1, {.name = tr("Paint")}));
    };
    return replaceCanvas(plan.size, 8, begin, {.path = {}, .plan = plan, .copy = _autosave->takeName()});
}

void MainWindow::clearCanvas() {
    finishEdits();
    _document.clear();
}

void MainWindow::newCanvas() {
    finishEdits();
    if (!mayDiscard())
        return;
    NewCanvasDialog dialog(_document.plan(), this);
    while (dialog.exec() == QDialog::Accepted && !startCanvas(dialog.plan())) {
    }
}

// ---- Files

bool MainWindow::openImage(const QString& path) {
    const ReadPicture read = readBusily(path, readPictureFile);
    if (!read.fault.isEmpty())
        return tellFault(read.fault);
    const bool opened = replaceCanvas(read.picture.size, depthOf(read.picture),
                                      [&](QDDrawView& view) { return showLayers(read.picture, view); },
                                      {.path = QFileInfo(path).absoluteFilePath(),
                                       .plan = {read.picture.size, paperOf(read.picture)},
                                       .copy = _autosave->takeName(),
                                       .isPart = read.isPart});
    if (opened)
        _recent->add(path);
    if (opened && !read.warning.isEmpty())
        _prompts.tell(this, read.warning);
    return opened;
}

bool MainWindow::openPicture(const QImage& image, const Document::Origin& origin) {
    return replaceCanvas(
        image.size(), 8,
        [&](QDDrawView& view) { return view.setImageInBufferRect(image, QRectF(image.rect())); }, origin);
}

// From its history, or, where that cannot be had, from its copy.
bool MainWindow::recover(const LeftPicture& picture) {
    if (picture.history.isEmpty())
        return openCopy(picture);
    QString problem;
    const bool recovered = replaceCanvas(
        picture.size, picture.depth,
        [&](QDDrawView& view) { return view.recoverHistory(picture.history, &problem); },
        {.path = picture.path,
         .plan = {picture.size, picture.background.isValid() ? picture.background : QColor(Qt::white)},
         .copy = _autosave->takeName(picture.copy),
         .isUnsaved = true,
         .hasHistory = true});
    if (recovered || problem.isEmpty())
        return recovered;
    return QFileInfo::exists(picture.copy)
               ? openCopy(picture)
               : tellFault(tr("The picture cannot be recovered: %1.").arg(problem));
}

bool MainWindow::openCopy(const LeftPicture& picture) {
    const ReadImage read = readBusily(picture.copy, readImageFile);
    const QColor ground = picture.background.isValid() ? picture.background
                          : isOpaque(read.image)       ? QColor(Qt::white)
                                                       : QColor(Qt::transparent);
    return read.fault.isEmpty() ? openPicture(read.image, {.path = picture.path,
                                                           .plan = {read.image.size(), ground},
                                                           .copy = _autosave->takeName(picture.copy),
                                                           .isUnsaved = true})
                                : tellFault(read.fault);
}

bool MainWindow::offerLeftPictures() {
    const QList<LeftPicture> pictures = _left.list();
    if (pictures.isEmpty())
        return false;
    const auto chosen = _prompts.pickLeft(this, _left, pictures);
    finishEdits();
    if (chosen && mayDiscard())
        recover(*chosen);
    return true;
}

bool MainWindow::placeImage(const QString& path) {
    if (!view())
        return false;
    const ReadImage read = readBusily(path, readImageFile);
    if (!read.fault.isEmpty())
        return tellFault(read.fault);
    return placePicture(read.image);
}

bool MainWindow::saveTo(const QString& path) {
    finishEdits();
    const QString fault = [&] {
        const BusyCursor busy;
        return _document.saveTo(path);
    }();
    if (!fault.isEmpty())
        return tellFault(fault);
    _recent->add(path);
    statusBar()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(path)), kMessageTime);
    return true;
}

void MainWindow::open() {
    finishEdits();
    if (!mayDiscard())
        return;
    const QStringList paths = _prompts.pickImages(this, tr("Open Image"), false);
    if (!paths.isEmpty())
        openImage(paths.first());
}

void MainWindow::place() {
    finishEdits();
    const QStringList paths = _prompts.pickImages(this, tr("Place Image"), false);
    if (!paths.isEmpty())
        placeImage(paths.first());
}

// Once a picture: it stays whole as long as it is open.
bool MainWindow::saveAsking(const QString& path) {
    const Document::Loss loss = _document.lossIn(path);
    if (loss != Document::Loss::none && !_lossesKnown.contains(loss)) {
        switch (_prompts.askLoss(this, loss)) {
            case LossAnswer::cancel:
                return false;
            case LossAnswer::keep:
                return saveAs(Document::withoutLoss(path, loss));
            case LossAnswer::lose:
                _lossesKnown.insert(loss);
        }
    }
    return saveTo(path);
}

bool MainWindow::save() {
    return _document.hasFile() ? saveAsking(_document.path()) : saveAs();
}

bool MainWindow::saveAs(const QString& suggested) {
    finishEdits();
    const QString path =
        _prompts.pickSaveName(this, suggested.isEmpty() ? _document.suggestedPath() : suggested);
    return !path.isEmpty() && saveAsking(path);
}

bool MainWindow::mayDiscard() {
    finishEdits();
    if (!isUnsaved())
        return true;
    switch (_prompts.askUnsaved(this, _document.name())) {
        case UnsavedAnswer::save:
            return save();
        case UnsavedAnswer::discard:
            return true;
        case UnsavedAnswer::cancel:
            break;
    }
    return false;
}

}  // namespace dabcanvas::dabpainter
