// SPDX-License-Identifier: MIT
/// \file
/// Every brush property, one row each. All that a property has follows from its row: its key, the field that it is kept
/// in, its getter and setter on a canvas, its Qt property, its record in presets, what dabs and lines are given of it,
/// and what the tools tell of it.
///
///     BRUSH_PROPERTY(type, name, Name, columns...)
///
/// The columns are those of BrushProperty, in its order; a column left out takes its default there. Rows stand in the
/// order in which presets are captured. A property of a new name needs a row here, and the code that uses it; one that
/// dabs use, a field of DabSettings too; one with a reset value, its place in kResetOrder of BrushState+Reset.cpp.
///
/// A number that stands for something has a row BRUSH_KIND(Kind, name, Name, columns...), with its enumeration of
/// BrushKinds.h, and the tips one BRUSH_IMAGES(name, Name, columns...); for those who do not tell them apart they are
/// rows as all.
///
/// Included by whoever defines BRUSH_PROPERTY for what it makes of the rows; for anyone else it is empty.
// clang-format off
#ifndef BRUSH_PROPERTY
#define BRUSH_PROPERTY(...)
#endif
#ifndef BRUSH_KIND
#define BRUSH_KIND(Kind, name, Name, ...) BRUSH_PROPERTY(int, name, Name, __VA_ARGS__)
#endif
#ifndef BRUSH_IMAGES
#define BRUSH_IMAGES(name, Name, ...) BRUSH_PROPERTY(QList<QImage>, name, Name, __VA_ARGS__)
#endif
BRUSH_KIND(BrushKind, brushType, BrushType, .group = BrushGroup::brush, .presetId = 0x1001, .reset = 0,
               .about = "What a stroke becomes: dabs, dabs that smudge, or a filled outline, shown live; any other "
                        "number, dabs.")
BRUSH_PROPERTY(bool, isDebug, IsDebug, .group = BrushGroup::brush,
               .with{BrushKey::brushType},
               .about = "Switches off the smudge behaviour of brush type 3.")
BRUSH_PROPERTY(bool, enableRecogition, EnableRecogition, .group = BrushGroup::recognition,
               .about = "Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 "
                        "and 4 draw plain dabs meanwhile.")
BRUSH_PROPERTY(float, gaussianRadius, GaussianRadius, .group = BrushGroup::brush, .created = 1, .low = 1,
               .useful{{1, 40}}, .unit = BrushUnit::pixels,
               .with{BrushKey::brushType},
               .about = "Blur of the live preview brush when its stroke is placed, in preview pixels.")
BRUSH_KIND(BlendKind, blendType, BlendType, .group = BrushGroup::brush, .presetId = 0x1002, .reset = 1,
               .created = 1,
               .about = "How a stroke meets the canvas; any other number, as normal.")
BRUSH_PROPERTY(QString, blendFragmentShaderString, BlendFragmentShaderString, .group = BrushGroup::brush,
               .with{BrushKey::blendType},
               .about = "Source of one of the blend programs, which selects its blend type.")
BRUSH_PROPERTY(ESColor, renderColor, RenderColor, .group = BrushGroup::color, .presetId = 0x1003,
               .about = "Brush colour; its alpha is not used, opacity and flow are.")
BRUSH_PROPERTY(float, opacity, Opacity, .group = BrushGroup::flow, .presetId = 0x1006, .reset = 1, .created = 1,
               .low = 0, .high = 1,
               .about = "Opacity of a stroke as a whole, however often it crosses itself.")
BRUSH_PROPERTY(float, radius, Radius, .group = BrushGroup::size, .presetId = 0x2002, .reset = 32, .created = 32,
               .low = 2, .high = 1280, .unit = BrushUnit::pixels, .lineId = 1, .lines = Lines::main,
               .dab = &DabSettings::radius,
               .about = "Size of a full dab across, in buffer pixels.")
BRUSH_PROPERTY(float, flow, Flow, .group = BrushGroup::flow, .presetId = 0x1007, .reset = 1, .created = 1,
               .low = 0, .high = 1, .dab = &DabSettings::flow,
               .about = "How much paint one dab lays down; dabs build up where they overlap.")
BRUSH_PROPERTY(int, trackNum, TrackNum, .group = BrushGroup::spacing, .presetId = 0x300C, .reset = 0,
               .useful{{0, 20}}, .unit = BrushUnit::samples, .lineId = 17, .lines = Lines::main,
               .about = "Pointer samples gathered before a segment is drawn: higher is steadier and lags "
                        "more.")
