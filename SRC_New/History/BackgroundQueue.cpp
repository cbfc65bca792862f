// SPDX-License-Identifier: MIT
#include "History/BackgroundQueue.h"

#include <system_error>
#include <utility>

namespace dabcanvas {

BackgroundQueue::~BackgroundQueue() {
    {
        const std::lock_guard lock(_mutex);
        _ending = true;
    }
    _more.notify_all();
    for (std::thread& thread : _threads) {
        thread.join();
    }
}

void BackgroundQueue::run(Task task) {
    {
        const std::lock_guard lock(_mutex);
        if (_threads.size() < _most && _tasks.size() + _busy >= _threads.size()) {
            try {
                _threads.emplace_back([this] { work(); });
            } catch (const std::system_error&) {  // the machine has no more threads to give
            }
        }
        if (!_threads.empty()) {
            _tasks.push_back(std::move(task));
            _more.notify_one();
            return;
        }
    }
    task();
}

void BackgroundQueue::wait() {
    std::unique_lock lock(_mutex);
    _idle.wait(lock, [this] { return _tasks.empty() && _busy == 0; });
}

void BackgroundQueue::work() {
    std::unique_lock lock(_mutex);
    for (;;) {
        _more.wait(lock, [this] { return _ending || !_tasks.empty(); });
        if (_tasks.empty()) {
            return;
        }
        {
            const Task task = std::move(_tasks.front());
            _tasks.pop_front();
            ++_busy;
            lock.unlock();
            task();
        }  // what the task held is gone before it counts as done
        lock.lock();
        --_busy;
        if (_tasks.empty() && _busy == 0) {
            _idle.notify_all();
        }
    }
}

}  // namespace dabcanvas
