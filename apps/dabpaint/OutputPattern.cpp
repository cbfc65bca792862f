// SPDX-License-Identifier: MIT
#include "OutputPattern.h"

#include <QFileInfo>
#include <functional>

namespace dabcanvas::dabpaint {

namespace {

// Goes through it once, so that what is put in is not looked at again; `replace` gives none for what is to stay.
QString replaced(const QString& pattern, const std::function<QString(QChar)>& replace) {
    QString result;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const bool isMark = pattern[i] == QLatin1Char('%') && i + 1 < pattern.size();
        const QString in = isMark ? replace(pattern[i + 1]) : QString();
        if (in.isNull()) {
            result += pattern[i];
            if (isMark && pattern[i + 1] == QLatin1Char('%'))
                result += pattern[++i];
        } else {
            result += in;
            ++i;
        }
    }
    return result;
}

bool names(const QString& pattern, const char* letters) {
    bool found = false;
    replaced(pattern, [&](QChar letter) {
        found = found || QLatin1String(letters).contains(letter);
        return QString();
    });
    return found;
}

}  // namespace

bool namesEach(const QString& pattern) {
    return names(pattern, "ni");
}

bool namesStrokes(const QString& pattern) {
    return names(pattern, "s");
}

QString outputOf(const QString& pattern, const QString& recording, qsizetype number) {
    const bool isInput = recording == QLatin1String("-");
    // A percent sign in the name is one.
    const QString name =
        isInput ? QStringLiteral("stdin")
                : QFileInfo(recording).completeBaseName().replace(QLatin1Char('%'), QLatin1String("%%"));
    return replaced(pattern, [&](QChar letter) {
        return letter == QLatin1Char('n')   ? name
               : letter == QLatin1Char('i') ? QString::number(number)
                                            : QString();
    });
}

QString outputAfter(const QString& pattern, qint64 strokes) {
    return replaced(pattern, [&](QChar letter) {
        return letter == QLatin1Char('s')   ? QStringLiteral("%1").arg(strokes, 5, 10, QLatin1Char('0'))
               : letter == QLatin1Char('%') ? QStringLiteral("%")
                                            : QString();
    });
}

}  // namespace dabcanvas::dabpaint