BRUSH_PROPERTY(float, moistQuantity, MoistQuantity, .group = BrushGroup::smudge, .presetId = 0x1008,
               .reset = 0.5f, .created = 0.3f, .low = 0, .high = 1,
               .with{BrushKey::brushType, BrushKey::mixQuantity},
               .about = "Wetness of a smudge brush: how much of the canvas colour that it meets is taken "
                        "along, 0 none to 1 all.")
BRUSH_PROPERTY(float, loadQuantity, LoadQuantity, .group = BrushGroup::smudge, .presetId = 0x1009, .reset = 1,
               .created = 1, .low = 0, .high = 1,
               .with{BrushKey::brushType, BrushKey::mixQuantity},
               .about = "Amount of own colour on a smudge brush; 0 only moves what is there.")
BRUSH_PROPERTY(float, mixQuantity, MixQuantity, .group = BrushGroup::smudge, .presetId = 0x100A, .reset = 1,
               .created = 1, .low = 0, .high = 1,
               .with{BrushKey::brushType, BrushKey::moistQuantity, BrushKey::loadQuantity},
               .about = "What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone.")
BRUSH_PROPERTY(bool, smudgeControl, SmudgeControl, .group = BrushGroup::smudge, .presetId = 0x100B,
               .presetForm = PresetForm::readViaFloat, .created = 1,
               .with{BrushKey::brushType, BrushKey::smudgeControlValue},
               .about = "Ramps the mixed amount up over a smudge stroke's first dabs.")
BRUSH_PROPERTY(float, smudgeControlValue, SmudgeControlValue, .group = BrushGroup::smudge, .presetId = 0x100C,
               .created = 25, .low = 1, .useful{{1, 200}}, .unit = BrushUnit::dabs,
               .with{BrushKey::brushType, BrushKey::smudgeControl},
               .about = "Length of that ramp, in dabs.")
BRUSH_PROPERTY(float, bristles, Bristles, .group = BrushGroup::smudge, .presetId = 0xA006, .reset = 0,
               .created = 0, .low = 0, .high = 1,
               .with{BrushKey::brushType, BrushKey::moistQuantity, BrushKey::loadQuantity},
               .about = "How far the bristles of a smudge brush carry colour along the stroke, each its own: 0 "
                        "what lay under the dab before alone, 1 what they hold, at first loadQuantity of the "
                        "brush colour, taking up more the wetter.")
BRUSH_KIND(TipKind, textureType, TextureType, .group = BrushGroup::tip, .presetId = 0x200A, .reset = 0,
               .created = 1,
               .with{BrushKey::textureImages},
               .about = "Brush tip: the tip images, or one that is drawn.")
BRUSH_PROPERTY(float, hardness, Hardness, .group = BrushGroup::tip, .presetId = 0x200B, .reset = 0.5f, .low = 0,
               .high = 1,
               .with{BrushKey::textureType},
               .about = "Edge of a generated tip: 0 soft, 1 hard.")
BRUSH_PROPERTY(float, textureControlValue, TextureControlValue, .group = BrushGroup::tip, .presetId = 0x200C,
               .created = 1, .useful{{0, 20}}, .unit = BrushUnit::number,
               .with{BrushKey::textureType},
               .about = "Thickness of the ring tip in pixels, or width to height of the rectangle tip.")
BRUSH_IMAGES(textureImages, TextureImages, .group = BrushGroup::tip, .presetId = 0x2001,
               .with{BrushKey::textureType},
               .about = "Tip images of texture type 0, up to 16: alpha is the shape; own colours show in "
                        "multicolour mode.")
BRUSH_PROPERTY(bool, flipX, FlipX, .group = BrushGroup::angle, .presetId = 0x2003, .reset = 0,
               .dab = &DabSettings::flipX,
               .about = "Mirrors the tip left to right.")
BRUSH_PROPERTY(bool, flipY, FlipY, .group = BrushGroup::angle, .presetId = 0x2004, .reset = 0,
               .dab = &DabSettings::flipY,
               .about = "Mirrors the tip top to bottom.")
BRUSH_PROPERTY(bool, needMaskTexture, NeedMaskTexture, .group = BrushGroup::tip, .presetId = 0x800D, .reset = 0,
               .with{BrushKey::maskImage},
               .about = "Paints through the paper given as the mask image.")
