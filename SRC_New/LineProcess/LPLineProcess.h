// SPDX-License-Identifier: MIT
/// \file
/// The whole line process: strokes, their dabs, and the jitter of the dabs' attributes. Plain functions over
/// plain records, with a state of its own on every thread; no Qt and no GL.
#pragma once

#include "LineProcess/ColorTypes.h"
#include "LineProcess/LPGeometry.h"
#include "LineProcess/LPProperties.h"
#include "LineProcess/LPRandom.h"
#include "LineProcess/LPSegment.h"
#include "LineProcess/LPSharedState.h"
#include "LineProcess/LPStroke.h"
#include "LineProcess/LPTrace.h"
#include "LineProcess/LPTypes.h"
#include "LineProcess/Tingle.h"
#include "LineProcess/TingleBlocks.h"
#include "LineProcess/TingleTables.h"
