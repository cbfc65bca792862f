// SPDX-License-Identifier: MIT
#include "Processor/Workers.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace dabcanvas {
namespace {

std::atomic<std::size_t> mostThreads = std::max(std::thread::hardware_concurrency(), 1u);

// What is shared out just now.
struct Work {
    const std::function<void(std::size_t)>& piece;
    const std::size_t count;
    std::atomic<std::size_t> next = 0;
    std::mutex lock{};
    std::exception_ptr failure{};

    void take() {
        for (std::size_t i = next++; i < count; i = next++) {
            try {
                piece(i);
            } catch (...) {
                const std::lock_guard guard(lock);
                failure = failure ? failure : std::current_exception();
            }
        }
    }
};

class Pool {
public:
    ~Pool() {
        {
            const std::lock_guard guard(_lock);
            _ends = true;
        }
        _changed.notify_all();
        for (std::thread& thread : _threads) {
            thread.join();
        }
    }

    // False while another's work is shared out.
    bool share(Work& work, std::size_t helpers) {
        const std::unique_lock turn(_turn, std::try_to_lock);
        if (!turn) {
            return false;
        }
        startUpTo(helpers);
        {
            const std::lock_guard guard(_lock);
            _work = &work;
            _wanted = std::min(helpers, _threads.size());
        }
        _changed.notify_all();
        work.take();
        std::unique_lock guard(_lock);
        _work = nullptr;  // whoever has not come yet need not
        _left.wait(guard, [&] { return _busy == 0; });
        return true;
    }

private:
    void startUpTo(std::size_t threads) {
        try {
            while (_threads.size() < threads) {
                _threads.emplace_back([this] { serve(); });
            }
        } catch (const std::system_error&) {
            // Those that there are do it all.
        }
    }

    void serve() {
        std::unique_lock guard(_lock);
        while (true) {
            _changed.wait(guard, [&] { return _ends || (_work != nullptr && _wanted > 0); });
            if (_ends) {
                return;
            }
            Work& work = *_work;
            --_wanted;
            ++_busy;
            guard.unlock();
            work.take();
            guard.lock();
            if (--_busy == 0) {
                _left.notify_one();
            }
        }
    }

    std::mutex _turn;  // held by whoever shares out
    std::mutex _lock;  // of what follows
    std::condition_variable _changed, _left;
    Work* _work = nullptr;
    std::size_t _wanted = 0, _busy = 0;
    bool _ends = false;
    std::vector<std::thread> _threads;
};

}  // namespace

void Workers::share(std::size_t count, const std::function<void(std::size_t)>& piece) {
    Work work{piece, count};
    const std::size_t helpers = std::min(most(), count) - (count > 0 ? 1 : 0);
    static Pool pool;
    if (helpers == 0 || !pool.share(work, helpers)) {
        work.take();
    }
    if (work.failure) {
        std::rethrow_exception(work.failure);
    }
}

void Workers::setMost(std::size_t most) {
    mostThreads = std::max<std::size_t>(most, 1);
}
std::size_t Workers::most() {
    return mostThreads;
}

}  // namespace dabcanvas
