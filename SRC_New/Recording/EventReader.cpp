// SPDX-License-Identifier: MIT
#include "Recording/EventReader.h"

#include <limits>
#include <utility>

#include "Recording/EmbeddedPicture.h"
#include "Recording/JsonMembers.h"
#include "Recording/PropertyValue.h"
#include "Recording/RecordingNames.h"

namespace dabcanvas {

namespace {

using Kind = JsonReader::Kind;

constexpr int kMostLayers = 256;
const QStringList kLayerMembers{"name", "opacity", "blend", "visible", "locksAlpha", "picture"};

bool readFloat(JsonReader& reader, float& value) {
    double number = 0;
    if (!reader.readNumber(number))
        return false;
    value = float(number);
    return std::isfinite(value) || reader.fail(QStringLiteral("number out of range"));
}

// A word of a table, as its place there.
template <typename Enum, std::size_t count>
bool readWord(JsonReader& reader, const char* const (&words)[count], Enum& value) {
    QString word;
    if (!reader.readText(word))
        return false;
    QStringList known;
    for (const char* name : words)
        known << QLatin1String(name);
    const auto place = known.indexOf(word);
    if (place < 0)
        return reader.fail(QStringLiteral("expected one of: %1").arg(known.join(QStringLiteral(", "))));
    value = Enum(place);
    return true;
}

// A list of so many numbers, each finite as a float.
template <std::size_t count>
bool readNumbers(JsonReader& reader, double (&numbers)[count], std::size_t least = count) {
    std::size_t read = 0;
    for (reader.beginList(); reader.nextElement(); ++read) {
        if (read == count)
            return reader.fail(QStringLiteral("more than %1 numbers").arg(count));
        if (!reader.readNumber(numbers[read]))
            return false;
        if (!std::isfinite(float(numbers[read])))
            return reader.fail(QStringLiteral("number out of range"));
    }
    return !reader.failed() &&
           (read >= least || reader.fail(QStringLiteral("fewer than %1 numbers").arg(least)));
}

bool readSample(JsonReader& reader, RecordedSample& sample) {
    double numbers[5] = {0, 0, -1, -1, -1};
    if (!readNumbers(reader, numbers, 2))
        return false;
    if (std::abs(numbers[0]) > kFarthest || std::abs(numbers[1]) > kFarthest)
        return reader.fail(
            QStringLiteral("the position is out of range: at most %1 either way").arg(kFarthest, 0, 'f', 0));
    sample = {numbers[0], numbers[1], float(numbers[2]), float(numbers[3]), numbers[4]};
    return true;
}

bool readColor(JsonReader& reader, ESColor& color) {
    if (reader.peek() == Kind::text) {
        QString text;
        reader.readText(text);
        const auto named = colorFromText(text);
        color = ESColor(named.value_or(QColor()));
        return named || reader.fail(QStringLiteral("expected a colour: #rrggbb or #rrggbbaa"));
    }
    std::vector<double> parts;
    for (reader.beginList(); reader.nextElement();) {
        double part = 0;
        if (!reader.readNumber(part))
            return false;
        if (parts.size() == 4)
            return reader.fail(QStringLiteral("more than 4 numbers"));
        parts.push_back(part);
    }
    const auto at = [&](std::size_t i) { return float(parts[i]); };
    if (parts.size() == 2)
        color = ESColor::grey(at(0), at(1));
    else if (parts.size() == 4)
        color = ESColor::rgba(at(0), at(1), at(2), at(3));
    else if (!parts.empty())
        return reader.fail(QStringLiteral("a colour is [], [grey, alpha] or [red, green, blue, alpha]"));
    return !reader.failed();
}

}  // namespace

bool EventReader::read(std::vector<RecordedEvent>& events) {
    enum {
        at,
        stroke,
        brush,
        secondLine,
        seed,
        repeatable,
        clear,
        image,
        preview,
        shape,
        picture,
        area,
        view,
        symmetry,
        call,
        layers,
        layer
    };
    static const QStringList kMembers{"at",    "stroke",   "brush",   "secondLine", "seed",    "repeatable",
                                      "clear", "image",    "preview", "shape",      "picture", "area",
                                      "view",  "symmetry", "do",      "layers",     "layer"};
    JsonMembers members(_reader, kMembers);
    double time = 0;
    QString name;
    _reader.beginObject();
    while (_reader.nextMember(name)) {
        const int place = members.place(name);
        if (place > at && !events.empty())
            return _reader.fail(QStringLiteral("a line is one thing only"));
        switch (place) {
            case at:
                _reader.readNumber(time);
                break;
            case stroke:
                one<StrokePart>(events, [&](StrokePart& part) { return readStroke(part); });
                break;
            case brush:
                readBrush(events);
                break;
            case secondLine:
                one<SecondLineChange>(events, [&](SecondLineChange& change) {
                    double numbers[2] = {};
                    const bool isRead = readNumbers(_reader, numbers);
                    change = {float(numbers[0]), float(numbers[1])};
                    return isRead;
                });
                break;
            case seed:
                one<SeedChange>(events, [&](SeedChange& change) {
                    return readWhole(_reader, 0, std::numeric_limits<std::uint32_t>::max(), change.seed);
                });
                break;
            case repeatable:
                one<RepeatChange>(events,
                                  [&](RepeatChange& change) { return _reader.readBoolean(change.repeats); });
                break;
            case clear:
                one<ClearedCanvas>(events, [&](ClearedCanvas& cleared) { return readClear(cleared); });
                break;
            case image:
                one<InputImage>(events, [&](InputImage& placed) { return readImage(placed); });
                break;
            case preview:
                one<PlacedPreview>(events, [&](PlacedPreview& placed) { return readPreview(placed.limits); });
                break;
            case shape:
                one<DrawnShape>(events, [&](DrawnShape& drawn) { return readShape(drawn.shape); });
                break;
            case picture:
                one<WholePicture>(events, [&](WholePicture& whole) { return readPicture(whole.picture); });
                break;
            case area:
                one<AreaChange>(events, [&](AreaChange& change) { return readArea(change.area); });
                break;
            case view:
                one<ViewChange>(events, [&](ViewChange& change) { return readView(change); });
                break;
            case symmetry:
                one<Symmetry>(events, [&](Symmetry& symmetryRead) { return readSymmetry(symmetryRead); });
                break;
            case call:
                one<RecordedCall>(events,
                                  [&](RecordedCall& what) { return readWord(_reader, kCallNames, what); });
                break;
            case layers:
                one<WholeLayers>(events, [&](WholeLayers& whole) { return readLayers(whole.layers); });
                break;
            case layer:
                one<LayerChange>(events, [&](LayerChange& change) { return readLayerEdit(change.edit); });
                break;
            default:
                return false;
        }
    }
    for (RecordedEvent& event : events)
        event.time = time;
    if (!_reader.failed() && members.count() == int(members.has(at)))
        return _reader.fail(QStringLiteral("the line says nothing that is to be done"));
    return _reader.finish();
}

bool EventReader::readStroke(StrokePart& part) {
    enum { device, begins, end, samples };
    static const QStringList kMembers{"device", "begins", "end", "samples"};
    JsonMembers members(_reader, kMembers);
    QString name;
    _reader.beginObject();
    while (_reader.nextMember(name)) {
        switch (members.place(name)) {
            case device:
                readWord(_reader, kDeviceNames, part.device);
                break;
            case begins:
                _reader.readBoolean(part.begins);
                break;
            case end:
                readWord(_reader, kEndNames, part.end);
                break;
            case samples:
                readSamples(part);
                break;
            default:
                return false;
        }
    }
    if (_reader.failed())
        return false;
    const bool needsSample = part.begins || part.end == StrokePart::End::ended;
    return !part.samples.empty() || !needsSample ||
           _reader.fail(QStringLiteral("a stroke needs at least one sample"));
}

bool EventReader::readSamples(StrokePart& part) {
    for (_reader.beginList(); _reader.nextElement();) {
        RecordedSample sample;
        if (!readSample(_reader, sample))
            return false;
        part.samples.push_back(sample);
    }
    return !_reader.failed();
}

bool EventReader::readBrush(std::vector<RecordedEvent>& events) {
    QString name;
    _reader.beginObject();
    while (_reader.nextMember(name)) {
        const BrushProperty* property = brushPropertyNamed(name);
        if (!property)
            return _reader.fail(unknownProperty(name));
        BrushChange change{property->key, {}};
        if (!readValue(*property, change.value))
            return false;
        events.push_back({0, std::move(change)});
    }
    return !_reader.failed();
}

bool EventReader::readValue(const BrushProperty& property, BrushValue& value) {
    switch (property.type()) {
        case BrushValueType::boolean:
            return _reader.readBoolean(value.emplace<bool>());
        case BrushValueType::integer: {
            constexpr double kMost = std::numeric_limits<std::int32_t>::max();
            return readWhole(_reader, -kMost - 1, kMost, value.emplace<int>());
        }
        case BrushValueType::real:
            return readFloat(_reader, value.emplace<float>());
        case BrushValueType::control: {
            double numbers[3] = {};
            const bool isRead = readNumbers(_reader, numbers);
            value = LPControlParams{float(numbers[0]), float(numbers[1]), float(numbers[2])};
            return isRead;
        }
        case BrushValueType::color:
            return readColor(_reader, value.emplace<ESColor>());
        case BrushValueType::image:
            return readPicture(value.emplace<QImage>());
        case BrushValueType::images:
            return readPictures(value.emplace<QList<QImage>>());
        case BrushValueType::text:
            break;
    }
    return _reader.readText(value.emplace<QString>());
}

bool EventReader::readClear(ClearedCanvas& cleared) {
    enum { color, layers };
    static const QStringList kMembers{"color", "layers"};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        place == color ? readColor(_reader, cleared.color) : _reader.readBoolean(cleared.layersToo);
    });
}

