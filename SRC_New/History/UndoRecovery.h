// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>
#include <functional>

#include "Maths/Export.h"

namespace dabcanvas {

/// What a dead process left of a canvas.
struct RecoverableHistory {
    QString id;
    QString path;         ///< of its folder
    QSize size;           ///< of the canvas that it can be opened in; empty when it cannot be read
    int canvasDepth = 8;  ///< of that canvas, see SurfaceOptions
    /// When the last step, undo or redo was written, or what was painted after it.
    QDateTime lastChange;
    int steps = 0;  ///< pictures that can be had: the current step, what can be undone, what can be redone
    /// There are other steps than the one that it began with, or the canvas is none of them.
    bool isChanged = false;
    qint64 bytes = 0;
    QString words;  ///< what its host has said of it, see QDDrawCanvas::setRecoveryWords()
    /// The canvas as it was last, its longer side up to 256 pixels: premultiplied RGBA. Null when it was lost.
    QImage thumbnail;
};

/// The undo histories that outlived their process: each keeps itself in a folder of its own while it is used, is
/// removed when its canvas lets go of it in order, and is left there when the process dies.
///
/// Units    bytes on disk; pixels of the canvas.
/// Files    in folder(), which several processes may share; only folders of this user and machine are looked at, and
///          nothing is removed but those whose process is dead. What else lies there stays.
/// Order    by when a history was used, not by the clock, which may have been set back meanwhile.
/// Thread   any.
/// Errors   never throws. false, and the reason in `problem`; a history that cannot be read is not listed.
class DABCANVAS_CANVAS_API UndoRecovery {
public:
    /// Where histories are kept from now on; an empty path, as at first, is "recovery" in the application's local data
    /// (QStandardPaths::AppLocalDataLocation).
    static QString folder();
    static void setFolder(const QString& path);

    /// What dead processes left, the one used last first. Reads as much as it takes to tell and to paint thumbnails;
    /// that every tile is whole shows only when a history is opened.
    static QList<RecoverableHistory> list();
    /// False when it lives, is being opened, or is not there.
    static bool discard(const QString& id, QString* problem = nullptr);

    /// Whether what histories write waits for the disk from now on, so that it outlives the machine's end, too; off at
    /// first, when it outlives the process's.
    static bool syncs();
    static void setSyncs(bool syncs);

    /// The most that all histories in folder() take, 8 GiB at first.
    static qint64 byteLimit();
    static void setByteLimit(qint64 bytes);
    /// Discards what was used longest ago, and is dead, until the limit is kept. `mayGo` hears of each one before, and
    /// keeps it by false. Returns how many went. What the dead left that holds neither step nor canvas goes unheard.
    static int makeRoom(const std::function<bool(const RecoverableHistory&)>& mayGo = {});
};

}  // namespace dabcanvas
