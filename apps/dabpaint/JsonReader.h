// SPDX-License-Identifier: MIT
// Reads JSON piece by piece, in the order the caller asks for, and knows where it is.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <vector>

#include "Problem.h"

namespace dabcanvas::dabpaint {

// The caller walks the text by the form it expects; nothing is kept, and what is nested deeper than the
// caller asks for is refused where it starts, so neither memory nor the stack depend on the nesting.
//
//     reader.beginObject();
//     while (reader.nextMember(name)) { ... read exactly one value ... }
//
// Errors   the first one sticks: every later call returns false, so that loops end by themselves, and
//          problem() tells it with its line and its place, such as strokes[3].samples[7].
// Owns     nothing; the text must outlive the reader.
class JsonReader {
public:
    enum class Kind { object, list, text, number, boolean, null, end, other };

    explicit JsonReader(QByteArrayView text);

    Kind peek();  // what comes next, without reading it

    bool beginObject();
    bool nextMember(QString& name);  // false after the last member (its brace is read) or on an error
    bool beginList();
    bool nextElement();  // false after the last element (its bracket is read) or on an error
    bool readNumber(double& value);
    bool readText(QString& value);
    bool readBoolean(bool& value);
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
        bool first = true;
        qint64 index = -1;
        QString name;
    };

    bool skipBlanks();
    bool separator(char closing);
    bool literal(const char* word);
    bool readTextAfterQuote(QString& value);
    bool readEscape(QString& value);
    bool readUnit(char16_t& unit);
    QString found();

    const char* _at;
    const char* _end;
    int _line = 1;
    bool _failed = false;
    Problem _problem;
    std::vector<Level> _levels;
};

}  // namespace dabcanvas::dabpaint
