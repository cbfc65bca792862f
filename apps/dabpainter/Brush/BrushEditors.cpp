// SPDX-License-Identifier: MIT
#include "Brush/BrushEditors.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <cmath>

#include "Documents/ImageFiles.h"
#include "Window/Translations.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMostTips = 16;
// A dab is never drawn larger, and what is kept is remembered from run to run.
constexpr int kMostTipSide = 1280;

QHBoxLayout* lineLayout(QWidget* widget) {
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

void nameStops(QWidget& parent, const QString& name) {
    for (QWidget* stop : parent.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<QPushButton*>(stop);  // that says what it does, and not with what
        if ((stop->focusPolicy() & Qt::TabFocus) && !stop->focusProxy())
            stop->setAccessibleName(button ? name + QStringLiteral(": ") + button->text() : name);
    }
}

class BooleanEditor : public BrushEditor {
public:
    explicit BooleanEditor(QWidget* parent) : BrushEditor(parent), _box(new QCheckBox) {
        lineLayout(this)->addWidget(_box);
        setFocusProxy(_box);
        connect(_box, &QCheckBox::toggled, this, [this](bool on) { emit edited(on); });
    }
    void setValue(const QVariant& value) override {
        const QSignalBlocker quiet(_box);
        _box->setChecked(value.toBool());
    }

private:
    QCheckBox* _box;
};

class NumberEditor : public BrushEditor {
public:
    NumberEditor(const BrushProperty& property, QWidget* parent)
        : BrushEditor(parent), _field(new NumberField(brushPresentation(property))) {
        lineLayout(this)->addWidget(_field);
        setFocusProxy(_field);
        const bool whole = property.type() == BrushValueType::integer;
        connect(_field, &NumberField::edited, this, [this, whole](double number) {
            emit edited(whole ? QVariant(int(std::lround(number))) : QVariant(float(number)));
        });
    }
    void setValue(const QVariant& value) override { _field->setValue(value.toDouble()); }

private:
    NumberField* _field;
};

class ChoiceEditor : public BrushEditor {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::ChoiceEditor)

public:
    ChoiceEditor(const BrushProperty& property, QWidget* parent) : BrushEditor(parent), _box(new QComboBox) {
        lineLayout(this)->addWidget(_box);
        setFocusProxy(_box);
        guardFromWheel(_box);
        for (const BrushChoice& choice : brushChoices(property))
            _box->addItem(choiceLabel(choice), choice.value);
        _named = _box->count();
        connect(_box, &QComboBox::currentIndexChanged, this, [this](int index) {
            if (index >= 0)
                emit edited(_box->itemData(index).toInt());
        });
    }
    void setValue(const QVariant& value) override {
        const QSignalBlocker quiet(_box);
        // A value that has no name stays visible as what it is.
        while (_box->count() > _named)
            _box->removeItem(_box->count() - 1);
        const int known = _box->findData(value.toInt());
        if (known < 0)
            _box->addItem(tr("Other (%1)").arg(value.toInt()), value.toInt());
        _box->setCurrentIndex(known < 0 ? _box->count() - 1 : known);
    }

private:
    QComboBox* _box;
    int _named = 0;
};

class ControlEditor : public BrushEditor {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::ControlEditor)

public:
    ControlEditor(int labelWidth, QWidget* parent) : BrushEditor(parent) {
        auto* grid = new QGridLayout(this);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setVerticalSpacing(2);
        grid->setColumnMinimumWidth(0, labelWidth);
        grid->setColumnStretch(1, 1);
        const QString names[] = {tr("Pressure"), tr("Tilt"), tr("Speed")};
        for (int i = 0; i < 3; ++i) {
            auto* label = new QLabel(names[i]);
            label->setIndent(14);
            _fields[i] = new NumberField(controlPresentation());
            label->setBuddy(_fields[i]);
            grid->addWidget(label, i, 0);
            grid->addWidget(_fields[i], i, 1);
            connect(_fields[i], &NumberField::edited, this, [this, i](double number) {
                (i == 0 ? _value.pressure : i == 1 ? _value.altitude : _value.speed) = float(number);
                emit edited(QVariant::fromValue(_value));
            });
        }
        setFocusProxy(_fields[0]);
    }
    void setName(const QString& name) override {
        const QString names[] = {tr("Pressure"), tr("Tilt"), tr("Speed")};
        for (int i = 0; i < 3; ++i)
            nameStops(*_fields[i], tr("%1 by %2").arg(name, names[i]));
    }
    void setValue(const QVariant& value) override {
        _value = value.value<LPControlParams>();
        _fields[0]->setValue(double(_value.pressure));
        _fields[1]->setValue(double(_value.altitude));
        _fields[2]->setValue(double(_value.speed));
    }

