// SPDX-License-Identifier: MIT
#include "PresetText.h"

#include <QBuffer>
#include <QImageReader>
#include <QJsonArray>
#include <cmath>

#include "Brushes/BrushProperties.h"
#include "Preset/ParamNumbers.h"
#include "Preset/PresetInfo.h"
#include "Recording/Numbers.h"
#include "Recording/PropertyValue.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr int kNameWidth = 30;
constexpr int kMostText = 60;   // characters of a text in a listing
constexpr int kMostInfo = 400;  // of what a preset says of itself

constexpr struct {
    int code;
    const char* name;
} kTypes[] = {{kXBFBool, "boolean"},  {kXBFInt, "integer"},  {kXBFFloat, "float"},
              {kXBFDouble, "double"}, {kXBFColor, "colour"}, {kXBFCharacter, "character"},
              {kXBFText, "text"},     {kXBFData, "data"}};

// What is understood besides properties: a blend mode by its program, programs that nobody runs, and what presets of
// version 100 have in the place of controls.
constexpr struct {
    std::uint32_t id;
    const char* name;
} kOthers[] = {{0x9001, "line vertex shader"},
               {0x9002, "line fragment shader"},
               {0x9003, "second line vertex shader"},
               {0x9004, "second line fragment shader"},
               {0x9006, "blend shader"},
               {0x3001, "size dynamics"},
               {0x3003, "radius mode"},
               {0x300E, "radian mode"},
               {0x3012, "roundness mode"},
               {0x4001, "distribution dynamics"},
               {0x4004, "distribution mode"},
               {0x4008, "distributionCount mode"},
               {0x5001, "color dynamics"},
               {0x5003, "color mode"},
               {0x6001, "flow dynamics"},
               {0x6007, "flow mode"},
               {0x8001, "texture dynamics"},
               {0x8005, "texture mode"}};

// Empty for an id that means nothing.
QString otherName(std::uint32_t id) {
    for (const auto& row : kOthers) {
        if (row.id == id)
            return QLatin1String(row.name);
    }
    return {};
}

QString typeName(int code) {
    for (const auto& row : kTypes) {
        if (row.code == code)
            return QLatin1String(row.name);
    }
    return QStringLiteral("type %1").arg(code);
}

// A record, with the property that takes its value.
struct Record {
    explicit Record(const BrushParam& param)
        : id(std::uint32_t(BrushRecords::key(param))),
          type(BrushRecords::type(param)),
          value(BrushRecords::paramValue(param)),
          property(brushPropertyOfPresetId(id, &part)) {}

    QString propertyName() const { return property ? QLatin1String(property->name) : QString(); }
    QString partName() const {
        const char* const names[] = {"speed", "pressure", "altitude"};
        return part >= 0 && part < 3 ? QLatin1String(names[part]) : QString();
    }
    // Presets store some switches as numbers.
    bool isSwitch() const {
        return type == kXBFBool || (property && property->type() == BrushValueType::boolean);
    }

    std::uint32_t id;
    int type;
    QVariant value;
    int part = -1;
    const BrushProperty* property;
};

QSize imageSize(const QByteArray& data) {
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).size();
}

QString dataText(const QByteArray& data) {
    if (data.isEmpty())
        return QStringLiteral("none");
    const QSize size = imageSize(data);
    const QString bytes = QStringLiteral("%1 bytes").arg(data.size());
    return size.isEmpty() ? bytes
                          : QStringLiteral("%1x%2, %3").arg(size.width()).arg(size.height()).arg(bytes);
}

QString quoted(const QString& text, int most = kMostText) {
    const auto points = text.toUcs4();
    QString shown;
    for (const auto point : points.mid(0, most)) {
        const char32_t c = QChar::isPrint(point) ? point : U' ';  // one line, whatever it holds
        shown += QString::fromUcs4(&c, 1);
    }
    shown = QLatin1Char('"') + shown + QLatin1Char('"');
    return points.size() <= most ? shown : shown + QStringLiteral("... (%1 characters)").arg(points.size());
}

QString valueText(const Record& record) {
    if (record.isSwitch())
        return booleanOf(record.value) ? QStringLiteral("yes") : QStringLiteral("no");
    switch (record.type) {
        case kXBFInt:
            return QString::number(record.value.toInt());
        case kXBFFloat:
            return shortestText(record.value.toFloat());
        case kXBFDouble:
            return QString::number(record.value.toDouble(), 'g', QLocale::FloatingPointShortest);
        case kXBFColor:
            return colorText(record.value.value<ESColor>().toQColor());
        case kXBFCharacter:
        case kXBFText:
            return quoted(record.value.toString());
        case kXBFData:
            return dataText(record.value.toByteArray());
        default:
            return QStringLiteral("no value");
    }
}

