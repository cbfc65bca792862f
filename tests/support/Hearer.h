// SPDX-License-Identifier: MIT
// Hears everything that a canvas tells.
#pragma once

#include <functional>

#include "Canvas/QDDrawCanvas.h"

class Hearer : public QDDrawViewDelegate {
public:
    // The point, where there is one, may be moved in a "should".
    std::function<void(const char*, QPointF&)> hear;
    QPointF say(const char* what, QPointF p = {}) { return hear(what, p), p; }

    QPointF drawViewShouldDrawBegin(QDDrawCanvas&, QPointF p) override { return say("should begin", p); }
    QPointF drawViewShouldDrawMove(QDDrawCanvas&, QPointF p) override { return say("should move", p); }
    QPointF drawViewShouldDrawEnd(QDDrawCanvas&, QPointF p) override { return say("should end", p); }
    void drawViewWillDrawBegin(QDDrawCanvas&, QPointF p) override { say("will begin", p); }
    void drawViewDidDrawBegin(QDDrawCanvas&, QPointF p) override { say("did begin", p); }
    void drawViewWillDrawMove(QDDrawCanvas&, QPointF p) override { say("will move", p); }
    void drawViewDidDrawMove(QDDrawCanvas&, QPointF p) override { say("did move", p); }
    void drawViewWillDrawEnd(QDDrawCanvas&, QPointF p) override { say("will end", p); }
    void drawViewDidDrawEnd(QDDrawCanvas&, QPointF p) override { say("did end", p); }
    void drawViewDidUpdateUndoStatus(QDDrawCanvas&, bool can) override { say(can ? "undo" : "no undo"); }
    void drawViewDidUpdateRedoStatus(QDDrawCanvas&, bool can) override { say(can ? "redo" : "no redo"); }
    void drawViewCanUndoAgain(QDDrawCanvas&) override { say("undo again"); }
    void drawViewDidDropUndoSteps(QDDrawCanvas&, int count, int left) override {
        say("dropped", QPointF(count, left));
    }
    void drawViewDidLoseContext(QDDrawCanvas&) override { say("lost"); }
};
