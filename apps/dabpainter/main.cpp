// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <new>

#include "Canvas/QDDrawCanvas.h"
#include "Presets/PresetLibrary.h"
#include "QDEAGLView/QDDrawView.h"
#include "Window/CommandLine.h"
#include "Window/MainWindow.h"
#include "Window/Translations.h"

namespace {

using namespace dabcanvas::dabpainter;

void complain(const QString& what) {
    std::fprintf(stderr, "dabpainter: %s\n", qUtf8Printable(what));
}

int print(const QByteArray& text) {
    const bool printed =
        std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout) == std::size_t(text.size());
    return printed && std::fflush(stdout) == 0 ? 0 : 1;
}

// To the log, and to whoever started this from a menu; nobody could close a box on a platform without a
// display.
int giveUp(const QString& what) {
    complain(what);
    if (QGuiApplication::platformName() != QLatin1String("offscreen") &&
        QGuiApplication::platformName() != QLatin1String("minimal"))
        QMessageBox::critical(nullptr, QStringLiteral("Dabpainter"), what);
    return 1;
}

// Says when a widget was painted for the first time, and ends the program.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(QWidget& watched) : QObject(&watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(print("shown\n")); }, Qt::QueuedConnection);
        return false;
    }
};

int runWindow(const CommandLine& line) {
    // Kept until there is another one, so that what it paints with is made once.
    auto first = QDDrawCanvas::initWithFrame(QRectF(0, 0, 16, 16));
    if (!first)
        return giveUp(QCoreApplication::translate(
            "dabcanvas::dabpainter", "There is nothing to paint with; the log says what is missing."));
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Dabcanvas"),
                       QStringLiteral("dabpainter"));
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    MainWindow window(settings, standardPrompts(), standardPresetFolders(),
                      data.filePath(QStringLiteral("autosave")));
    CanvasPlan plan{.paintsApart = true};
    plan.size = line.size.value_or(plan.size);
    if (!window.startCanvas(plan))
        return 1;
    first.reset();
    if (line.startOnly)
        new FirstPaint(*window.view());
    window.show();
    if (!line.image.isEmpty())
        window.openImage(line.image);
    if (!line.startOnly)
        QTimer::singleShot(0, &window, &MainWindow::offerLeftPictures);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        QStringList arguments;
        for (int i = 1; i < argc; ++i)
            arguments << QFile::decodeName(argv[i]);
        // Before there is an application object, which fails without a display.
        const CommandLine line = readCommandLine(arguments);
        if (!line.fault.isEmpty()) {
            complain(line.fault);
            return 2;
        }
        if (line.help)
            return print(usageText());
        if (line.version)
            return print(versionText());
        QApplication application(argc, argv);
        QApplication::setApplicationName(QStringLiteral("dabpainter"));
        QApplication::setApplicationDisplayName(QStringLiteral("Dabpainter"));
        QApplication::setDesktopFileName(QStringLiteral("org.dabcanvas.dabpainter"));
        QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("dabpainter")));
        installTranslations(application, line.language.isEmpty() ? QLocale() : QLocale(line.language));
        return runWindow(line);
    } catch (const std::bad_alloc&) {
        complain(QStringLiteral("out of memory"));
        return 1;
    }
}