BRUSH_PROPERTY(float, maskScale, MaskScale, .group = BrushGroup::tip, .presetId = 0x800E, .reset = 1, .created = 1,
               .useful{{0.05f, 4}},
               .with{BrushKey::needMaskTexture, BrushKey::maskImage},
               .about = "Size of one paper tile on the canvas, relative to the mask image.")
BRUSH_PROPERTY(float, maskDepth, MaskDepth, .group = BrushGroup::tip, .presetId = 0xA001, .reset = 0, .low = 0,
               .high = 1, .dab = &DabSettings::maskDepth, .dabs = kMain,
               .with{BrushKey::needMaskTexture, BrushKey::maskImage, BrushKey::maskDepthControl},
               .about = "How far the paper's heights decide: light dabs catch its tops alone, firm ones and "
                        "full flow fill its valleys; 0 not at all.")
BRUSH_PROPERTY(LPControlParams, maskDepthControl, MaskDepthControl, .group = BrushGroup::tip,
               .presetId = 0xA100, .reset = 0, .dab = &DabSettings::maskDepthControl, .dabs = kMain,
               .with{BrushKey::needMaskTexture, BrushKey::maskImage, BrushKey::maskDepth},
               .about = "Influence of pressure, altitude and speed on how firm a dab is to the paper, -1 to 1 "
                        "each.")
BRUSH_PROPERTY(float, maskBrightness, MaskBrightness, .group = BrushGroup::tip, .presetId = 0xA002, .reset = 0,
               .low = -1, .high = 1,
               .with{BrushKey::needMaskTexture, BrushKey::maskImage},
               .about = "Lets the paper through more, or less, all over.")
BRUSH_PROPERTY(float, maskContrast, MaskContrast, .group = BrushGroup::tip, .presetId = 0xA003, .reset = 1,
               .created = 1, .low = 0, .high = 8,
               .with{BrushKey::needMaskTexture, BrushKey::maskImage},
               .about = "Steepness of the paper's heights: above 1 its grain has harder edges, 0 is smooth.")
BRUSH_PROPERTY(QImage, maskImage, MaskImage, .group = BrushGroup::tip, .presetId = 0x800F,
               .with{BrushKey::needMaskTexture},
               .about = "Paper, repeated over the canvas: white lets paint through, black and transparent "
                        "hold it back.")
BRUSH_PROPERTY(bool, pointsDistanceEnabled, PointsDistanceEnabled, .group = BrushGroup::spacing,
               .presetId = 0x2007, .reset = 1, .created = 1, .lineId = 2, .lines = Lines::main,
               .with{BrushKey::pointsDistance},
               .about = "Spaces dabs evenly along the stroke; off, every pointer sample gives one dab.")
BRUSH_PROPERTY(float, pointsDistance, PointsDistance, .group = BrushGroup::spacing, .presetId = 0x2008, .reset = 0.2f,
               .created = 0.15f, .low = 0.01f, .useful{{0.01f, 3}}, .lineId = 3, .lines = Lines::main,
               .with{BrushKey::pointsDistanceEnabled},
               .about = "Distance from dab to dab as a fraction of the dab's size.")
BRUSH_PROPERTY(bool, smoothEnabled, SmoothEnabled, .group = BrushGroup::spacing, .presetId = 0x7004, .reset = 1,
               .created = 1, .lineId = 11, .lines = Lines::both,
               .about = "Draws curves through the pointer samples instead of straight lines.")
BRUSH_PROPERTY(float, sensitivity, Sensitivity, .group = BrushGroup::spacing, .presetId = 0x3008, .reset = 50,
               .created = 50, .useful{{1, 300}}, .unit = BrushUnit::pixels, .lineId = 14, .lines = Lines::both,
               .with{BrushKey::speedSencitive, BrushKey::radiusControl},
               .about = "Distance per pointer sample, in buffer pixels, that counts as fully fast.")
BRUSH_PROPERTY(float, speedSencitive, SpeedSencitive, .group = BrushGroup::spacing, .presetId = 0x3007,
               .reset = 0.3f, .created = 0.3f, .low = 0, .high = 1, .lineId = 13, .lines = Lines::both,
               .with{BrushKey::sensitivity, BrushKey::radiusControl},
               .about = "How quickly the measured speed follows the pointer.")
