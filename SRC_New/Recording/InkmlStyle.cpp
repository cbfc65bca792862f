// SPDX-License-Identifier: MIT
#include "Recording/InkmlStyle.h"

namespace dabcanvas {

namespace {

QString leadsNowhere(const char* attribute, const QString& id) {
    return QStringLiteral("%1=\"#%2\" names nothing in this file").arg(QLatin1String(attribute), id.left(60));
}

}  // namespace

void TraceStyles::Found::fill(const Found& from) {
    if (!hasFormat()) {
        // Of several devices the one counts that is nearest to the format.
        if (!from.resolutions.isEmpty())
            resolutions = from.resolutions;
        format = from.format;
        wrongFormat = from.wrongFormat;
    }
    if (!hasBrush()) {
        brush = from.brush;
        wrongBrush = from.wrongBrush;
    }
}

template <typename Value>
Value TraceStyles::lookUp(const QHash<QString, Value>& table, const QString& id, const char* attribute,
                          QString& wrong) {
    const auto found = table.constFind(id);
    if (found != table.constEnd())
        return *found;
    wrong = leadsNowhere(attribute, id);
    return {};
}

int TraceStyles::contextNamed(const QString& id, QString& wrong) const {
    // A context may be meant even where the file gives none: this is what ink without contexts is called.
    if (id == QLatin1String("DefaultContext") && !_document.contextIds.contains(id))
        return -1;
    const auto found = _document.contextIds.constFind(id);
    if (found != _document.contextIds.constEnd())
        return *found;
    wrong = leadsNowhere("contextRef", id);
    return -1;
}

// What a context says by itself, and which one fills in the rest.
TraceStyles::Found TraceStyles::ownOf(const InkContext& context, int& next) const {
    Found own;
    const auto source = context.sourceRef.isEmpty()
                            ? context.source
                            : lookUp(_document.sources, context.sourceRef, "inkSourceRef", own.wrongFormat);
    if (context.format)
        own.format = context.format;
    else if (!context.formatRef.isEmpty())
        own.format = lookUp(_document.formats, context.formatRef, "traceFormatRef", own.wrongFormat);
    else if (source)
        own.format = source->format;
    if (source)
        own.resolutions = source->resolutions;
    own.brush = context.brushRef.isEmpty()
                    ? context.brush
                    : lookUp(_document.brushes, context.brushRef, "brushRef", own.wrongBrush);
    next = context.previous;
    if (!context.base.isEmpty()) {
        QString wrong;
        next = contextNamed(context.base, wrong);
        Found missing;
        missing.wrongFormat = missing.wrongBrush = wrong;
        own.fill(missing);
    }
    return own;
}

// Follows every chain once, and fills in from its far end. Where a chain runs into itself, its contexts fill in each
// other, for which the way back is gone twice.
void TraceStyles::resolveContexts() {
    const std::size_t count = _document.contexts.size();
    std::vector<int> next(count);
    std::vector<bool> entered(count);
    _contexts.resize(count);
    for (std::size_t first = 0; first < count; ++first) {
        std::vector<std::size_t> chain;
        for (int at = int(first); at >= 0 && !entered[std::size_t(at)]; at = next[std::size_t(at)]) {
            const auto i = std::size_t(at);
            entered[i] = true;
            _contexts[i] = ownOf(_document.contexts[i], next[i]);
            chain.push_back(i);
        }
        for (int pass = 0; pass < 2; ++pass) {
            for (auto i = chain.rbegin(); i != chain.rend(); ++i) {
                if (next[*i] >= 0)
                    _contexts[*i].fill(_contexts[std::size_t(next[*i])]);
            }
        }
    }
}

TraceStyles::Found TraceStyles::ofContext(int index) const {
    return index < 0 ? Found() : _contexts[std::size_t(index)];
}

TraceStyles::Found TraceStyles::ofRefs(const InkRefs& refs) const {
    Found found;
    if (!refs.brush.isEmpty())
        found.brush = lookUp(_document.brushes, refs.brush, "brushRef", found.wrongBrush);
    if (!refs.context.isEmpty()) {
        QString wrong;
        Found context = ofContext(contextNamed(refs.context, wrong));
        if (!wrong.isEmpty())
            context.wrongFormat = context.wrongBrush = wrong;
        found.fill(context);
    }
    if (refs.parent >= 0)
        found.fill(_groups[std::size_t(refs.parent)]);
    return found;
}

TraceStyles::TraceStyles(const InkDocument& document) : _document(document) {
    resolveContexts();
    for (const InkRefs& group : document.groups)  // a group stands after the one around it
        _groups.push_back(ofRefs(group));
}

QString TraceStyles::find(const RawTrace& trace, TraceStyle& style) const {
    Found found = ofRefs(trace.refs);
    found.fill(ofContext(trace.context));
    if (!found.format)
        found.format = std::make_shared<InkFormat>(defaultInkFormat());
    style = found;
    return found.wrongFormat.isEmpty() ? found.wrongBrush : found.wrongFormat;
}

}  // namespace dabcanvas
