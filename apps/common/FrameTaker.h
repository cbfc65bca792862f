// SPDX-License-Identifier: MIT
// Takes the frames of a timelapse, one after another.
#pragma once

#include <QImage>
#include <QString>
#include <memory>

namespace dabcanvas {

class FrameTaker {
public:
    virtual ~FrameTaker() = default;
    // Both give the message when it could not be done.
    virtual QString add(const QImage& frame) = 0;
    virtual QString finish() = 0;
    // Takes back what was written, and nothing else.
    virtual void discard() {}
};

// An animated WebP, or for any other name a folder of numbered PNG files. The message where that cannot be.
QString makeFrameTaker(const QString& path, std::unique_ptr<FrameTaker>& taker);

}  // namespace dabcanvas
