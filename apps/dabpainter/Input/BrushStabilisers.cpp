// SPDX-License-Identifier: MIT
#include "Input/BrushStabilisers.h"

#include <QStringList>
#include <QUrl>
#include <algorithm>
#include <iterator>

namespace dabcanvas::dabpainter {

namespace {

constexpr const char* kKinds[] = {"none", "average", "string"};
static_assert(std::size(kKinds) == std::size_t(Stabilising::string) + 1);

QString keyOf(const QString& brush) {
    return QStringLiteral("stabilisers/brush ") + QString::fromLatin1(QUrl::toPercentEncoding(brush));
}

}  // namespace

StabiliserOptions stabiliserOf(const QSettings& settings, const QString& brush) {
    const QStringList words = settings.value(keyOf(brush)).toString().split(QLatin1Char(' '));
    StabiliserOptions options;
    const auto kind = std::find(std::begin(kKinds), std::end(kKinds), words.value(0));
    if (kind == std::end(kKinds) || words.size() != 4)
        return options;
    options.kind = Stabilising(kind - std::begin(kKinds));
    options.seconds = std::clamp(words[1].toDouble(), 0.0, 2.0);
    options.length = std::clamp(words[2].toDouble(), 0.0, 1000.0);
    options.finishesLine = words[3] != QLatin1String("0");
    return options;
}

void keepStabiliser(QSettings& settings, const QString& brush, const StabiliserOptions& options) {
    if (options == StabiliserOptions())
        return settings.remove(keyOf(brush));
    settings.setValue(keyOf(brush), QStringLiteral("%1 %2 %3 %4")
                                        .arg(QLatin1String(kKinds[std::size_t(options.kind)]))
                                        .arg(options.seconds)
                                        .arg(options.length)
                                        .arg(int(options.finishesLine)));
}

}  // namespace dabcanvas::dabpainter
