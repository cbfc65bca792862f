// SPDX-License-Identifier: MIT
#include "PictureKinds.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

namespace dabcanvas {

namespace {

QString suffixOf(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix.isEmpty() ? QStringLiteral("png") : suffix;
}

bool keepsAlpha(const QString& suffix) {
    static const QStringList kinds{QStringLiteral("png"), QStringLiteral("webp"), QStringLiteral("tif"),
                                   QStringLiteral("tiff")};
    return kinds.contains(suffix);
}

QImage onWhite(const QImage& image) {
    QImage paper(image.size(), QImage::Format_RGB32);
    if (paper.isNull())
        return paper;
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(paper.rect(), image, image.rect());
    return paper;
}

}  // namespace

QStringList writtenPictureSuffixes() {
    QStringList suffixes;
    for (const QByteArray& format : QImageWriter::supportedImageFormats())
        suffixes << QString::fromLatin1(format).toLower();
    suffixes.sort();
    return suffixes;
}

QString pictureKindRefusal(const QString& path) {
    const QString suffix = suffixOf(path);
    const QStringList known = writtenPictureSuffixes();
    return known.contains(suffix) ? QString()
                                  : QStringLiteral("no picture is written as .%1; the kinds are %2")
                                        .arg(suffix, known.join(QStringLiteral(", ")));
}

// Zlib's fourth level, where Qt takes the sixth: a painting is a twentieth larger in a third of the time.
constexpr int kPngQuality = 50;

QString encodePicture(const QImage& image, const QString& path, QByteArray& bytes) {
    const QString suffix = suffixOf(path);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, suffix.toLatin1());
    if (suffix == QLatin1String("png"))
        writer.setQuality(kPngQuality);
    const bool flat = image.hasAlphaChannel() && !keepsAlpha(suffix);
    if (writer.write(flat ? onWhite(image) : image) && !bytes.isEmpty())
        return {};
    return QStringLiteral("cannot encode the picture: %1").arg(writer.errorString());
}

}  // namespace dabcanvas
