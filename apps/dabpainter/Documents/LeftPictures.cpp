// SPDX-License-Identifier: MIT
#include "Documents/LeftPictures.h"

#include <QDir>
#include <QImageReader>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>
#include <algorithm>

#include "History/UndoRecovery.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kFile[] = "file", kCopy[] = "copy", kPaper[] = "paper";
constexpr int kThumbnailSide = 256;

void readWords(const QString& words, LeftPicture& picture) {
    const QJsonObject said = QJsonDocument::fromJson(words.toUtf8()).object();
    picture.path = said.value(QLatin1String(kFile)).toString();
    picture.copy = said.value(QLatin1String(kCopy)).toString();
    picture.background = QColor(said.value(QLatin1String(kPaper)).toString());
}

LeftPicture of(const RecoverableHistory& history) {
    LeftPicture picture;
    readWords(history.words, picture);
    picture.history = history.id;
    picture.size = history.size;
    picture.depth = history.canvasDepth;
    picture.steps = history.steps - 1;
    picture.bytes = history.bytes;
    picture.lastChange = history.lastChange;
    picture.thumbnail = history.thumbnail;
    return picture;
}

LeftPicture ofCopy(const QFileInfo& file) {
    LeftPicture picture;
    QImageReader reader(file.filePath());
    readWords(reader.text(QString::fromLatin1(kWordsKey)), picture);
    picture.copy = file.filePath();
    picture.bytes = file.size();
    picture.lastChange = file.lastModified();
    picture.size = reader.size();
    reader.setScaledSize(picture.size.scaled(kThumbnailSide, kThumbnailSide, Qt::KeepAspectRatio)
                             .boundedTo(picture.size)
                             .expandedTo(QSize(1, 1)));
    picture.thumbnail = reader.read();
    return picture;
}

QFileInfoList copiesIn(const QString& folder) {
    return QDir(folder).entryInfoList({QStringLiteral("*.png")}, QDir::Files | QDir::NoSymLinks,
                                      QDir::Time | QDir::Reversed);
}

}  // namespace

const char kWordsKey[] = "Dabpainter";

QString wordsOf(const Document::Origin& origin) {
    const QJsonObject words{{QLatin1String(kFile), origin.path},
                            {QLatin1String(kCopy), origin.copy},
                            {QLatin1String(kPaper), origin.plan.background.name(QColor::HexArgb)}};
    return QString::fromUtf8(QJsonDocument(words).toJson(QJsonDocument::Compact));
}

QList<LeftPicture> LeftPictures::list() const {
    QList<LeftPicture> left = copies();
    for (const RecoverableHistory& history : UndoRecovery::list()) {
        LeftPicture picture = of(history);
        const auto copy = std::find_if(left.begin(), left.end(), [&](const LeftPicture& one) {
            return one.history.isEmpty() && one.copy == picture.copy;
        });
        if (!history.isChanged && copy == left.end()) {
            discard(picture);
            continue;
        }
        if (copy != left.end()) {
            if (picture.thumbnail.isNull())
                picture.thumbnail = copy->thumbnail;
            left.erase(copy);
        }
        left.append(picture);
    }
    std::stable_sort(left.begin(), left.end(), [](const LeftPicture& one, const LeftPicture& other) {
        return one.lastChange > other.lastChange;
    });
    return left;
}

QList<LeftPicture> LeftPictures::copies() const {
    QList<LeftPicture> found;
    for (const QFileInfo& file : copiesIn(_folder)) {
        if (!claim(file.filePath()))
            continue;
        const LeftPicture picture = ofCopy(file);
        if (!picture.thumbnail.isNull())
            found << picture;
    }
    return found;
}

bool LeftPictures::discard(const LeftPicture& picture) const {
    const auto claimed = picture.copy.isEmpty() ? nullptr : claim(picture.copy);
    const bool gone = picture.history.isEmpty() || UndoRecovery::discard(picture.history);
    const bool isOurs = QFileInfo(picture.copy).dir() == QDir(_folder);
    if (gone && claimed && isOurs)
        QFile::remove(picture.copy);
    return gone && (!isOurs || !QFile::exists(picture.copy));
}

std::unique_ptr<QLockFile> LeftPictures::claim(const QString& copy) {
    auto lock = std::make_unique<QLockFile>(copy + QStringLiteral(".lock"));
    lock->setStaleLockTime(0);  // age says nothing; Qt recognises the dead
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

QString LeftPictures::newCopy() const {
    return QDir(_folder).filePath(QUuid::createUuid().toString(QUuid::Id128) + QStringLiteral(".png"));
}

void LeftPictures::makeRoom(qint64 mostBytes) const {
    // Of who died before there was a copy; it goes with who has it.
    for (const QString& lock : QDir(_folder).entryList({QStringLiteral("*.png.lock")}, QDir::Files)) {
        const QString copy = QDir(_folder).filePath(lock.chopped(5));
        if (!QFile::exists(copy))
            claim(copy);
    }
    const QFileInfoList files = copiesIn(_folder);
    qint64 bytes = 0;
    for (const QFileInfo& file : files)
        bytes += file.size();
    if (bytes <= mostBytes)
        return;
    QStringList needed;
    for (const RecoverableHistory& history : UndoRecovery::list())
        needed << of(history).copy;
    for (const QFileInfo& file : files) {
        if (bytes > mostBytes && !needed.contains(file.filePath()) && claim(file.filePath()) &&
            QFile::remove(file.filePath()))
            bytes -= file.size();
    }
}

}  // namespace dabcanvas::dabpainter
