// SPDX-License-Identifier: MIT
#include "Import/TipImport.h"

#include <QPainter>
#include <algorithm>
#include <new>

#include "Dabs/TipImage.h"
#include "Import/GimpBrush.h"
#include "Preset/PresetImages.h"

namespace dabcanvas {
namespace {

constexpr float kLeastSpacing = 0.01f;

Bytes bytesOf(const QByteArray& file) {
    return {reinterpret_cast<const std::uint8_t*>(file.constData()), static_cast<std::size_t>(file.size())};
}

// Tips and how they paint, before they are one brush.
struct Tips {
    QString name;
    std::vector<QImage> images;
    bool isColoured = false;
    int spacing = 0;  // per cent; 0 for none said
    GimpSelection selection = GimpSelection::inOrder;
    std::size_t count = 0;  // of the file
    bool hasSize = false;   // they are meant to be painted as large as they are
};

// What paints is black with so much alpha, or of the pixels' colours.
QImage tipOf(const GimpBrush& brush) {
    const qsizetype depth = brush.isColoured ? 4 : 1;
    const QImage rows(brush.pixels.data(), brush.width, brush.height, brush.width * depth,
                      brush.isColoured ? QImage::Format_RGBA8888 : QImage::Format_Alpha8);
    return rows.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

// The same as a picture: what paints is white.
QImage paperOf(const GimpBrush& brush) {
    if (brush.isColoured) {
        return tipOf(brush);
    }
    return QImage(brush.pixels.data(), brush.width, brush.height, brush.width, QImage::Format_Grayscale8)
        .copy();
}

bool isOpaque(const QImage& picture) {
    for (int y = 0; y < picture.height() && picture.hasAlphaChannel(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(), [](QRgb pixel) { return qAlpha(pixel) != 255; })) {
            return false;
        }
    }
    return true;
}

bool isGrey(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(), [](QRgb pixel) {
                return qRed(pixel) != qGreen(pixel) || qGreen(pixel) != qBlue(pixel);
            })) {
            return false;
        }
    }
    return true;
}

