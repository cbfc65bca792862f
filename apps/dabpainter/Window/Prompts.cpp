// SPDX-License-Identifier: MIT
#include "Window/Prompts.h"

#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>

#include "Brush/BrushDrops.h"
#include "Documents/ImageFiles.h"
#include "Documents/LeftPicturesDialog.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

QString imageFilter() {
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns << QStringLiteral("*.%1").arg(QString::fromLatin1(format));
    for (const QString& saved : savedSuffixes()) {
        const QString pattern = QStringLiteral("*.") + saved;
        if (!patterns.contains(pattern))
            patterns << pattern;
    }
    return tr("Images (%1)").arg(patterns.join(QLatin1Char(' '))) + QStringLiteral(";;") +
           tr("All files (*)");
}

UnsavedAnswer askUnsaved(QWidget* parent, const QString& name) {
    QMessageBox box(QMessageBox::Warning, QString(), tr("\"%1\" has changes that are not saved.").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
    box.setInformativeText(tr("Save them?"));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
        case QMessageBox::Save:
            return UnsavedAnswer::save;
        case QMessageBox::Discard:
            return UnsavedAnswer::discard;
        default:
            return UnsavedAnswer::cancel;
    }
}

LossAnswer askLoss(QWidget* parent, Document::Loss loss) {
    const bool ofLayers = loss == Document::Loss::layers;
    QMessageBox box(
        QMessageBox::Question, QString(),
        ofLayers ? tr("This kind of file has no layers.") : tr("This kind of file cannot be seen through."),
        QMessageBox::Cancel, parent);
    box.setInformativeText(ofLayers ? tr("It shows all of them together. They stay here as long as this "
                                         "picture is open, and an OpenRaster file keeps them.")
                                    : tr("What is transparent is filled with the paper's colour. A PNG file "
                                         "keeps it."));
    QPushButton* lose =
        box.addButton(ofLayers ? tr("Save Flattened") : tr("Save Filled"), QMessageBox::AcceptRole);
    QPushButton* keep = !ofLayers ? box.addButton(tr("Save as PNG…"), QMessageBox::AcceptRole)
                        : savedSuffixes().first() == QLatin1String("ora")
                            ? box.addButton(tr("Save as OpenRaster…"), QMessageBox::AcceptRole)
                            : nullptr;
    box.setDefaultButton(keep ? keep : lose);
    box.exec();
    return !box.clickedButton()          ? LossAnswer::cancel
           : box.clickedButton() == lose ? LossAnswer::lose
           : box.clickedButton() == keep ? LossAnswer::keep
                                         : LossAnswer::cancel;
}

bool confirm(QWidget* parent, const QString& question, const QString& detail, const QString& button) {
    QMessageBox box(QMessageBox::Question, QString(), question, QMessageBox::Cancel, parent);
    box.setInformativeText(detail);
    QPushButton* yes = box.addButton(button, QMessageBox::AcceptRole);
    box.setDefaultButton(yes);
    box.exec();
    return box.clickedButton() == yes;
}

QStringList pickImages(QWidget* parent, const QString& title, bool several) {
    if (several)
        return QFileDialog::getOpenFileNames(parent, title, QString(), imageFilter());
    const QString name = QFileDialog::getOpenFileName(parent, title, QString(), imageFilter());
    return name.isEmpty() ? QStringList() : QStringList(name);
}

