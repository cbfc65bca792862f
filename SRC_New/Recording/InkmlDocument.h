// SPDX-License-Identifier: MIT
// What an InkML file says, before any reference is looked up and any number read.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "Recording/InkmlFormat.h"
#include "Recording/Problem.h"

namespace dabcanvas {

struct InkSource {
    std::shared_ptr<InkFormat> format;
    InkResolutions resolutions;
};

struct InkBrush {
    std::optional<double> width;  // pixels
    QString color;
};

struct InkContext {
    QString base, formatRef, sourceRef, brushRef;
    std::shared_ptr<InkFormat> format;
    std::shared_ptr<InkSource> source;
    std::shared_ptr<InkBrush> brush;
    int previous =
        -1;  // the context that was current before this one, which fills in what this one leaves open
};

// References that a trace or a group makes.
struct InkRefs {
    QString context, brush;
    int parent = -1;  // the group around it
};

struct RawTrace {
    int line = 0;
    QByteArray text;
    QString id, priorRef;
    bool continued = false;  // goes on where an earlier trace ended
    bool penUp = false;
    InkRefs refs;
    int context = -1;  // what was current where it stands
};

// All an InkML file declares, and its traces still as text.
struct InkDocument {
    QHash<QString, std::shared_ptr<InkFormat>> formats;
    QHash<QString, std::shared_ptr<InkSource>> sources;
    QHash<QString, std::shared_ptr<InkBrush>> brushes;
    QHash<QString, int> contextIds;
    std::vector<InkContext> contexts;
    std::vector<InkRefs> groups;
    std::vector<RawTrace> traces;
};

// Collects everything from the XML. References may point forward, so none is looked up here. False, with the
// problem told, when the bytes are no InkML.
bool parseInkml(const QByteArray& bytes, InkDocument& document, Problem& problem);

}  // namespace dabcanvas