BRUSH_PROPERTY(bool, colorFul, ColorFul, .group = BrushGroup::color, .presetId = 0x1005, .reset = 0,
               .dab = &DabSettings::colorFul, .dabs = kMain,
               .with{BrushKey::textureImages, BrushKey::textureType},
               .about = "Multicolour: the tip's own colours paint (the brush colour where it is black), each "
                        "dab varied by the hue, saturation and brightness jitters.")
BRUSH_KIND(ThinLines, lineProcessType, LineProcessType, .group = BrushGroup::size, .presetId = 0x100D,
               .dab = &DabSettings::lineProcessType,
               .about = "How dabs thinner than 3 pixels are drawn: as they are, 3 pixels large, paler by as much as "
                        "they are thinner, or both.")
BRUSH_PROPERTY(float, minRadius, MinRadius, .group = BrushGroup::size, .presetId = 0x3006, .reset = 0,
               .created = 0.23f, .low = 0, .high = 1, .lineId = 9, .lines = Lines::both,
               .dab = &DabSettings::minRadius, .dabs = kMain | kSmudge | kSub,
               .with{BrushKey::radiusControl},
               .about = "Smallest size, as a fraction of radius. Without influences dabs are drawn at the "
                        "middle of smallest and largest.")
BRUSH_PROPERTY(float, maxRadius, MaxRadius, .group = BrushGroup::size, .presetId = 0x3016, .created = 1,
               .low = 0, .high = 1, .lineId = 10, .lines = Lines::both,
               .with{BrushKey::radiusControl},
               .about = "Largest size, as a fraction of radius.")
BRUSH_PROPERTY(float, startRadius, StartRadius, .group = BrushGroup::size, .presetId = 0x3009, .reset = 0.4f,
               .created = 0.3f, .low = 0, .high = 1, .lineId = 15, .lines = Lines::both,
               .with{BrushKey::strokeControlValue},
               .about = "Size at the start of the stroke's taper, as a fraction of radius; 0 for no taper.")
BRUSH_PROPERTY(float, strokeControlValue, StrokeControlValue, .group = BrushGroup::size, .presetId = 0x300A,
               .reset = 1, .useful{{0, 1000}}, .unit = BrushUnit::pixels, .lineId = 18, .lines = Lines::both,
               .with{BrushKey::startRadius},
               .about = "Length of the start taper, in buffer pixels.")
BRUSH_PROPERTY(float, endRadius, EndRadius, .group = BrushGroup::size, .presetId = 0x300B, .reset = 0.4f,
               .created = 0.23f, .low = 0, .high = 1, .lineId = 16, .lines = Lines::both,
               .about = "Size at the very end of the stroke, as a fraction of radius; 0 for no taper.")
BRUSH_PROPERTY(float, radiusTingle, RadiusTingle, .group = BrushGroup::size, .presetId = 0x3002, .reset = 0,
               .useful{{0, 1}}, .lineId = 5, .lines = Lines::main, .dab = &DabSettings::radiusTingle,
               .about = "Random shrinking of dabs, 0 to 1.")
BRUSH_PROPERTY(LPControlParams, radiusControl, RadiusControl, .group = BrushGroup::size, .presetId = 0x3100,
               .reset = 0,
               .with{BrushKey::minRadius, BrushKey::maxRadius},
               .about = "Influence of pressure, altitude and speed on the size, -1 to 1 each.")
BRUSH_PROPERTY(bool, disTwoAxes, DisTwoAxes, .group = BrushGroup::scatter, .presetId = 0x4002, .reset = 0,
               .dab = &DabSettings::disTwoAxes,
               .with{BrushKey::distribution},
               .about = "Scatters dabs all around instead of only across the stroke.")
BRUSH_PROPERTY(float, distribution, Distribution, .group = BrushGroup::scatter, .presetId = 0x4003, .reset = 0,
               .useful{{0, 5}}, .dab = &DabSettings::distribution,
               .about = "How far dabs scatter, in dab sizes.")
BRUSH_PROPERTY(LPControlParams, distributionControl, DistributionControl, .group = BrushGroup::scatter,
               .presetId = 0x4100, .reset = 0, .dab = &DabSettings::distributionControl,
               .with{BrushKey::distribution},
               .about = "Influence of pressure, altitude and speed on the scatter, -1 to 1 each.")
BRUSH_PROPERTY(float, distributionCount, DistributionCount, .group = BrushGroup::scatter, .presetId = 0x4006,
               .reset = 1, .created = 1, .low = 1, .useful{{1, 64}}, .unit = BrushUnit::dabs,
               .with{BrushKey::distribution},
               .about = "Dabs at each place, whole; at most 64 are drawn.")
