// SPDX-License-Identifier: MIT
#pragma once

#include "Recording/InkmlDocument.h"

namespace dabcanvas {

// What a trace's references come to: how to read its numbers and how to paint it.
struct TraceStyle {
    std::shared_ptr<InkFormat> format;
    InkResolutions resolutions;
    std::shared_ptr<InkBrush> brush;
};

// Looks up what reaches a trace, the nearest first: its own references, those of its groups from the inside out, the
// context that was current where it stands. X and Y as decimals when none of them has a format. Every context and group
// is resolved once, when the styles are made, so that a trace costs the same however many there are.
class TraceStyles {
public:
    explicit TraceStyles(const InkDocument& document);

    // The message when a reference leads nowhere. The trace is one of the document's.
    QString find(const RawTrace& trace, TraceStyle& style) const;

private:
    // A style as far as it is known. A reference that leads nowhere settles its part, too.
    struct Found : TraceStyle {
        QString wrongFormat, wrongBrush;

        bool hasFormat() const { return format || !wrongFormat.isEmpty(); }
        bool hasBrush() const { return brush || !wrongBrush.isEmpty(); }
        // Takes what is still open.
        void fill(const Found& from);
    };

    template <typename Value>
    static Value lookUp(const QHash<QString, Value>& table, const QString& id, const char* attribute,
                        QString& wrong);
    int contextNamed(const QString& id, QString& wrong) const;
    Found ownOf(const InkContext& context, int& next) const;
    void resolveContexts();
    Found ofContext(int index) const;
    Found ofRefs(const InkRefs& refs) const;

    const InkDocument& _document;
    std::vector<Found> _contexts, _groups;
};

}  // namespace dabcanvas
