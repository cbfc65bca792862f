// SPDX-License-Identifier: MIT
#include "Recording/InkmlReader.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Brushes/BrushProperties.h"
#include "Canvas/QDDrawTouch.h"
#include "Recording/InkmlStyle.h"
#include "Recording/InkmlTrace.h"

namespace dabcanvas {

namespace {

constexpr double kMargin = 32;     // around a drawing that had to be moved; the default brush fits
constexpr double kFitSide = 1024;  // longer side of a drawing that had to be made smaller
constexpr double kLargestPlain =
    4096;  // beyond this numbers without a unit are taken for a tablet's, not for pixels

// Which of a point's values are what; -1 for a channel that isn't there.
struct ChannelPlaces {
    explicit ChannelPlaces(const InkFormat& format) {
        for (std::size_t i = 0; i < format.channels.size(); ++i) {
            const QString& name = format.channels[i].name;
            for (auto [known, place] : {std::pair{"X", &x},
                                        {"Y", &y},
                                        {"F", &force},
                                        {"OTx", &tiltX},
                                        {"OTy", &tiltY},
                                        {"OE", &elevation}}) {
                if (name == QLatin1String(known))
                    *place = int(i);
            }
        }
    }
    int x = -1, y = -1, force = -1, tiltX = -1, tiltY = -1, elevation = -1;
};

// Turns the traces of a document into strokes.
class StrokeBuilder {
public:
    explicit StrokeBuilder(const InkDocument& document) : _document(document), _styles(document) {}

    Result<RecordedStrokes> run() {
        for (const RawTrace& trace : _document.traces) {
            if (trace.penUp)
                continue;
            QString wrong = add(trace);
            if (!wrong.isEmpty())
                return Problem{_line, {}, wrong};
        }
        dropEmptyStrokes();
        shareForces();
        const double scale = fit();
        QString wrong = checkPlaces();
        if (!wrong.isEmpty())
            return Problem{0, {}, wrong};
        paintWith(scale);
        for (RecordedStroke& stroke : _recording.strokes) {
            fillUnknown(stroke, &RecordedSample::pressure);
            fillUnknown(stroke, &RecordedSample::altitude);
        }
        return std::move(_recording);
    }

private:
    struct Look {
        std::shared_ptr<InkBrush> brush;
        bool plainForce = false;  // pressures are as written, without a range
    };

    static bool hasPlainForce(const InkFormat& format) {
        const int force = ChannelPlaces(format).force;
        return force >= 0 && !forceShare(format.channels[std::size_t(force)], 0);
    }

    QString add(const RawTrace& trace) {
        _line = trace.line;
        TraceStyle style;
        QString wrong = _styles.find(trace, style);
        if (!wrong.isEmpty())
            return wrong;
        std::size_t stroke = _recording.strokes.size();
        if (trace.continued) {
            wrong = priorStroke(trace, stroke);
            if (!wrong.isEmpty())
                return wrong;
        } else {
            _recording.strokes.emplace_back();
            _looks.push_back({style.brush, hasPlainForce(*style.format)});
        }
        if (!trace.id.isEmpty())
            _strokeOfTrace.insert(trace.id, stroke);
        return decode(trace, style, _recording.strokes[stroke].samples);
    }

    QString priorStroke(const RawTrace& trace, std::size_t& stroke) {
        if (trace.priorRef.isEmpty()) {
            if (_recording.strokes.empty())
                return QStringLiteral("the trace continues another, but there is none before it");
            stroke = _recording.strokes.size() - 1;
            return {};
        }
        const auto prior = _strokeOfTrace.constFind(trace.priorRef);
        if (prior == _strokeOfTrace.constEnd())
            return QStringLiteral("priorRef=\"#%1\" names no trace before this one")
                .arg(trace.priorRef.left(60));
        stroke = *prior;
        return {};
    }

    QString decode(const RawTrace& trace, const TraceStyle& style, std::vector<RecordedSample>& samples) {
        const std::vector<InkChannel>& channels = style.format->channels;
        const ChannelPlaces places(*style.format);
        if (places.x < 0 || places.y < 0)
            return QStringLiteral("the trace format has no X and Y channels");
        std::vector<TraceChannel> forms;
        for (const InkChannel& channel : channels)
            forms.push_back({channel.boolean, channel.intermittent});
        const InkAxis x = inkAxis(channels[std::size_t(places.x)], style.resolutions);
        const InkAxis y = inkAxis(channels[std::size_t(places.y)], style.resolutions);
        _physical = _physical && x.physical && y.physical;
        Problem problem;
        const bool decoded = decodeTrace(
            trace.text, forms,
            [&](std::span<const double> values) {
                const double atX = x.pixels(values[std::size_t(places.x)]);
                const double atY = y.pixels(values[std::size_t(places.y)]);
                if (!std::isnan(atX) && !std::isnan(atY))
                    samples.push_back(
                        {atX, atY, pressure(style, places, values), altitude(style, places, values)});
            },
            problem);
        if (decoded)
            return {};
        _line = trace.line + problem.line;
        return problem.what;
    }

