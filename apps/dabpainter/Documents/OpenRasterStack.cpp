// SPDX-License-Identifier: MIT
#include "Documents/OpenRasterStack.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr std::size_t kMostLayers = 256;
constexpr int kFarthest = 1 << 20;  // pixels
constexpr std::size_t kDeepest = 64;
constexpr qsizetype kLongestName = 256;

// What is ours alone: where it contradicts what all programs know, another one has changed that.
const auto kSpace = QStringLiteral("urn:dabcanvas:openraster");

// OpenRaster's name for each blend mode, where others look best by it; and ours.
struct Operation {
    std::uint32_t blendType;
    const char *theirs, *ours;
};
constexpr Operation kOperations[] = {
    {ESBlendTypeNormal, "svg:src-over", "normal"},   {ESBlendTypeMultiply, "svg:multiply", "multiply"},
    {ESBlendTypeTarnish, "svg:darken", "darken"},    {ESBlendTypeBrightness, "svg:lighten", "lighten"},
    {ESBlendTypeErase, "svg:dst-out", "erase"},      {ESBlendTypeBehind, "svg:dst-over", "behind"},
    {ESBlendTypeReplace, "svg:src-over", "replace"}, {ESBlendTypeReset, "svg:src-over", "reset"},
};

const Operation& operationOf(std::uint32_t blendType) {
    const auto* found =
        std::find_if(std::begin(kOperations), std::end(kOperations),
                     [&](const Operation& operation) { return operation.blendType == blendType; });
    return found == std::end(kOperations) ? kOperations[0] : *found;
}

const char* wordOf(bool is) {
    return is ? "true" : "false";
}

bool isTrue(const QString& word) {
    return word == QLatin1String("true") || word == QLatin1String("1");
}

// Whether a name stays in the archive, as no honest one leads out of it.
bool isWithin(const QString& name) {
    return !name.startsWith(QLatin1Char('/')) && !name.contains(QLatin1Char('\\')) &&
           !name.contains(QLatin1Char(':')) && !name.split(QLatin1Char('/')).contains(QLatin1String(".."));
}

// ---- Reading

class StackReader {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::StackReader)

public:
    explicit StackReader(const QByteArray& xml) : _xml(xml) {}
    RasterStack read();

private:
    // What the layers of a group take from it.
    struct Group {
        float opacity = 1;
        bool isVisible = true;
        QPoint at;
    };
    void readImage();
    void beginGroup();
    void readLayer();
    void skipUnknown();
    Group placed();
    std::uint32_t blendType();
    QString own(const char* name) const;
    void warn(const QString& what);
    void fail(const QString& what);

    QXmlStreamReader _xml;
    QXmlStreamAttributes _now;
    std::vector<Group> _groups;
    RasterStack _stack;
};

void StackReader::warn(const QString& what) {
    if (_stack.warning.isEmpty())
        _stack.warning = what;
}

void StackReader::fail(const QString& what) {
    if (_stack.fault.isEmpty())
        _stack.fault = what;
}

QString StackReader::own(const char* name) const {
    return _now.value(kSpace, QLatin1String(name)).toString();
}

void StackReader::readImage() {
    _stack.size = QSize(_now.value(QLatin1String("w")).toInt(), _now.value(QLatin1String("h")).toInt());
    const QString paper = own("paper");
    _stack.paper = paper.isEmpty() ? QColor() : QColor(paper);
}

std::uint32_t StackReader::blendType() {
    const QString theirs = _now.value(QLatin1String("composite-op")).toString(), ours = own("blend");
    const Operation* best = theirs.isEmpty() ? &kOperations[0] : nullptr;
    for (const Operation& operation : kOperations) {
        if (theirs == QLatin1String(operation.theirs) && (!best || ours == QLatin1String(operation.ours)))
            best = &operation;
    }
    if (!best)
        warn(tr("Some layers have blend modes that are not known here; they are shown as normal."));
    return best ? best->blendType : ESBlendTypeNormal;
}

StackReader::Group StackReader::placed() {
    const Group below = _groups.empty() ? Group() : _groups.back();
    Group group;
    bool isNumber = true;
    const auto opacity = _now.value(QLatin1String("opacity"));
    group.opacity = opacity.isEmpty() ? 1 : opacity.toFloat(&isNumber);
    if (!isNumber || !std::isfinite(group.opacity))
        group.opacity = 1;
    group.opacity = std::clamp(group.opacity, 0.0f, 1.0f) * below.opacity;
    group.isVisible = below.isVisible && _now.value(QLatin1String("visibility")) != QLatin1String("hidden");
    group.at =
        below.at + QPoint(_now.value(QLatin1String("x")).toInt(), _now.value(QLatin1String("y")).toInt());
    const QPoint within(std::clamp(group.at.x(), -kFarthest, kFarthest),
                        std::clamp(group.at.y(), -kFarthest, kFarthest));
    if (within != group.at)
        fail(tr("a layer lies too far from the picture"));
    group.at = within;
    return group;
}

