// SPDX-License-Identifier: MIT
#include "Recording/PropertyValue.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "Recording/CloseNames.h"
#include "Recording/Numbers.h"

namespace dabcanvas {

namespace {

Problem expecting(const BrushProperty& property) {
    return {0, {}, QStringLiteral("expected %1").arg(expectedValue(property))};
}

QString rangeText(const BrushProperty& property) {
    const auto [low, high] = meantRange(property);
    if (std::isfinite(low) && std::isfinite(high))
        return QStringLiteral(" from %1 to %2").arg(shortestText(low), shortestText(high));
    if (std::isfinite(low))
        return QStringLiteral(" of at least %1").arg(shortestText(low));
    if (std::isfinite(high))
        return QStringLiteral(" of at most %1").arg(shortestText(high));
    return {};
}

// ": 0 images, 1 soft disc"
QString choicesText(const BrushProperty& property) {
    QString text;
    for (const auto& [value, name] : brushChoices(property))
        text += QStringLiteral("%1 %2 %3")
                    .arg(text.isEmpty() ? QLatin1String(":") : QLatin1String(","))
                    .arg(value)
                    .arg(name);
    return text;
}

Result<QVariant> fromBoolean(const BrushProperty& property, const SettingValue& value) {
    if (const auto* boolean = std::get_if<bool>(&value))
        return QVariant(*boolean);
    if (const auto* number = std::get_if<double>(&value); number && (*number == 0 || *number == 1))
        return QVariant(*number == 1);
    return expecting(property);
}

Result<QVariant> fromNumber(const BrushProperty& property, const SettingValue& value) {
    const auto* written = std::get_if<double>(&value);
    if (!written || !std::isfinite(float(*written)))
        return expecting(property);
    const double number = *written;
    const BrushRange range = meantRange(property);
    if (float(number) < range.low || float(number) > range.high)
        return expecting(property);
    if (property.type() == BrushValueType::real)
        return QVariant(float(number));
    if (number != std::floor(number) || std::abs(number) > std::numeric_limits<std::int32_t>::max())
        return expecting(property);
    return QVariant(std::int32_t(number));
}

Result<QVariant> fromControl(const BrushProperty& property, const SettingValue& value) {
    const auto* numbers = std::get_if<std::vector<double>>(&value);
    if (!numbers || numbers->size() != 3)
        return expecting(property);
    for (const double number : *numbers) {
        if (!std::isfinite(float(number)))
            return expecting(property);
    }
    const auto at = [numbers](std::size_t i) { return float((*numbers)[i]); };
    return QVariant::fromValue(LPControlParams{at(0), at(1), at(2)});
}

Result<QVariant> fromColor(const BrushProperty& property, const SettingValue& value) {
    const auto* text = std::get_if<QString>(&value);
    const auto color = text ? colorFromText(*text) : std::nullopt;
    if (!color)
        return expecting(property);
    return QVariant::fromValue(ESColor(*color));
}

Result<QImage> readImage(const QString& folder, const QString& path) {
    const QFileInfo info(QDir(folder).filePath(path));
    // A pipe or a device may never end.
    if (info.exists() && !info.isFile())
        return Problem{0, {}, QStringLiteral("cannot read the image %1: it is not a plain file").arg(path)};
    QImageReader reader(info.filePath());
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull())
        return Problem{0, {}, QStringLiteral("cannot read the image %1: %2").arg(path, reader.errorString())};
    return image;
}

Result<QVariant> fromImage(const BrushProperty& property, const SettingValue& value, const QString& folder) {
    const auto* path = std::get_if<QString>(&value);
    if (!path || path->isEmpty())
        return expecting(property);
    const auto image = readImage(folder, *path);
    if (!image)
        return image.problem();
    return QVariant::fromValue(*image);
}

Result<QVariant> fromImages(const BrushProperty& property, const SettingValue& value, const QString& folder) {
    QStringList paths;
    if (const auto* list = std::get_if<QStringList>(&value))
        paths = *list;
    else if (const auto* one = std::get_if<QString>(&value))
        paths << *one;
    if (paths.isEmpty() || paths.contains(QString()))
        return expecting(property);
    QList<QImage> images;
    for (const QString& path : paths) {
        const auto image = readImage(folder, path);
        if (!image)
            return image.problem();
        images << *image;
        if (const QString refusal = pixelsRefusal(pixelsOf(QVariant::fromValue(images))); !refusal.isEmpty())
            return Problem{0, {}, refusal};
    }
    return QVariant::fromValue(images);
}

// What the text of an option stands for, by what the property takes.
SettingValue valueOfText(BrushValueType type, const QString& text) {
    switch (type) {
        case BrushValueType::boolean: {
            const QString low = text.trimmed().toLower();
            for (const char* yes : {"yes", "true", "1"}) {
                if (low == QLatin1String(yes))
                    return true;
            }
            for (const char* no : {"no", "false", "0"}) {
                if (low == QLatin1String(no))
                    return false;
            }
            return text;
        }
        case BrushValueType::integer:
        case BrushValueType::real:
            if (const auto number = numberFromText(text.trimmed().toUtf8()))
                return *number;
            return text;
        case BrushValueType::control: {
            std::vector<double> numbers;
            for (const QString& part : text.split(QLatin1Char(','))) {
                const auto number = numberFromText(part.trimmed().toUtf8());
                if (!number)
                    return text;
                numbers.push_back(*number);
            }
            return numbers;
        }
        case BrushValueType::images:
            return text.split(QLatin1Char(','));
        default:
            return text;
    }
}

}  // namespace

