// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <QRegularExpression>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include "Console.h"
#include "PropertiesCommand.h"
#include "PropertyReference.h"
#include "Recording/CloseNames.h"
#include "Recording/PropertyValue.h"
#include "Usage.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr int kAny = 1 << 29;  // as many as are given

using Taker = std::function<QString(const QString& value)>;  // gives the message when the value is wrong

// An option with a value, or a positional where the name has no dash. A value is checked where it is stored, so that
// the message says what is wrong with it; the last one given holds.
CLI::Option* value(CLI::App& app, const char* names, const Taker& take) {
    const auto check = [take](const std::string& text) {
        return take(QString::fromStdString(text)).toStdString();
    };
    return app.add_option(names)->check(CLI::Validator(check, ""))->take_last()->type_name("value");
}

void flag(CLI::App& app, const char* name, bool& on) {
    app.add_flag(name, on)->disable_flag_override();
}

CLI::Option* text(CLI::App& app, const char* names, QString& text) {
    return value(app, names, [&text](const QString& given) {
        text = given;
        return given.isEmpty() ? QStringLiteral("the name is empty") : QString();
    });
}

// One name or more, between options or after them. The library reads "[a]" as a list of names; "./[a]" is a file.
CLI::Option* files(CLI::App& app, const char* name, QStringList& files, const Taker& refusal = nullptr) {
    return value(app, name,
                 [&files, refusal](const QString& file) {
                     files << file;
                     return refusal ? refusal(file) : QString();
                 })
        ->expected(1, kAny)
        ->allow_extra_args()
        ->take_all();
}

QString presetRefusal(const QString& file) {
    if (file == QLatin1String("-"))
        return QStringLiteral("a preset is read from a file, not from standard input");
    return file.isEmpty() ? QStringLiteral("the brush's name is empty") : QString();
}

// A preset may have an empty one.
void name(CLI::App& app, std::optional<QString>& name) {
    value(app, "--name", [&name](const QString& given) {
        name = given;
        return QString();
    });
}

void brush(CLI::App& app, QString& brush) {
    value(app, "--brush", [&brush](const QString& given) { return presetRefusal(brush = given); });
}

void size(CLI::App& app, QSize& size) {
    value(app, "--size", [&size](const QString& text) {
        static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,9})x([0-9]{1,9})\\z"));
        const auto match = form.match(text);
        if (!match.hasMatch())
            return QStringLiteral("expected WIDTHxHEIGHT in pixels, such as 800x600, not \"%1\"").arg(text);
        size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
        return sizeRefusal(size.width(), size.height());
    });
}

void settings(CLI::App& app, std::vector<Assignment>& settings) {
    value(app, "--set", [&settings](const QString& text) {
        const auto equals = text.indexOf(QLatin1Char('='));
        settings.push_back({text.left(equals), text.mid(equals + 1)});
        return equals > 0
                   ? QString()
                   : QStringLiteral("expected PROPERTY=VALUE, such as radius=12, not \"%1\"").arg(text);
    })->take_all();
}

void count(CLI::App& app, const char* name, qint64 least, const std::function<void(qint64)>& store) {
    value(app, name, [least, store](const QString& text) {
        bool isNumber = false;
        const qint64 number = text.toLongLong(&isNumber);
        if (!isNumber || number < least || number > std::numeric_limits<int>::max())
            return QStringLiteral("expected a whole number of at least %1, not \"%2\"").arg(least).arg(text);
        store(number);
        return QString();
    });
}

void depth(CLI::App& app, const char* name, int& depth) {
    value(app, name, [&depth](const QString& text) {
        depth = text.toInt();
        return SurfaceOptions::isDepth(depth) ? QString()
                                              : QStringLiteral("expected 8 or 16, not \"%1\"").arg(text);
    });
}

void surface(CLI::App& app, SurfaceOptions& surface) {
    value(app, "--surface", [&surface](const QString& text) {
        const auto kind = surfaceKindOf(text.toStdString());
        surface.kind = kind.value_or(SurfaceKind::automatic);
        return kind ? QString() : QStringLiteral("expected auto, gpu or processor, not \"%1\"").arg(text);
    });
    depth(app, "--canvas-depth", surface.canvasDepth);
    depth(app, "--layer-depth", surface.layerDepth);
}

