// SPDX-License-Identifier: MIT
#include "Window/CommandLine.h"

#include <QCommandLineParser>
#include <QLocale>
#include <QRegularExpression>

#include "Documents/ImageFiles.h"
#include "Maths/Version.h"

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

QString imageFault(const QStringList& names, bool sized) {
    if (names.size() > 1)
        return QStringLiteral("one image can be opened, not \"%1\" as well").arg(names[1]);
    if (names.contains(QString()))
        return QStringLiteral("the image's name is empty");
    return sized && !names.isEmpty()
               ? QStringLiteral("--size is for a new canvas; an image has a size of its own")
               : QString();
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    const QString help = QStringLiteral("help"), version = QStringLiteral("version"),
                  size = QStringLiteral("size"), language = QStringLiteral("language"),
                  startOnly = QStringLiteral("start-only");
    parser.addOptions({{{QStringLiteral("h"), help}, QString()},
                       {version, QString()},
                       {startOnly, QString()},
                       {size, QString(), size},
                       {language, QString(), language}});
    CommandLine line;
    // The parser expects the program's name first.
    if (!parser.parse(QStringList(QStringLiteral("dabpainter")) + arguments)) {
        line.fault = QStringLiteral("%1; see dabpainter --help").arg(parser.errorText().chopped(1));
        return line;
    }
    line.help = parser.isSet(help);
    line.version = parser.isSet(version);
    line.startOnly = parser.isSet(startOnly);
    line.image = parser.positionalArguments().value(0);
    line.language = parser.value(language);
    if (parser.isSet(language) && QLocale(line.language).language() == QLocale::C)
        line.fault =
            QStringLiteral("--language is a language such as de or zh_CN, not \"%1\"").arg(line.language);
    if (parser.isSet(size))
        line.fault = takeSize(parser.value(size), line.size);
    if (line.fault.isEmpty())
        line.fault = imageFault(parser.positionalArguments(), line.size.has_value());
    return line;
}

QByteArray usageText() {
    return R"(NAME
    dabpainter - paint with natural-media brushes

SYNOPSIS
    dabpainter [--language LANGUAGE] [IMAGE]
    dabpainter [--language LANGUAGE] --size WxH
    dabpainter --help | --version

DESCRIPTION
    Opens a window to paint in by mouse, pen or finger: on IMAGE, or on a new
    white canvas. It paints with a GPU where there is one.

    Pictures are opened and saved as OpenRaster (.ora), which keeps layers,
    PNG, JPEG, WebP and the other kinds that Qt knows; the suffix decides.

OPTIONS
    --size WxH
        Size of the new canvas in pixels, at most 16384 a side and 134217728 in
        all.

    --language LANGUAGE
        Speaks de, fr, ja, zh_CN or en instead of the system's language.

EXIT STATUS
    0  the window was closed
    1  there is no canvas of this size
    2  the command line is wrong
)";
}

QByteArray versionText() {
    return "dabpainter " DABCANVAS_VERSION_STRING "\n";
}

}  // namespace dabcanvas::dabpainter
