// SPDX-License-Identifier: MIT
#include "History/ImagesUndoManager.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <utility>

#include "Brushes/ImageData.h"
#include "History/BackgroundQueue.h"
#include "History/Farthest.h"
#include "History/HistoryLog.h"
#include "History/Packing.h"
#include "History/TempFolder.h"
#include "History/TileStore.h"
#include "Maths/Tools.h"

using namespace dabcanvas;

Q_LOGGING_CATEGORY(lcHistory, "dabcanvas.history")

namespace {

constexpr unsigned kSteps = 100;
constexpr std::size_t kFileThreads = 2;  // so that one slow write does not hold up the next
constexpr qsizetype kWorthPacking = 4096;

bool refused(const char* what) {
    qCWarning(lcHistory, "An undo step needs an image: %s", what);
    return false;
}

}  // namespace

// The application's end may come while the history goes on another thread.
struct ImagesUndoManager::Quitting {
    std::mutex mutex;
    ImagesUndoManager* history;
    QMetaObject::Connection connection;
};

// ---- Making and ending ----

std::unique_ptr<ImagesUndoManager> ImagesUndoManager::init() {
    return std::unique_ptr<ImagesUndoManager>(new ImagesUndoManager);
}

std::unique_ptr<ImagesUndoManager> ImagesUndoManager::initWithCurrentImageOfItem(const QImage& image) {
    auto history = init();
    history->setCurrentItemWithImage(image);
    return history;
}

std::unique_ptr<ImagesUndoManager> ImagesUndoManager::initWithCurrentImageOfData(const QByteArray& data) {
    auto history = init();
    history->setCurrentItemWithImageData(data);
    return history;
}

ImagesUndoManager::ImagesUndoManager(FileWriter writer)
    : _writer(std::move(writer)),
      _store([this](const QString& path, const QByteArray& data) { return writeIntoFolder(path, data); },
             [this](const QString& path) { return isOurs(path); }),
      _quitting(std::make_shared<Quitting>()),
      _packing(std::make_unique<BackgroundQueue>(1)),
      _files(std::make_unique<BackgroundQueue>(kFileThreads)) {
    UndoManager::setUndoStepCount(kSteps);
    startFolder();
    _quitting->history = this;
    if (const auto* application = QCoreApplication::instance()) {
        _quitting->connection =
            QObject::connect(application, &QCoreApplication::aboutToQuit, [quitting = _quitting] {
                const std::lock_guard lock(quitting->mutex);
                if (quitting->history) {
                    quitting->history->clearAllTempFiles();
                }
            });
    }
}

ImagesUndoManager::~ImagesUndoManager() {
    {
        const std::lock_guard lock(_quitting->mutex);
        _quitting->history = nullptr;
    }
    QObject::disconnect(_quitting->connection);
    endWritingDown();
    reset();
    // What is still to be written is not wanted any more; deleting it is quicker than waiting for it.
    removeImageWithNames(_store.names());
    _packing.reset();
    _files.reset();
    _folder.reset();
}

// ---- Steps ----

bool ImagesUndoManager::addItemWithImageData(const QByteArray& data) {
    const QByteArray owned = ownedData(data);
    if (owned.isNull()) {
        return refused("these data are null, or there is no memory for a copy");
    }
    const std::lock_guard lock(_operation);
    beginItem();
    keepCurrent(owned);
    return true;
}

void ImagesUndoManager::beginItem() {
    if (canUndo() && static_cast<std::uint64_t>(undoCount()) >= undoStepCount()) {
        letGoOfUnused({dropOldestUndoItem()});
    }
    QString name = Tools::dateString();
    while (!_store.step(name).isNull() || _store.has(name, {})) {
        name = Tools::dateString();  // of a history that another process began
    }
    addItemWithString(name);
}

bool ImagesUndoManager::addItemWithImage(const QImage& image) {
    const QByteArray data = UIImagePNGRepresentation(image);
    return data.isEmpty() ? refused("it cannot be encoded") : addItemWithImageData(data);
}

bool ImagesUndoManager::setCurrentItemWithImageData(const QByteArray& data) {
    const QByteArray owned = ownedData(data);
    if (owned.isNull()) {
        return refused("these data are null, or there is no memory for a copy");
    }
    const std::lock_guard lock(_operation);
    keepCurrent(owned);
    return true;
}

bool ImagesUndoManager::setCurrentItemWithImage(const QImage& image) {
    if (image.isNull()) {
        return refused("it is null");
    }
    const std::lock_guard lock(_operation);
    const QString name = currentStringItem();
    if (pathWithName(name).isNull()) {
        return setCurrentItemWithImageData(UIImagePNGRepresentation(image));  // there is no file
    }
    replaced(name);
    startWrite(_store.write(name, pathWithName(name), std::make_shared<Snapshot>(image)));
    return true;
}

bool ImagesUndoManager::resetWithImageDataOfCurrentItem(const QByteArray& data) {
    const std::lock_guard lock(_operation);
    reset();
    return setCurrentItemWithImageData(data);
}

bool ImagesUndoManager::resetWithImageOfCurrentItem(const QImage& image) {
    const std::lock_guard lock(_operation);
    reset();
    return setCurrentItemWithImage(image);
}

void ImagesUndoManager::keepCurrent(const QByteArray& data) {
    const QString name = currentStringItem();
    const QString path = pathWithName(name);
    replaced(name);
    if (_maxCacheCount == 0 && !path.isNull()) {
        startWrite(_store.write(name, path, std::make_shared<Snapshot>(data)));
        return;
    }
    makeRoom(data.size() - _store.cachedBytesOf(name));
    pack(_store.cache(name, data));
}

