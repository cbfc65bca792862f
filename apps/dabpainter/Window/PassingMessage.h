// SPDX-License-Identifier: MIT
#pragma once

#include <QStatusBar>

namespace dabcanvas::dabpainter {

// Lines of the status bar about something that may be over before their time is; whatever else is said there stays.
class PassingMessage {
public:
    explicit PassingMessage(QStatusBar& bar) : _bar(bar) {}
    void show(const QString& text, int milliseconds) {
        _text = text;
        _bar.showMessage(text, milliseconds);
    }
    void end() {
        if (!_text.isEmpty() && _bar.currentMessage() == _text)
            _bar.clearMessage();
        _text.clear();
    }

private:
    QStatusBar& _bar;
    QString _text;
};

}  // namespace dabcanvas::dabpainter
