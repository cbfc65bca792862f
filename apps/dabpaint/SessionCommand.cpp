// SPDX-License-Identifier: MIT
#include "SessionCommand.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <iostream>
#include <memory>
#include <random>
#include <string>

#include "BrushFile.h"
#include "BrushPlan.h"
#include "Console.h"
#include "LogCatcher.h"
#include "OutputFile.h"
#include "PictureKinds.h"
#include "Recording/CanvasRecorder.h"
#include "Recording/RecordingPlayer.h"
#include "Recording/RecordingReader.h"
#include "Recording/RecordingWriter.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

// What a line that is no part of a recording says: one member, and what it is about.
struct Command {
    QString name;
    QJsonValue about;
};

std::optional<Command> commandOf(const QByteArray& line) {
    for (const char* name : {"set", "preset", "save", "look"}) {
        if (line.contains('"' + QByteArray(name) + '"')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (object.size() == 1 && object.contains(QLatin1String(name)))
                return Command{QLatin1String(name), object.begin().value()};
        }
    }
    return std::nullopt;
}

SettingValue settingOf(const QJsonValue& value) {
    if (value.isBool())
        return value.toBool();
    if (value.isDouble())
        return value.toDouble();
    if (value.isString())
        return value.toString();
    std::vector<double> numbers;
    QStringList texts;
    for (const QJsonValue& part : value.toArray()) {
        if (part.isString())
            texts << part.toString();
        else
            numbers.push_back(part.toDouble());
    }
    if (texts.isEmpty())
        return numbers;
    return texts;
}

class Session {
public:
    // Begins the canvas's random numbers, too.
    Session(std::unique_ptr<QDDrawCanvas> canvas, std::uint32_t seed) : _canvas(std::move(canvas)) {
        _nothing.header.size = _canvas->bufferSize().toSize();
        _nothing.header.seed = seed;
        _player.emplace(_nothing, *_canvas);
        _player->begin();
    }

    // One line's answer.
    QJsonObject answer(const QByteArray& line, int number) {
        QJsonObject said;
        const LogCatcher log;
        const auto command = commandOf(line);
        const QString wrong = command ? obey(*command, said) : enter(line, number);
        said.insert(QStringLiteral("line"), number);
        if (wrong.isEmpty()) {
            said.insert(QStringLiteral("ok"), true);
            said.insert(QStringLiteral("dabs"), qint64(_canvas->strokeStats().dabs));
        } else {
            said.insert(QStringLiteral("error"), wrong);
        }
        return said;
    }

private:
    // What recordings hold. Strokes, images and clears are steps to undo.
    QString enter(const QByteArray& line, int number) {
        const auto events = _reader.readLine(line, number);
        if (!events) {
            const Problem& problem = events.problem();
            return problem.element.isEmpty() ? problem.what
                                             : problem.element + QStringLiteral(": ") + problem.what;
        }
        for (const RecordedEvent& event : *events) {
            if (!_player->play(event))
                return _player->problem();
            if (!std::holds_alternative<RecordedCall>(event.what) && !_canvas->isDrawing())
                _canvas->markAction();
        }
        return {};
    }

    QString obey(const Command& command, QJsonObject& said) {
        if (command.name == QLatin1String("set"))
            return set(command.about.toObject());
        if (command.name == QLatin1String("save"))
            return save(command.about.toString());
        if (command.name == QLatin1String("look"))
            return look(command.about.toArray(), said);
        const QString path = command.about.toString();
        const auto brush = readBrush(path);
        if (!brush)
            return brush.problem().text(path);
        (*brush)->applyTo(*_canvas);
        return {};
    }

    // As the strokes of a JSON recording set them, images by their paths.
    QString set(const QJsonObject& properties) {
        for (auto member = properties.begin(); member != properties.end(); ++member) {
            const BrushProperty* property = brushPropertyNamed(member.key());
            if (!property)
                return unknownProperty(member.key());
            const Setting setting{member.key(), settingOf(member.value()), 0, {}};
            const auto value = propertyValueFromSetting(*property, setting, QString());
            if (!value || !_canvas->setBrushValue(*property, *value))
                return member.key() + QStringLiteral(": ") +
                       (value ? QStringLiteral("refused") : value.problem().what);
        }
        return {};
    }

