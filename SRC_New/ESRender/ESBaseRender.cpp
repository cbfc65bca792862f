// SPDX-License-Identifier: MIT
#include "ESRender/ESBaseRender.h"

#include <algorithm>
#include <cmath>

#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "Maths/Rounding.h"

namespace {

// One unit square (x, y, z, w) that all points share.
constexpr float kSquare[] = {-1, -1, 0, 1, 1, -1, 0, 1, 1, 1, 0, 1, -1, 1, 0, 1};
static_assert(sizeof kSquare == 64);

int atlasSide(qsizetype images) {
    return images < 5 ? 256 : images < 10 ? 512 : 1024;
}

}  // namespace

std::unique_ptr<ESBaseRender> ESBaseRender::init() {
    return std::unique_ptr<ESBaseRender>(new ESBaseRender);
}

std::unique_ptr<ESBaseRender> ESBaseRender::initWithBufferSize(const QSizeF& bufferSize) {
    std::unique_ptr<ESBaseRender> render = init();
    render->setBufferSize(bufferSize);
    return render;
}

std::unique_ptr<ESBaseRender> ESBaseRender::initWithVertexShaderFromString(
    const QString& vertexShader, const QString& fragmentShaderFromString) {
    std::unique_ptr<ESBaseRender> render = init();
    return render->setVertexShaderString(vertexShader, fragmentShaderFromString) ? std::move(render)
                                                                                 : nullptr;
}

ESBaseRender::~ESBaseRender() = default;

void ESBaseRender::use() const {
    if (_program) {
        _program->bind();
    }
}

void ESBaseRender::useOwn() {
    _program->bind();
    if (_program->passTo(this)) {
        programDidChange();
    }
}

void ESBaseRender::bindAttributeForProgram(ESProgram& program) {
    for (const char* const name : {"a_position", "a_center", "a_pointSize", "a_color"}) {
        program.addAttribute(name);
    }
}

void ESBaseRender::programDidChange() {
    _positionIndex = _program->attributeIndex("a_position");
    _colorIndex = _program->uniformIndex("a_color");
    _viewSizeIndex = _program->uniformIndex("u_viewSize");
    _centerIndex = _program->uniformIndex("a_center");
    _pointSizeIndex = _program->uniformIndex("a_pointSize");
}

void ESBaseRender::setTextureImage(const QImage& image, GLenum atPosition) {
    if (image.isNull()) {
        return;
    }
    _numberOfTexture = 1;
    glActiveTexture(atPosition);
    _brushTexture = TextureObject::initWithImage(image);
    _texturePos = atPosition;
}

void ESBaseRender::setTextureImages(const QList<QImage>& images, GLenum atPosition) {
    if (images.isEmpty()) {
        return;
    }
    if (images.size() == 1) {
        setTextureImage(images.first(), atPosition);
        return;
    }
    _numberOfTexture = static_cast<unsigned>(images.size());
    glActiveTexture(atPosition);
    _brushTexture =
        TextureObject::initWithImages(images.mid(0, TextureObject::kMaxImages), atlasSide(images.size()));
    _texturePos = atPosition;
}

void ESBaseRender::setTextureData(const unsigned char* data, const QSize& dataSize, GLenum atPosition) {
    if (!data || dataSize.isEmpty()) {
        return;
    }
    _numberOfTexture = 1;
    glActiveTexture(atPosition);
    _brushTexture = TextureObject::initWithData(data, dataSize);
    _texturePos = atPosition;
}

QRectF ESBaseRender::drawPoints(const LPPoint* points, std::size_t count) {
    auto minX = static_cast<float>(_bufferSize.width());
    auto minY = static_cast<float>(_bufferSize.height());
    float maxX = 0;
    float maxY = 0;
    if (_program && points && count > 0) {
        use();
        glUniform4f(_colorIndex, _colorR, _colorG, _colorB, _flow);
        glUniform2f(_viewSizeIndex, minX, minY);
        glBufferData(GL_ARRAY_BUFFER, sizeof kSquare, kSquare, GL_STATIC_DRAW);
        if (_positionIndex >= 0) {
            glVertexAttribPointer(static_cast<GLuint>(_positionIndex), 2, GL_FLOAT, GL_FALSE,
                                  4 * sizeof(float), nullptr);
        }
        // Deliberate: index 0 itself, as "a_position" is the only attribute of the base shaders.
        glEnableVertexAttribArray(0);
        for (std::size_t i = 0; i < count; ++i) {
            const LPPoint& point = points[i];
            glUniform2f(_centerIndex, point.position.x, point.position.y);
            glUniform1f(_pointSizeIndex, point.radius);
            glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
            const float half = point.radius * 0.5f;
            minX = std::min(minX, point.position.x - half - 1);
            minY = std::min(minY, point.position.y - half - 1);
            maxX = std::max(maxX, point.position.x + half + 1);
            maxY = std::max(maxY, point.position.y + half + 1);
        }
        checkGLStep("SRC_New/ESRender/ESBaseRender", __LINE__);
    }
    return {minX, minY, maxX - minX, maxY - minY};
}

void ESBaseRender::clearWithRed(float red, float green, float blue, float alpha) {
    glClearColor(red, green, blue, alpha);
    glClear(GL_COLOR_BUFFER_BIT);
}

void ESBaseRender::updateTextureAtOrigin(const QPointF& origin, const QSizeF& size, GLuint& forTexID,
                                         GLenum pos, int depth) {
    using dabcanvas::nearestInt;
    // Beyond the buffer there are no defined pixels to copy, though the texture goes on to a power of two.
    const QSize buffer(dabcanvas::truncatedInt(_bufferSize.width()),
                       dabcanvas::truncatedInt(_bufferSize.height()));
    glActiveTexture(pos);
    if (forTexID == 0) {
        // No mipmaps: the filters are plain GL_LINEAR, which never reads any.
        forTexID = dabcanvas::makeClearedTexture(
            {ExponentialWithInter(buffer.width()), ExponentialWithInter(buffer.height())}, GL_LINEAR, depth);
        if (forTexID) {
            dabcanvas::copyFramebufferToTexture(QRect(QPoint(0, 0), buffer), buffer);
        }
        return;
    }
    glBindTexture(GL_TEXTURE_2D, forTexID);
    const QPoint first(nearestInt(origin.x()), nearestInt(origin.y()));
    const QPoint end(nearestInt(origin.x() + size.width()), nearestInt(origin.y() + size.height()));
    dabcanvas::copyFramebufferToTexture(QRect(first, end - QPoint(1, 1)), buffer);
}

void ESBaseRender::setRenderColor(const ESColor& renderColor) {
    _renderColor = renderColor;
    _colorR = renderColor.red();
    _colorG = renderColor.green();
    _colorB = renderColor.blue();
}

void ESBaseRender::setOpacity(float opacity) {
    if (std::isfinite(opacity)) {
        _opacity = opacity;
    }
}

void ESBaseRender::setFlow(float flow) {
    if (std::isfinite(flow)) {
        _flow = flow;
    }
}