BRUSH_PROPERTY(float, distributionCountTingle, DistributionCountTingle, .group = BrushGroup::scatter,
               .presetId = 0x4007, .reset = 0, .useful{{0, 1}}, .dab = &DabSettings::distributionCountTingle,
               .with{BrushKey::distributionCount, BrushKey::distribution},
               .about = "Random variation of that number, 0 to 1.")
BRUSH_PROPERTY(LPControlParams, distributionCountControl, DistributionCountControl,
               .group = BrushGroup::scatter, .presetId = 0x4200, .reset = 0,
               .dab = &DabSettings::distributionCountControl,
               .with{BrushKey::distributionCount, BrushKey::distribution},
               .about = "Influence of pressure, altitude and speed on that number, -1 to 1 each.")
BRUSH_PROPERTY(float, radian, Radian, .group = BrushGroup::angle, .presetId = 0x2005, .reset = 0,
               .useful{{-kHalfTurn, kHalfTurn}}, .unit = BrushUnit::radians, .dab = &DabSettings::radian,
               .about = "Rotation of the tip in radians, counter-clockwise.")
BRUSH_PROPERTY(bool, startRadianEnable, StartRadianEnable, .group = BrushGroup::angle, .presetId = 0x200D,
               .presetForm = PresetForm::storedAsFloat, .dab = &DabSettings::startRadianEnable,
               .about = "Turns the tip by a random angle at the start of every stroke.")
BRUSH_PROPERTY(bool, moveRadianEnable, MoveRadianEnable, .group = BrushGroup::angle, .presetId = 0x200E,
               .presetForm = PresetForm::storedAsFloat, .dab = &DabSettings::moveRadianEnable,
               .about = "Turns the tip into the direction of the stroke.")
BRUSH_PROPERTY(bool, flipXTingle, FlipXTingle, .group = BrushGroup::angle, .presetId = 0x3014, .reset = 0,
               .presetForm = PresetForm::readViaFloat, .dab = &DabSettings::flipXTingle,
               .about = "Mirrors every other dab left to right, at random.")
BRUSH_PROPERTY(bool, flipYTingle, FlipYTingle, .group = BrushGroup::angle, .presetId = 0x3015, .reset = 0,
               .presetForm = PresetForm::readViaFloat, .dab = &DabSettings::flipYTingle,
               .about = "Mirrors every other dab top to bottom, at random.")
BRUSH_PROPERTY(float, radianTingle, RadianTingle, .group = BrushGroup::angle, .presetId = 0x300D, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::radianTingle,
               .about = "Random rotation of each dab, 0 to 1 for up to half a turn either way.")
BRUSH_PROPERTY(LPControlParams, radianControl, RadianControl, .group = BrushGroup::angle, .presetId = 0x3200,
               .reset = 0, .dab = &DabSettings::radianControl,
               .about = "Influence of pressure, altitude and speed on the rotation, -1 to 1 each.")
BRUSH_PROPERTY(float, roundness, Roundness, .group = BrushGroup::shape, .presetId = 0x2006, .reset = 1,
               .created = 1, .low = 0, .high = 1, .dab = &DabSettings::roundness,
               .about = "Height of the dab relative to its width.")
BRUSH_PROPERTY(float, roundnessTingle, RoundnessTingle, .group = BrushGroup::shape, .presetId = 0x3010, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::roundnessTingle,
               .with{BrushKey::minRoundness},
               .about = "Random variation of the roundness, 0 to 1.")
BRUSH_PROPERTY(float, minRoundness, MinRoundness, .group = BrushGroup::shape, .presetId = 0x3011, .reset = 0,
               .created = 0.01f, .low = 0.01f, .high = 1,
               .with{BrushKey::roundnessTingle, BrushKey::roundnessControl},
               .about = "Lower bound of the roundness.")
BRUSH_PROPERTY(LPControlParams, roundnessControl, RoundnessControl, .group = BrushGroup::shape,
               .presetId = 0x3300, .reset = 0, .dab = &DabSettings::roundnessControl,
               .with{BrushKey::minRoundness},
               .about = "Influence of pressure, altitude and speed on the roundness, -1 to 1 each.")
