// SPDX-License-Identifier: MIT
#include "PresetCommand.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "BrushImports.h"
#include "BrushPlan.h"
#include "Console.h"
#include "OutputFile.h"
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
    std::vector<std::pair<QString, ImportedBrush>> imported;
    QString name = options.name.value_or(QString());
    for (const auto& [path, import] :
         {std::pair(options.tip, ImportOf(importTip)), std::pair(options.paper, ImportOf(importPaper))}) {
        if (path.isEmpty())
            continue;
        const auto brush = importedFile(path, import);
        if (!brush)
            return fail(brush.problem().text(path));
        imported.emplace_back(path, *brush);
        if (!options.name && name.isEmpty())
            name = brush->name;
    }
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
    const int status = saveBrush(**canvas, name, options.output);
    for (const auto& [path, brush] : imported)
        tellLosses(path, brush);
    return status != kDone ? status : finishOut();
}

}  // namespace dabcanvas::dabpaint
