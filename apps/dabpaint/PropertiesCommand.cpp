// SPDX-License-Identifier: MIT
#include "PropertiesCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <map>
#include <string_view>

#include "Console.h"
#include "Recording/Numbers.h"
#include "Recording/PropertyValue.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr int kNameWidth = 26;

QJsonValue bound(float value) {
    // Through the shortest text: 0.01f is 0.01 for its reader, not 0.0099999998.
    return std::isfinite(value) ? QJsonValue(shortestText(value).toDouble()) : QJsonValue();
}

QJsonValue defaultJson(const BrushProperty& property) {
    const QString text = defaultText(property);
    switch (property.type()) {
        case BrushValueType::boolean:
            return text == QLatin1String("yes");
        case BrushValueType::integer:
            return text.toInt();
        case BrushValueType::real:
            return text.toDouble();
        case BrushValueType::control: {
            QJsonArray parts;
            for (const QString& part : text.split(QLatin1Char(',')))
                parts.append(part.toDouble());
            return parts;
        }
        case BrushValueType::color:
        case BrushValueType::text:
            return text;
        default:
            return {};
    }
}

// The slider's ends; null of what has none.
QJsonValue usefulJson(const BrushProperty& property) {
    const auto [low, high] = brushUsefulRange(property);
    return std::isfinite(low) && std::isfinite(high) ? QJsonArray{bound(low), bound(high)} : QJsonValue();
}

QJsonArray choicesJson(const BrushProperty& property) {
    QJsonArray list;
    for (const auto& [value, name] : brushChoices(property))
        list.append(QJsonObject{{QStringLiteral("value"), value}, {QStringLiteral("name"), name}});
    return list;
}

QJsonArray withJson(const BrushProperty& property) {
    QJsonArray list;
    for (const BrushKey key : property.with)
        list.append(QLatin1String(brushProperty(key).name));
    return list;
}

}  // namespace

QByteArray unitText(const BrushProperty& property) {
    const QByteArray unit = brushUnitName(property);
    return unit.isEmpty() || property.unit == BrushUnit::ratio ? QByteArray() : "; in " + unit;
}

QByteArray propertiesAsText() {
    // The table stands in the order of its keys; readers look for what belongs together.
    std::map<BrushGroup, QByteArray> groups;
    for (const BrushProperty& property : brushProperties()) {
        QByteArray& text = groups[property.group];
        const QString standard = defaultText(property);
        text += "  " + QByteArray(property.name).leftJustified(kNameWidth) + expectedValue(property).toUtf8();
        if (!standard.isEmpty())
            text += "; default " + standard.toUtf8();
        text += unitText(property);
        text += '\n' + QByteArray(kNameWidth + 2, ' ') + property.about + '\n';
    }
    QByteArray all;
    for (const auto& [group, text] : groups) {
        all += all.isEmpty() ? "" : "\n";
        all += QByteArray(brushGroupName(group)).toUpper() + '\n' + text;
    }
    return all;
}

QByteArray propertiesAsJson() {
    QJsonArray list;
    for (const BrushProperty& property : brushProperties()) {
        QJsonObject row;
        row.insert(QStringLiteral("name"), QLatin1String(property.name));
        row.insert(QStringLiteral("group"), QLatin1String(brushGroupName(property.group)));
        row.insert(QStringLiteral("type"), QLatin1String(brushValueTypeName(property.type())));
        row.insert(QStringLiteral("low"), bound(meantRange(property).low));
        row.insert(QStringLiteral("high"), bound(meantRange(property).high));
        row.insert(QStringLiteral("default"), defaultJson(property));
        const QLatin1String unit(brushUnitName(property));
        row.insert(QStringLiteral("unit"), unit.isEmpty() ? QJsonValue() : unit);
        row.insert(QStringLiteral("useful"), usefulJson(property));
        row.insert(QStringLiteral("choices"), choicesJson(property));
        row.insert(QStringLiteral("with"), withJson(property));
        row.insert(QStringLiteral("about"), QString::fromUtf8(property.about));
        list.append(row);
    }
    return QJsonDocument(list).toJson();
}

int runProperties(bool json) {
    const QByteArray text = json ? propertiesAsJson() : propertiesAsText();
    printOut(std::string_view(text.constData(), std::size_t(text.size())));
    return finishOut();
}

}  // namespace dabcanvas::dabpaint
