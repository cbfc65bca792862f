// SPDX-License-Identifier: MIT
// The pictures of runs that ended unexpectedly, each with its history, a copy of it, or both (Autosave.h).
//
// Files    copies lie in a folder that several runs share; whose lock can be had is nobody's any more. Histories lie where
//          UndoRecovery has them.
// Thread   the application's main thread.
// Errors   never throws; what cannot be read is not listed.
#pragma once

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QLockFile>
#include <QString>
#include <memory>

#include "Documents/Document.h"

namespace dabcanvas::dabpainter {

struct LeftPicture {
    QString history;  // its id, see UndoRecovery; empty: only the copy is left
    QString copy;     // a PNG file; empty, or not there: only the history is left
    QString path;     // of the file that it went to; empty: none
    QColor background;
    QSize size;  // pixels
    int depth = 8;
    int steps = 0;  // that can be undone or redone
    qint64 bytes = 0;
    QDateTime lastChange;
    QImage thumbnail;
};

// What a history, or a copy, is to tell of a picture.
QString wordsOf(const Document::Origin& origin);
// Under this key a copy has them.
extern const char kWordsKey[];

class LeftPictures {
public:
    explicit LeftPictures(QString folder) : _folder(std::move(folder)) {}

    // The one painted last first. What dead runs left that holds nothing but what it began with goes unheard.
    QList<LeftPicture> list() const;
    bool discard(const LeftPicture& picture) const;

    // ---- Copies
    // Of the picture that is painted now; null when somebody has it.
    static std::unique_ptr<QLockFile> claim(const QString& copy);
    QString newCopy() const;
    // The oldest that no history belongs to go, as many as it takes for all to have at most so many bytes.
    void makeRoom(qint64 mostBytes) const;

private:
    QList<LeftPicture> copies() const;
    QString _folder;
};

}  // namespace dabcanvas::dabpainter
