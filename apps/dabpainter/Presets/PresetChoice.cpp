// SPDX-License-Identifier: MIT
#include "Presets/PresetChoice.h"

#include <QFileInfo>
#include <QWidget>
#include <algorithm>

#include "Preset/QDBrushManager.h"

namespace dabcanvas::dabpainter {

PresetChoice::PresetChoice(BrushModel& brush, const Prompts& prompts, PresetLibrary& library, QWidget& place)
    : _brush(brush), _prompts(prompts), _library(library), _place(place) {}

void PresetChoice::take(const PresetId& id, const QString& name) {
    if (_chosen != id)
        _previous = _chosen;
    _chosen = id;
    _name = name;
    emit changed();
}

bool PresetChoice::succeeds(const QString& fault) {
    if (!fault.isEmpty())
        _prompts.tell(_place.window(), fault);
    return fault.isEmpty();
}

// ---- The brush

bool PresetChoice::choose(const PresetId& id) {
    emit aboutToUseBrush();
    if (id.path.isEmpty()) {
        const QVariant color = _brush.value(BrushKey::renderColor);
        const QVariant second = _brush.value(BrushKey::backRenderColor);
        _brush.comesFrom({});
        _brush.resetAll();
        _brush.setValue(BrushKey::renderColor, color);
        _brush.setValue(BrushKey::backRenderColor, second);
        take({}, {});
        return true;
    }
    BrushPreset content;
    const QString fault = _library.read(id, content);
    if (!succeeds(fault)) {
        emit filesChanged();
        emit damaged(id, fault);
        return false;
    }
    if (!_brush.takePreset(content))
        return false;
    const Preset* preset = _library.find(id);
    take(id, preset ? preset->name : QFileInfo(id.path).completeBaseName());
    return true;
}

bool PresetChoice::choosePrevious() {
    return (_previous.path.isEmpty() || _library.find(_previous)) && choose(_previous);
}

bool PresetChoice::chooseShipped(const QString& fileName) {
    const auto found = std::ranges::find_if(_library.presets(), [&](const Preset& preset) {
        return !preset.own && QFileInfo(preset.id.path).fileName() == fileName;
    });
    return found != _library.presets().end() && choose(PresetId(found->id));
}

std::function<void()> PresetChoice::keep() {
    return [this, held = _brush.hold(), id = _chosen, name = _name] {
        emit aboutToUseBrush();
        if (!_brush.takeUp(held))
            return;
        const bool isThere = _library.find(id);
        take(isThere ? id : PresetId(), isThere ? name : QString());
    };
}

// ---- The files

bool PresetChoice::saveNew() {
    emit aboutToUseBrush();
    const std::optional<BrushParams> params = _brush.params();
    if (!params)
        return false;
    const QString name =
        _prompts.askName(_place.window(), tr("Save as New Brush"), _name.isEmpty() ? tr("Brush") : _name)
            .simplified();
    if (name.isEmpty())
        return false;
    const Preset* same = _library.findOwn(name);
    if (same && same->siblings == 0)
        return overwrite(PresetId(same->id));
    PresetId now;
    const bool saved = succeeds(_library.add(name, *params, now));
    emit filesChanged();
    if (saved) {
        _brush.comesFrom(BrushPreset{*params, QDBrushManager::kVersion});
        take(now, name);
    }
    return saved;
}

bool PresetChoice::overwrite(const PresetId& id) {
    const Preset* found = _library.find(id);
    const std::optional<BrushParams> params = _brush.params();
    if (!found || !params || !found->own || found->siblings != 0)
        return false;
    const Preset preset = *found;
    if (!_prompts.confirm(_place.window(), tr("Replace the brush \"%1\"?").arg(preset.name),
                          tr("It takes the present settings, and what it was is lost."), tr("Replace")))
        return false;
    const bool saved = succeeds(_library.replace(preset, *params));
    emit filesChanged();
    if (saved) {
        _brush.comesFrom(BrushPreset{*params, QDBrushManager::kVersion});
        take(id, preset.name);
    }
    return saved;
}

bool PresetChoice::rename(const PresetId& id) {
    const Preset* found = _library.find(id);
    if (!found || !found->isEditable())
        return false;
    const Preset preset = *found;
    const QString name = _prompts.askName(_place.window(), tr("Rename Brush"), preset.name).simplified();
    if (name.isEmpty() || name == preset.name)
        return false;
    PresetId now;
    const bool isRenamed = succeeds(_library.rename(preset, name, now));
    if (isRenamed && _previous == id)
        _previous = now;
    if (isRenamed)
        emit moved(preset, now);
    emit filesChanged();
    if (isRenamed)
        emit renamed(preset.name, name);
    if (isRenamed && id == _chosen)
        take(now, name);
    return isRenamed;
}

bool PresetChoice::remove(const PresetId& id) {
    const Preset* found = _library.find(id);
    if (!found || !found->own)
        return false;
    const Preset preset = *found;
    const QString what = preset.siblings == 0 ? tr("Delete the brush \"%1\"?").arg(preset.name)
                                              : tr("Delete the file \"%1\" with its %2 brushes?")
                                                    .arg(QFileInfo(id.path).fileName())
                                                    .arg(preset.siblings + 1);
    if (!_prompts.confirm(_place.window(), what, tr("This cannot be taken back."), tr("Delete")))
        return false;
    const bool removed = succeeds(_library.removeFile(preset));
    emit filesChanged();
    if (removed && id.path == _chosen.path) {
        _brush.comesFrom({});  // which goes on as it is
        take({}, {});
    }
    return removed;
}

bool PresetChoice::importFiles(const QStringList& paths) {
    QStringList faults, losses;
    PresetId last;
    for (const QString& path : paths) {
        PresetId now;
        QStringList lost;
        const QString fault = _library.importFile(path, now, lost);
        if (fault.isEmpty())
            last = now;
        else
            faults << fault;
        if (!lost.isEmpty())
            losses << tr("Of \"%1\" could not be carried over:\n%2")
                          .arg(QFileInfo(path).fileName(), lost.join(QLatin1Char('\n')));
    }
    emit filesChanged();
    succeeds((faults + losses).join(QLatin1Char('\n')));
    return !last.path.isEmpty() && choose(last);
}

bool PresetChoice::exportTo(const PresetId& id) {
    const Preset* preset = _library.find(id);
    if (!preset || !preset->problem.isEmpty())
        return false;
    const QString path =
        _prompts.pickBrushName(_place.window(), presetFileName(preset->name) + QStringLiteral(".xbf"));
    return !path.isEmpty() && succeeds(_library.exportTo(id, path));
}

}  // namespace dabcanvas::dabpainter
