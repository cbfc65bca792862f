// SPDX-License-Identifier: MIT
#include "Import/MypaintSettings.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace dabcanvas {
namespace {

using In = MypaintInput;

constexpr MypaintInputRow kInputs[] = {
    {In::pressure, "pressure", "pressure", 0, 1, 0.5f, false},
    {In::speed1, "speed1", "speed", 0, 4, 1, false},
    {In::speed2, "speed2", "slow speed", 0, 4, 1, false},
    {In::random, "random", "chance", 0, 1, 0.5f, false},
    {In::custom, "custom", "the custom input", -2, 2, 0, false},
    {In::declination, "tilt_declination", "tilt", 0, 90, 90, false},
    {In::brushRadius, "brush_radius", "the brush's size", -2, 6, 2, false},
    {In::zoom, "viewzoom", "zoom", -2.77f, 4.15f, 0, false},
    {In::stroke, "stroke", "the stroke's length", 0, 1, 0, true},
    {In::direction, "direction", "direction", 0, 180, 0, true},
    {In::directionAngle, "direction_angle", "direction", 0, 360, 0, true},
    {In::attackAngle, "attack_angle", "the angle between tilt and direction", -180, 180, 0, true},
    {In::ascension, "tilt_ascension", "the direction of tilt", -180, 180, 0, false},
    {In::declinationX, "tilt_declinationx", "sideways tilt", -90, 90, 0, false},
    {In::declinationY, "tilt_declinationy", "tilt back and forth", -90, 90, 0, false},
    {In::barrelRotation, "barrel_rotation", "the pen's rotation", 0, 360, 0, false},
    {In::gridX, "gridmap_x", "the place across", 0, 256, 0, true},
    {In::gridY, "gridmap_y", "the place down", 0, 256, 0, true},
};
static_assert(std::size(kInputs) == static_cast<std::size_t>(In::count));

// What does not vary while a stroke is drawn.
constexpr MypaintInputs kFixed = bitOf(In::brushRadius) | bitOf(In::zoom);
constexpr MypaintInputs kPen = kFixed | bitOf(In::pressure) | bitOf(In::speed1) | bitOf(In::speed2) |
                               bitOf(In::custom) | bitOf(In::declination);
constexpr MypaintInputs kPenAndChance = kPen | bitOf(In::random);
constexpr MypaintInputs kStroke = bitOf(In::stroke);
constexpr MypaintInputs kAll = ~MypaintInputs{0};

constexpr MypaintSettingRow kSettings[] = {
    {"opaque", "opacity", 1, kPenAndChance, false},
    {"opaque_multiply", "opacity", 0, kPenAndChance, false},
    {"opaque_linearize", "opacity's evening out", 0.9f, kFixed, false},
    {"radius_logarithmic", "size", 2, kPenAndChance | kStroke, false},
    {"radius_by_random", "random size", 0, kFixed, false},
    {"hardness", "hardness", 0.8f, kFixed, false},
    {"anti_aliasing", "the edge's smoothness", 1, kFixed, false},
    {"snap_to_pixel", "snapping to pixels", 0, kFixed, true},
    {"dabs_per_basic_radius", "spacing", 0, kFixed, false},
    {"dabs_per_actual_radius", "spacing", 2, kFixed, false},
    {"dabs_per_second", "painting while the pen rests", 0, kFixed, true},
    {"elliptical_dab_ratio", "roundness", 1, kPenAndChance, false},
    {"elliptical_dab_angle", "angle", 90,
     kFixed | bitOf(In::random) | bitOf(In::direction) | bitOf(In::directionAngle), false},
    {"direction_filter", "the direction's smoothing", 2, kAll, false},
    {"offset_by_random", "scatter", 0, kPen, false},
    {"offset_x", "the offset across", 0, kFixed, true},
    {"offset_y", "the offset down", 0, kFixed, true},
    {"offset_angle", "the offset along the stroke", 0, kFixed, true},
    {"offset_angle_asc", "the offset by tilt", 0, kFixed, true},
    {"offset_angle_view", "the offset by the view's rotation", 0, kFixed, true},
    {"offset_angle_2", "the offset to both sides", 0, kFixed, true},
    {"offset_angle_2_asc", "the offset to both sides by tilt", 0, kFixed, true},
    {"offset_angle_2_view", "the offset to both sides by the view's rotation", 0, kFixed, true},
    {"offset_angle_adj", "the offset's angle", 0, kAll, false},
    {"offset_multiplier", "the offset's size", 0, kAll, false},
    {"offset_by_speed", "the offset by speed", 0, kFixed, true},
    {"offset_by_speed_slowness", "the offset's slowness", 1, kAll, false},
    {"slow_tracking", "steadying", 0, kFixed, false},
    {"slow_tracking_per_dab", "steadying of dabs", 0, kFixed, true},
    {"tracking_noise", "trembling", 0, kFixed, false},
    {"smudge", "smudging", 0, kFixed | kStroke, false},
    {"smudge_length", "the smudge's length", 0.5f, kFixed, false},
    {"smudge_length_log", "the smudge's greater length", 0, kFixed, false},
    {"smudge_radius_log", "the size that is smudged from", 0, kFixed, true},
    {"smudge_bucket", "several smudged colours", 0, kFixed, true},
    {"smudge_transparency", "smudging by transparency", 0, kFixed, true},
    {"eraser", "erasing", 0, kFixed, false},
    {"lock_alpha", "keeping transparency", 0, kFixed, true},
    {"colorize", "colouring what is there", 0, kFixed, true},
    {"posterize", "posterising", 0, kFixed, true},
    {"posterize_num", "posterising's steps", 0.05f, kAll, false},
    {"paint_mode", "mixing colours as pigments do", 0, kFixed, true},
    {"color_h", "hue", 0, kFixed, false},
    {"color_s", "saturation", 0, kFixed, false},
    {"color_v", "brightness", 0, kFixed, false},
    {"restore_color", "", 0, kAll, false},
    {"change_color_h", "hue", 0, kFixed | bitOf(In::random), true},
    {"change_color_l", "lightness", 0, kFixed | bitOf(In::random), true},
    {"change_color_hsl_s", "saturation", 0, kFixed | bitOf(In::random), true},
    {"change_color_v", "brightness", 0, kFixed | bitOf(In::random), true},
    {"change_color_hsv_s", "saturation", 0, kFixed | bitOf(In::random), true},
    {"speed1_slowness", "", 0.04f, kAll, false},
    {"speed2_slowness", "", 0.8f, kAll, false},
    {"speed1_gamma", "", 4, kAll, false},
    {"speed2_gamma", "", 4, kAll, false},
    {"stroke_threshold", "", 0, kAll, false},
    {"stroke_duration_logarithmic", "", 4, kAll, false},
    {"stroke_holdtime", "", 0, kAll, false},
    {"custom_input", "the custom input", 0, kPenAndChance, false},
    {"custom_input_slowness", "", 0, kAll, false},
    {"pressure_gain_log", "", 0, kAll, false},
    {"gridmap_scale", "", 0, kAll, false},
    {"gridmap_scale_x", "", 1, kAll, false},
    {"gridmap_scale_y", "", 1, kAll, false},
};

}  // namespace

const MypaintInputRow& rowOf(MypaintInput input) {
    return kInputs[static_cast<std::size_t>(input)];
}

std::optional<MypaintInput> mypaintInputNamed(std::string_view key) {
    const auto* const found =
        std::find_if(std::begin(kInputs), std::end(kInputs), [&](const auto& row) { return row.key == key; });
    return found == std::end(kInputs) ? std::nullopt : std::optional(found->input);
}

const MypaintSettingRow* mypaintSettingNamed(std::string_view key) {
    const auto* const found = std::find_if(std::begin(kSettings), std::end(kSettings),
                                           [&](const auto& row) { return row.key == key; });
    return found == std::end(kSettings) ? nullptr : found;
}

}  // namespace dabcanvas
