// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QDir>
#include <QFileInfo>
#include <functional>
#include <optional>
#include <vector>

#include "CloseNames.h"
#include "Console.h"
#include "PropertiesCommand.h"
#include "PropertyValue.h"
#include "Usage.h"

namespace dabcanvas::dabpaint {

namespace {

// One option of a command. With a value, it takes "--size 4x3" and "--size=4x3", or "-o out.png".
struct Option {
    const char* name;
    const char* letter;  // null for none
    bool hasValue;
    std::function<QString(const QString& value)> take;  // the message when the value is wrong
};

// Hands options to their takers and everything else to `operand`; the message when something is wrong.
QString walkArguments(const QStringList& arguments, const std::vector<Option>& options,
                      const std::function<QString(const QString&)>& operand) {
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        QString wrong;
        if (optionsEnded || !argument.startsWith(QLatin1Char('-')) || argument == QLatin1String("-")) {
            wrong = operand(argument);
        } else if (argument == QLatin1String("--")) {
            optionsEnded = true;
        } else {
            const auto equals =
                argument.startsWith(QLatin1String("--")) ? argument.indexOf(QLatin1Char('=')) : -1;
            const QString name = equals < 0 ? argument : argument.left(equals);
            const Option* option = nullptr;
            QStringList names;
            for (const Option& known : options) {
                names << QLatin1String(known.name);
                if (name == QLatin1String(known.name) ||
                    (known.letter && name == QLatin1String(known.letter)))
                    option = &known;
            }
            if (!option)
                return QStringLiteral("unknown option %1%2").arg(name, closeNamesHint(name, names));
            if (!option->hasValue && equals >= 0)
                return QStringLiteral("%1 takes no value").arg(name);
            if (option->hasValue && equals < 0 && i + 1 == arguments.size())
                return QStringLiteral("%1 needs a value").arg(name);
            wrong = option->take(!option->hasValue ? QString()
                                 : equals >= 0     ? argument.mid(equals + 1)
                                                   : arguments[++i]);
        }
        if (!wrong.isEmpty())
            return wrong;
    }
    return {};
}

Option flag(const char* name, bool& value) {
    return {name, nullptr, false, [&value](const QString&) {
                value = true;
                return QString();
            }};
}

Option helpFlag(bool& value) {
    Option option = flag("--help", value);
    option.letter = "-h";
    return option;
}

QString takeSize(const QString& text, QSize& size) {
    const QStringList sides = text.split(QLatin1Char('x'));
    bool numbers = sides.size() == 2;
    qint64 side[2] = {};
    for (qsizetype i = 0; numbers && i < 2; ++i) {
        // toLongLong() would take blanks and a plus sign too.
        for (const QChar c : sides[i])
            numbers = numbers && c >= QLatin1Char('0') && c <= QLatin1Char('9');
        side[i] = numbers ? sides[i].toLongLong(&numbers) : 0;
    }
    if (!numbers)
        return QStringLiteral("--size is WIDTHxHEIGHT in pixels, such as 800x600, not \"%1\"").arg(text);
    const QString refusal = sizeRefusal(side[0], side[1]);
    if (refusal.isEmpty())
        size = QSize(int(side[0]), int(side[1]));
    return refusal.isEmpty() ? refusal : QStringLiteral("--size: ") + refusal;
}

QString takeSetting(const QString& text, std::vector<Assignment>& settings) {
    const auto equals = text.indexOf(QLatin1Char('='));
    if (equals <= 0)
        return QStringLiteral("--set is PROPERTY=VALUE, such as radius=12, not \"%1\"").arg(text);
    settings.push_back({text.left(equals), text.mid(equals + 1)});
    return {};
}

QString takeColor(const QString& text, std::optional<QColor>& color) {
    color = colorFromText(text);
    return color ? QString()
                 : QStringLiteral(
                       "--background is #rrggbb, #rrggbbaa, a colour's name or transparent, not \"%1\"")
                       .arg(text);
}

QString takeCount(const QString& text, int& count) {
    bool isNumber = false;
    count = text.toInt(&isNumber);
    return isNumber && count >= 0 ? QString()
                                  : QStringLiteral("--undo is a number of strokes, not \"%1\"").arg(text);
}

Option outputOption(QString& output) {
    return {"--output", "-o", true, [&output](const QString& value) {
                output = value;
                return value.isEmpty() ? QStringLiteral("the output's name is empty") : QString();
            }};
}

Option settingOption(std::vector<Assignment>& settings) {
    return {"--set", nullptr, true,
            [&settings](const QString& value) { return takeSetting(value, settings); }};
}

// The message for a name that is no preset's.
QString presetRefusal(const QString& file) {
    if (file == QLatin1String("-"))
        return QStringLiteral("a preset is read from a file, not from standard input");
    return file.isEmpty() ? QStringLiteral("the brush's name is empty") : QString();
}

Option brushOption(QString& brush) {
    return {"--brush", nullptr, true, [&brush](const QString& value) {
                brush = value;
                return presetRefusal(value);
            }};
}

CommandLine readPaint(const QStringList& arguments) {
    PaintOptions paint;
    bool help = false;
    const std::vector<Option> options = {
        outputOption(paint.output),
        {"--size", nullptr, true, [&](const QString& value) { return takeSize(value, paint.size); }},
        brushOption(paint.brush),
        settingOption(paint.settings),
        {"--background", nullptr, true,
         [&](const QString& value) { return takeColor(value, paint.background); }},
        {"--undo", nullptr, true, [&](const QString& value) { return takeCount(value, paint.undo); }},
        flag("--recognise", paint.recognise),
        flag("--repeatable", paint.repeatable),
        flag("--stats", paint.stats),
        helpFlag(help),
    };
    const QString wrong = walkArguments(arguments, options, [&](const QString& file) {
        paint.recordings << file;
        return QString();
    });
    if (help)
        return HelpOptions{QStringLiteral("paint")};
    if (!wrong.isEmpty())
        return UsageFault{wrong};
    if (paint.recordings.isEmpty())
        return UsageFault{QStringLiteral("paint needs a recording; see dabpaint help paint")};
    if (paint.output.isEmpty())
        return UsageFault{QStringLiteral("paint needs -o OUT.png; see dabpaint help paint")};
    if (paint.stats && paint.output == QLatin1String("-"))
        return UsageFault{QStringLiteral("--stats and -o - would both write to standard output")};
    return paint;
}

// "a.csv" and "./a.csv" too.
bool isSameFile(const QString& one, const QString& other) {
    const auto whole = [](const QString& path) {
        return path == QLatin1String("-") ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    };
    return whole(one) == whole(other);
}

CommandLine readShapes(const QStringList& arguments) {
    ShapesOptions shapes;
    bool help = false;
    const std::vector<Option> options = {
        outputOption(shapes.output),
        {"--outlines", nullptr, true,
         [&](const QString& value) {
             shapes.outlines = value;
             return value.isEmpty() ? QStringLiteral("the outlines' name is empty") : QString();
         }},
        helpFlag(help)};
    const QString wrong = walkArguments(arguments, options, [&](const QString& file) {
        shapes.inputs << file;
        return QString();
    });
    if (help)
        return HelpOptions{QStringLiteral("shapes")};
    if (!wrong.isEmpty())
        return UsageFault{wrong};
    if (shapes.inputs.isEmpty())
        shapes.inputs << QStringLiteral("-");
    if (shapes.output.isEmpty())
        shapes.output = QStringLiteral("-");
    if (isSameFile(shapes.output, shapes.outlines))
        return UsageFault{
            shapes.output == QLatin1String("-")
                ? QStringLiteral("the shapes and their outlines would both go to standard output")
                : QStringLiteral("the shapes and their outlines would both go to %1").arg(shapes.output)};
    for (const QString& input : shapes.inputs) {
        if (input != QLatin1String("-") &&
            (isSameFile(input, shapes.output) || isSameFile(input, shapes.outlines)))
            return UsageFault{QStringLiteral("%1 is what is read; write elsewhere").arg(input)};
    }
    return shapes;
}

CommandLine readDabs(const QStringList& arguments) {
    DabsOptions dabs;
    bool help = false;
    const QString wrong =
        walkArguments(arguments, {flag("--header", dabs.header), helpFlag(help)}, [&](const QString& file) {
            if (!dabs.input.isEmpty())
                return QStringLiteral("dabs takes one input, not %1 as well").arg(file);
            dabs.input = file;
            return QString();
        });
    if (help)
        return HelpOptions{QStringLiteral("dabs")};
    if (!wrong.isEmpty())
        return UsageFault{wrong};
    if (dabs.input.isEmpty())
        return UsageFault{QStringLiteral("dabs needs an input; see dabpaint help dabs")};
    return dabs;
}

CommandLine readProperties(const QStringList& arguments) {
    PropertiesOptions properties;
    bool help = false;
    const QString wrong = walkArguments(
        arguments, {flag("--json", properties.json), helpFlag(help)},
        [](const QString& file) { return QStringLiteral("properties takes no \"%1\"").arg(file); });
    if (help)
        return HelpOptions{QStringLiteral("properties")};
    if (!wrong.isEmpty())
        return UsageFault{wrong};
    return properties;
}

// The commands below preset differ in their options; files and the output are asked for alike.
CommandLine readPreset(const QStringList& arguments) {
    PresetShowOptions show;
    PresetMakeOptions make;
    PresetPreviewOptions preview;
    bool help = false, named = false;
    QStringList files;
    QString output;
    const QStringList commands{QStringLiteral("show"), QStringLiteral("make"), QStringLiteral("preview")};
    const QString command = arguments.value(0);
    const auto which = commands.indexOf(command);
    std::vector<Option> options = {helpFlag(help)};
    if (which == 0) {
        options.push_back(flag("--json", show.json));
    } else if (which == 1) {
        options.insert(options.end(), {outputOption(output),
                                       brushOption(make.brush),
                                       settingOption(make.settings),
                                       {"--name", nullptr, true, [&](const QString& value) {
                                            make.name = value;
                                            named = true;
                                            return QString();
                                        }}});
    } else if (which == 2) {
        options.insert(
            options.end(),
            {outputOption(output),
             settingOption(preview.settings),
             flag("--sheet", preview.sheet),
             {"--size", nullptr, true, [&](const QString& value) { return takeSize(value, preview.size); }}});
    }
    const QString wrong =
        walkArguments(which < 0 ? arguments : arguments.mid(1), options, [&](const QString& file) {
            files << file;
            return which == 1 ? QString() : presetRefusal(file);
        });
    if (help)
        return HelpOptions{QStringLiteral("preset")};
    if (which < 0)
        return UsageFault{command.isEmpty() ? QStringLiteral("preset needs a command: show, make or preview")
                                            : QStringLiteral("there is no command \"preset %1\"%2")
                                                  .arg(command, closeNamesHint(command, commands))};
    if (!wrong.isEmpty())
        return UsageFault{wrong};
    const auto needs = [&](const char* what) {
        return UsageFault{
            QStringLiteral("preset %1 needs %2; see dabpaint help preset").arg(command, QLatin1String(what))};
    };
    if (which == 1 && !files.isEmpty())
        return UsageFault{QStringLiteral("preset make takes no \"%1\"").arg(files.first())};
    if (which != 1 && files.isEmpty())
        return needs("an XBF file");
    if (which != 0 && output.isEmpty())
        return needs(which == 1 ? "-o FILE.xbf" : "-o OUT.png");
    if (which == 1 && !named)
        return needs("--name NAME");
    if (which == 1 && output == QLatin1String("-"))
        return UsageFault{QStringLiteral("a preset is written to a file, not to standard output")};
    show.files = preview.files = files;
    make.output = preview.output = output;
    if (which == 0)
        return show;
    if (which == 1)
        return make;
    return preview;
}

CommandLine readHelp(const QStringList& arguments) {
    HelpOptions help;
    bool again = false;
    const QString wrong = walkArguments(arguments, {helpFlag(again)}, [&](const QString& topic) {
        if (usageText(topic).isEmpty())
            return QStringLiteral("there is no command \"%1\"%2")
                .arg(topic, closeNamesHint(topic, commandNames()));
        help.topic = topic;
        return QString();
    });
    if (!wrong.isEmpty())
        return UsageFault{wrong};
    if (again)
        help.topic = QStringLiteral("help");
    return help;
}

template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};

