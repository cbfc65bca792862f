// SPDX-License-Identifier: MIT
// Reads JSON piece by piece, in the order the caller asks for, and knows where it is.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <string>
#include <vector>

#include "Recording/Problem.h"

namespace dabcanvas {

// nlohmann's parser reads the text; what stands here is what it has not: values are asked for by the form they should
// have, and a fault is told with its place, such as strokes[3].samples[7].
//
//     reader.beginObject();
//     while (reader.nextMember(name)) { ... read exactly one value ... }
//
// Errors   the first one sticks: every later call returns false, so that loops end by themselves, and problem() tells it.
//          A fault of the form is told before one of the syntax further on.
// Memory   4 bytes a value or bracket, 8 more a number, and the texts; neither it nor the stack depend on the nesting.
class JsonReader {
public:
    enum class Kind : std::uint8_t { object, list, text, number, boolean, null, fault, member, close, end };

    struct Token {
        std::uint32_t kind : 4;  // a Kind
        std::uint32_t line : 28;
    };
    struct Tokens {
        std::vector<Token> list;
        std::vector<double> numbers;  // of the numbers and booleans among them, in their order
        std::vector<std::string> texts;
    };

    // Its first line counts as that of the file that it is part of.
    explicit JsonReader(QByteArrayView text, int firstLine = 1);

    Kind peek() const { return _failed ? Kind::end : Kind(_tokens.list[_at].kind); }  // what comes next

    bool beginObject();
    bool nextMember(QString& name);  // false after the last member or on an error
    bool beginList();
    bool nextElement();  // false after the last element or on an error
    bool readNumber(double& value);
    bool readText(QString& value);
    bool readBytes(QByteArray& text);  // the same as UTF-8
    bool readBoolean(bool& value);
    bool readNull();
    bool finish();  // true when nothing but blanks is left

    bool failed() const { return _failed; }
    const Problem& problem() const { return _problem; }
    bool fail(const QString& what);  // returns false, so that callers can pass it on
    bool failExpecting(const char* expected);
    int line() const { return _line; }
    QString path() const;

private:
    struct Level {
        bool list = false;
        qint64 index = -1;
        QString name{};
    };

    bool ends();
    bool take(Kind kind, const char* expected);
    QString nextText();

    Tokens _tokens;
    std::size_t _at = 0, _number = 0, _text = 0;  // what comes next
    int _line = 1;
    bool _failed = false;
    Problem _problem;
    std::vector<Level> _levels;
};

}  // namespace dabcanvas
