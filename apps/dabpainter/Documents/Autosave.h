// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <memory>

#include "Documents/LeftPictures.h"

namespace dabcanvas::dabpainter {

class Document;

// Copies what of a document is unsaved into a file of its own: a minute after it changed at the latest, and as soon as nobody
// has painted for a while. The history alone brings a picture back after a crash; the copy does where its disk was full or its
// files are damaged, and any program can show it.
//
// Files    the copy goes with the document: when it is saved, undone to what is saved, replaced or closed in order. A new
//          one takes the old one's place when it is whole.
// Thread   the application's main thread; encoding and writing in another.
class Autosave : public QObject {
    Q_OBJECT

public:
    Autosave(Document& document, const QString& folder, QObject* parent = nullptr);
    ~Autosave() override;

    // For a picture that comes next: of its own, or the one that a dead run left of it.
    QString takeName(const QString& left = {});
    // 0: at once, with the event loop.
    void setDelays(int idleMilliseconds, int mostMilliseconds);
    void wait() { _writing.waitForDone(); }

signals:
    void failed(const QString& fault);  // once, until it succeeds

private:
    void begin();
    void noteChange();
    void write();
    void written(const QString& path, const QString& fault);
    void removeCopy();

    Document& _document;
    const LeftPictures _left;
    struct Copy {
        QString path;
        std::unique_ptr<QLockFile> lock;
    };
    Copy _copy, _next;
    QTimer _idle, _most;
    QThreadPool _writing;
    bool _hasFailed = false;
};

}  // namespace dabcanvas::dabpainter
