// SPDX-License-Identifier: MIT
#include "Prompts.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFileDialog>
#include <QImageReader>
#include <QMessageBox>
#include <QPushButton>

namespace dabcanvas::dabpainter {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Prompts", text);
}

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

QStringList pickImages(QWidget* parent, const QString& title, bool several) {
    if (several)
        return QFileDialog::getOpenFileNames(parent, title, QString(), imageFilter());
    const QString name = QFileDialog::getOpenFileName(parent, title, QString(), imageFilter());
    return name.isEmpty() ? QStringList() : QStringList(name);
}

QString pickSaveName(QWidget* parent, const QString& suggested) {
    // Not getSaveFileName(): it would ask about overwriting before the suffix is added.
    QFileDialog dialog(parent, tr("Save As"), suggested, tr("PNG image (*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    dialog.selectFile(suggested);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QColor pickColor(QWidget* parent, const QColor& now, const QString& title) {
    return QColorDialog::getColor(now, parent, title, QColorDialog::DontUseNativeDialog);
}

void tell(QWidget* parent, const QString& what) {
    QMessageBox::warning(parent, QString(), what);
}

}  // namespace

Prompts standardPrompts() {
    return {askUnsaved, pickImages, pickSaveName, pickColor, tell};
}

}  // namespace dabcanvas::dabpainter
