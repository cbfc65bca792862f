// SPDX-License-Identifier: MIT
// What pointers' events make of a stroke, in which order its canvas and the host hear of it: one letter a call.
#include "Canvas/PointerGate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>

#include "support/LogCapture.h"
#include "support/Named.h"

using namespace dabcanvas;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// ? a stroke is due, ! one that never ended before it; ( begins . moves ) ends x withdrawn - dropped. With places also
// what the host hears: b m e are announced, B M E done.
struct Heard final : StrokeEntry::Listener, StrokeHost, PointerGate::Canvas {
    std::string calls;
    QPointF beginAt{-1, 0};
    bool places = true, due = true, nearMovesCount = false, canDraw = true, recognising = false;
    std::function<void(StrokeStage)> atAnnounce = [](StrokeStage) {};

    void note(char call, QPointF at) {
        calls += call;
        calls += places ? std::to_string(std::lround(at.x())) + ' ' : "";
    }
    bool announce(StrokeStage stage, QPointF& point) override {
        point = stage == StrokeStage::begin && beginAt.x() > 0 ? beginAt : point;
        if (places) {
            note("bme"[static_cast<int>(stage)], point);
        }
        atAnnounce(stage);
        return true;
    }
    bool tellDone(StrokeStage stage, QPointF point) override {
        if (places || stage == StrokeStage::end) {
            note("BME"[static_cast<int>(stage)], point);
        }
        return true;
    }
    bool strokeIsDue(bool unended) override {
        calls += !places ? "" : unended ? "!" : "?";
        return due;
    }
    void strokeBegan(const StrokeSample& sample) override { note('(', sample.place); }
    bool ignoresNearMoves() const override { return !nearMovesCount; }
    void strokeMoved(const StrokeSample& sample, bool) override { note('.', sample.place); }
    void strokeEnded(const StrokeSample& sample, bool) override { note(')', sample.place); }
    void strokeWithdrawn(QPointF place) override { note('x', place); }
    void strokeDropped() override { calls += '-'; }
    bool canBegin() const override { return canDraw; }
    bool recognises() const override { return recognising; }
    double pointScale() const override { return 1; }
};

// ---- A stroke's stages

struct Sample {
    char stage;  // b m e, w to withdraw, d to drop
    double x = 0;
    float pressure = 1;
};
struct Way : Named {
    std::vector<Sample> samples;
    const char* heard;
    void (*prepare)(Heard&, ViewScale&) = [](Heard&, ViewScale&) {};
    int lines = 0;  // in the log
};
class StrokeEntryTest : public ::testing::TestWithParam<Way> {};

TEST_P(StrokeEntryTest, IsHeardInOrder) {
    const Way& way = GetParam();
    Heard heard;
    ViewScale scale;
    way.prepare(heard, scale);
    StrokeEntry entry(heard, heard, scale);
    const LogCapture log;
    for (const auto& [stage, x, pressure] : way.samples) {
        const QPointF at(x, 10);
        stage == 'b'   ? entry.begin(at, pressure, -1)
        : stage == 'm' ? entry.move(at, pressure, -1, true)
        : stage == 'e' ? entry.end(at, pressure, -1, true)
        : stage == 'w' ? entry.withdraw(at)
                       : entry.drop();
    }
    EXPECT_EQ(heard.calls, way.heard);
    EXPECT_EQ(log.lines().size(), way.lines);
    EXPECT_EQ(entry.isDrawing(), std::string("bm").find(way.samples.back().stage) != std::string::npos);
}

// clang-format off
const Way kWays[] = {
    {{"NearMovesAreFilteredAndABeginMayBeMoved"},
     {{'b', 50}, {'m', 11}, {'m', 11.01}, {'m', 30}, {'e', 40}},
     "?b10 (10 B10 m11 m11 .11 M11 m30 .30 M30 e40 )40 E40 ",
     [](Heard& h, ViewScale&) { h.beginAt = {10, 10}; }},
    {{"NearMovesCount"}, {{'b', 10}, {'m', 10.5}, {'d'}}, "?b10 (10 B10 m11 .11 M11 -",
     [](Heard& h, ViewScale&) { h.nearMovesCount = true; }},
    {{"ViewPointsBecomePixels"}, {{'b', 100}, {'m', 200}, {'e', 300}},
     "?b100 (50 B50 m200 .100 M100 e300 )150 E150 ", [](Heard&, ViewScale& s) { s.perPixel = {2, 2}; }},
    {{"NoBegin"}, {{'m', 80}, {'w', 85}, {'e', 90}, {'d'}}, ""},
    {{"ARefusedBeginIsLeftToTheFirstMove"}, {{'b', kNaN}, {'m', 80}, {'m', 120}}, "??b80 (80 B80 m120 .120 M120 ",
     [](Heard&, ViewScale&) {}, 1},
    {{"WhatIsNotFiniteIsRefusedOnce"},
     {{'b', 10}, {'m', kNaN}, {'m', 1e300}, {'m', 20, INFINITY}, {'m', 30}, {'e', kNaN}},
     "?b10 (10 B10 m30 .30 M30 e30 )30 E30 ", [](Heard&, ViewScale&) {}, 1},
    {{"NeverEnded"}, {{'b', 10}, {'m', 20}, {'b', 30}}, "?b10 (10 B10 m20 .20 M20 !b30 (30 B30 "},
    {{"NotDue"}, {{'b', 10}, {'m', 20}, {'e', 30}}, "?", [](Heard& h, ViewScale&) { h.due = false; }},
    {{"Withdrawn"}, {{'b', 10}, {'w', 20}, {'e', 30}}, "?b10 (10 B10 x20 "},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Ways, StrokeEntryTest, ::testing::ValuesIn(kWays), byName);

