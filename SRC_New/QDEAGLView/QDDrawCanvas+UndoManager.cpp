// SPDX-License-Identifier: MIT
// Undo and redo: whole pictures of the canvas, kept by an ImagesUndoManager.
#include <chrono>
#include <cstdio>
#include <cstring>
#include <new>
#include <utility>

#include "History/ImagesUndoManager.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

namespace {

// Seconds of a clock that nobody sets back, which would hold steps back until it had caught up.
double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Null when memory is short.
QByteArray bytesOf(qsizetype size) {
    try {
        return QByteArray(size, '\0');
    } catch (const std::bad_alloc&) {
        return {};
    }
}

void tellNoMemory(int line) {
    std::printf("创建数据失败(%s:%d)!", "SRC_New/QDEAGLView/QDDrawView", line);
}

}  // namespace

// Notes whether undo and redo are possible, and tells the delegate of what has changed meanwhile.
struct QDDrawCanvas::UndoStatus {
    explicit UndoStatus(QDDrawCanvas& canvas)
        : _canvas(canvas), _canUndo(canvas.canUndo()), _canRedo(canvas.canRedo()) {}
    ~UndoStatus() {
        if (_canvas._delegate != nullptr && _canvas.canUndo() != _canUndo) {
            _canvas._delegate->drawViewDidUpdateUndoStatus(_canvas, !_canUndo);
        }
        if (_canvas._delegate != nullptr && _canvas.canRedo() != _canRedo) {
            _canvas._delegate->drawViewDidUpdateRedoStatus(_canvas, !_canRedo);
        }
    }
    UndoStatus(const UndoStatus&) = delete;
    UndoStatus& operator=(const UndoStatus&) = delete;

private:
    QDDrawCanvas& _canvas;
    bool _canUndo, _canRedo;
};

qsizetype QDDrawCanvas::snapshotBytes() const {
    return qsizetype{_esContext->backingWidth()} * _esContext->backingHeight() * 4;
}

// The canvas's pixels, bottom row first; null, with the fixed message, when there is no memory for them.
QByteArray QDDrawCanvas::snapshot(int line) {
    QByteArray data = bytesOf(snapshotBytes());
    if (data.isNull()) {
        tellNoMemory(line);
        return {};
    }
    const QRectF whole(QPointF(0, 0), bufferSize());
    if (!readDataBufferRect(reinterpret_cast<unsigned char*>(data.data()), whole)) {
        return {};
    }
    return data;
}

// Brings curImageData() up to the canvas; only what changed since is read. Empty without the memory.
void QDDrawCanvas::refreshImageData(int line) {
    const QRect whole(QPoint(0, 0), bufferSize().toSize());
    const QRect stale = _imageStale.toAlignedRect() & whole;
    const auto areaOf = [](const QRect& rect) { return qint64{rect.width()} * rect.height(); };
    if (_curImageData.size() == snapshotBytes() && areaOf(stale) <= areaOf(whole) / 2) {
        if (stale.isEmpty() || refreshImageData(stale)) {
            _imageStale = QRectF();
            _imageIsGiven = false;
            return;
        }
    }
    _curImageData = {};  // before there is a second one
    takeImageData(snapshot(line));
}

bool QDDrawCanvas::refreshImageData(const QRect& part) {
    const qsizetype rowBytes = qsizetype{part.width()} * 4;
    QByteArray rows = bytesOf(rowBytes * part.height());
    if (rows.isNull() || !readDataBufferRect(reinterpret_cast<unsigned char*>(rows.data()), part)) {
        return false;
    }
    try {
        _curImageData.detach();  // from the history, which keeps it as a step
    } catch (const std::bad_alloc&) {
        return false;
    }
    const qsizetype bottom = bufferSize().toSize().height() - part.y() - part.height();
    char* to = _curImageData.data() + (bottom * _esContext->backingWidth() + part.x()) * 4;
    for (int row = 0; row < part.height(); ++row, to += qsizetype{_esContext->backingWidth()} * 4) {
        std::memcpy(to, rows.constData() + row * rowBytes, static_cast<std::size_t>(rowBytes));
    }
    return true;
}

// The canvas as it is.
void QDDrawCanvas::takeImageData(const QByteArray& data) {
    _curImageData = data;
    _imageStale = QRectF();
    _imageIsGiven = false;
}

// Any other picture: sketches are taken back to it until the canvas is recorded the next time.
void QDDrawCanvas::setCurImageData(const QByteArray& data) {
    _curImageData = data;
    _imageStale = QRectF(QPointF(0, 0), bufferSize());
    _imageIsGiven = data.size() == snapshotBytes();
}

void QDDrawCanvas::setEdited(bool edited) {
    _edited = _editedBefore = edited;
}

