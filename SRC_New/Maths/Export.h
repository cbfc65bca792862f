// SPDX-License-Identifier: MIT
// What each library lets others link: a class or function that is marked in its header. All else stays inside, where no
// name of a host's can take its place.
//
// DABCANVAS_STATIC comes with the static libraries' targets; each library defines DABCANVAS_BUILDING_... for itself.
#pragma once

#if defined(_WIN32)
#define DABCANVAS_EXPORT __declspec(dllexport)
#define DABCANVAS_IMPORT __declspec(dllimport)
#else
#define DABCANVAS_EXPORT __attribute__((visibility("default")))
#define DABCANVAS_IMPORT DABCANVAS_EXPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_STROKE_API
#elif defined(DABCANVAS_BUILDING_STROKE)
#define DABCANVAS_STROKE_API DABCANVAS_EXPORT
#else
#define DABCANVAS_STROKE_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_SHAPES_API
#elif defined(DABCANVAS_BUILDING_SHAPES)
#define DABCANVAS_SHAPES_API DABCANVAS_EXPORT
#else
#define DABCANVAS_SHAPES_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_DABS_API
#elif defined(DABCANVAS_BUILDING_DABS)
#define DABCANVAS_DABS_API DABCANVAS_EXPORT
#else
#define DABCANVAS_DABS_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_PROCESSOR_API
#elif defined(DABCANVAS_BUILDING_PROCESSOR)
#define DABCANVAS_PROCESSOR_API DABCANVAS_EXPORT
#else
#define DABCANVAS_PROCESSOR_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_BRUSHES_API
#elif defined(DABCANVAS_BUILDING_BRUSHES)
#define DABCANVAS_BRUSHES_API DABCANVAS_EXPORT
#else
#define DABCANVAS_BRUSHES_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_RENDER_API
#elif defined(DABCANVAS_BUILDING_RENDER)
#define DABCANVAS_RENDER_API DABCANVAS_EXPORT
#else
#define DABCANVAS_RENDER_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_CANVAS_API
#elif defined(DABCANVAS_BUILDING_CANVAS)
#define DABCANVAS_CANVAS_API DABCANVAS_EXPORT
#else
#define DABCANVAS_CANVAS_API DABCANVAS_IMPORT
#endif

#if defined(DABCANVAS_STATIC)
#define DABCANVAS_VIEW_API
#elif defined(DABCANVAS_BUILDING_VIEW)
#define DABCANVAS_VIEW_API DABCANVAS_EXPORT
#else
#define DABCANVAS_VIEW_API DABCANVAS_IMPORT
#endif
