// SPDX-License-Identifier: MIT
#pragma once

// Attributes and uniforms of the dab program, as "Shaders.bundle/Line_Mac.vsh" and ".fsh" declare them. Names
// beginning with "a_" other than the two attributes are uniforms in spite of the prefix.
namespace dabcanvas::line {

inline constexpr char kPosition[] = "a_position";
inline constexpr char kTexCoord[] = "a_texCoord";

inline constexpr char kUseMask[] = "u_useMask";
inline constexpr char kMaskTexture[] = "u_maskTexture";
inline constexpr char kMaskSize[] = "u_maskSize";
inline constexpr char kMaskBaseCoord[] = "u_maskBaseCoord";
inline constexpr char kColor[] = "a_color";
inline constexpr char kHueTingle[] = "u_hueTingle";
inline constexpr char kSaturationTingle[] = "u_saturationTingle";
inline constexpr char kBrightnessTingle[] = "u_brightnessTingle";
inline constexpr char kColorful[] = "u_colorful";
inline constexpr char kFlow[] = "u_flow";
inline constexpr char kBrushTexture[] = "u_brushTexture";
inline constexpr char kRadian[] = "a_radian";
inline constexpr char kViewSize[] = "u_viewSize";
inline constexpr char kRoundness[] = "u_roundness";
inline constexpr char kRand[] = "u_rand";
inline constexpr char kPointSize[] = "a_pointSize";
inline constexpr char kFlip[] = "a_flip";
inline constexpr char kCenter[] = "a_center";
// Where each tip lies in its texture, so that none is sampled beyond its cell.
inline constexpr char kTipCells[] = "u_tipCells";
inline constexpr char kTipSize[] = "u_tipSize";

// Of the program that draws dabs by records: the attributes of one, and what is read.
inline constexpr const char* kDabRecord[] = {"a_dabPlace",      "a_dabAxes",      "a_dabPixel", "a_dabPaint",
                                             "a_dabFirstLevel", "a_dabNextLevel", "a_dabMore"};
inline constexpr char kTips[] = "u_tips";
inline constexpr char kReducedMask[] = "u_reducedMask";
inline constexpr char kMaskLevel[] = "u_maskLevel";
inline constexpr char kMaskRelief[] = "u_maskRelief";

}  // namespace dabcanvas::line
