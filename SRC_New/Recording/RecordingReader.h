// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <memory>
#include <vector>

#include "Maths/Export.h"
#include "Recording/Problem.h"
#include "Recording/Recording.h"

namespace dabcanvas {

struct EmbeddedPictures;

/// Reads what RecordingWriter writes, line by line: the header's first, then all others in their order, as a picture is
/// embedded once. readRecording() does so with a whole one.
///
/// Errors   the first fault, with its line and its place in it; lines before it are good. What a line claims is
///          checked: numbers are finite and in reach, pictures have at most 2^28 pixels together.
class DABCANVAS_RECORDING_API RecordingReader {
public:
    RecordingReader();
    ~RecordingReader();
    RecordingReader(const RecordingReader&) = delete;
    RecordingReader& operator=(const RecordingReader&) = delete;

    /// `number`: the line's, for messages.
    Result<RecordingHeader> readHeader(QByteArrayView line, int number);
    /// What one line holds; a brush's may hold several changes.
    Result<std::vector<RecordedEvent>> readLine(QByteArrayView line, int number);

private:
    std::unique_ptr<EmbeddedPictures> _pictures;
};

/// Whether the bytes begin as a recording does.
DABCANVAS_RECORDING_API bool isRecording(const QByteArray& bytes);
/// All of a recording.
DABCANVAS_RECORDING_API Result<Recording> readRecording(const QByteArray& bytes);

}  // namespace dabcanvas
