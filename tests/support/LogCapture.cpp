// SPDX-License-Identifier: MIT
#include "support/LogCapture.h"

#include <QtGlobal>

namespace {
QStringList* collected = nullptr;
QtMessageHandler before = nullptr;
}  // namespace

LogCapture::LogCapture() {
    collected = &_lines;
    before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { collected->append(text); });
}

LogCapture::~LogCapture() {
    qInstallMessageHandler(before);
    collected = nullptr;
}
