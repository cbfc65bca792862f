// SPDX-License-Identifier: MIT
// The application's window, with a user who answers as the test says.
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <memory>
#include <optional>

#include "Brush/BrushModel.h"
#include "History/UndoRecovery.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasViewport.h"
#include "Window/MainWindow.h"
#include "support/BrushValues.h"
#include "support/Files.h"

namespace dabcanvas::dabpainter {

// Where another process's painter has its files.
inline constexpr const char* kFolderVariable = "DABPAINTER_TEST_FOLDER";

class PainterTest : public ::testing::Test {
protected:
    void SetUp() override {
        UndoRecovery::setFolder(path("recovery"));
        _settings.emplace(path("settings.ini"), QSettings::IniFormat);
        makeWindow();
    }

    void makeWindow() {
        Prompts prompts;
        prompts.askUnsaved = [this](QWidget*, const QString&) {
            ++_asked;
            return _answer;
        };
        prompts.pickImages = [this](QWidget*, const QString&, bool) { return _images; };
        prompts.pickSaveName = [this](QWidget*, const QString&) { return _saveName; };
        prompts.pickColor = [](QWidget*, const QColor&, const QString&) { return QColor(40, 200, 120); };
        prompts.tell = [this](QWidget*, const QString& what) { _told << what; };
        prompts.confirm = [this](QWidget*, const QString& question, const QString&, const QString&) {
            _questions << question;
            return _confirmed;
        };
        prompts.askName = [this](QWidget*, const QString&, const QString&) { return _name; };
        prompts.pickBrushes = [this](QWidget*) { return _images; };
        prompts.pickBrushName = [this](QWidget*, const QString&) { return _saveName; };
        prompts.pickPalettes = [this](QWidget*) { return _images; };
        prompts.pickPaletteName = [this](QWidget*, const QString&) { return _saveName; };
        prompts.showFolder = [](const QString&) {};
        prompts.pickLeft = [this](QWidget*, const LeftPictures&, const QList<LeftPicture>& pictures) {
            _offered = int(pictures.size());
            return std::optional(pictures.first());
        };
        prompts.pickRecordingName = [this](QWidget*) { return _saveName; };
        prompts.pickTimelapseName = [this](QWidget*, const QString&) { return _saveName; };
        prompts.askLoss = [this](QWidget*, Document::Loss loss) {
            _losses.push_back(loss);
            return _lossAnswer;
        };
        _window.reset();
        _window = std::make_unique<MainWindow>(
            *_settings, prompts, PresetFolders{path("brushes"), {path("installed")}}, path("copies"));
        _window->resize(1000, 700);
        if (!_window->startCanvas({QSize(200, 150), Qt::white})) {
            ADD_FAILURE() << "no canvas could be made; no test of this program can run without OpenGL";
            std::abort();
        }
        _window->show();
        settle();
    }

    static void settle() { QApplication::processEvents(); }

    QString path(const QString& name) const {
        return qEnvironmentVariable(kFolderVariable, _folder.path()) + QLatin1Char('/') + name;
    }

    QString savedImage(const QString& name, const QColor& color, QSize size = QSize(24, 16)) const {
        return savedPicture(path(name), color, size);
    }

    void paint() {
        QDDrawView& view = *_window->view();
        const QSizeF scale = view.scale();
        const auto at = [&](double x, double y) { return QPointF(x * scale.width(), y * scale.height()); };
        view.drawingWithBeginPoint(at(40, 75));
        for (int x = 50; x < 160; x += 10)
            view.drawingWithMoveToPoint(at(x, 75));
        view.drawingWithEndPoint(at(160, 75));
    }

    QTemporaryDir _folder;
    std::optional<QSettings> _settings;
    UnsavedAnswer _answer = UnsavedAnswer::cancel;
    QStringList _images, _told, _questions;
    QString _saveName, _name;
    bool _confirmed = true;
    LossAnswer _lossAnswer = LossAnswer::lose;
    std::vector<Document::Loss> _losses;
    int _asked = 0, _offered = 0;
    std::unique_ptr<MainWindow> _window;
};

// A value of the property that is neither its default nor the present one.
inline QVariant otherValue(const BrushProperty& property, const QVariant& now) {
    if (property.type() == BrushValueType::text)
        return "other";
    const QVariant one = someValue(property, 2);
    return one == now ? someValue(property, 1) : one;
}

// Whether it comes to hold in so many milliseconds.
template <typename Holds>
bool waitFor(const Holds& holds, int milliseconds) {
    const QDeadlineTimer patience(milliseconds);
    while (!holds() && !patience.hasExpired()) {
        QThread::msleep(2);
        QApplication::processEvents();
    }
    return holds();
}

// As the window system would.
inline void sendMouse(QWidget& to, QEvent::Type type, QPointF at, Qt::KeyboardModifiers held = {}) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, to.mapToGlobal(at), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, held);
    QApplication::sendEvent(&to, &event);
}

inline void sendKey(QWidget& to, int key, Qt::KeyboardModifiers held = {}, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, held, text);
        QApplication::sendEvent(&to, &event);
    }
}

}  // namespace dabcanvas::dabpainter