    QString save(const QString& path) {
        QString wrong = path.isEmpty() || path == QLatin1String("-")
                            ? QStringLiteral("a picture is saved to a file")
                            : pictureKindRefusal(path);
        QByteArray bytes;
        if (wrong.isEmpty())
            wrong = encodePicture(_canvas->image(), path, bytes);
        OutputFile file(path);
        if (wrong.isEmpty() && !file.write(bytes))
            wrong = QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString());
        return wrong;
    }

    // A part of the canvas, all of it when none is named, as PNG in base64.
    QString look(const QJsonArray& part, QJsonObject& said) {
        QRect rect(QPoint(), _canvas->bufferSize().toSize());
        if (!part.isEmpty())
            rect &= QRect(part.at(0).toInt(), part.at(1).toInt(), part.at(2).toInt(), part.at(3).toInt());
        if (rect.isEmpty())
            return QStringLiteral("look: expected [x, y, width, height] on the canvas");
        QByteArray bytes;
        const QString wrong = encodePicture(_canvas->image().copy(rect), QStringLiteral("look.png"), bytes);
        said.insert(QStringLiteral("png"), QString::fromLatin1(bytes.toBase64()));
        return wrong;
    }

    std::unique_ptr<QDDrawCanvas> _canvas;
    Recording _nothing;  // but a header: every event comes by itself
    std::optional<RecordingPlayer> _player;
    RecordingReader _reader;
};

// What the command line says of the canvas; the message when something is wrong.
QString prepare(const SessionOptions& options, QDDrawCanvas& canvas) {
    BrushPlan plan;
    QString wrong = plan.fix(options.settings);
    if (!wrong.isEmpty())
        return wrong;
    canvas.clearWithColor(ESColor(options.background.value_or(Qt::white)), false);
    if (!options.brush.isEmpty()) {
        const auto brush = readBrush(options.brush);
        if (!brush)
            return brush.problem().text(options.brush);
        (*brush)->applyTo(canvas);
    }
    for (const BrushPlan::Step& step : plan.fixed()) {
        if (!canvas.setBrushValue(*step.property, *step.value))
            return QStringLiteral("the canvas does not take this value of %1")
                .arg(QLatin1String(step.property->name));
    }
    canvas.resetUndoManager();
    return {};
}

int answerAll(Session& session) {
    std::string line;
    for (int number = 1; std::getline(std::cin, line); ++number) {
        const QByteArray text = QByteArray::fromStdString(line);
        if (text.trimmed().isEmpty())
            continue;
        const QByteArray answer =
            QJsonDocument(session.answer(text, number)).toJson(QJsonDocument::Compact) + '\n';
        if (!printOut(std::string_view(answer.constData(), std::size_t(answer.size()))) || !flushOut())
            break;
    }
    return finishOut();
}

}  // namespace

int runSession(const SessionOptions& options) {
    auto canvas = makeCanvas(options.size, options.surface);
    if (!canvas)
        return fail(canvas.problem().what);
    QDDrawCanvas& paints = **canvas;
    if (const QString wrong = prepare(options, paints); !wrong.isEmpty())
        return fail(wrong);
    QFile file(options.record);
    if (!options.record.isEmpty() && !file.open(QIODevice::WriteOnly))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.record, file.errorString()));
    RecordingWriter writer(file);
    const std::uint32_t seed = options.seed ? *options.seed : std::uint32_t(std::random_device()());
    Session session(std::move(*canvas), seed);
    std::unique_ptr<CanvasRecorder> recorder;
    if (file.isOpen()) {
        recorder = CanvasRecorder::start(paints, writer, seed);
        if (!recorder)
            return fail(QStringLiteral("the canvas cannot be recorded"));
    }
    const int status = answerAll(session);
    recorder.reset();
    if (file.isOpen() && !(writer.finish() && file.flush()))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.record, file.errorString()));
    return status;
}

}  // namespace dabcanvas::dabpaint
