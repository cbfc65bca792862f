// SPDX-License-Identifier: MIT
// What a dab costs: through the line render, in a bare GL loop that does the least for the same pixels, and
// in libmypaint. The contestants take turns; each draws 256 dabs and waits until they are there.
#include <benchmark/benchmark.h>
#include <epoxy/gl.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "ESContext/ESContext.h"
#include "ESContext/ESCurrentScope.h"
#include "ESRender/ESLineRender.h"
#include "ESRender/LineShaderNames.h"
#include "ESRender/Utilities/ESResource.h"
#include "support/Measuring.h"
#ifdef DABCANVAS_HAVE_MYPAINT
#include "support/MyPaint.h"
#endif

using namespace dabcanvas::bench;

namespace {

constexpr int kWidth = 2048;
constexpr int kHeight = 1536;
constexpr std::size_t kDabs = 256;
constexpr std::size_t kRun = 16;  // dabs handed over at a time, as a segment of a stroke has them
constexpr float kSpacing = 0.075f;

// A tip in one colour: no paper, no multicolour, neither of which these dabs use.
constexpr char kLeastProgram[] = R"(#version 150
uniform sampler2D u_brushTexture;
uniform vec4 a_color;
uniform float u_flow;
in vec2 v_texCoord;
flat in vec4 v_tipCell;
out vec4 fragColor;
void main() {
    float coverage = texture(u_brushTexture, clamp(v_texCoord, v_tipCell.xy, v_tipCell.zw)).a * u_flow;
    fragColor = vec4(a_color.rgb * coverage, coverage);
}
)";

// The line layer with a renderer that paints into it, current for as long as the program runs.
class Layer {
public:
    static Layer& instance() {
        static Layer layer;
        return layer;
    }

    const char* driver() const { return reinterpret_cast<const char*>(glGetString(GL_RENDERER)); }

    void drawOwn(const std::vector<LPPoint>& dabs) {
        for (std::size_t i = 0; i < dabs.size(); i += kRun) {
            _render->drawPoints(&dabs[i], kRun);
        }
    }

    // The program as a host's is drawn, dab by dab; nothing but what differs between dabs goes to GL.
    void drawBare(const std::vector<LPPoint>& dabs) const { drawBare(*_bare, dabs); }
    // The same with a program that can do nothing more than these dabs need.
    void drawLeast(const std::vector<LPPoint>& dabs) const { drawBare(*_least, dabs); }
    // Draws once, which sets every uniform that the bare loops leave alone.
    void prepare(const std::vector<LPPoint>& dabs) {
        for (ESLineRender* render : {_render.get(), _bare.get(), _least.get()}) {
            render->drawPoints(dabs.data(), 1);
        }
    }

private:
    Layer() : _context(ESContext::init()) {
        const QImage tip = dabcanvas::imageNamed(QStringLiteral("Texture.bundle/PS_brush_11.png"));
        if (_context) {
            _current.emplace(*_context);
            if (_context->createBufferWithSize(QSizeF(kWidth, kHeight))) {
                _render = ESLineRender::init();
                _bare = ESLineRender::initWithVertexShaderFromString(
                    {}, ESLineRender::lineRenderNormalFrangmentShaderString() + QLatin1Char('\n'));
                _least = ESLineRender::initWithVertexShaderFromString({}, QString::fromLatin1(kLeastProgram));
            }
        }
        if (!_render || !_bare || !_least || tip.isNull()) {
            std::fprintf(stderr, "there is nothing to draw with: %s\n",
                         tip.isNull() ? "the tip cannot be read" : "no OpenGL 3.2");
            std::exit(1);
        }
        for (ESLineRender* render : {_render.get(), _bare.get(), _least.get()}) {
            render->setBufferSize(QSizeF(kWidth, kHeight));
            render->setTextureImage(tip, GL_TEXTURE0);
            render->setRenderColor(ESColor(QColor(40, 60, 120)));
            render->setFlow(0.5f);
        }
        _context->beginRenderForType(ESRenderTypeLine);
        _context->setBlendModelForType(ESRenderTypeLine);
    }

    static void drawBare(const ESLineRender& render, const std::vector<LPPoint>& dabs) {
        using namespace dabcanvas::line;
        ESProgram& program = *render.program();
        const GLint center = program.uniformIndex(kCenter);
        const GLint pointSize = program.uniformIndex(kPointSize);
        const GLint flip = program.uniformIndex(kFlip);
        program.bind();
        render.brushTexture()->useAtPosition(GL_TEXTURE0);
        for (const LPPoint& dab : dabs) {
            glUniform2f(center, dab.position.x, dab.position.y);
            glUniform1f(pointSize, dab.radius * 0.5f);
            glUniform2f(flip, 1, 1);
            glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
        }
    }

