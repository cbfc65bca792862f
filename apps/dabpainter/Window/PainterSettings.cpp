// SPDX-License-Identifier: MIT
#include "Window/PainterSettings.h"

#include <QSettings>
#include <algorithm>
#include <array>

#include "Input/PressurePoints.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kSteps[] = "history/steps", kSurface[] = "canvas/surface", kTouch[] = "pointer/touch",
               kPressure[] = "pointer/pressure", kTheme[] = "window/theme", kTolerance[] = "fill/tolerance",
               kRecords[] = "recording/on";
constexpr int kDefaultSteps = 100, kDefaultTolerance = 32;
constexpr int kWriteDelay = 1000;  // milliseconds from a change to the file
constexpr int kBusyDelay = 100;

constexpr std::array kTouchNames{"paint", "move", "move once a pen was seen"};
static_assert(kTouchNames.size() == std::size_t(TouchPolicy::pensOnceSeen) + 1);

constexpr std::array kThemeNames{"system", "light", "dark"};
static_assert(kThemeNames.size() == std::size_t(ThemeChoice::dark) + 1);

template <typename Choice, typename Names>
Choice choiceNamed(const Names& names, const QString& name, Choice otherwise) {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? otherwise : Choice(found - names.begin());
}

}  // namespace

PainterSettings::PainterSettings(QSettings& file, QObject* parent) : QObject(parent), _file(file) {
    _timer.setSingleShot(true);
    connect(&_timer, &QTimer::timeout, this,
            [this] { _isBusy&& _isBusy() ? _timer.start(kBusyDelay) : write(); });
}

int PainterSettings::undoSteps() const {
    return std::clamp(_file.value(QLatin1String(kSteps), kDefaultSteps).toInt(), 1, kMostUndoSteps);
}

void PainterSettings::setUndoSteps(int steps) {
    set(kSteps, steps);
    emit undoStepsChanged(undoSteps());
}

SurfaceKind PainterSettings::surface() const {
    const QString name = _file.value(QLatin1String(kSurface)).toString();
    return surfaceKindOf(name.toStdString()).value_or(SurfaceKind::automatic);
}

void PainterSettings::setSurface(SurfaceKind kind) {
    set(kSurface, kind == SurfaceKind::gpu         ? QStringLiteral("gpu")
                  : kind == SurfaceKind::processor ? QStringLiteral("processor")
                                                   : QStringLiteral("auto"));
}

TouchPolicy PainterSettings::touch() const {
    return choiceNamed(kTouchNames, _file.value(QLatin1String(kTouch)).toString(), TouchPolicy::pensOnceSeen);
}

void PainterSettings::setTouch(TouchPolicy policy) {
    set(kTouch, QLatin1String(kTouchNames[std::size_t(policy)]));
    emit touchChanged(policy);
}

PressureCurve PainterSettings::pressure() const {
    return PressurePoints::ofText(_file.value(QLatin1String(kPressure)).toString()).curve();
}

void PainterSettings::setPressure(const PressureCurve& curve) {
    set(kPressure, PressurePoints(curve).text());
    emit pressureChanged(curve);
}

bool PainterSettings::records() const {
    return _file.value(QLatin1String(kRecords), false).toBool();
}

void PainterSettings::setRecords(bool records) {
    set(kRecords, records);
}

ThemeChoice PainterSettings::theme() const {
    return choiceNamed(kThemeNames, _file.value(QLatin1String(kTheme)).toString(), ThemeChoice::system);
}

void PainterSettings::setTheme(ThemeChoice choice) {
    set(kTheme, QLatin1String(kThemeNames[std::size_t(choice)]));
}

int PainterSettings::tolerance() const {
    return std::clamp(_file.value(QLatin1String(kTolerance), kDefaultTolerance).toInt(), 0, 255);
}

void PainterSettings::setTolerance(int tolerance) {
    set(kTolerance, tolerance);
}

void PainterSettings::set(const char* name, const QVariant& value) {
    _file.setValue(QLatin1String(name), value);
    noteChange();
}

// Not put off by further changes: who drags a slider loses no more than a second of it.
void PainterSettings::noteChange() {
    if (!_timer.isActive())
        _timer.start(kWriteDelay);
}

void PainterSettings::write() {
    _timer.stop();
    for (const auto& write : _writers)
        write(_file);
    _file.sync();
}

}  // namespace dabcanvas::dabpainter
