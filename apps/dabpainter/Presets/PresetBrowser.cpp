// SPDX-License-Identifier: MIT
#include "Presets/PresetBrowser.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Brush/BrushDrops.h"
#include "Preset/QDBrushManager.h"
#include "Presets/PresetFilter.h"
#include "Presets/PresetList.h"
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
      _model(new PresetListModel(_library, _previews, _infos, this)),
      _filtered(new PresetFilter(this)),
      _list(new QListView),
      _search(new QLineEdit),
      _kinds(new QComboBox),
      _status(new QLabel),
      _nothing(new QLabel(_list)),
      _menu(new QMenu(this)) {
    _filtered->setSourceModel(_model);
    makeActions();
    makeLayout();
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
    connect(&_infos, &PresetInfos::changed, this, &PresetBrowser::listKinds);
    refresh();
}

QAction* PresetBrowser::add(const QString& text, const std::function<void()>& act) {
    auto* action = _menu->addAction(text);
    connect(action, &QAction::triggered, this, act);
    return action;
}

void PresetBrowser::makeActions() {
    _save = add(tr("Save as &New Brush…"), [this] { saveNew(); });
    _overwrite = add(tr("&Overwrite with Present Settings…"), [this] { overwrite(_target); });
    _rename = add(tr("&Rename…"), [this] { rename(_target); });
    _remove = add(tr("&Delete…"), [this] { remove(_target); });
    _favourite = add(tr("&Favourite"), [this] { setFavourite(_target, !isFavourite(_target)); });
    _favourite->setCheckable(true);
    _menu->addSeparator();
    _import = add(tr("&Import Brushes…"), [this] { importFiles(_prompts.pickBrushes(window())); });
    _export = add(tr("&Export…"), [this] { exportTo(_target); });
    add(tr("Show &Folder"), [this] {
        QDir().mkpath(_library.folders().own);
        _prompts.showFolder(_library.folders().own);
    });
    _menu->addSeparator();
    _setsColors = add(tr("Presets Set the &Colour"), [] {});
    _setsColors->setCheckable(true);
    connect(_setsColors, &QAction::toggled, this, [this](bool on) {
        _brush.setPresetsSetColors(on);
        setOwnLook();
        showChosen();
        emit stateChanged();
    });
}

void PresetBrowser::makeLayout() {
    _search->setObjectName(QStringLiteral("presetSearch"));
    _search->setPlaceholderText(tr("Search brushes"));
    _search->setAccessibleName(_search->placeholderText());
    _search->setClearButtonEnabled(true);
    _kinds->setObjectName(QStringLiteral("presetKinds"));
    _kinds->setAccessibleName(tr("Kind of brushes"));
    _kinds->setToolTip(tr("Which brushes are listed"));
    _kinds->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    _kinds->setMinimumWidth(70);
    _kinds->view()->setMinimumWidth(130);
    guardFromWheel(_kinds);
    auto* save = new GlyphButton(Glyph::add, tr("Save the present settings as a new brush"));
    auto* more = new GlyphButton(Glyph::menu, tr("More to do with the chosen brush"));
    auto* line = new QHBoxLayout;
    line->setSpacing(2);
    line->addWidget(_search, 3);
    line->addWidget(_kinds, 2);
    line->addWidget(save);
    line->addWidget(more);

    _list->setObjectName(QStringLiteral("presets"));
    _list->setAccessibleName(tr("Brushes"));
    _list->setModel(_filtered);
    _list->setItemDelegate(new PresetDelegate(_list));
    _list->setViewMode(QListView::IconMode);
    _list->setMovement(QListView::Static);
    _list->setResizeMode(QListView::Adjust);
    _list->setUniformItemSizes(true);
    _list->setSelectionMode(QAbstractItemView::SingleSelection);
    _list->setDragDropMode(QAbstractItemView::DragOnly);
    _list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    _list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _list->setMouseTracking(true);
    _list->setContextMenuPolicy(Qt::CustomContextMenu);
    // A click leaves the keyboard to the canvas.
    _list->setFocusPolicy(Qt::TabFocus);
    _list->installEventFilter(this);
    _list->viewport()->installEventFilter(this);
    _list->setMinimumHeight(72);
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

    connect(_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        _filtered->setText(text);
        showNothing();
    });
    connect(_kinds, &QComboBox::activated, this, [this] {
        _wantedKind = _kinds->currentData().toString();
        chooseKind();
        emit stateChanged();
    });
    connect(save, &QToolButton::clicked, this, &PresetBrowser::saveNew);
    connect(more, &QToolButton::clicked, this,
            [this, more] { popUp(_chosen, more->mapToGlobal(QPoint(0, more->height()))); });
    connect(_list, &QListView::clicked, this, [this](const QModelIndex& at) {
        choose(idAt(at));
        emit chosenByPointer();
    });
    connect(_list, &QListView::customContextMenuRequested, this, [this](const QPoint& at) {
        const QModelIndex index = _list->indexAt(at);
        popUp(index.isValid() ? idAt(index) : _chosen, _list->viewport()->mapToGlobal(at));
    });
}