int print(const QByteArray& text) {
    printOut(std::string_view(text.constData(), std::size_t(text.size())));
    return finishOut();
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    if (arguments.isEmpty())
        return UsageFault{
            QStringLiteral("a command is missing: paint, shapes, preset, dabs, properties or help")};
    const QString& command = arguments.first();
    const QStringList rest = arguments.mid(1);
    if (command == QLatin1String("paint"))
        return readPaint(rest);
    if (command == QLatin1String("shapes"))
        return readShapes(rest);
    if (command == QLatin1String("preset"))
        return readPreset(rest);
    if (command == QLatin1String("dabs"))
        return readDabs(rest);
    if (command == QLatin1String("properties"))
        return readProperties(rest);
    if (command == QLatin1String("help") || command == QLatin1String("--help") ||
        command == QLatin1String("-h"))
        return readHelp(rest);
    if (command == QLatin1String("--version"))
        return VersionOptions{};
    return UsageFault{
        QStringLiteral("there is no command \"%1\"%2").arg(command, closeNamesHint(command, commandNames()))};
}

int runDabpaint(const QStringList& arguments) {
    return std::visit(Overloaded{
                          [](const PaintOptions& options) { return runPaint(options); },
                          [](const ShapesOptions& options) { return runShapes(options); },
                          [](const DabsOptions& options) { return runDabs(options); },
                          [](const PresetShowOptions& options) { return runPresetShow(options); },
                          [](const PresetMakeOptions& options) { return runPresetMake(options); },
                          [](const PresetPreviewOptions& options) { return runPresetPreview(options); },
                          [](const PropertiesOptions& options) { return runProperties(options.json); },
                          [](const HelpOptions& options) { return print(usageText(options.topic)); },
                          [](const VersionOptions&) { return print(versionText()); },
                          [](const UsageFault& fault) { return refuse(fault.what); },
                      },
                      readCommandLine(arguments));
}

}  // namespace dabcanvas::dabpaint
