// SPDX-License-Identifier: MIT
// Comma-separated values, row by row: fields in double quotes may hold commas, line ends and, doubled, quotes.
// Lines end with LF, CR or both; blank ones are left out, as is a byte order mark.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Recording/Problem.h"

namespace dabcanvas {

// A field without the blanks around it.
inline std::string_view trimmed(std::string_view text) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

class CsvReader {
public:
    // The bytes must outlive the reader.
    explicit CsvReader(std::string_view bytes);

    // The fields of the next row, valid until the one after it; none at the end and at a fault.
    const std::vector<std::string_view>* next();
    // Where the row began, from 1.
    int line() const { return _line; }
    const std::optional<Problem>& problem() const { return _problem; }

private:
    bool readField();
    bool readQuoted();
    bool endsRow();

    const char* _at;
    const char* _end;
    int _line = 1;
    int _nextLine = 1;
    std::vector<std::string_view> _fields;
    std::deque<std::string> _unquoted;  // of this row, what is not in the bytes as it is meant
    std::optional<Problem> _problem;
};

}  // namespace dabcanvas
