// SPDX-License-Identifier: MIT
/// \file
/// The GL types that headers of the canvas's public face need, as every GL header spells them. Those headers
/// do not include epoxy's: it must come before any other GL header, which a host's include order may not
/// allow.
#pragma once

typedef unsigned int GLenum;
typedef unsigned int GLuint;
typedef int GLint;
