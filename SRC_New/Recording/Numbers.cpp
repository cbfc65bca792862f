// SPDX-License-Identifier: MIT
#include "Recording/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace dabcanvas {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// from_chars leaves the value alone both when a number is too large and when it is too small to tell from 0.
double valueOutOfRange(const char* at, const char* end) {
    const std::string_view text(at, static_cast<std::size_t>(end - at));
    if (text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos)
        return 0.0;
    return std::numeric_limits<double>::infinity();
}

}  // namespace

bool scanNumber(const char* at, const char* end, double& value, const char*& ended) {
    ended = at;
    const char* first = at;
    if (first != end && *first == '-')
        ++first;
    const bool fraction = first != end && *first == '.' && end - first > 1 && isDigit(first[1]);
    if (first == end || !(isDigit(*first) || fraction))
        return false;
    const auto [last, error] = std::from_chars(at, end, value);
    if (error == std::errc::invalid_argument)
        return false;
    if (error == std::errc::result_out_of_range)
        value = valueOutOfRange(at, last);
    ended = last;
    return true;
}

std::optional<double> numberFromText(QByteArrayView text) {
    double value = 0.0;
    const char* ended = nullptr;
    const char* end = text.data() + text.size();
    if (!scanNumber(text.data(), end, value, ended) || ended != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

void appendNumber(std::string& out, float value) {
    appendNumber(out, static_cast<double>(value));
}

void appendNumber(std::string& out, double value) {
    char text[32];
    const auto written = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 9);
    out.append(text, written.ptr);
}

QString shortestText(float value) {
    char text[64];
    const auto written = std::to_chars(text, text + sizeof text, value);
    return QString::fromLatin1(text, written.ptr - text);
}

}  // namespace dabcanvas
