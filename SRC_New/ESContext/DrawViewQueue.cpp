// SPDX-License-Identifier: MIT
#include "ESContext/DrawViewQueue.h"

#include <QSemaphore>
#include <QThreadPool>
#include <exception>
#include <mutex>

QThreadPool* drawViewQueue__ = nullptr;
const void* const openGLESContextQueueKey = &openGLESContextQueueKey;

namespace {

thread_local const void* queueOfThisThread = nullptr;

QThreadPool& drawViewQueue() {
    static std::once_flag once;
    std::call_once(once, [] {
        // Never deleted: blocks may run until the process ends.
        auto* const queue = new QThreadPool;
        queue->setObjectName(QStringLiteral("org.dabcanvas.drawview"));
        queue->setMaxThreadCount(1);
        queue->setExpiryTimeout(-1);  // a GL context left current must not lose its thread
        drawViewQueue__ = queue;
    });
    return *drawViewQueue__;
}

}  // namespace

void runSyncInDrawViewQueue(const std::function<void()>& block) {
    if (!block) {
        return;
    }
    QThreadPool& queue = drawViewQueue();
    if (queueOfThisThread == openGLESContextQueueKey) {
        block();
        return;
    }
    QSemaphore done;
    std::exception_ptr raised;
    queue.start([&] {
        queueOfThisThread = openGLESContextQueueKey;
        try {
            block();
        } catch (...) {
            raised = std::current_exception();
        }
        done.release();
    });
    done.acquire();
    if (raised) {
        std::rethrow_exception(raised);
    }
}
