// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>

#include "Surface/BlendType.h"

namespace dabcanvas {

/// How a layer lies on those below it; see CanvasLayers.
struct LayerSettings {
    QString name;
    float opacity = 1;                            ///< 0..1
    std::uint32_t blendType = ESBlendTypeNormal;  ///< as of strokes, see ESBlendType
    bool isVisible = true;
    bool locksAlpha = false;  ///< strokes change its colours alone

    friend bool operator==(const LayerSettings&, const LayerSettings&) = default;
};

}  // namespace dabcanvas
