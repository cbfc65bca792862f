// SPDX-License-Identifier: MIT
/// \file
/// What the numbers of some brush properties stand for, by name: for Designer, style sheets and QML, and wherever a
/// name reads better than a number. Any other number counts as the first of its kind, but for ThinLines.
#pragma once

#include <QObject>

#include "Maths/Export.h"

namespace dabcanvas {

Q_NAMESPACE_EXPORT(DABCANVAS_BRUSHES_API)

/// brushType
enum class BrushKind { Dabs = 0, Smudge = 3, FilledOutline = 4 };
Q_ENUM_NS(BrushKind)

/// blendType, ESBlendType's values
enum class BlendKind {
    Normal = 1,
    Replace = 2,
    Behind = 4,
    Erase = 5,
    Darken = 6,
    Lighten = 7,
    Multiply = 8,
    Reset = 9
};
Q_ENUM_NS(BlendKind)

/// textureType
enum class TipKind { Images = 0, SoftDisc = 1, Ring = 2, RoundedRectangle = 3 };
Q_ENUM_NS(TipKind)

/// lineProcessType, whose numbers are bits
enum class ThinLines { AsTheyAre = 0, AtLeastThreePixels = 2, ThinnedFlow = 4, Both = 6 };
Q_ENUM_NS(ThinLines)

/// slRadiusRelationType: what the second line's size keeps to the first one's
enum class SizeRelation { Free = 0, Difference = 1, Ratio = 2 };
Q_ENUM_NS(SizeRelation)

}  // namespace dabcanvas
