// SPDX-License-Identifier: MIT
#include "Recording/SvgReader.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <optional>

#include "Brushes/BrushProperties.h"
#include "Recording/InkmlFormat.h"
#include "Recording/Numbers.h"
#include "Recording/PropertyValue.h"
#include "Recording/SvgPath.h"

namespace dabcanvas {

namespace {

constexpr int kMostNested = 1000;

// What groups hand on.
struct SvgStyle {
    QTransform place;
    QString stroke, fill = QStringLiteral("black");
    double width = 1;
    bool isShown = true;
};

// A number with a unit or without, in pixels; none for a share of something.
std::optional<double> lengthOf(QStringView text) {
    const QByteArray written = text.trimmed().toLatin1();
    qsizetype digits = written.size();
    while (digits > 0 && !(written[digits - 1] >= '0' && written[digits - 1] <= '9') &&
           written[digits - 1] != '.')
        --digits;
    const auto number = numberFromText(QByteArrayView(written).first(digits));
    const QString unit = QString::fromLatin1(written.mid(digits));
    if (!number || unit.isEmpty() || unit == QLatin1String("px"))
        return number;
    const auto perUnit = pixelsPerUnit(unit);
    return perUnit ? std::optional(*number * *perUnit) : std::nullopt;
}

class SvgParser {
public:
    explicit SvgParser(const QByteArray& bytes) : _xml(bytes) {}

    Result<RecordedStrokes> parse() {
        _styles.push_back({});
        while (!_xml.atEnd() && _wrong.isEmpty()) {
            _xml.readNext();
            if (_xml.isStartElement())
                begin();
            else if (_xml.isEndElement() && _styles.size() > 1)
                _styles.pop_back();
        }
        const auto line = int(_xml.lineNumber());
        if (!_wrong.isEmpty())
            return Problem{line, QString(), _wrong};
        if (_xml.hasError())
            return Problem{line, QString(), _xml.errorString()};
        return std::move(_strokes);
    }

private:
    void begin() {
        const QString name = _xml.name().toString();
        static const QStringList kHidden{"defs", "symbol", "clipPath", "mask", "marker", "pattern"};
        if (_styles.size() > kMostNested)
            return wrong(QStringLiteral("elements are nested more than %1 deep").arg(kMostNested));
        SvgStyle style = _styles.back();
        style.isShown = style.isShown && !kHidden.contains(name);
        take(style);
        if (name == QLatin1String("svg") && _styles.size() == 1)
            takeView(style);
        _styles.push_back(style);
        QPainterPath path;
        if (style.isShown && _wrong.isEmpty() && shape(name, path))
            addStrokes(path, style);
    }

    QStringView attribute(const char* name) const { return _xml.attributes().value(QLatin1String(name)); }
    double number(const char* name) const { return lengthOf(attribute(name)).value_or(0); }
    void wrong(const QString& what) { _wrong = what; }

    void take(SvgStyle& style) {
        const auto property = [&](QStringView name, QStringView value) {
            if (name == QLatin1String("stroke"))
                style.stroke = value.toString();
            else if (name == QLatin1String("fill"))
                style.fill = value.toString();
            else if (name == QLatin1String("stroke-width"))
                style.width = lengthOf(value).value_or(style.width);
            else if (name == QLatin1String("display") && value == QLatin1String("none"))
                style.isShown = false;
        };
        for (const QXmlStreamAttribute& attribute : _xml.attributes())
            property(attribute.name(), attribute.value().trimmed());
        for (const QStringView part : attribute("style").split(QLatin1Char(';'))) {
            const auto colon = part.indexOf(QLatin1Char(':'));
            if (colon > 0)
                property(part.first(colon).trimmed(), part.sliced(colon + 1).trimmed());
        }
        QTransform own;
        if (!parseSvgTransform(attribute("transform").toLatin1(), own))
            wrong(QStringLiteral("\"%1\" is no transform").arg(attribute("transform").toString().left(40)));
        style.place = own * style.place;
    }

