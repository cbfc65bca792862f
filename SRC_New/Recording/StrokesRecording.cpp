// SPDX-License-Identifier: MIT
#include "Recording/StrokesRecording.h"

#include <QDir>
#include <algorithm>

#include "Canvas/QDDrawCanvas.h"
#include "Maths/Version.h"
#include "Recording/CanvasRecorder.h"
#include "Recording/PropertyValue.h"
#include "Recording/RecordingReader.h"

namespace dabcanvas {

namespace {

constexpr double kStrokeTime = 1, kSampleTime = 0.01;  // seconds

class Maker {
public:
    Maker(const RecordedStrokes& strokes, QString folder) : _strokes(strokes), _folder(std::move(folder)) {}

    Result<Recording> make() {
        addBackground();
        if (_strokes.brush)
            addBrush(*_strokes.brush);
        for (const RecordedStroke& stroke : _strokes.strokes) {
            if (stroke.brush)
                addBrush(*stroke.brush);
            addSettings(stroke);
            if (_problem)
                break;
            addSamples(stroke);
        }
        if (_problem)
            return *_problem;
        _recording.header.library = QStringLiteral(DABCANVAS_VERSION_STRING);
        _recording.header.surface = QStringLiteral("processor");
        _recording.header.size = neededSize(_strokes, _largestRadius);
        const QSize size = _recording.header.size;
        if (const QString refusal = sizeRefusal(size.width(), size.height()); !refusal.isEmpty())
            return Problem{0, {}, refusal};
        return std::move(_recording);
    }

private:
    void add(RecordedWhat what) { _recording.events.push_back({_time, std::move(what)}); }
    void fail(int line, const QString& element, const QString& what) {
        if (!_problem)
            _problem = Problem{line, element, what};
    }

    void addBackground() {
        if (_strokes.background.isEmpty())
            return;
        const auto color = colorFromText(_strokes.background);
        if (!color)
            return fail(_strokes.backgroundLine, QStringLiteral("canvas.background"),
                        QStringLiteral("expected a colour: #rrggbb, #rrggbbaa or transparent"));
        add(ClearedCanvas{ESColor(*color), true});
    }

    // What makes any brush that one: all that a canvas tells of itself once it has it.
    void addBrush(const BrushReference& reference) {
        const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 1, 1), {.kind = SurfaceKind::processor});
        QString problem;
        if (!canvas || !canvas->resetWithXBFPath(QDir(_folder).filePath(reference.path), &problem) ||
            !problem.isEmpty())
            return fail(reference.line, reference.element, reference.path + QStringLiteral(": ") + problem);
        const auto take = [this](const RecordedEvent& event) {
            if (std::holds_alternative<BrushChange>(event.what) ||
                std::holds_alternative<SecondLineChange>(event.what))
                add(event.what);
        };
        CanvasRecorder::start(*canvas, take, 0);
        _largestRadius = std::max(_largestRadius, double(canvas->radius()));
    }

    void addSettings(const RecordedStroke& stroke) {
        const auto sets = [&](BrushKey key) {
            return std::any_of(stroke.settings.begin(), stroke.settings.end(), [key](const Setting& setting) {
                return setting.name == QLatin1String(brushProperty(key).name);
            });
        };
        // Tip images are meant to be painted with.
        if (sets(BrushKey::textureImages) && !sets(BrushKey::textureType))
            add(BrushChange{BrushKey::textureType, 0});
        for (const Setting& setting : stroke.settings) {
            const BrushProperty* property = brushPropertyNamed(setting.name);
            if (!property)
                return fail(setting.line, setting.element, unknownProperty(setting.name));
            Result<QVariant> value = brushDefault(*property);
            if (!std::holds_alternative<std::monostate>(setting.value))
                value = propertyValueFromSetting(*property, setting, _folder);
            const auto typed = value ? brushValueOf(*property, *value) : std::nullopt;
            if (!typed)
                return fail(setting.line, setting.element,
                            value ? QStringLiteral("refused") : value.problem().what);
            _pixels += pixelsOf(*value);
            if (const QString refusal = pixelsRefusal(_pixels); !refusal.isEmpty())
                return fail(setting.line, setting.element, refusal);
            if (property->key == BrushKey::radius)
                _largestRadius = std::max(_largestRadius, double(std::get<float>(*typed)));
            add(BrushChange{property->key, *typed});
        }
    }

    void addSamples(const RecordedStroke& stroke) {
        if (stroke.samples.empty())
            return;
        StrokePart part{.begins = true, .device = InputDevice::pen, .samples = stroke.samples};
        const bool isTimed = part.samples.front().time >= _time && part.samples.front().time >= 0;
        if (isTimed)
            _time = part.samples.front().time;
        double last = _time;
        for (RecordedSample& sample : part.samples) {
            sample.time = isTimed ? std::max(sample.time, last) : last;
            last = sample.time + (isTimed ? 0 : kSampleTime);
        }
        add(std::move(part));
        _time = isTimed ? last : last + kStrokeTime;
    }

    const RecordedStrokes& _strokes;
    const QString _folder;
    Recording _recording;
    std::optional<Problem> _problem;
    qint64 _pixels = 0;
    double _time = 0;
    double _largestRadius = brushDefault(brushProperty(BrushKey::radius)).toFloat();
};

}  // namespace

Result<Recording> recordingOf(const RecordedStrokes& strokes, const QString& folder) {
    return Maker(strokes, folder).make();
}

Result<Recording> readAsRecording(const QByteArray& bytes, const QString& folder) {
    if (isRecording(bytes))
        return readRecording(bytes);
    const auto strokes = readStrokes(bytes);
    return strokes ? recordingOf(*strokes, folder) : Result<Recording>(strokes.problem());
}

}  // namespace dabcanvas
