// SPDX-License-Identifier: MIT
// A picture of the canvas: what strokes that are to be recognised are taken back to, and what undo steps are made of. It
// shares its tiles with the canvas where the surface has some, and only those that were touched are looked at anew.
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Canvas/LayerPlanes.h"
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
    const LayerPlanes& planes() const { return _planes; }
    // The layers that are not in the surface, as they are in an area of the canvas. None where that cannot be had.
    std::optional<LayerPlanes::Others> cropped(const Rect& area, QString* problem);
    // The canvas has another size: with the same tiles, and no picture of the front yet.
    void forgetCanvas(LayerPlanes::Others others);

    // Any other picture, as a host does; sketches are taken back to it, all of it, until it is read anew.
    void give(const QByteArray& data);
    bool isGiven() const { return _given; }
    // A transparent one, whatever the canvas is. False without the memory.
    bool giveBlank();

    // What the canvas is now, all layers of it, which data() is not told of; null when it cannot be read.
    std::shared_ptr<const TilePicture> present();
    // Makes it the present canvas. False, and nothing changed, when the surface is lost and, after the fixed message of
    // that line, without the memory.
    bool read(int line);
    // The same, but there is none without the memory.
    void refresh(int line);
    // Canvas and background become it there; what was given becomes them everywhere, and is the canvas from now on. The
    // area of that; nothing when there is none that fits.
    std::optional<Rect> restore(const Rect& area);
    // Which layer is in the surface after another picture was shown: the same, if there is such a one, or the picture's.
    enum class FrontIs : std::uint8_t { kept, given };
    // Canvas and background become another picture of their size, and so does this; what is only bytes becomes the front.
    // The area that changed; nothing, and `problem` in words, without the memory or when that picture cannot be had.
    std::optional<Rect> show(const StepPicture& picture, QString* problem, FrontIs front = FrontIs::kept);
    // The surface is lost: another of its kind of picture becomes what was last read of the front. Where that is not known,
    // and with `asShown` wherever it looked another way since, it becomes what was shown of the canvas. False, and
    // `problem` in words, where there is neither, and without the memory.
    bool fallBackOn(PaintSurface& surface, const QImage& shown, bool asShown, QString* problem) const;
    // A layer of these rows, of 4 bytes a pixel or as many as the surface has, as large as the canvas. Throws std::bad_alloc.
    TilePicture planeOf(const PixelView& rows) { return tilesOf(rows, TilePicture(_layers.size())); }
    // Another layer goes into the surface. False, and nothing changed, where it cannot be had.
    bool setFront(std::size_t layer, QString* problem);
    // Others lie behind and above the front, which stays what it is.
    void becomeLayers(const PictureShape& shape, LayerPlanes::Others others);

private:
    using Changes = std::vector<std::pair<std::size_t, TileRef>>;
    using Picture = std::shared_ptr<const TilePicture>;
    // Tiles of another picture with their pixels, those of the front by their place.
    struct Fetched {
        std::vector<PlacedTile> front;
        std::vector<std::pair<TileRef, SharedTile>> others;
        Rect area;
    };
    TileSet tilesIn(const Rect& area) const;
    std::vector<PlacedTile> shownTiles(const QImage& shown, const std::vector<PlacedTile>& known) const;
    bool readCanvas();
    std::optional<Changes> readTiles(const TilePicture& before);
    TileRef version(const PlacedTile& read, const TileRef& before);
    TilePicture tilesOf(const QByteArray& bytes);
    TilePicture tilesOf(const PixelView& rows, TilePicture picture);
    static bool place(const TilePicture& picture, std::size_t index, std::vector<PlacedTile>& placed,
                      QString* problem);
    Picture wholePicture() const;
    Picture ownPicture(const StepPicture& picture, FrontIs front);
    bool fetch(const TilePicture& next, const TilePicture& front, Fetched& fetched, QString* problem) const;
    const TilePicture* planeOf(std::uint32_t layer) const;
    Rect changedArea(const TilePicture& next) const;
    bool crop(const TilePicture& from, const Rect& area, TilePicture& to, QString* problem) const;
    LayerPlanes::Others othersIn(TileStore& tiles) const;
    static void changeShown(const TilePicture* from, const TilePicture* to);
    void become(Picture picture);

    PaintLayers& _layers;
    std::shared_ptr<TileStore> _tiles;
    LayerPlanes _planes;
    Picture _picture;        // the front as the canvas was read last, or what was given
    Picture _told;           // with all layers, as it was recorded last
    QByteArray _bytes;       // a host's, in its place
    bool _isCanvas = false;  // but for touched tiles it is the canvas's picture
    bool _given = false;     // by a host, and of the canvas's size
};

void tellNoMemory(int line);

}  // namespace dabcanvas
