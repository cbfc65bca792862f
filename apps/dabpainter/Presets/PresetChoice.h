// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

#include "Presets/PresetLibrary.h"
#include "Window/Prompts.h"

namespace dabcanvas::dabpainter {

// Which preset the brush was made from, and what the user does with presets and their files. Asks and tells through the
// prompts, which appear above the window of `place`. All that it is given must outlive it.
class PresetChoice : public QObject {
    Q_OBJECT

public:
    PresetChoice(BrushModel& brush, const Prompts& prompts, PresetLibrary& library, QWidget& place);

    // An empty id: none.
    const PresetId& chosen() const { return _chosen; }
    const QString& name() const { return _name; }
    // It is known already that the brush is this one.
    void take(const PresetId& id, const QString& name);

    // False when nothing was done. PresetBrowser.h says more of each.
    bool choose(const PresetId& id);
    bool choosePrevious();
    bool chooseShipped(const QString& fileName);
    std::function<void()> keep();
    bool saveNew();
    bool overwrite(const PresetId& id);
    bool rename(const PresetId& id);
    bool remove(const PresetId& id);
    bool importFiles(const QStringList& paths);
    bool exportTo(const PresetId& id);

signals:
    void aboutToUseBrush();  // to exchange or to keep it
    void changed();          // what is chosen
    void filesChanged();     // the library's
    void damaged(const PresetId& id, const QString& problem);
    void moved(const Preset& preset, const PresetId& now);  // the library has it there already
    void renamed(const QString& from, const QString& to);

private:
    bool succeeds(const QString& fault);

    BrushModel& _brush;
    const Prompts& _prompts;
    PresetLibrary& _library;
    QWidget& _place;
    PresetId _chosen, _previous;
    QString _name;
};

}  // namespace dabcanvas::dabpainter
