#include <vexel/render/OffscreenPicture.h>

#include <algorithm>
#include <cstring>

#include <vexel/render/OffscreenTarget.h>

namespace vexel {

namespace {

/** Pixels drawn beyond the edges of a piece and thrown away, so that wide lines and halos run on across the seams. */
constexpr int Margin = 32;

/** A stretch of pixels along one axis of the picture. */
struct Stretch {
    int first;
    int count;
};

RenderView pieceOf(const OffscreenPicture& picture, const RenderView& view, Stretch columns, Stretch rows, int margin)
{
    RenderView piece = view;
    piece.viewport = {0, 0, columns.count + 2 * margin, rows.count + 2 * margin};
    const auto share = [=](int pixel, int size) { return static_cast<float>(pixel) / static_cast<float>(size); };
    piece.window = {share(columns.first - margin, picture.width), share(rows.first - margin, picture.height),
                    share(columns.first + columns.count + margin, picture.width),
                    share(rows.first + rows.count + margin, picture.height)};
    return piece;
}

/** Copies the inner part of a piece to its place; rows count from the bottom of the picture. */
void place(QImage& whole, const QImage& piece, Stretch columns, Stretch rows, int margin)
{
    for (int row = 0; row < rows.count; ++row) {
        const uchar* from = piece.constScanLine(margin + rows.count - 1 - row) + 4 * margin;
        uchar* to = whole.scanLine(whole.height() - 1 - rows.first - row) + 4 * columns.first;
        std::memcpy(to, from, 4 * static_cast<std::size_t>(columns.count));
    }
}

} // namespace

QImage drawPicture(const OffscreenPicture& picture, const RenderView& view,
                   const std::function<void(const RenderView&)>& draw)
{
    const int limit = std::min(std::max(picture.tileSize, 1) + 2 * Margin, OffscreenTarget::maxSize());
    const int margin = std::max(picture.width, picture.height) > limit - 2 * Margin ? Margin : 0;
    const int step = limit - 2 * Margin;
    QImage whole(picture.width, picture.height, QImage::Format_RGBA8888_Premultiplied);
    const OffscreenTarget target(std::min(picture.width, step) + 2 * margin,
                                 std::min(picture.height, step) + 2 * margin, picture.samples);
    if (whole.isNull() || !target.isComplete())
        return QImage();
    for (int y = 0; y < picture.height; y += step) {
        for (int x = 0; x < picture.width; x += step) {
            const Stretch columns{x, std::min(step, picture.width - x)};
            const Stretch rows{y, std::min(step, picture.height - y)};
            target.bind();
            draw(pieceOf(picture, view, columns, rows, margin));
            // The last pieces of a row or column may be smaller than the target; they stand in its lower left corner.
            const QImage piece = target.image();
            const int height = rows.count + 2 * margin;
            place(whole, piece.copy(0, piece.height() - height, piece.width(), height), columns, rows, margin);
        }
    }
    return whole;
}

} // namespace vexel
