// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

// Runs this in a process that ends without cleaning up.
template <typename Work>
void inDyingProcess(const Work& work) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        work();
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << status;
}
