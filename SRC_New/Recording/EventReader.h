// SPDX-License-Identifier: MIT
// What one line of a recording says.
#pragma once

#include <QImage>
#include <vector>

#include "Recording/JsonReader.h"
#include "Recording/Recording.h"

namespace dabcanvas {

// The pictures that the lines so far have embedded.
struct EmbeddedPictures {
    std::vector<QImage> images;  // in their order
    qint64 pixels = 0;
};

// One line.
class EventReader {
public:
    EventReader(EmbeddedPictures& pictures, JsonReader& reader) : _pictures(pictures), _reader(reader) {}

    bool read(std::vector<RecordedEvent>& events);

private:
    struct Line;
    static const Line kLines[];

    template <typename What, bool (EventReader::*read)(What&)>
    bool one(std::vector<RecordedEvent>& events) {
        What what{};
        const bool isRead = (this->*read)(what);
        events.push_back({0, std::move(what)});
        return isRead;
    }
    bool readStroke(StrokePart& part);
    bool readBrush(std::vector<RecordedEvent>& events);
    bool readSecondLine(SecondLineChange& change);
    bool readSeed(SeedChange& change);
    bool readRepeats(RepeatChange& change);
    bool readClear(ClearedCanvas& cleared);
    bool readImage(InputImage& placed);
    bool readPreview(PlacedPreview& placed);
    bool readShape(DrawnShape& drawn);
    bool readWholePicture(WholePicture& whole);
    bool readArea(AreaChange& change);
    bool readView(ViewChange& change);
    bool readSymmetry(Symmetry& symmetry);
    bool readSelection(SelectionChange& change);
    bool readCall(RecordedCall& call);
    bool readLayers(WholeLayers& whole);
    bool readLayerEdit(LayerChange& change);

    bool readSamples(StrokePart& part);
    bool readValue(const BrushProperty& property, BrushValue& value);
    bool readScissor(InputLimits& limits);
    // A list of places, to take(double x, double y).
    template <typename Take>
    bool readPlaces(Take&& take);
    // A member of a layer, by its place among them.
    void readOfLayer(int place, LayerSettings& settings, QImage& picture);
    bool readPicture(QImage& image);
    bool readPictures(QList<QImage>& images);

    EmbeddedPictures& _pictures;
    JsonReader& _reader;
};

}  // namespace dabcanvas
