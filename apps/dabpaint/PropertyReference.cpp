// SPDX-License-Identifier: MIT
#include "PropertyReference.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QRegularExpression>
#include <cmath>
#include <map>

#include "Console.h"
#include "OutputFile.h"
#include "PropertiesCommand.h"
#include "PropertySamples.h"
#include "Recording/Numbers.h"
#include "Recording/PropertyValue.h"
#include "TextPlatform.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr QSize kSample(212, 100);
constexpr int kGap = 8, kLabel = 22, kText = 13, kMostAcross = 4;  // pixels

constexpr char kIntroduction[] = R"(# Brush properties

All properties of a brush, as `dabpaint properties` lists them. C++ sets them by `setRadius(24)` and the like, Qt and QML by
their names, `dabpaint` by `--set radius=24`; presets keep all that belong to a brush. Numbers beyond a property's bounds are
brought within them. An influence is three numbers, of pressure, altitude and speed.

Each picture shows the same stroke at some values, painted by `dabpaint properties --reference FOLDER`, which writes this page.
What its brush has besides the values below stands under it; its images, such as `grain`, are the tool's own.

)";

// What a choice is called; any other value as it is written.
QString labelOf(const BrushProperty& property, const QString& value) {
    for (const auto& [number, name] : brushChoices(property)) {
        if (value == QString::number(number))
            return QStringLiteral("%1: %2").arg(value, name);
    }
    return value;
}

QByteArray code(const QByteArray& text) {
    return '`' + text + '`';
}

// "A number from 2 to 1280, in pixels, 32 unless set."
QByteArray factsOf(const BrushProperty& property) {
    QString facts = expectedValue(property);
    facts[0] = facts[0].toUpper();
    if (const QByteArray unit = unitText(property); !unit.isEmpty())
        facts += QString::fromLatin1(unit);
    if (const auto [low, high] = brushUsefulRange(property);
        std::isfinite(low) && (low != property.low || high != property.high) && !property.kind &&
        property.type() != BrushValueType::control)
        facts += QStringLiteral("; useful from %1 to %2").arg(shortestText(low), shortestText(high));
    if (const QString standard = defaultText(property); !standard.isEmpty())
        facts += QStringLiteral("; %1 unless set").arg(standard);
    static const QRegularExpression color(QStringLiteral("#[0-9a-z]+"));  // a link, to some who read Markdown
    return facts.replace(color, QStringLiteral("`\\0`")).toUtf8() + ".";
}

QByteArray worksWith(const BrushProperty& property) {
    QByteArray names;
    for (const BrushKey key : property.with)
        names += (names.isEmpty() ? "" : ", ") + code(brushProperty(key).name);
    return names.isEmpty() ? names : " Works with " + names + ".";
}

QByteArray sampleText(const BrushProperty& property) {
    const PropertySample& sample = propertySample(property);
    if (sample.invisible)
        return QByteArray("\nNo picture: ") + sample.invisible + ".\n";
    const QByteArray name = property.name,
                     values = sample.valuesShown().join(QLatin1String("; ")).toUtf8().replace('#', "");
    const QByteArray settings = sample.settingsShown().toUtf8();
    return "\n![" + name + " at " + values + "](properties/" + name + ".png)\n" +
           (settings.isEmpty() ? QByteArray() : '\n' + code(settings) + '\n');
}

QByteArray pngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isGrey = image.allGray();
    image.convertToFormat(isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888)
        .save(&buffer, "PNG", 0);  // as small as it gets
    return bytes;
}

}  // namespace

QByteArray propertiesPage() {
    std::map<BrushGroup, QByteArray> groups;
    for (const BrushProperty& property : brushProperties())
        groups[property.group] += QByteArray("\n### ") + property.name + "\n\n" + property.about + "\n\n" +
                                  factsOf(property) + worksWith(property) + '\n' + sampleText(property);
    QByteArray page = kIntroduction;
    for (const QByteArray& setting : QByteArray(kPlainBrush).split(' '))
        page += "    " + setting + '\n';
    for (const auto& [group, text] : groups) {
        QByteArray title = brushGroupName(group);
        title[0] = char(std::toupper(title[0]));
        page += "\n## " + title + '\n' + text;
    }
    return page;
}

Result<QImage> propertyPicture(const BrushProperty& property) {
    const PropertySample& sample = propertySample(property);
    const QStringList values = sample.valuesShown();
    const int count = int(values.size()), across = std::min(count, count > 3 ? kMostAcross : 3);
    const QSize cell(kSample.width() + kGap, kSample.height() + kLabel);
    QImage picture(across * cell.width() - kGap, (count + across - 1) / across * cell.height(),
                   QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QFont font = painter.font();
    font.setPixelSize(kText);
    painter.setFont(font);
    for (int i = 0; i < count; ++i) {
        const auto image = paintPropertySample(sample, values[i], kSample);
        if (!image)
            return image.problem();
        const QRect place({i % across * cell.width(), i / across * cell.height()}, kSample);
        painter.drawImage(place, *image);
        painter.setPen(QColor(205, 205, 205));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
        painter.setPen(QColor(60, 60, 60));
        painter.drawText(place.translated(0, kSample.height()), Qt::AlignHCenter | Qt::AlignTop,
                         labelOf(property, values[i]));
    }
    return picture;
}

int writePropertyReference(const QString& folder) {
    const QDir into(folder);
    if (!into.mkpath(QStringLiteral("properties")))
        return fail(QStringLiteral("%1: the folder cannot be made").arg(folder));
    const TextPlatform platform;
    const auto write = [&](const QString& name, const QByteArray& bytes) {
        OutputFile file(into.filePath(name));
        return file.write(bytes) ? QString()
                                 : QStringLiteral("%1: %2").arg(into.filePath(name), file.errorString());
    };
    QString wrong = write(QStringLiteral("properties.md"), propertiesPage());
    for (const BrushProperty& property : brushProperties()) {
        if (!wrong.isEmpty())
            return fail(wrong);
        if (propertySample(property).invisible)
            continue;
        const auto picture = propertyPicture(property);
        wrong = picture ? write(QStringLiteral("properties/%1.png").arg(QLatin1String(property.name)),
                                pngOf(*picture))
                        : picture.problem().what;
    }
    return wrong.isEmpty() ? finishOut() : fail(wrong);
}

}  // namespace dabcanvas::dabpaint
