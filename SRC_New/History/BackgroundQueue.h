// SPDX-License-Identifier: MIT
// Threads of one owner that work off a queue. They start with the first task.
//
// Thread   run() and wait() from any, but wait() not from a task.
// Errors   a task must not throw. When no thread can be had, run() does the task itself.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace dabcanvas {

class BackgroundQueue {
public:
    using Task = std::function<void()>;

    explicit BackgroundQueue(std::size_t threads) : _most(threads) {}
    ~BackgroundQueue();  // does what is queued first
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;

    void run(Task task);
    void wait();  // until nothing is queued or running

private:
    void work();

    const std::size_t _most;
    std::mutex _mutex;
    std::condition_variable _more;  // tasks, or the end
    std::condition_variable _idle;
    std::deque<Task> _tasks;
    std::size_t _busy = 0;
    bool _ending = false;
    std::vector<std::thread> _threads;
};

}  // namespace dabcanvas