bool EventReader::readImage(InputImage& placed) {
    static const QStringList kMembers{"picture", "width",    "height", "x",        "y",
                                      "radian",  "replaces", "isUndo", "neglects", "scissor"};
    enum { picture, width, replaces = 6, scissor = 9 };
    double numbers[5] = {};
    bool flags[3] = {};
    const bool isRead = JsonMembers(_reader, kMembers).readObject([&](int place) {
        if (place == picture) {
            readPicture(placed.image);
        } else if (place < replaces) {
            _reader.readNumber(numbers[place - width]);
        } else if (place < scissor) {
            _reader.readBoolean(flags[place - replaces]);
        } else {
            readScissor(placed.limits);
        }
    });
    if (isRead && placed.image.isNull())
        return _reader.fail(QStringLiteral("the image has no \"picture\""));
    placed.size = {numbers[0], numbers[1]};
    placed.centre = {numbers[2], numbers[3]};
    placed.radian = numbers[4];
    placed.replaces = flags[0];
    placed.isUndo = flags[1];
    placed.limits.neglects = flags[2];
    return isRead;
}

bool EventReader::readPreview(InputLimits& limits) {
    enum { neglects, scissor };
    static const QStringList kMembers{"neglects", "scissor"};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        place == neglects ? _reader.readBoolean(limits.neglects) : readScissor(limits);
    });
}

