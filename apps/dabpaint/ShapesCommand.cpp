// SPDX-License-Identifier: MIT
#include "ShapesCommand.h"

#include <algorithm>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "Console.h"
#include "OutputFile.h"
#include "Recognition/Unitily.h"
#include "Recording/Numbers.h"
#include "Recording/StrokesCsv.h"
#include "Recording/StrokesFile.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr const char* kHeader = "sample_id,kind,legs,confidence,geometry\n";
constexpr const char* kOutlinesHeader = "sample_id,x,y\n";
// Of a round outline, in parts of its larger half axis: within an eight thousandth of the curve.
constexpr double kRoundStep = 1.0 / 32;

struct Tables {
    std::string shapes;
    std::string outlines;
};

void appendGeometry(std::string& out, const ShapeRecord& shape) {
    std::vector<double> numbers;
    if (shape.isRound()) {
        numbers = {shape.centre.x, shape.centre.y,   shape.a,       shape.b,
                   shape.rotation, shape.startAngle, shape.endAngle};
    } else if (shape) {
        // An arrow's as it is drawn, over its tip twice; a closed one's once around.
        std::vector<ShapePoint> corners = outlineOfShape(shape);
        if (shape.isClosed())
            corners.pop_back();
        for (const ShapePoint& corner : corners)
            numbers.insert(numbers.end(), {corner.x, corner.y});
    }
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0)
            out += ' ';
        appendNumber(out, numbers[i]);
    }
}

void appendShape(Tables& tables, const NamedStroke& stroke, const ShapeRecord& shape, bool withOutline) {
    std::string& out = tables.shapes;
    appendCsvField(out, stroke.id);
    out += ',';
    out += nameOfShapeKind(shape.kind);
    out += ',';
    if (shape.kind == ShapeKind::foldLine)
        out += std::to_string(shape.legs());
    out += ',';
    appendNumber(out, shape.confidence);
    out += ',';
    appendGeometry(out, shape);
    out += '\n';
    if (!withOutline || !shape)
        return;
    for (const ShapePoint& point : outlineOfShape(shape, std::max(shape.a, shape.b) * kRoundStep)) {
        appendCsvField(tables.outlines, stroke.id);
        tables.outlines += ',';
        appendNumber(tables.outlines, point.x);
        tables.outlines += ',';
        appendNumber(tables.outlines, point.y);
        tables.outlines += '\n';
    }
}

// The rows of all strokes, in their order; every processor takes a part of them.
Tables recognised(const std::vector<NamedStroke>& strokes, bool withOutlines) {
    const std::size_t workers = std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, 64);
    const std::size_t share = strokes.size() / workers + 1;
    std::vector<std::future<Tables>> parts;
    for (std::size_t first = 0; first < strokes.size(); first += share) {
        const std::size_t last = std::min(first + share, strokes.size());
        parts.push_back(std::async(std::launch::async, [&strokes, first, last, withOutlines] {
            Tables tables;
            for (std::size_t i = first; i < last; ++i)
                appendShape(tables, strokes[i], Unitily::recogniseWithPoints(strokes[i].points),
                            withOutlines);
            return tables;
        }));
    }
    Tables all;
    for (std::future<Tables>& part : parts) {
        const Tables tables = part.get();
        all.shapes += tables.shapes;
        all.outlines += tables.outlines;
    }
    return all;
}

int tellUnwritable(const QString& path, const OutputFile& file) {
    return fail(QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString()));
}

}  // namespace

int runShapes(const ShapesOptions& options) {
    const bool withOutlines = !options.outlines.isEmpty();
    const QString wrong = overwritingRefusal(
        withOutlines ? QStringList{options.output, options.outlines} : QStringList(options.output),
        options.inputs);
    if (!wrong.isEmpty())
        return refuse(wrong);
    OutputFile output(options.output);
    OutputFile outlines(options.outlines);
    if (!output.check())
        return tellUnwritable(options.output, output);
    if (withOutlines && !outlines.check())
        return tellUnwritable(options.outlines, outlines);
    Tables tables{kHeader, kOutlinesHeader};
    for (const QString& path : options.inputs.isEmpty() ? QStringList(QStringLiteral("-")) : options.inputs) {
        const auto bytes = readFile(path);
        if (!bytes)
            return fail(bytes.problem().text(path));
        const auto strokes = readStrokesCsv(*bytes);
        if (!strokes)
            return fail(strokes.problem().text(path));
        const Tables rows = recognised(*strokes, withOutlines);
        tables.shapes += rows.shapes;
        tables.outlines += rows.outlines;
    }
    // Nothing is written before all is known.
    if (withOutlines && !outlines.write(QByteArray::fromStdString(tables.outlines)))
        return tellUnwritable(options.outlines, outlines);
    if (!output.write(QByteArray::fromStdString(tables.shapes)))
        return tellUnwritable(options.output, output);
    return kDone;
}

}  // namespace dabcanvas::dabpaint
