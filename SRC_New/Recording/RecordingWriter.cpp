// SPDX-License-Identifier: MIT
#include "Recording/RecordingWriter.h"

#include <QCryptographicHash>
#include <algorithm>
#include <charconv>
#include <type_traits>
#include <utility>

#include "Recording/EmbeddedPicture.h"
#include "Recording/RecordingNames.h"

namespace dabcanvas {

namespace {

// The fewest digits that read back as the same number, or as the same float.
template <typename Number>
requires std::is_arithmetic_v<Number>
void append(std::string& out, Number number) {
    char text[64];
    const auto written = std::to_chars(text, text + sizeof text, number);
    if constexpr (std::is_same_v<Number, float>) {
        double read = 0;  // as a reader has it
        std::from_chars(text, written.ptr, read);
        if (float(read) != number)
            return append(out, double(number));
    }
    out.append(text, written.ptr);
}

void append(std::string& out, bool value) {
    out += value ? "true" : "false";
}

void append(std::string& out, QStringView text) {
    out += '"';
    for (const char c : text.toUtf8()) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < ' ') {
            constexpr char kDigits[] = "0123456789abcdef";
            out += "\\u00";
            out += kDigits[c >> 4];
            out += kDigits[c & 15];
        } else {
            out += c;
        }
    }
    out += '"';
}

template <typename... Numbers>
void appendList(std::string& out, Numbers... numbers) {
    out += '[';
    bool first = true;
    ((out += std::exchange(first, false) ? "" : ",", append(out, numbers)), ...);
    out += ']';
}

void append(std::string& out, const ESColor& color) {
    out += '[';
    for (int i = 0; i < color.componentCount(); ++i) {
        out += i > 0 ? "," : "";
        append(out, color.component(i));
    }
    out += ']';
}

template <typename Value>
void member(std::string& out, const char* name, const Value& value) {
    out += out.empty() || out.back() == '{' ? "\"" : ",\"";
    out += name;
    out += "\":";
    append(out, value);
}

void open(std::string& out, const char* name, char bracket) {
    out += out.empty() || out.back() == '{' ? "\"" : ",\"";
    out += name;
    out += "\":";
    out += bracket;
}

}  // namespace

// One event's text, from "{" on, without the bracket that ends it.
class EventText {
public:
    EventText(RecordingWriter& writer, double time) : _writer(writer) {
        text += '{';
        member(text, "at", time);
    }

