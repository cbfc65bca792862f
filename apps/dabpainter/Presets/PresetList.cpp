// SPDX-License-Identifier: MIT
#include "Presets/PresetList.h"

#include <QDir>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QUrl>
#include <algorithm>

#include "Presets/PresetInfos.h"
#include "Presets/PresetPreviews.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kPad = 4;
constexpr int kStar = 18;  // points
constexpr int kNameLines = 2;

// The name whole, on as many lines as there are; only what is too long for these ends in dots.
void drawName(QPainter& painter, const QRect& room, QString name) {
    const QFontMetrics metrics = painter.fontMetrics();
    constexpr int kWrapped = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    while (name.size() > 1 && !room.contains(metrics.boundingRect(room, kWrapped, name)))
        name = name.chopped(name.endsWith(QChar(0x2026)) ? 2 : 1) + QChar(0x2026);
    painter.drawText(room, kWrapped, name);
}

// On whatever lies below it.
void paintStar(QPainter& painter, const QRect& at, bool isFilled) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(40, 30, 0, 200), 1));
    painter.setBrush(isFilled ? QColor(250, 190, 40) : QColor(255, 255, 255, 200));
    painter.drawPolygon(starPolygon().translated(at.center() - QPointF(8, 8)));
}

}  // namespace

PresetListModel::PresetListModel(PresetLibrary& library, PresetPreviews& previews, const PresetInfos& infos,
                                 QObject* parent)
    : QAbstractListModel(parent), _library(library), _previews(previews), _infos(infos) {
    connect(&infos, &PresetInfos::changed, this,
            [this] { emit dataChanged(index(0), index(rowCount() - 1)); });
    connect(&previews, &PresetPreviews::painted, this, [this](const PresetId& id) { rowChanged(rowOf(id)); });
    connect(&previews, &PresetPreviews::damaged, this, &PresetListModel::setProblem);
}

void PresetListModel::refresh() {
    _library.refresh();
    _favourites.forgetGone();
    if (_shown == _library.presets())
        return;
    beginResetModel();
    _shown = _library.presets();
    endResetModel();
}

void PresetListModel::setProblem(const PresetId& id, const QString& problem) {
    _library.setProblem(id, problem);
    const int row = rowOf(id);
    if (row > 0)
        _shown[std::size_t(row) - 1].problem = problem;
    rowChanged(row);
}

void PresetListModel::setFavourites(const PresetFavourites& favourites) {
    _favourites = favourites;
    emit dataChanged(index(0), index(rowCount() - 1));
}

const Preset* PresetListModel::presetAt(int row) const {
    return row > 0 && row <= int(_shown.size()) ? &_shown[std::size_t(row) - 1] : nullptr;
}

int PresetListModel::rowOf(const PresetId& id) const {
    if (id.path.isEmpty())
        return 0;
    const auto found =
        std::find_if(_shown.begin(), _shown.end(), [&](const Preset& preset) { return preset.id == id; });
    return found == _shown.end() ? -1 : int(found - _shown.begin()) + 1;
}

void PresetListModel::setChosen(const PresetId& id, bool modified) {
    if (id == _chosen && modified == _modified)
        return;
    const int before = rowOf(_chosen);
    _chosen = id;
    _modified = modified;
    rowChanged(before);
    rowChanged(rowOf(id));
}

void PresetListModel::rowChanged(int row) {
    if (row >= 0)
        emit dataChanged(index(row), index(row));
}

int PresetListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(_shown.size()) + 1;
}