void StackReader::beginGroup() {
    const Group group = placed();
    const bool isNested = !_groups.empty();
    if (isNested && (blendType() != ESBlendTypeNormal || group.opacity != _groups.back().opacity))
        warn(tr("Groups of layers have come apart, and may look another way."));
    if (_groups.size() >= kDeepest)
        return fail(tr("its groups lie too deep in each other"));
    _groups.push_back(group);
}

void StackReader::readLayer() {
    const Group here = placed();
    StackedLayer layer;
    layer.source = _now.value(QLatin1String("src")).toString();
    layer.settings = {.name = _now.value(QLatin1String("name")).left(kLongestName).toString(),
                      .opacity = here.opacity,
                      .blendType = blendType(),
                      .isVisible = here.isVisible,
                      .locksAlpha = isTrue(own("locks-alpha"))};
    if (!isWithin(layer.source))
        fail(tr("the picture of a layer lies outside of the archive"));
    layer.at = here.at;
    layer.isActive = isTrue(_now.value(QLatin1String("selected")).toString());
    if (_stack.layers.size() >= kMostLayers)
        return fail(tr("it has more than %1 layers").arg(qulonglong{kMostLayers}));
    _stack.layers.push_back(layer);
}

void StackReader::skipUnknown() {
    warn(tr("Some of its contents are no layers of pixels, and are left out."));
    _xml.skipCurrentElement();
}

RasterStack StackReader::read() {
    while (_stack.fault.isEmpty() && !_xml.atEnd()) {
        const auto token = _xml.readNext();
        const auto name = _xml.name();
        if (token == QXmlStreamReader::EndElement && name == QLatin1String("stack") && !_groups.empty())
            _groups.pop_back();
        if (token != QXmlStreamReader::StartElement)
            continue;
        _now = _xml.attributes();
        if (name == QLatin1String("image"))
            readImage();
        else if (name == QLatin1String("stack"))
            beginGroup();
        else if (name == QLatin1String("layer"))
            readLayer();
        else
            skipUnknown();
    }
    if (_xml.hasError())
        fail(tr("its list of layers is damaged (%1)").arg(_xml.errorString()));
    else if (_stack.layers.empty())
        fail(tr("it has no layers"));
    std::reverse(_stack.layers.begin(), _stack.layers.end());
    return std::move(_stack);
}

}  // namespace

RasterStack readStack(const QByteArray& xml) {
    return StackReader(xml).read();
}

// ---- Writing

QByteArray writeStack(const RasterStack& stack) {
    QByteArray text;
    QXmlStreamWriter xml(&text);
    const auto put = [&](const char* name, const QString& value) {
        xml.writeAttribute(QLatin1String(name), value);
    };
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeNamespace(kSpace, QStringLiteral("dabcanvas"));
    xml.writeStartElement(QStringLiteral("image"));
    put("version", QStringLiteral("0.0.3"));
    put("w", QString::number(stack.size.width()));
    put("h", QString::number(stack.size.height()));
    if (stack.paper.isValid())
        xml.writeAttribute(kSpace, QStringLiteral("paper"), stack.paper.name(QColor::HexArgb));
    xml.writeStartElement(QStringLiteral("stack"));
    for (auto layer = stack.layers.rbegin(); layer != stack.layers.rend(); ++layer) {
        const Operation& operation = operationOf(layer->settings.blendType);
        xml.writeEmptyElement(QStringLiteral("layer"));
        put("name", layer->settings.name);
        put("src", layer->source);
        put("x", QString::number(layer->at.x()));
        put("y", QString::number(layer->at.y()));
        put("opacity", QString::number(layer->settings.opacity, 'g', 9));
        put("visibility", QLatin1String(layer->settings.isVisible ? "visible" : "hidden"));
        put("composite-op", QLatin1String(operation.theirs));
        if (layer->isActive)
            put("selected", QLatin1String(wordOf(true)));
        xml.writeAttribute(kSpace, QStringLiteral("blend"), QLatin1String(operation.ours));
        xml.writeAttribute(kSpace, QStringLiteral("locks-alpha"),
                           QLatin1String(wordOf(layer->settings.locksAlpha)));
    }
    xml.writeEndDocument();
    return text;
}

}  // namespace dabcanvas::dabpainter
