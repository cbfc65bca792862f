// SPDX-License-Identifier: MIT
// Any bytes, read as the recording of a canvas, whole and line by line. What is read can be written, and read again as so
// many events.
#include <QBuffer>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Recording/RecordingPlayer.h"
#include "Recording/RecordingReader.h"
#include "Recording/RecordingWriter.h"

using namespace dabcanvas;

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "RecordingReadFuzz: %s\n", what);
    std::abort();
}

void writeAndReadAgain(const Recording& recording) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!writeRecording(recording, file)) {
        fail("it cannot be written");
    }
    const auto again = readRecording(file.data());
    if (!again) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(again.problem().text(QStringLiteral("again"))));
        fail("what was written cannot be read");
    }
    if (again->events.size() != recording.events.size() || again->header.size != recording.header.size ||
        durationOf(*again) != durationOf(recording)) {
        fail("what was written is something else");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto recording = readRecording(bytes)) {
        writeAndReadAgain(*recording);
    } else if (recording.problem().what.isEmpty()) {
        fail("refused without a reason");
    }
    RecordingReader reader;
    int number = 0;
    for (const QByteArray& line : bytes.split('\n')) {
        const auto events = reader.readLine(line, ++number);
        if (!events && events.problem().what.isEmpty()) {
            fail("a line is refused without a reason");
        }
        if (events && !events->empty()) {
            Recording one;
            one.header.size = {9, 9};
            one.events = *events;
            writeAndReadAgain(one);
        }
    }
    return 0;
}
