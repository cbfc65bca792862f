// SPDX-License-Identifier: MIT
// Everything the application asks its user or says to them, so that tests can answer.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "Documents/Document.h"
#include "Documents/LeftPictures.h"

class QWidget;

namespace dabcanvas::dabpainter {

enum class UnsavedAnswer { save, discard, cancel };
enum class LossAnswer { lose, keep, cancel };  // keep: by another kind of file

struct Prompts {
    std::function<UnsavedAnswer(QWidget*, const QString& name)> askUnsaved;
    std::function<QStringList(QWidget*, const QString& title, bool several)> pickImages;
    std::function<QString(QWidget*, const QString& suggested)> pickSaveName;             // empty: given up
    std::function<QColor(QWidget*, const QColor& now, const QString& title)> pickColor;  // invalid: given up
    std::function<void(QWidget*, const QString& what)> tell;
    // Whether to do what the button says.
    std::function<bool(QWidget*, const QString& question, const QString& detail, const QString& button)>
        confirm;
    std::function<QString(QWidget*, const QString& title, const QString& suggested)>
        askName;  // empty: given up
    std::function<QStringList(QWidget*)> pickBrushes;
    std::function<QString(QWidget*, const QString& suggested)> pickBrushName;  // to save as; empty: given up
    std::function<void(const QString& path)> showFolder;
    // Which one to go on with; none: not now.
    std::function<std::optional<LeftPicture>(QWidget*, const LeftPictures&, const QList<LeftPicture>& now)>
        pickLeft;
    std::function<QStringList(QWidget*)> pickPalettes;
    std::function<QString(QWidget*, const QString& suggested)>
        pickPaletteName;                                          // to save as; empty: given up
    std::function<LossAnswer(QWidget*, Document::Loss)> askLoss;  // in the file that is to be saved
    std::function<QString(QWidget*)> pickRecordingName;           // empty: given up
    std::function<QString(QWidget*, const QString& suggested)> pickTimelapseName;
};

// Message boxes and file dialogs of Qt's own.
Prompts standardPrompts();

}  // namespace dabcanvas::dabpainter
