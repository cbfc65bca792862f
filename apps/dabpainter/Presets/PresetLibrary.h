// SPDX-License-Identifier: MIT
// The brush files of the user and of the installation.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

#include "Brush/BrushModel.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

struct PresetFolders {
    QString own;            // the user's, made when there is something to put into it
    QStringList installed;  // only read
};
PresetFolders standardPresetFolders();

// One brush of a file.
struct PresetId {
    QString path;
    int index = 0;
    bool operator==(const PresetId&) const = default;
};

struct Preset {
    PresetId id;
    QString name;      // never empty
    QString problem;   // why it cannot be used; empty: it looks whole as far as it was read
    int siblings = 0;  // other brushes of its file
    bool own = false;
    qint64 size = 0, time = 0;  // of the file, by which a change is noticed

    bool operator==(const Preset&) const = default;
    // The user's are called what the user called them.
    QString shownName() const { return own ? name : trOfTable(name); }
    // Files are written with one brush, so that those with several stay as they are.
    bool isEditable() const { return own && siblings == 0 && problem.isEmpty(); }
};

// Lists them and keeps the user's folder.
//
// Errors   a fault is a sentence for the user and empty when all went well; then nothing is half done.
class PresetLibrary {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::PresetLibrary)

public:
    explicit PresetLibrary(PresetFolders folders) : _folders(std::move(folders)) {}
    const PresetFolders& folders() const { return _folders; }

    // Looks at the folders again, and into files that are new or changed. The user's come first, by name.
    void refresh();
    const std::vector<Preset>& presets() const { return _presets; }
    const Preset* find(const PresetId& id) const;
    // The user's of this name; null when there is none.
    const Preset* findOwn(const QString& name) const;
    // What was found out only by reading all of it.
    void setProblem(const PresetId& id, const QString& problem);

    // The whole preset, from its file. Its fault names the file. Any thread.
    static QString read(const PresetId& id, BrushPreset& preset);

    // These change files and then refresh. `now` becomes where the preset is to be found.
    QString add(const QString& name, const BrushParams& params, PresetId& now);
    QString replace(const Preset& preset, const BrushParams& params);
    QString rename(const Preset& preset, const QString& name, PresetId& now);
    QString removeFile(const Preset& preset);
    // Copies a file into the user's folder, unless it is there already; `now` is its last brush. Other programs' brushes
    // become presets, and `lost` says in words what could not be carried over.
    QString importFile(const QString& path, PresetId& now, QStringList& lost);
    QString exportTo(const PresetId& id, const QString& path) const;

private:
    void listFolder(const QString& folder, bool own, QHash<QString, std::vector<Preset>>& found);
    QString importForeign(const QString& path, PresetId& now, QStringList& lost);
    QString sameAs(const QByteArray& content, const QString& but) const;
    QString makeOwnFolder() const;
    QString freePath(const QString& name) const;

    PresetFolders _folders;
    std::vector<Preset> _presets;
    QHash<QString, std::vector<Preset>> _files;  // by path
};

// What a preset of this name may be called in any file system, without suffix.
QString presetFileName(const QString& name);

}  // namespace dabcanvas::dabpainter
