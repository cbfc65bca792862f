// SPDX-License-Identifier: MIT
#include "Recording/SvgPath.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

constexpr double kPi = std::numbers::pi;

// Numbers as SVG parts them: by blanks, by a comma, or by nothing where a sign or a point begins the next.
class SvgNumbers {
public:
    explicit SvgNumbers(QByteArrayView text) : _at(text.data()), _end(text.data() + text.size()) {}

    bool atEnd() {
        skip(false);
        return _at == _end;
    }
    char peek() const { return *_at; }
    char take() { return *_at++; }
    bool number(double& value) {
        skip(true);
        if (_at != _end && *_at == '+')
            ++_at;
        const char* ended = _at;
        const bool isNumber = _at != _end && scanNumber(_at, _end, value, ended) && std::isfinite(value);
        if (isNumber)
            _at = ended;
        return isNumber;
    }
    // An arc's: 0 or 1, which the next number may follow at once.
    bool flag(bool& value) {
        skip(true);
        if (_at == _end || (*_at != '0' && *_at != '1'))
            return false;
        value = *_at++ == '1';
        return true;
    }
    void skip(bool comma) {
        while (_at != _end &&
               (*_at == ' ' || *_at == '\t' || *_at == '\n' || *_at == '\r' || (comma && *_at == ','))) {
            comma = comma && *_at != ',';
            ++_at;
        }
    }
    bool isNumber() const {
        return _at != _end && ((*_at >= '0' && *_at <= '9') || *_at == '-' || *_at == '+' || *_at == '.');
    }

private:
    const char* _at;
    const char* _end;
};

struct Arc {
    double rx = 0, ry = 0, turn = 0;
    bool isLarge = false, sweeps = false;
};

// From one point to another by the formulas of SVG's appendix on arcs; a curve for every quarter.
void arcTo(QPainterPath& path, const Arc& arc, QPointF to) {
    const QPointF from = path.currentPosition();
    double rx = std::abs(arc.rx), ry = std::abs(arc.ry);
    if (from == to)
        return;
    if (rx == 0 || ry == 0)
        return path.lineTo(to);
    const QTransform back = QTransform().rotateRadians(-arc.turn),
                     turn = QTransform().rotateRadians(arc.turn);
    const QPointF half = back.map((from - to) / 2);
    const double beyond = half.x() * half.x() / (rx * rx) + half.y() * half.y() / (ry * ry);
    if (beyond > 1) {
        rx *= std::sqrt(beyond);
        ry *= std::sqrt(beyond);
    }
    const double a = rx * rx * half.y() * half.y() + ry * ry * half.x() * half.x();
    const double root =
        std::sqrt(std::max(0.0, (rx * rx * ry * ry - a) / a)) * (arc.isLarge == arc.sweeps ? -1 : 1);
    const QPointF centre(root * rx * half.y() / ry, -root * ry * half.x() / rx);
    const auto angleOf = [&](QPointF point) { return std::atan2(point.y() / ry, point.x() / rx); };
    const double start = angleOf(half - centre);
    double sweep = angleOf(-half - centre) - start;
    if (arc.sweeps && sweep < 0)
        sweep += 2 * kPi;
    if (!arc.sweeps && sweep > 0)
        sweep -= 2 * kPi;
    const QTransform place =
        turn * QTransform::fromTranslate((from.x() + to.x()) / 2, (from.y() + to.y()) / 2);
    const int parts = std::clamp(int(std::ceil(std::abs(sweep) / (kPi / 2))), 1, 4);
    const double step = sweep / parts, reach = 4 / 3.0 * std::tan(step / 4);
    const auto at = [&](double angle, double along) {
        const QPointF on(rx * (std::cos(angle) - along * std::sin(angle)),
                         ry * (std::sin(angle) + along * std::cos(angle)));
        return place.map(on + centre);
    };
    for (int i = 0; i < parts; ++i) {
        const double angle = start + step * i;
        path.cubicTo(at(angle, reach), at(angle + step, -reach), i + 1 == parts ? to : at(angle + step, 0));
    }
}

class PathParser {
public:
    PathParser(QByteArrayView data, QPainterPath& path) : _numbers(data), _path(path) {}

