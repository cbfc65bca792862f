// SPDX-License-Identifier: MIT
#include "Recording/InkmlTrace.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

// What one channel carries from point to point.
class ChannelState {
public:
    void setMode(char prefix) { _mode = prefix; }

    // `number` as written; gives the channel's value.
    double take(double number) {
        if (_mode == '!') {
            // Differences may follow explicit values, and go on from how those moved.
            _velocity = _started ? number - _value : 0;
            _value = number;
        } else {
            _acceleration = _mode == '"' ? number : 0;
            _velocity = _mode == '"' ? _velocity + number : number;
            _value += _velocity;
        }
        _started = true;
        return _value;
    }

    double repeat() {
        const double last[] = {_value, _velocity, _acceleration};
        return take(last[_mode == '!' ? 0 : _mode == '\'' ? 1 : 2]);
    }

private:
    char _mode = '!';
    bool _started = false;
    double _value = 0;
    double _velocity = 0;
    double _acceleration = 0;
};

class TraceDecoder {
public:
    TraceDecoder(QByteArrayView text, std::span<const TraceChannel> channels)
        : _begin(text.data()),
          _at(text.data()),
          _end(text.data() + text.size()),
          _channels(channels),
          _states(channels.size()),
          _values(channels.size()) {
        _regular =
            std::size_t(std::count_if(channels.begin(), channels.end(),
                                      [](const TraceChannel& channel) { return !channel.intermittent; }));
    }

    bool run(const std::function<void(std::span<const double>)>& point, Problem& problem) {
        while (skipBlanks()) {
            QString wrong = readPoint();
            if (!wrong.isEmpty()) {
                problem = {int(std::count(_begin, _at, '\n')),
                           {},
                           QStringLiteral("point %1: %2").arg(_points).arg(wrong)};
                return false;
            }
            point(_values);
            ++_points;
        }
        return true;
    }

private:
    bool skipBlanks() {
        while (_at != _end && (*_at == ' ' || *_at == '\t' || *_at == '\r' || *_at == '\n'))
            ++_at;
        return _at != _end;
    }

    // Reads up to and with the next comma; the message when something is wrong.
    QString readPoint() {
        std::size_t count = 0;
        std::fill(_values.begin(), _values.end(), kUnknown);
        for (; skipBlanks() && *_at != ','; ++count) {
            if (count == _channels.size())
                return QStringLiteral("more values than the trace format's %1 channel(s)")
                    .arg(_channels.size());
            QString wrong = readValue(count);
            if (!wrong.isEmpty())
                return wrong;
        }
        if (count < _regular)
            return QStringLiteral("%1 value(s) where the trace format has %2 channels")
                .arg(count)
                .arg(_regular);
        if (_at != _end)
            ++_at;
        return {};
    }

    QString readValue(std::size_t channel) {
        ChannelState& state = _states[channel];
        const bool boolean = _channels[channel].boolean;
        if (!boolean && (*_at == '\'' || *_at == '"' || *_at == '!')) {
            state.setMode(*_at++);
            if (!skipBlanks())
                return QStringLiteral("the trace ends after a prefix");
        }
        const char c = *_at;
        if (c == '?') {
            ++_at;
            return {};
        }
        double number = 0;
        if (c == '*' || (boolean && (c == 'T' || c == 'F'))) {
            ++_at;
            number = c == 'T' ? 1 : 0;
        } else {
            QString wrong = boolean ? unreadable() : readNumber(number);
            if (!wrong.isEmpty())
                return wrong;
        }
        _values[channel] = c == '*' ? state.repeat() : state.take(number);
        return std::isfinite(_values[channel]) ? QString() : QStringLiteral("a number is out of range");
    }

    // A decimal number, or # and hexadecimal digits; a minus sign may stand apart from its number.
    QString readNumber(double& number) {
        const char* start = _at;
        bool negative = false;
        if (*_at == '-') {
            negative = true;
            ++_at;
            skipBlanks();
        }
        const char* ended = nullptr;
        if (_at != _end && *_at == '#') {
            std::uint64_t whole = 0;
            const auto scanned = std::from_chars(_at + 1, _end, whole, 16);
            if (scanned.ec == std::errc::result_out_of_range)
                return QStringLiteral("a number is out of range");
            ended = scanned.ec == std::errc() ? scanned.ptr : _at;
            number = double(whole);
        } else if (_at != _end && *_at != '-') {
            scanNumber(_at, _end, number, ended);
        }
        if (!ended || ended == _at) {
            _at = start;
            return unreadable();
        }
        if (!std::isfinite(number))
            return QStringLiteral("a number is out of range");
        _at = ended;
        if (negative)
            number = -number;
        return {};
    }

    QString unreadable() const {
        const char* last =
            std::find_if(_at, _end, [](char c) { return c == ',' || c == ' ' || c == '\n' || c == '\r'; });
        return QStringLiteral("\"%1\" is not a value")
            .arg(QString::fromUtf8(_at, std::min<qsizetype>(last - _at, 40)));
    }

    const char* _begin;
    const char* _at;
    const char* _end;
    std::span<const TraceChannel> _channels;
    std::vector<ChannelState> _states;
    std::vector<double> _values;
    std::size_t _regular = 0;
    qsizetype _points = 0;
};

}  // namespace

bool decodeTrace(QByteArrayView text, std::span<const TraceChannel> channels,
                 const std::function<void(std::span<const double>)>& point, Problem& problem) {
    return TraceDecoder(text, channels).run(point, problem);
}

}  // namespace dabcanvas
