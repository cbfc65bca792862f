// SPDX-License-Identifier: MIT
#include "support/LogCapture.h"

#include <QtGlobal>
#include <mutex>

namespace {
std::mutex guard;  // other threads log, too
QStringList* collected = nullptr;
QtMessageHandler before = nullptr;
}  // namespace

LogCapture::LogCapture() {
    const std::lock_guard lock(guard);
    collected = &_lines;
    before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        const std::lock_guard inside(guard);
        if (collected != nullptr) {
            collected->append(text);
        }
    });
}

LogCapture::~LogCapture() {
    const std::lock_guard lock(guard);
    qInstallMessageHandler(before);
    collected = nullptr;
}
