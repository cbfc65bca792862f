// SPDX-License-Identifier: MIT
// Cases that are nothing but text, from a file of tests/data: a row a line, its fields between bars, \n for a line's end.
// Lines that begin with # say what the columns are.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <vector>

#include "TestFolders.h"

inline std::vector<QStringList> rowsOf(const char* name) {
    std::vector<QStringList> rows;
    QFile file(QStringLiteral(DABCANVAS_TEST_DATA "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).chopped(1);
        if (!line.startsWith('#')) {
            rows.push_back(QString(line).replace("\\n", "\n").split('|'));
        }
    }
    EXPECT_FALSE(rows.empty()) << name;
    return rows;
}
