// SPDX-License-Identifier: MIT
#include "Recording/TableReader.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

#include "Recording/CsvReader.h"
#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

using Row = std::vector<std::string_view>;
constexpr std::size_t kNone = ~std::size_t(0);

enum Column : std::size_t { kX, kY, kTime, kPressure, kAltitude, kStroke, kColumns };
using Places = std::array<std::size_t, kColumns>;  // kNone: there is none

constexpr struct {
    std::string_view name;
    Column column;
} kNames[] = {{"x", kX},
              {"y", kY},
              {"t", kTime},
              {"time", kTime},
              {"timestamp", kTime},
              {"seconds", kTime},
              {"p", kPressure},
              {"force", kPressure},
              {"pressure", kPressure},
              {"altitude", kAltitude},
              {"tilt", kAltitude},
              {"id", kStroke},
              {"stroke", kStroke},
              {"stroke_id", kStroke},
              {"sample_id", kStroke}};

std::optional<double> numberOf(std::string_view text) {
    text = trimmed(text);
    return numberFromText(QByteArrayView(text.data(), qsizetype(text.size())));
}

// Where the named columns are; a name that comes twice counts the first time.
Places namedPlaces(const Row& row) {
    Places places;
    places.fill(kNone);
    for (std::size_t i = 0; i < row.size(); ++i) {
        std::string name(trimmed(row[i]));
        std::transform(name.begin(), name.end(), name.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
        for (const auto& known : kNames) {
            if (known.name == name && places[known.column] == kNone)
                places[known.column] = i;
        }
    }
    return places;
}

// Of a row of numbers alone, by how many there are; none for another number of them.
std::optional<Places> plainPlaces(const Row& row) {
    if (row.size() < 2 || row.size() > 5 || !std::all_of(row.begin(), row.end(), [](std::string_view field) {
            return numberOf(field).has_value();
        }))
        return std::nullopt;
    if (row.size() == 2)
        return Places{0, 1, kNone, kNone, kNone, kNone};
    if (row.size() == 3)
        return Places{0, 1, kNone, 2, kNone, kNone};
    return Places{1, 2, 0, 3, row.size() == 5 ? 4 : kNone, kNone};
}

bool isNamed(const Places& places) {
    return places[kX] != kNone && places[kY] != kNone;
}

class Table {
public:
    explicit Table(const Places& places) : _places(places) {}

    // The message when the row is none.
    QString add(const Row& row) {
        RecordedSample sample;
        double pressure = -1, altitude = -1;
        for (const auto& [column, number] : {std::pair(kX, &sample.x),
                                             {kY, &sample.y},
                                             {kTime, &sample.time},
                                             {kPressure, &pressure},
                                             {kAltitude, &altitude}}) {
            if (_places[column] == kNone || (column > kY && trimmed(row[_places[column]]).empty()))
                continue;
            const auto read = numberOf(row[_places[column]]);
            if (!read)
                return QStringLiteral("\"%1\" is not a number").arg(shown(row[_places[column]]));
            *number = *read;
        }
        if (std::abs(sample.x) > kFarthest || std::abs(sample.y) > kFarthest)
            return QStringLiteral("the position is out of range: at most %1 either way")
                .arg(kFarthest, 0, 'f', 0);
        const auto isShare = [](double value) { return value == -1 || (value >= 0 && value <= 1); };
        if (!isShare(pressure))
            return QStringLiteral("the pressure is not from 0 to 1 (or -1 for none)");
        if (!isShare(altitude))
            return QStringLiteral("the altitude is not from 0 to 1 (or -1 for none)");
        sample.pressure = float(pressure);
        sample.altitude = float(altitude);
        if (pressure == 0)
            _isDown = false;
        else
            strokeOf(row).samples.push_back(sample);
        return {};
    }
    RecordedStrokes take() { return std::move(_strokes); }

private:
    static QString shown(std::string_view text) {
        return QString::fromUtf8(text.data(), qsizetype(std::min<std::size_t>(text.size(), 40)));
    }
    RecordedStroke& strokeOf(const Row& row) {
        auto& strokes = _strokes.strokes;
        if (_places[kStroke] != kNone) {
            const auto [found, isNew] =
                _named.try_emplace(std::string(trimmed(row[_places[kStroke]])), strokes.size());
            if (isNew)
                strokes.emplace_back();
            return strokes[found->second];
        }
        if (!std::exchange(_isDown, true))
            strokes.emplace_back();
        return strokes.back();
    }

    Places _places;
    RecordedStrokes _strokes;
    std::unordered_map<std::string, std::size_t> _named;
    bool _isDown = false;
};

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), std::size_t(bytes.size())};
}

}  // namespace

bool isTable(const QByteArray& bytes) {
    const qsizetype end =
        std::min(bytes.indexOf('\n') < 0 ? bytes.size() : bytes.indexOf('\n'), qsizetype(4096));
    CsvReader reader(viewOf(bytes).substr(0, std::size_t(end)));
    const Row* row = reader.next();
    return row != nullptr && row->size() > 1 && (isNamed(namedPlaces(*row)) || plainPlaces(*row));
}

Result<RecordedStrokes> readTable(const QByteArray& bytes) {
    CsvReader reader(viewOf(bytes));
    const Row* row = reader.next();
    if (!row)
        return reader.problem().value_or(Problem{0, {}, QStringLiteral("the table is empty")});
    const std::size_t width = row->size();
    const auto plain = plainPlaces(*row);
    const Places places = plain ? *plain : namedPlaces(*row);
    if (!isNamed(places))
        return Problem{reader.line(), {}, QStringLiteral("the first row names no columns x and y")};
    Table table(places);
    if (!plain)
        row = reader.next();
    for (; row; row = reader.next()) {
        const QString wrong =
            row->size() != width
                ? QStringLiteral("%1 field(s) where the first row has %2").arg(row->size()).arg(width)
                : table.add(*row);
        if (!wrong.isEmpty())
            return Problem{reader.line(), {}, wrong};
    }
    if (reader.problem())
        return *reader.problem();
    return table.take();
}

}  // namespace dabcanvas
