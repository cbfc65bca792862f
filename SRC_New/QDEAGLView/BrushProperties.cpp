// SPDX-License-Identifier: MIT
#include "QDEAGLView/BrushProperties.h"

#include <array>

#include "ESRender/ESSmudgeRender.h"
#include "QDEAGLView/QDDrawCanvas.h"

namespace {

using B = BrushSettings;
using C = QDDrawCanvas;
using G = BrushGroup;
using K = BrushKey;
using Base = ESBaseRender;
using Line = ESLineRender;
using Smudge = ESSmudgeRender;

constexpr Renders kDabs = kMain | kSmudge;

// Rows whose setter breaks the plain rule (clamp, store, send to lines, send to renders) leave out what the
// setter does by itself; QDDrawCanvas+Properties.cpp says what that is.
// clang-format off
const BrushProperty kBrushProperties[] = {
    {.key = K::brushType, .name = "brushType", .group = G::brush, .presetId = 0x1001, .reset = 0, .field = &B::brushType, .set = &C::setBrushType, .choices{{0, 4}},
     .about = "Kind of brush: 3 smudges, 4 is the live preview brush, any other paints dabs."},
    {.key = K::isDebug, .name = "isDebug", .group = G::brush, .field = &B::isDebug, .set = &C::setIsDebug,
     .about = "Switches off the smudge behaviour of brush type 3."},
    {.key = K::enableRecogition, .name = "enableRecogition", .group = G::recognition, .field = &B::enableRecogition, .set = &C::setEnableRecogition,
     .about = "Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 and 4 draw plain dabs meanwhile."},
    {.key = K::gaussianRadius, .name = "gaussianRadius", .group = G::brush, .field = &B::gaussianRadius, .set = &C::setGaussianRadius, .created = 1, .low = 1,
     .about = "Blur of the live preview brush when its stroke is placed, in preview pixels."},
    {.key = K::blendType, .name = "blendType", .group = G::brush, .presetId = 0x1002, .reset = 1, .field = &B::blendType, .set = &C::setBlendType, .created = 1, .choices{{1, 9}},
     .about = "How a stroke meets the canvas: 1 normal, 2 replace, 4 behind, 5 erase, 6 tarnish (darken), 7 brightness (lighten), 8 multiply, 9 reset; any other as normal."},
    {.key = K::blendFragmentShaderString, .name = "blendFragmentShaderString", .group = G::brush, .field = &B::blendFragmentShaderString, .set = &C::setBlendFragmentShaderString,
     .about = "Source of one of the blend programs, which selects its blend type."},
    {.key = K::renderColor, .name = "renderColor", .group = G::color, .presetId = 0x1003, .field = &B::renderColor, .set = &C::setRenderColor,
     .renders = kDabs | kSub | kCompositor, .render = &Base::setRenderColor,
     .about = "Brush colour; its alpha is not used, opacity and flow are."},
    {.key = K::opacity, .name = "opacity", .group = G::flow, .presetId = 0x1006, .reset = 1, .field = &B::opacity, .set = &C::setOpacity, .created = 1, .low = 0, .high = 1,
     .renders = kDabs | kCompositor, .render = &Base::setOpacity,
     .about = "Opacity of a stroke as a whole, however often it crosses itself."},
    {.key = K::radius, .name = "radius", .group = G::size, .presetId = 0x2002, .reset = 32, .field = &B::radius, .set = &C::setRadius, .created = 32, .low = 2, .high = 1280,
     .lineId = 1, .lines = Lines::main, .renders = kDabs, .render = &Line::setRadius,
     .about = "Size of a full dab across, in buffer pixels."},
    {.key = K::flow, .name = "flow", .group = G::flow, .presetId = 0x1007, .reset = 1, .field = &B::flow, .set = &C::setFlow, .created = 1, .low = 0, .high = 1,
     .renders = kDabs | kCompositor, .render = &Base::setFlow,
     .about = "How much paint one dab lays down; dabs build up where they overlap."},
    {.key = K::trackNum, .name = "trackNum", .group = G::spacing, .presetId = 0x300C, .reset = 0, .field = &B::trackNum, .set = &C::setTrackNum,
     .about = "Pointer samples gathered before a segment is drawn: higher is steadier and lags more."},
    {.key = K::moistQuantity, .name = "moistQuantity", .group = G::smudge, .presetId = 0x1008, .reset = 0.5f, .field = &B::moistQuantity, .set = &C::setMoistQuantity, .created = 0.3f, .low = 0, .high = 1,
     .renders = kSmudge, .render = &Smudge::setMoistQuantity,
     .about = "Wetness of a smudge brush: how much of the canvas colour that it meets is taken along, 0 none to 1 all."},
    {.key = K::loadQuantity, .name = "loadQuantity", .group = G::smudge, .presetId = 0x1009, .reset = 1, .field = &B::loadQuantity, .set = &C::setLoadQuantity, .created = 1, .low = 0, .high = 1,
     .renders = kSmudge, .render = &Smudge::setLoadQuantity,
     .about = "Amount of own colour on a smudge brush; 0 only moves what is there."},
    {.key = K::mixQuantity, .name = "mixQuantity", .group = G::smudge, .presetId = 0x100A, .reset = 1, .field = &B::mixQuantity, .set = &C::setMixQuantity, .created = 1, .low = 0, .high = 1,
     .renders = kSmudge, .render = &Smudge::setMixQuantity,
     .about = "What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone."},
    {.key = K::smudgeControl, .name = "smudgeControl", .group = G::smudge, .presetId = 0x100B, .presetForm = PresetForm::readViaFloat, .field = &B::smudgeControl, .set = &C::setSmudgeControl, .created = 1,
     .renders = kSmudge, .render = &Smudge::setSmudgeControl,
     .about = "Ramps the mixed amount up over a smudge stroke's first dabs."},
    {.key = K::smudgeControlValue, .name = "smudgeControlValue", .group = G::smudge, .presetId = 0x100C, .field = &B::smudgeControlValue, .set = &C::setSmudgeControlValue, .created = 25, .low = 1,
     .renders = kSmudge, .render = &Smudge::setSmudgeControlValue,
     .about = "Length of that ramp, in dabs."},
    {.key = K::textureType, .name = "textureType", .group = G::tip, .presetId = 0x200A, .reset = 0, .field = &B::textureType, .set = &C::setTextureType, .created = 1, .choices{{0, 3}},
     .about = "Brush tip: 0 the tip images, 1 soft disc, 2 ring, 3 rounded rectangle."},
    {.key = K::hardness, .name = "hardness", .group = G::tip, .presetId = 0x200B, .reset = 0.5f, .field = &B::hardness, .set = &C::setHardness, .low = 0, .high = 1,
     .about = "Edge of a generated tip: 0 soft, 1 hard."},
    {.key = K::textureControlValue, .name = "textureControlValue", .group = G::tip, .presetId = 0x200C, .field = &B::textureControlValue, .set = &C::setTextureControlValue, .created = 1,
     .about = "Thickness of the ring tip in pixels, or width to height of the rectangle tip."},
    {.key = K::textureImages, .name = "textureImages", .group = G::tip, .presetId = 0x2001, .field = &B::textureImages, .set = &C::setTextureImages,
     .about = "Tip images of texture type 0, up to 16: alpha is the shape; own colours show in multicolour mode."},
    {.key = K::flipX, .name = "flipX", .group = G::angle, .presetId = 0x2003, .reset = 0, .field = &B::flipX, .set = &C::setFlipX, .renders = kDabs, .render = &Line::setFlipX,
     .about = "Mirrors the tip left to right."},
    {.key = K::flipY, .name = "flipY", .group = G::angle, .presetId = 0x2004, .reset = 0, .field = &B::flipY, .set = &C::setFlipY, .renders = kDabs, .render = &Line::setFlipY,
     .about = "Mirrors the tip top to bottom."},
    {.key = K::needMaskTexture, .name = "needMaskTexture", .group = G::tip, .presetId = 0x800D, .reset = 0, .field = &B::needMaskTexture, .set = &C::setNeedMaskTexture, .renders = kMain, .render = &Line::setNeedMaskTexture,
     .about = "Paints through the paper given as the mask image."},
    {.key = K::maskScale, .name = "maskScale", .group = G::tip, .presetId = 0x800E, .reset = 1, .field = &B::maskScale, .set = &C::setMaskScale, .created = 1, .renders = kMain, .render = &Line::setMaskScale,
     .about = "Size of one paper tile on the canvas, relative to the mask image."},
    {.key = K::maskImage, .name = "maskImage", .group = G::tip, .presetId = 0x800F, .field = &B::maskImage, .set = &C::setMaskImage,
     .about = "Paper, repeated over the canvas: white lets paint through, black and transparent hold it back."},
    {.key = K::pointsDistanceEnabled, .name = "pointsDistanceEnabled", .group = G::spacing, .presetId = 0x2007, .reset = 1, .field = &B::pointsDistanceEnabled, .set = &C::setPointsDistanceEnabled, .created = 1, .lineId = 2, .lines = Lines::main,
     .about = "Spaces dabs evenly along the stroke; off, every pointer sample gives one dab."},
    {.key = K::pointsDistance, .name = "pointsDistance", .group = G::spacing, .presetId = 0x2008, .reset = 0.2f, .field = &B::pointsDistance, .set = &C::setPointsDistance, .created = 0.15f, .low = 0.01f, .lineId = 3, .lines = Lines::main,
     .about = "Distance from dab to dab as a fraction of the dab's size."},
    {.key = K::smoothEnabled, .name = "smoothEnabled", .group = G::spacing, .presetId = 0x7004, .reset = 1, .field = &B::smoothEnabled, .set = &C::setSmoothEnabled, .created = 1, .lineId = 11, .lines = Lines::both,
     .about = "Draws curves through the pointer samples instead of straight lines."},
    {.key = K::sensitivity, .name = "sensitivity", .group = G::spacing, .presetId = 0x3008, .reset = 50, .field = &B::sensitivity, .set = &C::setSensitivity, .created = 50, .lineId = 14, .lines = Lines::both,
     .about = "Distance per pointer sample, in buffer pixels, that counts as fully fast."},
    {.key = K::speedSencitive, .name = "speedSencitive", .group = G::spacing, .presetId = 0x3007, .reset = 0.3f, .field = &B::speedSencitive, .set = &C::setSpeedSencitive, .created = 0.3f, .low = 0, .high = 1, .lineId = 13, .lines = Lines::both,
     .about = "How quickly the measured speed follows the pointer."},
    {.key = K::colorFul, .name = "colorFul", .group = G::color, .presetId = 0x1005, .reset = 0, .field = &B::colorFul, .set = &C::setColorFul, .renders = kMain, .render = &Line::setColorFul,
     .about = "Multicolour: the tip's own colours paint (the brush colour where it is black), each dab varied by the hue, saturation and brightness jitters."},
    {.key = K::lineProcessType, .name = "lineProcessType", .group = G::size, .presetId = 0x100D, .field = &B::lineProcessType, .set = &C::setLineProcessType, .choices{{0, 7}}, .renders = kDabs | kCompositor, .render = &Base::setLineProcessType,
     .about = "Bits for thin lines: 2 draws no dab smaller than 3 pixels, 4 thins the flow of smaller ones instead."},
    {.key = K::minRadius, .name = "minRadius", .group = G::size, .presetId = 0x3006, .reset = 0, .field = &B::minRadius, .set = &C::setMinRadius, .created = 0.23f, .low = 0, .high = 1, .lineId = 9, .lines = Lines::both,
     .renders = kDabs | kSub, .render = &Line::setMinRadius,
     .about = "Smallest size, as a fraction of radius. Without influences dabs are drawn at the middle of smallest and largest."},
    {.key = K::maxRadius, .name = "maxRadius", .group = G::size, .presetId = 0x3016, .field = &B::maxRadius, .set = &C::setMaxRadius, .created = 1, .low = 0, .high = 1, .lineId = 10, .lines = Lines::both,
     .about = "Largest size, as a fraction of radius."},
    {.key = K::startRadius, .name = "startRadius", .group = G::size, .presetId = 0x3009, .reset = 0.4f, .field = &B::startRadius, .set = &C::setStartRadius, .created = 0.3f, .low = 0, .high = 1, .lineId = 15, .lines = Lines::both,
     .about = "Size at the start of the stroke's taper, as a fraction of radius; 0 for no taper."},
    {.key = K::strokeControlValue, .name = "strokeControlValue", .group = G::size, .presetId = 0x300A, .reset = 1, .field = &B::strokeControlValue, .set = &C::setStrokeControlValue, .lineId = 18, .lines = Lines::both,
     .about = "Length of the start taper, in buffer pixels."},
    {.key = K::endRadius, .name = "endRadius", .group = G::size, .presetId = 0x300B, .reset = 0.4f, .field = &B::endRadius, .set = &C::setEndRadius, .created = 0.23f, .low = 0, .high = 1, .lineId = 16, .lines = Lines::both,
     .about = "Size at the very end of the stroke, as a fraction of radius; 0 for no taper."},
    {.key = K::radiusTingle, .name = "radiusTingle", .group = G::size, .presetId = 0x3002, .reset = 0, .field = &B::radiusTingle, .set = &C::setRadiusTingle, .lineId = 5, .lines = Lines::main, .renders = kDabs, .render = &Line::setRadiusTingle,
     .about = "Random shrinking of dabs, 0 to 1."},
    {.key = K::radiusControl, .name = "radiusControl", .group = G::size, .presetId = 0x3100, .reset = 0, .field = &B::radiusControl, .set = &C::setRadiusControl,
     .about = "Influence of pressure, altitude and speed on the size, -1 to 1 each."},
    {.key = K::disTwoAxes, .name = "disTwoAxes", .group = G::scatter, .presetId = 0x4002, .reset = 0, .field = &B::disTwoAxes, .set = &C::setDisTwoAxes, .renders = kDabs, .render = &Line::setDisTwoAxes,
     .about = "Scatters dabs all around instead of only across the stroke."},
    {.key = K::distribution, .name = "distribution", .group = G::scatter, .presetId = 0x4003, .reset = 0, .field = &B::distribution, .set = &C::setDistribution, .renders = kDabs, .render = &Line::setDistribution,
     .about = "How far dabs scatter, in dab sizes."},
    {.key = K::distributionControl, .name = "distributionControl", .group = G::scatter, .presetId = 0x4100, .reset = 0, .field = &B::distributionControl, .set = &C::setDistributionControl, .renders = kDabs, .render = &Line::setDistributionControl,
     .about = "Influence of pressure, altitude and speed on the scatter, -1 to 1 each."},
    {.key = K::distributionCount, .name = "distributionCount", .group = G::scatter, .presetId = 0x4006, .reset = 1, .field = &B::distributionCount, .set = &C::setDistributionCount, .created = 1, .low = 1,
     .about = "Dabs at each place, whole; at most 64 are drawn."},
    {.key = K::distributionCountTingle, .name = "distributionCountTingle", .group = G::scatter, .presetId = 0x4007, .reset = 0, .field = &B::distributionCountTingle, .set = &C::setDistributionCountTingle, .renders = kDabs, .render = &Line::setDistributionCountTingle,
     .about = "Random variation of that number, 0 to 1."},
    {.key = K::distributionCountControl, .name = "distributionCountControl", .group = G::scatter, .presetId = 0x4200, .reset = 0, .field = &B::distributionCountControl, .set = &C::setDistributionCountControl, .renders = kDabs, .render = &Line::setDistributionCountControl,
     .about = "Influence of pressure, altitude and speed on that number, -1 to 1 each."},
    {.key = K::radian, .name = "radian", .group = G::angle, .presetId = 0x2005, .reset = 0, .field = &B::radian, .set = &C::setRadian, .renders = kDabs, .render = &Line::setRadian,
     .about = "Rotation of the tip in radians, counter-clockwise."},
    {.key = K::startRadianEnable, .name = "startRadianEnable", .group = G::angle, .presetId = 0x200D, .presetForm = PresetForm::storedAsFloat, .field = &B::startRadianEnable, .set = &C::setStartRadianEnable, .renders = kDabs, .render = &Line::setStartRadianEnable,
     .about = "Turns the tip by a random angle at the start of every stroke."},
    {.key = K::moveRadianEnable, .name = "moveRadianEnable", .group = G::angle, .presetId = 0x200E, .presetForm = PresetForm::storedAsFloat, .field = &B::moveRadianEnable, .set = &C::setMoveRadianEnable, .renders = kDabs, .render = &Line::setMoveRadianEnable,
     .about = "Turns the tip into the direction of the stroke."},
    {.key = K::flipXTingle, .name = "flipXTingle", .group = G::angle, .presetId = 0x3014, .reset = 0, .presetForm = PresetForm::readViaFloat, .field = &B::flipXTingle, .set = &C::setFlipXTingle, .renders = kDabs, .render = &Line::setFlipXTingle,
     .about = "Mirrors every other dab left to right, at random."},
    {.key = K::flipYTingle, .name = "flipYTingle", .group = G::angle, .presetId = 0x3015, .reset = 0, .presetForm = PresetForm::readViaFloat, .field = &B::flipYTingle, .set = &C::setFlipYTingle, .renders = kDabs, .render = &Line::setFlipYTingle,
     .about = "Mirrors every other dab top to bottom, at random."},
    {.key = K::radianTingle, .name = "radianTingle", .group = G::angle, .presetId = 0x300D, .reset = 0, .field = &B::radianTingle, .set = &C::setRadianTingle, .renders = kDabs, .render = &Line::setRadianTingle,
     .about = "Random rotation of each dab, 0 to 1 for up to half a turn either way."},
    {.key = K::radianControl, .name = "radianControl", .group = G::angle, .presetId = 0x3200, .reset = 0, .field = &B::radianControl, .set = &C::setRadianControl, .renders = kDabs, .render = &Line::setRadianControl,
     .about = "Influence of pressure, altitude and speed on the rotation, -1 to 1 each."},
    {.key = K::roundness, .name = "roundness", .group = G::shape, .presetId = 0x2006, .reset = 1, .field = &B::roundness, .set = &C::setRoundness, .created = 1, .low = 0, .high = 1, .renders = kDabs, .render = &Line::setRoundness,
     .about = "Height of the dab relative to its width."},
    {.key = K::roundnessTingle, .name = "roundnessTingle", .group = G::shape, .presetId = 0x3010, .reset = 0, .field = &B::roundnessTingle, .set = &C::setRoundnessTingle, .renders = kDabs, .render = &Line::setRoundnessTingle,
     .about = "Random variation of the roundness, 0 to 1."},
    {.key = K::minRoundness, .name = "minRoundness", .group = G::shape, .presetId = 0x3011, .reset = 0, .field = &B::minRoundness, .set = &C::setMinRoundness, .created = 0.01f, .low = 0.01f, .high = 1,
     .about = "Lower bound of the roundness."},
    {.key = K::roundnessControl, .name = "roundnessControl", .group = G::shape, .presetId = 0x3300, .reset = 0, .field = &B::roundnessControl, .set = &C::setRoundnessControl, .renders = kDabs, .render = &Line::setRoundnessControl,
     .about = "Influence of pressure, altitude and speed on the roundness, -1 to 1 each."},
    {.key = K::minFlow, .name = "minFlow", .group = G::flow, .presetId = 0x6009, .reset = 0, .field = &B::minFlow, .set = &C::setMinFlow, .created = 0.0001f, .low = 0.0001f, .renders = kDabs, .render = &Line::setMinFlow,
     .about = "Lower bound of the influenced flow, as a fraction of flow."},
    {.key = K::maxFlow, .name = "maxFlow", .group = G::flow, .presetId = 0x600C, .field = &B::maxFlow, .set = &C::setMaxFlow, .created = 1, .low = 0.0001f, .renders = kDabs, .render = &Line::setMaxFlow,
     .about = "Upper bound of the influenced flow, as a fraction of flow."},
    {.key = K::flowTingle, .name = "flowTingle", .group = G::flow, .presetId = 0x6006, .reset = 0, .field = &B::flowTingle, .set = &C::setFlowTingle, .renders = kDabs, .render = &Line::setFlowTingle,
     .about = "Random variation of the flow, 0 to 1."},
    {.key = K::flowControl, .name = "flowControl", .group = G::flow, .presetId = 0x6100, .reset = 0, .field = &B::flowControl, .set = &C::setFlowControl, .renders = kDabs, .render = &Line::setFlowControl,
     .about = "Influence of pressure, altitude and speed on the flow, -1 to 1 each."},
    {.key = K::decay, .name = "decay", .group = G::flow, .presetId = 0x6008, .reset = 0, .field = &B::decay, .set = &C::setDecay, .renders = kDabs, .render = &Line::setDecay,
     .about = "Number of dabs after which the paint has run out; 0 or 1 for never."},
    {.key = K::textureTingleEnabled, .name = "textureTingleEnabled", .group = G::tip, .presetId = 0x8002, .reset = 0, .field = &B::textureTingleEnabled, .set = &C::setTextureTingleEnabled, .renders = kDabs, .render = &Line::setTextureTingleEnabled,
     .about = "Picks one of several tip images at random for each dab."},
    {.key = K::textureControl, .name = "textureControl", .group = G::tip, .presetId = 0x8100, .reset = 0, .field = &B::textureControl, .set = &C::setTextureControl, .renders = kDabs, .render = &Line::setTextureControl,
     .about = "Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 each."},
    {.key = K::backRenderColor, .name = "backRenderColor", .group = G::color, .presetId = 0x1004, .field = &B::backRenderColor, .set = &C::setBackRenderColor, .renders = kDabs, .render = &Line::setBackRenderColor,
     .about = "Secondary colour, toward which the colour jitter mixes."},
    {.key = K::colorTingle, .name = "colorTingle", .group = G::color, .presetId = 0x5002, .reset = 0, .field = &B::colorTingle, .set = &C::setColorTingle, .renders = kMain, .render = &Line::setColorTingle,
     .about = "Random mixing of each dab toward the secondary colour, 0 to 1."},
    {.key = K::colorControl, .name = "colorControl", .group = G::color, .presetId = 0x5100, .reset = 0, .field = &B::colorControl, .set = &C::setColorControl, .renders = kDabs, .render = &Line::setColorControl,
     .about = "Influence of pressure, altitude and speed on the mixing, -1 to 1 each."},
    {.key = K::hueTingle, .name = "hueTingle", .group = G::color, .presetId = 0x5005, .reset = 0, .field = &B::hueTingle, .set = &C::setHueTingle, .renders = kDabs, .render = &Line::setHueTingle,
     .about = "Random variation of each dab's hue, 0 to 1."},
    {.key = K::saturationTingle, .name = "saturationTingle", .group = G::color, .presetId = 0x5006, .reset = 0, .field = &B::saturationTingle, .set = &C::setSaturationTingle, .renders = kDabs, .render = &Line::setSaturationTingle,
     .about = "Random variation of each dab's saturation, 0 to 1."},
    {.key = K::brightnessTingle, .name = "brightnessTingle", .group = G::color, .presetId = 0x5007, .reset = 0, .field = &B::brightnessTingle, .set = &C::setBrightnessTingle, .renders = kDabs, .render = &Line::setBrightnessTingle,
     .about = "Random variation of each dab's brightness, 0 to 1."},
    {.key = K::repeatedlyRenderEnabled, .name = "repeatedlyRenderEnabled", .group = G::secondLine, .presetId = 0x400A, .reset = 0, .field = &B::repeatedlyRenderEnabled, .set = &C::setRepeatedlyRenderEnabled,
     .about = "Draws a second line with a tip of its own and paints only where both are."},
    {.key = K::slTextureImage, .name = "slTextureImage", .group = G::secondLine, .presetId = 0x400B, .field = &B::slTextureImage, .set = &C::setSlTextureImage,
     .about = "Tip image of the second line."},
    {.key = K::slRadius, .name = "slRadius", .group = G::secondLine, .presetId = 0x400D, .reset = 32, .field = &B::slRadius, .set = &C::setSlRadius, .created = 32, .low = 1,
     .about = "Size of the second line's dabs, in buffer pixels."},
    {.key = K::slPointsDistance, .name = "slPointsDistance", .group = G::secondLine, .presetId = 0x400E, .reset = 0.2f, .field = &B::slPointsDistance, .set = &C::setSlPointsDistance, .created = 0.25f, .low = 0.01f, .lineId = 3, .lines = Lines::sub,
     .about = "Distance from dab to dab of the second line as a fraction of the dab's size."},
    {.key = K::slDistribution, .name = "slDistribution", .group = G::secondLine, .presetId = 0x400F, .reset = 0, .field = &B::slDistribution, .set = &C::setSlDistribution, .renders = kSub, .render = &Line::setDistribution,
     .about = "How far the second line's dabs scatter, in dab sizes."},
    {.key = K::slDistbTwoAxes, .name = "slDistbTwoAxes", .group = G::secondLine, .presetId = 0x4010, .reset = 0, .field = &B::slDistbTwoAxes, .set = &C::setSlDistbTwoAxes, .renders = kSub, .render = &Line::setDisTwoAxes,
     .about = "Scatters the second line's dabs all around instead of only across the stroke."},
    {.key = K::slDistbCount, .name = "slDistbCount", .group = G::secondLine, .presetId = 0x4011, .reset = 1, .field = &B::slDistbCount, .set = &C::setSlDistbCount, .created = 1,
     .about = "Dabs at each place of the second line, whole; at most 64 are drawn."},
    {.key = K::slRadiusRelationType, .name = "slRadiusRelationType", .group = G::secondLine, .presetId = 0x4012, .reset = 0, .field = &B::slRadiusRelationType, .set = &C::setSlRadiusRelationType, .choices{{0, 2}},
     .about = "How the second line's size follows radius: 1 by a difference, 2 by a ratio, any other not at all."},
    {.key = K::relationValue, .name = "relationValue", .group = G::secondLine, .presetId = 0x4013, .reset = 0, .field = &B::relationValue, .set = &C::setRelationValue,
     .about = "That difference in buffer pixels, or that ratio."},
    {.key = K::recogPointScale, .name = "recogPointScale", .group = G::recognition, .field = &B::recogPointScale, .set = &C::setRecogPointScale, .created = 1,
     .about = "Divides the points handed to shape recognition."},
};
// clang-format on
static_assert(std::size(kBrushProperties) == static_cast<std::size_t>(BrushKey::count), "one row a key");

constexpr const char* kGroupNames[] = {"brush", "tip",  "spacing", "size",   "scatter",     "angle",
                                       "shape", "flow", "color",   "smudge", "second line", "recognition"};
constexpr const char* kTypeNames[] = {"boolean", "integer", "number", "control",
                                      "colour",  "image",   "images", "text"};
static_assert(std::size(kGroupNames) == static_cast<std::size_t>(BrushGroup::recognition) + 1);
static_assert(std::size(kTypeNames) == std::variant_size_v<BrushProperty::Field>);

}  // namespace