bool EventReader::readArea(QRect& area) {
    double box[4] = {};
    if (!readNumbers(_reader, box))
        return false;
    for (const double number : box) {
        if (number != std::floor(number) || std::abs(number) > kFarthest)
            return _reader.fail(QStringLiteral("expected whole numbers of pixels"));
    }
    area = QRect(int(box[0]), int(box[1]), int(box[2]), int(box[3]));
    const QString refusal = sizeRefusal(area.width(), area.height());
    return refusal.isEmpty() || _reader.fail(refusal);
}

bool EventReader::readView(ViewChange& change) {
    enum { radian, mirrored };
    static const QStringList kMembers{"radian", "mirrored"};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        place == radian ? readFloat(_reader, change.radian) : _reader.readBoolean(change.mirrored);
    });
}

void EventReader::readOfLayer(int place, LayerSettings& settings, QImage& picture) {
    enum { name, opacity, blend, visible, locksAlpha };
    switch (place) {
        case name:
            _reader.readText(settings.name);
            break;
        case opacity:
            readFloat(_reader, settings.opacity);
            break;
        case blend:
            readWhole(_reader, 0, std::numeric_limits<std::uint32_t>::max(), settings.blendType);
            break;
        case visible:
            _reader.readBoolean(settings.isVisible);
            break;
        case locksAlpha:
            _reader.readBoolean(settings.locksAlpha);
            break;
        default:
            readPicture(picture);
    }
}

bool EventReader::readLayers(InputLayers& layers) {
    enum { active, all };
    static const QStringList kMembers{"active", "all"};
    const bool isRead = JsonMembers(_reader, kMembers).readObject([&](int place) {
        if (place == active) {
            readWhole(_reader, 0, kMostLayers - 1, layers.active);
            return;
        }
        for (_reader.beginList(); _reader.nextElement();) {
            InputLayers::One layer;
            if (layers.all.size() == std::size_t{kMostLayers})
                return void(_reader.fail(QStringLiteral("more than %1 layers").arg(kMostLayers)));
            if (!JsonMembers(_reader, kLayerMembers).readObject([&](int of) {
                    readOfLayer(of, layer.settings, layer.picture);
                }))
                return;
            layers.all.push_back(std::move(layer));
        }
    });
    return isRead && (std::size_t(layers.active) < layers.all.size() ||
                      _reader.fail(QStringLiteral("there is no layer %1").arg(layers.active)));
}

