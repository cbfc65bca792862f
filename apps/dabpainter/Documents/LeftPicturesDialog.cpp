// SPDX-License-Identifier: MIT
#include "Documents/LeftPicturesDialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr QSize kIcon(160, 110);

// In the middle of a room of one size, so that the names stand in line.
QIcon iconOf(const QImage& thumbnail, double dots) {
    QPixmap room(kIcon * dots);
    room.setDevicePixelRatio(dots);
    room.fill(Qt::transparent);
    QPainter painter(&room);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect place(QPoint(), thumbnail.size().scaled(kIcon - QSize(8, 8), Qt::KeepAspectRatio));
    place.moveCenter(QRect(QPoint(), kIcon).center());
    painter.fillRect(place, checkerBrush());
    painter.drawImage(place, thumbnail);
    painter.setPen(QColor(0, 0, 0, 90));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    return QIcon(room);
}

}  // namespace

LeftPicturesDialog::LeftPicturesDialog(const LeftPictures& left, QList<LeftPicture> now, QWidget* parent)
    : QDialog(parent), _left(left), _pictures(std::move(now)), _list(new QListWidget), _facts(new QLabel) {
    setWindowTitle(tr("Recover Pictures"));
    auto* about = new QLabel(
        tr("Dabpainter ended unexpectedly while these were painted. Each goes on where it was, with its undo "
           "steps where they are left."));
    about->setWordWrap(true);
    _list->setAccessibleName(tr("Pictures"));
    _list->setViewMode(QListView::IconMode);
    _list->setMovement(QListView::Static);
    _list->setResizeMode(QListView::Adjust);
    _list->setUniformItemSizes(true);
    _list->setWordWrap(true);
    _list->setIconSize(kIcon);
    _list->setGridSize(kIcon + QSize(20, 3 * fontMetrics().lineSpacing()));
    _facts->setTextFormat(Qt::PlainText);
    _facts->setMinimumHeight(2 * fontMetrics().lineSpacing());
    _facts->setWordWrap(true);

    auto* buttons = new QDialogButtonBox;
    _open = buttons->addButton(tr("&Recover"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    _delete = buttons->addButton(tr("&Delete…"), QDialogButtonBox::DestructiveRole);
    _open->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(about);
    layout->addWidget(_list, 1);
    layout->addWidget(_facts);
    layout->addWidget(buttons);
    resize(3 * _list->gridSize().width() + 60, 420);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(_delete, &QPushButton::clicked, this, &LeftPicturesDialog::discard);
    connect(_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(_list, &QListWidget::currentRowChanged, this, &LeftPicturesDialog::refresh);
    fill();
}

void LeftPicturesDialog::fill() {
    _list->clear();
    for (const LeftPicture& picture : _pictures) {
        const QString name = picture.path.isEmpty() ? tr("Untitled") : QFileInfo(picture.path).fileName();
        _list->addItem(new QListWidgetItem(
            iconOf(picture.thumbnail, devicePixelRatioF()),
            name + QLatin1Char('\n') + locale().toString(picture.lastChange, QLocale::ShortFormat)));
    }
    _list->setCurrentRow(_pictures.isEmpty() ? -1 : 0);
    refresh();
}

void LeftPicturesDialog::refresh() {
    const auto picture = chosen();
    _open->setEnabled(picture.has_value());
    _delete->setEnabled(picture.has_value());
    if (!picture) {
        _facts->setText(tr("There is none."));
        return;
    }
    const QString steps = picture->history.isEmpty() ? tr("without undo steps")
                          : picture->steps == 1      ? tr("one undo step")
                                                     : tr("%1 undo steps").arg(picture->steps);
    _facts->setText(
        tr("%1 × %2 pixels, %3, %4 on the disk")
            .arg(picture->size.width())
            .arg(picture->size.height())
            .arg(steps, locale().formattedDataSize(picture->bytes)) +
        (picture->path.isEmpty() ? QString() : QLatin1Char('\n') + QDir::toNativeSeparators(picture->path)));
}

std::optional<LeftPicture> LeftPicturesDialog::chosen() const {
    const int row = _list->currentRow();
    return row >= 0 && row < _pictures.size() ? std::optional(_pictures[row]) : std::nullopt;
}

void LeftPicturesDialog::discard() {
    const auto picture = chosen();
    if (!picture ||
        QMessageBox::question(this, QString(), tr("Delete this picture for good?")) != QMessageBox::Yes)
        return;
    if (!_left.discard(*picture))
        QMessageBox::warning(this, QString(), tr("It cannot be deleted: it is in use, or the disk refuses."));
    _pictures = _left.list();
    fill();
    if (_pictures.isEmpty())
        reject();
}

}  // namespace dabcanvas::dabpainter