// ---- Devices

// Events: d m u of a mouse, D M U and C, cancelled, of a finger; x w the pointer is gone, its stroke kept or not. Each
// comes 15 points on, but after =. A number repeats.
struct Events : Named {
    const char* events;
    const char* heard;  // moves as their number
    void (*prepare)(Heard&, PointerGate&) = [](Heard&, PointerGate&) {};
};
class PointerGateTest : public ::testing::TestWithParam<Events> {};

TEST_P(PointerGateTest, MakesAStrokeOf) {
    Heard heard;
    heard.places = false;
    const ViewScale scale;
    StrokeEntry entry(heard, heard, scale);
    PointerGate gate(entry, heard);
    GetParam().prepare(heard, gate);
    const std::map<char, std::function<void(QPointF)>> events = {{'d', [&](QPointF p) { gate.mouseDown(p, 1); }},
                                                                 {'m', [&](QPointF p) { gate.mouseDragged(p, 1); }},
                                                                 {'u', [&](QPointF p) { gate.mouseUp(p, 1); }},
                                                                 {'D', [&](QPointF p) { gate.touchBegan(p, 1); }},
                                                                 {'M', [&](QPointF p) { gate.touchMoved(p, 1); }},
                                                                 {'U', [&](QPointF p) { gate.touchEnded(p, 1); }},
                                                                 {'C', [&](QPointF p) { gate.touchCancelled(p, 1); }},
                                                                 {'x', [&](QPointF) { gate.abandon(false); }},
                                                                 {'w', [&](QPointF) { gate.abandon(true); }}};
    double x = 20;
    bool lined = false;
    for (const char* event = GetParam().events; *event != 0;) {
        x -= *event == '=' ? 15 : 0;
        event += *event == '=' ? 1 : 0;
        const char name = *event++;
        for (long left = std::isdigit(*event) ? std::strtol(event, const_cast<char**>(&event), 10) : 1;
             left > 0; --left, x += 15) {
            events.at(name)({x, 10});
        }
        lined = lined || gate.isLining();
    }
    std::string told;
    int moves = 0, most = 0;
    for (const char call : heard.calls) {
        moves += call == '.' ? 1 : 0;
        most = std::max(most, moves);
        if (call != '.') {
            told += (moves > 0 ? std::to_string(moves) : "") + call;
            moves = 0;
        }
    }
    EXPECT_EQ(told, GetParam().heard);
    EXPECT_FALSE(entry.isDrawing() || gate.lineMove || gate.normalMoing || gate.digitPenMoving);
    EXPECT_EQ(gate.moveCount, 0u);
    EXPECT_EQ(lined, most > 9);
}

// A dialogue opened in a callback takes the pointer away.
template <StrokeStage stage>
void leaveAt(Heard& heard, PointerGate& gate) {
    heard.atAnnounce = [&gate](StrokeStage announced) {
        if (announced == stage) {
            EXPECT_TRUE(gate.digitPenMoving);
            gate.abandon(false);
        }
    };
}
constexpr auto keepShort = [](Heard&, PointerGate& gate) { gate.adjustCancelLine = false; };
constexpr auto recognise = [](Heard& heard, PointerGate&) { heard.recognising = true; };
constexpr auto hide = [](Heard& heard, PointerGate&) { heard.canDraw = false; };

// clang-format off
const Events kEvents[] = {
    {{"Click"}, "du", "(-"},
    {{"OneDrag"}, "dmu", "(1xE"},
    {{"NineDrags"}, "dm9u", "(9xE"},
    {{"TenDrags"}, "dm10u", "(10)E"},
    {{"ClickKept"}, "du", "(-", keepShort},
    {{"OneDragKept"}, "dmu", "(1)E", keepShort},
    {{"Finger"}, "DM2U", "(2)E"},
    {{"FingerThatSlid"}, "DU", "(E-"},
    {{"FingerThatTapped"}, "D=U", "()E"},
    {{"FingerCancelled"}, "DM9C", "(9xE"},
    {{"FingerCancelledLate"}, "DM10C", "(10)E"},
    {{"FingerWhileAMouseDraws"}, "dDM3m12MUu", "(12)E"},
    {{"MouseWhileAFingerDraws"}, "Ddm3uM2U", "(2)E"},
    {{"GoneThoughTheButtonIsHeld"}, "dm12xm5u", "(12)E"},
    {{"GoneForGood"}, "DM19wMU", "(19xE"},
    {{"NothingToEnd"}, "xw", ""},
    {{"GoneAtTheBegin"}, "dm12u", "", leaveAt<StrokeStage::begin>},
    {{"GoneAtAMove"}, "dm12u", "(xE", leaveAt<StrokeStage::move>},
    {{"GoneAtAShortEnd"}, "dm5u", "(5xE", leaveAt<StrokeStage::end>},
    {{"GoneAtTheEnd"}, "dm14u", "(14)E", leaveAt<StrokeStage::end>},
    {{"NothingAfterWhatIsRecognised"}, "dm12um2u", "(12)E", recognise},
    {{"FingerRecognised"}, "DM12UM2U", "(12)E", recognise},
    {{"MouseOnWhatIsHidden"}, "dm12u", "", hide},
    {{"FingerOnWhatIsHidden"}, "DM12U", "", hide},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Devices, PointerGateTest, ::testing::ValuesIn(kEvents), byName);

}  // namespace