    std::unique_ptr<ESContext> _context;
    std::optional<ESCurrentScope> _current;
    std::unique_ptr<ESLineRender> _render;
    std::unique_ptr<ESLineRender> _bare, _least;
};

// Dabs along an ellipse that keeps the largest of them inside the layer.
std::vector<LPPoint> stroke(float width) {
    constexpr float kAcross = kWidth / 2.0f - 270;
    constexpr float kUp = kHeight / 2.0f - 270;
    std::vector<LPPoint> dabs;
    float angle = 0.3f;
    for (std::size_t i = 0; i < kDabs; ++i) {
        const float x = kAcross * std::cos(angle);
        const float y = kUp * std::sin(angle);
        dabs.push_back({{kWidth / 2.0f + x, kHeight / 2.0f + y}, width, {0.5f, 0, 1}});
        angle += kSpacing * width / std::hypot(kAcross * std::sin(angle), kUp * std::cos(angle));
    }
    return dabs;
}

double microsPerDab(const Rounds& rounds) {
    return rounds.medianMicros() / kDabs;
}

#ifdef DABCANVAS_HAVE_MYPAINT
void drawPeer(const std::vector<LPPoint>& dabs, PaintedSurface& painted) {
    MyPaintSurface* const surface = painted.interface();
    mypaint_surface_begin_atomic(surface);
    for (const LPPoint& dab : dabs) {
        mypaint_surface_draw_dab(surface, dab.position.x, dab.position.y, dab.radius * 0.5f, 0.16f, 0.24f,
                                 0.47f, 0.5f, kPeerHardness, 1, 1, 0, 0, 0);
    }
    painted.finish();
}
#endif

void texturedDabs(benchmark::State& state) {
    Layer& layer = Layer::instance();
    const std::vector<LPPoint> dabs = stroke(static_cast<float>(state.range(0)));
    Rounds own;
    Rounds bare;
    Rounds least;
#ifdef DABCANVAS_HAVE_MYPAINT
    PaintedSurface surface(kWidth, kHeight);
    Rounds peer[2];
#endif
    const auto drawOwn = [&] {
        layer.drawOwn(dabs);
        glFinish();
    };
    // libmypaint leaves the driver's threads asleep and the layer's pixels out of the caches, for which the
    // next in turn must not pay.
    const auto wake = [&] {
        layer.drawBare(dabs);
        glFinish();
    };
    layer.prepare(dabs);
    for (auto _ : state) {
        wake();
        state.SetIterationTime(own.time(drawOwn));
        bare.time([&] {
            layer.drawBare(dabs);
            glFinish();
        });
        least.time([&] {
            layer.drawLeast(dabs);
            glFinish();
        });
#ifdef DABCANVAS_HAVE_MYPAINT
        for (int threads = 1; threads <= 2; ++threads) {
            setPeerThreads(threads);
            peer[threads - 1].time([&] { drawPeer(dabs, surface); });
        }
        // Its second thread goes on spinning for a while, which must not be charged to the next in turn.
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
#endif
    }
    state.SetLabel(layer.driver());
    state.counters["us/dab"] = microsPerDab(own);
    state.counters["bare_us/dab"] = microsPerDab(bare);
    state.counters["own/bare"] = own.median() / bare.median();
    state.counters["least_us/dab"] = microsPerDab(least);
    state.counters["own/least"] = own.median() / least.median();
#ifdef DABCANVAS_HAVE_MYPAINT
    state.counters["peer1_us/dab"] = microsPerDab(peer[0]);
    state.counters["peer2_us/dab"] = microsPerDab(peer[1]);
    state.counters["peer/own"] = std::min(peer[0].median(), peer[1].median()) / own.median();
#endif
}
BENCHMARK(texturedDabs)
    ->Arg(8)
    ->Arg(32)
    ->Arg(128)
    ->Arg(512)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->MinTime(1);

// The processor's share of a dab: off the layer GL has no pixel to draw, and what the bare loop costs is the
// driver's.
void dabsOffTheLayer(benchmark::State& state) {
    Layer& layer = Layer::instance();
    std::vector<LPPoint> dabs = stroke(32);
    for (LPPoint& dab : dabs) {
        dab.position.x -= 10 * kWidth;
    }
    Rounds own;
    Rounds bare;
    const auto drawOwn = [&] { layer.drawOwn(dabs); };
    layer.prepare(dabs);
    for (auto _ : state) {
        state.SetIterationTime(own.time(drawOwn));
        glFinish();
        bare.time([&] { layer.drawBare(dabs); });
        glFinish();
    }
    state.SetLabel(layer.driver());
    state.counters["us/dab"] = microsPerDab(own);
    state.counters["bare_us/dab"] = microsPerDab(bare);
    state.counters["own-bare_us/dab"] = microsPerDab(own) - microsPerDab(bare);
}
BENCHMARK(dabsOffTheLayer)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