QString pickName(QWidget* parent, const QString& title, const QString& suggested, const QString& filter,
                 const QString& suffix) {
    // Not getSaveFileName(): it would ask about overwriting before the suffix is added.
    QFileDialog dialog(parent, title, suggested, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(suggested);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString nameOfKind(const QString& suffix) {
    const struct {
        const char *suffix, *name;
    } kinds[] = {{"ora", QT_TRANSLATE_NOOP("dabcanvas::dabpainter", "OpenRaster, with layers (*.ora)")},
                 {"png", QT_TRANSLATE_NOOP("dabcanvas::dabpainter", "PNG image (*.png)")},
                 {"jpg", QT_TRANSLATE_NOOP("dabcanvas::dabpainter", "JPEG image (*.jpg *.jpeg)")},
                 {"webp", QT_TRANSLATE_NOOP("dabcanvas::dabpainter", "WebP image, lossless (*.webp)")}};
    for (const auto& kind : kinds) {
        if (suffix == QLatin1String(kind.suffix))
            return tr(kind.name);
    }
    return {};
}

// One a kind, and all others together.
QStringList saveFilters() {
    QStringList filters, others;
    for (const QString& suffix : savedSuffixes()) {
        const QString name = nameOfKind(suffix);
        if (!name.isEmpty())
            filters << name;
        else if (suffix != QLatin1String("jpeg"))
            others << QStringLiteral("*.") + suffix;
    }
    return filters << tr("Other images (%1)").arg(others.join(QLatin1Char(' ')));
}

QString firstSuffixOf(const QString& filter) {
    static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w+)"));
    return pattern.match(filter).captured(1);
}

// Not getSaveFileName(): it would ask about overwriting before the suffix is added.
QString pickSaveName(QWidget* parent, const QString& suggested) {
    QFileDialog dialog(parent, tr("Save As"), suggested);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(saveFilters());
    QString suffix = QFileInfo(suggested).suffix().toLower();
    suffix = suffix == QLatin1String("jpeg") ? QStringLiteral("jpg") : suffix;
    for (const QString& filter : dialog.nameFilters()) {
        if (firstSuffixOf(filter) == suffix)
            dialog.selectNameFilter(filter);
    }
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(QFileInfo(suggested).fileName());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        const QFileInfo named(dialog.selectedFiles().value(0));
        dialog.setDefaultSuffix(firstSuffixOf(filter));
        if (savedSuffixes().contains(named.suffix().toLower()))
            dialog.selectFile(named.completeBaseName() + QLatin1Char('.') + firstSuffixOf(filter));
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString pickBrushName(QWidget* parent, const QString& suggested) {
    return pickName(parent, tr("Export Brush"), suggested, tr("Brush (*.xbf)"), QStringLiteral("xbf"));
}

QStringList pickBrushes(QWidget* parent) {
    return QFileDialog::getOpenFileNames(
        parent, tr("Import Brushes"), QString(),
        tr("Brushes (*.xbf %1)").arg(foreignBrushPatterns()) + QStringLiteral(";;") + tr("All files (*)"));
}

QStringList pickPalettes(QWidget* parent) {
    return QFileDialog::getOpenFileNames(
        parent, tr("Import Palettes"), QString(),
        tr("GIMP palettes (*.gpl)") + QStringLiteral(";;") + tr("All files (*)"));
}

QString pickPaletteName(QWidget* parent, const QString& suggested) {
    return pickName(parent, tr("Export Palette"), suggested, tr("GIMP palette (*.gpl)"),
                    QStringLiteral("gpl"));
}

QString pickRecordingName(QWidget* parent) {
    return pickName(parent, tr("Export Recording"), QStringLiteral("session.jsonl"),
                    tr("Recording (*.jsonl)"), QStringLiteral("jsonl"));
}

// Any other suffix, and none, is a folder.
QString pickTimelapseName(QWidget* parent, const QString& suggested) {
    return pickName(parent, tr("Export Time-Lapse"), suggested,
                    tr("Animated WebP (*.webp)") + QStringLiteral(";;") + tr("Folder of pictures (*)"),
                    QString());
}

QString askName(QWidget* parent, const QString& title, const QString& suggested) {
    return QInputDialog::getText(parent, title, tr("Name:"), QLineEdit::Normal, suggested);
}

void showFolder(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QColor pickColor(QWidget* parent, const QColor& now, const QString& title) {
    return QColorDialog::getColor(now, parent, title, QColorDialog::DontUseNativeDialog);
}

void tell(QWidget* parent, const QString& what) {
    QMessageBox::warning(parent, QString(), what);
}

std::optional<LeftPicture> pickLeft(QWidget* parent, const LeftPictures& left,
                                    const QList<LeftPicture>& now) {
    LeftPicturesDialog dialog(left, now, parent);
    return dialog.exec() == QDialog::Accepted ? dialog.chosen() : std::nullopt;
}

}  // namespace

Prompts standardPrompts() {
    return {askUnsaved,      pickImages,  pickSaveName,      pickColor,        tell,     confirm,
            askName,         pickBrushes, pickBrushName,     showFolder,       pickLeft, pickPalettes,
            pickPaletteName, askLoss,     pickRecordingName, pickTimelapseName};
}

}  // namespace dabcanvas::dabpainter
