// SPDX-License-Identifier: MIT
#include "Documents/Autosave.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <utility>

#include "Canvas/QDDrawCanvas.h"
#include "Documents/Document.h"
#include "OutputFile.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kIdle = 5000, kMost = 60000;      // milliseconds
constexpr int kFastest = 85;                    // of PNG's encoder: it is read once, if ever
constexpr qint64 kMostBytes = qint64{1} << 30;  // of all copies together

// The fault, or nothing.
QString writeCopy(const QImage& picture, const QString& path, const QString& words) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setQuality(kFastest);
    writer.setText(QString::fromLatin1(kWordsKey), words);
    if (!writer.write(picture))
        return writer.errorString();
    OutputFile file(path);
    return file.write(bytes) ? QString() : file.errorString();
}

}  // namespace

Autosave::Autosave(Document& document, const QString& folder, QObject* parent)
    : QObject(parent), _document(document), _left(folder) {
    QDir().mkpath(folder);
    _left.makeRoom(kMostBytes);
    _writing.setMaxThreadCount(1);
    _idle.setSingleShot(true);
    _most.setSingleShot(true);
    setDelays(kIdle, kMost);
    connect(&_idle, &QTimer::timeout, this, &Autosave::write);
    connect(&_most, &QTimer::timeout, this, &Autosave::write);
    connect(&document, &Document::began, this, &Autosave::begin);
    connect(&document, &Document::pictureChanged, this, &Autosave::noteChange);
    connect(&document, &Document::saved, this, &Autosave::removeCopy);
}

Autosave::~Autosave() {
    removeCopy();
}

void Autosave::setDelays(int idleMilliseconds, int mostMilliseconds) {
    _idle.setInterval(idleMilliseconds);
    _most.setInterval(mostMilliseconds);
}

QString Autosave::takeName(const QString& left) {
    _next = {};  // of one that did not come
    _next.path = left.isEmpty() ? _left.newCopy() : left;
    _next.lock = LeftPictures::claim(_next.path);
    return _next.lock ? _next.path : QString();
}

void Autosave::begin() {
    if (_copy.path != _next.path)
        removeCopy();
    _copy = std::exchange(_next, {});
    if (_document.isModified())
        noteChange();
}

void Autosave::noteChange() {
    if (!_most.isActive())
        _most.start();
    _idle.start();
}

void Autosave::write() {
    _idle.stop();
    _most.stop();
    if (!_document.canvas() || !_copy.lock)
        return;
    if (!_document.isModified())
        return removeCopy();
    if (_writing.activeThreadCount() > 0)
        return noteChange();  // the one before is on its way still
    _writing.start([this, picture = _document.canvas()->displayImage(), path = _copy.path,
                    words = _document.canvas()->recoveryWords()] {
        const QString fault = writeCopy(picture, path, words);
        QMetaObject::invokeMethod(this, [this, path, fault] { written(path, fault); });
    });
}

void Autosave::written(const QString& path, const QString& fault) {
    const bool hadFailed = std::exchange(_hasFailed, !fault.isEmpty());
    if (_hasFailed && !hadFailed)
        emit failed(tr("\"%1\" cannot be written: %2.").arg(QDir::toNativeSeparators(path), fault));
}

// Of a picture that nobody needs any more; one that is being written comes before.
void Autosave::removeCopy() {
    _idle.stop();
    _most.stop();
    wait();
    if (_copy.lock)
        QFile::remove(_copy.path);
}

}  // namespace dabcanvas::dabpainter
