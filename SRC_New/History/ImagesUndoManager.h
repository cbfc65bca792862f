// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include "History/SnapshotStore.h"
#include "History/UndoManager.h"
#include "Maths/Export.h"

namespace dabcanvas {
class BackgroundQueue;
class TempFolder;
class TilePicture;
class TileStore;
struct HistoryChange;
}  // namespace dabcanvas

/// An undo history of images. Each step's item is the name of an image, which is in memory (the cache) or,
/// when it is far from the current step, in a file of a private folder. A canvas has one, QDDrawCanvas::undoManager().
///
/// Units    bytes. An image is whatever bytes it is given as, such as raw pixels or a PNG file; the same bytes
///          come back. In memory they may be held compressed, in files never.
/// Owns     the folder, alone: no other history, of this process or another, gets the same. It goes with the
///          history. Folders that dead processes of the same user and machine left behind go when the next
///          history starts.
/// Data     is shared, not copied; of data that do not own their bytes (QByteArray::fromRawData) a copy is
///          taken.
/// Thread   any, one call at a time goes ahead. Files are written and deleted in the background when the
///          application's main thread asks (without an application: the thread that made the history), else at
///          once by the caller. While writes run, undo() and redo() refuse; they do not wait.
/// Life     to be destroyed before main() returns. The destructor waits for what runs in the background.
/// Errors   never throws. An image that cannot be written stays in memory, with one log line until the disk
///          takes images again. An image whose file is gone or damaged reads as null, with a log line.
class DABCANVAS_CANVAS_API ImagesUndoManager : public UndoManager {
public:
    /// A history of up to 100 steps, whose current item has no image, or the one given. When no folder can be
    /// made, one log line, and the history lives in memory alone.
    static std::unique_ptr<ImagesUndoManager> init();
    static std::unique_ptr<ImagesUndoManager> initWithCurrentImageOfItem(const QImage& image);
    static std::unique_ptr<ImagesUndoManager> initWithCurrentImageOfData(const QByteArray& data);
    ~ImagesUndoManager() override;

    // ---- Steps

    /// A new step with this image. False, after one log line, and nothing changed when it is null.
    bool addItemWithImageData(const QByteArray& data);
    bool addItemWithImage(const QImage& image);  ///< as a PNG file, which takes long to encode
    /// The same for the current step, in the place of the image it has.
    bool setCurrentItemWithImageData(const QByteArray& data);
    bool setCurrentItemWithImage(const QImage& image);  ///< goes to its file at once
    /// What a canvas was, see keepTilesIn().
    bool addItemWithPicture(const dabcanvas::StepPicture& picture);
    /// reset(), and then the same.
    bool resetWithPictureOfCurrentItem(const dabcanvas::StepPicture& picture);
    bool resetWithImageDataOfCurrentItem(const QByteArray& data);
    bool resetWithImageOfCurrentItem(const QImage& image);

    /// The current step's image; null when it has none. May read a file, for which the caller waits.
    /// `problem` takes what would be logged about that file.
    QByteArray currentImageDataOfItem(QString* problem = nullptr);
    dabcanvas::StepPicture currentPictureOfItem(QString* problem = nullptr);
    /// Whether it has one that could be had, if only there were enough memory.
    bool hasCurrentImage() const;
    /// The image in the current step's file. Deliberate: null for one that is only in memory.
    QImage currentImageItem() const;
    /// Where that file is, or would be.
    QString currentPathOfItem() const;

    /// These let go of the images of the names that are dropped.
    bool addItemWithString(const QString& item) override;
    void setCurrentItem(const QString& item) override;
    bool undo() override;
    bool redo() override;
    /// The same while files are being written: the images are in memory so long.
    bool undoAtOnce();
    bool redoAtOnce();
    /// As UndoManager does; images of names that are dropped go.
    void clearUndoItems() override;
    void clearRedoItems() override;
    void reset() override;
    void resetWithCurrentItem(const QString& item) override;

    // ---- Limits