std::span<const BrushProperty> brushProperties() {
    return kBrushProperties;
}

const BrushProperty& brushProperty(BrushKey key) {
    return kBrushProperties[static_cast<std::size_t>(key)];
}

const BrushProperty* brushPropertyNamed(QStringView name) {
    for (const BrushProperty& row : kBrushProperties) {
        if (name == QLatin1String(row.name)) {
            return &row;
        }
    }
    return nullptr;
}

const BrushProperty* brushPropertyOfPresetId(std::uint32_t id, int* part) {
    for (const BrushProperty& row : kBrushProperties) {
        const bool isControl = row.type() == BrushValueType::control;
        const std::uint32_t first = row.presetId + (isControl ? 1u : 0u);
        if (row.presetId != 0 && id >= first && id <= (isControl ? first + 2 : first)) {
            *part = isControl ? static_cast<int>(id - first) : -1;
            return &row;
        }
    }
    return nullptr;
}

QVariant brushDefault(const BrushProperty& property) {
    switch (property.type()) {
        case BrushValueType::boolean:
            return property.created != 0;
        case BrushValueType::integer:
            return static_cast<std::int32_t>(property.created);
        case BrushValueType::real:
            return property.created;
        case BrushValueType::control:
            return QVariant::fromValue(LPControlParams{});
        case BrushValueType::color:
            return QVariant::fromValue(ESColor::rgba(0, 0, 0, 1));
        case BrushValueType::image:
            return QVariant::fromValue(QImage());
        case BrushValueType::images:
            return QVariant::fromValue(QList<QImage>());
        case BrushValueType::text:
            return QString();
    }
    return {};
}

const char* brushGroupName(BrushGroup group) {
    return kGroupNames[static_cast<std::size_t>(group)];
}

const char* brushValueTypeName(BrushValueType type) {
    return kTypeNames[static_cast<std::size_t>(type)];
}
