// SPDX-License-Identifier: MIT
#include "SampleSheet.h"

#include <QFont>
#include <QPainter>
#include <iterator>

#include "TextPlatform.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr int kGap = 6, kBlockGap = 26, kName = 26, kHeading = 26, kText = 15;  // pixels

constexpr double kLargest = 0.45;  // brush, in heights of a sample: a patch has some rows of it

constexpr struct {
    const char* heading;
    BrushView view;
} kColumns[] = {{"line", {SampleKind::wave, SampleGround::plain, kLargest}},
                {"fast scribble", {SampleKind::scribble, SampleGround::plain, kLargest}},
                {"filled once and twice", {SampleKind::patch, SampleGround::plain, kLargest}},
                {"pressure", {SampleKind::pressure, SampleGround::plain, kLargest}},
                {"tilt, upright to flat", {SampleKind::tilt, SampleGround::plain, kLargest}},
                {"over colours", {SampleKind::wave, SampleGround::bands, kLargest}}};
constexpr int kColumnCount = int(std::size(kColumns));

int blockWidth(const QSize& sample) {
    return kColumnCount * (sample.width() + kGap) - kGap;
}

int rowHeight(const QSize& sample) {
    return kName + sample.height() + kGap;
}

// Where the samples of a row begin.
QPoint placeOf(int row, int down, const QSize& sample) {
    return {kBlockGap + row / down * (blockWidth(sample) + kBlockGap),
            kHeading + row % down * rowHeight(sample) + kName};
}

void drawText(QPainter& painter, const QRect& room, const QString& text) {
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
}

void drawRow(QPainter& painter, const QPoint& at, const SheetRow& row) {
    const QSize sample = row.samples.front().size();
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    drawText(painter, {at.x(), at.y() - kName, blockWidth(sample), kName}, row.name.simplified());
    int x = at.x();
    for (const QImage& image : row.samples) {
        painter.drawImage(x, at.y(), image);
        x += sample.width() + kGap;
    }
}

void drawHeadings(QPainter& painter, int left, const QSize& sample) {
    QFont font = painter.font();
    font.setBold(false);
    painter.setFont(font);
    for (const auto& column : kColumns) {
        drawText(painter, {left, 0, sample.width(), kHeading}, QLatin1String(column.heading));
        left += sample.width() + kGap;
    }
}

}  // namespace

Result<SheetRow> sheetRow(const Brush& brush, const std::vector<BrushPlan::Step>& settings,
                          const QSize& size) {
    SheetRow row{brush.name, {}};
    for (const auto& column : kColumns) {
        auto image = brushSample(brush, settings, size, column.view);
        if (!image)
            return image.problem();
        row.samples.push_back(std::move(*image));
    }
    return row;
}

QSize sheetSize(const QSize& sample, int rows, int across) {
    const int down = (rows + across - 1) / across;
    return {across * (blockWidth(sample) + kBlockGap) + kBlockGap,
            kHeading + down * rowHeight(sample) + kBlockGap - kGap};
}

QImage sampleSheet(const std::vector<SheetRow>& rows, int across) {
    const TextPlatform platform;

    const QSize sample = rows.front().samples.front().size();
    const int all = int(rows.size()), down = (all + across - 1) / across;
    QImage sheet(sheetSize(sample, all, across), QImage::Format_RGB32);
    sheet.fill(QColor(0xe4, 0xe4, 0xe2));
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(kText);
    painter.setFont(font);
    painter.setPen(QColor(0x30, 0x30, 0x30));
    for (int i = 0; i < all; ++i) {
        const QPoint at = placeOf(i, down, sample);
        drawRow(painter, at, rows[std::size_t(i)]);
        if (i % down == 0)
            drawHeadings(painter, at.x(), sample);
    }
    return sheet;
}

}  // namespace dabcanvas::dabpaint
