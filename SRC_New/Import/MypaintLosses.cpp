// SPDX-License-Identifier: MIT
#include <cmath>

#include "Import/MypaintImport.h"

namespace dabcanvas {
namespace {

constexpr float kSpeaks = 0.005f;  // a curve that spans less, or a base that is off by less, shows nowhere

bool isUsed(const MypaintSetting& setting) {
    for (const MypaintCurve& curve : setting.curves) {
        if (curve.span() > kSpeaks) {
            return true;
        }
    }
    return std::fabs(setting.base) > kSpeaks;
}

// Settings that show only where another one is used.
bool isIdle(const MypaintBrush& brush, std::string_view key) {
    if (key.starts_with("smudge")) {
        return !isUsed(brush.setting("smudge"));
    }
    if (key == "elliptical_dab_angle") {
        const MypaintSetting ratio = brush.setting("elliptical_dab_ratio");
        return ratio.curves.empty() && ratio.base <= 1 + kSpeaks;
    }
    if (key == "custom_input") {
        for (const auto& [other, setting] : brush.settings) {
            if (setting.curveOver(MypaintInput::custom) != nullptr) {
                return false;
            }
        }
        return true;
    }
    return false;
}

QString wordsOf(std::string_view words) {
    return QString::fromLatin1(words.data(), static_cast<qsizetype>(words.size()));
}

void addOnce(QStringList& lost, const QString& line) {
    if (!lost.contains(line)) {
        lost << line;
    }
}

}  // namespace

QStringList lossesOf(const MypaintBrush& brush) {
    QStringList lost = brush.unknown;
    for (const auto& [key, setting] : brush.settings) {
        const MypaintSettingRow& row = *mypaintSettingNamed(key);
        if (isIdle(brush, key)) {
            continue;
        }
        if (row.isBaseLost && std::fabs(setting.base - row.created) > kSpeaks) {
            addOnce(lost, wordsOf(row.words));
        }
        for (const MypaintCurve& curve : setting.curves) {
            if ((row.carried & bitOf(curve.input)) == 0 && curve.span() > kSpeaks) {
                addOnce(lost, QStringLiteral("the curve of %1 over %2")
                                  .arg(wordsOf(row.words), wordsOf(rowOf(curve.input).words)));
            }
        }
    }
    return lost;
}

}  // namespace dabcanvas
