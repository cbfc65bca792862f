// SPDX-License-Identifier: MIT
#include "Documents/Document.h"

#include <QDir>
#include <QFileInfo>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/ImageFiles.h"
#include "Documents/LeftPictures.h"
#include "History/ImagesUndoManager.h"

namespace dabcanvas::dabpainter {

namespace {

bool isPng(const QString& path) {
    return QFileInfo(path).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0;
}

ESColor colorOf(const QColor& background) {
    return background.alpha() == 0 ? ESColor() : ESColor(background);
}

}  // namespace

void Document::begin(QDDrawCanvas& canvas, const Origin& origin) {
    _canvas = &canvas;
    _origin = origin;
    _savedPath.clear();
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

bool Document::hasLayers() const {
    return _canvas && _canvas->layers().count() > 1;
}

bool Document::hasFile() const {
    return !path().isEmpty() && (isPng(path()) || path() == _savedPath);
}

QString Document::suggestedPath() const {
    if (hasFile())
        return path();
    const QFileInfo file(path().isEmpty() ? tr("Untitled") : path());
    const QString png = file.completeBaseName() + QStringLiteral(".png");
    return path().isEmpty() ? png : file.dir().filePath(png);
}

QString Document::saveTo(const QString& path) {
    if (const QString fault = writeImageFile(path, _canvas ? _canvas->layers().flattened() : QImage());
        !fault.isEmpty())
        return fault;
    _origin.path = _savedPath = QFileInfo(path).absoluteFilePath();
    _canvas->setModified(false);
    describe();
    emit saved();
    emit changed();
    return {};
}

void Document::clear() {
    if (_canvas)
        _canvas->clearWithColor(colorOf(plan().background), true);
}

}  // namespace dabcanvas::dabpainter