    void dropEmptyStrokes() {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < _looks.size(); ++i) {
            if (_recording.strokes[i].samples.empty())
                continue;
            if (kept != i) {
                _recording.strokes[kept] = std::move(_recording.strokes[i]);
                _looks[kept] = std::move(_looks[i]);
            }
            ++kept;
        }
        _recording.strokes.resize(kept);
        _looks.resize(kept);
    }

    // A force without a range stays as it is until the largest of the file is known.
    float pressure(const TraceStyle& style, const ChannelPlaces& places, std::span<const double> values) {
        if (places.force < 0 || std::isnan(values[std::size_t(places.force)]))
            return -1;
        const double force = values[std::size_t(places.force)];
        if (const auto share = forceShare(style.format->channels[std::size_t(places.force)], force))
            return float(*share);
        const auto raw = float(std::max(force, 0.0));
        _largestForce = std::max(_largestForce, raw);
        return raw;
    }

    float altitude(const TraceStyle& style, const ChannelPlaces& places,
                   std::span<const double> values) const {
        const auto angle = [&](int place) {
            const auto& channel = style.format->channels[std::size_t(place)];
            return inkAngle(channel, style.resolutions, values[std::size_t(place)]);
        };
        const auto known = [&](int place) { return place >= 0 && !std::isnan(values[std::size_t(place)]); };
        if (known(places.elevation))
            return altitudeOfElevation(angle(places.elevation));
        if (known(places.tiltX) || known(places.tiltY))
            return altitudeOfTilts(known(places.tiltX) ? angle(places.tiltX) : 0,
                                   known(places.tiltY) ? angle(places.tiltY) : 0);
        return -1;
    }

    void shareForces() {
        if (_largestForce <= 1)
            return;
        for (std::size_t i = 0; i < _looks.size(); ++i) {
            if (!_looks[i].plainForce)
                continue;
            for (RecordedSample& sample : _recording.strokes[i].samples) {
                if (sample.pressure > 0)
                    sample.pressure /= _largestForce;
            }
        }
    }

    // Moves and scales the drawing onto a canvas where it does not lie on one; gives the scale.
    double fit() {
        const QRectF extent = extentOf(_recording.strokes);
        const double largest = _physical ? kLargestSide - 2 * kMargin : kLargestPlain;
        const double longest = std::max(extent.width(), extent.height());
        const double scale = longest > largest ? (kFitSide - 2 * kMargin) / longest : 1.0;
        const auto offset = [&](double first, double last) {
            return scale != 1.0 || first < 0 || last > largest ? kMargin - first * scale : 0.0;
        };
        const double left = offset(extent.left(), extent.right());
        const double top = offset(extent.top(), extent.bottom());
        for (RecordedStroke& stroke : _recording.strokes) {
            for (RecordedSample& sample : stroke.samples) {
                sample.x = sample.x * scale + left;
                sample.y = sample.y * scale + top;
            }
        }
        return scale;
    }

    // Coordinates near the end of what a number holds survive no subtraction.
    QString checkPlaces() const {
        for (const RecordedStroke& stroke : _recording.strokes) {
            for (const RecordedSample& sample : stroke.samples) {
                if (!(std::abs(sample.x) <= kFarthest && std::abs(sample.y) <= kFarthest))
                    return QStringLiteral("the positions are out of range");
            }
        }
        return {};
    }

    // Gives strokes their brush's settings where it changes; a stroke without a brush has the painter's own.
    void paintWith(double scale) {
        const BrushProperty& radius = brushProperty(BrushKey::radius);
        QString color;
        std::optional<double> width;
        for (std::size_t i = 0; i < _recording.strokes.size(); ++i) {
            RecordedStroke& stroke = _recording.strokes[i];
            const InkBrush brush = _looks[i].brush ? *_looks[i].brush : InkBrush();
            if (brush.color != color) {
                color = brush.color;
                SettingValue value;
                if (!color.isEmpty())
                    value = color;
                stroke.settings.push_back({QStringLiteral("renderColor"), value, 0, {}});
            }
            if (brush.width != width) {
                width = brush.width;
                SettingValue value;
                if (width)  // which nobody meant as a radius here, so that it is cut to what a brush takes
                    value = std::clamp(*width * scale, double(radius.low), double(radius.high));
                stroke.settings.push_back({QStringLiteral("radius"), value, 0, {}});
            }
        }
    }

    static void fillUnknown(RecordedStroke& stroke, float RecordedSample::*member) {
        const auto known =
            std::find_if(stroke.samples.begin(), stroke.samples.end(),
                         [member](const RecordedSample& sample) { return sample.*member >= 0; });
        if (known == stroke.samples.end())
            return;
        float last = (*known).*member;
        for (RecordedSample& sample : stroke.samples) {
            if (sample.*member < 0)
                sample.*member = last;
            last = sample.*member;
        }
    }

    const InkDocument& _document;
    const TraceStyles _styles;
    RecordedStrokes _recording;
    std::vector<Look> _looks;  // one a stroke
    QHash<QString, std::size_t> _strokeOfTrace;
    float _largestForce = 0;
    bool _physical = true;
    int _line = 0;
};

}  // namespace

Result<RecordedStrokes> readInkml(const QByteArray& bytes) {
    InkDocument document;
    Problem problem;
    if (!parseInkml(bytes, document, problem))
        return problem;
    return StrokeBuilder(document).run();
}

}  // namespace dabcanvas
