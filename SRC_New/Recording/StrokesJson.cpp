// SPDX-License-Identifier: MIT
#include "Recording/StrokesJson.h"

#include <QHash>
#include <cmath>
#include <limits>
#include <utility>

#include "Recording/JsonMembers.h"
#include "Recording/JsonReader.h"

namespace dabcanvas {

namespace {

// What a list of strokes may hold.
struct StrokeForm {
    // Positions and shares are checked, and "brush" is known; else any float is taken as it is, and "end" is known.
    bool painting;
    float missingAltitude;
};

bool readList(JsonReader& reader, SettingValue& value) {
    std::vector<double> numbers;
    QStringList texts;
    if (!reader.beginList())
        return false;
    while (reader.nextElement()) {
        const bool text = reader.peek() == JsonReader::Kind::text;
        if (text ? !numbers.empty() : !texts.isEmpty())
            return reader.fail(QStringLiteral("a list of both texts and other values"));
        if (text)
            reader.readText(texts.emplace_back());
        else
            reader.readNumber(numbers.emplace_back());
    }
    if (texts.isEmpty())
        value = std::move(numbers);
    else
        value = std::move(texts);
    return !reader.failed();
}

bool readSettingValue(JsonReader& reader, SettingValue& value) {
    switch (reader.peek()) {
        case JsonReader::Kind::boolean:
            return reader.readBoolean(value.emplace<bool>());
        case JsonReader::Kind::number:
            return reader.readNumber(value.emplace<double>());
        case JsonReader::Kind::text:
            return reader.readText(value.emplace<QString>());
        case JsonReader::Kind::list:
            return readList(reader, value);
        default:
            return reader.failExpecting("a number, true or false, a text or a list");
    }
}

bool readSettings(JsonReader& reader, std::vector<Setting>& settings) {
    QHash<QString, bool> seen;
    QString name;
    reader.beginObject();
    while (reader.nextMember(name)) {
        if (std::exchange(seen[name], true))
            return reader.fail(QStringLiteral("given twice"));
        Setting setting{name, {}, reader.line(), reader.path()};
        if (readSettingValue(reader, setting.value))
            settings.push_back(std::move(setting));
    }
    return !reader.failed();
}

bool checkSample(JsonReader& reader, const double (&numbers)[4], int count, bool painting) {
    if (count < 2)
        return reader.fail(
            QStringLiteral("a sample is [x, y], [x, y, pressure] or [x, y, pressure, altitude]"));
    if (!painting) {
        for (int i = 0; i < count; ++i) {
            if (std::abs(numbers[i]) > double(std::numeric_limits<float>::max()))
                return reader.fail(QStringLiteral("number out of range"));
        }
        return true;
    }
    if (std::abs(numbers[0]) > kFarthest || std::abs(numbers[1]) > kFarthest)
        return reader.fail(
            QStringLiteral("the position is out of range: at most %1 either way").arg(kFarthest, 0, 'f', 0));
    for (int i = 2; i < count; ++i) {
        if (numbers[i] != -1 && !(numbers[i] >= 0 && numbers[i] <= 1)) {
            return reader.fail(i == 2 ? QStringLiteral("the pressure is not from 0 to 1 (or -1 for none)")
                                      : QStringLiteral("the altitude is not from 0 to 1 (or -1 for none)"));
        }
    }
    return true;
}

bool readSamples(JsonReader& reader, std::vector<RecordedSample>& samples, const StrokeForm& form) {
    reader.beginList();
    while (reader.nextElement()) {
        double numbers[4] = {0, 0, -1, form.missingAltitude};
        int count = 0;
        reader.beginList();
        for (; reader.nextElement(); ++count) {
            if (count == 4)
                return reader.fail(
                    QStringLiteral("more than 4 numbers; a sample is [x, y, pressure, altitude]"));
            if (!reader.readNumber(numbers[count]))
                return false;
        }
        if (reader.failed() || !checkSample(reader, numbers, count, form.painting))
            return false;
        samples.push_back({numbers[0], numbers[1], float(numbers[2]), float(numbers[3])});
    }
    return !reader.failed();
}

bool readBrushReference(JsonReader& reader, std::optional<BrushReference>& brush) {
    brush = BrushReference{{}, reader.line(), reader.path()};
    if (reader.readText(brush->path) && brush->path.isEmpty())
        return reader.fail(QStringLiteral("expected the path of an XBF file"));
    return !reader.failed();
}

bool readStroke(JsonReader& reader, RecordedStroke& stroke, const StrokeForm& form) {
    enum { set, samples, brush, end = brush };
    JsonMembers members(reader, {QStringLiteral("set"), QStringLiteral("samples"),
                                 form.painting ? QStringLiteral("brush") : QStringLiteral("end")});
    QString name;
    reader.beginObject();
    while (reader.nextMember(name)) {
        switch (members.place(name)) {
            case set:
                readSettings(reader, stroke.settings);
                break;
            case samples:
                readSamples(reader, stroke.samples, form);
                if (!reader.failed() && stroke.samples.empty())
                    reader.fail(QStringLiteral("a stroke needs at least one sample"));
                break;
            case end:
                if (form.painting)
                    readBrushReference(reader, stroke.brush);
                else
                    reader.readBoolean(stroke.end);
                break;
            default:
                return false;
        }
    }
    if (!reader.failed() && !members.has(samples))
        reader.fail(QStringLiteral("the stroke has no \"samples\""));
    return !reader.failed();
}

bool readStrokes(JsonReader& reader, std::vector<RecordedStroke>& strokes, const StrokeForm& form) {
    reader.beginList();
    while (reader.nextElement()) {
        if (!readStroke(reader, strokes.emplace_back(), form))
            return false;
    }
    return !reader.failed();
}

bool readSide(JsonReader& reader, int& side) {
    double value = 0;
    if (!reader.readNumber(value))
        return false;
    if (value != std::floor(value) || value < 1 || value > kLargestSide)
        return reader.fail(QStringLiteral("expected a whole number from 1 to %1").arg(kLargestSide));
    side = int(value);
    return true;
}

bool readCanvas(JsonReader& reader, RecordedStrokes& recording) {
    enum { width, height, background };
    JsonMembers members(reader,
                        {QStringLiteral("width"), QStringLiteral("height"), QStringLiteral("background")});
    QSize size;
    QString name;
    reader.beginObject();
    while (reader.nextMember(name)) {
        switch (members.place(name)) {
            case width:
                readSide(reader, size.rwidth());
                break;
            case height:
                readSide(reader, size.rheight());
                break;
            case background:
                recording.backgroundLine = reader.line();
                reader.readText(recording.background);
                break;
            default:
                return false;
        }
    }
    if (reader.failed())
        return false;
    if (members.has(width) != members.has(height))
        return reader.fail(QStringLiteral("width and height must be given together"));
    if (members.has(width)) {
        const QString refusal = sizeRefusal(size.width(), size.height());
        if (!refusal.isEmpty())
            return reader.fail(refusal);
        recording.size = size;
    }
    return true;
}

bool readSeed(JsonReader& reader, std::optional<std::uint32_t>& seed) {
    double value = 0;
    if (!reader.readNumber(value))
        return false;
    if (value != std::floor(value) || value < 0 || value > std::numeric_limits<std::uint32_t>::max())
        return reader.fail(QStringLiteral("expected a whole number from 0 to 4294967295"));
    seed = std::uint32_t(value);
    return true;
}

// Walks the outermost object; `others` are its members besides "strokes", which `readOther` reads by their place.
template <typename ReadOther>
bool readTop(JsonReader& reader, const QStringList& others, ReadOther readOther,
             std::vector<RecordedStroke>& strokes, const StrokeForm& form) {
    const int last = int(others.size());
    JsonMembers members(reader, others + QStringList(QStringLiteral("strokes")));
    QString name;
    reader.beginObject();
    while (reader.nextMember(name)) {
        const int place = members.place(name);
        if (place < 0 || !(place == last ? readStrokes(reader, strokes, form) : readOther(place)))
            return false;
    }
    if (reader.failed())
        return false;
    if (!members.has(last))
        return reader.fail(QStringLiteral("there is no \"strokes\""));
    return reader.finish();
}

}  // namespace

Result<RecordedStrokes> readStrokesJson(const QByteArray& bytes) {
    JsonReader reader(bytes);
    RecordedStrokes recording;
    const auto readOther = [&](int place) {
        return place == 0 ? readCanvas(reader, recording) : readBrushReference(reader, recording.brush);
    };
    const bool read = readTop(reader, {QStringLiteral("canvas"), QStringLiteral("brush")}, readOther,
                              recording.strokes, {.painting = true, .missingAltitude = -1});
    if (!read)
        return reader.problem();
    return recording;
}

Result<DabsInput> readDabsInput(const QByteArray& bytes) {
    JsonReader reader(bytes);
    DabsInput input;
    const bool read =
        readTop(reader, {QStringLiteral("srand")}, [&](int) { return readSeed(reader, input.seed); },
                input.strokes, {.painting = false, .missingAltitude = 0});
    if (!read)
        return reader.problem();
    return input;
}

}  // namespace dabcanvas
