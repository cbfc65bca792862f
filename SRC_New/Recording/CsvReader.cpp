// SPDX-License-Identifier: MIT
#include "Recording/CsvReader.h"

#include <algorithm>
#include <cstring>

namespace dabcanvas {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool endsField(char c) {
    return c == ',' || c == '\n' || c == '\r';
}

}  // namespace

CsvReader::CsvReader(std::string_view bytes) {
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        bytes.remove_prefix(kByteOrderMark.size());
    _at = bytes.data();
    _end = _at + bytes.size();
}

const std::vector<std::string_view>* CsvReader::next() {
    while (_at != _end && !_problem) {
        _line = _nextLine;
        _fields.clear();
        _unquoted.clear();
        const bool quoted = *_at == '"';
        do {
            if (!readField())
                return nullptr;
        } while (!endsRow());
        if (_fields.size() > 1 || quoted || !_fields.front().empty())
            return &_fields;
    }
    return nullptr;
}

// Steps over what follows a field: false for a comma.
bool CsvReader::endsRow() {
    if (_at == _end)
        return true;
    const char c = *_at++;
    if (c == ',')
        return false;
    if (c == '\r' && _at != _end && *_at == '\n')
        ++_at;
    ++_nextLine;
    return true;
}

bool CsvReader::readField() {
    if (_at != _end && *_at == '"')
        return readQuoted();
    const char* const last = std::find_if(_at, _end, endsField);
    _fields.emplace_back(_at, std::size_t(last - _at));
    _at = last;
    return true;
}

bool CsvReader::readQuoted() {
    const int opened = _nextLine;
    const char* const first = ++_at;
    std::string* text = nullptr;  // once a quote had to be taken out
    for (const char* from = first;;) {
        const auto* quote = static_cast<const char*>(std::memchr(_at, '"', std::size_t(_end - _at)));
        if (!quote) {
            _problem = Problem{opened, {}, QStringLiteral("a quoted field is not closed")};
            return false;
        }
        _nextLine += int(std::count(_at, quote, '\n'));
        _at = quote + 1;
        const bool doubled = _at != _end && *_at == '"';
        if (text || doubled) {
            if (!text)
                text = &_unquoted.emplace_back();
            text->append(from, doubled ? _at : quote);
        }
        if (!doubled) {
            _fields.emplace_back(text ? std::string_view(*text)
                                      : std::string_view(first, std::size_t(quote - first)));
            break;
        }
        from = ++_at;
    }
    if (_at == _end || endsField(*_at))
        return true;
    _problem = Problem{_nextLine, {}, QStringLiteral("a quoted field goes on after its closing quote")};
    return false;
}

}  // namespace dabcanvas