// The history begins with the canvas as it was made. That was transparent, so nothing need be read, and a canvas whose
// history nobody asks for has none.
ImagesUndoManager& QDDrawCanvas::history() {
    if (_undoManager == nullptr) {
        const QByteArray blank = bytesOf(snapshotBytes());
        if (blank.isNull()) {
            tellNoMemory(kLoadLine);
            _undoManager = ImagesUndoManager::init();
        } else {
            _undoManager = ImagesUndoManager::initWithCurrentImageOfData(blank);
            _undoManager->resetWithImageDataOfCurrentItem(blank);
        }
        if (!_isSketch) {  // which has yet to be taken back
            setCurImageData(blank);
            _imageIsGiven = false;
        }
        _undoManager->setFilePathExtension({});  // raw pixels
    }
    return *_undoManager;
}

QByteArray QDDrawCanvas::loadUndoManager() {
    history().setFilePathExtension({});
    _markTimeInterval = 0;
    _preTimeInterval = now();
    return _curImageData;
}

QByteArray QDDrawCanvas::resetUndoManager() {
    _leafDrawView->finishPending();
    settleSketch();
    ImagesUndoManager& images = history();
    const UndoStatus status(*this);
    const QByteArray data = snapshot(kResetLine);
    if (data.isNull()) {
        images.resetWithImageDataOfCurrentItem(images.currentImageDataOfItem());
        return {};
    }
    takeImageData(data);
    setEdited(false);
    images.resetWithImageDataOfCurrentItem(data);
    return data;
}

QByteArray QDDrawCanvas::markAction() {
    _leafDrawView->finishPending();
    settleSketch();
    const double time = now();
    if (!_edited || (_autoMark && time - _preTimeInterval < static_cast<double>(_markTimeInterval))) {
        return {};
    }
    ImagesUndoManager& images = history();
    _preTimeInterval = time;
    const UndoStatus status(*this);
    QByteArray data = snapshot(kMarkLine);
    if (data.isNull()) {
        qCWarning(lcDabcanvas, "Create Buffer Error!");
        return {};
    }
    takeImageData(data);
    setEdited(false);
    images.addItemWithImageData(data);
    return data;
}

// The mark of a step that has just been drawn; null where none is to be recorded.
QByteArray QDDrawCanvas::autoMarked() {
    return _autoMark ? markAction() : QByteArray();
}

QImage QDDrawCanvas::currentImage() {
    return _curImageData.isEmpty()
               ? image()
               : ESContext::imageWithData(reinterpret_cast<const unsigned char*>(_curImageData.constData()),
                                          bufferSize());
}

bool QDDrawCanvas::canUndo() const {
    return _undoManager != nullptr && _undoManager->canUndo();
}

bool QDDrawCanvas::canRedo() const {
    return _undoManager != nullptr && _undoManager->canRedo();
}

QByteArray QDDrawCanvas::undo() {
    _leafDrawView->finishPending();
    return _stroke != Stroke::drawing && canUndo() ? step(&ImagesUndoManager::undo, &ImagesUndoManager::redo)
                                                   : QByteArray();
}

QByteArray QDDrawCanvas::redo() {
    _leafDrawView->finishPending();
    return _stroke != Stroke::drawing && canRedo() ? step(&ImagesUndoManager::redo, &ImagesUndoManager::undo)
                                                   : QByteArray();
}

QByteArray QDDrawCanvas::step(HistoryStep go, HistoryStep back) {
    const UndoStatus status(*this);
    if (!(_undoManager.get()->*go)()) {
        return {};
    }
    QString problem;
    const QByteArray data = _undoManager->currentImageDataOfItem(&problem);
    if (data.isNull() && _undoManager->hasCurrentImage()) {  // but no memory for it
        if (!problem.isEmpty()) {
            qCWarning(lcDabcanvas, "%ls", qUtf16Printable(problem));
        }
        (_undoManager.get()->*back)();
        return {};
    }
    if (data.size() == snapshotBytes()) {
        _curImageData = data;
        const QSizeF size = bufferSize();
        setData(data, size.toSize(), QRectF(QPointF(0, 0), size), true);
        takeImageData(data);  // dabs that were finished on the way may have changed it
        if (isSmudgeType()) {
            updateSmudgeBGTexture();
        }
    } else {
        qCWarning(
            lcDabcanvas, "%ls; the canvas is cleared",
            qUtf16Printable(problem.isEmpty() ? QStringLiteral("An undo step has no image of this canvas")
                                              : problem));
        const bool marks = std::exchange(_autoMark, false);  // clearing is no step of its own here
        clear();
        _autoMark = marks;
    }
    return _curImageData;
}
