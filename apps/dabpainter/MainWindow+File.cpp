// SPDX-License-Identifier: MIT
// The canvas as a file: new, open, place, save, and what is unsaved.
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QStatusBar>

#include "BrushStorage.h"
#include "CanvasPointer.h"
#include "CanvasViewport.h"
#include "ImageFiles.h"
#include "MainWindow.h"
#include "PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kSurfaceKey[] = "canvas/surface";
constexpr int kMessageTime = 5000;  // milliseconds

// Shows that the application is at work.
class BusyCursor {
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

ReadImage readBusily(const QString& path) {
    const BusyCursor busy;
    return readImageFile(path);
}

ESColor colorOf(const QColor& background) {
    return background.alpha() == 0 ? ESColor() : ESColor(background);
}

bool isPng(const QString& path) {
    return QFileInfo(path).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0;
}

}  // namespace

// ---- The canvas

// The present picture stays where it is: moving it could fail for want of memory.
void MainWindow::addSurfaces(QMenu& menu) {
    auto* group = new QActionGroup(&menu);
    const struct {
        QString text;
        const char* name;
    } rows[] = {{tr("&Automatic"), "auto"}, {tr("&Graphics Card"), "gpu"}, {tr("&Processor"), "processor"}};
    for (const auto& row : rows) {
        QAction* action = group->addAction(row.text);
        action->setCheckable(true);
        action->setChecked(surfaceKind() == surfaceKindOf(row.name));
        connect(action, &QAction::triggered, this, [this, name = row.name] {
            _settings.setValue(QLatin1String(kSurfaceKey), QLatin1String(name));
            statusBar()->showMessage(tr("Holds for pictures that are made or opened from now on"),
                                     kMessageTime);
        });
        menu.addAction(action);
    }
}

SurfaceKind MainWindow::surfaceKind() const {
    const QString name = _settings.value(QLatin1String(kSurfaceKey)).toString();
    return surfaceKindOf(name.toStdString()).value_or(SurfaceKind::automatic);
}

bool MainWindow::replaceCanvas(QSize size, const std::function<bool(QDDrawView&)>& paint) {
    const QRectF frame(QPointF(0, 0), QSizeF(size));
    const SurfaceKind kind = surfaceKind();
    std::unique_ptr<QDDrawView> made = QDDrawView::initWithFrame(frame, nullptr, {.kind = kind});
    if (!made && kind != SurfaceKind::automatic) {  // a setting must not keep anybody from painting
        made = QDDrawView::initWithFrame(frame);
        statusBar()->showMessage(tr("The graphics card cannot paint this picture"), kMessageTime);
    }
    if (!made || !paint(*made)) {
        _prompts.tell(this, tr("A canvas of %1 × %2 pixels cannot be had from this graphics driver.")
                                .arg(size.width())
                                .arg(size.height()));
        return false;
    }
    _brush.attach(made.get());
    if (!_brushRead) {
        _brushRead = true;
        defaultColors();  // of a first start
        readBrush(_settings, _brush);
        _presets->readState(_settings);
        // What was read need not be written; a first start's colours are in no file yet.
        _unwritten = {BrushKey::renderColor, BrushKey::backRenderColor};
    }
    _viewport->setView(std::move(made));
    _pointer->watchView();
    startHistory();
    view()->setEnableRecogition(_shapes->isChecked());
    _driverLabel->setText(view()->rendererName());
    showCanvasFacts();
    return true;
}

// An opaque picture has no holes: what is erased of it shows what it was painted on.
void MainWindow::setPlan(const CanvasPlan& plan) {
    _plan = plan;
    _brush.setPaper(plan.background.alpha() == 255 ? plan.background : QColor());
}

bool MainWindow::startCanvas(const CanvasPlan& plan) {
    const bool made = replaceCanvas(plan.size, [&](QDDrawView& view) {
        view.clearWithColor(colorOf(plan.background), false);
        return true;
    });
    if (!made)
        return false;
    setPlan(plan);
    setPath(QString());
    markSaved();  // there is nothing on it that could be lost
    return true;
}

void MainWindow::clearCanvas() {
    if (!view() || !_pointer->isIdle())
        return;
    view()->clearWithColor(colorOf(_plan.background), true);
    markChanged();
}

