// SPDX-License-Identifier: MIT
// The pictures of the painter's guide, made by the painter of itself: painter_pictures FOLDER, see tools/painter_pictures.sh.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <cmath>
#include <functional>
#include <numbers>

#include "Canvas/CanvasLayers.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"
#include "Window/Commands.h"
#include "Window/MainWindow.h"

namespace {

using namespace dabcanvas;
using namespace dabcanvas::dabpainter;

QString brushes() {
    return QStringLiteral(DABCANVAS_SAMPLES "/brushes/");
}

// A window with settings of its own, and what a user does to it.
class Session {
public:
    Session(QSize size, const QString& theme)
        : _settings(_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat) {
        _settings.setValue(QStringLiteral("window/theme"), theme);
        _window = std::make_unique<MainWindow>(
            _settings, standardPrompts(), PresetFolders{_folder.filePath(QStringLiteral("own")), {brushes()}},
            _folder.filePath(QStringLiteral("copies")));
        _window->resize(size);
        _window->startCanvas({QSize(1200, 800), QColor(250, 246, 238)});
        _window->show();
        settle();
    }

    MainWindow& window() { return *_window; }
    QDDrawView& view() { return *_window->view(); }
    void call(const char* command) {
        _window->commands().find(QString::fromLatin1(command))->action->trigger();
    }
    void raise(const char* dock) {
        _window->findChild<QDockWidget*>(QString::fromLatin1(dock))->raise();
        settle();
    }
    void choose(const char* brush, const QColor& color, float size = 0) {
        _window->presets().choose({brushes() + QString::fromLatin1(brush) + QStringLiteral(".xbf"), 0});
        _window->brush().setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(color)));
        if (size > 0)
            _window->brush().setValue(BrushKey::radius, size);
    }
    // Along a curve of 0..1, with the pressure there, in buffer pixels.
    using Curve = std::function<std::pair<QPointF, double>(double)>;
    static void drawOn(QDDrawView& view, const Curve& curve) {
        constexpr int kSamples = 60;
        const auto [first, firm] = curve(0);
        view.drawingWithBeginPoint(first, float(firm));
        for (int i = 1; i < kSamples; ++i) {
            const auto [at, pressure] = curve(double(i) / kSamples);
            view.drawingWithMoveToPoint(at, float(pressure));
        }
        const auto [last, pressure] = curve(1);
        view.drawingWithEndPoint(last, float(pressure));
    }
    void stroke(const Curve& curve) { drawOn(view(), curve); }
    QImage picture() {
        settle();
        return _window->grab().toImage();
    }
    // Of the dialog that the command opens, after what is done in it.
    QImage dialog(const char* command, const std::function<void(QWidget&)>& act = {}) {
        QImage picture;
        QTimer::singleShot(400, [&] {
            QWidget* open = QApplication::activeModalWidget();
            if (act)
                act(*open);
            settle();
            picture = open->grab().toImage();
            open->close();
        });
        call(command);
        return picture;
    }
    // Previews are painted while nothing else is to be done.
    static void settle() {
        for (int i = 0; i < 120; ++i) {
            QApplication::processEvents(QEventLoop::AllEvents, 20);
            QThread::msleep(5);
        }
    }

private:
    QTemporaryDir _folder;
    QSettings _settings;
    std::unique_ptr<MainWindow> _window;
};

QString garden() {
    return QStringLiteral(DABCANVAS_SAMPLES "/../docs/images/garden.jpg");
}

void paintStar(Session& session) {
    session.choose("felt-tip", QColor(190, 60, 70), 10);
    session.stroke(
        [](double t) { return std::pair(QPointF(600 + 60 + 230 * t, 400 - 120 * std::sin(3.1 * t)), 0.7); });
    session.choose("round-watercolour", QColor(60, 110, 150), 60);
    session.stroke(
        [](double t) { return std::pair(QPointF(600 + 90 * std::cos(t) + 120 * t, 400 - 150 * t), 0.6); });
    session.choose("technical-pen", QColor(40, 40, 44), 4);
    session.stroke([](double t) {
        return std::pair(QPointF(600 + 320 * t * std::cos(4 * t), 400 - 320 * t * std::sin(4 * t)), 0.7);
    });
}

