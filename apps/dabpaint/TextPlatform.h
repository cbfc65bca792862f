// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QtGlobal>

#include "LogCatcher.h"

namespace dabcanvas::dabpaint {

// Lets pictures have text while it lives: only that needs Qt's platform, and no window of it.
class TextPlatform {
public:
    TextPlatform() : _platform(_count, _arguments) {}

private:
    struct Offscreen {
        Offscreen() {
            if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
                qputenv("QT_QPA_PLATFORM", "offscreen");
        }
    };

    Offscreen _offscreen;
    const LogCatcher _log;  // what the platform says of its surroundings is not about pictures
    int _count = 1;
    char _name[9] = "dabpaint";
    char* _arguments[2] = {_name, nullptr};
    const QGuiApplication _platform;
};

}  // namespace dabcanvas::dabpaint
