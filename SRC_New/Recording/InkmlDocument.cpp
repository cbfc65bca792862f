// SPDX-License-Identifier: MIT
#include "Recording/InkmlDocument.h"

#include <QColor>
#include <QXmlStreamReader>
#include <algorithm>
#include <utility>

#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

QString targetOf(QStringView reference) {
    const QStringView trimmed = reference.trimmed();
    return (trimmed.startsWith(QLatin1Char('#')) ? trimmed.mid(1) : trimmed).toString();
}

// Walks the XML without recursion: nesting costs memory in proportion to the file, never stack.
class InkmlParser {
public:
    explicit InkmlParser(const QByteArray& bytes) : _xml(bytes) {}

    bool run(InkDocument& document, Problem& problem) {
        _document = &document;
        while (!_xml.atEnd() && _wrong.isEmpty()) {
            switch (_xml.readNext()) {
                case QXmlStreamReader::StartElement:
                    startElement();
                    break;
                case QXmlStreamReader::EndElement:
                    endElement();
                    break;
                case QXmlStreamReader::Characters:
                    if (_inTrace)
                        _document->traces.back().text += _xml.text().toUtf8();
                    break;
                default:
                    break;
            }
        }
        if (_wrong.isEmpty() && _xml.hasError())
            _wrong = _xml.errorString();
        if (_wrong.isEmpty())
            return true;
        problem = {int(_xml.lineNumber()), {}, _wrong};
        return false;
    }

private:
    QString attribute(const char* name) const {
        return _xml.attributes().value(QLatin1String(name)).toString();
    }
    QString reference(const char* name) const {
        return targetOf(_xml.attributes().value(QLatin1String(name)));
    }
    QString id() const {
        const QString id = attribute("xml:id");
        return id.isEmpty() ? attribute("id") : id;
    }
    std::optional<double> number(const char* name) {
        const QString text = attribute(name).trimmed();
        if (text.isEmpty())
            return std::nullopt;
        const QByteArray bytes = text.toUtf8();
        const auto value = numberFromText(bytes.startsWith('+') ? bytes.mid(1) : bytes);
        if (!value)
            _wrong = QStringLiteral("%1=\"%2\" is not a number").arg(QLatin1String(name), text.left(40));
        return value;
    }

    void startElement() {
        const QStringView name = _xml.name();
        if (!_root) {
            _root = true;
            if (name != QLatin1String("ink"))
                _wrong = QStringLiteral("not InkML: the outermost element is <%1>, not <ink>").arg(name);
            return;
        }
        const auto is = [name](const char* known) { return name == QLatin1String(known); };
        if (_inTrace)
            _wrong = QStringLiteral("<%1> inside a trace").arg(name);
        else if (is("definitions"))
            ++_definitions;
        else if (is("context"))
            startContext();
        else if (is("inkSource"))
            startSource();
        else if (is("traceFormat"))
            startFormat();
        else if (is("channel") && _format)
            startChannel();
        else if (is("channelProperty") && _source)
            channelProperty();
        else if (is("brush"))
            startBrush();
        else if (is("brushProperty") && _brush)
            brushProperty();
        else if (is("traceGroup"))
            startGroup();
        else if (is("trace") && _definitions == 0)
            startTrace();
        else if (is("intermittentChannels"))
            _intermittent = true;
        else if (!is("regularChannels") && !is("channelProperties"))
            _xml.skipCurrentElement();
    }

    void endElement() {
        const QStringView name = _xml.name();
        const auto is = [name](const char* known) { return name == QLatin1String(known); };
        if (is("definitions"))
            --_definitions;
        else if (is("context"))
            endContext();
        else if (is("inkSource"))
            endSource();
        else if (is("traceFormat"))
            endFormat();
        else if (is("brush"))
            endBrush();
        else if (is("traceGroup"))
            _group = _document->groups[std::size_t(_group)].parent;
        else if (is("trace"))
            _inTrace = false;
        else if (is("intermittentChannels"))
            _intermittent = false;
    }

    // Elements that may not stand inside one of their own kind, so that one place for each is enough.
    bool refuseNested(bool open) {
        if (open)
            _wrong = QStringLiteral("<%1> inside another").arg(_xml.name());
        return open;
    }

