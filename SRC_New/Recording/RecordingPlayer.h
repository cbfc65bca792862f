// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>

#include "Maths/Export.h"
#include "Recording/Recording.h"

class QDDrawCanvas;

namespace dabcanvas {

class CanvasInput;

/// What is to be other than it was recorded.
struct PlayOptions {
    double scale = 1;
    std::optional<std::uint32_t> seed{};  ///< in place of the recording's
    std::set<BrushKey> fixed{};           ///< what the recording sets these to is left out
};

/// Plays a recording onto a canvas: at once, by the clock, or stroke by stroke; as large as it was, or at another size.
///
///     RecordingPlayer player(recording, *canvas, {.scale = 0.5});
///     if (!player.begin()) complain(player.problem());
///     while (player.playUntil(seconds * speed)) ...                        // or playAll(), or playStroke()
///
/// Canvas   of playedSize(), with the header's depths. It becomes what the recorded one was at the start; its automatic
///          steps are off while the player lives. Between two calls it may be looked at, nothing else.
/// Pixels   at scale 1 those of the recorded canvas, where the surface is the same, the canvas is shown as large as it
///          is, and its delegate moves no points; on another surface within 3/255. At another scale places, sizes of
///          dabs, paper and images are as much larger; what happens by chance is not the same.
/// Thread   the canvas's. Recording and canvas must outlive the player.
class DABCANVAS_RECORDING_API RecordingPlayer {
public:
    RecordingPlayer(const Recording& recording, QDDrawCanvas& canvas, PlayOptions options = {});
    ~RecordingPlayer();
    RecordingPlayer(const RecordingPlayer&) = delete;
    RecordingPlayer& operator=(const RecordingPlayer&) = delete;

    /// Makes the canvas ready; the other members do so by themselves. False where its size is another, or in
    /// mid-stroke.
    bool begin();
    /// The next sample of a stroke, or what else comes next. False at the end, and where it could not be done.
    bool step();
    /// Up to the end of the next stroke and what follows of it; false where there was none any more.
    bool playStroke();
    /// All that happened until then; false when nothing is left.
    bool playUntil(double seconds);
    /// False where anything could not be done.
    bool playAll();

    /// One event, whole, that is none of the recording's: of a stroke that ends in it, say.
    bool play(const RecordedEvent& event);

    bool isAtEnd() const { return _event == _recording.events.size(); }
    std::size_t eventsPlayed() const { return _event; }
    /// When what comes next happened; at the end, when the last did.
    double time() const;
    /// What could not be done, after which nothing is played; empty for nothing.
    const QString& problem() const { return _problem; }

private:
    class Doing;

    void playSample(const StrokePart& part, std::size_t& sample);
    bool fail(const QString& problem);
    // Whether what comes next is no stroke of its own: a step recorded after one, say.
    bool followsStroke() const;

    const Recording& _recording;
    QDDrawCanvas& _canvas;
    PlayOptions _options;
    bool _begun = false, _marks = false;
    std::size_t _event = 0, _sample = 0;
    QString _problem;
};

/// Pixels of the canvas that a recording is played on; at least 1 each way.
DABCANVAS_RECORDING_API QSize playedSize(const RecordingHeader& header, double scale);
/// Seconds from its start to its end.
DABCANVAS_RECORDING_API double durationOf(const Recording& recording);

}  // namespace dabcanvas