BrushRange meantRange(const BrushProperty& property) {
    if (const auto choices = brushChoices(property); !choices.empty())
        return {float(choices.front().value), float(choices.back().value)};
    return {property.low, property.high};
}

qint64 pixelsOf(const QVariant& value) {
    qint64 pixels = 0;
    QList<QImage> images;
    if (value.metaType() == QMetaType::fromType<QImage>())
        images << value.value<QImage>();
    else if (value.metaType() == QMetaType::fromType<QList<QImage>>())
        images = value.value<QList<QImage>>();
    for (const QImage& image : images)
        pixels += qint64(image.width()) * image.height();
    return pixels;
}

QString pixelsRefusal(qint64 pixels) {
    return pixels <= kMostPixels
               ? QString()
               : QStringLiteral("the images have more than %1 pixels together").arg(kMostPixels);
}

std::optional<QColor> colorFromText(const QString& text) {
    const QByteArray written = text.trimmed().toLatin1();
    if (!written.startsWith('#')) {
        const QColor named(QString::fromLatin1(written));
        return named.isValid() ? std::optional(named) : std::nullopt;
    }
    // QColor would read eight digits as alpha first, and shorter forms too.
    bool digits = written.size() == 7 || written.size() == 9;
    for (qsizetype i = 1; i < written.size(); ++i)
        digits = digits && std::strchr("0123456789abcdefABCDEF", written[i]) && written[i];
    if (!digits)
        return std::nullopt;
    const auto part = [&written](qsizetype i) {
        return i < written.size() ? written.mid(i, 2).toInt(nullptr, 16) : 255;
    };
    return QColor(part(1), part(3), part(5), part(7));
}

QString colorText(const QColor& color) {
    return color.alpha() == 255
               ? color.name()
               : color.name() + QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
}

QString expectedValue(const BrushProperty& property) {
    switch (property.type()) {
        case BrushValueType::boolean:
            return QStringLiteral("yes or no");
        case BrushValueType::integer:
            return QStringLiteral("a whole number") + rangeText(property) + choicesText(property);
        case BrushValueType::real:
            return QStringLiteral("a number") + rangeText(property);
        case BrushValueType::control:
            return QStringLiteral("three numbers: pressure,altitude,speed") + rangeText(property);
        case BrushValueType::color:
            return QStringLiteral("a colour: #rrggbb or #rrggbbaa");
        case BrushValueType::image:
            return QStringLiteral("an image file");
        case BrushValueType::images:
            return QStringLiteral("image files, separated by commas");
        case BrushValueType::text:
            break;
    }
    return QStringLiteral("a text");
}

QString defaultText(const BrushProperty& property) {
    const QVariant value = brushDefault(property);
    switch (property.type()) {
        case BrushValueType::boolean:
            return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
        case BrushValueType::integer:
            return QString::number(value.toInt());
        case BrushValueType::real:
            return shortestText(value.toFloat());
        case BrushValueType::control: {
            const auto control = value.value<LPControlParams>();
            return QStringLiteral("%1,%2,%3")
                .arg(shortestText(control.pressure), shortestText(control.altitude),
                     shortestText(control.speed));
        }
        case BrushValueType::color:
            return colorText(value.value<ESColor>().toQColor());
        case BrushValueType::text:
            return value.toString();
        default:
            return {};
    }
}

Result<QVariant> propertyValueFromText(const BrushProperty& property, const QString& text) {
    Setting setting;
    setting.value = valueOfText(property.type(), text);
    return propertyValueFromSetting(property, setting, QString());
}

Result<QVariant> propertyValueFromSetting(const BrushProperty& property, const Setting& setting,
                                          const QString& folder) {
    switch (property.type()) {
        case BrushValueType::boolean:
            return fromBoolean(property, setting.value);
        case BrushValueType::integer:
        case BrushValueType::real:
            return fromNumber(property, setting.value);
        case BrushValueType::control:
            return fromControl(property, setting.value);
        case BrushValueType::color:
            return fromColor(property, setting.value);
        case BrushValueType::image:
            return fromImage(property, setting.value, folder);
        case BrushValueType::images:
            return fromImages(property, setting.value, folder);
        case BrushValueType::text:
            break;
    }
    if (const auto* text = std::get_if<QString>(&setting.value))
        return QVariant(*text);
    return expecting(property);
}

QStringList imageFilesOfText(const BrushProperty& property, const QString& text) {
    Setting setting;
    setting.value = valueOfText(property.type(), text);
    return imageFiles(property, setting, QString());
}

QStringList imageFiles(const BrushProperty& property, const Setting& setting, const QString& folder) {
    if (property.type() != BrushValueType::image && property.type() != BrushValueType::images)
        return {};
    QStringList files;
    if (const auto* list = std::get_if<QStringList>(&setting.value))
        files = *list;
    else if (const auto* one = std::get_if<QString>(&setting.value))
        files << *one;
    for (QString& file : files)
        file = QDir(folder).filePath(file);
    return files;
}

QStringList propertyNames() {
    QStringList names;
    for (const BrushProperty& property : brushProperties())
        names << QString::fromLatin1(property.name);
    return names;
}

QString unknownProperty(const QString& name) {
    const QString hint = closeNamesHint(name, propertyNames());
    return QStringLiteral("no brush property is called \"%1\"%2")
        .arg(name.left(60), hint.isEmpty() ? QStringLiteral("; see dabpaint properties") : hint);
}

}  // namespace dabcanvas