bool EventReader::readLayerEdit(InputLayerEdit& edit) {
    enum { what, number, to, first };
    static const QStringList kMembers = QStringList{"do", "number", "to"} + kLayerMembers;
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        if (place == what)
            readWord(_reader, kLayerEditNames, edit.kind);
        else if (place < first)
            readWhole(_reader, 0, kMostLayers, place == to ? edit.to : edit.layer);
        else
            readOfLayer(place - first, edit.settings, edit.picture);
    });
}

bool EventReader::readSymmetry(Symmetry& symmetry) {
    enum { kind, x, y, rays, mirrored };
    static const QStringList kMembers{"kind", "x", "y", "rays", "mirrored"};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        switch (place) {
            case kind:
                readWord(_reader, kSymmetryNames, symmetry.kind);
                break;
            case x:
                _reader.readNumber(symmetry.centreX);
                break;
            case y:
                _reader.readNumber(symmetry.centreY);
                break;
            case rays:
                readWhole(_reader, kFewestRays, kMostRays, symmetry.rays);
                break;
            default:
                _reader.readBoolean(symmetry.mirrored);
        }
    });
}

bool EventReader::readScissor(InputLimits& limits) {
    double box[4] = {};
    const bool isRead = readNumbers(_reader, box);
    limits.scissor = QRectF(box[0], box[1], box[2], box[3]);
    return isRead;
}

bool EventReader::readShape(ShapeRecord& shape) {
    static const QStringList kMembers{"kind", "corners",  "x",          "y",       "a",
                                      "b",    "rotation", "startAngle", "endAngle"};
    enum { kind, corners, first };
    double* const numbers[] = {&shape.centre.x, &shape.centre.y,   &shape.a,       &shape.b,
                               &shape.rotation, &shape.startAngle, &shape.endAngle};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        if (place == kind) {
            readWord(_reader, kShapeNames, shape.kind);
        } else if (place >= first) {
            _reader.readNumber(*numbers[place - first]);
        } else {
            for (_reader.beginList(); _reader.nextElement();) {
                double corner[2] = {};
                if (!readNumbers(_reader, corner))
                    return;
                shape.corners.push_back({corner[0], corner[1]});
            }
        }
    });
}

bool EventReader::readPictures(QList<QImage>& images) {
    for (_reader.beginList(); _reader.nextElement();) {
        QImage image;
        if (!readPicture(image))
            return false;
        images << image;
    }
    return !_reader.failed();
}

// Embedded, or the number of one that was.
bool EventReader::readPicture(QImage& image) {
    if (_reader.peek() == Kind::null)
        return _reader.readNull();
    enum { png, number, density };
    static const QStringList kMembers{"png", "number", "density"};
    JsonMembers members(_reader, kMembers);
    double ratio = 1;
    QString name;
    _reader.beginObject();
    while (_reader.nextMember(name)) {
        const int place = members.place(name);
        if (place == png) {
            QByteArray text;
            _reader.readBytes(text);
            if (_reader.failed())
                return false;
            auto read = pictureEmbedded(QByteArray::fromBase64(text), kMostPixels - _pictures.pixels);
            if (!read)
                return _reader.fail(read.problem().what);
            image = std::move(*read);
            _pictures.pixels += qint64(image.width()) * image.height();
            _pictures.images.push_back(image);
        } else if (place == number) {
            std::size_t which = 0;
            if (_pictures.images.empty())
                return _reader.fail(QStringLiteral("no picture comes before"));
            if (!readWhole(_reader, 0, double(_pictures.images.size()) - 1, which))
                return false;
            image = _pictures.images[which];
        } else if (place < 0 || !_reader.readNumber(ratio)) {
            return false;
        }
    }
    if (_reader.failed())
        return false;
    if (members.has(png) == members.has(number))
        return _reader.fail(QStringLiteral("a picture is {\"png\": ...} or {\"number\": ...}"));
    if (!(ratio >= 0.01 && ratio <= 100))
        return _reader.fail(QStringLiteral("the density is out of range"));
    image.setDevicePixelRatio(ratio);
    return true;
}

}  // namespace dabcanvas
