// SPDX-License-Identifier: MIT
#include "Window/AboutReport.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QInputDevice>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPointingDevice>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
#include <QSysInfo>
#include <QTextBrowser>
#include <QThread>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "Canvas/QDDrawCanvas.h"
#include "Maths/Version.h"

namespace dabcanvas::dabpainter {

namespace {

QString nameOf(SurfaceKind kind) {
    return kind == SurfaceKind::gpu         ? QStringLiteral("graphics card")
           : kind == SurfaceKind::processor ? QStringLiteral("processor")
                                            : QStringLiteral("automatic");
}

QString lineOf(const QScreen& screen) {
    const QSize pixels = screen.size() * screen.devicePixelRatio();
    return QStringLiteral("Screen: %1 x %2 pixels, scale %3, %4 dpi, %5 Hz")
        .arg(pixels.width())
        .arg(pixels.height())
        .arg(screen.devicePixelRatio())
        .arg(qRound(screen.logicalDotsPerInch()))
        .arg(qRound(screen.refreshRate()));
}

QString lineOf(const QInputDevice& device) {
    const auto types = QMetaEnum::fromType<QInputDevice::DeviceTypes>();
    const QString type = QString::fromLatin1(types.valueToKey(int(device.type())));
    // Some window systems count a name's closing zero to it.
    const QString name = device.name().remove(QChar(0)).simplified();
    QStringList can;
    if (device.hasCapability(QInputDevice::Capability::Pressure))
        can << QStringLiteral("pressure");
    if (device.hasCapability(QInputDevice::Capability::XTilt))
        can << QStringLiteral("tilt");
    if (device.hasCapability(QInputDevice::Capability::Rotation))
        can << QStringLiteral("rotation");
    return QStringLiteral("Device: %1, %2%3")
        .arg(name.isEmpty() ? QStringLiteral("without a name") : name, type,
             can.isEmpty() ? QString() : QStringLiteral(", ") + can.join(QStringLiteral(", ")));
}

QStringList deviceLines() {
    QStringList lines;
    for (const QInputDevice* device : QInputDevice::devices()) {
        if (device->type() != QInputDevice::DeviceType::Keyboard && !lines.contains(lineOf(*device)))
            lines << lineOf(*device);
    }
    return lines;
}

// Its pictures are at most as wide as the window is at first, and as sharp as they are.
class GuideBrowser : public QTextBrowser {
public:
    static constexpr int kWidth = 960, kMargin = 60;
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override {
        const QVariant found = QTextBrowser::loadResource(type, name);
        QImage picture;
        if (type != QTextDocument::ImageResource || !picture.loadFromData(found.toByteArray()))
            return found;
        picture.setDevicePixelRatio(std::max(1.0, double(picture.width()) / (kWidth - kMargin)));
        return picture;
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        event->key() == Qt::Key_Escape ? void(close()) : QTextBrowser::keyPressEvent(event);
    }
};

}  // namespace

QString withoutHome(const QString& path) {
    const QString home = QDir::homePath();
    const bool isBelow = home.size() > 1 && (path == home || path.startsWith(home + QLatin1Char('/')));
    return isBelow ? QLatin1Char('~') + path.mid(home.size()) : path;
}

QString aboutReport(QDDrawCanvas* canvas, const QSettings& settings) {
    QStringList lines{
        QStringLiteral("Dabpainter %1").arg(QLatin1String(DABCANVAS_VERSION_STRING)),
        QStringLiteral("Qt: %1, built with %2").arg(QLatin1String(qVersion()), QLatin1String(QT_VERSION_STR)),
        QStringLiteral("System: %1, %2, %3 threads")
            .arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())
            .arg(QThread::idealThreadCount()),
        QStringLiteral("Platform: %1, style %2, locale %3")
            .arg(QGuiApplication::platformName(), QApplication::style()->objectName(), QLocale().name())};
    if (canvas) {
        lines << QStringLiteral("Paints with: %1, %2")
                     .arg(nameOf(canvas->surfaceOptions().kind), canvas->rendererName());
        lines << QStringLiteral("Picture: %1 x %2 pixels")
                     .arg(canvas->bufferSize().width())
                     .arg(canvas->bufferSize().height());
    }
    for (const QScreen* screen : QGuiApplication::screens())
        lines << lineOf(*screen);
    lines += deviceLines();
    lines << QStringLiteral("Settings: %1").arg(withoutHome(settings.fileName()));
    lines << QStringLiteral("Brushes and recovery: %1")
                 .arg(withoutHome(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void showAbout(QWidget* parent, const QString& report) {
    QDialog dialog(parent);
    dialog.setWindowTitle(QCoreApplication::translate("About", "About Dabpainter"));
    auto* says = new QLabel(QCoreApplication::translate("About",
                                                        "Dabpainter %1 paints with natural-media brushes. "
                                                        "Whoever reports a fault may add this:")
                                .arg(QLatin1String(DABCANVAS_VERSION_STRING)));
    says->setWordWrap(true);
    auto* text = new QPlainTextEdit(report);
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setAccessibleName(QCoreApplication::translate("About", "Report"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* copy =
        buttons->addButton(QCoreApplication::translate("About", "&Copy"), QDialogButtonBox::ActionRole);
    QObject::connect(copy, &QPushButton::clicked, &dialog,
                     [report] { QGuiApplication::clipboard()->setText(report); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(says);
    layout->addWidget(text, 1);
    layout->addWidget(buttons);
    dialog.resize(560, 360);
    dialog.exec();
}

QString paintersGuide() {
    const QDir program(QCoreApplication::applicationDirPath());
    const QString path =
        QDir::cleanPath(program.filePath(QStringLiteral("../share/dabcanvas/docs/painter.md")));
    return QFileInfo(path).isFile() ? path : QString();
}

void showPaintersGuide(QWidget* parent) {
    auto* guide = new GuideBrowser(parent);
    guide->setWindowFlag(Qt::Window);
    guide->setAttribute(Qt::WA_DeleteOnClose);
    guide->setWindowTitle(QCoreApplication::translate("About", "Painter's Guide"));
    guide->setOpenExternalLinks(true);
    guide->setSource(QUrl::fromLocalFile(paintersGuide()), QTextDocument::MarkdownResource);
    guide->resize(GuideBrowser::kWidth, 720);
    guide->show();
}

}  // namespace dabcanvas::dabpainter
