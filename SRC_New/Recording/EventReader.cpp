// SPDX-License-Identifier: MIT
#include "Recording/EventReader.h"

#include <limits>
#include <utility>

#include "Recording/EmbeddedPicture.h"
#include "Recording/JsonMembers.h"
#include "Recording/JsonValues.h"
#include "Recording/PropertyValue.h"
#include "Recording/RecordingNames.h"

namespace dabcanvas {

namespace {

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
    if (reader.peek() == JsonReader::Kind::text) {
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

// What a line says, by its member.
struct EventReader::Line {
    const char* name;
    bool (EventReader::*read)(std::vector<RecordedEvent>& events);
};
const EventReader::Line EventReader::kLines[] = {
    {"stroke", &EventReader::one<StrokePart, &EventReader::readStroke>},
    {"brush", &EventReader::readBrush},
    {"secondLine", &EventReader::one<SecondLineChange, &EventReader::readSecondLine>},
    {"seed", &EventReader::one<SeedChange, &EventReader::readSeed>},
    {"repeatable", &EventReader::one<RepeatChange, &EventReader::readRepeats>},
    {"clear", &EventReader::one<ClearedCanvas, &EventReader::readClear>},
    {"image", &EventReader::one<InputImage, &EventReader::readImage>},
    {"preview", &EventReader::one<PlacedPreview, &EventReader::readPreview>},
    {"shape", &EventReader::one<DrawnShape, &EventReader::readShape>},
    {"picture", &EventReader::one<WholePicture, &EventReader::readWholePicture>},
    {"area", &EventReader::one<AreaChange, &EventReader::readArea>},
    {"view", &EventReader::one<ViewChange, &EventReader::readView>},
    {"symmetry", &EventReader::one<Symmetry, &EventReader::readSymmetry>},
    {"selection", &EventReader::one<SelectionChange, &EventReader::readSelection>},
    {"do", &EventReader::one<RecordedCall, &EventReader::readCall>},
    {"layers", &EventReader::one<WholeLayers, &EventReader::readLayers>},
    {"layer", &EventReader::one<LayerChange, &EventReader::readLayerEdit>},
};

bool EventReader::read(std::vector<RecordedEvent>& events) {
    static const QStringList kNames = [] {
        QStringList names{QStringLiteral("at")};
        for (const Line& line : kLines)
            names << QLatin1String(line.name);
        return names;
    }();
    JsonMembers members(_reader, kNames);
    double time = 0;
    QString name;
    _reader.beginObject();
    while (_reader.nextMember(name)) {
        const int place = members.place(name);
        if (place < 0)
            return false;
        if (place > 0 && !events.empty())
            return _reader.fail(QStringLiteral("a line is one thing only"));
        place == 0 ? _reader.readNumber(time) : (this->*kLines[place - 1].read)(events);
    }
    for (RecordedEvent& event : events)
        event.time = time;
    if (!_reader.failed() && members.count() == int(members.has(0)))
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

bool EventReader::readSecondLine(SecondLineChange& change) {
    double numbers[2] = {};
    const bool isRead = readNumbers(_reader, numbers);
    change = {float(numbers[0]), float(numbers[1])};
    return isRead;
}

bool EventReader::readSeed(SeedChange& change) {
    return readWhole(_reader, 0, std::numeric_limits<std::uint32_t>::max(), change.seed);
}

bool EventReader::readRepeats(RepeatChange& change) {
    return _reader.readBoolean(change.repeats);
}

bool EventReader::readCall(RecordedCall& call) {
    return readWord(_reader, kCallNames, call);
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

bool EventReader::readPreview(PlacedPreview& placed) {
    enum { neglects, scissor };
    static const QStringList kMembers{"neglects", "scissor"};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        place == neglects ? _reader.readBoolean(placed.limits.neglects) : readScissor(placed.limits);
    });
}

bool EventReader::readArea(AreaChange& change) {
    double box[4] = {};
    if (!readNumbers(_reader, box))
        return false;
    for (const double number : box) {
        if (number != std::floor(number) || std::abs(number) > kFarthest)
            return _reader.fail(QStringLiteral("expected whole numbers of pixels"));
    }
    change.area = QRect(int(box[0]), int(box[1]), int(box[2]), int(box[3]));
    const QString refusal = sizeRefusal(change.area.width(), change.area.height());
    return refusal.isEmpty() || _reader.fail(refusal);
}

bool EventReader::readView(ViewChange& change) {
    enum { radian, mirrored };
    static const QStringList kMembers{"radian", "mirrored"};
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        place == radian ? readFloat(_reader, change.radian) : _reader.readBoolean(change.mirrored);
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

template <typename Take>
bool EventReader::readPlaces(Take&& take) {
    for (_reader.beginList(); _reader.nextElement();) {
        double place[2] = {};
        if (!readNumbers(_reader, place))
            return false;
        take(place[0], place[1]);
    }
    return !_reader.failed();
}

bool EventReader::readSelection(SelectionChange& change) {
    enum { winding, outlines };
    static const QStringList kMembers{"winding", "outlines"};
    bool winds = false;
    const bool isRead = JsonMembers(_reader, kMembers).readObject([&](int member) {
        if (member == winding)
            return void(_reader.readBoolean(winds));
        for (_reader.beginList(); _reader.nextElement();) {
            QPolygonF outline;
            if (!readPlaces([&](double x, double y) { outline << QPointF(x, y); }))
                return;
            change.area.addPolygon(outline);
            change.area.closeSubpath();
        }
    });
    change.area.setFillRule(winds ? Qt::WindingFill : Qt::OddEvenFill);
    return isRead;
}

bool EventReader::readScissor(InputLimits& limits) {
    double box[4] = {};
    const bool isRead = readNumbers(_reader, box);
    limits.scissor = QRectF(box[0], box[1], box[2], box[3]);
    return isRead;
}

bool EventReader::readShape(DrawnShape& drawn) {
    ShapeRecord& shape = drawn.shape;
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
            readPlaces([&](double x, double y) { shape.corners.push_back({x, y}); });
        }
    });
}

}  // namespace dabcanvas
