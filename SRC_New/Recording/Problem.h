// SPDX-License-Identifier: MIT
/// \file
/// What went wrong with one input, in the words its user reads.
#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <variant>

namespace dabcanvas {

/// One fault of one file. `line` counts from 1; 0 when no line can be named. `element` says where inside a
/// structured file, such as strokes[3].samples[7]; empty when the line says it all.
struct Problem {
    int line = 0;
    QString element;
    QString what;

    /// "FILE:LINE: element: what", without what is not known. The file "-" is standard input.
    QString text(const QString& file) const {
        QString told =
            (file == QLatin1String("-") ? QStringLiteral("standard input") : file) + QLatin1Char(':');
        if (line > 0)
            told += QString::number(line) + QLatin1Char(':');
        told += QLatin1Char(' ');
        if (!element.isEmpty())
            told += element + QStringLiteral(": ");
        return told + what;
    }
};

/// A value, or the reason why there is none; only what it holds is to be asked for.
///
///     const Result<RecordedStrokes> strokes = readStrokes(bytes);
///     if (!strokes) return complain(strokes.problem().text(path));
///     use(*strokes);
template <typename Value>
class Result {
public:
    Result(Value value) : _held(std::move(value)) {}
    Result(Problem problem) : _held(std::move(problem)) {}

    explicit operator bool() const { return std::holds_alternative<Value>(_held); }
    Value& operator*() { return std::get<Value>(_held); }
    const Value& operator*() const { return std::get<Value>(_held); }
    Value* operator->() { return &std::get<Value>(_held); }
    const Value* operator->() const { return &std::get<Value>(_held); }
    const Problem& problem() const { return std::get<Problem>(_held); }

private:
    std::variant<Value, Problem> _held;
};

}  // namespace dabcanvas