private:
    LPControlParams _value{};
    NumberField* _fields[3];
};

class ColorEditor : public BrushEditor {
public:
    ColorEditor(const QString& label, const Prompts& prompts, QWidget* parent)
        : BrushEditor(parent), _button(new SwatchButton) {
        lineLayout(this)->addWidget(_button);
        setFocusProxy(_button);
        connect(_button, &SwatchButton::clicked, this, [this, label, &prompts] {
            const QColor color = prompts.pickColor(window(), _button->color(), label);
            if (color.isValid())
                emit edited(QVariant::fromValue(ESColor(color)));
        });
    }
    void setValue(const QVariant& value) override { _button->setColor(value.value<ESColor>().toQColor()); }

private:
    SwatchButton* _button;
};

class ImagesEditor : public BrushEditor {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::ImagesEditor)

public:
    ImagesEditor(const BrushProperty& property, const Prompts& prompts, QWidget* parent)
        : BrushEditor(parent),
          _several(property.type() == BrushValueType::images),
          _strip(new ThumbnailStrip) {
        auto* load = new QPushButton(tr("Load…"));
        auto* clear = new QPushButton(tr("Clear"));
        load->setObjectName(QStringLiteral("load"));
        clear->setObjectName(QStringLiteral("clear"));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(4);
        layout->addWidget(_strip);
        auto* buttons = new QHBoxLayout;
        buttons->addWidget(load, 1);
        buttons->addWidget(clear, 1);
        layout->addLayout(buttons);
        setFocusProxy(load);
        const QString title = brushPresentation(property).label;
        connect(load, &QPushButton::clicked, this, [this, title, &prompts] { pick(title, prompts); });
        connect(clear, &QPushButton::clicked, this, &BrushEditor::cleared);
    }
    void setValue(const QVariant& value) override {
        QList<QImage> images = value.value<QList<QImage>>();
        if (!_several && !value.value<QImage>().isNull())
            images = {value.value<QImage>()};
        _strip->setImages(images);
    }

private:
    void pick(const QString& title, const Prompts& prompts) {
        QList<QImage> images;
        QStringList faults;
        const QStringList paths = prompts.pickImages(window(), title, _several);
        for (const QString& path : paths) {
            const ReadImage read = readImageFile(path);
            if (!read.fault.isEmpty())
                faults << read.fault;
            else if (images.size() == kMostTips)
                faults << tr("\"%1\" is left out: at most %2 images are used.").arg(path).arg(kMostTips);
            else
                images << fitted(read.image);
        }
        if (!faults.isEmpty())
            prompts.tell(window(), faults.join(QLatin1Char('\n')));
        if (!images.isEmpty())
            emit edited(_several ? QVariant::fromValue(images) : QVariant(images.first()));
    }
    static QImage fitted(const QImage& image) {
        const QSize most(kMostTipSide, kMostTipSide);
        return image.width() <= most.width() && image.height() <= most.height()
                   ? image
                   : image.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    bool _several;
    ThumbnailStrip* _strip;
};

class TextEditor : public BrushEditor {
public:
    explicit TextEditor(QWidget* parent) : BrushEditor(parent), _line(new QLineEdit) {
        lineLayout(this)->addWidget(_line);
        setFocusProxy(_line);
        connect(_line, &QLineEdit::editingFinished, this, [this] { emit edited(_line->text()); });
    }
    void setValue(const QVariant& value) override { _line->setText(value.toString()); }

private:
    QLineEdit* _line;
};

}  // namespace

void BrushEditor::setName(const QString& name) {
    nameStops(*this, name);
}

BrushEditor* makeBrushEditor(const BrushProperty& property, const Prompts& prompts, int labelWidth,
                             QWidget* parent) {
    switch (property.type()) {
        case BrushValueType::boolean:
            return new BooleanEditor(parent);
        case BrushValueType::integer:
            if (property.kind)
                return new ChoiceEditor(property, parent);
            return new NumberEditor(property, parent);
        case BrushValueType::real:
            return new NumberEditor(property, parent);
        case BrushValueType::control:
            return new ControlEditor(labelWidth, parent);
        case BrushValueType::color:
            return new ColorEditor(brushPresentation(property).label, prompts, parent);
        case BrushValueType::image:
        case BrushValueType::images:
            return new ImagesEditor(property, prompts, parent);
        case BrushValueType::text:
            break;
    }
    return new TextEditor(parent);
}

}  // namespace dabcanvas::dabpainter
