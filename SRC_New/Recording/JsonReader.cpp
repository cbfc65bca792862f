// SPDX-License-Identifier: MIT
#include "Recording/JsonReader.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace dabcanvas {

namespace {

using Kind = JsonReader::Kind;

// Hands the text out byte by byte and counts its lines, which the parser tells of faults only.
struct CountingBytes {
    using iterator_category = std::forward_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    reference operator*() const { return *at; }
    CountingBytes& operator++() {
        *line += after ? 1 : 0;
        after = *at++ == '\n';
        return *this;
    }
    bool operator==(const CountingBytes& other) const { return at == other.at; }
    bool operator!=(const CountingBytes& other) const { return at != other.at; }

    const char* at;
    std::uint32_t* line;
    bool after = false;  // the parser looks a byte ahead, which must not count yet
};

// The parser's events, one after the other.
class Writer : public nlohmann::json_sax<nlohmann::json> {
public:
    Writer(JsonReader::Tokens& tokens, const std::uint32_t& line) : _tokens(tokens), _line(line) {}

    bool null() override { return add(Kind::null); }
    bool boolean(bool value) override { return addNumber(Kind::boolean, value); }
    bool number_integer(number_integer_t value) override { return addNumber(Kind::number, double(value)); }
    bool number_unsigned(number_unsigned_t value) override { return addNumber(Kind::number, double(value)); }
    bool number_float(number_float_t value, const string_t&) override {
        return addNumber(Kind::number, value);
    }
    bool string(string_t& value) override { return addText(Kind::text, value); }
    bool binary(binary_t&) override { return false; }  // not in JSON
    bool start_object(std::size_t) override { return add(Kind::object); }
    bool key(string_t& value) override { return addText(Kind::member, value); }
    bool end_object() override { return add(Kind::close); }
    bool start_array(std::size_t) override { return add(Kind::list); }
    bool end_array() override { return add(Kind::close); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& fault) override {
        // "[json.exception.parse_error.101] parse error at line 1, column 5: syntax error ..."
        std::string what = fault.what();
        const auto place = what.find("column ");
        what.erase(0, place == std::string::npos ? what.find(' ') + 1 : place);
        what.resize(std::min<std::size_t>(what.size(), 200));  // it quotes all of a text that is wrong
        return addText(Kind::fault, what) && false;
    }

private:
    bool add(Kind kind) {
        constexpr std::uint32_t kLast = (1u << 28) - 1;
        _tokens.list.push_back({std::uint32_t(kind) & 15u, std::min(_line, kLast) & kLast});
        return true;
    }
    bool addNumber(Kind kind, double number) {
        _tokens.numbers.push_back(number);
        return add(kind);
    }
    bool addText(Kind kind, std::string& text) {
        _tokens.texts.push_back(std::move(text));
        return add(kind);
    }

    JsonReader::Tokens& _tokens;
    const std::uint32_t& _line;
};

const char* nameOf(Kind kind) {
    constexpr const char* kNames[] = {"an object", "a list", "a text", "a number", "true or false", "null"};
    return std::size_t(kind) < std::size(kNames) ? kNames[std::size_t(kind)] : "the end of what is there";
}

}  // namespace

JsonReader::JsonReader(QByteArrayView text, int firstLine) : _line(firstLine) {
    auto line = std::uint32_t(firstLine);
    Writer writer(_tokens, line);
    const CountingBytes first{text.data(), &line}, last{text.data() + text.size(), &line};
    nlohmann::json::sax_parse(first, last, &writer);
    _tokens.list.push_back({std::uint32_t(Kind::end), line});
}

bool JsonReader::fail(const QString& what) {
    if (!_failed) {
        _failed = true;
        _problem = {_line, path(), what};
    }
    return false;
}

QString JsonReader::path() const {
    QString path;
    for (const Level& level : _levels) {
        if (level.list && level.index >= 0) {
            path += QLatin1Char('[') + QString::number(level.index) + QLatin1Char(']');
        } else if (!level.list && !level.name.isEmpty()) {
            if (!path.isEmpty())
                path += QLatin1Char('.');
            path += level.name;
        }
    }
    return path;
}

QString JsonReader::nextText() {
    return QString::fromStdString(_tokens.texts[_text++]);
}

bool JsonReader::failExpecting(const char* expected) {
    if (_failed)
        return false;
    _line = int(_tokens.list[_at].line);
    if (peek() == Kind::fault)
        return fail(nextText());
    return fail(
        QStringLiteral("expected %1, found %2").arg(QLatin1String(expected), QLatin1String(nameOf(peek()))));
}

bool JsonReader::take(Kind kind, const char* expected) {
    if (_failed || peek() != kind)
        return failExpecting(expected);
    _line = int(_tokens.list[_at++].line);
    return true;
}

bool JsonReader::beginObject() {
    const bool begun = take(Kind::object, "an object");
    if (begun)
        _levels.push_back({false, -1, {}});
    return begun;
}

bool JsonReader::beginList() {
    const bool begun = take(Kind::list, "a list");
    if (begun)
        _levels.push_back({true, -1, {}});
    return begun;
}

// Steps over a closing bracket; true also on an error.
bool JsonReader::ends() {
    if (!_failed && peek() == Kind::close) {
        _levels.pop_back();
        ++_at;
        return true;
    }
    return _failed;
}

bool JsonReader::nextMember(QString& name) {
    if (ends())
        return false;
    _levels.back().name.clear();
    if (!take(Kind::member, "a member's name"))
        return false;
    _levels.back().name = name = nextText();
    return true;
}

bool JsonReader::nextElement() {
    if (ends())
        return false;
    ++_levels.back().index;
    return true;
}

bool JsonReader::readNumber(double& value) {
    const bool taken = take(Kind::number, "a number");
    if (taken)
        value = _tokens.numbers[_number++];
    return taken;
}

bool JsonReader::readBytes(QByteArray& text) {
    const bool taken = take(Kind::text, "a text");
    if (taken)
        text = QByteArray::fromStdString(_tokens.texts[_text++]);
    return taken;
}

bool JsonReader::readNull() {
    return take(Kind::null, "null");
}

bool JsonReader::readBoolean(bool& value) {
    const bool taken = take(Kind::boolean, "true or false");
    if (taken)
        value = _tokens.numbers[_number++] != 0;
    return taken;
}

bool JsonReader::readText(QString& value) {
    const bool taken = take(Kind::text, "a text");
    if (taken)
        value = nextText();
    return taken;
}

bool JsonReader::finish() {
    return peek() == Kind::end ? !_failed : failExpecting("the end of the file");
}

}  // namespace dabcanvas
