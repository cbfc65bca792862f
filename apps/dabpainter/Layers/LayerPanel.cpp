// SPDX-License-Identifier: MIT
#include "Layers/LayerPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QListWidget>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSlider>
#include <QToolButton>

#include "Brush/BrushPresentation.h"
#include "Canvas/CanvasLayers.h"
#include "Layers/LayerNames.h"
#include "Layers/LayerThumbnails.h"
#include "QDEAGLView/QDDrawView.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMargin = 8;
constexpr QSize kThumbnail(44, 30);  // points

// Of a row that is chosen no other than of the rest: colours are to be compared.
QIcon iconOf(const QImage& thumbnail, qreal ratio) {
    QPixmap picture(kThumbnail * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const QSizeF size = QSizeF(thumbnail.size()) / thumbnail.devicePixelRatio();
    painter.drawImage(QPointF(0, int(kThumbnail.height() - size.height()) / 2), thumbnail);
    painter.end();
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Active})
        icon.addPixmap(picture, mode);
    return icon;
}

QString nameOf(const LayerSettings& settings, int layer) {
    return settings.name.isEmpty() && layer == 0 ? LayerPanel::tr("Background") : settings.name;
}

// What is edited meanwhile is undone together.
class OneStep {
public:
    explicit OneStep(QDDrawView& view) : _view(view) { _view.setAutoMark(false); }
    ~OneStep() {
        _view.markAction();
        _view.setAutoMark(true);
    }
    OneStep(const OneStep&) = delete;
    OneStep& operator=(const OneStep&) = delete;

private:
    QDDrawView& _view;
};

}  // namespace

LayerPanel::LayerPanel(QWidget* parent)
    : QWidget(parent),
      _thumbnails(new LayerThumbnails(this)),
      _list(new QListWidget),
      _mode(new QComboBox),
      _opacity(new QSlider(Qt::Horizontal)),
      _lock(new QCheckBox(tr("Lock alpha"))) {
    for (const BrushChoice& choice : brushChoices(brushProperty(BrushKey::blendType)))
        _mode->addItem(choiceLabel(choice), choice.value);
    _opacity->setRange(0, 100);
    _lock->setToolTip(tr("Strokes change its colours alone"));
    _list->setIconSize(kThumbnail);
    _list->setAccessibleName(tr("Layers"));
    _mode->setAccessibleName(tr("Blend mode of the layer"));
    _opacity->setAccessibleName(tr("Opacity of the layer"));
    makeLayout();
    connectEdits();
    showLayers();
}

QToolButton* LayerPanel::addButton(Glyph sign, const QString& toolTip, void (LayerPanel::*act)()) {
    auto* button = new GlyphButton(sign, toolTip);
    connect(button, &QToolButton::clicked, this, act);
    return button;
}

void LayerPanel::makeLayout() {
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addButton(Glyph::add, tr("Add a layer"), &LayerPanel::addLayer));
    buttons->addWidget(addButton(Glyph::copy, tr("Duplicate the layer"), &LayerPanel::duplicateLayer));
    buttons->addWidget(_up = addButton(Glyph::up, tr("Move the layer up"), &LayerPanel::up));
    buttons->addWidget(_down = addButton(Glyph::down, tr("Move the layer down"), &LayerPanel::down));
    buttons->addWidget(_merge =
                           addButton(Glyph::merge, tr("Merge with the layer below"), &LayerPanel::mergeDown));
    buttons->addStretch();
    buttons->addWidget(_remove = addButton(Glyph::remove, tr("Delete the layer"), &LayerPanel::removeLayer));
    auto* form = new QFormLayout;
    form->addRow(tr("Blend mode"), _mode);
    form->addRow(tr("Opacity"), _opacity);
    form->addRow(_lock);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(_list, 1);
    column->addLayout(buttons);
    column->addLayout(form);
}

void LayerPanel::connectEdits() {
    connect(_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (_showing || !_view || row < 0)
            return;
        emit aboutToEdit();
        _view->layers().setActive(layerOf(row));
    });
    connect(_list, &QListWidget::itemSelectionChanged, this, &LayerPanel::keepSelected);
    connect(_list, &QListWidget::itemChanged, this,
            [this](QListWidgetItem* item) { takeRow(_list->row(item)); });
    connect(_thumbnails, &LayerThumbnails::changed, this, &LayerPanel::showThumbnail);
    connect(_mode, &QComboBox::activated, this, [this](int index) {
        change(active(),
               [&](LayerSettings& settings) { settings.blendType = _mode->itemData(index).toUInt(); });
    });
    connect(_lock, &QCheckBox::clicked, this, [this](bool on) {
        change(active(), [&](LayerSettings& settings) { settings.locksAlpha = on; });
    });
    connect(_opacity, &QSlider::valueChanged, this, &LayerPanel::takeOpacity);
    connect(_opacity, &QSlider::sliderReleased, this, &LayerPanel::endOpacity);
}

void LayerPanel::setView(QDDrawView* view) {
    if (_view)
        disconnect(_view, nullptr, this, nullptr);
    _view = view;
    _thumbnails->setView(view);
    if (_view)
        connect(_view, &QDDrawView::layersChanged, this, &LayerPanel::showLayers);
    showLayers();
}

