// SPDX-License-Identifier: MIT
#include "Recording/XoppReader.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

#include "Brushes/BrushProperties.h"
#include "Recording/Numbers.h"
#include "Recording/PropertyValue.h"

#ifdef DABCANVAS_HAVE_ZLIB
#include <zlib.h>
#endif

namespace dabcanvas {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72;

// Numbers between blanks; false for anything else.
bool readNumbers(const QByteArray& text, std::vector<double>& numbers) {
    for (const QByteArray& part : text.simplified().split(' ')) {
        if (part.isEmpty())
            continue;
        const auto number = numberFromText(part);
        if (!number)
            return false;
        numbers.push_back(*number);
    }
    return true;
}

class XoppParser {
public:
    explicit XoppParser(const QByteArray& bytes) : _xml(bytes) {}

    Result<RecordedStrokes> parse() {
        if (!_xml.readNextStartElement() || _xml.name() != QLatin1String("xournal"))
            wrong(QStringLiteral("the file is no Xournal++ notebook"));
        while (_wrong.isEmpty() && !_xml.atEnd()) {
            _xml.readNext();
            if (!_xml.isStartElement())
                continue;
            if (_xml.name() == QLatin1String("page"))
                beginPage();
            else if (_xml.name() == QLatin1String("background"))
                _background = attribute("color").toString();
            else if (_xml.name() == QLatin1String("stroke"))
                readStroke();
        }
        if (_wrong.isEmpty() && _xml.hasError())
            wrong(_xml.errorString());
        if (_wrong.isEmpty())
            layPages();
        if (!_wrong.isEmpty())
            return Problem{_line, QString(), _wrong};
        return std::move(_strokes);
    }

private:
    QStringView attribute(const char* name) const { return _xml.attributes().value(QLatin1String(name)); }
    void wrong(const QString& what) {
        _wrong = what;
        _line = int(_xml.lineNumber());
    }

    void beginPage() {
        const auto width = numberFromText(attribute("width").toLatin1()),
                   height = numberFromText(attribute("height").toLatin1());
        if (!width || !height || !(*width > 0 && *height > 0 && *width <= kFarthest && *height <= kFarthest))
            return wrong(QStringLiteral("the page has no width and height"));
        _page = _page.expandedTo(QSizeF(*width, *height) * kPixelsPerPoint);
        _firstOfPage.push_back(_strokes.strokes.size());
    }

    void readStroke() {
        std::vector<double> widths, places;
        const QString tool = attribute("tool").toString(), color = attribute("color").toString();
        const bool areWidths =
            readNumbers(attribute("width").toLatin1(), widths) && !widths.empty() && widths[0] > 0;
        const QByteArray text = _xml.readElementText(QXmlStreamReader::SkipChildElements).toLatin1();
        if (_xml.hasError())
            return;
        if (_firstOfPage.empty())
            return wrong(QStringLiteral("the stroke is on no page"));
        if (!areWidths)
            return wrong(QStringLiteral("the stroke has no width"));
        if (!readNumbers(text, places) || places.size() % 2 != 0)
            return wrong(QStringLiteral("the stroke's points are no pairs of numbers"));
        if (places.empty())
            return;
        RecordedStroke& stroke = _strokes.strokes.emplace_back();
        const auto widthAt = [&](std::size_t i) {
            return i < widths.size() && widths[i] > 0 ? widths[i] : widths[0];
        };
        double widest = 0;
        for (std::size_t i = 0; i < widths.size(); ++i)
            widest = std::max(widest, i == 0 && widths.size() > 1 ? 0 : widthAt(i));
        widest = std::max(widest, 1e-3);
        for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
            // The first width is the stroke's; a line from each point to the next has one of those that follow.
            const double width = widths.size() > 1 ? widthAt(std::min(i / 2 + 1, widths.size() - 1)) : widest;
            const double x = places[i] * kPixelsPerPoint, y = places[i + 1] * kPixelsPerPoint;
            if (!(std::abs(x) <= kFarthest && std::abs(y) <= kFarthest))
                return wrong(QStringLiteral("the position is out of range"));
            stroke.samples.push_back({x, y, float(std::min(width / widest, 1.0)), -1});
        }
        setBrush(stroke, widest * kPixelsPerPoint, widths.size() > 1, tool, color);
    }

