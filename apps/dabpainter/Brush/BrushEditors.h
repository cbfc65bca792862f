// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>
#include <QWidget>

#include "Brush/BrushPresentation.h"
#include "Window/Prompts.h"

namespace dabcanvas::dabpainter {

// Edits one brush property, whatever its type. Values are as BrushModel holds them.
class BrushEditor : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    // Shows a value; does not report it back.
    virtual void setValue(const QVariant& value) = 0;
    // For whoever cannot see its label: every part of it that the keyboard gets to is called so.
    virtual void setName(const QString& name);

signals:
    void edited(const QVariant& value);
    // The user wants nothing of his own here any more.
    void cleared();
};

// labelWidth: of a control's own labels, so that they stand in line with the panel's. The prompts must
// outlive the editor.
BrushEditor* makeBrushEditor(const BrushProperty& property, const Prompts& prompts, int labelWidth,
                             QWidget* parent);

}  // namespace dabcanvas::dabpainter