    void startContext() {
        if (refuseNested(_context != nullptr))
            return;
        _context = std::make_unique<InkContext>();
        _contextId = id();
        _context->base = reference("contextRef");
        _context->formatRef = reference("traceFormatRef");
        _context->sourceRef = reference("inkSourceRef");
        _context->brushRef = reference("brushRef");
    }
    void endContext() {
        const auto index = int(_document->contexts.size());
        if (!_contextId.isEmpty())
            _document->contextIds.insert(_contextId, index);
        if (_definitions == 0)
            _context->previous = std::exchange(_current, index);
        _document->contexts.push_back(std::move(*_context));
        _context.reset();
    }
    // What stands outside a context but takes effect from there on.
    InkContext& newCurrent() {
        InkContext context;
        context.previous = std::exchange(_current, int(_document->contexts.size()));
        return _document->contexts.emplace_back(std::move(context));
    }

    void startSource() {
        if (refuseNested(_source != nullptr))
            return;
        _source = std::make_shared<InkSource>();
        _sourceId = id();
    }
    void endSource() {
        if (!_sourceId.isEmpty())
            _document->sources.insert(_sourceId, _source);
        if (_context)
            _context->source = _source;
        else if (_definitions == 0)
            newCurrent().source = _source;
        _source.reset();
    }

    void startFormat() {
        if (refuseNested(_format != nullptr))
            return;
        _format = std::make_shared<InkFormat>();
        _formatId = id();
        _formatHref = reference("href");
    }
    void endFormat() {
        std::stable_partition(_format->channels.begin(), _format->channels.end(),
                              [](const InkChannel& channel) { return !channel.intermittent; });
        if (!_formatId.isEmpty())
            _document->formats.insert(_formatId, _format);
        if (!_formatHref.isEmpty() && _format->channels.empty()) {
            if (_context)
                _context->formatRef = _formatHref;
        } else if (_source) {
            _source->format = _format;
        } else if (_context) {
            _context->format = _format;
        } else if (_definitions == 0) {
            newCurrent().format = _format;
        }
        _format.reset();
    }

    void startChannel() {
        InkChannel channel;
        channel.name = attribute("name");
        channel.units = attribute("units").trimmed();
        channel.low = number("min");
        channel.high = number("max");
        channel.boolean = attribute("type") == QLatin1String("boolean");
        channel.intermittent = _intermittent;
        channel.backwards = attribute("orientation") == QLatin1String("-ve");
        _format->channels.push_back(std::move(channel));
    }

    void channelProperty() {
        if (attribute("name") != QLatin1String("resolution"))
            return;
        const auto value = number("value");
        QString unit = attribute("units").trimmed();
        if (!value || !unit.startsWith(QLatin1String("1/")))
            return;
        _source->resolutions.insert(attribute("channel"), {*value, unit.mid(2)});
    }

    void startBrush() {
        if (refuseNested(_brush != nullptr))
            return;
        _brush = std::make_shared<InkBrush>();
        _brushId = id();
    }
    void brushProperty() {
        const QString name = attribute("name");
        if (name == QLatin1String("color")) {
            const QColor color(attribute("value").trimmed());
            if (color.isValid())
                _brush->color = color.name();
        } else if (name == QLatin1String("width")) {
            if (const auto width = number("value"))
                _brush->width = *width * pixelsPerUnit(attribute("units").trimmed()).value_or(1);
        }
    }
    void endBrush() {
        if (!_brushId.isEmpty())
            _document->brushes.insert(_brushId, _brush);
        if (_context)
            _context->brush = _brush;
        else if (_definitions == 0)
            newCurrent().brush = _brush;
        _brush.reset();
    }

    void startGroup() {
        _document->groups.push_back({reference("contextRef"), reference("brushRef"), _group});
        _group = int(_document->groups.size()) - 1;
    }

    void startTrace() {
        RawTrace trace;
        trace.line = int(_xml.lineNumber());
        trace.id = id();
        trace.priorRef = reference("priorRef");
        const QString continuation = attribute("continuation");
        trace.continued = continuation == QLatin1String("middle") || continuation == QLatin1String("end");
        trace.penUp = attribute("type") == QLatin1String("penUp");
        trace.refs = {reference("contextRef"), reference("brushRef"), _group};
        trace.context = _current;
        _document->traces.push_back(std::move(trace));
        _inTrace = true;
    }

    QXmlStreamReader _xml;
    InkDocument* _document = nullptr;
    QString _wrong;
    bool _root = false;
    bool _inTrace = false;
    bool _intermittent = false;
    int _definitions = 0;
    int _current = -1;
    int _group = -1;
    std::unique_ptr<InkContext> _context;
    std::shared_ptr<InkSource> _source;
    std::shared_ptr<InkFormat> _format;
    std::shared_ptr<InkBrush> _brush;
    QString _contextId, _sourceId, _formatId, _formatHref, _brushId;
};

}  // namespace

bool parseInkml(const QByteArray& bytes, InkDocument& document, Problem& problem) {
    return InkmlParser(bytes).run(document, problem);
}

}  // namespace dabcanvas