void seed(CLI::App& app, std::optional<std::uint32_t>& seed) {
    value(app, "--seed", [&seed](const QString& text) {
        bool isNumber = false;
        seed = text.toUInt(&isNumber);
        return isNumber
                   ? QString()
                   : QStringLiteral("expected a whole number from 0 to 4294967295, not \"%1\"").arg(text);
    });
}

void background(CLI::App& app, std::optional<QColor>& color) {
    value(app, "--background", [&color](const QString& text) {
        color = colorFromText(text);
        return color
                   ? QString()
                   : QStringLiteral("expected #rrggbb, #rrggbbaa, a colour's name or transparent, not \"%1\"")
                         .arg(text);
    });
}

// The words as the library reads them, the last one first.
std::vector<std::string> wordsOf(const QStringList& arguments) {
    QStringList words;
    bool onlyFiles = false;
    for (const QString& word : arguments) {
        if (onlyFiles &&
            (word.startsWith(QLatin1Char('[')) || (word.startsWith(QLatin1Char('-')) && word.size() > 1))) {
            words << QStringLiteral("./") + word;
        } else if (onlyFiles || word != QLatin1String("--")) {
            words << word;
        } else {
            onlyFiles = true;  // where the library would leave the command
        }
        // "--name=" gives an empty value, where the library would go on to the next word.
        if (!onlyFiles && word.startsWith(QLatin1String("--")) && word.endsWith(QLatin1Char('='))) {
            words.last().chop(1);
            words << QString();
        }
    }
    std::vector<std::string> backwards;
    for (auto word = words.crbegin(); word != words.crend(); ++word)
        backwards.push_back(word->toStdString());
    return backwards;
}

// The commands and what they were given.
class Words {
public:
    Words() {
        _app.require_subcommand(0, 1);
        flag(_app, "--version", _version);
        addPaint(command("paint"));
        addSession(command("session"));
        addShapes(command("shapes"));
        addPreset(command("preset"));
        addDabs(command("dabs"));
        addProperties(command("properties"));
        value(command("help"), "COMMAND", [this](const QString& topic) {
            _help.topic = topic;
            return usageText(topic).isEmpty() ? noCommand(topic, commandNames()) : QString();
        });
    }

    CommandLine read(const QStringList& arguments) {
        std::vector<std::string> words = wordsOf(arguments);
        try {
            _app.parse(words);
        } catch (const CLI::CallForHelp&) {
            return HelpOptions{given(_app)};
        } catch (const CLI::ExtrasError&) {
            return UsageFault{unexpected()};
        } catch (const CLI::RequiredError& fault) {
            return UsageFault{QStringLiteral("%1; see dabpaint help %2")
                                  .arg(QString::fromStdString(fault.what()), given(_app))};
        } catch (const CLI::ParseError& fault) {
            static const QRegularExpression override(
                QStringLiteral("\\A(.*) was given a disallowed flag override\\z"));
            return UsageFault{QString::fromStdString(fault.what())
                                  .replace(override, QStringLiteral("--\\1 takes no value"))};
        }
        if (_version)
            return VersionOptions{};
        return result(given(_app));
    }

private:
    CLI::App& command(const char* name) { return *_app.add_subcommand(name); }

