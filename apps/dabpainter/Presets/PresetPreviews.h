// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <functional>
#include <list>
#include <optional>

#include "Presets/PresetLibrary.h"
#include "Presets/SampleWave.h"

namespace dabcanvas::dabpainter {

// Paints the pictures of presets when somebody wants to see them, one after another between the other
// events, and keeps them until a file changes. Files are read by a thread of its own, which touches no canvas.
class PresetPreviews : public QObject {
    Q_OBJECT

public:
    // mayPaint: asked before each slice, so that nothing slows down the user's own stroke.
    explicit PresetPreviews(std::function<bool()> mayPaint, QObject* parent = nullptr);

    // Size in points, and pixels per point; the colours are the presets' own or ink. Others than before: all
    // are painted again.
    void setLook(QSize size, qreal ratio, bool ownColors);
    // Null when it is not there yet; then it will be, if the preset can be read.
    QImage picture(const Preset& preset);
    bool isIdle() const { return _wanted.empty(); }

signals:
    void painted(const PresetId& id);
    void damaged(const PresetId& id, const QString& problem);

private:
    // The content of a preset, or why it has none.
    struct Content {
        PresetId id;
        BrushPreset preset;
        QString problem;
    };
    void go();
    void read(const PresetId& id);
    bool begin(const Content& content);

    std::function<bool()> _mayPaint;
    QSize _size;
    qreal _ratio = 1;
    bool _ownColors = false;
    SampleWave _wave;
    QCache<QString, QImage> _pictures;  // cost: kilobytes
    std::list<Preset> _wanted;          // the first one may be in the works
    bool _reading = false, _painting = false;
    std::optional<Content> _content;  // what was read last, until it is painted
    QTimer _timer;
    QThreadPool _reader;  // ends before the rest
};

}  // namespace dabcanvas::dabpainter
