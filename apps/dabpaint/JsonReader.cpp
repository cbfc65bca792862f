// SPDX-License-Identifier: MIT
#include "JsonReader.h"

#include <QStringDecoder>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "Numbers.h"

namespace dabcanvas::dabpaint {

namespace {

bool isNumberByte(char c) {
    return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'E';
}

// JSON writes numbers more strictly than from_chars reads them: no ".5", no "5.", no "007".
bool isStrictNumber(const char* at, const char* end) {
    const auto digits = [&] {
        const char* first = at;
        while (at != end && *at >= '0' && *at <= '9')
            ++at;
        return at - first;
    };
    if (at != end && *at == '-')
        ++at;
    const bool zero = at != end && *at == '0';
    const auto whole = digits();
    if (whole == 0 || (zero && whole > 1))
        return false;
    if (at != end && *at == '.' && (++at, digits() == 0))
        return false;
    if (at != end && (*at == 'e' || *at == 'E')) {
        ++at;
        if (at != end && (*at == '+' || *at == '-'))
            ++at;
        if (digits() == 0)
            return false;
    }
    return at == end;
}

}  // namespace

JsonReader::JsonReader(QByteArrayView text) : _at(text.data()), _end(text.data() + text.size()) {
    if (text.startsWith("\xEF\xBB\xBF"))
        _at += 3;
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

bool JsonReader::skipBlanks() {
    for (; _at != _end; ++_at) {
        if (*_at == '\n')
            ++_line;
        else if (*_at != ' ' && *_at != '\t' && *_at != '\r')
            break;
    }
    return _at != _end;
}

JsonReader::Kind JsonReader::peek() {
    if (_failed || !skipBlanks())
        return Kind::end;
    switch (*_at) {
        case '{':
            return Kind::object;
        case '[':
            return Kind::list;
        case '"':
            return Kind::text;
        case 't':
        case 'f':
            return Kind::boolean;
        case 'n':
            return Kind::null;
        default:
            return *_at == '-' || (*_at >= '0' && *_at <= '9') ? Kind::number : Kind::other;
    }
}

QString JsonReader::found() {
    switch (peek()) {
        case Kind::object:
            return QStringLiteral("an object");
        case Kind::list:
            return QStringLiteral("a list");
        case Kind::text:
            return QStringLiteral("a text");
        case Kind::number:
            return QStringLiteral("a number");
        case Kind::boolean:
            return QStringLiteral("true or false");
        case Kind::null:
            return QStringLiteral("null");
        case Kind::end:
            return QStringLiteral("the end of the file");
        case Kind::other:
            break;
    }
    const auto byte = static_cast<unsigned char>(*_at);
    if (byte > ' ' && byte < 0x7F)
        return QStringLiteral("\"%1\"").arg(QLatin1Char(*_at));
    return QStringLiteral("byte 0x%1").arg(byte, 2, 16, QLatin1Char('0'));
}

bool JsonReader::failExpecting(const char* expected) {
    if (_failed)
        return false;
    return fail(QStringLiteral("expected %1, found %2").arg(QLatin1String(expected), found()));
}

bool JsonReader::beginObject() {
    if (peek() != Kind::object)
        return failExpecting("an object");
    ++_at;
    _levels.push_back({});
    return true;
}

bool JsonReader::beginList() {
    if (peek() != Kind::list)
        return failExpecting("a list");
    ++_at;
    _levels.push_back({.list = true, .first = true, .index = -1, .name = {}});
    return true;
}

// Steps over what stands between two members or elements; false at the closing bracket or on an error.
bool JsonReader::separator(char closing) {
    if (_failed)
        return false;
    Level& level = _levels.back();
    if (!skipBlanks())
        return failExpecting(level.list ? "\",\" or \"]\"" : "\",\" or \"}\"");
    if (*_at == closing) {
        ++_at;
        _levels.pop_back();
        return false;
    }
    if (!level.first) {
        if (*_at != ',')
            return failExpecting(level.list ? "\",\" or \"]\"" : "\",\" or \"}\"");
        ++_at;
    }
    level.first = false;
    return true;
}

bool JsonReader::nextMember(QString& name) {
    if (!separator('}'))
        return false;
    _levels.back().name.clear();
    if (peek() != Kind::text)
        return failExpecting("a member's name");
    if (!readText(name))
        return false;
    if (!skipBlanks() || *_at != ':')
        return failExpecting("\":\"");
    ++_at;
    _levels.back().name = name;
    return true;
}

bool JsonReader::nextElement() {
    if (!separator(']'))
        return false;
    ++_levels.back().index;
    return true;
}

bool JsonReader::readNumber(double& value) {
    if (peek() != Kind::number)
        return failExpecting("a number");
    const char* ended = _at;
    while (ended != _end && isNumberByte(*ended))
        ++ended;
    const char* scanned = nullptr;
    if (!isStrictNumber(_at, ended) || !scanNumber(_at, ended, value, scanned) || scanned != ended)
        return fail(QStringLiteral("malformed number \"%1\"")
                        .arg(QString::fromLatin1(_at, std::min<qsizetype>(ended - _at, 40))));
    if (!std::isfinite(value))
        return fail(QStringLiteral("number out of range"));
    _at = ended;
    return true;
}

bool JsonReader::literal(const char* word) {
    const auto size = static_cast<std::ptrdiff_t>(std::strlen(word));
    if (_end - _at < size || std::memcmp(_at, word, static_cast<std::size_t>(size)) != 0)
        return false;
    _at += size;
    return true;
}

bool JsonReader::readBoolean(bool& value) {
    if (peek() == Kind::boolean) {
        value = *_at == 't';
        if (literal("true") || literal("false"))
            return true;
        return fail(QStringLiteral("expected true or false"));
    }
    return failExpecting("true or false");
}

bool JsonReader::readText(QString& value) {
    if (peek() != Kind::text)
        return failExpecting("a text");
    ++_at;
    return readTextAfterQuote(value);
}

bool JsonReader::readTextAfterQuote(QString& value) {
    value.clear();
    const char* plain = _at;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const auto takePlain = [&] {
        if (plain != _at)
            value += QString(decoder.decode(QByteArrayView(plain, _at - plain)));
        return !decoder.hasError();
    };
    for (; _at != _end; ++_at) {
        const auto byte = static_cast<unsigned char>(*_at);
        if (byte == '"') {
            if (!takePlain())
                return fail(QStringLiteral("the text is not valid UTF-8"));
            ++_at;
            return true;
        }
        if (byte < 0x20)
            return fail(QStringLiteral("a line end or control character inside a text"));
        if (byte == '\\') {
            if (!takePlain())
                return fail(QStringLiteral("the text is not valid UTF-8"));
            ++_at;
            if (!readEscape(value))
                return fail(QStringLiteral("malformed escape inside a text"));
            plain = _at;
            --_at;
        }
    }
    return fail(QStringLiteral("the text does not end"));
}

bool JsonReader::readEscape(QString& value) {
    if (_at == _end)
        return false;
    static constexpr char kLetters[] = "\"\\/bfnrt";
    static constexpr char kMeanings[] = "\"\\/\b\f\n\r\t";
    const char letter = *_at++;
    if (letter == 'u') {
        char16_t unit = 0;
        if (!readUnit(unit))
            return false;
        value += QChar(unit);
        return true;
    }
    const char* known = letter ? std::strchr(kLetters, letter) : nullptr;
    if (!known)
        return false;
    value += QLatin1Char(kMeanings[known - kLetters]);
    return true;
}

bool JsonReader::readUnit(char16_t& unit) {
    std::uint16_t value = 0;
    if (_end - _at < 4 || std::from_chars(_at, _at + 4, value, 16).ptr != _at + 4)
        return false;
    unit = value;
    _at += 4;
    return true;
}

bool JsonReader::finish() {
    if (_failed)
        return false;
    if (skipBlanks())
        return failExpecting("the end of the file");
    return true;
}

}  // namespace dabcanvas::dabpaint
