// SPDX-License-Identifier: MIT
// For one scope no file of this process grows beyond a limit, as on a disk that has no more room.
#pragma once

#include <sys/resource.h>

#include <csignal>

class FullDisk {
public:
    explicit FullDisk(rlim_t mostBytes = 1024) : _handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &_before);
        const rlimit limits{mostBytes, _before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limits);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &_before);
        std::signal(SIGXFSZ, _handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit _before{};
    void (*_handler)(int);
};