    void addPaint(CLI::App& app) {
        files(app, "RECORDING", _paint.recordings)->required();
        text(app, "-o,--output", _paint.output)->required();
        size(app, _paint.size);
        brush(app, _paint.brush);
        settings(app, _paint.settings);
        background(app, _paint.background);
        count(app, "--undo", 0, [this](qint64 strokes) { _paint.undo = int(strokes); });
        count(app, "--most-dabs", 1, [this](qint64 dabs) { _paint.mostDabs = dabs; });
        flag(app, "--recognise", _paint.recognise);
        flag(app, "--repeatable", _paint.repeatable);
        flag(app, "--stats", _paint.stats);
        seed(app, _paint.seed);
        count(app, "--every", 1, [this](qint64 strokes) { _paint.every = int(strokes); });
        text(app, "--timelapse", _paint.timelapse);
        count(app, "--jobs", 1, [this](qint64 jobs) { _paint.jobs = int(jobs); });
        surface(app, _paint.surface);
    }
    void addSession(CLI::App& app) {
        size(app, _session.size);
        brush(app, _session.brush);
        settings(app, _session.settings);
        background(app, _session.background);
        seed(app, _session.seed);
        text(app, "--record", _session.record);
        surface(app, _session.surface);
    }
    void addShapes(CLI::App& app) {
        files(app, "INPUT", _shapes.inputs);
        text(app, "-o,--output", _shapes.output);
        text(app, "--outlines", _shapes.outlines);
    }
    void addPreset(CLI::App& app) {
        app.require_subcommand(0, 1);
        CLI::App& show = *app.add_subcommand("show");
        files(show, "FILE", _show.files, presetRefusal)->required();
        flag(show, "--json", _show.json);
        CLI::App& make = *app.add_subcommand("make");
        text(make, "-o,--output", _make.output)->required();
        brush(make, _make.brush);
        settings(make, _make.settings);
        name(make, _make.name);
        text(make, "--tip", _make.tip);
        text(make, "--paper", _make.paper);
        for (auto [name, text] :
             {std::pair("--tags", &_make.tags), std::pair("--about", &_make.about),
              std::pair("--author", &_make.author), std::pair("--licence", &_make.licence)})
            value(make, name, [text](const QString& given) {
                *text = given;
                return QString();
            });
        CLI::App& import = *app.add_subcommand("import");
        files(import, "FILE", _import.files, presetRefusal)->required();
        text(import, "-o,--output", _import.output)->required();
        name(import, _import.name);
        CLI::App& preview = *app.add_subcommand("preview");
        files(preview, "FILE", _preview.files, presetRefusal)->required();
        text(preview, "-o,--output", _preview.output)->required();
        size(preview, _preview.size);
        settings(preview, _preview.settings);
        CLI::App& sheet = *app.add_subcommand("sheet");
        files(sheet, "FILE", _sheet.files, presetRefusal)->required();
        text(sheet, "-o,--output", _sheet.output)->required();
        size(sheet, _sheet.size);
        count(sheet, "--across", 1, [this](qint64 presets) { _sheet.across = int(presets); });
        settings(sheet, _sheet.settings);
    }
    void addProperties(CLI::App& app) {
        flag(app, "--json", _properties.json);
        text(app, "--reference", _properties.reference);
    }
    void addDabs(CLI::App& app) {
        text(app, "INPUT", _dabs.input)->required();
        flag(app, "--header", _dabs.header);
    }

    // The name of the command that was given; empty for none.
    static QString given(const CLI::App& app) {
        const auto commands = app.get_subcommands();
        return commands.empty() ? QString() : QString::fromStdString(commands.front()->get_name());
    }

    static QString noCommand(const QString& name, const QStringList& known) {
        return QStringLiteral("there is no command \"%1\"%2").arg(name, closeNamesHint(name, known));
    }

    // The message for the first word that has no place.
    QString unexpected() const {
        const CLI::App* app = &_app;
        while (!app->get_subcommands().empty())
            app = app->get_subcommands().front();
        const QString word = QString::fromStdString(_app.remaining(true).front());
        if (word.startsWith(QLatin1Char('-'))) {
            QStringList known;
            for (const CLI::Option* option : app->get_options())
                known << QString::fromStdString(option->get_name());
            return QStringLiteral("unknown option %1%2").arg(word, closeNamesHint(word, known));
        }
        if (app == &_app)
            return noCommand(word, commandNames());
        if (app->get_name() == "preset")
            return noCommand(QStringLiteral("preset ") + word,
                             {QStringLiteral("preset show"), QStringLiteral("preset make"),
                              QStringLiteral("preset preview"), QStringLiteral("preset sheet"),
                              QStringLiteral("preset import")});
        return QStringLiteral("%1 takes no \"%2\"").arg(QString::fromStdString(app->get_name()), word);
    }

