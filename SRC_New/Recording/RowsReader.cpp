// SPDX-License-Identifier: MIT
#include "Recording/RowsReader.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

constexpr int kMostNumbers = 5;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

struct Row {
    double numbers[kMostNumbers] = {};
    int count = 0;
};

// Reads one line's numbers; the message when they are none.
QString scanRow(const char* at, const char* end, Row& row) {
    for (;;) {
        while (at != end && isBlank(*at))
            ++at;
        if (at == end)
            return {};
        double value = 0;
        const char* ended = nullptr;
        const bool number = scanNumber(at, end, value, ended);
        if (!number || (ended != end && !isBlank(*ended))) {
            const char* last = std::find_if(at, end, isBlank);
            return QStringLiteral("\"%1\" is not a number")
                .arg(QString::fromUtf8(at, std::min<qsizetype>(last - at, 40)));
        }
        if (!std::isfinite(value))
            return QStringLiteral("a number is out of range");
        if (row.count == kMostNumbers)
            return QStringLiteral("more than 5 numbers; a row is: seconds x y pressure [altitude]");
        row.numbers[row.count++] = value;
        at = ended;
    }
}

bool isShare(double value) {
    return value == -1 || (value >= 0 && value <= 1);
}

QString checkRow(const Row& row, int columns) {
    if (row.count < 4)
        return QStringLiteral("%1 number(s) where a row has: seconds x y pressure [altitude]").arg(row.count);
    if (columns != 0 && row.count != columns)
        return QStringLiteral("%1 numbers where the rows before have %2").arg(row.count).arg(columns);
    if (std::abs(row.numbers[1]) > kFarthest || std::abs(row.numbers[2]) > kFarthest)
        return QStringLiteral("the position is out of range: at most %1 either way")
            .arg(kFarthest, 0, 'f', 0);
    if (!isShare(row.numbers[3]))
        return QStringLiteral("the pressure is not from 0 to 1 (or -1 for none)");
    if (row.count == 5 && !isShare(row.numbers[4]))
        return QStringLiteral("the altitude is not from 0 to 1 (or -1 for none)");
    return {};
}

}  // namespace

Result<RecordedStrokes> readRows(const QByteArray& bytes) {
    RecordedStrokes recording;
    const char* at = bytes.constData() + (bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0);
    const char* const end = bytes.constData() + bytes.size();
    int columns = 0;
    bool down = false;
    for (int line = 1; at < end; ++line) {
        const auto* newline = static_cast<const char*>(std::memchr(at, '\n', std::size_t(end - at)));
        const char* lineEnd = newline ? newline : end;
        const char* rowEnd = std::find(at, lineEnd, '#');
        Row row;
        QString wrong = scanRow(at, rowEnd, row);
        at = newline ? newline + 1 : end;
        if (wrong.isEmpty() && row.count > 0)
            wrong = checkRow(row, columns);
        if (!wrong.isEmpty())
            return Problem{line, {}, wrong};
        if (row.count == 0)
            continue;
        columns = row.count;
        const bool wasDown = std::exchange(down, row.numbers[3] != 0);
        if (!down)
            continue;
        if (!wasDown)
            recording.strokes.emplace_back();
        recording.strokes.back().samples.push_back({row.numbers[1], row.numbers[2], float(row.numbers[3]),
                                                    columns == 5 ? float(row.numbers[4]) : -1.0f,
                                                    row.numbers[0]});
    }
    return recording;
}

}  // namespace dabcanvas