BRUSH_PROPERTY(bool, pixelAligned, PixelAligned, .group = BrushGroup::shape, .presetId = 0xA007, .reset = 0,
               .dab = &DabSettings::pixelAligned,
               .about = "Dabs lie upright on whole pixels and are whole pixels large, so that square tips have no "
                        "soft edge.")
BRUSH_PROPERTY(float, minFlow, MinFlow, .group = BrushGroup::flow, .presetId = 0x6009, .reset = 0, .created = 0.0001f,
               .low = 0.0001f, .useful{{0.0001f, 1}}, .dab = &DabSettings::minFlow,
               .with{BrushKey::flowControl},
               .about = "Lower bound of the influenced flow, as a fraction of flow.")
BRUSH_PROPERTY(float, maxFlow, MaxFlow, .group = BrushGroup::flow, .presetId = 0x600C, .created = 1, .low = 0.0001f,
               .useful{{0.0001f, 1}}, .dab = &DabSettings::maxFlow,
               .with{BrushKey::flowControl},
               .about = "Upper bound of the influenced flow, as a fraction of flow.")
BRUSH_PROPERTY(float, flowTingle, FlowTingle, .group = BrushGroup::flow, .presetId = 0x6006, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::flowTingle,
               .about = "Random variation of the flow, 0 to 1.")
BRUSH_PROPERTY(LPControlParams, flowControl, FlowControl, .group = BrushGroup::flow, .presetId = 0x6100,
               .reset = 0, .dab = &DabSettings::flowControl,
               .with{BrushKey::minFlow, BrushKey::maxFlow},
               .about = "Influence of pressure, altitude and speed on the flow, -1 to 1 each.")
BRUSH_PROPERTY(float, decay, Decay, .group = BrushGroup::flow, .presetId = 0x6008, .reset = 0, .useful{{0, 1000}},
               .unit = BrushUnit::dabs, .dab = &DabSettings::decay,
               .about = "Number of dabs after which the paint has run out; 0 or 1 for never.")
BRUSH_PROPERTY(float, wetEdge, WetEdge, .group = BrushGroup::flow, .presetId = 0xA004, .reset = 0, .low = 0,
               .high = 1,
               .with{BrushKey::wetEdgeWidth},
               .about = "How much paler the inside of a stroke dries than its rim, as watercolour does: 0 not at "
                        "all, 1 until nothing is left of it.")
BRUSH_PROPERTY(float, wetEdgeWidth, WetEdgeWidth, .group = BrushGroup::flow, .presetId = 0xA005, .reset = 8,
               .created = 8, .low = 1, .high = 64, .unit = BrushUnit::pixels,
               .with{BrushKey::wetEdge},
               .about = "How far that rim reaches into the stroke, in buffer pixels.")
BRUSH_PROPERTY(bool, textureTingleEnabled, TextureTingleEnabled, .group = BrushGroup::tip, .presetId = 0x8002,
               .reset = 0, .dab = &DabSettings::textureTingleEnabled,
               .with{BrushKey::textureImages, BrushKey::textureType},
               .about = "Picks one of several tip images at random for each dab.")
BRUSH_PROPERTY(LPControlParams, textureControl, TextureControl, .group = BrushGroup::tip, .presetId = 0x8100,
               .reset = 0, .dab = &DabSettings::textureControl,
               .with{BrushKey::textureImages, BrushKey::textureType},
               .about = "Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 "
                        "each.")
BRUSH_PROPERTY(ESColor, backRenderColor, BackRenderColor, .group = BrushGroup::color, .presetId = 0x1004,
               .with{BrushKey::colorTingle, BrushKey::colorControl},
               .about = "Secondary colour, toward which the colour jitter mixes.")
BRUSH_PROPERTY(float, colorTingle, ColorTingle, .group = BrushGroup::color, .presetId = 0x5002, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::colorTingle, .dabs = kMain,
               .with{BrushKey::backRenderColor},
               .about = "Random mixing of each dab toward the secondary colour, 0 to 1.")
BRUSH_PROPERTY(LPControlParams, colorControl, ColorControl, .group = BrushGroup::color, .presetId = 0x5100,
               .reset = 0, .dab = &DabSettings::colorControl,
               .with{BrushKey::backRenderColor},
               .about = "Influence of pressure, altitude and speed on the mixing, -1 to 1 each.")
BRUSH_PROPERTY(float, hueTingle, HueTingle, .group = BrushGroup::color, .presetId = 0x5005, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::hueTingle,
               .about = "Random variation of each dab's hue, 0 to 1.")
