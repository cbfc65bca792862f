// SPDX-License-Identifier: MIT
#include "Quick/CanvasItem.h"

#include <QPointer>
#include <QQmlInfo>

#include "Display/DevicePointers.h"
#include "Quick/ItemDisplay.h"
#include "Quick/ScenePart.h"

namespace dabcanvas {
namespace {

constexpr QRectF kUnseen(0, 0, 640, 480);  // until an item is shown

}  // namespace

CanvasItem::CanvasItem(QQuickItem* parent, const SurfaceOptions& options)
    : QQuickItem(parent),
      _display(std::make_unique<ItemDisplay>(*this, kUnseen)),
      _scene(std::make_unique<Scene>()) {
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    setKeepMouseGrab(true);
    setKeepTouchGrab(true);
    _display->initCanvasOrSayWhy(options);
    setImplicitSize(kUnseen.width(), kUnseen.height());
    _display->viewWasResized();
    _takesViewSize = problem().isEmpty();
    connect(this, &CanvasItem::contextLost, this, &CanvasItem::problemChanged);
}

CanvasItem::~CanvasItem() {
    watch(nullptr);
}

CanvasDisplay& CanvasItem::canvas() const {
    return *_display;
}

QSize CanvasItem::canvasSize() const {
    return _display->bufferSize().toSize();
}

void CanvasItem::setCanvasSize(const QSize& size) {
    const QPointer<CanvasItem> self(this);
    _takesViewSize = size.isEmpty() && _display->problem().isEmpty();
    bool isDone = true;
    if (!size.isEmpty() && size != canvasSize()) {
        isDone = _display->setCanvasArea(QRect(QPoint(), size));
        if (isDone && self) {
            _display->setModified(false);
        }
    }
    if (self) {
        tell(QStringLiteral("canvasSize"),
             isDone ? QString()
                    : QStringLiteral("there can be no canvas of %1 x %2 pixels, or not now")
                          .arg(size.width())
                          .arg(size.height()));
    }
    if (self) {
        showAgain();
    }
}

void CanvasItem::takeViewSize() {
    if (_takesViewSize && window() != nullptr && !size().isEmpty()) {
        _takesViewSize = false;
        if (!_display->isModified()) {
            const ItemDisplay::MustStay stays(*_display);
            _display->setCanvasArea(QRect(QPoint(), (size() * _display->viewPixelRatio()).toSize()));
            if (_display->canUndo()) {
                _display->resetUndoManager();  // it is as if made so
            }
            _display->setModified(false);
        }
    }
}

void CanvasItem::componentComplete() {
    QQuickItem::componentComplete();
    showAgain();
}

void CanvasItem::itemChange(ItemChange change, const ItemChangeData& data) {
    const ItemDisplay::MustStay stays(*_display);
    switch (change) {
        case ItemSceneChange:
            _display->pointers().forget();
            watch(data.window);
            _scene->picture.changeAll();
            _scene->preview.changeAll();
            _display->viewWasResized();
            break;
        case ItemVisibleHasChanged:
        case ItemEnabledHasChanged:
            if (!data.boolValue) {
                _display->pointers().forget();  // its events come no more
            }
            break;
        case ItemDevicePixelRatioHasChanged:
            _display->viewWasResized();
            break;
        default:
            break;
    }
    QQuickItem::itemChange(change, data);
}

void CanvasItem::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) {
        const ItemDisplay::MustStay stays(*_display);
        _display->viewWasResized();
        if (now.isEmpty()) {
            _display->pointers().forget();
        }
    }
}

// ---- Problems

QString CanvasItem::problem() const {
    const QString ofCanvas = _display->problem();
    return ofCanvas.isEmpty() ? QStringList(_problems.values()).join(QLatin1Char('\n')) : ofCanvas;
}

void CanvasItem::tell(const QString& what, const QString& problem) {
    const QString words = problem.isEmpty() ? QString() : what + QStringLiteral(": ") + problem;
    if (words.isEmpty() ? !_problems.contains(what) : _problems.value(what) == words) {
        return;
    }
    if (words.isEmpty()) {
        _problems.remove(what);
    } else {
        _problems[what] = words;
        qmlWarning(this) << words;
    }
    _scene->picture.changeAll();
    showAgain();
    Q_EMIT problemChanged();
}

// ---- What the canvas tells

class ItemDisplay::Leaf : public LeafDrawing {
public:
    Leaf(CanvasItem& item, const QSizeF& canvas) : LeafDrawing(canvas), _item(item) {}

private:
    void redisplayRect(const QRectF& canvasPixels) override { _item.previewIsStale(canvasPixels); }
    CanvasItem& _item;
};

std::unique_ptr<LeafDrawing> ItemDisplay::makeLeafDrawView(const QRectF& frame) {
    auto leaf = std::make_unique<Leaf>(_item, frame.size());
    _leaf = leaf.get();
    return leaf;
}

void ItemDisplay::showLeafDrawView(bool shown) {
    _leafShown = shown;
    updateView(QRectF(QPointF(), viewSize()));
}

void ItemDisplay::updateView(const QRectF& viewRect) {
    _item.viewIsStale(viewRect);
}

void ItemDisplay::viewDidChange() {
    Q_EMIT _item.viewChanged();
}

void ItemDisplay::layersDidChange() {
    Q_EMIT _item.layersChanged();
}

void ItemDisplay::canvasSizeDidChange() {
    CanvasDisplay::canvasSizeDidChange();
    const QSizeF points = bufferSize() / viewPixelRatio();
    _item.setImplicitSize(points.width(), points.height());
    Q_EMIT _item.canvasSizeChanged();
}

void ItemDisplay::pictureDidChange(const QRect& bufferPixels) {
    CanvasDisplay::pictureDidChange(bufferPixels);
    _item.canvasIsStale(bufferPixels);
    Q_EMIT _item.canvasChanged(bufferPixels);
}

void ItemDisplay::contextWasLost() {
    CanvasDisplay::contextWasLost();
    Q_EMIT _item.contextLost();
}

}  // namespace dabcanvas