QJsonValue numberJson(double value) {
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

QJsonValue valueJson(const Record& record) {
    if (record.isSwitch())
        return booleanOf(record.value);
    switch (record.type) {
        case kXBFInt:
            return record.value.toInt();
        case kXBFFloat:
            return numberJson(shortestText(record.value.toFloat()).toDouble());
        case kXBFDouble:
            return numberJson(record.value.toDouble());
        case kXBFColor:
            return valueText(record);
        case kXBFCharacter:
        case kXBFText:
            return record.value.toString();
        case kXBFData: {
            const QByteArray data = record.value.toByteArray();
            QJsonObject image{{QStringLiteral("bytes"), data.size()}};
            if (const QSize size = imageSize(data); !size.isEmpty()) {
                image.insert(QStringLiteral("width"), size.width());
                image.insert(QStringLiteral("height"), size.height());
            }
            return image;
        }
        default:
            return {};
    }
}

QString recordName(const Record& record) {
    if (!record.property) {
        const QString other = otherName(record.id);
        return other.isEmpty() ? QStringLiteral("unknown id 0x%1").arg(record.id, 4, 16, QLatin1Char('0'))
                               : other;
    }
    const QString part = record.partName();
    return part.isEmpty() ? record.propertyName() : record.propertyName() + QStringLiteral(", ") + part;
}

// What a preset says of itself.
constexpr std::pair<const char*, QString (*)(const PresetInfo&)> kInfo[] = {
    {"tags", [](const PresetInfo& info) { return info.tags.join(QStringLiteral(", ")); }},
    {"about", [](const PresetInfo& info) { return info.about; }},
    {"author", [](const PresetInfo& info) { return info.author; }},
    {"licence", [](const PresetInfo& info) { return info.licence; }}};

QString infoAsText(const BrushParams& params) {
    const PresetInfo info = infoOfParams(params);
    QString text;
    for (const auto& [name, value] : kInfo) {
        if (const QString said = value(info); !said.isEmpty())
            text += QStringLiteral("  ") + QString::fromLatin1(name).leftJustified(kNameWidth) +
                    quoted(said, kMostInfo) + QLatin1Char('\n');
    }
    return text;
}

}  // namespace

QByteArray presetAsText(const QString& file, const BrushFileContents& contents) {
    QString text;
    if (contents.brushes.isEmpty())
        text = QStringLiteral("%1: no brush, version %2\n").arg(file).arg(contents.version);
    for (const QVariantMap& brush : contents.brushes) {
        text += QStringLiteral("%1: %2, version %3\n")
                    .arg(file, quoted(BrushRecords::brushName(brush)))
                    .arg(contents.version);
        text += infoAsText(BrushRecords::brushParams(brush));
        for (const BrushParam& param : BrushRecords::brushParams(brush)) {
            const Record record(param);
            if (isPresetInfo(record.id))
                continue;
            text += QStringLiteral("  ") + recordName(record).leftJustified(kNameWidth) + valueText(record);
            if (!record.property && otherName(record.id).isEmpty())
                text += QStringLiteral(" (%1, %2)")
                            .arg(typeName(record.type), quoted(BrushRecords::method(param)));
            text += QLatin1Char('\n');
        }
    }
    return text.toUtf8();
}

QJsonObject presetAsJson(const QString& file, const BrushFileContents& contents) {
    QJsonArray brushes;
    for (const QVariantMap& brush : contents.brushes) {
        QJsonArray records;
        for (const BrushParam& param : BrushRecords::brushParams(brush)) {
            const Record record(param);
            if (isPresetInfo(record.id))
                continue;
            const auto orNull = [](const QString& text) { return text.isEmpty() ? QJsonValue() : text; };
            records.append(QJsonObject{{QStringLiteral("id"), qint64(record.id)},
                                       {QStringLiteral("property"), orNull(record.propertyName())},
                                       {QStringLiteral("part"), orNull(record.partName())},
                                       {QStringLiteral("method"), BrushRecords::method(param)},
                                       {QStringLiteral("type"), typeName(record.type)},
                                       {QStringLiteral("value"), valueJson(record)}});
        }
        QJsonObject shown{{QStringLiteral("name"), BrushRecords::brushName(brush)},
                          {QStringLiteral("records"), records}};
        const PresetInfo info = infoOfParams(BrushRecords::brushParams(brush));
        for (const auto& [name, value] : kInfo)
            shown.insert(QLatin1String(name), value(info));
        brushes.append(shown);
    }
    return {{QStringLiteral("file"), file},
            {QStringLiteral("problem"), contents.problem.isEmpty() ? QJsonValue() : contents.problem},
            {QStringLiteral("version"), contents.version},
            {QStringLiteral("brushes"), brushes}};
}

}  // namespace dabcanvas::dabpaint
