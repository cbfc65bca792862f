// SPDX-License-Identifier: MIT
// What the system grants this process, less for one scope.
#pragma once

#include <sys/resource.h>

#include <QFile>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <utility>

class Limited {
public:
    Limited(__rlimit_resource resource, rlim_t most) : _resource(resource) {
        getrlimit(_resource, &_before);
        const rlimit limits{most, _before.rlim_max};
        setrlimit(_resource, &limits);
    }
    ~Limited() { setrlimit(_resource, &_before); }
    Limited(const Limited&) = delete;
    Limited& operator=(const Limited&) = delete;

private:
    __rlimit_resource _resource;
    rlimit _before{};
};

// No file grows beyond this, as on a disk that has no more room.
class FullDisk {
public:
    explicit FullDisk(rlim_t mostBytes = 1024)
        : _handler(std::signal(SIGXFSZ, SIG_IGN)), _limit(RLIMIT_FSIZE, mostBytes) {}
    ~FullDisk() { std::signal(SIGXFSZ, _handler); }  // nothing is written until the limit has gone, too
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*_handler)(int);
    Limited _limit;
};

// As much memory as is in use, and so many bytes more.
class ShortMemory : Limited {
public:
    explicit ShortMemory(long long more) : Limited(RLIMIT_AS, static_cast<rlim_t>(used() + more)) {}

private:
    static long long used() {
        QFile status(QStringLiteral("/proc/self/statm"));
        return status.open(QIODevice::ReadOnly) ? status.readAll().split(' ').first().toLongLong() * 4096 : 0;
    }
};
// No more than this, which a driver needs that does not expect to find none, and not even what the process has and does
// not use.
class FullMemory : ShortMemory {
public:
    FullMemory() : ShortMemory(0) {
        while (void* const block = std::malloc(kBlock)) {
            _blocks = new (block) Block{_blocks};
        }
        free(kLeft / kBlock);
    }
    ~FullMemory() { free(SIZE_MAX); }

private:
    static constexpr std::size_t kBlock = 8192, kLeft = 4 << 20;
    void free(std::size_t blocks) {
        for (; _blocks != nullptr && blocks > 0; --blocks) {
            std::free(std::exchange(_blocks, _blocks->next));
        }
    }
    struct Block {
        Block* next;
    };
    Block* _blocks = nullptr;
};
// Under the sanitizers memory is not limited as usual.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kMemoryIsLimited = false;
#else
inline constexpr bool kMemoryIsLimited = true;
#endif
