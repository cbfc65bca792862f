// SPDX-License-Identifier: MIT
#include "Recording/StrokesFile.h"

#include <QFile>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "Recording/InkmlReader.h"
#include "Recording/RowsReader.h"
#include "Recording/StrokesJson.h"
#include "Recording/SvgReader.h"
#include "Recording/TableReader.h"
#include "Recording/XoppReader.h"

namespace dabcanvas {

namespace {

constexpr qint64 kLargestFile = qint64(1) << 30, kLargestUnpacked = qint64(1) << 28;

enum class Form { rows, table, inkml, svg, xopp, json, unknown };

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Of XML, by its outermost element.
Form formOfXml(const QByteArray& bytes) {
    QXmlStreamReader xml(bytes);
    if (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("svg"))
            return Form::svg;
        if (xml.name() == QLatin1String("xournal"))
            return Form::xopp;
    }
    return Form::inkml;
}

// The first byte that is not blank settles it, but for numbers, which garbage may start with too.
Form formOf(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return Form::inkml;  // UTF-16, which of the three only XML may be
    qsizetype at = bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    while (at < bytes.size() && isBlank(bytes[at]))
        ++at;
    if (at == bytes.size())
        return Form::unknown;
    const char c = bytes[at];
    if (c == '<')
        return formOfXml(bytes);
    if (c == '{')
        return Form::json;
    if (isTable(bytes))
        return Form::table;
    if (c != '#' && c != '-' && c != '.' && !(c >= '0' && c <= '9'))
        return Form::unknown;
    const auto window = bytes.cbegin() + std::min<qsizetype>(bytes.size(), 4096);
    const bool text = std::none_of(bytes.cbegin(), window,
                                   [](char byte) { return byte >= 0 && byte < ' ' && !isBlank(byte); });
    return text ? Form::rows : Form::unknown;
}

bool isBlankOnly(const QByteArray& bytes) {
    return std::all_of(bytes.cbegin(), bytes.cend(), isBlank);
}

Result<RecordedStrokes> readForm(const QByteArray& bytes) {
    switch (formOf(bytes)) {
        case Form::rows:
            return readRows(bytes);
        case Form::table:
            return readTable(bytes);
        case Form::svg:
            return readSvg(bytes);
        case Form::xopp:
            return readXopp(bytes);
        case Form::inkml:
            return readInkml(bytes);
        case Form::json:
            return readStrokesJson(bytes);
        case Form::unknown:
            break;
    }
    return Problem{1,
                   {},
                   QStringLiteral("not a recording I know: neither rows of numbers nor a table with columns "
                                  "x and y, nor InkML, SVG, a Xournal++ notebook or JSON")};
}

}  // namespace

Result<RecordedStrokes> readStrokes(const QByteArray& bytes) {
    if (isBlankOnly(bytes))
        return Problem{0, {}, QStringLiteral("the recording is empty")};
    if (bytes.startsWith("\x1F\x8B")) {
        const auto unpacked = unpackedGzip(bytes, kLargestUnpacked);
        if (!unpacked || unpacked->startsWith("\x1F\x8B"))
            return unpacked ? Problem{0, {}, QStringLiteral("it is packed more than once")}
                            : unpacked.problem();
        return readStrokes(*unpacked);
    }
    Result<RecordedStrokes> recording = readForm(bytes);
    if (!recording)
        return recording;
    const auto& strokes = recording->strokes;
    if (std::all_of(strokes.begin(), strokes.end(),
                    [](const auto& stroke) { return stroke.samples.empty(); }))
        return Problem{0, {}, QStringLiteral("the recording has no sample with the pen down")};
    return recording;
}

Result<QByteArray> readFile(const QString& path) {
    QFile file(path);
    const bool opened =
        path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!opened)
        return Problem{0, {}, QStringLiteral("cannot be read: %1").arg(file.errorString())};
    QByteArray bytes = file.read(kLargestFile + 1);
    if (file.error() != QFile::NoError)
        return Problem{0, {}, QStringLiteral("cannot be read: %1").arg(file.errorString())};
    if (bytes.size() > kLargestFile)
        return Problem{0, {}, QStringLiteral("cannot be read: larger than 1 GiB")};
    return bytes;
}

QRectF extentOf(const std::vector<RecordedStroke>& strokes) {
    bool any = false;
    double left = 0, top = 0, right = 0, bottom = 0;
    for (const RecordedStroke& stroke : strokes) {
        for (const RecordedSample& sample : stroke.samples) {
            left = any ? std::min(left, sample.x) : sample.x;
            top = any ? std::min(top, sample.y) : sample.y;
            right = any ? std::max(right, sample.x) : sample.x;
            bottom = any ? std::max(bottom, sample.y) : sample.y;
            any = true;
        }
    }
    return any ? QRectF(QPointF(left, top), QPointF(right, bottom)) : QRectF();
}

QSize neededSize(const RecordedStrokes& recording, double margin) {
    if (recording.size.isValid())
        return recording.size;
    const QRectF extent = extentOf(recording.strokes);
    const auto side = [margin](double last) { return std::max(1, int(std::ceil(last + margin))); };
    return {side(extent.right()), side(extent.bottom())};
}

QString sizeRefusal(qint64 width, qint64 height) {
    if (width < 1 || height < 1)
        return QStringLiteral("a canvas needs at least 1 pixel a side");
    if (width > kLargestSide || height > kLargestSide)
        return QStringLiteral("%1x%2 is too large: a canvas has at most %3 pixels a side")
            .arg(width)
            .arg(height)
            .arg(kLargestSide);
    if (width * height > kMostPixels)
        return QStringLiteral("%1x%2 is too large: a canvas has at most %3 pixels")
            .arg(width)
            .arg(height)
            .arg(kMostPixels);
    return {};
}

}  // namespace dabcanvas