    bool parse() {
        char command = 0;
        while (!_numbers.atEnd()) {
            if (!_numbers.isNumber())
                command = _numbers.take();
            else if (command == 0 || command == 'z' || command == 'Z')
                return false;
            if (_path.elementCount() == 0 && command != 'm' && command != 'M')
                return false;
            if (!draw(command))
                return false;
            _numbers.skip(true);
            if (command == 'm' || command == 'M')  // more points are lines
                command = command == 'm' ? 'l' : 'L';
        }
        return true;
    }

private:
    bool point(bool relative, QPointF& place) {
        double x = 0, y = 0;
        if (!_numbers.number(x) || !_numbers.number(y))
            return false;
        place = QPointF(x, y) + (relative ? _path.currentPosition() : QPointF());
        return true;
    }
    // The control point before, mirrored, where the command before had one of that kind.
    QPointF mirrored(char kind) const {
        const QPointF here = _path.currentPosition();
        return _before == kind ? here * 2 - _control : here;
    }

    bool draw(char command) {
        const bool relative = command >= 'a';
        const char kind = relative ? command : char(command - 'A' + 'a');
        QPointF one, two, to;
        switch (kind) {
            case 'm':
                if (!point(relative, to))
                    return false;
                _path.moveTo(to);
                break;
            case 'z':
                _path.closeSubpath();
                break;
            case 'l':
                if (!point(relative, to))
                    return false;
                _path.lineTo(to);
                break;
            case 'h':
            case 'v': {
                double value = 0;
                if (!_numbers.number(value))
                    return false;
                to = _path.currentPosition();
                double& side = kind == 'h' ? to.rx() : to.ry();
                side = relative ? side + value : value;
                _path.lineTo(to);
                break;
            }
            case 'c':
            case 's':
                one = mirrored('c');
                if ((kind == 'c' && !point(relative, one)) || !point(relative, two) || !point(relative, to))
                    return false;
                _path.cubicTo(one, two, to);
                _control = two;
                break;
            case 'q':
            case 't':
                one = mirrored('q');
                if ((kind == 'q' && !point(relative, one)) || !point(relative, to))
                    return false;
                _path.quadTo(one, to);
                _control = one;
                break;
            case 'a': {
                Arc arc;
                double degrees = 0;
                if (!_numbers.number(arc.rx) || !_numbers.number(arc.ry) || !_numbers.number(degrees) ||
                    !_numbers.flag(arc.isLarge) || !_numbers.flag(arc.sweeps) || !point(relative, to))
                    return false;
                arc.turn = degrees * kPi / 180;
                arcTo(_path, arc, to);
                break;
            }
            default:
                return false;
        }
        _before = kind == 's' ? 'c' : kind == 't' ? 'q' : kind;
        return true;
    }

    SvgNumbers _numbers;
    QPainterPath& _path;
    QPointF _control;
    char _before = 0;
};

// One function's transform of its arguments; false for another, or another number of them.
bool transformOf(QByteArrayView name, const std::vector<double>& n, QTransform& made) {
    const auto count = n.size();
    if (name == "matrix" && count == 6)
        made = QTransform(n[0], n[1], n[2], n[3], n[4], n[5]);
    else if (name == "translate" && (count == 1 || count == 2))
        made = QTransform::fromTranslate(n[0], count == 2 ? n[1] : 0);
    else if (name == "scale" && (count == 1 || count == 2))
        made = QTransform::fromScale(n[0], n[count - 1]);
    else if (name == "rotate" && count == 1)
        made = QTransform().rotate(n[0]);
    else if (name == "rotate" && count == 3)
        made = QTransform().translate(n[1], n[2]).rotate(n[0]).translate(-n[1], -n[2]);
    else if (name == "skewX" && count == 1)
        made = QTransform(1, 0, std::tan(n[0] * kPi / 180), 1, 0, 0);
    else if (name == "skewY" && count == 1)
        made = QTransform(1, std::tan(n[0] * kPi / 180), 0, 1, 0, 0);
    else
        return false;
    return true;
}

}  // namespace

bool parseSvgPath(QByteArrayView data, QPainterPath& path) {
    return PathParser(data, path).parse();
}

bool parseSvgTransform(QByteArrayView text, QTransform& transform) {
    const QByteArray whole = text.toByteArray();
    for (qsizetype at = 0; at < whole.size();) {
        const auto opened = whole.indexOf('(', at), closed = whole.indexOf(')', at);
        if (opened < 0 || closed < opened)
            return whole.mid(at).trimmed().isEmpty();
        const QByteArray name = whole.mid(at, opened - at).replace(',', ' ').trimmed();
        SvgNumbers numbers(QByteArrayView(whole).sliced(opened + 1, closed - opened - 1));
        std::vector<double> arguments;
        double number = 0;
        while (numbers.number(number))
            arguments.push_back(number);
        QTransform made;
        if (!numbers.atEnd() || !transformOf(name, arguments, made))
            return false;
        transform = made * transform;
        at = closed + 1;
    }
    return true;
}

}  // namespace dabcanvas
