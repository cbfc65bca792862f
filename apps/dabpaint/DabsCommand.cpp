// SPDX-License-Identifier: MIT
#include "DabsCommand.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>

#include "Console.h"
#include "LineProcess/LPLineProcess.h"
#include "Recording/CloseNames.h"
#include "Recording/Numbers.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr std::size_t kPiece = 1 << 16;  // bytes of rows gathered before they are written
constexpr const char* kHeader = "sample,x,y,radius,pressure,altitude,speed\n";

enum class LineType { real, integer, boolean, control };

struct LineProperty {
    const char* name;
    LineType type;
    int id;  // a control has three of its own
};

constexpr LineProperty kLineProperties[] = {
    {"radius", LineType::real, 1},
    {"pointsDistanceEnabled", LineType::boolean, 2},
    {"pointsDistance", LineType::real, 3},
    {"radiusTingle", LineType::real, 5},
    {"radiusControl", LineType::control, 0},
    {"minRadius", LineType::real, 9},
    {"maxRadius", LineType::real, 10},
    {"smoothEnabled", LineType::boolean, 11},
    {"speedSencitive", LineType::real, 13},
    {"sensitivity", LineType::real, 14},
    {"startRadius", LineType::real, 15},
    {"endRadius", LineType::real, 16},
    {"trackNum", LineType::integer, 17},
    {"strokeControlValue", LineType::real, 18},
    {"minPointsDistance", LineType::real, 20},
};
constexpr int kControlIds[] = {7, 8, 6};  // pressure, altitude, speed

const LineProperty* linePropertyNamed(const QString& name) {
    for (const LineProperty& row : kLineProperties) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

bool isFloat(double value) {
    return std::abs(value) <= double(std::numeric_limits<float>::max());
}

// Sends a value to the selected record when it is of the property's type; with `send` off only tells whether
// it is.
bool takeValue(const LineProperty& row, const SettingValue& value, bool send) {
    const auto* number = std::get_if<double>(&value);
    switch (row.type) {
        case LineType::real:
            if (!number || !isFloat(*number))
                return false;
            if (send)
                lpSetPropertyf(row.id, float(*number));
            return true;
        case LineType::integer:
            if (!number || *number != std::floor(*number) ||
                std::abs(*number) > std::numeric_limits<std::int32_t>::max())
                return false;
            if (send)
                lpSetPropertyi(row.id, std::int32_t(*number));
            return true;
        case LineType::boolean: {
            const auto* boolean = std::get_if<bool>(&value);
            if (!boolean && !(number && (*number == 0 || *number == 1)))
                return false;
            if (send)
                lpSetPropertyb(row.id, boolean ? *boolean : *number == 1);
            return true;
        }
        case LineType::control:
            break;
    }
    const auto* numbers = std::get_if<std::vector<double>>(&value);
    if (!numbers || numbers->size() != std::size(kControlIds))
        return false;
    for (const double part : *numbers) {
        if (!isFloat(part))
            return false;
    }
    for (std::size_t i = 0; send && i < std::size(kControlIds); ++i)
        lpSetPropertyf(kControlIds[i], float((*numbers)[i]));
    return true;
}

const char* expectedOf(LineType type) {
    switch (type) {
        case LineType::real:
            return "expected a number that fits 32 bits";
        case LineType::integer:
            return "expected a whole number of 32 bits";
        case LineType::boolean:
            return "expected true or false";
        case LineType::control:
            break;
    }
    return "expected [pressure, altitude, speed]";
}

std::optional<Problem> checkSettings(const DabsInput& input) {
    for (const RecordedStroke& stroke : input.strokes) {
        for (const Setting& setting : stroke.settings) {
            const LineProperty* row = linePropertyNamed(setting.name);
            if (!row) {
                QStringList names;
                for (const LineProperty& known : kLineProperties)
                    names << QLatin1String(known.name);
                return Problem{setting.line, setting.element,
                               QStringLiteral("no line property has this name%1")
                                   .arg(closeNamesHint(setting.name, names))};
            }
            if (!takeValue(*row, setting.value, false))
                return Problem{setting.line, setting.element, QLatin1String(expectedOf(row->type))};
        }
    }
    return std::nullopt;
}

class DabsWriter {
public:
    explicit DabsWriter(const std::function<void(std::string_view)>& write) : _write(write) {}

    // False when there was no memory for the dabs of a segment.
    bool stroke(const RecordedStroke& stroke) {
        for (const Setting& setting : stroke.settings)
            takeValue(*linePropertyNamed(setting.name), setting.value, true);
        const auto& samples = stroke.samples;
        for (std::size_t i = 0; i < samples.size(); ++i, ++_sample) {
            const LPPosition position{float(samples[i].x), float(samples[i].y)};
            if (i == 0) {
                lpStartLineWithParams(position, samples[i].pressure, samples[i].altitude);
                continue;
            }
            const bool end = stroke.end && i + 1 == samples.size();
            const auto count =
                lpAppendingLineWithParams(position, samples[i].pressure, samples[i].altitude, end);
            if (count > 0 && !rows(count))
                return false;
        }
        return true;
    }

    void flush() {
        _write(_text);
        _text.clear();
    }

private:
    bool rows(std::int32_t count) {
        LPPoint* raw = nullptr;
        lpGetLastLineSegmentPoints1V(&raw);
        const std::unique_ptr<LPPoint[], decltype(&std::free)> dabs(raw, &std::free);
        if (!dabs)
            return false;
        for (std::int32_t i = 0; i < count; ++i)
            row(dabs[std::size_t(i)]);
        return true;
    }

    void row(const LPPoint& dab) {
        _text += std::to_string(_sample);
        for (const float value : {dab.position.x, dab.position.y, dab.radius, dab.params.pressure,
                                  dab.params.altitude, dab.params.speed}) {
            _text += ',';
            appendNumber(_text, value);
        }
        _text += '\n';
        if (_text.size() >= kPiece)
            flush();
    }

    const std::function<void(std::string_view)>& _write;
    std::string _text;
    std::uint64_t _sample = 0;
};

}  // namespace

std::optional<Problem> writeDabs(const DabsInput& input, const std::function<void(std::string_view)>& write) {
    if (auto problem = checkSettings(input))
        return problem;
    if (input.seed) {
        lpRandom();  // its first call seeds from the clock; after that the seed given here stays
        std::srand(*input.seed);
    }
    LPLineParams record = _lpDefaultParaObj;
    LPLineParams* const before = lpSetParaObj(&record);
    DabsWriter writer(write);
    bool done = true;
    for (const RecordedStroke& stroke : input.strokes)
        done = done && writer.stroke(stroke);
    lpSetParaObj(before);
    // A stroke left open keeps its trace; nothing follows it here.
    lpFreeTrace(&_lpTrace);
    writer.flush();
    if (!done)
        return Problem{0, {}, QStringLiteral("out of memory")};
    return std::nullopt;
}

int runDabs(const DabsOptions& options) {
    const auto bytes = readFile(options.input);
    if (!bytes)
        return fail(bytes.problem().text(options.input));
    const auto input = readDabsInput(*bytes);
    if (!input)
        return fail(input.problem().text(options.input));
    bool header = options.header;
    const auto problem = writeDabs(*input, [&header](std::string_view rows) {
        if (std::exchange(header, false))
            printOut(kHeader);
        printOut(rows);
    });
    if (problem)
        return fail(problem->text(options.input));
    return finishOut();
}

}  // namespace dabcanvas::dabpaint