    void setBrush(RecordedStroke& stroke, double width, bool varies, const QString& tool,
                  const QString& color) {
        const BrushProperty& radius = brushProperty(BrushKey::radius);
        const auto line = int(_xml.lineNumber());
        const auto set = [&](const char* name, const SettingValue& value) {
            stroke.settings.push_back({QString::fromLatin1(name), value, line, {}});
        };
        set("radius", std::clamp(width, double(radius.low), double(radius.high)));
        set("radiusControl", std::vector<double>{varies ? 1.0 : 0.0, 0, 0});
        set("minRadius", varies ? 0.0 : 1.0);
        set("startRadius", 0.0);
        set("endRadius", 0.0);
        set("opacity", tool == QLatin1String("highlighter") ? 0.5 : 1.0);
        if (const auto known = colorFromText(color))
            set("renderColor", QStringLiteral("%1").arg(QColor(known->rgb()).name()));
    }

    // In rows as wide as there are rows.
    void layPages() {
        if (_firstOfPage.empty())
            return wrong(QStringLiteral("the notebook has no page"));
        const auto pages = int(_firstOfPage.size());
        const auto across = int(std::ceil(std::sqrt(double(pages)))), down = (pages + across - 1) / across;
        const double width = std::ceil(_page.width()), height = std::ceil(_page.height());
        if (const QString refusal = sizeRefusal(qint64(width) * across, qint64(height) * down);
            !refusal.isEmpty())
            return wrong(refusal);
        _strokes.size = QSize(int(width) * across, int(height) * down);
        if (pages == 1 && colorFromText(_background))
            _strokes.background = _background;
        for (int page = 0; page < pages; ++page) {
            const auto at = std::size_t(page);
            const std::size_t end = page + 1 < pages ? _firstOfPage[at + 1] : _strokes.strokes.size();
            for (std::size_t i = _firstOfPage[at]; i < end; ++i)
                for (RecordedSample& sample : _strokes.strokes[i].samples) {
                    sample.x += width * (page % across);
                    sample.y += height * (page / across);
                }
        }
    }

    QXmlStreamReader _xml;
    RecordedStrokes _strokes;
    std::vector<std::size_t> _firstOfPage;  // strokes
    QSizeF _page;                           // the largest, in pixels
    QString _background, _wrong;
    int _line = 0;
};

}  // namespace

Result<RecordedStrokes> readXopp(const QByteArray& bytes) {
    return XoppParser(bytes).parse();
}

Result<QByteArray> unpackedGzip(const QByteArray& bytes, qint64 most) {
#ifdef DABCANVAS_HAVE_ZLIB
    z_stream stream{};
    if (inflateInit2(&stream, 16 + MAX_WBITS) != Z_OK)
        return Problem{0, {}, QStringLiteral("there is no memory to unpack it")};
    QByteArray out, block(1 << 16, Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData()));
    stream.avail_in = uInt(std::min<qsizetype>(bytes.size(), std::numeric_limits<int>::max()));
    int state = Z_OK;
    while (state == Z_OK && out.size() <= most) {
        stream.next_out = reinterpret_cast<Bytef*>(block.data());
        stream.avail_out = uInt(block.size());
        state = inflate(&stream, Z_NO_FLUSH);
        out.append(block.constData(), block.size() - qsizetype(stream.avail_out));
    }
    inflateEnd(&stream);
    if (out.size() > most)
        return Problem{0, {}, QStringLiteral("unpacked, it is too large")};
    if (state != Z_STREAM_END)
        return Problem{0, {}, QStringLiteral("it is packed by gzip, and damaged")};
    return out;
#else
    static_cast<void>(bytes);
    static_cast<void>(most);
    return Problem{
        0, {}, QStringLiteral("it is packed by gzip, which this build cannot unpack: gunzip it first")};
#endif
}

}  // namespace dabcanvas
