// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <memory>

#include "History/ImagesUndoManager.h"
#include "Painting.h"
#include "Progress.h"
#include "Surface/PaintSurface.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr qint64 kUndoBytes = qint64(256) << 20;  // of steps to be undone in memory; the others go to files

class Painter {
public:
    Painter(const PaintOptions& options, const Job& job, Frames& frames)
        : _options(options), _job(job), _frames(frames) {}

    // The message when it could not be done.
    QString run(Painting& painting) {
        QString wrong = begin();
        if (wrong.isEmpty())
            wrong = paintAll();
        if (wrong.isEmpty())
            wrong = undoLast();
        if (!wrong.isEmpty())
            return wrong;
        painting = {_canvas->image(), _canvas->strokeStats(), _canvas->rendererName()};
        return painting.image.isNull() ? QStringLiteral("the canvas could not be read back") : QString();
    }

private:
    QString begin() {
        auto canvas = makeCanvas(_job.size, _options.surface);
        if (!canvas)
            return canvas.problem().what;
        _canvas = std::move(*canvas);
        if (_options.undo > 0)
            _canvas->undoManager();  // takes a random number, which the strokes' must not depend on
        if (_options.seed)
            _canvas->setRandomSeed(*_options.seed);
        if (_options.repeatable)
            _canvas->setRepeatableRandom(true);
        _canvas->setProfiling(_options.stats);
        _canvas->clearWithColor(ESColor(_job.background), false);
        _canvas->setEnableRecogition(_options.recognise);
        for (const BrushProperty& property : brushProperties())
            _created.emplace_back(&property, _canvas->brushValue(property));
        const QString wrong = _job.plan.brush() ? useBrush(_job.plan.brush()) : apply(_job.plan.fixed());
        for (const BrushProperty* property : _job.plan.touched())
            _base.insert_or_assign(property, _canvas->brushValue(*property));
        return wrong;
    }

    // Makes a preset the brush, or the one of a new canvas, with the command line's settings.
    QString useBrush(const std::shared_ptr<const Brush>& brush) {
        // First, as a preset need not name everything.
        if (!useCreatedBrush())
            return QStringLiteral("the canvas does not take its first brush again");
        if (brush)
            brush->applyTo(*_canvas);
        return apply(_job.plan.fixed());
    }

    bool useCreatedBrush() {
        for (const auto& [property, value] : _created) {
            // A drawn tip is no image to hand in: that would stay when the radius changes.
            if (property->key != BrushKey::textureImages && !_canvas->setBrushValue(*property, value))
                return false;
        }
        return true;
    }

    QString apply(const std::vector<BrushPlan::Step>& steps) {
        for (const auto& [property, value] : steps) {
            if (!_canvas->setBrushValue(*property, value ? *value : _base.at(property)))
                return QStringLiteral("the canvas does not take this value of %1")
                    .arg(QLatin1String(property->name));
        }
        return {};
    }

    QString paintAll() {
        const SurfaceScope current(_canvas->surface());  // nobody else draws meanwhile
        Progress progress(_job.allDabs);
        std::size_t left = 0;
        for (const RecordedStrokes& recording : _job.recordings)
            left += recording.strokes.size();
        const auto undone = static_cast<std::size_t>(_options.undo);
        if (undone > 0) {
            _canvas->undoManager().setUndoStepCount(static_cast<unsigned>(_options.undo));
            _canvas->undoManager().setDropsSteps(false);
            _canvas->undoManager().setCacheByteBudget(kUndoBytes);
            _canvas->resetUndoManager();
        }
        for (std::size_t i = 0; i < _job.recordings.size(); ++i) {
            // Every recording starts afresh.
            QString wrong = i > 0 ? useBrush(_job.plan.brush()) : QString();
            const auto& strokes = _job.recordings[i].strokes;
            for (std::size_t j = 0; j < strokes.size() && wrong.isEmpty(); ++j) {
                const BrushPlan::Change& change = _job.plan.before(i, j);
                if (change.brush)
                    wrong = useBrush(change.brush);
                if (wrong.isEmpty())
                    wrong = apply(change.steps);
                if (!wrong.isEmpty())
                    break;
                const double work =
                    _job.dabs[i][j] / double(std::max<std::size_t>(strokes[j].samples.size(), 1));
                paintSamples(*_canvas, strokes[j].samples, [&] { progress.advance(work); });
                wrong = _frames.strokePainted(*_canvas);
                --left;
                if (undone > 0 && left == undone)
                    _canvas->resetUndoManager();  // what remains
                else if (left < undone)
                    _isStep.push_back(!_canvas->markAction().isNull());
            }
            if (!wrong.isEmpty())
                return wrong;
        }
        return {};
    }

    // A stroke that drew nothing is no step.
    QString undoLast() {
        for (const bool isStep : _isStep) {
            if (isStep && _canvas->undo().isNull())
                return QStringLiteral("a stroke cannot be undone");
        }
        // A lost step clears the canvas, which the next one to be undone makes good.
        return _isStep.empty() || _canvas->undoManager().hasCurrentImage()
                   ? QString()
                   : QStringLiteral("the picture before the undone strokes is lost");
    }

    const PaintOptions& _options;
    const Job& _job;
    Frames& _frames;
    std::vector<bool> _isStep;  // of the strokes to be undone
    std::unique_ptr<QDDrawCanvas> _canvas;
    std::vector<std::pair<const BrushProperty*, QVariant>> _created;  // the brush of a new canvas
    std::map<const BrushProperty*, QVariant> _base;  // what recordings' settings are undone to
};

}  // namespace

QString paintStrokes(const PaintOptions& options, const Job& job, Frames& frames, Painting& painting) {
    return Painter(options, job, frames).run(painting);
}

}  // namespace dabcanvas::dabpaint
