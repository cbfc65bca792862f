// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include "Documents/CanvasPlan.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// The picture that is painted: its canvas, the file that it goes to, and whether anything of it is unsaved. Its history is
// written down as it is made, so that what a dead process leaves can be gone on with (LeftPictures.h).
//
// Owns     nothing of the canvas.
// Errors   faults in words, naming the file; empty for none.
class Document : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Where a canvas comes from.
    struct Origin {
        QString path;  // of the file that it shows; empty: none yet
        CanvasPlan plan;
        QString copy;  // where it is copied to from time to time; empty: nowhere
        bool isUnsaved = false;
        bool hasHistory = false;  // of another run; else what it is now is its first step
        bool isPart = false;      // the file has more than this picture
    };
    // Goes on with this canvas; until the next one, or end(), it must not be destroyed.
    void begin(QDDrawCanvas& canvas, const Origin& origin);
    void end() { _canvas = nullptr; }
    void setUndoSteps(int steps);

    QDDrawCanvas* canvas() const { return _canvas; }
    const QString& path() const { return _origin.path; }
    const CanvasPlan& plan() const { return _origin.plan; }
    QString name() const;
    bool isModified() const;

    // Whether saving goes on in path(); else under a name that is asked for first.
    bool hasFile() const;
    QString suggestedPath() const;
    // What saving there would lose.
    enum class Loss { none, layers, transparency };
    Loss lossIn(const QString& path) const;
    // A name beside it that loses nothing.
    static QString withoutLoss(const QString& path, Loss loss);
    // Without a suffix, of the kind that path() is.
    QString saveTo(const QString& path);
    // The active layer, to what it began with.
    void clear();

    // Said by whoever shows the canvas: something of it is another.
    void noteChange() { emit pictureChanged(); }

signals:
    void began();
    void changed();         // name, or what is unsaved
    void pictureChanged();  // often
    void saved();
    void notKept();  // its history cannot be written down, so that a crash would lose it

private:
    void describe();
    QString suffixOf(const QString& path) const;

    QDDrawCanvas* _canvas = nullptr;
    Origin _origin;
    int _undoSteps = 100;
};

}  // namespace dabcanvas::dabpainter
