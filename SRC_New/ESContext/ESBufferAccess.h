// SPDX-License-Identifier: MIT
#pragma once

#include <QSemaphore>
#include <memory>
#include <utility>

#include "Maths/Export.h"

/// Holds a canvas's buffer semaphore for a scope, when there is one.
class DABCANVAS_RENDER_API ESBufferAccess {
public:
    explicit ESBufferAccess(std::shared_ptr<QSemaphore> semaphore) : _semaphore(std::move(semaphore)) {
        if (_semaphore) {
            _semaphore->acquire();
        }
    }
    ~ESBufferAccess() {
        if (_semaphore) {
            _semaphore->release();
        }
    }
    ESBufferAccess(const ESBufferAccess&) = delete;
    ESBufferAccess& operator=(const ESBufferAccess&) = delete;

private:
    std::shared_ptr<QSemaphore> _semaphore;
};