    void operator()(const StrokePart& part) {
        open(text, "stroke", '{');
        if (part.device != InputDevice::program)
            member(text, "device", QString::fromLatin1(kDeviceNames[std::size_t(part.device)]));
        if (!part.begins)
            member(text, "begins", false);
        if (part.end != StrokePart::End::ended)
            member(text, "end", QString::fromLatin1(kEndNames[std::size_t(part.end)]));
        open(text, "samples", '[');
        for (const RecordedSample& sample : part.samples) {
            text += text.back() == '[' ? "" : ",";
            appendList(text, sample.x, sample.y, sample.pressure, sample.altitude, sample.time);
        }
        text += "]}";
    }
    void operator()(const BrushChange& change) {
        open(text, "brush", '{');
        property(change);
    }
    // As a member of the brush that is open.
    void property(const BrushChange& change) {
        const char* name = brushProperty(change.key).name;
        std::visit(
            [&](const auto& value) {
                using Value = std::remove_cvref_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, LPControlParams>) {
                    open(text, name, '[');
                    text.pop_back();
                    appendList(text, value.pressure, value.altitude, value.speed);
                } else if constexpr (std::is_same_v<Value, QImage>) {
                    picture(name, value);
                } else if constexpr (std::is_same_v<Value, QList<QImage>>) {
                    open(text, name, '[');
                    for (const QImage& image : value) {
                        text += text.back() == '[' ? "" : ",";
                        text += _writer.picture(image);
                    }
                    text += ']';
                } else {
                    member(text, name, value);
                }
            },
            change.value);
    }
    void operator()(const SecondLineChange& change) {
        open(text, "secondLine", '[');
        text.pop_back();
        appendList(text, change.slRadius, change.relationValue);
    }
    void operator()(const SeedChange& change) { member(text, "seed", change.seed); }
    void operator()(const RepeatChange& change) { member(text, "repeatable", change.repeats); }
    void operator()(const ClearedCanvas& cleared) {
        open(text, "clear", '{');
        member(text, "color", cleared.color);
        if (!cleared.layersToo)
            member(text, "layers", false);
        text += '}';
    }
    void operator()(const InputImage& placed) {
        open(text, "image", '{');
        picture("picture", placed.image);
        for (const auto& [name, value] : {std::pair("width", placed.size.width()),
                                          {"height", placed.size.height()},
                                          {"x", placed.centre.x()},
                                          {"y", placed.centre.y()},
                                          {"radian", placed.radian}})
            member(text, name, value);
        for (const auto& [name, value] :
             {std::pair("replaces", placed.replaces), {"isUndo", placed.isUndo}}) {
            if (value)
                member(text, name, true);
        }
        limits(placed.limits);
        text += '}';
    }
    void operator()(const PlacedPreview& placed) {
        open(text, "preview", '{');
        limits(placed.limits);
        text += '}';
    }
    void operator()(const DrawnShape& drawn) {
        const ShapeRecord& shape = drawn.shape;
        open(text, "shape", '{');
        member(text, "kind", QString::fromLatin1(kShapeNames[std::size_t(shape.kind)]));
        open(text, "corners", '[');
        for (const ShapePoint& corner : shape.corners) {
            text += text.back() == '[' ? "" : ",";
            appendList(text, corner.x, corner.y);
        }
        text += ']';
        for (const auto& [name, value] : {std::pair("x", shape.centre.x),
                                          {"y", shape.centre.y},
                                          {"a", shape.a},
                                          {"b", shape.b},
                                          {"rotation", shape.rotation},
                                          {"startAngle", shape.startAngle},
                                          {"endAngle", shape.endAngle}})
            member(text, name, value);
        text += '}';
    }
    void operator()(const WholePicture& whole) { picture("picture", whole.picture); }
    void operator()(const WholeLayers& whole) {
        open(text, "layers", '{');
        member(text, "active", whole.layers.active);
        open(text, "all", '[');
        for (const InputLayers::One& layer : whole.layers.all) {
            text += text.back() == '[' ? "{" : ",{";
            settings(layer.settings);
            picture("picture", layer.picture);
            text += '}';
        }
        text += "]}";
    }
    void operator()(const LayerChange& change) {
        const InputLayerEdit& edit = change.edit;
        using Kind = InputLayerEdit::Kind;
        open(text, "layer", '{');
        member(text, "do", QString::fromLatin1(kLayerEditNames[std::size_t(edit.kind)]));
        member(text, "number", edit.layer);
        if (edit.kind == Kind::move)
            member(text, "to", edit.to);
        if (edit.kind == Kind::add || edit.kind == Kind::set)
            settings(edit.settings);
        if (edit.kind == Kind::add && !edit.picture.isNull())
            picture("picture", edit.picture);
        text += '}';
    }
    void operator()(const AreaChange& change) {
        open(text, "area", '[');
        text.pop_back();
        appendList(text, change.area.x(), change.area.y(), change.area.width(), change.area.height());
    }
    void operator()(const ViewChange& change) {
        open(text, "view", '{');
        member(text, "radian", change.radian);
        member(text, "mirrored", change.mirrored);
        text += '}';
    }
    void operator()(const Symmetry& symmetry) {
        open(text, "symmetry", '{');
        member(text, "kind", QString::fromLatin1(kSymmetryNames[std::size_t(symmetry.kind)]));
        member(text, "x", symmetry.centreX);
        member(text, "y", symmetry.centreY);
        member(text, "rays", symmetry.rays);
        member(text, "mirrored", symmetry.mirrored);
        text += '}';
    }
    void operator()(const SelectionChange& change) {
        open(text, "selection", '{');
        member(text, "winding", change.area.fillRule() == Qt::WindingFill);
        open(text, "outlines", '[');
        for (const QPolygonF& outline : change.area.toSubpathPolygons()) {
            text += text.back() == '[' ? "[" : ",[";
            for (const QPointF& at : outline) {
                text += text.back() == '[' ? "" : ",";
                appendList(text, at.x(), at.y());
            }
            text += ']';
        }
        text += "]}";
    }
    void operator()(const RecordedCall& call) {
        member(text, "do", QString::fromLatin1(kCallNames[std::size_t(call)]));
    }

    std::string text;

