// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <vector>

#include "Colour/GimpPalette.h"
#include "Presets/PresetLibrary.h"

namespace dabcanvas::dabpainter {

struct PaletteFile {
    QString path;
    bool own = false;
    Palette palette;  // its name is never empty
};

// The palettes of the user and of the installation. An own one stands in place of the installation's of the same file name:
// so those can be changed, and are back once the own one is deleted.
//
// Errors   a fault is a sentence for the user and empty when all went well; then nothing is half done.
class PaletteLibrary {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::PaletteLibrary)

public:
    PaletteLibrary(QString own, QStringList installed)
        : _own(std::move(own)), _installed(std::move(installed)) {}
    // In folders called "palettes", beside those of the brushes.
    static PaletteLibrary beside(const PresetFolders& brushes);

    // Looks at the folders again; what is no palette is left out.
    void refresh();
    const std::vector<PaletteFile>& all() const { return _files; }
    const PaletteFile* find(const QString& path) const;

    // These change files and then refresh. `now` becomes where the palette is to be found.
    QString add(const Palette& palette, QString& now);
    QString replace(const PaletteFile& file, const Palette& palette, QString& now);
    QString remove(const PaletteFile& file);
    QString importFile(const QString& path, QString& now);
    static QString exportTo(const Palette& palette, const QString& path);

private:
    void listFolder(const QString& folder, bool own);
    QString write(const Palette& palette, const QString& path, QString& now);
    QString freePath(const QString& name) const;

    QString _own;
    QStringList _installed;
    std::vector<PaletteFile> _files;
};

}  // namespace dabcanvas::dabpainter
