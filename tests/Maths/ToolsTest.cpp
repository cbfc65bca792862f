// SPDX-License-Identifier: MIT
#include "Maths/Tools.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QRegularExpression>
#include <limits>
#include <set>
#include <thread>
#include <vector>

TEST(ToolsTest, DateStringsOfAllThreadsAreUniqueAndIncreasing) {
    constexpr int kThreads = 4;
    std::vector<std::vector<QString>> made(kThreads);
    std::vector<std::thread> threads;
    for (auto& mine : made) {
        threads.emplace_back([&mine] {
            for (int i = 0; i < 25; ++i) {
                mine.push_back(Tools::dateString());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::set<QString> all;
    static const QRegularExpression kDigits("^[0-9]{17}$");
    for (const auto& mine : made) {
        for (std::size_t i = 0; i < mine.size(); ++i) {
            EXPECT_TRUE(kDigits.match(mine[i]).hasMatch()) << qPrintable(mine[i]);
            EXPECT_TRUE(all.insert(mine[i]).second) << "twice: " << qPrintable(mine[i]);
            EXPECT_TRUE(i == 0 || mine[i - 1] < mine[i]);
        }
    }
    // And it is the time: the last one lies within a minute of the local clock.
    const auto time = QDateTime::fromString(*all.rbegin(), "yyyyMMddHHmmsszzz");
    EXPECT_LT(std::abs(time.msecsTo(QDateTime::currentDateTime())), 60000);
}

TEST(ToolsTest, RandomValuesNeverFallBelowBegin) {
    const std::int32_t rows[][3] = {{3, 3, 3}, {3, 7, 6}, {7, 3, 10}, {-4, -2, -3}};
    for (const auto& [begin, end, last] : rows) {
        std::set<std::int32_t> seen;
        for (int i = 0; i < 400; ++i) {
            seen.insert(Tools::randValueBegin(begin, end));
        }
        // 400 draws miss one of at most four values once in 10^49 runs.
        EXPECT_EQ(*seen.begin(), begin);
        EXPECT_EQ(*seen.rbegin(), last);
    }
    EXPECT_GE(Tools::randValueBegin(std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()),
              std::numeric_limits<std::int32_t>::min());
}

TEST(ToolsTest, StringsCompareByTheirUtf8Bytes) {
    EXPECT_EQ(Tools::string("abc", "abc"), 0);
    EXPECT_LT(Tools::string("ab", "abc"), 0);
    // UTF-16 would order these two the other way round.
    EXPECT_LT(Tools::string("\uFF5E", "\U0001F58C"), 0);
}
