// SPDX-License-Identifier: MIT
#include "Import/MypaintBrush.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cmath>

namespace dabcanvas {
namespace {

constexpr qsizetype kMostBytes = qsizetype{1} << 20;  // brushes have some thousands
constexpr double kFarthest = 1e6;                     // of a number
constexpr int kSteps = 32;                            // a curve is looked at in
constexpr int kVersion = 3;

// A number that can be reckoned with.
std::optional<float> numberFrom(const QJsonValue& value) {
    const double number = value.toDouble(kFarthest * 2);
    return std::abs(number) <= kFarthest ? std::optional(static_cast<float>(number)) : std::nullopt;
}

// The points, from left to right; none where they make no curve.
std::optional<MypaintCurve> curveFrom(MypaintInput input, const QJsonArray& points) {
    MypaintCurve curve{input, {}};
    if (points.size() < 2 || points.size() > MypaintCurve::kMostPoints) {
        return std::nullopt;
    }
    for (const QJsonValue& value : points) {
        const QJsonArray point = value.toArray();
        const auto x = numberFrom(point.at(0)), y = numberFrom(point.at(1));
        if (!x || !y || (!curve.points.empty() && *x < curve.points.back().first)) {
            return std::nullopt;
        }
        curve.points.emplace_back(*x, *y);
    }
    return curve;
}

bool readSetting(const QString& key, const QJsonObject& object, MypaintBrush& brush, QString& problem) {
    const auto base = numberFrom(object.value(QLatin1String("base_value")));
    if (!base) {
        problem = QStringLiteral("%1 has no base_value that is a number").arg(key.left(60));
        return false;
    }
    MypaintSetting setting{*base, {}};
    const QJsonObject inputs = object.value(QLatin1String("inputs")).toObject();
    for (auto input = inputs.begin(); input != inputs.end(); ++input) {
        const QJsonArray points = input->toArray();
        const auto known = mypaintInputNamed(input.key().toStdString());
        if (points.isEmpty()) {
            continue;  // as good as not there
        }
        if (!known) {
            brush.unknown << QStringLiteral("the curve of %1 over the unknown input %2")
                                 .arg(key.left(60), input.key().left(60));
            continue;
        }
        auto curve = curveFrom(*known, points);
        if (!curve) {
            problem = QStringLiteral("%1's curve over %2 is none").arg(key.left(60), input.key());
            return false;
        }
        setting.curves.push_back(std::move(*curve));
    }
    if (mypaintSettingNamed(key.toStdString()) == nullptr) {
        brush.unknown << QStringLiteral("the unknown setting %1").arg(key.left(60));
    } else {
        brush.settings[key.toStdString()] = std::move(setting);
    }
    return true;
}

}  // namespace

float MypaintCurve::at(float x) const {
    std::size_t right = 1;
    while (right + 1 < points.size() && x > points[right].first) {
        ++right;
    }
    const auto& [x0, y0] = points[right - 1];
    const auto& [x1, y1] = points[right];
    const float y = x0 == x1 ? y0 : y0 + (y1 - y0) * (x - x0) / (x1 - x0);
    constexpr auto most = static_cast<float>(kFarthest);
    return std::isnan(y) ? y0 : std::clamp(y, -most, most);
}

float MypaintCurve::mean() const {
    const MypaintInputRow& row = rowOf(input);
    float sum = 0;
    for (int i = 0; i < kSteps; ++i) {
        sum += at(row.low + (row.high - row.low) * (static_cast<float>(i) + 0.5f) / kSteps);
    }
    return sum / kSteps;
}

float MypaintCurve::span() const {
    const MypaintInputRow& row = rowOf(input);
    float low = at(row.low), high = low;
    for (int i = 1; i <= kSteps; ++i) {
        const float y = at(row.low + (row.high - row.low) * static_cast<float>(i) / kSteps);
        low = std::min(low, y);
        high = std::max(high, y);
    }
    return high - low;
}

const MypaintCurve* MypaintSetting::curveOver(MypaintInput input) const {
    const auto found = std::find_if(curves.begin(), curves.end(),
                                    [input](const MypaintCurve& curve) { return curve.input == input; });
    return found == curves.end() ? nullptr : &*found;
}

MypaintSetting MypaintBrush::setting(std::string_view key) const {
    const auto found = settings.find(key);
    return found != settings.end() ? found->second : MypaintSetting{mypaintSettingNamed(key)->created, {}};
}

float MypaintBrush::base(std::string_view key) const {
    const auto found = settings.find(key);
    return found != settings.end() ? found->second.base : mypaintSettingNamed(key)->created;
}

float MypaintBrush::value(std::string_view key, const MypaintPen& pen, MypaintInputs following) const {
    const auto found = settings.find(key);
    float value = base(key);
    if (found == settings.end()) {
        return value;
    }
    for (const MypaintCurve& curve : found->second.curves) {
        const bool isMean = rowOf(curve.input).isAveraged && (following & bitOf(curve.input)) == 0;
        value += isMean ? curve.mean() : curve.at(pen[static_cast<std::size_t>(curve.input)]);
    }
    return value;
}

MypaintPen MypaintBrush::pen() const {
    MypaintPen pen{};
    for (std::size_t input = 0; input < pen.size(); ++input) {
        pen[input] = rowOf(static_cast<MypaintInput>(input)).rest;
    }
    pen[static_cast<std::size_t>(MypaintInput::brushRadius)] = base("radius_logarithmic");
    return pen;
}

bool looksLikeMypaintBrush(const QByteArray& file) {
    const QByteArray start = file.left(4096).trimmed();
    return start.startsWith('{') || start.startsWith("version ") || start.startsWith("# mypaint");
}

std::optional<MypaintBrush> readMypaintBrush(const QByteArray& file, QString& problem) {
    if (file.size() > kMostBytes) {
        problem = QStringLiteral("it is too large for a MyPaint brush");
        return std::nullopt;
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(file, &fault);
    if (document.isNull()) {
        problem = file.trimmed().startsWith('{')
                      ? QStringLiteral("it is no JSON: %1").arg(fault.errorString())
                      : QStringLiteral("it is no MyPaint brush of version 3; older ones are not read");
        return std::nullopt;
    }
    const QJsonValue settings = document.object().value(QLatin1String("settings"));
    if (document.object().value(QLatin1String("version")).toInt() != kVersion || !settings.isObject()) {
        problem = QStringLiteral("it is no MyPaint brush of version 3");
        return std::nullopt;
    }
    MypaintBrush brush;
    const QJsonObject all = settings.toObject();
    for (auto setting = all.begin(); setting != all.end(); ++setting) {
        if (!readSetting(setting.key(), setting->toObject(), brush, problem)) {
            return std::nullopt;
        }
    }
    return brush;
}

}  // namespace dabcanvas
