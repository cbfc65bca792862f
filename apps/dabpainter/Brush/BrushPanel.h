// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

#include "Brush/BrushEditors.h"
#include "Brush/BrushModel.h"

class QLabel;
class QPushButton;
class QSettings;
class QToolButton;
class QVBoxLayout;

namespace dabcanvas::dabpainter {

// A property's label, editor and reset button.
class BrushRow : public QWidget {
    Q_OBJECT

public:
    BrushRow(const BrushProperty& property, BrushModel& model, const Prompts& prompts, int labelWidth,
             QWidget* parent = nullptr);

    BrushKey key() const { return _property.key; }
    BrushEditor* editor() const { return _editor; }
    QToolButton* resetButton() const { return _reset; }
    // Whether every word of the text occurs in label, name or description.
    bool matches(const QString& text) const;

private:
    void edit(const QVariant& value);
    void refresh();
    void refreshReset();

    const BrushProperty& _property;
    BrushModel& _model;
    QString _label;
    BrushEditor* _editor;
    QToolButton* _reset;
};

// The rows of one group under a title that folds them away.
class BrushSection : public QWidget {
    Q_OBJECT

public:
    BrushSection(BrushGroup group, QWidget* parent = nullptr);
    void add(BrushRow* row);
    // Shows what matches; folded sections open while there is something to look for.
    void filter(const QString& text);
    BrushGroup group() const { return _group; }
    bool isOpen() const { return _open; }
    void setOpen(bool open);

signals:
    void opened(bool open);  // or closed, by the user

private:
    void layOut();

    BrushGroup _group;
    QToolButton* _title;
    QWidget* _body;
    std::vector<BrushRow*> _rows;
    QString _filter;
    bool _open = true;
};

// All brush settings, made from the property table: a property added there appears here. Model and prompts
// must outlive the panel.
class BrushPanel : public QWidget {
    Q_OBJECT

public:
    BrushPanel(BrushModel& model, const Prompts& prompts, QWidget* parent = nullptr);

    const std::vector<BrushRow*>& rows() const { return _rows; }
    void filter(const QString& text);
    // Which sections are open.
    void readState(QSettings& settings);
    void writeState(QSettings& settings) const;

signals:
    void swapColors();
    void eyedropper();
    void stateChanged();  // what writeState() writes

private:
    BrushRow* makeRow(const BrushProperty& property);
    QWidget* makeTop();
    QWidget* makeGroups();
    QWidget* makeScroll();
    void nameReset();

    BrushModel& _model;
    const Prompts& _prompts;
    int _labelWidth = 0;
    std::vector<BrushRow*> _rows, _topRows;
    std::vector<BrushSection*> _sections;
    QWidget *_sample, *_colorButtons = nullptr;
    QLabel* _nothing;
    QPushButton* _resetAll;
};

}  // namespace dabcanvas::dabpainter
