// SPDX-License-Identifier: MIT
#include "PresetPreviews.h"

#include <algorithm>
#include <utility>

#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kSlice = 8;                  // milliseconds of painting between events
constexpr int kPause = 100;                // milliseconds while the user paints
constexpr std::size_t kMostWanted = 64;    // older ones have been scrolled out of sight
constexpr int kMostKilobytes = 64 * 1024;  // of pictures
const QColor kInk(38, 70, 120), kSecondInk(222, 120, 60);

QString keyOf(const Preset& preset) {
    return QStringLiteral("%1|%2|%3|%4")
        .arg(preset.id.path)
        .arg(preset.id.index)
        .arg(preset.size)
        .arg(preset.time);
}

}  // namespace

PresetPreviews::PresetPreviews(const PresetLibrary& library, std::function<bool()> mayPaint, QObject* parent)
    : QObject(parent), _library(library), _mayPaint(std::move(mayPaint)), _pictures(kMostKilobytes) {
    connect(&_timer, &QTimer::timeout, this, &PresetPreviews::go);
}

void PresetPreviews::setLook(QSize size, qreal ratio, bool ownColors) {
    if (size == _size && ratio == _ratio && ownColors == _ownColors)
        return;
    _size = size;
    _ratio = ratio;
    _ownColors = ownColors;
    _wave.abandon();
    _painting = false;
    _pictures.clear();
    _wanted.clear();
    _timer.stop();
}

QImage PresetPreviews::picture(const Preset& preset) {
    if (const QImage* picture = _pictures.object(keyOf(preset)))
        return *picture;
    const bool isWanted = std::any_of(_wanted.begin(), _wanted.end(), [&](const Preset& wanted) {
        return wanted.id == preset.id && wanted.size == preset.size && wanted.time == preset.time;
    });
    if (!isWanted && preset.problem.isEmpty()) {
        _wanted.push_back(preset);
        if (_wanted.size() > kMostWanted)
            _wanted.erase(std::next(_wanted.begin()));
        if (!_timer.isActive())
            _timer.start(0);
    }
    return {};
}

// Takes up the first one that can be painted; false when there is none.
bool PresetPreviews::begin() {
    while (!_wanted.empty()) {
        const PresetId id = _wanted.front().id;
        BrushPreset preset;
        const QString problem = _library.read(id, preset);
        if (!problem.isEmpty()) {
            _wanted.pop_front();
            emit damaged(id, problem);
            continue;
        }
        if (!_wave.prepare(_size * _ratio))
            break;
        QDDrawCanvas& canvas = *_wave.canvas();
        applyPreset(canvas, preset);
        if (!_ownColors) {
            canvas.setRenderColor(ESColor(kInk));
            canvas.setBackRenderColor(ESColor(kSecondInk));
        }
        _wave.begin(float(_ratio));
        return true;
    }
    return false;
}

void PresetPreviews::go() {
    if (!_mayPaint()) {
        _timer.start(kPause);
        return;
    }
    _timer.start(0);
    if (!_painting) {
        _painting = begin();
        if (!_painting) {
            _wanted.clear();
            _timer.stop();
        }
        return;
    }
    if (!_wave.paint(kSlice))
        return;
    _painting = false;
    const Preset preset = _wanted.front();
    _wanted.pop_front();
    auto picture = std::make_unique<QImage>(_wave.image().copy());
    picture->setDevicePixelRatio(_ratio);
    const int cost = int(picture->sizeInBytes() / 1024) + 1;
    _pictures.insert(keyOf(preset), picture.release(), cost);
    emit painted(preset.id);
}

}  // namespace dabcanvas::dabpainter
