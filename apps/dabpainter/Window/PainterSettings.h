// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <utility>
#include <vector>

#include "Canvas/PointerOptions.h"
#include "Surface/SurfaceKind.h"
#include "Window/Theme.h"

class QSettings;

namespace dabcanvas::dabpainter {

// What the painter remembers from run to run. It is in its file within a second of each change, whatever goes on meanwhile
// but for a stroke, which it waits for.
class PainterSettings : public QObject {
    Q_OBJECT

public:
    static constexpr int kMostUndoSteps = 1000;

    // The file must outlive it.
    explicit PainterSettings(QSettings& file, QObject* parent = nullptr);

    int undoSteps() const;
    void setUndoSteps(int steps);
    SurfaceKind surface() const;  // of canvases to come
    void setSurface(SurfaceKind kind);
    TouchPolicy touch() const;
    void setTouch(TouchPolicy policy);
    PressureCurve pressure() const;
    void setPressure(const PressureCurve& curve);
    ThemeChoice theme() const;
    void setTheme(ThemeChoice choice);
    int tolerance() const;  // of fills, 0 to 255
    void setTolerance(int tolerance);

    bool records() const;  // what is painted
    void setRecords(bool records);

    // What others remember: called when it is due to be written.
    void addWriter(std::function<void(QSettings&)> write) { _writers.push_back(std::move(write)); }
    // Something that they write has changed.
    void noteChange();
    void write();
    // Whether writing must wait, as the images of a brush take tens of milliseconds.
    void setBusy(std::function<bool()> isBusy) { _isBusy = std::move(isBusy); }
    QSettings& file() { return _file; }

signals:
    void undoStepsChanged(int steps);
    void touchChanged(dabcanvas::TouchPolicy policy);
    void pressureChanged(const dabcanvas::PressureCurve& curve);

private:
    void set(const char* name, const QVariant& value);

    QSettings& _file;
    std::vector<std::function<void(QSettings&)>> _writers;
    std::function<bool()> _isBusy;
    QTimer _timer;
};

}  // namespace dabcanvas::dabpainter
