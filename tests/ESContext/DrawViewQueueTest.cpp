// SPDX-License-Identifier: MIT
#include "ESContext/DrawViewQueue.h"

#include <gtest/gtest.h>

#include <QThread>
#include <stdexcept>
#include <thread>
#include <vector>

TEST(DrawViewQueueTest, BlocksOfManyThreadsRunOneByOneOnOneThread) {
    int running = 0;
    int sum = 0;
    std::vector<QThread*> ranOn;  // guarded by the queue, which is what is tested
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 50; ++i) {
                runSyncInDrawViewQueue([&] {
                    EXPECT_EQ(++running, 1);
                    ranOn.push_back(QThread::currentThread());
                    ++sum;
                    --running;
                });
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(sum, 200);
    for (QThread* const thread : ranOn) {
        EXPECT_EQ(thread, ranOn.front());
    }
}

TEST(DrawViewQueueTest, ABlockOnTheQueueRunsAnotherDirectlyAlsoAfterOneThatThrew) {
    EXPECT_THROW(runSyncInDrawViewQueue([] { throw std::runtime_error("block"); }), std::runtime_error);
    runSyncInDrawViewQueue({});
    std::vector<int> order;
    runSyncInDrawViewQueue([&] {
        order.push_back(1);
        runSyncInDrawViewQueue([&] { order.push_back(2); });  // would wait for itself for ever
        order.push_back(3);
    });
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}