    /// 0 counts as 1. Half of it, at least 1, becomes maxCacheCount().
    void setUndoStepCount(unsigned count) override;
    /// How many images memory holds, 50 at first. Deliberate: room is made before an image is added and only
    /// when there are more already, so there may be one more. 0: every image goes to its file at once.
    unsigned maxCacheCount() const;
    void setMaxCacheCount(unsigned count);
    /// How many it holds now.
    int curCacheCount() const;
    /// The most bytes of memory for cached images, beside the count; 0, as at first, for no such limit. The
    /// image added last stays in memory also when it is larger.
    qint64 cacheByteBudget() const;
    void setCacheByteBudget(qint64 bytes);
    /// What it takes now.
    qint64 cachedBytes() const;
    /// The most bytes of disk for a canvas's steps; 0 for no such limit.
    qint64 diskByteBudget() const;
    void setDiskByteBudget(qint64 bytes);
    /// What they take now.
    qint64 bytesOnDisk() const;
    /// Off: where the budgets have no room for a canvas's step, whoever records it waits for the disk, and none goes.
    bool dropsSteps() const;
    void setDropsSteps(bool drops);  ///< on at first
    /// How many steps, the oldest, went for want of room since the history began. Where there are none but undone ones,
    /// the one undone first goes.
    unsigned stepsDropped() const;
    /// Steps that are pictures of these tiles are bounded by both budgets, not by maxCacheCount(): beyond that of
    /// memory they go to disk, beyond both the oldest are dropped. Done by a canvas, whose budgets are an eighth of the
    /// machine's memory, at most 1 GiB, and 4 GiB.
    void keepTilesIn(std::shared_ptr<dabcanvas::TileStore> tiles);
    void keepToBudgets();  ///< as it does when what it shows has changed
    /// Has what became of the steps written down by their tiles' journal, the first time what they are, and from then
    /// on what a host does to them by itself, too. present: the canvas; null: as it was.
    void writeDown(std::shared_ptr<const dabcanvas::TilePicture> present);
    /// Nothing is written down from now on.
    void endWritingDown();
    /// The history becomes these steps, all of them.
    void become(const dabcanvas::HistoryChange& steps);
    /// Puts the cached image farthest from the current step into its file.
    void removeOneObjectFromCache();
    /// Two of them, and fewer from then on; and half of what a canvas's steps take.
    void didReceiveMemoryWarning();

    // ---- Files

    /// Null when there is no folder.
    QString tempDirectory() const;
    /// Moves to another folder, which is made when missing; the old one is deleted. Of a folder that was there
    /// before, only the history's own files are ever deleted. Waits for writes. False, after one log line, and
    /// nothing changed when it cannot be had or another history has it.
    bool setTempDirectory(const QString& path);
    /// Extension of files to come, "png" at first; null for none. Has no slash in it.
    QString filePathExtension() const;
    void setFilePathExtension(const QString& extension);
    /// Null for a name that no file can have.
    QString pathWithName(const QString& name) const;

    /// Writes a file, of any path, in the background: whole or not at all. Null data delete the file there,
    /// never a folder; a null path does nothing. An image in memory does not change with its step's file.
    void writeData(const QByteArray& data, const QString& path);
    void writeImage(const QImage& image, const QString& path);
    /// Drops the images of these names; their steps, if any, are without.
    void removeImageWithNames(const QStringList& names);
    /// Empties the folder and resets. Done when the application is about to quit.
    void clearAllTempFiles();

    /// Returns when no file is being written or deleted any more, so that undo() and redo() go ahead.
    void waitForWrites();
    /// Returns when nothing is being compressed either, so that cachedBytes() has settled.
    void waitForCompression();

    /// Runs a task in the background, or at once when this is not the main thread. The task must not call this
    /// history.
    void asynOperator(std::function<void()> task);

protected:
    explicit ImagesUndoManager(dabcanvas::FileWriter writer = dabcanvas::writeWholeFile);

private:
    struct Quitting;
    class Busy;

    bool isMainThread() const;
    void startFolder();
    bool isOurs(const QString& path) const;
    bool writeIntoFolder(const QString& path, const QByteArray& data) const;
    void startWrite(dabcanvas::SnapshotStore::Task write);
    void putIntoFile(const QString& name, const QString& path,
                     const std::shared_ptr<dabcanvas::Snapshot>& image);
    void keepCurrent(const QByteArray& data);
    void makeRoom(qint64 bytes);
    bool evictOne(bool ofSteps);
    void beginItem();
    void relieve(qint64 most);
    bool dropFarthest();
    bool isOwn(const dabcanvas::StepPicture& picture) const;
    void pack(const std::shared_ptr<dabcanvas::Snapshot>& image);
    QString nameOfPath(const QString& path) const;
    void letGoOfUnused(const QStringList& names);
    void replaced(const QString& name);
    dabcanvas::HistoryChange takeChange(bool all);
    void tell();
    void letGoOfOthers();

    mutable std::recursive_mutex _operation;  // one call at a time; the tasks in the background never take it
    dabcanvas::FileWriter _writer;
    std::unique_ptr<dabcanvas::TempFolder> _folder;
    QString _pathExtension = QStringLiteral("png");
    unsigned _maxCacheCount = 50;
    qint64 _cacheByteBudget = 0, _diskByteBudget = 0;
    bool _dropsSteps = true;
    unsigned _stepsDropped = 0;
    bool _picturesChanged = false;              // of steps that takeChange() told before
    bool _writesDown = false, _isBusy = false;  // with a change that is written down as one
    std::shared_ptr<dabcanvas::TileStore> _tiles;
    dabcanvas::SnapshotStore _store;
    std::shared_ptr<Quitting> _quitting;
    const std::thread::id _maker = std::this_thread::get_id();
    std::unique_ptr<dabcanvas::BackgroundQueue>
        _packing;  // the queues end first, as their tasks use all the others
    std::unique_ptr<dabcanvas::BackgroundQueue> _files;
};
