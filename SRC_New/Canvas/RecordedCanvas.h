// SPDX-License-Identifier: MIT
// A picture of the canvas: what strokes that are to be recognised are taken back to, and what undo steps are made of. It
// shares its tiles with the canvas where the surface has some, and only those that were touched are looked at anew.
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Canvas/PaintLayers.h"
#include "History/StepPicture.h"
#include "History/TilePicture.h"

namespace dabcanvas {

// Of the fixed message: where a sketch's canvas is recorded.
inline constexpr int kRecognitionLine = 699;

class RecordedCanvas {
public:
    explicit RecordedCanvas(PaintLayers& layers);

    // Empty for none; any bytes when a host gave them.
    StepPicture data() const { return _told ? StepPicture(_told) : StepPicture(_bytes); }
    qsizetype bytesOfCanvas() const { return qsizetype{4} * _layers.size().width * _layers.size().height; }
    bool hasCanvasSize() const { return data().size() == bytesOfCanvas(); }
    // What its pictures are made of.
    const std::shared_ptr<TileStore>& tiles() const { return _tiles; }
    // With other tiles from now on, and no picture.
    void startAnew();
    // The canvas has another size: with the same tiles, and no picture of it yet.
    void forgetCanvas();

    // Any other picture, as a host does; sketches are taken back to it, all of it, until it is read anew.
    void give(const QByteArray& data);
    bool isGiven() const { return _given; }
    // A transparent one, whatever the canvas is. False without the memory.
    bool giveBlank();

    // What the canvas is now, which data() is not told of; null when it cannot be read.
    std::shared_ptr<const TilePicture> present();
    // Makes it the present canvas. False, and nothing changed, when the surface is lost and, after the fixed message of
    // that line, without the memory.
    bool read(int line);
    // The same, but there is none without the memory.
    void refresh(int line);
    // Canvas and background become it there; what was given becomes them everywhere, and is the canvas from now on. The
    // area of that; nothing when there is none that fits.
    std::optional<Rect> restore(const Rect& area);
    // Canvas and background become another picture of their size, and so does this. The area that changed; nothing, and
    // `problem` in words, without the memory or when that picture cannot be had.
    std::optional<Rect> show(const StepPicture& picture, QString* problem);

private:
    using Changes = std::vector<std::pair<std::size_t, TileRef>>;
    TileSet tilesIn(const Rect& area) const;
    bool readCanvas();
    std::optional<Changes> readTiles(const TilePicture& before);
    TileRef version(const PlacedTile& read, const TileRef& before);
    TilePicture tilesOf(const QByteArray& bytes);
    static bool place(const TilePicture& picture, std::size_t index, std::vector<PlacedTile>& placed,
                      QString* problem);
    void become(std::shared_ptr<const TilePicture> picture);

    PaintLayers& _layers;
    std::shared_ptr<TileStore> _tiles;
    std::shared_ptr<const TilePicture> _picture;  // as the canvas was read last, or what was given
    std::shared_ptr<const TilePicture> _told;     // the same, as it was recorded last
    QByteArray _bytes;                            // a host's, in its place
    bool _isCanvas = false;                       // but for touched tiles it is the canvas's picture
    bool _given = false;                          // by a host, and of the canvas's size
};

void tellNoMemory(int line);

}  // namespace dabcanvas