int LayerPanel::active() const {
    return _view ? _view->layers().active() : 0;
}

// The topmost one is first; and the other way round.
int LayerPanel::layerOf(int row) const {
    return _view->layers().count() - 1 - row;
}

// ---- Showing

void LayerPanel::showLayers() {
    const QScopedValueRollback showing(_showing, true);
    const int count = _view ? _view->layers().count() : 0;
    while (_list->count() > count)
        delete _list->takeItem(0);
    while (_list->count() < count)
        _list->addItem(QString());
    for (int row = 0; row < count; ++row) {
        const int layer = layerOf(row);
        const LayerSettings settings = _view->layers().settings(layer);
        QListWidgetItem* item = _list->item(row);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsEditable);
        item->setText(nameOf(settings, layer));
        item->setCheckState(settings.isVisible ? Qt::Checked : Qt::Unchecked);
        item->setToolTip(tr("Ticked layers are seen; a double click names one"));
        showThumbnail(layer);
    }
    setEnabled(count > 0);
    if (count > 0)
        showActive();
}

void LayerPanel::showThumbnail(int layer) {
    const QScopedValueRollback showing(_showing, true);
    if (QListWidgetItem* item = _list->item(layerOf(layer)))
        item->setIcon(iconOf(_thumbnails->of(layer), devicePixelRatioF()));
}

void LayerPanel::showEvent(QShowEvent* event) {
    _thumbnails->setLook(kThumbnail, devicePixelRatioF());
    _thumbnails->setOn(true);
    QWidget::showEvent(event);
}

void LayerPanel::hideEvent(QHideEvent* event) {
    _thumbnails->setOn(false);
    QWidget::hideEvent(event);
}

void LayerPanel::showActive() {
    const int layer = active(), count = _list->count();
    const LayerSettings settings = _view->layers().settings(layer);
    _list->setCurrentRow(layerOf(layer));
    _mode->setCurrentIndex(_mode->findData(int(settings.blendType)));
    if (!_opacity->isSliderDown())
        _opacity->setValue(qRound(settings.opacity * 100));
    _lock->setChecked(settings.locksAlpha);
    _remove->setEnabled(count > 1);
    _merge->setEnabled(layer > 0 && settings.isVisible && _view->layers().settings(layer - 1).isVisible);
    _up->setEnabled(layer + 1 < count);
    _down->setEnabled(layer > 0);
    emit activeChanged(layer);
}

// A press below the rows, or one with Ctrl, selects none; but there is always one that is painted on.
void LayerPanel::keepSelected() {
    if (!_showing && _view && _list->selectedItems().isEmpty())
        _list->setCurrentRow(layerOf(active()));
}

// ---- Editing

template <typename Change>
void LayerPanel::change(int layer, const Change& change) {
    if (_showing || !_view)
        return;
    emit aboutToEdit();
    LayerSettings settings = _view->layers().settings(layer);
    change(settings);
    _view->layers().setSettings(layer, settings);
}

void LayerPanel::takeRow(int row) {
    if (_showing || !_view)
        return;
    const QListWidgetItem* item = _list->item(row);
    const int layer = layerOf(row);
    change(layer, [&](LayerSettings& settings) {
        settings.name = item->text() == nameOf(settings, layer) ? settings.name : item->text();
        settings.isVisible = item->checkState() == Qt::Checked;
    });
}

// While it is dragged all of it is one step.
void LayerPanel::takeOpacity(int percent) {
    if (_view && _opacity->isSliderDown())
        _view->setAutoMark(false);
    change(active(), [&](LayerSettings& settings) { settings.opacity = static_cast<float>(percent) / 100; });
}

void LayerPanel::endOpacity() {
    if (_view) {
        _view->markAction();
        _view->setAutoMark(true);
    }
}

void LayerPanel::addLayer() {
    emit aboutToEdit();
    if (_view)
        _view->layers().add(active() + 1, {.name = tr("Layer %1").arg(_view->layers().count())});
}

void LayerPanel::duplicateLayer() {
    emit aboutToEdit();
    if (!_view)
        return;
    auto layers = _view->layers();
    QStringList taken;
    for (int i = 0; i < layers.count(); ++i)
        taken << nameOf(layers.settings(i), i);
    const int layer = layers.active();
    const OneStep step(*_view);
    if (!layers.duplicate(layer))
        return;
    LayerSettings settings = layers.settings(layer + 1);
    settings.name = copyName(taken[layer], taken);
    layers.setSettings(layer + 1, settings);
}

void LayerPanel::removeLayer() {
    emit aboutToEdit();
    if (_view && _view->layers().count() > 1)
        _view->layers().remove(active());
}

void LayerPanel::mergeDown() {
    emit aboutToEdit();
    if (_view && _merge->isEnabled())
        _view->layers().mergeDown(active());
}

void LayerPanel::moveLayer(int by) {
    emit aboutToEdit();
    const int to = active() + by;
    if (_view && to >= 0 && to < _view->layers().count())
        _view->layers().move(active(), to);
}

}  // namespace dabcanvas::dabpainter
