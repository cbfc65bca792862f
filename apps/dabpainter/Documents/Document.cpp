// SPDX-License-Identifier: MIT
#include "Documents/Document.h"

#include <QDir>
#include <QFileInfo>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/ImageFiles.h"
#include "Documents/LeftPictures.h"
#include "History/ImagesUndoManager.h"
#include "PictureKinds.h"

namespace dabcanvas::dabpainter {

namespace {

bool isWritten(const QString& path) {
    return keepsLayers(path) || pictureKindRefusal(path).isEmpty();
}

ESColor colorOf(const QColor& background) {
    return background.alpha() == 0 ? ESColor() : ESColor(background);
}

}  // namespace

void Document::begin(QDDrawCanvas& canvas, const Origin& origin) {
    _canvas = &canvas;
    _origin = origin;
    setUndoSteps(_undoSteps);
    if (!origin.hasHistory) {
        canvas.resetUndoManager();
        if (!canvas.setKeepsForRecovery(true))
            emit notKept();
    }
    canvas.setModified(origin.isUnsaved);
    canvas.setAutoMark(true);
    describe();
    emit began();
    emit changed();
}

// For whoever finds its history.
void Document::describe() {
    _canvas->setRecoveryWords(wordsOf(_origin));
}

void Document::setUndoSteps(int steps) {
    _undoSteps = steps;
    if (_canvas)
        _canvas->undoManager().setUndoStepCount(static_cast<unsigned>(steps));
}

QString Document::name() const {
    return path().isEmpty() ? tr("Untitled") : QFileInfo(path()).fileName();
}

bool Document::isModified() const {
    return _canvas && _canvas->isModified();
}

bool Document::hasFile() const {
    return !path().isEmpty() && !_origin.isPart && isWritten(path());
}

QString Document::suggestedPath() const {
    if (hasFile())
        return path();
    const bool isLayered = _canvas && _canvas->layers().count() > 1;
    const QFileInfo file(path().isEmpty() ? tr("Untitled") : path());
    const QString named = file.completeBaseName() + QLatin1Char('.') +
                          (isLayered ? savedSuffixes().first() : QStringLiteral("png"));
    return path().isEmpty() ? named : file.dir().filePath(named);
}

QString Document::suffixOf(const QString& path) const {
    const QString own = QFileInfo(path).suffix(), present = QFileInfo(this->path()).suffix();
    return !own.isEmpty() ? own : hasFile() && !present.isEmpty() ? present : QStringLiteral("png");
}

Document::Loss Document::lossIn(const QString& path) const {
    const QString kind = QLatin1Char('.') + suffixOf(path);
    if (!_canvas || keepsLayers(kind))
        return Loss::none;
    if (_canvas->layers().count() > 1)
        return Loss::layers;
    return keepsAlpha(kind) || isOpaque(_canvas->displayImage()) ? Loss::none : Loss::transparency;
}

QString Document::withoutLoss(const QString& path, Loss loss) {
    const QFileInfo file(path);
    const QString suffix = loss == Loss::layers ? savedSuffixes().first() : QStringLiteral("png");
    return file.dir().filePath(file.completeBaseName() + QLatin1Char('.') + suffix);
}

QString Document::saveTo(const QString& path) {
    LayeredPicture picture;
    const QString suffix = suffixOf(path);
    if (!_canvas)
        return tr("There is no picture to save.");
    if (!keepsLayers(QLatin1Char('.') + suffix))
        picture.merged = _canvas->layers().flattened();
    else if (!readLayers(*_canvas, picture))
        picture.merged = {};
    picture.paper = plan().background;
    if (const QString fault = writePictureFile(path, suffix, picture); !fault.isEmpty())
        return fault;
    _origin.path = QFileInfo(path).absoluteFilePath();
    _origin.isPart = false;
    _canvas->setModified(false);
    describe();
    emit saved();
    emit changed();
    return {};
}

void Document::clear() {
    if (!_canvas)
        return;
    const bool isLowest = _canvas->layers().active() == 0;
    _canvas->clearWithColor(isLowest ? colorOf(plan().background) : ESColor(), true);
}

}  // namespace dabcanvas::dabpainter