QString PresetListModel::toolTip(const Preset* preset) const {
    if (!preset)
        return tr("Every setting at its default");
    if (!preset->problem.isEmpty())
        return tr("\"%1\" cannot be used: %2").arg(preset->shownName(), preset->problem);
    const PresetInfo info = _infos.of(*preset);
    QStringList lines{preset->shownName(), trOfTable(info.about),
                      info.author.isEmpty() ? QString() : tr("By %1").arg(info.author),
                      QDir::toNativeSeparators(preset->id.path)};
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

QVariant PresetListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Preset* preset = presetAt(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            return preset ? preset->shownName() : tr("Plain");
        case Qt::ToolTipRole:
            return toolTip(preset);
        case pictureRole:
            return preset ? _previews.picture(*preset) : QImage();
        case chosenRole:
            return (preset ? preset->id : PresetId()) == _chosen;
        case modifiedRole:
            return _modified;
        case problemRole:
            return preset ? preset->problem : QString();
        case plainRole:
            return !preset;
        case favouriteRole:
            return preset && _favourites.has(preset->id);
        case tagsRole:
            return preset ? _infos.of(*preset).tags : QStringList();
        case aboutRole:
            return preset ? trOfTable(_infos.of(*preset).about) : QString();
        default:
            return {};
    }
}

Qt::ItemFlags PresetListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return presetAt(index.row()) ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList PresetListModel::mimeTypes() const {
    return {QStringLiteral("text/uri-list")};
}

QMimeData* PresetListModel::mimeData(const QModelIndexList& indexes) const {
    QList<QUrl> files;
    for (const QModelIndex& index : indexes) {
        if (const Preset* preset = presetAt(index.row()))
            files << QUrl::fromLocalFile(preset->id.path);
    }
    auto* data = new QMimeData;
    data->setUrls(files);
    return data;
}

// ---- One item

QSize PresetDelegate::pictureSize() {
    return QSize(91, 36);
}

QRect PresetDelegate::starRect(const QRect& cell) {
    return QRect(cell.right() - kStar - kPad, cell.top() + kPad, kStar, kStar);
}

QSize PresetDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return pictureSize() + QSize(2 * kPad, 2 * kPad + 2 + kNameLines * option.fontMetrics.lineSpacing());
}

void PresetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    painter->save();
    const bool isChosen = index.data(PresetListModel::chosenRole).toBool();
    const bool isBroken = !index.data(PresetListModel::problemRole).toString().isEmpty();
    const QPalette& palette = option.palette;
    const QRect cell = option.rect.adjusted(1, 1, -1, -1);
    if (isChosen)
        painter->fillRect(cell, palette.highlight());
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(cell, palette.alternateBase());
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(palette.color(QPalette::Highlight), 1, Qt::DotLine));
        painter->drawRect(cell.adjusted(0, 0, -1, -1));
    }

    const QRect frame(
        QPoint(option.rect.x() + (option.rect.width() - pictureSize().width()) / 2, option.rect.y() + kPad),
        pictureSize());
    const QImage picture = index.data(PresetListModel::pictureRole).value<QImage>();
    if (!picture.isNull()) {
        painter->setBrushOrigin(frame.topLeft());
        painter->fillRect(frame, checkerBrush());
        painter->drawImage(frame, picture);
    }
    painter->setPen(palette.color(QPalette::Mid));
    painter->drawRect(frame.adjusted(0, 0, -1, -1));

    const auto group = isBroken ? QPalette::Disabled : QPalette::Normal;
    painter->setPen(palette.color(group, isChosen ? QPalette::HighlightedText : QPalette::Text));
    if (isBroken || index.data(PresetListModel::plainRole).toBool())
        painter->drawText(frame, Qt::AlignCenter, isBroken ? tr("damaged") : tr("no preset"));
    QString name = index.data(Qt::DisplayRole).toString();
    if (isChosen && index.data(PresetListModel::modifiedRole).toBool())
        name.prepend(QStringLiteral("* "));
    drawName(*painter,
             QRect(cell.x(), frame.bottom() + 2, cell.width(), kNameLines * option.fontMetrics.lineSpacing()),
             name);
    const bool isFavourite = index.data(PresetListModel::favouriteRole).toBool();
    const bool isPlain = index.data(PresetListModel::plainRole).toBool();
    if (isFavourite || (!isPlain && option.state & QStyle::State_MouseOver))
        paintStar(*painter, starRect(option.rect), isFavourite);
    painter->restore();
}

}  // namespace dabcanvas::dabpainter
