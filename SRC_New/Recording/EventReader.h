// SPDX-License-Identifier: MIT
// What one line of a recording says.
#pragma once

#include <QImage>
#include <cmath>
#include <vector>

#include "Recording/JsonReader.h"
#include "Recording/Recording.h"

namespace dabcanvas {

// The pictures that the lines so far have embedded.
struct EmbeddedPictures {
    std::vector<QImage> images;  // in their order
    qint64 pixels = 0;
};

inline bool readWhole(JsonReader& reader, double least, double most, double& value) {
    if (!reader.readNumber(value))
        return false;
    return (value == std::floor(value) && value >= least && value <= most) ||
           reader.fail(QStringLiteral("expected a whole number from %1 to %2")
                           .arg(least, 0, 'f', 0)
                           .arg(most, 0, 'f', 0));
}

template <typename Whole>
bool readWhole(JsonReader& reader, double least, double most, Whole& value) {
    double number = 0;
    const bool isRead = readWhole(reader, least, most, number);
    value = Whole(isRead ? number : 0);
    return isRead;
}

// One line.
class EventReader {
public:
    EventReader(EmbeddedPictures& pictures, JsonReader& reader) : _pictures(pictures), _reader(reader) {}

    bool read(std::vector<RecordedEvent>& events);

private:
    bool readStroke(StrokePart& part);
    bool readSamples(StrokePart& part);
    bool readBrush(std::vector<RecordedEvent>& events);
    bool readValue(const BrushProperty& property, BrushValue& value);
    bool readClear(ClearedCanvas& cleared);
    bool readImage(InputImage& placed);
    bool readPreview(InputLimits& limits);
    bool readScissor(InputLimits& limits);
    bool readArea(QRect& area);
    bool readView(ViewChange& change);
    bool readSymmetry(Symmetry& symmetry);
    bool readShape(ShapeRecord& shape);
    bool readLayers(InputLayers& layers);
    bool readLayerEdit(InputLayerEdit& edit);
    // A member of a layer, by its place among them.
    void readOfLayer(int place, LayerSettings& settings, QImage& picture);
    bool readPicture(QImage& image);
    bool readPictures(QList<QImage>& images);
    template <typename What, typename Read>
    bool one(std::vector<RecordedEvent>& events, Read&& read) {
        What what{};
        const bool isRead = read(what);
        events.push_back({0, std::move(what)});
        return isRead;
    }

    EmbeddedPictures& _pictures;
    JsonReader& _reader;
};

}  // namespace dabcanvas
