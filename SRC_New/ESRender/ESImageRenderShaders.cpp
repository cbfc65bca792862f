// SPDX-License-Identifier: MIT
// The compositor's shader texts: resources, which a file beside the library may replace, and the copies built
// in.
#include "ESRender/ESImageRender.h"

namespace {

QString blendProgram(const char* mode) {
    return QStringLiteral("Shaders.bundle/ImageRender_Mac(%1).fsh").arg(QLatin1String(mode));
}

}  // namespace

QString ESImageRender::imageRenderVertexShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/ImageRender_Mac.vsh"));
}

QString ESImageRender::normalFSHString() {
    return stringWithFileName(blendProgram("normal"));
}
QString ESImageRender::replaceFSHString() {
    return stringWithFileName(blendProgram("replace"));
}
QString ESImageRender::behindFSHString() {
    return stringWithFileName(blendProgram("behand"));
}
QString ESImageRender::eraseFSHString() {
    return stringWithFileName(blendProgram("erase"));
}
QString ESImageRender::tarnishFSHString() {
    return stringWithFileName(blendProgram("tarnish"));
}
QString ESImageRender::brightnessFSHString() {
    return stringWithFileName(blendProgram("brightness"));
}
QString ESImageRender::multiplyFSHString() {
    return stringWithFileName(blendProgram("multiply"));
}
QString ESImageRender::resetFSHString() {
    return stringWithFileName(blendProgram("reset"));
}
QString ESImageRender::placeFSHString() {
    return stringWithFileName(blendProgram("place"));
}

namespace {

QString builtIn(const char* mode) {
    return ESBaseRender::stringWithPath(QStringLiteral(":/dabcanvas/") + blendProgram(mode));
}

}  // namespace

QString ImageRenderFSH::normalFSHString() {
    return builtIn("normal");
}
QString ImageRenderFSH::replaceFSHString() {
    return builtIn("replace");
}
QString ImageRenderFSH::behindFSHString() {
    return builtIn("behand");
}
QString ImageRenderFSH::eraseFSHString() {
    return builtIn("erase");
}
QString ImageRenderFSH::tarnishFSHString() {
    return builtIn("tarnish");
}
QString ImageRenderFSH::brightnessFSHString() {
    return builtIn("brightness");
}
QString ImageRenderFSH::multiplyFSHString() {
    return builtIn("multiply");
}
QString ImageRenderFSH::resetFSHString() {
    return builtIn("reset");
}
QString ImageRenderFSH::placeFSHString() {
    return builtIn("place");
}