// ---- The list

PresetId PresetBrowser::idAt(const QModelIndex& index) const {
    const Preset* preset = _model->presetAt(_filtered->mapToSource(index).row());
    return preset ? preset->id : PresetId();
}

bool PresetBrowser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == _list->viewport())
        return filterStar(*event);
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    // In the list these mean the preset, not the canvas.
    const int pressed = static_cast<QKeyEvent*>(event)->key();
    if (pressed != Qt::Key_Delete && pressed != Qt::Key_Return && pressed != Qt::Key_Enter &&
        pressed != Qt::Key_Asterisk)
        return false;
    event->accept();
    const QModelIndex current = _list->currentIndex();
    if (event->type() != QEvent::KeyPress || !current.isValid())
        return true;
    const PresetId id = idAt(current);
    if (pressed == Qt::Key_Asterisk)
        setFavourite(id, !isFavourite(id));
    else
        pressed == Qt::Key_Delete ? remove(id) : choose(id);
    return true;
}

// A press on a star is one on nothing else.
bool PresetBrowser::filterStar(const QEvent& event) {
    const bool isPress =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (event.type() == QEvent::MouseButtonRelease)
        return std::exchange(_starPressed, false);
    if (!isPress)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const QPoint at = mouse.position().toPoint();
    const QModelIndex index = _list->indexAt(at);
    const PresetId id = idAt(index);
    _starPressed = mouse.button() == Qt::LeftButton && !id.path.isEmpty() &&
                   PresetDelegate::starRect(_list->visualRect(index)).contains(at);
    if (_starPressed)
        setFavourite(id, !isFavourite(id));
    return _starPressed;
}

// ---- Kinds

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

static QString capitalised(const QString& word) {
    return word.left(1).toUpper() + word.mid(1);
}

// All, favourites, and the tags that there are.
void PresetBrowser::listKinds() {
    const QSignalBlocker quiet(_kinds);
    _kinds->clear();
    _kinds->addItem(tr("All"), QString());
    _kinds->addItem(tr("Favourites"), QString(QLatin1Char('*')));
    for (const QString& tag : _infos.tags(_library.presets()))
        _kinds->addItem(capitalised(trOfTable(tag)), tag);
    chooseKind();
}

// One that is not there, or not yet, is all of them.
void PresetBrowser::chooseKind() {
    const int index = std::max(0, _kinds->findData(_wantedKind));
    _kinds->setCurrentIndex(index);
    _filtered->setKind(index == 0   ? PresetFilter::Kind::all
                       : index == 1 ? PresetFilter::Kind::favourites
                                    : PresetFilter::Kind::tagged,
                       _kinds->currentData().toString());
    showNothing();
}

void PresetBrowser::popUp(const PresetId& target, const QPoint& at) {
    const Preset* preset = _library.find(target);
    const bool isWhole = preset && preset->problem.isEmpty();
    _target = target;
    _overwrite->setEnabled(preset && preset->own && preset->siblings == 0);
    _rename->setEnabled(preset && preset->isEditable());
    _remove->setEnabled(preset && preset->own);
    _export->setEnabled(isWhole);
    _favourite->setEnabled(preset);
    _favourite->setChecked(preset && isFavourite(target));
    _menu->popup(at);
}

