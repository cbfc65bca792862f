// SPDX-License-Identifier: MIT
/// \file
/// Which Dabcanvas this is, for hosts that compile against several:
///     #if DABCANVAS_VERSION >= DABCANVAS_VERSION_CHECK(0, 2, 0)
/// Numbers follow semantic versioning; CHANGELOG.md says what they promise. The build reads them from here.
#pragma once

#define DABCANVAS_VERSION_MAJOR 0
#define DABCANVAS_VERSION_MINOR 1
#define DABCANVAS_VERSION_PATCH 0
/// Of the shared libraries, apart from the version: goes up with the first release that programs must be built anew
/// for.
#define DABCANVAS_ABI 0

#define DABCANVAS_VERSION_CHECK(major, minor, patch) (((major) << 16) | ((minor) << 8) | (patch))
#define DABCANVAS_VERSION \
    DABCANVAS_VERSION_CHECK(DABCANVAS_VERSION_MAJOR, DABCANVAS_VERSION_MINOR, DABCANVAS_VERSION_PATCH)
/// "0.1.0"
#define DABCANVAS_VERSION_STRING \
    DABCANVAS_VERSION_WORDS(DABCANVAS_VERSION_MAJOR, DABCANVAS_VERSION_MINOR, DABCANVAS_VERSION_PATCH)
#define DABCANVAS_VERSION_WORDS(major, minor, patch) DABCANVAS_VERSION_QUOTED(major, minor, patch)
#define DABCANVAS_VERSION_QUOTED(major, minor, patch) #major "." #minor "." #patch
