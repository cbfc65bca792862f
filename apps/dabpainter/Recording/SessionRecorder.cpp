// SPDX-License-Identifier: MIT
#include "Recording/SessionRecorder.h"

#include <QSaveFile>
#include <algorithm>

#include "Recording/CanvasRecorder.h"
#include "Recording/RecordingWriter.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr qint64 kPart = 1 << 20;  // bytes that are copied at once

}  // namespace

SessionRecorder::SessionRecorder() = default;

SessionRecorder::~SessionRecorder() {
    stop();
}

QString SessionRecorder::start(QDDrawCanvas& canvas) {
    stop();
    _writer.reset();
    _file = std::make_shared<QTemporaryFile>();
    if (!_file->open())
        return tr("The recording cannot be written: %1.").arg(_file->errorString());
    _writer = std::make_unique<RecordingWriter>(*_file);
    _recorder = CanvasRecorder::start(canvas, *_writer);
    return _recorder ? QString() : tr("The canvas cannot be recorded; the log says why.");
}

void SessionRecorder::stop() {
    _recorder.reset();
    settle();
}

void SessionRecorder::settle() {
    if (_recorder)
        _recorder->flush();
    if (_writer) {
        _writer->finish();
        _file->flush();
    }
}

QString SessionRecorder::fault() const {
    if (!_writer)
        return tr("Nothing was recorded.");
    const QString problem = _writer->problem().isEmpty() && _file->error() != QFileDevice::NoError
                                ? _file->errorString()
                                : _writer->problem();
    return problem.isEmpty() ? QString() : tr("The recording could not be written down: %1.").arg(problem);
}

SessionRecorder::Recorded SessionRecorder::recorded() {
    settle();
    return fault().isEmpty() ? Recorded{_file, _file->fileName(), _file->size()} : Recorded();
}

QString SessionRecorder::exportTo(const QString& path) {
    const Recorded all = recorded();
    if (!all.file)
        return fault();
    QFile from(all.path);
    QSaveFile to(path);
    bool isGood = from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly);
    for (qint64 left = all.bytes; isGood && left > 0;) {
        const QByteArray part = from.read(std::min(left, kPart));
        isGood = !part.isEmpty() && to.write(part) == part.size();
        left -= part.size();
    }
    return isGood && to.flush() && to.commit()
               ? QString()
               : tr("\"%1\" cannot be saved: %2.")
                     .arg(path, to.error() != QFileDevice::NoError ? to.errorString() : from.errorString());
}

}  // namespace dabcanvas::dabpainter
