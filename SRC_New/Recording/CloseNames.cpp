// SPDX-License-Identifier: MIT
#include "Recording/CloseNames.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace dabcanvas {

namespace {

constexpr qsizetype kLongestName = 64;  // longer texts are no slips of a name, and the table stays small
constexpr qsizetype kMostNames = 3;

// How many letters must be added, taken away, changed or swapped with their neighbour to turn a into b.
int editDistance(const QString& a, const QString& b) {
    const qsizetype width = b.size() + 1;
    std::vector<int> before(width), above(width), row(width);
    for (qsizetype j = 0; j < width; ++j)
        above[j] = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        row[0] = int(i);
        for (qsizetype j = 1; j < width; ++j) {
            const int change = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + change});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        std::swap(before, above);
        std::swap(above, row);
    }
    return above[b.size()];
}

}  // namespace

QStringList closeNames(const QString& wrong, const QStringList& names) {
    if (wrong.isEmpty() || wrong.size() > kLongestName)
        return {};
    const QString low = wrong.toLower();
    const int most = std::max(2, int(wrong.size() / 3));
    std::vector<std::pair<int, QString>> found;
    for (const QString& name : names) {
        const QString candidate = name.toLower();
        int distance = editDistance(low, candidate);
        // A piece of the name, such as "tingle", is a good hint even where many letters are missing.
        if (distance > most && low.size() >= 3 && candidate.contains(low))
            distance = most;
        if (distance <= most && distance < candidate.size())
            found.emplace_back(distance, name);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    QStringList best;
    for (const auto& [distance, name] : found) {
        if (best.size() == kMostNames)
            break;
        best << name;
    }
    return best;
}

QString closeNamesHint(const QString& wrong, const QStringList& names) {
    const QStringList close = closeNames(wrong, names);
    return close.isEmpty() ? QString()
                           : QStringLiteral("; did you mean %1?").arg(close.join(QStringLiteral(" or ")));
}

}  // namespace dabcanvas
