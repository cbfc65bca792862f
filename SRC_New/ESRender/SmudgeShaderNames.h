// SPDX-License-Identifier: MIT
#pragma once

// What the programs "Shaders.bundle/Smudge_Mac(Smudge)" and "Shaders.bundle/Smudge_Mac(Show)" declare besides the names
// of the dab program (LineShaderNames.h).
namespace dabcanvas::smudge {

inline constexpr char kBGCoord[] = "a_bgCoord";

inline constexpr char kMoistQuantity[] = "u_moistQuantity";
inline constexpr char kLoadQuantity[] = "u_loadQuantity";
inline constexpr char kMixQuantity[] = "u_mixQuantity";
inline constexpr char kBGTexture[] = "u_bgTexture";
inline constexpr char kTipCell[] = "u_tipCell";
inline constexpr char kDab[] = "u_dab";  // these two where a dab comes as a record
inline constexpr char kPickUp[] = "u_pickUp";
inline constexpr char kCarried[] = "u_carried";  // and these of bristles; the first one's part is 0 without
inline constexpr char kHeldTexture[] = "u_heldTexture";

// What "Shaders.bundle/Bristles" declares besides.
inline constexpr char kCentre[] = "u_centre";
inline constexpr char kSpan[] = "u_span";
inline constexpr char kUptake[] = "u_uptake";
inline constexpr char kOwnColour[] = "u_ownColour";

inline constexpr char kCanvasTexture[] = "u_canvasTexture";
inline constexpr char kBeforeTexture[] = "u_beforeTexture";
inline constexpr char kCoverageTexture[] = "u_coverageTexture";
inline constexpr char kTargetSize[] = "u_targetSize";
inline constexpr char kOpacity[] = "u_opacity";
inline constexpr char kLocksAlpha[] = "u_locksAlpha";
inline constexpr char kNoiseTurn[] = "u_noiseTurn";
inline constexpr char kNoiseStep[] = "u_noiseStep";

}  // namespace dabcanvas::smudge
