// SPDX-License-Identifier: MIT
#include "BrushFile.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "Brushes/BrushProperties.h"
#include "Canvas/QDDrawCanvas.h"
#include "Preset/QDBrushManager.h"

namespace dabcanvas::dabpaint {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

Result<BrushFileContents> readBrushFile(const QString& path) {
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        return Problem{0, {}, QStringLiteral("cannot be read: it is not a plain file")};
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(QFile::encodeName(path).constData(), "rb"));
    if (!file)
        return Problem{
            0, {}, QStringLiteral("cannot be read: %1").arg(QString::fromLocal8Bit(std::strerror(errno)))};
    BrushFileContents contents;
    auto brushes = QDBrushManager::brushesWithXBFStream(file.get(), &contents.version, &contents.problem);
    if (!brushes)
        return Problem{0, {}, contents.problem};
    contents.brushes = std::move(*brushes);
    return contents;
}

double Brush::number(const BrushProperty& property) const {
    float number = property.reset.value_or(property.created);
    for (const BrushParam& param : params) {
        if (property.presetId != 0 && BrushRecords::key(param) == property.presetId)
            number = std::clamp(BrushRecords::paramValue(param).toFloat(), property.low, property.high);
    }
    return double(number);
}

void Brush::applyTo(QDDrawCanvas& canvas) const {
    canvas.resetWithParams(params, version);
}

Result<std::shared_ptr<const Brush>> readBrush(const QString& path) {
    const auto contents = readBrushFile(path);
    if (!contents)
        return contents.problem();
    if (!contents->problem.isEmpty())
        return Problem{0, {}, QStringLiteral("the brush file is damaged: %1").arg(contents->problem)};
    if (contents->brushes.isEmpty())
        return Problem{0, {}, QStringLiteral("the brush file holds no brush")};
    const QVariantMap& last = contents->brushes.last();
    auto brush = std::make_shared<Brush>(
        Brush{BrushRecords::brushName(last), contents->version, BrushRecords::brushParams(last)});
    if (const QString flaw = QDBrushManager::flawOfParams(brush->params); !flaw.isEmpty())
        return Problem{0, {}, QStringLiteral("the brush file is damaged: %1").arg(flaw)};
    return std::shared_ptr<const Brush>(std::move(brush));
}

}  // namespace dabcanvas::dabpaint