    CommandLine result(const QString& command) const {
        const QString standard = QStringLiteral("-");
        if (command == QLatin1String("paint")) {
            const QString wrong = paintRefusal(_paint);
            return wrong.isEmpty() ? CommandLine(_paint) : CommandLine(UsageFault{wrong});
        }
        if (command == QLatin1String("session"))
            return _session;
        if (command == QLatin1String("shapes") && _shapes.output == standard && _shapes.outlines == standard)
            return UsageFault{
                QStringLiteral("the shapes and their outlines would both go to standard output")};
        if (command == QLatin1String("shapes"))
            return _shapes;
        if (command == QLatin1String("preset"))
            return preset(given(*_app.get_subcommand("preset")));
        if (command == QLatin1String("dabs"))
            return _dabs;
        if (command == QLatin1String("properties") && _properties.json && !_properties.reference.isEmpty())
            return UsageFault{
                QStringLiteral("--json lists, --reference writes a page: one of them at a time")};
        if (command == QLatin1String("properties"))
            return _properties;
        if (command == QLatin1String("help"))
            return _help;
        return UsageFault{
            QStringLiteral("a command is missing: paint, session, shapes, preset, dabs, properties or help")};
    }

    CommandLine preset(const QString& command) const {
        if (command == QLatin1String("show"))
            return _show;
        if (command == QLatin1String("preview"))
            return _preview;
        if (command == QLatin1String("sheet"))
            return _sheet;
        if (command.isEmpty())
            return UsageFault{QStringLiteral("preset needs a command: show, make, preview, sheet or import")};
        const bool imports = command == QLatin1String("import");
        if ((imports ? _import.output : _make.output) == QLatin1String("-"))
            return UsageFault{QStringLiteral("a preset is written to a file, not to standard output")};
        if (imports)
            return _import;
        if (!_make.name && _make.tip.isEmpty())
            return UsageFault{QStringLiteral("--name is required; see dabpaint help preset")};
        return _make;
    }

    CLI::App _app;
    bool _version = false;
    PaintOptions _paint;
    SessionOptions _session;
    ShapesOptions _shapes;
    PresetShowOptions _show;
    PresetMakeOptions _make;
    PresetPreviewOptions _preview;
    PresetImportOptions _import;
    PresetSheetOptions _sheet;
    DabsOptions _dabs;
    PropertiesOptions _properties;
    HelpOptions _help;
};

template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;  // which not every compiler finds by itself

int print(const QByteArray& text) {
    printOut(std::string_view(text.constData(), std::size_t(text.size())));
    return finishOut();
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    return Words().read(arguments);
}

int runDabpaint(const QStringList& arguments) {
    return std::visit(Overloaded{
                          [](const PaintOptions& options) { return runPaint(options); },
                          [](const SessionOptions& options) { return runSession(options); },
                          [](const ShapesOptions& options) { return runShapes(options); },
                          [](const DabsOptions& options) { return runDabs(options); },
                          [](const PresetShowOptions& options) { return runPresetShow(options); },
                          [](const PresetMakeOptions& options) { return runPresetMake(options); },
                          [](const PresetPreviewOptions& options) { return runPresetPreview(options); },
                          [](const PresetImportOptions& options) { return runPresetImport(options); },
                          [](const PresetSheetOptions& options) { return runPresetSheet(options); },
                          [](const PropertiesOptions& options) {
                              return options.reference.isEmpty() ? runProperties(options.json)
                                                                 : writePropertyReference(options.reference);
                          },
                          [](const HelpOptions& options) { return print(usageText(options.topic)); },
                          [](const VersionOptions&) { return print(versionText()); },
                          [](const UsageFault& fault) { return refuse(fault.what); },
                      },
                      readCommandLine(arguments));
}

}  // namespace dabcanvas::dabpaint
