// SPDX-License-Identifier: MIT
#include "Presets/PresetInfos.h"

#include <algorithm>

namespace dabcanvas::dabpainter {

PresetInfos::PresetInfos(QObject* parent) : QObject(parent) {
    _reader.setMaxThreadCount(1);
}

QString PresetInfos::keyOf(const Preset& preset) {
    return QStringLiteral("%1|%2|%3|%4")
        .arg(preset.id.path)
        .arg(preset.id.index)
        .arg(preset.size)
        .arg(preset.time);
}

void PresetInfos::read(const std::vector<Preset>& presets) {
    std::vector<Preset> unknown;
    std::copy_if(presets.begin(), presets.end(), std::back_inserter(unknown), [this](const Preset& preset) {
        return preset.problem.isEmpty() && !_infos.contains(keyOf(preset));
    });
    if (unknown.empty())
        return;
    for (const Preset& preset : unknown)
        _infos.insert(keyOf(preset), {});  // no more often than once
    ++_reading;
    _reader.start([this, unknown] {
        QHash<QString, PresetInfo> found;
        for (const Preset& preset : unknown) {
            BrushPreset content;
            if (PresetLibrary::read(preset.id, content).isEmpty())
                found.insert(keyOf(preset), infoOfParams(content.params));
        }
        const auto take = [this, found] {
            _infos.insert(found);
            --_reading;
            emit changed();
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    });
}

QStringList PresetInfos::tags(const std::vector<Preset>& presets) const {
    QStringList tags;
    for (const Preset& preset : presets)
        tags += of(preset).tags;
    tags.removeDuplicates();
    tags.sort(Qt::CaseInsensitive);
    return tags;
}

}  // namespace dabcanvas::dabpainter
