// SPDX-License-Identifier: MIT
#include "Window/Prompts.h"

#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QImageReader>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "Brush/BrushDrops.h"
#include "Documents/LeftPicturesDialog.h"
#include "PictureKinds.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

QString imageFilter() {
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns << QStringLiteral("*.%1").arg(QString::fromLatin1(format));
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

QString pickSaveName(QWidget* parent, const QString& suggested) {
    const QString others = QStringLiteral("*.") + writtenPictureSuffixes().join(QStringLiteral(" *."));
    return pickName(parent, tr("Save As"), suggested,
                    tr("PNG image (*.png)") + QStringLiteral(";;") + tr("Images (%1)").arg(others),
                    QStringLiteral("png"));
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
    return {askUnsaved,  pickImages,    pickSaveName, pickColor, tell,         confirm,        askName,
            pickBrushes, pickBrushName, showFolder,   pickLeft,  pickPalettes, pickPaletteName};
}

}  // namespace dabcanvas::dabpainter
