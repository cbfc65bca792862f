// SPDX-License-Identifier: MIT
#include "Presets/PresetPreviews.h"

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

PresetPreviews::PresetPreviews(std::function<bool()> mayPaint, QObject* parent)
    : QObject(parent), _mayPaint(std::move(mayPaint)), _pictures(kMostKilobytes) {
    _reader.setMaxThreadCount(1);
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
    _content.reset();
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
        if (!_timer.isActive() && !_reading)
            _timer.start(0);
    }
    return {};
}

void PresetPreviews::read(const PresetId& id) {
    _reading = true;
    _timer.stop();
    _reader.start([this, id] {
        Content content{id, {}, {}};
        content.problem = PresetLibrary::read(id, content.preset);
        const auto take = [this, content] {
            _reading = false;
            _content = content;
            _timer.start(0);
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    });
}

// Puts the brush on the canvas of the pictures; false when there is none.
bool PresetPreviews::begin(const Content& content) {
    if (!_wave.prepare(_size * _ratio))
        return false;
    QDDrawCanvas& canvas = *_wave.canvas();
    applyPreset(canvas, content.preset);
    if (!_ownColors) {
        canvas.setRenderColor(ESColor(kInk));
        canvas.setBackRenderColor(ESColor(kSecondInk));
    }
    _wave.begin(float(_ratio));
    return true;
}

// One step: the file of the first one that is wanted, then its brush, then the picture slice by slice.
void PresetPreviews::go() {
    if (_wanted.empty()) {
        _content.reset();
        return _timer.stop();
    }
    if (!_mayPaint())
        return _timer.start(kPause);
    _timer.start(0);
    if (!_painting) {
        const PresetId id = _wanted.front().id;
        const std::optional<Content> content = std::exchange(_content, {});
        if (!content || content->id != id)
            return read(id);
        if (!content->problem.isEmpty()) {
            _wanted.pop_front();
            emit damaged(id, content->problem);
        } else {
            _painting = begin(*content);
            if (!_painting)
                _wanted.clear();
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
