// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QRegularExpression>

#include "ImageFiles.h"

namespace dabcanvas::dabpainter {

namespace {

QString takeSize(const QString& text, std::optional<QSize>& size) {
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,9})x([0-9]{1,9})\\z"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return QStringLiteral("--size is WIDTHxHEIGHT in pixels, such as 1600x1000, not \"%1\"").arg(text);
    const QString refusal = sizeRefusal(match.captured(1).toLongLong(), match.captured(2).toLongLong());
    if (!refusal.isEmpty())
        return QStringLiteral("--size: ") + refusal;
    size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    return {};
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    CommandLine line;
    const auto takeImage = [&](const QString& name) {
        if (name.isEmpty())
            line.fault = QStringLiteral("the image's name is empty");
        else if (!line.image.isEmpty())
            line.fault = QStringLiteral("one image can be opened, not \"%1\" as well").arg(name);
        line.image = name;
    };
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size() && line.fault.isEmpty(); ++i) {
        const QString& argument = arguments[i];
        if (optionsEnded || !argument.startsWith(QLatin1Char('-'))) {
            takeImage(argument);
        } else if (argument == QLatin1String("--")) {
            optionsEnded = true;
        } else if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            line.help = true;
        } else if (argument == QLatin1String("--version")) {
            line.version = true;
        } else if (argument == QLatin1String("--size")) {
            if (i + 1 == arguments.size())
                line.fault = QStringLiteral("--size needs a value");
            else
                line.fault = takeSize(arguments[++i], line.size);
        } else if (argument.startsWith(QLatin1String("--size="))) {
            line.fault = takeSize(argument.mid(7), line.size);
        } else {
            line.fault = QStringLiteral("unknown option %1; see dabpainter --help").arg(argument);
        }
    }
    if (line.fault.isEmpty() && line.size && !line.image.isEmpty())
        line.fault = QStringLiteral("--size is for a new canvas; an image has a size of its own");
    return line;
}

QByteArray usageText() {
    return R"(NAME
    dabpainter - paint with natural-media brushes

SYNOPSIS
    dabpainter [IMAGE]
    dabpainter --size WxH
    dabpainter --help | --version

DESCRIPTION
    Opens a window to paint in by mouse, pen or finger: on IMAGE, or on a new
    white canvas. It needs OpenGL 3.2, which a software driver gives too.

OPTIONS
    --size WxH
        Size of the new canvas in pixels, at most 16384 a side and 134217728 in
        all.

EXIT STATUS
    0  the window was closed
    1  there is no OpenGL 3.2, or no canvas of this size
    2  the command line is wrong
)";
}

QByteArray versionText() {
    return "dabpainter " DABPAINTER_VERSION "\n";
}

}  // namespace dabcanvas::dabpainter
