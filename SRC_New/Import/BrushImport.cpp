// SPDX-License-Identifier: MIT
#include "Import/BrushImport.h"

#include "Canvas/QDDrawCanvas.h"
#include "Import/MypaintBrush.h"
#include "Import/MypaintImport.h"
#include "Import/TipImport.h"
#include "Preset/QDBrushManager.h"

namespace dabcanvas {
namespace {

template <typename Import>
std::optional<ImportedBrush> told(QString* problem, Import&& import) {
    QString wrong;
    auto brush = import(wrong);
    if (problem != nullptr) {
        *problem = brush ? QString() : wrong;
    }
    return brush;
}

std::optional<ImportedBrush> importMypaint(const QByteArray& file, QString& problem) {
    const auto brush = readMypaintBrush(file, problem);
    return brush ? std::optional(importedFrom(*brush)) : std::nullopt;
}

}  // namespace

void ImportedBrush::applyTo(QDDrawCanvas& canvas) const {
    for (const auto& [key, value] : values) {
        canvas.setBrushValue(brushProperty(key), variantOf(value));
    }
}

std::optional<BrushParams> ImportedBrush::params() const {
    const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 1, 1));  // nothing is painted on it
    if (!canvas) {
        return std::nullopt;
    }
    canvas->resetParams();
    applyTo(*canvas);
    return QDBrushManager::paramsOfDrawView(canvas.get());
}

QStringList importedBrushSuffixes() {
    return {QStringLiteral("gbr"), QStringLiteral("gih"), QStringLiteral("myb")};
}

std::optional<ImportedBrush> importBrush(const QByteArray& file, QString* problem) {
    return told(problem, [&](QString& wrong) {
        return looksLikeMypaintBrush(file) ? importMypaint(file, wrong) : tipsFrom(file, wrong);
    });
}

std::optional<ImportedBrush> importTip(const QByteArray& file, QString* problem) {
    return told(problem, [&](QString& wrong) { return tipsFrom(file, wrong); });
}

std::optional<ImportedBrush> importPaper(const QByteArray& file, QString* problem) {
    return told(problem, [&](QString& wrong) { return paperFrom(file, wrong); });
}

}  // namespace dabcanvas
