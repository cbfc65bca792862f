// SPDX-License-Identifier: MIT
/// \file
/// The one serial drawing queue of the process: a pool of a single thread.
#pragma once

#include <functional>

#include "Maths/Export.h"

class QThreadPool;

/// Null until the first runSyncInDrawViewQueue(); then there for the life of the process. Its object name is
/// "org.dabcanvas.drawview". Do not change its thread count.
DABCANVAS_RENDER_API extern QThreadPool* drawViewQueue__;

/// Marks the queue's thread. Its value is its own address.
DABCANVAS_RENDER_API extern const void* const openGLESContextQueueKey;

/// Runs the block on the drawing queue and returns when it is done; runs it directly when the caller is on
/// that queue already. May be called from any thread. An exception of the block reaches the caller.
DABCANVAS_RENDER_API void runSyncInDrawViewQueue(const std::function<void()>& block);
