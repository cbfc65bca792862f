// SPDX-License-Identifier: MIT
#include "InkmlStyle.h"

#include <utility>

namespace dabcanvas::dabpaint {

namespace {

class StyleFinder {
public:
    explicit StyleFinder(const InkDocument& document) : _document(document) {}

    QString find(const RawTrace& trace, TraceStyle& style) {
        _wrong.clear();
        _style = {};
        for (const InkRefs* refs = &trace.refs; refs && _wrong.isEmpty();
             refs = refs->parent < 0 ? nullptr : &_document.groups[std::size_t(refs->parent)]) {
            if (!refs->brush.isEmpty())
                takeBrush(lookUp(_document.brushes, refs->brush, "brushRef"));
            if (!refs->context.isEmpty())
                takeContext(contextNamed(refs->context));
        }
        takeContext(trace.context);
        if (!_style.format)
            _style.format = std::make_shared<InkFormat>(defaultInkFormat());
        style = std::move(_style);
        return _wrong;
    }

private:
    template <typename Value>
    Value lookUp(const QHash<QString, Value>& table, const QString& id, const char* attribute) {
        const auto found = table.constFind(id);
        if (found != table.constEnd())
            return *found;
        _wrong = QStringLiteral("%1=\"#%2\" names nothing in this file")
                     .arg(QLatin1String(attribute), id.left(60));
        return {};
    }

    int contextNamed(const QString& id) {
        // A context may be meant even where the file gives none: this is what ink without contexts is called.
        if (id == QLatin1String("DefaultContext") && !_document.contextIds.contains(id))
            return -1;
        const auto found = _document.contextIds.constFind(id);
        if (found != _document.contextIds.constEnd())
            return *found;
        _wrong = QStringLiteral("contextRef=\"#%1\" names nothing in this file").arg(id.left(60));
        return -1;
    }

    void takeBrush(const std::shared_ptr<InkBrush>& brush) {
        if (!_style.brush)
            _style.brush = brush;
    }

    // One context, those it is based on and those that were current before it. Every context is entered once
    // at the most, so a circle of references ends.
    void takeContext(int index) {
        std::size_t left = _document.contexts.size();
        while (index >= 0 && left-- > 0 && _wrong.isEmpty() && !(_style.format && _style.brush)) {
            const InkContext& context = _document.contexts[std::size_t(index)];
            takeFormat(context);
            if (!_style.brush)
                takeBrush(context.brushRef.isEmpty()
                              ? context.brush
                              : lookUp(_document.brushes, context.brushRef, "brushRef"));
            index = context.base.isEmpty() ? context.previous : contextNamed(context.base);
        }
    }

    void takeFormat(const InkContext& context) {
        if (_style.format)
            return;
        const auto source = context.sourceRef.isEmpty()
                                ? context.source
                                : lookUp(_document.sources, context.sourceRef, "inkSourceRef");
        if (context.format)
            _style.format = context.format;
        else if (!context.formatRef.isEmpty())
            _style.format = lookUp(_document.formats, context.formatRef, "traceFormatRef");
        else if (source)
            _style.format = source->format;
        if (source)
            _style.resolutions = source->resolutions;
    }

    const InkDocument& _document;
    TraceStyle _style;
    QString _wrong;
};

}  // namespace

QString findStyle(const InkDocument& document, const RawTrace& trace, TraceStyle& style) {
    return StyleFinder(document).find(trace, style);
}

}  // namespace dabcanvas::dabpaint
