// SPDX-License-Identifier: MIT
#include "Layers/LayerNames.h"

#include <QRegularExpression>

#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

// What one of these names was made of, in this language; empty for a name that is none.
QString originalOf(const QString& name, const QString& made) {
    QString pattern = QRegularExpression::escape(made);
    pattern.replace(QStringLiteral("\\%1"), QStringLiteral("(.+)"));
    pattern.replace(QStringLiteral("\\%2"), QStringLiteral("\\d+"));
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
    return whole.match(name).captured(1);
}

}  // namespace

QString copyName(const QString& name, const QStringList& taken) {
    const QString first = tr("%1 copy"), further = tr("%1 copy %2");
    QString original = name;
    for (const QString& made : {first, further}) {
        if (const QString found = originalOf(name, made); !found.isEmpty())
            original = found;
    }
    QString copy = first.arg(original);
    for (int number = 2; taken.contains(copy); ++number)
        copy = further.arg(original).arg(number);
    return copy;
}

}  // namespace dabcanvas::dabpainter
