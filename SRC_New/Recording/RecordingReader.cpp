// SPDX-License-Identifier: MIT
#include "Recording/RecordingReader.h"

#include <cstring>
#include <iterator>
#include <limits>

#include "Recording/EventReader.h"
#include "Recording/JsonMembers.h"
#include "Recording/JsonValues.h"
#include "Recording/RecordingNames.h"
#include "Surface/SurfaceOptions.h"

namespace dabcanvas {

RecordingReader::RecordingReader() : _pictures(std::make_unique<EmbeddedPictures>()) {}
RecordingReader::~RecordingReader() = default;

Result<RecordingHeader> RecordingReader::readHeader(QByteArrayView line, int number) {
    static const QStringList kMembers{"dabcanvas", "version", "library",     "surface",   "seed",
                                      "width",     "height",  "canvasDepth", "layerDepth"};
    enum { mark, version, library, surface, seed, width, height, canvasDepth, layerDepth };
    JsonReader reader(line, number);
    JsonMembers members(reader, kMembers);
    RecordingHeader header;
    QString name, word;
    reader.beginObject();
    while (reader.nextMember(name)) {
        switch (const int place = members.place(name)) {
            case mark:
                if (reader.readText(word) && word != QLatin1String("recording"))
                    reader.fail(QStringLiteral("expected \"recording\""));
                break;
            case version:
                if (readWhole(reader, 1, 1e9, header.version) && header.version > kRecordingVersion)
                    reader.fail(QStringLiteral("the recording is of version %1; this program reads up to %2")
                                    .arg(header.version)
                                    .arg(kRecordingVersion));
                break;
            case library:
                reader.readText(header.library);
                break;
            case surface:
                reader.readText(header.surface);
                break;
            case seed:
                readWhole(reader, 0, std::numeric_limits<std::uint32_t>::max(), header.seed);
                break;
            case width:
            case height:
                readWhole(reader, 1, kLargestSide,
                          place == width ? header.size.rwidth() : header.size.rheight());
                break;
            case canvasDepth:
            case layerDepth: {
                int& depth = place == canvasDepth ? header.canvasDepth : header.layerDepth;
                if (readWhole(reader, 8, 16, depth) && !SurfaceOptions::isDepth(depth))
                    reader.fail(QStringLiteral("expected 8 or 16"));
                break;
            }
            default:
                break;
        }
    }
    if (!reader.failed() && !members.has(mark))
        reader.fail(QStringLiteral("the first line is not that of a recording"));
    if (!reader.failed() && !(members.has(version) && members.has(width) && members.has(height)))
        reader.fail(QStringLiteral("the first line needs version, width and height"));
    if (!reader.failed())
        if (const QString refusal = sizeRefusal(header.size.width(), header.size.height());
            !refusal.isEmpty())
            reader.fail(refusal);
    if (!reader.finish())
        return reader.problem();
    return header;
}

Result<std::vector<RecordedEvent>> RecordingReader::readLine(QByteArrayView line, int number) {
    JsonReader reader(line, number);
    std::vector<RecordedEvent> events;
    if (!EventReader(*_pictures, reader).read(events))
        return reader.problem();
    return events;
}

bool isRecording(const QByteArray& bytes) {
    // However it is spaced.
    return bytes.left(200).replace(' ', "").replace('\t', "").startsWith(kRecordingMark);
}

Result<Recording> readRecording(const QByteArray& bytes) {
    if (bytes.isEmpty())
        return Problem{0, {}, QStringLiteral("the recording is empty")};
    RecordingReader reader;
    Recording recording;
    const char* at = bytes.constData();
    const char* const end = at + bytes.size();
    for (int line = 1; at < end; ++line) {
        const auto* newline = static_cast<const char*>(std::memchr(at, '\n', std::size_t(end - at)));
        const QByteArrayView text(at, newline ? newline : end);
        at = newline ? newline + 1 : end;
        if (line == 1) {
            auto header = reader.readHeader(text, line);
            if (!header)
                return header.problem();
            recording.header = std::move(*header);
        } else if (!text.trimmed().isEmpty()) {
            auto events = reader.readLine(text, line);
            if (!events)
                return events.problem();
            std::move(events->begin(), events->end(), std::back_inserter(recording.events));
        }
    }
    return recording;
}

}  // namespace dabcanvas
