// SPDX-License-Identifier: MIT
// Whole files, read and written. A failure is the test's.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// Gives the path back.
inline QString writtenTo(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
    return path;
}

// The path of a picture of one colour; opaque, whatever its format could hold, where the colour is.
inline QString savedPicture(const QString& path, const QColor& color, QSize size = QSize(24, 16)) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    EXPECT_TRUE(image.save(path)) << path.toStdString();
    return path;
}