QByteArray ImagesUndoManager::currentImageDataOfItem(QString* problem) {
    const std::lock_guard lock(_operation);
    const QString name = currentStringItem();
    const SnapshotStore::Read read = _store.read(name, pathWithName(name));
    if (problem) {
        *problem = read.problem;
    } else if (!read.problem.isEmpty()) {
        qCWarning(lcHistory, "%ls", qUtf16Printable(read.problem));
    }
    if (read.fromFile && !read.data.isNull() && _maxCacheCount != 0) {
        makeRoom(read.data.size());
        pack(_store.cacheFileContents(name, read.data));
    }
    return read.data;
}

bool ImagesUndoManager::hasCurrentImage() const {
    const std::lock_guard lock(_operation);
    const QString name = currentStringItem();
    return _store.has(name, pathWithName(name));
}

QImage ImagesUndoManager::currentImageItem() const {
    const std::lock_guard lock(_operation);
    const QString path = currentPathOfItem();
    return isOurs(path) && QFileInfo(path).isFile() ? imageWithContentsOfFile(path) : QImage();
}

QString ImagesUndoManager::currentPathOfItem() const {
    const std::lock_guard lock(_operation);
    const QString name = currentStringItem();
    const QString written = _store.fileOf(name);  // perhaps while another extension was set
    return written.isNull() ? pathWithName(name) : written;
}

bool ImagesUndoManager::addItemWithString(const QString& item) {
    const std::lock_guard lock(_operation);
    QStringList dropped;
    const bool added = addItem(item, &dropped);
    letGoOfUnused(dropped);
    tell();
    return added;
}

void ImagesUndoManager::setCurrentItem(const QString& item) {
    const std::lock_guard lock(_operation);
    UndoManager::setCurrentItem(item);
    tell();
}

bool ImagesUndoManager::undo() {
    const std::lock_guard lock(_operation);
    const bool done = UndoManager::undo();
    tell();
    return done;
}

bool ImagesUndoManager::redo() {
    const std::lock_guard lock(_operation);
    const bool done = UndoManager::redo();
    tell();
    return done;
}

void ImagesUndoManager::clearUndoItems() {
    const std::lock_guard lock(_operation);
    removeImageWithNames(undoItems());
    UndoManager::clearUndoItems();
    tell();
}

void ImagesUndoManager::clearRedoItems() {
    const std::lock_guard lock(_operation);
    removeImageWithNames(redoItems());
    UndoManager::clearRedoItems();
    tell();
}

void ImagesUndoManager::reset() {
    const std::lock_guard lock(_operation);
    UndoManager::reset();
    letGoOfOthers();
}

void ImagesUndoManager::resetWithCurrentItem(const QString& item) {
    const std::lock_guard lock(_operation);
    UndoManager::resetWithCurrentItem(item);
    letGoOfOthers();
}

// Items set by hand may stand in several places at once.
void ImagesUndoManager::letGoOfUnused(const QStringList& names) {
    QStringList unused;
    std::copy_if(names.begin(), names.end(), std::back_inserter(unused),
                 [this](const QString& name) { return usesOf(name) == 0; });
    removeImageWithNames(unused);
}

// After a reset only the current image is reachable.
void ImagesUndoManager::letGoOfOthers() {
    QStringList names = _store.names();
    names.removeAll(currentStringItem());
    removeImageWithNames(names);
}

// ---- Limits ----

void ImagesUndoManager::setUndoStepCount(unsigned count) {
    const std::lock_guard lock(_operation);
    UndoManager::setUndoStepCount(std::max(count, 1u));
    _maxCacheCount = std::max(undoStepCount() / 2, 1u);
}

unsigned ImagesUndoManager::maxCacheCount() const {
    const std::lock_guard lock(_operation);
    return _maxCacheCount;
}

void ImagesUndoManager::setMaxCacheCount(unsigned count) {
    const std::lock_guard lock(_operation);
    _maxCacheCount = count;
}

int ImagesUndoManager::curCacheCount() const {
    return _store.cachedCount();
}

void ImagesUndoManager::makeRoom(qint64 bytes) {
    const auto count = static_cast<unsigned>(_store.cachedNames(false).size());
    if (_maxCacheCount < count) {
        evictOne(false);
    }
    // Images that cannot be written come back to the cache: no more attempts than there are images.
    for (unsigned tries = count;
         tries > 0 && _cacheByteBudget > 0 && cachedBytes() + bytes > _cacheByteBudget && evictOne(false);
         --tries) {
    }
}

void ImagesUndoManager::removeOneObjectFromCache() {
    const std::lock_guard lock(_operation);
    evictOne(true);
}

bool ImagesUndoManager::evictOne(bool ofSteps) {
    // One that is kept goes on being written down.
    const bool withSteps = ofSteps && !(_tiles && _tiles->isKept());
    const QString name =
        farthestFrom(_store.cachedNames(withSteps), undoItems(), redoItems(), currentStringItem());
    if (name.isNull() || pathWithName(name).isNull()) {
        return false;
    }
    if (SnapshotStore::Task write = _store.evict(name, pathWithName(name))) {
        startWrite(std::move(write));
    }
    return true;
}

void ImagesUndoManager::didReceiveMemoryWarning() {
    const std::lock_guard lock(_operation);
    evictOne(false);
    evictOne(false);
    relieve(cachedBytes() / 2);
    _maxCacheCount = static_cast<unsigned>(std::max(curCacheCount(), 3) - 2);
}

void ImagesUndoManager::pack(const std::shared_ptr<Snapshot>& image) {
    if (canPack() && image->heldBytes() >= kWorthPacking) {
        _packing->run([weak = std::weak_ptr(image)] {
            if (const auto still = weak.lock()) {
                still->pack();
            }
        });
    }
}
