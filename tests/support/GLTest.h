// SPDX-License-Identifier: MIT
// The fixture of every test that draws: an ESContext, current for the whole test, with no host context.
//
// At its end it expects that no GL error was found: neither drained and logged on the way nor still pending. What a
// fixture keeps of its own goes before that.
// Without OpenGL a test is skipped, or fails where DABCANVAS_REQUIRE_GL is set.
#pragma once

#include <epoxy/gl.h>

#include <memory>
#include <optional>

#include "ESContext/ESContext.h"
#include "ESContext/ESCurrentScope.h"
#include "support/Images.h"

class GLTest : public ::testing::Test {
protected:
    void SetUp() override;
    ~GLTest() override;
    // What a fixture makes of its own, once the context is there and current.
    virtual void prepare() {}

    // A test that provokes GL errors says how many the code under test has to drain.
    void expectDrainedErrors(std::uint64_t count) { _expectedErrors = count; }

    // Fills a rectangle (top-left origin) of the target that is bound now; heights are `bufferHeight` rows.
    static void fill(const QRect& rect, const QColor& premultiplied, int bufferHeight);
    // A texture's level as it lies in GL: row 0 of the image is t = 0.
    static QImage readTexture(GLuint texture, int level = 0);

    std::unique_ptr<ESContext> _context;
    std::optional<ESCurrentScope> _current;

private:
    std::uint64_t _errorsBefore = 0;
    std::uint64_t _expectedErrors = 0;
};