    // The drawing's size, and its view box put onto it.
    void takeView(SvgStyle& style) {
        double width = number("width"), height = number("height"), box[4] = {};
        int count = 0;
        for (const QStringView part : attribute("viewBox")
                                          .toString()
                                          .replace(QLatin1Char(','), QLatin1Char(' '))
                                          .split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (count < 4)
                box[count] = numberFromText(part.toLatin1()).value_or(0);
            ++count;
        }
        const bool hasBox = count == 4 && box[2] > 0 && box[3] > 0;
        if (hasBox && !(width > 0 && height > 0)) {
            width = box[2];
            height = box[3];
        }
        if (hasBox) {
            const double scale = std::min(width / box[2], height / box[3]);
            style.place =
                QTransform::fromTranslate(-box[0], -box[1]) * QTransform::fromScale(scale, scale) *
                QTransform::fromTranslate((width - box[2] * scale) / 2, (height - box[3] * scale) / 2) *
                style.place;
        }
        if (width > 0 && height > 0 && width <= kFarthest && height <= kFarthest) {
            const QSize size(int(std::ceil(width)), int(std::ceil(height)));
            if (const QString refusal = sizeRefusal(size.width(), size.height()); !refusal.isEmpty())
                return wrong(refusal);
            _strokes.size = size;
        }
    }

    bool shape(const QString& name, QPainterPath& path) {
        if (name == QLatin1String("path")) {
            parseSvgPath(attribute("d").toLatin1(), path);
        } else if (name == QLatin1String("line")) {
            path.moveTo(number("x1"), number("y1"));
            path.lineTo(number("x2"), number("y2"));
        } else if (name == QLatin1String("polyline") || name == QLatin1String("polygon")) {
            parseSvgPath("M" + attribute("points").toLatin1(), path);
            if (name == QLatin1String("polygon"))
                path.closeSubpath();
        } else if (name == QLatin1String("rect")) {
            path.addRect(number("x"), number("y"), number("width"), number("height"));
        } else if (name == QLatin1String("circle")) {
            path.addEllipse(QPointF(number("cx"), number("cy")), number("r"), number("r"));
        } else if (name == QLatin1String("ellipse")) {
            path.addEllipse(QPointF(number("cx"), number("cy")), number("rx"), number("ry"));
        }
        return path.elementCount() > 1;
    }

    void addStrokes(const QPainterPath& path, const SvgStyle& style) {
        for (const QPolygonF& line : path.toSubpathPolygons(style.place)) {
            RecordedStroke stroke;
            for (const QPointF& point : line) {
                if (!(std::abs(point.x()) <= kFarthest && std::abs(point.y()) <= kFarthest))
                    return wrong(QStringLiteral("the position is out of range: at most %1 either way")
                                     .arg(kFarthest, 0, 'f', 0));
                stroke.samples.push_back({point.x(), point.y(), 1, -1});
            }
            if (stroke.samples.size() < 2)
                continue;
            setBrush(stroke, style);
            _strokes.strokes.push_back(std::move(stroke));
        }
    }

    void setBrush(RecordedStroke& stroke, const SvgStyle& style) {
        const bool isStroked = !style.stroke.isEmpty() && style.stroke != QLatin1String("none");
        const QString color = isStroked ? style.stroke : style.fill;
        const auto known =
            colorFromText(color.size() == 4 && color.startsWith(QLatin1Char('#'))
                              ? QStringLiteral("#%1%1%2%2%3%3").arg(color[1]).arg(color[2]).arg(color[3])
                              : color);
        const auto line = int(_xml.lineNumber());
        if (known)
            stroke.settings.push_back({QStringLiteral("renderColor"), colorText(*known), line, {}});
        if (isStroked) {
            const BrushProperty& radius = brushProperty(BrushKey::radius);
            const double width = style.width * std::sqrt(std::abs(style.place.determinant()));
            stroke.settings.push_back({QStringLiteral("radius"),
                                       std::clamp(width, double(radius.low), double(radius.high)),
                                       line,
                                       {}});
        }
    }

    QXmlStreamReader _xml;
    std::vector<SvgStyle> _styles;
    RecordedStrokes _strokes;
    QString _wrong;
};

}  // namespace

Result<RecordedStrokes> readSvg(const QByteArray& bytes) {
    return SvgParser(bytes).parse();
}

}  // namespace dabcanvas