BRUSH_PROPERTY(float, saturationTingle, SaturationTingle, .group = BrushGroup::color, .presetId = 0x5006, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::saturationTingle,
               .about = "Random variation of each dab's saturation, 0 to 1.")
BRUSH_PROPERTY(float, brightnessTingle, BrightnessTingle, .group = BrushGroup::color, .presetId = 0x5007, .reset = 0,
               .useful{{0, 1}}, .dab = &DabSettings::brightnessTingle,
               .about = "Random variation of each dab's brightness, 0 to 1.")
BRUSH_PROPERTY(bool, repeatedlyRenderEnabled, RepeatedlyRenderEnabled, .group = BrushGroup::secondLine,
               .presetId = 0x400A, .reset = 0,
               .about = "Draws a second line with a tip of its own and paints only where both are.")
BRUSH_PROPERTY(QImage, slTextureImage, SlTextureImage, .group = BrushGroup::secondLine, .presetId = 0x400B,
               .with{BrushKey::repeatedlyRenderEnabled},
               .about = "Tip image of the second line.")
BRUSH_PROPERTY(float, slRadius, SlRadius, .group = BrushGroup::secondLine, .presetId = 0x400D, .reset = 32,
               .created = 32, .low = 1, .useful{{1, 1280}}, .unit = BrushUnit::pixels,
               .with{BrushKey::repeatedlyRenderEnabled, BrushKey::slRadiusRelationType},
               .about = "Size of the second line's dabs, in buffer pixels.")
BRUSH_PROPERTY(float, slPointsDistance, SlPointsDistance, .group = BrushGroup::secondLine, .presetId = 0x400E,
               .reset = 0.2f, .created = 0.25f, .low = 0.01f, .useful{{0.01f, 3}}, .lineId = 3, .lines = Lines::sub,
               .with{BrushKey::repeatedlyRenderEnabled},
               .about = "Distance from dab to dab of the second line as a fraction of the dab's size.")
BRUSH_PROPERTY(float, slDistribution, SlDistribution, .group = BrushGroup::secondLine, .presetId = 0x400F, .reset = 0,
               .useful{{0, 5}}, .dab = &DabSettings::distribution, .dabs = kSub,
               .with{BrushKey::repeatedlyRenderEnabled},
               .about = "How far the second line's dabs scatter, in dab sizes.")
BRUSH_PROPERTY(bool, slDistbTwoAxes, SlDistbTwoAxes, .group = BrushGroup::secondLine, .presetId = 0x4010,
               .reset = 0, .dab = &DabSettings::disTwoAxes, .dabs = kSub,
               .with{BrushKey::repeatedlyRenderEnabled, BrushKey::slDistribution},
               .about = "Scatters the second line's dabs all around instead of only across the stroke.")
BRUSH_PROPERTY(float, slDistbCount, SlDistbCount, .group = BrushGroup::secondLine, .presetId = 0x4011, .reset = 1,
               .created = 1, .useful{{1, 64}}, .unit = BrushUnit::dabs,
               .with{BrushKey::repeatedlyRenderEnabled, BrushKey::slDistribution},
               .about = "Dabs at each place of the second line, whole; at most 64 are drawn.")
BRUSH_KIND(SizeRelation, slRadiusRelationType, SlRadiusRelationType, .group = BrushGroup::secondLine,
               .presetId = 0x4012, .reset = 0,
               .with{BrushKey::repeatedlyRenderEnabled, BrushKey::slRadius, BrushKey::radius},
               .about = "How the second line's size follows radius; any other number, not at all.")
BRUSH_PROPERTY(float, relationValue, RelationValue, .group = BrushGroup::secondLine, .presetId = 0x4013, .reset = 0,
               .useful{{-200, 200}}, .unit = BrushUnit::number,
               .with{BrushKey::repeatedlyRenderEnabled, BrushKey::slRadiusRelationType},
               .about = "That difference in buffer pixels, or that ratio.")
BRUSH_PROPERTY(float, recogPointScale, RecogPointScale, .group = BrushGroup::recognition, .created = 1,
               .useful{{0.25f, 4}}, .unit = BrushUnit::number,
               .with{BrushKey::enableRecogition},
               .about = "Divides the points handed to shape recognition.")
// clang-format on
#undef BRUSH_PROPERTY
#undef BRUSH_KIND
#undef BRUSH_IMAGES
