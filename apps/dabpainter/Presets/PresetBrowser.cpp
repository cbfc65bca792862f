// SPDX-License-Identifier: MIT
#include "Presets/PresetBrowser.h"

#include <QAction>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QSettings>
#include <QVBoxLayout>
#include <utility>

#include "Brush/BrushDrops.h"
#include "Presets/PresetFilter.h"
#include "Presets/PresetKinds.h"
#include "Presets/PresetList.h"
#include "Presets/PresetListView.h"
#include "Presets/PresetMenu.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMargin = 8;
constexpr int kSettle = 250;  // milliseconds until a folder has come to rest

QString key(const char* name) {
    return QStringLiteral("preset/") + QLatin1String(name);
}

}  // namespace

PresetBrowser::PresetBrowser(BrushModel& brush, const Prompts& prompts, PresetFolders folders,
                             std::function<bool()> isIdle, QWidget* parent)
    : QWidget(parent),
      _brush(brush),
      _prompts(prompts),
      _isIdle(std::move(isIdle)),
      _library(std::move(folders)),
      _previews(_isIdle),
      _choice(brush, prompts, _library, *this),
      _model(new PresetListModel(_library, _previews, _infos, this)),
      _filtered(new PresetFilter(this)),
      _list(new PresetListView),
      _search(new QLineEdit),
      _kinds(new PresetKinds),
      _status(new QLabel),
      _nothing(new QLabel(_list)),
      _menu(new PresetMenu(_choice, this)) {
    _filtered->setSourceModel(_model);
    makeLayout();
    connectList();
    connectMenu();
    connectChoice();
    setAcceptDrops(true);
    // Both once, however many settings or files have changed.
    _changeTimer.setSingleShot(true);
    _refreshTimer.setSingleShot(true);
    _refreshTimer.setInterval(kSettle);
    connect(&_changeTimer, &QTimer::timeout, this, &PresetBrowser::showChosen);
    connect(&_refreshTimer, &QTimer::timeout, this, &PresetBrowser::refresh);
    connect(&_brush, &BrushModel::changed, &_changeTimer, qOverload<>(&QTimer::start));
    connect(&_brush, &BrushModel::presetChanged, &_changeTimer, qOverload<>(&QTimer::start));
    connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_refreshTimer, qOverload<>(&QTimer::start));
    connect(&_infos, &PresetInfos::changed, this,
            [this] { _kinds->setTags(_infos.tags(_library.presets())); });
    refresh();
}

void PresetBrowser::makeLayout() {
    _search->setObjectName(QStringLiteral("presetSearch"));
    _search->setPlaceholderText(tr("Search brushes"));
    _search->setAccessibleName(_search->placeholderText());
    _search->setClearButtonEnabled(true);
    auto* save = new GlyphButton(Glyph::add, tr("Save the present settings as a new brush"));
    auto* more = new GlyphButton(Glyph::menu, tr("More to do with the chosen brush"));
    auto* line = new QHBoxLayout;
    line->setSpacing(2);
    line->addWidget(_search, 3);
    line->addWidget(_kinds, 2);
    line->addWidget(save);
    line->addWidget(more);

    _list->setModel(_filtered);
    _nothing->setAlignment(Qt::AlignCenter);
    _nothing->setWordWrap(true);
    _nothing->setEnabled(false);
    _nothing->setTextFormat(Qt::PlainText);
    auto* inside = new QVBoxLayout(_list->viewport());
    inside->addWidget(_nothing);
    _status->setObjectName(QStringLiteral("presetStatus"));
    _status->setTextFormat(Qt::PlainText);
    _status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, 2);
    layout->setSpacing(4);
    layout->addLayout(line);
    layout->addWidget(_list, 1);
    layout->addWidget(_status);

    connect(save, &QToolButton::clicked, &_choice, &PresetChoice::saveNew);
    connect(more, &QToolButton::clicked, this,
            [this, more] { popUp(chosen(), more->mapToGlobal(QPoint(0, more->height()))); });
}

void PresetBrowser::connectList() {
    connect(_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        _filtered->setText(text);
        showNothing();
    });
    connect(_kinds, &PresetKinds::chosen, this, [this](PresetFilter::Kind kind, const QString& tag) {
        _filtered->setKind(kind, tag);
        showNothing();
    });
    connect(_kinds, &PresetKinds::wantedChanged, this, &PresetBrowser::stateChanged);
    connect(_list, &PresetListView::chosenByKey, this, [this](const QModelIndex& at) { choose(idAt(at)); });
    connect(_list, &PresetListView::removedByKey, this, [this](const QModelIndex& at) { remove(idAt(at)); });
    connect(_list, &PresetListView::starPressed, this, [this](const QModelIndex& at) {
        const PresetId id = idAt(at);
        setFavourite(id, !isFavourite(id));
    });
    connect(_list, &QListView::clicked, this, [this](const QModelIndex& at) {
        choose(idAt(at));
        emit chosenByPointer();
    });
    connect(_list, &QListView::customContextMenuRequested, this, [this](const QPoint& at) {
        const QModelIndex index = _list->indexAt(at);
        popUp(index.isValid() ? idAt(index) : chosen(), _list->viewport()->mapToGlobal(at));
    });
}

void PresetBrowser::connectMenu() {
    connect(_menu, &PresetMenu::importWanted, this, [this] { importFiles(_prompts.pickBrushes(window())); });
    connect(_menu, &PresetMenu::folderWanted, this, [this] {
        QDir().mkpath(_library.folders().own);
        _prompts.showFolder(_library.folders().own);
    });
    connect(_menu, &PresetMenu::favouriteWanted, this, &PresetBrowser::setFavourite);
    connect(_menu->setsColors(), &QAction::toggled, this, [this](bool on) {
        _brush.setPresetsSetColors(on);
        setOwnLook();
        showChosen();
        emit stateChanged();
    });
}

