// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QMetaType>
#include <array>

#include "Maths/Export.h"

/// A colour that knows how many components it has: none (0), grey and alpha (2), or red, green, blue and
/// alpha (4). Components are straight (not premultiplied) 32-bit floats, kept within 0..1; one that is not a
/// number becomes 0.
class DABCANVAS_BRUSHES_API ESColor {
public:
    ESColor() = default;  ///< no colour
    static ESColor grey(float grey, float alpha = 1.0f);
    static ESColor rgba(float red, float green, float blue, float alpha = 1.0f);
    ESColor(const QColor& color);  ///< implicit; an invalid QColor gives no colour

    QColor toQColor() const;  ///< invalid when there is no colour
    int componentCount() const { return _count; }
    /// Component i as stored: (grey, alpha) or (red, green, blue, alpha); 0 beyond them.
    float component(int i) const {
        return i >= 0 && i < _count ? _components[static_cast<std::size_t>(i)] : 0;
    }
    /// As a grey colour gives its grey for all three; all 0 without a colour.
    float red() const { return component(0); }
    float green() const { return component(_count == 4 ? 1 : 0); }
    float blue() const { return component(_count == 4 ? 2 : 0); }
    float alpha() const { return component(_count - 1); }

    friend bool operator==(const ESColor& a, const ESColor& b) = default;

private:
    int _count = 0;
    std::array<float, 4> _components{};
};
Q_DECLARE_METATYPE(ESColor)