// Of one that is opaque, what is dark paints.
QImage tipOfPicture(const QImage& any, bool& isColoured) {
    const QImage picture = any.convertToFormat(QImage::Format_ARGB32);
    isColoured = false;
    if (!isOpaque(picture)) {
        isColoured = !isGrey(picture);
        return any;
    }
    QImage darkness = picture.convertToFormat(QImage::Format_Grayscale8);
    darkness.invertPixels();
    darkness.reinterpretAsFormat(QImage::Format_Alpha8);
    return darkness.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

// A square with the tip in its middle; all of a brush shrink alike, to what is painted with at most.
QImage squareOf(const QImage& tip, int side, int most) {
    const int shown = std::min(side, most);
    const auto shrunk = [&](int length) {
        return std::max(1, static_cast<int>(qint64{length} * shown / side));
    };
    const QSize size(shrunk(tip.width()), shrunk(tip.height()));
    QImage square(shown, shown, QImage::Format_RGBA8888_Premultiplied);
    square.fill(Qt::transparent);
    const QImage fitting =
        size == tip.size() ? tip : tip.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter(&square).drawImage((shown - size.width()) / 2, (shown - size.height()) / 2, fitting);
    return square;
}

std::optional<Tips> gimpTips(Bytes file, QString& problem) {
    std::string wrong;
    Tips tips;
    tips.hasSize = true;
    if (looksLikeGimpBrush(file)) {
        if (const auto brush = readGimpBrush(file, wrong)) {
            tips.name = QString::fromStdString(brush->name);
            tips.images = {tipOf(*brush)};
            tips.isColoured = brush->isColoured;
            tips.spacing = brush->spacing;
            tips.count = 1;
            return tips;
        }
    } else if (const auto pipe = readGimpPipe(file, wrong)) {
        tips.name = QString::fromStdString(pipe->name);
        tips.selection = pipe->selection;
        tips.spacing = pipe->tips.front().spacing;
        tips.count = pipe->count;
        for (const GimpBrush& brush : pipe->tips) {
            tips.images.push_back(tipOf(brush));
            tips.isColoured |= brush.isColoured;
        }
        return tips;
    }
    problem = QString::fromStdString(wrong);
    return std::nullopt;
}

std::optional<QImage> pictureFrom(const QByteArray& file, QString& problem) {
    PresetImages images;
    QImage picture = images.read(file);
    if (!picture.isNull()) {
        return picture;
    }
    problem = QStringLiteral("it %1").arg(file.isEmpty() ? QStringLiteral("is empty") : images.problem());
    return std::nullopt;
}

// How one of several is picked, and what is lost by that.
void pick(GimpSelection selection, ImportedBrush& brush) {
    const auto control = [&](const LPControlParams& influence) {
        brush.values.emplace_back(BrushKey::textureControl, influence);
    };
    const auto atRandom = [&](const char* instead) {
        brush.values.emplace_back(BrushKey::textureTingleEnabled, true);
        if (instead != nullptr) {
            brush.lost
                << QStringLiteral("tips picked %1; they are picked at random").arg(QLatin1String(instead));
        }
    };
    switch (selection) {
        case GimpSelection::byPressure:
            return control({-1, 0, 0});
        case GimpSelection::bySpeed:
            return control({0, 0, 1});
        case GimpSelection::atRandom:
            return atRandom(nullptr);
        case GimpSelection::inOrder:
            return atRandom("one after another");
        case GimpSelection::byDirection:
            return atRandom("by direction");
        case GimpSelection::byTilt:
            return atRandom("by tilt");
    }
}

ImportedBrush brushOf(const Tips& tips) {
    ImportedBrush brush;
    brush.name = tips.name.simplified();
    int side = 1;
    for (const QImage& image : tips.images) {
        side = std::max({side, image.width(), image.height()});
    }
    QList<QImage> squares;
    for (const QImage& image : tips.images) {
        squares << squareOf(image, side, mostTipSide(tips.images.size()));
    }
    brush.values.emplace_back(BrushKey::textureType, 0);
    brush.values.emplace_back(BrushKey::textureImages, squares);
    brush.values.emplace_back(BrushKey::colorFul, tips.isColoured);
    if (tips.hasSize) {
        brush.values.emplace_back(BrushKey::radius, static_cast<float>(side));
    }
    if (tips.spacing > 0) {
        brush.values.emplace_back(BrushKey::pointsDistance,
                                  std::max(static_cast<float>(tips.spacing) / 100, kLeastSpacing));
    }
    if (tips.images.size() > 1) {
        pick(tips.selection, brush);
    }
    if (tips.count > tips.images.size()) {
        brush.lost << QStringLiteral("%1 of its %2 tips; the first %3 are kept")
                          .arg(tips.count - tips.images.size())
                          .arg(tips.count)
                          .arg(tips.images.size());
    }
    return brush;
}

bool isGimps(Bytes file) {
    return looksLikeGimpBrush(file) || looksLikeGimpPipe(file);
}

}  // namespace

std::optional<ImportedBrush> tipsFrom(const QByteArray& file, QString& problem) try {
    if (isGimps(bytesOf(file))) {
        const auto tips = gimpTips(bytesOf(file), problem);
        return tips ? std::optional(brushOf(*tips)) : std::nullopt;
    }
    const auto picture = pictureFrom(file, problem);
    if (!picture) {
        return std::nullopt;
    }
    Tips tips;
    tips.images = {tipOfPicture(*picture, tips.isColoured)};
    tips.count = 1;
    return brushOf(tips);
} catch (const std::bad_alloc&) {
    problem = QStringLiteral("there is no memory for it");
    return std::nullopt;
}

std::optional<ImportedBrush> paperFrom(const QByteArray& file, QString& problem) try {
    ImportedBrush brush;
    QImage paper;
    if (looksLikeGimpBrush(bytesOf(file))) {
        std::string wrong;
        if (const auto read = readGimpBrush(bytesOf(file), wrong)) {
            paper = paperOf(*read);
            brush.name = QString::fromStdString(read->name).simplified();
        }
        problem = QString::fromStdString(wrong);
    } else {
        paper = pictureFrom(file, problem).value_or(QImage());
    }
    if (paper.isNull()) {
        return std::nullopt;
    }
    brush.values.emplace_back(BrushKey::maskImage, paper);
    brush.values.emplace_back(BrushKey::needMaskTexture, true);
    return brush;
} catch (const std::bad_alloc&) {
    problem = QStringLiteral("there is no memory for it");
    return std::nullopt;
}

}  // namespace dabcanvas