void PresetBrowser::connectChoice() {
    connect(&_choice, &PresetChoice::aboutToUseBrush, this, &PresetBrowser::aboutToUseBrush);
    connect(&_choice, &PresetChoice::filesChanged, this, &PresetBrowser::refresh);
    connect(&_choice, &PresetChoice::damaged, _model, &PresetListModel::setProblem);
    connect(&_choice, &PresetChoice::moved, this, &PresetBrowser::follow);
    connect(&_choice, &PresetChoice::renamed, this, &PresetBrowser::renamed);
    connect(&_choice, &PresetChoice::changed, this, [this] {
        emit stateChanged();
        showChosen();
        scrollToChosen();
    });
}

QAction* PresetBrowser::saveAction() const {
    return _menu->saveAction();
}

QAction* PresetBrowser::importAction() const {
    return _menu->importAction();
}

QListView* PresetBrowser::list() const {
    return _list;
}

QComboBox* PresetBrowser::kinds() const {
    return _kinds;
}

// ---- The list

PresetId PresetBrowser::idAt(const QModelIndex& index) const {
    const Preset* preset = _model->presetAt(_filtered->mapToSource(index).row());
    return preset ? preset->id : PresetId();
}

// ---- Favourites

bool PresetBrowser::isFavourite(const PresetId& id) const {
    return _model->favourites().has(id);
}

void PresetBrowser::setFavourite(const PresetId& id, bool on) {
    if (id.path.isEmpty() || isFavourite(id) == on)
        return;
    PresetFavourites favourites = _model->favourites();
    favourites.set(id, on);
    _model->setFavourites(favourites);
    showNothing();
    emit stateChanged();
}

void PresetBrowser::popUp(const PresetId& target, const QPoint& at) {
    _menu->popUp(_library.find(target), isFavourite(target), at);
}

void PresetBrowser::refresh() {
    _model->refresh();
    _infos.read(_library.presets());
    _kinds->setTags(_infos.tags(_library.presets()));
    QStringList folders = _library.folders().installed;
    folders << _library.folders().own;
    for (const QString& folder : folders) {
        if (!_watcher.directories().contains(folder) && QFileInfo(folder).isDir())
            _watcher.addPath(folder);
    }
    showChosen();
}

void PresetBrowser::showNothing() {
    const bool none = _library.presets().empty();
    _nothing->setText(none ? tr("There are no brushes yet: import some by the menu above, or save the "
                                "present settings as one.")
                           : _filtered->emptyState());
    _nothing->setVisible(none || _filtered->rowCount() == 0);
}

void PresetBrowser::scrollToChosen() {
    const int row = _model->rowOf(chosen());
    if (row >= 0)
        _list->scrollTo(_filtered->mapFromSource(_model->index(row)));
}

void PresetBrowser::setOwnLook() {
    _previews.setLook(PresetDelegate::pictureSize(), devicePixelRatioF(), _brush.presetsSetColors());
    _list->viewport()->update();
}

void PresetBrowser::showEvent(QShowEvent* event) {
    setOwnLook();
    QWidget::showEvent(event);
    // When it has been laid out.
    QMetaObject::invokeMethod(this, &PresetBrowser::scrollToChosen, Qt::QueuedConnection);
}

void PresetBrowser::dragEnterEvent(QDragEnterEvent* event) {
    // What is dragged out of the list is here already.
    if (!event->source() && !brushAndPictureFilesOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PresetBrowser::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    importFiles(brushAndPictureFilesOf(*event->mimeData()));
}

void PresetBrowser::showChosen() {
    _changeTimer.stop();
    const bool modified = _brush.isModified();
    const Preset* known = _library.find(chosen());
    const QString name = chosen().path.isEmpty() ? tr("Plain") : known ? known->shownName() : chosenName();
    const QString text = modified ? tr("%1 – modified").arg(name) : name;
    _status->setText(text);
    _status->setToolTip(text);
    _model->setChosen(chosen(), modified);
}

// What is kept by a preset's place.
void PresetBrowser::follow(const Preset& preset, const PresetId& now) {
    PresetFavourites favourites = _model->favourites();
    favourites.follow(preset.id, now);
    _model->setFavourites(favourites);
    if (const Preset* found = _library.find(now))
        _infos.carryOver(preset, *found);
    emit stateChanged();
}

// ---- From run to run

void PresetBrowser::readState(QSettings& settings) {
    _menu->setsColors()->setChecked(settings.value(key("setsColor"), false).toBool());
    PresetFavourites favourites;
    favourites.fromTexts(settings.value(key("favourites")).toStringList());
    favourites.forgetGone();
    _model->setFavourites(favourites);
    _kinds->setWanted(settings.value(key("kind")).toString());
    const PresetId id{settings.value(key("file")).toString(), settings.value(key("index")).toInt()};
    BrushPreset content;
    // It may have gone since; the brush is the same without.
    if (id.path.isEmpty() || !_library.find(id) || !_library.read(id, content).isEmpty())
        return;
    _brush.comesFrom(content);
    _choice.take(id, _library.find(id)->name);
}

void PresetBrowser::writeState(QSettings& settings) const {
    settings.setValue(key("setsColor"), _menu->setsColors()->isChecked());
    settings.setValue(key("favourites"), _model->favourites().toTexts());
    settings.setValue(key("kind"), _kinds->wanted());
    settings.setValue(key("file"), chosen().path);
    settings.setValue(key("index"), chosen().index);
}

}  // namespace dabcanvas::dabpainter
