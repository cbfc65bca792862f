// SPDX-License-Identifier: MIT
#include "History/UndoRecovery.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>
#include <mutex>
#include <new>
#include <vector>

#include "History/JournalReader.h"
#include "History/KeptHistories.h"
#include "History/RecoveryThumbnail.h"
#include "History/TempFolder.h"

namespace dabcanvas {

namespace {

constexpr int kThumbnailSide = 256;
constexpr qint64 kMostWords = 1 << 16;  // bytes

struct Choice {
    std::mutex mutex;
    QString folder;
    qint64 byteLimit = qint64{8} << 30;
    bool syncs = false;
};

Choice& choice() {
    static Choice chosen;
    return chosen;
}

QString pathOf(const QString& id) {
    return UndoRecovery::folder() + QLatin1Char('/') + id;
}

QString wordsPath(const QString& path) {
    return path + QLatin1String("/about");
}

qint64 bytesIn(const QString& path) {
    qint64 bytes = 0;
    for (const QFileInfo& file : QDir(path).entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        bytes += file.isSymLink() ? 0 : file.size();
    }
    return bytes;
}

void describe(const JournalContents& contents, RecoverableHistory* history) {
    history->canvasDepth = contents.format.pixelBytes * 2;
    history->size = QSize(contents.pictureSize().width, contents.pictureSize().height);
    history->lastChange = QDateTime::fromMSecsSinceEpoch(contents.lastRecord);
    history->steps = contents.stepCount();
    history->isChanged = history->steps > 1 || contents.present != contents.current;
    history->thumbnail = thumbnailOf(contents, contents.present, kThumbnailSide);
}

// Only its folder and bytes when it cannot be read.
RecoverableHistory historyAt(const QString& path) {
    RecoverableHistory history;
    history.id = QFileInfo(path).fileName();
    history.path = path;
    history.bytes = bytesIn(path);
    history.words = keptWords(path);
    try {
        QString problem;
        auto contents = readJournal(path, TileCheck::heads, &problem);
        if (contents) {
            describe(*contents, &history);
        }
        if (contents && history.thumbnail.isNull()) {  // a look at each tile tells what is left
            contents = readJournal(path, TileCheck::whole, &problem);
        }
        if (contents && history.thumbnail.isNull()) {
            describe(*contents, &history);
        }
    } catch (const std::bad_alloc&) {  // as if it could not be read
    }
    return history;
}

// Of what is never listed nobody needs to hear.
void removeBarren() {
    for (const QString& path : TempFolder::keptIn(UndoRecovery::folder())) {
        try {
            if (TempFolder::isLeft(path) && isBarren(path)) {
                UndoRecovery::discard(QFileInfo(path).fileName());
            }
        } catch (const std::bad_alloc&) {  // another time
        }
    }
}

}  // namespace

QString UndoRecovery::folder() {
    {
        const std::lock_guard lock(choice().mutex);
        if (!choice().folder.isEmpty()) {
            return choice().folder;
        }
    }
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QLatin1String("/recovery");
}

void UndoRecovery::setFolder(const QString& path) {
    const std::lock_guard lock(choice().mutex);
    choice().folder = path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QList<RecoverableHistory> UndoRecovery::list() {
    QList<RecoverableHistory> left;
    TempFolder::removeStrayClaims(folder());
    for (const QString& path : TempFolder::keptIn(folder())) {
        if (!TempFolder::isLeft(path)) {
            continue;
        }
        const RecoverableHistory history = historyAt(path);
        // Somebody may have taken it over meanwhile.
        if (!history.size.isEmpty() && history.steps > 0 && TempFolder::isLeft(path)) {
            left.prepend(history);
        }
    }
    return left;
}

bool UndoRecovery::discard(const QString& id, QString* problem) {
    QString why;
    QString& told = problem != nullptr ? *problem : why;
    if (!TempFolder::takeKept(pathOf(id), &told)) {  // and removed with who took it
        return false;
    }
    if (QFileInfo::exists(pathOf(id))) {
        told = QStringLiteral("it cannot be removed");
        return false;
    }
    return true;
}

bool UndoRecovery::syncs() {
    const std::lock_guard lock(choice().mutex);
    return choice().syncs;
}

void UndoRecovery::setSyncs(bool syncs) {
    const std::lock_guard lock(choice().mutex);
    choice().syncs = syncs;
}

qint64 UndoRecovery::byteLimit() {
    const std::lock_guard lock(choice().mutex);
    return choice().byteLimit;
}

void UndoRecovery::setByteLimit(qint64 bytes) {
    const std::lock_guard lock(choice().mutex);
    choice().byteLimit = bytes;
}

int UndoRecovery::makeRoom(const std::function<bool(const RecoverableHistory&)>& mayGo) {
    TempFolder::removeStrayClaims(folder());
    removeBarren();
    const QStringList paths = TempFolder::keptIn(folder());
    qint64 bytes = 0;
    for (const QString& path : paths) {
        bytes += bytesIn(path);
    }
    int gone = 0;
    for (const QString& path : paths) {
        if (bytes <= byteLimit()) {
            break;
        }
        if (TempFolder::isLeft(path)) {
            const qint64 freed = bytesIn(path);
            if ((!mayGo || mayGo(historyAt(path))) && discard(QFileInfo(path).fileName())) {
                bytes -= freed;
                ++gone;
            }
        }
    }
    return gone;
}

bool writeKeptWords(const QString& path, const QString& words) {
    QSaveFile file(wordsPath(path));
    const QByteArray text = words.toUtf8();
    return text.size() <= kMostWords && file.open(QIODevice::WriteOnly) && file.write(text) == text.size() &&
           file.commit();
}

QString keptWords(const QString& path) {
    QFile file(wordsPath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(kMostWords)) : QString();
}

std::unique_ptr<TempFolder> startKeptHistory(QString* problem) {
    return TempFolder::makeKept(UndoRecovery::folder(), problem);
}

std::unique_ptr<TempFolder> claimKeptHistory(const QString& id, QString* problem) {
    return TempFolder::takeKept(pathOf(id), problem);
}

}  // namespace dabcanvas
