// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <memory>

namespace dabcanvas::dabpainter {

// The folder of one run of the application, where its undo steps lie. It goes when the run ends as it should; what a
// killed one leaves stays until the user says that it may go.
//
// Errors   never throws; a run without a folder has an empty path.
class SessionFolder {
public:
    // A new one in `parent`, which is made.
    explicit SessionFolder(const QString& parent);
    ~SessionFolder();
    SessionFolder(const SessionFolder&) = delete;
    SessionFolder& operator=(const SessionFolder&) = delete;

    // Where a canvas's history goes, which makes it.
    QString pictures() const;

    struct Abandoned {
        QStringList folders;
        qint64 bytes = 0;
    };
    // What dead runs left in `parent`. Folders without a picture are removed at once.
    static Abandoned abandoned(const QString& parent);

private:
    QString _path;
    std::unique_ptr<QLockFile> _lock;
};

}  // namespace dabcanvas::dabpainter