void PresetBrowser::refresh() {
    _model->refresh();
    _infos.read(_library.presets());
    listKinds();
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
    const int row = _model->rowOf(_chosen);
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

void PresetBrowser::setChosen(const PresetId& id, const QString& name) {
    if (_chosen != id)
        _previous = _chosen;
    _chosen = id;
    _chosenName = name;
    emit stateChanged();
    showChosen();
    scrollToChosen();
}

void PresetBrowser::showChosen() {
    _changeTimer.stop();
    const bool modified = _brush.isModified();
    const Preset* known = _library.find(_chosen);
    const QString name = _chosen.path.isEmpty() ? tr("Plain") : known ? known->shownName() : _chosenName;
    const QString text = modified ? tr("%1 – modified").arg(name) : name;
    _status->setText(text);
    _status->setToolTip(text);
    _model->setChosen(_chosen, modified);
}

bool PresetBrowser::succeeds(const QString& fault) {
    if (!fault.isEmpty())
        _prompts.tell(window(), fault);
    return fault.isEmpty();
}

// ---- What can be done

bool PresetBrowser::choose(const PresetId& id) {
    emit aboutToUseBrush();
    if (id.path.isEmpty()) {
        const QVariant color = _brush.value(BrushKey::renderColor);
        const QVariant second = _brush.value(BrushKey::backRenderColor);
        _brush.comesFrom({});
        _brush.resetAll();
        _brush.setValue(BrushKey::renderColor, color);
        _brush.setValue(BrushKey::backRenderColor, second);
        setChosen({}, {});
        return true;
    }
    BrushPreset content;
    const QString fault = _library.read(id, content);
    if (!succeeds(fault)) {
        refresh();
        _model->setProblem(id, fault);
        return false;
    }
    if (!_brush.takePreset(content))
        return false;
    const Preset* preset = _library.find(id);
    setChosen(id, preset ? preset->name : QFileInfo(id.path).completeBaseName());
    return true;
}

bool PresetBrowser::choosePrevious() {
    return (_previous.path.isEmpty() || _library.find(_previous)) && choose(_previous);
}

bool PresetBrowser::chooseShipped(const QString& fileName) {
    const auto found = std::ranges::find_if(_library.presets(), [&](const Preset& preset) {
        return !preset.own && QFileInfo(preset.id.path).fileName() == fileName;
    });
    return found != _library.presets().end() && choose(PresetId(found->id));
}

std::function<void()> PresetBrowser::keep() {
    return [this, held = _brush.hold(), id = _chosen, name = _chosenName] {
        emit aboutToUseBrush();
        if (!_brush.takeUp(held))
            return;
        const bool isThere = _library.find(id);
        setChosen(isThere ? id : PresetId(), isThere ? name : QString());
    };
}

bool PresetBrowser::saveNew() {
    emit aboutToUseBrush();
    const std::optional<BrushParams> params = _brush.params();
    if (!params)
        return false;
    const QString name =
        _prompts.askName(window(), tr("Save as New Brush"), _chosenName.isEmpty() ? tr("Brush") : _chosenName)
            .simplified();
    if (name.isEmpty())
        return false;
    const Preset* same = _library.findOwn(name);
    if (same && same->siblings == 0)
        return overwrite(PresetId(same->id));
    PresetId now;
    const bool saved = succeeds(_library.add(name, *params, now));
    refresh();
    if (saved) {
        _brush.comesFrom(BrushPreset{*params, QDBrushManager::kVersion});
        setChosen(now, name);
    }
    return saved;
}

bool PresetBrowser::overwrite(const PresetId& id) {
    const Preset* found = _library.find(id);
    const std::optional<BrushParams> params = _brush.params();
    if (!found || !params || !found->own || found->siblings != 0)
        return false;
    const Preset preset = *found;
    if (!_prompts.confirm(window(), tr("Replace the brush \"%1\"?").arg(preset.name),
                          tr("It takes the present settings, and what it was is lost."), tr("Replace")))
        return false;
    const bool saved = succeeds(_library.replace(preset, *params));
    refresh();
    if (saved) {
        _brush.comesFrom(BrushPreset{*params, QDBrushManager::kVersion});
        setChosen(id, preset.name);
    }
    return saved;
}

bool PresetBrowser::rename(const PresetId& id) {
    const Preset* found = _library.find(id);
    if (!found || !found->isEditable())
        return false;
    const Preset preset = *found;
    const QString name = _prompts.askName(window(), tr("Rename Brush"), preset.name).simplified();
    if (name.isEmpty() || name == preset.name)
        return false;
    PresetId now;
    const bool isRenamed = succeeds(_library.rename(preset, name, now));
    if (isRenamed)
        follow(preset, now);
    refresh();
    if (isRenamed)
        emit renamed(preset.name, name);
    if (isRenamed && id == _chosen)
        setChosen(now, name);
    return isRenamed;
}

// What is kept by a preset's place.
void PresetBrowser::follow(const Preset& preset, const PresetId& now) {
    PresetFavourites favourites = _model->favourites();
    favourites.follow(preset.id, now);
    _model->setFavourites(favourites);
    if (const Preset* found = _library.find(now))
        _infos.carryOver(preset, *found);
    if (_previous == preset.id)
        _previous = now;
}

bool PresetBrowser::remove(const PresetId& id) {
    const Preset* found = _library.find(id);
    if (!found || !found->own)
        return false;
    const Preset preset = *found;
    const QString what = preset.siblings == 0 ? tr("Delete the brush \"%1\"?").arg(preset.name)
                                              : tr("Delete the file \"%1\" with its %2 brushes?")
                                                    .arg(QFileInfo(id.path).fileName())
                                                    .arg(preset.siblings + 1);
    if (!_prompts.confirm(window(), what, tr("This cannot be taken back."), tr("Delete")))
        return false;
    const bool removed = succeeds(_library.removeFile(preset));
    refresh();
    if (removed && id.path == _chosen.path) {
        _brush.comesFrom({});  // which goes on as it is
        setChosen({}, {});
    }
    return removed;
}

bool PresetBrowser::importFiles(const QStringList& paths) {
    QStringList faults, losses;
    PresetId last;
    for (const QString& path : paths) {
        PresetId now;
        QStringList lost;
        const QString fault = _library.importFile(path, now, lost);
        if (fault.isEmpty())
            last = now;
        else
            faults << fault;
        if (!lost.isEmpty())
            losses << tr("Of \"%1\" could not be carried over:\n%2")
                          .arg(QFileInfo(path).fileName(), lost.join(QLatin1Char('\n')));
    }
    refresh();
    succeeds((faults + losses).join(QLatin1Char('\n')));
    return !last.path.isEmpty() && choose(last);
}

bool PresetBrowser::exportTo(const PresetId& id) {
    const Preset* preset = _library.find(id);
    if (!preset || !preset->problem.isEmpty())
        return false;
    const QString path =
        _prompts.pickBrushName(window(), presetFileName(preset->name) + QStringLiteral(".xbf"));
    return !path.isEmpty() && succeeds(_library.exportTo(id, path));
}

// ---- From run to run

void PresetBrowser::readState(QSettings& settings) {
    _setsColors->setChecked(settings.value(key("setsColor"), false).toBool());
    PresetFavourites favourites;
    favourites.fromTexts(settings.value(key("favourites")).toStringList());
    favourites.forgetGone();
    _model->setFavourites(favourites);
    _wantedKind = settings.value(key("kind")).toString();
    chooseKind();
    const PresetId id{settings.value(key("file")).toString(), settings.value(key("index")).toInt()};
    BrushPreset content;
    // It may have gone since; the brush is the same without.
    if (id.path.isEmpty() || !_library.find(id) || !_library.read(id, content).isEmpty())
        return;
    _brush.comesFrom(content);
    setChosen(id, _library.find(id)->name);
}

void PresetBrowser::writeState(QSettings& settings) const {
    settings.setValue(key("setsColor"), _setsColors->isChecked());
    settings.setValue(key("favourites"), _model->favourites().toTexts());
    settings.setValue(key("kind"), _wantedKind);
    settings.setValue(key("file"), _chosen.path);
    settings.setValue(key("index"), _chosen.index);
}

}  // namespace dabcanvas::dabpainter
