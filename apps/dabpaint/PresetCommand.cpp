// SPDX-License-Identifier: MIT
#include "PresetCommand.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "BrushImports.h"
#include "BrushPlan.h"
#include "Console.h"
#include "OutputFile.h"
#include "Preset/PresetInfo.h"
#include "Preset/QDBrushManager.h"
#include "PresetText.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

int runPresetShow(const PresetShowOptions& options) {
    int status = kDone;
    QJsonArray all;
    for (const QString& path : options.files) {
        auto contents = readBrushFile(path);
        if (!contents)
            contents = BrushFileContents{0, {}, contents.problem().what};
        else if (!options.json)
            printOut(presetAsText(path, *contents).toStdString());
        all.append(presetAsJson(path, *contents));
        if (!contents->problem.isEmpty()) {
            flushOut();  // what could be read comes first where both go to one place
            status = fail(Problem{0, {}, contents->problem}.text(path));
        }
    }
    if (options.json)
        printOut(QJsonDocument(all).toJson().toStdString());
    const int printed = finishOut();
    return printed == kDone ? status : printed;
}

namespace {

using ImportedPart = std::pair<QString, ImportedBrush>;  // and the file that it is from

// Tip and paper; the message when one cannot be read.
QString readParts(const PresetMakeOptions& options, std::vector<ImportedPart>& parts) {
    const std::pair<QString, ImportOf> files[] = {{options.tip, importTip}, {options.paper, importPaper}};
    for (const auto& [path, import] : files) {
        if (path.isEmpty())
            continue;
        const auto brush = importedFile(path, import);
        if (!brush)
            return brush.problem().text(path);
        parts.emplace_back(path, *brush);
    }
    return {};
}

BrushParams paramsOf(const QDDrawCanvas& canvas, const Brush* start, const PresetMakeOptions& options) {
    PresetInfo info = start != nullptr ? infoOfParams(start->params) : PresetInfo();
    if (options.tags)
        info.tags = options.tags->split(QLatin1Char(','));
    info.about = options.about.value_or(info.about);
    info.author = options.author.value_or(info.author);
    info.licence = options.licence.value_or(info.licence);
    BrushParams params = QDBrushManager::paramsOfDrawView(&canvas).value_or(BrushParams());
    setInfoOfParams(params, info);
    return params;
}

}  // namespace

int runPresetMake(const PresetMakeOptions& options) {
    BrushPlan plan;
    QString wrong = plan.fix(options.settings);
    if (!wrong.isEmpty())
        return refuse(wrong);
    wrong = overwritingRefusal({options.output},
                               plan.files() + QStringList{options.brush, options.tip, options.paper});
    if (!wrong.isEmpty())
        return refuse(wrong);
    std::shared_ptr<const Brush> start;
    if (!options.brush.isEmpty()) {
        const auto brush = readBrush(options.brush);
        if (!brush)
            return fail(brush.problem().text(options.brush));
        start = *brush;
    }
    std::vector<ImportedPart> imported;
    if (wrong = readParts(options, imported); !wrong.isEmpty())
        return fail(wrong);
    const QString name =
        options.name || imported.empty() ? options.name.value_or(QString()) : imported.front().second.name;
    if (OutputFile output(options.output); !output.check())
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, output.errorString()));
    const auto canvas = makeCanvas(QSize(1, 1));  // which clamps and keeps the values; nothing is painted
    if (!canvas)
        return fail(canvas.problem().what);
    if (start)
        start->applyTo(**canvas);
    for (const auto& [path, brush] : imported)
        brush.applyTo(**canvas);
    for (const auto& [property, value] : plan.fixed()) {
        if (property->presetId == 0)
            return refuse(
                QStringLiteral("--set: a preset does not keep %1").arg(QLatin1String(property->name)));
        if (!(*canvas)->setBrushValue(*property, *value))
            return fail(QStringLiteral("the canvas does not take this value of %1")
                            .arg(QLatin1String(property->name)));
    }
    const int status = saveBrush(paramsOf(**canvas, start.get(), options), name, options.output);
    if (status != kDone)
        return status;
    for (const auto& [path, brush] : imported)
        tellLosses(path, brush);
    return finishOut();
}

}  // namespace dabcanvas::dabpaint
