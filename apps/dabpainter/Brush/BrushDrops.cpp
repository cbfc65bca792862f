// SPDX-License-Identifier: MIT
#include "Brush/BrushDrops.h"

#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>

#include "Import/BrushImport.h"

namespace dabcanvas::dabpainter {

namespace {

QString suffixOf(const QString& path) {
    return QFileInfo(path).suffix().toLower();
}

bool isOwn(const QString& path) {
    return suffixOf(path) == QLatin1String("xbf");
}

bool isPicture(const QString& path) {
    return QImageReader::supportedImageFormats().contains(suffixOf(path).toLatin1());
}

template <typename Wanted>
QStringList filesOf(const QMimeData& data, Wanted&& isWanted) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        const QString path = url.toLocalFile();
        if (!path.isEmpty() && isWanted(path))
            paths << path;
    }
    return paths;
}

}  // namespace

QStringList brushFilesOf(const QMimeData& data) {
    return filesOf(data, [](const QString& path) {
        return isOwn(path) || importedBrushSuffixes().contains(suffixOf(path));
    });
}

QStringList brushAndPictureFilesOf(const QMimeData& data) {
    return filesOf(data, [](const QString& path) { return isOwn(path) || isForeignBrush(path); });
}

QString foreignBrushPatterns() {
    return QStringLiteral("*.") + importedBrushSuffixes().join(QStringLiteral(" *."));
}

bool isForeignBrush(const QString& path) {
    return importedBrushSuffixes().contains(suffixOf(path)) || isPicture(path);
}

}  // namespace dabcanvas::dabpainter