void MainWindow::newCanvas() {
    if (!_pointer->isIdle() || !mayDiscard())
        return;
    NewCanvasDialog dialog(_plan, this);
    while (dialog.exec() == QDialog::Accepted && !startCanvas(dialog.plan())) {
    }
}

// ---- Files

bool MainWindow::openImage(const QString& path) {
    const ReadImage read = readBusily(path);
    if (!read.fault.isEmpty()) {
        _prompts.tell(this, read.fault);
        return false;
    }
    const bool opened = replaceCanvas(read.image.size(), [&](QDDrawView& view) {
        return view.setImageInBufferRect(read.image, QRectF(read.image.rect()));
    });
    if (!opened)
        return false;
    setPlan({read.image.size(), isOpaque(read.image) ? Qt::white : Qt::transparent});
    setPath(QFileInfo(path).absoluteFilePath());
    markSaved();
    return true;
}

bool MainWindow::placeImage(const QString& path) {
    if (!view())
        return false;
    const ReadImage read = readBusily(path);
    if (!read.fault.isEmpty()) {
        _prompts.tell(this, read.fault);
        return false;
    }
    const QSizeF canvas = view()->bufferSize();
    QSizeF size = read.image.size();
    if (size.width() > canvas.width() || size.height() > canvas.height())
        size.scale(canvas, Qt::KeepAspectRatio);
    const QPointF corner((canvas.width() - size.width()) / 2, (canvas.height() - size.height()) / 2);
    // On whole pixels, so that a picture of its own size stays sharp.
    const QRect rect(corner.toPoint(), size.toSize().expandedTo(QSize(1, 1)));
    const QSizeF scale = view()->scale();
    const QRectF inView(rect.x() * scale.width(), rect.y() * scale.height(), rect.width() * scale.width(),
                        rect.height() * scale.height());
    if (!view()->drawImage(read.image, inView)) {
        _prompts.tell(this, tr("The image could not be placed; the log says why."));
        return false;
    }
    markChanged();
    return true;
}

bool MainWindow::saveTo(const QString& path) {
    if (!view() || !_pointer->isIdle())
        return false;
    const QString fault = [&] {
        const BusyCursor busy;
        return writeImageFile(path, view()->image());
    }();
    if (!fault.isEmpty()) {
        _prompts.tell(this, fault);
        return false;
    }
    setPath(QFileInfo(path).absoluteFilePath());
    _savedPath = _path;
    markSaved();
    statusBar()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(path)), 3000);
    return true;
}

void MainWindow::open() {
    if (!_pointer->isIdle() || !mayDiscard())
        return;
    const QStringList paths = _prompts.pickImages(this, tr("Open Image"), false);
    if (!paths.isEmpty())
        openImage(paths.first());
}

void MainWindow::place() {
    if (!_pointer->isIdle())
        return;
    const QStringList paths = _prompts.pickImages(this, tr("Place Image"), false);
    if (!paths.isEmpty())
        placeImage(paths.first());
}

// PNG keeps everything; a picture opened from another kind is not replaced by a poorer copy before a name was asked for.
bool MainWindow::save() {
    return isPng(_path) || (!_path.isEmpty() && _path == _savedPath) ? saveTo(_path) : saveAs();
}

bool MainWindow::saveAs() {
    if (!view() || !_pointer->isIdle())
        return false;
    QString suggested = _path.isEmpty() ? tr("Untitled") : _path;
    if (!isPng(suggested) && suggested != _savedPath)
        suggested = QFileInfo(suggested).dir().filePath(QFileInfo(suggested).completeBaseName()) +
                    QStringLiteral(".png");
    const QString path = _prompts.pickSaveName(this, suggested);
    return !path.isEmpty() && saveTo(path);
}

// ---- What is unsaved

void MainWindow::setPath(const QString& path) {
    _path = path;
    _savedPath.clear();
    const QString name = path.isEmpty() ? tr("Untitled") : QFileInfo(path).fileName();
    setWindowTitle(QStringLiteral("%1[*] – Dabpainter").arg(name));
}

void MainWindow::markChanged() {
    setWindowModified(true);
}

void MainWindow::markSaved() {
    setWindowModified(false);
}

bool MainWindow::mayDiscard() {
    if (!isUnsaved())
        return true;
    const QString name = _path.isEmpty() ? tr("Untitled") : QFileInfo(_path).fileName();
    switch (_prompts.askUnsaved(this, name)) {
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
