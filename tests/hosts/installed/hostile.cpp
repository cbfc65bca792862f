// SPDX-License-Identifier: MIT
// What a host may call its own before it includes the headers: short names, and the macros of window systems.
#include "OthersHeaders.h"

// As functions and variables: a declaration of anything else by these names would not compile.
int Lines, Renders, PresetForm, Dab, DabSettings, DabFlags, DabMaker, DabBounds, Placement, CachedUniform;
int kMain, kSub, kSmudge, kCompositor, kNoRender, kFree, kNoThinDabs, kThinFlow, kRenderTypeCount,
    kTingleTableSize;
int kMostShapePoints, kPosition, kRadian, kFlow, kColor, kNoPressure;
int packed, unpacked, canPack, ownedData, writeWholeFile, farthestFrom, FileWriter, PathCheck;
int UndoRecovery, RecoverableHistory;
int Snapshot, SnapshotStore, BackgroundQueue, TempFolder, Ellipse, Path, Vec2, Canvas, Layer, Brush, Shape,
    Stroke, History;
int resourcePath, imageNamed, libraryFolder, clearTexture, maxTextureSize, dabOf, isZero, mergeRect, finiteOr;
int lcHistory, lcDabcanvas, lcDabcanvasGL, drainGLErrors, checkGLStep, tingleState, influence, ArcWalk;

#define None 0L
#define Bool int
#define Status int
#define True 1
#define False 0
#define Always 2
#define Success 0
#define Complex 0
#define CursorShape 0
#define FocusIn 9
#define KeyPress 2
#define near
#define far
#define small char
#define interface struct
#define IN
#define OUT
#define ERROR 0
#define DELETE 0x10000
#define TRANSPARENT 1
#define DIFFERENCE 11
#define ABSOLUTE 1
#define min(a, b) ((a) < (b) ? (a) : (b))
#define max(a, b) ((a) > (b) ? (a) : (b))
#define signals
#define slots
#define emit
#define foreach for

#include "InstalledHeaders.h"
