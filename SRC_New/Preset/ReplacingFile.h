// SPDX-License-Identifier: MIT
#pragma once

#include <QSaveFile>
#include <QString>
#include <cstdio>

#include "Maths/Export.h"

/// A file that takes its path's place only when all of it is on the disk; until then, and when anything fails, whatever
/// stood there stays. Where the system has files without a name, as Linux does, not even a killed writer leaves a
/// trace.
///
/// Path     links are followed to the file they name. Its permissions stay; what is no plain file is refused.
/// Thread   one at a time.
/// Errors   never throws: no file, or false, with problem() saying why in words.
class ReplacingFile {
public:
    explicit ReplacingFile(const QString& path);
    ~ReplacingFile();  ///< without commit(), nothing remains of it
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    /// To write to, still this object's; null when it cannot be made.
    std::FILE* file() const { return _file; }
    bool commit();  ///< closes it and puts it in place; once
    const QString& problem() const { return _problem; }

private:
    bool close();
    bool fail(const QString& problem);

    QSaveFile _place;
    std::FILE* _file = nullptr;
    QString _problem;
};
