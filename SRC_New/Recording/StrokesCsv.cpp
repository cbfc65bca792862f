// SPDX-License-Identifier: MIT
#include "Recording/StrokesCsv.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

#include "Recording/CsvReader.h"
#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

using Row = std::vector<std::string_view>;

enum Column : std::size_t { kId, kX, kY, kColumns };
constexpr std::array<std::string_view, kColumns> kColumnNames = {"sample_id", "x", "y"};

QString shown(std::string_view text) {
    constexpr std::size_t kLongest = 40;
    return QString::fromUtf8(text.data(), qsizetype(std::min(text.size(), kLongest)));
}

// Where the columns are; the message when one is missing.
QString findColumns(const Row& header, std::array<std::size_t, kColumns>& places) {
    for (std::size_t i = 0; i < kColumns; ++i) {
        const QString name = shown(kColumnNames[i]);
        const auto isIt = [&](std::string_view text) { return trimmed(text) == kColumnNames[i]; };
        const auto found = std::find_if(header.begin(), header.end(), isIt);
        if (found == header.end())
            return QStringLiteral("the first row names no column %1; it must name sample_id, x and y")
                .arg(name);
        if (std::find_if(found + 1, header.end(), isIt) != header.end())
            return QStringLiteral("the first row names two columns %1").arg(name);
        places[i] = std::size_t(found - header.begin());
    }
    return {};
}

QString takeNumber(std::string_view text, Column column, double& number) {
    text = trimmed(text);
    const auto value = numberFromText(QByteArrayView(text.data(), qsizetype(text.size())));
    if (!value)
        return QStringLiteral("%1 is \"%2\", not a finite number")
            .arg(shown(kColumnNames[column]), shown(text));
    number = *value;
    return {};
}

// Finds strokes by their names.
class Strokes {
public:
    std::vector<ShapePoint>& named(std::string_view id) {
        if (_strokes.empty() || _strokes[_last].id != id) {  // mostly it is the one of the row before
            const auto [found, isNew] = _places.try_emplace(std::string(id), _strokes.size());
            if (isNew)
                _strokes.push_back({found->first, {}});
            _last = found->second;
        }
        return _strokes[_last].points;
    }
    std::vector<NamedStroke> take() { return std::move(_strokes); }

private:
    std::vector<NamedStroke> _strokes;
    std::unordered_map<std::string, std::size_t> _places;
    std::size_t _last = 0;
};

}  // namespace

Result<std::vector<NamedStroke>> readStrokesCsv(const QByteArray& bytes) {
    CsvReader reader(std::string_view(bytes.constData(), std::size_t(bytes.size())));
    const Row* header = reader.next();
    if (!header)
        return reader.problem().value_or(Problem{0, {}, QStringLiteral("the table is empty")});
    std::array<std::size_t, kColumns> places{};
    QString wrong = findColumns(*header, places);
    if (!wrong.isEmpty())
        return Problem{reader.line(), {}, wrong};
    const std::size_t width = header->size();
    Strokes strokes;
    while (const Row* row = reader.next()) {
        ShapePoint point;
        if (row->size() != width)
            wrong = QStringLiteral("%1 field(s) where the first row has %2").arg(row->size()).arg(width);
        else if ((*row)[places[kId]].empty())
            wrong = QStringLiteral("sample_id is empty");
        if (wrong.isEmpty())
            wrong = takeNumber((*row)[places[kX]], kX, point.x);
        if (wrong.isEmpty())
            wrong = takeNumber((*row)[places[kY]], kY, point.y);
        if (!wrong.isEmpty())
            return Problem{reader.line(), {}, wrong};
        strokes.named((*row)[places[kId]]).push_back(point);
    }
    if (reader.problem())
        return *reader.problem();
    return strokes.take();
}

void appendCsvField(std::string& out, std::string_view text) {
    if (text.find_first_of("\",\r\n") == std::string_view::npos) {
        out += text;
        return;
    }
    out += '"';
    for (const char c : text) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
}

}  // namespace dabcanvas
