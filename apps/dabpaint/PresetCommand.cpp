// SPDX-License-Identifier: MIT
#include "PresetCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "BrushPlan.h"
#include "Console.h"
#include "LogCatcher.h"
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
    wrong = overwritingRefusal({options.output}, plan.files() + QStringList(options.brush));
    if (!wrong.isEmpty())
        return refuse(wrong);
    std::shared_ptr<const Brush> start;
    if (!options.brush.isEmpty()) {
        const auto brush = readBrush(options.brush);
        if (!brush)
            return fail(brush.problem().text(options.brush));
        start = *brush;
    }
    if (OutputFile output(options.output); !output.check())
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, output.errorString()));
    const auto canvas = makeCanvas(QSize(1, 1));  // which clamps and keeps the values; nothing is painted
    if (!canvas)
        return fail(canvas.problem().what);
    if (start)
        start->applyTo(**canvas);
    for (const auto& [property, value] : plan.fixed()) {
        if (property->presetId == 0)
            return refuse(
                QStringLiteral("--set: a preset does not keep %1").arg(QLatin1String(property->name)));
        if (!(*canvas)->setBrushValue(*property, *value))
            return fail(QStringLiteral("the canvas does not take this value of %1")
                            .arg(QLatin1String(property->name)));
    }
    const BrushParams params = paramsOf(**canvas, start.get(), options);
    const auto save = [&](const QString& path) {
        return QDBrushManager::saveParams(params, QDBrushManager::kVersion, options.name, path, &wrong);
    };
    const LogCatcher log;  // the messages below say it
    // What would not be read again takes no place: read first, from elsewhere.
    const QTemporaryDir elsewhere;
    const QString trial = elsewhere.filePath(QStringLiteral("trial.xbf"));
    if (!save(trial))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, wrong));
    if (const auto again = readBrush(trial); !again)
        return fail(
            QStringLiteral("%1: could not be read again: %2").arg(options.output, again.problem().what));
    if (!save(options.output))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, wrong));
    return kDone;
}

}  // namespace dabcanvas::dabpaint