private:
    // Those that are other than a new layer's.
    void settings(const LayerSettings& settings) {
        const LayerSettings usual;
        if (settings.name != usual.name)
            member(text, "name", settings.name);
        if (settings.opacity != usual.opacity)
            member(text, "opacity", settings.opacity);
        if (settings.blendType != usual.blendType)
            member(text, "blend", settings.blendType);
        if (!settings.isVisible)
            member(text, "visible", false);
        if (settings.locksAlpha)
            member(text, "locksAlpha", true);
    }
    void limits(const InputLimits& limits) {
        if (limits.neglects)
            member(text, "neglects", true);
        if (const auto& box = limits.scissor) {
            open(text, "scissor", '[');
            text.pop_back();
            appendList(text, box->x(), box->y(), box->width(), box->height());
        }
    }
    void picture(const char* name, const QImage& image) {
        open(text, name, '[');
        text.pop_back();
        text += _writer.picture(image);
    }

    RecordingWriter& _writer;
};

// Embedded the first time, by number later.
std::string RecordingWriter::picture(const QImage& image) {
    if (image.isNull())
        return "null";
    const QByteArray png = embeddedPicture(image);
    if (png.isEmpty()) {
        _problem = QStringLiteral("there is no memory for a picture");
        return "null";
    }
    std::string text = "{";
    const QByteArray sum = QCryptographicHash::hash(png, QCryptographicHash::Sha256);
    const auto known = _pictures.constFind(sum);
    if (known != _pictures.constEnd()) {
        member(text, "number", known.value());
    } else {
        _pictures.insert(sum, int(_pictures.size()));
        member(text, "png", QString::fromLatin1(png.toBase64()));
    }
    if (image.devicePixelRatio() != 1)
        member(text, "density", image.devicePixelRatio());
    return text + '}';
}

void RecordingWriter::begin(const RecordingHeader& header) {
    _line = kRecordingMark;
    member(_line, "version", header.version);
    member(_line, "library", header.library);
    member(_line, "surface", header.surface);
    member(_line, "seed", header.seed);
    member(_line, "width", header.size.width());
    member(_line, "height", header.size.height());
    member(_line, "canvasDepth", header.canvasDepth);
    member(_line, "layerDepth", header.layerDepth);
    _line += '}';
    endLine();
}

void RecordingWriter::write(const RecordedEvent& event) {
    const auto* change = std::get_if<BrushChange>(&event.what);
    EventText writes(*this, event.time);
    if (change != nullptr && !_line.empty() && _lineTime == event.time &&
        std::find(_lineKeys.begin(), _lineKeys.end(), change->key) == _lineKeys.end()) {
        writes.text = std::move(_line);
        writes.property(*change);
    } else {
        if (!_line.empty()) {
            _line += "}}";
            endLine();
        }
        std::visit(writes, event.what);
    }
    _line = std::move(writes.text);
    if (change != nullptr) {  // the next one may join it
        _lineTime = event.time;
        _lineKeys.push_back(change->key);
        return;
    }
    _line += '}';
    endLine();
}

void RecordingWriter::endLine() {
    _line += '\n';
    if (_problem.isEmpty() && _device.write(_line.data(), qint64(_line.size())) != qint64(_line.size()))
        _problem = _device.errorString();
    _line.clear();
    _lineKeys.clear();
}

bool RecordingWriter::finish() {
    if (!_line.empty()) {
        _line += "}}";
        endLine();
    }
    return _problem.isEmpty();
}

bool writeRecording(const Recording& recording, QIODevice& device) {
    RecordingWriter writer(device);
    writer.begin(recording.header);
    for (const RecordedEvent& event : recording.events)
        writer.write(event);
    return writer.finish();
}

}  // namespace dabcanvas
