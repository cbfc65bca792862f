// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include "Preset/PresetInfo.h"
#include "Presets/PresetLibrary.h"

namespace dabcanvas::dabpainter {

// What presets say of themselves: read by a thread of its own, file by file, once for each state of a file.
class PresetInfos : public QObject {
    Q_OBJECT

public:
    explicit PresetInfos(QObject* parent = nullptr);

    // Reads what is not known yet; changed() tells when all of it is.
    void read(const std::vector<Preset>& presets);
    // Empty while it is not known.
    PresetInfo of(const Preset& preset) const { return _infos.value(keyOf(preset)); }
    // What is known of one holds for the other, which is the same in another file.
    void carryOver(const Preset& from, const Preset& to) { _infos.insert(keyOf(to), of(from)); }
    // Of all of these, sorted, each once.
    QStringList tags(const std::vector<Preset>& presets) const;
    bool isIdle() const { return _reading == 0; }

signals:
    void changed();

private:
    static QString keyOf(const Preset& preset);

    QHash<QString, PresetInfo> _infos;
    int _reading = 0;
    QThreadPool _reader;  // ends before the rest
};

}  // namespace dabcanvas::dabpainter
