// SPDX-License-Identifier: MIT
// A timelapse as an animated WebP, and as a folder of pictures.
#include "FrameTaker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <utility>

#include "OutputFile.h"
#include "PictureKinds.h"

#ifdef DABCANVAS_HAVE_WEBP
#include <webp/encode.h>
#include <webp/mux.h>
#endif

namespace dabcanvas {

namespace {

QString written(const QString& path, const QByteArray& bytes) {
    OutputFile file(path);
    return file.write(bytes) ? QString()
                             : QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString());
}

// Of this one and those that it lies in, the innermost first.
QStringList missingFolders(const QString& path) {
    QStringList missing;
    for (QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
         !QFileInfo::exists(folder) && folder != QFileInfo(folder).path(); folder = QFileInfo(folder).path())
        missing << folder;
    return missing;
}

QString frameOf(const QString& folder, int number) {
    return QDir(folder).filePath(QStringLiteral("%1.png").arg(number, 6, 10, QLatin1Char('0')));
}

class FrameFolder final : public FrameTaker {
public:
    // made: the folders that were made for it, the innermost first.
    FrameFolder(QString path, QStringList made) : _path(std::move(path)), _made(std::move(made)) {}

    QString add(const QImage& frame) override {
        const QString path = frameOf(_path, ++_count);
        QByteArray bytes;
        QString wrong = encodePicture(frame, path, bytes);
        if (wrong.isEmpty())
            wrong = written(path, bytes);
        if (wrong.isEmpty())
            _frames << path;
        return wrong;
    }
    QString finish() override { return {}; }
    void discard() override {
        for (const QString& frame : std::as_const(_frames))
            QFile::remove(frame);
        for (const QString& folder : std::as_const(_made))
            QDir().rmdir(folder);  // which takes empty ones only
        _frames.clear();
    }

private:
    const QString _path;
    const QStringList _made;
    QStringList _frames;
    int _count = 0;
};

#ifdef DABCANVAS_HAVE_WEBP

constexpr int kFrameTime = 80, kLastFrameTime = 2000;  // milliseconds
constexpr float kQuality = 80;

class WebpAnimation final : public FrameTaker {
public:
    explicit WebpAnimation(QString path) : _path(std::move(path)) {}
    ~WebpAnimation() override { WebPAnimEncoderDelete(_encoder); }
    WebpAnimation(const WebpAnimation&) = delete;
    WebpAnimation& operator=(const WebpAnimation&) = delete;

    QString add(const QImage& frame) override {
        if (_encoder == nullptr && !begin(frame.size()))
            return fail();
        WebPPicture picture;
        if (!WebPPictureInit(&picture))
            return fail();
        picture.use_argb = 1;
        picture.width = _size.width();
        picture.height = _size.height();
        const QImage pixels = asLargeAsTheFirst(frame).convertToFormat(QImage::Format_RGBA8888);
        const bool isAdded =
            WebPPictureImportRGBA(&picture, pixels.constBits(), int(pixels.bytesPerLine())) &&
            WebPAnimEncoderAdd(_encoder, &picture, _time, &_config);
        WebPPictureFree(&picture);
        _lastTime = std::exchange(_time, _time + kFrameTime);
        return isAdded ? QString() : fail();
    }
    QString finish() override {
        WebPData data;
        WebPDataInit(&data);
        if (_encoder == nullptr ||
            !WebPAnimEncoderAdd(_encoder, nullptr, _lastTime + kLastFrameTime, nullptr) ||
            !WebPAnimEncoderAssemble(_encoder, &data))
            return fail();
        const QString wrong =
            written(_path, QByteArray(reinterpret_cast<const char*>(data.bytes), qsizetype(data.size)));
        WebPDataClear(&data);
        return wrong;
    }

private:
    bool begin(const QSize& size) {
        WebPAnimEncoderOptions options;
        if (!WebPAnimEncoderOptionsInit(&options) || !WebPConfigInit(&_config))
            return false;
        _config.quality = kQuality;
        _size = size;
        _encoder = WebPAnimEncoderNew(size.width(), size.height(), &options);
        return _encoder != nullptr;
    }
    // A canvas may change its size.
    QImage asLargeAsTheFirst(const QImage& frame) const {
        if (frame.size() == _size)
            return frame;
        QImage same(_size, QImage::Format_RGBA8888_Premultiplied);
        same.fill(Qt::transparent);
        QPainter(&same).drawImage(0, 0, frame);
        return same;
    }
    QString fail() const {
        const char* why =
            _encoder != nullptr ? WebPAnimEncoderGetError(_encoder) : "its sides have at most 16383 pixels";
        return QStringLiteral("%1: the animation cannot be encoded: %2").arg(_path, QString::fromUtf8(why));
    }

    QString _path;
    QSize _size;
    WebPAnimEncoder* _encoder = nullptr;
    WebPConfig _config{};
    int _time = 0, _lastTime = 0;
};

#endif

}  // namespace

QString makeFrameTaker(const QString& path, std::unique_ptr<FrameTaker>& taker) {
    if (path.endsWith(QLatin1String(".webp"), Qt::CaseInsensitive)) {
#ifdef DABCANVAS_HAVE_WEBP
        OutputFile file(path);
        if (!file.check())
            return QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString());
        taker = std::make_unique<WebpAnimation>(path);
        return {};
#else
        return QStringLiteral(
                   "%1: this program was built without libwebp; the name of a folder takes pictures")
            .arg(path);
#endif
    }
    // Another one's, of which some would be overwritten and some stay.
    if (QFileInfo::exists(frameOf(path, 1)))
        return QStringLiteral("%1: there are frames in this folder already").arg(path);
    const QStringList missing = missingFolders(path);
    if (!QDir().mkpath(path))
        return QStringLiteral("%1: the folder cannot be made").arg(path);
    taker = std::make_unique<FrameFolder>(path, missing);
    return {};
}

}  // namespace dabcanvas
