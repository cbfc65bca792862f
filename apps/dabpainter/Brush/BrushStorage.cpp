// SPDX-License-Identifier: MIT
#include "Brush/BrushStorage.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>

#include "Brush/BrushPresentation.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kSection[] = "brush";

QString numberText(float number) {
    return QString::number(double(number), 'g', 9);  // enough to read the same number again
}

QStringList numberTexts(std::initializer_list<float> numbers) {
    QStringList texts;
    for (const float number : numbers)
        texts << numberText(number);
    return texts;
}

// As many numbers as asked for, all finite; else none.
QList<float> numbersFrom(const QVariant& stored, qsizetype count) {
    const QStringList texts = stored.toStringList();
    QList<float> numbers;
    for (const QString& text : texts) {
        bool good = false;
        const float number = text.toFloat(&good);
        if (good && std::isfinite(number))
            numbers << number;
    }
    return texts.size() == count && numbers.size() == count ? numbers : QList<float>();
}

QString imageText(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    constexpr int kFast = 81;  // as Qt counts it: the least that deflate does
    image.save(&buffer, "PNG", kFast);
    return QString::fromLatin1(png.toBase64());
}

QImage imageFrom(const QString& text) {
    auto png = QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!png)
        return {};
    QBuffer buffer(&*png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "PNG");
    const QImage image = reader.read();
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

QVariant toStored(const BrushProperty& property, const QVariant& value) {
    switch (property.type()) {
        case BrushValueType::boolean:
        case BrushValueType::integer:
        case BrushValueType::text:
            return value;
        case BrushValueType::real:
            return numberText(value.toFloat());
        case BrushValueType::control: {
            const auto control = value.value<LPControlParams>();
            return numberTexts({control.pressure, control.altitude, control.speed});
        }
        case BrushValueType::color: {
            const auto color = value.value<ESColor>();
            return numberTexts({color.red(), color.green(), color.blue(), color.alpha()});
        }
        case BrushValueType::image:
            return imageText(value.value<QImage>());
        case BrushValueType::images: {
            QStringList texts;
            for (const QImage& image : value.value<QList<QImage>>())
                texts << imageText(image);
            return texts;
        }
    }
    return {};
}

// Invalid when it is not a value of this property.
QVariant fromStored(const BrushProperty& property, const QVariant& stored) {
    const QString text = stored.toString();
    switch (property.type()) {
        case BrushValueType::boolean:
            return text == QLatin1String("true")    ? QVariant(true)
                   : text == QLatin1String("false") ? QVariant(false)
                                                    : QVariant();
        case BrushValueType::integer: {
            bool good = false;
            const int number = text.toInt(&good);
            return good ? QVariant(number) : QVariant();
        }
        case BrushValueType::real: {
            const QList<float> number = numbersFrom(text, 1);
            return number.isEmpty() ? QVariant() : QVariant(number[0]);
        }
        case BrushValueType::control: {
            const QList<float> n = numbersFrom(stored, 3);
            return n.isEmpty() ? QVariant() : QVariant::fromValue(LPControlParams{n[0], n[1], n[2]});
        }
        case BrushValueType::color: {
            const QList<float> n = numbersFrom(stored, 4);
            return n.isEmpty() ? QVariant() : QVariant::fromValue(ESColor::rgba(n[0], n[1], n[2], n[3]));
        }
        case BrushValueType::image: {
            const QImage image = imageFrom(text);
            return image.isNull() ? QVariant() : QVariant(image);
        }
        case BrushValueType::images: {
            QList<QImage> images;
            for (const QString& one : stored.toStringList())
                images << imageFrom(one);
            const bool broken =
                images.isEmpty() ||
                std::any_of(images.begin(), images.end(), [](const QImage& image) { return image.isNull(); });
            return broken ? QVariant() : QVariant::fromValue(images);
        }
        case BrushValueType::text:
            return text;
    }
    return {};
}

}  // namespace

void writeBrush(QSettings& settings, const BrushModel& model, const std::set<BrushKey>& keys) {
    settings.beginGroup(QLatin1String(kSection));
    for (const BrushKey key : keys) {
        const BrushProperty& property = brushProperty(key);
        const bool kept = brushPresentation(property).place != BrushPlace::hidden;
        // Colours always: a first start's are not the canvas's.
        if (kept && (property.type() == BrushValueType::color || !model.isDefault(key)))
            settings.setValue(QLatin1String(property.name), toStored(property, model.value(key)));
        else
            settings.remove(QLatin1String(property.name));
    }
    settings.endGroup();
}

void readBrush(QSettings& settings, BrushModel& model) {
    settings.beginGroup(QLatin1String(kSection));
    for (const BrushProperty& property : brushProperties()) {
        const QVariant stored = settings.value(QLatin1String(property.name));
        if (!stored.isValid() || brushPresentation(property).place == BrushPlace::hidden)
            continue;
        // Follows from the sizes of the two lines, when these do not follow from it.
        if (property.key == BrushKey::relationValue &&
            model.value(BrushKey::slRadiusRelationType).toInt() == 0)
            continue;
        const QVariant value = fromStored(property, stored);
        if (value.isValid())
            model.setValue(property.key, value);
    }
    settings.endGroup();
}

}  // namespace dabcanvas::dabpainter
