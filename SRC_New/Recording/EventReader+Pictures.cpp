// SPDX-License-Identifier: MIT
// Lines that have pictures: layers, and the picture as a whole.
#include <limits>
#include <utility>

#include "Recording/EmbeddedPicture.h"
#include "Recording/EventReader.h"
#include "Recording/JsonMembers.h"
#include "Recording/JsonValues.h"
#include "Recording/RecordingNames.h"

namespace dabcanvas {
namespace {

constexpr int kMostLayers = 256;
const QStringList kLayerMembers{"name", "opacity", "blend", "visible", "locksAlpha", "picture"};

}  // namespace

void EventReader::readOfLayer(int place, LayerSettings& settings, QImage& picture) {
    enum { name, opacity, blend, visible, locksAlpha };
    switch (place) {
        case name:
            _reader.readText(settings.name);
            break;
        case opacity:
            readFloat(_reader, settings.opacity);
            break;
        case blend:
            readWhole(_reader, 0, std::numeric_limits<std::uint32_t>::max(), settings.blendType);
            break;
        case visible:
            _reader.readBoolean(settings.isVisible);
            break;
        case locksAlpha:
            _reader.readBoolean(settings.locksAlpha);
            break;
        default:
            readPicture(picture);
    }
}

bool EventReader::readLayers(WholeLayers& whole) {
    InputLayers& layers = whole.layers;
    enum { active, all };
    static const QStringList kMembers{"active", "all"};
    const bool isRead = JsonMembers(_reader, kMembers).readObject([&](int place) {
        if (place == active) {
            readWhole(_reader, 0, kMostLayers - 1, layers.active);
            return;
        }
        for (_reader.beginList(); _reader.nextElement();) {
            InputLayers::One layer;
            if (layers.all.size() == std::size_t{kMostLayers})
                return void(_reader.fail(QStringLiteral("more than %1 layers").arg(kMostLayers)));
            if (!JsonMembers(_reader, kLayerMembers).readObject([&](int of) {
                    readOfLayer(of, layer.settings, layer.picture);
                }))
                return;
            layers.all.push_back(std::move(layer));
        }
    });
    return isRead && (std::size_t(layers.active) < layers.all.size() ||
                      _reader.fail(QStringLiteral("there is no layer %1").arg(layers.active)));
}

bool EventReader::readLayerEdit(LayerChange& change) {
    InputLayerEdit& edit = change.edit;
    enum { what, number, to, first };
    static const QStringList kMembers = QStringList{"do", "number", "to"} + kLayerMembers;
    return JsonMembers(_reader, kMembers).readObject([&](int place) {
        if (place == what)
            readWord(_reader, kLayerEditNames, edit.kind);
        else if (place < first)
            readWhole(_reader, 0, kMostLayers, place == to ? edit.to : edit.layer);
        else
            readOfLayer(place - first, edit.settings, edit.picture);
    });
}

bool EventReader::readWholePicture(WholePicture& whole) {
    return readPicture(whole.picture);
}

bool EventReader::readPictures(QList<QImage>& images) {
    for (_reader.beginList(); _reader.nextElement();) {
        QImage image;
        if (!readPicture(image))
            return false;
        images << image;
    }
    return !_reader.failed();
}

// Embedded, or the number of one that was.
bool EventReader::readPicture(QImage& image) {
    if (_reader.peek() == JsonReader::Kind::null)
        return _reader.readNull();
    enum { png, number, density };
    static const QStringList kMembers{"png", "number", "density"};
    JsonMembers members(_reader, kMembers);
    double ratio = 1;
    QString name;
    _reader.beginObject();
    while (_reader.nextMember(name)) {
        const int place = members.place(name);
        if (place == png) {
            QByteArray text;
            _reader.readBytes(text);
            if (_reader.failed())
                return false;
            auto read = pictureEmbedded(QByteArray::fromBase64(text), kMostPixels - _pictures.pixels);
            if (!read)
                return _reader.fail(read.problem().what);
            image = std::move(*read);
            _pictures.pixels += qint64(image.width()) * image.height();
            _pictures.images.push_back(image);
        } else if (place == number) {
            std::size_t which = 0;
            if (_pictures.images.empty())
                return _reader.fail(QStringLiteral("no picture comes before"));
            if (!readWhole(_reader, 0, double(_pictures.images.size()) - 1, which))
                return false;
            image = _pictures.images[which];
        } else if (place < 0 || !_reader.readNumber(ratio)) {
            return false;
        }
    }
    if (_reader.failed())
        return false;
    if (members.has(png) == members.has(number))
        return _reader.fail(QStringLiteral("a picture is {\"png\": ...} or {\"number\": ...}"));
    if (!(ratio >= 0.01 && ratio <= 100))
        return _reader.fail(QStringLiteral("the density is out of range"));
    image.setDevicePixelRatio(ratio);
    return true;
}

}  // namespace dabcanvas
