// SPDX-License-Identifier: MIT
#pragma once

// Attributes and uniforms of the compositor programs, as "Shaders.bundle/ImageRender_Mac….vsh" and ".fsh"
// declare them.
namespace dabcanvas::image {

inline constexpr char kPosition[] = "a_position";
inline constexpr char kTexCoord[] = "a_texCoord";

inline constexpr char kOpacity[] = "u_opacity";
inline constexpr char kUseSubLine[] = "u_useSubLine";
inline constexpr char kLineTexture[] = "u_lineTexture";
inline constexpr char kSubLineTexture[] = "u_subLineTexture";
inline constexpr char kBGTexture[] = "u_bgTexture";
inline constexpr char kRadian[] = "a_radian";
inline constexpr char kViewSize[] = "u_viewSize";
inline constexpr char kBGTextureSize[] = "u_bgTextureSize";
inline constexpr char kFlip[] = "a_flip";
inline constexpr char kCenter[] = "a_center";
inline constexpr char kPlacedSize[] = "u_placedSize";  // these two of "ImageRender_Mac(place).fsh" only
inline constexpr char kReplace[] = "u_replace";
inline constexpr char kLeavesBare[] = "u_leavesBare";
inline constexpr char kNoiseTurn[] = "u_noiseTurn";  // of programs that round by noise

}  // namespace dabcanvas::image
