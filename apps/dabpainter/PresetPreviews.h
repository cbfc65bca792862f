// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <functional>
#include <list>

#include "PresetLibrary.h"
#include "SampleWave.h"

namespace dabcanvas::dabpainter {

// Paints the pictures of presets when somebody wants to see them, one after another between the other
// events, and keeps them until a file changes.
class PresetPreviews : public QObject {
    Q_OBJECT

public:
    // mayPaint: asked before each slice, so that nothing slows down the user's own stroke.
    PresetPreviews(const PresetLibrary& library, std::function<bool()> mayPaint, QObject* parent = nullptr);

    // Size in points, and pixels per point; the colours are the presets' own or ink. Others than before: all
    // are painted again.
    void setLook(QSize size, qreal ratio, bool ownColors);
    // Null when it is not there yet; then it will be, if the preset can be read.
    QImage picture(const Preset& preset);
    bool isIdle() const { return !_timer.isActive(); }

signals:
    void painted(const PresetId& id);
    void damaged(const PresetId& id, const QString& problem);

private:
    void go();
    bool begin();

    const PresetLibrary& _library;
    std::function<bool()> _mayPaint;
    QSize _size;
    qreal _ratio = 1;
    bool _ownColors = false;
    SampleWave _wave;
    QCache<QString, QImage> _pictures;  // cost: kilobytes
    std::list<Preset> _wanted;          // the first one may be in the works
    bool _painting = false;
    QTimer _timer;
};

}  // namespace dabcanvas::dabpainter
