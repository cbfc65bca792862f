// SPDX-License-Identifier: MIT
// When a step of a canvas's history is due, and putting a step back. The pictures themselves are kept by an
// ImagesUndoManager, which is made when it is first asked for: a canvas whose history nobody wants has none.
//
// Errors   null and Outcome::refused, with nothing changed, without the memory or the surface; each says why in a log line
//          where nobody else does.
//
// Before a call the caller has seen to it that nothing is on its way onto the canvas: no preview that has ended, no sketch
// that is yet to be taken back.
#pragma once

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

#include "Canvas/RecordedCanvas.h"

class ImagesUndoManager;

namespace dabcanvas {

class CanvasHistory {
public:
    // Makes the canvas another size, whatever it shows then, and tells whom that concerns; false, and nothing changed, where
    // there is no such surface.
    using Resize = std::function<bool(const Size& size)>;
    CanvasHistory(PaintLayers& layers, RecordedCanvas& record, Resize resize);
    ~CanvasHistory();

    bool autoMark = false;
    float markTimeInterval = 0;  // seconds
    std::function<void()> stepRecorded = [] {};
    bool isMade() const { return _images != nullptr; }

    // Makes it, if there is none yet, and the blank canvas that it begins with what is recorded. leavesRecord: but for
    // that, as a sketch has yet to be taken back to what is recorded, or the canvas was just read.
    ImagesUndoManager& images(bool leavesRecord);
    StepPicture load(bool sketching);
    // Makes the present canvas the only step; null without the memory.
    StepPicture reset();
    // The canvas is about to get another size, or other layers: what was drawn is a step of its own.
    void noteBeforeChange();
    // Records the canvas as a step; null, and nothing recorded, when nothing was drawn since the last, or too shortly
    // after it, or without the memory.
    StepPicture mark();

    // The canvas is saved as it is now: what is unsaved counts from here, and not while a step shows it again.
    void noteSaved();

    // The canvas has fallen back on what was known of it, which may be a step, or what is saved.
    void noteFallenBack();

    // Those that went for want of room since this was asked last, and how many are left to undo.
    std::pair<int, int> stepsDropped();

    // Kept, the history outlives the process, see UndoRecovery.h. False, and `problem` in words, where it cannot.
    bool isKept() const { return _record.tiles()->isKept(); }
    bool keep(bool keeps, QString* problem);
    // Has written down what the history and the canvas have become, where it is kept.
    void note();
    // The same in the course of a stroke, now and then.
    void noteDrawing();
    // A host's own words, which are found again with it. False where it is not kept, or they cannot be written.
    bool setWords(const QString& words);
    const QString& words() const { return _words; }
    // Canvas and history become what another process left. False, and `problem` in words, where they cannot; the canvas is
    // as it was then.
    bool recover(const QString& id, QString* problem);

    // unrecorded: the canvas holds, or will hold, what no step does.
    bool canUndo(bool unrecorded) const;
    bool canRedo(bool unrecorded) const;
    // What became of a step back or forth.
    enum class Outcome : std::uint8_t {
        refused,   // nothing changed
        restored,  // the canvas is the step
        lost,      // the step has no picture of this canvas; the caller is to clear it
    };
    // What was drawn since the last step is recorded first. `changed`: what of the canvas another step shows.
    Outcome undo(Rect& changed);
    Outcome redo(Rect& changed);

private:
    using Step = bool (ImagesUndoManager::*)();
    StepPicture record();
    void noteRecorded();
    bool showsSaved();
    std::optional<Rect> showResized(const StepPicture& picture, QString* problem);
    Outcome go(Step there, Step back, Rect& changed);

    PaintLayers& _layers;
    RecordedCanvas& _record;
    const Resize _resize;
    std::unique_ptr<ImagesUndoManager> _images;
    bool _savedAsMade = true;                   // what is saved is the blank canvas
    std::shared_ptr<const TilePicture> _saved;  // null: no step may show it
    unsigned _droppedTold = 0;
    QString _words;
    double _lastNoted = -std::numeric_limits<double>::infinity();
    double _lastMark = -std::numeric_limits<double>::infinity();  // when the last step was recorded
};

}  // namespace dabcanvas