struct Page {
    const char* name;
    int scale;
    const char* theme;
    QSize size;
    std::function<QImage(Session&)> make;
};

const Page kPages[] = {
    {"window",
     1,
     "light",
     {1280, 800},
     [](Session& session) {
         session.window().openImage(garden());
         return session.picture();
     }},
    {"dark",
     2,
     "dark",
     {1024, 700},
     [](Session& session) {
         session.window().openImage(garden());
         return session.picture();
     }},
    {"layers",
     1,
     "dark",
     {1024, 700},
     [](Session& session) {
         session.window().openImage(garden());
         CanvasLayers layers = session.view().layers();
         layers.add(layers.count(), {.name = QStringLiteral("Glow"), .blendType = ESBlendTypeMultiply});
         layers.setActive(layers.count() - 1);
         session.choose("round-watercolour", QColor(240, 150, 90), 150);
         session.stroke(
             [](double t) { return std::pair(QPointF(300 + 700 * t, 210 + 20 * std::sin(9 * t)), 0.9); });
         session.raise("layerDock");
         return session.picture();
     }},
    {"selection",
     1,
     "light",
     {1024, 700},
     [](Session& session) {
         session.window().openImage(garden());
         const QImage picture(garden());
         QGuiApplication::clipboard()->setImage(picture.copy(
             picture.width() * 2 / 5, picture.height() * 13 / 20, picture.width() / 5, picture.height() / 5));
         session.call("edit.paste");
         return session.picture();
     }},
    {"symmetry",
     1,
     "light",
     {1024, 700},
     [](Session& session) {
         Symmetry symmetry;
         symmetry.kind = SymmetryKind::radial;
         symmetry.rays = 8;
         symmetry.centreX = 600;
         symmetry.centreY = 400;
         session.view().setSymmetry(symmetry);
         paintStar(session);
         return session.picture();
     }},
    {"brushes",
     2,
     "light",
     {1024, 700},
     [](Session& session) {
         session.window().openImage(garden());
         for (const char* dock : {"colourDock", "brushDock", "layerDock"})
             session.window().findChild<QDockWidget*>(QLatin1String(dock))->hide();
         Session::settle();
         return session.window().presets().grab().toImage();
     }},
    {"pressure",
     2,
     "light",
     {1024, 700},
     [](Session& session) {
         return session.dialog("canvas.pressure", [](QWidget& dialog) {
             for (auto* button : dialog.findChildren<QAbstractButton*>()) {
                 if (button->text() == QLatin1String("So&ft"))
                     button->click();
             }
             auto* sheet = dialog.findChild<QDDrawView*>();
             const QSizeF size = sheet->bufferSize();
             sheet->setRadius(24);
             for (int i = 0; i < 3; ++i) {
                 Session::drawOn(*sheet, [&](double t) {
                     return std::pair(
                         QPointF(size.width() * (0.1 + 0.8 * t), size.height() * (0.25 + 0.25 * i)),
                         std::sin(std::numbers::pi * t) * (i + 1) / 3);
                 });
             }
         });
     }},
    {"keys", 1, "dark", {1024, 700}, [](Session& session) { return session.dialog("edit.shortcuts"); }},
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    for (const Page& row : kPages) {
        if (row.scale != int(std::lround(qGuiApp->devicePixelRatio())))
            continue;
        Session session(row.size, QString::fromLatin1(row.theme));
        const QString path = folder.filePath(QStringLiteral("painter-%1.jpg").arg(QLatin1String(row.name)));
        if (!row.make(session).save(path, nullptr, 88)) {
            QTextStream(stderr) << path << " could not be written\n";
            return 1;
        }
    }
}
